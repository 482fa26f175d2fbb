// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

namespace tavorno {
namespace {

class IconFile : public ::testing::TestWithParam<const char*> {};

TEST_P(IconFile, IsDrawnAtTheSizeOfAToolBar) {
  const QString file = QStringLiteral(":/icons/%1.svg").arg(GetParam());
  ASSERT_TRUE(QSvgRenderer(file).isValid());
  QImage immagine(22, 22, QImage::Format_ARGB32);
  immagine.fill(Qt::transparent);
  QPainter pennello(&immagine);
  QIcon(file).paint(&pennello, immagine.rect());
  pennello.end();
  int dipinti = 0;
  for (int y = 0; y < 22; ++y)
    for (int x = 0; x < 22; ++x) dipinti += immagine.pixelColor(x, y).alpha() > 128 ? 1 : 0;
  EXPECT_GT(dipinti, 40);
}

INSTANTIATE_TEST_SUITE_P(All, IconFile,
                         ::testing::Values("New", "Open", "Save", "Edit", "Run", "Stop", "Step",
                                           "Ciclo", "Cont", "SetPLC", "SetIst", "Debug", "Centra",
                                           "Info", "Termina", "Compila", "Carica", "Stampa", "Back",
                                           "Forward", "Refresh", "Home", "Search", "StopLoad",
                                           "Esci", "tavorno"));

int avvisi = 0;  // what the window library complained of while it read a picture

// A feature that the window library's subset of SVG lacks is skipped with no more than a warning.
TEST(Pictures, AreReadWithoutAWarning) {
  int letti = 0;
  for (const char* cartella : {":/icons", ":/panel"}) {
    QDirIterator file(QString::fromLatin1(cartella), {"*.svg"}, QDir::Files);
    while (file.hasNext()) {
      avvisi = 0;
      const auto prima = qInstallMessageHandler(
          [](QtMsgType, const QMessageLogContext&, const QString&) { ++avvisi; });
      const bool valido = QSvgRenderer(file.next()).isValid();
      qInstallMessageHandler(prima);
      EXPECT_TRUE(valido) << qPrintable(file.filePath());
      EXPECT_EQ(avvisi, 0) << qPrintable(file.filePath());
      ++letti;
    }
  }
  EXPECT_GE(letti, 30);
}

struct Gruppo {
  const char* File;
  const char* Nome;
  QSizeF Misura;  // empty: any
};
class PictureGroup : public ::testing::TestWithParam<Gruppo> {};

// A group that does not fill its cell would be stretched when it is drawn.
TEST_P(PictureGroup, HasTheSizeItIsDrawnIn) {
  const QSvgRenderer disegni(QStringLiteral(":/panel/%1.svg").arg(GetParam().File));
  ASSERT_TRUE(disegni.isValid());
  ASSERT_TRUE(disegni.elementExists(GetParam().Nome));
  if (GetParam().Misura.isEmpty()) return;
  const QSizeF misura = disegni.boundsOnElement(GetParam().Nome).size();
  EXPECT_NEAR(misura.width(), GetParam().Misura.width(), 0.01);
  EXPECT_NEAR(misura.height(), GetParam().Misura.height(), 0.01);
}

constexpr QSizeF cella_led(24, 24), cella_leva(26, 36), cella_tasto(24, 11);

INSTANTIATE_TEST_SUITE_P(
    All, PictureGroup,
    ::testing::Values(Gruppo{"led", "ledSV", cella_led}, Gruppo{"led", "ledSG", cella_led},
                      Gruppo{"led", "ledSR", cella_led}, Gruppo{"led", "ledV", cella_led},
                      Gruppo{"led", "ledG", cella_led}, Gruppo{"led", "ledR", cella_led},
                      Gruppo{"led", "ledV2", cella_led}, Gruppo{"led", "ledG2", cella_led},
                      Gruppo{"led", "ledR2", cella_led}, Gruppo{"switch", "imgPOFF", cella_leva},
                      Gruppo{"switch", "imgPON", cella_leva}, Gruppo{"switch", "imgP", cella_leva},
                      Gruppo{"thumbwheel", "ruota", QSizeF(34, 48)},
                      Gruppo{"thumbwheel", "su", cella_tasto},
                      Gruppo{"thumbwheel", "su_premuto", cella_tasto},
                      Gruppo{"thumbwheel", "giu", cella_tasto},
                      Gruppo{"thumbwheel", "giu_premuto", cella_tasto},
                      Gruppo{"cpu", "corpo", QSizeF()}, Gruppo{"cpu", "pic1", QSizeF(393, 75)},
                      Gruppo{"cpu", "pic2", QSizeF(399, 77)}, Gruppo{"cpu", "imgN", QSizeF()}));

}  // namespace
}  // namespace tavorno
