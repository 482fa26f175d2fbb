// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// A byte written as eight characters '0' and '1', in its two orders.
namespace tavorno {

namespace dettaglio {
constexpr auto Tavola_Testi(bool bit0_a_sinistra) {
  std::array<std::array<char, 8>, 256> tavola{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    for (unsigned bit = 0; bit < 8; ++bit)
      tavola[byte][bit0_a_sinistra ? bit : 7 - bit] = (byte >> bit & 1) != 0 ? '1' : '0';
  }
  return tavola;
}
inline constexpr auto testi_bit = Tavola_Testi(true);
inline constexpr auto testi_lettura = Tavola_Testi(false);
}  // namespace dettaglio

/// The bit text of a byte: leftmost character bit 0.
inline std::string_view Testo_Bit(std::uint8_t byte) {
  return {dettaglio::testi_bit[byte].data(), 8};
}

/// The same byte in reading order: leftmost character bit 7.
inline std::string_view Testo_Lettura(std::uint8_t byte) {
  return {dettaglio::testi_lettura[byte].data(), 8};
}

/// Equality of two texts that are mostly those of a byte: eight characters are one comparison.
inline bool Stesso_Byte(std::string_view uno, std::string_view altro) {
  constexpr std::size_t bit = 8;
  if (uno.size() != altro.size()) return false;
  return uno.size() == bit ? std::memcmp(uno.data(), altro.data(), bit) == 0 : uno == altro;
}

/// Sets `testo` to the reading-order text of a byte. In place, because markers and outputs are
/// written again and again during a scan.
inline void Scrivi_Lettura(std::string& testo, std::uint8_t byte) {
  testo.resize(8);
  Testo_Lettura(byte).copy(testo.data(), 8);
}

/// The digit at a place of a bit text; 0 for anything else and behind its end.
inline std::uint8_t Cifra(std::string_view testo, unsigned posto) {
  if (posto >= testo.size() || testo[posto] < '0' || testo[posto] > '9') return 0;
  return static_cast<std::uint8_t>(testo[posto] - '0');
}

/// The byte of eight cells that hold 0 or 1 each, cell 0 the lowest bit. One multiplication gathers
/// the eight lowest bits, since markers and outputs are packed again and again during a scan.
inline std::uint8_t Byte_Di_Celle(const std::uint8_t* celle) {
  static_assert(std::endian::native == std::endian::little);
  std::uint64_t otto = 0;
  std::memcpy(&otto, celle, sizeof otto);
  return static_cast<std::uint8_t>(((otto & 0x0101010101010101U) * 0x0102040810204080U) >> 56);
}

}  // namespace tavorno
