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

namespace tavorno {

class Insieme;

/// Execution modes, with the numbers of `Modo_Run`.
enum class Modo : std::uint8_t { Cont = 0, Step = 1, Ciclo = 2 };

/// Range of the analog channels: which divisor turns volts or milliamperes into words.
enum class Scala : std::uint8_t { Volt_10, mA_20, Nessuna };

/// Ticks and numbers of the panel that the run looks at.
struct Opzioni {
  bool chkList = true;   ///< show the scan time at every line
  bool chkIP = false;    ///< show the input and output images
  bool chkStop = false;  ///< Ciclo: stop when the next line is `txtStop`
  bool chkSol = false;   ///< Ciclo: stop after `txtNC` scans
  int txtStop = 0;
  int txtNC = 1;
  Scala opzAI = Scala::Volt_10;
  Scala opzAQ = Scala::Volt_10;
};

/// Which run commands can be given, and the page of the run options in front. Everything is as it
/// stands before the first Run.
struct Comandi {
  bool mnuPlcRun = true;
  bool mnuPlcStop = false;
  bool mnuPlcCont = true;
  bool mnuPlcCiclo = true;
  bool mnuPlcStep = true;
  bool CmdStep = false;
  bool cmdRest = false;
  int SSTb3 = 0;  ///< 0 Cont, 1 Ciclo, 2 Step
};

/// The simulated CPU: its memory, the interpreter and the run control. It knows no window; it
/// speaks to one through `Hook`, the marks and the events of its byte bars.
struct Plc : Memoria {
  explicit Plc(Orologio& orologio);
  Plc(const Plc&) = delete;
  Plc& operator=(const Plc&) = delete;

  Orologio& Tempo;
  Ganci Hook;
  Opzioni Scelte;

  std::array<LedI, 2> SI;  ///< input bars: a byte reaches the CPU only through them
  std::array<LedQ, 2> SQ;  ///< output bars: a byte reaches a plant only through them

  // ---- run control (run_control.cpp) -----------------------------------------------------------

  std::int16_t PLC_Acceso = 0;   ///< -1 between Run and Stop
  std::int16_t Ferma = 0;        ///< -1 asks the run loops to leave
  Modo Modo_Run = Modo::Cont;    ///< the mode that is ticked in the menu
  std::int32_t N_Cicli = 0;      ///< finished scans since Run
  std::int32_t Tempo_Ciclo = 0;  ///< length of the last scan, ms
  std::int32_t T_Inizio = 0;     ///< millisecond count at the start of the scan
  std::int16_t Primo_Ciclo = 0;  ///< -1 from Run to the first MEND, in Cont and Ciclo
  std::int16_t Clock_T = 100;    ///< period of `T100m`, ms
  Comandi Attivi;

  /// The commands of the PLC menu. `mnuPlcRun`, `mnuPlcCont` and `cmdRest` return only when the run
  /// loop that they entered has ended; one called from inside a running loop starts no second one.
  void mnuPlcRun();
  void mnuPlcStop();
  void mnuPlcCont();
  void mnuPlcCiclo();
  void mnuPlcStep();
  void CmdStep();
  void cmdRest();

  void Cicla();
  void Cicla_Ciclo();
  void Init_PLC();
  void SM_Set();

  // ---- one line (scan.cpp) ---------------------------------------------------------------------

  /// Jumps that one call follows before it gives way to the yield. Labels and procedures begin with
  /// a line that is no jump, so only returns make chains, of as many as the return table has cells.
  /// A longer one comes from a program that runs in a circle; without the limit it would never end.
  static constexpr int Salti_Di_Seguito = 100;

  /// Executes the line of `PC`, and on through jumps up to a line that is no jump.
  void Esegui_Riga() { Esegui_Righe(1); }
  /// The same line after line, at least one and at most `massimo`, to the end of the scan at the
  /// latest, and no further once `Ferma` is set. Returns how many; nobody looks on in between.
  int Esegui_Righe(int massimo);

  void StartTimer();
  void StopTimer();
  void Setta_Uscite();
  void Aggiorna_IP_Ing();
  void Reset_IP_Out();
  void Aggiorna_IPQ(int riga);
  void Setta_Marker();
  void Byte_Bit(int valore, int riga);
  /// An operation on the logic stack by its code: 0 clear, 1 push, 2 and-pop, 3 or-pop, 4 set top,
  /// 5 duplicate, 6 read second, 7 pop; others change nothing.
  void GestStak(std::uint8_t codice, std::int16_t valore = 0);
  /// The same on the table of return lines: 0 clear, 1 push, 2 remove two; others change nothing.
  void Rit_Stak(std::uint8_t codice, std::int16_t valore = 0);

  // ---- what a window shows ---------------------------------------------------------------------

