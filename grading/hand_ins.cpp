// SPDX-License-Identifier: GPL-3.0-or-later
// Many projects on all cores. Each has its own CPU, plant and script state; what they share is read
// only.
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "grading/grader.h"

namespace tavorno {

namespace {

/// Hands out the places of a list and collects what comes back.
class Banco_Di_Lavoro {
 public:
  explicit Banco_Di_Lavoro(std::size_t quanti) : esiti_(quanti) {}

  std::optional<std::size_t> Prossimo() {
    const std::lock_guard chiave(serratura_);
    if (prossimo_ == esiti_.size()) return {};
    return prossimo_++;
  }
  void Consegna(std::size_t posto, Esito_Progetto esito) {
    {
      const std::lock_guard chiave(serratura_);
      esiti_[posto] = std::move(esito);
    }
    pronto_.notify_one();
  }
  /// Waits for the result of that place.
  Esito_Progetto Ritira(std::size_t posto) {
    std::unique_lock chiave(serratura_);
    pronto_.wait(chiave, [&] { return esiti_[posto].has_value(); });
    Esito_Progetto esito = std::move(*esiti_[posto]);
    esiti_[posto] = Esito_Progetto{};
    return esito;
  }

 private:
  std::mutex serratura_;
  std::condition_variable pronto_;
  std::vector<std::optional<Esito_Progetto>> esiti_;
  std::size_t prossimo_ = 0;
};

}  // namespace

Esito_Progetto Non_Esaminata(const std::string& percorso, const std::string& motivo) {
  Esito_Progetto esito;
  esito.Progetto = percorso;
  esito.Non_Esaminato = motivo;
  return esito;
}

void Esamina_Tutti(const std::vector<std::string>& percorsi, const Verifiche& verifiche,
                   unsigned processi, const std::function<void(Esito_Progetto)>& finito,
                   const std::function<void(std::size_t)>& avanzamento,
                   const std::function<bool()>& basta) {
  Banco_Di_Lavoro lavoro(percorsi.size());
  std::vector<std::jthread> operai;
  for (unsigned n = 0; n < processi && n < percorsi.size(); ++n) {
    operai.emplace_back([&] {
      while (const auto posto = lavoro.Prossimo()) {
        const std::string& percorso = percorsi[*posto];
        lavoro.Consegna(*posto, basta && basta() ? Non_Esaminata(percorso, "esame interrotto")
                                                 : Esamina(percorso, verifiche));
      }
    });
  }
  for (std::size_t posto = 0; posto < percorsi.size(); ++posto) {
    finito(lavoro.Ritira(posto));
    if (avanzamento) avanzamento(posto + 1);
  }
}

}  // namespace tavorno
