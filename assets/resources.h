// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// Makes the pictures of assets/ readable under ":/", and the fonts that the program brings along
/// usable. Call once, behind the application and before the first window.
void Apri_Risorse();

}  // namespace tavorno
