// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/child_windows.h"

#include <QApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QWindow>
#include <initializer_list>

#include "awl/ui/main_window.h"
#include "ladder/ui/ladder_window.h"
#include "panel/controls/cpu_front.h"
#include "panel/documents/about_window.h"
#include "panel/documents/print_window.h"
#include "panel/program_list.h"
#include "panel/windows/analog_window.h"
#include "panel/windows/debug_window.h"
#include "panel/windows/settings_window.h"
#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"
#include "recorder/ui/diagram_window.h"
#include "recorder/ui/watch_window.h"
#include "widgets/colours.h"
#include "widgets/file_choice.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

Simboli Simboli_Di(const Esercizio* esercizio) {
  Simboli simboli;
  if (esercizio == nullptr) return simboli;
  for (const Riga_IO& riga : esercizio->Righe_IO)
    simboli[riga.Indirizzo] = {riga.Simbolo, riga.Commento};
  return simboli;
}

constexpr char chiave_daltonici[] = "colori/daltonici";
constexpr char tasti_ovunque[] =
    "F5 RUN, Maiusc+F5 STOP, F10 avanza di un passo, F8 pausa, F11 proiettore, F1 guida";

}  // namespace

/// Brings a window to the front, from the task bar too; what is docked, with its dock.
void Finestre::Porta_Avanti(QWidget& finestra) {
  if (!finestra.isWindow()) {
    if (auto* riquadro = qobject_cast<QDockWidget*>(finestra.parentWidget())) {
      riquadro->show();
      riquadro->raise();
    }
    return Porta_Avanti(*finestra.window());
  }
  finestra.setWindowState(finestra.windowState() & ~Qt::WindowMinimized);
  finestra.show();
  finestra.raise();
  finestra.activateWindow();
}

/// A window whose text can be enlarged, together with the others'.
void Finestre::Segui_Testo(QWidget& finestra) {
  finestra.addActions(pannello_.Comandi_Di_Testo());
  testo_.Segui(finestra);
}

void Finestre::Avanti_Il_Pannello() {
  Porta_Avanti(tavolo_ ? tavolo_->Finestra() : pannello_);
  pannello_.Attivata();
}

/// A window without menus tells its keys in its tool tip.
void Finestre::Di_Tasti(QWidget& finestra) {
  finestra.setToolTip(QString::fromUtf8(tasti_ovunque));
}

/// The same, and F1 opens `pagina`, a part of the panel's help.
void Finestre::Prepara(QWidget& finestra, const char* pagina) {
  Di_Tasti(finestra);
  auto* guida = new QShortcut(QKeySequence(Qt::Key_F1), &finestra);
  QObject::connect(guida, &QShortcut::activated, &ascolto_,
                   [this, pagina] { Mostra_Aiuto(guida_.Dir_Help + QString::fromUtf8(pagina)); });
}

/// A window that only shows what it is made with. F1 opens `pagina`, a part of the panel's help.
template <class Finestra, class... Cosa>
void Finestre::Mostra_Altra(const char* pagina, Cosa&... cosa) {
  Porta_Avanti(Trova(altre_[typeid(Finestra)], [&]() -> QWidget* {
    auto* finestra = new Finestra(cosa...);
    Prepara(*finestra, pagina);
    return finestra;
  }));
}

