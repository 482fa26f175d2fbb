// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that grow together, and the window on the projector.
#include "panel/text_size.h"

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>
#include <QTextBrowser>
#include <QWheelEvent>

#include "awl/ui/awl_editor.h"
#include "ladder/ui/ladder_window.h"
#include "panel/panel_bed.h"
#include "recorder/ui/diagram_canvas.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

struct Testi : Banco_Finestre {
  void Comando(const char* voce) {
    Azione(pannello, voce).trigger();
    QCoreApplication::processEvents();
  }
  static AwlEditor& Testo() {
    for (QWidget* parte : Finestra("frmMain")->findChildren<QWidget*>()) {
      auto* testo = dynamic_cast<AwlEditor*>(parte);
      if (testo != nullptr && testo->objectName() == "txtList") return *testo;
    }
    throw std::runtime_error("no text");
  }
  static Tela_Tempi& Tela() {
    return dynamic_cast<Tela_Tempi&>(*Finestra("frmTempi")->findChild<QWidget*>("picTempi"));
  }
  static QLabel& Campo() { return *Finestra("frmStatiL")->findChild<QLabel*>("etTmrV(0)"); }

  struct Misure {
    double Lista, Stati;
    int Editor, Margine, Campo;
    double Diagramma;
    bool operator==(const Misure&) const = default;
  };
  Misure Adesso() {
    return {c.listSrc->font().pointSizeF(),
            Campo().font().pointSizeF(),
            static_cast<int>(Testo().SendScintilla(QsciScintillaBase::SCI_GETZOOM)),
            Testo().marginWidth(0),
            Campo().height(),
            Tela().Misura().Larga};
  }
  void Apri_Tutte() {
    finestre.Mostra_Stati();
    finestre.Mostra_Tempi();
    finestre.Mostra_Editor(Avvio::Nuovo);
    ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
  }
};

TEST_F(Testi, AllGrowAndShrinkTogetherAndComeBack) {
  Apri_Tutte();
  const Misure prima = Adesso();
  for (int n = 0; n < 3; ++n) Comando("mnuViewPiu");
  const Misure grandi = Adesso();
  EXPECT_NEAR(grandi.Lista, prima.Lista * 1.331, 0.01);
  EXPECT_NEAR(grandi.Stati, prima.Stati * 1.331, 0.01);
  EXPECT_GT(grandi.Editor, 0);
  EXPECT_GT(grandi.Margine, prima.Margine);
  EXPECT_GT(grandi.Campo, prima.Campo) << "no digit is cut";
  for (const auto* lista : Finestra("frmStatiL")->findChildren<QComboBox*>())
    EXPECT_GE(lista->width(), lista->sizeHint().width()) << Utf8(lista->objectName());
  EXPECT_NEAR(grandi.Diagramma, prima.Diagramma / 1.331, 1);
  Comando("mnuViewNormale");
  EXPECT_EQ(Adesso(), prima);
  Comando("mnuViewMeno");
  EXPECT_LT(Adesso().Lista, prima.Lista);
  EXPECT_LT(Adesso().Editor, 0);
  for (int n = 0; n < 40; ++n) Comando("mnuViewMeno");
  EXPECT_GE(Adesso().Lista, prima.Lista * 0.7) << "never too small to read";
  Comando("mnuViewNormale");
}

TEST_F(Testi, AWindowThatOpensLaterHasTheSize) {
  Comando("mnuViewPiu");
  Apri_Tutte();
  const Misure grandi = Adesso();
  Comando("mnuViewNormale");
  EXPECT_LT(Adesso().Stati, grandi.Stati);
  EXPECT_LT(Adesso().Editor, grandi.Editor);
}

TEST_F(Testi, CtrlAndTheWheelOverAnyOfThem) {
  Apri_Tutte();
  const Misure prima = Adesso();
  const auto gira = [](QWidget& dove, int quanto, Qt::KeyboardModifiers tasti) {
    QWheelEvent giro(QPointF(5, 5), dove.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, quanto),
                     Qt::NoButton, tasti, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&dove, &giro);
  };
  gira(*c.listSrc->viewport(), 120, Qt::ControlModifier);
  EXPECT_GT(Adesso().Diagramma, 0);
  EXPECT_LT(Adesso().Diagramma, prima.Diagramma);
  gira(Tela(), -120, Qt::ControlModifier);
  EXPECT_EQ(Adesso(), prima);
  gira(*c.listSrc->viewport(), 120, Qt::NoModifier);
  gira(pannello, 120, Qt::ControlModifier);
  EXPECT_EQ(Adesso(), prima);
}

