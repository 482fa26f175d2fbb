// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace tavorno {

namespace {
constexpr std::string_view cifre = "0123456789";
}

std::string Numero_Con_Spazio(long long valore) {
  return (valore < 0 ? "" : " ") + std::to_string(valore);
}

std::string Formato(double valore, std::string_view figura) {
  const std::size_t punto = std::min(figura.find('.'), figura.size());
  const std::string_view interi = figura.substr(0, punto);
  const std::string_view decimali = figura.substr(std::min(punto + 1, figura.size()));

  const double scala = std::pow(10.0, static_cast<double>(decimali.size()));
  const auto intero = static_cast<long long>(std::llround(std::fabs(valore) * scala));
  std::string testo = std::to_string(intero);
  // From the leftmost "0" to the mark every place is shown, and behind it up to the rightmost "0".
  const auto minimi = decimali.size() + interi.size() - std::min(interi.find('0'), interi.size());
  if (testo.size() < minimi) testo.insert(0, minimi - testo.size(), '0');

  if (!decimali.empty()) {
    testo.insert(testo.size() - decimali.size(), 1, '.');
    const std::size_t fissi = decimali.rfind('0') + 1;  // no "0" at all: none is fixed
    for (std::size_t i = decimali.size(); i > fissi && testo.back() == '0'; --i) testo.pop_back();
  }
  return (valore < 0 && intero != 0 ? "-" : "") + testo;
}

std::optional<short> Numero_16(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return 0;
  testo.remove_prefix(inizio);
  const bool negativo = testo.front() == '-';
  if (negativo || testo.front() == '+') testo.remove_prefix(1);

  double valore = 0;
  const std::string_view intero =
      testo.substr(0, std::min(testo.find_first_not_of(cifre), testo.size()));
  for (const char c : intero) valore = valore * 10 + (c - '0');
  testo.remove_prefix(intero.size());
  if (testo.starts_with('.')) {
    double peso = 0.1;
    for (const char c : testo.substr(1)) {
      if (cifre.find(c) == std::string_view::npos) break;
      valore += (c - '0') * peso;
      peso /= 10;
    }
  }
  valore = std::nearbyint(negativo ? -valore : valore);
  if (!(valore >= std::numeric_limits<short>::min() && valore <= std::numeric_limits<short>::max()))
    return {};
  return static_cast<short>(valore);
}

std::optional<int> Numero_Decimale(std::string_view testo) {
  int valore = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (errore != std::errc{} || fine != testo.data() + testo.size() || valore < 0) return {};
  return valore;
}

}  // namespace tavorno
