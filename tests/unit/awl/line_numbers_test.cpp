// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/line_numbers.h"

#include <sstream>

#include "project_bed.h"

namespace tavorno::prova {

namespace {

constexpr int niente = Numerazione::Nessuno;

/// Which rows a project really gets, against the numbers given beforehand.
class LineNumbers : public Banco_Progetto {
 public:
  /// Saves and reads the texts as they stand.
  bool Salva_E_Leggi() {
    progetto.File_Salva = progetto.File_Progetto = Percorso("prova.AWL");
    if (!progetto.Crea_Progetto() || !progetto.SalvaFile()) return false;
    progetto.LeggiTxt();
    return progetto.Err_Lettura == 0;
  }
  static std::vector<std::string> Linee(const std::string& testo) {
    std::vector<std::string> linee;
    std::istringstream flusso(testo);
    for (std::string linea; std::getline(flusso, linea);) {
      while (!linea.empty() && linea.back() == '\r') linea.pop_back();
      linee.push_back(linea);
    }
    return linee;
  }
  /// Every numbered line of the texts as they were read is the row of that number.
  void Confronta_Con_Le_Righe() const {
    const Numerazione numerazione(progetto);
    int numerate = 0;
    for (int t = 0; t <= progetto.Num_SBR; ++t) {
      const auto linee = Linee(t == 0 ? progetto.txtList : progetto.Tab_SBR[t].Testo);
      const std::vector<int>& numeri = numerazione.Numeri(t);
      ASSERT_GE(numeri.size(), linee.size());
      for (std::size_t i = 0; i < linee.size(); ++i) {
        if (numeri[i] == niente) continue;
        ++numerate;
        EXPECT_EQ(progetto.Righe_Src[numeri[i]].Testo_Lista, linee[i]) << numeri[i];
        EXPECT_EQ(progetto.Righe_Src[numeri[i]].Posto, (Posto_Riga{t, static_cast<int>(i)}));
      }
    }
    // All other rows were made by the blocks: MEND, and SBR and RET of each procedure.
    EXPECT_EQ(numerate + 1 + 2 * progetto.Num_SBR, plc.NRighe + 1);
    EXPECT_EQ(numerazione.Righe(), plc.NRighe + 1);
    for (int i = 0; i < numerazione.Righe(); ++i) {
      const auto posto = numerazione.Posto(i);
      ASSERT_TRUE(posto.has_value()) << i;
      EXPECT_EQ(posto->Testo, progetto.Righe_Src[i].Posto.Testo) << i;
      const auto& numeri = numerazione.Numeri(posto->Testo);
      const auto linea = static_cast<std::size_t>(posto->Linea);
      ASSERT_LT(linea, numeri.size());
      if (numeri[linea] == i) continue;
      const std::string& istr = progetto.Righe_Src[i].Istr;
      EXPECT_EQ(linea, istr.starts_with("SBR") ? 0 : numeri.size() - 1) << istr;
    }
    EXPECT_FALSE(numerazione.Posto(numerazione.Righe()).has_value());
    EXPECT_FALSE(numerazione.Posto(-1).has_value());
  }
};

}  // namespace

// ---- single lines -------------------------------------------------------------------------------

struct Caso_Linea {
  std::string linea;
  bool riga;
};

class LineBecomesRow : public LineNumbers, public testing::WithParamInterface<Caso_Linea> {};

/// The line stands between two that are rows; the third one's number tells.
TEST_P(LineBecomesRow, AsTheReaderTakesIt) {
  const Caso_Linea& caso = GetParam();
  EXPECT_EQ(Diventa_Riga(caso.linea), caso.riga);
  progetto.Scrivi_Main("NETWORK 1\r\n" + caso.linea + "\r\nNOT\r\n");
  const std::vector<int> attesi = {0, caso.riga ? 1 : niente, caso.riga ? 2 : 1, niente};
  EXPECT_EQ(Numerazione(progetto).Numeri(0), attesi);
  ASSERT_TRUE(Salva_E_Leggi());
  EXPECT_EQ(progetto.Righe_Src[caso.riga ? 2 : 1].Istr, "NOT");
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineBecomesRow,
    testing::Values(
        Caso_Linea{"", false}, Caso_Linea{"//", false}, Caso_Linea{"//LD I0.0", false},
        Caso_Linea{" // x", false}, Caso_Linea{"    // x", false}, Caso_Linea{"\t// x", false},
        Caso_Linea{"   ", false}, Caso_Linea{"\t", false}, Caso_Linea{"TITLE=abc", false},
        Caso_Linea{"BEGIN", false}, Caso_Linea{"BEGINNING", false}, Caso_Linea{"SBR0", false},
        Caso_Linea{"INT", false}, Caso_Linea{"SBR ", false}, Caso_Linea{"INT0 \t", false},
        Caso_Linea{"SBR0 NOME", true}, Caso_Linea{"INT 3", true}, Caso_Linea{"NETWORK", true},
        Caso_Linea{"NETWORK 2 //x", true}, Caso_Linea{"network 2", true},
        Caso_Linea{"ld i0.0", true}, Caso_Linea{"LD\tI0.0", true}, Caso_Linea{"\tLD I0.0", true},
        Caso_Linea{"  LD I0.0", true}, Caso_Linea{"LD//x", true}, Caso_Linea{"/I VW0, VW2", true},
        Caso_Linea{"/", true}, Caso_Linea{"XYZ", true}, Caso_Linea{" BEGIN", true}));

TEST_F(LineNumbers, TheBlanksInFrontOfTheTextDoNotCount) {
  progetto.Scrivi_Main("  BEGIN\r\nNOT\r\n");
  EXPECT_EQ(Numerazione(progetto).Numeri(0), (std::vector<int>{niente, 0, niente}));
  ASSERT_TRUE(Salva_E_Leggi());
  EXPECT_EQ(progetto.Righe_Src[0].Istr, "NOT");
}

TEST_F(LineNumbers, ABlockWordWithoutABlankKeepsWhatItsRowHeld) {
  ASSERT_TRUE(Apri(File_Main({"NETWORK 1", "LD I0.0", "NOT"})));
  progetto.Scrivi_Main("NETWORK 1\r\nSBR0\r\nNOT\r\n");
  EXPECT_EQ(Numerazione(progetto).Numeri(0), (std::vector<int>{0, 1, 2, niente}));
  ASSERT_TRUE(Salva_E_Leggi());
  EXPECT_EQ(progetto.Righe_Src[1].Istr, "LD");
  EXPECT_EQ(progetto.Righe_Src[2].Istr, "NOT");
}

// ---- projects -----------------------------------------------------------------------------------

TEST_F(LineNumbers, TheProceduresFollowTheMain) {
  progetto.Scrivi_Main("//titolo\r\nNETWORK 1\r\n\r\nLD I0.0");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("NOT\r\n//\r\n");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("NOP\r\nNOP");
  const Numerazione numerazione(progetto);
  EXPECT_EQ(numerazione.Numeri(0), (std::vector<int>{niente, 0, niente, 1}));
  EXPECT_EQ(numerazione.Numeri(1), (std::vector<int>{4, niente, niente}));  // MEND 2, SBR0 3
  EXPECT_EQ(numerazione.Numeri(2), (std::vector<int>{7, 8}));               // RET 5, SBR1 6
  EXPECT_TRUE(numerazione.Numeri(3).empty());
  EXPECT_TRUE(numerazione.Numeri(-1).empty());
  ASSERT_TRUE(Salva_E_Leggi());
  EXPECT_EQ(plc.NRighe, 9);
}

TEST_F(LineNumbers, AnEmptyProjectHasItsMendOnly) {
  const Numerazione numerazione(progetto);
  EXPECT_EQ(numerazione.Numeri(0), (std::vector<int>{niente}));
}

TEST_F(LineNumbers, AgreeWithTheRowsOfEveryExample) {
  int esempi = 0;
  for (const auto& file : std::filesystem::directory_iterator(TAVORNO_EXAMPLES)) {
    if (file.path().extension() != ".AWL") continue;
    SCOPED_TRACE(file.path().filename());
    progetto.File_Progetto = file.path().string();
    progetto.LeggiTxt();
    ASSERT_EQ(progetto.Err_Lettura, 0);
    Confronta_Con_Le_Righe();
    ++esempi;
  }
  EXPECT_GE(esempi, 10);
}

}  // namespace tavorno::prova
