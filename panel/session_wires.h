// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

class Barra_Seduta;
class Finestre;
class Registratore;

/// What the commands of a session ask of the windows, and the windows of the session. All three
/// must outlive the last event.
void Collega_Seduta(Barra_Seduta& barra, Finestre& finestre, Registratore& registratore);

}  // namespace tavorno
