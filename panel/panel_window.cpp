// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the panel.
#include "panel/panel_window.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

#include "awl/ui/file_dialog.h"
#include "panel/controls/cpu_front.h"
#include "panel/panel_tables.h"
#include "panel/program_list.h"
#include "plants/exercises.h"
#include "plc/byte_text.h"
#include "widgets/command_tables.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

FrmPLC::FrmPLC(Plc& plc, Progetto& progetto) : plc_(plc), progetto_(progetto) {
  setObjectName(QStringLiteral("frmPLC"));
  progetto_.Riserva = Dialoghi_Qt(this);  // while no editor is open
  setWindowTitle(QStringLiteral(" Simulatore PLC Siemens S7-200."));
  Crea_Menu(*this, Menu_Pannello(a_));
  c_ = Crea_Controlli(*this, plc_, a_.tB1);
  Crea_Menu_Processi();

  Scrivi_Stato(QStringLiteral("List: "));
  c_.frSP->setVisible(false);
  Collega_Comandi();
  Collega_Barra();
  Collega_Controlli();
  PLC_Stato();
  Mostra_Comandi();
  Mostra_Pila();
  Attivata();
}

void FrmPLC::Scrivi_Stato(const QString& lista) {
  c_.stB[0]->setText(QStringLiteral("File: ") + Q(progetto_.File_Titolo));
  c_.stB[0]->setToolTip(Q(progetto_.File_Titolo));
  c_.stB[1]->setText(lista + QString::number(plc_.NRighe));
}

void FrmPLC::Collega_Finestre(Legami_Pannello legami) {
  legami_ = std::move(legami);
  const struct {
    QAction* voce;
    std::function<void()> apri;
    bool esiste;
  } voci[] = {
      {a_.mnuFileNew, [this] { legami_.Mostra_Editor(Avvio::Nuovo); }, bool(legami_.Mostra_Editor)},
      {a_.mnuFileOpen, [this] { legami_.Mostra_Editor(Avvio::Apri); }, bool(legami_.Mostra_Editor)},
      {a_.mnuFileEdit, [this] { Modifica(); }, bool(legami_.Mostra_Editor)},
      {a_.mnuViewSet, legami_.Mostra_Impostazioni, bool(legami_.Mostra_Impostazioni)},
      {a_.mnuViewIO, legami_.Mostra_Analogici, bool(legami_.Mostra_Analogici)},
      {a_.mnuViewStati, legami_.Mostra_Stati, bool(legami_.Mostra_Stati)},
      {a_.mnuViewTempi, legami_.Mostra_Tempi, bool(legami_.Mostra_Tempi)},
      {a_.mnuViewVerifica, legami_.Verifica, bool(legami_.Verifica)},
      {a_.mnuViewDisponi, legami_.Disponi_Finestre, bool(legami_.Disponi_Finestre)},
      {a_.mnuViewTavolo, legami_.Mostra_Tavolo, bool(legami_.Mostra_Tavolo)},
      {a_.mnuViewFinestre, legami_.Separa_Finestre, bool(legami_.Separa_Finestre)},
      {a_.mnuViewPiu, [this] { legami_.Grandezza_Testo(1); }, bool(legami_.Grandezza_Testo)},
      {a_.mnuViewMeno, [this] { legami_.Grandezza_Testo(-1); }, bool(legami_.Grandezza_Testo)},
      {a_.mnuViewNormale, [this] { legami_.Grandezza_Testo(0); }, bool(legami_.Grandezza_Testo)},
      {a_.mnuViewProiettore, legami_.Proietta, bool(legami_.Proietta)},
      {a_.mnuViewDaltonici, [this] { legami_.Colori_Daltonici(a_.mnuViewDaltonici->isChecked()); },
       bool(legami_.Colori_Daltonici)},
      {a_.mnuInfAb, legami_.Mostra_Info, bool(legami_.Mostra_Info)},
      {a_.mnuHlpGen, [this] { legami_.Mostra_Aiuto("Index.htm"); }, bool(legami_.Mostra_Aiuto)},
      {a_.mnuHlpSet, [this] { legami_.Mostra_Aiuto("SET_IST.htm"); }, bool(legami_.Mostra_Aiuto)},
  };
  for (const auto& riga : voci) {
    if (riga.esiste) Al_Comando(riga.voce, riga.apri);
  }
  for (const Voce_Finestra& riga : legami_.Altre)
    Al_Comando(&Aggiungi_Voce(*a_.mnuView->menu(), riga.Voce, a_.mnuViewVerifica), riga.Apri);
}

// ---- menus --------------------------------------------------------------------------------------

