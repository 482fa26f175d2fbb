// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

namespace tavorno {

/// Hears when the system asks the process to end (a logout, a closed terminal, Ctrl+C there): does
/// what is to be done before and ends as it was asked to. What the starter of the process has
/// switched off stays so. One at a time. One body per system (end_signals_posix.cpp).
class Segnali_Di_Fine : public QObject {
 public:
  explicit Segnali_Di_Fine(std::function<void()> prima);
  ~Segnali_Di_Fine() override;

 private:
  std::function<void()> prima_;
};

}  // namespace tavorno
