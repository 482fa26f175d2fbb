// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "plants/io_tables.h"

namespace tavorno::prova {

// What the students' sheet of the gate says, letter by letter.
// clang-format off
constexpr Riga_IO foglio_09[] = {
    {"SQ1", "I0.0", "Fine Corsa (NC) apertura cancello"},
    {"B", "I0.1", "Contatto (NO) fotocellula"},
    {"SQ2", "I0.2", "Fine Corsa (NC) Chiusura cancello"},
    {"KM1a", "I0.3", "Contatto ausiliario (NO) Contattore KM1"},
    {"KM2a", "I0.4", "Contatto ausiliario (NO) Contattore KM2"},
    {"FR", "I0.5", "Contatto (NC) relè termico Motore"},
    {"SQ3", "I0.6", "Contatto (NC) Costa pneumatica di sicurezza"},
    {"SA_1", "I0.7", "Contatto (NO) Selettore a chiave Posiz. 1"},
    {"SA_2", "I1.0", "Contatto (NO) Selettore a chiave Posiz. 2"},
    {"SB1", "I1.1", "Pulsante (NO) "},
    {"SB2", "I1.2", "Pulsante (NO) Telecomando"},
    {"SB3", "I1.3", "Pulsante (NC) "},
    {"VacB", "Q0.0", "Alimentazione Fotocellula B"},
    {"HL4", "Q0.1", "Lampada Gialla Segnalazione Movimento"},
    {"KM1", "Q0.2", "Contattore Chiusura Cancello"},
    {"KM2", "Q0.3", "Contattore Apertura Cancello"},
    {"HL1", "Q0.4", "Lampada Verde"},
    {"HL2", "Q0.5", "Lampada Gialla"},
    {"HL3", "Q0.6", "Lampada Blu "},
};
// clang-format on

TEST(GateIoTable, ReadsAsTheSheet) {
  const auto righe = Righe_IO_09();
  ASSERT_EQ(righe.size(), std::size(foglio_09));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    EXPECT_STREQ(righe[n].Simbolo, foglio_09[n].Simbolo);
    EXPECT_STREQ(righe[n].Indirizzo, foglio_09[n].Indirizzo) << foglio_09[n].Simbolo;
    EXPECT_STREQ(righe[n].Commento, foglio_09[n].Commento) << foglio_09[n].Simbolo;
  }
}

}  // namespace tavorno::prova
