// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "awl/dialogs.h"

class QWidget;

namespace tavorno {

/// Message and file dialogs over the window `sopra`, which must outlive the result, or over what is
/// modal at the time.
Dialoghi Dialoghi_Qt(QWidget* sopra);

/// One message box, over the active window if `sopra` is null; returns when the user has answered.
/// Closing it counts as the answer that loses nothing: Annulla, Yes to a question whether to save,
/// or Ok where there is no other.
Risposta Mostra_Avviso(QWidget* sopra, const Avviso& avviso);

}  // namespace tavorno
