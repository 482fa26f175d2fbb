// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <vector>

#include "plc/fatal.h"

namespace tavorno {

/// A named table with rows 0..Ultimo. An index outside it is fatal.
template <class T, int Ultimo>
class Tabella {
 public:
  static constexpr int ultimo = Ultimo;

  explicit constexpr Tabella(const char* nome) : nome_(nome) {}

  constexpr T& operator[](int indice) { return righe_[Controlla(indice)]; }
  constexpr const T& operator[](int indice) const { return righe_[Controlla(indice)]; }

  auto begin() { return righe_.begin(); }
  auto end() { return righe_.end(); }
  auto begin() const { return righe_.begin(); }
  auto end() const { return righe_.end(); }
  T* Dati() { return righe_.data(); }

  bool operator==(const Tabella& altra) const {
    // Mostly two tables are equal, and then one look at all their bytes tells it. Where the bytes
    // differ, it may be in what fills a row up, and the values decide.
    if constexpr (std::is_trivially_copyable_v<T>) {
      // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
      if (std::memcmp(righe_.data(), altra.righe_.data(), sizeof righe_) == 0) return true;
    }
    return righe_ == altra.righe_;
  }

 private:
  constexpr std::size_t Controlla(int indice) const {
    if (static_cast<unsigned>(indice) > static_cast<unsigned>(Ultimo)) [[unlikely]]
      Fatale_Indice(nome_, indice);
    return static_cast<std::size_t>(indice);
  }

  const char* nome_;
  std::array<T, Ultimo + 1> righe_{};
};

/// The same with a number of rows that is set at run time; it starts with none.
template <class T>
class Tabella_Variabile {
 public:
  explicit Tabella_Variabile(const char* nome) : nome_(nome) {}

  T& operator[](int indice) { return righe_[Controlla(indice)]; }
  const T& operator[](int indice) const { return righe_[Controlla(indice)]; }

  /// Gives the table `righe` blank rows; what it held is gone.
  void Ridimensiona(int righe) {
    righe_.assign(static_cast<std::size_t>(righe), T{});
    quante_ = static_cast<unsigned>(righe);
  }
  int Righe() const { return static_cast<int>(quante_); }

  auto begin() { return righe_.begin(); }
  auto end() { return righe_.end(); }
  auto begin() const { return righe_.begin(); }
  auto end() const { return righe_.end(); }

  bool operator==(const Tabella_Variabile& altra) const { return righe_ == altra.righe_; }

 private:
  std::size_t Controlla(int indice) const {
    if (static_cast<unsigned>(indice) >= quante_) [[unlikely]]
      Fatale_Indice(nome_, indice);
    return static_cast<std::size_t>(indice);
  }

  const char* nome_;
  std::vector<T> righe_;
  unsigned quante_ = 0;  // the size, without the division by the size of a row
};

}  // namespace tavorno
