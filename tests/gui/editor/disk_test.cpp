// SPDX-License-Identifier: GPL-3.0-or-later
// The project's file changes while the editor shows it.
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

class OtherHands : public Banco_Editor {
 public:
  /// The user comes back from another program.
  void Torna() {
    QEvent attiva(QEvent::ActivationChange);
    QCoreApplication::sendEvent(finestra.get(), &attiva);
    QCoreApplication::processEvents();
  }
  void Apri_E_Cambia() {
    Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0"}));
    Attiva();
    Torna();
    ASSERT_TRUE(risponditore.Avvisi.empty());
    Scrivi_File("prova.AWL", Blocco_Main({"NETWORK 1", "LD I0.7"}));
  }
  bool Mostra(const std::string& riga) const {
    return txtList().Byte().find(riga) != std::string::npos;
  }
};

}  // namespace

TEST_F(OtherHands, AChangedFileIsOfferedToBeReadAgain) {
  Apri_E_Cambia();
  Torna();
  ASSERT_EQ(risponditore.Avvisi.size(), 1U);
  EXPECT_TRUE(risponditore.Avvisi[0].Testo.starts_with(
      "Il file \"prova.AWL\" è stato cambiato da un altro programma il "));
  EXPECT_TRUE(risponditore.Avvisi[0].Testo.ends_with("\n\nLeggerlo di nuovo?"));
  EXPECT_TRUE(Mostra("I0.7"));
  EXPECT_FALSE(progetto.Da_Salvare());
  Torna();
  EXPECT_EQ(risponditore.Avvisi.size(), 1U);
}

TEST_F(OtherHands, WhoDeclinesIsAskedOnceForEachChange) {
  Apri_E_Cambia();
  risponditore.Risposte = {Risposta::Annulla};
  Torna();
  Torna();
  EXPECT_EQ(risponditore.Avvisi.size(), 1U);
  EXPECT_TRUE(Mostra("I0.0"));
  risponditore.Risposte = {Risposta::Annulla};
  Scrivi_File("prova.AWL", Blocco_Main({"NETWORK 1", "LD I0.6"}));
  Torna();
  EXPECT_EQ(risponditore.Avvisi.size(), 2U);
}

TEST_F(OtherHands, TypedTextGivesWayOnlyKnowinglyAndComesBack) {
  Apri_E_Cambia();
  Batti_In_Fondo(txtList(), "NOT");
  Torna();
  ASSERT_EQ(risponditore.Avvisi.size(), 1U);
  EXPECT_NE(risponditore.Avvisi[0].Testo.find("Il testo non salvato"), std::string::npos);
  EXPECT_TRUE(Mostra("I0.7"));
  txtList().undo();
  EXPECT_TRUE(Mostra("NOT"));
  EXPECT_TRUE(progetto.Da_Salvare());
}

// A memory stick that was pulled out: what is on screen is the last there is.
TEST_F(OtherHands, AFileThatHasGoneMakesTheTextUnsaved) {
  Apri_E_Cambia();
  std::filesystem::remove(cartella / "prova.AWL");
  Torna();
  ASSERT_EQ(risponditore.Avvisi.size(), 1U);
  EXPECT_TRUE(progetto.Da_Salvare());
  EXPECT_TRUE(Mostra("I0.0"));
  Torna();
  EXPECT_EQ(risponditore.Avvisi.size(), 1U);
}

TEST_F(OtherHands, OwnSavesAreNoChange) {
  Avvia(Avvio::Nuovo);
  Attiva();
  Batti_In_Fondo(txtList(), "NOT");
  Scegli("mio.AWL");
  Comanda("mnuFileSave");
  Batti_In_Fondo(txtList(), " ");
  Scegli("mio.AWL");
  Comanda("mnuFileSave");
  Torna();
  EXPECT_TRUE(risponditore.Avvisi.empty());
}

}  // namespace tavorno::prova
