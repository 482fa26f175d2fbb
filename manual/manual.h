// SPDX-License-Identifier: GPL-3.0-or-later
// What the user of a program reads about its command line. One table, from which its --help and
// the pages of the system's manual are drawn.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tavorno {

enum class Lingua : std::uint8_t { Italiano, Inglese };

/// A text in two languages, UTF-8; the second one is left out where it is the same. A line end is
/// kept by --help; in the manual it is one only in front of a line that begins with a quote.
/// "{esercizi}" stands for the numbers of the exercises, "0..17".
struct Testo_Manuale {
  const char* Italiano;
  const char* Inglese = nullptr;

  const char* In(Lingua lingua) const {
    return lingua == Lingua::Inglese && Inglese != nullptr ? Inglese : Italiano;
  }
};

/// An option with its value, and what it does.
struct Opzione_Manuale {
  Testo_Manuale Nome;
  Testo_Manuale Testo;
};

/// One way to call a program.
struct Comando_Manuale {
  Testo_Manuale Uso;
  Testo_Manuale Testo;
  std::span<const Opzione_Manuale> Opzioni;
  bool Rimando = false;  ///< told in full by a --help of its own
};

struct Manuale {
  const char* Nome;           ///< of the program, with its command if this is only that one's
  Testo_Manuale Riassunto;    ///< what it does, without a full stop
  Testo_Manuale Descrizione;  ///< for the manual; paragraphs are divided by empty lines
  std::span<const Comando_Manuale> Comandi;
  Testo_Manuale Stati;  ///< the exit statuses, as a sentence
  std::span<const Opzione_Manuale> File;
};

/// The help from its first line to the last way to call the program; Italian.
std::string Aiuto_Uso(const Manuale& manuale);
/// The exit statuses, the last paragraph of the help; Italian.
std::string Aiuto_Stati(const Manuale& manuale);
/// The whole help.
std::string Aiuto(const Manuale& manuale);

/// What stands in the head and foot of a page of the manual.
struct Edizione {
  std::string Versione;
  std::string Giorno;  ///< of the release, as 2026-11-21
};

/// A chapter that the table of the program does not have.
struct Capitolo {
  Testo_Manuale Titolo;
  Testo_Manuale Testo;
  std::span<const Opzione_Manuale> Voci;
};

/// A page of section 1 of the manual, for man(7). The commands of `parti` take the place of those
/// of `manuale` that only point at them.
std::string Pagina_Man(const Manuale& manuale, std::span<const Manuale> parti,
                       std::span<const Capitolo> capitoli, const char* vedi_anche, Lingua lingua,
                       const Edizione& edizione);

}  // namespace tavorno
