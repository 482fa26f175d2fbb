// SPDX-License-Identifier: GPL-3.0-or-later
// What an earlier program left unsaved, offered and taken up.
#include "awl/recovery.h"

#include "awl/ui/recovery_dialog.h"
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

class Recovered : public Banco_Editor {
 public:
  static Copia_Progetto Copia(const std::string& titolo, std::int64_t ora) {
    return {.Ora = ora,
            .Titolo = titolo,
            .File = "",
            .File_Salvato = "",
            .Main = "NETWORK 1\r\nLD I0.0 //perch\xE9\r\n",
            .Procedure = {{1, "SBR_0", "SBR0", 1, "NOT\r\n"}}};
  }
  void Lascia(const std::string& programma, const Copia_Progetto& copia) const {
    Lascia_Byte(programma, Byte_Di(copia));
  }
  void Lascia_Byte(const std::string& programma, const std::string& byte) const {
    Scrivi_Byte(cartella / "copie" / programma / "1.copia", byte);
  }
  QPushButton& Tasto(const char* nome) const { return *offerta->findChild<QPushButton*>(nome); }
  QListWidget& Elenco() const { return *offerta->findChild<QListWidget*>("lstCopie"); }
  QString Vista() const { return offerta->findChild<QPlainTextEdit*>("txtVista")->toPlainText(); }
  void Offri() {
    eredita = std::make_unique<Eredita>(cartella / "copie");
    offerta = std::make_unique<FrmRecupera>(*eredita, risponditore.Come_Dialoghi(), nullptr);
    offerta->show();
  }

  std::unique_ptr<Eredita> eredita;
  std::unique_ptr<FrmRecupera> offerta;
};

}  // namespace

TEST_F(Recovered, EachTextHasItsNameItsTimeAndALookAtIt) {
  Lascia("uno", Copia("vecchio.AWL", 1000));
  Lascia("due", Copia("nuovo.AWL", 2000));
  Offri();
  ASSERT_EQ(Elenco().count(), 2);
  EXPECT_TRUE(Elenco().item(0)->text().startsWith("nuovo.AWL\n"));
  EXPECT_TRUE(Elenco().item(0)->text().contains(
      QDateTime::fromSecsSinceEpoch(2000).toString("dd/MM/yyyy 'alle' HH:mm:ss")));
  EXPECT_EQ(Vista(), "NETWORK 1\nLD I0.0 //perché\n\n---- Procedura SBR_0 ----\nNOT\n");
  QTest::keyClick(&Elenco(), Qt::Key_Down);
  EXPECT_EQ(offerta->Scelta(), 1U);
  QTest::keyClick(offerta.get(), Qt::Key_Return);
  EXPECT_EQ(offerta->result(), QDialog::Accepted);
}

TEST_F(Recovered, PutOffEverythingStays) {
  Lascia("uno", Copia("a.AWL", 1000));
  Offri();
  QTest::keyClick(offerta.get(), Qt::Key_Escape);
  EXPECT_EQ(offerta->result(), QDialog::Rejected);
  offerta.reset();
  eredita.reset();
  EXPECT_EQ(Eredita(cartella / "copie").Voci().size(), 1U);
}

TEST_F(Recovered, ThrowingAwayAsksFirst) {
  Lascia("uno", Copia("a.AWL", 1000));
  Lascia("due", Copia("b.AWL", 2000));
  Offri();
  risponditore.Risposte = {Risposta::Annulla, Risposta::Ok, Risposta::Ok};
  Tasto("cmdButta").click();
  EXPECT_EQ(Elenco().count(), 2);
  ASSERT_EQ(risponditore.Avvisi.size(), 1U);
  EXPECT_EQ(risponditore.Avvisi[0].Testo,
            "Buttare via \"b.AWL\"? Il testo non si potrà più recuperare.");
  Tasto("cmdButta").click();
  ASSERT_EQ(Elenco().count(), 1);
  EXPECT_TRUE(Elenco().item(0)->text().startsWith("a.AWL"));
  Tasto("cmdButta").click();
  EXPECT_FALSE(offerta->isVisible()) << "nothing is left to choose from";
  EXPECT_TRUE(eredita->Voci().empty());
}

TEST_F(Recovered, ADamagedCopyCanBeReadOnly) {
  Lascia_Byte("uno", "Tavorno: testo\nLD I0.0");
  Offri();
  EXPECT_FALSE(Tasto("cmdRecupera").isEnabled());
  EXPECT_TRUE(Vista().contains("LD I0.0"));
}

TEST_F(Recovered, ATextIsTakenUpAsOneThatIsNotSaved) {
  Avvia(Avvio::Nuovo);
  finestra = std::make_unique<FrmMain>(progetto, plc, legami);
  finestra->show();
  finestra->Riprendi(Copia("mio.AWL", 1000));
  EXPECT_EQ(txtList().Byte(), "NETWORK 1\r\nLD I0.0 //perch\xE9\r\n");
  EXPECT_EQ(Schede(), std::vector<std::string>{"SBR_0"});
  EXPECT_EQ(txtP().Byte(), "NOT\r\n");
  EXPECT_EQ(Etichetta("stB(1)"), "File: mio.AWL");
  EXPECT_TRUE(progetto.Da_Salvare());
  EXPECT_TRUE(Voce("mnuFileSave").isEnabled());
  EXPECT_TRUE(Voce("mnuPlcCompile").isEnabled());

  Batti_In_Fondo(txtList(), "= Q0.0");
  Scegli("salvato.AWL");
  Comanda("mnuFileSave");
  EXPECT_EQ(risponditore.Richieste.back().Proposta, "mio.AWL");
  EXPECT_NE(Leggi_File("salvato.AWL").find("SUBROUTINE_BLOCK SBR_0:SBR0\r\n"), std::string::npos);
  EXPECT_FALSE(progetto.Da_Salvare());
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  EXPECT_EQ(progetto.Num_SBR, 1);
  EXPECT_EQ(progetto.Compilato, -1);
}

}  // namespace tavorno::prova
