// SPDX-License-Identifier: GPL-3.0-or-later
// What a compile shows: listing, numbers, marks, and the way from one to the other.
#include "awl/ui/error_marks.h"
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

class CompileWindow : public Banco_Editor {
 public:
  /// A faulty line in the Main and one in the second procedure.
  const std::string guasto = Blocco_Main({"//commento", "NETWORK 1", "LD I0.0", "XYZ", "= Q0.0"}) +
                             Blocco_SBR(0, {"NOT"}) + Blocco_SBR(1, {"//", "HSC 1", "NOP"});

  std::vector<std::string> Numeri(const AwlEditor& testo) const {
    std::vector<std::string> numeri;
    for (int i = 0; i < testo.lines(); ++i) numeri.push_back(Utf8(testo.Numero_Mostrato(i)));
    return numeri;
  }
  static int Linea_Del_Cursore(const AwlEditor& testo) {
    int linea = 0;
    int colonna = 0;
    testo.getCursorPosition(&linea, &colonna);
    return linea;
  }
  void Doppio_Clic_Sul_Listato(int linea) const {
    Comanda("mnuViewC(2)");
    Q_EMIT txtLst().SCN_DOUBLECLICK(0, linea, 0);
  }
  static std::vector<std::string> Segnate(const AwlEditor& testo) {
    std::vector<std::string> segnate;
    for (int i = 0; i < testo.lines(); ++i) {
      const std::string annotata = Utf8(testo.annotation(i));
      EXPECT_EQ(testo.Ha_Errore(i), !annotata.empty()) << i;
      if (testo.Ha_Errore(i)) segnate.push_back(std::to_string(i) + " " + annotata);
    }
    return segnate;
  }
};

using Lista = std::vector<std::string>;

}  // namespace

// ---- margin -------------------------------------------------------------------------------------

TEST_F(CompileWindow, TheMarginNumbersTheRowsOfTheCpu) {
  Avvia_Con(guasto);
  // MEND 4, SBR0 5, SBR0's rows 6, RET 7, SBR1 8
  EXPECT_EQ(Numeri(txtList()), (Lista{"", "", "0", "1", "2", "3", ""}));
  EXPECT_EQ(Numeri(txtP()), (Lista{"", "6", ""}));
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  EXPECT_EQ(Numeri(txtP()), (Lista{"", "", "9", "10", ""}));
}

TEST_F(CompileWindow, TheMarginFollowsTheTyping) {
  Avvia_Con(guasto);
  txtList().Vai_A(3);
  txtList().insert("NOT\r\n");
  EXPECT_EQ(Numeri(txtList()), (Lista{"", "", "0", "1", "2", "3", "4", ""}));
  EXPECT_EQ(Numeri(txtP()), (Lista{"", "7", ""}));
  txtList().Vai_A(4);
  txtList().insert("//");
  EXPECT_EQ(Numeri(txtList()), (Lista{"", "", "0", "1", "", "2", "3", ""}));
  txtList().undo();
  txtList().undo();
  EXPECT_EQ(Numeri(txtList()), (Lista{"", "", "0", "1", "2", "3", ""}));
}

TEST_F(CompileWindow, ATextThatBelongsToNoProcedureHasNoNumbers) {
  Avvia_Con(guasto);
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  Premi("cmdDelP");
  EXPECT_EQ(Numeri(txtP()), (Lista{"", "", "", "", ""}));
}

class Example : public Banco_Editor, public testing::WithParamInterface<std::filesystem::path> {};

std::vector<std::filesystem::path> Esempi() {
  std::vector<std::filesystem::path> esempi;
  const auto cartella =
      std::filesystem::path(__FILE__).parent_path() / ".." / ".." / ".." / "examples";
  for (const auto& file : std::filesystem::directory_iterator(cartella))
    if (file.path().extension() == ".AWL") esempi.push_back(file.path());
  std::ranges::sort(esempi);
  return esempi;
}

