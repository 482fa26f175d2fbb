// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <tuple>

#include "one_line.h"

namespace tavorno::prova {

namespace {

void Scrivi_Pila(Memoria& m, const std::vector<int>& celle) {
  for (int i = 0; i <= 7; ++i) m.Stak[i] = static_cast<std::int16_t>(celle.at(i));
}

}  // namespace

using BitLogic = Cpu;

// ---- stack and contact instructions -------------------------------------------------------------

namespace {

using Celle = std::vector<int>;

Celle Spinta(int valore, int cima, int seconda) {
  return {valore, cima, seconda, 0, 1, 1, 0, 1};
}
Celle In_Cima(int valore, int seconda) {
  return {valore, seconda, 0, 1, 1, 0, 1, 1};
}
Celle Tolta(int valore) {
  return {valore, 0, 1, 1, 0, 1, 1, 0};
}

struct Istruzione_Logica {
  const char* Riga;
  Celle (*Dopo)(int cima, int x, int seconda);
  bool Immediata = false;  // reads the physical point
};

void PrintTo(const Istruzione_Logica& istruzione, std::ostream* os) {
  *os << istruzione.Riga;
}

Celle Uguale(int c, int, int s) {
  return In_Cima(c, s);
}

const Istruzione_Logica istruzioni[] = {
    {"LD I1.5", [](int c, int x, int s) { return Spinta(x, c, s); }},
    {"LDN I1.5", [](int c, int x, int s) { return Spinta(1 - x, c, s); }},
    {"LDI I1.5", [](int c, int x, int s) { return Spinta(x, c, s); }, true},
    {"LDNI I1.5", [](int c, int x, int s) { return Spinta(1 - x, c, s); }, true},
    {"A I1.5", [](int c, int x, int s) { return In_Cima(c == 1 && x == 1, s); }},
    {"AN I1.5", [](int c, int x, int s) { return In_Cima(c == 1 && x == 0, s); }},
    {"AI I1.5", [](int c, int x, int s) { return In_Cima(c == 1 && x == 1, s); }, true},
    {"ANI I1.5", [](int c, int x, int s) { return In_Cima(c == 1 && x == 0, s); }, true},
    {"O I1.5", [](int c, int x, int s) { return In_Cima(c == 1 || x == 1, s); }},
    {"ON I1.5", [](int c, int x, int s) { return In_Cima(c == 1 || x == 0, s); }},
    {"OI I1.5", [](int c, int x, int s) { return In_Cima(c == 1 || x == 1, s); }, true},
    {"ONI I1.5", [](int c, int x, int s) { return In_Cima(c == 1 || x == 0, s); }, true},
    // Only inputs are meant by the immediate forms, whatever is written.
    {"LDI Q1.5", [](int c, int x, int s) { return Spinta(x, c, s); }, true},
    {"ONI M1.5", [](int c, int x, int s) { return In_Cima(c == 1 || x == 0, s); }, true},
    {"NOT", [](int c, int, int s) { return In_Cima(1 - c, s); }},
    {"ALD", [](int c, int, int s) { return Tolta(c == 1 && s == 1); }},
    {"OLD", [](int c, int, int s) { return Tolta(c == 1 || s == 1); }},
    {"LPS", [](int c, int, int s) { return Spinta(c, c, s); }},
    {"LRD", [](int, int, int s) { return In_Cima(s, s); }},
    {"LPP", [](int, int, int s) { return Tolta(s); }},
    {"NOP", Uguale},
    {"LBL 1", Uguale},
    {"SCRE", Uguale},
    {"SBR", Uguale},
    {"SBR0 SBR_0", Uguale},
    {"NETWORK 1", Uguale},
    {"NETW", Uguale},
};

}  // namespace

class LogicInstruction
    : public Una_Riga,
      public ::testing::WithParamInterface<std::tuple<Istruzione_Logica, int, int>> {};

TEST_P(LogicInstruction, ChangesTheStackAsItsRowSaysAndNothingElse) {
  const auto& [istruzione, caso, disabilitata] = GetParam();
  const int cima = caso & 1;
  const int x = caso >> 1 & 1;
  const int seconda = caso >> 2 & 1;

  Prepara(istruzione.Riga, {cima, 1 - disabilitata});  // reads do not look at the enable
  Riempi(plc, static_cast<std::uint8_t>(1 - x));
  // The other one of image and physical point holds the opposite.
  (istruzione.Immediata ? plc.IP_I[1].Bit_Dir : plc.IP_I[1].Bit_Img)[5] =
      static_cast<std::uint8_t>(x);
  Scrivi_Pila(plc, {cima, seconda, 0, 1, 1, 0, 1, 1});
  Memoria attesa = plc;
  Scrivi_Pila(attesa, istruzione.Dopo(cima, x, seconda));
  Attendi(attesa);
  EXPECT_EQ(Pila(), istruzione.Dopo(cima, x, seconda));
}

INSTANTIATE_TEST_SUITE_P(Table, LogicInstruction,
                         ::testing::Combine(::testing::ValuesIn(istruzioni), ::testing::Range(0, 8),
                                            ::testing::Values(0, 1)));

// ---- bit operands -------------------------------------------------------------------------------

namespace {

struct Bit_Operando {
  Area Codice;
  int Num, Bit;
  void (*Scrivi)(Memoria&, std::uint8_t);
};

void PrintTo(const Bit_Operando& operando, std::ostream* os) {
  *os << Testo_Area(operando.Codice) << operando.Num << "." << operando.Bit;
}

const Bit_Operando operandi[] = {
    {Area::I, 1, 7, [](Memoria& m, std::uint8_t v) { m.IP_I[1].Bit_Img[7] = v; }},
    {Area::Q, 0, 2, [](Memoria& m, std::uint8_t v) { m.IP_Q[0].Bit_Img[2] = v; }},
    {Area::M, 4, 0, [](Memoria& m, std::uint8_t v) { m.Mem_M[4].Bit[0] = v; }},
    {Area::SM, 30, 6, [](Memoria& m, std::uint8_t v) { m.Mem_SM[30].Bit[6] = v; }},
    {Area::S, 3, 5, [](Memoria& m, std::uint8_t v) { m.Mem_S[3].Bit[5] = v; }},
    {Area::I, 0, 8, [](Memoria& m, std::uint8_t v) { m.IP_I[0].Bit_Img[8] = v; }},
    // The bit number means nothing on these.
    {Area::T, 40, -1, [](Memoria& m, std::uint8_t v) { m.Mem_T[40].Uscita = v; }},
    {Area::T, 40, 99, [](Memoria& m, std::uint8_t v) { m.Mem_T[40].Uscita = v; }},
    {Area::C, 20, -1, [](Memoria& m, std::uint8_t v) { m.Mem_C[20].Uscita = v; }},
    {Area::C, 20, 99, [](Memoria& m, std::uint8_t v) { m.Mem_C[20].Uscita = v; }},
};

}  // namespace

class BitOperand : public Cpu, public ::testing::WithParamInterface<Bit_Operando> {};

TEST_P(BitOperand, ReadsItsOwnCellAndNoOther) {
  const Bit_Operando& operando = GetParam();
  for (const std::uint8_t valore : {std::uint8_t{0}, std::uint8_t{1}}) {
    const auto altri = static_cast<std::uint8_t>(1 - valore);
    Riempi(plc, altri);
    for (Riga_Timer& timer : plc.Mem_T) timer.Uscita = altri;
    for (Riga_Contatore& contatore : plc.Mem_C) contatore.Uscita = altri;
    operando.Scrivi(plc, valore);
    std::int16_t err = -1;
    EXPECT_EQ(plc.AC1_Bit(operando.Codice, operando.Num, operando.Bit, err), valore);
    EXPECT_EQ(err, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Areas, BitOperand, ::testing::ValuesIn(operandi));

TEST_F(BitLogic, NoOtherAreaHasBits) {
  Riempi(plc, 1);
  int senza_bit = 0;
  for (int codice = 0; codice <= static_cast<int>(Area::LW); ++codice) {
    const auto area = static_cast<Area>(codice);
    if (std::ranges::any_of(operandi, [&](const auto& riga) { return riga.Codice == area; }))
      continue;
    std::int16_t err = 0;
    EXPECT_EQ(plc.AC1_Bit(area, 0, 0, err), 0) << Testo_Area(area);
    EXPECT_EQ(err, -1) << Testo_Area(area);
    ++senza_bit;
  }
  EXPECT_EQ(senza_bit, 21);
}

// ---- soft failures ------------------------------------------------------------------------------

class RefusedArea : public Una_Riga, public ::testing::WithParamInterface<const char*> {};

TEST_P(RefusedArea, EndsTheLineWithTheRunTimeErrorAndNothingElse) {
  Riempi(plc, 0);
  Prepara(GetParam());
  Attendi_Errore();
  EXPECT_NE(plc.Ferma, 0);
}

INSTANTIATE_TEST_SUITE_P(Reads, RefusedArea,
                         ::testing::Values("LD K1", "LD VB3", "LD X0.0", "LD", "LDN V0.0",
                                           "LDN IB0", "A QB0", "A VW1", "AN MW0", "AN AC0",
                                           "O SMB28", "O L0.0", "ON VD1", "ON AIW0"));
INSTANTIATE_TEST_SUITE_P(Writes, RefusedArea,
                         ::testing::Values("= I0.0", "= SM0.0", "= T5", "= C5", "= V0.0", "= K1",
                                           "=", "S I0.0, 1", "S SM0.0, 1", "S T5, 1", "S C5, 1",
                                           "S VB0, 1", "R I0.0, 1", "R SM0.0, 1", "R VB0, 1",
                                           "R V0.0, 1", "R QB0, 1"));

// ---- fatal failures -----------------------------------------------------------------------------

namespace {
struct Riga_Fatale {
  const char* Riga;
  const char* Tabella;
  int Indice;
  void (*Prima)(Memoria&);  // what was written before the end
};
void PrintTo(const Riga_Fatale& riga, std::ostream* os) {
  *os << riga.Riga;
}
void Niente(Memoria& /*m*/) {}

const Riga_Fatale righe_fatali[] = {
    {"LD I0.9", "Bit_Img", 9, Niente},
    {"LD I0", "Bit_Img", -1, Niente},
    {"LD I2.0", "IP_I", 2, Niente},
    {"A Q2.0", "IP_Q", 2, Niente},
    {"O M5.0", "Mem_M", 5, Niente},
    {"LDN M0.9", "Mem_M.Bit", 9, Niente},
    {"AN SM31.0", "Mem_SM", 31, Niente},
    {"AN SM0.9", "Mem_SM.Bit", 9, Niente},
    {"ON S5.0", "Mem_S", 5, Niente},
    {"ON S0.9", "Mem_S.Bit", 9, Niente},
    {"LD T41", "Mem_T", 41, Niente},
    {"LD C21", "Mem_C", 21, Niente},
    {"LDI I0.9", "Bit_Dir", 9, Niente},
    {"ANI I2.0", "IP_I", 2, Niente},
    {"= Q0.9", "Bit_Img", 9, Niente},
    {"= M0", "Mem_M.Bit", -1, Niente},
    {"= S5.0", "Mem_S", 5, Niente},
    {"=I Q2.0", "IP_Q", 2, Niente},
    {"S Q0.7, 3", "Bit_Img", 9,
     [](Memoria& m) { m.IP_Q[0].Bit_Img[7] = m.IP_Q[0].Bit_Img[8] = 1; }},
    {"S S0.7, 3", "Mem_S.Bit", 9, [](Memoria& m) { m.Mem_S[0].Bit[7] = m.Mem_S[0].Bit[8] = 1; }},
    {"R Q2.0, 1", "IP_Q", 2, Niente},
    {"R Q0.7, 3", "Bit_Img", 9, Niente},
    {"R S0.7, 3", "Mem_S.Bit", 9, Niente},
    {"R T41, 1", "Mem_T", 41, Niente},
    {"R C21, 1", "Mem_C", 21, Niente},
    {"RI Q0.7, 2", "Bit_Img", 9, Niente},
    // The sum of bit and count is made in 16 bits.
    {"S Q0.1, 32767", "S", 32768, Niente},
    {"R M0.1, 32767", "R", 32768, Niente},
};
}  // namespace

class FatalLine : public Una_Riga, public ::testing::WithParamInterface<Riga_Fatale> {};

TEST_P(FatalLine, NamesTheTableAndTheIndexAndKeepsWhatCameBefore) {
  const Riga_Fatale& riga = GetParam();
  Riempi(plc, 0);
  Prepara(riga.Riga);
  Memoria attesa = plc;
  riga.Prima(attesa);
  try {
    plc.Esegui_Riga();
    ADD_FAILURE() << "no fatal end";
  } catch (const Fatale& fatale) {
    EXPECT_EQ(fatale.Tabella(), riga.Tabella);
    EXPECT_EQ(fatale.Indice(), riga.Indice);
  }
  EXPECT_TRUE(attesa == plc);
  EXPECT_TRUE(avvisi.empty());
}

INSTANTIATE_TEST_SUITE_P(Table, FatalLine, ::testing::ValuesIn(righe_fatali));

// ---- edges --------------------------------------------------------------------------------------

namespace {

struct Fronte {
  const char* Istr;
  int Primo_Ciclo, Fronte_Prima, Cima;
  int Fronte_Dopo, Cima_Dopo;
};

void PrintTo(const Fronte& fronte, std::ostream* os) {
  *os << fronte.Istr << (fronte.Primo_Ciclo != 0 ? " in the first scan, " : ", ")
      << fronte.Fronte_Prima << " -> " << fronte.Cima;
}

const Fronte fronti[] = {
    // In the first scan a level counts as already on.
    {"EU", -1, 0, 0, 0, 0},
    {"EU", -1, 0, 1, 1, 0},
    {"EU", -1, 1, 0, 0, 0},
    {"EU", -1, 1, 1, 1, 0},
    {"EU", 0, 0, 0, 0, 0},
    {"EU", 0, 0, 1, 1, 1},
    {"EU", 0, 1, 0, 0, 0},
    {"EU", 0, 1, 1, 1, 0},
    // The falling edge knows no first scan.
    {"ED", -1, 0, 0, 0, 0},
    {"ED", -1, 0, 1, 1, 0},
    {"ED", -1, 1, 0, 0, 1},
    {"ED", -1, 1, 1, 1, 0},
    {"ED", 0, 0, 0, 0, 0},
    {"ED", 0, 0, 1, 1, 0},
    {"ED", 0, 1, 0, 0, 1},
    {"ED", 0, 1, 1, 1, 0},
};

}  // namespace

class Edge : public Una_Riga, public ::testing::WithParamInterface<Fronte> {};

TEST_P(Edge, IsSeenByTheMemoryOfItsOwnLineAndChangesNothingElse) {
  const Fronte& fronte = GetParam();
  Riempi(plc, 1);
  Prepara({"EU", fronte.Istr, "ED"}, 1, {fronte.Cima, 0});
  plc.Prog[1].Fronte = static_cast<std::int16_t>(fronte.Fronte_Prima);
  plc.Primo_Ciclo = static_cast<std::int16_t>(fronte.Primo_Ciclo);
  Memoria attesa = plc;
  attesa.Prog[1].Fronte = static_cast<std::int16_t>(fronte.Fronte_Dopo);
  attesa.Stak[0] = static_cast<std::int16_t>(fronte.Cima_Dopo);
  Attendi(attesa);
  EXPECT_EQ(plc.Prog[1].Fronte, fronte.Fronte_Dopo);
  EXPECT_EQ(plc.Stak[0], fronte.Cima_Dopo);
  EXPECT_EQ(plc.Primo_Ciclo, fronte.Primo_Ciclo);
}

INSTANTIATE_TEST_SUITE_P(Table, Edge, ::testing::ValuesIn(fronti));

namespace {
const std::vector<std::string> conta_fronti = {"LD I0.0", "EU", "S M0.0, 1"};
}

TEST_F(BitLogic, EuOnALevelAlreadyOnGivesNoPulseInContMode) {
  Ingresso(0, 0, true);
  Carica(conta_fronti);
  Run_Cont(3);
  EXPECT_EQ(plc.N_Cicli, 3);
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 0);
}

TEST_F(BitLogic, EuOnALevelAlreadyOnGivesAPulseInStepMode) {
  Ingresso(0, 0, true);
  Carica(conta_fronti);
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 1);
}

TEST_F(BitLogic, EuSeesTheLevelThatRisesAfterTheFirstScan) {
  Carica(conta_fronti);
  const Iscrizione ascolto = plc.Hook.Ascolta_Cedi([this] {
    if (plc.N_Cicli == 1) Ingresso(0, 0, true);
    if (plc.N_Cicli == 2) plc.Ferma = -1;
  });
  plc.mnuPlcRun();
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 1);
}

