// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QRect>
#include <QShortcut>
#include <QWidget>
#include <vector>

namespace tavorno {

/// Takes the focus from what is about to leave its window: a window goes on pointing to the part
/// that had its focus last, in another window or long deleted, and asks it when it is next told.
void Lascia_Il_Fuoco(const QWidget& parte);

/// A widget that is taken from where it is, a window of its own or a place in a layout, to be shown
/// elsewhere for a while, and comes back as it was: place, size, state, keys.
class Prestito {
 public:
  /// Notes where the widget is, and frees that place; who calls gives it its new one at once.
  /// `anche_qui`: keys of the place where it goes, which its own short cuts must leave alone.
  Prestito(QWidget& vista, const QList<QKeySequence>& anche_qui);
  Prestito(Prestito&&) = default;
  Prestito& operator=(Prestito&&) = default;

  QWidget* Vista() const { return vista_; }  ///< null when it has gone meanwhile
  bool Era_Finestra() const { return era_finestra_; }

  /// Back to where it was. `mostra`: as visible as it was, else it stays hidden.
  void Rendi(bool mostra = true);

 private:
  struct Scorciatoia {
    QPointer<QShortcut> Chi;
    Qt::ShortcutContext Dove;
    bool Attiva;
  };
  void Togli_Dal_Posto();
  void Restringi_Tasti(const QList<QKeySequence>& anche_qui);

  QPointer<QWidget> vista_, sopra_;  // what it stood in, when it was no window
  QPointer<QWidget> segnaposto_;
  bool era_finestra_, visibile_;
  Qt::WindowFlags fatta_;
  Qt::WindowStates stato_;
  QRect posto_;  // without the frame
  QSize minima_, massima_;
  std::vector<Scorciatoia> scorciatoie_;
};

/// Where a window stands, to put it there again: also when it was maximised meanwhile.
class Posto_Finestra {
 public:
  explicit Posto_Finestra(const QWidget& finestra);
  void Rimetti(QWidget& finestra) const;

 private:
  QRect posto_;  // without the frame, which a window that fills the screen has not
  Qt::WindowStates stato_;
};

}  // namespace tavorno
