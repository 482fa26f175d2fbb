// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>

#include "assets/resources.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QApplication applicazione(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);
  tavorno::Apri_Risorse();
  return RUN_ALL_TESTS();
}
