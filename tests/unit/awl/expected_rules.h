// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "checked_line.h"

// The vocabulary and the operand rules once more, written out for the tests: what the checker is
// expected to say, independently of its own tables.
namespace tavorno::prova {

// ---- vocabulary -------------------------------------------------------------------------------

inline const char* const AcceptedWithoutTest =
    "NETW MEND RET RETI SBR INT JMP LBL CALL LSCR SCRE CRET XORD";

inline const char* const AcceptedWithoutOperands = "NOT EU ED ALD OLD NOP LPP LPS LRD";

inline const char* const Unsupported =
    "LDS AENO HDEF HSC PLS MOVR BMB BMW BMD SWAP ITB ITD DTI DTR ROUND TRUNC BCDI IBCD ITA DTA RTA "
    "DECO ENCO ATH HTA SEG DIV MUL +R -R *R /R SQRT SIN COS TAN LN EXP PID INVB INVW INVD ANDB "
    "ANDW ANDD ORB ORW ORD XORB XORW FOR NEXT SCRT END STOP WDR CRETI ENI DISI ATCH DTCH SLB SLW "
    "SLD SRB SRW SRD RLB RLW RLD RRB RRW RRD "
    "LDR= LDR<> LDR>= LDR<= LDR> LDR< AR= AR<> AR>= AR<= AR> AR< OR= OR<> OR>= OR<= OR> OR< SHRB";

// ---- messages ---------------------------------------------------------------------------------

inline const Verdict Unknown{3, "-> Istruzione non riconosciuta"};
inline const Verdict NotSupported{2, "-> Istruzione non supportata"};
inline const Verdict NoOperandsAllowed{3, "-> Operandi non supportati"};
inline const Verdict WrongCount{5, "-> Numero Operandi non supportati"};
inline const Verdict WrongCountLd{5, "-> Numero di operandi errarto"};
inline const Verdict WrongArea{6, "-> Codice elemento non supportato"};
inline const Verdict UnknownArea{6, "-> Codice elemento non riconosciuto"};
inline const Verdict WrongAreaInOp1{6, "-> Codice elemento in OP1 non supportato"};
inline const Verdict WrongAreaInOp2{6, "-> Codice elemento in OP2 non supportato"};
inline const Verdict WrongAreaOp1{6, "-> Codice elemento non supportato in OP1"};
inline const Verdict WrongAreaOp2{6, "-> Codice elemento non supportato in OP2"};
inline const Verdict Address{6, "-> Indirizzo non supportato"};
inline const Verdict AddressTimer{6, "-> Indirizzo non supportato dal Timer"};
inline const Verdict AddressByte{6, "-> Indirizzo Byte non supportato"};
inline const Verdict AddressOp1{6, "-> Indirizzo Byte OP1 non supportato"};
inline const Verdict AddressOp2{6, "-> Indirizzo Byte OP2 non supportato"};
inline const Verdict WrongOperand{6, "-> Operando non supportato"};
inline const Verdict TooLargeBiw{6, "-> Valore OP1 troppo Grande"};
inline const Verdict TooLargeOp1{6, "-> Valore troppo Grande in OP1"};
inline const Verdict TooLargeOp2{6, "-> Valore troppo Grande in OP2"};
inline const Verdict WrongBit{9, "-> Indirizzo Bit OP1 non ammesso"};
inline const Verdict UnknownOperand{9, "-> Codice operando non riconosciuto"};

// ---- rules ------------------------------------------------------------------------------------

/// Highest number of an area; areas with listed numbers, and those of no memory, are not here.
inline const std::map<std::string, int>& HighestNumber() {
  static const std::map<std::string, int> table = {
      {"I", 1},    {"Q", 1},  {"M", 4},  {"SM", 2}, {"S", 2},    {"T", 40},
      {"C", 20},   {"IB", 1}, {"QB", 1}, {"MB", 4}, {"VB", 100}, {"VW", 100},
      {"VD", 100}, {"IW", 0}, {"QW", 0}, {"MW", 3}, {"AC", 3}};
  return table;
}

struct Limit {
  std::optional<int> highest;  ///< none: any number
  std::vector<int> only;       ///< the listed numbers, when there are any
  Verdict beyond;
};

/// What one operand may be.
struct Place {
  std::map<std::string, Limit> accepted;
  std::vector<std::string> named;  ///< refused with `ifNamed`
  Verdict ifNamed;
  Verdict otherwise;

