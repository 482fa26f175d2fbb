// SPDX-License-Identifier: GPL-3.0-or-later
// How the panel leads to other windows, and what it does when the user comes back.
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStatusBar>
#include <QToolBar>

#include "panel/panel_bed.h"

namespace tavorno {
namespace {

constexpr const char* sempre = "LD SM0.0\r\n= Q0.0\r\n";

struct Finestre_Pannello : Banco_Pannello {
  std::vector<std::string> aperte;

  Finestre_Pannello() {
    Legami_Pannello legami;
    legami.Mostra_Editor = [this](int avvio) {
      aperte.push_back("editor " + std::to_string(avvio));
    };
    legami.Mostra_Impostazioni = [this] { aperte.push_back("frmSetPLC"); };
    legami.Mostra_Analogici = [this] { aperte.push_back("frmSimAI"); };
    legami.Mostra_Stati = [this] { aperte.push_back("frmStatiL"); };
    legami.Mostra_Info = [this] { aperte.push_back("frmAbaut"); };
    legami.Mostra_Aiuto = [this](const char* pagina) { aperte.push_back(pagina); };
    pannello.Collega_Finestre(std::move(legami));
  }
};

TEST_F(Finestre_Pannello, EveryCommandOpensItsWindow) {
  const std::vector<std::pair<const char*, const char*>> comandi = {
      {"mnuFileNew", "editor 2"},  {"mnuFileOpen", "editor 3"},   {"mnuViewSet", "frmSetPLC"},
      {"mnuViewIO", "frmSimAI"},   {"mnuViewStati", "frmStatiL"}, {"mnuInfAb", "frmAbaut"},
      {"mnuHlpGen", "Index.htm"},  {"mnuHlpSet", "SET_IST.htm"},  {"tB1(New)", "editor 2"},
      {"tB1(Open)", "editor 3"},   {"tB1(SetPLC)", "frmSetPLC"},  {"tB1(SetIst)", "SET_IST.htm"},
      {"tB1(Debug)", "frmStatiL"}, {"tB1(Info)", "frmAbaut"}};
  for (const auto& [comando, finestra] : comandi) {
    aperte.clear();
    Azione(pannello, comando).trigger();
    EXPECT_EQ(aperte, std::vector<std::string>{finestra}) << comando;
  }
}

TEST_F(Finestre_Pannello, ModifyingStopsTheCpuAndEmptiesTheList) {
  Carica(sempre);
  Al_Ciclo[3] = [&] {
    pannello.Attivata();  // as after a visit to another window: the command can be given in Run
    Azione(pannello, "mnuFileEdit").trigger();
  };
  Scegli("mnuPlcRun");
  EXPECT_EQ(plc.PLC_Acceso, 0);
  EXPECT_EQ(cicli, 4);
  EXPECT_EQ(aperte, std::vector<std::string>{"editor 1"});
  EXPECT_EQ(c.listSrc->count(), 0);
  for (const char* nome : {"mnuPlc", "mnuFileEdit", "tB1(Run)", "tB1(Save)"})
    EXPECT_FALSE(Attiva(nome)) << nome;
}

TEST_F(Finestre_Pannello, NoRunWithoutAProgram) {
  Azione(pannello, "mnuPlcRun").trigger();
  Azione(pannello, "tB1(Run)").trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(plc.PLC_Acceso, 0);
}

TEST_F(Finestre_Pannello, TheFocusFromAnotherWindowOfTheProgramActivatesThePanel) {
  Carica(sempre);
  QWidget altra, estranea;
  altra.setObjectName("frmAltra");
  estranea.setObjectName("Avviso");
  const auto vai = [](QWidget& finestra) {
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return finestra.isActiveWindow(); }, 20000));
  };
  vai(pannello);
  plc.Mem_C[1].Val = 5;
  vai(estranea);
  vai(pannello);
  EXPECT_EQ(plc.Mem_C[1].Val, 5) << "a message box is no other window";
  vai(altra);
  EXPECT_EQ(plc.Mem_C[1].Val, 5);
  vai(pannello);
  EXPECT_EQ(plc.Mem_C[1].Val, 0);
}

TEST_F(Finestre_Pannello, TheBarsCanBeHidden) {
  Azione(pannello, "mnuViewTB").trigger();
  EXPECT_FALSE(c.tB1->isVisible());
  EXPECT_FALSE(Spuntata("mnuViewTB"));
  Azione(pannello, "mnuViewTB").trigger();
  EXPECT_TRUE(c.tB1->isVisible());
  Azione(pannello, "mnuViewSTB").trigger();
  EXPECT_FALSE(pannello.statusBar()->isVisible());
  Azione(pannello, "mnuViewSTB").trigger();
  EXPECT_TRUE(pannello.statusBar()->isVisible());
}

TEST_F(Finestre_Pannello, ALadderEditorThatIsNotThereIsSaid) {
  const QByteArray percorsi = qgetenv("PATH");
  qputenv("PATH", "");
  Azione(pannello, "mnuViewKOP").trigger();
  qputenv("PATH", percorsi);
  ASSERT_EQ(seduta.Avvisi.size(), 1U);
  EXPECT_EQ(seduta.Avvisi[0].Titolo, "Attenzione!");
  EXPECT_NE(seduta.Avvisi[0].Testo.find("Scalaro.exe"), std::string::npos);
}

TEST_F(Finestre_Pannello, ALadderEditorOnTheSearchPathIsStarted) {
  QTemporaryDir cartella;
  const QString programma = cartella.filePath("Scalaro.exe");
  const QString traccia = cartella.filePath("avviato");
  std::ofstream(programma.toStdString()) << "#!/bin/sh\n: > '" << traccia.toStdString() << "'\n";
  QFile::setPermissions(programma, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  const QByteArray percorsi = qgetenv("PATH");
  qputenv("PATH", cartella.path().toUtf8() + ":" + percorsi);
  Azione(pannello, "mnuViewKOP").trigger();
  qputenv("PATH", percorsi);
  EXPECT_TRUE(seduta.Avvisi.empty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(traccia); }, 20000));
}

TEST_F(Finestre_Pannello, ClosingEndsTheRun) {
  Carica(sempre);
  Al_Ciclo[5] = [&] { pannello.close(); };
  Scegli("mnuPlcRun");
  EXPECT_EQ(cicli, 6);
  EXPECT_EQ(plc.Ferma, -1);
}

}  // namespace
}  // namespace tavorno
