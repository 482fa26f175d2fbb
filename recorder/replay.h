// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "plants/link.h"
#include "recorder/journal.h"

namespace tavorno {

/// A moment of a session: behind so many lines, and not behind that time.
struct Momento {
  static constexpr std::int64_t Mai = std::numeric_limits<std::int64_t>::max();
  std::int64_t Righe = Mai;
  std::int64_t Ms = Mai;
};

/// The journal does not fit the session: it is damaged, or of another program. Italian, UTF-8.
class Giornale_Discorde : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A program and a state to go on from.
void Metti_Stato(Plc& plc, const Stesura& programma, const Istantanea& stato);

/// Plays a journal again on a CPU that stands where the journal begins. The CPU's own run loops
/// run, and what entered enters between the same two lines as then.
class Replica {
 public:
  Replica(Plc& plc, const Giornale& giornale, Posto_Giornale da);
  ~Replica();
  Replica(const Replica&) = delete;
  Replica& operator=(const Replica&) = delete;

  // Who else has a hand in it. Before the first `Vai`.

  /// Makes the plant of an exercise, which lives until `Chiudi`. At first the replay has its own.
  std::function<Collegamento*(int indice)> Apri;
  std::function<void()> Chiudi;
  Collegamento* Impianto = nullptr;  ///< the open one
  /// Called between two lines, before and behind what enters there; at each line when `Ogni_Riga`
  /// is set, else at each entry. Returns false to stop here.
  std::function<bool()> Guarda;
  bool Ogni_Riga = false;

  /// On to that moment, or to the end of the journal. False when the journal ends before. Throws
  /// `Giornale_Discorde`, and `Fatale` where the session had a fatal end.
  bool Vai(Momento fin_qui = {});

  /// Moves the plant alone, by the outputs that were written down, to a place where the CPU's state
  /// is known and is to be put back next. The CPU is of no use until then.
  void Solo_Impianto(const Posto_Giornale& fine);

  /// Behind the last entry that was let in.
  const Posto_Giornale& Dove() const {
    if (!attese_.empty()) return attese_.front();
    return prossima_ ? prima_ : lettore_.Dove();
  }
  /// Whether a run loop was at work at this moment. It has been left as by a pause.
  bool In_Giro = false;
  /// `Guarda` said no.
  bool Fermata() const { return fermata_; }

 private:
  int Cedi();
  void Entrate();
  void Applica(const Atto& entrata);
  void Leggi();
  bool Basta(const Atto& entrata) const;
  void Arriva();
  void Uscita_Cambiata();
  void Nell_Avviso();

  Plc& plc_;
  const Giornale& giornale_;
  Lettore_Giornale lettore_;
  Posto_Giornale prima_;  // of the entry that waits in `prossima_`
  std::optional<Voce_Giornale> prossima_;
  Momento fin_qui_;
  bool arrivata_ = false, fermata_ = false;
  // Outputs that the journal has told before the line that brings them: where they stand there;
  // and how many came before they were told.
  std::deque<Posto_Giornale> attese_;
  int non_dette_ = 0;
  bool impianto_ascolta_ = false;
  std::vector<Iscrizione> ascolti_;
  Stato_Impianto stato_impianto_;
  std::unique_ptr<Collegamento> proprio_;
};

}  // namespace tavorno
