// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/recording.h"

#include "plants/exercises.h"
#include "run_bed.h"

namespace tavorno::prova {
namespace {

using Coppie = std::vector<std::pair<std::int64_t, double>>;

class Recording : public Banco_Tracce {};

TEST_F(Recording, FollowsTheScansOfARun) {
  Carica({"LD I0.0", "= Q0.0", "LD SM0.0", "INCW VW0"});
  for (const char* nome : {"I0.0", "Q0.0", "VW0"}) Registra(nome);
  const Iscrizione orologio = plc.Hook.Ascolta_Cedi([&] {
    if (plc.PC == 0) seduta.orologio.Avanza(1);
  });
  const Sonda sonda(plc, registrazione);
  int scansione = 0;
  const Iscrizione mani = plc.Hook.Ascolta_Cedi([&] {
    if (plc.PC != 0) return;
    if (scansione == 3) plc.SI[0].Stato_I("10000000");
    if (scansione == 6) plc.SI[0].Stato_I("00000000");
    if (++scansione > 9) plc.mnuPlcStop();
  });
  plc.mnuPlcRun();
  // The hands move behind the sample: they are seen a scan later, and the output one later still.
  const std::int64_t inizio = registrazione.Inizio();
  EXPECT_EQ(Cambi("I0.0"), (Coppie{{inizio, 0}, {inizio + 4, 1}, {inizio + 7, 0}}));
  EXPECT_EQ(Cambi("Q0.0"), (Coppie{{inizio, 0}, {inizio + 4, 1}, {inizio + 7, 0}}));
  ASSERT_EQ(Cambi("VW0").size(), 10U);
  EXPECT_EQ(registrazione.Fine(), inizio + 9);
  EXPECT_EQ(registrazione.Inizi_Scansione().Fra(inizio, inizio + 100, 100).size(), 10U);
}

TEST_F(Recording, WithoutAProbeNobodyListens) {
  Carica({"LD I0.0"});
  { const Sonda sonda(plc, registrazione); }
  EXPECT_FALSE(plc.Hook.Cedi_Ascoltato());
}

TEST_F(Recording, AStandingCpuIsRecordedWhenLookedAtAndHalfAScanIsNot) {
  Carica({"LD SM0.0", "= M0.0", "= Q0.0"});
  Registra("M0.0");
  Sonda sonda(plc, registrazione);
  sonda.Guarda();
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 0}}));
  plc.mnuPlcStep();
  plc.mnuPlcRun();
  seduta.orologio.Avanza(7);
  for (int riga = 0; riga < 3; ++riga) plc.CmdStep();
  sonda.Guarda();
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 0}, {7, 1}}));
  sonda.In_Pausa = true;
  plc.Mem_M[0].Bit[0] = 0;
  sonda.Guarda();
  EXPECT_EQ(Cambi("M0.0").size(), 2U);
  plc.Attivi.CmdStep = false;  // as in the middle of a run
  sonda.In_Pausa = false;
  sonda.Guarda();
  EXPECT_EQ(Cambi("M0.0").size(), 2U);
}

TEST_F(Recording, EachStepThatIsGivenByHandIsSeenAtItsMoment) {
  Carica({"LD SM0.0", "= M0.0", "LDN SM0.0", "= M0.0"});
  Registra("M0.0");
  plc.mnuPlcStep();
  plc.mnuPlcRun();
  Sonda sonda(plc, registrazione);
  sonda.Guarda();
  for (int riga = 0; riga < 7; ++riga) {
    plc.Entra({.Che = Cosa::Presente, .Numero = 10 * (riga + 1)});
    plc.Entra(Comando_Corsa::Passo);
  }
  // Line 0 is the network; nobody has looked meanwhile.
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 0}, {30, 1}, {50, 0}}));
}

TEST_F(Recording, WhereTheClockHasGoneBackWhatCameAfterDidNotHappen) {
  Registra("M0.0");
  Sonda sonda(plc, registrazione);
  const auto a = [&](std::int64_t ms, std::uint8_t valore) {
    seduta.orologio.Rimetti(ms);
    plc.Mem_M[0].Bit[0] = valore;
    sonda.Guarda();
  };
  a(0, 0);
  a(10, 1);
  a(30, 0);
  plc.Hook.Adesso = Vissuto::Passato;
  a(15, 1);
  EXPECT_EQ(registrazione.Fine(), 30) << "the past is only looked at";
  plc.Hook.Adesso = Vissuto::Presente;
  a(15, 1);
  EXPECT_EQ(registrazione.Fine(), 15);
  a(40, 0);
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 0}, {10, 1}, {40, 0}}));
}

TEST_F(Recording, ASignalThatComesLateBeginsLate) {
  Disegna_Onda("M0.0", {{0, 0}, {10, 1}});
  Disegna_Onda("M0.1", {{20, 1}});
  EXPECT_EQ(Cambi("M0.1"), (Coppie{{20, 1}}));
  EXPECT_EQ(registrazione.Aggiungi(Fai_Segnale("altro", "M0.1")), 1U) << "it is there already";
  EXPECT_EQ(registrazione.Chi(1).Nome, "altro");
  registrazione.Togli(0);
  EXPECT_FALSE(registrazione.Cerca("M0.0"));
  EXPECT_EQ(registrazione.Cerca("M0.1"), 1U);
}

TEST_F(Recording, WhatComesAfterAMomentCanBeTakenBack) {
  Disegna_Onda("M0.0", {{0, 0}, {10, 1}, {20, 0}});
  registrazione.Taglia(15);
  EXPECT_EQ(registrazione.Fine(), 15);
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 0}, {10, 1}}));
  Disegna_Onda("M0.0", {{16, 0}});
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 0}, {10, 1}, {16, 0}}));
}

