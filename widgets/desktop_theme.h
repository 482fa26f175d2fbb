// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

namespace tavorno {

/// Colours of a dark desktop, for a system where the window library does not bring them.
QPalette Tavolozza_Scura();

/// From now on the application is light or dark as the desktop is, also when the user changes it.
/// Once, after the application's style is set. One body per system (desktop_theme_posix.cpp).
void Segui_Scrivania();

}  // namespace tavorno