/// Every line of the texts with a number in its margin is the row of that number, and the listing
/// leads to it.
TEST_P(Example, NumbersAndListingMeetTheRows) {
  risponditore.File.push_back(File_Scelto{GetParam(), GetParam().filename()});
  Avvia(Avvio::Apri);
  Comanda("mnuPlcCompile");
  int numerate = 0;
  for (int scheda = 0; scheda <= progetto.Num_SBR; ++scheda) {
    if (scheda > 0) {
      Comanda("mnuViewC(1)");
      Clicca_Scheda(scheda - 1);
    }
    AwlEditor& testo = scheda == 0 ? txtList() : txtP();
    for (int i = 0; i < testo.lines(); ++i) {
      if (testo.Numero_Mostrato(i).isEmpty()) continue;
      const int numero = testo.Numero_Mostrato(i).toInt();
      ++numerate;
      EXPECT_EQ(A_Byte(testo.text(i)), progetto.Righe_Src[numero].Testo_Lista + "\r\n");
      Comanda("mnuViewC(2)");
      EXPECT_EQ(txtLst().text(numero).left(4).toInt(), numero);
      Q_EMIT txtLst().SCN_DOUBLECLICK(0, numero, 0);
      EXPECT_EQ(SSTb2().currentIndex(), scheda == 0 ? 0 : 1);
      int linea = 0;
      int colonna = 0;
      testo.getCursorPosition(&linea, &colonna);
      EXPECT_EQ(linea, i);
    }
  }
  EXPECT_EQ(numerate, plc.NRighe - 2 * progetto.Num_SBR);
}

INSTANTIATE_TEST_SUITE_P(Files, Example, testing::ValuesIn(Esempi()),
                         [](const auto& caso) { return caso.param.stem().string(); });

// ---- result -------------------------------------------------------------------------------------

TEST_F(CompileWindow, AFaultyCompileShowsTheListingInsteadOfTheHiddenPage) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  EXPECT_EQ(SSTb2().currentIndex(), 2);
  EXPECT_EQ(progetto.Pagina, 2);
  EXPECT_TRUE(txtLst().isVisible());
  EXPECT_EQ(Etichetta("stB(3)"), "Errori: 2");
  EXPECT_EQ(Etichetta("etNR(0)"), "11");
  EXPECT_EQ(Etichetta("etNR(1)"), "2");
  EXPECT_EQ(Etichetta("etNR(2)"), progetto.etNR[2]);
  EXPECT_EQ(txtLst().lines(), 13);
  EXPECT_TRUE(txtLst().text(2).startsWith("0002 [Err. 3]: XYZ"));
  EXPECT_TRUE(txtLst().text(11).startsWith("0011 [Ok!   ]: RET"));
  EXPECT_TRUE(txtLst().isReadOnly());
  EXPECT_TRUE(Voce("mnuFileTxtExp").isEnabled());
}

TEST_F(CompileWindow, TheListingStandsBeforeTheBoxThatTellsIt) {
  Avvia_Con(guasto);
  QString listato;
  progetto.Chiedi.Mostra = [&](const Avviso&) {
    listato = txtLst().text();
    return Risposta::Ok;
  };
  Comanda("mnuPlcCompile");
  EXPECT_TRUE(listato.startsWith("0000 [Ok!"));
}

TEST_F(CompileWindow, AGoodCompileStaysOnItsPage) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0", "= Q0.0"}));
  Comanda("mnuPlcCompile");
  EXPECT_EQ(SSTb2().currentIndex(), 0);
  EXPECT_EQ(Etichetta("stB(3)"), "Errori: 0");
  EXPECT_EQ(Testi_Avvisi().back(), "Attenzione!:  3 Righe compilate con successo!");
  EXPECT_EQ(txtLst().lines(), 5);
}

TEST_F(CompileWindow, AnUntouchedNewProjectIsToBeSavedFirst) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuPlcCompile");
  EXPECT_EQ(Testi_Avvisi(),
            Lista{"Attenzione!: Il progetto non è formattato correttamente!\r\nOccorre salvare il "
                  "file prima della compilazione."});
  EXPECT_EQ(risponditore.Richieste.size(), 1U);
  EXPECT_EQ(txtLst().text(), "");
}

TEST_F(CompileWindow, ACompileGivenUpKeepsTheListingAndTheMarks) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  const QString listato = txtLst().text();
  Batti(txtList(), "x");
  risponditore.Risposte = {Risposta::Annulla};
  Comanda("mnuPlcCompile");
  EXPECT_EQ(txtLst().text(), listato);
  EXPECT_EQ(Segnate(txtList()).size(), 1U);
}