TEST_F(Recording, ForgetsAllAndBeginsAnewAtAnotherTime) {
  Disegna_Onda("M0.0", {{5000, 0}, {5010, 1}});
  registrazione.Scansione(5010, 3);
  registrazione.Svuota();
  EXPECT_TRUE(registrazione.Vuota());
  EXPECT_EQ(Cambi("M0.0"), Coppie{});
  EXPECT_TRUE(registrazione.Inizi_Scansione().Fra(0, 10'000, 10).empty());
  Disegna_Onda("M0.0", {{7, 1}, {9, 0}});
  EXPECT_EQ(registrazione.Inizio(), 7);
  EXPECT_EQ(registrazione.Fine(), 9);
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{7, 1}, {9, 0}}));
}

TEST_F(Recording, TheBusiestSignalForgetsItsOlderHalf) {
  registrazione.Cambi_Massimi = 100;
  Disegna_Onda("M0.0", {{0, 1}});
  Registra("VW0");
  for (int ms = 1; ms <= 1000; ++ms) {
    plc.Mem_VW[0] = static_cast<std::int16_t>(ms);
    registrazione.Campiona(ms, plc);
  }
  EXPECT_LE(Cambi("VW0").size(), 100U);
  EXPECT_GE(Cambi("VW0").size(), 40U);
  EXPECT_EQ(Cambi("VW0").back(), (std::pair<std::int64_t, double>{1000, 1000}));
  EXPECT_EQ(Cambi("M0.0"), (Coppie{{0, 1}}));
}

TEST_F(Recording, AStretchBecomesAFileOfChanges) {
  Disegna_Onda("M0.0", {{0, 0}, {10, 1}, {20, 0}, {30, 1}});
  Disegna_Onda("T37.Val", {{30, 5}, {40, -3}});
  const Traccia traccia = registrazione.Ritaglio({0, 1}, 15, 45);
  const std::string vcd = Testo_Vcd(traccia);
  for (const char* parte :
       {"$scope module marker $end\n$var wire 1 ! M0_0 $end", "$var integer 32 \" T37_Val $end",
        "#0\nb1 #\n1!\n", "#5\n0!\n", "#15\n1!\nb101 \"\n",
        "#25\nb11111111111111111111111111111101 \"\n", "#30\n"})
    EXPECT_THAT(vcd, ::testing::HasSubstr(parte)) << vcd;
}

// ---- which signals ------------------------------------------------------------------------------

std::vector<std::string> Nomi(const std::vector<Segnale>& segnali) {
  std::vector<std::string> nomi;
  for (const Segnale& segnale : segnali) nomi.push_back(segnale.Nome + "/" + segnale.Indirizzo);
  return nomi;
}

TEST_F(Recording, TheProgramNamesItsSignals) {
  Carica({"LD I0.0", "A M1.2", "TON T37, +50", "LDW>= T37, VW10", "= Q0.3", "LD SM0.5",
          "MOVW VW10, VW12"});
  EXPECT_THAT(Nomi(Segnali_Di({}, plc)),
              ::testing::ElementsAre("I0.0/I0.0", "M1.2/M1.2", "T37/T37", "T37.Val/T37.Val",
                                     "VW10/VW10", "Q0.3/Q0.3", "VW12/VW12"));
  EXPECT_EQ(Segnali_Di({}, plc, 3).size(), 3U);
}

TEST_F(Recording, ThePlantsSymbolsComeFirst) {
  Carica({"LD I0.0", "= M0.0"});
  const Esercizio& cancello = Tabella_Esercizi()[9];
  const auto segnali = Segnali_Di(cancello.Righe_IO, plc);
  ASSERT_EQ(segnali.size(), cancello.Righe_IO.size() + 1);
  EXPECT_EQ(segnali[0].Nome, cancello.Righe_IO[0].Simbolo);
  EXPECT_EQ(segnali.back().Indirizzo, "M0.0");
  const std::string simbolo = cancello.Righe_IO[0].Simbolo;
  ASSERT_TRUE(Cerca_Segnale(simbolo, cancello.Righe_IO));
  EXPECT_EQ(Cerca_Segnale(simbolo, cancello.Righe_IO)->Indirizzo, cancello.Righe_IO[0].Indirizzo);
  EXPECT_EQ(Cerca_Segnale("vw7", cancello.Righe_IO)->Indirizzo, "VW7");
  EXPECT_FALSE(Cerca_Segnale("VW777", cancello.Righe_IO));
  EXPECT_FALSE(Cerca_Segnale("", {}));
}

TEST(Address, IsWrittenAsItIsRead) {
  for (const char* testo : {"I0.0", "Q1.7", "M4.3", "SM0.5", "S2.1", "T37", "T37.Val", "T37.PT",
                            "C5.PV", "IB1", "MB4", "VB3", "VW100", "VD7", "AC3", "AIW4", "AQW2"}) {
    ASSERT_TRUE(Leggi_Indirizzo(testo)) << testo;
    EXPECT_EQ(Testo_Indirizzo(*Leggi_Indirizzo(testo)), testo);
  }
}

TEST(Signal, ValuesAreWrittenAsTheyAreRead) {
  EXPECT_EQ(Testo_Valore(Fai_Segnale("", "I0.0"), 1), "1");
  EXPECT_EQ(Testo_Valore(Fai_Segnale("", "VW0"), -32768), "-32768");
  EXPECT_EQ(Testo_Valore(Fai_Segnale("", "AIW0"), 3.3F), "3,30 V");
  EXPECT_EQ(Testo_Valore(Fai_Segnale("", "AC0"), 2.5), "2,5");
}

}  // namespace
}  // namespace tavorno::prova
