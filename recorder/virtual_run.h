// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "plc/plc.h"
#include "plc/rest.h"
#include "recorder/hands.h"
#include "trace/trace.h"

namespace tavorno {

/// An input that changes at a moment of the run: a digital point, or an analog channel.
struct Evento_Ingresso {
  std::int64_t Ms = 0;     ///< since Run
  bool Analogico = false;  ///< else digital
  int Byte = 0;            ///< digital: 0..1
  int Bit = 0;             ///< digital: 0..7
  bool Acceso = false;     ///< digital
  int Canale = 0;          ///< analog: 0..2
  float Valore = 0;        ///< analog: volts or milliamperes, -1000..1000
};

/// Reads "0:I0.1=1,500:I0.1=0,800:AI0=2.5" into events sorted by time. On a mistake the list is
/// empty and `errore` says in Italian what is wrong.
std::vector<Evento_Ingresso> Leggi_Ingressi(const std::string& testo, std::string& errore);

/// Bounds of a run; each keeps a program that goes wrong from running for ever.
struct Limiti {
  std::int64_t Durata = 10000;   ///< virtual time, ms
  int Scansione = 1;             ///< virtual time of one scan, ms
  int Righe_Scansione = 100000;  ///< lines without reaching MEND
  bool Ogni_Scansione = false;  ///< run scans that change nothing as well; the results are the same
};

enum class Fine_Corsa {
  Tempo,       ///< the virtual time is over
  Arresto,     ///< the CPU stopped itself with a message
  Senza_MEND,  ///< the limit of lines in one scan was passed
  Fatale,      ///< an index outside a table, or a value that does not fit its cell
};

/// Runs the loaded program from Run on, in mode Cont, and tells every change of an input or output.
/// A plant, where there is one, is alive from before Run to the end.
class Corsa {
 public:
  Corsa(Plc& plc, Limiti limiti);

  /// Called with the time in ms since Run, 'I' or 'Q', byte, bit and new state.
  std::function<void(std::int64_t, char, int, int, bool)> Cambio;
  std::vector<Evento_Ingresso> Ingressi;  ///< sorted by time

  Collegamento* Impianto_Collegato = nullptr;  ///< opened, and not yet loaded; nullptr: none
  std::vector<Gesto> Mani;  ///< sorted by time; without a plant they are not done
  /// Called with the time in ms since Run and a movement that nothing felt.
  std::function<void(std::int64_t, const Gesto&)> Senza_Effetto;
  Traccia* Registra = nullptr;  ///< records inputs and outputs, as one case; nullptr: nothing does

  Fine_Corsa Esegui();
  std::int64_t Tempo() const { return plc_.Tempo.Adesso() - inizio_; }
  std::int64_t Scansioni_Saltate() const { return riposo_.Saltate(); }
  const std::string& Rapporto() const { return rapporto_; }  ///< of a fatal end

 private:
  void Prima_Della_Scansione();
  bool Fa_Passare(std::int64_t scansioni);
  std::int64_t Scansioni_Senza_Eventi() const;
  void Applica_Eventi();
  void Campiona();
  void Confronta(char area, std::array<std::uint8_t, 2>& visti, int byte, std::uint8_t adesso);

  Plc& plc_;
  Limiti limiti_;
  std::int64_t inizio_ = 0;
  Riposo riposo_;
  std::size_t prossimo_ingresso_ = 0, prossimo_gesto_ = 0;
  std::int32_t scansioni_viste_ = -1;
  bool senza_mend_ = false;
  std::array<std::uint8_t, 2> ingressi_visti_{}, uscite_viste_{};
  std::string rapporto_;
};

}  // namespace tavorno
