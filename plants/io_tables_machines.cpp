// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/io_tables.h"

namespace tavorno {

namespace {

// The inputs and outputs of gate, garage, lift, crossing and axis. The wording is that of the
// sheets students have in hand: misspellings and blanks are part of it.

// clang-format off

// 09, electric gate
constexpr Riga_IO righe_09[] = {
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

// 11, automatic garage
constexpr Riga_IO righe_11[] = {
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

// 14, lift
constexpr Riga_IO righe_14[] = {
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

// 16, pedestrian crossing
constexpr Riga_IO righe_16[] = {
    {"SB2", "I0.0", "Pulsante (NA) prenotazione pedone"},
    {"SB1", "I0.1", "Pulsante (NA) prenotazione pedone"},
    {"HL4", "Q0.0", "Lampada rossa pedonale"},
    {"HL5", "Q0.1", "Lampada Verde Pedonale"},
    {"HL1", "Q0.2", "Lampada Rossa Veicoli"},
    {"HL2", "Q0.3", "Lampada Gialla Veicoli"},
    {"HL3", "Q0.4", "Lampada Verde Veicoli"},
};

// 17, position control axis
constexpr Riga_IO righe_17[] = {
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

}  // namespace

Elenco_IO Righe_IO_09() {
  return righe_09;
}
Elenco_IO Righe_IO_11() {
  return righe_11;
}
Elenco_IO Righe_IO_14() {
  return righe_14;
}
Elenco_IO Righe_IO_16() {
  return righe_16;
}
Elenco_IO Righe_IO_17() {
  return righe_17;
}

}  // namespace tavorno
