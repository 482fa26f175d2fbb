// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench on the screen that the platform was started with.
#include <QDockWidget>
#include <algorithm>

#include "panel/program_list.h"
#include "panel/workbench.h"
#include "plants/exercises.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "screens/measures.h"
#include "screens/screens_bed.h"
#include "widgets/naming.h"

namespace tavorno {
namespace {

struct Tavolo_Sullo_Schermo : Schermi {
  Tavolo& Apri() {
    Azione(pannello, "mnuViewTavolo").trigger();
    Aspetta_Posa();
    QTest::qWait(0);
    QCoreApplication::processEvents();
    return *finestre.Al_Tavolo();
  }
  /// Seen as a whole, and so large at least.
  static void Si_Vede(const QWidget& parte, const QSize& almeno) {
    SCOPED_TRACE(parte.objectName().toStdString());
    EXPECT_EQ(parte.visibleRegion().boundingRect(), parte.rect());
    EXPECT_GE(parte.width(), almeno.width());
    EXPECT_GE(parte.height(), almeno.height());
  }
  void Le_Viste(Tavolo& tavolo) {
    for (const Riga_Tavolo& riga : Tabella_Tavolo()) {
      QDockWidget* riquadro = tavolo.Riquadro(riga.Chi);
      if (riquadro == nullptr) continue;
      riquadro->raise();
      QCoreApplication::processEvents();
      SCOPED_TRACE(riga.Nome);
      ASSERT_TRUE(riquadro->widget()->isVisible());
      const QWidget& vista = *riquadro->widget();
      EXPECT_TRUE(tavolo.Finestra().rect().contains(
          QRect(vista.mapTo(&tavolo.Finestra(), QPoint(0, 0)), vista.size())));
      EXPECT_GE(riquadro->widget()->width(), riquadro->widget()->minimumSizeHint().width());
      EXPECT_GE(riquadro->widget()->height(), riquadro->widget()->minimumSizeHint().height());
      Intera(tavolo.Finestra());
    }
  }
};

TEST_F(Tavolo_Sullo_Schermo, AnExerciseFitsInItsWindowWithAllThatItNeeds) {
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    SCOPED_TRACE(esercizio.Titolo);
    Azione(pannello, Con_Indice("mnuPrj", esercizio.Indice)).trigger();
    Aspetta_Posa();
    auto* impianto = dynamic_cast<Finestra_Impianto*>(Finestra(esercizio.Host));
    ASSERT_NE(impianto, nullptr);
    Tavolo& tavolo = Apri();
    Le_Viste(tavolo);
    EXPECT_EQ(Mostrate().size(), 1U) << "one window";
    if (esercizio.Indice == 0) Come_Nel_Documento("Tavolo di lavoro", tavolo.Finestra());
    const double scala =
        std::min(impianto->Disegno().width() / double(impianto->Disegno().sizeHint().width()),
                 impianto->Disegno().height() / double(impianto->Disegno().sizeHint().height()));
    EXPECT_GE(scala, 0.4);
    Si_Vede(*c.Fronte, Fronte_CPU::Misura * Fronte_CPU::Minimo);
    Si_Vede(*c.listSrc, QSize(240, 6 * c.listSrc->fontMetrics().height()));
    for (const char* tasto : {"tB1(Run)", "tB1(Stop)", "tB1(Step)", "tB1(Ciclo)", "tB1(Cont)"}) {
      const QWidget* pulsante = c.tB1->widgetForAction(&Azione(*c.tB1, tasto));
      EXPECT_TRUE(pulsante->isVisible()) << tasto;
    }
    for (const char* nome : {"chkSim", "chkIO", "cmdSch", "cmdEnd", "etRun"}) {
      const auto* controllo = impianto->findChild<QWidget*>(nome);
      EXPECT_EQ(controllo->visibleRegion().boundingRect(), controllo->rect()) << nome;
    }
    impianto->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Aspetta_Posa();
    if (HasFailure()) break;
  }
}

TEST_F(Tavolo_Sullo_Schermo, ThePanelFitsWithItsViews) {
  const QRect prima = pannello.geometry();
  Le_Viste(Apri());
  EXPECT_EQ(Mostrate().size(), 1U);
  const QWidget& potenziometri = *c.SlidP[0]->parentWidget();
  EXPECT_EQ(potenziometri.height(), potenziometri.sizeHint().height()) << "not where the list was";
  Si_Comanda();
  Azione(pannello, "mnuViewFinestre").trigger();
  Aspetta_Posa();
  EXPECT_EQ(pannello.geometry(), prima);
}

}  // namespace
}  // namespace tavorno
