// SPDX-License-Identifier: GPL-3.0-or-later
// The 54 comparison contacts: three widths here, connection and relation on the compiled line.
#include <array>
#include <utility>

#include "plc/instructions.h"
#include "plc/operands.h"
#include "plc/plc.h"

namespace tavorno {

namespace {
bool Vale(Relazione relazione, std::int32_t primo, std::int32_t secondo) {
  const int confronto = (primo > secondo) - (primo < secondo);  // -1, 0, 1
  return (static_cast<unsigned>(relazione) >> (confronto + 1) & 1U) != 0;
}

/// The second operand is read first, and the first one in any case. `letti`: both could be read.
template <auto Lettura>
[[gnu::always_inline]] inline bool Tiene(const Memoria& memoria, const Riga_PLC& riga, Area area,
                                         bool& letti) {
  std::int32_t primo = 0, secondo = 0;
  letti = Lettura(memoria, riga.Codice2, riga.Num2, secondo);
  letti = Lettura(memoria, area, riga.Num1, primo) && letti;
  return letti && Vale(riga.Confronto, primo, secondo);
}

/// A failure of either operand leaves the stack alone.
template <auto Lettura>
[[gnu::always_inline]] inline Esito Confronto(Plc& plc, const Riga_PLC& riga, Area area) {
  bool letti = false;
  const std::int16_t r = Tiene<Lettura>(plc, riga, area, letti) ? 1 : 0;
  if (!letti) return Esito::Errore;
  switch (riga.Unione) {
    case Connessione::LD:
      plc.GestStak(Op_Pila::Spingi, r);
      break;
    case Connessione::A:
      Cima_E(plc, r);
      break;
    case Connessione::O:
      Cima_O(plc, r);
      break;
  }
  return Esito::Avanti;
}

template <auto Lettura>
bool Confronta(const Memoria& memoria, const Riga_PLC& riga, std::int16_t& err) {
  bool letti = false;
  const bool tiene = Tiene<Lettura>(memoria, riga, riga.Codice1, letti);
  if (!letti) err = -1;
  return tiene;
}

[[gnu::always_inline]] inline Esito Istr_Confronto_B(Plc& plc, Riga_PLC& riga, Area area) {
  return Confronto<Operando_B>(plc, riga, area);
}
[[gnu::always_inline]] inline Esito Istr_Confronto_W(Plc& plc, Riga_PLC& riga, Area area) {
  return Confronto<Operando_W>(plc, riga, area);
}
[[gnu::always_inline]] inline Esito Istr_Confronto_D(Plc& plc, Riga_PLC& riga, Area area) {
  return Confronto<Operando_D>(plc, riga, area);
}

}  // namespace

bool Memoria::Confronta_B(const Riga_PLC& riga, std::int16_t& err) const {
  return Confronta<Operando_B>(*this, riga, err);
}
bool Memoria::Confronta_W(const Riga_PLC& riga, std::int16_t& err) const {
  return Confronta<Operando_W>(*this, riga, err);
}
bool Memoria::Confronta_D(const Riga_PLC& riga, std::int16_t& err) const {
  return Confronta<Operando_D>(*this, riga, err);
}

// ---- rows of the table --------------------------------------------------------------------------

// The 54 comparison contacts by connection, width and relation, and 18 on real numbers, which are
// refused.
righe::Righe righe::Confronti() {
  struct Larghezza {
    const char* lettera;
    const char* nome;
    const Regola* regola;
    Rami rami;
  };
  static const std::array<Larghezza, 3> larghezze = {{
      {"B", "byte", &regole::Confronto_B, Per_Area<Istr_Confronto_B>()},
      {"W", "parole", &regole::Confronto_W, Per_Area<Istr_Confronto_W>()},
      {"D", "doppie parole", &regole::Confronto_D, Per_Area<Istr_Confronto_D>()},
  }};
  static constexpr std::array<std::pair<const char*, Relazione>, 6> relazioni = {{
      {"=", Relazione::Uguale},
      {"<>", Relazione::Diverso},
      {">=", Relazione::Maggiore_Uguale},
      {"<=", Relazione::Minore_Uguale},
      {">", Relazione::Maggiore},
      {"<", Relazione::Minore},
  }};
  static constexpr std::array<std::pair<const char*, Connessione>, 3> connessioni = {
      {{"LD", Connessione::LD}, {"A", Connessione::A}, {"O", Connessione::O}}};
  static constexpr std::array<const char*, 3> verbi = {"Carica", "AND con", "OR con"};

  Righe tutte;
  for (std::size_t c = 0; c < connessioni.size(); ++c) {
    const auto& [sigla, connessione] = connessioni[c];
    const std::string verbo = verbi[c];
    Righe accettate;
    Righe reali;
    for (const Larghezza& larghezza : larghezze) {
      for (const auto& [segno, relazione] : relazioni)
        accettate.push_back(
            {.Nome = std::string(sigla) + larghezza.lettera + segno,
             .Operandi = larghezza.regola,
             .Esegui = larghezza.rami,
             .Aiuto = verbo + " il confronto tra " + larghezza.nome + ": OP1 " + segno + " OP2",
             .Unione = connessione,
             .Confronto = relazione});
    }
    for (const auto& [segno, relazione] : relazioni)
      reali.push_back({.Nome = std::string(sigla) + "R" + segno,
                       .Aiuto = verbo + " il confronto tra numeri reali: OP1 " + segno + " OP2"});
    tutte = Insieme_Di({tutte, Di(Famiglia::Confronti, Gruppo::Con_Regola, accettate),
                        Di(Famiglia::Confronti, Gruppo::Non_Supportata, reali)});
  }
  return tutte;
}

}  // namespace tavorno
