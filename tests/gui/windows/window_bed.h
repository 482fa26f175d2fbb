// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QTest>
#include <QWidget>
#include <stdexcept>
#include <string>

#include "plc/plc.h"

namespace tavorno {

/// A CPU on a virtual clock, whose windows a test makes itself.
class Banco_Finestre : public ::testing::Test {
 public:
  Orologio orologio;
  Plc plc{orologio};
};

/// The control of that name; a test stops with its name when there is none.
template <class T>
T& Trova(const QWidget& finestra, const char* nome) {
  T* trovato = finestra.findChild<T*>(QLatin1String(nome));
  if (!trovato) throw std::runtime_error(std::string("no control ") + nome);
  return *trovato;
}

inline std::string Testo(const QWidget& finestra, const char* nome) {
  return Trova<QLabel>(finestra, nome).text().toStdString();
}

/// As the user presses a button, near its left edge, where an option has its mark.
inline void Premi(const QWidget& finestra, const char* nome) {
  auto& tasto = Trova<QAbstractButton>(finestra, nome);
  QTest::mouseClick(&tasto, Qt::LeftButton, {}, QPoint(8, tasto.height() / 2));
}

inline void Scegli(const QWidget& finestra, const char* nome, int indice) {
  Trova<QComboBox>(finestra, nome).setCurrentIndex(indice);
}

inline bool Scelto(const QWidget& finestra, const char* nome) {
  return Trova<QAbstractButton>(finestra, nome).isChecked();
}

/// What every window promises: Esc closes it, and no control sticks out of it or is narrower than
/// its text.
inline void Prova_Finestra(QWidget& finestra) {
  finestra.show();
  QCoreApplication::processEvents();
  for (const QLabel* etichetta : finestra.findChildren<QLabel*>()) {
    if (!etichetta->isVisible()) continue;
    EXPECT_GE(etichetta->width(), etichetta->minimumSizeHint().width())
        << etichetta->objectName().toStdString() << etichetta->text().toStdString();
  }
  for (const QAbstractButton* tasto : finestra.findChildren<QAbstractButton*>()) {
    if (!tasto->isVisible()) continue;
    EXPECT_GE(tasto->width(), tasto->minimumSizeHint().width())
        << tasto->objectName().toStdString();
  }
  for (const QWidget* parte : finestra.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!parte->isVisible()) continue;
    EXPECT_TRUE(finestra.rect().contains(parte->geometry())) << parte->objectName().toStdString();
  }
  finestra.activateWindow();
  QCoreApplication::processEvents();
  QTest::keyClick(&finestra, Qt::Key_Escape);
  EXPECT_FALSE(finestra.isVisible());
}

}  // namespace tavorno
