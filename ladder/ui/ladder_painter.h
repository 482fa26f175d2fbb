// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "ladder/flow.h"
#include "ladder/ui/ladder_sheet.h"
#include "widgets/colours.h"

class QPainter;

namespace tavorno {

/// What a network shows besides its drawing.
struct Stato_Rete {
  bool Viva = false;  ///< the CPU runs this network; else flow and numbers are not shown
  Flusso_Rete Flusso;
  QStringList Valori;  ///< by text of the network, "" for none

  bool operator==(const Stato_Rete&) const = default;
};

/// The same for a network of a running CPU.
Stato_Rete Stato_Di(const Rete_Foglio& rete, const Memoria& cpu);

/// Where a text of a network stands, with its number: that of an operand is drawn narrower where it
/// has not the room.
QRectF Posto_Scritta(const Rete_Foglio& rete, const Stato_Rete& stato, std::size_t quale);

/// What is marked in a network, by number of its symbols; -1: nothing.
struct Segni_Rete {
  int Scelto = -1, Fino = -1;  ///< chosen, from one to the other
  int Presente = -1;           ///< the CPU is about to execute it
  bool Rete_Presente = false;
  bool Rete_Scelta = false;
  bool Del_Cursore = false;  ///< the caret of the editor stands in it
};

/// Paints a network whose upper left corner is the origin, in pixels at 100 %. `larghezza` is that
/// of the sheet.
void Dipingi_Rete(QPainter& pittore, const Rete_Foglio& rete, const Stato_Rete& stato,
                  const Segni_Rete& segni, double larghezza, colori::Serie serie);

}  // namespace tavorno
