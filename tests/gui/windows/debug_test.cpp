// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFormLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <memory>
#include <vector>

#include "awl/link.h"
#include "awl/project.h"
#include "panel/windows/debug_window.h"
#include "window_bed.h"

namespace tavorno {
namespace {

class Debug : public Banco_Finestre {
 public:
  Debug() {
    for (const char* riga :
         {"LD I0.3", "NOT", "MOVW VW4, VW6", "+I VW2, VW0", "JMP 1", "TON T37, 50", "LBL 1",
          "JMP 2", "LBL 2", "= Q1.7", "TON T38, +30", "CTUD C1, 5"})
      righe.emplace_back(riga);
    progetto.CPU.NRighe = -1;
    for (const std::string& riga : righe) {
      ++progetto.CPU.NRighe;
      Metti(riga);
    }
    plc.Prog.Ridimensiona(plc.NRighe + 1);
    for (int k = 0; k <= plc.NRighe; ++k) Riempi_Riga(plc.Prog[k], progetto.Righe_Src[k]);
    Assegna_JMP(plc.Prog);
  }

  void Metti(const std::string& testo) {
    Riga_Src& riga = progetto.Righe_Src[plc.NRighe];
    const auto blank = testo.find(' ');
    const auto virgola = testo.find(", ");
    riga.Istr = testo.substr(0, blank);
    if (blank != std::string::npos) {
      riga.Op1 = testo.substr(blank + 1, virgola - blank - 1);
      riga.NOp = 1;
    }
    if (virgola != std::string::npos) {
      riga.Op2 = testo.substr(virgola + 2);
      riga.NOp = 2;
    }
    riga.Testo_CPU = testo;
  }

  FrmDebug& Apri() {
    finestra = std::make_unique<FrmDebug>(progetto);
    finestra->show();
    return *finestra;
  }

  /// Opens the window and chooses a compiled line.
  FrmDebug& Riga(int indice) {
    Apri();
    Trova<QTabWidget>(*finestra, "SSTab1").setCurrentIndex(1);
    Trova<QListWidget>(*finestra, "listCod").setCurrentRow(indice);
    return *finestra;
  }
  bool Visibile(const char* nome) const { return !Trova<QGroupBox>(*finestra, nome).isHidden(); }
  std::vector<std::string> Timer() const {
    std::vector<std::string> testi;
    const auto& lista = Trova<QComboBox>(*finestra, "cmbTim");
    testi.reserve(static_cast<std::size_t>(lista.count()));
    for (int i = 0; i < lista.count(); ++i) testi.push_back(lista.itemText(i).toStdString());
    return testi;
  }

