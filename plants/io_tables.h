// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace tavorno {

/// One row of an exercise's table of inputs and outputs. Texts are UTF-8 and exact.
struct Riga_IO {
  const char* Simbolo;
  /// "I0.0", "Q1.5", or an analog word such as "AIW0".
  const char* Indirizzo;
  const char* Commento;
};

/// The tables of the eighteen exercises, in the order in which they are shown.
std::span<const Riga_IO> Righe_IO_00();
std::span<const Riga_IO> Righe_IO_01();
std::span<const Riga_IO> Righe_IO_02();
std::span<const Riga_IO> Righe_IO_03();
std::span<const Riga_IO> Righe_IO_04();
std::span<const Riga_IO> Righe_IO_05();
std::span<const Riga_IO> Righe_IO_06();
std::span<const Riga_IO> Righe_IO_07();
std::span<const Riga_IO> Righe_IO_08();
std::span<const Riga_IO> Righe_IO_09();
std::span<const Riga_IO> Righe_IO_10();
std::span<const Riga_IO> Righe_IO_11();
std::span<const Riga_IO> Righe_IO_12();
std::span<const Riga_IO> Righe_IO_13();
std::span<const Riga_IO> Righe_IO_14();
std::span<const Riga_IO> Righe_IO_15();
std::span<const Riga_IO> Righe_IO_16();
std::span<const Riga_IO> Righe_IO_17();

}  // namespace tavorno
