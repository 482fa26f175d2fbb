// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <set>

#include "plants/host/io_history.h"

class QMenu;
class QToolButton;

namespace tavorno {

/// The last minute of an exercise: a curve for each quantity, and for each chosen bit when it was
/// lit. At the right edge is now.
class Striscia : public QWidget {
 public:
  /// The history must outlive it.
  explicit Striscia(const Storia_IO& storia, QWidget* sopra = nullptr);

  /// Rows of the table of inputs and outputs whose bit is drawn.
  const std::set<std::size_t>& Scelti() const { return scelti_; }
  void Scegli(std::size_t riga, bool mostrato);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void Riempi(QMenu& menu);
  void Disegna_Grandezza(QPainter& pittore, std::size_t numero, const QRectF& corsia) const;
  void Disegna_Bit(QPainter& pittore, std::size_t riga, const QRectF& corsia) const;
  void Disegna_Tempo(QPainter& pittore, const QRectF& area) const;
  void Scrivi(QPainter& pittore, const QRectF& corsia, const QString& nome,
              const QString& valore) const;
  double X(std::int64_t ms, const QRectF& area) const;

  const Storia_IO& storia_;
  std::set<std::size_t> scelti_;
  QToolButton* segnali_;
};

}  // namespace tavorno
