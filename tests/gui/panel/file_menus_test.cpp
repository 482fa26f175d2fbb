// SPDX-License-Identifier: GPL-3.0-or-later
// "Esempi" and "File recenti" in the menus "File".
#include "panel/file_menus.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>

#include "panel/panel_bed.h"
#include "support/command.h"
#include "tests/support/temporary_folder.h"
#include "widgets/command_tables.h"
#include "widgets/file_choice.h"
#include "widgets/text.h"

namespace tavorno::prova {

namespace {

class FileMenus : public ::testing::Test {
 protected:
  void Scrivi(const std::string& nome, const std::string& titolo) const {
    Scrivi_Byte(cartella / nome, "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=" + titolo + "\r\n");
  }
  QString Qui(const std::string& nome) const { return Q((cartella / nome).string()); }
  /// The captions of a submenu as it opens now.
  static QStringList Voci(const QMainWindow& finestra, const QString& nome) {
    QMenu* menu = Azione(finestra, nome).menu();
    QMetaObject::invokeMethod(menu, "aboutToShow");
    QStringList testi;
    for (const QAction* voce : menu->actions()) testi << voce->text();
    return testi;
  }

  Cartella_Temporanea cartella;
};

}  // namespace

TEST_F(FileMenus, OfferExamplesByTitleAndSolvedProjectsApart) {
  Scrivi("examples/b.AWL", "Un segnale & un ritardo");
  Scrivi("examples/a.AWL", "");
  Scrivi("examples/us00.AWL", "US-00: marcia");
  Scrivi_Byte(cartella / "examples/us00.lua", "--");
  const auto esempi = Esempi_Installati(Qui(""));
  ASSERT_EQ(esempi.size(), 2U);
  EXPECT_EQ(esempi[0].Titolo, "a");
  EXPECT_EQ(esempi[1].Titolo, "Un segnale & un ritardo");
  const auto risolti = Progetti_Risolti(Qui(""));
  ASSERT_EQ(risolti.size(), 1U);
  EXPECT_EQ(risolti[0].Titolo, "US-00: marcia");
  EXPECT_TRUE(risolti[0].File.endsWith("examples/us00.AWL"));
}

TEST_F(FileMenus, FindTheInstalledOnesBehindTheLinkOfTheProgram) {
  Scrivi("share/examples/a.AWL", "A");
  Scrivi("share/solutions/us01.AWL", "US-01");
  std::filesystem::create_directories(cartella / "bin");
  std::filesystem::create_directory_symlink("../share/examples", cartella / "bin/examples");
  EXPECT_EQ(Esempi_Installati(Qui("bin")).size(), 1U);
  ASSERT_EQ(Progetti_Risolti(Qui("bin")).size(), 1U);
  EXPECT_EQ(Progetti_Risolti(Qui("bin"))[0].Titolo, "US-01");
  EXPECT_TRUE(Esempi_Installati(Qui("share")).size() == 1U);
  EXPECT_TRUE(Progetti_Risolti(Qui("")).empty());
}

TEST_F(FileMenus, OpenWhatIsChosenWhereProjectsCanBeOpened) {
  Scrivi("examples/a.AWL", "Primo & unico");
  QMainWindow finestra;
  const std::vector<Voce_Menu> voci = {{.Livello = 0, .Nome = "mnuFile", .Testo = "&File"},
                                       {.Livello = 1, .Nome = "mnuFileOpen", .Testo = "&Apri"},
                                       {.Livello = 1, .Nome = "mnuFileEnd", .Testo = "&Termina"}};
  Crea_Menu(finestra, voci);
  File_Recenti recenti;
  QStringList aperti;
  const Menu_File menu(recenti, Qui(""), [&](const QString& file) {
    aperti << file;
    recenti.Usato(file);
  });
  menu.Metti_In(Azione(finestra, "mnuFile"), Azione(finestra, "mnuFileEnd"),
                Azione(finestra, "mnuFileOpen"));
  EXPECT_TRUE(menu.Fornito(Qui("examples/a.AWL")));
  EXPECT_FALSE(menu.Fornito(Qui("a.AWL")));
  EXPECT_EQ(Voci(finestra, "mnuFileEsempi"), QStringList{"Primo && unico"});
  EXPECT_EQ(Voci(finestra, "mnuFileRecenti"), QStringList{"Ancora nessuno"});
  Voci(finestra, "mnuFileEsempi");
  Azione(finestra, "mnuFileEsempi").menu()->actions().front()->trigger();
  EXPECT_EQ(aperti, QStringList{Qui("examples/a.AWL")});
  EXPECT_EQ(Voci(finestra, "mnuFileRecenti"), QStringList{"&1  a.AWL"});
  Azione(finestra, "mnuFileOpen").setEnabled(false);
  QMetaObject::invokeMethod(Azione(finestra, "mnuFile").menu(), "aboutToShow");
  EXPECT_FALSE(Azione(finestra, "mnuFileEsempi").isEnabled());
  EXPECT_FALSE(Azione(finestra, "mnuFileRecenti").isEnabled());
}

TEST_F(FileMenus, KeepTheLastProjectsAndTheFolderFromSessionToSession) {
  const QString conserva = Qui("ricordi.ini");
  {
    QSettings dove(conserva, QSettings::IniFormat);
    File_Recenti recenti;
    recenti.Ricorda_In(dove);
    EXPECT_TRUE(recenti.Elenco().isEmpty());
    Ricorda_Cartella(Qui(""));
    for (int i = 0; i <= File_Recenti::Quanti; ++i) {
      const std::string nome = "p" + std::to_string(i) + ".AWL";
      Scrivi(nome, "");
      recenti.Usato(Qui(nome));
    }
    recenti.Usato(Qui("p3.AWL"));
  }
  Ricorda_Cartella(QDir::homePath());
  QSettings dove(conserva, QSettings::IniFormat);
  File_Recenti recenti;
  recenti.Ricorda_In(dove);
  ASSERT_EQ(recenti.Elenco().size(), File_Recenti::Quanti);
  EXPECT_EQ(recenti.Elenco().front(), Qui("p3.AWL"));
  EXPECT_EQ(recenti.Elenco().at(1), Qui("p8.AWL"));
  EXPECT_FALSE(recenti.Elenco().contains(Qui("p0.AWL")));
  EXPECT_EQ(QDir(Cartella_Ricordata()), QDir(Qui("")));
  QFile::remove(Qui("p3.AWL"));
  EXPECT_EQ(recenti.Elenco().front(), Qui("p8.AWL"));
}

/// A project that came from the desktop is saved again where it lies, not somewhere else.
TEST_F(Banco_Finestre, ADialogBeginsInTheFolderOfTheProjectThatIsOpen) {
  const Cartella_Temporanea cartella;
  const auto file = cartella / "mio.AWL";
  Scrivi_Byte(file,
              "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\nNETWORK 1\r\nLD SM0.0\r\n"
              "= Q0.0\r\nEND_ORGANIZATION_BLOCK\r\n");
  Ricorda_Cartella(QDir::homePath());
  finestre.Apri_File(Q(file.string()));
  EXPECT_EQ(QDir(Cartella_Ricordata()), QDir(Q(file.parent_path().string())));
  Ricorda_Cartella(QDir::homePath());
}

}  // namespace tavorno::prova
