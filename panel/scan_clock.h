// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace tavorno {

/// How long the scans of a run took, of the time that the program itself needs: without waits,
/// window events and time that stands still.
struct Tempo_Scansioni {
  using Durata = std::chrono::nanoseconds;

  std::int64_t Quante = 0;  ///< measured since Run; 0: the others mean nothing
  Durata Ultima{0}, Massima{0}, Totale{0};

  Durata Media() const { return Quante > 0 ? Totale / Quante : Durata{0}; }
};

/// Measures them between two yields. Instants are those of one clock that never goes back.
class Cronometro_Scansioni {
 public:
  using Durata = Tempo_Scansioni::Durata;

  /// The program has come to a yield; `finita`: it is between two scans, one of which it has just
  /// done.
  void Arriva(Durata adesso, bool finita) {
    if (!in_misura_) return;
    in_corso_ += adesso - da_;
    if (!finita) return;
    misurati_.Ultima = in_corso_;
    misurati_.Massima = std::max(misurati_.Massima, in_corso_);
    misurati_.Totale += in_corso_;
    ++misurati_.Quante;
  }
  /// The program goes on; `in_testa`: with the first line of a scan.
  void Riparte(Durata adesso, bool in_testa) {
    da_ = adesso;
    if (!in_testa) return;
    in_corso_ = Durata{0};
    in_misura_ = true;
  }
  /// The program does not go on: what it had begun is not measured.
  void Interrompi() { in_misura_ = false; }
  /// A run begins.
  void Da_Capo() { *this = {}; }

  const Tempo_Scansioni& Misurati() const { return misurati_; }

 private:
  Tempo_Scansioni misurati_;
  Durata da_{0}, in_corso_{0};
  bool in_misura_ = false;  // since the first line of a scan
};

}  // namespace tavorno
