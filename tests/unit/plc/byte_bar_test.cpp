// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/byte_bar.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "plc/plc.h"

namespace tavorno::prova {

namespace {

// The two bars have one behaviour under two sets of names.
struct Nomi_I {
  using Tipo = LedI;
  static void Scrivi(LedI& barra, std::string_view testo) { barra.Stato_I(testo); }
  static std::string Testo(const LedI& barra) { return barra.Stato_I(); }
  static int Byte(const LedI& barra) { return barra.Stato_IB(); }
  static std::string Lettura(const LedI& barra) { return barra.Stato_BitI(); }
  static void Scrivi_Byte(LedI& barra, std::uint8_t byte) { barra.Stato_IB(byte); }
  static void Scrivi_Lettura(LedI& barra, std::string_view testo) { barra.Stato_BitI(testo); }
  static constexpr bool riparla = false;  // whether a reset lets a silent bar speak again
};
struct Nomi_Q {
  using Tipo = LedQ;
  static void Scrivi(LedQ& barra, std::string_view testo) { barra.Stato_Q(testo); }
  static std::string Testo(const LedQ& barra) { return barra.Stato_Q(); }
  static int Byte(const LedQ& barra) { return barra.Stato_QB(); }
  static std::string Lettura(const LedQ& barra) { return barra.Stato_QBitI(); }
  static void Scrivi_Byte(LedQ& barra, std::uint8_t byte) { barra.Stato_QB(byte); }
  static void Scrivi_Lettura(LedQ& barra, std::string_view testo) { barra.Stato_QBitI(testo); }
  static constexpr bool riparla = true;
};

}  // namespace

template <class Nomi>
class ByteBar : public ::testing::Test {
 protected:
  ByteBar() {
    ascolto_change = barra.Change.Ascolta([this] { passati.push_back(Nomi::Testo(barra)); });
    ascolto_aspetto = barra.Aspetto.Ascolta([this] { ++ridisegni; });
  }

