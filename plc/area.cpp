// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/area.h"

#include <algorithm>

namespace tavorno {

namespace {
constexpr bool In_Ordine() {
  for (std::size_t posto = 0; posto < tabella_aree.size(); ++posto) {
    if (static_cast<std::size_t>(tabella_aree[posto].Codice) != posto) return false;
  }
  return true;
}
static_assert(In_Ordine() && tabella_aree.back().Codice == Area::LW);
}  // namespace

Area Cerca_Area(std::string_view testo) {
  if (testo.empty()) return Area::Nessuna;
  const auto* trovata = std::ranges::find(tabella_aree, testo, &Riga_Area::Nome);
  return trovata == tabella_aree.end() ? Area::Ignota : trovata->Codice;
}

}  // namespace tavorno
