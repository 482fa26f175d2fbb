// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "grading/outcome.h"
#include "grading/sandbox.h"
#include "grading/script_files.h"
#include "grading/test_bed.h"

namespace tavorno {

class Traccia;

/// What scripts are run against.
struct Ambiente_Script {
  const Memoria* Programma = nullptr;  ///< compiled; nullptr when there is none
  std::string Motivo;                  ///< why there is none
  std::string Listato;                 ///< and the listing of its errors
  const Esercizio* Impianto = nullptr;
  Traccia* Registra = nullptr;   ///< gets every case, one behind the other; may be nullptr
  std::string Solo_Caso;         ///< the only case to run; empty: all
  bool Basta_Un_Errore = false;  ///< no case behind the first that fails
  Scorte Inizio;                 ///< what each script may spend
  Limiti_Script Limiti;
};

/// One script at work on one program.
class Esame {
 public:
  Esame(const Sorgente_Script& script, const Ambiente_Script& ambiente);
  Esame(const Esame&) = delete;
  Esame& operator=(const Esame&) = delete;

  std::vector<Caso> Esegui();

  // For the functions that the script calls:

  /// The machine of the present case.
  Collaudo& Banco();
  bool Inizia(const std::string& nome);  ///< false: the case is not wanted
  void Fine();
  void Rileva(const std::string& testo);
  void Segna_Punti(double punti, bool meritati, const std::string& testo);
  void Annota(const std::string& testo);
  /// Puts a file that stands beside the script on the stack, as a function; false: it was there
  /// before.
  bool Usa(const std::string& nome);
  void Registra_Errore(lua_State* stato);  ///< takes the message from the top of the stack

  bool In_Prova = false;       ///< a `prova` is running
  bool Interrotto = false;     ///< a limit was passed, which ends the script
  int Numero_Caso = 0;         ///< moves with each machine, so that nothing of an old one is used
  std::string Errore;          ///< the message on its way to the script
  std::vector<Avviso> Avvisi;  ///< on their way to the script
  Recinto& Spazio() { return recinto_; }
  bool Esaurito() const { return recinto_.Esaurito() || scorte_.Ms < 0 || scorte_.Righe < 0; }

  static Esame& Di(lua_State* stato);

 private:
  Caso& Adesso();
  void Rileva_Sempre(std::int64_t ms, const std::string& testo);

  const Sorgente_Script& script_;
  const Ambiente_Script& ambiente_;
  Scorte scorte_;
  std::set<std::string> usati_;  // files beside the script
  std::vector<Caso> casi_;
  std::unique_ptr<Collaudo> banco_;  // of the present case
  Recinto recinto_;
};

/// The mistake in the text of a script, in Italian; empty when it can be run.
std::string Errore_Di_Sintassi(const Sorgente_Script& script);

}  // namespace tavorno
