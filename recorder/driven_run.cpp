// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/driven_run.h"

namespace tavorno {

void Avvia_Guidata(Plc& plc, void (Plc::*comando)()) {
  plc.Hook.Cedi = [&plc] { plc.Ferma = -1; };
  (plc.*comando)();
  plc.Hook.Cedi = nullptr;
  plc.Ferma = 0;
}

}  // namespace tavorno
