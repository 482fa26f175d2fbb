// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <string>

namespace tavorno {

/// A failure that no instruction reports softly: an index outside a table, arithmetic that does not
/// fit its cell, a text without a number. Nothing inside the CPU catches it; the process entry
/// shows `Rapporto_Fatale` (plc/plc.h) and ends the process with a status other than 0.
class Fatale : public std::exception {
 public:
  Fatale(std::string cosa, std::string tabella, long long indice);

  const std::string& Cosa() const { return cosa_; }        ///< what went wrong, in Italian (UTF-8)
  const std::string& Tabella() const { return tabella_; }  ///< table or operation concerned
  long long Indice() const { return indice_; }             ///< the refused index or value
  const char* what() const noexcept override { return testo_.c_str(); }

 private:
  std::string cosa_, tabella_;
  long long indice_;
  std::string testo_;
};

// Out of line so that a check costs its caller a compare and a call that is never made.
[[noreturn]] void Fatale_Indice(const char* tabella, long long indice);
[[noreturn]] void Fatale_Overflow(const char* operazione, long long valore);
[[noreturn]] void Fatale_Testo(const char* tabella, long long indice);

}  // namespace tavorno
