// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "widgets/colours.h"

class QTableWidget;
class QTableWidgetItem;
class QWidget;

// A widget that holds a colour of ours, and does not paint it anew each time, follows the desktop's
// palette and the user's choice with these.
namespace tavorno {

/// Calls `tingi` now, and once after each change of the colours, for as long as the widget lives.
void Segui_Colori(QWidget& parte, std::function<void()> tingi);

/// A text and its ground, or nullptr: the desktop's. Holds until it is called again.
void Tingi(QWidget& parte, const colori::Coppia* coppia);

/// The same for a cell, which follows when its table calls `Ritingi`.
void Tingi(QTableWidgetItem& cella, const colori::Coppia* coppia);
void Ritingi(QTableWidget& tabella);

}  // namespace tavorno
