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

// What the window of a plant marks.
inline constexpr Coppia Indicata{"row whose part is pointed at", Nero, {0xff, 0xe0, 0x8a}};
inline constexpr Coppia Guasto{"a fault that is there", {0x8f, 0x15, 0x15}, {0xfd, 0xe4, 0xdc}};
inline constexpr Coppia Striscia{
    "strip of the last minute", {0x2b, 0x30, 0x36}, {0xfb, 0xfa, 0xf6}};
inline constexpr QColor Segno_Indicata(0xe0, 0x8a, 0x00);  ///< around a part; carries no text
inline constexpr QColor Griglia(0xdd, 0xd9, 0xce);         ///< carries no text
/// Curves of the strip, each on a lane of its own with its name.
inline constexpr QColor Curve[] = {
    {0x1f, 0x5f, 0xa8}, {0xa8, 0x4a, 0x12}, {0x1b, 0x7a, 0x53}, {0x7a, 0x3f, 0x9d}};

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
inline constexpr QColor Scala_Agisce(0xff, 0xee, 0xeb);   ///< inside a box that works
inline constexpr QColor Scala_Cursore(0x2f, 0x6f, 0xb5);  ///< beside the network of the caret
inline constexpr QColor Scala_Bordo(0xb8, 0xbe, 0xc6);    ///< between networks
inline constexpr Coppia Valore_Riga{"value beside a line", {0x1b, 0x1f, 0x24}, {0xe2, 0xe7, 0xed}};
inline constexpr QColor Corrente(0x1f, 0x9d, 0x45);           ///< power flows behind a line
inline constexpr QColor Senza_Corrente(0xb4, 0xbc, 0xc6);     ///< none does
inline constexpr QColor Prossima_Riga(0x1f, 0x6f, 0x9e);      ///< mark of the next line
inline constexpr QColor Fermata(0xc0, 0x28, 0x1c);            ///< mark of a stop
inline constexpr QColor Fermata_Possibile(0xe8, 0xb4, 0xae);  ///< where a click would set one
inline constexpr QColor Fuori_Colonna(0xd0, 0x11, 0x2b);  ///< frame of what the file cannot hold
inline constexpr QColor Trovato(0xa8, 0x6a, 0x00);        ///< frame of what was looked for
inline constexpr Coppia Cella_Cambiata{"watched cell, changed", Nero, {0xff, 0xe9, 0x8a}};
inline constexpr Coppia Cella_Forzata{"watched cell, forced", Bianco, {0xa8, 0x4a, 0x12}};

/// The timing diagram, in the order of its list of what a colour stands for.
inline constexpr QColor Tempi[] = {
    Bianco,              // ground
    {0xf7, 0xf9, 0xfb},  // ground of the names
    {0xe6, 0xeb, 0xf1},  // ground of a group
    {0xf0, 0xf3, 0xf7},  // ground of the axis
    {0xcf, 0xe2, 0xf7},  // selected row
    {0xe3, 0xe7, 0xec},  // between rows
    {0xd3, 0xd9, 0xe0},  // grid
    {0xd8, 0xcd, 0xea},  // scans
    {0x1b, 0x1f, 0x24},  // text
    {0x56, 0x60, 0x70},  // lesser text
    {0x1f, 0x6f, 0x9e},
    {0xcf, 0xe4, 0xf2},  // inputs
    {0xb3, 0x54, 0x1e},
    {0xf8, 0xdc, 0xc6},  // outputs
    {0x6a, 0x45, 0xa0},
    {0xe4, 0xda, 0xf3},  // memory
    {0x14, 0x7a, 0x5c},
    {0xcd, 0xea, 0xde},  // timers and counters
    {0x0b, 0x6e, 0x3a},  // cursor A
    {0x8a, 0x1f, 0xa0},  // cursor B
    {0xff, 0xf6, 0xd6},  // between the cursors
    {0xc0, 0x28, 0x1c},  // trigger
    {0x8a, 0x5a, 0x00},  // found
    {0xec, 0xee, 0xf1},  // not recorded
    Bianco,
};
inline constexpr Coppia Tempi_Nomi{"diagram, names", Tempi[8], Tempi[1]};
inline constexpr Coppia Tempi_Scelta{"diagram, selected row", Tempi[9], Tempi[4]};
inline constexpr Coppia Tempi_Asse{"diagram, axis", Tempi[9], Tempi[3]};
inline constexpr Coppia Tempi_Gruppo{"diagram, group", Tempi[8], Tempi[2]};
inline constexpr Coppia Tempi_A{"diagram, cursor A", Tempi[24], Tempi[18]};
inline constexpr Coppia Tempi_B{"diagram, cursor B", Tempi[24], Tempi[19]};
inline constexpr Coppia Tempi_Valore_A{"diagram, value at A", Tempi[18], Tempi[4]};
inline constexpr Coppia Tempi_Valore_B{"diagram, value at B", Tempi[19], Tempi[4]};
inline constexpr Coppia Tempi_Segno{"diagram, trigger", Tempi[24], Tempi[21]};
inline constexpr Coppia Tempi_Trovato{"diagram, found", Tempi[24], Tempi[22]};

inline constexpr Coppia Tutte[] = {
    Tempo_Acceso,   Tempo_Spento,   Pila,         Numero_Riga,    Ingressi,       Uscite,
    In_Run,         In_Stop,        Bit_Uno,      Scala_Testo,    Scala_Commento, Scala_Simbolo,
    Scala_Vivo,     Scala_Valore,   Scala_Scelta, Scala_Presente, Scala_Errore,   Scala_Aiuto,
    Tempi_Nomi,     Tempi_Scelta,   Tempi_Asse,   Tempi_Gruppo,   Tempi_A,        Tempi_B,
    Tempi_Valore_A, Tempi_Valore_B, Tempi_Segno,  Tempi_Trovato,  Valore_Riga,    Cella_Cambiata,
    Cella_Forzata,  Indicata,       Guasto,       Striscia};

}  // namespace tavorno::colori