  explicit Place(Verdict any) : otherwise(std::move(any)) {}

  Place& Named(const std::string& areas, const Verdict& verdict) {
    named = Words(areas);
    ifNamed = verdict;
    return *this;
  }
  /// Areas with the bounds of the memory.
  Place& Areas(const std::string& areas, const Verdict& beyond) {
    for (const std::string& area : Words(areas)) {
      if (area == "AIW")
        accepted[area] = {{}, {0, 2, 4}, beyond};
      else if (area == "AQW")
        accepted[area] = {{}, {0, 2}, beyond};
      else
        accepted[area] = {HighestNumber().at(area), {}, beyond};
    }
    return *this;
  }
  Place& UpTo(const std::string& areas, int highest, const Verdict& beyond) {
    for (const std::string& area : Words(areas)) accepted[area] = {highest, {}, beyond};
    return *this;
  }
  Place& AnyNumber(const std::string& areas) {
    for (const std::string& area : Words(areas)) accepted[area] = {};
    return *this;
  }
  Place& Smb(std::vector<int> numbers, const Verdict& beyond) {
    accepted["SMB"] = {{}, std::move(numbers), beyond};
    return *this;
  }

  Verdict Judge(const Operand& operand) const {
    const auto found = accepted.find(operand.area);
    if (found == accepted.end())
      return std::ranges::find(named, operand.area) != named.end() ? ifNamed : otherwise;
    const Limit& limit = found->second;
    if (!limit.only.empty())
      return std::ranges::find(limit.only, operand.num) != limit.only.end() ? Verdict{}
                                                                            : limit.beyond;
    return limit.highest && operand.num > *limit.highest ? limit.beyond : Verdict{};
  }
};

struct Rule {
  std::string mnemonics;
  std::size_t operands;
  Verdict wrongCount;
  Place op1;
  std::optional<Place> op2;  ///< none: the second operand is not tested
  bool bitTest;

