// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "plc/byte_bar.h"
#include "plc/clock.h"
#include "plc/fatal.h"
#include "plc/hooks.h"
#include "plc/memory.h"
#include "plc/panel_view.h"
#include "plc/run_state.h"
#include "plc/snapshot.h"

// The simulated CPU. It has three faces: the memory with the program and the interpreter, the run
// control, and what a panel shows of it.
//
// Whoever uses it as a library owns a clock and a CPU, puts a compiled program into its memory,
// gives Run in mode Step (which returns at once) and then executes lines while it moves the clock:
//
//   Orologio orologio;
//   Plc plc(orologio);
//   static_cast<Memoria&>(plc) = programma;   // compiled by awl
//   plc.mnuPlcStep();
//   plc.mnuPlcRun();
//   plc.SI[0].Stato_I("10000000");            // I0.0 on
//   for (int scansione = 0; scansione < 100; ++scansione) {
//     const auto finite = plc.N_Cicli;
//     while (plc.PLC_Acceso && plc.N_Cicli == finite) plc.Esegui_Righe(1000);
//     orologio.Avanza(1);                     // a millisecond; timers tick on its way
//   }
//   const bool acceso = plc.SQ[0].Stato_Q()[0] == '1';  // Q0.0
//
// What the program does wrong is a message (`Hook.Mostra`) and Stop; an index outside a table and a
// value that does not fit its cell throw `Fatale`, after which only the memory can still be read.
namespace tavorno {

struct Plc : Memoria, Stato_Corsa, Vista_Pannello {
  /// The clock must outlive the CPU.
  explicit Plc(Orologio& orologio);
  Plc(const Plc&) = delete;
  Plc& operator=(const Plc&) = delete;

  Orologio& Tempo;
  Ganci Hook;

  std::array<LedI, 2> SI;  ///< input bars: a byte reaches the CPU only through them
  std::array<LedQ, 2> SQ;  ///< output bars: a byte reaches a plant only through them

  Temporizzatore T100m;  ///< advances the timers
  Temporizzatore tim1;   ///< 500 ms: SM0.5
  Temporizzatore tim2;   ///< 30 s: SM0.4
  Temporizzatore timIO;  ///< 20 ms: analog exchange

  // ---- the interpreter (scan.cpp) --------------------------------------------------------------

  /// Jumps that one call follows before it gives way to the yield. Only returns make chains, of as
  /// many as their table has cells; a longer one is a program that runs in a circle without end.
  static constexpr int Salti_Di_Seguito = 100;

  /// Executes the line of `PC`, and on through jumps up to a line that is no jump.
  void Esegui_Riga() { Esegui_Righe(1); }
  /// The same line after line, at least one and at most `massimo`, to the end of the scan at the
  /// latest, and no further once `Ferma` is set. Returns how many; nobody looks on in between.
  int Esegui_Righe(int massimo);

  void StartTimer();
  void StopTimer();
  void Setta_Uscite();     ///< output images to the points, the byte values and the bars
  void Aggiorna_IP_Ing();  ///< input bars to the points and images
  void Reset_IP_Out();
  void Aggiorna_IPQ(int riga);          ///< shows an output image; `riga` 0..1
  void Byte_Bit(int valore, int riga);  ///< a byte into the points and images of an output row

  // ---- run control (run_control.cpp) -----------------------------------------------------------

  /// The commands of the PLC menu. `mnuPlcRun`, `mnuPlcCont` and `cmdRest` return only when the run
  /// loop that they entered has ended; one called from inside a running loop starts no second one.
  void mnuPlcRun();
  void mnuPlcStop();
  void mnuPlcCont();
  void mnuPlcCiclo();
  void mnuPlcStep();
  void CmdStep();
  void cmdRest();
  void Cicla();        ///< the run loop of mode Cont, until `Ferma`
  void Cicla_Ciclo();  ///< that of mode Ciclo, to the chosen line or number of scans at the latest

  // ---- what enters (plc_entries.cpp) -----------------------------------------------------------

  /// Announces an entry and lets it in; a command that enters a run loop comes back with its end.
  /// Entries of a plant, of the program and of forced cells are let in by others (`Collegamento`,
  /// the recorder) and do nothing here. Time that would not move is no entry, and in the past
  /// nothing enters.
  void Entra(const Atto& entrata);
  void Entra(Comando_Corsa comando) { Entra(Di_Comando(comando)); }

  /// Leaves the run loop as it stands, at its yield and before the next line; outside of a loop
  /// nothing happens. Any other run command but the choice of Ciclo ends the pause for good.
  void Sospendi() {
    if (giro_ != Giro::Nessuno) sospeso_ = giro_;
  }
  bool In_Pausa() const { return sospeso_ != Giro::Nessuno; }
  /// Enters the loop again that a pause left; without a pause nothing happens.
  void Continua();
  /// The loop that is at work further up the call stack.
  Giro In_Giro() const { return giro_; }
  /// Counts scans that would have left everything as it is, the last of them now.
  void Salta_Scansioni(std::int64_t scansioni);
  /// When the next tick is due that changes something, as the CPU stands now: `T100m` ticks for
  /// nothing while no timer counts, `timIO` while the analog words agree with their channels.
  std::int64_t Prossimo_Tick() const;

  // ---- the whole state (plc_snapshot.cpp) ------------------------------------------------------

  /// A full copy, but for the program's text. Between two lines only.
  Istantanea Fotografa() const;
  /// Everything as it was then, the clock too. A run loop that was at work counts as suspended.
  /// The program must be that of the copy, and no run loop may be at work.
  void Ripristina(const Istantanea& stato);

 private:
  Esito Esegui_Ramo(int numero);
  Esito Fine_Diversa(Esito esito);
  void Mostra_Riga();
  void Mostra_Tempo();
  void Scegli_Modo(Modo modo);
  void Fine_Giro();

  bool Timer_Fermi() const;
  bool Analogici_In_Pari() const;
  void Tick_T100m();
  void Tick_timIO();

  std::int32_t tempo_mostrato_ = -1;  // the number that `etTime` shows, -1 for another text
  Giro giro_ = Giro::Nessuno;         // the run loop at work further up the call stack
  Giro sospeso_ = Giro::Nessuno;      // the one that a pause left
  bool tempo_alla_fine_ = false;      // it was Run that entered it
  std::uint8_t stato_tim1_ = 0, stato_tim2_ = 0;
  std::array<Iscrizione, 2> ascolto_ingressi_;
};

/// The report of a fatal end, in Italian (UTF-8): what, table or operation with index or value, the
/// line of `PC` and its text.
std::string Rapporto_Fatale(const Fatale& fatale, const Plc& plc);

}  // namespace tavorno