Finestre::Finestre(FrmPLC& pannello, Plc& plc, Progetto& progetto, Guida& guida)
    : pannello_(pannello),
      plc_(plc),
      progetto_(progetto),
      guida_(guida),
      ordine_(pannello),
      menu_file_(Recenti, QCoreApplication::applicationDirPath(),
                 [this](const QString& file) { Apri_File(file); }) {
  const Azioni_Pannello& azioni = pannello_.Azioni();
  menu_file_.Metti_In(*azioni.mnuFile, *azioni.mnuFileEnd, *azioni.mnuFileOpen);
  Legami_Pannello legami;
  legami.Disponi_Finestre = [this] {
    if (tavolo_)
      tavolo_->Disponi();
    else
      ordine_.Disponi(true);
  };
  legami.Grandezza_Testo = [this](int passi) {
    if (passi == 0)
      testo_.Normale();
    else
      testo_.Cambia(passi);
  };
  legami.Proietta = [this] {
    testo_.Proietta(testo_.Proiettata() ? nullptr : QApplication::activeWindow());
  };
  testo_.Segui(*pannello_.Controlli().listSrc);
  legami.Colori_Daltonici = [this](bool scelti) {
    colori::Per_Daltonici(scelti);
    if (ricordi_ != nullptr) ricordi_->setValue(QLatin1String(chiave_daltonici), scelti);
  };
  legami.Mostra_Tavolo = [this] { Mostra_Tavolo(); };
  legami.Separa_Finestre = [this] { Separa_Finestre(); };
  legami.Corsa_Cambiata = [this](bool /*acceso*/) {
    if (impianto_) impianto_->Mostra_Corsa();
  };
  legami.Mostra_Editor = [this](Avvio avvio_file) { Mostra_Editor(avvio_file); };
  legami.Mostra_Impostazioni = [this] { Mostra_Impostazioni(); };
  legami.Mostra_Analogici = [this] { Mostra_Analogici(); };
  legami.Mostra_Stati = [this] { Mostra_Stati(); };
  legami.Mostra_Scala = [this] { Mostra_Scala(); };
  legami.Mostra_Tempi = [this] { Mostra_Tempi(); };
  legami.Altre = {
      {{.Livello = 1,
        .Nome = "mnuViewOsserva",
        .Testo = "Finestra di &osservazione",
        .Tasti = "Ctrl+T"},
       [this] { Mostra_Osserva(); }},
  };
  legami.Verifica = [this] {
    if (Verifica) Verifica();
  };
  legami.Mostra_Info = [this] { Mostra_Info(); };
  legami.Mostra_Impianto = [this](int indice) { Apri_Impianto(indice); };
  legami.Mostra_Aiuto = [this](const char* pagina) {
    const QString scelta = QString::fromUtf8(pagina);
    if (scelta != u"Index.htm" || !Guida_Al_Tavolo()) Mostra_Aiuto(guida_.Dir_Help + scelta);
  };
  pannello_.Collega_Finestre(std::move(legami));
  QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &ascolto_,
                   [this](const QWindow* finestra) { Fuoco_A(finestra); });
}

void Finestre::Ricorda_In(QSettings& dove) {
  ricordi_ = &dove;
  Recenti.Ricorda_In(dove);
  ordine_.Posti.Ricorda_In(dove);
  const bool daltonici = dove.value(QLatin1String(chiave_daltonici)).toBool();
  pannello_.Azioni().mnuViewDaltonici->setChecked(daltonici);
  colori::Per_Daltonici(daltonici);
}

Finestre::~Finestre() {
  ordine_.Ricorda_Aperte();
  Lascia_Tavolo(false);
  for (const QWidget* finestra : Tutte()) {
    if (finestra != &pannello_) delete finestra;
  }
  delete chiuso_;
}

/// Those that are there. No message box and no file dialog is among them.
std::vector<QWidget*> Finestre::Tutte() const {
  std::vector<QWidget*> tutte;
  for (QWidget* finestra :
       std::initializer_list<QWidget*>{&pannello_, impianto_, editor_, impostazioni_, analogici_,
                                       stati_, tempi_, osserva_, scala_, aiuto_}) {
    if (finestra != nullptr) tutte.push_back(finestra);
  }
  for (const auto& [tipo, finestra] : altre_) {
    if (finestra != nullptr) tutte.push_back(finestra);
  }
  return tutte;
}

void Finestre::Fuoco_A(const QWindow* finestra) {
  const QWidget* ora = nullptr;
  std::vector<QWidget*> tutte = Tutte();
  if (tavolo_) tutte.push_back(&tavolo_->Finestra());
  if (modale_) tutte.push_back(modale_);
  for (const QWidget* candidata : tutte) {
    if (finestra != nullptr && candidata->windowHandle() == finestra) ora = candidata;
  }
  // No window at all: another program. A message box or a menu: no coming and going.
  if (finestra != nullptr && ora == nullptr) return;
  if (ora == &pannello_ && prima_ != nullptr && prima_ != &pannello_) pannello_.Attivata();
  prima_ = ora;
}

