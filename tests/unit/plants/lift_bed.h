// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "plants/lift.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

/// A lift with its own clock, whose outputs have all been heard as off.
struct Lift : ::testing::Test {
  Orologio orologio;
  ctr_Ascensore ascensore{orologio};

  Lift() { ascensore.Stato_Q(Uscite({})); }

  Figura& F(const std::string& nome) { return ascensore.Disegno[nome]; }
  void Tick(int quanti = 1) { orologio.Avanza(50 * quanti); }
  /// One output alone, after a moment with none.
  void Solo(int uscita) {
    ascensore.Stato_Q(Uscite({}));
    ascensore.Stato_Q(Uscite({uscita}));
  }
  /// Puts the cabin so that the next tick down ends at `top`.
  void Scendi_A(float top) {
    F("imgC").Top = top - static_cast<float>(ascensore.Passo_Cabina);
    ascensore.Stato_Q(Uscite({2}));
    Tick();
  }
};

}  // namespace tavorno::prova
