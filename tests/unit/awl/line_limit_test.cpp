// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of lines that the columns of a project have no room for.
#include "awl/line_limit.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "awl/line_splitter.h"
#include "awl/writer.h"

namespace tavorno::prova {

/// What is too long stands between "[" and "]".
class TooLong : public testing::TestWithParam<const char*> {};

TEST_P(TooLong, IsTheEndOfTheLine) {
  std::string linea = GetParam();
  std::vector<Trovato> attese;
  const std::size_t da = linea.find('[');
  if (da != std::string::npos) {
    linea.erase(da, 1);
    const std::size_t a = linea.find(']');
    linea.erase(a, 1);
    attese.push_back({1, static_cast<int>(da), static_cast<int>(a - da)});
  }
  EXPECT_EQ(Eccedenze("//\r\n" + linea + "\r\nNOT"), attese);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, TooLong,
    testing::Values("LD I0.0 //un commento che va ben oltre la colonna", "MOVD VD100, VD100",
                    "MOVD VD10000, VD1000[0]", "MOVD\tVD10000,VD1000[0]  //x",
                    "MOVD         VD10000,        VD1000[0]", "XYZXYZX[X] I0.0",
                    "ABCDEFGHIJKLMNOPQRSTUV[WX]", "NETWORK 12345678 //titolo",
                    "NETWORK 12345678[9] //titolo", "NETWORK 123456789123456789",
                    "//un commento che va ben oltre la colonna di una istruzione",
                    "TITLE=un titolo che va ben oltre la colonna di una istruzione",
                    "SBR0 una procedura che ha un nome molto lungo",
                    "A B C D E F G H I J K L M N O", "  MOVD VD10000, VD10000",
                    "MOVD ,,,,,,VD10000000000000000000000"));

TEST(TooLongLines, AreThoseThatCannotBeReadAgain) {
  constexpr std::string_view alfabeto = "AV01.,, \t/X";
  std::mt19937 caso(7);
  std::uniform_int_distribution<std::size_t> lettera(0, alfabeto.size() - 1);
  int lunghe = 0;
  for (int giro = 0; giro < 20000; ++giro) {
    std::string linea = "A";
    for (int i = 0; i < 25; ++i) linea += alfabeto[lettera(caso)];
    std::string motivo;
    try {
      std::string vista = linea;
      std::ranges::replace(vista, '\t', ' ');
      const std::string salvata = Norm_Riga(vista);
      Righe_Lette lettore;
      lettore.Debug_Line(salvata);
    } catch (const Riga_Rifiutata& rifiuto) {
      motivo = rifiuto.what();
    }
    const bool colonna = motivo.find("caratteri ammessi") != std::string::npos;
    EXPECT_EQ(!Eccedenze(linea).empty(), colonna) << linea << ": " << motivo;
    lunghe += colonna ? 1 : 0;
  }
  EXPECT_GT(lunghe, 100);
}

}  // namespace tavorno::prova
