// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <QWidget>
#include <map>
#include <optional>

class QSettings;

namespace tavorno {

/// Where the user has put windows, from one session to the next: frames by name, in the desktop's
/// own settings. Without a place to keep them nothing is remembered.
class Posti_Ricordati {
 public:
  /// `dove` must outlive this.
  void Ricorda_In(QSettings& dove) { dove_ = &dove; }

  /// The frame within the screen it stood on; empty when the user never moved the window, or when
  /// its title bar is on no screen any more.
  std::optional<QRect> Di(const QString& nome) const;

  /// Where a window was put by the program: standing there, it was not moved.
  void Detto(const QWidget& finestra) { detti_[&finestra] = finestra.frameGeometry(); }
  /// Keeps the place of a window, as far as the user has moved it.
  void Tieni(const QWidget& finestra, const QString& nome, const QRect& cornice);
  /// Keeps a place that the user has chosen.
  void Tieni(const QString& nome, const QRect& cornice);
  void Dimentica(const QString& nome);
  void Sparita(const QWidget& finestra) { detti_.erase(&finestra); }

 private:
  QSettings* dove_ = nullptr;
  std::map<const QWidget*, QRect> detti_;
};

}  // namespace tavorno
