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

// SlidP tells of its scrolling only, slid1 of every change and so of its first value too.
constexpr Cursore aria_5[] = {
    {.Nome = "SlidP", .Cornice = "Pressione Aria", .Minimo = 1, .Massimo = 10, .Passo_Grande = 5, .Inizio = 1,
     .Scrive = "ME_Speed", .Zero = 0, .Pendenza = 1},
};
constexpr Cursore aria_2[] = {
    {.Nome = "SlidP", .Cornice = "Pressione Aria", .Minimo = 1, .Massimo = 10, .Passo_Grande = 2, .Inizio = 1,
     .Scrive = "ME_Speed", .Zero = 0, .Pendenza = 1},
};
constexpr Cursore aria_15[] = {
    {.Nome = "slid1", .Cornice = "Pressione Aria", .Minimo = 1, .Massimo = 10, .Passo_Grande = 2, .Inizio = 5,
     .Al_Caricamento = true, .Scrive = "ME_Speed", .Zero = 0, .Pendenza = 1},
};

constexpr Cursore pompe_10[] = {
    {.Nome = "Slid(0)", .Cornice = "Portata Pompa P1", .Minimo = 1, .Massimo = 6, .Passo_Grande = 2, .Inizio = 3,
     .Scrive = "ME_Speed1", .Zero = 700, .Pendenza = -100},
    {.Nome = "Slid(1)", .Cornice = "Portata Pompa P2", .Minimo = 1, .Massimo = 6, .Passo_Grande = 2, .Inizio = 3,
     .Scrive = "ME_Speed2", .Zero = 700, .Pendenza = -100},
    {.Nome = "Slid(2)", .Cornice = "Portata Pompa P3", .Minimo = 1, .Massimo = 6, .Passo_Grande = 2, .Inizio = 3,
     .Scrive = "ME_SpeedS", .Zero = 700, .Pendenza = -100},
};
constexpr Cursore pompe_12[] = {
    {.Nome = "Slid(0)", .Cornice = "Portata Pompa P1", .Minimo = 1, .Massimo = 6, .Passo_Grande = 2, .Inizio = 5,
     .Scrive = "ME_SpedP1", .Zero = 700, .Pendenza = -100},
    {.Nome = "Slid(1)", .Cornice = "Portata Pompa P2", .Minimo = 1, .Massimo = 6, .Passo_Grande = 2, .Inizio = 5,
     .Scrive = "ME_SpedP2", .Zero = 700, .Pendenza = -100},
    {.Nome = "Slid(2)", .Cornice = "Portata Scarico", .Minimo = 1, .Massimo = 6, .Passo_Grande = 2, .Inizio = 6,
     .Scrive = "ME_SpedS", .Zero = 700, .Pendenza = -100},
};
constexpr Cursore pompe_13[] = {
    {.Nome = "slid1(0)", .Cornice = "Velocità Carico", .Minimo = 10, .Massimo = 50, .Passo_Grande = 10, .Inizio = 30,
     .Al_Caricamento = true, .Scrive = "ME_SpedP", .Zero = 600, .Pendenza = -10},
    {.Nome = "slid1(1)", .Cornice = "Velocità Scarico", .Minimo = 10, .Massimo = 50, .Passo_Grande = 10, .Inizio = 20,
     .Al_Caricamento = true, .Scrive = "ME_SpedS", .Zero = 600, .Pendenza = -10},
};
constexpr Cursore garage[] = {
    {.Nome = "slid1(0)", .Cornice = "Velocità Azioni", .Minimo = 1, .Massimo = 10, .Passo_Grande = 2, .Inizio = 8,
     .Al_Caricamento = true, .Scrive = "ME_Speed", .Zero = 0, .Pendenza = 10},
    {.Nome = "slid1(2)", .Cornice = "Velocità Carico", .Minimo = 10, .Massimo = 50, .Passo_Grande = 10, .Inizio = 10},
};
constexpr Cursore ascensore[] = {
    {.Nome = "slid1(0)", .Cornice = "Velocità Cabina", .Minimo = 1, .Massimo = 5, .Passo_Grande = 2, .Inizio = 2,
     .Al_Caricamento = true, .Scrive = "ME_DeltaS", .Zero = 0, .Pendenza = 10},
    {.Nome = "slid1(1)", .Cornice = "Isteresi FC Piani", .Minimo = 1, .Massimo = 20, .Passo_Grande = 5, .Inizio = 5,
     .Al_Caricamento = true, .Scrive = "ME_DeltaP", .Zero = 0, .Pendenza = 10},
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
      {.Indice = 0, .Voce = "00-Marcia/Arresto M.A.T.",
       .Host = "frmMA", .Nome = "MA", .Classe = "KM", .Pagina = "US-00.htm",
       .Titolo = " 00-Marcia/arresto M.A.T.",
       .Testo_I = "MA_Stato_I", .Testo_Q = "MA_Stato_Q", .Altezza_Chiusa = 3495, .Altezza_Aperta = 5445,
       .Voce_IO = assegn, .Scheda_2 = ipostazioni,
       .Righe_IO = Righe_IO_00(), .Crea = Crea_KM},
      {.Indice = 1, .Voce = "01-Inversione di Marcia M.A.T.",
       .Host = "frmInversione", .Nome = "INV", .Classe = "INV", .Pagina = "US-01.htm",
       .Titolo = " 01-Inversione di Marcia M.A.T.",
       .Testo_I = "INV_StatoI", .Testo_Q = "INV_StatoQ", .Altezza_Chiusa = 4350, .Altezza_Aperta = 6405,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni,
       .Righe_IO = Righe_IO_01(), .Crea = Crea_Senza_Tempo<INV>},
      {.Indice = 2, .Voce = "02-Avviatore Stella-Triangolo",
       .Host = "frmSteTri", .Nome = "ST", .Classe = "ST", .Pagina = "US-02.htm",
       .Titolo = " 02-Teleavviatore Stella/Triangolo per M.A.T.",
       .Testo_I = "ST_StatoI", .Testo_Q = "ST_StatoQ", .Altezza_Chiusa = 4110, .Altezza_Aperta = 6210,
       .Voce_IO = assegnaz_2, .Scheda_2 = impostazioni,
       .Righe_IO = Righe_IO_02(), .Crea = Crea_ST<Schema_ST>},
      {.Indice = 3, .Voce = "03-Ciclo Automatico di due unità",
       .Host = "frmSTC", .Nome = "ST", .Classe = "ST2", .Pagina = "US-03.htm",
       .Titolo = " 03-Ciclo automatico per due unità operatrici.",
       .Testo_I = "ST_StatoI", .Testo_Q = "ST_StatoQ", .Altezza_Chiusa = 4230, .Altezza_Aperta = 6345,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni,
       .Righe_IO = Righe_IO_03(), .Crea = Crea_ST<Schema_ST2>},
      {.Indice = 4, .Voce = "04-Ciclo Elettropneumatico con un cilindro e valvola bistabile",
       .Host = "frm1P", .Nome = "S1", .Classe = "Pist_1", .Pagina = "US-04.htm",
       .Titolo = " 04-Ciclo elettropneumatico con un cilindro.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 4575, .Altezza_Aperta = 6645,
       .Voce_IO = ass, .Scheda_2 = impostazioni, .Cursori = aria_5,
       .Righe_IO = Righe_IO_04(), .Crea = Crea_Pneumatico<Schema_Pist_1>},
      {.Indice = 5, .Voce = "05-Ciclo Elettropneumatico con due cilindri e valvole bistabili",
       .Host = "frmCicloQ", .Nome = "P1", .Classe = "CicloQ", .Pagina = "US-05.htm",
       .Titolo = " 05-Ciclo Elettropneumatico con due cilindri.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 4575, .Altezza_Aperta = 6645,
       .Voce_IO = ass, .Scheda_2 = impostazioni, .Cursori = aria_5,
       .Righe_IO = Righe_IO_05(), .Crea = Crea_Pneumatico<Schema_CicloQ>},
      {.Indice = 6, .Voce = "06-Ciclo Elettropneumatico con tre cilindri e valvole bistabili",
       .Host = "frm3P", .Nome = "P3", .Classe = "Pist_3", .Pagina = "US-06.htm",
       .Titolo = " 06-Ciclo Elettropneumatico con tre cilindri e valvole bistabili.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 3780, .Altezza_Aperta = 5820,
       .Voce_IO = ass_2, .Scheda_2 = impostazioni, .Cursori = aria_5,
       .Righe_IO = Righe_IO_06(), .Crea = Crea_Pneumatico<Schema_Pist_3>},
      {.Indice = 7, .Voce = "07-Ciclo elettropneumatico con 4 cilindri e valvole bistabili",
       .Host = "frm4P", .Nome = "P4", .Classe = "Pist_4", .Pagina = "US-07.htm",
       .Titolo = " 07-Ciclo Elettropneumatico con quattro cilindri.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 5955, .Altezza_Aperta = 8010,
       .Voce_IO = ass_2, .Scheda_2 = impostazioni, .Cursori = aria_2,
       .Righe_IO = Righe_IO_07(), .Crea = Crea_Pneumatico<Schema_Pist_4>},
      {.Indice = 8, .Voce = "08-Controllo Livello serbatoio",
       .Host = "frmLivello", .Nome = "LV", .Classe = "Ctr_Level0", .Pagina = "US-08.htm",
       .Titolo = " 08-Controllo Livello Serbatoio.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 3765, .Altezza_Aperta = 5775,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni,
       .Righe_IO = Righe_IO_08(), .Crea = Crea_Su_Orologio<Ctr_Level0>},
      {.Indice = 9, .Voce = "09-Cancello Automatico",
       .Host = "frmCancello", .Nome = "CA", .Classe = "Ctr_Canc", .Pagina = "US-09.htm",
       .Titolo = " 09-Automazione Cancello Elettrico.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 3555, .Altezza_Aperta = 5565,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni,
       .Righe_IO = Righe_IO_09(), .Crea = Crea_Su_Orologio<Ctr_Canc>},
      {.Indice = 10, .Voce = "10-Miscelatore di due liquidi con controllo temperatura",
       .Host = "frmMiscela", .Nome = "ML", .Classe = "ctr_Misc", .Pagina = "US-10.htm",
       .Titolo = " 10-Miscelatore di due liquidi con controllo temperatura.",
       .Testo_I = "ME_StatiI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 5400, .Altezza_Aperta = 7425,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Cursori = pompe_10, .Analogici = true,
       .Righe_IO = Righe_IO_10(), .Crea = Crea_Su_Orologio<ctr_Misc>},
      {.Indice = 11, .Voce = "11-Garage Automatico",
       .Host = "frmGar", .Nome = "GA", .Classe = "ctr_Garage", .Pagina = "US-11.htm",
       .Titolo = " 11-Garage automatico.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 6210, .Altezza_Aperta = 8310,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Cursori = garage,
       .Righe_IO = Righe_IO_11(), .Crea = Crea_Su_Orologio<ctr_Garage>},
      {.Indice = 12, .Voce = "12-Miscelatore di due liquidi ",
       .Host = "frmMisc2", .Nome = "ML", .Classe = "ctr_Mis2", .Pagina = "US-12.htm",
       .Titolo = " 12-Miscelatore di due liquidi",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 3795, .Altezza_Aperta = 5865,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Cursori = pompe_12, .Analogici = true,
       .Righe_IO = Righe_IO_12(), .Crea = Crea_Su_Orologio<ctr_Mis2>},
      {.Indice = 13, .Voce = "13-Miscelatore a quattro ingressi",
       .Host = "frmMisc4", .Nome = "MS", .Classe = "ctr_Mis4", .Pagina = "US-13.htm",
       .Titolo = " 13-Miscelatore di liquidi a quattro ingressi.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 4305, .Altezza_Aperta = 6375,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Cursori = pompe_13, .Analogici = true,
       .Righe_IO = Righe_IO_13(), .Crea = Crea_Su_Orologio<ctr_Mis4>},
      {.Indice = 14, .Voce = "14-Ascensore didattico",
       .Host = "frmAsc", .Nome = "MS", .Classe = "ctr_Ascensore", .Pagina = "US-14.htm",
       .Titolo = " 14-Ascensore didattico a quattro piani.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 5955, .Altezza_Aperta = 8025,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Cursori = ascensore, .Analogici = true,
       .Righe_IO = Righe_IO_14(), .Crea = Crea_Su_Orologio<ctr_Ascensore>},
      {.Indice = 15, .Voce = "15-Ciclo elettropneumatico con tre cilindri e valvole monostabili",
       .Host = "frmPist32", .Nome = "MS", .Classe = "ctr_Pist_32", .Pagina = "US-15.htm",
       .Titolo = " 15-Ciclo elettropneumatico con tre cilindri e valvole monostabili.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 3600, .Altezza_Aperta = 5685,
       .Voce_IO = ass, .Scheda_2 = impostazioni, .Cursori = aria_15,
       .Righe_IO = Righe_IO_15(), .Crea = Crea_Pneumatico<Schema_ctr_Pist_32>},
      {.Indice = 16, .Voce = "16-Semaforo Pedonale",
       .Host = "frmSemaf1", .Nome = "CA", .Classe = "ctr_Semaf1", .Pagina = "US-16.htm",
       .Titolo = " 16-Semaforo Pedonale.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 2865, .Altezza_Aperta = 4725,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Ascolta_chkSim = false,
       .Righe_IO = Righe_IO_16(), .Crea = Crea_Senza_Tempo<ctr_Semaf1>},
      {.Indice = 17, .Voce = "17-Controllo analogico di posizione",
       .Host = "frmAssi", .Nome = "MS", .Classe = "ctr_Assi", .Pagina = "US-17.htm",
       .Titolo = " 17-Controllo di Posizione.",
       .Testo_I = "ME_StatoI", .Testo_Q = "ME_StatoQ", .Altezza_Chiusa = 4095, .Altezza_Aperta = 6210,
       .Voce_IO = assegnaz, .Scheda_2 = impostazioni, .Attivare = "Enabled",
       .Righe_IO = Righe_IO_17(), .Crea = Crea_Assi},
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
