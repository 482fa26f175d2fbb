// SPDX-License-Identifier: GPL-3.0-or-later
// The file dialogs that a user really sees.
#include "awl/ui/file_dialog.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeView>
#include <QtTest>

#include "support/modal.h"
#include "widgets/file_choice.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

class FileChoice : public ::testing::Test {
 protected:
  using Scelta = std::optional<File_Scelto>;

  QString Percorso(const QString& nome) const { return cartella.filePath(nome); }
  void Crea(const QString& nome) const {
    QFile file(Percorso(nome));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  /// Types a path and presses the button that ends the dialog.
  static void Scrivi(QFileDialog& dialogo, const QString& percorso) {
    dialogo.findChild<QLineEdit*>("fileNameEdit")->setText(percorso);
    QMetaObject::invokeMethod(&dialogo, "accept");
  }
  static Scelta Chiedi(const Richiesta_File& richiesta, std::function<void(QFileDialog&)> azione) {
    All_Apertura<QFileDialog>(std::move(azione));
    return Dialoghi_Qt(nullptr).Scegli_File(richiesta);
  }

  QTemporaryDir cartella;
  const Richiesta_File apri{false, "", "File AWL (*.AWL)|*.AWL"};
  const Richiesta_File salva{true, "NoName.AWL", "File AWL (*.AWL)|*.AWL"};
};

TEST_F(FileChoice, OpensAnExistingFile) {
  Crea("prova.AWL");
  const Scelta scelta = Chiedi(apri, [this](QFileDialog& dialogo) {
    EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialogo.nameFilters(), QStringList{"File AWL (*.AWL *.awl)"});
    Scrivi(dialogo, Percorso("prova.AWL"));
  });
  ASSERT_TRUE(scelta);
  EXPECT_EQ(scelta->Percorso, Utf8(Percorso("prova.AWL")));
  EXPECT_EQ(scelta->Titolo, "prova.AWL");
}

TEST_F(FileChoice, ToOpenRefusesWhatDoesNotExist) {
  bool detto = false;
  const Scelta scelta = Chiedi(apri, [&](QFileDialog& dialogo) {
    All_Apertura<QMessageBox>([&](QMessageBox& box) {
      detto = true;
      Premi(box, QMessageBox::Ok);
    });
    Scrivi(dialogo, Percorso("assente.AWL"));
    EXPECT_TRUE(dialogo.isVisible());
    dialogo.reject();
  });
  EXPECT_TRUE(detto);
  EXPECT_FALSE(scelta);
}

TEST_F(FileChoice, APathThatIsTypedCountsMoreThanTheFoldersOnItsWay) {
  QDir(cartella.path()).mkdir("classe");
  Crea("classe/prova.AWL");
  const QString percorso = Percorso("classe/prova.AWL");
  for (const QString& dove : {cartella.path(), Percorso("classe")}) {
    Ricorda_Cartella(dove);
    const Scelta scelta = Chiedi(apri, [&](QFileDialog& dialogo) {
      auto& nome = *dialogo.findChild<QLineEdit*>("fileNameEdit");
      const auto& elenco = *dialogo.findChild<QTreeView*>("treeView");
      // The list reads folders by and by.
      EXPECT_TRUE(
          QTest::qWaitFor([&] { return elenco.model()->rowCount(elenco.rootIndex()) > 0; }, 20000));
      nome.clearFocus();  // which a list of proposals may take
      for (const QChar lettera : percorso) {
        QTest::keyClick(&nome, lettera.toLatin1());
        if (nome.text() == Percorso("classe")) {
          EXPECT_TRUE(elenco.selectionModel()->hasSelection()) << "or there is nothing to test";
        }
      }
      QMetaObject::invokeMethod(&dialogo, "accept");
      if (dialogo.isVisible()) dialogo.reject();
    });
    ASSERT_TRUE(scelta) << dove.toStdString();
    EXPECT_EQ(scelta->Percorso, Utf8(percorso));
  }
}

TEST_F(FileChoice, SavesUnderTheProposalWithTheExtensionOfTheFilter) {
  const Scelta scelta = Chiedi(salva, [this](QFileDialog& dialogo) {
    EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialogo.findChild<QLineEdit*>("fileNameEdit")->text(), "NoName.AWL");
    Scrivi(dialogo, Percorso("nuovo"));
  });
  ASSERT_TRUE(scelta);
  EXPECT_EQ(scelta->Percorso, Utf8(Percorso("nuovo.AWL")));
  EXPECT_EQ(scelta->Titolo, "nuovo.AWL");
}

// Without it the dialog that opens files would not offer the file again.
TEST_F(FileChoice, GivesTheExtensionToANameWithADotToo) {
  const struct {
    const char *Scritto, *Titolo;
  } casi[] = {{"esercizio 1.2", "esercizio 1.2.AWL"},
              {"lista.TXT", "lista.TXT.AWL"},
              {"piccolo.awl", "piccolo.awl"}};
  for (const auto& caso : casi) {
    const Scelta scelta =
        Chiedi(salva, [&](QFileDialog& dialogo) { Scrivi(dialogo, Percorso(Q(caso.Scritto))); });
    ASSERT_TRUE(scelta) << caso.Scritto;
    EXPECT_EQ(scelta->Titolo, caso.Titolo);
  }
}

