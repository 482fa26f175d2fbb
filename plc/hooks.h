// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "plc/entries.h"
#include "plc/subscription.h"

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

/// What the CPU shows: the present, or a moment that has been. In the past nothing enters; while it
/// is played again only what entered then does, and nobody writes it down, answers it or adds to
/// it.
enum class Vissuto : std::uint8_t { Presente, Passato, Replica };

/// The only way from the CPU to a window. Nobody has to listen.
struct Ganci {
  /// The yield of a run: `fai` is called before its first line, at the top of each scan, otherwise
  /// every `righe` lines (at least 1; of several listeners the smallest number counts), and at each
  /// line while Ciclo looks for the one to stop at.
  Iscrizione Ascolta_Cedi(std::function<void()> fai, int righe = 1) {
    return cedi_.Ascolta([fai = std::move(fai), righe](int& fino_a) {
      fino_a = std::min(fino_a, righe);
      fai();
    });
  }
  /// The same, where `fai` says at each yield how many lines may follow.
  Iscrizione Ascolta_Cedi_Righe(std::function<int()> fai) {
    return cedi_.Ascolta([fai = std::move(fai)](int& fino_a) { fino_a = std::min(fino_a, fai()); });
  }
  /// Gives way, and returns how many lines may follow: 1 when nobody listens.
  int Cedi() {
    int righe = std::numeric_limits<int>::max();
    cedi_(righe);
    return righe == std::numeric_limits<int>::max() ? 1 : righe;
  }
  bool Cedi_Ascoltato() const { return cedi_.Ascoltato(); }

  Annuncio<const Avviso&> Mostra;  ///< a message box; a round ends when it is closed
  Annuncio<const Atto&> Entra;     ///< something is about to enter

  Vissuto Adesso = Vissuto::Presente;

 private:
  Annuncio<int&> cedi_;
};

}  // namespace tavorno
