// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace tavorno {

/// A lit LED as a vector, drawn anew at each size. Numbers of `Barra::LED_Tipo`: colour 0 green, 1
/// yellow, other red; form 0 with rays, other without.
QIcon Icona_LED(int tipo, int forma);

}  // namespace tavorno
