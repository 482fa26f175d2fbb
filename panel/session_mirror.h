// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

class FrmPLC;
class Registratore;
struct Plc;

/// After a leap in time the panel shows all that the CPU is now, and the switches as they stood.
void Specchia_Salto(FrmPLC& pannello, Plc& plc, const Registratore& registratore);

}  // namespace tavorno
