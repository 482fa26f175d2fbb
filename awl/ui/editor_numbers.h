// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Margins, markers and indicators of the text, by their numbers in the editor component.
namespace tavorno {

enum Margine : int { Margine_Numeri = 0, Margine_Segni = 1, Margine_Pieghe = 2 };
enum Segno_Riga : int {
  Segno_Errore = 0,
  Segno_Fondo = 1,
  Segno_Invisibile = 2,
  Segno_Avvertimento = 3,
};

// The first indicators that are free.
inline constexpr int Indicatore_Suggerimento = 8;
inline constexpr int Indicatore_Trovato = 9;
inline constexpr int Indicatore_Eccedenza = 10;

/// Between the proposals of a list, which are words with remarks.
inline constexpr char separatore_lista = '\n';

}  // namespace tavorno
