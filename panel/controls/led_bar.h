// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QSvgRenderer>
#include <QWidget>
#include <array>
#include <cstdint>

#include "plc/byte_bar.h"
#include "widgets/screen_reader.h"

class QLabel;

namespace tavorno {

class Parte;

/// The face of a byte bar: the caption `etC` and the LEDs `imgLI0(0)`..`imgLI0(7)`, of which the
/// lit ones are visible. The bar must outlive it. A bar may change thousands of times a
/// second: the face follows at the next turn of the event loop.
class Barra_LED : public QWidget, public Per_Lettori {
 public:
  static constexpr QSize Misura{260, 26};  ///< pixels at 100 %

  /// `caption` also names the bits in the tool tips: "Q0" gives "Q0.0".
  Barra_LED(Barra& barra, const QString& caption, QWidget* sopra = nullptr);

  QString Caption() const;
  void Caption(const QString& testo);
  QColor ForeColor() const { return colore_; }
  void ForeColor(const QColor& colore);

  /// Shows the bar as it is now.
  void Aggiorna();

  /// LEDs that are shown lit, bit 0 the first.
  std::uint8_t Accesi() const;
  /// The picture of the lit LEDs: "ledV", "ledG", "ledR", "ledV2", "ledG2" or "ledR2".
  static const char* Immagine(std::uint8_t tipo, std::uint8_t forma);

  QSize sizeHint() const override { return Misura; }

  /// The pieces are the LEDs by their bits.
  Letto Leggi(int pezzo) const override;
  int Pezzi() const override { return 8; }

 protected:
  bool event(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  Barra& barra_;
  QSvgRenderer disegni_;
  QLabel* etC_;
  std::array<Parte*, 8> imgLI0_{};
  QColor colore_;
  std::uint8_t tipo_ = 0, forma_ = 0;  // of the pictures that are shown
  bool in_attesa_ = false;
  std::uint8_t detti_ = 0;  // that readers were told of
  Annunci_Parchi annunci_;
  Iscrizione ascolto_;
};

}  // namespace tavorno
