// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/line_numbers.h"

#include <algorithm>
#include <array>

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

/// The lines of a text; what stands behind the last line end is a line too, even when empty, as it
/// is in an editor.
std::vector<std::string_view> Linee(std::string_view testo) {
  std::vector<std::string_view> linee;
  std::size_t inizio = 0;
  while (true) {
    const std::size_t fine = testo.find_first_of("\r\n", inizio);
    linee.push_back(testo.substr(inizio, fine - inizio));
    if (fine == std::string_view::npos) return linee;
    inizio = fine + (testo.substr(fine, 2) == "\r\n" ? 2 : 1);
  }
}

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
  int righe = 0;
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
      numeri.push_back(Diventa_Riga(linea, vecchia(righe)) ? righe++ : Nessuno);
    }
    ++righe;  // MEND or RET
    testi_.push_back(std::move(numeri));
  };

  aggiungi(progetto.txtList);
  for (int i = 1; i <= progetto.Num_SBR; ++i) {
    ++righe;  // SBR
    aggiungi(progetto.Tab_SBR[i].Testo);
  }
}

const std::vector<int>& Numerazione::Numeri(int testo) const {
  static const std::vector<int> nessuno;
  if (testo < 0 || static_cast<std::size_t>(testo) >= testi_.size()) return nessuno;
  return testi_[static_cast<std::size_t>(testo)];
}

}  // namespace tavorno
