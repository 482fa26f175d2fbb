// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace tavorno {

/// A page as text: UTF-8, or Windows-1252 where the bytes are no UTF-8.
QString Decodifica_Html(const QByteArray& byte);

/// What stands between the title tags, without blanks at the ends; empty when there is none.
QString Titolo_Html(const QString& html);

/// What a reader sees of the page, one line for each paragraph that is not empty, every run of
/// white space one blank. Loads nothing.
QString Testo_Html(const QString& html);

}  // namespace tavorno
