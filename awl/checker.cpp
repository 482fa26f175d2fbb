// SPDX-License-Identifier: GPL-3.0-or-later
// One compiled line against the table of instructions.
#include "awl/operand.h"
#include "awl/project.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

/// An operand whose number does not fit its cell.
bool Troppo_Grande(const std::string& operando) {
  return !Numero_16(Split_Operando(operando).Numero);
}

/// The rule of a family. Each test writes the same place in turn, so a later fault stands.
Verdetto Applica(const Regola& regola, const Riga_PLC& riga) {
  Verdetto verdetto;
  const auto prova = [&](Verdetto nuovo) {
    if (nuovo.Stato != 0) verdetto = nuovo;
  };
  if (riga.NOper != regola.Operandi) {
    prova(regola.Se_Diverso);
  } else {
    prova(regola.Op1.Controlla(riga.Codice1, riga.Num1));
    if (regola.Op2) prova(regola.Op2->Controlla(riga.Codice2, riga.Num2));
  }
  if (regola.Prova_Bit && riga.Bit1 >= 8) prova({9, "-> Indirizzo Bit OP1 non ammesso"});
  return verdetto;
}

Verdetto Giudica(const Riga_PLC& riga) {
  const Istruzione* istruzione = Cerca_Istruzione(riga.Istr);
  if (!istruzione) return {3, "-> Istruzione non riconosciuta"};
  switch (istruzione->Trattamento) {
    case Gruppo::Senza_Operandi:
      return riga.NOper == 0 ? Verdetto{} : Verdetto{3, "-> Operandi non supportati"};
    case Gruppo::Non_Supportata:
      return {2, "-> Istruzione non supportata"};
    case Gruppo::Con_Regola:
      return Applica(*istruzione->Operandi, riga);
    case Gruppo::Accettata:
      break;
  }
  return {};
}

std::string Quattro_Cifre(int numero) {
  const std::string cifre = std::to_string(numero);
  return std::string(cifre.size() < 4 ? 4 - cifre.size() : 0, '0') + cifre;
}

}  // namespace

std::uint8_t Progetto::Controlla_Riga(int indice) {
  const Riga_PLC& riga = CPU.Prog[indice];
  const Riga_Src& sorgente = Righe_Src[indice];
  Verdetto verdetto = Giudica(riga);

  // A number that cannot be stored is refused, unless the line is refused for a graver reason.
  const bool per_operandi = verdetto.Stato == 0 || verdetto.Stato == 6 || verdetto.Stato == 9;
  if (per_operandi && !Nomina_Procedura(riga.Istr)) {
    if (riga.NOper >= 1 && Troppo_Grande(sorgente.Op1))
      verdetto = {6, "-> Valore troppo Grande in OP1"};
    if (riga.NOper >= 2 && Troppo_Grande(sorgente.Op2))
      verdetto = {6, "-> Valore troppo Grande in OP2"};
  }

  const std::string esito =
      verdetto.Stato == 0 ? "[Ok!   ]" : "[Err." + Numero_Con_Spazio(verdetto.Stato) + "]";
  Lista_Comp +=
      Quattro_Cifre(indice) + " " + esito + ": " + sorgente.Testo_CPU + " " + verdetto.Testo + "\r";
  return verdetto.Stato;
}

}  // namespace tavorno
