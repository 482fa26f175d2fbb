// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

// The one door. Everything that enters a session is an `Atto`, which `Plc::Entra` or
// `Collegamento::Entra` announces by `Ganci::Entra` and then lets in. A run is a function of its
// entries: whoever writes them down can play it again.
namespace tavorno {

/// What an entry is. The numbers are those of the journal's file: new kinds go to the end.
enum class Cosa : std::uint8_t {
  Presente,  ///< real time: the clock moves to `Numero` ms
  Passano,   ///< virtual time: `Numero` ms pass
  Salta,     ///< `Numero` scans that would change nothing are left out
  Comando,   ///< `Indice` is a `Comando_Corsa`

  Ingresso,       ///< input bar `Indice` takes the bit text `Testo`
  Volt_AI,        ///< analog input `Indice` is at `Valore` volts or milliamperes
  Potenziometro,  ///< potentiometer `Indice` stands at `Numero`, 0..255
  Scelta,         ///< option `Indice`, a `Scelta_Pannello`, becomes `Numero`
  Aspetto_LED,    ///< input bars: colour `Indice`, form `Numero`
  Periodo,        ///< `Clock_T` becomes `Numero` ms
  Forza,          ///< the cell that `Testo` names is set to `Valore`

  Azzera_Elementi,  ///< the panel came to the front: `Init_PLC` when `Numero` is 1
  Programma,        ///< the table of compiled lines is a new one
  Avviso_Chiuso,    ///< a message box, and what entered while it was open, is behind

  Apri,              ///< the plant of exercise `Indice` is made
  Carica,            ///< and speaks for the first time
  Chiudi,            ///< it goes
  Usa_Interruttori,  ///< `chkSim` of its window becomes `Numero`
  Cursore,           ///< slider `Indice` of its window stands at `Numero`
  Premi,             ///< the hand on figure `Testo`
  Rilascia,
  Clic,
  Doppio_Clic,
  Regola,  ///< up/down `Testo` is turned to `Valore`

  /// Nothing that enters: output bar `Indice` told the plant the byte `Numero` (from 2 on: analog
  /// outputs), so that a plant can be played again without the CPU.
  Uscita,

  Guasto,  ///< the wire of an input, "filo(I0.3)" in `Testo`, breaks (`Numero` 1) or is mended
};
inline constexpr int Cose = static_cast<int>(Cosa::Guasto) + 1;

/// The run commands of the panel.
enum class Comando_Corsa : std::uint8_t {
  Run,
  Stop,
  Cont,
  Ciclo,
  Step,
  Passo,     ///< `CmdStep`
  Riprendi,  ///< `cmdRest`: on after a stop line
  Pausa,     ///< the run loop is left as it stands, CPU and clock with it
  Continua,  ///< and entered again
  Fine,      ///< a window that ends the process or the program closes: `Ferma`
};
inline constexpr int Comandi_Corsa = static_cast<int>(Comando_Corsa::Fine) + 1;

/// The fields of `Opzioni`.
enum class Scelta_Pannello : std::uint8_t {
  chkList,
  chkIP,
  chkStop,
  chkSol,
  txtStop,
  txtNC,
  opzAI,
  opzAQ,
};
inline constexpr int Scelte_Pannello = static_cast<int>(Scelta_Pannello::opzAQ) + 1;

struct Atto {
  Cosa Che{};
  int Indice = 0;
  std::int64_t Numero = 0;
  double Valore = 0;
  std::string_view Testo = {};

  bool operator==(const Atto&) const = default;
};

inline Atto Di_Comando(Comando_Corsa comando) {
  return {.Che = Cosa::Comando, .Indice = static_cast<int>(comando)};
}
inline Atto Di_Scelta(Scelta_Pannello scelta, std::int64_t valore) {
  return {.Che = Cosa::Scelta, .Indice = static_cast<int>(scelta), .Numero = valore};
}
inline Atto Di_Ingresso(int barra, std::string_view testo) {
  return {.Che = Cosa::Ingresso, .Indice = barra, .Testo = testo};
}

/// The kinds that a plant takes in, and not the CPU.
constexpr bool Dell_Impianto(Cosa cosa) {
  return (cosa >= Cosa::Apri && cosa <= Cosa::Regola) || cosa == Cosa::Guasto;
}

}  // namespace tavorno
