// SPDX-License-Identifier: GPL-3.0-or-later
// Alt and a letter lead to one place in each window.
#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <set>

#include "awl/ui/main_window.h"
#include "panel/panel_bed.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

/// What a caption takes with Alt; empty for none.
std::string Lettera(const QString& testo) {
  const QKeySequence tasti = QKeySequence::mnemonic(testo);
  return Utf8(tasti.toString(QKeySequence::PortableText));
}

class Lettere {
 public:
  void Prende(const std::string& lettera, const QString& chi) {
    if (lettera.empty()) return;
    const auto [prima, nuova] = di_.try_emplace(lettera, Utf8(chi));
    EXPECT_TRUE(nuova) << lettera << ": " << Utf8(chi) << " and " << prima->second;
  }

 private:
  std::map<std::string, std::string> di_;
};

void Esamina_Finestra(const QMainWindow& finestra) {
  Lettere lettere;
  for (const QAction* voce : finestra.menuBar()->actions())
    lettere.Prende(Lettera(voce->text()), voce->text());
  for (const auto* tasto : finestra.findChildren<QAbstractButton*>())
    if (tasto->shortcut() == QKeySequence::mnemonic(tasto->text()))
      lettere.Prende(Lettera(tasto->text()), tasto->text());
  for (const auto* gruppo : finestra.findChildren<QGroupBox*>())
    lettere.Prende(Lettera(gruppo->title()), gruppo->title());
  for (const auto* schede : finestra.findChildren<QTabBar*>())
    for (int i = 0; i < schede->count(); ++i)
      lettere.Prende(Lettera(schede->tabText(i)), schede->tabText(i));
  for (const auto* etichetta : finestra.findChildren<QLabel*>())
    if (etichetta->buddy() != nullptr)
      lettere.Prende(Lettera(etichetta->text()), etichetta->text());
  // A short cut with Alt and a letter would be a third one.
  for (const auto* voce : finestra.findChildren<QAction*>()) {
    const std::string tasti = Utf8(voce->shortcut().toString(QKeySequence::PortableText));
    if (tasti.size() == 5 && tasti.starts_with("Alt+")) lettere.Prende(tasti, voce->text());
  }
}

void Esamina_Menu(const QMainWindow& finestra) {
  // Captions that are given.
  const std::set<QString> doppie = {"Finestra &Scalaro"};
  for (const auto* menu : finestra.findChildren<QMenu*>()) {
    Lettere lettere;
    for (const QAction* voce : menu->actions())
      if (!doppie.contains(voce->text())) lettere.Prende(Lettera(voce->text()), voce->text());
  }
}

TEST_F(Banco_Pannello, AltAndALetterAreOfOneCommandOnly) {
  Esamina_Finestra(pannello);
  Esamina_Menu(pannello);
}

TEST_F(Banco_Pannello, SoTheyAreInTheEditor) {
  FrmMain editor(progetto, plc, {});
  Esamina_Finestra(editor);
  Esamina_Menu(editor);
}

TEST_F(Banco_Pannello, EveryControlThatTakesTheKeyboardHasANameForReaders) {
  FrmMain editor(progetto, plc, {});
  for (QWidget* finestra : {static_cast<QWidget*>(&pannello), static_cast<QWidget*>(&editor)}) {
    for (QWidget* controllo : finestra->findChildren<QWidget*>()) {
      if ((controllo->focusPolicy() & Qt::TabFocus) == 0) continue;
      // The frames of pages and scroll areas pass the keyboard on.
      if (controllo->parentWidget()->inherits("QAbstractSpinBox")) continue;  // a part of one
      if (controllo->inherits("QTabWidget") || controllo->inherits("QStackedWidget")) continue;
      QAccessibleInterface* letto = QAccessible::queryAccessibleInterface(controllo);
      ASSERT_NE(letto, nullptr) << Utf8(controllo->objectName());
      if (letto->role() == QAccessible::PageTabList) continue;  // its tabs have names
      EXPECT_FALSE(letto->text(QAccessible::Name).isEmpty())
          << Utf8(controllo->objectName()) << ' ' << controllo->metaObject()->className();
    }
  }
}

}  // namespace
}  // namespace tavorno
