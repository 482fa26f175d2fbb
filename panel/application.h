// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <functional>
#include <string>

#include "plc/fatal.h"

namespace tavorno {

struct Plc;

/// What the user is told of a fatal end: with the line of the program, or with the window that
/// read where there is nothing. Italian, UTF-8.
std::string Rapporto_Fine(const Fatale& fatale, const Plc& plc);

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
