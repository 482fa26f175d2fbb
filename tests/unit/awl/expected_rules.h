// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "checked_line.h"

// The vocabulary and the operand rules once more, written out for the tests: what the checker is
// expected to say, independently of its own tables.
namespace tavorno::prova {

// ---- vocabulary -------------------------------------------------------------------------------

inline const char* const Accettate_Senza_Prova =
    "NETW MEND RET RETI SBR INT JMP LBL CALL LSCR SCRE CRET XORD";

inline const char* const Accettate_Senza_Operandi = "NOT EU ED ALD OLD NOP LPP LPS LRD";

inline const char* const Non_Supportate =
    "LDS AENO HDEF HSC PLS MOVR BMB BMW BMD SWAP ITB ITD DTI DTR ROUND TRUNC BCDI IBCD ITA DTA RTA "
    "DECO ENCO ATH HTA SEG DIV MUL +R -R *R /R SQRT SIN COS TAN LN EXP PID INVB INVW INVD ANDB "
    "ANDW ANDD ORB ORW ORD XORB XORW FOR NEXT SCRT END STOP WDR CRETI ENI DISI ATCH DTCH SLB SLW "
    "SLD SRB SRW SRD RLB RLW RLD RRB RRW RRD "
    "LDR= LDR<> LDR>= LDR<= LDR> LDR< AR= AR<> AR>= AR<= AR> AR< OR= OR<> OR>= OR<= OR> OR< SHRB";

// ---- messages ---------------------------------------------------------------------------------

inline const Verdetto_Riga Non_Riconosciuta{3, "-> Istruzione non riconosciuta"};
inline const Verdetto_Riga Non_Supportata{2, "-> Istruzione non supportata"};
inline const Verdetto_Riga Operandi_Non_Supportati{3, "-> Operandi non supportati"};
inline const Verdetto_Riga Quanti_Operandi{5, "-> Numero Operandi non supportati"};
inline const Verdetto_Riga Quanti_Operandi_Ld{5, "-> Numero di operandi errarto"};
inline const Verdetto_Riga Area_Non_Supportata{6, "-> Codice elemento non supportato"};
inline const Verdetto_Riga Area_Non_Riconosciuta{6, "-> Codice elemento non riconosciuto"};
inline const Verdetto_Riga Area_In_Op1{6, "-> Codice elemento in OP1 non supportato"};
inline const Verdetto_Riga Area_In_Op2{6, "-> Codice elemento in OP2 non supportato"};
inline const Verdetto_Riga Area_Op1{6, "-> Codice elemento non supportato in OP1"};
inline const Verdetto_Riga Area_Op2{6, "-> Codice elemento non supportato in OP2"};
inline const Verdetto_Riga Indirizzo{6, "-> Indirizzo non supportato"};
inline const Verdetto_Riga Indirizzo_Timer{6, "-> Indirizzo non supportato dal Timer"};
inline const Verdetto_Riga Indirizzo_Byte{6, "-> Indirizzo Byte non supportato"};
inline const Verdetto_Riga Indirizzo_Op1{6, "-> Indirizzo Byte OP1 non supportato"};
inline const Verdetto_Riga Indirizzo_Op2{6, "-> Indirizzo Byte OP2 non supportato"};
inline const Verdetto_Riga Operando_Non_Supportato{6, "-> Operando non supportato"};
inline const Verdetto_Riga Troppo_Grande_Biw{6, "-> Valore OP1 troppo Grande"};
inline const Verdetto_Riga Troppo_Grande_Op1{6, "-> Valore troppo Grande in OP1"};
inline const Verdetto_Riga Troppo_Grande_Op2{6, "-> Valore troppo Grande in OP2"};
inline const Verdetto_Riga Bit_Non_Ammesso{9, "-> Indirizzo Bit OP1 non ammesso"};
inline const Verdetto_Riga Operando_Non_Riconosciuto{9, "-> Codice operando non riconosciuto"};

// ---- rules ------------------------------------------------------------------------------------

/// Highest number of an area; areas with listed numbers, and those of no memory, are not here.
inline const std::map<std::string, int>& Numero_Massimo() {
  static const std::map<std::string, int> tabella = {
      {"I", 1},    {"Q", 1},  {"M", 4},  {"SM", 2}, {"S", 2},    {"T", 40},
      {"C", 20},   {"IB", 1}, {"QB", 1}, {"MB", 4}, {"VB", 100}, {"VW", 100},
      {"VD", 100}, {"IW", 0}, {"QW", 0}, {"MW", 3}, {"AC", 3}};
  return tabella;
}

struct Limite {
  std::optional<int> massimo;  ///< none: any number
  std::vector<int> solo;       ///< the listed numbers, when there are any
  Verdetto_Riga oltre;
};

/// What one operand may be.
struct Posto_Atteso {
  std::map<std::string, Limite> accettate;
  std::vector<std::string> rifiutate;  ///< refused with `se_rifiutata`
  Verdetto_Riga se_rifiutata;
  Verdetto_Riga altrimenti;

