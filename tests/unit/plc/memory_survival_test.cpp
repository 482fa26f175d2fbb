// SPDX-License-Identifier: GPL-3.0-or-later
#include "cpu.h"
#include "filled_memory.h"

namespace tavorno::prova {

namespace {

/// Every cell its own number.
void Riempi_Tutto(Plc& plc) {
  int n = 0;
  const auto bit = [&n] { return static_cast<std::uint8_t>(++n % 3 != 0); };
  const auto numero = [&n] { return static_cast<std::int16_t>(++n % 200 + 1); };
  for (auto* tabella : {&plc.IP_I, &plc.IP_Q}) {
    for (Riga_IP& riga : *tabella) {
      for (std::uint8_t& cella : riga.Bit_Dir) cella = bit();
      for (std::uint8_t& cella : riga.Bit_Img) cella = bit();
      riga.Val_B = numero();
      riga.Txt_B = std::to_string(numero());
    }
  }
  for (Riga_M& riga : plc.Mem_M) {
    for (std::uint8_t& cella : riga.Bit) cella = bit();
    riga.Val_B = numero();
    riga.Txt_B = std::to_string(numero());
  }
  for (Riga_S& riga : plc.Mem_S) {
    for (std::int16_t& cella : riga.Bit) cella = bit();
  }
  for (Riga_SM& riga : plc.Mem_SM) {
    for (std::uint8_t& cella : riga.Bit) cella = 1;
    riga.Val_B = numero();
  }
  for (std::int16_t& cella : plc.Mem_VB) cella = numero();
  for (std::int16_t& cella : plc.Mem_VW) cella = numero();
  for (std::int32_t& cella : plc.Mem_VD) cella = numero();
  for (float& cella : plc.Mem_AC) cella = numero();
  for (Riga_Timer& timer : plc.Mem_T) timer = {numero(), numero(), 1, -1};
  for (Riga_Contatore& contatore : plc.Mem_C) contatore = {numero(), numero(), 1, 1, 1};
  for (std::int32_t& cella : plc.Mem_AIW) cella = numero();
  for (std::int32_t& cella : plc.Mem_AQW) cella = numero();
  for (float& cella : plc.Volt_AI) cella = numero();
  for (float& cella : plc.Volt_AQ) cella = numero();
  for (int i = 0; i <= 7; ++i) plc.Stak[i] = 1;
  for (std::int16_t& cella : plc.Stak_Rit) cella = numero();
  for (Riga_PLC& riga : plc.Prog) riga.Fronte = 1;
  plc.PC = 2;
}

}  // namespace

class MemorySurvival : public Cpu {
 protected:
  MemorySurvival() {
    Carica({"LD I0.0", "EU", "= M0.0", "ED"});
    plc.SI[0].Stato_I("10100000");
    plc.SI[1].Stato_I("00000001");
    Riempi_Tutto(plc);
  }
};

TEST_F(MemorySurvival, RunClearsTimersEdgesStackAndOutputsAndKeepsTheRest) {
  Memoria attesa = plc;
  for (Riga_Timer& timer : attesa.Mem_T) timer = {};
  for (Riga_PLC& riga : attesa.Prog) riga.Fronte = 0;
  for (int i = 0; i <= 7; ++i) attesa.Stak[i] = 0;
  Uscite_Spente(attesa);
  attesa.PC = 0;
  // It reads the inputs and sets the special bits as well.
  const std::uint8_t ingressi[2][8] = {{1, 0, 1, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0, 1}};
  for (int riga = 0; riga <= 1; ++riga) {
    for (int bit = 0; bit <= 7; ++bit)
      attesa.IP_I[riga].Bit_Dir[bit] = attesa.IP_I[riga].Bit_Img[bit] = ingressi[riga][bit];
  }
  attesa.IP_I[0].Val_B = 5;
  attesa.IP_I[0].Txt_B = "00000101";
  attesa.IP_I[1].Val_B = 128;
  attesa.IP_I[1].Txt_B = "10000000";
  const std::uint8_t sm_0[8] = {1, 1, 0, 0, 0, 0, 1, 0};
  for (int bit = 0; bit <= 7; ++bit) {
    attesa.Mem_SM[0].Bit[bit] = sm_0[bit];
    attesa.Mem_SM[bit + 1].Bit[bit] = 0;
  }
  Run_Step();
  EXPECT_TRUE(attesa == plc);
}

TEST_F(MemorySurvival, ActivationClearsRunningTimersAndCountersAndKeepsTheRest) {
  Memoria attesa = plc;
  for (Riga_Timer& timer : attesa.Mem_T) timer.Conta = 0;
  for (Riga_Contatore& contatore : attesa.Mem_C) contatore = {0, 0, 0, 0, 0};
  plc.Init_PLC();
  EXPECT_TRUE(attesa == plc);
}

TEST_F(MemorySurvival, StopClearsTheOutputsAndKeepsTheRest) {
  Memoria attesa = plc;
  Uscite_Spente(attesa);
  plc.mnuPlcStop();
  EXPECT_TRUE(attesa == plc);
}

TEST_F(MemorySurvival, StopAndRunKeepMarkersAndCountersButNotTimers) {
  Carica({"NOP"});
  plc.Stak[0] = 1;
  Run_Step();
  plc.Mem_M[3].Bit[2] = 1;
  plc.Mem_C[20] = {4, 9, 1, 1, 0};
  plc.Mem_T[40] = {4, 9, 1, -1};
  plc.mnuPlcStop();
  EXPECT_EQ(plc.Mem_T[40], (Riga_Timer{4, 9, 1, -1}));
  Run_Step();
  EXPECT_EQ(plc.Mem_M[3].Bit[2], 1);
  EXPECT_EQ(plc.Mem_C[20], (Riga_Contatore{4, 9, 1, 1, 0}));
  EXPECT_EQ(plc.Mem_T[40], (Riga_Timer{0, 0, 0, 0}));
}

}  // namespace tavorno::prova
