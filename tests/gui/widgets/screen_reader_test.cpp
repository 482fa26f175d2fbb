// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/screen_reader.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QVBoxLayout>

#include "widgets/text.h"

namespace tavorno {
namespace {

std::string Letto_Di(QWidget& widget) {
  return Utf8(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name));
}

TEST(Reader, AValueIsReadBehindItsTitle) {
  QLabel valore;
  Intitola(valore, QStringLiteral("VW3:"));
  valore.setText(QStringLiteral("12"));
  EXPECT_EQ(Letto_Di(valore), "VW3: 12");
  Intitola(valore, QStringLiteral("VW4:"));
  EXPECT_EQ(Letto_Di(valore), "VW4: 12");
}

TEST(Reader, AValueThatWasReadBeforeItHadATitleToo) {
  QLabel valore(QStringLiteral("0"));
  EXPECT_EQ(Letto_Di(valore), "0");
  Intitola(valore, QStringLiteral("SMB28:"));
  EXPECT_EQ(Letto_Di(valore), "SMB28: 0");
}

TEST(Reader, APlainWidgetIsAWindowWhileItStandsByItself) {
  QWidget fuori;
  auto* dentro = new QWidget;
  const auto ruolo = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
  };
  EXPECT_EQ(ruolo(*dentro), QAccessible::Window);
  auto* colonna = new QVBoxLayout(&fuori);
  colonna->addWidget(dentro);
  EXPECT_EQ(ruolo(*dentro), QAccessible::Client);
  EXPECT_EQ(ruolo(fuori), QAccessible::Window);
}

}  // namespace
}  // namespace tavorno
