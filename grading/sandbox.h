// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>

struct lua_State;

namespace tavorno {

/// Bounds of one script, so that work which strangers hand in cannot stop or exhaust the machine.
struct Limiti_Script {
  long long Istruzioni = 200'000'000;       ///< of the script language
  std::size_t Memoria = 64U * 1024 * 1024;  ///< bytes of the script language
  std::chrono::seconds Processore{60};      ///< processor time
  int Casi = 1000;
};

/// A state of the script language without anything that reaches files, processes, other code or
/// the machine, and without means to catch an error. Passing a limit is an error with a message.
class Recinto {
 public:
  /// Throws `std::bad_alloc` when there is no memory even for an empty state.
  explicit Recinto(const Limiti_Script& limiti);
  ~Recinto();
  Recinto(const Recinto&) = delete;
  Recinto& operator=(const Recinto&) = delete;

  lua_State* Stato() const { return stato_; }
  /// Work done outside the language, in instructions; checked at the next of them.
  bool Esaurito() const { return istruzioni_ < 0 || tempo_scaduto_; }
  void Addebita(long long istruzioni) { istruzioni_ -= istruzioni; }

  static constexpr const char* troppe_istruzioni =
      "lo script supera il limite di istruzioni (forse un ciclo senza fine)";
  static constexpr const char* troppo_tempo = "lo script impiega troppo tempo";

 private:
  friend struct Accesso_Recinto;

  std::size_t memoria_;   // bytes left
  long long istruzioni_;  // left
  std::chrono::seconds processore_;
  std::chrono::steady_clock::time_point scadenza_;  // earliest at which processor time can be over
  bool tempo_scaduto_ = false;
  lua_State* stato_ = nullptr;
};

}  // namespace tavorno
