// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>
#include <optional>

class QGridLayout;
class QLabel;
class QRadioButton;
class QSlider;

namespace tavorno {

struct Plc;
class Scala_Cursore;

/// Three sliders that set the analog inputs by hand. Its range is its own affair: what turns volts
/// or milliamperes into words is chosen in the panel.
class FrmSimAI : public QWidget {
 public:
  explicit FrmSimAI(Plc& plc);

  /// Shows what stands in `Volt_AI`, which a plant may write as well.
  void Mostra_Valori();
  /// The sliders too, after another time was put back: each one that moves writes all channels.
  void Specchia();

 private:
  struct Canale {
    QSlider* Cursore;
    Scala_Cursore* Scala;
    QLabel* Valore;
    std::optional<float> Mostrato;
  };

  void Aggiungi_Canale(int indice, QGridLayout& griglia);
  void opzI();
  void Poni(int canale, double valore);
  void sldS();
  void cmdEnd();

  Plc& plc_;
  std::array<Canale, 3> canali_{};
  QRadioButton* volt_;
};

}  // namespace tavorno
