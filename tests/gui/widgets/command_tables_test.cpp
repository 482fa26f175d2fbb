// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/command_tables.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <array>

#include "support/command.h"

namespace tavorno {
namespace {

constexpr std::array voci{
    Voce_Menu{0, "mnuUno", "&Uno"},
    Voce_Menu{1, "mnuA", "&Alfa", Spunta::Senza, "Ctrl+A"},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuS", "Sotto"},
    Voce_Menu{2, "mnuS(0)", "&Primo", Spunta::Messa},
    Voce_Menu{2, "mnuS(1)", "&Secondo", Spunta::Vuota},
    Voce_Menu{0, "mnuDue", "&Due"},
    Voce_Menu{1, "mnuB", "&Beta"},
};

TEST(Menu, FollowsItsTable) {
  QMainWindow finestra;
  Crea_Menu(finestra, voci);
  const auto titoli = finestra.menuBar()->actions();
  ASSERT_EQ(titoli.size(), 2);
  EXPECT_EQ(titoli[0]->text(), "&Uno");
  EXPECT_EQ(titoli[1]->objectName(), "mnuDue");
  const auto uno = titoli[0]->menu()->actions();
  ASSERT_EQ(uno.size(), 3);
  EXPECT_EQ(uno[0]->objectName(), "mnuA");
  EXPECT_EQ(uno[0]->shortcut(), QKeySequence("Ctrl+A"));
  EXPECT_TRUE(uno[1]->isSeparator());
  ASSERT_NE(uno[2]->menu(), nullptr);
  ASSERT_EQ(uno[2]->menu()->actions().size(), 2);
  EXPECT_TRUE(Azione(finestra, "mnuS(0)").isChecked());
  EXPECT_TRUE(Azione(finestra, "mnuS(1)").isCheckable());
  EXPECT_FALSE(Azione(finestra, "mnuS(1)").isChecked());
  EXPECT_FALSE(Azione(finestra, "mnuA").isCheckable());
}

TEST(ToolBar, FollowsItsTable) {
  QMainWindow finestra;
  constexpr std::array tasti{Tasto_Barra{"New", "Nuovo Progetto", "New"},
                             Tasto_Barra{"Run", "Run PLC", "New", "mnuB", true, true}};
  QToolBar* barra = Crea_Barra(finestra, "tB1", tasti);
  ASSERT_EQ(barra->actions().size(), 3);
  EXPECT_TRUE(barra->actions()[1]->isSeparator());
  EXPECT_EQ(Azione(finestra, "tB1(New)").toolTip(), "Nuovo Progetto");
  EXPECT_FALSE(Azione(finestra, "tB1(New)").icon().isNull());
  EXPECT_TRUE(Azione(finestra, "tB1(Run)").isCheckable());
  EXPECT_NE(finestra.findChild<QToolButton*>("tB1(Run)"), nullptr);
}

}  // namespace
}  // namespace tavorno
