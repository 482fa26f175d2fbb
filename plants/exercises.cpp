// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/exercises.h"

#include <algorithm>
#include <array>

#include "plants/axis.h"
#include "plants/crossing.h"
#include "plants/garage.h"
#include "plants/gate.h"
#include "plants/lift.h"
#include "plants/mixer_four.h"
#include "plants/mixer_heated.h"
#include "plants/mixer_two.h"
#include "plants/motor_starter.h"
#include "plants/pneumatic_bench.h"
#include "plants/reversing_starter.h"
#include "plants/star_delta.h"
#include "plants/tank_level.h"

namespace tavorno {

namespace {

// Makers, one for each way of building a plant.

std::unique_ptr<Impianto> Crea_KM(Plc&) {
  auto km = std::make_unique<KM>();
  km->Caption("M1");
  return km;
}

/// Plants without a timer.
template <class Macchina>
std::unique_ptr<Impianto> Crea_Senza_Tempo(Plc&) {
  return std::make_unique<Macchina>();
}

/// Plants that need only the clock.
template <class Macchina>
std::unique_ptr<Impianto> Crea_Su_Orologio(Plc& plc) {
  return std::make_unique<Macchina>(plc.Tempo);
}

std::unique_ptr<Impianto> Crea_Assi(Plc& plc) {
  return std::make_unique<ctr_Assi>(plc);
}

template <const Schema_Avviatore& schema>
std::unique_ptr<Impianto> Crea_ST(Plc&) {
  return std::make_unique<ST>(schema);
}

template <const Schema_Pneumatico& schema>
std::unique_ptr<Impianto> Crea_Pneumatico(Plc& plc) {
  return std::make_unique<Banco_Pneumatico>(schema, plc.Tempo);
}

// clang-format off

// name, frame, min, max, small step, large step, at first, written on load, property, zero, slope

// SlidP tells of its scrolling only, slid1 of every change and so of its first value too.
constexpr Cursore aria_5[] = {{"SlidP", "Pressione Aria", 1, 10, 1, 5, 1, false, "ME_Speed", 0, 1}};
constexpr Cursore aria_2[] = {{"SlidP", "Pressione Aria", 1, 10, 1, 2, 1, false, "ME_Speed", 0, 1}};
constexpr Cursore aria_15[] = {{"slid1", "Pressione Aria", 1, 10, 1, 2, 5, true, "ME_Speed", 0, 1}};

constexpr Cursore pompe_10[] = {
    {"Slid(0)", "Portata Pompa P1", 1, 6, 1, 2, 3, false, "ME_Speed1", 700, -100},
    {"Slid(1)", "Portata Pompa P2", 1, 6, 1, 2, 3, false, "ME_Speed2", 700, -100},
    {"Slid(2)", "Portata Pompa P3", 1, 6, 1, 2, 3, false, "ME_SpeedS", 700, -100},
};
constexpr Cursore pompe_12[] = {
    {"Slid(0)", "Portata Pompa P1", 1, 6, 1, 2, 5, false, "ME_SpedP1", 700, -100},
    {"Slid(1)", "Portata Pompa P2", 1, 6, 1, 2, 5, false, "ME_SpedP2", 700, -100},
    {"Slid(2)", "Portata Scarico",  1, 6, 1, 2, 6, false, "ME_SpedS",  700, -100},
};
constexpr Cursore pompe_13[] = {
    {"slid1(0)", "Velocità Carico",  10, 50, 1, 10, 30, true, "ME_SpedP", 600, -10},
    {"slid1(1)", "Velocità Scarico", 10, 50, 1, 10, 20, true, "ME_SpedS", 600, -10},
};
constexpr Cursore garage[] = {
    {"slid1(0)", "Velocità Azioni",  1, 10, 1,  2,  8, true,  "ME_Speed", 0, 10},
    {"slid1(2)", "Velocità Carico", 10, 50, 1, 10, 10, false, nullptr,    0,  0},
};
constexpr Cursore ascensore[] = {
    {"slid1(0)", "Velocità Cabina",   1,  5, 1, 2, 2, true, "ME_DeltaS", 0, 10},
    {"slid1(1)", "Isteresi FC Piani", 1, 20, 1, 5, 5, true, "ME_DeltaP", 0, 10},
};

// Captions of chkIO.
constexpr const char* assegn      = "Assegn. I/O";
constexpr const char* assegnaz    = "Assegnazione I/O";
constexpr const char* assegnaz_2  = "Assegnazione  I/O";
constexpr const char* ass         = "Ass. I/O";
constexpr const char* ass_2       = "Ass.  I/O";

// Captions of the second tab.
constexpr const char* ipostazioni  = "Ipostazioni";
constexpr const char* impostazioni = "Impostazioni";

auto Esercizi() {
  return std::to_array<Esercizio>({
      {0, "00-Marcia/Arresto M.A.T.",
       "frmMA", "MA", "KM", "US-00.htm",
       " 00-Marcia/arresto M.A.T.",
       "MA_Stato_I", "MA_Stato_Q", 3495, 5445, assegn, ipostazioni,
       {}, false, true, nullptr, Righe_IO_00(), Crea_KM},
      {1, "01-Inversione di Marcia M.A.T.",
       "frmInversione", "INV", "INV", "US-01.htm",
       " 01-Inversione di Marcia M.A.T.",
       "INV_StatoI", "INV_StatoQ", 4350, 6405, assegnaz, impostazioni,
       {}, false, true, nullptr, Righe_IO_01(), Crea_Senza_Tempo<INV>},
      {2, "02-Avviatore Stella-Triangolo",
       "frmSteTri", "ST", "ST", "US-02.htm",
       " 02-Teleavviatore Stella/Triangolo per M.A.T.",
       "ST_StatoI", "ST_StatoQ", 4110, 6210, assegnaz_2, impostazioni,
       {}, false, true, nullptr, Righe_IO_02(), Crea_ST<Schema_ST>},
      {3, "03-Ciclo Automatico di due unità",
       "frmSTC", "ST", "ST2", "US-03.htm",
       " 03-Ciclo automatico per due unità operatrici.",
       "ST_StatoI", "ST_StatoQ", 4230, 6345, assegnaz, impostazioni,
       {}, false, true, nullptr, Righe_IO_03(), Crea_ST<Schema_ST2>},
      {4, "04-Ciclo Elettropneumatico con un cilindro e valvola bistabile",
       "frm1P", "S1", "Pist_1", "US-04.htm",
       " 04-Ciclo elettropneumatico con un cilindro.",
       "ME_StatoI", "ME_StatoQ", 4575, 6645, ass, impostazioni,
       aria_5, false, true, nullptr, Righe_IO_04(), Crea_Pneumatico<Schema_Pist_1>},
      {5, "05-Ciclo Elettropneumatico con due cilindri e valvole bistabili",
       "frmCicloQ", "P1", "CicloQ", "US-05.htm",
       " 05-Ciclo Elettropneumatico con due cilindri.",
       "ME_StatoI", "ME_StatoQ", 4575, 6645, ass, impostazioni,
       aria_5, false, true, nullptr, Righe_IO_05(), Crea_Pneumatico<Schema_CicloQ>},
      {6, "06-Ciclo Elettropneumatico con tre cilindri e valvole bistabili",
       "frm3P", "P3", "Pist_3", "US-06.htm",
       " 06-Ciclo Elettropneumatico con tre cilindri e valvole bistabili.",
       "ME_StatoI", "ME_StatoQ", 3780, 5820, ass_2, impostazioni,
       aria_5, false, true, nullptr, Righe_IO_06(), Crea_Pneumatico<Schema_Pist_3>},
      {7, "07-Ciclo elettropneumatico con 4 cilindri e valvole bistabili",
       "frm4P", "P4", "Pist_4", "US-07.htm",
       " 07-Ciclo Elettropneumatico con quattro cilindri.",
       "ME_StatoI", "ME_StatoQ", 5955, 8010, ass_2, impostazioni,
       aria_2, false, true, nullptr, Righe_IO_07(), Crea_Pneumatico<Schema_Pist_4>},
      {8, "08-Controllo Livello serbatoio",
       "frmLivello", "LV", "Ctr_Level0", "US-08.htm",
       " 08-Controllo Livello Serbatoio.",
       "ME_StatoI", "ME_StatoQ", 3765, 5775, assegnaz, impostazioni,
       {}, false, true, nullptr, Righe_IO_08(), Crea_Su_Orologio<Ctr_Level0>},
      {9, "09-Cancello Automatico",
       "frmCancello", "CA", "Ctr_Canc", "US-09.htm",
       " 09-Automazione Cancello Elettrico.",
       "ME_StatoI", "ME_StatoQ", 3555, 5565, assegnaz, impostazioni,
       {}, false, true, nullptr, Righe_IO_09(), Crea_Su_Orologio<Ctr_Canc>},
      {10, "10-Miscelatore di due liquidi con controllo temperatura",
       "frmMiscela", "ML", "ctr_Misc", "US-10.htm",
       " 10-Miscelatore di due liquidi con controllo temperatura.",
       "ME_StatiI", "ME_StatoQ", 5400, 7425, assegnaz, impostazioni,
       pompe_10, true, true, nullptr, Righe_IO_10(), Crea_Su_Orologio<ctr_Misc>},
      {11, "11-Garage Automatico",
       "frmGar", "GA", "ctr_Garage", "US-11.htm",
       " 11-Garage automatico.",
       "ME_StatoI", "ME_StatoQ", 6210, 8310, assegnaz, impostazioni,
       garage, false, true, nullptr, Righe_IO_11(), Crea_Su_Orologio<ctr_Garage>},
      {12, "12-Miscelatore di due liquidi ",
       "frmMisc2", "ML", "ctr_Mis2", "US-12.htm",
       " 12-Miscelatore di due liquidi",
       "ME_StatoI", "ME_StatoQ", 3795, 5865, assegnaz, impostazioni,
       pompe_12, true, true, nullptr, Righe_IO_12(), Crea_Su_Orologio<ctr_Mis2>},
      {13, "13-Miscelatore a quattro ingressi",
       "frmMisc4", "MS", "ctr_Mis4", "US-13.htm",
       " 13-Miscelatore di liquidi a quattro ingressi.",
       "ME_StatoI", "ME_StatoQ", 4305, 6375, assegnaz, impostazioni,
       pompe_13, true, true, nullptr, Righe_IO_13(), Crea_Su_Orologio<ctr_Mis4>},
      {14, "14-Ascensore didattico",
       "frmAsc", "MS", "ctr_Ascensore", "US-14.htm",
       " 14-Ascensore didattico a quattro piani.",
       "ME_StatoI", "ME_StatoQ", 5955, 8025, assegnaz, impostazioni,
       ascensore, true, true, nullptr, Righe_IO_14(), Crea_Su_Orologio<ctr_Ascensore>},
      {15, "15-Ciclo elettropneumatico con tre cilindri e valvole monostabili",
       "frmPist32", "MS", "ctr_Pist_32", "US-15.htm",
       " 15-Ciclo elettropneumatico con tre cilindri e valvole monostabili.",
       "ME_StatoI", "ME_StatoQ", 3600, 5685, ass, impostazioni,
       aria_15, false, true, nullptr, Righe_IO_15(), Crea_Pneumatico<Schema_ctr_Pist_32>},
      {16, "16-Semaforo Pedonale",
       "frmSemaf1", "CA", "ctr_Semaf1", "US-16.htm",
       " 16-Semaforo Pedonale.",
       "ME_StatoI", "ME_StatoQ", 2865, 4725, assegnaz, impostazioni,
       {}, false, false, nullptr, Righe_IO_16(), Crea_Senza_Tempo<ctr_Semaf1>},
      {17, "17-Controllo analogico di posizione",
       "frmAssi", "MS", "ctr_Assi", "US-17.htm",
       " 17-Controllo di Posizione.",
       "ME_StatoI", "ME_StatoQ", 4095, 6210, assegnaz, impostazioni,
       {}, false, true, "Enabled", Righe_IO_17(), Crea_Assi},
  });
}
// clang-format on

}  // namespace

std::span<const Esercizio> Tabella_Esercizi() {
  static const auto esercizi = Esercizi();
  return esercizi;
}

std::string Simbolo_Impianto(const std::string& indirizzo, const Esercizio* esercizio) {
  if (!esercizio) return {};
  const auto riga = std::ranges::find(esercizio->Righe_IO, indirizzo, &Riga_IO::Indirizzo);
  return riga == esercizio->Righe_IO.end() ? "" : riga->Simbolo;
}

}  // namespace tavorno
