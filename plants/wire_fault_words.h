// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "plants/io_tables.h"
#include "plants/wire_faults.h"

namespace tavorno {

/// "Filo interrotto", "Contatto incollato"; another word where there is no contact. UTF-8.
std::string Titolo_Guasto_Filo(Guasto_Filo cosa, const Riga_IO& riga);

/// What a fault of an input's wire does where the machine stands, in Italian. `chiuso_a_riposo`:
/// the terminal has voltage while the plant rests; it decides for push buttons, since the tables
/// call some of them otherwise than they are wired.
std::string Guasto_Filo_In_Parole(Guasto_Filo cosa, const Riga_IO& riga, bool chiuso_a_riposo);

}  // namespace tavorno
