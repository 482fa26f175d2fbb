// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/operand_rules.h"

#include <algorithm>

namespace tavorno {

bool Numeri::Ammette(int numero) const {
  if (!Solo.empty()) return std::ranges::find(Solo, numero) != Solo.end();
  return !Massimo || numero <= *Massimo;
}

Numeri Numeri_Area(Area area) {
  switch (area) {
    case Area::I:
    case Area::Q:
    case Area::IB:
    case Area::QB:
      return {1, {}};
    case Area::M:
    case Area::MB:
      return {4, {}};
    case Area::SM:
    case Area::S:
      return {2, {}};
    case Area::T:
      return {40, {}};
    case Area::C:
      return {20, {}};
    case Area::VB:
    case Area::VW:
    case Area::VD:
      return {100, {}};
    case Area::IW:
    case Area::QW:
      return {0, {}};
    case Area::MW:
    case Area::AC:
      return {3, {}};
    case Area::AIW:
      return {{}, {0, 2, 4}};
    case Area::AQW:
      return {{}, {0, 2}};
    default:
      return {};
  }
}

Verdetto Regola_Operando::Controlla(Area area, int numero) const {
  for (const Ammessa& ammessa : Ammesse) {
    if (ammessa.Codice == area) return ammessa.Valori.Ammette(numero) ? Verdetto{} : ammessa.Fuori;
  }
  return std::ranges::find(Rifiutate, area) != Rifiutate.end() ? Se_Rifiutata : Altrimenti;
}

namespace {

using enum Area;

constexpr Verdetto errarto{5, "-> Numero di operandi errarto"};
constexpr Verdetto numero{5, "-> Numero Operandi non supportati"};
constexpr Verdetto codice{6, "-> Codice elemento non supportato"};
constexpr Verdetto codice_ignoto{6, "-> Codice elemento non riconosciuto"};
constexpr Verdetto codice_in_1{6, "-> Codice elemento in OP1 non supportato"};
constexpr Verdetto codice_in_2{6, "-> Codice elemento in OP2 non supportato"};
constexpr Verdetto codice_1{6, "-> Codice elemento non supportato in OP1"};
constexpr Verdetto codice_2{6, "-> Codice elemento non supportato in OP2"};
constexpr Verdetto indirizzo{6, "-> Indirizzo non supportato"};
constexpr Verdetto indirizzo_timer{6, "-> Indirizzo non supportato dal Timer"};
constexpr Verdetto indirizzo_byte{6, "-> Indirizzo Byte non supportato"};
constexpr Verdetto indirizzo_1{6, "-> Indirizzo Byte OP1 non supportato"};
constexpr Verdetto indirizzo_2{6, "-> Indirizzo Byte OP2 non supportato"};
constexpr Verdetto grande_1{6, "-> Valore troppo Grande in OP1"};
constexpr Verdetto grande_2{6, "-> Valore troppo Grande in OP2"};
constexpr Verdetto grande_biw{6, "-> Valore OP1 troppo Grande"};

using Lista = std::vector<Ammessa>;

/// Areas with the numbers of their memory; a number outside them gets `fuori`.
Lista Aree(std::initializer_list<Area> aree, Verdetto fuori) {
  Lista lista;
  for (const Area area : aree) lista.push_back({area, Numeri_Area(area), fuori});
  return lista;
}

/// Areas whose numbers are not tested.
Lista Libere(std::initializer_list<Area> aree) {
  Lista lista;
  for (const Area area : aree) lista.push_back({area, {}, {}});
  return lista;
}

Lista Con_Limite(std::initializer_list<Area> aree, int massimo, Verdetto fuori) {
  Lista lista;
  for (const Area area : aree) lista.push_back({area, {massimo, {}}, fuori});
  return lista;
}

Lista SMB_Solo(std::vector<int> numeri, Verdetto fuori) {
  return {{SMB, {{}, std::move(numeri)}, fuori}};
}

Lista operator+(Lista a, const Lista& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

Regola_Operando Solo(Lista ammesse, Verdetto altrimenti) {
  return {std::move(ammesse), {}, {}, altrimenti};
}

/// One output or input bit, everything else refused by name or as unknown.
Regola_Operando Elemento(std::initializer_list<Area> ammesse, std::vector<Area> rifiutate) {
  return {Aree(ammesse, indirizzo_byte), std::move(rifiutate), codice, codice_ignoto};
}

Regola_Operando Byte_Confronto(Verdetto area, Verdetto fuori, Verdetto grande) {
  return Solo(
      Aree({IB, QB, MB, VB, AC}, fuori) + SMB_Solo({28, 29}, fuori) + Con_Limite({K}, 255, grande),
      area);
}

Regola_Operando Word_Confronto(Verdetto area, Verdetto fuori) {
  return Solo(Aree({IW, QW, VW, T, C, AC, AIW, K}, fuori), area);
}

Regola_Operando Doppia(Verdetto area, Verdetto fuori) {
  return Solo(Aree({VD, AC, K}, fuori), area);
}

}  // namespace

namespace regole {

// ---- bits -------------------------------------------------------------------------------------

const Regola Contatto{1,
                      errarto,
                      {Aree({I, Q, M, SM, S, T, C}, indirizzo),
                       {V, L},
                       {6, "-> Operando non supportato"},
                       {9, "-> Codice operando non riconosciuto"}},
                      {},
                      true,
                      "bit di I, Q, M, SM, S oppure T, C"};

const Regola Contatto_Immediato{1,  numero, Elemento({I}, {Q, T, C, V, L, K, M, SM, S}),
                                {}, true,   "bit di I"};

const Regola Uscita{1,  numero, Elemento({Q, M, S}, {I, T, C, V, L, K, SM}),
                    {}, true,   "bit di Q, M, S"};

const Regola Uscita_Immediata{1,  numero, Elemento({Q}, {I, T, C, V, L, K, M, SM, S}),
                              {}, true,   "bit di Q"};

const Regola Set{2,  numero, Elemento({Q, M, S}, {I, T, C, V, L, K, SM}),
                 {}, true,   "bit di Q, M, S; numero di bit"};

const Regola Set_Immediato{2,  numero, Elemento({Q}, {I, T, C, V, L, K, M, SM, S}),
                           {}, true,   "bit di Q; numero di bit meno uno"};

const Regola Reset{2,  numero, Elemento({Q, M, S, T, C}, {I, V, L, K, SM}),
                   {}, true,   "bit di Q, M, S oppure T, C; numero di bit"};

// ---- timers and counters ----------------------------------------------------------------------

const Regola Timer{2,
                   numero,
                   Solo(Con_Limite({I, Q, M, SM, S, T, C}, 63, indirizzo_timer), codice),
                   Regola_Operando{{}, {QW, IW, MW, SMW, SW, LW, T}, codice, {}},
                   false,
                   "T; tempo in K, VW, AC"};

const Regola Contatore{2,
                       numero,
                       Solo(Aree({C}, indirizzo_byte), codice),
                       Solo(Libere({K, VW}), codice),
                       false,
                       "C; conteggio in K, VW"};

// ---- moves and conversions --------------------------------------------------------------------

const Regola MOVB{2,
                  numero,
                  Solo(Aree({IB, QB, MB, VB, AC}, indirizzo_1) +
                           SMB_Solo({28, 29, 34, 35}, indirizzo_1) + Con_Limite({K}, 255, grande_1),
                       codice),
                  Solo(Aree({VB, AC}, indirizzo_2), codice),
                  false,
                  "IB, QB, MB, VB, AC, SMB, K; destinazione VB, AC"};

const Regola MOVW{2,
                  numero,
                  Solo(Aree({IW, QW, MW, VW, T, C, AC, AIW, K}, indirizzo_1), codice),
                  Solo(Aree({VW, T, C, AC, AQW}, indirizzo_2), codice),
                  false,
                  "IW, QW, MW, VW, T, C, AC, AIW, K; destinazione VW, AC, AQW"};

const Regola MOVD{2,
                  numero,
                  Solo(Aree({VD, AC}, indirizzo_1) + Con_Limite({K}, 255, grande_1), codice),
                  Solo(Aree({VD, AC}, indirizzo_2), codice),
                  false,
                  "VD, AC, K; destinazione VD, AC"};

const Regola BIR{2,
                 numero,
                 Solo(Aree({IB}, indirizzo_1), codice),
                 Solo(Aree({VB, AC}, indirizzo_2), codice_in_2),
                 false,
                 "IB; destinazione VB, AC"};

const Regola BIW{2,
                 numero,
                 Solo(Aree({VB}, indirizzo_1) + Con_Limite({K}, 255, grande_biw), codice),
                 Solo(Aree({QB, AC}, indirizzo_2), codice_in_2),
                 false,
                 "VB, K; destinazione QB"};

const Regola BTI{2,
                 numero,
                 Solo(Aree({IB, QB, MB, VB}, indirizzo_1) +
                          SMB_Solo({28, 29, 34, 35}, indirizzo_1) + Con_Limite({K}, 255, grande_1),
                      codice_in_1),
                 Solo(Aree({VW, T, C, AC}, indirizzo_2), codice),
                 false,
                 "IB, QB, MB, VB, SMB, K; destinazione VW, AC, preset di T, C"};

// ---- arithmetic -------------------------------------------------------------------------------

const Regola Aritmetica_I{2,
                          numero,
                          Solo(Aree({VW, T, C, AC, AIW, K}, indirizzo_1), codice),
                          Solo(Aree({VW, T, C, AC}, indirizzo_2), codice),
                          false,
                          "VW, T, C, AC, AIW, K; risultato VW, T, C, AC"};

const Regola Aritmetica_D{2,
                          numero,
                          Doppia(codice, indirizzo_1),
                          Solo(Aree({VD, AC}, indirizzo_2), codice),
                          false,
                          "VD, AC, K; risultato VD, AC"};

const Regola Inc_B{1, numero, Solo(Aree({VB, AC}, indirizzo_1), codice), {}, false, "VB, AC"};
const Regola Inc_W{1, numero, Solo(Aree({VW, AC}, indirizzo_1), codice), {}, false, "VW, AC"};
const Regola Inc_D{1, numero, Solo(Aree({VD, AC}, indirizzo_1), codice), {}, false, "VD, AC"};

// ---- comparisons ------------------------------------------------------------------------------

const Regola Confronto_B{2,
                         numero,
                         Byte_Confronto(codice_1, indirizzo_1, grande_1),
                         Byte_Confronto(codice_2, indirizzo_2, grande_2),
                         false,
                         "due valori in IB, QB, MB, VB, AC, K"};

const Regola Confronto_W{2,
                         numero,
                         Word_Confronto(codice_1, indirizzo_1),
                         Word_Confronto(codice_2, indirizzo_2),
                         false,
                         "due valori in IW, QW, VW, T, C, AC, AIW, K"};

const Regola Confronto_D{2,
                         numero,
                         Doppia(codice_1, indirizzo_1),
                         Doppia(codice_2, indirizzo_2),
                         false,
                         "due valori in VD, AC, K"};

}  // namespace regole

}  // namespace tavorno
