// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tavorno {

/// A colour in 24 bits, red in the low byte.
using Colore = std::uint32_t;

/// One of the sixteen numbered colours, 0 black to 15 white. Any other number is black.
constexpr Colore Tavolozza(int numero) {
  constexpr Colore colori[] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                               0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                               0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  return numero < 0 || numero > 15 ? 0 : colori[numero];
}

class Figura;
class Scena;

/// A value of a figure that physics assigns as if it were a plain variable. Assigning a different
/// value marks the figure for drawing; the same one costs nothing.
template <class T>
class Proprieta {
 public:
  Proprieta(Figura& figura, T valore) : figura_(figura), valore_(std::move(valore)) {}
  Proprieta(const Proprieta&) = delete;

  Proprieta& operator=(T valore);
  Proprieta& operator=(const Proprieta& altra) { return *this = altra.valore_; }
  operator const T&() const { return valore_; }
  const T& operator()() const { return valore_; }

 private:
  Figura& figura_;
  T valore_;
};

/// Where a figure stands, in twips of the plant's area.
struct Posto_Figura {
  float Left, Top, Width, Height;
};

/// How a figure looks at first, and what it says of itself.
struct Aspetto_Figura {
  const char* Picture = "";
  const char* ToolTip = "";
  /// Addresses of the inputs and outputs that it stands for, with blanks between them, where its
  /// tool tip does not say.
  const char* Morsetti = "";
};

/// A figure of a plant's picture.
struct Riga_Figura {
  const char* Nome;  ///< "imgStop"; one of an array is "KM(2)"
  Posto_Figura Posto;
  Aspetto_Figura Aspetto = {};
};

/// A named piece of a plant's picture. The plant writes its looks; whoever draws it reads them.
class Figura {
 public:
  Figura(Scena& scena, const Riga_Figura& riga);
  Figura(const Figura&) = delete;
  Figura& operator=(const Figura&) = delete;

  const std::string Nome;
  const std::string Morsetti;                 ///< as its row has them: "I0.3 Q0.2"
  Proprieta<float> Left, Top, Width, Height;  ///< twips; vertical positions grow downwards
  Proprieta<bool> Visible;
  Proprieta<std::string> Picture;  ///< which of its alternative pictures shows; may be empty
  Proprieta<std::string> Caption;  ///< UTF-8
  Proprieta<std::string> ToolTip;  ///< UTF-8
  Proprieta<Colore> FillColor;     ///< of a shape or a line
  Proprieta<Colore> ForeColor;     ///< of a text
  Proprieta<int> FillStyle;        ///< pattern of a shape: 0 full, 4 and 5 the two diagonals

  // What the mouse does to it; the plant fills in what it listens to.
  std::function<void()> Premi;        ///< button down
  std::function<void()> Rilascia;     ///< button up
  std::function<void()> Clic;         ///< button up over the figure on which it went down
  std::function<void()> Doppio_Clic;  ///< second press of two

  /// Something listens, so the pointer should show it.
  bool Operabile() const { return Premi || Rilascia || Clic || Doppio_Clic; }

 private:
  friend class Scena;
  template <class T>
  friend class Proprieta;
  void Segna();

  Scena& scena_;
  bool segnata_ = false;
};

/// The figures of one plant, in the order in which they are drawn: later ones cover earlier ones.
class Scena {
 public:
  explicit Scena(std::span<const Riga_Figura> righe);
  Scena(const Scena&) = delete;
  Scena& operator=(const Scena&) = delete;

  /// nullptr when there is none of this name.
  Figura* Trova(std::string_view nome);
  /// Throws `std::out_of_range` when there is none of this name.
  Figura& operator[](std::string_view nome);
  /// One of an array: ("KM", 2) is "KM(2)".
  Figura& operator()(std::string_view nome, int indice);

  auto begin() { return figure_.begin(); }
  auto end() { return figure_.end(); }
  auto begin() const { return figure_.begin(); }
  auto end() const { return figure_.end(); }

  /// Called at the first change since the changes were last taken: time to plan a drawing.
  std::function<void()> Cambiata;
  /// The figures changed since the last call, each once, in the order of their first change.
  std::vector<Figura*> Prendi_Cambiate();

 private:
  friend class Figura;
  void Segna(Figura& figura);

  std::deque<Figura> figure_;
  std::unordered_map<std::string_view, Figura*> per_nome_;  // physics asks for them at each tick
  std::vector<Figura*> cambiate_;
};

template <class T>
Proprieta<T>& Proprieta<T>::operator=(T valore) {
  if (valore != valore_) {
    valore_ = std::move(valore);
    figura_.Segna();
  }
  return *this;
}

}  // namespace tavorno
