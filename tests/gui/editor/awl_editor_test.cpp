// SPDX-License-Identifier: GPL-3.0-or-later
// The text control: colours, help while typing, undo of what a command writes.
#include <set>

#include "awl/completion.h"
#include "awl/line_words.h"
#include "editor/editor_bed.h"
#include "plc/instructions.h"

namespace tavorno::prova {

namespace {

/// An editor of its own, without the window.
class AwlText : public ::testing::Test {
 public:
  AwlText() {
    editor.resize(600, 300);
    editor.show();
  }
  /// The looks of a line, one letter each as in the tables below.
  static std::vector<std::pair<std::string, int>> Pezzi(const std::string& riga) {
    return Pezzi_Di(riga, std::string_view(riga));
  }
  static std::vector<std::pair<std::string, int>> Pezzi(const Riga_Listato& riga) {
    return Pezzi_Di(A_Utf8(riga.Come_Testo()), riga);
  }
  template <class Linea>
  static std::vector<std::pair<std::string, int>> Pezzi_Di(const std::string& testo,
                                                           const Linea& linea) {
    std::vector<std::pair<std::string, int>> pezzi;
    std::size_t posto = 0;
    Colora_Linea(linea, [&](int quanti, int numero) {
      const auto lunghezza = static_cast<std::size_t>(quanti);
      if (numero != stile::Normale) pezzi.emplace_back(testo.substr(posto, lunghezza), numero);
      posto += lunghezza;
    });
    EXPECT_EQ(posto, testo.size()) << testo;
    return pezzi;
  }
  int Stile_In(int posizione) {
    editor.recolor();
    return static_cast<int>(editor.SendScintilla(QsciScintilla::SCI_GETSTYLEAT, posizione));
  }
  bool Suggerisce() const { return editor.SendScintilla(QsciScintilla::SCI_CALLTIPACTIVE) != 0; }

  AwlEditor editor{Genere_Testo::Programma, "txtList", nullptr};
};

using Pezzo = std::pair<std::string, int>;

}  // namespace

// ---- colours ------------------------------------------------------------------------------------

class MnemonicColour : public AwlText, public testing::WithParamInterface<Istruzione> {};

TEST_P(MnemonicColour, IsThatOfItsFamily) {
  const Istruzione& istruzione = GetParam();
  const std::string scritto = istruzione.Nome == "NETW" ? "NETWORK" : istruzione.Nome;
  editor.Scrivi(scritto + " ");
  const bool supportata = istruzione.Trattamento != Gruppo::Non_Supportata;
  const int atteso = scritto == "NETWORK" ? stile::Rete
                     : supportata         ? stile::Di(istruzione.Gruppo_Manuale)
                                          : stile::Non_Supportata;
  EXPECT_EQ(Stile_In(0), atteso);
  EXPECT_EQ(Stile_In(static_cast<int>(scritto.size()) - 1), atteso);
}

INSTANTIATE_TEST_SUITE_P(Table, MnemonicColour,
                         testing::ValuesIn(Tabella_Istruzioni().begin(),
                                           Tabella_Istruzioni().end()),
                         [](const auto& caso) { return "Row" + std::to_string(caso.index); });

TEST_F(AwlText, EveryFamilyHasItsOwnLook) {
  const AwlLexer lexer(Genere_Testo::Programma, nullptr);
  std::set<QRgb> colori;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    const int numero = stile::Di(istruzione.Gruppo_Manuale);
    EXPECT_EQ(Utf8(lexer.description(numero)), Nome_Famiglia(istruzione.Gruppo_Manuale));
    colori.insert(lexer.defaultColor(numero).rgb());
    EXPECT_TRUE(lexer.defaultFont(numero).bold());
  }
  EXPECT_EQ(colori.size(), 13U);
  // Wrong ones differ by more than the colour.
  EXPECT_NE(lexer.defaultPaper(stile::Sconosciuta), lexer.defaultPaper(stile::Normale));
  EXPECT_NE(lexer.defaultPaper(stile::Non_Supportata), lexer.defaultPaper(stile::Normale));
  EXPECT_TRUE(lexer.defaultFont(stile::Non_Supportata).italic());
  EXPECT_TRUE(lexer.description(stile::Messaggio + 1).isEmpty());
}

