// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

class QButtonGroup;
class QGroupBox;

namespace tavorno {

struct Plc;

/// Look of the input LEDs, kind of the second input simulator, period of the timers' tick. Nothing
/// of it is saved; a closed window is finished, and the next one starts anew.
class FrmSetPLC : public QWidget {
 public:
  /// `sim_contraves`: -1 while the thumbwheel is chosen, else 0; it follows the option at once.
  /// `scegli_simulatore` shows the thumbwheel (true) or the second switch row (false) when the
  /// settings are applied. Both outlive the window.
  FrmSetPLC(Plc& plc, std::int16_t& sim_contraves,
            std::function<void(bool contraves)> scegli_simulatore);

 private:
  struct Aspetto_LED {
    std::uint8_t Colore = 0, Forma = 0;
  };

  QGroupBox* Gruppo_LED(const char* nome, const char* titolo, const char* colori, const char* forme,
                        Aspetto_LED& aspetto);
  QGroupBox* Gruppo_Simulatore();
  QGroupBox* Gruppo_Clock();
  void cmdSet();

  Plc& plc_;
  std::int16_t& sim_contraves_;
  std::function<void(bool)> scegli_simulatore_;
  Aspetto_LED ingressi_;
  Aspetto_LED uscite_;  // kept and never applied: the output bars have one look
  QButtonGroup* opzSim_;
  QButtonGroup* opzT_;
};

}  // namespace tavorno
