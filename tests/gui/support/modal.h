// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

namespace tavorno {

/// What the user does with the dialog that is about to open.
template <class Dialogo>
void All_Apertura(std::function<void(Dialogo&)> azione) {
  QTimer::singleShot(0, [azione = std::move(azione)] {
    auto* dialogo = qobject_cast<Dialogo*>(QApplication::activeModalWidget());
    if (dialogo == nullptr) qFatal("another dialog stands in front");
    azione(*dialogo);
  });
}

inline void Premi(QMessageBox& box, QMessageBox::StandardButton tasto) {
  box.button(tasto)->click();
}

}  // namespace tavorno