TEST_F(BitLogic, EdgeLinesHaveEachTheirOwnMemory) {
  Carica({"LD I0.0", "EU", "LD I0.1", "EU"});
  Run_Step();
  Ingresso(0, 0, true);
  Scansione();
  EXPECT_EQ(plc.Stak[1], 1);
  EXPECT_EQ(plc.Stak[0], 0);
  Ingresso(0, 1, true);
  Scansione();
  EXPECT_EQ(plc.Stak[1], 0);
  EXPECT_EQ(plc.Stak[0], 1);
}

TEST_F(BitLogic, EdgeLineThatIsSkippedByAJumpKeepsItsState) {
  Carica({"LD I0.7", "JMP 1", "LD I0.0", "EU", "S M0.0, 1", "LBL 1"});
  Run_Step();
  Ingresso(0, 0, true);
  Scansione();
  plc.Mem_M[0].Bit[0] = 0;
  Ingresso(0, 7, true);
  Ingresso(0, 0, false);  // the line does not see the level go
  Scansione();
  EXPECT_EQ(plc.Prog[3].Fronte, 1);
  Ingresso(0, 7, false);
  Ingresso(0, 0, true);
  Scansione();
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 0);
}

// ---- in a scan ----------------------------------------------------------------------------------

TEST_F(BitLogic, LdnOfAnUnusedTimerIsOne) {
  Esegui("LDN T37");
  EXPECT_EQ(plc.Stak[0], 1);
}

TEST_F(BitLogic, LdiSeesAnInputThatLdWillSeeAtTheNextScan) {
  Carica({"NOP", "LDI I0.4", "LD I0.4"});
  plc.Esegui_Riga();
  Ingresso(0, 4, true);
  plc.Esegui_Riga();
  plc.Esegui_Riga();
  EXPECT_EQ(plc.Stak[1], 1);
  EXPECT_EQ(plc.Stak[0], 0);
  for (int i = 0; i < 4; ++i) plc.Esegui_Riga();  // MEND and the next scan
  EXPECT_EQ(plc.Stak[0], 1);
}

}  // namespace tavorno::prova
