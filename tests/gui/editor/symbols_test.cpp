// SPDX-License-Identifier: GPL-3.0-or-later
// The names of a plant's parts in the editor, and lines that are too long for the file.
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

const Simboli simboli = {{"I0.0", {"SB1", "Pulsante?(NC) Stop"}},
                         {"I0.1", {"SB2", "Pulsante (NO) Start"}},
                         {"Q0.0", {"KM", "Contattore"}}};

class Names : public Banco_Editor {
 protected:
  void SetUp() override {
    Avvia_Con(Blocco_Main({"NETWORK 1"}));
    finestra->Usa_Simboli(simboli);
  }
  bool Aiuto_Aperto() const {
    return txtList().SendScintilla(QsciScintilla::SCI_CALLTIPACTIVE) != 0;
  }
};

}  // namespace

TEST_F(Names, AreOfferedWithTheOperandAndOnlyTheOperandIsWritten) {
  Batti_In_Fondo(txtList(), "LD i");
  ASSERT_TRUE(txtList().isListActive());
  QTest::keyClick(&txtList(), Qt::Key_Down);
  QTest::keyClick(&txtList(), Qt::Key_Tab);
  EXPECT_FALSE(txtList().isListActive());
  Batti(txtList(), " //x");
  EXPECT_TRUE(Utf8(txtList().text()).ends_with("LD I0.1 //x")) << Utf8(txtList().text());
  EXPECT_EQ(progetto.txtList, txtList().Byte());
}

TEST_F(Names, AreOfferedWhereAnOperandGoesWhenAskedFor) {
  Batti_In_Fondo(txtList(), "= ");
  EXPECT_FALSE(txtList().isListActive());
  QTest::keyClick(&txtList(), Qt::Key_Space, Qt::ControlModifier);
  ASSERT_TRUE(txtList().isListActive());
  QTest::keyClick(&txtList(), Qt::Key_Return);
  EXPECT_TRUE(Utf8(txtList().text()).ends_with("= Q0.0"));
}

TEST_F(Names, StandInATipBehindAWholeOperand) {
  Batti_In_Fondo(txtList(), "LD I0.0");
  EXPECT_FALSE(txtList().isListActive());
  EXPECT_TRUE(Aiuto_Aperto());
  QTest::keyClick(&txtList(), Qt::Key_Return);
  EXPECT_TRUE(Utf8(txtList().text()).ends_with("LD I0.0\r\n"));
  Batti(txtList(), "LD I7.7");
  EXPECT_FALSE(Aiuto_Aperto());
}

TEST_F(Names, NoTipStaysOverALineThatIsCommentedOrLeftByACommand) {
  Batti_In_Fondo(txtList(), "LD ");
  ASSERT_TRUE(Aiuto_Aperto());
  Batti(txtList(), "//x");
  EXPECT_FALSE(Aiuto_Aperto());
  for (const char* comando : {"mnuRigheCom", "mnuVaiNetPrec", "mnuVaiErrSucc", "mnuCercaTrova"}) {
    Batti_In_Fondo(txtList(), "\rLD ");
    ASSERT_TRUE(Aiuto_Aperto());
    Comanda(comando);
    EXPECT_FALSE(Aiuto_Aperto()) << comando;
  }
}

TEST_F(Names, GoWithThePlant) {
  finestra->Usa_Simboli({});
  Batti_In_Fondo(txtList(), "LD i");
  EXPECT_FALSE(txtList().isListActive());
}

TEST_F(Names, StandBehindTheLinesWithoutBeingWritten) {
  Batti_In_Fondo(txtList(), "LD I0.0\rLD I7.7\rNOT");
  const std::string prima = txtList().Byte();
  // The room to the right of a line, without its own letters.
  const auto accanto = [this](int linea) {
    QCoreApplication::processEvents();
    const long fine = txtList().SendScintilla(QsciScintilla::SCI_GETLINEENDPOSITION, linea);
    const auto a = [&](unsigned dove) {
      return static_cast<int>(txtList().SendScintilla(dove, 0UL, fine));
    };
    const QRect posto(a(QsciScintilla::SCI_POINTXFROMPOSITION) + 4,
                      a(QsciScintilla::SCI_POINTYFROMPOSITION), 300, 12);
    const QImage carta = txtList().viewport()->grab(posto).toImage();
    QImage vuota(carta.size(), carta.format());
    vuota.setDevicePixelRatio(carta.devicePixelRatio());
    vuota.fill(carta.pixelColor(0, 0));
    return carta != vuota;
  };
  const int ld = txtList().lines() - 3;
  EXPECT_TRUE(accanto(ld));
  EXPECT_FALSE(accanto(ld + 1));
  Comanda("mnuRigheNote");
  EXPECT_FALSE(accanto(ld));
  EXPECT_EQ(finestra->statusBar()->currentMessage(), "");
  Comanda("mnuRigheNote");
  EXPECT_TRUE(accanto(ld));
  finestra->Usa_Simboli({});
  EXPECT_FALSE(accanto(ld));
  Comanda("mnuRigheNote");
  Comanda("mnuRigheNote");
  EXPECT_TRUE(
      finestra->statusBar()->currentMessage().startsWith("I nomi ci sono con un esercizio"));
  EXPECT_EQ(txtList().Byte(), prima);
}

TEST_F(Names, WhatStopsTheCpuIsNamedInTheListAndWrittenAlone) {
  Batti_In_Fondo(txtList(), "xor");
  ASSERT_TRUE(txtList().isListActive());
  QTest::keyClick(&txtList(), Qt::Key_Tab);
  EXPECT_TRUE(Utf8(txtList().text()).ends_with("XORD"));
}

TEST_F(Names, TheEndOfALineThatIsTooLongIsMarked) {
  const auto segnato = [this](int colonna) {
    const int posto = txtList().positionFromLineIndex(txtList().lines() - 1, colonna);
    return txtList().SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, 10UL,
                                   static_cast<long>(posto)) != 0;
  };
  Batti_In_Fondo(txtList(), "MOVD VD10000, VD10000");
  ASSERT_TRUE(QTest::qWaitFor([&] { return segnato(20); }, 60000));
  EXPECT_FALSE(segnato(19));
  QTest::keyClick(&txtList(), Qt::Key_Backspace);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !segnato(19); }, 60000));
}

}  // namespace tavorno::prova
