// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/desktop_motion.h"

namespace tavorno {

namespace {

struct Riga_Quiete {
  const char *Gruppo, *Voce;
  double Fermo;  ///< the value that asks for stillness; a truth counts as 0 or 1
};

constexpr Riga_Quiete righe[] = {
    {"org.freedesktop.appearance", "reduced-motion", 1},
    {"org.gnome.desktop.interface", "enable-animations", 0},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", 0},
};

}  // namespace

bool Chiede_Fermo(const Voci_Scrivania& voci) {
  for (const Riga_Quiete& riga : righe) {
    const QVariant voce = voci.value(QLatin1String(riga.Gruppo)).value(QLatin1String(riga.Voce));
    // One desktop tells texts, another one truths.
    bool numero = false;
    if (voce.toDouble(&numero) == riga.Fermo && numero) return true;
  }
  return false;
}

}  // namespace tavorno
