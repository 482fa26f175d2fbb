// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tavorno {

/// What stood in the way of a read.
enum class Causa : std::uint8_t {
  Nessuna,
  Disco,      ///< the file as such cannot be read
  Formato,    ///< a line, or the text as a whole, is none of a project
  Capienza,   ///< more rows than the table of rows holds
  Interrupt,  ///< a routine of interrupt
};

/// A line that the project's tables or columns cannot take. Caught by the reader and the writer,
/// which turn it into their failure paths. The message is Italian, UTF-8.
class Riga_Rifiutata : public std::runtime_error {
 public:
  explicit Riga_Rifiutata(const std::string& motivo, Causa causa = Causa::Formato)
      : std::runtime_error(motivo), causa_(causa) {}
  Causa Perche() const { return causa_; }

 private:
  Causa causa_;
};

/// Why a read was given up, for a caller that shows or prints it. Texts in UTF-8.
struct Dettaglio_Lettura {
  int Riga = 0;        ///< line of the file from 1; 0 when the file as a whole is meant
  std::string Testo;   ///< that line
  std::string Motivo;  ///< in Italian; empty: no read has failed
  Causa Perche = Causa::Nessuna;

  std::string Come_Testo() const {
    if (Riga == 0) return Motivo;
    return "Riga " + std::to_string(Riga) + ": " + Testo + "\n" + Motivo;
  }
};

}  // namespace tavorno
