// SPDX-License-Identifier: GPL-3.0-or-later
// What is drawn keeps clear of what is drawn beside it, on the screen, in icons and on paper.
#include "ladder/ui/ladder_export.h"
#include "ladder/ui/ladder_painter.h"
#include "ladder_bed.h"
#include "support/desktop.h"

namespace tavorno::prova {
namespace {

class Aspetto_Scala : public Banco_Scala {
 public:
  /// Texts of a network that run into one another.
  void Nessuna_Sopra_Un_Altra(int rete) const {
    const Rete_Foglio& questa = Vista().Foglio().Reti()[static_cast<std::size_t>(rete)];
    const auto posto = [&](std::size_t n) {
      // Lines of writing may be set close.
      return Posto_Scritta(questa, Vista().Stato(rete), n).adjusted(0, 4, 0, -4);
    };
    for (std::size_t n = 0; n < questa.Scritte.size(); ++n) {
      EXPECT_GE(posto(n).left(), margine_forme) << Utf8(questa.Scritte[n].Testo) << ": on the rail";
      for (std::size_t k = 0; k < n; ++k)
        EXPECT_FALSE(posto(n).intersects(posto(k)))
            << Utf8(questa.Scritte[k].Testo) << " and " << Utf8(questa.Scritte[n].Testo);
    }
  }
};

TEST_F(Aspetto_Scala, LongNumbersKeepToTheirSymbols) {
  Apri(
      "NETWORK 1\nLD SM0.0\nMOVW -12345, VW98\nMOVD +255, VD98\n*D -30000, VD98\n"
      "*D +200, VD98\nMOVD VD98, VD96\n"
      "NETWORK 2\nLDW<= VW98, +30000\nAW<= VW98, +30000\nAD<= VD98, VD96\nAD<= VD98, VD96\n"
      "= Q0.2\n",
      false);
  Compila();
  Avvia();
  Scansione();
  ASSERT_EQ(seduta.plc.Mem_VD[98], -1530000000);
  for (const int rete : {0, 1}) {
    Vista().Scegli(rete, Vista().Foglio().Reti()[static_cast<std::size_t>(rete)].Simboli() - 1);
    ASSERT_TRUE(Vista().Stato(rete).Valori.contains("-1530000000"));
    Nessuna_Sopra_Un_Altra(rete);
  }
}

TEST_F(Aspetto_Scala, TheFrameOfTheChosenSymbolGoesAroundItsNumber) {
  Apri("NETWORK 1\nLDW<= VW98, +30000\nAW<= VW96, +30000\n= Q0.2\n", false);
  Compila();
  Avvia();
  seduta.plc.Mem_VW[96] = -12345;
  Scansione();
  const Rete_Foglio& rete = Vista().Foglio().Reti()[0];
  const Stato_Rete& stato = Vista().Stato(0);
  const auto quale = static_cast<std::size_t>(stato.Valori.indexOf("-12345"));
  ASSERT_LT(quale, rete.Scritte.size());
  constexpr int finezza = 3;
  QImage immagine(900 * finezza, 200 * finezza, QImage::Format_RGB32);
  immagine.fill(Qt::white);
  QPainter pittore(&immagine);
  pittore.scale(finezza, finezza);
  Dipingi_Rete(pittore, rete, stato, {.Scelto = 1, .Fino = 1}, 900, colori::Carta);
  pittore.end();
  const QRectF scritta =
      Posto_Scritta(rete, stato, quale).translated(Foglio_Scala::margine, rete.Y_Disegno - rete.Y);
  const QRgb cornice = colori::Scala_Cursore.Di(colori::Carta).rgb();
  int dentro = 0, in_tutto = 0;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      if (immagine.pixel(x, y) != cornice) continue;
      ++in_tutto;
      dentro += scritta.contains(QPointF(x, y) / finezza) ? 1 : 0;
    }
  }
  EXPECT_GT(in_tutto, 100);
  EXPECT_EQ(dentro, 0);
}

TEST_F(Aspetto_Scala, WhatIsSavedIsTheSameFromADarkDesktop) {
  Apri(
      "NETWORK 1\nLD I0.0\nO I0.1\nO I0.2\nLPS\nA I0.3\n= Q0.0\nLRD\nA I0.4\n= Q0.1\nLPP\n"
      "A I0.5\n= Q0.2\n");
  ASSERT_FALSE(Vista().Foglio().Reti()[0].Forme.Giunti.empty());
  const QImage chiara = Immagine_Scala(Vista().Foglio(), 1);
  const Scrivania scrivania;
  scrivania.Scura();
  EXPECT_EQ(Immagine_Scala(Vista().Foglio(), 1), chiara);
}

TEST_F(Aspetto_Scala, TheLettersOfAnIconKeepClearOfItsStrokes) {
  constexpr int finezza = 3, abbastanza = 5;
  int quanti = 0;
  for (const Simbolo_Barra& simbolo : Simboli_Barra()) {
    const std::string istr = Utf8(QString::fromUtf8(simbolo.Istr).trimmed());
    if (Simbolo_Di(istr).Segno.size() < 2) continue;
    ++quanti;
    const QImage icona = Icona_Simbolo(istr).pixmap(QSize(40, 26), finezza).toImage();
    ASSERT_EQ(icona.width(), 40 * finezza);
    // Above the wire, where the letters are.
    std::vector<bool> inchiostro;
    for (int x = 0; x < icona.width(); ++x) {
      bool c_e = false;
      for (int y = 9 * finezza; y < 12 * finezza; ++y) c_e |= qAlpha(icona.pixel(x, y)) > 60;
      inchiostro.push_back(c_e);
    }
    const auto vuote = [&](auto da, auto fine) {
      const auto tratto = std::find(da, fine, true);
      const auto dopo = std::find(tratto, fine, false);
      return std::find(dopo, fine, true) - dopo;
    };
    EXPECT_GE(vuote(inchiostro.begin(), inchiostro.end()), abbastanza) << istr;
    EXPECT_GE(vuote(inchiostro.rbegin(), inchiostro.rend()), abbastanza) << istr;
  }
  EXPECT_EQ(quanti, 5);
}

}  // namespace
}  // namespace tavorno::prova
