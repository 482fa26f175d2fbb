// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "widgets/command_tables.h"

// Menus and tool bar of the panel, in the order of the screen.
namespace tavorno {

/// Without the entries of `mnuProgetti`, which follow from the table of exercises.
std::span<const Voce_Menu> Menu_Pannello();
std::span<const Tasto_Barra> Barra_Pannello();

}  // namespace tavorno
