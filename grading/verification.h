// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "grading/grader.h"
#include "recorder/journal.h"

namespace tavorno {

/// A case as a window shows it.
struct Caso_Verificato {
  Caso Esito;
  std::string Diagramma;                  ///< SVG with the moment marked; empty for a passed case
  std::optional<Seduta_Registrata> Film;  ///< up to that moment
};

/// The memory of a CPU that holds this program and has never run it, whatever the one that it was
/// copied from has done with it.
Memoria Appena_Caricata(const Stesura& programma);

/// The program of a CPU, examined as its project would be by `Esamina`.
Esito_Progetto Verifica(const Stesura& programma, const Verifiche& verifiche);

/// The same on a thread of its own, which whoever shows it asks now and then. It ends, unfinished,
/// with this object.
class Verifica_In_Corso {
 public:
  Verifica_In_Corso(Stesura programma, Verifiche verifiche);
  ~Verifica_In_Corso();
  Verifica_In_Corso(const Verifica_In_Corso&) = delete;
  Verifica_In_Corso& operator=(const Verifica_In_Corso&) = delete;

  /// It ends soon, and what it says of the case at hand is nothing.
  void Annulla() { operaio_.request_stop(); }
  bool Annullata() const { return operaio_.get_stop_token().stop_requested(); }
  bool Finita() const { return finita_; }
  /// Returns when it is finished.
  void Aspetta() const { finita_.wait(false); }

  /// The cases that have been played since the last call, and how many there are in all; 0: nobody
  /// knows yet.
  std::vector<Caso_Verificato> Prendi();
  std::size_t Tutti() const { return tutti_; }
  /// Once it is finished.
  const Esito_Progetto& Esito() const { return esito_; }

 private:
  void Lavora(const std::stop_token& ferma);
  void Metti(const Caso_Giocato& giocato);

  const Stesura programma_;
  Verifiche verifiche_;
  Esito_Progetto esito_;
  std::mutex chiave_;
  std::vector<Caso_Verificato> pronti_;
  std::atomic<std::size_t> tutti_ = 0;
  std::atomic<bool> finita_ = false;
  std::jthread operaio_;  // the last to come and the first to go
};

}  // namespace tavorno
