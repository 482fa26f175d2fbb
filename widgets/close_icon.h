// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace tavorno {

/// The cross that closes a view, in the desktop's colour for texts and sharp at any size; it
/// follows while the program runs. The window library's own is a small picture in greys for a light
/// desktop.
QIcon Croce_Di_Chiusura();

}  // namespace tavorno
