// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the editor window.
#include "awl/ui/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLayout>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <utility>

#include "awl/ui/file_dialog.h"
#include "awl/ui/main_window_tables.h"
#include "widgets/command_tables.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

/// The pointer shows an hourglass while a file is read.
class Clessidra {
 public:
  Clessidra() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Clessidra() { QGuiApplication::restoreOverrideCursor(); }
  Clessidra(const Clessidra&) = delete;
  Clessidra& operator=(const Clessidra&) = delete;
};

}  // namespace

FrmMain::FrmMain(Progetto& progetto, Plc& plc, Legami_Editor legami)
    : p_(progetto), plc_(plc), legami_(std::move(legami)) {
  if (!p_.Chiedi.Mostra && !p_.Chiedi.Scegli_File) {
    p_.Chiedi = Dialoghi_Qt(this);
    dialoghi_propri_ = true;
  }
  p_.Pagina = 0;
  p_.Compilato = 0;  // a new window has nothing to load yet
  p_.stB = {"File:", "", "Errori: ----"};
  p_.etNR = {"0", "0", "0"};
  p_.Righe_Listato.clear();
  p_.Lista_Comp.clear();
  p_.Rilievi.clear();
  if (p_.TabSP.empty()) p_.TabSP.assign(1, "");
  documenti_.Adegua(p_.Num_SBR);
  Crea_Controlli();
  Collega_Comandi();
  Collega_Testi();
  Collega_Storia();
  for (const QAction* voce : findChildren<QAction*>()) {
    for (AwlEditor* testo : {txtList, txtP, txtLst}) testo->Cedi_Tasti(voce->shortcut());
  }
  comandi_ = new Comandi_Testi(
      *this, a_.Testi,
      {.Dati = p_,
       .Main = txtList,
       .Procedura = txtP,
       .Listato = txtLst,
       .Mostra = [this](Posto_Riga posto) { Vai_A(posto); },
       .Errore = [this](int verso) { return Errore_Vicino(verso); },
       .Insieme = [this](const std::function<void()>& comando) { Insieme(comando); },
       .Dici = [this](const QString& testo) { Dici(testo); }},
      *static_cast<QVBoxLayout*>(picF->layout()));
  storia_.Ricomincia(p_.Testi());
  Specchia();
  txtList->Dimentica_Annulla();
  txtP->Dimentica_Annulla();
}

FrmMain::~FrmMain() {
  // The controls outlive what their signals would touch.
  for (QObject* controllo : {static_cast<QObject*>(SSTb2), static_cast<QObject*>(TabSP)})
    controllo->disconnect(this);
  if (dialoghi_propri_) p_.Chiedi = {};
}

void FrmMain::Avvia(Avvio Avvio_File) {
  avvio_ = Avvio_File;
  Vista prima = Come_Sta();
  const bool non_salvato = p_.Modificato != 0;
  switch (Avvio_File) {
    case Avvio::Modifica:
      Apri({p_.File_Progetto, p_.File_Titolo});
      if (!p_.Err_Lettura && !non_salvato) storia_.Ricomincia(p_.Testi());
      break;
    case Avvio::Apri:
      Chiedi_E_Apri();
      break;
    case Avvio::Lista: {
      std::string lista = "//\r\n//\r\n";
      for (int i = 0; i < p_.CPU.NRighe; ++i) lista += p_.Righe_Src[i].Testo_CPU + "\r\n";
      p_.Scrivi_Main(lista);
      testi_nuovi_ = true;
      storia_.Ricomincia(p_.Testi());
      break;
    }
    case Avvio::Nuovo:
    case Avvio::Vuoto:
    default:
      p_.Num_SBR = 0;
      p_.TabSP.assign(1, "");
      p_.Scheda = 0;
      p_.txtList.clear();
      p_.txtP.clear();
      p_.Formattato = 0;
      p_.Gestione_Voci(0);
      if (Avvio_File == Avvio::Nuovo) p_.mnuFileNew(false);
      Sostituito(std::move(prima));
      // A project that was saved, or read and left as it was, needs no way back.
      if (!non_salvato) storia_.Ricomincia(p_.Testi());
      break;
  }
  p_.Pagina = 0;
  Specchia();
}

