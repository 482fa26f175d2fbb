// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/resources.h"

#include <QDir>
#include <QFontDatabase>

// Outside any namespace: the call refers to a function of the generated code.
static void Iscrivi_Risorse() {
  Q_INIT_RESOURCE(assets);
}

void tavorno::Apri_Risorse() {
  Iscrivi_Risorse();
  // None where the system has them.
  for (const QFileInfo& carattere : QDir(QStringLiteral(":/fonts")).entryInfoList())
    QFontDatabase::addApplicationFont(carattere.filePath());
}
