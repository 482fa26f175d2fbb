// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "plants/io_tables.h"

namespace tavorno::prova {

// What the students' sheet of the garage says, letter by letter.
// clang-format off
constexpr Riga_IO foglio_11[] = {
    {"SB1", "I0.0", "Pulsante (NO) veivolo in Ingresso"},
    {"SQ1", "I0.1", "Micro (NO) sensore presenza auto"},
    {"SQ2", "I0.2", "Micro (NO) Chiusura sbarra entrata"},
    {"SQ3", "I0.3", "Micro (NO) Apertura sbarra entrata"},
    {"B1", "I0.4", "Contatto (NO) Fotocellula auto entrata"},
    {"KM1a", "I0.5", "Contatto (NO) ausiliario KM1"},
    {"KM2a", "I0.6", "Contatto (NO) ausiliario KM2"},
    {"FR1", "I0.7", "Contatto (NC) relè termico Motore M1"},
    {"SB2", "I1.0", "Pulsante (NO) Uscita Veicolo"},
    {"SQ4", "I1.1", "Micro (NO) sensore presenza auto in uscita"},
    {"SQ5", "I1.2", "Micro (NO) Chiusura sbarra uscita"},
    {"SQ6", "I1.3", "Micro (NO) Apertura sbarra uscita"},
    {"B2", "I1.4", "Contatto (NO) Fotocellula Auto Uscita"},
    {"KM4a", "I1.5", "Contatto (NO) ausiliario Contattore KM4"},
    {"KM3a", "I1.6", "Contatto (NO) ausiliario Contattore KM3"},
    {"FR2", "I1.7", "Contatto (NC) relè termico motore M2"},
    {"KM1", "Q0.0", "Contattore M1 (apertura sbarra ingresso)"},
    {"KM2", "Q0.1", "Contattore M2 (chiusura sbarra ingresso)"},
    {"HL1", "Q0.2", "Lampada verde semaforo Ingresso"},
    {"HL2", "Q0.3", "Lampada Rossa semaforo Ingresso"},
    {"HL3", "Q0.4", "Lampada Verde semaforo Uscita"},
    {"HL4", "Q0.5", "Lampada Rossa semaforo Uscita"},
    {"KM4", "Q0.6", "Contattore motore M2 (Chiusura sbarra uscita)"},
    {"KM3", "Q0.7", "Contattore motore M2 (Apertura sbarra uscita)"},
    {"HL5", "Q1.0", "Lampada Gialla (Sbarra Ingresso in movimento)"},
    {"HL6", "Q1.1", "Lampada Gialla (Sbarra Uscita in movimento)"},
};
// clang-format on

TEST(GarageIoTable, ReadsAsTheSheet) {
  const auto righe = Righe_IO_11();
  ASSERT_EQ(righe.size(), std::size(foglio_11));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    EXPECT_STREQ(righe[n].Simbolo, foglio_11[n].Simbolo);
    EXPECT_STREQ(righe[n].Indirizzo, foglio_11[n].Indirizzo) << foglio_11[n].Simbolo;
    EXPECT_STREQ(righe[n].Commento, foglio_11[n].Commento) << foglio_11[n].Simbolo;
  }
}

}  // namespace tavorno::prova