struct Caso_Colore {
  const char* riga;
  std::vector<Pezzo> pezzi;
};
class LineColour : public AwlText, public testing::WithParamInterface<Caso_Colore> {};

TEST_P(LineColour, IsPiecewise) {
  EXPECT_EQ(Pezzi(GetParam().riga), GetParam().pezzi);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineColour,
    testing::Values(
        Caso_Colore{"", {}}, Caso_Colore{"   ", {}},
        Caso_Colore{"//abc", {{"//abc", stile::Commento}}},
        Caso_Colore{"   // abc", {{"// abc", stile::Commento}}},
        Caso_Colore{"TITLE=abc", {{"TITLE=abc", stile::Commento}}},
        Caso_Colore{"NETWORK 1", {{"NETWORK 1", stile::Rete}}},
        Caso_Colore{"NETWORK 1  //abc",
                    {{"NETWORK 1  ", stile::Rete}, {"//abc", stile::Titolo_Rete}}},
        Caso_Colore{"network 1", {{"network", stile::Sconosciuta}, {"1", stile::Costante}}},
        Caso_Colore{"ld i0.0", {{"ld", stile::Di(Famiglia::Contatti)}, {"i0.0", stile::Operando}}},
        Caso_Colore{"\tLD\tI0.0",
                    {{"LD", stile::Di(Famiglia::Contatti)}, {"I0.0", stile::Operando}}},
        Caso_Colore{"MOVW   +100, VW0 //abc",
                    {{"MOVW", stile::Di(Famiglia::Trasferimenti)},
                     {"+100", stile::Costante},
                     {"VW0", stile::Operando},
                     {"//abc", stile::Commento}}},
        Caso_Colore{"/I VW0,VW2",
                    {{"/I", stile::Di(Famiglia::Aritmetica)},
                     {"VW0", stile::Operando},
                     {"VW2", stile::Operando}}},
        Caso_Colore{"LD I0.0 /abc",
                    {{"LD", stile::Di(Famiglia::Contatti)},
                     {"I0.0", stile::Operando},
                     {"/abc", stile::Commento}}},
        Caso_Colore{"NOT//abc",
                    {{"NOT", stile::Di(Famiglia::Contatti)}, {"//abc", stile::Commento}}},
        Caso_Colore{"SBR0 NOME",
                    {{"SBR0", stile::Di(Famiglia::Programma)}, {"NOME", stile::Operando}}},
        Caso_Colore{"JMP 5", {{"JMP", stile::Di(Famiglia::Programma)}, {"5", stile::Costante}}},
        Caso_Colore{"HSC 1", {{"HSC", stile::Non_Supportata}, {"1", stile::Costante}}},
        Caso_Colore{"XYZ", {{"XYZ", stile::Sconosciuta}}}));

TEST_F(AwlText, ALineOfTheListingShowsItsResult) {
  EXPECT_EQ(Pezzi(Riga_Listato{"0005", "[Ok!   ]", false, "NOT                   ", ""}),
            (std::vector<Pezzo>{{"0005 ", stile::Numero_Listato},
                                {"[Ok!   ]", stile::Esito_Buono},
                                {"NOT", stile::Di(Famiglia::Contatti)}}));
  EXPECT_EQ(Pezzi(Riga_Listato{"0012", "[Err. 3]", true, "XYZ -> no //\xE0", "-> b"}),
            (std::vector<Pezzo>{{"0012 ", stile::Numero_Listato},
                                {"[Err. 3]", stile::Esito_Errato},
                                {"XYZ", stile::Sconosciuta},
                                {"->", stile::Costante},
                                {"no", stile::Operando},
                                {"//à ", stile::Commento},
                                {"-> b", stile::Messaggio}}));
}

TEST_F(AwlText, ColoursFollowAnEdit) {
  editor.Scrivi("LD I0.0\r\nXYZ\r\n");
  EXPECT_EQ(Stile_In(9), stile::Sconosciuta);
  editor.Scrivi("LD I0.0\r\nNOT\r\n");
  EXPECT_EQ(Stile_In(9), stile::Di(Famiglia::Contatti));
}

// ---- completion ---------------------------------------------------------------------------------

