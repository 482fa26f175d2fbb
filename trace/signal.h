// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "plc/plc.h"
#include "plc/symbol_row.h"
#include "trace/address.h"

namespace tavorno {

/// A cell that is recorded. Analog ones are in volts or milliamperes.
struct Segnale {
  std::string Nome;       ///< symbol, or the address where there is none; UTF-8
  std::string Indirizzo;  ///< "I0.0", "AIW2", "T37.Val"
  Area Dove = Area::I;
  int Num = 0, Bit = 0;
  Parte_Cella Quale = Parte_Cella::Bit;  ///< of T and C

  bool Analogico() const { return Dove == Area::AIW || Dove == Area::AQW; }
  bool Uscita() const { return Dove == Area::Q || Dove == Area::QB || Dove == Area::AQW; }
  /// Only 0 and 1.
  bool Di_Bit() const;
  bool Ha_Simbolo() const { return Nome != Indirizzo; }

  bool operator==(const Segnale&) const = default;
};

/// `indirizzo` as `Leggi_Indirizzo` takes it; one that it does not take is I0.0.
Segnale Fai_Segnale(const std::string& nome, const std::string& indirizzo);

/// What is recorded of it now.
double Valore(const Segnale& segnale, const Plc& plc);

/// A value as it is shown: "1", "-12", "3,30 V".
std::string Testo_Valore(const Segnale& segnale, double valore);

/// The symbols of a plant, then what the program in the memory names besides: its
/// inputs, outputs, markers, elements with their value, and words. Each cell once; at most
/// `massimi`.
std::vector<Segnale> Segnali_Di(Elenco_IO impianto, const Memoria& memoria,
                                std::size_t massimi = 64);

/// Every cell that there is, in the order of the areas.
std::vector<Segnale> Tutte_Le_Celle();

/// The signal of an address or of a plant's symbol; capitals do not matter. Empty when it is
/// neither.
std::optional<Segnale> Cerca_Segnale(const std::string& testo, Elenco_IO impianto);

}  // namespace tavorno