  explicit Posto_Atteso(Verdetto_Riga altra) : altrimenti(std::move(altra)) {}

  Posto_Atteso& Rifiuta(const std::string& aree, const Verdetto_Riga& verdetto) {
    rifiutate = Parole(aree);
    se_rifiutata = verdetto;
    return *this;
  }
  /// Areas with the bounds of the memory.
  Posto_Atteso& Aree(const std::string& aree, const Verdetto_Riga& oltre) {
    for (const std::string& area : Parole(aree)) {
      if (area == "AIW")
        accettate[area] = {{}, {0, 2, 4}, oltre};
      else if (area == "AQW")
        accettate[area] = {{}, {0, 2}, oltre};
      else
        accettate[area] = {Numero_Massimo().at(area), {}, oltre};
    }
    return *this;
  }
  Posto_Atteso& Fino_A(const std::string& aree, int massimo, const Verdetto_Riga& oltre) {
    for (const std::string& area : Parole(aree)) accettate[area] = {massimo, {}, oltre};
    return *this;
  }
  Posto_Atteso& Ogni_Numero(const std::string& aree) {
    for (const std::string& area : Parole(aree)) accettate[area] = {};
    return *this;
  }
  Posto_Atteso& Smb(std::vector<int> numeri, const Verdetto_Riga& oltre) {
    accettate["SMB"] = {{}, std::move(numeri), oltre};
    return *this;
  }

  Verdetto_Riga Giudica(const Operando_Scritto& operando) const {
    const auto trovato = accettate.find(operando.area);
    if (trovato == accettate.end())
      return std::ranges::find(rifiutate, operando.area) != rifiutate.end() ? se_rifiutata
                                                                            : altrimenti;
    const Limite& limite = trovato->second;
    if (!limite.solo.empty())
      return std::ranges::find(limite.solo, operando.numero) != limite.solo.end() ? Verdetto_Riga{}
                                                                                  : limite.oltre;
    return limite.massimo && operando.numero > *limite.massimo ? limite.oltre : Verdetto_Riga{};
  }
};

struct Regola_Attesa {
  std::string mnemonici;
  std::size_t operandi;
  Verdetto_Riga se_diverso;
  Posto_Atteso op1;
  std::optional<Posto_Atteso> op2;  ///< none: the second operand is not tested
  bool prova_bit;

