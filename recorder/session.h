// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "awl/project.h"
#include "plc/plc.h"

namespace tavorno {

/// One project on one CPU with a virtual clock and no window. Message boxes are collected, and a
/// question is answered with its first button.
class Seduta {
 public:
  Seduta();
  Seduta(const Seduta&) = delete;
  Seduta& operator=(const Seduta&) = delete;

  /// Reads a project; false when it is unreadable, and `progetto.Dettaglio` tells why.
  bool Apri(const std::string& percorso);
  /// The same from the bytes of a project file.
  bool Leggi(std::string_view byte);

  Orologio orologio;
  Plc plc;
  Progetto progetto;
  std::vector<Avviso> Avvisi;  ///< boxes shown so far, by the compiler and by the CPU

 private:
  Iscrizione ascolto_;
};

}  // namespace tavorno
