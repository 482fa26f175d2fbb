// SPDX-License-Identifier: GPL-3.0-or-later
// One compiled line against the table of instructions.
#include "awl/checker.h"

#include "awl/operand.h"
#include "awl/text.h"
#include "plc/instructions.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

/// An operand whose number does not fit its cell.
bool Troppo_Grande(const std::string& operando) {
  return !Numero_16(Split_Operando(operando).Numero);
}

/// The rule of a family. Each test writes the same place in turn, so a later fault stands.
Esito_Riga Applica(const Regola& regola, const Riga_PLC& riga) {
  Esito_Riga giudizio;
  const auto prova = [&](Verdetto nuovo, Parte_Riga dove) {
    if (nuovo.Stato != 0) giudizio = {nuovo.Stato, nuovo.Testo, dove};
  };
  if (riga.NOper != regola.Operandi) {
    prova(regola.Se_Diverso, Parte_Riga::Intera);
  } else {
    prova(regola.Op1.Controlla(riga.Codice1, riga.Num1), Parte_Riga::Operando1);
    if (regola.Op2) prova(regola.Op2->Controlla(riga.Codice2, riga.Num2), Parte_Riga::Operando2);
  }
  if (regola.Prova_Bit && riga.Bit1 >= 8)
    prova({9, "-> Indirizzo Bit OP1 non ammesso"}, Parte_Riga::Operando1);
  return giudizio;
}

Esito_Riga Giudica(const Riga_PLC& riga) {
  const Istruzione* istruzione = Cerca_Istruzione(riga.Istr);
  if (!istruzione) return {3, "-> Istruzione non riconosciuta"};
  switch (istruzione->Trattamento) {
    case Gruppo::Senza_Operandi:
      return riga.NOper == 0 ? Esito_Riga{} : Esito_Riga{3, "-> Operandi non supportati"};
    case Gruppo::Non_Supportata:
      return {2, "-> Istruzione non supportata"};
    case Gruppo::Con_Regola:
      return Applica(*istruzione->Operandi, riga);
    case Gruppo::Accettata:
      break;
  }
  return {};
}

}  // namespace

Esito_Riga Controlla_Riga(const Riga_PLC& riga, const Riga_Src& sorgente) {
  Esito_Riga giudizio = Giudica(riga);
  // A number that cannot be stored is refused, unless the line is refused for a graver reason.
  const bool per_operandi = giudizio.Stato == 0 || giudizio.Stato == 6 || giudizio.Stato == 9;
  if (per_operandi && !Nomina_Procedura(riga.Istr)) {
    if (riga.NOper >= 1 && Troppo_Grande(sorgente.Op1))
      giudizio = {6, "-> Valore troppo Grande in OP1", Parte_Riga::Operando1};
    if (riga.NOper >= 2 && Troppo_Grande(sorgente.Op2))
      giudizio = {6, "-> Valore troppo Grande in OP2", Parte_Riga::Operando2};
  }
  return giudizio;
}

Tratto_Riga Tratto_Di(const Riga_Src& sorgente, Parte_Riga parte) {
  constexpr int separatore = 2;  // ", "
  const auto lungo = [](const std::string& testo) { return static_cast<int>(testo.size()); };
  const int primo = static_cast<int>(Colonna_Operandi);
  switch (parte) {
    case Parte_Riga::Operando1:
      return {primo, lungo(sorgente.Op1)};
    case Parte_Riga::Operando2:
      return {primo + lungo(sorgente.Op1) + separatore, lungo(sorgente.Op2)};
    case Parte_Riga::Intera:
      break;
  }
  return {0, lungo(Trim(sorgente.Testo_Lista.substr(0, sorgente.Testo_Lista.find("//"))))};
}

}  // namespace tavorno