  Verdetto_Riga Giudica(const std::vector<Operando_Scritto>& dati) const {
    Verdetto_Riga verdetto;
    if (dati.size() != operandi) {
      verdetto = se_diverso;
    } else {
      verdetto = op1.Giudica(dati[0]);
      // Both tests write the same place: the later fault stands.
      if (op2) {
        const Verdetto_Riga secondo = op2->Giudica(dati[1]);
        if (secondo.stato != 0) verdetto = secondo;
      }
    }
    if (prova_bit && !dati.empty() && dati[0].bit >= 8) verdetto = Bit_Non_Ammesso;
    return verdetto;
  }
};

inline void PrintTo(const Regola_Attesa& regola, std::ostream* uscita) {
  *uscita << regola.mnemonici;
}

/// "LDB=", "ADB<>" and so on: the 18 comparisons of one width.
inline std::string Confronti(const std::string& larghezza) {
  std::string lista;
  for (const char* connessione : {"LD", "A", "O"}) {
    for (const char* relazione : {"=", "<>", "<", "<=", ">", ">="})
      lista += std::string(lista.empty() ? "" : " ") + connessione + larghezza + relazione;
  }
  return lista;
}

inline const std::vector<Regola_Attesa>& Regole_Attese() {
  // A bit output: areas refused by name, and anything else as unknown.
  const auto elemento = [](const std::string& accettate, const std::string& altre) {
    return Posto_Atteso(Area_Non_Riconosciuta)
        .Aree(accettate, Indirizzo_Byte)
        .Rifiuta(altre, Area_Non_Supportata);
  };
  const auto valore_byte = [](const Verdetto_Riga& area, const Verdetto_Riga& oltre,
                              const Verdetto_Riga& grande) {
    return Posto_Atteso(area)
        .Aree("IB QB MB VB AC", oltre)
        .Smb({28, 29}, oltre)
        .Fino_A("K", 255, grande);
  };
  const auto valore_parola = [](const Verdetto_Riga& area, const Verdetto_Riga& oltre) {
    return Posto_Atteso(area).Aree("IW QW VW T C AC AIW", oltre).Ogni_Numero("K");
  };
  const auto valore_doppio = [](const Verdetto_Riga& area, const Verdetto_Riga& oltre) {
    return Posto_Atteso(area).Aree("VD AC", oltre).Ogni_Numero("K");
  };
  static const std::vector<Regola_Attesa> regole = {
      {"LD LDN A AN O ON",
       1,
       Quanti_Operandi_Ld,
       Posto_Atteso(Operando_Non_Riconosciuto)
           .Aree("I Q M SM S T C", Indirizzo)
           .Rifiuta("V L", Operando_Non_Supportato),
       {},
       true},
      {"LDI LDNI AI ANI OI ONI", 1, Quanti_Operandi, elemento("I", "Q T C V L K M SM S"), {}, true},
      {"=", 1, Quanti_Operandi, elemento("Q M S", "I T C V L K SM"), {}, true},
      {"=I", 1, Quanti_Operandi, elemento("Q", "I T C V L K M SM S"), {}, true},
      {"S", 2, Quanti_Operandi, elemento("Q M S", "I T C V L K SM"), {}, true},
      {"SI RI", 2, Quanti_Operandi, elemento("Q", "I T C V L K M SM S"), {}, true},
      {"R", 2, Quanti_Operandi, elemento("Q M S T C", "I V L K SM"), {}, true},
      {"TON TOF TONR", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata).Fino_A("I Q M SM S T C", 63, Indirizzo_Timer),
       Posto_Atteso(Verdetto_Riga{}).Rifiuta("QW IW MW SMW SW LW T", Area_Non_Supportata), false},
      {"CTU CTD CTUD", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata).Aree("C", Indirizzo_Byte),
       Posto_Atteso(Area_Non_Supportata).Ogni_Numero("K VW"), false},
      {"MOVB", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata)
           .Aree("IB QB MB VB AC", Indirizzo_Op1)
           .Smb({28, 29, 34, 35}, Indirizzo_Op1)
           .Fino_A("K", 255, Troppo_Grande_Op1),
       Posto_Atteso(Area_Non_Supportata).Aree("VB AC", Indirizzo_Op2), false},
      {"MOVW", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata)
           .Aree("IW QW MW VW T C AC AIW", Indirizzo_Op1)
           .Ogni_Numero("K"),
       Posto_Atteso(Area_Non_Supportata).Aree("VW T C AC AQW", Indirizzo_Op2), false},
      {"MOVD", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata)
           .Aree("VD AC", Indirizzo_Op1)
           .Fino_A("K", 255, Troppo_Grande_Op1),
       Posto_Atteso(Area_Non_Supportata).Aree("VD AC", Indirizzo_Op2), false},
      {"BIR", 2, Quanti_Operandi, Posto_Atteso(Area_Non_Supportata).Aree("IB", Indirizzo_Op1),
       Posto_Atteso(Area_In_Op2).Aree("VB AC", Indirizzo_Op2), false},
      {"BIW", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata)
           .Aree("VB", Indirizzo_Op1)
           .Fino_A("K", 255, Troppo_Grande_Biw),
       Posto_Atteso(Area_In_Op2).Aree("QB AC", Indirizzo_Op2), false},
      {"BTI", 2, Quanti_Operandi,
       Posto_Atteso(Area_In_Op1)
           .Aree("IB QB MB VB", Indirizzo_Op1)
           .Smb({28, 29, 34, 35}, Indirizzo_Op1)
           .Fino_A("K", 255, Troppo_Grande_Op1),
       Posto_Atteso(Area_Non_Supportata).Aree("VW T C AC", Indirizzo_Op2), false},
      {"+I -I *I /I", 2, Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata).Aree("VW T C AC AIW", Indirizzo_Op1).Ogni_Numero("K"),
       Posto_Atteso(Area_Non_Supportata).Aree("VW T C AC", Indirizzo_Op2), false},
      {"+D -D *D /D", 2, Quanti_Operandi, valore_doppio(Area_Non_Supportata, Indirizzo_Op1),
       Posto_Atteso(Area_Non_Supportata).Aree("VD AC", Indirizzo_Op2), false},
      {"INCB DECB",
       1,
       Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata).Aree("VB AC", Indirizzo_Op1),
       {},
       false},
      {"INCW DECW",
       1,
       Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata).Aree("VW AC", Indirizzo_Op1),
       {},
       false},
      {"INCD DECD",
       1,
       Quanti_Operandi,
       Posto_Atteso(Area_Non_Supportata).Aree("VD AC", Indirizzo_Op1),
       {},
       false},
      {Confronti("B"), 2, Quanti_Operandi, valore_byte(Area_Op1, Indirizzo_Op1, Troppo_Grande_Op1),
       valore_byte(Area_Op2, Indirizzo_Op2, Troppo_Grande_Op2), false},
      {Confronti("W"), 2, Quanti_Operandi, valore_parola(Area_Op1, Indirizzo_Op1),
       valore_parola(Area_Op2, Indirizzo_Op2), false},
      {Confronti("D"), 2, Quanti_Operandi, valore_doppio(Area_Op1, Indirizzo_Op1),
       valore_doppio(Area_Op2, Indirizzo_Op2), false},
  };
  return regole;
}

