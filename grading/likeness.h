// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavorno {

/// How far two hand-ins are the same; it is for a teacher to judge what that means.
enum class Somiglianza : std::uint8_t {
  Uguali,      ///< byte for byte
  Riordinate,  ///< but for comments, titles, names of procedures and the order of networks
  Rinominate,  ///< and but for which markers, timers, counters and memory cells are used
};

/// What a hand-in is known by at each of these degrees; empty texts: it has no instruction.
struct Firma {
  std::string Byte, Righe, Nomi;
};

/// Of the bytes of a project file. What cannot be read has an empty one.
Firma Firma_Di(std::string_view byte);

/// The texts of a project file, one procedure after the other, in UTF-8 with LF; what could be
/// read.
std::string Programma_In_Chiaro(std::string_view byte);

/// Hand-ins that are alike, two or more.
struct Gruppo_Simili {
  Somiglianza Come = Somiglianza::Uguali;  ///< the closest that holds between all of them
  std::vector<std::size_t> Quali;          ///< places in the list, ascending
};

/// The groups, by their first member. A hand-in stands in one group at most.
std::vector<Gruppo_Simili> Consegne_Simili(const std::vector<Firma>& firme);

}  // namespace tavorno
