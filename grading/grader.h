// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "grading/outcome.h"
#include "grading/script.h"

namespace tavorno {

/// What every hand-in is examined with.
struct Verifiche {
  std::vector<Sorgente_Script> Script;
  const Esercizio* Impianto = nullptr;
  std::string Solo_Caso;         ///< empty: all
  bool Basta_Un_Errore = false;  ///< cases behind the first that fails are not run
  Limiti_Script Limiti;
  Scorte Inizio;
  Chi_Guarda Al_Caso;     ///< called behind each case; may be empty
  bool Riprendi = false;  ///< with film and times
  bool Tempi = false;     ///< with times only
};

/// Runs all scripts on a compiled program. Never throws for what the program or a script does.
Esito_Progetto Esamina_Programma(const Memoria& programma, const Verifiche& verifiche,
                                 Traccia* traccia = nullptr);

/// Compiles a project and runs all scripts on it. Never throws for what the project or a script
/// does: a project that cannot be read or compiled fails every case, and still counts its marks.
Esito_Progetto Esamina(const std::string& percorso, const Verifiche& verifiche,
                       Traccia* traccia = nullptr);

/// The plant that the first of these scripts names; nullptr when none does.
const Esercizio* Impianto_Nominato(const std::vector<Sorgente_Script>& script);

/// The outcome of a hand-in that was found and not graded.
Esito_Progetto Non_Esaminata(const std::string& percorso, const std::string& motivo);

/// Examines many on `processi` threads. `finito` is called in the order of the list, one at a time.
/// Once `basta` says so no other is begun: those that are left are handed out as not graded.
void Esamina_Tutti(const std::vector<std::string>& percorsi, const Verifiche& verifiche,
                   unsigned processi, const std::function<void(Esito_Progetto)>& finito,
                   const std::function<void(std::size_t)>& avanzamento = {},
                   const std::function<bool()>& basta = {});

}  // namespace tavorno
