// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/line_numbers.h"

#include <algorithm>
#include <array>

#include "awl/line_words.h"

namespace tavorno {

namespace {

// What the reader of a project takes for itself at the start of a line.
constexpr std::array<std::string_view, 8> parole_del_file = {
    "TITLE=",
    "BEGIN",
    "SUBROUTINE_BLOCK",
    "END_SUBROUTINE_BLOCK",
    "INTERRUPT_BLOCK",
    "END_INTERRUPT_BLOCK",
    "END_ORGANIZATION_BLOCK",
    "ORGANIZATION_BLOCK",
};

}  // namespace

bool Diventa_Riga(std::string_view linea, bool nome_vecchio) {
  if (linea.starts_with("NETWORK")) return true;
  if (std::ranges::any_of(parole_del_file, [&](auto parola) { return linea.starts_with(parola); }))
    return false;
  const std::size_t primo = linea.find_first_not_of(" \t");
  if (primo == std::string_view::npos || linea.substr(primo, 2) == "//") return false;
  const bool blocco = linea.starts_with("SBR") || linea.starts_with("INT");
  // Blanks at its end are not saved.
  const std::size_t spazio = linea.find_first_of(" \t");
  if (blocco && linea.find_first_not_of(" \t", spazio) == std::string_view::npos)
    return nome_vecchio;
  return true;
}

Numerazione::Numerazione(const Progetto& progetto) {
  const auto vecchia = [&](int riga) {
    return riga <= progetto.Righe_Src.ultimo && !progetto.Righe_Src[riga].Istr.empty();
  };
  const auto aggiungi = [&](const std::string& testo) {
    std::vector<std::string_view> linee = Linee(testo);
    // The blanks in front of the whole text are not saved.
    linee[0].remove_prefix(std::min(linee[0].find_first_not_of(' '), linee[0].size()));
    std::vector<int> numeri;
    numeri.reserve(linee.size());
    for (const std::string_view linea : linee) {
      numeri.push_back(Diventa_Riga(linea, vecchia(righe_)) ? righe_++ : Nessuno);
    }
    ++righe_;  // MEND or RET
    testi_.push_back(std::move(numeri));
  };

  aggiungi(progetto.txtList);
  for (int i = 1; i <= progetto.Num_SBR; ++i) {
    ++righe_;  // SBR
    aggiungi(progetto.Tab_SBR[i].Testo);
  }
}

const std::vector<int>& Numerazione::Numeri(int testo) const {
  static const std::vector<int> nessuno;
  if (testo < 0 || static_cast<std::size_t>(testo) >= testi_.size()) return nessuno;
  return testi_[static_cast<std::size_t>(testo)];
}

std::optional<Posto_Riga> Numerazione::Posto(int numero) const {
  if (numero < 0 || numero >= righe_) return std::nullopt;
  int prima = 0;  // row of the text's own beginning
  for (std::size_t t = 0; t < testi_.size(); ++t) {
    const std::vector<int>& numeri = testi_[t];
    const auto testo = static_cast<int>(t);
    if (t > 0 && numero == prima) return Posto_Riga{testo, 0};
    const auto trovato = std::ranges::find(numeri, numero);
    if (trovato != numeri.end())
      return Posto_Riga{testo, static_cast<int>(trovato - numeri.begin())};
    const auto righe = std::ranges::count_if(numeri, [](int n) { return n != Nessuno; });
    const int ultima = prima + (t > 0 ? 1 : 0) + static_cast<int>(righe);
    if (numero == ultima) return Posto_Riga{testo, static_cast<int>(numeri.size()) - 1};
    prima = ultima + 1;
  }
  return std::nullopt;
}

}  // namespace tavorno