FrmMain& Finestre::Editor() {
  Al_Presente();
  return Trova(editor_, [this] {
    Legami_Editor legami;
    legami.Mostra_Pannello = [this] {
      Avanti_Il_Pannello();
      if (tempi_) tempi_->Programma_Caricato();
    };
    legami.Mostra_Debug = [this] { Mostra_Debug(); };
    legami.Mostra_Stampe = [this] { Mostra_Stampe(); };
    legami.Mostra_Scala = [this] { Mostra_Scala(); };
    legami.Mostra_Info = [this] { Mostra_Info(); };
    legami.Mostra_Aiuto = [this](const QString& pagina) { Mostra_Aiuto(guida_.Dir_Help + pagina); };
    legami.File_Usato = [this](const QString& file) {
      if (!menu_file_.Fornito(file)) Ricorda_Cartella(QFileInfo(file).absolutePath());
      Recenti.Usato(file);
    };
    auto* editor = new FrmMain(progetto_, plc_, std::move(legami));
    const Azioni_Editor& azioni = editor->Azioni();
    menu_file_.Metti_In(*azioni.mnuFile, *azioni.mnuFileEnd, *azioni.mnuFileOpen);
    editor->Usa_Simboli(Simboli_Di(esercizio_));
    editor->addActions(pannello_.Comandi_Di_Testo());
    if (pannello_.Pausa != nullptr) {
      auto* tasto = new QShortcut(QKeySequence(QString::fromUtf8(Pausa_Ovunque)), editor);
      QObject::connect(tasto, &QShortcut::activated, pannello_.Pausa, &QAction::trigger);
    }
    for (QWidget* parte : editor->findChildren<QWidget*>()) {
      if (dynamic_cast<AwlEditor*>(parte) != nullptr) testo_.Segui(*parte);
    }
    return editor;
  });
}

void Finestre::Mostra_Editor(Avvio avvio_file) {
  const bool nuova = editor_.isNull();
  Porta_Avanti(Editor());
  if (nuova) editor_->Avvia(avvio_file);
}

void Finestre::Apri_File(const QString& file) {
  Porta_Avanti(Editor());
  editor_->Apri_Questo(file);
}

void Finestre::Mostra_Recuperato(const Copia_Progetto& copia) {
  Porta_Avanti(Editor());
  editor_->Riprendi(copia);
}

void Finestre::Mostra_Impostazioni() {
  Porta_Avanti(Trova(impostazioni_, [this] {
    auto* finestra = new FrmSetPLC(plc_, Sim_Contraves, [this](bool contraves) {
      pannello_.Controlli().Fronte->Sim_I(1).setVisible(!contraves);
      pannello_.Controlli().Fronte->Sim_C().setVisible(contraves);
    });
    Prepara(*finestra, "Index.htm#pannello");
    return finestra;
  }));
}

void Finestre::Mostra_Analogici() {
  Porta_Avanti(Trova(analogici_, [this] {
    auto* finestra = new FrmSimAI(plc_);
    Prepara(*finestra, "Index.htm#pannello");
    return finestra;
  }));
}

/// The windows that show a plant's symbols.
void Finestre::Cambia_Simboli(const Esercizio* impianto) {
  esercizio_ = impianto;
  if (editor_) editor_->Usa_Simboli(Simboli_Di(impianto));
  if (tempi_) tempi_->Riparti(impianto);
  if (osserva_) osserva_->Riparti(impianto);
  if (scala_) scala_->Vista().Nomi_Cambiati();
}

Finestra_Impianto* Finestre::Impianto() const {
  return impianto_;
}

