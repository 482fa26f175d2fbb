// SPDX-License-Identifier: GPL-3.0-or-later
// A key has one command in each window: with two the window library obeys neither.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QShortcut>
#include <map>
#include <set>

#include "panel/session_bed.h"
#include "panel/verification.h"
#include "plants/exercises.h"
#include "support/command.h"
#include "widgets/text.h"

namespace tavorno::prova {
namespace {

struct Tasti_Delle_Finestre : ::testing::Test, Banco_Seduta {
  Sala_Verifica sala{pannello, plc, seduta.progetto, registratore, corsa, finestre, {}, {}};

  Tasti_Delle_Finestre() {
    pannello.show();
    Carica({"LD I0.1", "= Q0.0"});
  }

  /// Whatever answers a key anywhere in a window, without what answers in its own part only.
  static std::map<QString, std::set<const QObject*>> Chi_Risponde(const QWidget& finestra) {
    std::map<QString, std::set<const QObject*>> chi;
    const auto nota = [&chi](const QKeySequence& tasti, const QObject* uno) {
      if (!tasti.isEmpty()) chi[tasti.toString(QKeySequence::PortableText)].insert(uno);
    };
    const auto note = [&nota](const QWidget& parte) {
      for (const QAction* azione : parte.actions()) {
        if (!azione->isEnabled() || !azione->isVisible()) continue;
        const Qt::ShortcutContext dove = azione->shortcutContext();
        if (dove != Qt::WindowShortcut && dove != Qt::ApplicationShortcut) continue;
        for (const QKeySequence& tasti : azione->shortcuts()) nota(tasti, azione);
      }
    };
    note(finestra);
    // A menu is a window, but its keys are those of the one it hangs in.
    for (const QWidget* parte : finestra.findChildren<QWidget*>())
      if (parte->window() == &finestra || qobject_cast<const QMenu*>(parte) != nullptr)
        note(*parte);
    for (const QAction* azione : finestra.findChildren<QAction*>())
      if (azione->menu() != nullptr) note(*azione->menu());
    for (const QShortcut* tasto : finestra.findChildren<QShortcut*>())
      if (tasto->isEnabled() && tasto->context() == Qt::WindowShortcut) nota(tasto->key(), tasto);
    return chi;
  }

  /// All windows of the program that are open; returns how many.
  static int Esamina() {
    int quante = 0;
    for (const QWidget* finestra : QApplication::topLevelWidgets()) {
      if (!finestra->isVisible() || !finestra->objectName().startsWith("frm")) continue;
      ++quante;
      const auto chi = Chi_Risponde(*finestra);
      for (const auto& [tasti, quali] : chi)
        EXPECT_EQ(quali.size(), 1U) << Utf8(tasti) << " in "
                                    << Utf8(finestra->objectName() + ' ' + finestra->windowTitle());
    }
    return quante;
  }
};

TEST_F(Tasti_Delle_Finestre, AreOneCommandEach) {
  finestre.Mostra_Impostazioni();
  finestre.Mostra_Analogici();
  finestre.Mostra_Stati();
  finestre.Mostra_Debug();
  finestre.Mostra_Scala();
  finestre.Mostra_Tempi();
  finestre.Mostra_Osserva();
  finestre.Mostra_Editor(Avvio::Nuovo);
  EXPECT_EQ(Esamina(), 9);
}

/// Nobody has to look for the panel while the machine goes wrong.
TEST_F(Tasti_Delle_Finestre, OfThePauseWorkFromEachWindow) {
  finestre.Mostra_Impostazioni();
  finestre.Mostra_Analogici();
  finestre.Mostra_Scala();
  finestre.Mostra_Tempi();
  finestre.Mostra_Osserva();
  finestre.Apri_Impianto(0);
  finestre.Mostra_Editor(Avvio::Nuovo);
  int quante = 0;
  for (const QWidget* finestra : QApplication::topLevelWidgets()) {
    if (!finestra->isVisible() || !finestra->objectName().startsWith("frm")) continue;
    SCOPED_TRACE(Utf8(finestra->objectName()));
    ++quante;
    const auto chi = Chi_Risponde(*finestra);
    EXPECT_TRUE(chi.contains(Pausa_Ovunque));
    const bool editor = finestra->objectName() == "frmMain";
    EXPECT_TRUE(chi.contains("F8"));
    EXPECT_EQ(chi.at("F8").contains(pannello.Pausa), !editor) << "there it loads the program";
    if (!finestra->toolTip().isEmpty()) {
      EXPECT_TRUE(finestra->toolTip().contains("F8 pausa"));
    }
  }
  EXPECT_EQ(quante, 9);
}

TEST_F(Tasti_Delle_Finestre, WithAnExerciseAndAtTheWorkbenchToo) {
  finestre.Apri_Impianto(0);
  ASSERT_TRUE(Azione(pannello, "mnuViewVerifica").isEnabled());
  EXPECT_TRUE(Chi_Risponde(pannello).contains("F9")) << "menus are looked into";
  EXPECT_EQ(Esamina(), 3) << "panel, status, plant";
  finestre.Mostra_Tavolo();
  EXPECT_EQ(Esamina(), 1);
  finestre.Separa_Finestre();
  EXPECT_GE(Esamina(), 3);
}

}  // namespace
}  // namespace tavorno::prova
