// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/child_windows.h"

#include <QApplication>
#include <QWindow>
#include <initializer_list>

#include "awl/ui/main_window.h"
#include "panel/controls/cpu_front.h"
#include "panel/documents/about_window.h"
#include "panel/documents/print_window.h"
#include "panel/windows/analog_window.h"
#include "panel/windows/debug_window.h"
#include "panel/windows/settings_window.h"
#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

/// Brings a window to the front, from the task bar too.
void Porta_Avanti(QWidget& finestra) {
  finestra.setWindowState(finestra.windowState() & ~Qt::WindowMinimized);
  finestra.show();
  finestra.raise();
  finestra.activateWindow();
}

/// Makes a window when it is not there.
template <class Finestra, class Crea>
Finestra& Trova(QPointer<Finestra>& finestra, Crea crea) {
  if (!finestra) {
    finestra = crea();
    finestra->setAttribute(Qt::WA_DeleteOnClose);
  }
  return *finestra;
}

template <class Finestra, class Crea>
void Mostra(QPointer<Finestra>& finestra, Crea crea) {
  Porta_Avanti(Trova(finestra, crea));
}

}  // namespace

Finestre::Finestre(FrmPLC& pannello, Plc& plc, Progetto& progetto, Guida& guida)
    : pannello_(pannello), plc_(plc), progetto_(progetto), guida_(guida) {
  Legami_Pannello legami;
  legami.Mostra_Editor = [this](Avvio avvio_file) { Mostra_Editor(avvio_file); };
  legami.Mostra_Impostazioni = [this] { Mostra_Impostazioni(); };
  legami.Mostra_Analogici = [this] { Mostra_Analogici(); };
  legami.Mostra_Stati = [this] { Mostra_Stati(); };
  legami.Mostra_Info = [this] { Mostra_Info(); };
  legami.Mostra_Impianto = [this](int indice) { Apri_Impianto(indice); };
  legami.Mostra_Aiuto = [this](const char* pagina) { Mostra_Aiuto(guida_.Dir_Help + pagina); };
  pannello_.Collega_Finestre(std::move(legami));
  QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &ascolto_,
                   [this](const QWindow* finestra) { Fuoco_A(finestra); });
}

Finestre::~Finestre() {
  for (const QWidget* finestra : Tutte()) {
    if (finestra != &pannello_) delete finestra;
  }
}

/// Those that are there. No message box and no file dialog is among them.
std::vector<QWidget*> Finestre::Tutte() const {
  std::vector<QWidget*> tutte;
  for (QWidget* finestra : std::initializer_list<QWidget*>{
           &pannello_, impianto_, editor_, impostazioni_, analogici_, stati_, debug_, aiuto_}) {
    if (finestra != nullptr) tutte.push_back(finestra);
  }
  return tutte;
}

void Finestre::Fuoco_A(const QWindow* finestra) {
  const QWidget* ora = nullptr;
  std::vector<QWidget*> tutte = Tutte();
  if (modale_) tutte.push_back(modale_);
  for (const QWidget* candidata : tutte) {
    if (finestra != nullptr && candidata->windowHandle() == finestra) ora = candidata;
  }
  // No window at all: another program. A message box or a menu: no coming and going.
  if (finestra != nullptr && ora == nullptr) return;
  if (ora == &pannello_ && prima_ != nullptr && prima_ != &pannello_) pannello_.Attivata();
  prima_ = ora;
}

void Finestre::Mostra_Editor(Avvio avvio_file) {
  const bool nuova = editor_.isNull();
  Mostra(editor_, [this] {
    Legami_Editor legami;
    legami.Mostra_Pannello = [this] {
      Porta_Avanti(pannello_);
      pannello_.Attivata();
    };
    legami.Mostra_Debug = [this] { Mostra_Debug(); };
    legami.Mostra_Stampe = [this] { Mostra_Stampe(); };
    legami.Mostra_Info = [this] { Mostra_Info(); };
    legami.Mostra_Aiuto = [this](const QString& pagina) { Mostra_Aiuto(guida_.Dir_Help + pagina); };
    return new FrmMain(progetto_, plc_, std::move(legami));
  });
  if (nuova) editor_->Avvia(avvio_file);
}

void Finestre::Mostra_Impostazioni() {
  Mostra(impostazioni_, [this] {
    return new FrmSetPLC(plc_, Sim_Contraves, [this](bool contraves) {
      pannello_.Controlli().Fronte->Sim_I(1).setVisible(!contraves);
      pannello_.Controlli().Fronte->Sim_C().setVisible(contraves);
    });
  });
}

void Finestre::Mostra_Analogici() {
  Mostra(analogici_, [this] { return new FrmSimAI(plc_); });
}

void Finestre::Mostra_Stati() {
  Porta_Avanti(Stati());
}

FrmStatiL& Finestre::Stati() {
  return Trova(stati_, [this] { return new FrmStatiL(plc_, &pannello_); });
}

void Finestre::Apri_Impianto(int indice) {
  pannello_.setCursor(Qt::WaitCursor);
  auto collegamento = std::make_unique<Collegamento>(
      plc_, impianto_aperto_, Tabella_Esercizi()[static_cast<std::size_t>(indice)],
      [this](Modo_Sportello modo) { pannello_.PLC_Sportello(modo); });
  Collegamento& fili = *collegamento;
  pannello_.Segna_Impianto(indice);
  Mostra(impianto_, [&] { return new Finestra_Impianto(std::move(collegamento)); });
  Finestra_Impianto& finestra = *impianto_;
  finestra.Mostra_Aiuto = [this](const char* pagina) { Mostra_Aiuto(guida_.Dir_Panel + pagina); };
  finestra.Chiusa = [this] {
    pannello_.Segna_Impianto(-1);
    if (stati_) stati_->close();
  };
  // A window that is placed before it is shown has its title bar on the screen.
  Stati().Poni(Twip(finestra.frameGeometry().width()) + 30, 0);
  Mostra_Stati();
  fili.Carica();
  finestra.activateWindow();
  pannello_.unsetCursor();
}

void Finestre::Mostra_Debug() {
  Mostra(debug_, [this] { return new FrmDebug(progetto_); });
}

void Finestre::Mostra_Stampe() {
  FrmStampe stampe(progetto_, Scegli_Stampante, QApplication::activeWindow());
  Mostra_Modale(stampe);
}

void Finestre::Mostra_Info() {
  FrmAbaut info(QApplication::activeWindow());
  Mostra_Modale(info);
}

void Finestre::Mostra_Modale(QDialog& dialogo) {
  modale_ = &dialogo;
  dialogo.exec();
}

void Finestre::Mostra_Aiuto(const QString& indirizzo) {
  guida_.Url_Help = indirizzo;
  const bool nuova = aiuto_.isNull();
  Mostra(aiuto_, [this] { return new FrmBrowser(guida_); });
  if (!nuova) aiuto_->Vai(indirizzo);
}

}  // namespace tavorno
