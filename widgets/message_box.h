// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plc/hooks.h"

class QWidget;

namespace tavorno {

/// The window that a dialog belongs over: what is modal, else `sopra` unless it was hidden, else
/// the active window. What is modal would hide a dialog that belongs to a window behind it.
QWidget* Finestra_Sotto(QWidget* sopra);

/// One message box, over the active window if `sopra` is null; returns when the user has answered.
/// Closing it counts as the answer that loses nothing: Annulla, Yes to a question whether to save,
/// or Ok where there is no other.
Risposta Mostra_Avviso(QWidget* sopra, const Avviso& avviso);

}  // namespace tavorno
