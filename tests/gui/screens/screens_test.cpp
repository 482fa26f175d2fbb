// SPDX-License-Identifier: GPL-3.0-or-later
// Every window on the screen that the platform was started with: nothing that is needed lies
// outside it, below another window, or cut off.
#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

#include "panel/child_windows.h"
#include "panel/panel_bed.h"
#include "plants/exercises.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "widgets/naming.h"
#include "widgets/twips.h"

namespace tavorno {
namespace {

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
    if (figlio.objectName() == "stB(1)" || figlio.objectName() == "stB(4)") return false;
    if (const auto* etichetta = qobject_cast<QLabel*>(&figlio))
      return !etichetta->text().isEmpty() && !etichetta->wordWrap() &&
             etichetta->property("scala") != true && etichetta->parent()->objectName() != "SimI";
    if (const auto* icona = qobject_cast<QToolButton*>(&figlio))
      return icona->toolButtonStyle() != Qt::ToolButtonIconOnly;
    const auto* tasto = qobject_cast<QAbstractButton*>(&figlio);
    return tasto != nullptr && !tasto->text().isEmpty() && !qobject_cast<QTabBar*>(figlio.parent());
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

TEST_F(Schermi, ThePanelFitsWhenTheProgramStarts) {
  Intera(pannello);
  Si_Comanda();
  Si_Vede_La_CPU();
}

TEST_F(Schermi, EveryExerciseHasItsThreeWindowsSideBySide) {
  const QRect prima = pannello.frameGeometry();
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    SCOPED_TRACE(esercizio.Titolo);
    Azione(pannello, Con_Indice("mnuPrj", esercizio.Indice)).trigger();
    Aspetta_Posa();
    auto* impianto = dynamic_cast<Finestra_Impianto*>(Finestra(esercizio.Host));
    ASSERT_NE(impianto, nullptr);
    QWidget* stati = Finestra("frmStatiL");
    ASSERT_NE(stati, nullptr);
    const auto tutto = [&] {
      EXPECT_EQ(impianto->frameGeometry().topLeft(), schermo.topLeft());
      EXPECT_EQ(stati->frameGeometry().top(), schermo.top());
      EXPECT_EQ(stati->frameGeometry().left(),
                impianto->frameGeometry().left() + impianto->frameGeometry().width() + 3);
      for (QWidget* finestra :
           {&static_cast<QWidget&>(pannello), stati, static_cast<QWidget*>(impianto)})
        Intera(*finestra);
      Nessuna_Sopra_Un_Altra({&pannello, stati, impianto});
      Si_Comanda();
      Si_Vede_La_CPU();
      for (const char* nome : {"chkSim", "chkIO", "cmdSch", "cmdEnd", "etRun"}) {
        const auto* controllo = impianto->findChild<QWidget*>(nome);
        EXPECT_EQ(controllo->visibleRegion().boundingRect(), controllo->rect()) << nome;
      }
      const double scala =
          std::min(impianto->Disegno().width() / double(impianto->Disegno().sizeHint().width()),
                   impianto->Disegno().height() / double(impianto->Disegno().sizeHint().height()));
      EXPECT_GE(scala, 0.4);
    };
    tutto();
    const QSize chiusa = impianto->size();
    auto* chkIO = impianto->findChild<QCheckBox*>("chkIO");
    chkIO->click();
    Aspetta_Posa();
    {
      SCOPED_TRACE("with its table");
      tutto();
    }
    chkIO->click();
    Aspetta_Posa();
    EXPECT_EQ(impianto->size(), chiusa);
    impianto->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Aspetta_Posa();
    EXPECT_EQ(pannello.frameGeometry().size(), prima.size());
    if (HasFailure()) break;
  }
}

TEST_F(Schermi, WhereThereIsRoomEverythingHasItsToldSizeAndPlace) {
  const Esercizio& esercizio = Tabella_Esercizi()[0];
  Azione(pannello, "mnuPrj(0)").trigger();
  Aspetta_Posa();
  auto* impianto = dynamic_cast<Finestra_Impianto*>(Finestra(esercizio.Host));
  const QSize detta(impianto->Disegno().sizeHint().width(), Px(esercizio.Altezza_Chiusa));
  if (schermo.width() < 2000) {
    EXPECT_LE(impianto->width(), detta.width());
  } else {
    EXPECT_EQ(impianto->size(), detta);
    EXPECT_EQ(pannello.size(), QSize(1060, 700));
    EXPECT_EQ(pannello.frameGeometry().left(), Finestra("frmStatiL")->frameGeometry().left());
  }
  impianto->close();
}

TEST_F(Schermi, TheStatusWindowAndThePanelShareTheScreen) {
  const QSize prima = pannello.size();
  finestre.Mostra_Stati();
  Aspetta_Posa();
  QWidget& stati = *Finestra("frmStatiL");
  Intera(stati);
  Intera(pannello);
  Nessuna_Sopra_Un_Altra({&stati, &pannello});
  Si_Comanda();
  stati.close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Aspetta_Posa();
  EXPECT_EQ(pannello.size(), prima);
}

TEST_F(Schermi, EveryOtherWindowOpensWithinTheScreen) {
  guida.Dir_Help = "/guida/";
  finestre.Mostra_Impostazioni();
  finestre.Mostra_Analogici();
  finestre.Mostra_Debug();
  finestre.Mostra_Scala();
  finestre.Mostra_Tempi();
  finestre.Mostra_Osserva();
  finestre.Mostra_Aiuto("/guida/Index.htm");
  finestre.Mostra_Editor(Avvio::Nuovo);
  Aspetta_Posa();
  EXPECT_EQ(Mostrate().size(), 9U);
  for (QWidget* finestra : Mostrate()) Intera(*finestra);
}

TEST_F(Schermi, AWindowMovedByHandIsLeftAloneUntilTheOrderIsAskedFor) {
  Azione(pannello, "mnuPrj(0)").trigger();
  Aspetta_Posa();
  auto* impianto = dynamic_cast<Finestra_Impianto*>(Finestra("frmMA"));
  const QRect dato = pannello.frameGeometry();
  pannello.move(schermo.topLeft() + QPoint(30, 40));
  pannello.resize(500, 400);
  const QRect a_mano = pannello.frameGeometry();
  impianto->findChild<QCheckBox*>("chkIO")->click();
  Aspetta_Posa();
  EXPECT_EQ(pannello.frameGeometry(), a_mano);
  impianto->findChild<QCheckBox*>("chkIO")->click();
  Aspetta_Posa();
  Azione(pannello, "mnuViewDisponi").trigger();
  Aspetta_Posa();
  EXPECT_EQ(pannello.frameGeometry(), dato);
  pannello.move(schermo.topLeft() + QPoint(30, 40));
  const QPoint posto = pannello.pos();
  impianto->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(pannello.pos(), posto) << "closing moves nothing that the user has moved";
}

}  // namespace
}  // namespace tavorno
