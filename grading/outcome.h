// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavorno {

/// Something that did not hold, in the student's language (UTF-8), and when.
struct Rilievo {
  std::int64_t Ms = 0;  ///< virtual time since the case began
  std::string Testo;

  bool operator==(const Rilievo&) const = default;
};

/// What became of something that a script asks for.
enum class Esito_Richiesta {
  Soddisfatta,
  Mancata,
  Non_Giudicata  ///< something that must come before did not happen, or the program broke
};

/// One `punti` or `serve` that a script came by, in its own words.
struct Richiesta {
  bool Premessa = false;  ///< of `serve`, which carries no marks itself
  double Punti = 0;       ///< marks that it is worth
  std::string Testo;
  Esito_Richiesta Esito = Esito_Richiesta::Soddisfatta;
  std::int64_t Ms = 0;  ///< virtual time since the case began

  bool operator==(const Richiesta&) const = default;
};

/// One `prova` of a script. What a script does outside of all is a case of its own. A case that is
/// not passed never has full marks, unless the script is to blame.
struct Caso {
  std::string Script;  ///< file name
  std::string Nome;
  std::vector<Richiesta> Richieste;  ///< in the order in which the script came by them
  std::vector<Rilievo> Rilievi;      ///< empty: the case is passed
  std::vector<std::string> Note;     ///< what the script printed
  std::int64_t Ms = 0;               ///< virtual time of the case
  double Punti = 0;
  double Massimo = 0;          ///< what the case declares, or else what it came by
  bool Script_Errato = false;  ///< the script went wrong here, and not the program
  std::string Listato;         ///< the program where it went wrong, in lines; empty when it did not

  bool Superato() const { return Rilievi.empty(); }
  bool operator==(const Caso&) const = default;
};

/// What all scripts say of one project.
struct Esito_Progetto {
  std::string Progetto;       ///< path as given
  std::string Data;           ///< when the file was last changed, "2026-03-07T10:12:00Z"
  std::string Non_Esaminato;  ///< why it was not graded, in Italian; empty: it was
  bool Illeggibile = false;
  bool Con_Errori = false;  ///< it was read, and does not compile
  bool Compilato = false;
  std::vector<Caso> Casi;

  int Superati() const;
  double Punti() const;
  double Massimo() const;
  bool Superato() const {
    return Non_Esaminato.empty() && Superati() == static_cast<int>(Casi.size());
  }
  /// "superato", "fallito", "non compilato", "script errato", "illeggibile", "non esaminato".
  const char* Giudizio_In_Breve() const;
  /// A script went wrong: its author is to mend it, and nobody has failed.
  bool Script_Errato() const;
  /// The first thing that did not hold, a mistake of the script before others; empty when all did.
  std::string Primo_Rilievo() const;
};

/// Marks as they are written in Italian: "7", "2,5".
std::string Testo_Punti(double punti);

}  // namespace tavorno
