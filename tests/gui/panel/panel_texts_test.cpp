// SPDX-License-Identifier: GPL-3.0-or-later
// Names, captions and tool tips of the panel, row by row.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QToolBar>

#include "panel/panel_bed.h"
#include "plants/exercises.h"

namespace tavorno {
namespace {

struct Voce {
  const char* menu;
  const char* nome;
  const char* testo;
  int segno;  // -1 none, 0 not ticked, 1 ticked
};

// An entry without a name is a separator.
const std::vector<Voce> voci = {
    {"mnuFile", "mnuFileNew", "&Nuovo Progetto", -1},
    {"mnuFile", "mnuFileOpen", "&Apri Progetto", -1},
    {"mnuFile", "mnuFileEdit", "&Modifica Progetto", -1},
    {"mnuFile", "", "", -1},
    {"mnuFile", "mnuFileEnd", "&Termina", -1},
    {"mnuPlc", "mnuPlcRun", "&RUN", -1},
    {"mnuPlc", "mnuPlcStop", "&STOP", -1},
    {"mnuPlc", "", "", -1},
    {"mnuPlc", "mnuPlcStep", "&Esegui in Step", 0},
    {"mnuPlc", "mnuPlcCont", "Esegui in &Continuo", 1},
    {"mnuPlc", "mnuPLCCiclo", "Esegui Sin&golo Ciclo", 0},
    {"mnuPlc", "", "", -1},
    {"mnuPlc", "mnuPLCPiu", "Avanza di un &passo", -1},
    {"mnuView", "mnuViewTB", "&Tool Bar", 1},
    {"mnuView", "mnuViewSTB", "&Status Bar", 1},
    {"mnuView", "", "", -1},
    {"mnuView", "mnuViewSet", "Finestra &Impostazioni PLC", -1},
    {"mnuView", "mnuViewKOP", "Finestra &Scalaro", -1},
    {"mnuView", "", "", -1},
    {"mnuView", "mnuViewIO", "Simulatore Ingressi A&nalogici", -1},
    {"mnuView", "mnuViewStati", "Finestra Stati &Elementi", -1},
    {"mnuView", "mnuViewTempi", "Dia&gramma dei tempi", -1},
    {"mnuView", "mnuViewVerifica", "&Verifica del programma", -1},
    {"mnuView", "", "", -1},
    {"mnuView", "mnuViewDisponi", "&Disponi finestre", -1},
    {"mnuView", "mnuViewTavolo", "Tavo&lo di lavoro", -1},
    {"mnuView", "mnuViewFinestre", "&Finestre separate", -1},
    {"mnuView", "", "", -1},
    {"mnuView", "mnuViewPiu", "Testo &più grande", -1},
    {"mnuView", "mnuViewMeno", "Testo più pi&ccolo", -1},
    {"mnuView", "mnuViewNormale", "Testo no&rmale", -1},
    {"mnuView", "mnuViewProiettore", "&Modo proiettore", -1},
    {"mnuView", "mnuViewDaltonici", "Colori per d&altonici", 0},
    {"MnuHLP", "mnuHlpGen", "&Indice", -1},
    {"MnuHLP", "mnuHlpSet", "&Set Istruzioni", -1},
    {"MnuHLP", "", "", -1},
    {"MnuHLP", "mnuInfAb", "&About", -1},
};

using Testi_Pannello = Banco_Pannello;

TEST_F(Testi_Pannello, MenusInOrder) {
  const std::vector<std::pair<const char*, const char*>> attesi = {
      {"mnuFile", "&File"},
      {"mnuPlc", "&PLC"},
      {"mnuView", "&Visualizza"},
      {"mnuProgetti", "&Simulatori Processi"},
      {"MnuHLP", "&Help"}};
  const auto menu = pannello.menuBar()->actions();
  ASSERT_EQ(menu.size(), static_cast<int>(attesi.size()));
  for (std::size_t i = 0; i < attesi.size(); ++i) {
    EXPECT_EQ(menu[static_cast<int>(i)]->objectName(), attesi[i].first);
    EXPECT_EQ(menu[static_cast<int>(i)]->text(), attesi[i].second);
  }
}

TEST_F(Testi_Pannello, MenuEntriesInOrder) {
  std::map<QString, int> posto;
  for (const Voce& voce : voci) {
    const auto voci_del_menu = Azione(pannello, voce.menu).menu()->actions();
    const int i = posto[voce.menu]++;
    ASSERT_LT(i, voci_del_menu.size()) << voce.nome;
    const QAction& riga = *voci_del_menu[i];
    if (*voce.nome == '\0') {
      EXPECT_TRUE(riga.isSeparator()) << voce.menu << i;
      continue;
    }
    EXPECT_EQ(riga.objectName(), voce.nome);
    EXPECT_EQ(riga.text(), voce.testo);
    EXPECT_EQ(riga.isCheckable() ? int(riga.isChecked()) : -1, voce.segno) << voce.nome;
  }
  for (const auto& [menu, quante] : posto)
    EXPECT_EQ(Azione(pannello, menu).menu()->actions().size(), quante) << menu.toStdString();
}

TEST_F(Testi_Pannello, ShortCuts) {
  const std::map<QString, QString> attesi = {
      {"mnuFileNew", "Ctrl+N"},    {"mnuFileOpen", "Ctrl+O"},   {"mnuFileEdit", "Ctrl+E"},
      {"mnuFileEnd", "Ctrl+Q"},    {"mnuPlcRun", "F5"},         {"mnuViewTempi", "Ctrl+D"},
      {"mnuPlcStop", "Shift+F5"},  {"mnuPLCPiu", "F10"},        {"mnuHlpGen", "F1"},
      {"mnuViewVerifica", "F9"},   {"mnuViewTavolo", "Ctrl+L"}, {"mnuViewFinestre", "Ctrl+Shift+L"},
      {"mnuViewPiu", "Ctrl++"},    {"mnuViewMeno", "Ctrl+-"},   {"mnuViewNormale", "Ctrl+0"},
      {"mnuViewProiettore", "F11"}};
  std::map<QString, QString> presenti;
  for (const QAction* azione : pannello.findChildren<QAction*>()) {
    if (!azione->shortcut().isEmpty())
      presenti[azione->objectName()] = azione->shortcut().toString();
  }
  EXPECT_EQ(presenti, attesi);
}

TEST_F(Testi_Pannello, TheExercisesInTheirOrder) {
  const auto menu = Azione(pannello, "mnuProgetti").menu()->actions();
  ASSERT_EQ(static_cast<std::size_t>(menu.size()), Tabella_Esercizi().size());
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    const QAction& voce = *menu[esercizio.Indice];
    EXPECT_EQ(voce.objectName(), QStringLiteral("mnuPrj(%1)").arg(esercizio.Indice));
    EXPECT_EQ(voce.text(), QString::fromUtf8(esercizio.Voce));
    EXPECT_TRUE(voce.isCheckable());
    EXPECT_FALSE(voce.isChecked());
    EXPECT_EQ(voce.isEnabled(), esercizio.Crea != nullptr);
  }
}

TEST_F(Testi_Pannello, AnOpenExerciseLocksTheMenu) {
  pannello.Segna_Impianto(2);
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    const QString nome = QStringLiteral("mnuPrj(%1)").arg(esercizio.Indice);
    EXPECT_FALSE(Azione(pannello, nome).isEnabled());
    EXPECT_EQ(Azione(pannello, nome).isChecked(), esercizio.Indice == 2);
  }
  EXPECT_EQ(c.stB[3]->text(), "02-Avviatore Stella-Triangolo");
  pannello.Segna_Impianto(-1);
  EXPECT_EQ(c.stB[3]->text(), "");
  EXPECT_TRUE(Azione(pannello, "mnuPrj(0)").isEnabled());
  EXPECT_FALSE(Azione(pannello, "mnuPrj(2)").isChecked());
}