TEST_F(Testi, TheKeysWorkWhileOneWritesAndTypeNothing) {
  Apri_Tutte();
  AwlEditor& testo = Testo();
  testo.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return testo.isActiveWindow(); }, 20000));
  testo.setFocus();
  const std::string byte = testo.Byte();
  const double prima = c.listSrc->font().pointSizeF();
  QTest::keyClick(&testo, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(c.listSrc->font().pointSizeF(), prima);
  EXPECT_EQ(testo.SendScintilla(QsciScintillaBase::SCI_GETZOOM), 1);
  QTest::keyClick(&testo, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(c.listSrc->font().pointSizeF(), prima);
  EXPECT_EQ(testo.Byte(), byte);
}

/// Counts what Qt complains of as long as it lives.
struct Rimproveri {
  Rimproveri() {
    Quanti = 0;
    prima = qInstallMessageHandler([](QtMsgType tipo, const QMessageLogContext&, const QString&) {
      Quanti += tipo == QtWarningMsg ? 1 : 0;
    });
  }
  ~Rimproveri() { qInstallMessageHandler(prima); }
  Rimproveri(const Rimproveri&) = delete;
  Rimproveri& operator=(const Rimproveri&) = delete;

  static inline int Quanti = 0;
  QtMessageHandler prima;
};

TEST_F(Testi, AFontInPixelsFollowsItsOwnBox) {
  Grandezza_Testo grandezza;
  QWidget vista;
  QLabel etichetta(&vista);
  QFont in_pixel;
  in_pixel.setPixelSize(20);
  etichetta.setFont(in_pixel);
  grandezza.Segui(vista);
  const Rimproveri rimproveri;
  grandezza.Cambia(5);
  EXPECT_EQ(etichetta.font().pixelSize(), 20);
  grandezza.Normale();
  EXPECT_EQ(etichetta.font().pixelSize(), 20);
  EXPECT_EQ(Rimproveri::Quanti, 0);
}

TEST_F(Testi, TheProjectorTakesTheWindowInFrontAndGivesItBack) {
  Apri_Tutte();
  QWidget& stati = *Finestra("frmStatiL");
  stati.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return stati.isActiveWindow(); }, 20000));
  ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
  const Misure prima = Adesso();
  const QRect posto(stati.pos(), stati.size());
  QTest::keyClick(&stati, Qt::Key_F11);
  QCoreApplication::processEvents();
  EXPECT_TRUE(stati.isFullScreen());
  EXPECT_NEAR(Adesso().Stati, prima.Stati * 1.5, 0.01);
  EXPECT_EQ(Adesso().Lista, prima.Lista) << "the others stay";
  QTest::keyClick(&stati, Qt::Key_F11);
  QCoreApplication::processEvents();
  EXPECT_FALSE(stati.isFullScreen());
  EXPECT_EQ(QRect(stati.pos(), stati.size()), posto);
  EXPECT_EQ(Adesso(), prima);
}

TEST_F(Testi, TheProjectorReachesTextsThatAreSetByTheirOwnWindow) {
  guida.Dir_Help = "/guida/";
  Carica("LD I0.0\r\n= Q0.0\r\n");
  finestre.Mostra_Aiuto("/guida/Index.htm");
  finestre.Mostra_Scala();
  QWidget& aiuto = *Finestra("frmBrowser");
  auto& scala = dynamic_cast<FrmScala&>(*Finestra("frmScala"));
  auto& pagina = *aiuto.findChild<QTextBrowser*>("brwWebBrowser");
  const double carattere = pagina.font().pointSizeF();
  const auto premi = [](QWidget& finestra, Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra, 20000));
    QTest::keyClick(&finestra, tasto, con);
  };
  premi(aiuto, Qt::Key_Plus, Qt::ControlModifier);
  premi(aiuto, Qt::Key_F11);
  EXPECT_NEAR(pagina.font().pointSizeF(), (carattere + 1) * 1.5, 0.01);
  premi(aiuto, Qt::Key_Plus, Qt::ControlModifier);
  premi(aiuto, Qt::Key_F11);
  EXPECT_NEAR(pagina.font().pointSizeF(), carattere + 2, 0.01) << "what was chosen stays";

  const auto alta = [&] { return scala.Vista().Posto(0, 0).height(); };
  const int prima = alta();
  premi(scala, Qt::Key_F11);
  EXPECT_NEAR(alta(), prima * 1.5, 2);
  premi(scala, Qt::Key_F11);
  EXPECT_EQ(alta(), prima);

  finestre.Mostra_Osserva();
  QWidget& osserva = *Finestra("frmOsserva");
  auto& celle = *osserva.findChild<QTableWidget*>("tabOsserva");
  const auto cifre = [&] { return celle.item(0, 2)->font().resolve(celle.font()).pointSizeF(); };
  const double piccole = cifre();
  premi(osserva, Qt::Key_F11);
  EXPECT_NEAR(cifre(), piccole * 1.5, 0.01);
  premi(osserva, Qt::Key_F11);
  EXPECT_NEAR(cifre(), piccole, 0.01);
}

