// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "plc/codepage.h"

// The border between the texts of the program and those of the window library.
namespace tavorno {

/// A caption, message or path (UTF-8) as the window library wants it, and back.
inline QString Q(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline std::string Utf8(const QString& testo) {
  return testo.toStdString();
}

/// A source text (bytes of Windows-1252) for the screen, and back. What the code page lacks becomes
/// "?".
inline QString Da_Byte(std::string_view byte) {
  return Q(A_Utf8(byte));
}
inline std::string A_Byte(const QString& testo) {
  return Da_Utf8(Utf8(testo));
}

}  // namespace tavorno
