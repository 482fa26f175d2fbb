// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plc/entries.h"
#include "plc/memory.h"

namespace tavorno {

/// The table of compiled lines as it was put into a CPU.
struct Stesura {
  std::vector<Riga_PLC> Righe;
  std::int16_t NRighe = 0;

  bool operator==(const Stesura&) const = default;
};
Stesura Copia_Programma(const Memoria& cpu);
void Metti_Programma(Memoria& cpu, const Stesura& programma);

/// An entry, and how many lines the CPU had executed by then.
struct Voce_Giornale {
  std::int64_t Righe = 0;
  Atto Entra;
};

/// Where a reader of a journal stands.
struct Posto_Giornale {
  std::size_t Byte = 0;        ///< of the next record
  std::int64_t Righe = 0;      ///< of the last entry read
  std::int64_t Ms = 0;         ///< the clock after it
  std::size_t Ultima = 0;      ///< the record that a repetition stands for
  std::uint64_t Ripetute = 0;  ///< entries read of the repetition at `Byte`
};

/// What entered a session, in its order: line count and entry, two or three bytes for a move of the
/// clock, less where one is like the one before.
class Giornale {
 public:
  Giornale() = default;
  /// Begins where a CPU stands.
  Giornale(std::int64_t righe, std::int64_t ms)
      : Inizio{.Righe = righe, .Ms = ms}, fine_{.Righe = righe, .Ms = ms} {}

  /// `righe` and the clock never go back. The content of a new program stands beside the entry.
  void Scrivi(std::int64_t righe, const Atto& entrata,
              std::shared_ptr<const Stesura> programma = nullptr);

  /// Forgets what a reader that stands at `posto` has not read yet.
  void Tronca(const Posto_Giornale& posto);

  /// Forgets the first `byte` bytes; `inizio` is the place behind them, with its new offset.
  void Dimentica(const Posto_Giornale& inizio, std::size_t byte);

  /// The content of program number `indice` of the entries `Cosa::Programma`, or nullptr.
  std::shared_ptr<const Stesura> Programma(std::int64_t indice) const;
  const std::vector<std::shared_ptr<const Stesura>>& Programmi() const { return programmi_; }

  const std::vector<std::uint8_t>& Byte() const { return byte_; }
  Posto_Giornale Fine() const { return {byte_.size(), fine_.Righe, fine_.Ms, 0, 0}; }
  /// The same as a place to read on from later, when more has been written behind it.
  Posto_Giornale Segna() {
    ultima_ = ultima_fine_ = 0;
    volte_ = 0;
    return Fine();
  }

  /// From bytes that were written by another one; what is wrong with them shows when they are read.
  static Giornale Da_Byte(Posto_Giornale inizio, Posto_Giornale fine,
                          std::vector<std::uint8_t> byte,
                          std::vector<std::shared_ptr<const Stesura>> programmi);

  Posto_Giornale Inizio;         ///< of the first entry
  std::int64_t Ultima_Riga = 0;  ///< lines executed at the end

 private:
  friend class Lettore_Giornale;

  std::vector<std::uint8_t> byte_;
  std::vector<std::shared_ptr<const Stesura>> programmi_;
  Posto_Giornale fine_;  // `Byte` is the size of `byte_`
  // The record at the end, so that the next one can be told to be like it.
  std::size_t ultima_ = 0, ultima_fine_ = 0;
  std::size_t ripetizione_ = 0;
  std::uint64_t volte_ = 0;
};

/// Reads a journal from the front, which must not be written to meanwhile.
class Lettore_Giornale {
 public:
  Lettore_Giornale(const Giornale& giornale, Posto_Giornale da) : giornale_(giornale), qui_(da) {}

  /// The next entry; empty at the end, and where the bytes make no sense (`Guasto`).
  std::optional<Voce_Giornale> Prossima();
  /// Why nothing more can be read; Italian, empty at a good end.
  const std::string& Guasto() const { return guasto_; }
  /// Behind the last entry that was read.
  const Posto_Giornale& Dove() const { return qui_; }

 private:
  std::optional<Voce_Giornale> Leggi(std::size_t& byte);
  std::uint64_t Numero(std::size_t& byte);
  std::uint8_t Ottetto(std::size_t& byte);

  const Giornale& giornale_;
  Posto_Giornale qui_;
  std::string guasto_;
};

}  // namespace tavorno