void Finestre::Apri_Impianto(int indice) {
  Al_Presente();
  const bool al_tavolo = tavolo_ != nullptr;
  Separa_Finestre();
  pannello_.setCursor(Qt::WaitCursor);
  auto collegamento = std::make_unique<Collegamento>(
      plc_, impianto_aperto_, Tabella_Esercizi()[static_cast<std::size_t>(indice)],
      [this](Modo_Sportello modo) { pannello_.PLC_Sportello(modo); });
  Collegamento& fili = *collegamento;
  pannello_.Segna_Impianto(indice);
  ordine_.Sta_Per_Aprire();
  Finestra_Impianto& finestra =
      Trova(impianto_, [&] { return new Finestra_Impianto(std::move(collegamento)); });
  finestra.Mostra_Corsa();
  Di_Tasti(finestra);
  finestra.addActions(pannello_.Comandi_Di_Vista());
  finestra.addActions(pannello_.Comandi_Di_Testo());
  finestra.Mostra_Aiuto = [this](const char* pagina) { Mostra_Aiuto(guida_.Dir_Panel + pagina); };
  finestra.Mostra_Tempi = [this] { Mostra_Tempi(); };
  finestra.Verifica = [this] {
    if (Verifica) Verifica();
  };
  Cambia_Simboli(&finestra.Fili().Tabella());
  finestra.Indica_Morsetti = [this](const QStringList& morsetti) {
    pannello_.Controlli().Fronte->Indica(morsetti);
  };
  finestra.Sta_Per_Chiudere = [this] { Al_Presente(); };
  finestra.Chiusa = [this] {
    Lascia_Tavolo(true);
    chiuso_ = impianto_;
    impianto_ = nullptr;  // it goes by itself, and is nobody's plant until then
    pannello_.Segna_Impianto(-1);
    Cambia_Simboli(nullptr);
    if (stati_) stati_->close();
    ordine_.Chiuse();
  };
  // A window that is placed before it is shown has its title bar on the screen. The desktop gives
  // the keyboard to the window that appears last.
  const auto accanto = [&] { Stati().Poni(Twip(finestra.frameGeometry().width()) + 30, 0); };
  accanto();
  Porta_Avanti(Stati());
  Porta_Avanti(finestra);
  accanto();
  fili.Carica();
  ordine_.Aperte(&finestra, *stati_);
  pannello_.unsetCursor();
  if (al_tavolo) Mostra_Tavolo();
}

void Finestre::Mostra_Debug() {
  Mostra_Altra<FrmDebug>("Index.htm#editor", progetto_);
}

/// The ladder names its operands as the plant does.
void Finestre::Mostra_Scala() {
  Porta_Avanti(Trova(scala_, [this] {
    Legami_Scala legami;
    legami.Nome = [this](const std::string& operando) {
      return Simbolo_Impianto(operando, esercizio_);
    };
    const auto aperto = [this] { return editor_ && editor_->isVisible(); };
    legami.Modificabile = aperto;
    legami.Cursore = [this, aperto] { return aperto() ? editor_->Posto_Cursore() : std::nullopt; };
    legami.Vai_A = [this](Posto_Riga posto) {
      if (!editor_) return;
      Porta_Avanti(*editor_);
      editor_->Vai_A(posto);
    };
    legami.Scrivi = [this](int testo, const std::string& byte) {
      if (editor_) editor_->Scrivi_Testo(testo, byte);
    };
    legami.Annulla = [this](int testo, bool ripeti) {
      if (editor_) editor_->Annulla_Testo(testo, ripeti);
    };
    Servizi_Scala servizi;
    servizi.Scegli_Stampante = Scegli_Stampante;
    servizi.Mostra_Aiuto = [this] { Mostra_Aiuto(guida_.Dir_Help + "SCALA.htm"); };
    return new FrmScala(plc_, progetto_, std::move(legami), std::move(servizi));
  }));
}

void Finestre::Mostra_Stampe() {
  Mostra_Modale(new FrmStampe(progetto_, Scegli_Stampante, QApplication::activeWindow()));
}

void Finestre::Mostra_Info() {
  Mostra_Modale(new FrmAbaut(QApplication::activeWindow()));
}

void Finestre::Mostra_Modale(QDialog* dialogo) {
  modale_ = dialogo;
  dialogo->exec();
  delete modale_;  // null when it went with the window under it
}

void Finestre::Mostra_Aiuto(const QString& indirizzo) {
  guida_.Url_Help = indirizzo;
  const bool nuova = aiuto_.isNull();
  Porta_Avanti(Trova(aiuto_, [this] { return new FrmBrowser(guida_); }));
  if (!nuova) aiuto_->Vai(indirizzo);
}

}  // namespace tavorno