  std::vector<std::string> righe;
  Progetto progetto{plc, {}};
  std::unique_ptr<FrmDebug> finestra;
};

TEST_F(Debug, WindowHasItsNameTabsAndButton) {
  FrmDebug& w = Apri();
  EXPECT_EQ(w.objectName(), "frmDebug");
  const auto& schede = Trova<QTabWidget>(w, "SSTab1");
  ASSERT_EQ(schede.count(), 3);
  EXPECT_EQ(schede.tabText(0), "Listato");
  EXPECT_EQ(schede.tabText(1), "HEX");
  EXPECT_EQ(schede.tabText(2), "Lista errori");
  EXPECT_EQ(Trova<QAbstractButton>(w, "cmdEsc").text(), "Termina");
  Prova_Finestra(w);
}

TEST_F(Debug, TerminaCloses) {
  FrmDebug& w = Apri();
  Premi(w, "cmdEsc");
  EXPECT_FALSE(w.isVisible());
}

struct Nome {
  const char* Campo;
  const char* Etichetta;
};

constexpr Nome nomi[] = {
    {"EtInf(0)", "NOp :"},
    {"EtInf(1)", "Codice Ist. :"},
    {"EtInf(2)", "Op 1 :"},
    {"EtInf(3)", "Op 2 :"},
    {"EtInf(4)", "Op 3 :"},
    {"etNIST", "N. Istruzioni :"},
    {"et1(1)", "Codice Istruzione:"},
    {"et1(2)", "Codice Op1 :"},
    {"et1(3)", "Indirizzo Byte Op1:"},
    {"et1(4)", "Indirizzo Bit Op1 :"},
    {"et1(5)", "Codice Op2 :"},
    {"et1(6)", "Indirizzo Byte Op2 :"},
    {"et1(7)", "Indirizzo Bit Op2 :"},
    {"et1(8)", "Stak  Old:"},
    {"et1(9)", "A. Jmp:"},
    {"cmbTim", "Timer Disabiliti:"},
    {"etS(0)", "SCr :"},
    {"etS(1)", "SSCr :"},
    {"etS(2)", "ESCr :"},
};

class Debug_Label : public Debug, public ::testing::WithParamInterface<Nome> {};

TEST_P(Debug_Label, NamesItsField) {
  const auto& campo = Trova<QWidget>(Apri(), GetParam().Campo);
  const QLabel* etichetta = nullptr;
  for (const auto* modulo : finestra->findChildren<QFormLayout*>()) {
    if (modulo->indexOf(const_cast<QWidget*>(&campo)) >= 0)
      etichetta = qobject_cast<QLabel*>(modulo->labelForField(const_cast<QWidget*>(&campo)));
  }
  ASSERT_NE(etichetta, nullptr);
  EXPECT_EQ(etichetta->text(), GetParam().Etichetta);
}
INSTANTIATE_TEST_SUITE_P(All, Debug_Label, ::testing::ValuesIn(nomi));

TEST_F(Debug, FramesHaveTheirCaptions) {
  Apri();
  EXPECT_EQ(Trova<QGroupBox>(*finestra, "CorOp(0)").title(), "Primo Operando");
  EXPECT_EQ(Trova<QGroupBox>(*finestra, "CorOp(1)").title(), "Secondo Operando");
  EXPECT_EQ(Trova<QLabel>(*finestra, "etS(0)").parentWidget()->objectName(), "Frame1");
}

TEST_F(Debug, BothListsHoldTheLinesAndTheFirstIsSelected) {
  Apri();
  for (const char* nome : {"lstI", "listCod"}) {
    const auto& lista = Trova<QListWidget>(*finestra, nome);
    ASSERT_EQ(lista.count(), static_cast<int>(righe.size()));
    for (int k = 0; k < lista.count(); ++k)
      EXPECT_EQ(lista.item(k)->text().toStdString(), righe[static_cast<std::size_t>(k)]);
  }
  EXPECT_EQ(Trova<QListWidget>(*finestra, "lstI").currentRow(), 0);
  EXPECT_EQ(Testo(*finestra, "EtInf(1)"), "LD");
  EXPECT_EQ(Testo(*finestra, "EtInf(2)"), "I0.3");
  EXPECT_EQ(Testo(*finestra, "etNIST"), "12");
  EXPECT_EQ(Testo(*finestra, "et1(1)"), "");
}

TEST_F(Debug, ALineShowsWhatTheReaderStored) {
  Apri();
  progetto.Righe_Src[2].Op3 = "x";
  Apri();
  Trova<QListWidget>(*finestra, "lstI").setCurrentRow(2);
  constexpr const char* attesi[] = {"2", "MOVW", "VW4", "VW6", "x"};
  for (int k = 0; k < 5; ++k)
    EXPECT_EQ(Testo(*finestra, ("EtInf(" + std::to_string(k) + ")").c_str()), attesi[k]);
}

struct Record {
  int Riga;
  const char* Istr;
  const char* Op1[3];
  const char* Op2[3];
  bool Primo, Secondo;
};

constexpr Record record[] = {
    {0, "LD", {"I", "0", "3"}, {"", "0", ""}, true, false},
    {1, "NOT", {"", "0", ""}, {"", "0", ""}, false, false},
    {2, "MOVW", {"VW", "4", ""}, {"VW", "6", ""}, true, true},
    {5, "TON", {"T", "37", ""}, {"K", "50", ""}, true, true},
    {9, "=", {"Q", "1", "7"}, {"", "0", ""}, true, false},
};

class Debug_Record : public Debug, public ::testing::WithParamInterface<Record> {};

TEST_P(Debug_Record, ShowsWhatTheCompilerStored) {
  const Record& atteso = GetParam();
  Riga(atteso.Riga);
  EXPECT_EQ(Trova<QTextEdit>(*finestra, "txt1").toPlainText().toStdString(),
            righe[static_cast<std::size_t>(atteso.Riga)]);
  EXPECT_EQ(Testo(*finestra, "etR"), std::to_string(atteso.Riga));
  EXPECT_EQ(Testo(*finestra, "et1(1)"), atteso.Istr);
  for (int k = 0; k < 3; ++k) {
    EXPECT_EQ(Testo(*finestra, ("et1(" + std::to_string(k + 2) + ")").c_str()), atteso.Op1[k]);
    EXPECT_EQ(Testo(*finestra, ("et1(" + std::to_string(k + 5) + ")").c_str()), atteso.Op2[k]);
  }
  EXPECT_EQ(Visibile("CorOp(0)"), atteso.Primo);
  EXPECT_EQ(Visibile("CorOp(1)"), atteso.Secondo);
}
INSTANTIATE_TEST_SUITE_P(All, Debug_Record, ::testing::ValuesIn(record));

TEST_F(Debug, AByteOperandShowsNoBit) {
  Riga(2);
  EXPECT_EQ(plc.Prog[2].Bit1, -1);
  EXPECT_EQ(Testo(*finestra, "et1(4)"), "");
}

TEST_F(Debug, AJumpShowsItsTimers) {
  Riga(4);
  EXPECT_EQ(Timer(), std::vector<std::string>{"37"});
  EXPECT_TRUE(Trova<QComboBox>(*finestra, "cmbTim").isEnabled());
  EXPECT_EQ(Trova<QComboBox>(*finestra, "cmbTim").currentIndex(), 0);
  EXPECT_EQ(Testo(*finestra, "et1(9)"), "6");
}

TEST_F(Debug, ACallShowsItsTimers) {
  plc.Prog[0].Istr = "CALL";
  plc.Prog[0].Nel_Programma = Compito::Chiamata;
  plc.Prog[0].Lista_T = {0, 33, 40};
  Riga(0);
  EXPECT_EQ(Timer(), (std::vector<std::string>{"33", "40"}));
}

TEST_F(Debug, AJumpWithoutTimersHasTheListOutOfUse) {
  Riga(7);
  EXPECT_TRUE(Timer().empty());
  EXPECT_FALSE(Trova<QComboBox>(*finestra, "cmbTim").isEnabled());
}

TEST_F(Debug, AnotherLineClearsTheListOfTimers) {
  Riga(4);
  Trova<QListWidget>(*finestra, "listCod").setCurrentRow(0);
  EXPECT_TRUE(Timer().empty());
  EXPECT_FALSE(Trova<QComboBox>(*finestra, "cmbTim").isEnabled());
  plc.Prog[1].Lista_T = {0, 33};
  Trova<QListWidget>(*finestra, "listCod").setCurrentRow(1);
  EXPECT_TRUE(Timer().empty());
}

TEST_F(Debug, ANotLineHidesBothOperands) {
  Riga(0);
  EXPECT_TRUE(Visibile("CorOp(0)"));
  Trova<QListWidget>(*finestra, "listCod").setCurrentRow(1);
  EXPECT_FALSE(Visibile("CorOp(0)"));
  EXPECT_FALSE(Visibile("CorOp(1)"));
}

TEST_F(Debug, ThreeOperandsHideBothFramesToo) {
  plc.Prog[2].NOper = 3;
  Riga(2);
  EXPECT_FALSE(Visibile("CorOp(0)"));
  EXPECT_FALSE(Visibile("CorOp(1)"));
  EXPECT_EQ(Testo(*finestra, "et1(2)"), "VW");
}

TEST_F(Debug, RunTimeFieldsOfALine) {
  Riga_PLC& riga = plc.Prog[3];
  riga.Fronte = 1;
  riga.Salto = 9;
  riga.Abil_SCR = 0;
  riga.SCR_Prima = 4;
  riga.SCR_Ultima = 8;
  Riga(3);
  EXPECT_EQ(Testo(*finestra, "et1(8)"), "1");
  EXPECT_EQ(Testo(*finestra, "et1(9)"), "9");
  EXPECT_EQ(Testo(*finestra, "etS(0)"), "0");
  EXPECT_EQ(Testo(*finestra, "etS(1)"), "4");
  EXPECT_EQ(Testo(*finestra, "etS(2)"), "8");
}

TEST_F(Debug, ANewRecordStandsAgainstTheOldText) {
  Apri();
  progetto.Righe_Src[0].Testo_CPU = "A M0.0";
  progetto.Righe_Src[0].Istr = "A";
  plc.Prog[0].Istr = "A";
  Trova<QListWidget>(*finestra, "listCod").setCurrentRow(0);
  EXPECT_EQ(Trova<QTextEdit>(*finestra, "txt1").toPlainText(), "LD I0.3");
  EXPECT_EQ(Testo(*finestra, "et1(1)"), "A");
  Trova<QListWidget>(*finestra, "lstI").setCurrentRow(1);
  Trova<QListWidget>(*finestra, "lstI").setCurrentRow(0);
  EXPECT_EQ(Testo(*finestra, "EtInf(1)"), "LD");
}

TEST_F(Debug, ALineThatTheProgramNoLongerHasShowsNoRecord) {
  Riga(4);
  plc.Prog.Ridimensiona(3);
  auto& lista = Trova<QListWidget>(*finestra, "listCod");
  lista.setCurrentRow(0);
  lista.setCurrentRow(5);
  EXPECT_EQ(Testo(*finestra, "etR"), "5");
  EXPECT_EQ(Testo(*finestra, "et1(1)"), "");
  EXPECT_EQ(Testo(*finestra, "etS(0)"), "");
  EXPECT_FALSE(Visibile("CorOp(0)"));
}

TEST_F(Debug, AnEmptyProjectShowsOneEmptyLine) {
  Plc vuoto(orologio);
  Progetto niente(vuoto, {});
  const FrmDebug w(niente);
  EXPECT_EQ(Trova<QListWidget>(w, "lstI").count(), 1);
  Trova<QListWidget>(w, "listCod").setCurrentRow(0);
  EXPECT_EQ(Testo(w, "et1(1)"), "");
}

TEST_F(Debug, TextsOfTheCodePageAreShownAsCharacters) {
  progetto.Righe_Src[0].Testo_CPU = "LD I0.3 // \xE0";
  Apri();
  EXPECT_EQ(Trova<QListWidget>(*finestra, "lstI").item(0)->text(),
            QString::fromUtf8("LD I0.3 // à"));
}

}  // namespace
}  // namespace tavorno
