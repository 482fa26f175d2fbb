// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

// Our own colours behind and before texts; all others are the desktop's. A test computes that each
// text can be read on its ground.
namespace tavorno::colori {

/// A text and what it stands on.
struct Coppia {
  const char* Dove;
  QColor Testo, Fondo;
};

inline constexpr QColor Nero(0x00, 0x00, 0x00), Bianco(0xff, 0xff, 0xff);

inline constexpr Coppia Tempo_Acceso{
    "scan time, refreshed", {0x55, 0xf0, 0x6c}, {0x1e, 0x24, 0x2a}};
inline constexpr Coppia Tempo_Spento{"scan time, still", {0x8c, 0x94, 0x9c}, Tempo_Acceso.Fondo};
inline constexpr Coppia Pila{"logic stack", Nero, {0x80, 0xff, 0xff}};
inline constexpr QColor Pila_Spenta(0x80, 0x80, 0x80);  ///< carries no text
inline constexpr Coppia Numero_Riga{"number of a line", {0x5d, 0x64, 0x71}, {0xf0, 0xf0, 0xf0}};
inline constexpr Coppia Ingressi{"table of inputs", Nero, {0xcb, 0xee, 0xd2}};
inline constexpr Coppia Uscite{"table of outputs", Nero, {0xcc, 0xec, 0xf2}};
inline constexpr Coppia In_Run{"the CPU runs", Bianco, {0x1b, 0x7a, 0x33}};
inline constexpr Coppia In_Stop{"the CPU stands", Bianco, {0x59, 0x60, 0x68}};
inline constexpr Coppia Bit_Uno{"a bit that is 1", Bianco, {0x1f, 0x7a, 0x34}};

inline constexpr Coppia Tutte[] = {Tempo_Acceso, Tempo_Spento, Pila,    Numero_Riga, Ingressi,
                                   Uscite,       In_Run,       In_Stop, Bit_Uno};

}  // namespace tavorno::colori
