// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include "awl/project.h"
#include "panel/documents/browser_window.h"
#include "panel/panel_window.h"
#include "plants/link.h"
#include "plc/plc.h"

namespace tavorno {

class FrmStatiL;

/// The windows beside the panel. Each is made when it is first asked for and thrown away when it is
/// closed, so it always starts from its defaults.
class Finestre {
 public:
  Finestre(FrmPLC& pannello, Plc& plc, Progetto& progetto, Guida& guida);
  ~Finestre();
  Finestre(const Finestre&) = delete;
  Finestre& operator=(const Finestre&) = delete;

  void Mostra_Editor(int avvio_file);
  void Mostra_Impostazioni();
  void Mostra_Analogici();
  void Mostra_Stati();
  void Mostra_Debug();
  void Mostra_Stampe();
  void Mostra_Info();
  /// The host window of an exercise with the status window at its right. One at a time.
  void Apri_Impianto(int indice);
  /// `indirizzo`: the page with its directory.
  void Mostra_Aiuto(const QString& indirizzo);

  std::int16_t Sim_Contraves = 0;  ///< -1 while the thumbwheel stands in for the second switch row

 private:
  FrmStatiL& Stati();

  FrmPLC& pannello_;
  Plc& plc_;
  Progetto& progetto_;
  Guida& guida_;
  Stato_Impianto impianto_aperto_;
  QPointer<QWidget> impianto_, editor_, impostazioni_, analogici_, stati_, debug_, aiuto_;
};

}  // namespace tavorno
