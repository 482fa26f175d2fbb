// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

// What the panel shows of the CPU, and the ticks and numbers on it that the run looks at.
namespace tavorno {

/// What changed since a window last looked. The CPU sets marks line by line, and a window takes
/// them when it next refreshes its picture. The logic stack has no mark, since nearly every line
/// changes it: a window that shows it reads it at each refresh.
enum Segno : unsigned {
  Segno_Immagini = 1U << 0,   ///< `etIPI`, `etIPQ`
  Segno_PC = 1U << 1,         ///< `etPc`
  Segno_Tempo = 1U << 2,      ///< `etTime`
  Segno_Lista = 1U << 3,      ///< `Lista_Scelta`
  Segno_Comandi = 1U << 4,    ///< `Attivi`, `PLC_Acceso`, `Modo_Run`
  Segno_Analogici = 1U << 5,  ///< analog words and voltages
};

/// Range of the analog channels: which divisor turns volts or milliamperes into words.
enum class Scala : std::uint8_t { Volt_10, mA_20, Nessuna };

/// Ticks and numbers of the panel that the run looks at.
struct Opzioni {
  bool chkList = true;   ///< show the scan time at every line
  bool chkIP = false;    ///< show the input and output images
  bool chkStop = false;  ///< Ciclo: stop when the next line is `txtStop`
  bool chkSol = false;   ///< Ciclo: stop after `txtNC` scans
  int txtStop = 0;       ///< a row of the program
  int txtNC = 1;         ///< scans, at least 1
  Scala opzAI = Scala::Volt_10;
  Scala opzAQ = Scala::Volt_10;  ///< `Nessuna` counts as mA_20

  bool operator==(const Opzioni&) const = default;
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

struct Vista_Pannello {
  Opzioni Scelte;
  Comandi Attivi;

  std::string etTime = "0";          ///< scan time as shown
  std::array<std::string, 2> etIPI;  ///< input images as shown
  std::array<std::string, 2> etIPQ;  ///< output images as shown
  int etPc = 0;                      ///< `PC` as shown in Step mode
  int Lista_Scelta = -1;             ///< line selected in the program list, -1 for none

  /// Sets marks out of `Segno`, joined by "|".
  void Segna(unsigned segni) { segni_ |= segni; }
  /// The marks set since the last call.
  unsigned Prendi_Segni() {
    const unsigned segni = segni_;
    segni_ = 0;
    return segni;
  }

 private:
  unsigned segni_ = 0;
};

}  // namespace tavorno
