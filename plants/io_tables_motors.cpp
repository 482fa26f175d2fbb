// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/io_tables.h"

namespace tavorno {

namespace {

// The inputs and outputs of the motor starters. The wording is that of the sheets students have in
// hand: misspellings, blanks and rows that disagree with the plant are part of it.

// clang-format off

// 00, start and stop
constexpr Riga_IO righe_00[] = {
    {"SB1", "I0.0", "Pulsante (NC) Stop"},
    {"SB2", "I0.1", "Pulsante (NO) Start"},
    {"KMa", "I0.2", "Contatto (NO) ausiliario  contattore KM"},
    {"FR", "I0.3", "Contatto (NC) relè termico"},
    {"SB3", "I0.4", "Pulsante (NC) "},
    {"KM", "Q0.0", "Contattore di linea "},
    {"HL2", "Q0.1", "Lampada Blu"},
    {"HL3", "Q0.2", "Lampada Verde"},
    {"HL1", "Q0.3", "Lampada Gialla"},
};

// 01, reversal
constexpr Riga_IO righe_01[] = {
    {"KM1a", "I0.0", "Contatto (NO) ausiliario contattore KM1"},
    {"SB1", "I0.1", "Pulsante (NC) 'Stop'"},
    {"SB2", "I0.2", "Pulsante (NO) 'Marcia Avanti'"},
    {"SB3", "I0.3", "Pulsante (NO) 'Marcia Indietro'"},
    {"KM2a", "I0.4", "Contatto (NO) ausiliario contattore KM2"},
    {"FR", "I0.5", "Contatto (NC) relè termico"},
    {"SB4", "I0.6", "Pulsante (NC) simulatore emergenza esterna"},
    {"KM1", "Q0.0", "Contattore Marcia Indietro"},
    {"KM2", "Q0.1", "Contattore Marcia Avanti"},
    {"HL2", "Q0.2", "Lampada Blu"},
    {"HL3", "Q0.3", "Lampada Verde"},
    {"HL4", "Q0.4", "Lampada Verde"},
    {"HL1", "Q0.5", "Lampada Gialla"},
    {"HL5", "Q0.6", "Lampada Rossa"},
};

// 02, star-delta starter
constexpr Riga_IO righe_02[] = {
    {"SB1", "I0.0", "Pulsante (NO) 'Start'"},
    {"SB2", "I0.1", "Pulsante (NC) 'Stop'"},
    {"KM1a", "I0.2", "Contatto (NO) ausiliario contattore KM1"},
    {"KM3a", "I0.3", "Contatto (NO) ausiliario contattore KM3"},
    {"KM2a", "I0.4", "Contatto (NO) ausiliario contattore KM2"},
    {"FR", "I0.5", "Contatto (NC) relè termico"},
    {"SB3", "I0.6", "Pulsante (NC)simulazione emergenza esterna"},
    {"KM1", "Q0.0", "Contattore di Linea"},
    {"KM2", "Q0.1", "Contattore Stella"},
    {"KM3", "Q0.2", "Contattore Triangolo"},
    {"HL2", "Q0.3", "Lampada Blu 'Motore Fermo'"},
    {"HL3", "Q0.4", "Lampada Verde 'Marcia Stella'"},
    {"HL4", "Q0.5", "Lampada Verde 'Marcia Triangolo'"},
    {"HL1", "Q0.6", "Lampada Gialla 'Relè Termico'"},
};

// 03, two units
constexpr Riga_IO righe_03[] = {
    {"SB1", "I0.0", "Pulsante (NC) 'Arresto'"},
    {"SB2", "I0.1", "Pulsante (NO) 'Marcia motore M1'"},
    {"KM1a", "I0.2", "Contatto (NO) ausiliaria contattore KM1"},
    {"SB3", "I0.3", "Pulsante (NO) 'Marcia motore M2'"},
    {"KM4a", "I0.4", "Contatto (NO) ausiliario contattore KM4"},
    {"SB4", "I0.5", "Pulsante (NC) simulazione emergenza esterna"},
    {"KM3a", "I0.6", "Contatto (NO) ausiliario contattore KM3"},
    {"KM2a", "I0.7", "Contatto (NO) ausiliario contattore KM2"},
    {"FR1", "I1.0", "Contatto (NC) relè termico motore M1"},
    {"FR2", "I1.1", "Contatto (NC) relè termico motore M2"},
    {"KM1", "Q0.0", "Contattore Linea Motore M1 "},
    {"KM2", "Q0.1", "Contattore Stella Motore M1 "},
    {"KM3", "Q0.2", "Contattore Triangolo Motore M1 "},
    {"KM4", "Q0.3", "Contattore Linea Motore M2 "},
    {"HL2", "Q0.4", "Lampada Blu 'Arresto Motore M1'"},
    {"HL3", "Q0.5", "Lampada Verde 'Marcia Motore M1'"},
    {"HL5", "Q0.6", "Lampada Blu 'Arresto Motore M2'"},
    {"HL6", "Q0.7", "Lampada Verde 'Marcia Motore M1'"},
    {"HL1", "Q1.0", "Lampada Gialla 'Termico Motore M1'"},
    {"HL4", "Q1.1", "Lampada Gialla 'Termico Motore M2'"},
};
// clang-format on

}  // namespace

Elenco_IO Righe_IO_00() {
  return righe_00;
}
Elenco_IO Righe_IO_01() {
  return righe_01;
}
Elenco_IO Righe_IO_02() {
  return righe_02;
}
Elenco_IO Righe_IO_03() {
  return righe_03;
}

}  // namespace tavorno