TEST_F(FileChoice, AsksBeforeItOverwrites) {
  Crea("vecchio.AWL");
  for (const auto tasto : {QMessageBox::No, QMessageBox::Yes}) {
    int domande = 0;
    const Scelta scelta = Chiedi(salva, [&](QFileDialog& dialogo) {
      All_Apertura<QMessageBox>([&](QMessageBox& box) {
        ++domande;
        Premi(box, tasto);
      });
      Scrivi(dialogo, Percorso("vecchio"));
      if (dialogo.isVisible()) dialogo.reject();
    });
    EXPECT_EQ(domande, 1);
    EXPECT_EQ(scelta.has_value(), tasto == QMessageBox::Yes);
  }
}

TEST_F(FileChoice, ComesBackToTheFolderOfTheLastChoice) {
  Chiedi(salva, [this](QFileDialog& dialogo) { Scrivi(dialogo, Percorso("uno.AWL")); });
  const Scelta scelta = Chiedi(apri, [this](QFileDialog& dialogo) {
    EXPECT_EQ(dialogo.directory(), QDir(cartella.path()));
    dialogo.reject();
  });
  EXPECT_FALSE(scelta);
}

// The offer after a save is the title again, "NoName.AWL" for a new project; the name that was used
// is one key away.
TEST_F(FileChoice, ShowsTheNameLastUsedBesideTheOffer) {
  Richiesta_File richiesta = salva;
  richiesta.Ultimo = Utf8(Percorso("esercizio 1.2 & 3.AWL"));
  for (const bool col_tasto : {true, false}) {
    const Scelta scelta = Chiedi(richiesta, [&](QFileDialog& dialogo) {
      auto* nome = dialogo.findChild<QLineEdit*>("fileNameEdit");
      auto* usa = dialogo.findChild<QPushButton*>("cmdUltimo");
      ASSERT_NE(usa, nullptr);
      EXPECT_EQ(usa->text(), "&Ultimo nome usato: esercizio 1.2 && 3.AWL (F2)");
      EXPECT_EQ(usa->toolTip(), Q(richiesta.Ultimo));
      EXPECT_EQ(nome->text(), "NoName.AWL");
      if (col_tasto) {
        dialogo.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialogo));
        QTest::keyClick(nome, Qt::Key_F2);
      } else {
        usa->click();
      }
      QMetaObject::invokeMethod(&dialogo, "accept");
    });
    ASSERT_TRUE(scelta) << col_tasto;
    EXPECT_EQ(scelta->Percorso, richiesta.Ultimo);
    EXPECT_EQ(scelta->Titolo, "esercizio 1.2 & 3.AWL");
  }
}

/// The word that the library's Italian has for one of the columns.
struct Italiano : QTranslator {
  QString translate(const char*, const char* testo, const char*, int) const override {
    return testo == QByteArray("Size") ? QStringLiteral("Dimensioni") : QString();
  }
  bool isEmpty() const override { return false; }
};

TEST_F(FileChoice, TheHeadersOfTheListAreWhole) {
  Italiano italiano;
  QCoreApplication::installTranslator(&italiano);
  int visti = 0;
  const auto guarda = [&visti](QFileDialog& dialogo) {
    dialogo.setViewMode(QFileDialog::Detail);
    auto& elenco = *dialogo.findChild<QTreeView*>("treeView");
    const QHeaderView& testate = *elenco.header();
    for (int n = 0; n < testate.count(); ++n, ++visti) {
      if (testate.isSectionHidden(n)) continue;
      EXPECT_GE(testate.sectionSize(n), testate.sectionSizeHint(n))
          << elenco.model()->headerData(n, Qt::Horizontal).toString().toStdString();
    }
    EXPECT_GE(elenco.viewport()->width(), testate.length());
    dialogo.reject();
  };
  Chiedi(apri, guarda);
  Chiedi(salva, guarda);
  for (const bool salvare : {false, true}) {
    All_Apertura<QFileDialog>(guarda);
    const QString scelto = salvare ? Chiedi_Dove_Salvare(nullptr, "Salva", "File (*.svg)")
                                   : Chiedi_Che_Aprire(nullptr, "Apri", "File (*.svg)");
    EXPECT_TRUE(scelto.isEmpty());
  }
  EXPECT_EQ(visti, 16);
}

TEST_F(FileChoice, ShowsNoNameThatIsOfferedAlready) {
  const auto mostrato = [this](const std::string& ultimo) {
    bool c_e = false;
    Richiesta_File richiesta{true, "mio.AWL", salva.Filtro, ultimo};
    Chiedi(richiesta, [&](QFileDialog& dialogo) {
      c_e = dialogo.findChild<QPushButton*>("cmdUltimo") != nullptr;
      dialogo.reject();
    });
    return c_e;
  };
  Chiedi(salva, [this](QFileDialog& dialogo) { Scrivi(dialogo, Percorso("mio.AWL")); });
  EXPECT_FALSE(mostrato(""));
  EXPECT_FALSE(mostrato(Utf8(Percorso("mio.AWL"))));
  EXPECT_TRUE(mostrato("/altrove/mio.AWL"));
}

}  // namespace
}  // namespace tavorno