void FrmMain::Collega_Comandi() {
  const auto al = [this](QAction* voce, auto comando) {
    connect(voce, &QAction::triggered, this, comando);
  };
  al(a_.mnuFileNew, [this] { Nuovo(); });
  al(a_.mnuFileOpen, [this] { Chiedi_E_Apri(); });
  al(a_.mnuFileSave, [this] {
    p_.mnuFileSave();
    Specchia();
  });
  al(a_.mnuFileTxtImp, [this] { Inserimento([this] { p_.mnuFileTxtImp(); }); });
  al(a_.mnuFileTxtExp, [this] { p_.mnuFileTxtExp(); });
  al(a_.mnufiltxtT, [this] { p_.mnufiltxtT(); });
  al(a_.mnuFileStp, [this] { legami_.Mostra_Stampe(); });
  al(a_.mnuFileEnd, [this] {
    plc_.Entra(Comando_Corsa::Fine);
    p_.Carica_CPU = 0;
    close();
  });
  al(a_.mnuPlcCompile, [this] { Compila(false); });
  al(a_.mnuPlcCarica, [this] {
    Compila(true);
    if (p_.Compilato) close();
  });
  const auto mostra = [this](QWidget& barra, const QAction& voce) {
    barra.setVisible(voce.isChecked());
    layout()->activate();  // else the window may not shrink yet
    Regola_Altezza();
  };
  al(a_.mnuViewTB, [this, mostra] { mostra(*tB1, *a_.mnuViewTB); });
  // It can be hidden by the menu of bars too.
  connect(tB1->toggleViewAction(), &QAction::triggered, a_.mnuViewTB, &QAction::trigger);
  al(a_.mnuViewSTB, [this, mostra] { mostra(*statusBar(), *a_.mnuViewSTB); });
  for (int i = 0; i < Pagina_Nascosta; ++i)
    al(a_.mnuViewC.at(static_cast<std::size_t>(i)), [this, i] { SSTb2->setCurrentIndex(i); });
  al(a_.mnuViewKOP, [this] { legami_.Mostra_Scala(); });
  al(a_.MnuHLPIndex, [this] { legami_.Mostra_Aiuto(QStringLiteral("Index-AWL.htm")); });
  al(a_.MnuHlpList, [this] { legami_.Mostra_Aiuto(QStringLiteral("SET_IST.htm")); });
  al(a_.MnuHLPInfo, [this] { legami_.Mostra_Info(); });
  al(a_.tB1.Centra, [this] { Centra(*this); });

  const auto come = [](QAction* tasto, QAction* voce) {
    QObject::connect(tasto, &QAction::triggered, voce, &QAction::trigger);
    QObject::connect(voce, &QAction::enabledChanged, tasto, &QAction::setEnabled);
  };
  come(a_.tB1.New, a_.mnuFileNew);
  come(a_.tB1.Open, a_.mnuFileOpen);
  come(a_.tB1.Save, a_.mnuFileSave);
  come(a_.tB1.Compila, a_.mnuPlcCompile);
  come(a_.tB1.Carica, a_.mnuPlcCarica);
  come(a_.tB1.Stampa, a_.mnuFileStp);
  come(a_.tB1.Info, a_.MnuHLPInfo);
  come(a_.tB1.Termina, a_.mnuFileEnd);
  a_.mnuViewKOP->setEnabled(bool(legami_.Mostra_Scala));
  a_.MnuHLPIndex->setEnabled(bool(legami_.Mostra_Aiuto));
  a_.MnuHlpList->setEnabled(bool(legami_.Mostra_Aiuto));
  a_.MnuHLPInfo->setEnabled(bool(legami_.Mostra_Info));
}