  Orologio orologio;
  typename Nomi::Tipo barra{orologio};
  std::vector<std::string> passati;
  int ridisegni = 0;
  Iscrizione ascolto_change, ascolto_aspetto;
};

using Barre = ::testing::Types<Nomi_I, Nomi_Q>;
TYPED_TEST_SUITE(ByteBar, Barre);

TYPED_TEST(ByteBar, HasItsDefaults) {
  EXPECT_EQ(TypeParam::Testo(this->barra), "00000000");
  EXPECT_EQ(TypeParam::Byte(this->barra), 0);
  EXPECT_EQ(TypeParam::Lettura(this->barra), "00000000");
  EXPECT_EQ(this->barra.Interval(), 80);
  EXPECT_FALSE(this->barra.Scorri());
  EXPECT_TRUE(this->barra.INT_ON);
  EXPECT_EQ(this->barra.Accesi(), 0);
  EXPECT_EQ(this->barra.Tipo(), 0);
  EXPECT_EQ(this->barra.Forma(), 0);
}

TYPED_TEST(ByteBar, CarriesEveryByteInItsThreeForms) {
  for (int byte = 255; byte >= 0; --byte) {
    std::string testo;
    for (int bit = 0; bit <= 7; ++bit) testo += (byte >> bit & 1) != 0 ? '1' : '0';
    TypeParam::Scrivi(this->barra, testo);
    EXPECT_EQ(TypeParam::Testo(this->barra), testo);
    EXPECT_EQ(TypeParam::Byte(this->barra), byte);
    EXPECT_EQ(TypeParam::Lettura(this->barra), (std::string{testo.rbegin(), testo.rend()}));
    EXPECT_EQ(this->barra.Accesi(), byte);
    EXPECT_EQ(this->passati.size(), static_cast<std::size_t>(256 - byte));
    EXPECT_EQ(this->passati.back(), testo);
  }
}

TYPED_TEST(ByteBar, OfTheNumber37InPackedDecimalReads55) {
  TypeParam::Scrivi(this->barra, "11101100");
  EXPECT_EQ(TypeParam::Byte(this->barra), 0x37);
  EXPECT_EQ(TypeParam::Lettura(this->barra), "00110111");
}

TYPED_TEST(ByteBar, RaisesChangeOnceForATextGivenTwice) {
  TypeParam::Scrivi(this->barra, "10000000");
  TypeParam::Scrivi(this->barra, "10000000");
  EXPECT_EQ(this->passati.size(), 1U);
  TypeParam::Scrivi(this->barra, "00000000");
  TypeParam::Scrivi(this->barra, "10000000");
  EXPECT_EQ(this->passati, (std::vector<std::string>{"10000000", "00000000", "10000000"}));
}

TYPED_TEST(ByteBar, ChangeSeesAllThreeFormsOfTheNewByte) {
  int byte = -1;
  std::string lettura;
  const Iscrizione ascolto = this->barra.Change.Ascolta([&] {
    byte = TypeParam::Byte(this->barra);
    lettura = TypeParam::Lettura(this->barra);
  });
  TypeParam::Scrivi(this->barra, "01000001");
  EXPECT_EQ(byte, 130);
  EXPECT_EQ(lettura, "10000010");
}

TYPED_TEST(ByteBar, MayBeWrittenFromInsideItsChange) {
  int cambi = 0;
  const Iscrizione ascolto = this->barra.Change.Ascolta([&] {
    if (++cambi < 10) TypeParam::Scrivi(this->barra, "11000000");
  });
  TypeParam::Scrivi(this->barra, "10000000");
  EXPECT_EQ(cambi, 2);
  EXPECT_EQ(TypeParam::Byte(this->barra), 3);
}

TYPED_TEST(ByteBar, WithoutListenersIsSilent) {
  this->ascolto_change.Termina();
  this->ascolto_aspetto.Termina();
  TypeParam::Scrivi(this->barra, "10000000");
  this->barra.LED_Tipo(1, 1);
  EXPECT_EQ(TypeParam::Byte(this->barra), 1);
  EXPECT_TRUE(this->passati.empty());
  EXPECT_EQ(this->ridisegni, 0);
}

TYPED_TEST(ByteBar, ShortTextLeavesTheMissingLedsDark) {
  TypeParam::Scrivi(this->barra, "11111111");
  TypeParam::Scrivi(this->barra, "011");
  EXPECT_EQ(TypeParam::Testo(this->barra), "011");
  EXPECT_EQ(TypeParam::Byte(this->barra), 6);
  EXPECT_EQ(TypeParam::Lettura(this->barra), "00000110");
  EXPECT_EQ(this->barra.Accesi(), 6);
  TypeParam::Scrivi(this->barra, "");
  EXPECT_EQ(TypeParam::Byte(this->barra), 0);
  EXPECT_EQ(this->passati, (std::vector<std::string>{"11111111", "011", ""}));
}

TYPED_TEST(ByteBar, OnlyTheCharacterOneLightsALedAndOnlyEightCount) {
  TypeParam::Scrivi(this->barra, "1x2 1000111");
  EXPECT_EQ(TypeParam::Byte(this->barra), 17);
  EXPECT_EQ(TypeParam::Lettura(this->barra), "00010001");
}

TYPED_TEST(ByteBar, SilentBarStoresAndShowsWithoutChange) {
  TypeParam::Scrivi(this->barra, "10000000");
  this->barra.INT_ON = false;
  TypeParam::Scrivi(this->barra, "11000000");
  EXPECT_EQ(TypeParam::Byte(this->barra), 3);
  EXPECT_EQ(this->barra.Accesi(), 3);
  EXPECT_EQ(this->passati.size(), 1U);
  this->barra.INT_ON = true;
  EXPECT_EQ(this->passati.size(), 1U);
  // The last text that passed is still the first one.
  TypeParam::Scrivi(this->barra, "10000000");
  EXPECT_EQ(this->passati.size(), 1U);
  TypeParam::Scrivi(this->barra, "11000000");
  EXPECT_EQ(this->passati.size(), 2U);
}

TYPED_TEST(ByteBar, ByteAndReadingTextLetsAreStorageOnly) {
  TypeParam::Scrivi(this->barra, "10000000");
  const int prima = this->ridisegni;
  TypeParam::Scrivi_Byte(this->barra, 200);
  TypeParam::Scrivi_Lettura(this->barra, "01010101");
  EXPECT_EQ(TypeParam::Byte(this->barra), 200);
  EXPECT_EQ(TypeParam::Lettura(this->barra), "01010101");
  EXPECT_EQ(TypeParam::Testo(this->barra), "10000000");
  EXPECT_EQ(this->barra.Accesi(), 1);
  EXPECT_EQ(this->ridisegni, prima);
  EXPECT_EQ(this->passati.size(), 1U);
}

TYPED_TEST(ByteBar, ResetDarkensAndPassesZeroes) {
  TypeParam::Scrivi(this->barra, "10110000");
  this->barra.LED_Reset();
  EXPECT_EQ(TypeParam::Testo(this->barra), "00000000");
  EXPECT_EQ(TypeParam::Byte(this->barra), 0);
  EXPECT_EQ(this->barra.Accesi(), 0);
  EXPECT_EQ(this->passati, (std::vector<std::string>{"10110000", "00000000"}));
  EXPECT_TRUE(this->barra.INT_ON);
}

TYPED_TEST(ByteBar, ResetOfASilentBarIsSilentAndOnlyTheOutputsSpeakAgain) {
  TypeParam::Scrivi(this->barra, "10110000");
  this->barra.INT_ON = false;
  this->barra.LED_Reset();
  EXPECT_EQ(this->passati.size(), 1U);
  EXPECT_EQ(TypeParam::Byte(this->barra), 0);
  EXPECT_EQ(this->barra.INT_ON, TypeParam::riparla);
}

TYPED_TEST(ByteBar, LedTypeIsKeptAndRedrawn) {
  const int prima = this->ridisegni;
  this->barra.LED_Tipo(2, 1);
  EXPECT_EQ(this->barra.Tipo(), 2);
  EXPECT_EQ(this->barra.Forma(), 1);
  EXPECT_GT(this->ridisegni, prima);
  EXPECT_TRUE(this->passati.empty());
}

TYPED_TEST(ByteBar, IsRedrawnWhenItsLedsChange) {
  TypeParam::Scrivi(this->barra, "10000000");
  const int prima = this->ridisegni;
  TypeParam::Scrivi(this->barra, "01000000");
  EXPECT_GT(this->ridisegni, prima);
}

// ---- chase --------------------------------------------------------------------------------------

TYPED_TEST(ByteBar, ChaseIsOffUntilSomebodyAsksForIt) {
  this->barra.Interval(10);
  this->orologio.Avanza(1000);
  EXPECT_EQ(this->barra.Accesi(), 0);
  EXPECT_EQ(this->orologio.Prossimo(), Orologio::Mai);
}

TYPED_TEST(ByteBar, AStoredChaseFillsTheFieldOnly) {
  this->barra.Memorizza_Scorri(true);
  EXPECT_TRUE(this->barra.Scorri());
  EXPECT_EQ(this->orologio.Prossimo(), Orologio::Mai);
}

TEST(ByteBarOfTheCpu, OnlyTheFirstInputBarHasAStoredChase) {
  Orologio orologio;
  const Plc plc(orologio);
  EXPECT_TRUE(plc.SI[0].Scorri());
  EXPECT_FALSE(plc.SI[1].Scorri());
  EXPECT_FALSE(plc.SQ[0].Scorri() || plc.SQ[1].Scorri());
  EXPECT_EQ(orologio.Prossimo(), Orologio::Mai);
}

TYPED_TEST(ByteBar, ChaseFillsOneLedPerTickAndThenGoesDark) {
  this->barra.Scorri(true);
  EXPECT_TRUE(this->barra.Scorri());
  this->orologio.Avanza(79);
  EXPECT_EQ(this->barra.Accesi(), 0);
  this->orologio.Avanza(1);
  for (int giro = 0; giro < 2; ++giro) {
    for (int bit = 0; bit <= 7; ++bit) {
      EXPECT_EQ(this->barra.Accesi(), (2 << bit) - 1);
      this->orologio.Avanza(80);
    }
    EXPECT_EQ(this->barra.Accesi(), 0);
    this->orologio.Avanza(80);
  }
}

TYPED_TEST(ByteBar, ChaseShowsLedsWithoutPassingATextUntilItGoesDark) {
  TypeParam::Scrivi(this->barra, "00000001");
  this->barra.Scorri(true);
  this->orologio.Avanza(8 * 80);
  EXPECT_EQ(this->barra.Accesi(), 255);
  EXPECT_EQ(TypeParam::Byte(this->barra), 128);
  EXPECT_EQ(this->passati.size(), 1U);
  this->orologio.Avanza(80);
  EXPECT_EQ(TypeParam::Testo(this->barra), "00000000");
  EXPECT_EQ(this->passati, (std::vector<std::string>{"00000001", "00000000"}));
}

TYPED_TEST(ByteBar, ChaseAddsToTheLedsThatAreLit) {
  TypeParam::Scrivi(this->barra, "00000001");
  this->barra.Scorri(true);
  this->orologio.Avanza(80);
  EXPECT_EQ(this->barra.Accesi(), 129);
}

TYPED_TEST(ByteBar, ChaseThatGoesDarkIsAReset) {
  this->barra.INT_ON = false;
  this->barra.Scorri(true);
  this->orologio.Avanza(9 * 80);
  EXPECT_EQ(this->barra.INT_ON, TypeParam::riparla);
}

TYPED_TEST(ByteBar, ChaseHasItsIntervalAndKeepsItsPlaceWhileItIsOff) {
  this->barra.Interval(10);
  EXPECT_EQ(this->barra.Interval(), 10);
  this->barra.Scorri(true);
  this->orologio.Avanza(30);
  this->barra.Scorri(false);
  EXPECT_FALSE(this->barra.Scorri());
  this->orologio.Avanza(1000);
  EXPECT_EQ(this->barra.Accesi(), 7);
  this->barra.Scorri(true);
  this->orologio.Avanza(10);
  EXPECT_EQ(this->barra.Accesi(), 15);
}

}  // namespace tavorno::prova
