// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// Makes the pictures of assets/ readable under ":/". Call once, before the first window.
void Apri_Risorse();

}  // namespace tavorno
