// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace tavorno {

enum class Icona { Nessuna, Critica, Domanda };
enum class Tasti { Ok, Ok_Annulla, Si_No };
enum class Risposta { Ok, Annulla, Si, No };

/// A message box; texts in UTF-8.
struct Avviso {
  std::string Titolo;
  std::string Testo;
  Icona Simbolo = Icona::Nessuna;
  Tasti Scelte = Tasti::Ok;
  std::string Dettagli;  ///< what a box offers on request; may be empty
};

/// The only way from the CPU to a window. Every member may stay empty.
struct Ganci {
  /// The yield of a run: called before its first line, at the top of each scan, otherwise every
  /// `Righe_Per_Cessione` lines, and at each line while Ciclo looks for the one to stop at.
  std::function<void()> Cedi;
  int Righe_Per_Cessione = 1;
  std::function<void(const Avviso&)> Mostra;  ///< a message box; returns when it is closed
};

/// What changed since a window last looked. The CPU sets marks line by line, and a window takes
/// them when it next refreshes its picture. The logic stack has no mark, since nearly every line
/// changes it: a window that shows it reads it at each refresh.
enum Segno : unsigned {
  Segno_Immagini = 1U << 0,   ///< `etIPI`, `etIPQ`
  Segno_PC = 1U << 1,         ///< `etPc`
  Segno_Tempo = 1U << 2,      ///< `etTime`
  Segno_Lista = 1U << 3,      ///< `Lista_Scelta`
  Segno_Comandi = 1U << 4,    ///< `Attivi`, `PLC_Acceso`, `Modo_Run`
  Segno_Analogici = 1U << 5,  ///< analog words and voltages
};

}  // namespace tavorno
