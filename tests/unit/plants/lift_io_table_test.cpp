// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "plants/io_tables.h"

namespace tavorno::prova {

// What the students' sheet of the lift says, letter by letter.
// clang-format off
constexpr Riga_IO foglio_14[] = {
    {"SQ1", "I0.0", "Micro (NC) preseza cabina piano Terra"},
    {"SQ2", "I0.1", "Micro (NC) preseza cabina 1^ Piano"},
    {"SQ3", "I0.2", "Micro (NC) preseza cabina 2^ Piano"},
    {"SQ4", "I0.3", "Micro (NC) preseza cabina 3^ Piano"},
    {"SQ5", "I0.4", "Micro (NO) Porte Chiuse"},
    {"SB1", "I0.5", "Pulsante (NO) Chiamata piano terra"},
    {"SB2", "I0.6", "Pulsante (NO) Chiamata 1^ Piano"},
    {"SB3", "I0.7", "Pulsante (NO) Chiamata 2^ Piano"},
    {"SB4", "I1.0", "Pulsante (NO) Chiamata 3^ Piano"},
    {"SB5", "I1.1", "Pulsante (NO) arresto cabina"},
    {"SB6", "I1.2", "Pulsante (NO) Mandata 3^ Piano"},
    {"SB7", "I1.3", "Pulsante (NO) Mandata 2^ Piano"},
    {"SB8", "I1.4", "Pulsante (NO) Mandata 1^ Piano"},
    {"SB9", "I1.5", "Pulsante (NO) Mandata Piano Terra"},
    {"B1", "I1.6", "Contatto (NO) Fotocellula presenza persone"},
    {"SQ6", "I1.7", "Micro (NC) apertura Porte"},
    {"T_P", "AIW0", "Cella di carico cabina (0-10V)"},
    {"Pos", "AIW2", "Trasduttore posizione cabina (0-10V)"},
    {"KM1", "Q0.0", "Teleruttore Salita Cabina"},
    {"KM2", "Q0.1", "Teleruttore Discesa Cabina"},
    {"KM3", "Q0.2", "Teleruttore Chiusura Porte"},
    {"KM4", "Q0.3", "Teleruttore Apertura Porte"},
    {"HL1", "Q0.4", "Lampada Piano Terra"},
    {"HL2", "Q0.5", "Lampada 1^ Piano"},
    {"HL3", "Q0.6", "Lampada 2^ Piano"},
    {"HL4", "Q0.7", "Lampada 3^ Piano"},
    {"HL5", "Q1.0", "Lampada Cabina 3^ Piano"},
    {"HL6", "Q1.1", "Lampada Cabina 2^ Piano"},
    {"HL7", "Q1.2", "Lampada Cabina 1^ Piano"},
    {"HL8", "Q1.3", "Lampada Cabina Piano Terra"},
    {"HL9", "Q1.4", "Lampada Allarme sovracarico cabina"},
    {"HL10", "Q1.5", "Lampada segnalazione malfunzionamento"},
};
// clang-format on

TEST(LiftIoTable, ReadsAsTheSheet) {
  const auto righe = Righe_IO_14();
  ASSERT_EQ(righe.size(), std::size(foglio_14));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    EXPECT_STREQ(righe[n].Simbolo, foglio_14[n].Simbolo);
    EXPECT_STREQ(righe[n].Indirizzo, foglio_14[n].Indirizzo) << foglio_14[n].Simbolo;
    EXPECT_STREQ(righe[n].Commento, foglio_14[n].Commento) << foglio_14[n].Simbolo;
  }
}

}  // namespace tavorno::prova
