// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QVariantMap>
#include <functional>

class QObject;

namespace tavorno {

/// Settings of a desktop, by group and key.
using Voci_Scrivania = QMap<QString, QVariantMap>;

/// Whether one of them says that its user wants nothing to move; what is missing says nothing.
bool Chiede_Fermo(const Voci_Scrivania& voci);

/// Asks the desktop whether its user wants nothing to move. The answer comes at once or later, and
/// never from a desktop that has none, nor when `chi` has gone. One body per system
/// (desktop_motion_posix.cpp).
void Chiedi_Se_Fermo(QObject& chi, const std::function<void(bool fermo)>& risposta);

}  // namespace tavorno
