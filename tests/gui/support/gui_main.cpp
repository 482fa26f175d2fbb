// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "assets/resources.h"
#include "widgets/clear_style.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // What a user has chosen is neither looked at nor touched.
  const QTemporaryDir preferenze;
  if (!preferenze.isValid()) return 1;
  for (const QSettings::Format formato : {QSettings::NativeFormat, QSettings::IniFormat})
    QSettings::setPath(formato, QSettings::UserScope, preferenze.path());
  QApplication applicazione(argc, argv);
  QApplication::setStyle(new tavorno::Stile_Chiaro);
  QApplication::setQuitOnLastWindowClosed(false);
  tavorno::Apri_Risorse();
  return RUN_ALL_TESTS();
}
