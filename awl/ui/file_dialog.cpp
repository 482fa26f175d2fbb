// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include "widgets/file_choice.h"
#include "widgets/message_box.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

// "File AWL (*.AWL)|*.AWL" as the window library writes it; small letters count as well.
QString Filtro_Qt(const std::string& filtro) {
  const QStringList parti = Q(filtro).split('|');
  if (parti.size() < 2) return Q(filtro);
  QString nome = parti[0];
  const QString& maschera = parti[1];
  nome.remove(QStringLiteral(" (%1)").arg(maschera));
  return QStringLiteral("%1 (%2 %3)").arg(nome, maschera, maschera.toLower());
}

/// Offers the name last saved beside the one that is proposed. Called when all else is set.
void Offri_Ultimo(QFileDialog& dialogo, const QString& ultimo) {
  auto* nome = dialogo.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  auto* griglia = qobject_cast<QGridLayout*>(dialogo.layout());
  if (ultimo.isEmpty() || nome == nullptr || griglia == nullptr ||
      QDir::cleanPath(dialogo.directory().absoluteFilePath(nome->text())) ==
          QDir::cleanPath(ultimo))
    return;
  auto* usa = Chiama(QStringLiteral("cmdUltimo"), new QPushButton);
  QString titolo = QFileInfo(ultimo).fileName();
  constexpr int larghezza = 420;
  titolo = usa->fontMetrics().elidedText(titolo, Qt::ElideMiddle, larghezza);
  usa->setText(QStringLiteral("&Ultimo nome usato: %1 (F2)").arg(titolo.replace('&', "&&")));
  usa->setToolTip(ultimo);
  usa->setAutoDefault(false);
  const auto prendi = [nome, ultimo] {
    nome->setText(QDir::toNativeSeparators(ultimo));
    nome->setFocus();
  };
  QObject::connect(usa, &QPushButton::clicked, nome, prendi);
  auto* tasto = new QShortcut(QKeySequence(Qt::Key_F2), &dialogo);
  QObject::connect(tasto, &QShortcut::activated, nome, prendi);
  griglia->addWidget(usa, griglia->rowCount(), 0, 1, griglia->columnCount(), Qt::AlignLeft);
}

/// Saves under the extension of its filter. The library leaves a name that has a dot as it is, and
/// the dialog that opens files would not offer "esercizio 1.2" again.
class Dialogo_File : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  void accept() override {
    auto* nome = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString scritto = nome->text();
    const QFileInfo file(directory(), scritto);
    const bool altra = !file.suffix().isEmpty() &&
                       file.suffix().compare(defaultSuffix(), Qt::CaseInsensitive) != 0;
    if (acceptMode() == AcceptSave && altra && !file.isDir())
      nome->setText(scritto + '.' + defaultSuffix());
    QFileDialog::accept();
  }
};

std::optional<File_Scelto> Scegli_File(QWidget* sopra, const Richiesta_File& richiesta) {
  Dialogo_File dialogo(Finestra_Sotto(sopra));
  dialogo.setObjectName(QStringLiteral("Scelta_File"));
  dialogo.setOption(QFileDialog::DontUseNativeDialog);
  dialogo.setNameFilter(Filtro_Qt(richiesta.Filtro));
  if (richiesta.Salva) {
    dialogo.setWindowTitle(QStringLiteral("Salva con nome"));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setDefaultSuffix(QFileInfo(Q(richiesta.Filtro).section('|', 1)).suffix());
  } else {
    dialogo.setWindowTitle(QStringLiteral("Apri"));
    dialogo.setAcceptMode(QFileDialog::AcceptOpen);
    dialogo.setFileMode(QFileDialog::ExistingFile);
  }
  dialogo.setDirectory(Cartella_Ricordata());
  if (!richiesta.Proposta.empty()) dialogo.selectFile(Q(richiesta.Proposta));
  Offri_Ultimo(dialogo, Q(richiesta.Ultimo));
  Ritocca(dialogo);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
  const QFileInfo scelto(dialogo.selectedFiles().constFirst());
  Ricorda_Cartella(scelto.absolutePath());
  return File_Scelto{Utf8(scelto.absoluteFilePath()), Utf8(scelto.fileName())};
}

}  // namespace

Dialoghi Dialoghi_Qt(QWidget* sopra) {
  return {[sopra](const Avviso& avviso) { return Mostra_Avviso(sopra, avviso); },
          [sopra](const Richiesta_File& richiesta) { return Scegli_File(sopra, richiesta); }};
}

}  // namespace tavorno