TEST_F(Testi, TheCellsOfTheWatchWindowAreAsLargeAsWhatTheyHold) {
  Carica("LD T37\r\n= Q0.0\r\n");
  finestre.Mostra_Osserva();
  QWidget& osserva = *Finestra("frmOsserva");
  auto& celle = *osserva.findChild<QTableWidget*>("tabOsserva");
  int riga = 0;
  while (riga < celle.rowCount() && celle.cellWidget(riga, 1) == nullptr) ++riga;
  auto* formato = qobject_cast<QComboBox*>(celle.cellWidget(riga, 1));
  ASSERT_NE(formato, nullptr);
  celle.setColumnWidth(0, 133);  // as the user likes it
  const auto misure = [&] {
    QCoreApplication::processEvents();
    const QModelIndex qui = celle.model()->index(riga, 1);
    EXPECT_TRUE(celle.visualRect(qui).contains(formato->geometry())) << formato->width();
    EXPECT_GE(celle.rowHeight(riga), celle.fontMetrics().height());
    return std::vector{celle.rowHeight(riga), celle.columnWidth(0), celle.columnWidth(1),
                       celle.columnWidth(2)};
  };
  const std::vector<int> prima = misure();
  EXPECT_EQ(prima[1], 133);
  for (int n = 0; n < 3; ++n) Comando("mnuViewPiu");
  const std::vector<int> grandi = misure();
  EXPECT_EQ(grandi[1], 177);
  EXPECT_GT(grandi[0], prima[0]);
  osserva.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&osserva, 20000));
  QTest::keyClick(&osserva, Qt::Key_F11);
  EXPECT_GT(misure(), grandi);
  QTest::keyClick(&osserva, Qt::Key_F11);
  EXPECT_EQ(misure(), grandi);
  Comando("mnuViewNormale");
  EXPECT_EQ(misure(), prima);
}

TEST_F(Testi, AtTheWorkbenchTheProjectorGivesEveryFontBack) {
  finestre.Apri_Impianto(0);
  finestre.Mostra_Stati();
  finestre.Mostra_Tempi();
  ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
  const QSize stati = Finestra("frmStatiL")->size();
  finestre.Mostra_Tavolo();
  QCoreApplication::processEvents();
  QWidget& tavolo = *Finestra("frmTavolo");
  const auto caratteri = [&] {
    std::map<QWidget*, double> ora;
    for (QWidget* parte : tavolo.findChildren<QWidget*>())
      if (parte->window() == &tavolo) ora[parte] = parte->font().pointSizeF();
    return ora;
  };
  const std::map<QWidget*, double> prima = caratteri();
  QWidget* cerca = tavolo.findChild<QWidget*>("txtCerca");
  ASSERT_NE(cerca, nullptr);
  for (int volta = 0; volta < 2; ++volta) {
    tavolo.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tavolo, 20000));
    QTest::keyClick(&tavolo, Qt::Key_F11);
    EXPECT_TRUE(tavolo.isFullScreen());
    EXPECT_NEAR(cerca->font().pointSizeF(), prima.at(cerca) * 1.5, 0.01) << "once";
    QTest::keyClick(&tavolo, Qt::Key_F11);
    EXPECT_EQ(caratteri(), prima);
  }
  finestre.Separa_Finestre();
  QCoreApplication::processEvents();
  ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
  EXPECT_EQ(Finestra("frmStatiL")->size(), stati);
}

TEST_F(Testi, TheProjectorGivesEveryFontBack) {
  const auto caratteri = [this] {
    std::map<QWidget*, double> ora;
    for (QWidget* parte : pannello.findChildren<QWidget*>())
      if (parte->window() == &pannello) ora[parte] = parte->font().pointSizeF();
    return ora;
  };
  const std::map<QWidget*, double> prima = caratteri();
  QLabel* titolo = nullptr;
  for (QLabel* etichetta : pannello.findChildren<QLabel*>())
    if (etichetta->text() == "Programma nella CPU") titolo = etichetta;
  ASSERT_NE(titolo, nullptr);
  Grandezza_Testo grandezza;
  for (int volta = 0; volta < 2; ++volta) {
    grandezza.Proietta(&pannello);
    EXPECT_NEAR(titolo->font().pointSizeF(), prima.at(titolo) * 1.5, 0.01) << "bold, of its own";
    grandezza.Proietta(nullptr);
    EXPECT_EQ(caratteri(), prima);
  }
}

}  // namespace
}  // namespace tavorno
