// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>
#include <array>
#include <cstdint>
#include <vector>

#include "panel/controls/cover.h"
#include "panel/controls/led_bar.h"
#include "panel/controls/switch_row.h"
#include "panel/controls/thumbwheel.h"
#include "plants/cover_mode.h"

namespace tavorno {

class Parte;
class Vano;
struct Plc;

/// The CPU as the student sees it: terminals, LED bars, state lamps, the compartment with its
/// sliding cover, and below the input terminals the switch rows or the thumbwheel, or the plug of a
/// plant. It grows with its widget between 55 % and 200 %.
class Fronte_CPU : public QWidget {
 public:
  static constexpr QSize Misura{640, 310};  ///< pixels at 100 %
  static constexpr double Minimo = 0.55;    ///< smallest scale

  /// The CPU must outlive its front.
  explicit Fronte_CPU(Plc& plc, QWidget* sopra = nullptr);

  SimI& Sim_I(int i) { return *SimI_[static_cast<std::size_t>(i)]; }  ///< 0, 1
  SimC& Sim_C() { return *SimC_; }
  Barra_LED& SI(int i) { return *SI_[static_cast<std::size_t>(i)]; }  ///< 0, 1
  Barra_LED& SQ(int i) { return *SQ_[static_cast<std::size_t>(i)]; }  ///< 0, 1

  /// The lamps: `imgPL1` and `imgPL2` in Run, `imgPS` otherwise.
  void Stato(bool run);

  /// The cover and what stands at the inputs: the switch rows, or the plug of a plant.
  void PLC_Sportello(Modo_Sportello modo);
  std::int16_t Sportello_Aperto() const { return sportello_.Sportello_Aperto; }  ///< -1 when open
  const Sportello& Cover() const { return sportello_; }

  /// Marks the LEDs and terminals of these points, "I0.3" or "Q1.0"; an empty list marks none, and
  /// what has no LED is passed over.
  void Indica(const QStringList& morsetti);

  /// Shows potentiometers, analog ranges and mode selector as the CPU has them now.
  void Aggiorna_Vano();

  QSize sizeHint() const override { return Misura; }
  QSize minimumSizeHint() const override { return Misura * Minimo; }

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  Parte* Crea_Lampada(const char* nome, const char* gruppo, const QPointF& centro);
  double Fattore() const;
  QPointF Origine() const;
  void Disegna_Fondo();

  QSvgRenderer disegni_, disegni_led_;
  std::array<Barra_LED*, 2> SQ_{}, SI_{};
  Parte *imgPL1_, *imgPL2_, *imgPS_;
  Vano* pic1_;
  std::array<SimI*, 2> SimI_{};
  SimC* SimC_;
  Parte* imgN_;
  Parte* segno_;  // over LEDs and terminals that are pointed at elsewhere
  std::vector<QRectF> indicati_;
  Sportello sportello_;
  QPixmap fondo_;  // what never changes, drawn for the size and the screen that it is on
};

}  // namespace tavorno
