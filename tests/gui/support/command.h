// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>

namespace tavorno {

/// The action of an entry, menu or button by its objectName, as a test finds it. It must exist.
inline QAction& Azione(const QObject& finestra, const QString& nome) {
  auto* azione = finestra.findChild<QAction*>(nome);
  if (azione == nullptr) qFatal("No command named %s", qPrintable(nome));
  return *azione;
}

}  // namespace tavorno
