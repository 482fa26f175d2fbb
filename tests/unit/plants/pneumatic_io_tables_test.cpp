// SPDX-License-Identifier: GPL-3.0-or-later
// The sheets that students have in hand, to the letter.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plants/exercises.h"

namespace tavorno::prova {

struct Prova_Riga_IO {
  int Esercizio;
  const char *Simbolo, *Indirizzo, *Commento;
};

// clang-format off
const std::vector<Prova_Riga_IO> righe_pneumatiche = {
    {4, "SA", "I0.0", "Selettore (NO) 'ON/OFF Aria'"},
    {4, "a0", "I0.1", "Fine corsa (NO) A-"},
    {4, "a1", "I0.2", "Fine corsa (NO) A+"},
    {4, "SB1", "I0.3", "Pulsante (NO) "},
    {4, "SB2", "I0.4", "Pulsante (NO) "},
    {4, "SB3", "I0.5", "Pulsante (NC) "},
    {4, "SB4", "I0.6", "Pulsante (NO) "},
    {4, "SB5", "I0.7", "Pulsante (NC) simulatore emergenza"},
    {4, "0Y1", "Q0.0", "Bobina  Valvola 0V"},
    {4, "1Y1", "Q0.1", "Bobina Set Valvola 1V1"},
    {4, "1Y2", "Q0.2", "Bobina Reset Valvola 1V1"},
    {4, "HL1", "Q0.3", "Lampada Blu"},
    {4, "HL2", "Q0.4", "Lampada Rossa"},
    {5, "SA", "I0.0", "Selettore (NO) 'ON/OFF Aria'"},
    {5, "SB3", "I0.1", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {5, "SB1", "I0.2", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {5, "SB2", "I0.3", "Pulsante (NO) 'Start ciclo singolo'"},
    {5, "a0", "I0.4", "Micro (NO) Posizione - Pistone A"},
    {5, "a1", "I0.5", "Micro (NO) Posizione + Pistone A"},
    {5, "b0", "I0.6", "Micro (NO) Posizione - Pistone B"},
    {5, "b1", "I0.7", "Micro (NO) Posizione + Pistone B"},
    {5, "SB5", "I1.0", "Pulsante (NC) simulatore sicurezza esterna"},
    {5, "SB4", "I1.1", "Pulsante (NO) "},
    {5, "0Y1", "Q0.0", "Bobina eccitazione Valvola 0V"},
    {5, "1Y1", "Q0.1", "Bobina Set  Valvola 1V1"},
    {5, "1Y2", "Q0.2", "Bobina Reset Valvola 1V1"},
    {5, "2Y1", "Q0.3", "Bobina Set  Valvola 2V1"},
    {5, "2Y2", "Q0.4", "Bobina Reset Valvola 2V1"},
    {5, "HL1", "Q0.5", "Lampada Blu"},
    {5, "HL2", "Q0.6", "Lampada Verde "},
    {6, "a0", "I0.0", "Micro (NO) posizione 0(-) Pistone A"},
    {6, "a1", "I0.1", "Micro (NO) posizione 1(+) Pistone A"},
    {6, "b0", "I0.2", "Micro (NO) posizione 0(-) Pistone B"},
    {6, "b1", "I0.3", "Micro (NO) posizione 1(+) Pistone B"},
    {6, "c0", "I0.4", "Micro (NO) posizione 0(-) Pistone C"},
    {6, "c1", "I0.5", "Micro (NO) posizione 1(+) Pistone C"},
    {6, "SA", "I0.6", "Selettore (NO) ON/OFF 'Aria Compressa'"},
    {6, "SB1", "I0.7", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {6, "SB2", "I1.0", "Pulsante (NO) 'Start Ciclo Singolo'"},
    {6, "SB3", "I1.1", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {6, "SB4", "I1.2", "Pulsante (NC) "},
    {6, "SB5", "I1.3", "Pulsante (NC) Simulatore emergenza esterna"},
    {6, "0Y1", "Q0.0", "Bobina eccitazione Valvola distributrice 0V"},
    {6, "1Y1", "Q0.1", "Bobina Set    Valvola 1V1"},
    {6, "1Y2", "Q0.2", "Bobina Reset  Valvola 1V1"},
    {6, "2Y1", "Q0.3", "Bobina Set    Valvola 2V1"},
    {6, "2Y2", "Q0.4", "Bobina Reset  Valvola 2V1"},
    {6, "3Y1", "Q0.5", "Bobina Set    Valvola 3V1"},
    {6, "3Y2", "Q0.6", "Bobina Reset  Valvola 3V1"},
    {6, "HL1", "Q0.7", "Lampada Blu"},
    {6, "HL2", "Q1.0", "Lampada Verde"},
    {6, "HL3", "Q1.1", "Lampada Verde"},
    {6, "HL4", "Q1.2", "Lampada Blu"},
    {6, "HL5", "Q1.3", "Lampada Verde "},
    {6, "HL6", "Q1.4", "Lampada Rossa  "},
    {7, "a0", "I0.0", "Micro (NO) posizione 0(-) Pistone A"},
    {7, "a1", "I0.1", "Micro (NO) posizione 1(+) Pistone A"},
    {7, "b0", "I0.2", "Micro (NO) posizione 0(-) Pistone B"},
    {7, "b1", "I0.3", "Micro (NO) posizione 1(+) Pistone B"},
    {7, "c0", "I0.4", "Micro (NO) posizione 0(-) Pistone C"},
    {7, "c1", "I0.5", "Micro (NO) posizione 1(+) Pistone C"},
    {7, "d0", "I0.6", "Micro (NO) posizione 0(-) Pistone D"},
    {7, "d1", "I0.7", "Micro (NO) posizione 1(+) Pistone D"},
    {7, "SB1", "I1.0", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {7, "SB2", "I1.1", "Pulsante (NO) 'Start Ciclo Singolo'"},
    {7, "SB3", "I1.2", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {7, "SB4", "I1.3", "Pulsante (NO) "},
    {7, "SB5", "I1.4", "Pulsante (NC) Simulatore emergenza esterna"},
    {7, "SA", "I1.5", "Selettore (NO) ON/OFF 'Aria Compressa'"},
    {7, "1Y1", "Q0.0", "Bobina Set  Valvola  1V1"},
    {7, "1Y2", "Q0.1", "Bobina Reset Valvola 1V1"},
    {7, "2Y1", "Q0.2", "Bobina Set  Valvola  2V1"},
    {7, "2Y2", "Q0.3", "Bobina Reset Valvola 2V1"},
    {7, "3Y1", "Q0.4", "Bobina Set  Valvola  3V1"},
    {7, "3Y2", "Q0.5", "Bobina Reset Valvola 3V1"},
    {7, "4Y1", "Q0.6", "Bobina Set  Valvola  4V1"},
    {7, "4Y2", "Q0.7", "Bobina Reset Valvola 4V1"},
    {7, "0Y1", "Q1.0", "Bobina Eccitazione valvola distributrice 0V"},
    {7, "HL1", "Q1.1", "Lampada Blu 'Presenza Aria'"},
    {7, "HL2", "Q1.2", "Lampada Verde 'Modo Automatico'"},
    {7, "HL3", "Q1.3", "Lampada Verde "},
    {15, "a0", "I0.0", "Micro (NO) posizione - Pistone A"},
    {15, "a1", "I0.1", "Micro (NO) posizione + Pistone A"},
    {15, "b0", "I0.2", "Micro (NO) posizione - Pistone B"},
    {15, "b1", "I0.3", "Micro (NO) posizione + Pistone B"},
    {15, "c0", "I0.4", "Micro (NO) posizione - Pistone C"},
    {15, "c1", "I0.5", "Micro (NO) posizione + Pistone C"},
    {15, "SA", "I0.6", "Selettore (NO) 'ON/OFF aria compressa'"},
    {15, "SB1", "I0.7", "Pulsante (NO) 'Start Ciclo Automatico'"},
    {15, "SB2", "I1.0", "Pulsante (NO) 'Start Ciclo Singolo'"},
    {15, "SB3", "I1.1", "Pulsante (NC) 'Stop Ciclo Automatico'"},
    {15, "SB4", "I1.2", "Pulsante (NC)"},
    {15, "SB5", "I1.3", "Pulsante (NC) simulazione emergenza esterna"},
    {15, "0Y1", "Q0.0", "Bobina eccitazione elettrovalvola 0V"},
    {15, "1Y1", "Q0.1", "Bobina eccitazione elettrovalvola 1V1"},
    {15, "2Y1", "Q0.2", "Bobina eccitazione elettrovalvola 2V1"},
    {15, "3Y1", "Q0.3", "Bobina eccitazione elettrovalvola 3V1"},
    {15, "HL1", "Q0.4", "Lampada Blu (Segnalazione Aria)"},
    {15, "HL2", "Q0.5", "Lampada Verde (Ciclo Automatico)"},
    {15, "HL3", "Q0.6", "Lampada Verde ()"},
    {15, "HL4", "Q0.7", "Lampada Blu ()"},
    {15, "HL5", "Q1.0", "Lampada Rossa ()"},
    {15, "HL6", "Q1.1", "Lampada Rossa ()"},
};
// clang-format on

class PneumaticIoTable : public ::testing::TestWithParam<int> {};

TEST_P(PneumaticIoTable, HasTheseRowsInThisOrder) {
  const int esercizio = GetParam();
  std::vector<std::string> attese, viste;
  for (const Prova_Riga_IO& riga : righe_pneumatiche) {
    if (riga.Esercizio == esercizio)
      attese.push_back(std::string(riga.Simbolo) + "|" + riga.Indirizzo + "|" + riga.Commento);
  }
  for (const Riga_IO& riga : Tabella_Esercizi()[static_cast<std::size_t>(esercizio)].Righe_IO)
    viste.push_back(std::string(riga.Simbolo) + "|" + riga.Indirizzo + "|" + riga.Commento);
  EXPECT_EQ(viste, attese);
}

INSTANTIATE_TEST_SUITE_P(All, PneumaticIoTable, ::testing::Values(4, 5, 6, 7, 15));

}  // namespace tavorno::prova
