// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QSvgRenderer>
#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "panel/controls/hidden_text.h"
#include "widgets/screen_reader.h"

class QLabel;

namespace tavorno {

class Interruttore;
class Parte;

/// A row of eight toggle switches `imgI0(0)`..`imgI0(7)` for one input byte. Whoever presses one
/// writes the whole byte from the row's own memory.
///
/// By the keyboard it is one thing: Tab leads to the switch that was used last, the arrow keys,
/// Home and End to the others, and a digit throws the switch of that number.
class SimI : public QWidget, public Per_Lettori {
 public:
  static constexpr QSize Misura{260, 50};  ///< pixels at 100 %

  explicit SimI(QWidget* sopra = nullptr);

  std::function<void()> Change;  ///< a press made a text that differs from the last one told

  std::int16_t SIMI_Int = -1;  ///< 0: presses move the switch and the text but are not told

  QString Caption() const;
  void Caption(const QString& testo);  ///< also names the bits in the tool tips
  QColor BackColor() const;
  void BackColor(const QColor& colore);
  QColor ForeColor() const;
  void ForeColor(const QColor& colore);  ///< of the bit labels `etI(0)`..`etI(7)`

  /// Eight characters, leftmost bit 0. A let is storage only: no switch moves, nothing is told.
  const std::string& Stato_I() const { return stato_; }
  void Stato_I(std::string_view testo) { stato_ = testo; }

  /// Switches, text and what was told last are these, without telling: another time was put back.
  void Mostra(std::string_view testo);

  /// All switches off. `Stato_I` stays, and nothing is told.
  void SIMI_Reset();

  QSize sizeHint() const override { return Misura; }

  Letto Leggi(int pezzo) const override;

 protected:
  void resizeEvent(QResizeEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Rilascia(std::size_t n);
  void Tocca_A(std::size_t n);
  void Ritingi();

  QSvgRenderer disegni_;
  Parte* picS0_;
  QLabel* etC_;
  std::array<QLabel*, 8> etI_{};
  std::array<Interruttore*, 8> imgI0_{};
  std::array<bool, 8> accesi_{};
  std::size_t tocca_a_ = 0;  // the switch that Tab leads to
  std::string stato_ = "00000000";
  Testo_Nascosto txtI_;
  std::optional<QColor> sfondo_, colore_;  // else the desktop's
};

}  // namespace tavorno
