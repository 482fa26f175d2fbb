// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/markup.h"

#include <algorithm>

namespace tavorno {

namespace {

bool Continua(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

/// Length of the character at a place; 0 where there is none that UTF-8 allows.
std::size_t Carattere(const std::string& testo, std::size_t posto) {
  const auto byte = [&](std::size_t n) { return static_cast<unsigned char>(testo[posto + n]); };
  const unsigned primo = byte(0);
  const std::size_t lungo = primo < 0x80   ? 1
                            : primo < 0xC2 ? 0
                            : primo < 0xE0 ? 2
                            : primo < 0xF0 ? 3
                            : primo < 0xF5 ? 4
                                           : 0;
  if (lungo == 0 || posto + lungo > testo.size()) return 0;
  for (std::size_t n = 1; n < lungo; ++n) {
    if (!Continua(testo[posto + n])) return 0;
  }
  const unsigned secondo = lungo > 1 ? byte(1) : 0;
  const bool vietato = (primo == 0xE0 && secondo < 0xA0) || (primo == 0xED && secondo > 0x9F) ||
                       (primo == 0xF0 && secondo < 0x90) || (primo == 0xF4 && secondo > 0x8F);
  return vietato ? 0 : lungo;
}

}  // namespace

std::string Utf8_Valido(const std::string& testo) {
  std::string buono;
  for (std::size_t posto = 0; posto < testo.size();) {
    const std::size_t lungo = Carattere(testo, posto);
    buono += lungo > 0 ? testo.substr(posto, lungo) : "?";
    posto += std::max<std::size_t>(lungo, 1);
  }
  return buono;
}

std::string In_Xml(const std::string& testo) {
  std::string xml;
  for (const char c : Utf8_Valido(testo)) {
    switch (c) {
      case '&':
        xml += "&amp;";
        break;
      case '<':
        xml += "&lt;";
        break;
      case '>':
        xml += "&gt;";
        break;
      case '"':
        xml += "&quot;";
        break;
      case '\n':
      case '\t':
        xml += c;
        break;
      default:
        xml += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
    }
  }
  return xml;
}

std::string In_Csv(const std::string& testo) {
  std::string cella = testo;
  std::ranges::replace_if(
      cella, [](char c) { return c == '\n' || c == '\r'; }, ' ');
  if (!cella.empty() && std::string("=+-@").find(cella.front()) != std::string::npos)
    cella.insert(cella.begin(), '\'');
  if (cella.find_first_of(";\"") == std::string::npos) return cella;
  std::string doppie = "\"";
  for (const char c : cella) {
    if (c == '"') doppie += '"';
    doppie += c;
  }
  return doppie + "\"";
}

std::size_t Lunghezza_Utf8(const std::string& testo) {
  return static_cast<std::size_t>(
      std::ranges::count_if(testo, [](char c) { return !Continua(c); }));
}

std::string Primi_Utf8(const std::string& testo, std::size_t quanti) {
  std::size_t fine = 0;
  while (fine < testo.size() && (quanti > 0 || Continua(testo[fine]))) {
    if (!Continua(testo[fine])) --quanti;
    ++fine;
  }
  return testo.substr(0, fine);
}

}  // namespace tavorno
