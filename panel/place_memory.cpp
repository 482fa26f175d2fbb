// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/place_memory.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

#include "panel/window_places.h"

namespace tavorno {

namespace {

constexpr QSize presa(80, 24);  // as much of a title bar as a hand needs

QString Chiave(const QString& nome) {
  return QStringLiteral("finestre/") + nome;
}

}  // namespace

std::optional<QRect> Posti_Ricordati::Di(const QString& nome) const {
  if (dove_ == nullptr) return {};
  const QRect cornice = dove_->value(Chiave(nome)).toRect();
  if (cornice.width() < presa.width() || cornice.height() < presa.height()) return {};
  const QRect titolo(cornice.topLeft(), QSize(cornice.width(), presa.height()));
  for (const QScreen* schermo : QGuiApplication::screens()) {
    const QRect libero = schermo->availableGeometry();
    const QRect visto = titolo & libero;
    if (visto.width() >= presa.width() && visto.height() >= presa.height() / 2)
      return Dentro(libero, cornice);
  }
  return {};
}

void Posti_Ricordati::Tieni(const QWidget& finestra, const QString& nome, const QRect& cornice) {
  const auto detto = detti_.find(&finestra);
  if (detto != detti_.end() && !Vicini(detto->second, cornice)) Tieni(nome, cornice);
}

void Posti_Ricordati::Tieni(const QString& nome, const QRect& cornice) {
  if (dove_ != nullptr) dove_->setValue(Chiave(nome), cornice);
}

void Posti_Ricordati::Dimentica(const QString& nome) {
  if (dove_ != nullptr) dove_->remove(Chiave(nome));
}

}  // namespace tavorno