  Verdict Judge(const std::vector<Operand>& given) const {
    Verdict verdict;
    if (given.size() != operands) {
      verdict = wrongCount;
    } else {
      verdict = op1.Judge(given[0]);
      // Both tests write the same place: the later fault stands.
      if (op2) {
        const Verdict second = op2->Judge(given[1]);
        if (second.status != 0) verdict = second;
      }
    }
    if (bitTest && !given.empty() && given[0].bit >= 8) verdict = WrongBit;
    return verdict;
  }
};

/// "LDB=", "ADB<>" and so on: the 18 comparisons of one width.
inline std::string Comparisons(const std::string& width) {
  std::string list;
  for (const char* connection : {"LD", "A", "O"}) {
    for (const char* relation : {"=", "<>", "<", "<=", ">", ">="})
      list += std::string(list.empty() ? "" : " ") + connection + width + relation;
  }
  return list;
}

inline const std::vector<Rule>& Rules() {
  // A bit output: areas refused by name, and anything else as unknown.
  const auto element = [](const std::string& accepted, const std::string& refused) {
    return Place(UnknownArea).Areas(accepted, AddressByte).Named(refused, WrongArea);
  };
  const auto byteValue = [](const Verdict& area, const Verdict& beyond, const Verdict& large) {
    return Place(area).Areas("IB QB MB VB AC", beyond).Smb({28, 29}, beyond).UpTo("K", 255, large);
  };
  const auto wordValue = [](const Verdict& area, const Verdict& beyond) {
    return Place(area).Areas("IW QW VW T C AC AIW", beyond).AnyNumber("K");
  };
  const auto doubleValue = [](const Verdict& area, const Verdict& beyond) {
    return Place(area).Areas("VD AC", beyond).AnyNumber("K");
  };
  static const std::vector<Rule> rules = {
      {"LD LDN A AN O ON",
       1,
       WrongCountLd,
       Place(UnknownOperand).Areas("I Q M SM S T C", Address).Named("V L", WrongOperand),
       {},
       true},
      {"LDI LDNI AI ANI OI ONI", 1, WrongCount, element("I", "Q T C V L K M SM S"), {}, true},
      {"=", 1, WrongCount, element("Q M S", "I T C V L K SM"), {}, true},
      {"=I", 1, WrongCount, element("Q", "I T C V L K M SM S"), {}, true},
      {"S", 2, WrongCount, element("Q M S", "I T C V L K SM"), {}, true},
      {"SI RI", 2, WrongCount, element("Q", "I T C V L K M SM S"), {}, true},
      {"R", 2, WrongCount, element("Q M S T C", "I V L K SM"), {}, true},
      {"TON TOF TONR", 2, WrongCount, Place(WrongArea).UpTo("I Q M SM S T C", 63, AddressTimer),
       Place(Verdict{}).Named("QW IW MW SMW SW LW T", WrongArea), false},
      {"CTU CTD CTUD", 2, WrongCount, Place(WrongArea).Areas("C", AddressByte),
       Place(WrongArea).AnyNumber("K VW"), false},
      {"MOVB", 2, WrongCount,
       Place(WrongArea)
           .Areas("IB QB MB VB AC", AddressOp1)
           .Smb({28, 29, 34, 35}, AddressOp1)
           .UpTo("K", 255, TooLargeOp1),
       Place(WrongArea).Areas("VB AC", AddressOp2), false},
      {"MOVW", 2, WrongCount,
       Place(WrongArea).Areas("IW QW MW VW T C AC AIW", AddressOp1).AnyNumber("K"),
       Place(WrongArea).Areas("VW T C AC AQW", AddressOp2), false},
      {"MOVD", 2, WrongCount,
       Place(WrongArea).Areas("VD AC", AddressOp1).UpTo("K", 255, TooLargeOp1),
       Place(WrongArea).Areas("VD AC", AddressOp2), false},
      {"BIR", 2, WrongCount, Place(WrongArea).Areas("IB", AddressOp1),
       Place(WrongAreaInOp2).Areas("VB AC", AddressOp2), false},
      {"BIW", 2, WrongCount, Place(WrongArea).Areas("VB", AddressOp1).UpTo("K", 255, TooLargeBiw),
       Place(WrongAreaInOp2).Areas("QB AC", AddressOp2), false},
      {"BTI", 2, WrongCount,
       Place(WrongAreaInOp1)
           .Areas("IB QB MB VB", AddressOp1)
           .Smb({28, 29, 34, 35}, AddressOp1)
           .UpTo("K", 255, TooLargeOp1),
       Place(WrongArea).Areas("VW T C AC", AddressOp2), false},
      {"+I -I *I /I", 2, WrongCount,
       Place(WrongArea).Areas("VW T C AC AIW", AddressOp1).AnyNumber("K"),
       Place(WrongArea).Areas("VW T C AC", AddressOp2), false},
      {"+D -D *D /D", 2, WrongCount, doubleValue(WrongArea, AddressOp1),
       Place(WrongArea).Areas("VD AC", AddressOp2), false},
      {"INCB DECB", 1, WrongCount, Place(WrongArea).Areas("VB AC", AddressOp1), {}, false},
      {"INCW DECW", 1, WrongCount, Place(WrongArea).Areas("VW AC", AddressOp1), {}, false},
      {"INCD DECD", 1, WrongCount, Place(WrongArea).Areas("VD AC", AddressOp1), {}, false},
      {Comparisons("B"), 2, WrongCount, byteValue(WrongAreaOp1, AddressOp1, TooLargeOp1),
       byteValue(WrongAreaOp2, AddressOp2, TooLargeOp2), false},
      {Comparisons("W"), 2, WrongCount, wordValue(WrongAreaOp1, AddressOp1),
       wordValue(WrongAreaOp2, AddressOp2), false},
      {Comparisons("D"), 2, WrongCount, doubleValue(WrongAreaOp1, AddressOp1),
       doubleValue(WrongAreaOp2, AddressOp2), false},
  };
  return rules;
}

inline const Rule& RuleOf(const std::string& mnemonic) {
  for (const Rule& rule : Rules()) {
    const std::vector<std::string> words = Words(rule.mnemonics);
    if (std::ranges::find(words, mnemonic) != words.end()) return rule;
  }
  throw std::out_of_range(mnemonic);
}

inline std::vector<std::string> MnemonicsWithRules() {
  std::vector<std::string> all;
  for (const Rule& rule : Rules()) {
    const std::vector<std::string> words = Words(rule.mnemonics);
    all.insert(all.end(), words.begin(), words.end());
  }
  return all;
}

}  // namespace tavorno::prova
