// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

class QAbstractButton;
class QAction;
class QWidget;

namespace tavorno {

/// The picture of a command as it can be seen on the desktop of now: drawn for a light one, on a
/// dark one its lines are lighter. `nome` is that of its file among the icons.
QIcon Icona_Di(const QString& nome);

/// Gives a command or a button its picture, which follows the desktop for as long as `barra` lives.
void Metti_Icona(QWidget& barra, QAction& azione, const QString& nome);
void Metti_Icona(QAbstractButton& tasto, const QString& nome);

}  // namespace tavorno
