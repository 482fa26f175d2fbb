// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "plants/io_tables.h"

namespace tavorno {

/// What hangs on a terminal of the PLC, in the order of the diagrams' legend.
enum class Apparecchio : std::uint8_t {
  Contatto,
  Pulsante,
  Fungo,
  Selettore,
  Selettore_Chiave,
  Fine_Corsa,
  Ausiliario,
  Termico,
  Fotocellula,
  Livello,
  Flusso,
  Termostato,
  Trasduttore,
  Analogico_Ingresso,
  Bobina,
  Elettrovalvola,
  Lampada,
  Carico,
  Analogico_Uscita,
};

/// The name in the legend, UTF-8.
const char* Nome_Apparecchio(Apparecchio apparecchio);

/// To which rail of the diagram a terminal belongs.
enum class Verso_Morsetto : std::uint8_t { Ingresso, Ingresso_Analogico, Uscita, Uscita_Analogica };

struct Dispositivo {
  Apparecchio Tipo;
  Verso_Morsetto Dove;
  bool Chiuso_A_Riposo;  ///< contacts only: normally closed
  /// Lamps: letter code of the colour ("RD"); analog: the range ("0-10 V"); else "".
  const char* Dettaglio;
};

/// Tells from the address, the letters of the symbol and the words of the comment what a row of a
/// table of inputs and outputs is.
Dispositivo Riconosci(const Riga_IO& riga);

}  // namespace tavorno