TEST_F(CompileWindow, ATickedCommentComesIntoTheListing) {
  Avvia_Con(Blocco_Main({"NETWORK 1 //rete", "LD I0.0 //riga"}));
  Trova<QCheckBox>("chkCom(0)").click();
  Trova<QCheckBox>("chkCom(1)").click();
  Batti(txtList(), "/");
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  EXPECT_TRUE(txtLst().text(0).contains("//rete"));
  EXPECT_TRUE(txtLst().text(1).contains("//riga"));
}

// ---- marks --------------------------------------------------------------------------------------

TEST_F(CompileWindow, FaultyLinesAreMarkedInBothTexts) {
  Avvia_Con(guasto);
  const std::string prima = txtList().Byte();
  Comanda("mnuPlcCompile");
  EXPECT_EQ(Segnate(txtList()), Lista{"4 Istruzione non riconosciuta"});
  EXPECT_EQ(Segnate(txtP()), Lista{});
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  EXPECT_EQ(Segnate(txtP()), Lista{"2 Istruzione non supportata"});
  EXPECT_EQ(txtList().Byte(), prima);
  EXPECT_FALSE(txtList().isUndoAvailable());
}

TEST_F(CompileWindow, MarksMoveWithTheirLines) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  txtList().Vai_A(0);
  txtList().insert("//\r\n//\r\n");
  EXPECT_EQ(Segnate(txtList()), Lista{"6 Istruzione non riconosciuta"});
  Doppio_Clic_Sul_Listato(2);
  EXPECT_EQ(Linea_Del_Cursore(txtList()), 6);
}

// A compile rewrites nearly every line, and puts a title above a text without one.
TEST_F(CompileWindow, MarksStayOnTheirLinesWhenTheRewritingIsTakenBack) {
  Avvia(Avvio::Nuovo);
  txtList().selectAll();
  txtList().replaceSelectedText("ld i0.0\r\nxyz  1 //a\r\nmovw vw0,vw2\r\njmp 5\r\nhsc\r\nnot");
  const std::string scritto = txtList().Byte();
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  const std::string formato = txtList().Byte();
  ASSERT_NE(formato, scritto);
  const auto segnati = [&] {
    Lista testi;
    for (int i = 0; i < txtList().lines(); ++i)
      if (!txtList().annotation(i).isEmpty())
        testi.push_back(Utf8(txtList().text(i).left(3).toUpper() + " " + txtList().annotation(i)));
    return testi;
  };
  const Lista attesi = {"XYZ Istruzione non riconosciuta", "JMP Manca l'etichetta LBL 5",
                        "HSC Istruzione non supportata"};
  EXPECT_EQ(segnati(), attesi);
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), scritto);
  EXPECT_EQ(segnati(), attesi);
  txtList().redo();
  EXPECT_EQ(txtList().Byte(), formato);
  EXPECT_EQ(segnati(), attesi);
}

TEST_F(CompileWindow, FaultsOfTheLinkPassesHaveTheirLineInTextAndListing) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "JMP 5", "NOT"}) + Blocco_SBR(0, {"CALL niente"}));
  Comanda("mnuPlcCompile");
  EXPECT_EQ(progetto.Compilato, -1);
  EXPECT_TRUE(txtList().Ha_Avvertimento(2));
  EXPECT_FALSE(txtList().Ha_Errore(2));
  EXPECT_EQ(txtList().annotation(2), "Manca l'etichetta LBL 5");
  EXPECT_EQ(txtLst().annotation(1), "Manca l'etichetta LBL 5");
  EXPECT_FALSE(txtLst().text().contains("Manca"));
  Doppio_Clic_Sul_Listato(1);
  EXPECT_EQ(Linea_Del_Cursore(txtList()), 2);
  Doppio_Clic_Sul_Listato(5);
  EXPECT_TRUE(txtP().Ha_Avvertimento(1));
  EXPECT_EQ(Linea_Del_Cursore(txtP()), 1);
}

TEST_F(CompileWindow, TheNextCompileReplacesTheMarks) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  const int inizio = txtList().positionFromLineIndex(4, 0);
  txtList().SendScintilla(QsciScintilla::SCI_DELETERANGE, inizio, 5L);
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  EXPECT_EQ(Segnate(txtList()), Lista{});
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  EXPECT_EQ(Segnate(txtP()), Lista{"2 Istruzione non supportata"});
}

