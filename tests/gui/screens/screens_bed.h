// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

#include "panel/child_windows.h"
#include "panel/panel_bed.h"

namespace tavorno {

/// All windows of the program on the screen that the platform was started with, and what is
/// measured there.
struct Schermi : Banco_Pannello {
  Guida guida;
  Finestre finestre{pannello, plc, progetto, guida};
  QRect schermo = pannello.screen()->availableGeometry();

  Schermi() {
    pannello.hide();  // the bed showed it before there was anyone to see
    pannello.show();
    Aspetta_Posa();
  }

  /// Until the frames of what was opened are settled.
  void Aspetta_Posa() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
  }

  void Apri_Tutte() {
    guida.Dir_Help = "/guida/";
    finestre.Mostra_Editor(Avvio::Nuovo);
    finestre.Mostra_Impostazioni();
    finestre.Mostra_Analogici();
    finestre.Mostra_Debug();
    finestre.Mostra_Tempi();
    finestre.Mostra_Osserva();
    finestre.Mostra_Scala();
    finestre.Mostra_Aiuto("/guida/Index.htm");
    Aspetta_Posa();
  }

  static QWidget* Finestra(const QString& nome) {
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (finestra->objectName() == nome && finestra->isVisible()) return finestra;
    }
    return nullptr;
  }
  static std::vector<QWidget*> Mostrate() {
    std::vector<QWidget*> mostrate;
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (finestra->objectName().startsWith("frm") && finestra->isVisible())
        mostrate.push_back(finestra);
    }
    return mostrate;
  }

  /// Nothing outside the screen, nothing cut off.
  void Intera(QWidget& finestra) const {
    SCOPED_TRACE(finestra.objectName().toStdString());
    const QRect cornice = finestra.frameGeometry();
    EXPECT_TRUE(schermo.contains(cornice))
        << cornice.x() << ',' << cornice.y() << ' ' << cornice.width() << 'x' << cornice.height();
    for (QWidget* figlio : finestra.findChildren<QWidget*>()) {
      if (!figlio->isVisible() || figlio->window() != &finestra || !Porta_Testo(*figlio)) continue;
      if (Dietro_Una_Linguetta(*figlio)) continue;
      EXPECT_GE(figlio->width(), figlio->minimumSizeHint().width())
          << "cut: " << figlio->objectName().toStdString();
      EXPECT_GE(figlio->height(), figlio->minimumSizeHint().height())
          << "cut: " << figlio->objectName().toStdString();
      if (In_Area(*figlio)) continue;
      const QRect posto(figlio->mapTo(&finestra, QPoint(0, 0)), figlio->size());
      EXPECT_TRUE(finestra.rect().contains(posto)) << figlio->objectName().toStdString();
    }
  }
  static bool Porta_Testo(QWidget& figlio) {
    // The tool tip has the whole name of a file or exercise.
    if (figlio.objectName() == "stB(1)" || figlio.objectName() == "stB(4)" ||
        figlio.objectName() == "etCursori")
      return false;
    if (const auto* etichetta = qobject_cast<QLabel*>(&figlio))
      return !etichetta->text().isEmpty() && !etichetta->wordWrap() &&
             etichetta->property("scala") != true &&
             !etichetta->parent()->objectName().startsWith("SimI");
    if (const auto* icona = qobject_cast<QToolButton*>(&figlio))
      return icona->toolButtonStyle() != Qt::ToolButtonIconOnly;
    const auto* tasto = qobject_cast<QAbstractButton*>(&figlio);
    return tasto != nullptr && !tasto->text().isEmpty() && !qobject_cast<QTabBar*>(figlio.parent());
  }
  /// A dock behind another one is visible, and stands outside its window.
  static bool Dietro_Una_Linguetta(const QWidget& figlio) {
    for (const QWidget* sopra = &figlio; sopra; sopra = sopra->parentWidget()) {
      if (const auto* riquadro = qobject_cast<const QDockWidget*>(sopra))
        return !riquadro->window()->rect().intersects(riquadro->geometry());
    }
    return false;
  }
  /// What scrolls can be reached, and what the front of the CPU draws grows with it.
  static bool In_Area(const QWidget& figlio) {
    for (const QWidget* sopra = figlio.parentWidget(); sopra; sopra = sopra->parentWidget()) {
      if (qobject_cast<const QAbstractScrollArea*>(sopra) != nullptr) return true;
    }
    return false;
  }

  void Nessuna_Sopra_Un_Altra(const std::vector<QWidget*>& finestre_aperte) const {
    for (const QWidget* una : finestre_aperte) {
      for (const QWidget* altra : finestre_aperte) {
        if (una >= altra) continue;
        EXPECT_FALSE(una->frameGeometry().intersects(altra->frameGeometry()))
            << una->objectName().toStdString() << " and " << altra->objectName().toStdString();
      }
    }
  }

  /// The menus, Run and Stop of the panel.
  void Si_Comanda() {
    for (QAction* menu : pannello.menuBar()->actions())
      EXPECT_TRUE(pannello.menuBar()->rect().contains(pannello.menuBar()->actionGeometry(menu)))
          << menu->text().toStdString();
    for (const char* tasto : {"tB1(Run)", "tB1(Stop)", "tB1(Step)"}) {
      const QWidget* pulsante = c.tB1->widgetForAction(&Azione(pannello, tasto));
      EXPECT_TRUE(pulsante->isVisible()) << tasto;
      EXPECT_TRUE(c.tB1->rect().contains(pulsante->geometry())) << tasto;
    }
  }

  /// Front and LEDs can be seen without scrolling.
  void Si_Vede_La_CPU() {
    const QRect fronte(c.Fronte->mapTo(&pannello, QPoint(0, 0)), c.Fronte->size());
    EXPECT_TRUE(pannello.centralWidget()->geometry().contains(fronte))
        << fronte.width() << 'x' << fronte.height() << " in " << pannello.centralWidget()->width()
        << 'x' << pannello.centralWidget()->height();
  }
};

}  // namespace tavorno
