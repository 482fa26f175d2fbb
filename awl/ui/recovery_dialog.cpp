// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/recovery_dialog.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr QSize misura{720, 420};
constexpr int larghezza_elenco = 250;

QString Nome(const Eredita::Voce& voce) {
  if (!voce.Copia) return QStringLiteral("Copia rovinata");
  return voce.Copia->Titolo.empty() ? QStringLiteral("Senza nome") : Q(voce.Copia->Titolo);
}

QString Momento(const Eredita::Voce& voce) {
  if (!voce.Copia) return QStringLiteral("si può solo leggere");
  return QDateTime::fromSecsSinceEpoch(voce.Copia->Ora)
      .toString(QStringLiteral("dd/MM/yyyy 'alle' HH:mm:ss"));
}

QString Testo(const Eredita::Voce& voce) {
  if (!voce.Copia) return Da_Byte(voce.Byte);
  QString testo = Da_Byte(voce.Copia->Main);
  for (const Riga_SBR& procedura : voce.Copia->Procedure)
    testo += QStringLiteral("\n---- Procedura %1 ----\n").arg(Da_Byte(procedura.Nome)) +
             Da_Byte(procedura.Testo);
  return testo.remove('\r');
}

}  // namespace

FrmRecupera::FrmRecupera(Eredita& eredita, Dialoghi chiedi, QWidget* sopra)
    : QDialog(sopra), eredita_(eredita), chiedi_(std::move(chiedi)) {
  setObjectName(QStringLiteral("frmRecupera"));
  setWindowTitle(QStringLiteral("Recupera"));
  auto* colonna = new QVBoxLayout(this);
  auto* spiega = new QLabel(
      QStringLiteral("Il programma è finito prima che questo lavoro fosse salvato. \"Recupera\" lo "
                     "riporta nell'editor; con \"Più tardi\" resta da parte fino al prossimo "
                     "avvio."));
  spiega->setWordWrap(true);
  colonna->addWidget(spiega);

  auto* riga = new QHBoxLayout;
  lstCopie = Chiama(QStringLiteral("lstCopie"), new QListWidget);
  lstCopie->setAccessibleName(QStringLiteral("Lavori non salvati"));
  lstCopie->setToolTip(QStringLiteral("Nome del lavoro e momento dell'ultima copia"));
  lstCopie->setFixedWidth(larghezza_elenco);
  lstCopie->setWordWrap(true);
  riga->addWidget(lstCopie);
  txtVista = Chiama(QStringLiteral("txtVista"), new QPlainTextEdit);
  txtVista->setAccessibleName(QStringLiteral("Testo del lavoro scelto"));
  txtVista->setReadOnly(true);
  txtVista->setTabChangesFocus(true);
  txtVista->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtVista->setFont(Carattere_Fisso());
  riga->addWidget(txtVista, 1);
  colonna->addLayout(riga, 1);

  auto* pulsanti = new QHBoxLayout;
  const auto tasto = [&](const char* nome, const char* testo, const char* suggerimento) {
    auto* nuovo = Chiama(Q(nome), new QPushButton(Q(testo)));
    nuovo->setToolTip(Q(suggerimento));
    pulsanti->addWidget(nuovo);
    return nuovo;
  };
  auto* cmdButta = tasto("cmdButta", "&Butta via", "Toglie per sempre il lavoro scelto");
  pulsanti->addStretch(1);
  cmdRecupera = tasto("cmdRecupera", "&Recupera", "Riporta il lavoro scelto nell'editor");
  auto* cmdDopo = tasto("cmdDopo", "&Più tardi", "Lascia tutto da parte fino al prossimo avvio");
  cmdRecupera->setDefault(true);
  colonna->addLayout(pulsanti);

  connect(lstCopie, &QListWidget::currentRowChanged, this, [this] { Mostra_Scelta(); });
  connect(lstCopie, &QListWidget::itemDoubleClicked, cmdRecupera, &QPushButton::click);
  connect(cmdRecupera, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdButta, &QPushButton::clicked, this, [this] { Butta(); });
  connect(cmdDopo, &QPushButton::clicked, this, &QDialog::reject);
  resize(misura);
  Riempi();
}

std::size_t FrmRecupera::Scelta() const {
  return static_cast<std::size_t>(lstCopie->currentRow());
}

void FrmRecupera::Riempi() {
  lstCopie->clear();
  for (const Eredita::Voce& voce : eredita_.Voci()) {
    auto* nuova = new QListWidgetItem(Nome(voce) + '\n' + Momento(voce), lstCopie);
    if (voce.Copia && !voce.Copia->File_Salvato.empty())
      nuova->setToolTip(Q(voce.Copia->File_Salvato));
  }
  lstCopie->setCurrentRow(0);
}

void FrmRecupera::Mostra_Scelta() {
  if (lstCopie->currentRow() < 0) return;
  const Eredita::Voce& voce = eredita_.Voci().at(Scelta());
  txtVista->setPlainText(Testo(voce));
  cmdRecupera->setEnabled(voce.Copia.has_value());
}

void FrmRecupera::Butta() {
  const Avviso domanda{.Titolo = "Attenzione!",
                       .Testo = "Buttare via \"" + Utf8(Nome(eredita_.Voci().at(Scelta()))) +
                                "\"? Il testo non si potrà più recuperare.",
                       .Simbolo = Icona::Domanda,
                       .Scelte = Tasti::Ok_Annulla,
                       .Dettagli = {}};
  if (chiedi_.Mostra && chiedi_.Mostra(domanda) != Risposta::Ok) return;
  eredita_.Butta(Scelta());
  if (eredita_.Voci().empty()) return reject();
  Riempi();
}

}  // namespace tavorno
