// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/navigation.h"

#include <algorithm>

#include "awl/line_words.h"
#include "awl/references.h"
#include "plc/codepage.h"

namespace tavorno {

std::optional<Posto_Riga> Meta(const Sorgente& testi, Posto_Riga da) {
  const std::vector<Riferimento> tutti = Riferimenti(testi);
  const auto qui = std::ranges::find(tutti, da, &Riferimento::Posto);
  if (qui == tutti.end() || qui->Di.Genere == Genere_Nome::Operando) return std::nullopt;
  std::optional<Posto_Riga> meta;
  if (qui->Di.Genere == Genere_Nome::Procedura) {
    for (std::size_t i = 0; i < testi.Procedure.size(); ++i) {
      if (Maiuscole(testi.Procedure[i].Nome) == qui->Di.Nome)
        meta = Posto_Riga{static_cast<int>(i) + 1, 0};
    }
    return meta;
  }
  const Uso cercato = qui->Come == Uso::Definizione ? Uso::Lettura : Uso::Definizione;
  for (const Riferimento& altro : tutti) {
    if (altro.Di != qui->Di || altro.Come != cercato) continue;
    meta = altro.Posto;
    if (cercato == Uso::Lettura) break;
  }
  return meta;
}

int Segmento_Dopo(std::string_view testo, int linea) {
  const std::vector<std::string_view> linee = Linee(testo);
  for (std::size_t i = static_cast<std::size_t>(linea) + 1; i < linee.size(); ++i) {
    if (linee[i].starts_with("NETWORK")) return static_cast<int>(i);
  }
  return -1;
}

int Segmento_Prima(std::string_view testo, int linea) {
  const std::vector<std::string_view> linee = Linee(testo);
  for (auto i = std::min(static_cast<std::size_t>(linea), linee.size()); i-- > 0;) {
    if (linee[i].starts_with("NETWORK")) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace tavorno