  std::string etTime = "0";          ///< scan time as shown
  std::array<std::string, 2> etIPI;  ///< input images as shown
  std::array<std::string, 2> etIPQ;  ///< output images as shown
  int etPc = 0;                      ///< `PC` as shown in Step mode
  int Lista_Scelta = -1;             ///< line selected in the program list, -1 for none

  /// The marks set since the last call.
  unsigned Prendi_Segni();
  void Segna(unsigned segni) { segni_ |= segni; }

  // ---- operands (operands.cpp) -----------------------------------------------------------------

  std::int16_t AC1_Bit(Area area, int num, int bit, std::int16_t& err) const;
  /// 16-bit values; 0 and `err` -1 on a failure. `err` is never cleared.
  std::int16_t Leggi_B(Area area, int num, std::int16_t& err) const;
  std::int16_t Leggi_W(Area area, int num, std::int16_t& err) const;
  std::int32_t Leggi_D(Area area, int num, std::int16_t& err) const;

  // ---- branches of the interpreter -------------------------------------------------------------

  Esito Senza_Ramo(Riga_PLC&);  ///< no branch: the program is stopped with a message
  Esito Istr_Nulla(Riga_PLC&);  ///< a recognised line that does nothing

  // bit_logic.cpp
  Esito Istr_LD(Riga_PLC&);
  Esito Istr_LDN(Riga_PLC&);
  Esito Istr_LDI(Riga_PLC&);
  Esito Istr_LDNI(Riga_PLC&);
  Esito Istr_A(Riga_PLC&);
  Esito Istr_AN(Riga_PLC&);
  Esito Istr_AI(Riga_PLC&);
  Esito Istr_ANI(Riga_PLC&);
  Esito Istr_O(Riga_PLC&);
  Esito Istr_ON(Riga_PLC&);
  Esito Istr_OI(Riga_PLC&);
  Esito Istr_ONI(Riga_PLC&);
  Esito Istr_NOT(Riga_PLC&);
  Esito Istr_EU(Riga_PLC&);
  Esito Istr_ED(Riga_PLC&);
  Esito Istr_ALD(Riga_PLC&);
  Esito Istr_OLD(Riga_PLC&);
  Esito Istr_LPS(Riga_PLC&);
  Esito Istr_LRD(Riga_PLC&);
  Esito Istr_LPP(Riga_PLC&);
  Esito Istr_Assegna(Riga_PLC&);
  Esito Istr_Assegna_I(Riga_PLC&);
  Esito Istr_S(Riga_PLC&);
  Esito Istr_R(Riga_PLC&);
  Esito Istr_SI(Riga_PLC&);
  Esito Istr_RI(Riga_PLC&);

  // timers.cpp, counters.cpp
  Esito Istr_TON(Riga_PLC&);
  Esito Istr_TOF(Riga_PLC&);
  Esito Istr_TONR(Riga_PLC&);
  Esito Istr_CTU(Riga_PLC&);
  Esito Istr_CTD(Riga_PLC&);
  Esito Istr_CTUD(Riga_PLC&);

  // moves.cpp
  Esito Istr_MOVB(Riga_PLC&);
  Esito Istr_MOVW(Riga_PLC&);
  Esito Istr_MOVD(Riga_PLC&);
  Esito Istr_BIR(Riga_PLC&);
  Esito Istr_BIW(Riga_PLC&);
  Esito Istr_BTI(Riga_PLC&);

  // comparisons.cpp
  Esito Istr_Confronto_B(Riga_PLC&);
  Esito Istr_Confronto_W(Riga_PLC&);
  Esito Istr_Confronto_D(Riga_PLC&);

  // arithmetic.cpp
  Esito Istr_Somma_I(Riga_PLC&);
  Esito Istr_Sottrai_I(Riga_PLC&);
  Esito Istr_Molt_I(Riga_PLC&);
  Esito Istr_Divi_I(Riga_PLC&);
  Esito Istr_Somma_D(Riga_PLC&);
  Esito Istr_Sottrai_D(Riga_PLC&);
  Esito Istr_Molt_D(Riga_PLC&);
  Esito Istr_Divi_D(Riga_PLC&);
  Esito Istr_INCB(Riga_PLC&);
  Esito Istr_DECB(Riga_PLC&);
  Esito Istr_INCW(Riga_PLC&);
  Esito Istr_DECW(Riga_PLC&);
  Esito Istr_INCD(Riga_PLC&);
  Esito Istr_DECD(Riga_PLC&);

  // program_flow.cpp
  Esito Istr_MEND(Riga_PLC&);
  Esito Istr_JMP(Riga_PLC&);
  Esito Istr_CALL(Riga_PLC&);
  Esito Istr_RET(Riga_PLC&);
  Esito Istr_CRET(Riga_PLC&);
  Esito Istr_LSCR(Riga_PLC&);

