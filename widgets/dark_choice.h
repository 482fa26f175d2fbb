// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace tavorno {

/// What Windows keeps of the user's choice between a light and a dark desktop.
struct Scelta_Windows {
  std::optional<std::uint32_t>
      AppsUseLightTheme{};      ///< of the registry; nothing when it is not there
  bool Alto_Contrasto = false;  ///< a desktop with colours of its own
};

/// Dark is what was chosen, never what is missing; in high contrast the system's colours hold.
constexpr bool Vuole_Scuro(const Scelta_Windows& scelta) {
  return !scelta.Alto_Contrasto && scelta.AppsUseLightTheme == 0U;
}

/// As it is now. On Windows only (dark_choice_windows.cpp).
Scelta_Windows Leggi_Scelta();

}  // namespace tavorno
