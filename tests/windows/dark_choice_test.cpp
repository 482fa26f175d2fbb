// SPDX-License-Identifier: GPL-3.0-or-later
// Where Windows keeps the user's choice of a dark desktop.
// clang-format off
#include <windows.h>
// clang-format on
#include "widgets/dark_choice.h"

#include <gtest/gtest.h>

namespace tavorno::prova {

namespace {

constexpr wchar_t cartella[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
constexpr wchar_t nome[] = L"AppsUseLightTheme";

/// The value of the machine's user comes back when a test ends.
class DarkChoice : public ::testing::Test {
 public:
  DarkChoice() {
    DWORD misura = sizeof prima_;
    c_era_ = RegGetValueW(HKEY_CURRENT_USER, cartella, nome, RRF_RT_REG_DWORD, nullptr, &prima_,
                          &misura) == ERROR_SUCCESS;
  }
  ~DarkChoice() override {
    if (c_era_)
      Scrivi(prima_);
    else
      Togli();
  }
  static void Scrivi(DWORD valore) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, cartella, nome, REG_DWORD, &valore, sizeof valore),
              ERROR_SUCCESS);
  }
  static void Togli() { RegDeleteKeyValueW(HKEY_CURRENT_USER, cartella, nome); }

 private:
  DWORD prima_ = 0;
  bool c_era_ = false;
};

TEST_F(DarkChoice, ZeroInTheRegistryIsDark) {
  Scrivi(0);
  EXPECT_EQ(Leggi_Scelta().AppsUseLightTheme, 0U);
  EXPECT_TRUE(Vuole_Scuro(Leggi_Scelta()));
}

TEST_F(DarkChoice, OneInTheRegistryIsLight) {
  Scrivi(1);
  EXPECT_EQ(Leggi_Scelta().AppsUseLightTheme, 1U);
  EXPECT_FALSE(Vuole_Scuro(Leggi_Scelta()));
}

TEST_F(DarkChoice, ASystemThatNeverAskedIsLight) {
  Togli();
  EXPECT_EQ(Leggi_Scelta().AppsUseLightTheme, std::nullopt);
  EXPECT_FALSE(Vuole_Scuro(Leggi_Scelta()));
}

TEST_F(DarkChoice, ATextInItsPlaceIsNoChoice) {
  Togli();
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, cartella, nome, REG_SZ, L"0", 2 * sizeof(wchar_t)),
            ERROR_SUCCESS);
  EXPECT_EQ(Leggi_Scelta().AppsUseLightTheme, std::nullopt);
}

}  // namespace

}  // namespace tavorno::prova
