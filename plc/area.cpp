// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/area.h"

#include <algorithm>
#include <array>

namespace tavorno {

namespace {
// In the order of the enumeration.
constexpr std::array<std::string_view, 28> testi = {
    "",   "",   "I",  "Q",  "M",   "SM",  "S",  "T",  "C", "IB", "QB", "MB",  "SMB", "VB",
    "IW", "QW", "MW", "VW", "AIW", "AQW", "VD", "AC", "K", "V",  "L",  "SMW", "SW",  "LW"};
static_assert(testi.size() == static_cast<std::size_t>(Area::LW) + 1);
}  // namespace

Area Cerca_Area(std::string_view testo) {
  if (testo.empty()) return Area::Nessuna;
  const auto* trovata = std::find(testi.begin(), testi.end(), testo);
  return trovata == testi.end() ? Area::Ignota : static_cast<Area>(trovata - testi.begin());
}

std::string_view Testo_Area(Area area) {
  return testi[static_cast<std::size_t>(area)];
}

}  // namespace tavorno
