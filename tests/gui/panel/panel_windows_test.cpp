// SPDX-License-Identifier: GPL-3.0-or-later
// How the panel leads to other windows, and what it does when the user comes back.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QStatusBar>
#include <QToolBar>

#include "panel/panel_bed.h"
#include "panel/status_bar.h"
#include "support/modal.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

constexpr const char* sempre = "LD SM0.0\r\n= Q0.0\r\n";

struct Finestre_Pannello : Banco_Pannello {
  std::vector<std::string> aperte;

  Finestre_Pannello() {
    Legami_Pannello legami;
    legami.Mostra_Editor = [this](Avvio avvio) {
      aperte.push_back("editor " + std::to_string(static_cast<int>(avvio)));
    };
    legami.Mostra_Impostazioni = [this] { aperte.push_back("frmSetPLC"); };
    legami.Mostra_Analogici = [this] { aperte.push_back("frmSimAI"); };
    legami.Mostra_Stati = [this] { aperte.push_back("frmStatiL"); };
    legami.Altre = {{{1, "mnuViewPrima", "P"}, [this] { aperte.push_back("frmPrima"); }},
                    {{1, "mnuViewSeconda", "S"}, [this] { aperte.push_back("frmSeconda"); }}};
    legami.Mostra_Tempi = [this] { aperte.push_back("frmTempi"); };
    legami.Mostra_Info = [this] { aperte.push_back("frmAbaut"); };
    legami.Mostra_Aiuto = [this](const char* pagina) { aperte.push_back(pagina); };
    pannello.Collega_Finestre(std::move(legami));
  }
};

TEST_F(Finestre_Pannello, EveryCommandOpensItsWindow) {
  const std::vector<std::pair<const char*, const char*>> comandi = {
      {"mnuFileNew", "editor 2"},     {"mnuFileOpen", "editor 3"},
      {"mnuViewSet", "frmSetPLC"},    {"mnuViewIO", "frmSimAI"},
      {"mnuViewStati", "frmStatiL"},  {"mnuViewTempi", "frmTempi"},
      {"mnuViewPrima", "frmPrima"},   {"mnuViewSeconda", "frmSeconda"},
      {"mnuInfAb", "frmAbaut"},       {"mnuHlpGen", "Index.htm"},
      {"mnuHlpSet", "SET_IST.htm"},   {"tB1(New)", "editor 2"},
      {"tB1(Open)", "editor 3"},      {"tB1(SetPLC)", "frmSetPLC"},
      {"tB1(SetIst)", "SET_IST.htm"}, {"tB1(Debug)", "frmStatiL"},
      {"tB1(Info)", "frmAbaut"}};
  for (const auto& [comando, finestra] : comandi) {
    aperte.clear();
    Azione(pannello, comando).trigger();
    EXPECT_EQ(aperte, std::vector<std::string>{finestra}) << comando;
  }
}

TEST_F(Finestre_Pannello, MoreWindowsStandInFrontOfTheGrading) {
  const QList<QAction*> offerte = Azione(pannello, "mnuView").menu()->actions();
  const auto posto = offerte.indexOf(&Azione(pannello, "mnuViewVerifica"));
  ASSERT_GE(posto, 3);
  EXPECT_EQ(offerte[posto - 1]->objectName(), "mnuViewSeconda");
  EXPECT_EQ(offerte[posto - 2]->objectName(), "mnuViewPrima");
  EXPECT_EQ(offerte[posto - 3]->objectName(), "mnuViewTempi");
}

TEST_F(Banco_Finestre, TheWatchWindowStandsBelowTheDiagramAndOpensByItsKey) {
  const QList<QAction*> offerte = Azione(pannello, "mnuView").menu()->actions();
  QAction& voce = Azione(pannello, "mnuViewOsserva");
  EXPECT_EQ(offerte.indexOf(&voce), offerte.indexOf(&Azione(pannello, "mnuViewTempi")) + 1);
  EXPECT_LT(offerte.indexOf(&voce), offerte.indexOf(&Azione(pannello, "mnuViewVerifica")));
  EXPECT_EQ(voce.text(), "Finestra di &osservazione");
  EXPECT_EQ(voce.shortcut().toString(), "Ctrl+T");
  EXPECT_FALSE(voce.isCheckable());
  EXPECT_EQ(Finestra("frmOsserva"), nullptr);
  voce.trigger();
  EXPECT_NE(Finestra("frmOsserva"), nullptr);
}

TEST_F(Banco_Finestre, TheAboutBoxGoesWithTheWindowUnderIt) {
  finestre.Mostra_Impostazioni();
  QWidget* sotto = Finestra("frmSetPLC");
  ASSERT_TRUE(QTest::qWaitFor([&] { return sotto->isActiveWindow(); }, 20000));
  All_Apertura<QDialog>([&](QDialog& info) {
    EXPECT_EQ(info.parentWidget(), sotto);
    delete sotto;
  });
  Azione(pannello, "mnuInfAb").trigger();
  EXPECT_EQ(Finestra("frmAbaut"), nullptr);
}