void FrmMain::Collega_Testi() {
  const auto al = [this](QPushButton* tasto, auto comando) {
    connect(tasto, &QPushButton::clicked, this, comando);
  };
  al(CmdNet[0], [this] { Network(0); });
  al(CmdNet[1], [this] { Network(1); });
  al(cmdSub, [this] {
    Inserimento([this] { p_.New_Sub(); });
    txtP->Vai_In_Fondo();
  });
  al(cmdDelP, [this] { Rimozione(); });
  al(cmdTest, [this] { legami_.Mostra_Debug(); });
  cmdTest->setEnabled(bool(legami_.Mostra_Debug));

  constexpr int pausa = 400;  // ms without a key
  suggerisci_.setSingleShot(true);
  suggerisci_.setInterval(pausa);
  connect(&suggerisci_, &QTimer::timeout, this, [this] { Suggerisci(); });
  txtList->Cambiato = [this] { Testo_Cambiato(*txtList); };
  txtP->Cambiato = [this] { Testo_Cambiato(*txtP); };
  txtLst->Linea_Scelta = [this](int linea) {
    if (linea < static_cast<int>(p_.Righe_Listato.size())) Vai_A_Riga(linea);
  };
  connect(SSTb2, &QTabWidget::currentChanged, this, [this](int pagina) { Cambia_Pagina(pagina); });
  // A click counts on the tab in front as well: the text on screen may be a removed procedure's.
  connect(TabSP, &QTabBar::tabBarClicked, this, [this](int i) { Scegli_Procedura(i + 1); });
  connect(TabSP, &QTabBar::currentChanged, this, [this](int i) { Scegli_Procedura(i + 1); });

  // The Tab key belongs to the texts; these keys lead out of them.
  const auto tasti = [this](const char* sequenza, bool avanti) {
    auto* scorciatoia = new QShortcut(QKeySequence(QString::fromUtf8(sequenza)), this);
    connect(scorciatoia, &QShortcut::activated, this,
            [this, avanti] { focusNextPrevChild(avanti); });
  };
  tasti("F6", true);
  tasti("Shift+F6", false);
}

// ---- commands -----------------------------------------------------------------------------------

void FrmMain::Chiedi_E_Apri() {
  if (const auto scelto = p_.Scegli_Da_Aprire()) Apri(*scelto);
}

void FrmMain::Apri(const File_Scelto& file) {
  Vista prima = Come_Sta();
  const Contenuto_File contenuto = p_.Contenuto(file.Percorso);
  {
    const Clessidra clessidra;
    p_.Apri_File(file, contenuto);
  }
  p_.Riferisci_Apertura();
  Sostituito(std::move(prima));
  Specchia();
}

void FrmMain::Apri_Questo(const QString& file) {
  const QFileInfo scelto(file);
  const bool niente_prima = p_.Vuoto();
  Apri({Utf8(scelto.absoluteFilePath()), Utf8(scelto.fileName())});
  if (niente_prima) storia_.Ricomincia(p_.Testi());
}

void FrmMain::Nuovo() {
  Vista prima = Come_Sta();
  p_.Annulla = 0;
  p_.mnuFileNew(avvio_ != Avvio::Nuovo);
  if (!p_.Annulla) Sostituito(std::move(prima));
  Specchia();
}

/// Rows keep their texts by place, and what a failed read takes away is kept.
void FrmMain::Compila(bool carica) {
  Vista prima = Come_Sta();
  const std::string testi = p_.Testi();
  const bool pronta = p_.Prepara_Compilazione();
  if (p_.Err_Lettura && p_.Vuoto() && !prima.Stato.Vuoto())
    Sostituito(std::move(prima));
  else
    documenti_.Adegua(p_.Num_SBR);
  if (pronta) {
    if (p_.Testi() != testi) storia_.Scorda();
    p_.Compila_Righe_Lette();
    segni_.Prendi(p_, documenti_);
    Specchia_Esiti();  // the result stands on its page before the box that tells it
    p_.Riferisci();
  }
  if (carica) p_.Consegna();
  Specchia();
  if (pronta && p_.Errori > 0) Al_Primo_Errore();
}

