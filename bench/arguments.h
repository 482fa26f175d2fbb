// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace tavorno {

/// Wrong use of the command line; the message is Italian, UTF-8.
class Uso_Errato : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words behind a command's name, taken apart: `--nome valore` or `--nome=valore` for options
/// that take a value, `--nome` for switches, everything else (and all behind "--") a file.
class Argomenti {
 public:
  Argomenti(const std::vector<std::string>& parole, const std::set<std::string>& con_valore,
            const std::set<std::string>& senza_valore);

  const std::vector<std::string>& File() const { return file_; }
  /// The project, where a command takes one; throws `Uso_Errato` for none and for more.
  const std::string& Un_File() const;
  bool Ha(const std::string& opzione) const { return opzioni_.contains(opzione); }
  std::string Testo(const std::string& opzione, const std::string& altrimenti) const;
  /// A number in `minimo`..`massimo`.
  long long Numero(const std::string& opzione, long long altrimenti, long long minimo,
                   long long massimo) const;

 private:
  std::vector<std::string> file_;
  std::map<std::string, std::string> opzioni_;
};

}  // namespace tavorno
