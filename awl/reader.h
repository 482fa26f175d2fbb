// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "awl/line_splitter.h"
#include "awl/read_error.h"

namespace tavorno {

/// What a read gives. When it was given up `Rifiuto` tells why and `Letta` holds what came before.
struct Lettura {
  Sorgente Letta;
  Dettaglio_Lettura Rifiuto;
  std::vector<Diagnosi> Rilievi;  ///< on single lines, in the order of the file
  int Fuori = 0;        ///< lines of text outside of all blocks, which are dropped; not comments
  int Prima_Fuori = 0;  ///< the first of them, from 1
  std::string Testo_Fuori;        ///< of that line, in the code page
  std::vector<Riga_Src> Tabella;  ///< for the next read, which may find something there

  bool Riuscita() const { return Rifiuto.Perche == Causa::Nessuna; }
};

/// Reads the bytes of a project file. Lines end in CR LF, LF or CR. A block's keyword that is the
/// last line and stands outside of all blocks is not obeyed. `prima` is the `Tabella` of the
/// read before, empty for none.
Lettura Leggi_Sorgente(std::string_view byte, Commenti_Listato commenti = {},
                       std::vector<Riga_Src> prima = {});

}  // namespace tavorno