  // ---- system clocks (run_control.cpp) ---------------------------------------------------------

  Temporizzatore T100m;  ///< advances the timers
  Temporizzatore tim1;   ///< 500 ms: SM0.5
  Temporizzatore tim2;   ///< 30 s: SM0.4
  Temporizzatore timIO;  ///< 20 ms: analog exchange

 private:
  bool Flusso(const Riga_PLC& riga) const { return (Stak[0] & riga.Abil_SCR) == 1; }
  void Cima_E(std::int16_t bit) { GestStak(4, static_cast<std::int16_t>(Stak[0] & bit)); }
  void Cima_O(std::int16_t bit) { GestStak(4, static_cast<std::int16_t>(Stak[0] | bit)); }

  template <class Unisci>
  Esito Contatto(const Riga_PLC& riga, Unisci unisci);
  template <class Unisci>
  Esito Contatto_Immediato(const Riga_PLC& riga, Unisci unisci);

  /// Every instruction that writes M begins with this: its first one finds no text in any row.
  void Inizia_Marker() {
    if (Mem_M[0].Txt_B.empty()) Setta_Marker();
  }
  /// One cell of M and, when it changed, the value and the text of its byte. They follow from the
  /// bit: gathering the eight cells again would wait for the one that was just written.
  void Scrivi_Marker(int riga, int bit, std::uint8_t valore);

  // operands.h: the value of an operand before any limit, and the write of one; false for an area
  // that is not in the set
  bool Leggi(Insieme ammesse, Area area, int num, std::int32_t& valore) const;
  bool Primo(const Riga_PLC& riga, Insieme ammesse, std::int32_t& valore) const;
  bool Secondo(const Riga_PLC& riga, Insieme ammesse, std::int32_t& valore) const;
  bool Scrivi(Insieme ammesse, Area area, int num, std::int32_t valore);
  bool Scrivi_Secondo(const Riga_PLC& riga, Insieme ammesse, std::int32_t valore);

  Riga_Timer* Prendi_Timer(const Riga_PLC& riga);
  Riga_Contatore* Prendi_Contatore(const Riga_PLC& riga);
  Esito Ritardo_Inserzione(const Riga_PLC& riga, bool con_memoria);

  template <auto Lettura>
  Esito Confronto(const Riga_PLC& riga);

  // arithmetic.cpp
  void Flag_Z_N(long long risultato);
  void Flag_V();
  Esito Somma_Algebrica_I(const Riga_PLC& riga, int segno, const char* nome);
  void Concludi_Prodotto_I(const Riga_PLC& riga, std::int32_t risultato);
  void Concludi_Doppia(const Riga_PLC& riga, std::int32_t risultato);
  template <Area Celle, int Minimo, int Massimo>
  Esito IncDec(const Riga_PLC& riga, int passo);

  void Ferma_Timer(const Riga_PLC& riga);
  Esito Esegui_Ramo(int numero);
  Esito Fine_Diversa(Esito esito);
  void Mostra_Riga();
  void Mostra_Tempo();
  void Avvisa(const Avviso& avviso) const;
  void Scegli_Modo(Modo modo);

  void Tick_T100m();
  void Tick_timIO();

  unsigned segni_ = 0;
  std::int32_t tempo_mostrato_ = -1;  // the number that `etTime` shows, -1 for another text
  bool in_ciclo_ = false;             // a run loop is at work further up the call stack
  std::uint8_t stato_tim1_ = 0, stato_tim2_ = 0;
};

// Here and not in a source file: with its code known, an operation is a few machine instructions.
[[gnu::always_inline]] inline void Plc::GestStak(std::uint8_t codice, std::int16_t valore) {
  switch (codice) {
    case 0:
      Stak.Azzera();
      break;
    case 1:
      Stak.Spingi(valore);
      break;
    case 2: {
      const auto due = static_cast<std::int16_t>(Stak[0] & Stak[1]);
      Stak.Togli();
      Stak[0] = due;
      break;
    }
    case 3: {
      const auto due = static_cast<std::int16_t>(Stak[0] | Stak[1]);
      Stak.Togli();
      Stak[0] = due;
      break;
    }
    case 4:
      Stak[0] = valore;
      break;
    case 5:
      Stak.Spingi(Stak[0]);
      break;
    case 6:
      Stak[0] = Stak[1];
      break;
    case 7:
      Stak.Togli();
      break;
    default:
      break;
  }
}

/// The report of a fatal end, in Italian (UTF-8): what, table or operation with index or value, the
/// line of `PC` and its text.
std::string Rapporto_Fatale(const Fatale& fatale, const Plc& plc);

}  // namespace tavorno
