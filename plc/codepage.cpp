// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tavorno {

namespace {

// Bytes 0x80..0x9F; the others are their own Unicode number.
constexpr std::array<char32_t, 32> alti = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t Unicode(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? alti[byte - 0x80U] : byte;
}

char Byte(char32_t carattere) {
  if (carattere < 0x80 || (carattere >= 0xA0 && carattere <= 0xFF))
    return static_cast<char>(carattere);
  const auto* trovato = std::find(alti.begin(), alti.end(), carattere);
  return trovato == alti.end() ? '?' : static_cast<char>(0x80 + (trovato - alti.begin()));
}

// Length of the well-formed sequence at the start of `testo` and its character; 0 when there is
// none.
int Sequenza(std::string_view testo, char32_t& carattere) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(testo[i]); };
  const unsigned primo = byte(0);
  if (primo < 0x80) {
    carattere = primo;
    return 1;
  }
  const int lunghezza = primo >= 0xF0 ? 4 : primo >= 0xE0 ? 3 : 2;
  static constexpr std::array<char32_t, 5> minimo = {0, 0, 0x80, 0x800, 0x10000};
  if (primo < 0xC2 || primo > 0xF4 || testo.size() < static_cast<std::size_t>(lunghezza)) return 0;
  carattere = primo & (0xFFU >> (lunghezza + 1));
  for (int i = 1; i < lunghezza; ++i) {
    if ((byte(static_cast<std::size_t>(i)) & 0xC0U) != 0x80) return 0;
    carattere = carattere << 6 | (byte(static_cast<std::size_t>(i)) & 0x3FU);
  }
  const bool valido = carattere >= minimo[static_cast<std::size_t>(lunghezza)] &&
                      carattere <= 0x10FFFF && (carattere < 0xD800 || carattere > 0xDFFF);
  return valido ? lunghezza : 0;
}

}  // namespace

std::string A_Utf8(std::string_view byte) {
  std::string utf8;
  utf8.reserve(byte.size() + byte.size() / 8);
  for (const char c : byte) {
    const char32_t u = Unicode(static_cast<unsigned char>(c));
    if (u < 0x80) {
      utf8 += static_cast<char>(u);
    } else if (u < 0x800) {
      utf8 += static_cast<char>(0xC0 | u >> 6);
      utf8 += static_cast<char>(0x80 | (u & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | u >> 12);
      utf8 += static_cast<char>(0x80 | (u >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (u & 0x3F));
    }
  }
  return utf8;
}

std::string Da_Utf8(std::string_view utf8) {
  std::string byte;
  byte.reserve(utf8.size());
  while (!utf8.empty()) {
    char32_t carattere = 0;
    const int lunghezza = Sequenza(utf8, carattere);
    byte += lunghezza == 0 ? '?' : Byte(carattere);
    utf8.remove_prefix(static_cast<std::size_t>(std::max(1, lunghezza)));
  }
  return byte;
}

std::string Maiuscole(std::string_view byte) {
  std::string testo(byte);
  for (char& c : testo) {
    const auto b = static_cast<unsigned char>(c);
    if ((b >= 'a' && b <= 'z') || (b >= 0xE0 && b <= 0xFE && b != 0xF7))
      c = static_cast<char>(b - 0x20);
    else if (b == 0x9A || b == 0x9C || b == 0x9E)
      c = static_cast<char>(b - 0x10);
    else if (b == 0xFF)
      c = static_cast<char>(0x9F);
  }
  return testo;
}

}  // namespace tavorno
