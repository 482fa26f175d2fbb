// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "grading/outcome.h"
#include "grading/sandbox.h"
#include "grading/script_files.h"
#include "grading/test_bed.h"
#include "trace/trace.h"

namespace tavorno {

/// A case that has just been played, for who looks on. All of it goes when the call ends.
struct Caso_Giocato {
  const Caso& Esito;
  std::size_t Numero, Tutti;  ///< from 1; of the cases of this script
  /// What entered up to the first finding, when it was written down; nullptr for a passed case.
  const Seduta_Registrata* Film;
  const Traccia* Tempi;  ///< its inputs and outputs, when they were recorded
};
using Chi_Guarda = std::function<void(const Caso_Giocato&)>;

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
  Chi_Guarda Al_Caso;     ///< called behind each case; may be empty
  bool Riprendi = false;  ///< with film and times
  bool Tempi = false;     ///< with times only
};

/// One script at work on one program.
class Esame {
 public:
  /// `funzioni` makes known what the script may call.
  Esame(const Sorgente_Script& script, const Ambiente_Script& ambiente,
        int (*funzioni)(lua_State*));
  Esame(const Esame&) = delete;
  Esame& operator=(const Esame&) = delete;

  std::vector<Caso> Esegui();
  /// Reads the script without playing its cases; the plant that it names, or nullptr.
  const Esercizio* Leggi();

  // For the functions that the script calls:

  /// The machine of the present case.
  Collaudo& Banco();
  /// A case that is played once the whole script is read, so that a limit or an error in one case
  /// leaves the others and their marks in the sum. `funzione` is its place in the registry of the
  /// language.
  void Aggiungi_Prova(const std::string& nome, std::optional<double> massimo, int funzione);
  /// The script names its plant. Throws `Errore_Script` for another than the one that was asked
  /// for, and once a machine is there.
  void Scegli_Impianto(int numero);
  void Rileva(const std::string& testo);
  void Verifica(bool vera, const std::string& testo);
  void Serve(bool vera, const std::string& testo);
  /// Nothing that the present case still does can change what it is worth.
  bool Conclusa() const { return conto_.Senza_Premessa && conto_.Dichiarati.has_value(); }
  void Segna_Punti(double punti, bool meritati, const std::string& testo);
  void Annota(const std::string& testo);
  /// Puts a file that stands beside the script on the stack, as a function; false: it was there
  /// before.
  bool Usa(const std::string& nome);
  bool In_Prova = false;       ///< a `prova` is running
  int Numero_Caso = 0;         ///< moves with each machine, so that nothing of an old one is used
  std::string Errore;          ///< the message on its way to the script
  std::vector<Avviso> Avvisi;  ///< on their way to the script
  Recinto& Spazio() { return recinto_; }

  static Esame& Di(lua_State* stato);

 private:
  struct Prova {
    std::string Nome;
    std::optional<double> Massimo;
    int Funzione;
  };
  /// What decides on the marks of the present case.
  struct Conto {
    std::optional<double> Dichiarati;
    double Contati = 0;  // of all `punti` so far
    bool Senza_Premessa = false;
    bool Senza_Punti = false;  // failed for something that carries no marks
  };

  bool Voluta(const Prova& prova) const;
  void Esegui_Prova(const Prova& prova);
  void Inizia(const std::string& nome, std::optional<double> massimo);
  void Registra_Tempi();
  void Fine();
  bool Si_Giudica();
  void Registra(bool premessa, double punti, bool soddisfatta, const std::string& testo);
  void Registra_Errore(lua_State* stato);  // takes the message from the top of the stack
  void Incolpa_Script(const std::string& testo);
  bool Esaurito() const { return recinto_.Esaurito() || scorte_.Ms < 0; }
  Caso& Adesso();
  void Rileva_Sempre(std::int64_t ms, const std::string& testo);

  const Sorgente_Script& script_;
  const Ambiente_Script& ambiente_;
  int (*funzioni_)(lua_State*);
  const Esercizio* impianto_;
  Scorte scorte_;
  std::set<std::string> usati_;  // files beside the script
  std::vector<Prova> prove_;
  std::vector<Caso> casi_;
  Conto conto_;
  std::optional<Seduta_Registrata> film_;  // of the present case
  std::optional<Traccia> tempi_;
  std::unique_ptr<Collaudo> banco_;  // of the present case
  Recinto recinto_;
};

/// The mistake in the text of a script, in Italian; empty when it can be run.
std::string Errore_Di_Sintassi(const Sorgente_Script& script);

/// A script that can be run. Throws `std::runtime_error` with the file and what is wrong with it,
/// in Italian.
Sorgente_Script Leggi_Script(const std::string& file);

}  // namespace tavorno
