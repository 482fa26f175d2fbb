// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QSvgRenderer>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "panel/controls/hidden_text.h"

class QLabel;

namespace tavorno {

class Parte;
class Rotella;

/// The digits 0 to 9 as they go into a byte, bit 0 of the digit first.
inline constexpr std::array<std::string_view, 10> Testi_Cifre = {
    "0000", "1000", "0100", "1100", "0010", "1010", "0110", "1110", "0001", "1001"};

/// A thumbwheel switch of two digits for one input byte: `UpD1` the tens, `UpD2` the units. The
/// byte is the packed BCD of the number.
class SimC : public QWidget {
 public:
  static constexpr QSize Misura{260, 50};  ///< pixels at 100 %

  explicit SimC(QWidget* sopra = nullptr);

  std::function<void()> Change;  ///< `SimC_Stato` differs from the last text told

  QString Caption() const;
  void Caption(const QString& testo);
  QColor BackColor() const;
  void BackColor(const QColor& colore);
  QColor ForeColor() const { return colore_; }
  void ForeColor(const QColor& colore);  ///< of the caption

  /// Eight characters, leftmost bit 0. A let turns no wheel; a different text is told.
  const std::string& SimC_Stato() const { return stato_; }
  void SimC_Stato(std::string_view testo);

  /// Wheels, text and what was told last are these, without telling: another time was put back. A
  /// text that is no number of two digits changes nothing.
  void Mostra(std::string_view testo);

  /// Both wheels to 0; one `Change` at most.
  void SimC_Clear();

  Rotella& UpD1() { return *UpD1_; }  ///< tens
  Rotella& UpD2() { return *UpD2_; }  ///< units

  QSize sizeHint() const override { return Misura; }

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void Gira();
  void Ritingi();

  QSvgRenderer disegni_;
  Parte* picS2_;
  QLabel* etC_;
  QLabel* decine_;
  QLabel* unita_;
  Rotella* UpD1_;
  Rotella* UpD2_;
  std::string stato_ = "00000000";
  Testo_Nascosto txtI_;
  std::optional<QColor> sfondo_;  // else the desktop's
  QColor colore_;
};

}  // namespace tavorno
