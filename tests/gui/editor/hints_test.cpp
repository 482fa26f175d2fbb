// SPDX-License-Identifier: GPL-3.0-or-later
// Hints on the text, shown a moment after the last key.
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

class Hint : public Banco_Editor {
 protected:
  static bool Suggerito(const AwlEditor& testo, int linea, const char* inizio) {
    return QTest::qWaitFor([&] { return testo.Suggerito(linea).startsWith(Q(inizio)); }, 60000);
  }
  static bool Sottolineato(const AwlEditor& testo, int linea) {
    const int inizio = testo.positionFromLineIndex(linea, 0);
    const int fine = testo.positionFromLineIndex(linea + 1, 0);
    for (int i = inizio; i < fine; ++i)
      if (testo.SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, 8UL, static_cast<long>(i)) != 0)
        return true;
    return false;
  }
};

}  // namespace

TEST_F(Hint, AppearsWhileTypingAndGoesWithItsCause) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0"}));
  txtList().insertAt("//\xC3\xA0\r\n  NOT\r\n", 2, 0);
  ASSERT_TRUE(Suggerito(txtList(), 3, "Comincia con uno spazio"));
  EXPECT_TRUE(Sottolineato(txtList(), 3));
  EXPECT_FALSE(Sottolineato(txtList(), 2));
  EXPECT_FALSE(txtList().Ha_Errore(3));
  EXPECT_EQ(txtList().annotation(3), "");
  txtList().setSelection(3, 0, 3, 2);
  txtList().removeSelectedText();
  ASSERT_TRUE(QTest::qWaitFor([&] { return txtList().Suggerito(3).isEmpty(); }, 60000));
  EXPECT_FALSE(Sottolineato(txtList(), 3));
}

TEST_F(Hint, StandsInTheTextOfItsProcedureAndNeverInTheListing) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "= Q0.0"}) + Blocco_SBR(0, {"NOT"}) +
            Blocco_SBR(1, {"= Q0.0"}));
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  ASSERT_TRUE(Suggerito(txtP(), 1, "Q0.0 è già assegnata"));
  EXPECT_TRUE(Sottolineato(txtP(), 1));
  Clicca_Scheda(0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return txtP().Suggerito(1).isEmpty(); }, 60000));
  EXPECT_FALSE(Sottolineato(txtP(), 1));
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  EXPECT_FALSE(txtLst().text().contains("assegnata"));
  for (const Diagnosi& rilievo : progetto.Rilievi) EXPECT_NE(rilievo.Grado, Gravita::Suggerimento);
}

}  // namespace tavorno::prova