void FrmPLC::Al_Comando(QAction* voce, std::function<void()> comando) {
  connect(voce, &QAction::triggered, this, std::move(comando));
}

void FrmPLC::Collega_Comandi() {
  Al_Comando(a_.mnuFileEnd, [this] { close(); });
  Comando_Di_Corsa(a_.mnuPlcRun, [this] { plc_.Entra(Comando_Corsa::Run); });
  Comando_Di_Corsa(a_.mnuPlcStop, [this] { plc_.Entra(Comando_Corsa::Stop); });
  Comando_Di_Corsa(a_.mnuPLCCiclo, [this] { plc_.Entra(Comando_Corsa::Ciclo); });
  Comando_Di_Corsa(a_.mnuPLCPiu, [this] { plc_.Entra(Comando_Corsa::Passo); });
  Comando_Di_Corsa(a_.mnuPlcStep, [this] {
    c_.frSP->setVisible(true);
    plc_.Entra(Comando_Corsa::Step);
  });
  Comando_Di_Corsa(a_.mnuPlcCont, [this] {
    c_.frSP->setVisible(false);
    plc_.Entra(Comando_Corsa::Cont);
  });
  Al_Comando(a_.mnuViewTB, [this] { c_.tB1->setVisible(!c_.tB1->isVisibleTo(this)); });
  // It can be hidden by the menu of bars too.
  connect(c_.tB1->toggleViewAction(), &QAction::toggled, a_.mnuViewTB, &QAction::setChecked);
  Al_Comando(a_.mnuViewSTB, [this] { statusBar()->setVisible(!statusBar()->isVisibleTo(this)); });
  Al_Comando(a_.mnuViewKOP, [this] { Apri_Scalaro(); });
}

QList<QAction*> FrmPLC::Comandi_Ovunque() const {
  return {a_.mnuPlcRun, a_.mnuPlcStop, a_.mnuPLCPiu, a_.mnuViewProiettore};
}

QList<QAction*> FrmPLC::Comandi_Di_Vista() const {
  return {a_.mnuViewTavolo, a_.mnuViewFinestre};
}

QList<QAction*> FrmPLC::Comandi_Di_Testo() const {
  return {a_.mnuViewPiu, a_.mnuViewMeno, a_.mnuViewNormale};
}

/// A command that may start a run begins in an event of its own: the menu or button it was given
/// with is done by then, while the run may go on for hours.
void FrmPLC::Comando_Di_Corsa(QAction* voce, std::function<void()> comando) {
  Al_Comando(voce, [this, voce, comando = std::move(comando)] {
    // A choice ticks its entry by itself; what is ticked follows from the CPU.
    plc_.Segna(Segno_Comandi);
    if (plc_.Hook.Adesso == Vissuto::Passato)
      statusBar()->showMessage(Q("Si vede il passato: prima Riprendi da qui, o torna al presente."),
                               5000);
    else if (Si_Puo(*voce))
      Piu_Tardi(comando);
  });
}

void FrmPLC::Piu_Tardi(std::function<void()> comando) {
  QMetaObject::invokeMethod(
      this,
      [this, comando = std::move(comando)] {
        comando();
        Aggiorna();
      },
      Qt::QueuedConnection);
}

void FrmPLC::Modifica() {
  plc_.Entra(Comando_Corsa::Stop);
  Aggiorna();
  c_.listSrc->clear();
  Abilita_Programma(false);
  legami_.Mostra_Editor(Avvio::Modifica);
}

/// The commands that need a program in the CPU.
void FrmPLC::Abilita_Programma(bool caricato) {
  for (QAction* azione : {a_.mnuPlc, a_.mnuFileEdit, a_.tB1.Run, a_.tB1.Save})
    azione->setEnabled(caricato);
}

/// The program of that name where one is installed, else our own window.
void FrmPLC::Apri_Scalaro() {
  const QString programma = QStandardPaths::findExecutable(QStringLiteral("Scalaro.exe"));
  if (!programma.isEmpty() && QProcess::startDetached(programma, {})) return;
  if (programma.isEmpty() && legami_.Mostra_Scala) return legami_.Mostra_Scala();
  plc_.Hook.Mostra({"Attenzione!",
                    programma.isEmpty()
                        ? "Il programma \"Scalaro.exe\" non è installato in questo computer."
                        : "Il programma \"Scalaro.exe\" non può essere avviato.",
                    Icona::Critica,
                    Tasti::Ok,
                    {}});
}

bool FrmPLC::Salva_Il_Progetto() {
  return !progetto_.Da_Salvare() || progetto_.Chiedi_Di_Salvare();
}

