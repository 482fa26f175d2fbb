// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "recorder/analog_exchange.h"
#include "recorder/journal.h"
#include "recorder/replay.h"

namespace tavorno {

/// A session as a value: the state that it began in, and what entered since.
struct Seduta_Registrata {
  std::string Titolo;  ///< of the project, UTF-8
  std::shared_ptr<const Stesura> Programma;
  Istantanea Stato;
  Giornale Voci;
};

/// What the hand left at the two input bars: the texts that it put there last, whoever else may
/// have written since.
using Leve = std::array<std::string, 2>;

/// A place in a session from which a replay can set out.
struct Tappa {
  std::shared_ptr<const Stesura> Programma;
  Istantanea Stato;
  Posto_Giornale Dove;
  int Apertura = -1;  ///< the place right before the open plant was made; -1: none was open
  Leve Interruttori;
};

/// Writes down what enters a CPU, and takes it back to any moment of that and forth again.
///
/// A full copy of the CPU's state is kept every few seconds, so that a replay is short. Of a plant
/// there is no copy: it is always played again from its opening, by the outputs alone and so a
/// thousand times faster than the program runs. When the journal gets too long and no plant is
/// open, its older half is forgotten.
class Registratore {
 public:
  explicit Registratore(Plc& plc);
  Registratore(const Registratore&) = delete;
  Registratore& operator=(const Registratore&) = delete;

  /// A new program stands in the CPU's table. In the past, that moment becomes the present.
  void Programma_Nuovo();
  /// Begins anew with the state as it stands; no plant is open. Not in the past.
  void Ricomincia();

  /// To be called when who shows message boxes listens to them: a box is told to be closed by those
  /// who hear of it last.
  void Ascolta_Chiusura();

  /// Takes over a session: the CPU is in its past, at the beginning. When the session opens a plant
  /// `Apri` must be there, and the plant open already. Throws `Giornale_Discorde`.
  void Prendi(const Seduta_Registrata& registrazione);
  /// Lays what has been written down aside and shows another session meanwhile, as `Prendi` does.
  /// Whatever ends that past goes back to the present as it was left: to the CPU's last cell and
  /// the plant's last figure. Not while a run loop is at work. Throws `Giornale_Discorde`, and then
  /// the present is back.
  void Proietta(const Seduta_Registrata& film);
  bool In_Proiezione() const { return messo_via_.has_value(); }
  /// The exercise whose plant a session opens first, -1 for none.
  static int Impianto_Di(const Seduta_Registrata& registrazione);

  /// What has been written down, up to now.
  Seduta_Registrata Registrata();
  /// The same from the last place before `Primo` on at which no plant was open: it opens one plant
  /// at most, and closes none.
  Seduta_Registrata Dal_Primo();
  std::string Titolo;

  // ---- the past --------------------------------------------------------------------------------
  // Only while no run loop is at work.

  /// Makes the open plant anew when its past is played, and hands out its wires. Empty: a plant of
  /// the replay's own is used, and thrown away.
  std::function<Collegamento*(int indice)> Apri;
  /// Called now and then during a long replay with its progress, 0 to 1; false ends it early.
  std::function<bool(double)> Avanzamento;

  bool Nel_Passato() const { return plc_.Hook.Adesso == Vissuto::Passato; }
  /// The CPU becomes what it was; false when that moment is out of reach, and nothing happens.
  /// What `Avanzamento` ended early stands somewhere before.
  bool Vai(Momento momento);
  /// To the state that somebody saw who looked on before each scan, as the timing diagram does,
  /// when the clock stood at `ms`.
  bool Vai_A_Vista(std::int64_t ms);
  /// Goes on to the present, and lets things enter again.
  void Torna_Al_Presente();
  /// This moment becomes the present; what came after is forgotten. A run that was under way is in
  /// a pause.
  void Riprendi_Da_Qui();

  /// The first moment that can be gone back to: a program or a plant came or went there.
  Momento Primo() const { return primo_; }
  Momento Presente() const { return Nel_Passato() ? presente_ : Adesso(); }
  Momento Adesso() const { return {plc_.Righe_Fatte, plc_.Tempo.Adesso()}; }

  /// How switches and thumbwheel stood at the moment at hand.
  const Leve& Interruttori() const { return interruttori_; }

  // Steps from the moment at hand; false when there is nothing there, and nothing happens.
  bool Riga_Indietro();
  bool Scansione_Indietro();
  bool Tempo_Indietro(std::int64_t ms);
  bool Riga_Avanti();
  bool Scansione_Avanti();
  bool Tempo_Avanti(std::int64_t ms);

  /// To the last moment before this one at which `valore` changed. False when it did not, as far
  /// back as can be seen. Returns by `riga` the line of the program that did it, -1 when it was no
  /// line but something that entered.
  bool Ultimo_Cambio(const std::function<double(const Plc&)>& valore, int& riga);

  /// Plays the past on a CPU and a plant of its own, from the last place before `da` on up to `a`,
  /// without touching the one at hand. `guarda` is called between two lines, at each line or at
  /// each entry; false ends it. Returns whether a run loop was at work at its end.
  bool Rivedi(Momento da, Momento a, bool ogni_riga, const std::function<bool(const Plc&)>& guarda);

  /// Bytes that are in use, about.
  std::size_t Occupata() const;

  std::int64_t Ms_Tra_Tappe = 10'000;
  std::int64_t Righe_Tra_Tappe = 3'000'000;
  std::size_t Limite = 12UL * 1024 * 1024;  ///< bytes

 private:
  void Annota(const Atto& entrata);
  void Segui(Replica& replica, std::int64_t da, std::int64_t a) const;
  void Metti_Tappa();
  void Lascia_L_Impianto();
  void Dimentica();
  const Tappa& Tappa_Prima(Momento momento) const;
  void Parti(Replica& replica, Plc& plc, const Tappa& tappa) const;
  void Vai_Da_Capo(const Tappa& tappa);
  void Rimetti();
  Leve Leve_A(const Tappa& tappa, const Posto_Giornale& fine) const;

  Plc& plc_;
  std::shared_ptr<const Stesura> programma_;
  std::vector<Tappa> tappe_;
  Giornale giornale_;
  Scambio_Annotato scambio_;
  Momento primo_;
  int apertura_ = -1;         // the place before the open plant was made
  bool analogiche_ = false;   // the open plant reads more of the CPU than its output bars
  bool senza_tappe_ = false;  // and the journal, an early one, does not tell of it
  bool chiuso_ = false;       // a plant has just gone
  bool in_avviso_ = false;    // a message box stands open, maybe in the middle of a line
  Leve interruttori_{"00000000", "00000000"};
  Posto_Giornale qui_;    // in the past: what has been read
  bool in_giro_ = false;  // in the past: a run loop was at work
  Momento presente_;      // in the past: the moment that was left
  /// In the past: the replay that stands where the CPU does, so that going on costs what lies
  /// between.
  std::unique_ptr<Replica> replica_;

  /// What was written down, while something else is shown.
  struct Scritto {
    std::string Titolo;
    std::shared_ptr<const Stesura> Programma;
    std::vector<Tappa> Tappe;
    Giornale Voci;
    Momento Primo, Presente;
    int Apertura;
    bool Analogiche, Senza_Tappe, Chiuso;
  };
  std::optional<Scritto> messo_via_;
  std::vector<Iscrizione> ascolti_;
  Iscrizione avviso_chiuso_;
};

}  // namespace tavorno
