// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// A widget that sets the size of its texts itself: the font of the window around it does not reach
/// them. Whoever enlarges a window tells it so.
class Testo_Proprio {
 public:
  /// All its texts so many times as large as at first; 1: as at first.
  virtual void Ingrandisci_Testo(double fattore) = 0;

 protected:
  ~Testo_Proprio() = default;
};

}  // namespace tavorno
