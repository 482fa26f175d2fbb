// SPDX-License-Identifier: GPL-3.0-or-later
#include "cpu.h"

namespace tavorno::prova {

using Exchange = Cpu;

namespace {

std::string Testo_Bit_0(int byte) {
  std::string testo;
  for (int bit = 0; bit <= 7; ++bit) testo += (byte >> bit & 1) != 0 ? '1' : '0';
  return testo;
}
std::string Testo_Bit_7(int byte) {
  const std::string testo = Testo_Bit_0(byte);
  return {testo.rbegin(), testo.rend()};
}
void Scrivi(Tabella<std::uint8_t, 8>& celle, int byte) {
  for (int bit = 0; bit <= 7; ++bit) celle[bit] = static_cast<std::uint8_t>(byte >> bit & 1);
}

}  // namespace

class ExchangedByte : public Cpu, public ::testing::WithParamInterface<int> {};

TEST_P(ExchangedByte, OutputsGoToPointsValueTextAndBar) {
  const int byte = GetParam();
  const int altro = 255 - byte;
  Scrivi(plc.IP_Q[0].Bit_Img, byte);
  Scrivi(plc.IP_Q[1].Bit_Img, altro);
  plc.IP_Q[0].Bit_Img[8] = plc.IP_Q[1].Bit_Img[8] = 1;  // carries no bit
  Memoria attesa = plc;
  for (const int riga : {0, 1}) {
    const int valore = riga == 0 ? byte : altro;
    Scrivi(attesa.IP_Q[riga].Bit_Dir, valore);
    attesa.IP_Q[riga].Val_B = static_cast<std::int16_t>(valore);
    attesa.IP_Q[riga].Txt_B = Testo_Bit_7(valore);
  }
  plc.Setta_Uscite();
  EXPECT_TRUE(attesa == plc);
  EXPECT_EQ(plc.SQ[0].Stato_Q(), Testo_Bit_0(byte));
  EXPECT_EQ(plc.SQ[1].Stato_Q(), Testo_Bit_0(altro));
}

TEST_P(ExchangedByte, InputsComeFromTheBarsIntoBothImages) {
  const int byte = GetParam();
  const int altro = 255 - byte;
  // Silent bars leave the tables alone, so only the read itself can fill them.
  plc.SI[0].INT_ON = plc.SI[1].INT_ON = false;
  plc.SI[0].Stato_I(Testo_Bit_0(byte));
  plc.SI[1].Stato_I(Testo_Bit_0(altro));
  Memoria attesa = plc;
  for (const int riga : {0, 1}) {
    const int valore = riga == 0 ? byte : altro;
    Scrivi(attesa.IP_I[riga].Bit_Dir, valore);
    Scrivi(attesa.IP_I[riga].Bit_Img, valore);
    attesa.IP_I[riga].Val_B = static_cast<std::int16_t>(valore);
    attesa.IP_I[riga].Txt_B = Testo_Bit_7(valore);
  }
  plc.Aggiorna_IP_Ing();
  EXPECT_TRUE(attesa == plc);
  EXPECT_EQ(plc.etIPI[0], "");
  plc.Scelte.chkIP = true;
  plc.Aggiorna_IP_Ing();
  EXPECT_EQ(plc.etIPI[0], Testo_Bit_7(byte));
  EXPECT_EQ(plc.etIPI[1], Testo_Bit_7(altro));
}

TEST_P(ExchangedByte, ChangedInputReachesThePointsAtOnceAndNotTheImage) {
  const int byte = GetParam();
  plc.SI[1].Stato_I(Testo_Bit_0(255 - byte));
  Scrivi(plc.IP_I[1].Bit_Img, 255 - byte);
  Memoria attesa = plc;
  Scrivi(attesa.IP_I[1].Bit_Dir, byte);
  attesa.IP_I[1].Val_B = static_cast<std::int16_t>(byte);
  attesa.IP_I[1].Txt_B = Testo_Bit_7(byte);
  plc.SI[1].Stato_I(Testo_Bit_0(byte));
  EXPECT_TRUE(attesa == plc);
}

TEST_P(ExchangedByte, OutputImageIsShownOnlyOnRequest) {
  const int byte = GetParam();
  Scrivi(plc.IP_Q[1].Bit_Img, byte);
  plc.Aggiorna_IPQ(1);
  EXPECT_EQ(plc.etIPQ[1], "");
  plc.Scelte.chkIP = true;
  plc.Aggiorna_IPQ(1);
  EXPECT_EQ(plc.etIPQ[1], Testo_Bit_7(byte));
  EXPECT_EQ(plc.etIPQ[0], "");
}

INSTANTIATE_TEST_SUITE_P(AllValues, ExchangedByte, ::testing::Range(0, 256));

TEST_F(Exchange, ShortInputTextReadsAsZeroWhereItEnds) {
  plc.SI[0].Stato_I("011");
  plc.Aggiorna_IP_Ing();
  EXPECT_EQ(plc.IP_I[0].Val_B, 6);
  EXPECT_EQ(plc.IP_I[0].Bit_Img[2], 1);
  EXPECT_EQ(plc.IP_I[0].Bit_Img[3], 0);
}

TEST_F(Exchange, ResetOfTheOutputsClearsEverythingButTheText) {
  for (Riga_IP& riga : plc.IP_Q) {
    for (std::uint8_t& cella : riga.Bit_Dir) cella = 1;
    for (std::uint8_t& cella : riga.Bit_Img) cella = 1;
    riga.Val_B = 255;
    riga.Txt_B = "11111111";
  }
  plc.SQ[0].Stato_Q("11111111");
  plc.SQ[1].Stato_Q("11111111");
  plc.etIPQ = {"11111111", "11111111"};
  Memoria attesa = plc;
  for (Riga_IP& riga : attesa.IP_Q) {
    Scrivi(riga.Bit_Dir, 0);
    Scrivi(riga.Bit_Img, 0);
    riga.Val_B = 0;
  }
  plc.Reset_IP_Out();
  EXPECT_TRUE(attesa == plc);
  EXPECT_EQ(plc.SQ[0].Stato_Q(), "00000000");
  EXPECT_EQ(plc.SQ[1].Stato_Q(), "00000000");
  EXPECT_EQ(plc.etIPQ[0] + plc.etIPQ[1], "");
}

class WritesOutputs : public Cpu, public ::testing::WithParamInterface<const char*> {};

TEST_P(WritesOutputs, ShowsTheImageAfterwards) {
  plc.Scelte.chkIP = true;
  plc.Stak[0] = 1;
  plc.IP_Q[1].Bit_Img[7] = 1;
  plc.Prendi_Segni();
  Esegui(GetParam());
  EXPECT_EQ(plc.etIPQ[1].size(), 8U);
  EXPECT_EQ(plc.etIPQ[1].front(), '1');
  EXPECT_EQ(plc.etIPQ[0], "");
  EXPECT_NE(plc.Prendi_Segni() & Segno_Immagini, 0U);
  EXPECT_EQ(plc.Prendi_Segni(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Table, WritesOutputs,
                         ::testing::Values("= Q1.0", "=I Q1.0", "S Q1.0, 1", "R Q1.0, 1",
                                           "SI Q1.0, 1", "RI Q1.0, 1", "BIW 129, QB1"));

TEST_F(Exchange, ShownImageOutsideTheTwoRowsIsFatal) {
  plc.Scelte.chkIP = true;
  EXPECT_THROW(plc.Aggiorna_IPQ(2), Fatale);
}

}  // namespace tavorno::prova
