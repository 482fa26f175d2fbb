// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QRectF>
#include <QString>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <tuple>

#include "plants/scene.h"

class QPainter;

namespace tavorno {

/// The vector drawings of one plant: its own file with the symbols of the shared sheet put in. A
/// drawing is a group of the file by its id; where it says "currentColor" it takes the colour that
/// the plant gives it.
class Disegni {
 public:
  /// `file`: ":/plants/US-00.svg". A file that cannot be read leaves no drawing.
  explicit Disegni(const QString& file);

  bool Valido() const { return misura_.isValid(); }
  QRectF Misura() const { return misura_; }  ///< of the whole picture, twips
  bool Esiste(const QString& id) const { return base_->elementExists(id); }
  QRectF Limiti(const QString& id) const { return base_->boundsOnElement(id); }  ///< twips

  /// Draws a group at its own place, moved and stretched by `posa`. `scala` is pixels per twip,
  /// without the factor of the screen. What is not stretched is drawn once and kept.
  void Disegna(QPainter& pittore, const QString& id, Colore colore, double scala,
               const QTransform& posa);

 private:
  QSvgRenderer& Di_Colore(Colore colore);

  QByteArray testo_;
  QRectF misura_;
  std::unique_ptr<QSvgRenderer> base_;
  std::map<Colore, std::unique_ptr<QSvgRenderer>> colorati_;
  struct Tenuto {
    QPixmap Immagine;
    QRectF Posto;  ///< pixels of the unmoved drawing
  };
  std::map<std::tuple<QString, Colore>, Tenuto> tenuti_;
  double scala_tenuti_ = 0;
  double schermo_tenuti_ = 0;
};

/// Our shade of a numbered colour; other colours stay as they are.
QColor Tinta(Colore colore);

}  // namespace tavorno
