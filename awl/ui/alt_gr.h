// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QKeyEvent>
#include <optional>

namespace tavorno {

/// Where AltGr comes as Ctrl and Alt, what the key writes without them, null for nothing. No value
/// where AltGr is a key of its own.
std::optional<QChar> Senza_AltGr(const QKeyEvent& evento);

/// Whether a key with Ctrl and Alt writes all the same, because it is AltGr. A combination for
/// which the keyboard has no letter comes with the one that the key writes without it.
inline bool Di_AltGr(const QKeyEvent& evento, std::optional<QChar> senza) {
  constexpr auto altgr = Qt::ControlModifier | Qt::AltModifier;
  const QString testo = evento.text();
  return senza && (evento.modifiers() & altgr) == altgr && !testo.isEmpty() &&
         testo.front().isPrint() && testo.front().toUpper() != senza->toUpper();
}

}  // namespace tavorno
