// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "awl/checker.h"
#include "plc/plc.h"

namespace tavorno::prova {

/// Status and message of a checked line; 0 and "" when it is accepted.
struct Verdict {
  int status = 0;
  std::string text;

  bool operator==(const Verdict&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Verdict& verdict) {
  return out << verdict.status << " \"" << verdict.text << "\"";
}

inline std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

/// Every operand area that the checker can meet: those it knows, and an unknown and an empty one.
inline const std::vector<std::string>& AllAreas() {
  static const std::vector<std::string> areas = [] {
    std::vector<std::string> list =
        Words("I Q M SM S T C IB QB MB SMB VB IW QW MW VW AIW AQW VD AC K V L SMW SW LW ZZ");
    list.emplace_back();
    return list;
  }();
  return areas;
}

struct Operand {
  std::string area;
  int num = 0;
  int bit = -1;  ///< -1 without a dot

  /// As it is written on a line. A text without any digit has no area.
  std::string Text() const {
    std::string text = area.empty() ? "XY" : area + std::to_string(num);
    if (area == "K" && bit < 0) text = (num < 0 ? "" : "+") + std::to_string(num);
    if (bit >= 0) text += "." + std::to_string(bit);
    return text;
  }
};

inline Riga_Src Source(const std::string& mnemonic, std::vector<std::string> operands) {
  const auto count = static_cast<std::uint8_t>(operands.size());
  operands.resize(3);
  return {mnemonic, operands[0], operands[1], operands[2], count, "", ""};
}

/// "MOVB SMB30, VB0" as the reader would leave it.
inline Riga_Src Source(const std::string& line) {
  if (line.starts_with("NETWORK")) return Source(line, {});
  std::vector<std::string> words = Words(line);
  const std::string mnemonic = words.front();
  words.erase(words.begin());
  for (std::string& word : words) {
    if (word.back() == ',') word.pop_back();
  }
  return Source(mnemonic, words);
}

/// Compiles and checks single lines, each as a row of `Prog`, the way the compile loop does.
struct LineChecker {
  Orologio clock;
  Plc plc{clock};

  LineChecker() { plc.Prog.Ridimensiona(301); }

  /// The row is compiled and checked.
  int CheckRow(const Riga_Src& source, int row = 0) {
    Riempi_Riga(plc.Prog[row], source);
    return Controlla_Riga(plc.Prog[row], source).Stato;
  }

  Verdict Check(const Riga_Src& source) {
    Riempi_Riga(plc.Prog[0], source);
    const Esito_Riga found = Controlla_Riga(plc.Prog[0], source);
    return {found.Stato, found.Testo};
  }
  Verdict Check(const std::string& line) { return Check(Source(line)); }
};

}  // namespace tavorno::prova
