// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QWidget>
#include <string>
#include <vector>

namespace tavorno {

/// Widgets that remember as their focus one that does not stand in them (any more), or does not
/// even exist: the window library would call it.
inline std::vector<std::string> Con_Un_Fuoco_D_Altri() {
  const QWidgetList tutti = QApplication::allWidgets();
  std::vector<std::string> nomi;
  for (const QWidget* uno : tutti) {
    const QWidget* fuoco = uno->focusWidget();
    if (fuoco == nullptr || fuoco == uno) continue;
    const bool vivo = tutti.contains(fuoco);
    if (vivo && uno->isAncestorOf(fuoco)) continue;
    const auto nome = [](const QWidget* chi) {
      return chi->metaObject()->className() + (" " + chi->objectName().toStdString());
    };
    nomi.push_back(nome(uno) + " -> " + (vivo ? nome(fuoco) : "one that has gone"));
  }
  return nomi;
}

}  // namespace tavorno
