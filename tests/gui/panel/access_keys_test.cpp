// SPDX-License-Identifier: GPL-3.0-or-later
// Alt and a letter lead to one place in each window.
#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabBar>
#include <set>
#include <vector>

#include "awl/recovery.h"
#include "awl/ui/recovery_dialog.h"
#include "awl/ui/uses_list.h"
#include "grading/ui/film_window.h"
#include "grading/ui/verification_window.h"
#include "panel/child_windows.h"
#include "panel/documents/about_window.h"
#include "panel/documents/print_window.h"
#include "panel/panel_bed.h"
#include "plants/exercises.h"
#include "plants/host/host_window.h"
#include "recorder/recorder.h"
#include "recorder/ui/signal_choice.h"
#include "recorder/ui/stops_dialog.h"
#include "support/answers.h"
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

void Esamina_Finestra(const QWidget& finestra) {
  Lettere lettere;
  if (const auto* menu = finestra.findChild<QMenuBar*>())
    for (const QAction* voce : menu->actions()) lettere.Prende(Lettera(voce->text()), voce->text());
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
    // Where AltGr comes as both, a command there would take a letter away.
    for (const QKeySequence& questi : voce->shortcuts())
      EXPECT_FALSE(questi[0].keyboardModifiers().testFlags(Qt::ControlModifier | Qt::AltModifier))
          << Utf8(voce->text());
  }
}

void Esamina_Menu(const QWidget& finestra) {
  // Captions that are given.
  const std::set<QString> doppie = {"Finestra &Scalaro"};
  for (const auto* menu : finestra.findChildren<QMenu*>()) {
    Lettere lettere;
    for (const QAction* voce : menu->actions())
      if (!doppie.contains(voce->text())) lettere.Prende(Lettera(voce->text()), voce->text());
  }
}

/// What takes the keyboard, but for the parts that only pass it on.
std::vector<QWidget*> Presi_Dal_Tab(const QWidget& finestra) {
  std::vector<QWidget*> presi;
  for (QWidget* controllo : finestra.findChildren<QWidget*>()) {
    if ((controllo->focusPolicy() & Qt::TabFocus) == 0 || controllo->window() != &finestra)
      continue;
    const QWidget& sopra = *controllo->parentWidget();
    if (sopra.inherits("QAbstractSpinBox") || sopra.inherits("QComboBox")) continue;  // parts
    if (controllo->inherits("QTabWidget") || controllo->inherits("QStackedWidget")) continue;
    if (controllo->metaObject() == &QScrollArea::staticMetaObject) continue;
    presi.push_back(controllo);
  }
  return presi;
}

void Esamina_Nomi(const QWidget& finestra) {
  for (QWidget* controllo : Presi_Dal_Tab(finestra)) {
    QAccessibleInterface* letto = QAccessible::queryAccessibleInterface(controllo);
    ASSERT_NE(letto, nullptr) << Utf8(controllo->objectName());
    if (letto->role() == QAccessible::PageTabList) continue;  // its tabs have names
    EXPECT_FALSE(letto->text(QAccessible::Name).isEmpty())
        << Utf8(controllo->objectName()) << ' ' << controllo->metaObject()->className() << " in "
        << Utf8(finestra.windowTitle());
  }
}

void Esamina_Tutto(const QWidget& finestra) {
  SCOPED_TRACE(Utf8(finestra.objectName() + ' ' + finestra.windowTitle()));
  Esamina_Finestra(finestra);
  Esamina_Menu(finestra);
  Esamina_Nomi(finestra);
}

struct Tutte_Le_Finestre : Banco_Pannello {
  Guida guida;
  Finestre finestre{pannello, plc, progetto, guida};

  /// Looks at every window of the program that is open, and returns how many there are.
  static std::size_t Esamina() {
    std::size_t quante = 0;
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (!finestra->isVisible() || !finestra->objectName().startsWith("frm")) continue;
      SCOPED_TRACE(Utf8(finestra->objectName()));
      Esamina_Tutto(*finestra);
      const auto ruolo = QAccessible::queryAccessibleInterface(finestra)->role();
      EXPECT_TRUE(ruolo == QAccessible::Window || ruolo == QAccessible::Dialog) << ruolo;
      ++quante;
    }
    return quante;
  }
};

TEST_F(Tutte_Le_Finestre, HaveNoLetterTwiceAndNoControlWithoutAName) {
  guida.Dir_Help = "/guida/";
  EXPECT_EQ(Esamina(), 1U) << "the panel";
  finestre.Mostra_Impostazioni();
  finestre.Mostra_Analogici();
  finestre.Mostra_Stati();
  finestre.Mostra_Debug();
  finestre.Mostra_Scala();
  finestre.Mostra_Tempi();
  finestre.Mostra_Osserva();
  finestre.Mostra_Aiuto("/guida/Index.htm");
  finestre.Mostra_Editor(Avvio::Nuovo);
  EXPECT_EQ(Esamina(), 10U);
}

TEST_F(Tutte_Le_Finestre, OfTheExercisesToo) {
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    finestre.Apri_Impianto(esercizio.Indice);
    ASSERT_NE(finestre.Impianto(), nullptr);
    EXPECT_EQ(Esamina(), 3U) << "panel, status and plant";
    finestre.Mostra_Tavolo();
    EXPECT_GE(Esamina(), 1U);
    finestre.Separa_Finestre();
    finestre.Impianto()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(Tutte_Le_Finestre, AndThoseThatComeUpForAMoment) {
  Risponditore risponditore;
  QTemporaryDir cartella;
  Eredita eredita(cartella.path().toStdString());
  Registratore registratore(plc);
  const std::function<std::unique_ptr<QWidget>()> aperte[] = {
      [] { return std::make_unique<FrmAbaut>(); },
      [&] { return std::make_unique<FrmStampe>(progetto); },
      [&] { return std::make_unique<FrmRecupera>(eredita, risponditore.Come_Dialoghi(), nullptr); },
      [] { return std::make_unique<Elenco_Usi>(Elenco_Usi::Legami{}, nullptr); },
      [] { return std::make_unique<Dialogo_Fermate>(nullptr, Fermate{}, 0); },
      [&] {
        return std::make_unique<Scelta_Segnali>(nullptr, &Tabella_Esercizi()[0], plc,
                                                std::vector<Segnale>{});
      },
      [] { return std::make_unique<FrmVerifica>(Tabella_Esercizi()[0], Legami_Verifica{}); },
      [&] { return std::make_unique<FrmGuarda>(registratore, plc, Caso{}); },
  };
  for (const auto& apri : aperte) {
    const std::unique_ptr<QWidget> finestra = apri();
    finestra->show();
    Esamina_Tutto(*finestra);
    EXPECT_FALSE(finestra->windowTitle().isEmpty());
    EXPECT_FALSE(Presi_Dal_Tab(*finestra).empty());
  }
}

}  // namespace
}  // namespace tavorno
