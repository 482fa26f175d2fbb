// SPDX-License-Identifier: GPL-3.0-or-later
// What a dot joins is one electrical node, and a node has one colour, whatever feeds it.
#include <gtest/gtest.h>

#include <QImage>

#include "plants/exercises.h"
#include "plants/host/picture_widget.h"

namespace tavorno {
namespace {

struct Nodo {
  int Impianto;
  const char* Nome;
  std::vector<QPoint> Punti;    ///< of its wires, twips
  std::vector<int> Alimentato;  ///< positions of the outputs that feed it
};

const Nodo nodi[] = {
    {0, "below the contactor", {{1260, 1100}, {1440, 1100}, {1620, 1100}, {1260, 1530}}, {1}},
    {1,
     "L1",
     {{1200, 1300}, {1700, 1500}, {2220, 1200}, {2220, 1700}, {2220, 2200}, {2220, 1500}},
     {1, 2}},
    {1, "L2", {{1020, 1300}, {1700, 1590}, {2400, 1300}, {2400, 1750}, {2400, 1590}}, {1, 2}},
    {1, "L3", {{840, 1300}, {1700, 1680}, {2580, 1300}, {2580, 1780}, {2580, 1680}}, {1, 2}},
    {2, "U1", {{780, 1300}, {780, 1900}}, {1}},
    {2, "W2", {{1500, 2115}, {1980, 1700}, {1980, 2115}, {2700, 2115}, {3180, 1700}}, {2, 3}},
    {2, "U2", {{1500, 2190}, {2160, 1700}, {2160, 2190}, {2700, 2190}, {3360, 1700}}, {2, 3}},
    {2, "V2", {{1500, 2265}, {2340, 1700}, {2340, 2265}, {2700, 2265}, {3540, 1700}}, {2, 3}},
    {3, "U1", {{720, 1300}, {720, 1900}}, {1}},
    {3, "W2", {{1400, 2175}, {1740, 1700}, {1740, 2175}, {2500, 2175}, {2760, 1700}}, {2, 3}},
    {3, "U2", {{1400, 2250}, {1920, 1700}, {1920, 2250}, {2500, 2250}, {2940, 1700}}, {2, 3}},
    {3, "V2", {{1400, 2325}, {2100, 1700}, {2100, 2325}, {2500, 2325}, {3120, 1700}}, {2, 3}},
    {3, "second motor", {{3780, 1300}, {3780, 1900}, {4140, 1300}, {4140, 1900}}, {4}},
    {9,
     "L1",
     {{2340, 800}, {3000, 840}, {4200, 780}, {4200, 840}, {4500, 840}, {5000, 840}},
     {3, 4}},
    {9,
     "L2",
     {{2520, 850}, {3000, 950}, {4020, 800}, {4020, 950}, {4500, 950}, {5000, 950}},
     {3, 4}},
    {9,
     "L3",
     {{2700, 850}, {3000, 1060}, {3840, 900}, {3840, 1060}, {4500, 1060}, {5000, 1060}},
     {3, 4}},
};

struct Nodi : ::testing::TestWithParam<Nodo> {
  Orologio orologio;
  Plc plc{orologio};
  std::unique_ptr<Impianto> impianto =
      Tabella_Esercizi()[static_cast<std::size_t>(GetParam().Impianto)].Crea(plc);
  Quadro quadro{*impianto,
                QStringLiteral(":/plants/US-%1.svg").arg(GetParam().Impianto, 2, 10, QChar('0'))};

