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

// The sheet of a ladder diagram, on screen and on paper.
inline constexpr Coppia Scala_Testo{"ladder", {0x1a, 0x1a, 0x1a}, Bianco};
inline constexpr Coppia Scala_Commento{"comment of a ladder", {0x4a, 0x4a, 0x4a}, Bianco};
inline constexpr Coppia Scala_Simbolo{"name of a plant's part", {0x1f, 0x4e, 0x79}, Bianco};
inline constexpr Coppia Scala_Vivo{"live wire", {0xc0, 0x00, 0x00}, Bianco};
inline constexpr Coppia Scala_Valore{"number in a ladder", {0x6b, 0x2f, 0x8a}, Bianco};
inline constexpr Coppia Scala_Scelta{"chosen symbol", Scala_Testo.Testo, {0xd3, 0xe5, 0xf8}};
inline constexpr Coppia Scala_Presente{"present line", Scala_Testo.Testo, {0xff, 0xe7, 0x9c}};
inline constexpr Coppia Scala_Errore{"refused operand", {0xa8, 0x00, 0x14}, {0xfd, 0xec, 0xec}};
inline constexpr Coppia Scala_Aiuto{"help to an operand", Scala_Testo.Testo, {0xff, 0xfb, 0xe6}};
inline constexpr QColor Scala_Passa(0xff, 0xc9, 0xc2);    ///< inside a contact that lets power pass
inline constexpr QColor Scala_Cursore(0x2f, 0x6f, 0xb5);  ///< beside the network of the caret
inline constexpr QColor Scala_Bordo(0xb8, 0xbe, 0xc6);    ///< between networks

inline constexpr Coppia Tutte[] = {
    Tempo_Acceso, Tempo_Spento, Pila,         Numero_Riga,    Ingressi,       Uscite,
    In_Run,       In_Stop,      Bit_Uno,      Scala_Testo,    Scala_Commento, Scala_Simbolo,
    Scala_Vivo,   Scala_Valore, Scala_Scelta, Scala_Presente, Scala_Errore,   Scala_Aiuto};

}  // namespace tavorno::colori