TEST(Completion, OffersTheSupportedMnemonicsThatBeginSo) {
  using Lista = std::vector<std::string>;
  EXPECT_EQ(Completamenti("mov"), (Lista{"MOVB", "MOVD", "MOVW"}));  // and not MOVR
  EXPECT_EQ(Completamenti("NET"), Lista{"NETWORK"});
  EXPECT_EQ(Completamenti("CT"), (Lista{"CTD", "CTU", "CTUD"}));
  EXPECT_EQ(Completamenti("RET"), Lista{});  // complete as it is
  EXPECT_EQ(Completamenti("HS"), Lista{});
  EXPECT_EQ(Completamenti(""), Lista{});
}

TEST_F(AwlText, TheListComesWithTheFirstWordOnly) {
  QTest::keyClicks(&editor, "mo");
  EXPECT_TRUE(editor.isListActive());
  QTest::keyClicks(&editor, "vw");
  QTest::keyClick(&editor, Qt::Key_Tab);
  EXPECT_EQ(editor.Byte(), "MOVW");
  EXPECT_FALSE(editor.isListActive());
  QTest::keyClicks(&editor, " l");
  EXPECT_FALSE(editor.isListActive());
}

TEST_F(AwlText, AWholeMnemonicDoesNotHoldTheLineUp) {
  QTest::keyClicks(&editor, "re");
  EXPECT_TRUE(editor.isListActive());
  QTest::keyClicks(&editor, "t");
  EXPECT_FALSE(editor.isListActive());
  QTest::keyClick(&editor, Qt::Key_Return);
  EXPECT_EQ(editor.Byte(), "ret\r\n");
}

TEST_F(AwlText, NoListInTheMiddleOfAWord) {
  editor.Scrivi("LD I0.0");
  QTest::keyClicks(&editor, "o");
  EXPECT_EQ(editor.Byte(), "oLD I0.0");
  EXPECT_FALSE(editor.isListActive());
}

TEST_F(AwlText, CommentsAreNotCompleted) {
  QTest::keyClicks(&editor, "//l");
  EXPECT_FALSE(editor.isListActive());
}

