// SPDX-License-Identifier: GPL-3.0-or-later
// clang-format off
#include <windows.h>
// clang-format on
#include "widgets/dark_choice.h"

namespace tavorno {

Scelta_Windows Leggi_Scelta() {
  Scelta_Windows scelta;
  DWORD valore = 0;
  DWORD misura = sizeof valore;
  if (RegGetValueW(
          HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
          L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &valore, &misura) == ERROR_SUCCESS)
    scelta.AppsUseLightTheme = valore;
  HIGHCONTRASTW contrasto{};
  contrasto.cbSize = sizeof contrasto;
  scelta.Alto_Contrasto =
      SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrasto, &contrasto, 0) != FALSE &&
      (contrasto.dwFlags & HCF_HIGHCONTRASTON) != 0;
  return scelta;
}

}  // namespace tavorno
