// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "plants/io_tables.h"

namespace tavorno::prova {

// What the students' sheet of the crossing says, letter by letter.
// clang-format off
constexpr Riga_IO foglio_16[] = {
    {"SB2", "I0.0", "Pulsante (NA) prenotazione pedone"},
    {"SB1", "I0.1", "Pulsante (NA) prenotazione pedone"},
    {"HL4", "Q0.0", "Lampada rossa pedonale"},
    {"HL5", "Q0.1", "Lampada Verde Pedonale"},
    {"HL1", "Q0.2", "Lampada Rossa Veicoli"},
    {"HL2", "Q0.3", "Lampada Gialla Veicoli"},
    {"HL3", "Q0.4", "Lampada Verde Veicoli"},
};
// clang-format on

TEST(CrossingIoTable, ReadsAsTheSheet) {
  const auto righe = Righe_IO_16();
  ASSERT_EQ(righe.size(), std::size(foglio_16));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    EXPECT_STREQ(righe[n].Simbolo, foglio_16[n].Simbolo);
    EXPECT_STREQ(righe[n].Indirizzo, foglio_16[n].Indirizzo) << foglio_16[n].Simbolo;
    EXPECT_STREQ(righe[n].Commento, foglio_16[n].Commento) << foglio_16[n].Simbolo;
  }
}

}  // namespace tavorno::prova
