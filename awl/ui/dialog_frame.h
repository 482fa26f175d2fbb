// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

#include "awl/dialogs.h"

namespace tavorno {

/// While it lives, `prima` runs before each box and before each file dialog, and `poi` after a file
/// was chosen.
class Intorno_Ai_Dialoghi {
 public:
  Intorno_Ai_Dialoghi(Dialoghi& dialoghi, std::function<void()> prima, std::function<void()> poi)
      : dialoghi_(dialoghi), propri_(dialoghi), prima_(std::move(prima)), poi_(std::move(poi)) {
    dialoghi.Mostra = [this](const Avviso& avviso) {
      prima_();
      return propri_.Mostra ? propri_.Mostra(avviso) : Risposta::Ok;
    };
    dialoghi.Scegli_File = [this](const Richiesta_File& richiesta) {
      prima_();
      auto scelto = propri_.Scegli_File ? propri_.Scegli_File(richiesta) : std::nullopt;
      if (scelto) poi_();
      return scelto;
    };
  }
  ~Intorno_Ai_Dialoghi() { dialoghi_ = propri_; }
  Intorno_Ai_Dialoghi(const Intorno_Ai_Dialoghi&) = delete;
  Intorno_Ai_Dialoghi& operator=(const Intorno_Ai_Dialoghi&) = delete;

 private:
  Dialoghi& dialoghi_;
  Dialoghi propri_;
  std::function<void()> prima_, poi_;
};

}  // namespace tavorno
