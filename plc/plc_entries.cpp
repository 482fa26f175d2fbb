// SPDX-License-Identifier: GPL-3.0-or-later
// What enters the CPU.
#include <algorithm>

#include "plc/entries.h"
#include "plc/plc.h"

namespace tavorno {

namespace {

void Dai(Plc& plc, Comando_Corsa comando) {
  switch (comando) {
    case Comando_Corsa::Run:
      return plc.mnuPlcRun();
    case Comando_Corsa::Stop:
      return plc.mnuPlcStop();
    case Comando_Corsa::Cont:
      return plc.mnuPlcCont();
    case Comando_Corsa::Ciclo:
      return plc.mnuPlcCiclo();
    case Comando_Corsa::Step:
      return plc.mnuPlcStep();
    case Comando_Corsa::Passo:
      return plc.CmdStep();
    case Comando_Corsa::Riprendi:
      return plc.cmdRest();
    case Comando_Corsa::Pausa:
      return plc.Sospendi();
    case Comando_Corsa::Continua:
      return plc.Continua();
    case Comando_Corsa::Fine:
      plc.Ferma = -1;
  }
}

Scala Scala_Di(std::int64_t numero) {
  return static_cast<Scala>(std::clamp<std::int64_t>(numero, 0, 2));
}

void Scegli(Opzioni& scelte, Scelta_Pannello quale, std::int64_t valore) {
  switch (quale) {
    case Scelta_Pannello::chkList:
      scelte.chkList = valore != 0;
      break;
    case Scelta_Pannello::chkIP:
      scelte.chkIP = valore != 0;
      break;
    case Scelta_Pannello::chkStop:
      scelte.chkStop = valore != 0;
      break;
    case Scelta_Pannello::chkSol:
      scelte.chkSol = valore != 0;
      break;
    case Scelta_Pannello::txtStop:
      scelte.txtStop = static_cast<int>(valore);
      break;
    case Scelta_Pannello::txtNC:
      scelte.txtNC = static_cast<int>(valore);
      break;
    case Scelta_Pannello::opzAI:
      scelte.opzAI = Scala_Di(valore);
      break;
    case Scelta_Pannello::opzAQ:
      scelte.opzAQ = Scala_Di(valore);
      break;
  }
}

}  // namespace

void Plc::Entra(const Atto& entrata) {
  if (Hook.Adesso == Vissuto::Passato) return;
  const bool passato = entrata.Che == Cosa::Presente && entrata.Numero <= Tempo.Adesso();
  if (passato || (entrata.Che == Cosa::Passano && entrata.Numero <= 0)) return;
  Hook.Entra(entrata);
  switch (entrata.Che) {
    case Cosa::Presente:
      return Tempo.Porta_A(entrata.Numero);
    case Cosa::Passano:
      return Tempo.Avanza(entrata.Numero);
    case Cosa::Salta:
      return Salta_Scansioni(entrata.Numero);
    case Cosa::Comando:
      return Dai(*this, static_cast<Comando_Corsa>(entrata.Indice));
    case Cosa::Ingresso:
      return SI.at(static_cast<std::size_t>(entrata.Indice)).Stato_I(entrata.Testo);
    case Cosa::Volt_AI:
      Volt_AI[entrata.Indice] = static_cast<float>(entrata.Valore);
      return;
    case Cosa::Potenziometro:
      Mem_SM[28 + entrata.Indice].Val_B = static_cast<std::uint8_t>(entrata.Numero);
      return;
    case Cosa::Scelta:
      return Scegli(Scelte, static_cast<Scelta_Pannello>(entrata.Indice), entrata.Numero);
    case Cosa::Aspetto_LED:
      for (LedI& barra : SI)
        barra.LED_Tipo(static_cast<std::uint8_t>(entrata.Indice),
                       static_cast<std::uint8_t>(entrata.Numero));
      return;
    case Cosa::Periodo:
      Clock_T = static_cast<std::int16_t>(entrata.Numero);
      return T100m.Interval(Clock_T);
    case Cosa::Azzera_Elementi:
      if (entrata.Numero != 0) Init_PLC();
      Attivi.cmdRest = false;
      return;
    default:
      return;  // somebody else's, who lets it in
  }
}

}  // namespace tavorno
