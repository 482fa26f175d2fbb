// SPDX-License-Identifier: GPL-3.0-or-later
// The diagram in its window: keys, mouse, what it records and what it costs when it is closed.
#include <QImage>
#include <QMenu>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>
#include <fstream>
#include <set>

#include "plants/exercises.h"
#include "recorder/diagram_bed.h"
#include "widgets/colours.h"
#include "widgets/elided_label.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

using Diagram_Window = Banco_Diagramma;

TEST_F(Diagram_Window, BeginsWithTheSignalsOfTheProgram) {
  EXPECT_EQ(finestra->objectName(), "frmTempi");
  EXPECT_EQ(finestra->windowTitle(), "Diagramma dei tempi");
  std::vector<std::string> nomi;
  for (const Segnale& segnale : D().Mostrati()) nomi.push_back(segnale.Nome);
  EXPECT_EQ(nomi, (std::vector<std::string>{"I0.0", "Q0.0", "VW0"}));
}

TEST_F(Diagram_Window, RecordsARunScanByScan) {
  Corri(1000);
  const Onda& ingresso = finestra->Registrati().Quando(*finestra->Registrati().Cerca("I0.0"));
  EXPECT_EQ(ingresso.Cambi(), 11U);
  EXPECT_GT(finestra->Registrati().Quando(*finestra->Registrati().Cerca("VW0")).Cambi(), 400U);
  EXPECT_TRUE(D().In_Diretta);
}

TEST_F(Diagram_Window, ClosedItListensToNothing) {
  Corri(10);
  finestra->setAttribute(Qt::WA_DeleteOnClose, false);
  finestra->close();
  EXPECT_FALSE(finestra->findChild<QTimer*>("timT")->isActive());
  orologio.Termina();
  finestra.reset();
  EXPECT_FALSE(plc.Hook.Cedi_Ascoltato());
  EXPECT_FALSE(plc.SI[0].Change.Ascoltato() && plc.SQ[0].Change.Ascoltato());
}

TEST_F(Diagram_Window, AnotherPlantBringsItsSymbols) {
  finestra->Riparti(&Tabella_Esercizi()[9]);
  EXPECT_EQ(D().Mostrati().front().Nome, Tabella_Esercizi()[9].Righe_IO[0].Simbolo);
  finestra->Riparti(nullptr);
  EXPECT_EQ(D().Mostrati().size(), 3U);
}

TEST_F(Diagram_Window, AnotherProgramBringsItsSignalsUnlessOthersWereChosen) {
  Carica("LD M0.0\r\n= Q0.3\r\n");
  finestra->Programma_Caricato();
  EXPECT_EQ(D().Mostrati().size(), 2U);
  D().Aggiungi(Fai_Segnale("C1", "C1"));
  Carica("LD I0.5\r\n= Q0.5\r\n");
  finestra->Programma_Caricato();
  EXPECT_EQ(D().Mostrati().size(), 3U);
  EXPECT_TRUE(finestra->Registrati().Cerca("Q0.3"));
}

// ---- keys ---------------------------------------------------------------------------------------

TEST_F(Diagram_Window, EveryCommandHasKeysOfItsOwnThatItsTipTells) {
  std::set<QString> tasti;
  for (const Comando_Tempi& comando : FrmTempi::Comandi()) {
    const auto* azione = finestra->findChild<QAction*>(QString::fromUtf8(comando.Nome));
    ASSERT_NE(azione, nullptr) << comando.Nome;
    for (const QString& uno : QString::fromUtf8(comando.Tasti).split(' ')) {
      EXPECT_FALSE(QKeySequence(uno).isEmpty()) << comando.Nome;
      EXPECT_TRUE(tasti.insert(QKeySequence(uno).toString()).second) << comando.Nome;
      EXPECT_TRUE(azione->toolTip().contains(QKeySequence(uno).toString(QKeySequence::NativeText)))
          << azione->toolTip().toStdString();
    }
    if (*comando.Icona != '\0') {
      EXPECT_FALSE(azione->icon().pixmap(22, 22).isNull()) << comando.Icona;
      EXPECT_TRUE(QFile::exists(QStringLiteral(":/icons/%1.svg").arg(comando.Icona)));
    }
  }
}

