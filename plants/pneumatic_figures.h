// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "plants/scene.h"

namespace tavorno {

/// Where the parts of the pneumatic benches stand, by exercise.
std::span<const Riga_Figura> Figure_04();
std::span<const Riga_Figura> Figure_05();
std::span<const Riga_Figura> Figure_06();
std::span<const Riga_Figura> Figure_07();
std::span<const Riga_Figura> Figure_15();

}  // namespace tavorno