void FrmPLC::closeEvent(QCloseEvent* evento) {
  if (!Salva_Il_Progetto()) return evento->ignore();
  // A run in progress sees the flag behind the present line and leaves; the event loops follow.
  plc_.Entra(Comando_Corsa::Fine);
  evento->accept();
  QCoreApplication::quit();
}

void FrmPLC::Crea_Menu_Processi() {
  QMenu* menu = a_.mnuProgetti->menu();
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    QAction* voce =
        Chiama(Con_Indice("mnuPrj", esercizio.Indice), menu->addAction(Q(esercizio.Voce)));
    a_.mnuPrj.push_back(voce);
    voce->setCheckable(true);
    const int indice = esercizio.Indice;
    connect(voce, &QAction::triggered, this, [this, indice] { legami_.Mostra_Impianto(indice); });
  }
  Segna_Impianto(-1);
}

void FrmPLC::Segna_Impianto(int indice) {
  QString aperto;
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    QAction& voce = *a_.mnuPrj[static_cast<std::size_t>(esercizio.Indice)];
    voce.setChecked(esercizio.Indice == indice);
    voce.setEnabled(indice < 0 && esercizio.Crea != nullptr);
    if (esercizio.Indice == indice) aperto = Q(esercizio.Voce);
  }
  a_.mnuViewVerifica->setEnabled(indice >= 0);
  c_.stB[3]->setText(aperto);
  c_.stB[3]->setToolTip(aperto);
}

// ---- tool bar -----------------------------------------------------------------------------------

void FrmPLC::Collega_Barra() {
  const Azioni_Pannello::Tasti& tasti = a_.tB1;
  for (const auto& [tasto, voce] :
       std::initializer_list<std::pair<QAction*, QAction*>>{{tasti.New, a_.mnuFileNew},
                                                            {tasti.Open, a_.mnuFileOpen},
                                                            {tasti.Save, a_.mnuFileEdit},
                                                            {tasti.Run, a_.mnuPlcRun},
                                                            {tasti.Stop, a_.mnuPlcStop},
                                                            {tasti.Step, a_.mnuPlcStep},
                                                            {tasti.Ciclo, a_.mnuPLCCiclo},
                                                            {tasti.Cont, a_.mnuPlcCont},
                                                            {tasti.SetPLC, a_.mnuViewSet},
                                                            {tasti.SetIst, a_.mnuHlpSet},
                                                            {tasti.Debug, a_.mnuViewStati},
                                                            {tasti.Info, a_.mnuInfAb},
                                                            {tasti.Termina, a_.mnuFileEnd}})
    Al_Comando(tasto, [this, voce = voce] { Premi_Tasto(*voce); });
  Al_Comando(tasti.Centra, [this] { Centra(*this); });
}

/// The entries of a disabled menu cannot be chosen, by short cut and button neither.
bool FrmPLC::Si_Puo(QAction& voce) const {
  const bool di_corsa = a_.mnuPlc->menu()->actions().contains(&voce);
  return voce.isEnabled() && (!di_corsa || a_.mnuPlc->isEnabled());
}

void FrmPLC::Premi_Tasto(QAction& voce) {
  if (Si_Puo(voce)) voce.trigger();
  Mostra_Comandi();  // a button that stays pressed shows the CPU's state and not the click
}

// ---- controls -----------------------------------------------------------------------------------

