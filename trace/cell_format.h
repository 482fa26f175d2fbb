// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "trace/address.h"

namespace tavorno {

/// How the value of a cell is written.
enum class Formato_Cella : std::uint8_t {
  Con_Segno,
  Decimale,  ///< the bits of the cell as a number without sign
  Esadecimale,
  Binario,
};

struct Nome_Formato {
  Formato_Cella Codice;
  const char* Nome;  ///< Italian, UTF-8
};
inline constexpr std::array<Nome_Formato, 4> nomi_formati = {
    {{Formato_Cella::Con_Segno, "con segno"},
     {Formato_Cella::Decimale, "decimale"},
     {Formato_Cella::Esadecimale, "esadecimale"},
     {Formato_Cella::Binario, "binario"}}};

/// "−5" as "-5", "65531", "16#FFFB", "2#1111_1111_1111_1011". Accumulators are decimal in each.
std::string Testo_Cella(const Indirizzo& indirizzo, double valore, Formato_Cella formato);

/// A value as somebody types it: a number with or without sign, "16#FF", "2#1010", and without its
/// prefix in the digits of the format. Empty when it is none; whether it fits the cell is not
/// looked at.
std::optional<double> Leggi_Valore(const Indirizzo& indirizzo, const std::string& testo,
                                   Formato_Cella formato);

}  // namespace tavorno
