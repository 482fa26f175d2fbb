// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include "awl/ui/alt_gr.h"

namespace tavorno {

std::optional<QChar> Senza_AltGr(const QKeyEvent& evento) {
  constexpr UINT solo_lettera = 0xffff;  // above it: whether it is an accent that waits
  const UINT lettera = MapVirtualKeyW(evento.nativeVirtualKey(), MAPVK_VK_TO_CHAR);
  return QChar(static_cast<char16_t>(lettera & solo_lettera));
}

}  // namespace tavorno
