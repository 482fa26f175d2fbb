// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QSize>

// Where windows stand. Rectangles and sizes are those of window frames, title bar included, in
// device-independent pixels; `schermo` is what the desktop's own bars leave of the screen.
namespace tavorno {

/// The size that a window is told to have, and the smallest at which all of it can be reached.
struct Misura_Finestra {
  QSize Voluta, Minima;
};

/// Where the three windows of an exercise stand.
struct Posti_Impianto {
  QRect Impianto, Stati, Pannello;
  bool operator==(const Posti_Impianto&) const = default;
};

inline constexpr int Stacco_Stati = 3;     ///< 30 twips between the plant and the status window
inline constexpr int Stacco_Pannello = 1;  ///< 10 twips between the status window and the panel

/// The same place, as far as a desktop keeps to what it is asked for.
bool Vicini(const QRect& uno, const QRect& altro);

/// A window that sticks out of its screen comes back and, where it is too large, shrinks.
QRect Dentro(const QRect& schermo, const QRect& finestra);

/// The plant in the corner, the status window at its right, the panel where it stands. When that
/// leaves something outside the screen or under another window, the panel goes below the status
/// window, and what has no room shrinks: first the status window and the panel to the width beside
/// the plant, then the plant, then the status window's height.
Posti_Impianto Posti_Esercizio(const QRect& schermo, const Misura_Finestra& impianto,
                               const Misura_Finestra& stati, const Misura_Finestra& pannello,
                               const QRect& pannello_ora);

/// The status window at `stati` with the panel right below it, in the room that is left; the status
/// window shrinks when the panel could not be reached otherwise. The rectangle `Impianto` is empty.
Posti_Impianto Posti_Colonna(const QRect& schermo, const QPoint& angolo,
                             const Misura_Finestra& stati, const Misura_Finestra& pannello);

/// Where a film of the plant runs: beside the panel, which shows it too, in the first corner of the
/// screen that is free (lower left, where the plant's buttons are, before the others); narrower
/// than it wants where that keeps it from under the panel. Where no corner is free, the one that
/// hides least of the panel. `pannello` may be empty.
QRect Posto_Film(const QRect& schermo, const QRect& pannello, const Misura_Finestra& film);

}  // namespace tavorno
