// SPDX-License-Identifier: GPL-3.0-or-later
// Status, timing diagram, watch: the windows that a workbench can take in.
#include <QScreen>

#include "panel/child_windows.h"
#include "panel/windows/analog_window.h"
#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"
#include "recorder/ui/diagram_window.h"
#include "recorder/ui/watch_window.h"

namespace tavorno {

void Finestre::Mostra_Stati() {
  if (tavolo_) return Nel_Tavolo(Vista_Tavolo::Stati, Stati(false));
  const bool nuova = stati_.isNull();
  if (nuova) ordine_.Sta_Per_Aprire();
  Porta_Avanti(Stati());
  if (nuova) ordine_.Aperte(impianto_, *stati_);
}

FrmStatiL& Finestre::Stati(bool col_pannello) {
  return Trova(stati_, [this, col_pannello] {
    auto* finestra = new FrmStatiL(plc_, col_pannello ? &pannello_ : nullptr);
    finestra->addActions(pannello_.Comandi_Di_Vista());
    Segui_Testo(*finestra);
    Prepara(*finestra, "Index.htm#stati");
    QObject::connect(finestra, &QObject::destroyed, &ascolto_, [this] {
      if (!impianto_) ordine_.Chiuse();
    });
    return finestra;
  });
}

FrmTempi& Finestre::Tempi() {
  return Trova(tempi_, [this] {
    auto* nuovo = new FrmTempi(plc_, esercizio_);
    Di_Tasti(*nuovo);
    nuovo->addActions(pannello_.Comandi_Di_Vista());
    Segui_Testo(*nuovo);
    nuovo->Mostra_Aiuto = [this] { Mostra_Aiuto(guida_.Dir_Help + "Tempi.htm"); };
    nuovo->Rileggi = [this](const std::vector<Segnale>& segnali) {
      return Rileggi ? Rileggi(segnali) : nullptr;
    };
    nuovo->Riempi();
    nuovo->Riporta = [this](std::int64_t ms) {
      if (Torna_A) Torna_A(ms);
    };
    nuovo->Chi_E_Stato = [this](std::int64_t ms, const std::string& indirizzo) {
      if (Chi_E_Stato) Chi_E_Stato(ms, indirizzo);
    };
    return nuovo;
  });
}

void Finestre::Mostra_Tempi() {
  if (tavolo_) return Nel_Tavolo(Vista_Tavolo::Tempi, Tempi());
  const bool nuova = tempi_.isNull();
  FrmTempi& finestra = Tempi();
  // At the lower border of the screen, where it hides least of the others.
  const QRect schermo = pannello_.screen()->availableGeometry();
  if (nuova) finestra.move(schermo.left(), schermo.bottom() - finestra.height() - 40);
  Porta_Avanti(finestra);
}

std::optional<std::int64_t> Finestre::Cursore_Del_Diagramma() const {
  if (!tempi_) return {};
  const Diagramma_Tempi& diagramma = tempi_->Dati();
  return diagramma.Posto(diagramma.Attivo);
}

void Finestre::Racconta_Al_Diagramma(const QString& messaggio) {
  if (tempi_) tempi_->Racconta(messaggio);
}

void Finestre::Altra_Seduta() {
  if (tempi_) tempi_->Altra_Seduta(esercizio_);
}

void Finestre::Specchia() {
  if (tempi_) tempi_->Aggiorna();
  if (osserva_) osserva_->Aggiorna();
  if (analogici_) analogici_->Specchia();
}

FrmOsserva& Finestre::Osserva() {
  return Trova(osserva_, [this] {
    auto* finestra = new FrmOsserva(plc_, esercizio_);
    finestra->addActions(pannello_.Comandi_Di_Vista());
    Segui_Testo(*finestra);
    Prepara(*finestra, "Tempi.htm#osservazione");
    return finestra;
  });
}

void Finestre::Mostra_Osserva() {
  if (tavolo_) return Nel_Tavolo(Vista_Tavolo::Osserva, Osserva());
  Porta_Avanti(Osserva());
}

}  // namespace tavorno