TEST_F(Finestre_Pannello, TheScanTimeIsToldInMicroseconds) {
  using std::chrono::nanoseconds;
  Tempo_Scansioni durate;
  pannello.Durate = [&] { return durate; };
  pannello.Aggiorna();
  EXPECT_EQ(c.etTime->toolTip(), "");
  EXPECT_FALSE(c.etDurate->isVisible());
  durate = {.Quante = 1500,
            .Ultima = nanoseconds{3100},
            .Massima = nanoseconds{1234567},
            .Totale = 1500 * nanoseconds{2500}};
  pannello.Aggiorna();
  const QString aiuto = c.etTime->toolTip();
  for (const char* parte :
       {"Ultimo ciclo: 3,1 µs", "Media di 1.500 cicli: 2,5 µs", "Il più lungo: 1.234,6 µs"})
    EXPECT_TRUE(aiuto.contains(Q(parte))) << Utf8(aiuto);
  EXPECT_EQ(c.etDurate->text(), "Ciclo: 2,5 µs, max 1.234,6 µs");
  EXPECT_TRUE(c.etDurate->isVisible());
  EXPECT_EQ(c.etTime->text(), "0");  // the label itself stays as it is
}

TEST_F(Finestre_Pannello, TheStatusBarNeverHoldsThePanelWide) {
  Tempo_Scansioni durate{.Quante = 1500, .Ultima = {}, .Massima = {}, .Totale = {}};
  pannello.Durate = [&] { return durate; };
  pannello.Segna_Impianto(15);
  pannello.resize(1366, 700);
  QCoreApplication::processEvents();
  pannello.Aggiorna();
  ASSERT_TRUE(c.etDurate->isVisible());
  const int larga = 595;
  EXPECT_LE(pannello.minimumSizeHint().width(), larga);
  pannello.resize(larga, 400);
  QCoreApplication::processEvents();
  EXPECT_EQ(pannello.width(), larga);
  EXPECT_FALSE(c.etDurate->isVisible()) << "the four need the bar";
}

TEST_F(Finestre_Pannello, WhatHasNoRoomInTheStatusBarEndsInAnEllipsis) {
  Carica(sempre);
  pannello.Segna_Impianto(15);
  pannello.resize(595, 400);
  QCoreApplication::processEvents();
  const auto visto = [this](std::size_t n) {
    return dynamic_cast<const Etichetta_Accorciata&>(*c.stB[n]).Visto();
  };
  for (std::size_t n = 0; n < 3; ++n) EXPECT_EQ(visto(n), c.stB[n]->text());
  EXPECT_TRUE(visto(3).startsWith("15-Ciclo elettropneumatico"));
  EXPECT_TRUE(visto(3).endsWith(QChar(0x2026))) << Utf8(visto(3));
  EXPECT_EQ(c.stB[3]->toolTip(), c.stB[3]->text());
  pannello.Segna_Impianto(9);
  QCoreApplication::processEvents();
  EXPECT_EQ(visto(3), "09-Cancello Automatico");
  pannello.Segna_Impianto(-1);
}

struct Caso_Tasto {
  const char* tasto;
  const char* voce;
};
struct Barra_Del_Pannello : Finestre_Pannello, testing::WithParamInterface<Caso_Tasto> {};

TEST_P(Barra_Del_Pannello, GivesTheCommandOfItsEntry) {
  Carica(sempre);
  QAction& voce = Azione(pannello, GetParam().voce);
  int volte = 0;
  QObject::disconnect(&voce, nullptr, &pannello, nullptr);  // the command itself is not wanted
  QObject::connect(&voce, &QAction::triggered, &pannello, [&volte] { ++volte; });
  voce.setEnabled(false);
  Azione(pannello, QStringLiteral("tB1(%1)").arg(GetParam().tasto)).trigger();
  EXPECT_EQ(volte, 0);
  voce.setEnabled(true);
  Azione(pannello, QStringLiteral("tB1(%1)").arg(GetParam().tasto)).trigger();
  EXPECT_EQ(volte, 1);
}

INSTANTIATE_TEST_SUITE_P(
    All, Barra_Del_Pannello,
    testing::Values(Caso_Tasto{"New", "mnuFileNew"}, Caso_Tasto{"Open", "mnuFileOpen"},
                    Caso_Tasto{"Save", "mnuFileEdit"}, Caso_Tasto{"Run", "mnuPlcRun"},
                    Caso_Tasto{"Stop", "mnuPlcStop"}, Caso_Tasto{"Step", "mnuPlcStep"},
                    Caso_Tasto{"Ciclo", "mnuPLCCiclo"}, Caso_Tasto{"Cont", "mnuPlcCont"},
                    Caso_Tasto{"SetPLC", "mnuViewSet"}, Caso_Tasto{"SetIst", "mnuHlpSet"},
                    Caso_Tasto{"Debug", "mnuViewStati"}, Caso_Tasto{"Info", "mnuInfAb"},
                    Caso_Tasto{"Termina", "mnuFileEnd"}),
    [](const auto& caso) { return std::string(caso.param.tasto); });

