// SPDX-License-Identifier: GPL-3.0-or-later
// Cells as somebody reads and types them, and set by hand.
#include "trace/cell_format.h"

#include "recorder/force.h"
#include "run_bed.h"

namespace tavorno::prova {
namespace {

using enum Formato_Cella;

struct Scritta {
  const char* Cella;
  double Valore;
  const char *Segno, *Decimale, *Esadecimale, *Binario;
};
class Cell_Format : public ::testing::TestWithParam<Scritta> {};

TEST_P(Cell_Format, IsWrittenAndReadBack) {
  const Indirizzo cella = *Leggi_Indirizzo(GetParam().Cella);
  for (const auto& [formato, testo] : {std::pair{Con_Segno, GetParam().Segno},
                                       {Decimale, GetParam().Decimale},
                                       {Esadecimale, GetParam().Esadecimale},
                                       {Binario, GetParam().Binario}}) {
    EXPECT_EQ(Testo_Cella(cella, GetParam().Valore, formato), testo);
    EXPECT_EQ(Leggi_Valore(cella, testo, formato), GetParam().Valore) << testo;
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, Cell_Format,
    ::testing::Values(Scritta{"I0.0", 1, "1", "1", "1", "1"}, Scritta{"T37", 0, "0", "0", "0", "0"},
                      Scritta{"MB0", 200, "200", "200", "16#C8", "2#1100_1000"},
                      Scritta{"VW0", -5, "-5", "65531", "16#FFFB", "2#1111_1111_1111_1011"},
                      Scritta{"VW0", 300, "300", "300", "16#012C", "2#0000_0001_0010_1100"},
                      Scritta{"T37.Val", -32768, "-32768", "32768", "16#8000",
                              "2#1000_0000_0000_0000"},
                      Scritta{"VD1", -1, "-1", "4294967295", "16#FFFFFFFF",
                              "2#1111_1111_1111_1111_1111_1111_1111_1111"},
                      Scritta{"AC0", 2.5, "2,5", "2,5", "2,5", "2,5"}));

TEST(Cell_Format_Input, TakesOtherBasesAndRefusesTheRest) {
  const Indirizzo parola = *Leggi_Indirizzo("VW0");
  EXPECT_EQ(Leggi_Valore(parola, " 16#ff ", Con_Segno), 255);
  EXPECT_EQ(Leggi_Valore(parola, "ff", Esadecimale), 255);
  EXPECT_EQ(Leggi_Valore(parola, "101", Binario), 5);
  EXPECT_EQ(Leggi_Valore(parola, "-101", Binario), -101);
  EXPECT_EQ(Leggi_Valore(parola, "+7", Con_Segno), 7);
  for (const char* testo : {"", " ", "due", "12x", "16#", "16#G", "2#12", "1e999", "--1"})
    EXPECT_FALSE(Leggi_Valore(parola, testo, Con_Segno)) << testo;
}

// ---- setting by hand ----------------------------------------------------------------------------

class Force : public Banco_Tracce {};

TEST_F(Force, IsAllowedWhereTheCpuStands) {
  Carica({"LD SM0.0", "= Q0.0"});
  EXPECT_TRUE(Si_Puo_Forzare(plc));
  std::string errore;
  const Iscrizione mani = plc.Hook.Ascolta_Cedi([&] {
    EXPECT_FALSE(Si_Puo_Forzare(plc));
    errore = Forza(plc, *Leggi_Indirizzo("VW0"), 5);
    plc.mnuPlcStop();
  });
  plc.mnuPlcRun();
  EXPECT_THAT(errore, ::testing::HasSubstr("Mentre il programma gira"));
  EXPECT_EQ(plc.Mem_VW[0], 0);
  plc.mnuPlcStep();
  plc.mnuPlcRun();
  EXPECT_TRUE(Si_Puo_Forzare(plc));
  EXPECT_EQ(Forza(plc, *Leggi_Indirizzo("VW0"), 5), "");
  EXPECT_EQ(plc.Mem_VW[0], 5);
  EXPECT_EQ(Forza(plc, *Leggi_Indirizzo("I0.2"), 1), "");
  EXPECT_EQ(plc.SI[0].Stato_I(), "00100000");
  EXPECT_EQ(Forza(plc, *Leggi_Indirizzo("VW0"), 40000), "Il valore non sta in VW0.");
  EXPECT_EQ(plc.Mem_VW[0], 5);
}

TEST_F(Force, IsAllowedAtAStop) {
  Carica({"LD SM0.0", "= Q0.0"});
  plc.mnuPlcCiclo();
  plc.Scelte.chkStop = true;
  plc.Scelte.txtStop = 2;
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PC, 2);
  EXPECT_TRUE(Si_Puo_Forzare(plc));
}

}  // namespace
}  // namespace tavorno::prova
