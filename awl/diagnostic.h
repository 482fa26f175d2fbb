// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "plc/hooks.h"

namespace tavorno {

/// A line of the project's texts.
struct Posto_Riga {
  int Testo = 0;  ///< 0 the Main text, else the row of the procedure in `Tab_SBR`
  int Linea = 0;  ///< from 0

  bool operator==(const Posto_Riga&) const = default;
};

enum class Gravita : std::uint8_t {
  Errore,        ///< the program cannot be loaded
  Avvertimento,  ///< it can be loaded, and will not do what its author means
  Suggerimento,  ///< of the text while it is being written; no compile says it
};

/// Who found it.
enum class Genere : std::uint8_t {
  Riga,              ///< the line checker
  Tre_Operandi,      ///< the reader
  Quattro_Operandi,  ///< the reader
  Salti,             ///< the link pass of the jumps
  Procedure,         ///< the link pass of the calls
  Sezioni,           ///< the link pass of the SCR sections
  Testo,             ///< a look at the text while it is being written
};

/// What there is to say of one line. Listing, boxes, marks and reports are drawn from these
/// records; no text is ever taken apart again.
struct Diagnosi {
  Gravita Grado = Gravita::Errore;
  Genere Di = Genere::Riga;
  Posto_Riga Posto;
  int Colonna = 0;    ///< of the piece that is meant, in characters from 0
  int Lunghezza = 0;  ///< in characters; 0 when the line does not stand in the text (MEND, RET)
  int Riga = -1;      ///< row of the CPU's program; -1 for a line that is no row
  /// Of the line checker, as the listing tells it; 1 from a link pass, 0 from anybody else.
  int Stato = 0;
  std::string Testo;      ///< the line, UTF-8
  std::string Messaggio;  ///< in Italian, UTF-8; the line checker's begin with "-> "

  bool operator==(const Diagnosi&) const = default;
};

/// The message without the arrow that the listing puts before it.
std::string Senza_Freccia(const std::string& messaggio);

/// The box that tells of a line that the reader could not take apart.
Avviso Avviso_Di(const Diagnosi& diagnosi);
/// The box of a link pass that found a fault.
Avviso Avviso_Passo(Genere passo);

}  // namespace tavorno