TEST_F(Testi_Pannello, ToolBarInOrder) {
  const std::vector<std::pair<const char*, const char*>> attesi = {
      {"New", "Nuovo Progetto"},
      {"Open", "Apri Progetto"},
      {"Save", "Modifica File Corrente"},
      {"Run", "Run PLC"},
      {"Stop", "Stop PLC"},
      {"Step", "Step Mode"},
      {"Ciclo", "Esecuzione Singolo Ciclo"},
      {"Cont", "Modo Continuo"},
      {"SetPLC", "Impostazioni PLC"},
      {"SetIst", "Set Istruzioni supportate"},
      {"Debug", "Stoto Elementi"},
      {"Centra", "Centra Finestra"},
      {"Info", "Informazioni"},
      {"Termina", "Termina"}};
  std::vector<QAction*> tasti;
  for (QAction* azione : c.tB1->actions()) {
    if (!azione->isSeparator()) tasti.push_back(azione);
  }
  ASSERT_EQ(tasti.size(), attesi.size());
  for (std::size_t i = 0; i < attesi.size(); ++i) {
    EXPECT_EQ(tasti[i]->objectName(), QStringLiteral("tB1(%1)").arg(attesi[i].first));
    EXPECT_EQ(tasti[i]->toolTip(), attesi[i].second);
    EXPECT_FALSE(tasti[i]->icon().pixmap(22, 22).isNull()) << attesi[i].first;
  }
}

template <class Controllo>
QString Testo(const QWidget& finestra, const char* nome) {
  auto* controllo = finestra.findChild<Controllo*>(nome);
  if (controllo == nullptr) return QStringLiteral("<%1 is missing>").arg(nome);
  if constexpr (std::is_same_v<Controllo, QGroupBox>)
    return controllo->title();
  else
    return controllo->text();
}

