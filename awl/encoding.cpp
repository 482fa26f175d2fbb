// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/encoding.h"

#include <algorithm>

#include "plc/codepage.h"

namespace tavorno {

namespace {

constexpr std::string_view segno_utf8 = "\xEF\xBB\xBF";

unsigned Valore(char byte) {
  return static_cast<unsigned char>(byte);
}

/// Bytes behind the first one of a character; -1 for a byte that begins none.
int Seguito(unsigned primo) {
  if (primo < 0x80) return 0;
  if (primo >= 0xC2 && primo <= 0xDF) return 1;
  if (primo >= 0xE0 && primo <= 0xEF) return 2;
  return primo >= 0xF0 && primo <= 0xF4 ? 3 : -1;
}

bool Utf8_Con_Accenti(std::string_view byte) {
  bool accenti = false;
  for (std::size_t i = 0; i < byte.size(); ++i) {
    const int seguito = Seguito(Valore(byte[i]));
    if (seguito < 0 || i + static_cast<std::size_t>(seguito) >= byte.size()) return false;
    for (int k = 0; k < seguito; ++k)
      if ((Valore(byte[++i]) & 0xC0U) != 0x80) return false;
    accenti = accenti || seguito > 0;
  }
  return accenti;
}

void Aggiungi_Utf8(std::string& testo, unsigned codice) {
  const auto seguito = [&](unsigned bit) {
    testo += static_cast<char>(0x80U | ((codice >> bit) & 0x3FU));
  };
  if (codice < 0x80) {
    testo += static_cast<char>(codice);
  } else if (codice < 0x800) {
    testo += static_cast<char>(0xC0U | codice >> 6);
    seguito(0);
  } else if (codice < 0x10000) {
    testo += static_cast<char>(0xE0U | codice >> 12);
    seguito(6);
    seguito(0);
  } else {
    testo += static_cast<char>(0xF0U | codice >> 18);
    seguito(12);
    seguito(6);
    seguito(0);
  }
}

/// Behind its mark; halves of pairs that stand alone become "?".
std::string Utf8_Da_Utf16(std::string_view byte, bool basso_prima) {
  std::string testo;
  const auto unita = [&](std::size_t i) {
    const unsigned a = Valore(byte[i]);
    const unsigned b = Valore(byte[i + 1]);
    return basso_prima ? b << 8 | a : a << 8 | b;
  };
  for (std::size_t i = 2; i + 1 < byte.size(); i += 2) {
    unsigned codice = unita(i);
    if (codice >= 0xD800 && codice < 0xDC00 && i + 3 < byte.size() &&
        (unita(i + 2) & 0xFC00U) == 0xDC00) {
      codice = 0x10000 + ((codice & 0x3FFU) << 10 | (unita(i + 2) & 0x3FFU));
      i += 2;
    } else if ((codice & 0xF800U) == 0xD800) {
      codice = '?';
    }
    Aggiungi_Utf8(testo, codice);
  }
  return testo;
}

Testo_Letto Convertito(std::string_view utf8, Codifica era) {
  Testo_Letto letto{Da_Utf8(utf8), era, 0};
  const auto domande = [](std::string_view testo) {
    return static_cast<int>(std::ranges::count(testo, '?'));
  };
  letto.Persi = domande(letto.Byte) - domande(utf8);
  return letto;
}

}  // namespace

Testo_Letto Riconosci(std::string_view byte) {
  if (byte.starts_with(segno_utf8))
    return Convertito(byte.substr(segno_utf8.size()), Codifica::Utf8);
  if (byte.starts_with("\xFF\xFE") || byte.starts_with("\xFE\xFF"))
    return Convertito(Utf8_Da_Utf16(byte, byte.starts_with("\xFF")), Codifica::Utf16);
  return {std::string(byte), Utf8_Con_Accenti(byte) ? Codifica::Forse_Utf8 : Codifica::Pagina, 0};
}

Testo_Letto Da_Utf8_Senza_Segno(std::string_view byte) {
  return Convertito(byte, Codifica::Utf8);
}

}  // namespace tavorno
