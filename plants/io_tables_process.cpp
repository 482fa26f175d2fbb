// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/io_tables.h"

namespace tavorno {

namespace {

// The inputs and outputs of the tank and of the mixers. The wording is that of the sheets students
// have in hand: misspellings and blanks are part of it.

// clang-format off

// 08, tank level
constexpr Riga_IO righe_08[] = {
    {"SL1", "I0.0", "Micro (NC) Livello Max vasca di carico"},
    {"SL2", "I0.1", "Micro (NC) Livello Min vasca di carico"},
    {"FR1", "I0.2", "Contatto (NC) Relè Termico motore pompa P1"},
    {"SL3", "I0.3", "Micro (NC) Livello Min Serbatoio"},
    {"SL4", "I0.4", "Micro (NC) Livello 1/2 Serbatoio"},
    {"SL5", "I0.5", "Micro (NC) Livello Max Serbatoio"},
    {"SA1", "I0.6", "Selettore (NO) Automatico/Manuale"},
    {"SB1", "I0.7", "Pulsante (NC)"},
    {"SA2", "I1.0", "Selettore (NO) Comando Manuale elettrov. YV1"},
    {"SA3", "I1.1", "Selettore (NO) Comando Manuale elettrov. YV2"},
    {"SA4", "I1.2", "Selettore (NO) Comando Manuale Pompa P1"},
    {"SB3", "I1.3", "Pulsante (NC) 'Stop Automatico'"},
    {"SB2", "I1.4", "Pulsante (NO) 'Start Automatico'"},
    {"YV1", "Q0.0", "Elettrovalvola mandata Vasca di carico"},
    {"KM1", "Q0.1", "Contattore motore pompa P1"},
    {"YV2", "Q0.2", "Elettrovalvola scarico serbatoio"},
    {"HL1", "Q0.3", "Lampada verde 'Pompa ON'"},
    {"HL2", "Q0.4", "Lampada Gialla 'Termico Scattato'"},
    {"HL3", "Q0.5", "Lampada Rossa 'Vasca di Carico Vuota'"},
    {"HL4", "Q0.6", "Lampada Blu 'Modo Automatico' "},
};

// 10, mixer with temperature control
constexpr Riga_IO righe_10[] = {
    {"BF1", "I0.0", "Contatto (NO) Trasduttore  portata prodotto 1"},
    {"BF2", "I0.1", "Contatto (NO) Trasduttore  portata prodotto 2"},
    {"FR1", "I0.2", "Contatto (NC) relè termico motore M1"},
    {"FR2", "I0.3", "Contatto (NC) relè termico motore M2"},
    {"BL1", "I0.4", "Bit 1 Trasduttore Livello"},
    {"BL2", "I0.5", "Bit 0 Trasduttore Livello"},
    {"FR3", "I0.6", "Contatto (NC) Relè termico motore M3"},
    {"BT", "I0.7", "Contatto (NO) Termostato temperatura miscela"},
    {"FR4", "I1.0", "Contatto (NC) Relè termico motore M4"},
    {"SA1", "I1.1", "Contatto (NO) Selettore Automatico/Manuale"},
    {"SB1", "I1.2", "Pulsante (NO) Start Ciclo automatico"},
    {"SB2", "I1.3", "Pulsante (NC) Stop  Ciclo automatico"},
    {"SA2", "I1.4", "Contatto (NO) Selettore ON/OFF 'Carico Prodotto 1'"},
    {"SA3", "I1.5", "Contatto (NO) Selettore ON/OFF 'Carico Prodotto 2'"},
    {"SA4", "I1.6", "Contatto (NO) Selettore ON/OFF 'Scarico Miscela'"},
    {"SA5", "I1.7", "Contatto (NO) Selettore ON/OFF 'Agitatore-Vapore'"},
    {"KM1", "Q0.0", "Motore Pompa P1"},
    {"KM2", "Q0.1", "Motore Pompa P2"},
    {"KM3", "Q0.2", "Motore Pompa P3"},
    {"YV4", "Q0.3", "Elettrovalvola Vapore"},
    {"KM4", "Q0.4", "Motore Mescolatore"},
    {"YV1", "Q0.5", "Elettrovalvola Mandata Prodotto 1"},
    {"YV2", "Q0.6", "Elettrovalvola Mandata Prodotto 2"},
    {"YV3", "Q0.7", "Elettrovalvola Scarico Miscela"},
    {"HL1", "Q1.0", "Lampada Verde"},
    {"HL2", "Q1.1", "Lampada Verde"},
    {"HL3", "Q1.2", "Lampada Blu "},
    {"HL4", "Q1.3", "Lampada Rossa "},
    {"HL5", "Q1.4", "Lampada Gialla "},
    {"HL6", "Q1.5", "Lampada Gialla "},
    {"HL7", "Q1.6", "Lampada Gialla "},
    {"HL8", "Q1.7", "Lampada Gialla "},
    {"Level", "AIW0", "Segnale analogico 0-10 V Livello"},
    {"Temp", "AIW2", "Segnale analogico 0-10 V Temperatura"},
    {"Set_P", "AIW4", "Segnale analogico 0-10 V Set Point Temperatura"},
};

// 12, mixer of two liquids
constexpr Riga_IO righe_12[] = {
    {"BF1", "I0.0", "Trasduttore digitale portata prodotto 1"},
    {"BF2", "I0.1", "Trasduttore digitale portata prodotto 2"},
    {"BL1", "I0.2", "Bit 1 trasdutorre livello"},
    {"BL2", "I0.3", "Bit 0 trasdutorre livello"},
    {"SB1", "I0.4", "Pulsante (NC) emergenza esterna"},
    {"SA", "I0.5", "Selettore (NO) 'Manuale/Automatico'"},
    {"SB11", "I0.6", "Pulsante (NO) 'Start automatico'"},
    {"SB10", "I0.7", "Pulsante (NC) 'Stop automatico'"},
    {"SB2", "I1.0", "Pulsante (NO) Start Carico prodotto 1 in manuale"},
    {"SB3", "I1.1", "Pulsante (NC) Stop  Carico prodotto 1 in manuale"},
    {"SB4", "I1.2", "Pulsante (NO) Start Carico prodotto 2 in manuale"},
    {"SB5", "I1.3", "Pulsante (NC) Stop  Carico prodotto 2 in manuale"},
    {"SB6", "I1.4", "Pulsante (NO) Start Mescolatore-Vapore in manuale"},
    {"SB7", "I1.5", "Pulsante (NC) Stop  Mescolatore-Vapore in manuale"},
    {"SB8", "I1.6", "Pulsante (NO) Start Scarico Miscela in manuale"},
    {"SB9", "I1.7", "Pulsante (NC) Stop  Scarico Miscela in manuale"},
    {"YV1", "Q0.0", "Elettrovalvola mandata Prodotto 1"},
    {"KM1", "Q0.1", "Motore Pompa P1"},
    {"KM2", "Q0.2", "Motore Pompa P2"},
    {"YV2", "Q0.3", "Elettrovalvola mandata Prodotto 2"},
    {"YV3", "Q0.4", "Elettrovalvola Scarico miscela"},
    {"KM3", "Q0.5", "Motore Agitatore M3"},
    {"HL1", "Q0.6", "Lampada Verde "},
    {"HL2", "Q0.7", "Lampada Verde"},
    {"HL3", "Q1.0", "Lampada Verde"},
    {"HL4", "Q1.1", "Lampada Verde"},
    {"HL5", "Q1.2", "Lampada Gialla"},
    {"HL6", "Q1.3", "Lampada Blu "},
    {"HL7", "Q1.4", "Lampada Blu"},
    {"HL8", "Q1.5", "Lampada Rossa"},
    {"YV4", "Q1.6", "Elettrovalvola Vapore"},
    {"AI", "AIW0", "Valore analogico livello (0-10V) su ingresso AIW0"},
};

// 13, mixer with four inlets
constexpr Riga_IO righe_13[] = {
    {"SB1", "I0.0", "Pulsante (NO) Start ciclo"},
    {"SL1", "I0.1", "Micro (NC) Livello 1 serbatoio"},
    {"SL2", "I0.2", "Micro (NC) Livello 2 serbatoio"},
    {"SL3", "I0.3", "Micro (NC) Livello 3 serbatoio"},
    {"SL4", "I0.4", "Micro (NC) Livello 4 serbatoio"},
    {"SB2", "I0.5", "Pulsante (NC) Stop Ciclo"},
    {"SL0", "I0.6", "Micro (NC) Serbatoio vuoto"},
    {"SB3", "I0.7", "Pulsante (NO) Reset ind. manutenzione"},
    {"FR1", "I1.0", "Contatto (NC) relè termico M1"},
    {"FR2", "I1.1", "Contatto (NC) relè termico M2"},
    {"SA", "I1.2", "Selettore ON/OFF Scarico miscela"},
    {"SB4", "I1.3", "Pulsante (NC) emergenza esterna"},
    {"BF", "I1.4", "Contatto (NO) trasduttore digitale flusso"},
    {"YV1", "Q0.0", "Elettrovalvola mandata Prodotto A"},
    {"YV2", "Q0.1", "Elettrovalvola mandata Prodotto B"},
    {"YV3", "Q0.2", "Elettrovalvola mandata Prodotto C"},
    {"YV4", "Q0.3", "Elettrovalvola mandata Prodotto D"},
    {"KM2", "Q0.4", "Comando motore mescolatore M2"},
    {"KM1", "Q0.5", "Comando motore pompa P1"},
    {"YV5", "Q0.6", "Elettrovalcola Scarico miscela"},
    {"HL0", "Q0.7", "Lampada Rossa (Manutenzione M1)"},
    {"HL1", "Q1.0", "Lampada Rossa (Manutenzione M2)"},
    {"HL2", "Q1.1", "Lampada Verde (Ciclo Attivo)"},
    {"HL6", "Q1.2", "Lampada Blu (Fine Ciclo)"},
    {"HL3", "Q1.3", "Lampada Verde (Serbatoio in scarico)"},
    {"HL4", "Q1.4", "Lampada Verde (Motore M1 ON)"},
    {"HL5", "Q1.5", "Lampada Verde (Motore M2 ON)"},
    {"HL7", "Q1.6", "Lampada Gialla (Termico M1 Scattato)"},
    {"HL8", "Q1.7", "Lampada Gialla (Termico M2 Scattato)"},
    {"AI", "AIW0", "Valore analogico livello (0-10V) su ingresso AIW0"},
};

// clang-format on

}  // namespace

Elenco_IO Righe_IO_08() {
  return righe_08;
}
Elenco_IO Righe_IO_10() {
  return righe_10;
}
Elenco_IO Righe_IO_12() {
  return righe_12;
}
Elenco_IO Righe_IO_13() {
  return righe_13;
}

}  // namespace tavorno
