// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "plants/io_tables.h"

namespace tavorno::prova {

// What the students' sheets of the motor starters say, letter by letter.
// clang-format off
constexpr Riga_IO foglio_00[] = {
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

constexpr Riga_IO foglio_01[] = {
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

constexpr Riga_IO foglio_02[] = {
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

constexpr Riga_IO foglio_03[] = {
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

struct Foglio {
  std::span<const Riga_IO> (*Righe)();
  std::span<const Riga_IO> Attese;
};

class MotorIoTable : public ::testing::TestWithParam<Foglio> {};

TEST_P(MotorIoTable, ReadsAsTheSheet) {
  const auto righe = GetParam().Righe();
  const auto attese = GetParam().Attese;
  ASSERT_EQ(righe.size(), attese.size());
  for (std::size_t n = 0; n < attese.size(); ++n) {
    EXPECT_STREQ(righe[n].Simbolo, attese[n].Simbolo);
    EXPECT_STREQ(righe[n].Indirizzo, attese[n].Indirizzo);
    EXPECT_STREQ(righe[n].Commento, attese[n].Commento) << righe[n].Simbolo;
  }
}

INSTANTIATE_TEST_SUITE_P(All, MotorIoTable,
                         ::testing::Values(Foglio{Righe_IO_00, foglio_00},
                                           Foglio{Righe_IO_01, foglio_01},
                                           Foglio{Righe_IO_02, foglio_02},
                                           Foglio{Righe_IO_03, foglio_03}));

}  // namespace tavorno::prova
