// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/symbols.h"

#include <algorithm>
#include <array>

#include "plc/instructions.h"

namespace tavorno {

namespace {

struct Riga_Simbolo {
  std::string_view Istr;
  Ruolo Cosa;
  std::string_view Segno;
  int Ingressi = 1;
  bool Lascia_Altro = false;
};

// All that is neither a contact with an operand nor a plain box.
constexpr std::array elenco = {
    Riga_Simbolo{"NOT", Ruolo::Trasforma, "NOT"},
    Riga_Simbolo{"EU", Ruolo::Trasforma, "P"},
    Riga_Simbolo{"ED", Ruolo::Trasforma, "N"},
    Riga_Simbolo{"ALD", Ruolo::Pila, ""},
    Riga_Simbolo{"OLD", Ruolo::Pila, ""},
    Riga_Simbolo{"LPS", Ruolo::Pila, ""},
    Riga_Simbolo{"LRD", Ruolo::Pila, ""},
    Riga_Simbolo{"LPP", Ruolo::Pila, ""},
    Riga_Simbolo{"=", Ruolo::Bobina, ""},
    Riga_Simbolo{"=I", Ruolo::Bobina, "I"},
    Riga_Simbolo{"S", Ruolo::Bobina, "S"},
    Riga_Simbolo{"R", Ruolo::Bobina, "R"},
    Riga_Simbolo{"SI", Ruolo::Bobina, "SI"},
    Riga_Simbolo{"RI", Ruolo::Bobina, "RI"},
    Riga_Simbolo{"JMP", Ruolo::Bobina, "JMP"},
    Riga_Simbolo{"CALL", Ruolo::Bobina, "CALL", 1, true},
    Riga_Simbolo{"CRET", Ruolo::Bobina, "RET"},
    Riga_Simbolo{"CTU", Ruolo::Contatore, "CTU", 2},
    Riga_Simbolo{"CTD", Ruolo::Contatore, "CTD", 2},
    Riga_Simbolo{"CTUD", Ruolo::Contatore, "CTUD", 3},
    Riga_Simbolo{"LBL", Ruolo::Da_Solo, "LBL", 1, true},
    Riga_Simbolo{"LSCR", Ruolo::Da_Solo, "LSCR"},
    Riga_Simbolo{"SCRE", Ruolo::Da_Solo, "SCRE"},
    Riga_Simbolo{"NOP", Ruolo::Da_Solo, "NOP"},
};

struct Inizio_Mnemonico {
  std::string_view Testo;
  Attacco Come;
};
constexpr std::array<Inizio_Mnemonico, 3> inizi = {
    {{"LD", Attacco::Inizio}, {"A", Attacco::In_Serie}, {"O", Attacco::In_Parallelo}}};

/// What stands between the strokes: of "N" a slash, of "B>=" the relation and its width.
std::string Segno_Contatto(std::string_view coda) {
  if (coda == "N") return "/";
  if (coda == "NI") return "/I";
  if (coda.size() < 2) return std::string(coda);  // nothing, or immediate
  const std::string relazione(coda.substr(1));
  return (relazione == "=" ? "==" : relazione) + coda.front();
}

}  // namespace

Simbolo Simbolo_Di(std::string_view istr) {
  const auto riga = std::ranges::find(elenco, istr, &Riga_Simbolo::Istr);
  if (riga != elenco.end())
    return {riga->Cosa,     Attacco::Inizio,   {}, std::string(riga->Segno),
            riga->Ingressi, riga->Lascia_Altro};
  const Istruzione* istruzione = Cerca_Istruzione(istr);
  const bool contatto = istruzione && (istruzione->Gruppo_Manuale == Famiglia::Contatti ||
                                       istruzione->Gruppo_Manuale == Famiglia::Confronti);
  if (contatto) {
    for (const Inizio_Mnemonico& inizio : inizi) {
      if (!istr.starts_with(inizio.Testo)) continue;
      const std::string_view coda = istr.substr(inizio.Testo.size());
      return {Ruolo::Contatto, inizio.Come, "LD" + std::string(coda), Segno_Contatto(coda)};
    }
  }
  return {Ruolo::Scatola, Attacco::Inizio, {}, std::string(istr)};
}

std::string Attaccato(const std::string& base, Attacco come) {
  const std::string coda = base.substr(inizi.front().Testo.size());
  return std::string(inizi[static_cast<std::size_t>(come)].Testo) + coda;
}

}  // namespace tavorno
