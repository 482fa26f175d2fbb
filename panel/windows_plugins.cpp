// SPDX-License-Identifier: GPL-3.0-or-later
// A static program has to name the plugins that draw icons.
#include <QtPlugin>

Q_IMPORT_PLUGIN(QSvgIconPlugin)
Q_IMPORT_PLUGIN(QSvgPlugin)
