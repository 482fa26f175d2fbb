// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/cell_format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace tavorno {

namespace {

/// Bits of a cell; 0 for one that has none.
int Larghezza(const Indirizzo& indirizzo, double valore) {
  const Riga_Area& area = Riga_Di(indirizzo.Dove);
  if (area.Contenuto == Cella::Reale) return 0;
  if (area.Bit > 0 || (!area.Preset.empty() && indirizzo.Quale == Parte_Cella::Bit)) return 1;
  if (area.Contenuto == Cella::Byte) return 8;
  // Analog words have 32 bits, and mean 16 of them.
  const bool corta = indirizzo.Dove != Area::VD && valore >= -32768 && valore <= 32767;
  return corta ? 16 : 32;
}

std::string Gruppi(std::uint64_t bit, int quanti) {
  std::string testo;
  for (int n = quanti - 1; n >= 0; --n) {
    testo += (bit >> static_cast<unsigned>(n) & 1U) != 0 ? '1' : '0';
    if (n > 0 && n % 4 == 0) testo += '_';
  }
  return testo;
}

std::optional<double> In_Base(std::string cifre, int base) {
  std::erase(cifre, '_');
  std::uint64_t numero = 0;
  const auto [fine, errore] =
      std::from_chars(cifre.data(), cifre.data() + cifre.size(), numero, base);
  if (errore != std::errc{} || fine != cifre.data() + cifre.size()) return {};
  if (numero > UINT32_MAX) return {};
  return static_cast<double>(numero);
}

/// The bits of a cell with a sign, where it has one.
double Con_Segno(const Indirizzo& indirizzo, double bit) {
  const Riga_Area& area = Riga_Di(indirizzo.Dove);
  if (area.Minimo >= 0) return bit;
  const bool lunga = indirizzo.Dove == Area::VD;
  const double giro = lunga ? 4294967296.0 : 65536.0;
  return bit >= giro / 2 && bit < giro ? bit - giro : bit;
}

}  // namespace

std::string Testo_Cella(const Indirizzo& indirizzo, double valore, Formato_Cella formato) {
  char testo[48];
  const int larga = Larghezza(indirizzo, valore);
  if (larga == 0) {
    std::snprintf(testo, sizeof testo, "%.7g", valore);
    std::string cifre = testo;
    std::ranges::replace(cifre, '.', ',');
    return cifre;
  }
  const auto intero = static_cast<std::int64_t>(valore);
  const std::uint64_t bit =
      static_cast<std::uint64_t>(intero) & ((std::uint64_t{1} << static_cast<unsigned>(larga)) - 1);
  if (larga == 1 || formato == Formato_Cella::Con_Segno) return std::to_string(intero);
  if (formato == Formato_Cella::Decimale) return std::to_string(bit);
  if (formato == Formato_Cella::Binario) return "2#" + Gruppi(bit, larga);
  std::snprintf(testo, sizeof testo, "%llX", static_cast<unsigned long long>(bit));
  std::string cifre = testo;
  const auto mancano = static_cast<std::size_t>(larga / 4) - cifre.size();
  return "16#" + std::string(mancano, '0') + cifre;
}

std::optional<double> Leggi_Valore(const Indirizzo& indirizzo, const std::string& testo,
                                   Formato_Cella formato) {
  std::string cifre = testo;
  std::erase(cifre, ' ');
  if (cifre.empty()) return {};
  int base = formato == Formato_Cella::Esadecimale ? 16
             : formato == Formato_Cella::Binario   ? 2
                                                   : 10;
  if (Larghezza(indirizzo, 0) <= 1) base = 10;
  if (cifre.starts_with("16#") || cifre.starts_with("2#")) {
    base = cifre[0] == '1' ? 16 : 2;
    cifre.erase(0, cifre.find('#') + 1);
  } else if (cifre.starts_with("-")) {
    base = 10;
  }
  if (base != 10) {
    const auto bit = In_Base(cifre, base);
    if (!bit) return {};
    return Con_Segno(indirizzo, *bit);
  }
  std::ranges::replace(cifre, ',', '.');
  if (cifre.starts_with("+")) cifre.erase(0, 1);
  double numero = 0;
  const auto [fine, errore] = std::from_chars(cifre.data(), cifre.data() + cifre.size(), numero);
  if (errore != std::errc{} || fine != cifre.data() + cifre.size() || !std::isfinite(numero))
    return {};
  return formato == Formato_Cella::Decimale ? Con_Segno(indirizzo, numero) : numero;
}

}  // namespace tavorno
