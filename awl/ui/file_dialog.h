// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "awl/dialogs.h"

class QWidget;

namespace tavorno {

/// Message and file dialogs over the window `sopra`, which must outlive the result, or over what is
/// modal at the time.
Dialoghi Dialoghi_Qt(QWidget* sopra);

}  // namespace tavorno
