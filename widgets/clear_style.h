// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>
#include <QProxyStyle>
#include <unordered_map>

namespace tavorno {

/// The same palette, but the window library draws outlines with it that can be seen on the
/// palette's window, with and without the focus. Not for grounds.
/// @param velati  what the library does with the line: it lays it over the ground, not opaque
QPalette Con_Contorni_Visibili(const QPalette& tinte, bool velati = false);

/// The style of all windows: Fusion, whose outlines are a darker window and so disappear on a dark
/// desktop, with outlines that have `colori::Visibile` on every desktop for whatever is ticked,
/// moved, typed into or pressed.
class Stile_Chiaro : public QProxyStyle {
 public:
  Stile_Chiaro();

  using QProxyStyle::polish;
  /// Hints in empty fields can be read: not every desktop tells a colour for them, and the one
  /// that is taken then is that of a light one.
  void polish(QPalette& tinte) override;

  void drawPrimitive(PrimitiveElement parte, const QStyleOption* opzioni, QPainter* pittore,
                     const QWidget* sopra) const override;
  void drawControl(ControlElement parte, const QStyleOption* opzioni, QPainter* pittore,
                   const QWidget* sopra) const override;
  void drawComplexControl(ComplexControl parte, const QStyleOptionComplex* opzioni,
                          QPainter* pittore, const QWidget* sopra) const override;
  QIcon standardIcon(StandardPixmap quale, const QStyleOption* opzioni,
                     const QWidget* sopra) const override;

 private:
  QPalette Per(const QPalette& tinte, bool velati = false) const;

  /// By the key of the palette they are made of: Fusion keeps its drawings by that of theirs. The
  /// second ones are for veiled lines.
  mutable std::unordered_map<qint64, QPalette> fatte_[2];
};

}  // namespace tavorno
