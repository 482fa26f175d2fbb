// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the plants have in common, one row each. A plant hands its rows to `Impianto::Monta`, or in
// the case of outputs to the procedures that show them.
namespace tavorno {

/// A terminal of the CPU, of inputs or of outputs. As a number it is its position, from 1: 1 to 8
/// are byte 0, 9 to 16 byte 1, and 0 is none.
template <char Lettera>
struct Morsetto {
  int Posizione = 0;

  constexpr operator int() const { return Posizione; }
};
using Morsetto_I = Morsetto<'I'>;
using Morsetto_Q = Morsetto<'Q'>;

/// `I(0, 2)` is I0.2; the byte is 0 or 1.
constexpr Morsetto_I I(int byte, int bit) {
  return {8 * byte + bit + 1};
}
constexpr Morsetto_Q Q(int byte, int bit) {
  return {8 * byte + bit + 1};
}

/// A push button: it acts while it is held.
struct Riga_Pulsante {
  const char* Nome;
  Morsetto_I Posizione;
  char Giu, Su;  ///< the input while held, and after
  const char* Picture_Giu;
  const char* Picture_Su;
};

/// What changes over at each click: a thermal relay tripped by hand, a selector, a mushroom button.
struct Riga_Commutatore {
  const char* Nome;
  Morsetto_I Posizione;
  char Azionato, Riposo;  ///< the input after the first click, and after the next
  const char* Picture_Azionato;
  const char* Picture_Riposo;
};

struct Riga_Lampada {
  const char* Nome;
  Morsetto_Q Uscita;
  const char* Picture;  ///< lit; a dark lamp shows `Lampada_Spenta`
};

inline constexpr const char* Lampada_Spenta = "imgLNot";

/// A contactor with the auxiliary contact that tells the program of it, and the wire it feeds.
struct Riga_Contattore {
  const char* Nome;
  const char* Contatto;
  const char* Filo;
  Morsetto_Q Uscita;
  Morsetto_I Ingresso;  ///< of the auxiliary contact
};

}  // namespace tavorno