void FrmPLC::Collega_Controlli() {
  for (std::size_t i = 0; i < 2; ++i) {
    SimI& interruttori = c_.Fronte->Sim_I(static_cast<int>(i));
    interruttori.Change = [this, i, &interruttori] {
      plc_.Entra(Di_Ingresso(static_cast<int>(i), interruttori.Stato_I()));
    };
  }
  SimC& contraves = c_.Fronte->Sim_C();
  contraves.Change = [this, &contraves] { plc_.Entra(Di_Ingresso(1, contraves.SimC_Stato())); };

  const auto scegli_stop = [this] {
    if (!plc_.PLC_Acceso) c_.txtStop->setText(QString::number(c_.listSrc->currentRow()));
  };
  connect(c_.listSrc, &QListWidget::itemClicked, this, scegli_stop);
  connect(c_.listSrc, &QListWidget::itemActivated, this, scegli_stop);  // the Enter key

  connect(c_.chkList, &QCheckBox::toggled, this, [this](bool acceso) {
    plc_.Entra(Di_Scelta(Scelta_Pannello::chkList, acceso));
    Mostra_Tempo_Acceso();
  });
  connect(c_.chkIP, &QCheckBox::toggled, this, [this](bool acceso) {
    plc_.Entra(Di_Scelta(Scelta_Pannello::chkIP, acceso));
    c_.picII->setVisible(acceso);
  });
  connect(c_.chkVs, &QCheckBox::toggled, this, &FrmPLC::Mostra_Pila);

  connect(c_.chkVal, &QCheckBox::toggled, this, &FrmPLC::Guarda_Valori);

  // The two stop conditions exclude each other.
  connect(c_.chkStop, &QCheckBox::toggled, this, [this](bool acceso) {
    plc_.Entra(Di_Scelta(Scelta_Pannello::chkStop, acceso));
    if (acceso) c_.chkSol->setChecked(false);
    c_.chkSol->setEnabled(!acceso);
  });
  connect(c_.chkSol, &QCheckBox::toggled, this, [this](bool acceso) {
    plc_.Entra(Di_Scelta(Scelta_Pannello::chkSol, acceso));
    if (acceso) c_.chkStop->setChecked(false);
    c_.chkStop->setEnabled(!acceso);
  });
  connect(c_.txtStop, &QLineEdit::textChanged, this, [this](const QString& testo) {
    plc_.Entra(Di_Scelta(Scelta_Pannello::txtStop, testo.toInt()));
  });
  connect(c_.txtNC, &QLineEdit::textChanged, this, [this](const QString& testo) {
    plc_.Entra(Di_Scelta(Scelta_Pannello::txtNC, testo.toInt()));
  });

  // While the CPU stands a click on a page chooses its mode; a run has the page of its own.
  connect(c_.SSTb3->tabBar(), &QTabBar::tabBarClicked, this, [this](int pagina) {
    QAction* const modi[] = {a_.mnuPlcCont, a_.mnuPLCCiclo, a_.mnuPlcStep};
    if (plc_.PLC_Acceso || pagina < 0 || pagina >= std::ssize(modi)) return;
    if (QAction* modo = modi[pagina]; Si_Puo(*modo)) modo->trigger();
  });

  connect(c_.CmdStep, &QPushButton::clicked, a_.mnuPLCPiu, &QAction::trigger);
  connect(c_.cmdRest, &QPushButton::clicked, this,
          [this] { Piu_Tardi([this] { plc_.Entra(Comando_Corsa::Riprendi); }); });

  for (std::size_t i = 0; i < 2; ++i) {
    connect(c_.SlidP[i], &QSlider::valueChanged, this, [this, i](int valore) {
      c_.etPa[i]->setText(QString::number(valore));
      plc_.Entra({.Che = Cosa::Potenziometro, .Indice = static_cast<int>(i), .Numero = valore});
      c_.Fronte->Aggiorna_Vano();
    });
    const QString unita = i == 0 ? QStringLiteral("Volt") : QStringLiteral("mA");
    const Scala scala = i == 0 ? Scala::Volt_10 : Scala::mA_20;
    connect(c_.opzAI[i], &QRadioButton::clicked, this, [this, unita, scala] {
      plc_.Entra(Di_Scelta(Scelta_Pannello::opzAI, static_cast<int>(scala)));
      c_.Fronte->Aggiorna_Vano();
      for (QLabel* etichetta : c_.etg1) etichetta->setText(unita);
    });
    connect(c_.opzAQ[i], &QRadioButton::clicked, this, [this, unita, scala] {
      plc_.Entra(Di_Scelta(Scelta_Pannello::opzAQ, static_cast<int>(scala)));
      c_.Fronte->Aggiorna_Vano();
      for (QLabel* etichetta : c_.etg2) etichetta->setText(unita);
    });
  }
}

void FrmPLC::PLC_Sportello(Modo_Sportello modo) {
  c_.Fronte->PLC_Sportello(modo);
}

// ---- activation ---------------------------------------------------------------------------------

void FrmPLC::Attivata() {
  const bool caricata = progetto_.Carica_CPU != 0;
  if (caricata) {
    std::vector<std::string> righe;
    for (int i = 0; i <= plc_.NRighe; ++i) righe.push_back(progetto_.Righe_Src[i].Testo_CPU);
    // In the past and in a pause it marks what was looked for, and not what ran last.
    const bool segnata = plc_.Hook.Adesso == Vissuto::Passato || plc_.In_Pausa();
    const int riga = segnata ? c_.listSrc->currentRow() : plc_.Lista_Scelta;
    c_.listSrc->Riempi(righe);
    c_.listSrc->Scegli(riga);
    Scrivi_Stato(QStringLiteral("List:"));
  }
  plc_.Entra({.Che = Cosa::Azzera_Elementi, .Numero = caricata});
  Abilita_Programma(caricata);
  c_.cmdRest->setEnabled(false);
  flusso_.Dimentica();
}

}  // namespace tavorno
