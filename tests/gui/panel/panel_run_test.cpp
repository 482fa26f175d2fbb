// SPDX-License-Identifier: GPL-3.0-or-later
// Running a program from the panel.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "panel/panel_bed.h"

namespace tavorno {
namespace {

constexpr const char* autoritenuta = "LD I0.1\r\nO Q0.0\r\nA I0.0\r\n= Q0.0\r\n";

using Corsa_Pannello = Banco_Pannello;

TEST_F(Corsa_Pannello, ALoadedProgramFillsTheListAndEnablesRun) {
  Carica(autoritenuta);
  ASSERT_EQ(c.listSrc->count(), plc.NRighe + 1);
  EXPECT_TRUE(c.listSrc->item(1)->text().contains("I0.1"));
  EXPECT_EQ(c.stB[0]->text(), "File: PROVA.AWL");
  EXPECT_EQ(c.stB[1]->text(), "List:" + QString::number(plc.NRighe));
  for (const char* nome : {"mnuPlc", "mnuFileEdit", "tB1(Run)", "tB1(Save)", "mnuPlcRun"})
    EXPECT_TRUE(Attiva(nome)) << nome;
}

TEST_F(Corsa_Pannello, WhatIsDisabledInRun) {
  Carica(autoritenuta);
  bool guardato = false;
  Al_Ciclo[3] = [&] {
    pannello.Aggiorna();
    for (const char* nome :
         {"mnuFileNew", "mnuFileOpen", "mnuFileEdit", "tB1(New)", "tB1(Open)", "tB1(Save)",
          "mnuPlcRun", "mnuPLCCiclo", "mnuPlcStep", "tB1(Ciclo)", "tB1(Step)", "mnuPLCPiu"})
      EXPECT_FALSE(Attiva(nome)) << nome;
    EXPECT_TRUE(Attiva("mnuPlcStop"));
    EXPECT_TRUE(Spuntata("tB1(Run)"));
    EXPECT_FALSE(Spuntata("tB1(Stop)"));
    EXPECT_FALSE(c.CmdStep->isEnabled());
    guardato = true;
  };
  Corri(6);
  EXPECT_TRUE(guardato);
  for (const char* nome :
       {"mnuFileNew", "mnuFileOpen", "mnuFileEdit", "tB1(New)", "tB1(Open)", "tB1(Save)",
        "mnuPlcRun", "mnuPLCCiclo", "mnuPlcStep", "tB1(Ciclo)", "tB1(Step)", "tB1(Cont)"})
    EXPECT_TRUE(Attiva(nome)) << nome;
  EXPECT_FALSE(Attiva("mnuPlcStop"));
  EXPECT_TRUE(Spuntata("tB1(Stop)"));
  EXPECT_EQ(c.listSrc->currentRow(), 0) << "where the CPU stood when Stop came";
}

TEST_F(Corsa_Pannello, ASwitchReachesAnOutputAndStopTurnsItOff) {
  Carica(autoritenuta);
  bool acceso = false;
  Al_Ciclo[0] = [&] {
    for (const char* nome : {"imgI0(0)", "imgI0(1)"})
      QTest::mouseClick(c.Fronte->Sim_I(0).findChild<QWidget*>(nome), Qt::LeftButton);
  };
  Al_Ciclo[4] = [&] { acceso = plc.SQ[0].Stato_Q() == "10000000"; };
  Corri(6);
  EXPECT_TRUE(acceso);
  EXPECT_EQ(plc.IP_I[0].Val_B, 3);
  EXPECT_EQ(plc.SQ[0].Stato_Q(), "00000000");
}

TEST_F(Corsa_Pannello, TheToolBarRunsAndIgnoresASecondRun) {
  Carica(autoritenuta);
  Al_Ciclo[2] = [&] {
    pannello.Aggiorna();
    Azione(pannello, "tB1(Run)").trigger();
    QCoreApplication::processEvents();
  };
  Al_Ciclo[5] = [&] { EXPECT_EQ(plc.N_Cicli, 5) << "a second Run would have begun at 0"; };
  Al_Ciclo[6] = [&] {
    Azione(pannello, "tB1(Stop)").trigger();
    QCoreApplication::processEvents();
  };
  Scegli("tB1(Run)");
  EXPECT_EQ(cicli, 7);
  EXPECT_EQ(plc.PLC_Acceso, 0);
}

TEST_F(Corsa_Pannello, StepModeExecutesOneLineAtAPress) {
  Carica(autoritenuta);
  Scegli("mnuPlcStep");
  EXPECT_TRUE(Spuntata("mnuPlcStep"));
  EXPECT_TRUE(Spuntata("tB1(Step)"));
  EXPECT_FALSE(Spuntata("mnuPlcCont"));
  EXPECT_EQ(c.SSTb3->currentIndex(), 2);
  EXPECT_TRUE(c.frSP->isVisibleTo(&pannello));
  Scegli("mnuPlcRun");
  EXPECT_TRUE(c.CmdStep->isEnabled());
  EXPECT_FALSE(Attiva("mnuPlcCont"));
  EXPECT_FALSE(Attiva("tB1(Cont)"));
  for (int riga = 0; riga <= 2; ++riga) {
    QTest::mouseClick(c.CmdStep, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(plc.PC, riga + 1);
    EXPECT_EQ(c.etPc->text(), QString::number(riga + 1));
    EXPECT_EQ(c.listSrc->currentRow(), riga);
  }
  Scegli("mnuPLCPiu");
  EXPECT_EQ(plc.PC, 4);
  Scegli("mnuPlcStop");
  EXPECT_FALSE(c.CmdStep->isEnabled());
}

TEST_F(Corsa_Pannello, StepAfterAStopInCicloShowsTheNextLine) {
  Carica(autoritenuta);
  Scegli("mnuPLCCiclo");
  c.chkStop->setChecked(true);
  c.txtStop->setText("2");
  Scegli("mnuPlcRun");
  ASSERT_EQ(plc.PC, 2);
  Scegli("mnuPlcStep");
  EXPECT_EQ(c.etPc->text(), "2");
}

TEST_F(Corsa_Pannello, ContHidesThePositionAndTicksTheTime) {
  Carica(autoritenuta);
  Scegli("mnuPlcStep");
  c.chkList->setChecked(false);
  Scegli("mnuPlcCont");
  EXPECT_FALSE(c.frSP->isVisibleTo(&pannello));
  EXPECT_TRUE(c.chkList->isChecked());
  EXPECT_EQ(c.SSTb3->currentIndex(), 0);
}

TEST_F(Corsa_Pannello, CicloStopsAfterItsScansAndGoesOnWithRiprendi) {
  Carica(autoritenuta);
  Scegli("mnuPLCCiclo");
  EXPECT_EQ(c.SSTb3->currentIndex(), 1);
  c.chkSol->setChecked(true);
  c.txtNC->setText("2");
  Scegli("mnuPlcRun");
  EXPECT_EQ(plc.N_Cicli, 2);
  EXPECT_EQ(c.listSrc->currentRow(), plc.NRighe) << "the last line is marked, not line 0";
  EXPECT_EQ(plc.PC, 0);
  EXPECT_TRUE(c.cmdRest->isEnabled());
  EXPECT_TRUE(c.CmdStep->isEnabled());
  righe = 0;
  QTest::mouseClick(c.cmdRest, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(plc.N_Cicli, 2);
  EXPECT_EQ(righe, 2 * (plc.NRighe + 1));
}

TEST_F(Corsa_Pannello, TheStopLineIsPickedFromTheListWhileTheCpuStands) {
  Carica(autoritenuta);
  Scegli("mnuPLCCiclo");
  c.chkStop->setChecked(true);
  c.listSrc->setCurrentRow(3);
  Q_EMIT c.listSrc->itemClicked(c.listSrc->item(3));
  EXPECT_EQ(c.txtStop->text(), "3");
  Scegli("mnuPlcRun");
  EXPECT_EQ(plc.PC, 3);
  EXPECT_EQ(c.listSrc->currentRow(), 3);
  EXPECT_TRUE(plc.PLC_Acceso);
  c.listSrc->setCurrentRow(1);
  Q_EMIT c.listSrc->itemClicked(c.listSrc->item(1));
  EXPECT_EQ(c.txtStop->text(), "3") << "not in Run";
}

TEST_F(Corsa_Pannello, TheStopLineIsPickedWithTheKeysToo) {
  Carica(autoritenuta);
  c.listSrc->setCurrentRow(1);
  QTest::keyClick(c.listSrc, Qt::Key_Down);
  EXPECT_EQ(c.txtStop->text(), "0") << "the way there picks nothing";
  QTest::keyClick(c.listSrc, Qt::Key_Return);
  EXPECT_EQ(c.txtStop->text(), "2");
}

TEST_F(Corsa_Pannello, AClickOnAPageChoosesItsModeWhileTheCpuStands) {
  Carica("LD I0.0\r\n= Q0.0\r\n");
  const auto clic = [&](int pagina) {
    QTabBar* linguette = c.SSTb3->tabBar();
    QTest::mouseClick(linguette, Qt::LeftButton, {}, linguette->tabRect(pagina).center());
    QCoreApplication::processEvents();
    pannello.Aggiorna();
  };
  clic(1);
  EXPECT_EQ(plc.Modo_Run, Modo::Ciclo);
  c.txtStop->setText("2");
  c.chkStop->setChecked(true);
  Scegli("mnuPlcRun");
  EXPECT_EQ(plc.PC, 2) << "the first try with a stop line works";
  EXPECT_TRUE(plc.Attivi.cmdRest);
  clic(2);
  EXPECT_EQ(plc.Modo_Run, Modo::Ciclo) << "a run has the page of its own";
  Scegli("mnuPlcStop");
  clic(2);
  EXPECT_EQ(plc.Modo_Run, Modo::Step);
  clic(0);
  EXPECT_EQ(plc.Modo_Run, Modo::Cont);
}

TEST_F(Corsa_Pannello, TheStopConditionsExcludeEachOther) {
  c.chkStop->setChecked(true);
  EXPECT_FALSE(c.chkSol->isEnabled());
  c.chkStop->setChecked(false);
  EXPECT_TRUE(c.chkSol->isEnabled());
  c.chkSol->setChecked(true);
  EXPECT_FALSE(c.chkStop->isEnabled());
  EXPECT_FALSE(plc.Scelte.chkStop);
  EXPECT_TRUE(plc.Scelte.chkSol);
}

TEST_F(Corsa_Pannello, TheSecondPotentiometerIsReadByTheProgram) {
  Carica("LD SM0.0\r\nMOVB SMB29 VB0\r\n");
  c.SlidP[1]->setValue(77);
  EXPECT_EQ(c.etPa[1]->text(), "77");
  Corri(2);
  EXPECT_EQ(plc.Mem_VB[0], 77);
}

TEST_F(Corsa_Pannello, TheStackIsShownWhileItIsTicked) {
  Carica(autoritenuta);
  EXPECT_EQ(c.etS[0]->text(), "");
  EXPECT_EQ(c.etS[0]->palette().color(QPalette::Window), QColor(0x80, 0x80, 0x80));
  c.chkVs->setChecked(true);
  EXPECT_EQ(c.etS[0]->palette().color(QPalette::Window), QColor(0x80, 0xff, 0xff));
  plc.Stak[0] = 1;
  plc.Stak[1] = 0;
  pannello.Aggiorna();
  EXPECT_EQ(c.etS[0]->text(), "1");
  EXPECT_EQ(c.etS[1]->text(), "0");
  c.chkVs->setChecked(false);
  EXPECT_EQ(c.etS[0]->text(), "");
}

TEST_F(Corsa_Pannello, TheImagesAreShownWhileTheyAreTicked) {
  Carica(autoritenuta);
  EXPECT_FALSE(c.picII->isVisibleTo(&pannello));
  c.chkIP->setChecked(true);
  EXPECT_TRUE(c.picII->isVisibleTo(&pannello));
  plc.SI[0].Stato_I("11000000");
  QString uscite;
  Al_Ciclo[3] = [&] {
    pannello.Aggiorna();
    uscite = c.etIPQ[0]->text();
  };
  Corri(4);
  EXPECT_EQ(c.etIPI[0]->text(), "00000011");
  EXPECT_EQ(uscite, "00000001");
  EXPECT_EQ(c.etIPQ[0]->text(), "") << "Stop clears the outputs and their display";
}

TEST_F(Corsa_Pannello, AnalogValuesFollowTheirRange) {
  Carica(autoritenuta);
  plc.Volt_AI[0] = 5.0F;
  plc.Mem_AQW[0] = 16000;
  Corri(25);
  EXPECT_EQ(c.etAI[0]->text(), "16000");
  EXPECT_EQ(c.etAIV[0]->text(), "5.0");
  EXPECT_EQ(c.etAQ[0]->text(), "16000");
  EXPECT_EQ(c.etAQV[0]->text(), "5.0");
  EXPECT_EQ(c.etg1[0]->text(), "Volt");
  QTest::mouseClick(c.opzAI[1], Qt::LeftButton);
  c.opzAI[1]->click();
  EXPECT_EQ(c.etg1[2]->text(), "mA");
  EXPECT_EQ(c.etg2[0]->text(), "Volt");
  c.opzAQ[1]->click();
  EXPECT_EQ(c.etg2[1]->text(), "mA");
  Corri(25);
  EXPECT_EQ(c.etAI[0]->text(), "8000");
  EXPECT_EQ(c.etAQV[0]->text(), "10.0");
}

TEST_F(Corsa_Pannello, ComingBackClearsCountersAndLocksRiprendi) {
  Carica(autoritenuta);
  plc.Mem_C[3].Val = 9;
  plc.Mem_T[2].Conta = -1;
  plc.Attivi.cmdRest = true;
  pannello.Attivata();
  EXPECT_EQ(plc.Mem_C[3].Val, 0);
  EXPECT_EQ(plc.Mem_T[2].Conta, 0);
  EXPECT_FALSE(c.cmdRest->isEnabled());
}

}  // namespace
}  // namespace tavorno
