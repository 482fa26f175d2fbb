// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <memory>
#include <vector>

#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"

namespace tavorno {

/// The indices of the exercises that have a plant.
inline std::vector<int> Con_Impianto() {
  std::vector<int> indici;
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    if (esercizio.Crea != nullptr) indici.push_back(esercizio.Indice);
  }
  return indici;
}

/// One exercise open in its host window, on a virtual clock, without a panel.
struct Banco_Host {
  Orologio orologio;
  Plc plc{orologio};
  Stato_Impianto stato;
  std::vector<int> sportello;  ///< modes that the panel's cover was told
  std::unique_ptr<Finestra_Impianto> finestra;

  explicit Banco_Host(int indice) {
    finestra = std::make_unique<Finestra_Impianto>(std::make_unique<Collegamento>(
        plc, stato, Tabella_Esercizi()[static_cast<std::size_t>(indice)],
        [this](Modo_Sportello modo) { sportello.push_back(static_cast<int>(modo)); }));
    finestra->Fili().Carica();
    finestra->show();
  }

  Quadro& Disegno() { return finestra->Disegno(); }
  Impianto& Macchina() { return finestra->Fili().Macchina(); }
  QPoint Centro(const char* figura) {
    return Disegno().Posto(Macchina().Disegno[figura]).center().toPoint();
  }
  template <class Controllo = QWidget>
  Controllo& Trova(const QString& nome) {
    auto* controllo = finestra->findChild<Controllo*>(nome);
    EXPECT_NE(controllo, nullptr) << nome.toStdString();
    return *controllo;
  }
};

}  // namespace tavorno
