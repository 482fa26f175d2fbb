// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <functional>

#include "plc/fatal.h"

namespace tavorno {

/// The process with its event loop: where a fatal end of the simulated CPU arrives, whatever event
/// it began in.
class Applicazione : public QApplication {
 public:
  using QApplication::QApplication;

  /// Shows the report of a fatal end; the process ends when it returns.
  std::function<void(const Fatale&)> Fine_Fatale;

  /// Status of a process that a fatal end has closed (an internal software error in sysexits).
  static constexpr int Stato_Fatale = 70;

  bool notify(QObject* oggetto, QEvent* evento) override;

 private:
  bool finita_ = false;
};

}  // namespace tavorno
