// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder_bed.h"
#include "widgets/colours.h"

namespace tavorno::prova {
namespace {

class Modifica_Scala : public Banco_Scala {};

constexpr const char* marcia =
    "//Prova\nNETWORK 1 //Marcia\nLD I0.0 //via\nAN I0.1\n=      Q0.0   //motore\n";

TEST_F(Modifica_Scala, WhatIsTypedGoesBesideTheChosenSymbol) {
  Apri(marcia);
  Vista().Scegli(0, 0);
  Batti("o q0.0");
  EXPECT_EQ(Main(),
            "//Prova\nNETWORK 1 //Marcia\nLD I0.0 //via\nO      Q0.0\nAN I0.1\n=      Q0.0   "
            "//motore\n");
  EXPECT_EQ(Scelto(), "LD Q0.0");
  Vista().Scegli(0, 3);
  Batti("/i0.2");
  EXPECT_EQ(Scelto(), "LDN I0.2");
  Vista().Scegli(0, 4);
  Batti("= q0.1");
  EXPECT_EQ(Main(),
            "//Prova\nNETWORK 1 //Marcia\nLD I0.0 //via\nO      Q0.0\nAN I0.1\nAN     I0.2\n=      "
            "Q0.0   //motore\n=      Q0.1\n");
}

TEST_F(Modifica_Scala, WithTheCaretOnTheTitleItGoesBesideTheFirstSymbol) {
  Apri(marcia);
  for (const char* battuta : {"a i0.3", "= q0.5", "ton t37 +5"}) {
    Vista().Scegli(0, -1);
    Batti(battuta);
  }
  EXPECT_NE(Main().find("I0.3"), std::string::npos);
  const std::string prima = Main();
  Vista().Scegli(0, -1);
  Premi(Qt::Key_Insert);
  EXPECT_NE(Main(), prima) << "a new rung";
}

TEST_F(Modifica_Scala, EachIsOneStepBack) {
  Apri(marcia);
  Vista().Scegli(0, 0);
  Batti("o q0.0");
  const std::string uno = Main();
  Vista().Scegli(0, 2);
  Premi(Qt::Key_Delete);
  const std::string due = Main();
  EXPECT_EQ(due.find("I0.1"), std::string::npos);
  Premi(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Main(), uno);
  Premi(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Main(), marcia);
  Premi(Qt::Key_Y, Qt::ControlModifier);
  Premi(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Main(), due);
  // The same steps are the editor's.
  editor->Annulla_Testo(0, false);
  scala->Aggiorna();
  EXPECT_EQ(Main(), uno);
}

TEST_F(Modifica_Scala, TheCheckerSpeaksWhileOneTypes) {
  Apri(marcia);
  Vista().Scegli(0, 0);
  QTest::keyClicks(&Vista(), "a");
  ASSERT_TRUE(Campo_Aperto());
  EXPECT_EQ(Detto(), QString("AND del bit con la cima della pila: contatto in serie"));
  EXPECT_EQ(Fondo_Detto(), colori::Scala_Aiuto.Fondo);
  QTest::keyClicks(&Campo(), " i0.9");
  EXPECT_EQ(Detto(), QString("Indirizzo Bit OP1 non ammesso"));
  EXPECT_EQ(Fondo_Detto(), colori::Scala_Errore.Fondo);
  QTest::keyClick(&Campo(), Qt::Key_Return);
  EXPECT_TRUE(Campo_Aperto());
  EXPECT_EQ(Main(), marcia);
  QTest::keyClick(&Campo(), Qt::Key_Backspace);
  QTest::keyClicks(&Campo(), "3");
  EXPECT_FALSE(Detto().contains("Indirizzo"));
  QTest::keyClick(&Campo(), Qt::Key_Escape);
  EXPECT_FALSE(Campo_Aperto());
  EXPECT_EQ(Main(), marcia);
  EXPECT_TRUE(Vista().hasFocus());
}

TEST_F(Modifica_Scala, WhatTheDiagramCannotTakeIsRefusedInTheField) {
  Apri("NETWORK 1\nLD I0.0\nO I0.1\n= Q0.0\n");
  Vista().Scegli(0, 1);
  QTest::keyClicks(&Vista(), "=");
  QTest::keyClicks(&Campo(), " q0.1");
  QTest::keyClick(&Campo(), Qt::Key_Return);
  EXPECT_TRUE(Campo_Aperto());
  EXPECT_TRUE(Detto().contains("dentro un parallelo")) << Utf8(Detto());
  EXPECT_EQ(Main(), "NETWORK 1\nLD I0.0\nO I0.1\n= Q0.0\n");
}

TEST_F(Modifica_Scala, F2ChangesAndKeepsTheComment) {
  Apri(marcia);
  Vista().Scegli(0, 2);
  Premi(Qt::Key_F2);
  ASSERT_TRUE(Campo_Aperto());
  EXPECT_EQ(Campo().text(), QString("= Q0.0"));
  EXPECT_EQ(Campo().selectedText(), Campo().text());
  QTest::keyClicks(&Campo(), "s q1.0 1");
  QTest::keyClick(&Campo(), Qt::Key_Return);
  EXPECT_NE(Main().find("S      Q1.0, 1 //motore"), std::string::npos) << Main();
  Premi(Qt::Key_F2);
  QTest::keyClicks(&Campo(), "q1.1 2");  // operands alone
  QTest::keyClick(&Campo(), Qt::Key_Return);
  EXPECT_NE(Main().find("S      Q1.1, 2 //motore"), std::string::npos) << Main();
}

TEST_F(Modifica_Scala, AStretchGetsABranch) {
  Apri("NETWORK 1\nLD I0.0\nA I0.1\nA I0.2\n= Q0.0\n");
  Vista().Scegli(0, 0);
  Premi(Qt::Key_Right, Qt::ShiftModifier);
  Batti("o m0.0");
  EXPECT_EQ(Main(), "NETWORK 1\nLD I0.0\nA I0.1\nO      M0.0\nA I0.2\n= Q0.0\n");
  Vista().Scegli(0, 0);
  QTest::mouseClick(Vista().viewport(), Qt::LeftButton, Qt::ShiftModifier,
                    Vista().Posto(0, 1).center());
  Batti("on m0.1");
  EXPECT_EQ(Main(), "NETWORK 1\nLD I0.0\nA I0.1\nON     M0.1\nO      M0.0\nA I0.2\n= Q0.0\n");
}

TEST_F(Modifica_Scala, TheToolBarDoesTheSameByMouse) {
  Apri(marcia);
  Vista().Scegli(0, 1);
  auto& barra = *scala->findChild<QToolBar*>("tbScala");
  auto* tasto = barra.widgetForAction(&Azione(*scala, "mnuScPA"));
  QTest::mouseClick(tasto, Qt::LeftButton);
  ASSERT_TRUE(Campo_Aperto());
  QTest::keyClicks(&Campo(), "m0.0");
  QTest::keyClick(&Campo(), Qt::Key_Return);
  EXPECT_NE(Main().find("LDN    I0.1\nO      M0.0\nALD"), std::string::npos) << Main();
  EXPECT_EQ(Scelto(), "LD M0.0");
  QTest::mouseClick(barra.widgetForAction(&Azione(*scala, "mnuScEU")), Qt::LeftButton);
  EXPECT_FALSE(Campo_Aperto()) << "nothing is left to be typed";
}

TEST_F(Modifica_Scala, RungsAndNetworksComeAndGo) {
  Apri(marcia);
  Vista().Scegli(0, 0);
  Premi(Qt::Key_Insert);
  EXPECT_EQ(Scelto(), "LD ?");
  EXPECT_NE(Main().find("LD     ?\n=      ?\n"), std::string::npos) << Main();
  Batti("i1.0");
  EXPECT_EQ(Scelto(), "LD I1.0");
  Batti("q1.0");
  EXPECT_EQ(Scelto(), "LD Q1.0") << "operands alone are a contact where nothing waits for them";
  Premi(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Main(), marcia);
  Premi(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(Vista().Foglio().Reti().size(), 2U);
  EXPECT_EQ(Vista().Rete_Scelta(), 1);
  EXPECT_NE(Main().find("NETWORK 2"), std::string::npos);
}

TEST_F(Modifica_Scala, AnEmptyProgramSaysHowToBegin) {
  Apri("");
  QTest::keyClicks(&Vista(), "a");
  EXPECT_FALSE(Campo_Aperto());
  EXPECT_TRUE(Stato().contains("Ctrl+Ins")) << Utf8(Stato());
  Premi(Qt::Key_Insert, Qt::ControlModifier);
  Batti("ld i0.0");
  EXPECT_NE(Main().find("LD     I0.0\n=      ?"), std::string::npos) << Main();
}

TEST_F(Modifica_Scala, WithoutAnEditorTheDiagramIsForLooking) {
  Apri(marcia, false);
  QTest::keyClicks(&Vista(), "a");
  EXPECT_FALSE(Campo_Aperto());
  EXPECT_TRUE(Stato().contains("Modifica Progetto")) << Utf8(Stato());
  Premi(Qt::Key_Delete);
  Premi(Qt::Key_Insert);
  Premi(Qt::Key_Return);
  EXPECT_EQ(Main(), marcia);
}

TEST_F(Modifica_Scala, AProcedureIsChangedInItsOwnText) {
  Apri(marcia);
  editor->findChild<QPushButton*>("cmdSub")->click();
  editor->Scrivi_Testo(1, "NETWORK 1\r\nLD I0.5\r\n= Q0.5\r\n");
  editor->Vai_A({0, 0});
  scala->Aggiorna();
  ASSERT_EQ(Vista().Foglio().Reti().size(), 2U);
  EXPECT_EQ(Vista().Foglio().Reti()[1].Intestazione, QString("Procedura SBR_0"));
  Vista().setFocus();
  Vista().Scegli(1, 0);
  Batti("a i0.6");
  EXPECT_EQ(seduta.progetto.Tab_SBR[1].Testo, "NETWORK 1\r\nLD I0.5\r\nA      I0.6\r\n= Q0.5\r\n");
  EXPECT_EQ(Main(), marcia);
  Premi(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(seduta.progetto.Tab_SBR[1].Testo, "NETWORK 1\r\nLD I0.5\r\n= Q0.5\r\n");
}

// ---- as a student would -------------------------------------------------------------------------

TEST_F(Modifica_Scala, ASelfHoldingCircuitIsDrawnCompiledRunAndWatched) {
  Apri("//Autoritenuta\n\nNETWORK 1 //Motore\n");
  Vista().Scegli(0, -1);
  Batti("i0.0");
  Batti("o q0.0");
  Premi(Qt::Key_Right);  // the coil that waits
  EXPECT_EQ(Scelto(), "= ?");
  Batti("an i0.1");
  Batti("= q0.0");
  EXPECT_EQ(Main(),
            "//Autoritenuta\n\nNETWORK 1 //Motore\nLD     I0.0\nO      Q0.0\nAN     I0.1\n=      "
            "Q0.0\n");
  editor.reset();
  Compila();
  Avvia();
  Ingressi("10000000");
  Scansione();
  Ingressi("00000000");
  Scansione();
  EXPECT_TRUE(Attivo("Q0.0", 1));
  EXPECT_EQ(seduta.plc.SQ[0].Stato_Q()[0], '1');
  Ingressi("01000000");
  Scansione();
  EXPECT_FALSE(Attivo("Q0.0", 1));
}

TEST_F(Modifica_Scala, ATrafficLightIsDrawnCompiledRunAndWatched) {
  Apri("NETWORK 1 //Ciclo\n");
  Vista().Scegli(0, -1);
  // A cycle of six seconds: green, yellow for the last of the first three, red.
  Batti("/t38");
  Batti("ton t37 +30");
  Batti("ld t37");
  Batti("ton t38 +30");
  Premi(Qt::Key_Insert, Qt::ControlModifier);
  Batti("/t37");
  Batti("aw< t37 +20");
  Batti("= q0.0");
  Batti("ld t37");
  EXPECT_EQ(Scelto(), "LD T37");
  Premi(Qt::Key_F2);
  QTest::keyClicks(&Campo(), "an t37");
  QTest::keyClick(&Campo(), Qt::Key_Return);
  Batti("aw>= t37 +20");
  Batti("= q0.1");
  Batti("ld t37");
  Batti("= q0.2");
  editor.reset();
  Compila();
  Avvia();
  std::string colori;
  for (int ms = 0; ms < 12000; ms += 50) {
    Scansione(50);
    const std::string uscite = seduta.plc.SQ[0].Stato_Q().substr(0, 3);
    const char colore = uscite == "100" ? 'V' : uscite == "010" ? 'G' : uscite == "001" ? 'R' : '?';
    if (colori.empty() || colori.back() != colore) colori += colore;
    // The picture shows what the outputs show.
    ASSERT_EQ(Attivo("Q0.2"), uscite[2] == '1') << ms;
  }
  EXPECT_EQ(colori.substr(0, 6), "VGRVGR") << Main();
}

}  // namespace
}  // namespace tavorno::prova
