// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/file_menus.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QRegularExpression>
#include <utility>

#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

const char* const parola_titolo = "TITLE=";

QString Titolo_Nel_File(const QString& file) {
  constexpr int linee_in_testa = 5;
  QFile aperto(file);
  if (!aperto.open(QIODevice::ReadOnly)) return {};
  for (int i = 0; i < linee_in_testa && !aperto.atEnd(); ++i) {
    const QByteArray linea = aperto.readLine(200).trimmed();
    if (linea.startsWith(parola_titolo))
      return Da_Byte(linea.mid(static_cast<int>(qstrlen(parola_titolo))).toStdString()).trimmed();
  }
  return {};
}

std::vector<Progetto_Offerto> Progetti_In(const QString& cartella, bool risolti) {
  static const QRegularExpression esercizio(QStringLiteral("^us[0-9][0-9]$"));
  std::vector<Progetto_Offerto> trovati;
  const QDir dove(cartella);
  for (const QFileInfo& file :
       dove.entryInfoList({QStringLiteral("*.AWL")}, QDir::Files, QDir::Name)) {
    if (esercizio.match(file.completeBaseName()).hasMatch() != risolti) continue;
    const QString titolo = Titolo_Nel_File(file.filePath());
    trovati.push_back(
        {titolo.isEmpty() ? file.completeBaseName() : titolo, file.absoluteFilePath()});
  }
  return trovati;
}

/// What is looked for beside the program lies there as a link to where it is installed.
QString Cartella_Esempi(const QString& cartella_programma) {
  return QFileInfo(cartella_programma + "/examples").canonicalFilePath();
}

QString Senza_Tasto(QString testo) {
  return testo.replace('&', QStringLiteral("&&"));
}

}  // namespace

std::vector<Progetto_Offerto> Esempi_Installati(const QString& cartella_programma) {
  const QString cartella = Cartella_Esempi(cartella_programma);
  return cartella.isEmpty() ? std::vector<Progetto_Offerto>{} : Progetti_In(cartella, false);
}

std::vector<Progetto_Offerto> Progetti_Risolti(const QString& cartella_programma) {
  const QString cartella = Cartella_Esempi(cartella_programma);
  if (cartella.isEmpty()) return {};
  std::vector<Progetto_Offerto> trovati = Progetti_In(cartella, true);
  return trovati.empty() ? Progetti_In(cartella + "/../solutions", true) : trovati;
}

Menu_File::Menu_File(const File_Recenti& recenti, QString cartella_programma,
                     std::function<void(const QString& file)> apri)
    : recenti_(recenti), cartella_(std::move(cartella_programma)), apri_(std::move(apri)) {}

void Menu_File::Metti_In(const QAction& titolo, QAction& fine, const QAction& apri) const {
  QMenu* file = titolo.menu();
  const auto sotto = [&](const char* nome, const QString& testo, const QString& aiuto) {
    auto* menu = new QMenu(testo, file);
    menu->menuAction()->setObjectName(QLatin1String(nome));
    menu->setToolTipsVisible(true);
    menu->menuAction()->setToolTip(aiuto);
    file->insertMenu(&fine, menu);
    return menu;
  };
  QMenu* esempi = sotto("mnuFileEsempi", QStringLiteral("Esem&pi"),
                        QStringLiteral("Apre uno dei progetti che accompagnano il programma"));
  QMenu* recenti = sotto("mnuFileRecenti", QStringLiteral("File &recenti"),
                         QStringLiteral("Apre uno dei progetti usati per ultimi"));
  file->insertSeparator(&fine);
  connect(file, &QMenu::aboutToShow, esempi, [esempi, recenti, &apri] {
    for (QMenu* menu : {esempi, recenti}) menu->setEnabled(apri.isEnabled());
  });
  connect(esempi, &QMenu::aboutToShow, this, [this, esempi] { Riempi_Esempi(*esempi); });
  connect(recenti, &QMenu::aboutToShow, this, [this, recenti] { Riempi_Recenti(*recenti); });
}

bool Menu_File::Fornito(const QString& file) const {
  const QString esempi = Cartella_Esempi(cartella_);
  const QString cartella = QFileInfo(QFileInfo(file).absolutePath()).canonicalFilePath();
  return !esempi.isEmpty() && (cartella == esempi ||
                               cartella == QFileInfo(esempi + "/../solutions").canonicalFilePath());
}

void Menu_File::Aggiungi(QMenu& menu, const std::vector<Progetto_Offerto>& progetti) const {
  for (const Progetto_Offerto& progetto : progetti) {
    QAction* voce = menu.addAction(Senza_Tasto(progetto.Titolo));
    voce->setToolTip(QDir::toNativeSeparators(progetto.File));
    connect(voce, &QAction::triggered, this, [this, file = progetto.File] { apri_(file); });
  }
}

void Menu_File::Riempi_Esempi(QMenu& menu) const {
  menu.clear();
  Aggiungi(menu, Esempi_Installati(cartella_));
  if (menu.isEmpty())
    menu.addAction(QStringLiteral("Nessun esempio è installato"))->setEnabled(false);
  const std::vector<Progetto_Offerto> risolti = Progetti_Risolti(cartella_);
  if (risolti.empty()) return;
  menu.addSeparator();
  QMenu* sotto = menu.addMenu(QStringLiteral("Progetti &risolti"));
  sotto->setToolTipsVisible(true);
  Aggiungi(*sotto, risolti);
}

void Menu_File::Riempi_Recenti(QMenu& menu) const {
  menu.clear();
  std::vector<Progetto_Offerto> progetti;
  for (const QString& file : recenti_.Elenco())
    progetti.push_back({QFileInfo(file).fileName(), file});
  Aggiungi(menu, progetti);
  int numero = 0;
  for (QAction* voce : menu.actions())
    voce->setText(QStringLiteral("&%1  %2").arg(++numero).arg(voce->text()));
  if (menu.isEmpty()) menu.addAction(QStringLiteral("Ancora nessuno"))->setEnabled(false);
}

}  // namespace tavorno
