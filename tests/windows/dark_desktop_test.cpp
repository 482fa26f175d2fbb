// SPDX-License-Identifier: GPL-3.0-or-later
// The windows follow the user's choice of a dark desktop, at the start and while they are open.
// clang-format off
#include <windows.h>
// clang-format on
#include <gtest/gtest.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QWidget>

#include "widgets/colours.h"
#include "widgets/dark_choice.h"
#include "widgets/desktop_theme.h"

namespace tavorno::prova {

namespace {

void Sceglie(DWORD valore) {
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER,
                            L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                            L"AppsUseLightTheme", REG_DWORD, &valore, sizeof valore),
            ERROR_SUCCESS);
}

/// As the settings of Windows tell every window.
void Annuncia(const QWidget& finestra) {
  SendMessageW(reinterpret_cast<HWND>(finestra.winId()), WM_SETTINGCHANGE, 0,
               reinterpret_cast<LPARAM>(L"ImmersiveColorSet"));
}

bool Diventa(bool scura) {
  const QDeadlineTimer limite(60000);
  while (colori::In_Uso().Scura != scura && !limite.hasExpired())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
  return colori::In_Uso().Scura == scura;
}

TEST(DarkDesktop, TheWindowsFollowTheChoice) {
  const Scelta_Windows prima = Leggi_Scelta();
  Sceglie(0);
  Segui_Scrivania();
  EXPECT_TRUE(colori::In_Uso().Scura);
  QWidget finestra;
  finestra.show();

  Sceglie(1);
  Annuncia(finestra);
  EXPECT_TRUE(Diventa(false));
  Sceglie(0);
  Annuncia(finestra);
  EXPECT_TRUE(Diventa(true));
  EXPECT_EQ(finestra.palette().color(QPalette::Window), Tavolozza_Scura().color(QPalette::Window));
  Sceglie(prima.AppsUseLightTheme.value_or(1));
}

}  // namespace

}  // namespace tavorno::prova

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication applicazione(argc, argv);
  return RUN_ALL_TESTS();
}