TEST_F(AwlText, ControlAndBlankAskForTheList) {
  editor.Scrivi("LD");
  editor.Vai_In_Fondo();
  QTest::keyClick(&editor, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_TRUE(editor.isListActive());
  EXPECT_EQ(editor.Byte(), "LD");
}

// ---- keys ---------------------------------------------------------------------------------------

TEST_F(AwlText, NoCombinationTypesALetter) {
  editor.Scrivi("NOT\r\n");
  for (const auto modificatori :
       {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
        Qt::ControlModifier | Qt::AltModifier, Qt::ControlModifier | Qt::ShiftModifier,
        Qt::AltModifier | Qt::ShiftModifier}) {
    for (int tasto = Qt::Key_Space; tasto <= Qt::Key_AsciiTilde; ++tasto) {
      editor.setCursorPosition(0, 3);
      // The commands of the component may cut and paste, but none of them types.
      if (editor.standardCommands()->boundTo(tasto | static_cast<int>(modificatori)) != nullptr)
        continue;
      QKeyEvent evento(QEvent::KeyPress, tasto, modificatori, QString(QChar(tasto)));
      QApplication::sendEvent(&editor, &evento);
      EXPECT_EQ(editor.Byte(), "NOT\r\n") << tasto << " with " << static_cast<int>(modificatori);
    }
  }
  QTest::keyClicks(&editor, "A");
  EXPECT_EQ(editor.Byte(), "NOTA\r\n");
}

TEST_F(AwlText, AKeyThatChangesManyLinesIsToldOnce) {
  editor.Scrivi("NOT\r\nNOP\r\nEU\r\n");
  int cambi = 0;
  editor.Cambiato = [&cambi] { ++cambi; };
  editor.selectAll();
  QTest::keyClick(&editor, Qt::Key_Tab);
  EXPECT_EQ(editor.Byte(), "\tNOT\r\n\tNOP\r\n\tEU\r\n");
  EXPECT_EQ(cambi, 1);
  editor.undo();
  EXPECT_EQ(editor.Byte(), "NOT\r\nNOP\r\nEU\r\n");
  EXPECT_EQ(cambi, 2);
}

// ---- call tips ----------------------------------------------------------------------------------

class Tip : public testing::TestWithParam<Istruzione> {};

TEST_P(Tip, HasOperandsAndHelp) {
  const Istruzione& istruzione = GetParam();
  const std::string testo = Suggerimento(istruzione);
  const std::size_t fine = testo.find('\n');
  ASSERT_NE(fine, std::string::npos);
  EXPECT_EQ(testo.substr(fine + 1), istruzione.Aiuto);
  EXPECT_TRUE(testo.starts_with(istruzione.Nome));
  if (istruzione.Operandi != nullptr) {
    EXPECT_EQ(testo.substr(0, fine), istruzione.Nome + "   " + istruzione.Operandi->Aiuto);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, Tip,
                         testing::ValuesIn(Tabella_Istruzioni().begin(),
                                           Tabella_Istruzioni().end()),
                         [](const auto& caso) { return "Row" + std::to_string(caso.index); });

TEST(TipText, NamesTheOperandsThatNobodyChecks) {
  EXPECT_TRUE(Suggerimento(*Istruzione_Di("JMP 1")).starts_with("JMP   numero dell'etichetta\n"));
  EXPECT_TRUE(Suggerimento(*Istruzione_Di("NETWORK 1")).starts_with("NETWORK   numero //titolo"));
  EXPECT_TRUE(Suggerimento(*Istruzione_Di("mend")).starts_with("MEND   senza operandi\n"));
  EXPECT_TRUE(Suggerimento(*Istruzione_Di("HSC")).starts_with("HSC   istruzione non supportata\n"));
  EXPECT_EQ(Istruzione_Di("//LD"), nullptr);
  EXPECT_EQ(Istruzione_Di("XYZ 1"), nullptr);
}

TEST_F(AwlText, ATipComesBehindTheMnemonic) {
  QTest::keyClicks(&editor, "ld");
  EXPECT_FALSE(Suggerisce());
  QTest::keyClicks(&editor, " ");
  EXPECT_TRUE(Suggerisce());
  QTest::keyClicks(&editor, "i0.0");
  EXPECT_TRUE(Suggerisce());
  QTest::keyClick(&editor, Qt::Key_Return);
  EXPECT_FALSE(Suggerisce());
}

TEST_F(AwlText, NoTipForWhatNobodyKnowsNorInAComment) {
  QTest::keyClicks(&editor, "xyz ");
  EXPECT_FALSE(Suggerisce());
  editor.Scrivi("NOT //");
  editor.Vai_In_Fondo();
  QTest::keyClicks(&editor, "a b");
  EXPECT_FALSE(Suggerisce());
}

TEST_F(AwlText, APointerThatRestsOnAMnemonicBringsItsTip) {
  editor.Scrivi("LD I0.0\r\n");
  Q_EMIT editor.SCN_DWELLSTART(4, 0, 0);
  EXPECT_FALSE(Suggerisce());
  Q_EMIT editor.SCN_DWELLSTART(1, 0, 0);
  EXPECT_TRUE(Suggerisce());
  Q_EMIT editor.SCN_DWELLEND(1, 0, 0);
  EXPECT_FALSE(Suggerisce());
}

// ---- text ---------------------------------------------------------------------------------------

struct Caso_Scrittura {
  std::string prima;
  std::string dopo;
};
class Write : public AwlText, public testing::WithParamInterface<Caso_Scrittura> {};

TEST_P(Write, IsOneStepThatCanBeUndone) {
  const Caso_Scrittura& caso = GetParam();
  int cambi = 0;
  editor.Cambiato = [&cambi] { ++cambi; };
  editor.Scrivi(caso.prima);
  editor.Dimentica_Annulla();
  editor.Scrivi(caso.dopo);
  EXPECT_EQ(editor.Byte(), caso.dopo);
  EXPECT_EQ(cambi, 0);
  editor.undo();
  EXPECT_EQ(editor.Byte(), caso.prima);
  EXPECT_EQ(cambi, 1);
  EXPECT_FALSE(editor.isUndoAvailable());
  editor.redo();
  EXPECT_EQ(editor.Byte(), caso.dopo);
  EXPECT_EQ(cambi, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Write,
    testing::Values(Caso_Scrittura{"", "LD I0.0\r\n"}, Caso_Scrittura{"LD I0.0\r\n", ""},
                    Caso_Scrittura{"a\r\nb", "a\r\nc\r\nb"}, Caso_Scrittura{"a\r\n", "a\r\n\r\n"},
                    Caso_Scrittura{"\xE8", "\xE9"},  // two characters with a common first byte
                    Caso_Scrittura{"\xE8 x", "\xE8\xE8 x"}, Caso_Scrittura{"aaa", "aa"},
                    Caso_Scrittura{std::string("a\0b", 3), std::string("a\0c", 3)},
                    Caso_Scrittura{"\x81\x8D", "\x8D\x90"}));

TEST_F(AwlText, WhatStaysKeepsTheCaret) {
  editor.Scrivi("NOT\r\nNOP\r\nEU\r\n");
  editor.setCursorPosition(2, 1);
  editor.Scrivi("NOT\r\nEU\r\n");
  int linea = 0;
  int colonna = 0;
  editor.getCursorPosition(&linea, &colonna);
  EXPECT_EQ(linea, 1);
  EXPECT_EQ(colonna, 1);
}

TEST_F(AwlText, AnUndoOfManyStepsIsToldOnce) {
  int cambi = 0;
  QTest::keyClicks(&editor, "//abcdef");
  editor.Cambiato = [&cambi] { ++cambi; };
  editor.undo();
  EXPECT_EQ(editor.Byte(), "");
  EXPECT_EQ(cambi, 1);
}

TEST_F(AwlText, IsOfFixedPitch) {
  EXPECT_EQ(editor.lexer()->font(stile::Normale).family(), "DejaVu Sans Mono");
  EXPECT_EQ(editor.lexer()->font(stile::Normale).pointSize(), 9);
}

TEST_F(AwlText, TheMenuOfTheRightButtonSpeaksItalian) {
  editor.Scrivi("NOT");
  std::vector<std::string> voci;
  const auto menu = editor.Menu_Modifica();
  for (const QAction* voce : menu->actions())
    if (!voce->isSeparator()) voci.push_back(Utf8(voce->text()));
  EXPECT_EQ(voci, (std::vector<std::string>{"&Annulla", "&Ripeti", "&Taglia", "&Copia", "&Incolla",
                                            "&Elimina", "&Seleziona tutto"}));
  menu->actions().back()->trigger();
  EXPECT_EQ(editor.selectedText(), "NOT");
  AwlEditor listato(Genere_Testo::Listato, "txtLst", nullptr);
  EXPECT_EQ(listato.Menu_Modifica()->actions().size(), 3);  // copy, a line, select all
}

TEST_F(AwlText, TheKeysThatTheMenuShowsDoWhatItsEntriesDo) {
  const auto esito = [](int voce, bool con_i_tasti) {
    AwlEditor testo(Genere_Testo::Programma, "txtList", nullptr);
    testo.Scrivi("NOT\r\nNOP\r\n");
    testo.insertAt("A", 0, 0);
    testo.insertAt("B", 1, 0);
    testo.undo();  // from here both ways are open
    testo.setSelection(0, 1, 0, 3);
    QApplication::clipboard()->setText("EU");
    const auto menu = testo.Menu_Modifica();
    QAction& azione = *menu->actions().at(voce);
    EXPECT_TRUE(azione.isEnabled() || azione.isSeparator()) << voce;
    const QKeySequence tasti = azione.shortcut();
    if (!con_i_tasti)
      azione.trigger();
    else if (!tasti.isEmpty())
      QTest::keyClick(&testo, tasti[0].key(), tasti[0].keyboardModifiers());
    return testo.Byte() + "|" + Utf8(testo.selectedText()) + "|" +
           Utf8(QApplication::clipboard()->text());
  };
  for (int voce = 0; voce < 9; ++voce) EXPECT_EQ(esito(voce, true), esito(voce, false)) << voce;
}

TEST_F(AwlText, BothKeysThatAreCommonForItRepeat) {
  editor.Scrivi("NOT");
  for (const char* nome : {"Ctrl+Y", "Ctrl+Shift+Z"}) {
    const QKeySequence tasti(nome);
    editor.undo();
    ASSERT_EQ(editor.Byte(), "");
    QTest::keyClick(&editor, tasti[0].key(), tasti[0].keyboardModifiers());
    EXPECT_EQ(editor.Byte(), "NOT") << nome;
  }
}

}  // namespace tavorno::prova
