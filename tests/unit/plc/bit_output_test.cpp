// SPDX-License-Identifier: GPL-3.0-or-later
#include <tuple>

#include "one_line.h"

namespace tavorno::prova {

using BitOutput = Cpu;

namespace {

struct Uscita {
  const char* Riga;
  void (*Effetto)(Memoria&, bool flusso);
};

void PrintTo(const Uscita& uscita, std::ostream* os) {
  *os << uscita.Riga;
}

template <int Riga, int Primo, int Ultimo, std::uint8_t Valore>
void Immagine_Q(Memoria& m, bool flusso) {
  for (int bit = Primo; flusso && bit <= Ultimo; ++bit) m.IP_Q[Riga].Bit_Img[bit] = Valore;
}
template <int Riga, int Primo, int Ultimo, std::uint8_t Valore>
void Celle_M(Memoria& m, bool flusso) {
  for (int bit = Primo; flusso && bit <= Ultimo; ++bit)
    m.Mem_M[Riga + bit / 8].Bit[bit % 8] = Valore;
  Marcatori(m);
}
template <int Riga, int Primo, int Ultimo, std::int16_t Valore>
void Celle_S(Memoria& m, bool flusso) {
  for (int bit = Primo; flusso && bit <= Ultimo; ++bit) m.Mem_S[Riga].Bit[bit] = Valore;
}
template <int Riga, int Primo, int Ultimo>
void Subito(Memoria& m, bool flusso) {
  for (int bit = Primo; flusso && bit <= Ultimo; ++bit)
    m.IP_Q[Riga].Bit_Dir[bit] = m.IP_Q[Riga].Bit_Img[bit] = 1;
}
// A reset that reaches the unused cell 8 of the next byte.
void Fino_A_Cella_8(Memoria& m, bool flusso) {
  for (int bit = 0; flusso && bit <= 8; ++bit) {
    if (bit <= 7) m.Mem_M[0].Bit[bit] = 0;
    m.Mem_M[1].Bit[bit] = 0;
  }
  Marcatori(m);
}
template <int Numero>
void Timer_Azzerato(Memoria& m, bool flusso) {
  if (flusso) m.Mem_T[Numero] = {0, 6, 0, 0};
}
template <int Numero>
void Contatore_Azzerato(Memoria& m, bool flusso) {
  if (flusso) m.Mem_C[Numero] = {0, 8, 0, 1, 1};
}
void Nessun_Effetto(Memoria& /*m*/, bool /*flusso*/) {}
void Solo_Marcatori(Memoria& m, bool /*flusso*/) {
  Marcatori(m);
}
template <int Riga, int Bit>
void Bobina_Immediata(Memoria& m, bool flusso) {
  m.IP_Q[Riga].Bit_Img[Bit] = m.IP_Q[Riga].Bit_Dir[Bit] = flusso;
}

const Uscita uscite[] = {
    // An assignment acts every time, to 0 as well.
    {"= Q1.3", [](Memoria& m, bool f) { m.IP_Q[1].Bit_Img[3] = f; }},
    {"= Q0.8", [](Memoria& m, bool f) { m.IP_Q[0].Bit_Img[8] = f; }},
    {"= S4.0", [](Memoria& m, bool f) { m.Mem_S[4].Bit[0] = f; }},
    {"= M2.7",
     [](Memoria& m, bool f) {
       m.Mem_M[2].Bit[7] = f;
       Marcatori(m);
     }},
    {"=I Q0.6", Bobina_Immediata<0, 6>},
    {"=I M1.6", Bobina_Immediata<1, 6>},  // only outputs are meant, whatever is written

    {"S Q0.2, 0", Nessun_Effetto},
    {"S Q0.2, 1", Immagine_Q<0, 2, 2, 1>},
    {"S Q1.2, 5", Immagine_Q<1, 2, 6, 1>},
    {"S Q1.7, 2", Immagine_Q<1, 7, 8, 1>},
    {"S Q0.0, VB2", Immagine_Q<0, 0, 1, 1>},  // the number behind the area is the count
    {"S M1.4, 0", Solo_Marcatori},
    {"S M1.4, 1", Celle_M<1, 4, 4, 1>},
    {"S M4.0, 8", Celle_M<4, 0, 7, 1>},
    {"S S3.1, 0", Nessun_Effetto},
    {"S S3.1, 1", Celle_S<3, 1, 1, 1>},
    {"S S3.1, 7", Celle_S<3, 1, 7, 1>},

    {"R Q0.2, 0", Nessun_Effetto},
    {"R Q0.2, 1", Immagine_Q<0, 2, 2, 0>},
    {"R Q1.2, 5", Immagine_Q<1, 2, 6, 0>},
    {"R Q1.7, 2", Immagine_Q<1, 7, 8, 0>},
    {"R S3.1, 0", Nessun_Effetto},
    {"R S3.1, 1", Celle_S<3, 1, 1, 0>},
    {"R S3.1, 7", Celle_S<3, 1, 7, 0>},
    {"R M1.4, 0", Solo_Marcatori},
    {"R M1.4, 1", Celle_M<1, 4, 4, 0>},
    {"R M4.0, 8", Celle_M<4, 0, 7, 0>},
    {"R M0.7, 3", Celle_M<0, 7, 9, 0>},
    {"R M3.6, 8", Celle_M<3, 6, 13, 0>},
    {"R M0.0, 16", Celle_M<0, 0, 15, 0>},
    {"R M0.0, 17", Fino_A_Cella_8},
    {"R M0.0, 30", Fino_A_Cella_8},  // and stops there
    {"R T5, 0", Nessun_Effetto},
    {"R T5, 1", Timer_Azzerato<5>},
    {"R T5, 3", Timer_Azzerato<5>},
    {"R T40, 9", Timer_Azzerato<40>},
    {"R C5, 0", Nessun_Effetto},
    {"R C5, 1", Contatore_Azzerato<5>},
    {"R C5, 3", Contatore_Azzerato<5>},
    {"R C20, 9", Contatore_Azzerato<20>},

    {"SI Q0.3, 0", Subito<0, 3, 3>},
    {"SI Q0.3, 1", Subito<0, 3, 4>},
    {"SI Q1.0, 7", Subito<1, 0, 7>},
    {"SI M1.6, 2", Subito<1, 6, 8>},
    {"RI Q0.3, 0", Immagine_Q<0, 3, 3, 0>},
    {"RI Q0.3, 1", Immagine_Q<0, 3, 4, 0>},
    {"RI Q1.0, 7", Immagine_Q<1, 0, 7, 0>},
    {"RI M1.6, 2", Immagine_Q<1, 6, 8, 0>},
};

}  // namespace

class Output : public Una_Riga,
               public ::testing::WithParamInterface<std::tuple<Uscita, int, int>> {};

TEST_P(Output, WritesWhatItsRowSaysAndNothingElse) {
  const auto& [uscita, flusso, riempimento] = GetParam();
  Riempi(plc, static_cast<std::uint8_t>(riempimento));
  // Bit 0 of `flusso` is the top, bit 1 the enable of the line: power flows when both are on.
  Prepara(uscita.Riga, {flusso & 1, flusso >> 1});
  Memoria attesa = plc;
  uscita.Effetto(attesa, flusso == 3);
  Attendi(attesa);
}

INSTANTIATE_TEST_SUITE_P(Table, Output,
                         ::testing::Combine(::testing::ValuesIn(uscite), ::testing::Range(0, 4),
                                            ::testing::Values(0, 1)));

class MarkerWrite : public Cpu, public ::testing::WithParamInterface<const char*> {};

TEST_P(MarkerWrite, GivesEveryMarkerByteItsFirstTextEvenWithoutPowerFlow) {
  Esegui("= Q0.0");
  Esegui("S S0.0, 1");
  for (const Riga_M& riga : plc.Mem_M) EXPECT_EQ(riga.Txt_B, "");
  Esegui(GetParam());
  for (const Riga_M& riga : plc.Mem_M) EXPECT_EQ(riga.Txt_B, "00000000");
}

INSTANTIATE_TEST_SUITE_P(Table, MarkerWrite,
                         ::testing::Values("= M0.0", "= M4.7", "S M1.0, 1", "S M1.0, 0",
                                           "R M2.0, 1", "R M2.0, 0"));

TEST_F(BitOutput, ResetOfMarkersPastTheLastByteIsARunTimeErrorUnderPowerFlow) {
  for (const char* riga : {"R M4.7, 2", "R M4.7, 9"}) {
    Carica({"NOP", riga});
    Riempi(plc, 1);
    plc.PC = 1;
    Memoria attesa = plc;
    attesa.Mem_M[4].Bit[7] = 0;
    Marcatori(attesa);
    Uscite_Spente(attesa);
    plc.Esegui_Riga();
    EXPECT_TRUE(attesa == plc) << riga;
    ASSERT_EQ(avvisi.size(), 1U) << riga;
    EXPECT_EQ(avvisi[0].Testo, Errore_Run_Time);
    avvisi.clear();
  }
}

TEST_F(BitOutput, ResetOfMarkersPastTheLastByteIsNothingWithoutPowerFlow) {
  plc.Mem_M[4].Bit[7] = 1;
  Esegui("R M4.7, 2");
  EXPECT_EQ(plc.Mem_M[4].Bit[7], 1);
  EXPECT_EQ(plc.PC, 2);
  EXPECT_TRUE(avvisi.empty());
}

TEST_F(BitOutput, ResetOfM07ByThreeRunsOverIntoTheNextByte) {
  for (Riga_M& riga : plc.Mem_M) std::fill_n(riga.Bit.Dati(), 8, std::uint8_t{1});
  plc.Stak[0] = 1;
  Esegui("R M0.7, 3");
  EXPECT_EQ(plc.Mem_M[0].Txt_B, "01111111");
  EXPECT_EQ(plc.Mem_M[1].Txt_B, "11111100");
  EXPECT_EQ(plc.Mem_M[2].Txt_B, "11111111");
}

TEST_F(BitOutput, ImmediateSetByOneSetsTwoBitsAndSetByOneSetsOne) {
  plc.Stak[0] = 1;
  Esegui("SI Q0.0, 1");
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[0] + plc.IP_Q[0].Bit_Img[1] + plc.IP_Q[0].Bit_Img[2], 2);
  Esegui("S Q1.0, 1");
  EXPECT_EQ(plc.IP_Q[1].Bit_Img[0] + plc.IP_Q[1].Bit_Img[1], 1);
}

TEST_F(BitOutput, ResetOfT37ByFiveLeavesT38Untouched) {
  plc.Mem_T[37] = plc.Mem_T[38] = {5, 6, 1, -1};
  plc.Stak[0] = 1;
  Esegui("R T37, 5");
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{0, 6, 0, 0}));
  EXPECT_EQ(plc.Mem_T[38], (Riga_Timer{5, 6, 1, -1}));
}

TEST_F(BitOutput, SetOnM07ByThreeFailsBehindTheUnusedCell) {
  plc.Stak[0] = 1;
  EXPECT_THROW(Esegui("S M0.7, 3"), Fatale);
  EXPECT_EQ(plc.Mem_M[0].Bit[7], 1);
  EXPECT_EQ(plc.Mem_M[0].Bit[8], 1);
  EXPECT_EQ(plc.Mem_M[1].Bit[0], 0);
}

TEST_F(BitOutput, ImmediateSetFailsBehindTheUnusedCell) {
  plc.Stak[0] = 1;
  EXPECT_THROW(Esegui("SI Q0.7, 2"), Fatale);
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[7] + plc.IP_Q[0].Bit_Img[8], 2);
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[7] + plc.IP_Q[0].Bit_Dir[8], 2);
}

}  // namespace tavorno::prova