TEST_F(Diagram_Window, TheHelpPageTellsEveryCommand) {
  QFile pagina(QStringLiteral(TAVORNO_HELP_SOURCE "/Tempi.htm"));
  ASSERT_TRUE(pagina.open(QIODevice::ReadOnly));
  const QString testo = QString::fromUtf8(pagina.readAll()).replace(QChar(0x2019), '\'');
  for (const Comando_Tempi& comando : FrmTempi::Comandi())
    EXPECT_TRUE(testo.contains(QString::fromUtf8(comando.Cosa))) << comando.Cosa;
}

TEST_F(Diagram_Window, TheArrowsGoFromEdgeToEdge) {
  Corri(1000);
  Scegli("Q0.0");
  Premi(Qt::Key_Home);
  Premi(Qt::Key_A);
  while (D().Al_Fronte(-1)) {
  }
  const std::int64_t primo = *D().A;
  Premi(Qt::Key_Right);
  EXPECT_EQ(*D().A, primo + 100);
  Premi(Qt::Key_Right);
  EXPECT_EQ(*D().A, primo + 200);
  Premi(Qt::Key_Left);
  EXPECT_EQ(*D().A, primo + 100);
  Premi(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(*D().A, primo + 101);
  Premi(Qt::Key_B);
  ASSERT_TRUE(D().B);
  D().Metti(Diagramma_Tempi::Cursore::B, primo + 351);
  Premi(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_TRUE(Stato().contains("B − A = 249 ms (4,016 Hz)")) << Stato().toStdString();
  Premi(Qt::Key_Backspace);
  EXPECT_FALSE(D().A || D().B);
  for (int n = 0; n < 12; ++n) Premi(Qt::Key_Right);
  EXPECT_TRUE(Stato().contains("Nessun fronte dopo")) << Stato().toStdString();
}

TEST_F(Diagram_Window, KeysZoomAndPan) {
  Corri(500);
  Premi(Qt::Key_0);
  EXPECT_FALSE(D().In_Diretta);
  const double tutto = D().Vista.Per_Punto;
  Premi(Qt::Key_Plus);
  EXPECT_LT(D().Vista.Per_Punto, tutto);
  Premi(Qt::Key_Minus);
  EXPECT_NEAR(D().Vista.Per_Punto, tutto, 1e-9);
  const double da = D().Vista.Da;
  Premi(Qt::Key_Plus);
  Premi(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_GT(D().Vista.Da, da);
  Premi(Qt::Key_End);
  EXPECT_TRUE(D().In_Diretta);
  Premi(Qt::Key_Space);
  EXPECT_FALSE(D().In_Diretta);
  EXPECT_FALSE(finestra->findChild<QAction*>("cmdDiretta")->isChecked());
}

TEST_F(Diagram_Window, KeysMoveFoldAndTakeAwayRows) {
  Scegli("Q0.0");
  Premi(Qt::Key_Return);
  EXPECT_TRUE(D().Gruppi()[1].Chiuso);
  Premi(Qt::Key_Return);
  EXPECT_FALSE(D().Gruppi()[1].Chiuso);
  Premi(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(D().Gruppi()[0].Nome, "Uscite");
  Premi(Qt::Key_Delete);
  EXPECT_EQ(D().Gruppi()[0].Nome, "Ingressi");
  EXPECT_EQ(D().Mostrati().size(), 2U);
  Scegli("VW0");
  Premi(Qt::Key_C);
  EXPECT_EQ(D().Voce(*D().Riga_Scelta())->Come, Forma::Curva);
  Premi(Qt::Key_G);
  EXPECT_FALSE(D().Griglia_Scansioni);
}

TEST_F(Diagram_Window, EscLeavesTheFieldAndThenTheWindow) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(&Cerca(), "A+0");
  EXPECT_EQ(Cerca().text(), "A+0") << "in the field they are letters";
  EXPECT_FALSE(D().A);
  QTest::keyClick(&Cerca(), Qt::Key_Escape);
  EXPECT_TRUE(finestra->isVisible());
  Premi(Qt::Key_Escape);
  EXPECT_FALSE(finestra->isVisible());
}

// ---- search, trigger ----------------------------------------------------------------------------

TEST_F(Diagram_Window, SearchesForACondition) {
  Corri(1000);
  Premi(Qt::Key_Home);
  Premi(Qt::Key_A);
  D().Metti(Diagramma_Tempi::Cursore::A, 0);
  Premi(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(&Cerca(), "VW0 > 150 e Q0.0 sale");
  QTest::keyClick(&Cerca(), Qt::Key_Return);
  ASSERT_TRUE(D().Trovato);
  EXPECT_TRUE(Stato().contains("Trovato a")) << Stato().toStdString();
  const std::int64_t primo = *D().A;
  QTest::keyClick(&Cerca(), Qt::Key_F3);
  EXPECT_EQ(*D().A, primo + 200);
  QTest::keyClick(&Cerca(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(*D().A, primo);
  Cerca().setText("VW0 > 30000");
  QTest::keyClick(&Cerca(), Qt::Key_F3);
  EXPECT_TRUE(Stato().contains("non diventa mai vera")) << Stato().toStdString();
  Cerca().setText("pippo");
  QTest::keyClick(&Cerca(), Qt::Key_F3);
  EXPECT_TRUE(Stato().contains("\"pippo\" non è un indirizzo")) << Stato().toStdString();
}

TEST_F(Diagram_Window, TheTriggerWaitsForTheSelectedSignal) {
  Premi(Qt::Key_T);
  EXPECT_TRUE(Stato().contains("Scegli un segnale")) << Stato().toStdString();
  Scegli("Q0.0");
  Premi(Qt::Key_T);
  EXPECT_EQ(Cerca().text(), "Q0.0 sale");
  EXPECT_TRUE(finestra->findChild<QAction*>("cmdTrigger")->isChecked());
  Corri(400);
  ASSERT_TRUE(D().Scattato);
  EXPECT_FALSE(D().In_Diretta);
  EXPECT_TRUE(Stato().contains("Il trigger è scattato")) << Stato().toStdString();
  EXPECT_FALSE(finestra->findChild<QAction*>("cmdTrigger")->isChecked());
  Premi(Qt::Key_T);
  EXPECT_TRUE(D().Armato());
  Premi(Qt::Key_T);
  EXPECT_FALSE(D().Armato());
}

// ---- mouse --------------------------------------------------------------------------------------

TEST_F(Diagram_Window, TheMousePutsCursorsOnEdges) {
  Corri(1000);
  Premi(Qt::Key_0);
  Scegli("I0.0");
  while (D().Al_Fronte(-1)) {
  }
  const std::int64_t fronte = *D().A;
  QTest::mouseClick(&Tela(), Qt::LeftButton, {}, Punto("Q0.0", fronte + 200) + QPoint(3, 0));
  EXPECT_EQ(D().Segnale_Di(*D().Riga_Scelta())->Nome, "Q0.0") << "the row is selected";
  EXPECT_EQ(*D().A, fronte + 200);
  QTest::mouseClick(&Tela(), Qt::LeftButton, Qt::ShiftModifier,
                    Punto("Q0.0", fronte + 300) + QPoint(-3, 0));
  EXPECT_EQ(*D().B, fronte + 300);
  EXPECT_EQ(*D().A, fronte + 200);
  QTest::mouseClick(&Tela(), Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier,
                    Punto("Q0.0", fronte + 300) + QPoint(-3, 0));
  EXPECT_NE(*D().B, fronte + 300) << "with Alt it stays where it is put";
}

TEST_F(Diagram_Window, TheRightButtonAsksWhoDidWhatIsUnderIt) {
  Corri(700);
  Premi(Qt::Key_0);
  Scegli("Q0.0");
  ASSERT_TRUE(D().Al_Fronte(-1));
  const std::int64_t fronte = *D().A;
  D().Togli_Cursori();
  D().Scegli({});
  std::int64_t chiesto = -1;
  std::string di_chi;
  finestra->Chi_E_Stato = [&](std::int64_t ms, const std::string& indirizzo) {
    chiesto = ms;
    di_chi = indirizzo;
  };
  QTest::mouseClick(&Tela(), Qt::RightButton, {}, Punto("Q0.0", fronte) + QPoint(3, 0));
  auto* menu = finestra->findChild<QMenu*>("menuTempi");
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->isVisible());
  for (const QAction* voce : menu->actions()) EXPECT_FALSE(voce->text().isEmpty());
  menu->findChild<QAction*>("cmdChi")->trigger();
  menu->close();
  EXPECT_EQ(di_chi, "Q0.0");
  EXPECT_EQ(D().A, fronte) << "the edge beside the mouse";
  EXPECT_EQ(chiesto, fronte);
  // Dragged, it moves time and asks nothing.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QTest::mousePress(&Tela(), Qt::RightButton, {}, Punto("Q0.0", 500));
  QTest::mouseMove(&Tela(), Punto("Q0.0", 500) + QPoint(80, 0));
  QTest::mouseRelease(&Tela(), Qt::RightButton, {}, Punto("Q0.0", 500) + QPoint(80, 0));
  EXPECT_EQ(finestra->findChild<QMenu*>("menuTempi"), nullptr);
}

TEST_F(Diagram_Window, TheKeyWAsksWhoDidItAtTheCursor) {
  Corri(300);
  std::vector<std::pair<std::int64_t, std::string>> chiesti;
  finestra->Chi_E_Stato = [&](std::int64_t ms, const std::string& indirizzo) {
    chiesti.emplace_back(ms, indirizzo);
  };
  Premi(Qt::Key_W);
  EXPECT_TRUE(chiesti.empty());
  EXPECT_TRUE(Stato().contains("scegli un segnale")) << Stato().toStdString();
  Scegli("VW0");
  Premi(Qt::Key_W);
  ASSERT_EQ(chiesti.size(), 1U);
  EXPECT_EQ(chiesti[0], std::pair(plc.Tempo.Adesso(), std::string("VW0"))) << "no cursor: now";
  D().Metti(Diagramma_Tempi::Cursore::A, 120);
  Premi(Qt::Key_W);
  ASSERT_EQ(chiesti.size(), 2U);
  EXPECT_EQ(chiesti[1], std::pair(std::int64_t{120}, std::string("VW0")));
}

TEST_F(Diagram_Window, TheWheelZoomsAtTheMouse) {
  Corri(1000);
  Premi(Qt::Key_0);
  const QPointF punto = Punto("Q0.0", 500);
  const auto gira = [&](int passi, Qt::KeyboardModifiers con) {
    QWheelEvent giro(punto, Tela().mapToGlobal(punto), {}, QPoint(0, 120 * passi), {}, con,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Tela(), &giro);
  };
  const double x = punto.x() - Tela().Misura().Nomi;
  const double ms = D().Vista.Ms(x), prima = D().Vista.Per_Punto;
  gira(3, {});
  EXPECT_LT(D().Vista.Per_Punto, prima / 1.5);
  EXPECT_NEAR(D().Vista.Ms(x), ms, 1e-6);
  const double da = D().Vista.Da;
  gira(-1, Qt::ShiftModifier);
  EXPECT_GT(D().Vista.Da, da);
}

TEST_F(Diagram_Window, AClickOnATitleFoldsItsGroup) {
  QTest::mouseClick(&Tela(), Qt::LeftButton, {},
                    QPoint(40, static_cast<int>(Misura_Disegno::Asse) + 8));
  EXPECT_TRUE(D().Gruppi()[0].Chiuso);
}

TEST_F(Diagram_Window, RowsThatHaveNoRoomScroll) {
  finestra->Riparti(&Tabella_Esercizi()[9]);
  finestra->resize(800, 300);
  QCoreApplication::processEvents();
  auto& barra = *finestra->findChild<QScrollBar*>("vsbRighe");
  EXPECT_GT(barra.maximum(), 0);
  EXPECT_TRUE(barra.isVisible());
  for (int n = 0; n < 40; ++n) Premi(Qt::Key_Down);
  EXPECT_EQ(barra.value(), barra.maximum()) << "the last row was selected";
  for (int n = 0; n < 40; ++n) Premi(Qt::Key_Up);
  EXPECT_EQ(barra.value(), 0);
}

// ---- files --------------------------------------------------------------------------------------

TEST_F(Diagram_Window, WhatItsFootHasNoRoomForEndsInAnEllipsis) {
  const auto& piede = dynamic_cast<const Etichetta_Accorciata&>(
      *finestra->findChild<QLabel*>(QStringLiteral("etCursori")));
  finestra->resize(1400, 400);
  QCoreApplication::processEvents();
  EXPECT_EQ(piede.Visto(), piede.text());
  finestra->resize(600, 400);
  QCoreApplication::processEvents();
  EXPECT_TRUE(piede.Visto().endsWith(QChar(0x2026))) << Utf8(piede.Visto());
  EXPECT_EQ(piede.toolTip(), piede.text());
}

TEST_F(Diagram_Window, SavesVectorsPointsAndChanges) {
  Corri(300);
  const QTemporaryDir cartella;
  finestra->Chiedi_File = [&](const QString&) { return cartella.filePath("tempi"); };
  Premi(Qt::Key_S, Qt::ControlModifier);
  Premi(Qt::Key_P, Qt::ControlModifier);
  Premi(Qt::Key_D, Qt::ControlModifier);
  EXPECT_TRUE(QSvgRenderer(cartella.filePath("tempi.svg")).isValid());
  const QImage immagine(cartella.filePath("tempi.png"));
  EXPECT_EQ(immagine.width(), Tela().width() * 2);
  std::ifstream vcd(cartella.filePath("tempi.vcd").toStdString());
  const std::string testo{std::istreambuf_iterator<char>(vcd), {}};
  EXPECT_NE(testo.find("$var wire 1 ! I0_0 $end"), std::string::npos) << testo;
  EXPECT_TRUE(Stato().contains("Salvato in")) << Stato().toStdString();
}

TEST_F(Diagram_Window, AFileThatCannotBeWrittenIsTold) {
  finestra->Chiedi_File = [](const QString&) { return QStringLiteral("/dev/null/x/tempi"); };
  std::vector<Avviso> avvisi;
  finestra->Avvisa = [&](const Avviso& avviso) { avvisi.push_back(avviso); };
  Premi(Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_NE(avvisi[0].Testo.find("/dev/null/x/tempi.svg"), std::string::npos);
  finestra->Chiedi_File = [](const QString&) { return QString(); };
  Premi(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(avvisi.size(), 1U);
}

// ---- the picture --------------------------------------------------------------------------------

TEST_F(Diagram_Window, WindowAndFileHaveTheSameColours) {
  ASSERT_EQ(std::size(colori::Tempi), static_cast<std::size_t>(Tinta_Tempi::Quante));
  for (std::size_t n = 0; n < std::size(colori::Tempi); ++n)
    EXPECT_EQ(colori::Tempi[n].Valore(colori::Carta), Rgb(static_cast<Tinta_Tempi>(n))) << n;
}

TEST_F(Diagram_Window, HighsAreShadedOnTheScreen) {
  Corri(1000);
  Premi(Qt::Key_0);
  Premi(Qt::Key_Backspace);
  const QImage schermo = Tela().grab().toImage();
  Scegli("Q0.0");
  while (D().Al_Fronte(-1)) {
  }
  const std::int64_t primo = *D().A;
  const auto colore = [&](std::int64_t ms) {
    return schermo.pixelColor(Punto("Q0.0", ms) * schermo.devicePixelRatio());
  };
  const QColor chiaro = colori::Tempi[static_cast<std::size_t>(Tinta_Tempi::Uscita_Chiaro)];
  EXPECT_EQ(colore(primo + 50), chiaro);
  EXPECT_NE(colore(primo + 150), chiaro);
}

TEST_F(Diagram_Window, NoButtonIsCutAndEachIsNamed) {
  finestra->resize(finestra->minimumSizeHint());
  QCoreApplication::processEvents();
  for (const QToolButton* tasto : finestra->findChildren<QToolButton*>()) {
    if (!tasto->isVisible()) continue;
    EXPECT_FALSE(tasto->accessibleName().isEmpty() &&
                 tasto->objectName() != "qt_toolbar_ext_button")
        << tasto->objectName().toStdString();
    EXPECT_GE(tasto->width(), tasto->minimumSizeHint().width());
  }
  EXPECT_LE(finestra->minimumSizeHint().width(), 900) << "it has room on the smallest screen";
}

}  // namespace
}  // namespace tavorno
