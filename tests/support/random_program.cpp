// SPDX-License-Identifier: GPL-3.0-or-later
#include "random_program.h"

#include "awl/checker.h"
#include "invariants.h"
#include "plc/instructions.h"

namespace tavorno::prova {

namespace {

template <class Contenitore>
const auto& Scegli(const Contenitore& contenitore, const Caso& caso) {
  return contenitore[caso(static_cast<unsigned>(std::size(contenitore)) - 1)];
}

std::string Numero(const Caso& caso) {
  static const std::vector<int> notevoli = {0,  1,  2,   3,   4,  20, 28,   29,    40,
                                            63, 99, 100, 255, -1, -2, 1000, 32767, -32768};
  return std::to_string(caso(3) == 0 ? static_cast<int>(caso(65535)) - 32768
                                     : Scegli(notevoli, caso));
}

std::string Operando(const Regola_Operando* regola, bool bit, const Caso& caso) {
  Area area = Area::K;
  if (regola && !regola->Ammesse.empty())
    area = Scegli(regola->Ammesse, caso).Codice;
  else if (caso(1) == 0)
    area = static_cast<Area>(caso(static_cast<unsigned>(Area::LW)));
  if (area == Area::K) return Numero(caso);
  std::string testo(Testo_Area(area));
  testo += caso(7) == 0 ? Numero(caso) : std::to_string(caso(4));
  if (bit && caso(15) != 0) testo += "." + std::to_string(caso(7));
  return testo;
}

/// Mnemonics that a line of its own may bear; blocks are put in by `Programma_Casuale`.
const std::vector<const Istruzione*>& Ammesse() {
  static const auto righe = [] {
    std::vector<const Istruzione*> ammesse;
    for (const Istruzione& istruzione : Tabella_Istruzioni()) {
      if (istruzione.Trattamento != Gruppo::Non_Supportata && istruzione.Nome != "SBR" &&
          istruzione.Nome != "INT" && istruzione.Nome != "MEND")
        ammesse.push_back(&istruzione);
    }
    return ammesse;
  }();
  return righe;
}

}  // namespace

Riga_Src Riga_Casuale(const Istruzione& istruzione, const Caso& caso) {
  Riga_Src riga;
  riga.Istr = istruzione.Nome;
  if (istruzione.Nome == "JMP" || istruzione.Nome == "LBL") {
    riga.Op1 = std::to_string(caso(5));
    riga.NOp = 1;
  } else if (istruzione.Nome == "CALL") {
    riga.Op1 = "P" + std::to_string(caso(1));
    riga.NOp = 1;
  } else if (istruzione.Nome == "LSCR") {
    riga.Op1 = "S" + std::to_string(caso(2)) + "." + std::to_string(caso(7));
    riga.NOp = 1;
  } else if (istruzione.Operandi) {
    const Regola& regola = *istruzione.Operandi;
    riga.NOp = static_cast<std::uint8_t>(regola.Operandi);
    riga.Op1 = Operando(&regola.Op1, regola.Prova_Bit, caso);
    if (riga.NOp == 2) riga.Op2 = Operando(regola.Op2 ? &*regola.Op2 : nullptr, false, caso);
  }
  return riga;
}

int Programma_Casuale(Progetto& progetto, const Caso& caso, int righe) {
  int usate = 0;
  const auto aggiungi = [&](const Riga_Src& riga) {
    Riga_PLC compilata;
    Riempi_Riga(compilata, riga);
    if (Controlla_Riga(compilata, riga).Stato != 0) return;
    progetto.Righe_Src[usate] = riga;
    ++usate;
  };
  const auto blocco = [&](int quante) {
    const int fino_a = usate + quante;
    // A line that the checker refuses is drawn again; the bound is for a fuzzer that runs dry.
    for (int tentativi = 0; usate < fino_a && tentativi < 8 * quante; ++tentativi) {
      const Istruzione& istruzione = *Scegli(Ammesse(), caso);
      // What stops or restarts the program would leave little of it.
      const bool rara = istruzione.Esegui == Ramo_Assente() || istruzione.Nome == "RET";
      if (!rara || caso(15) == 0) aggiungi(Riga_Casuale(istruzione, caso));
    }
  };
  const auto riga = [](const char* istr, const char* op1) {
    Riga_Src nuova;
    nuova.Istr = istr;
    nuova.Op1 = op1;
    nuova.NOp = *op1 ? 1 : 0;
    return nuova;
  };
  blocco(righe / 2 + 1);
  aggiungi(riga("MEND", ""));
  aggiungi(riga("SBR0", "P0"));
  blocco(righe / 4);
  aggiungi(riga("RET", ""));
  aggiungi(riga("SBR1", "P1"));
  blocco(righe / 4);
  aggiungi(riga("RET", ""));

  progetto.CPU.NRighe = static_cast<std::int16_t>(usate - 1);
  progetto.Compila();
  return usate;
}

void Memoria_Casuale(Plc& plc, const Caso& caso) {
  const auto parola = [&] {
    static const std::vector<int> notevoli = {0, 1, -1, 127, 128, 255, 256, 32766, 32767, -32768};
    return static_cast<std::int16_t>(caso(1) ? static_cast<int>(caso(65535)) - 32768
                                             : Scegli(notevoli, caso));
  };
  for (int i = 0; i <= 4; ++i) {
    plc.Mem_VB[i] = static_cast<std::int16_t>(caso(1) ? parola() : static_cast<int>(caso(255)));
    plc.Mem_VW[i] = parola();
    plc.Mem_VD[i] = caso(3) ? parola() : static_cast<std::int32_t>(caso(0xFFFFFFFFU));
    plc.Mem_AC[i] = static_cast<float>(parola()) * (caso(1) ? 0.5F : 70000.0F);
  }
  for (const int canale : {0, 1, 2}) plc.Volt_AI[canale] = static_cast<float>(parola()) / 1000.0F;
}

std::string Esegui_Controllando(Plc& plc, const Caso& caso, int righe, long long& eseguite) {
  static const std::vector<std::string> ingressi = {"00000000", "11111111", "10101010", "01100110"};
  plc.Modo_Run = Modo::Step;
  plc.mnuPlcRun();
  try {
    for (int i = 0; i < righe && plc.PLC_Acceso; ++i) {
      if (caso(7) == 0) plc.SI[caso(1)].Stato_I(Scegli(ingressi, caso));
      if (caso(15) == 0) plc.Tempo.Avanza(caso(150));
      plc.CmdStep();
      ++eseguite;
      if (std::string rotto = Invarianti(plc); !rotto.empty()) return rotto;
    }
  } catch (const Fatale& fatale) {
    // The process ends here, with an instruction left half done; nothing holds any more.
    return Fatale_Previsto(fatale) ? "" : std::string("unexpected fatal end: ") + fatale.what();
  }
  plc.mnuPlcStop();
  return Invarianti(plc);
}

}  // namespace tavorno::prova