/// The caret of the listing, and that of the text, where the way back leads.
void FrmMain::Al_Primo_Errore() {
  const std::vector<int> segnate = segni_.Segnate();
  if (segnate.empty()) return;
  txtLst->setCursorPosition(segnate.front(), 0);
  if (segni_.Chiave(segnate.front()) == Segni_Errori::Chiave_Main)
    txtList->setCursorPosition(segni_.Linea(txtList, segnate.front()), 0);
}

/// A command that may add a procedure.
void FrmMain::Inserimento(const std::function<void()>& comando) {
  Vista prima = Come_Sta();
  const int quante = p_.Num_SBR;
  comando();
  storia_.Scorda();
  if (p_.Num_SBR > quante) {
    if (quante == 0) documenti_.Svuota();
    documenti_.Inserisci(p_.Scheda);
    storia_.Passo(std::move(prima), p_.Testi());
  }
  Specchia();
}

void FrmMain::Rimozione() {
  Vista prima = Come_Sta();
  const int quante = p_.Num_SBR;
  const int tolta = p_.Scheda;
  p_.Remove_Sub();
  if (p_.Num_SBR < quante) {
    documenti_.Togli(tolta);
    residuo_ = {};
    storia_.Passo(std::move(prima), p_.Testi());
  }
  Specchia();
}

void FrmMain::Network(int indice) {
  p_.CmdNet(indice);
  storia_.Scorda();
  Specchia();
  (indice == 0 ? txtList : txtP)->Vai_In_Fondo();
}

/// A command that changes several texts, with one way back.
void FrmMain::Insieme(const std::function<void()>& comando) {
  Vista prima = Come_Sta();
  comando();
  Sostituito(std::move(prima));
  Specchia();
}

void FrmMain::Scegli_Procedura(int scheda) {
  if (specchia_) return;
  p_.Scegli_Procedura(scheda);
  Specchia();
}

// ---- window -------------------------------------------------------------------------------------

void FrmMain::closeEvent(QCloseEvent* evento) {
  evento->accept();
  if (!std::exchange(chiusa_, true) && legami_.Mostra_Pannello) legami_.Mostra_Pannello();
}

void FrmMain::resizeEvent(QResizeEvent* evento) {
  QMainWindow::resizeEvent(evento);
  Regola_Altezza();
}

void FrmMain::changeEvent(QEvent* evento) {
  QMainWindow::changeEvent(evento);
  if (evento->type() == QEvent::WindowStateChange && tB1 != nullptr) Regola_Altezza();
  if (evento->type() == QEvent::ActivationChange && isActiveWindow())
    QTimer::singleShot(0, this, [this] { Guarda_Il_Disco(); });
}

void FrmMain::showEvent(QShowEvent* evento) {
  QMainWindow::showEvent(evento);
  if (evento->spontaneous()) return;  // back from the task bar
  chiusa_ = false;
  Regola_Altezza();
  txtList->setFocus(Qt::OtherFocusReason);
}

/// One file at a time is opened where it is dropped.
void FrmMain::dragEnterEvent(QDragEnterEvent* evento) {
  const QList<QUrl> file = evento->mimeData()->urls();
  if (file.size() == 1 && file.front().isLocalFile()) evento->acceptProposedAction();
}

void FrmMain::dropEvent(QDropEvent* evento) {
  evento->acceptProposedAction();
  // Whom it was dragged from waits for the end of this, and a box may follow.
  const QString file = evento->mimeData()->urls().front().toLocalFile();
  QTimer::singleShot(0, this, [this, file] { Apri_Questo(file); });
}

}  // namespace tavorno
