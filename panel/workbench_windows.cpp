// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of the program as views of a workbench.
#include <QTabWidget>
#include <QTimer>

#include "panel/child_windows.h"
#include "panel/controls/cpu_front.h"
#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"
#include "recorder/ui/diagram_window.h"
#include "recorder/ui/watch_window.h"

namespace tavorno {

void Finestre::Mostra_Tavolo() {
  // What there is keeps its place in the table, what there is not is opened for the workbench
  // alone.
  const auto prendi = [this](auto& finestra, auto crea) -> QWidget* {
    const bool nuova = finestra.isNull();
    QWidget& vista = crea();
    if (nuova) solo_al_tavolo_.emplace_back(&vista);
    return &vista;
  };
  if (!tavolo_) ordine_.Rispetta_Mani();
  Controlli_Pannello& c = pannello_.Controlli();
  const Viste_Tavolo viste{c.Fronte,
                           c.vistaLista,
                           prendi(tempi_, [this]() -> QWidget& { return Tempi(); }),
                           prendi(osserva_, [this]() -> QWidget& { return Osserva(); }),
                           prendi(stati_, [this]() -> QWidget& { return Stati(false); }),
                           impianto_ ? &impianto_->Schede() : nullptr};
  stati_->Lascia_Il_Panel();
  if (!tavolo_) {
    // The panel goes and comes without the user's having been elsewhere.
    prima_ = &pannello_;
    tavolo_ = std::make_unique<Tavolo>(pannello_, impianto_, viste);
    tavolo_->Si_Chiude = [this] {
      if (impianto_) impianto_->close();
    };
    return;
  }
  for (const Riga_Tavolo& riga : Tabella_Tavolo()) {
    QWidget* vista = viste[static_cast<std::size_t>(riga.Chi)];
    if (vista != nullptr && vista->isWindow()) tavolo_->Accogli(riga.Chi, *vista);
  }
  tavolo_->Disponi();
}

void Finestre::Separa_Finestre() {
  Lascia_Tavolo(false);
}

void Finestre::Lascia_Tavolo(bool impianto_chiude) {
  if (!tavolo_) return;
  prima_ = &pannello_;
  tavolo_->Impianto_Chiude = impianto_chiude;
  tavolo_.reset();
  for (const QPointer<QWidget>& vista : solo_al_tavolo_) {
    if (vista) vista->close();
  }
  solo_al_tavolo_.clear();
  if (!impianto_ || impianto_chiude) return;
  Porta_Avanti(*impianto_);
  // The bar of the session may have come meanwhile.
  QTimer::singleShot(0, &ascolto_, [this] {
    if (!tavolo_) ordine_.Cresciuto();
  });
}

/// A view that was asked for while the workbench is there.
void Finestre::Nel_Tavolo(Vista_Tavolo chi, QWidget& vista) {
  if (vista.isWindow()) {
    solo_al_tavolo_.emplace_back(&vista);
    tavolo_->Accogli(chi, vista);
  }
  Porta_Avanti(vista);
  vista.setFocus();
}

/// F1 in a workbench: the page of the view that has the focus. False when it is none.
bool Finestre::Guida_Al_Tavolo() {
  if (!tavolo_) return false;
  const QWidget* a_fuoco = tavolo_->Finestra().focusWidget();
  const auto in = [a_fuoco](const QWidget* vista) {
    return vista != nullptr && a_fuoco != nullptr &&
           (vista == a_fuoco || vista->isAncestorOf(a_fuoco));
  };
  if (in(tempi_)) return Mostra_Aiuto(guida_.Dir_Help + "Tempi.htm"), true;
  if (in(osserva_)) return Mostra_Aiuto(guida_.Dir_Help + "Tempi.htm#osservazione"), true;
  if (in(stati_)) return Mostra_Aiuto(guida_.Dir_Help + "Index.htm#stati"), true;
  if (impianto_ && (in(impianto_) || in(&impianto_->Schede())))
    return Mostra_Aiuto(guida_.Dir_Panel + esercizio_->Pagina), true;
  return false;
}

}  // namespace tavorno
