// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavorno {

/// The hidden text through which an input simulator notices a change.
class Testo_Nascosto {
 public:
  /// Takes a text and calls `change` when it differs from the one that is there.
  void Scrivi(std::string_view testo, const std::function<void()>& change) {
    if (testo == testo_) return;
    testo_ = testo;
    if (change) change();
  }

 private:
  std::string testo_ = "00000000";
};

}  // namespace tavorno