struct Caso_Via {
  const char* comando;
};
class MarksGo : public CompileWindow, public testing::WithParamInterface<Caso_Via> {};

TEST_P(MarksGo, WithTheProject) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  Scegli_Da_Aprire(Blocco_Main({"NETWORK 1"}), "altro.AWL");
  Comanda(GetParam().comando);
  EXPECT_EQ(Segnate(txtList()), Lista{});
  EXPECT_EQ(Segnate(txtP()), Lista{});
}

INSTANTIATE_TEST_SUITE_P(Commands, MarksGo,
                         testing::Values(Caso_Via{"mnuFileOpen"}, Caso_Via{"mnuFileNew"}));

// ---- from the listing to the text ---------------------------------------------------------------

struct Caso_Riga {
  int riga;
  int pagina;
  int scheda;  // from 0, -1 for the Main
  int linea;
};
class ListingLine : public CompileWindow, public testing::WithParamInterface<Caso_Riga> {};

TEST_P(ListingLine, LeadsToItsText) {
  const Caso_Riga& caso = GetParam();
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  Doppio_Clic_Sul_Listato(caso.riga);
  EXPECT_EQ(SSTb2().currentIndex(), caso.pagina);
  AwlEditor& testo = caso.scheda < 0 ? txtList() : txtP();
  if (caso.scheda >= 0) {
    EXPECT_EQ(TabSP().currentIndex(), caso.scheda);
    EXPECT_EQ(txtP().Byte(), progetto.Tab_SBR[caso.scheda + 1].Testo);
  }
  EXPECT_EQ(Linea_Del_Cursore(testo), caso.linea);
  EXPECT_EQ(finestra->focusWidget(), &testo);
}

INSTANTIATE_TEST_SUITE_P(Rows, ListingLine,
                         testing::Values(Caso_Riga{0, 0, -1, 2}, Caso_Riga{2, 0, -1, 4},
                                         Caso_Riga{4, 0, -1, 6},  // MEND
                                         Caso_Riga{5, 1, 0, 0},   // SBR0
                                         Caso_Riga{6, 1, 0, 1}, Caso_Riga{7, 1, 0, 2},
                                         Caso_Riga{9, 1, 1, 2}, Caso_Riga{10, 1, 1, 3}));

TEST_F(CompileWindow, TheEnterKeyLeadsToTheTextToo) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  txtLst().Vai_A(2);
  QTest::keyClick(&txtLst(), Qt::Key_Return);
  EXPECT_EQ(SSTb2().currentIndex(), 0);
  EXPECT_EQ(Linea_Del_Cursore(txtList()), 4);
}

TEST_F(CompileWindow, TheProcedureIsFoundWhereItHasMoved) {
  Avvia_Con(guasto);
  Comanda("mnuPlcCompile");
  Comanda("mnuViewC(1)");
  Clicca_Scheda(0);
  Premi("cmdDelP");
  Doppio_Clic_Sul_Listato(9);
  EXPECT_EQ(TabSP().currentIndex(), 0);
  EXPECT_EQ(Linea_Del_Cursore(txtP()), 2);
  Doppio_Clic_Sul_Listato(6);  // of the removed one
  EXPECT_EQ(SSTb2().currentIndex(), 2);
}

TEST_F(CompileWindow, AnEmptyListingLeadsNowhere) {
  Avvia(Avvio::Nuovo);
  Doppio_Clic_Sul_Listato(0);
  EXPECT_EQ(SSTb2().currentIndex(), 2);
}

TEST_F(CompileWindow, ALongTextIsNumberedToItsEnd) {
  std::vector<std::string> righe(1000, "LD     I0.0                          //riga");
  Avvia(Avvio::Nuovo);
  txtList().Scrivi(Righe(righe));
  progetto.Scrivi_Main(Righe(righe));
  txtList().Vai_A(0);
  Batti(txtList(), "x");
  EXPECT_EQ(txtList().Numero_Mostrato(999), "999");
  QTest::keyClick(&txtList(), Qt::Key_Return);
  EXPECT_EQ(txtList().Numero_Mostrato(1000), "1000");
}

}  // namespace tavorno::prova
