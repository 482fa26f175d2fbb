// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plc/plc.h"

// What stands beside a line of the program while it is watched.
namespace tavorno {

/// The state of a line's operands as the program reads them: "1", "0  23/50" for a timer (bit,
/// value and preset), "300", "300  12" for two words. Empty for a line without cells.
struct Stato_Operandi {
  std::string Testo;
  bool Acceso = false;  ///< the first one is a bit, and on

  bool operator==(const Stato_Operandi&) const = default;
};
Stato_Operandi Leggi_Operandi(const Plc& plc, const Riga_PLC& riga);

/// Whether power flows behind a line: the top of the stack once it was executed, where the line was
/// enabled. For a jump, what it found.
enum class Flusso_Riga : std::uint8_t { Ignoto, Spento, Acceso };

/// Where power flowed in the scan that executed the last line, for somebody who looks on between
/// any two lines.
class Flusso_Scansione {
 public:
  void Guarda(const Plc& plc);
  /// The scan was watched from its first line on.
  bool Intera() const { return intera_; }
  /// By line; those that it did not execute, or not yet, are unknown.
  const std::vector<Flusso_Riga>& Noti() const { return noti_; }

 private:
  std::vector<Flusso_Riga> noti_;
  bool intera_ = false;
  std::int64_t righe_ = -1;  // executed by then
  int prima_ = -1;
  std::int16_t cima_prima_ = 0;
};

/// Watches where power flows. A run is watched for one scan at a time, when asked to; between two
/// such scans it costs nothing. Lines that were not executed in it are unknown.
class Flusso_Righe {
 public:
  explicit Flusso_Righe(Plc& plc) : plc_(plc) {}
  Flusso_Righe(const Flusso_Righe&) = delete;
  Flusso_Righe& operator=(const Flusso_Righe&) = delete;

  /// The next whole scan of the run is watched, line by line; nothing happens while one is.
  void Chiedi();
  /// The CPU stands: what was watched of the scan under way counts.
  void Fermo();
  /// One line was executed by hand, the one that stands in the list as executed.
  void Passo();
  /// Nothing is known any more, and nobody listens.
  void Dimentica();
  /// What somebody else has found out, by line; nobody listens.
  void Prendi(std::vector<Flusso_Riga> noti);

  Flusso_Riga Di(int riga) const;
  bool In_Ascolto() const { return ascolta_; }

 private:
  void In_Cessione();

  Plc& plc_;
  std::vector<Flusso_Riga> noti_, nuovi_;
  Iscrizione cessione_;
  bool ascolta_ = false, in_scansione_ = false;
  int prima_ = -1;               // the line that was about to be executed
  std::int16_t cima_prima_ = 0;  // the top of the stack then
};

}  // namespace tavorno
