// SPDX-License-Identifier: GPL-3.0-or-later
// The present picture as a file: what is seen is what is saved.
#include <QAction>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <array>

#include "host/host_bed.h"

namespace tavorno {
namespace {

/// How far two pictures of one size are apart: the mean difference of a channel.
double Differenza(const QImage& una, const QImage& altra) {
  double somma = 0;
  for (int y = 0; y < una.height(); ++y) {
    for (int x = 0; x < una.width(); ++x) {
      const QColor a = una.pixelColor(x, y);
      const QColor b = altra.pixelColor(x, y);
      somma += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
               std::abs(a.blue() - b.blue());
    }
  }
  return somma / (3.0 * una.width() * una.height());
}

/// The mean colour of a part of a picture; where its edges fall between points makes no difference.
std::array<double, 3> Colore_Medio(const QImage& immagine, const QRect& parte) {
  std::array<double, 3> somma{};
  for (int y = parte.top(); y <= parte.bottom(); ++y) {
    for (int x = parte.left(); x <= parte.right(); ++x) {
      const QColor colore = immagine.pixelColor(x, y);
      somma[0] += colore.red();
      somma[1] += colore.green();
      somma[2] += colore.blue();
    }
  }
  for (double& canale : somma) canale /= parte.width() * parte.height();
  return somma;
}

struct Esportata : ::testing::TestWithParam<int> {};

TEST_P(Esportata, ThePictureSavedIsThePictureSeen) {
  Banco_Host banco{GetParam()};
  Quadro& quadro = banco.Disegno();
  quadro.Riduci_Animazioni(true);
  quadro.resize(quadro.sizeHint());
  const auto vista = [&] { return quadro.grab().toImage().convertToFormat(QImage::Format_RGB32); };
  banco.plc.SQ[0].Stato_Q("11010000");
  banco.orologio.Avanza(3000);
  QImage schermo = vista();
  schermo.setDevicePixelRatio(1);
  const QImage salvata = quadro.Come_Immagine(1);
  ASSERT_EQ(salvata.size(), schermo.size());
  const double uguali = Differenza(salvata, schermo);
  EXPECT_LT(uguali, 3.5);
  for (const Figura& figura : banco.Macchina().Disegno) {
    const QRect posto = quadro.Posto_Mostrato(figura).toAlignedRect().intersected(quadro.rect());
    if (!figura.Visible() || posto.isEmpty()) continue;
    const auto salvato = Colore_Medio(salvata, posto);
    const auto visto = Colore_Medio(schermo, posto);
    for (std::size_t canale = 0; canale < 3; ++canale)
      EXPECT_NEAR(salvato[canale], visto[canale], 14) << figura.Nome;
  }
  // A picture of the same plant in another state is further away.
  banco.plc.SQ[0].Stato_Q("00000000");
  QImage altro = vista();
  altro.setDevicePixelRatio(1);
  EXPECT_GT(Differenza(salvata, altro), 0);
}

INSTANTIATE_TEST_SUITE_P(Esercizi, Esportata, ::testing::ValuesIn(Con_Impianto()));

TEST(Export, TheMenuSavesVectorsAndPoints) {
  Banco_Host banco{13};
  Quadro& quadro = banco.Disegno();
  const QTemporaryDir cartella;
  for (const QString tipo : {"svg", "png"}) {
    // An extension of its own is added to a name without.
    quadro.Chiedi_File = [&](const QString& chiesto) {
      EXPECT_EQ(chiesto, tipo);
      return cartella.filePath("figura");
    };
    const QString voce = tipo == u"svg" ? "mnuSalvaSvg" : "mnuSalvaPng";
    auto* azione = quadro.findChild<QAction*>(voce);
    ASSERT_NE(azione, nullptr);
    azione->trigger();
    const QString file = cartella.filePath("figura." + tipo);
    ASSERT_TRUE(QFile::exists(file)) << file.toStdString();
    if (tipo == u"svg")
      EXPECT_TRUE(QSvgRenderer(file).isValid());
    else
      EXPECT_EQ(QImage(file).width(), quadro.sizeHint().width() * 2);
  }
}

TEST(Export, WithoutAFileNothingIsSaved) {
  Banco_Host banco{0};
  const QTemporaryDir cartella;
  banco.Disegno().Chiedi_File = [](const QString&) { return QString(); };
  banco.Disegno().findChild<QAction*>("mnuSalvaSvg")->trigger();
  EXPECT_TRUE(QDir(cartella.path()).isEmpty());
}

}  // namespace
}  // namespace tavorno
