// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <tuple>

#include "cpu.h"

namespace tavorno::prova {

namespace {

/// Fills the memory so that a write to a wrong cell shows. The byte values and texts are left
/// behind their bits, so that an update that nobody asked for shows as well.
void Riempi(Memoria& m, std::uint8_t bit) {
  for (auto* tabella : {&m.IP_I, &m.IP_Q}) {
    for (Riga_IP& riga : *tabella) {
      std::fill(riga.Bit_Dir.begin(), riga.Bit_Dir.end(), bit);
      std::fill(riga.Bit_Img.begin(), riga.Bit_Img.end(), bit);
      riga.Val_B = 77;
      riga.Txt_B = "old";
    }
  }
  for (Riga_M& riga : m.Mem_M) {
    std::fill(riga.Bit.begin(), riga.Bit.end(), bit);
    riga.Val_B = -1;
    riga.Txt_B = "old";
  }
  for (Riga_S& riga : m.Mem_S) std::fill(riga.Bit.begin(), riga.Bit.end(), bit);
  for (Riga_SM& riga : m.Mem_SM) std::fill(riga.Bit.begin(), riga.Bit.end(), bit);
  for (Riga_Timer& timer : m.Mem_T) timer = {5, 6, 1, -1};
  for (Riga_Contatore& contatore : m.Mem_C) contatore = {7, 8, 1, 1, 1};
  for (int i = 0; i <= 7; ++i) m.Stak[i] = static_cast<std::int16_t>(i % 3 == 0 ? 1 : 0);
}

/// What `Setta_Marker` leaves behind.
void Marcatori(Memoria& m) {
  for (Riga_M& riga : m.Mem_M) {
    riga.Val_B = 0;
    riga.Txt_B = "00000000";
    for (int bit = 0; bit <= 7; ++bit) {
      if (riga.Bit[bit] != 1) continue;
      riga.Val_B = static_cast<std::int16_t>(riga.Val_B + (1 << bit));
      riga.Txt_B[static_cast<std::size_t>(7 - bit)] = '1';
    }
  }
}

/// What Stop clears.
void Uscite_Spente(Memoria& m) {
  for (Riga_IP& riga : m.IP_Q) {
    for (int bit = 0; bit <= 7; ++bit) riga.Bit_Dir[bit] = riga.Bit_Img[bit] = 0;
    riga.Val_B = 0;
  }
}

void Scrivi_Pila(Memoria& m, const std::vector<int>& celle) {
  for (int i = 0; i <= 7; ++i) m.Stak[i] = static_cast<std::int16_t>(celle.at(i));
}

}  // namespace

using BitLogic = Cpu;

// ---- stack and contact instructions -------------------------------------------------------------

namespace {

using Celle = std::vector<int>;

// The six lower cells of the stack before each instruction.
const Celle sotto = {0, 1, 1, 0, 1, 1};

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
    : public Cpu,
      public ::testing::WithParamInterface<std::tuple<Istruzione_Logica, int, int>> {};

TEST_P(LogicInstruction, ChangesTheStackAsItsRowSaysAndNothingElse) {
  const auto& [istruzione, caso, disabilitata] = GetParam();
  const int cima = caso & 1;
  const int x = caso >> 1 & 1;
  const int seconda = caso >> 2 & 1;

  Carica({"NOP", istruzione.Riga});
  Riempi(plc, static_cast<std::uint8_t>(1 - x));
  // The other one of image and physical point holds the opposite.
  (istruzione.Immediata ? plc.IP_I[1].Bit_Dir : plc.IP_I[1].Bit_Img)[5] =
      static_cast<std::uint8_t>(x);
  Celle prima = {cima, seconda};
  prima.insert(prima.end(), sotto.begin(), sotto.end());
  Scrivi_Pila(plc, prima);
  plc.Prog[1].Abil_SCR = static_cast<std::int16_t>(1 - disabilitata);  // reads do not look at it
  plc.PC = 1;

  Memoria attesa = plc;
  attesa.PC = 2;
  Scrivi_Pila(attesa, istruzione.Dopo(cima, x, seconda));
  plc.Esegui_Riga();
  EXPECT_EQ(Pila(), istruzione.Dopo(cima, x, seconda));
  EXPECT_TRUE(attesa == plc);
  EXPECT_TRUE(avvisi.empty());
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

class RefusedArea : public Cpu, public ::testing::WithParamInterface<const char*> {};

TEST_P(RefusedArea, EndsTheLineWithTheRunTimeErrorAndNothingElse) {
  Carica({"NOP", GetParam()});
  Riempi(plc, 0);
  plc.Stak[0] = 1;
  plc.PC = 1;
  Memoria attesa = plc;
  Uscite_Spente(attesa);
  plc.Esegui_Riga();
  EXPECT_TRUE(attesa == plc);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Testo, Errore_Run_Time);
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

class FatalLine : public Cpu, public ::testing::WithParamInterface<Riga_Fatale> {};

TEST_P(FatalLine, NamesTheTableAndTheIndexAndKeepsWhatCameBefore) {
  const Riga_Fatale& riga = GetParam();
  Carica({"NOP", riga.Riga});
  Riempi(plc, 0);
  plc.Stak[0] = 1;
  plc.PC = 1;
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

TEST_F(BitLogic, SetOnM07ByThreeFailsBehindTheUnusedCell) {
  plc.Stak[0] = 1;
  EXPECT_THROW(Esegui("S M0.7, 3"), Fatale);
  EXPECT_EQ(plc.Mem_M[0].Bit[7], 1);
  EXPECT_EQ(plc.Mem_M[0].Bit[8], 1);
  EXPECT_EQ(plc.Mem_M[1].Bit[0], 0);
}

TEST_F(BitLogic, ImmediateSetFailsBehindTheUnusedCell) {
  plc.Stak[0] = 1;
  EXPECT_THROW(Esegui("SI Q0.7, 2"), Fatale);
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[7] + plc.IP_Q[0].Bit_Img[8], 2);
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[7] + plc.IP_Q[0].Bit_Dir[8], 2);
}

// ---- outputs ------------------------------------------------------------------------------------

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

class Output : public Cpu, public ::testing::WithParamInterface<std::tuple<Uscita, int, int>> {
 protected:
  void Prepara(const std::string& riga, int cima, int abilitata, int riempimento) {
    Carica({"NOP", riga});
    Riempi(plc, static_cast<std::uint8_t>(riempimento));
    plc.Stak[0] = static_cast<std::int16_t>(cima);
    plc.Prog[1].Abil_SCR = static_cast<std::int16_t>(abilitata);
    plc.PC = 1;
  }
};

TEST_P(Output, WritesWhatItsRowSaysAndNothingElse) {
  const auto& [uscita, flusso, riempimento] = GetParam();
  // Bit 0 of `flusso` is the top, bit 1 the enable of the line: power flows when both are on.
  Prepara(uscita.Riga, flusso & 1, flusso >> 1, riempimento);
  Memoria attesa = plc;
  attesa.PC = 2;
  uscita.Effetto(attesa, flusso == 3);
  plc.Esegui_Riga();
  EXPECT_TRUE(attesa == plc);
  EXPECT_TRUE(avvisi.empty());
}

INSTANTIATE_TEST_SUITE_P(Table, Output,
                         ::testing::Combine(::testing::ValuesIn(uscite), ::testing::Range(0, 4),
                                            ::testing::Values(0, 1)));

using OutputFailure = Output;

TEST_F(BitLogic, ResetOfMarkersPastTheLastByteIsARunTimeErrorUnderPowerFlow) {
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

TEST_F(BitLogic, ResetOfMarkersPastTheLastByteIsNothingWithoutPowerFlow) {
  plc.Mem_M[4].Bit[7] = 1;
  Esegui("R M4.7, 2");
  EXPECT_EQ(plc.Mem_M[4].Bit[7], 1);
  EXPECT_EQ(plc.PC, 2);
  EXPECT_TRUE(avvisi.empty());
}

TEST_F(BitLogic, LdnOfAnUnusedTimerIsOne) {
  Esegui("LDN T37");
  EXPECT_EQ(plc.Stak[0], 1);
}

TEST_F(BitLogic, ResetOfM07ByThreeRunsOverIntoTheNextByte) {
  for (Riga_M& riga : plc.Mem_M) std::fill_n(riga.Bit.Dati(), 8, std::uint8_t{1});
  plc.Stak[0] = 1;
  Esegui("R M0.7, 3");
  EXPECT_EQ(plc.Mem_M[0].Txt_B, "01111111");
  EXPECT_EQ(plc.Mem_M[1].Txt_B, "11111100");
  EXPECT_EQ(plc.Mem_M[2].Txt_B, "11111111");
}

TEST_F(BitLogic, ImmediateSetByOneSetsTwoBitsAndSetByOneSetsOne) {
  plc.Stak[0] = 1;
  Esegui("SI Q0.0, 1");
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[0] + plc.IP_Q[0].Bit_Img[1] + plc.IP_Q[0].Bit_Img[2], 2);
  Esegui("S Q1.0, 1");
  EXPECT_EQ(plc.IP_Q[1].Bit_Img[0] + plc.IP_Q[1].Bit_Img[1], 1);
}

TEST_F(BitLogic, ResetOfT37ByFiveLeavesT38Untouched) {
  plc.Mem_T[37] = plc.Mem_T[38] = {5, 6, 1, -1};
  plc.Stak[0] = 1;
  Esegui("R T37, 5");
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{0, 6, 0, 0}));
  EXPECT_EQ(plc.Mem_T[38], (Riga_Timer{5, 6, 1, -1}));
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
