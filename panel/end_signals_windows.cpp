// SPDX-License-Identifier: GPL-3.0-or-later
#include <QGuiApplication>
#include <QSessionManager>
#include <utility>

#include "panel/end_signals.h"

namespace tavorno {

// A program without a console gets no signals; of a logout Windows tells every window, and Qt the
// program.
Segnali_Di_Fine::Segnali_Di_Fine(std::function<void()> prima) : prima_(std::move(prima)) {
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { prima_(); },
      Qt::DirectConnection);
}

Segnali_Di_Fine::~Segnali_Di_Fine() = default;

}  // namespace tavorno
