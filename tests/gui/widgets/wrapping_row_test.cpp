// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/wrapping_row.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavorno {
namespace {

struct Riga : testing::Test {
  QWidget finestra;
  Riga_A_Capo* riga = new Riga_A_Capo;
  QAction uno{QStringLiteral("Una scansione")}, due{QStringLiteral("Presente")};
  QToolButton* tasti[2];
  QLineEdit* campo = new QLineEdit;
  QLabel* detto = new QLabel;

  Riga() {
    auto* posti = new QVBoxLayout(&finestra);
    posti->setContentsMargins(0, 0, 0, 0);
    posti->addWidget(riga);
    posti->addStretch();
    tasti[0] = riga->Metti(&uno);
    riga->Stacco();
    tasti[1] = riga->Metti(&due);
    riga->Metti(campo, true);
    riga->Metti(detto);
    Larga(900);
    finestra.show();
    QCoreApplication::processEvents();
  }
  void Larga(int pixel) {
    finestra.resize(pixel, 300);
    QCoreApplication::processEvents();
  }
  void Tutto_Dentro() {
    for (const QWidget* parte : std::initializer_list<QWidget*>{tasti[0], tasti[1], campo, detto}) {
      EXPECT_TRUE(riga->rect().contains(parte->geometry()))
          << parte->x() << ',' << parte->y() << ' ' << parte->width() << 'x' << parte->height();
      EXPECT_GE(parte->width(), parte->minimumSizeHint().width());
    }
  }
};

TEST_F(Riga, OneLineWhereThereIsRoomAndTheFieldTakesWhatIsLeft) {
  Tutto_Dentro();
  EXPECT_EQ(tasti[0]->y(), campo->y());
  EXPECT_GT(tasti[1]->x() - tasti[0]->geometry().right(), 8) << "the gap";
  EXPECT_GT(campo->width(), 500);
  EXPECT_GE(detto->geometry().right(), 890);
}

TEST_F(Riga, MoreLinesWhereThereIsNone) {
  const int una = riga->height();
  Larga(180);
  Tutto_Dentro();
  EXPECT_GT(campo->y(), tasti[0]->y());
  EXPECT_GT(riga->height(), una);
  Larga(900);
  EXPECT_EQ(riga->height(), una);
}

TEST_F(Riga, ALongerTextGetsItsRoom) {
  detto->setText(QString(60, 'm'));
  QCoreApplication::processEvents();
  Tutto_Dentro();
  const int due_linee = riga->height();
  detto->hide();
  QCoreApplication::processEvents();
  EXPECT_LT(riga->height(), due_linee);
}

}  // namespace
}  // namespace tavorno
