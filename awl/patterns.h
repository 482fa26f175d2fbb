// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "awl/references.h"
#include "awl/text_edits.h"

// Skeletons of networks that the editor puts in, with operands that the project does not use yet.
namespace tavorno {

/// A line of a skeleton. In the operands "{I1}" stands for the first input that is chosen for it,
/// "{T2}" for its second timer, and so on: I, Q, M, S, T, C, VW.
struct Riga_Schema {
  const char* Istr;
  const char* Operandi;
  const char* Commento;
};

struct Schema {
  const char* Voce;    ///< entry of the menu, UTF-8
  const char* Aiuto;   ///< what it does, UTF-8
  const char* Titolo;  ///< of its network
  std::span<const Riga_Schema> Righe;
};

std::span<const Schema> Tabella_Schemi();

/// Puts a skeleton in below line `linea` of a text, or in its place where it is empty: as a network
/// of its own, or into the network around the line where that has no instruction yet. `usati` are
/// the references of the whole project; its operands are left alone as long as there are others.
Cambio_Linee Metti_Schema(const Schema& schema, std::string_view testo, int linea,
                          std::span<const Riferimento> usati);

}  // namespace tavorno
