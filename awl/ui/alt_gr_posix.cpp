// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/alt_gr.h"

namespace tavorno {

std::optional<QChar> Senza_AltGr(const QKeyEvent& /*evento*/) {
  return {};
}

}  // namespace tavorno