TEST_F(Testi_Pannello, CaptionsOfControls) {
  EXPECT_EQ(pannello.objectName(), "frmPLC");
  EXPECT_EQ(pannello.windowTitle(), " Simulatore PLC Siemens S7-200.");
  for (const auto& [nome, testo] :
       std::map<const char*, const char*>{{"chkVs", "Stack Operazioni Logiche"},
                                          {"chkIP", "Visualizza immagini P. I/O"},
                                          {"chkList", "Visualizza tempo di cilco"},
                                          {"chkStop", "Stop alla Riga"},
                                          {"chkSol", "Esegui solo"}})
    EXPECT_EQ(Testo<QCheckBox>(pannello, nome), testo);
  EXPECT_EQ(Testo<QPushButton>(pannello, "CmdStep"), "&Step");
  EXPECT_EQ(Testo<QPushButton>(pannello, "cmdRest"), "Riprendi");
  EXPECT_EQ(Testo<QGroupBox>(pannello, "frSP"), "S.P.");
  for (const char* gruppo : {"opzAI", "opzAQ"}) {
    EXPECT_EQ(Testo<QRadioButton>(pannello, qPrintable(QString(gruppo) + "(0)")), "0-10 V");
    EXPECT_EQ(Testo<QRadioButton>(pannello, qPrintable(QString(gruppo) + "(1)")), "0-20 mA");
  }
  EXPECT_EQ(c.listSrc->toolTip(), "Lista Istruzioni");
  QStringList schede;
  for (int i = 0; i < c.SSTb3->count(); ++i) schede << c.SSTb3->tabText(i);
  EXPECT_EQ(schede, QStringList({"Cont", "Ciclo", "Step"}));
  QStringList intestazioni;
  for (const QLabel* etichetta : pannello.findChildren<QLabel*>())
    intestazioni << etichetta->text();
  EXPECT_TRUE(intestazioni.contains("Ingressi  Analogici"));
  EXPECT_TRUE(intestazioni.contains("Uscite  Analogiche"));
  QStringList gruppi;
  for (const QGroupBox* gruppo : pannello.findChildren<QGroupBox*>()) gruppi << gruppo->title();
  EXPECT_TRUE(gruppi.contains("Potenziometri Analogici"));
}

TEST_F(Testi_Pannello, LongNamesPushTheWindowNoWider) {
  Carica("LD I0.0\r\n");
  pannello.Segna_Impianto(15);  // the longest
  EXPECT_GE(c.stB[3]->width(), c.stB[3]->sizeHint().width());
  const int larghezza = pannello.minimumSizeHint().width();
  progetto.File_Titolo = "<b>" + std::string(300, 'x') + ".AWL";
  pannello.Attivata();
  QCoreApplication::processEvents();
  EXPECT_EQ(c.stB[0]->text(), "File: " + QString::fromStdString(progetto.File_Titolo));
  EXPECT_EQ(c.stB[0]->textFormat(), Qt::PlainText);
  EXPECT_EQ(pannello.minimumSizeHint().width(), larghezza);
}

TEST_F(Testi_Pannello, AsItStandsAtLoad) {
  EXPECT_EQ(Testo<QLabel>(pannello, "stB(1)"), "File: ");
  EXPECT_EQ(Testo<QLabel>(pannello, "stB(2)"), "List: 0");
  EXPECT_EQ(Testo<QLineEdit>(pannello, "txtNC"), "1");
  for (const char* nome : {"etAI(0)", "etAI(1)", "etAI(2)", "etAIV(0)", "etAIV(1)", "etAIV(2)",
                           "etAQ(0)", "etAQ(1)", "etAQV(0)", "etAQV(1)"})
    EXPECT_EQ(Testo<QLabel>(pannello, nome), "00") << nome;
  EXPECT_EQ(c.SSTb3->currentIndex(), 0);
  EXPECT_EQ(c.SSTb4->currentIndex(), 0);
  for (const char* nome : {"mnuPlc", "mnuFileEdit", "tB1(Run)", "tB1(Save)"})
    EXPECT_FALSE(Attiva(nome)) << nome;
  EXPECT_TRUE(Attiva("mnuFileNew"));
  EXPECT_FALSE(c.cmdRest->isEnabled());
  EXPECT_FALSE(c.CmdStep->isEnabled());
  for (const QSlider* cursore : c.SlidP) {
    EXPECT_EQ(cursore->minimum(), 0);
    EXPECT_EQ(cursore->maximum(), 255);
    EXPECT_EQ(cursore->singleStep(), 1);
    EXPECT_EQ(cursore->pageStep(), 5);
  }
}

}  // namespace
}  // namespace tavorno
