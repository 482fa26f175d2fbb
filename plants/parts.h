// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the plants have in common, one row each. A plant hands its rows to `Impianto::Monta`, or in
// the case of outputs to the procedures that show them. Positions count from 1: 1 to 8 are I0.0 to
// I0.7 (Q0.0 to Q0.7), 9 to 16 the next byte.
namespace tavorno {

/// A push button: it acts while it is held.
struct Riga_Pulsante {
  const char* Nome;
  int Posizione;  ///< of the input
  char Giu, Su;   ///< the input while held, and after
  const char* Picture_Giu;
  const char* Picture_Su;
};

/// What changes over at each click: a thermal relay tripped by hand, a selector, a mushroom button.
struct Riga_Commutatore {
  const char* Nome;
  int Posizione;          ///< of the input
  char Azionato, Riposo;  ///< the input after the first click, and after the next
  const char* Picture_Azionato;
  const char* Picture_Riposo;
};

struct Riga_Lampada {
  const char* Nome;
  int Uscita;           ///< position of the output
  const char* Picture;  ///< lit; a dark lamp shows `Lampada_Spenta`
};

inline constexpr const char* Lampada_Spenta = "imgLNot";

/// A contactor with the auxiliary contact that tells the program of it, and the wire it feeds.
struct Riga_Contattore {
  const char* Nome;
  const char* Contatto;
  const char* Filo;
  int Uscita;    ///< position of the output
  int Ingresso;  ///< position of the input of the auxiliary contact
};

}  // namespace tavorno
