// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes and file dialogs that a user really sees.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "widgets/qt_dialogs.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

/// What the user does with the dialog that is about to open.
template <class Dialogo>
void All_Apertura(std::function<void(Dialogo&)> azione) {
  QTimer::singleShot(0, [azione = std::move(azione)] {
    auto* dialogo = qobject_cast<Dialogo*>(QApplication::activeModalWidget());
    if (dialogo == nullptr) qFatal("another dialog stands in front");
    azione(*dialogo);
  });
}

void Premi(QMessageBox& box, QMessageBox::StandardButton tasto) {
  box.button(tasto)->click();
}

// ---- boxes --------------------------------------------------------------------------------------

struct Caso_Box {
  Tasti Scelte;
  Icona Simbolo;
  QMessageBox::Icon Icona_Attesa;
  std::vector<std::pair<QMessageBox::StandardButton, Risposta>> Tasti_Attesi;
  Risposta Con_Esc;
};
class Box : public ::testing::TestWithParam<Caso_Box> {};

TEST_P(Box, ShowsWhatItIsGiven) {
  All_Apertura<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Attenzione!");
    EXPECT_EQ(box.text(), " 3 Righe <perché> &no");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.detailedText(), "Riga 4");
    EXPECT_EQ(box.icon(), GetParam().Icona_Attesa);
    QMessageBox::StandardButtons tasti;
    for (const auto& [tasto, risposta] : GetParam().Tasti_Attesi) tasti |= tasto;
    EXPECT_EQ(box.standardButtons(), tasti);
    box.reject();
  });
  Mostra_Avviso(nullptr, {"Attenzione!", " 3 Righe <perché> &no", GetParam().Simbolo,
                          GetParam().Scelte, "Riga 4"});
}

TEST_P(Box, GivesTheAnswerOfItsButton) {
  for (const auto& [tasto, risposta] : GetParam().Tasti_Attesi) {
    All_Apertura<QMessageBox>([tasto = tasto](QMessageBox& box) { Premi(box, tasto); });
    EXPECT_EQ(Mostra_Avviso(nullptr, {"", "", GetParam().Simbolo, GetParam().Scelte, ""}),
              risposta);
  }
}

TEST_P(Box, ClosedWithoutAnAnswerLosesNothing) {
  All_Apertura<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(Mostra_Avviso(nullptr, {"", "", GetParam().Simbolo, GetParam().Scelte, ""}),
            GetParam().Con_Esc);
}

INSTANTIATE_TEST_SUITE_P(All, Box,
                         ::testing::Values(Caso_Box{Tasti::Ok,
                                                    Icona::Nessuna,
                                                    QMessageBox::NoIcon,
                                                    {{QMessageBox::Ok, Risposta::Ok}},
                                                    Risposta::Ok},
                                           Caso_Box{Tasti::Ok_Annulla,
                                                    Icona::Critica,
                                                    QMessageBox::Critical,
                                                    {{QMessageBox::Ok, Risposta::Ok},
                                                     {QMessageBox::Cancel, Risposta::Annulla}},
                                                    Risposta::Annulla},
                                           Caso_Box{Tasti::Si_No,
                                                    Icona::Domanda,
                                                    QMessageBox::Question,
                                                    {{QMessageBox::Yes, Risposta::Si},
                                                     {QMessageBox::No, Risposta::No}},
                                                    Risposta::Si}));

TEST(BoxPlace, IsOverItsWindowAndInFrontOfWhatIsModal) {
  QWidget sua, attiva;
  attiva.show();
  attiva.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&attiva));
  const auto sotto_a = [](QWidget* sopra) {
    const QWidget* sotto = nullptr;
    All_Apertura<QMessageBox>([&](QMessageBox& box) {
      sotto = box.parentWidget();
      box.reject();
    });
    Mostra_Avviso(sopra, {});
    return sotto;
  };
  EXPECT_EQ(sotto_a(nullptr), &attiva);
  EXPECT_EQ(sotto_a(&sua), &sua);
  QDialog modale;
  modale.setModal(true);
  modale.show();
  EXPECT_EQ(sotto_a(&sua), &modale);
}

// ---- files --------------------------------------------------------------------------------------

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

}  // namespace
}  // namespace tavorno
