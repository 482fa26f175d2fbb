// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "plants/io_tables.h"

namespace tavorno::prova {

// What the students' sheet of the axis says, letter by letter.
// clang-format off
constexpr Riga_IO foglio_17[] = {
    {"Start", "I0.0", "Pulsante (NO) Start Controllo"},
    {"Stop", "I0.1", "Pulsante (NC) Stop Controllo"},
    {"SB1", "I0.2", "Pulsante (NO) Avanti Manuale"},
    {"SB2", "I0.3", "Pulsante (NO) Indietro Manuale"},
    {"SB3", "I0.4", "Selettore (NO) modo Controllo 'Automatico/Manuale'"},
    {"SQ1", "I0.5", "Micro (NC) Fuori corsa Indietro"},
    {"SQ2", "I0.6", "Micro (NC) Fuori corsa Avanti"},
    {"TP", "AIW0", "Valore analogico di Posizione (0-10 V)"},
    {"SET", "AIW2", "Valore Analogico di Riferimento (0-10 V)"},
    {"IST", "AIW4", "Valore analogico Isteresi (0-1 V)"},
    {"MA", "Q0.0", "Segnale di controllo del AP per marcia avanti"},
    {"MI", "Q0.1", "Segnale di controllo del AP per marcia avanti"},
    {"AC", "Q0.2", "Contattore Alimentazione di potenza"},
    {"HL1", "Q0.3", "Lampada"},
    {"HL2", "Q0.4", "Lampada Blu "},
    {"HL3", "Q0.5", "Lampada Verde "},
    {"HL4", "Q0.6", "Lampada Verde ()"},
    {"HL5", "Q0.7", "Lampada Blu ()"},
    {"HL6", "Q1.0", "Lampada Rossa ()"},
    {"VC", "AQW0", "Tensione analogica di controllo uscita AP"},
};
// clang-format on

TEST(AxisIoTable, ReadsAsTheSheet) {
  const auto righe = Righe_IO_17();
  ASSERT_EQ(righe.size(), std::size(foglio_17));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    EXPECT_STREQ(righe[n].Simbolo, foglio_17[n].Simbolo);
    EXPECT_STREQ(righe[n].Indirizzo, foglio_17[n].Indirizzo) << foglio_17[n].Simbolo;
    EXPECT_STREQ(righe[n].Commento, foglio_17[n].Commento) << foglio_17[n].Simbolo;
  }
}

}  // namespace tavorno::prova
