// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace tavorno {

/// One value over time: only its changes are kept. Times are in ms and never go back. Whatever is
/// asked for costs a few steps, however many changes there are.
class Onda {
 public:
  /// From `ms` on. A time before the last one counts as the last one; what comes at the same time
  /// replaces what stood there. A value that stands already is no change.
  void Aggiungi(std::int64_t ms, double valore);

  bool Vuota() const { return ms_.empty(); }
  std::size_t Cambi() const { return ms_.size(); }
  std::int64_t Ms(std::size_t cambio) const { return ms_[cambio]; }
  double Valore(std::size_t cambio) const { return valori_[cambio]; }
  std::int64_t Inizio() const { return ms_.front(); }  ///< not of an empty one

  /// The change whose value stands at `ms`; empty before the first.
  std::optional<std::size_t> Cambio_A(std::int64_t ms) const;
  std::optional<double> A(std::int64_t ms) const;
  /// The nearest edge after or before `ms`. Where recording begins there is none.
  std::optional<std::int64_t> Dopo(std::int64_t ms) const;
  std::optional<std::int64_t> Prima(std::int64_t ms) const;
  std::optional<std::int64_t> Vicino(std::int64_t ms) const;

  /// What happened in a stretch of time.
  struct Tratto {
    std::size_t Fronti = 0;          ///< changes within
    double Minimo = 0, Massimo = 0;  ///< of the values that stood within, the one at its start too
    double Primo = 0, Ultimo = 0;    ///< at its start and at its end
  };
  /// From `da` up to, and without, `a`; empty when nothing was recorded yet by then.
  std::optional<Tratto> Fra(std::int64_t da, std::int64_t a) const;
  /// Least and greatest value of all; both 0 when there is none.
  std::pair<double, double> Estremi() const;

  /// Forgets what happened after `ms`, or what happened long before it.
  void Taglia_Dopo(std::int64_t ms);
  void Dimentica_Prima(std::int64_t ms);
  /// What another one knows of the time before this one begins.
  void Anteponi(const Onda& prima);

 private:
  using Coppia = std::pair<double, double>;

  Coppia Estremi(std::size_t da, std::size_t a) const;
  void Rifai_Da(std::size_t cambio);

  std::vector<std::int64_t> ms_;
  std::vector<double> valori_;
  std::vector<std::vector<Coppia>> livelli_;  // extremes of ever larger blocks of changes
};

/// When scans began. Runs of equal scans take no room.
class Scansioni {
 public:
  /// One that begins at `ms`; `numero` counts them, so that those which were only counted while
  /// nothing could change are known too.
  void Aggiungi(std::int64_t ms, std::int32_t numero);
  /// The beginnings from `da` to `a`; none at all when there are more than `massime`.
  std::vector<std::int64_t> Fra(std::int64_t da, std::int64_t a, std::size_t massime) const;
  void Taglia_Dopo(std::int64_t ms);
  /// Those that another one knows from before these.
  void Anteponi(Scansioni prima);

 private:
  struct Serie {
    std::int64_t Primo, Passo, Quante;
    std::int64_t Ultimo() const { return Primo + Passo * (Quante - 1); }
  };
  void Una(std::int64_t ms);

  std::vector<Serie> serie_;
  std::int32_t ultimo_numero_ = 0;
};

}  // namespace tavorno