TEST_F(Finestre_Pannello, CentraPutsThePanelInTheMiddleOfTheScreen) {
  pannello.move(3, 5);
  Azione(pannello, "tB1(Centra)").trigger();
  const QPoint mezzo = pannello.screen()->availableGeometry().center();
  EXPECT_LE((pannello.frameGeometry().center() - mezzo).manhattanLength(), 2);
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

TEST_F(Finestre_Pannello, TheBarsCanBeHidden) {
  const auto piena = [this] { return pannello.centralWidget()->height(); };
  const int altezza = piena();
  Azione(pannello, "mnuViewTB").trigger();
  QCoreApplication::processEvents();
  EXPECT_FALSE(c.tB1->isVisible());
  EXPECT_FALSE(Spuntata("mnuViewTB"));
  EXPECT_EQ(piena(), altezza + c.tB1->height());
  Azione(pannello, "mnuViewSTB").trigger();
  QCoreApplication::processEvents();
  EXPECT_FALSE(pannello.statusBar()->isVisible());
  EXPECT_FALSE(Spuntata("mnuViewSTB"));
  EXPECT_EQ(piena(), altezza + c.tB1->height() + pannello.statusBar()->height());
  Azione(pannello, "mnuViewTB").trigger();
  Azione(pannello, "mnuViewSTB").trigger();
  QCoreApplication::processEvents();
  EXPECT_TRUE(c.tB1->isVisible());
  EXPECT_TRUE(pannello.statusBar()->isVisible());
  EXPECT_EQ(piena(), altezza);
}

/// Of the menu that the right button opens on the menu bar.
TEST_F(Finestre_Pannello, ABarIsHiddenByItsNameToo) {
  const std::unique_ptr<QMenu> menu(pannello.createPopupMenu());
  ASSERT_FALSE(menu->actions().isEmpty());
  for (const QAction* voce : menu->actions()) EXPECT_FALSE(voce->text().isEmpty());
  ASSERT_EQ(menu->actions().constFirst()->text(), "Tool Bar");
  for (const bool spuntata : {false, true}) {
    menu->actions().constFirst()->trigger();
    EXPECT_EQ(c.tB1->isVisible(), spuntata);
    EXPECT_EQ(Spuntata("mnuViewTB"), spuntata);
  }
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

TEST_F(Finestre_Pannello, ClosingAndTerminaEndTheRun) {
  Carica(sempre);
  const std::vector<std::function<void()>> modi = {
      [this] { pannello.close(); }, [this] { Azione(pannello, "mnuFileEnd").trigger(); }};
  for (const auto& chiudi : modi) {
    pannello.show();
    Al_Ciclo[5] = chiudi;
    Scegli("mnuPlcRun");
    EXPECT_EQ(cicli, 6);
    EXPECT_EQ(plc.Ferma, -1);
    EXPECT_FALSE(pannello.isVisible());
    plc.mnuPlcStop();
    pannello.Aggiorna();
  }
}

// ---- leaving with a text that is not saved ------------------------------------------------------

TEST_F(Finestre_Pannello, TheEndAsksForATextThatIsNotSaved) {
  QTemporaryDir cartella;
  const QString file = cartella.filePath("mio.AWL");
  bool sceglie = false;
  progetto.Chiedi.Scegli_File = [&](const Richiesta_File&) {
    return sceglie ? std::optional(File_Scelto{file.toStdString(), "mio.AWL"}) : std::nullopt;
  };
  std::vector<std::string> domande;
  Risposta risposta = Risposta::Si;
  progetto.Chiedi.Mostra = [&](const Avviso& avviso) {
    domande.push_back(avviso.Testo);
    return risposta;
  };
  progetto.mnuFileNew(false);
  pannello.close();
  EXPECT_TRUE(domande.empty()) << "nothing was typed";

  pannello.show();
  progetto.Scrivi_Main("LD I0.0");
  pannello.close();
  EXPECT_EQ(domande, std::vector<std::string>{"Salvare il progetto corrente?"});
  EXPECT_TRUE(pannello.isVisible()) << "Yes, and then no file was chosen";
  EXPECT_EQ(progetto.txtList, "LD I0.0");

  sceglie = true;
  pannello.close();
  EXPECT_EQ(domande.size(), 2U);
  EXPECT_FALSE(pannello.isVisible());
  EXPECT_TRUE(QFile::exists(file));

  pannello.show();
  pannello.close();
  EXPECT_EQ(domande.size(), 2U) << "all is saved, whatever the flag of the compiler says";

  pannello.show();
  progetto.Scrivi_Main("LD I0.1");
  risposta = Risposta::No;
  pannello.close();
  EXPECT_EQ(domande.size(), 3U);
  EXPECT_FALSE(pannello.isVisible());
}

}  // namespace
}  // namespace tavorno
