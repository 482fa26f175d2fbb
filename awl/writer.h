// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "awl/read_error.h"
#include "awl/source.h"

namespace tavorno {

/// A line of the editor as the file holds it: single blanks, no commas between operands.
std::string Norm_Riga(const std::string& riga);
/// Operands with blanks for their commas; three or four commas lose them all, and more throw
/// `Riga_Rifiutata`.
std::string Norm_Operandi(const std::string& testo);

/// A project as the lines of its file, without the further line that ends the file. When it cannot
/// be written `Rifiuto` tells why, without a line of a file, and the lines are those before it.
struct Scrittura {
  std::vector<std::string> Righe;
  Dettaglio_Lettura Rifiuto;

  bool Riuscita() const { return Rifiuto.Perche == Causa::Nessuna; }
};
Scrittura Scrivi_Sorgente(const Sorgente& sorgente);

/// Lines as bytes, each with CR LF.
std::string Byte_Di(std::span<const std::string> righe);

/// The bytes of a project file. Throws `Riga_Rifiutata` for a project that cannot be written.
std::string Byte_Di(const Sorgente& sorgente);

/// The whole project for reading by a person.
std::string Testo_Progetto(const Sorgente& sorgente);

}  // namespace tavorno
