// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/io_tables.h"

namespace tavorno {

namespace {

// The inputs and outputs of the electro-pneumatic benches. The wording is that of the sheets
// students have in hand: misspellings and blanks are part of it.

// clang-format off

// 04, one cylinder, bistable valve
constexpr Riga_IO righe_04[] = {
    {"SA", "I0.0", "Selettore (NO) 'ON/OFF Aria'"},
    {"a0", "I0.1", "Fine corsa (NO) A-"},
    {"a1", "I0.2", "Fine corsa (NO) A+"},
    {"SB1", "I0.3", "Pulsante (NO) "},
    {"SB2", "I0.4", "Pulsante (NO) "},
    {"SB3", "I0.5", "Pulsante (NC) "},
    {"SB4", "I0.6", "Pulsante (NO) "},
    {"SB5", "I0.7", "Pulsante (NC) simulatore emergenza"},
    {"0Y1", "Q0.0", "Bobina  Valvola 0V"},
    {"1Y1", "Q0.1", "Bobina Set Valvola 1V1"},
    {"1Y2", "Q0.2", "Bobina Reset Valvola 1V1"},
    {"HL1", "Q0.3", "Lampada Blu"},
    {"HL2", "Q0.4", "Lampada Rossa"},
};

// 05, two cylinders, bistable valves
constexpr Riga_IO righe_05[] = {
    {"SA", "I0.0", "Selettore (NO) 'ON/OFF Aria'"},
    {"SB3", "I0.1", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {"SB1", "I0.2", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {"SB2", "I0.3", "Pulsante (NO) 'Start ciclo singolo'"},
    {"a0", "I0.4", "Micro (NO) Posizione - Pistone A"},
    {"a1", "I0.5", "Micro (NO) Posizione + Pistone A"},
    {"b0", "I0.6", "Micro (NO) Posizione - Pistone B"},
    {"b1", "I0.7", "Micro (NO) Posizione + Pistone B"},
    {"SB5", "I1.0", "Pulsante (NC) simulatore sicurezza esterna"},
    {"SB4", "I1.1", "Pulsante (NO) "},
    {"0Y1", "Q0.0", "Bobina eccitazione Valvola 0V"},
    {"1Y1", "Q0.1", "Bobina Set  Valvola 1V1"},
    {"1Y2", "Q0.2", "Bobina Reset Valvola 1V1"},
    {"2Y1", "Q0.3", "Bobina Set  Valvola 2V1"},
    {"2Y2", "Q0.4", "Bobina Reset Valvola 2V1"},
    {"HL1", "Q0.5", "Lampada Blu"},
    {"HL2", "Q0.6", "Lampada Verde "},
};

// 06, three cylinders, bistable valves
constexpr Riga_IO righe_06[] = {
    {"a0", "I0.0", "Micro (NO) posizione 0(-) Pistone A"},
    {"a1", "I0.1", "Micro (NO) posizione 1(+) Pistone A"},
    {"b0", "I0.2", "Micro (NO) posizione 0(-) Pistone B"},
    {"b1", "I0.3", "Micro (NO) posizione 1(+) Pistone B"},
    {"c0", "I0.4", "Micro (NO) posizione 0(-) Pistone C"},
    {"c1", "I0.5", "Micro (NO) posizione 1(+) Pistone C"},
    {"SA", "I0.6", "Selettore (NO) ON/OFF 'Aria Compressa'"},
    {"SB1", "I0.7", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {"SB2", "I1.0", "Pulsante (NO) 'Start Ciclo Singolo'"},
    {"SB3", "I1.1", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {"SB4", "I1.2", "Pulsante (NC) "},
    {"SB5", "I1.3", "Pulsante (NC) Simulatore emergenza esterna"},
    {"0Y1", "Q0.0", "Bobina eccitazione Valvola distributrice 0V"},
    {"1Y1", "Q0.1", "Bobina Set    Valvola 1V1"},
    {"1Y2", "Q0.2", "Bobina Reset  Valvola 1V1"},
    {"2Y1", "Q0.3", "Bobina Set    Valvola 2V1"},
    {"2Y2", "Q0.4", "Bobina Reset  Valvola 2V1"},
    {"3Y1", "Q0.5", "Bobina Set    Valvola 3V1"},
    {"3Y2", "Q0.6", "Bobina Reset  Valvola 3V1"},
    {"HL1", "Q0.7", "Lampada Blu"},
    {"HL2", "Q1.0", "Lampada Verde"},
    {"HL3", "Q1.1", "Lampada Verde"},
    {"HL4", "Q1.2", "Lampada Blu"},
    {"HL5", "Q1.3", "Lampada Verde "},
    {"HL6", "Q1.4", "Lampada Rossa  "},
};

// 07, four cylinders, bistable valves
constexpr Riga_IO righe_07[] = {
    {"a0", "I0.0", "Micro (NO) posizione 0(-) Pistone A"},
    {"a1", "I0.1", "Micro (NO) posizione 1(+) Pistone A"},
    {"b0", "I0.2", "Micro (NO) posizione 0(-) Pistone B"},
    {"b1", "I0.3", "Micro (NO) posizione 1(+) Pistone B"},
    {"c0", "I0.4", "Micro (NO) posizione 0(-) Pistone C"},
    {"c1", "I0.5", "Micro (NO) posizione 1(+) Pistone C"},
    {"d0", "I0.6", "Micro (NO) posizione 0(-) Pistone D"},
    {"d1", "I0.7", "Micro (NO) posizione 1(+) Pistone D"},
    {"SB1", "I1.0", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {"SB2", "I1.1", "Pulsante (NO) 'Start Ciclo Singolo'"},
    {"SB3", "I1.2", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {"SB4", "I1.3", "Pulsante (NO) "},
    {"SB5", "I1.4", "Pulsante (NC) Simulatore emergenza esterna"},
    {"SA", "I1.5", "Selettore (NO) ON/OFF 'Aria Compressa'"},
    {"1Y1", "Q0.0", "Bobina Set  Valvola  1V1"},
    {"1Y2", "Q0.1", "Bobina Reset Valvola 1V1"},
    {"2Y1", "Q0.2", "Bobina Set  Valvola  2V1"},
    {"2Y2", "Q0.3", "Bobina Reset Valvola 2V1"},
    {"3Y1", "Q0.4", "Bobina Set  Valvola  3V1"},
    {"3Y2", "Q0.5", "Bobina Reset Valvola 3V1"},
    {"4Y1", "Q0.6", "Bobina Set  Valvola  4V1"},
    {"4Y2", "Q0.7", "Bobina Reset Valvola 4V1"},
    {"0Y1", "Q1.0", "Bobina Eccitazione valvola distributrice 0V"},
    {"HL1", "Q1.1", "Lampada Blu 'Presenza Aria'"},
    {"HL2", "Q1.2", "Lampada Verde 'Modo Automatico'"},
    {"HL3", "Q1.3", "Lampada Verde "},
};

// 15, three cylinders, monostable valves
constexpr Riga_IO righe_15[] = {
    {"a0", "I0.0", "Micro (NO) posizione - Pistone A"},
    {"a1", "I0.1", "Micro (NO) posizione + Pistone A"},
    {"b0", "I0.2", "Micro (NO) posizione - Pistone B"},
    {"b1", "I0.3", "Micro (NO) posizione + Pistone B"},
    {"c0", "I0.4", "Micro (NO) posizione - Pistone C"},
    {"c1", "I0.5", "Micro (NO) posizione + Pistone C"},
    {"SA", "I0.6", "Selettore (NO) 'ON/OFF aria compressa'"},
    {"SB1", "I0.7", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {"SB2", "I1.0", "Pulsante (NO) 'Start Ciclo Singolo'"},
    {"SB3", "I1.1", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {"SB4", "I1.2", "Pulsante (NC)"},
    {"SB5", "I1.3", "Pulsante (NC) simulazione emergenza esterna"},
    {"0Y1", "Q0.0", "Bobina eccitazione elettrovalvola 0V"},
    {"1Y1", "Q0.1", "Bobina eccitazione elettrovalvola 1V1"},
    {"2Y1", "Q0.2", "Bobina eccitazione elettrovalvola 2V1"},
    {"3Y1", "Q0.3", "Bobina eccitazione elettrovalvola 3V1"},
    {"HL1", "Q0.4", "Lampada Blu (Segnalazione Aria)"},
    {"HL2", "Q0.5", "Lampada Verde (Ciclo Automatico)"},
    {"HL3", "Q0.6", "Lampada Verde ()"},
    {"HL4", "Q0.7", "Lampada Blu ()"},
    {"HL5", "Q1.0", "Lampada Rossa ()"},
    {"HL6", "Q1.1", "Lampada Rossa ()"},
};

// clang-format on

}  // namespace

Elenco_IO Righe_IO_04() {
  return righe_04;
}
Elenco_IO Righe_IO_05() {
  return righe_05;
}
Elenco_IO Righe_IO_06() {
  return righe_06;
}
Elenco_IO Righe_IO_07() {
  return righe_07;
}
Elenco_IO Righe_IO_15() {
  return righe_15;
}

}  // namespace tavorno
