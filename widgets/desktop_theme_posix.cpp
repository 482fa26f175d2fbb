// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/desktop_theme.h"

namespace tavorno {

// The desktop's colours come with the window library, and their changes too.
void Segui_Scrivania() {}

}  // namespace tavorno