  void Verifica(const std::string& stato, bool in_tensione) {
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    for (const QPoint& punto : GetParam().Punti) {
      const QColor colore = immagine.pixelColor(punto / 5);
      const bool rosso = colore.red() > 180 && colore.green() < 90;
      const bool grigio = colore.saturation() < 40 && colore.lightness() < 215;
      EXPECT_TRUE(in_tensione ? rosso : grigio)
          << GetParam().Nome << " at " << punto.x() << "," << punto.y() << " is "
          << colore.name().toStdString() << " with " << stato;
    }
  }
};

TEST_P(Nodi, HaveOneColourWhateverFeedsThem) {
  quadro.resize(quadro.sizeHint() * 2);
  for (unsigned quali = 0; quali < 16; ++quali) {
    std::string uscite(16, '0');
    for (unsigned n = 0; n < 4; ++n) uscite[n] = quali >> n & 1U ? '1' : '0';
    impianto->Stato_Q(uscite);
    bool in_tensione = false;
    for (const int posizione : GetParam().Alimentato)
      in_tensione |= uscite[static_cast<std::size_t>(posizione - 1)] == '1';
    Verifica(uscite, in_tensione);
  }
}

INSTANTIATE_TEST_SUITE_P(Figure, Nodi, ::testing::ValuesIn(nodi), [](const auto& uno) {
  return "US" + std::to_string(uno.param.Impianto) + "_" + std::to_string(uno.index);
});

/// A contact that no wire of the picture leads to has leads of its own.
struct Contatto {
  int Impianto;
  const char* Rele;   ///< what is clicked to trip it
  QPoint Arriva, Va;  ///< of its lead from the supply and of the one to its input, twips
  QPoint Dentro;      ///< of the ground beside its blade
};

const Contatto contatti[] = {
    {8, "imgP1", {2365, 2465}, {2365, 2696}, {2270, 2520}},
    {10, "imgM(0)", {725, 1092}, {725, 1298}, {630, 1130}},
    {10, "imgM(1)", {725, 2112}, {725, 2318}, {630, 2150}},
    {10, "imgM(2)", {4690, 3990}, {4690, 4196}, {4595, 4028}},
    {10, "imgM(3)", {4875, 413}, {4875, 619}, {4780, 451}},
    {11, "imgMI", {6480, 755}, {6480, 1045}, {6340, 810}},
    {11, "imgMU", {8280, 755}, {8280, 1045}, {8140, 810}},
    {13, "imgM(0)", {2100, 1940}, {2100, 2171}, {1990, 1990}},
    {13, "imgM(1)", {5235, 260}, {5235, 491}, {5125, 310}},
};

struct Contatti : ::testing::TestWithParam<Contatto> {};

TEST_P(Contatti, ShowWhatReachesTheInputAndFromAfarThatTheyAreOpen) {
  const Contatto& contatto = GetParam();
  Orologio orologio;
  Plc plc{orologio};
  const auto impianto = Tabella_Esercizi()[static_cast<std::size_t>(contatto.Impianto)].Crea(plc);
  Quadro quadro{*impianto,
                QStringLiteral(":/plants/US-%1.svg").arg(contatto.Impianto, 2, 10, QChar('0'))};
  quadro.resize(quadro.sizeHint() * 2);
  const auto colore = [&quadro](const QPoint& punto) {
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    return immagine.pixelColor(punto / 5);
  };
  const auto rosso = [&](const QPoint& punto) {
    const QColor qui = colore(punto);
    return qui.red() > 180 && qui.green() < 110;
  };
  EXPECT_TRUE(rosso(contatto.Arriva));
  EXPECT_TRUE(rosso(contatto.Va));
  EXPECT_LT(colore(contatto.Dentro).saturation(), 60);
  impianto->Clic(contatto.Rele);
  // The output of the motor falls, and with it what its own picture tells of the relay.
  impianto->Stato_Q("1111111111111111");
  impianto->Stato_Q("0000000000000000");
  EXPECT_TRUE(rosso(contatto.Arriva));
  EXPECT_LT(colore(contatto.Va).saturation(), 60);
  EXPECT_GT(colore(contatto.Dentro).saturation(), 60);
}

INSTANTIATE_TEST_SUITE_P(Figure, Contatti, ::testing::ValuesIn(contatti), [](const auto& uno) {
  return "US" + std::to_string(uno.param.Impianto) + "_" + std::to_string(uno.index);
});

TEST(Floats, LieInTheirTankWhenItIsEmpty) {
  const struct {
    int Impianto;
    QRect Sotto;  ///< below the bottom, twips
  } vasche[] = {{10, {4650, 3030, 100, 60}}, {13, {4850, 2730, 90, 60}}};
  for (const auto& [indice, sotto] : vasche) {
    Orologio orologio;
    Plc plc{orologio};
    const auto impianto = Tabella_Esercizi()[static_cast<std::size_t>(indice)].Crea(plc);
    Quadro quadro{*impianto, QStringLiteral(":/plants/US-%1.svg").arg(indice, 2, 10, QChar('0'))};
    quadro.resize(quadro.sizeHint() * 2);
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    for (int x = sotto.left(); x < sotto.right(); x += 5)
      for (int y = sotto.top(); y < sotto.bottom(); y += 5)
        ASSERT_LT(immagine.pixelColor(x / 5, y / 5).saturation(), 40) << indice << ' ' << x;
  }
}

}  // namespace
}  // namespace tavorno
