// SPDX-License-Identifier: GPL-3.0-or-later
// Every window on the screen that the platform was started with: nothing that is needed lies
// outside it, below another window, or cut off.
#include <QCheckBox>

#include "panel/run_driver.h"
#include "panel/session_bar.h"
#include "panel/session_wires.h"
#include "plants/exercises.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "recorder/recorder.h"
#include "screens/measures.h"
#include "screens/screens_bed.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {
namespace {

TEST_F(Schermi, ThePanelFitsWhenTheProgramStarts) {
  Intera(pannello);
  Si_Comanda();
  Si_Vede_La_CPU();
  Come_Nel_Documento("Panel", pannello);
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
    const QString nome = Q(esercizio.Voce);
    Come_Nel_Documento(nome, *impianto);
    if (esercizio.Indice == 0) {
      Come_Nel_Documento(nome + ": status", *stati);
      Come_Nel_Documento(nome + ": panel", pannello);
    }
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
  Apri_Tutte();
  EXPECT_EQ(Mostrate().size(), 9U);
  for (QWidget* finestra : Mostrate()) Intera(*finestra);
  for (const auto& [riga, nome] : {std::pair{"Editor", "frmMain"},
                                   {"Settings", "frmSetPLC"},
                                   {"Analog inputs", "frmSimAI"},
                                   {"Compiled lines", "frmDebug"},
                                   {"Ladder", "frmScala"},
                                   {"Timing diagram", "frmTempi"},
                                   {"Watch window", "frmOsserva"},
                                   {"Help", "frmBrowser"}}) {
    const QWidget* finestra = Finestra(nome);
    ASSERT_NE(finestra, nullptr) << nome;
    Come_Nel_Documento(riga, *finestra);
  }
}

struct Seduta_Sullo_Schermo : Schermi {
  Registratore registratore{plc};
  Guida_Corsa corsa{plc, [] {}};
  Barra_Seduta barra{pannello, plc, registratore, corsa};

  Seduta_Sullo_Schermo() {
    corsa.Ferma();
    Collega_Seduta(barra, finestre, registratore);
    Azione(pannello, "mnuPrj(9)").trigger();
    Aspetta_Posa();
  }
  void Trova_Posto();
};

void Seduta_Sullo_Schermo::Trova_Posto() {
  ASSERT_TRUE(barra.isVisible());
  QCoreApplication::processEvents();
  Aspetta_Posa();
  Intera(pannello);
  Si_Comanda();
  EXPECT_TRUE(pannello.rect().contains(barra.geometry()));
  // On a lower one the status window cannot give way any more, and the panel comes over it.
  constexpr int basso = 700;
  if (schermo.height() >= basso) Nessuna_Sopra_Un_Altra(Mostrate());
}

TEST_F(Seduta_Sullo_Schermo, TheBarFindsItsRoom) {
  Azione(pannello, "mnuPausa").trigger();
  Trova_Posto();
}

TEST_F(Seduta_Sullo_Schermo, TheBarThatCameAtTheWorkbenchFindsItsRoomOutsideToo) {
  finestre.Mostra_Tavolo();
  QCoreApplication::processEvents();
  Azione(pannello, "mnuPausa").trigger();
  QCoreApplication::processEvents();
  finestre.Separa_Finestre();
  Trova_Posto();
}

TEST_F(Schermi, WhatIsOpenedStandsOnTheScreenOfThePanel) {
  for (QScreen* qui : QGuiApplication::screens()) {
    SCOPED_TRACE(qui->name().toStdString());
    pannello.move(qui->availableGeometry().topLeft());
    Aspetta_Posa();
    Apri_Tutte();
    EXPECT_EQ(Mostrate().size(), 9U);
    for (QWidget* finestra : Mostrate()) {
      EXPECT_TRUE(qui->availableGeometry().contains(finestra->frameGeometry()))
          << finestra->objectName().toStdString() << " at " << finestra->x();
      if (finestra == &pannello) continue;
      finestra->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(Schermi, TheProjectorFillsTheScreenWithEveryWindowAndGivesItBack) {
  Azione(pannello, Con_Indice("mnuPrj", 7)).trigger();  // with the status window
  Apri_Tutte();
  EXPECT_EQ(Mostrate().size(), 11U);
  const auto proietta = [](QWidget& finestra) {
    QTest::keyClick(&finestra, Qt::Key_F11);
    for (int giro = 0; giro < 10; ++giro) QCoreApplication::processEvents();
  };
  for (QWidget* finestra : Mostrate()) {
    SCOPED_TRACE(finestra->objectName().toStdString());
    finestra->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra));
    const QRect posto(finestra->pos(), finestra->size());
    for (int volta = 0; volta < 2; ++volta) {
      proietta(*finestra);
      EXPECT_TRUE(finestra->isFullScreen());
      EXPECT_EQ(finestra->geometry(), finestra->screen()->geometry());
      Intera(*finestra);
      proietta(*finestra);
      EXPECT_FALSE(finestra->isFullScreen());
      EXPECT_EQ(QRect(finestra->pos(), finestra->size()), posto);
    }
  }
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