/// "LDB<=" as "LDB_lt_eq": test names take letters and digits only.
inline std::string Nome_Prova(const std::string& mnemonico) {
  std::string nome;
  for (const char c : mnemonico) {
    switch (c) {
      case '=':
        nome += "_eq";
        break;
      case '<':
        nome += "_lt";
        break;
      case '>':
        nome += "_gt";
        break;
      case '+':
        nome += "Add_";
        break;
      case '-':
        nome += "Sub_";
        break;
      case '*':
        nome += "Mul_";
        break;
      case '/':
        nome += "Div_";
        break;
      default:
        nome += c;
    }
  }
  return nome;
}

inline const Regola_Attesa& Regola_Di(const std::string& mnemonico) {
  for (const Regola_Attesa& regola : Regole_Attese()) {
    const std::vector<std::string> parole = Parole(regola.mnemonici);
    if (std::ranges::find(parole, mnemonico) != parole.end()) return regola;
  }
  throw std::out_of_range(mnemonico);
}

/// Whether the first operand is one bit. Words without a rule want none.
inline bool Vuole_Un_Bit(const std::string& mnemonico) {
  return std::ranges::any_of(Regole_Attese(), [&](const Regola_Attesa& regola) {
    return regola.prova_bit && std::ranges::count(Parole(regola.mnemonici), mnemonico) > 0;
  });
}

inline std::vector<std::string> Mnemonici_Con_Regola() {
  std::vector<std::string> tutti;
  for (const Regola_Attesa& regola : Regole_Attese()) {
    const std::vector<std::string> parole = Parole(regola.mnemonici);
    tutti.insert(tutti.end(), parole.begin(), parole.end());
  }
  return tutti;
}

}  // namespace tavorno::prova
