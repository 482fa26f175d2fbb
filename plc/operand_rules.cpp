// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/operand_rules.h"

#include <algorithm>

namespace tavorno {

bool Numeri::Ammette(int numero) const {
  if (!Solo.empty()) return std::ranges::find(Solo, numero) != Solo.end();
  return !Massimo || numero <= *Massimo;
}

Numeri Numeri_Area(Area area) {
  const Riga_Area& riga = Riga_Di(area);
  if (riga.Massimo_Ammesso < 0) return {};
  if (!riga.Solo_Passo) return {riga.Massimo_Ammesso, {}};
  Numeri numeri;
  for (int numero = 0; numero <= riga.Massimo_Ammesso; numero += riga.Passo)
    numeri.Solo.push_back(numero);
  return numeri;
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
constexpr Verdetto codice_errato{6, "-> Codice elemento non supportato"};
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
  return {.Ammesse = std::move(ammesse), .Altrimenti = altrimenti};
}

/// One output or input bit, everything else refused by name or as unknown.
Regola_Operando Elemento(std::initializer_list<Area> ammesse, std::vector<Area> rifiutate) {
  return {.Ammesse = Aree(ammesse, indirizzo_byte),
          .Rifiutate = std::move(rifiutate),
          .Se_Rifiutata = codice_errato,
          .Altrimenti = codice_ignoto};
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

const Regola Contatto{
    .Operandi = 1,
    .Se_Diverso = errarto,
    .Op1 = {.Ammesse = Aree({I, Q, M, SM, S, T, C}, indirizzo),
            .Rifiutate = {V, L},
            .Se_Rifiutata = {6, "-> Operando non supportato"},
            .Altrimenti = {9, "-> Codice operando non riconosciuto"}},
    .Prova_Bit = true,
    .Aiuto = "bit di I, Q, M, SM, S oppure T, C",
};

const Regola Contatto_Immediato{
    .Operandi = 1,
    .Op1 = Elemento({I}, {Q, T, C, V, L, K, M, SM, S}),
    .Prova_Bit = true,
    .Aiuto = "bit di I",
};

const Regola Uscita{
    .Operandi = 1,
    .Op1 = Elemento({Q, M, S}, {I, T, C, V, L, K, SM}),
    .Prova_Bit = true,
    .Aiuto = "bit di Q, M, S",
};

const Regola Uscita_Immediata{
    .Operandi = 1,
    .Op1 = Elemento({Q}, {I, T, C, V, L, K, M, SM, S}),
    .Prova_Bit = true,
    .Aiuto = "bit di Q",
};

const Regola Set{
    .Operandi = 2,
    .Op1 = Elemento({Q, M, S}, {I, T, C, V, L, K, SM}),
    .Prova_Bit = true,
    .Aiuto = "bit di Q, M, S; numero di bit",
};

const Regola Set_Immediato{
    .Operandi = 2,
    .Op1 = Elemento({Q}, {I, T, C, V, L, K, M, SM, S}),
    .Prova_Bit = true,
    .Aiuto = "bit di Q; numero di bit meno uno",
};

const Regola Reset{
    .Operandi = 2,
    .Op1 = Elemento({Q, M, S, T, C}, {I, V, L, K, SM}),
    .Prova_Bit = true,
    .Aiuto = "bit di Q, M, S oppure T, C; numero di bit",
};

// ---- timers and counters ----------------------------------------------------------------------

const Regola Timer{
    .Operandi = 2,
    .Op1 = Solo(Con_Limite({I, Q, M, SM, S, T, C}, 63, indirizzo_timer), codice_errato),
    .Op2 =
        Regola_Operando{.Rifiutate = {QW, IW, MW, SMW, SW, LW, T}, .Se_Rifiutata = codice_errato},
    .Aiuto = "T; tempo in K, VW, AC",
};

const Regola Contatore{
    .Operandi = 2,
    .Op1 = Solo(Aree({C}, indirizzo_byte), codice_errato),
    .Op2 = Solo(Libere({K, VW}), codice_errato),
    .Aiuto = "C; conteggio in K, VW",
};

// ---- moves and conversions --------------------------------------------------------------------

const Regola MOVB{
    .Operandi = 2,
    .Op1 = Solo(Aree({IB, QB, MB, VB, AC}, indirizzo_1) + SMB_Solo({28, 29, 34, 35}, indirizzo_1) +
                    Con_Limite({K}, 255, grande_1),
                codice_errato),
    .Op2 = Solo(Aree({VB, AC}, indirizzo_2), codice_errato),
    .Aiuto = "IB, QB, MB, VB, AC, SMB, K; destinazione VB, AC",
};

const Regola MOVW{
    .Operandi = 2,
    .Op1 = Solo(Aree({IW, QW, MW, VW, T, C, AC, AIW, K}, indirizzo_1), codice_errato),
    .Op2 = Solo(Aree({VW, T, C, AC, AQW}, indirizzo_2), codice_errato),
    .Aiuto = "IW, QW, MW, VW, T, C, AC, AIW, K; destinazione VW, AC, AQW",
};

const Regola MOVD{
    .Operandi = 2,
    .Op1 = Solo(Aree({VD, AC}, indirizzo_1) + Con_Limite({K}, 255, grande_1), codice_errato),
    .Op2 = Solo(Aree({VD, AC}, indirizzo_2), codice_errato),
    .Aiuto = "VD, AC, K; destinazione VD, AC",
};

const Regola BIR{
    .Operandi = 2,
    .Op1 = Solo(Aree({IB}, indirizzo_1), codice_errato),
    .Op2 = Solo(Aree({VB, AC}, indirizzo_2), codice_in_2),
    .Aiuto = "IB; destinazione VB, AC",
};

const Regola BIW{
    .Operandi = 2,
    .Op1 = Solo(Aree({VB}, indirizzo_1) + Con_Limite({K}, 255, grande_biw), codice_errato),
    .Op2 = Solo(Aree({QB, AC}, indirizzo_2), codice_in_2),
    .Aiuto = "VB, K; destinazione QB",
};

const Regola BTI{
    .Operandi = 2,
    .Op1 = Solo(Aree({IB, QB, MB, VB}, indirizzo_1) + SMB_Solo({28, 29, 34, 35}, indirizzo_1) +
                    Con_Limite({K}, 255, grande_1),
                codice_in_1),
    .Op2 = Solo(Aree({VW, T, C, AC}, indirizzo_2), codice_errato),
    .Aiuto = "IB, QB, MB, VB, SMB, K; destinazione VW, AC, preset di T, C",
};

// ---- arithmetic -------------------------------------------------------------------------------

const Regola Aritmetica_I{
    .Operandi = 2,
    .Op1 = Solo(Aree({VW, T, C, AC, AIW, K}, indirizzo_1), codice_errato),
    .Op2 = Solo(Aree({VW, T, C, AC}, indirizzo_2), codice_errato),
    .Aiuto = "VW, T, C, AC, AIW, K; risultato VW, T, C, AC",
};

const Regola Aritmetica_D{
    .Operandi = 2,
    .Op1 = Doppia(codice_errato, indirizzo_1),
    .Op2 = Solo(Aree({VD, AC}, indirizzo_2), codice_errato),
    .Aiuto = "VD, AC, K; risultato VD, AC",
};

const Regola Inc_B{
    .Operandi = 1,
    .Op1 = Solo(Aree({VB, AC}, indirizzo_1), codice_errato),
    .Aiuto = "VB, AC",
};
const Regola Inc_W{
    .Operandi = 1,
    .Op1 = Solo(Aree({VW, AC}, indirizzo_1), codice_errato),
    .Aiuto = "VW, AC",
};
const Regola Inc_D{
    .Operandi = 1,
    .Op1 = Solo(Aree({VD, AC}, indirizzo_1), codice_errato),
    .Aiuto = "VD, AC",
};

// ---- comparisons ------------------------------------------------------------------------------

const Regola Confronto_B{
    .Operandi = 2,
    .Op1 = Byte_Confronto(codice_1, indirizzo_1, grande_1),
    .Op2 = Byte_Confronto(codice_2, indirizzo_2, grande_2),
    .Aiuto = "due valori in IB, QB, MB, VB, AC, K",
};

const Regola Confronto_W{
    .Operandi = 2,
    .Op1 = Word_Confronto(codice_1, indirizzo_1),
    .Op2 = Word_Confronto(codice_2, indirizzo_2),
    .Aiuto = "due valori in IW, QW, VW, T, C, AC, AIW, K",
};

const Regola Confronto_D{
    .Operandi = 2,
    .Op1 = Doppia(codice_1, indirizzo_1),
    .Op2 = Doppia(codice_2, indirizzo_2),
    .Aiuto = "due valori in VD, AC, K",
};

}  // namespace regole

}  // namespace tavorno
