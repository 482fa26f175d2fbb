// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder_bed.h"
#include "widgets/colours.h"

namespace tavorno::prova {
namespace {

constexpr const char* due_reti =
    "NETWORK 1 //Marcia\n"
    "LD I0.0\n"
    "O Q0.0\n"
    "AN I0.1\n"
    "= Q0.0\n"
    "NETWORK 2 //Tempo\n"
    "LD Q0.0\n"
    "TON T37, +20\n"
    "NETWORK 3 //Non si disegna\n"
    "= Q0.7\n";

class Scala : public Banco_Scala {};

TEST_F(Scala, ShowsAllNetworksWithTitlesAndTheReasonOfAList) {
  Apri(due_reti);
  const auto& reti = Vista().Foglio().Reti();
  ASSERT_EQ(reti.size(), 3U);
  EXPECT_EQ(reti[0].Intestazione, QString("Programma principale"));
  EXPECT_EQ(reti[0].Titolo, QString("NETWORK 1"));
  EXPECT_EQ(reti[1].Commento, QString("Tempo"));
  ASSERT_EQ(reti[2].Lista.size(), 2);
  EXPECT_TRUE(reti[2].Lista[0].startsWith("Resta in lista: "));
  EXPECT_TRUE(reti[2].Lista[1].endsWith("= Q0.7"));
  EXPECT_GT(reti[1].Y, reti[0].Y + reti[0].Altezza - 1);
}

TEST_F(Scala, FollowsTheTextAndKeepsTheDrawingsThatStay) {
  Apri(due_reti);
  const auto prima = Vista().Foglio().Reti()[0].Forme.Tratti.data();
  editor->Scrivi_Testo(0, A_Capo(std::string(due_reti) + "NETWORK 4\nLD I0.5\n= Q0.5\n"));
  scala->Aggiorna();
  ASSERT_EQ(Vista().Foglio().Reti().size(), 4U);
  EXPECT_EQ(Vista().Foglio().Reti()[0].Forme.Tratti.data(), prima);
}

TEST_F(Scala, NamesOfThePlantStandAboveTheAddresses) {
  Apri(due_reti);
  const auto c_e = [&](const char* testo) {
    for (const Scritta_Pronta& scritta : Vista().Foglio().Reti()[0].Scritte)
      if (scritta.Testo == QString(testo)) return true;
    return false;
  };
  EXPECT_FALSE(c_e("SB9"));
  nome_i00 = "SB9";
  Vista().Nomi_Cambiati();
  EXPECT_TRUE(c_e("SB9"));
}

TEST_F(Scala, ASymbolSaysWhatIsWrittenBehindItsLine) {
  Apri("NETWORK 1 //Marcia\nLD I0.0  //pulsante\nAN I0.1\n= Q0.0 //motore\n");
  EXPECT_TRUE(Vista().In_Parole_Di(0, 0).endsWith(" – pulsante"));
  EXPECT_TRUE(Vista().Commento_Di(0, 1).isEmpty());
  EXPECT_FALSE(Vista().In_Parole_Di(0, 1).contains(" – "));
  EXPECT_TRUE(Vista().In_Parole_Di(0, 2).endsWith(" – motore"));
  // The drawing stays and its rows move.
  editor->Scrivi_Testo(0,
                       A_Capo("NETWORK 1\nLD I0.7 //altro\n= Q0.7\n"
                              "NETWORK 2 //Marcia\nLD I0.0  //premi\nAN I0.1\n= Q0.0 //motore\n"));
  scala->Aggiorna();
  EXPECT_EQ(Vista().Commento_Di(0, 0), "altro");
  EXPECT_EQ(Vista().Commento_Di(1, 0), "premi");
}

// ---- live ---------------------------------------------------------------------------------------

TEST_F(Scala, FlowAndNumbersAreThoseOfTheRunningCpu) {
  Apri(due_reti, false);
  std::string senza = due_reti;
  senza.resize(senza.find("NETWORK 3"));
  seduta.progetto.Scrivi_Main(A_Capo(senza));
  Compila();
  EXPECT_FALSE(Vista().Stato(0).Viva);
  Avvia();
  Scansione();
  EXPECT_TRUE(Vista().Stato(0).Viva);
  EXPECT_TRUE(Attivo("I0.1")) << "a closed contact lets pass";
  EXPECT_FALSE(Attivo("Q0.0", 1));
  Ingressi("10000000");
  Scansione();
  EXPECT_TRUE(Attivo("I0.0"));
  EXPECT_TRUE(Attivo("Q0.0", 1));
  Ingressi("00000000");
  Scansione();
  EXPECT_FALSE(Attivo("I0.0"));
  EXPECT_TRUE(Attivo("Q0.0", 1)) << "it holds itself";
  Scansione(700);
  Scansione();
  EXPECT_TRUE(Vista().Stato(1).Valori.contains(QString::number(seduta.plc.Mem_T[37].Val)));
  EXPECT_GE(seduta.plc.Mem_T[37].Val, 6);
  seduta.plc.mnuPlcStop();
  scala->Aggiorna();
  EXPECT_FALSE(Vista().Stato(0).Viva);
}

TEST_F(Scala, AnEmptyNetworkIsShownWhileTheCpuRuns) {
  Apri("NETWORK 1\nLD I0.0\n= Q0.0\n", false);
  Compila();
  Avvia();
  seduta.progetto.Scrivi_Main(A_Capo("NETWORK 1\nLD I0.0\n= Q0.0\nNETWORK 2\n"));
  Scansione();
  ASSERT_EQ(Vista().Foglio().Reti().size(), 2U);
  EXPECT_EQ(Vista().Foglio().Reti()[1].Simboli(), 0);
  EXPECT_TRUE(Vista().Stato(0).Viva);
}

TEST_F(Scala, ALiveWireHasItsColourOnTheScreen) {
  Apri("NETWORK 1\nLD I0.0\n= Q0.0\n", false);
  Compila();
  Avvia();
  const auto rosso = [&] {
    const QImage immagine = scala->grab().toImage();
    int punti = 0;
    for (int y = 0; y < immagine.height(); ++y)
      for (int x = 0; x < immagine.width(); ++x)
        punti += immagine.pixelColor(x, y) == colori::Scala_Vivo.Testo;
    return punti;
  };
  Scansione();
  const int spento = rosso();
  Ingressi("10000000");
  Scansione();
  EXPECT_GT(rosso(), spento + 200);
}

TEST_F(Scala, ATextThatIsNotTheLoadedOneIsNotLive) {
  Apri(due_reti, true);
  std::string senza = due_reti;
  senza.resize(senza.find("NETWORK 3"));
  editor->Scrivi_Testo(0, A_Capo(senza));
  Compila();
  Avvia();
  Scansione();
  ASSERT_TRUE(Vista().Stato(1).Viva);
  senza.replace(senza.find("+20"), 3, "+30");
  editor->Scrivi_Testo(0, A_Capo(senza));
  scala->Aggiorna();
  EXPECT_TRUE(Vista().Stato(0).Viva);
  EXPECT_FALSE(Vista().Stato(1).Viva);
}

TEST_F(Scala, ThePresentLineIsMarkedAndComesIntoSight) {
  std::string lungo;
  for (int n = 1; n <= 30; ++n)
    lungo += "NETWORK " + std::to_string(n) + "\nLD I0.0\n= M0." + std::to_string(n % 8) + "\n";
  Apri(lungo, false);
  Compila();
  const auto giallo = [&](int rete) {
    const QRect posto = Vista().Posto(rete, -1);
    if (!Vista().viewport()->rect().contains(posto.left() + 2, posto.center().y())) return false;
    return Vista().viewport()->grab().toImage().pixelColor(2, posto.center().y()) ==
           colori::Scala_Presente.Fondo;
  };
  Avvia();
  scala->Aggiorna();
  EXPECT_TRUE(giallo(0));
  while (seduta.plc.PC != 61) seduta.plc.Esegui_Riga();  // the LD of network 21
  scala->Aggiorna();
  EXPECT_FALSE(giallo(0));
  EXPECT_TRUE(giallo(20));
}

// ---- caret --------------------------------------------------------------------------------------

TEST_F(Scala, FollowsTheCaretWhileTheEditorHasTheFocus) {
  Apri(due_reti);
  editor->Vai_A({0, 7});  // TON
  Vista().clearFocus();
  scala->Aggiorna();
  EXPECT_EQ(Vista().Rete_Scelta(), 1);
  EXPECT_EQ(Scelto(), "TON T37 +20");
  Vista().setFocus();
  editor->Vai_A({0, 1});
  Vista().setFocus();
  scala->Aggiorna();
  EXPECT_EQ(Vista().Rete_Scelta(), 1) << "who works in the diagram leads";
}

TEST_F(Scala, EnterAndADoubleClickLeadToTheLine) {
  Apri(due_reti);
  Vista().Scegli(0, 2);
  Premi(Qt::Key_Return);
  EXPECT_EQ(editor->Posto_Cursore(), (Posto_Riga{0, 3}));
  const QPoint ton = Vista().Posto(1, 1).center();
  QTest::mouseDClick(Vista().viewport(), Qt::LeftButton, {}, ton);
  EXPECT_EQ(editor->Posto_Cursore(), (Posto_Riga{0, 7}));
}

// ---- keyboard and mouse -------------------------------------------------------------------------

TEST_F(Scala, ArrowsGoFromSymbolToSymbolAndFromNetworkToNetwork) {
  Apri(due_reti);
  Vista().Scegli(0, 0);
  Premi(Qt::Key_Down);
  EXPECT_EQ(Scelto(), "LD Q0.0");
  Premi(Qt::Key_Up);
  Premi(Qt::Key_Right);
  EXPECT_EQ(Scelto(), "LDN I0.1");
  Premi(Qt::Key_Right);
  EXPECT_EQ(Scelto(), "= Q0.0");
  Premi(Qt::Key_Home);
  EXPECT_EQ(Scelto(), "LD I0.0");
  Premi(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Vista().Rete_Scelta(), 1);
  Premi(Qt::Key_End);
  EXPECT_EQ(Scelto(), "TON T37 +20");
  Premi(Qt::Key_Down);
  EXPECT_EQ(Vista().Rete_Scelta(), 2);
  Premi(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Scelto(), "LD I0.0");
  Premi(Qt::Key_PageDown);
  EXPECT_GT(Vista().Rete_Scelta(), 0);
}

TEST_F(Scala, AClickChoosesWhatItHits) {
  Apri(due_reti);
  QTest::mouseClick(Vista().viewport(), Qt::LeftButton, {}, Vista().Posto(0, 1).center());
  EXPECT_EQ(Scelto(), "LD Q0.0");
  QTest::mouseClick(Vista().viewport(), Qt::LeftButton, {}, Vista().Posto(2, -1).center());
  EXPECT_EQ(Vista().Rete_Scelta(), 2);
  EXPECT_EQ(Vista().Scelto(), -1);
}

TEST_F(Scala, TheChosenSymbolIsToldInWords) {
  nome_i00 = "SB2";
  Apri(due_reti);
  Vista().Scegli(0, 0);
  EXPECT_EQ(Stato(), QString("NETWORK 1 Marcia, riga 1: contatto aperto I0.0 (SB2)"));
  EXPECT_EQ(Vista().accessibleDescription(), Stato());
  Vista().Scegli(0, 2);
  EXPECT_TRUE(Stato().endsWith("riga 3: contatto chiuso I0.1"));
  Vista().Scegli(1, 1);
  EXPECT_TRUE(Stato().endsWith("riquadro TON T37, +20")) << Utf8(Stato());
}

TEST_F(Scala, AScreenReaderFindsNetworksAndSymbols) {
  nome_i00 = "SB2";
  Apri(due_reti);
  QAccessibleInterface* schema = QAccessible::queryAccessibleInterface(&Vista());
  ASSERT_NE(schema, nullptr);
  EXPECT_EQ(schema->text(QAccessible::Name), QString("Schema a contatti"));
  ASSERT_EQ(schema->childCount(), 3);
  QAccessibleInterface* rete = schema->child(0);
  EXPECT_EQ(rete->text(QAccessible::Name), QString("NETWORK 1 Marcia"));
  ASSERT_EQ(rete->childCount(), 4);
  QAccessibleInterface* contatto = rete->child(0);
  EXPECT_EQ(contatto->text(QAccessible::Name), QString("contatto aperto I0.0 (SB2)"));
  EXPECT_EQ(contatto->parent(), rete);
  EXPECT_EQ(rete->parent(), schema);
  Vista().Scegli(0, 2);
  EXPECT_EQ(schema->focusChild(), rete->child(2));
  EXPECT_TRUE(rete->child(2)->state().focused);
  EXPECT_EQ(rete->child(2)->rect().topLeft(),
            Vista().viewport()->mapToGlobal(Vista().Posto(0, 2).topLeft()));
  EXPECT_TRUE(schema->child(2)->text(QAccessible::Name).contains("Resta in lista"));
  editor->Scrivi_Testo(0, "NETWORK 1\r\nLD I0.0\r\n= Q0.0\r\n");
  scala->Aggiorna();
  EXPECT_FALSE(rete->child(1) == nullptr);
  EXPECT_EQ(rete->childCount(), 2);
}

TEST_F(Scala, TheWheelZoomsWithCtrlAndScrollsWithout) {
  std::string lungo;
  for (int n = 1; n <= 30; ++n) lungo += "NETWORK " + std::to_string(n) + "\nLD I0.0\n= M0.0\n";
  Apri(lungo);
  const auto gira = [&](int angolo, Qt::KeyboardModifiers con) {
    const QPointF qui(200, 200);
    QWheelEvent evento(qui, Vista().viewport()->mapToGlobal(qui), {}, QPoint(0, angolo),
                       Qt::NoButton, con, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Vista().viewport(), &evento);
  };
  gira(-120, Qt::NoModifier);
  EXPECT_GT(Vista().verticalScrollBar()->value(), 0);
  EXPECT_DOUBLE_EQ(Vista().Ingrandimento(), 1);
  gira(120, Qt::ControlModifier);
  EXPECT_NEAR(Vista().Ingrandimento(), 1.2, 1e-9);
  Vista().Ingrandisci(100);
  EXPECT_DOUBLE_EQ(Vista().Ingrandimento(), 4);
  Comanda("mnuScReale");
  EXPECT_DOUBLE_EQ(Vista().Ingrandimento(), 1);
  Comanda("mnuScAdatta");
  EXPECT_EQ(Vista().horizontalScrollBar()->maximum(), 0);
}

TEST_F(Scala, AProjectorEnlargesWhatIsInSightAndGivesTheZoomBack) {
  std::string lungo;
  for (int n = 1; n <= 30; ++n) lungo += "NETWORK " + std::to_string(n) + "\nLD I0.0\n= M0.0\n";
  Apri(lungo);
  for (const double scelto : {1.0, 4.0}) {
    SCOPED_TRACE(scelto);
    Vista().Ingrandisci(scelto);
    for (const int da : {0, 400}) {
      Vista().verticalScrollBar()->setValue(da);
      const QRect prima = Vista().Posto(0, 0);
      Vista().Ingrandisci_Testo(1.5);
      EXPECT_NEAR(Vista().Posto(0, 0).height(), prima.height() * 1.5, 2);
      EXPECT_NEAR(Vista().Posto(0, 0).top(), prima.top() * 1.5, 2) << "the same line is at the top";
      EXPECT_DOUBLE_EQ(Vista().Ingrandimento(), scelto);
      Vista().Ingrandisci_Testo(1);
      EXPECT_EQ(Vista().Posto(0, 0), prima);
    }
  }
}

// ---- paper and files ----------------------------------------------------------------------------

TEST_F(Scala, IsSavedAsPdfSvgAndPng) {
  Apri(due_reti);
  const QTemporaryDir cartella;
  const struct {
    const char* Voce;
    const char* Tipo;
    const char* Inizio;
  } tipi[] = {
      {"mnuScPdf", "pdf", "%PDF"}, {"mnuScSvg", "svg", "<svg"}, {"mnuScPng", "png", "\x89PNG"}};
  for (const auto& tipo : tipi) {
    file = cartella.filePath("schema");
    Comanda(tipo.Voce);
    EXPECT_EQ(chiesto, QString(tipo.Tipo));
    QFile scritto(file + '.' + tipo.Tipo);
    ASSERT_TRUE(scritto.open(QIODevice::ReadOnly)) << tipo.Tipo;
    EXPECT_TRUE(scritto.readAll().startsWith(tipo.Inizio)) << tipo.Tipo;
  }
  EXPECT_TRUE(avvisi.isEmpty());
  file = cartella.filePath("non/esiste");
  Comanda("mnuScSvg");
  ASSERT_EQ(avvisi.size(), 1);
  EXPECT_TRUE(avvisi[0].contains("non si può salvare"));
}

TEST_F(Scala, PrintsPagesUntilAllIsOnPaper) {
  std::string lungo;
  for (int n = 1; n <= 40; ++n) lungo += "NETWORK " + std::to_string(n) + "\nLD I0.0\n= M0.0\n";
  Apri(lungo);
  const QTemporaryDir cartella;
  file = cartella.filePath("stampa.pdf");
  Comanda("mnuScStampa");
  QFile scritto(file);
  ASSERT_TRUE(scritto.open(QIODevice::ReadOnly));
  const QByteArray pdf = scritto.readAll();
  const int pagine =
      static_cast<int>(pdf.count("/Type /Page\n")) + static_cast<int>(pdf.count("/Type /Page "));
  EXPECT_GE(pagine, 3);
}

}  // namespace
}  // namespace tavorno::prova
