// SPDX-License-Identifier: GPL-3.0-or-later
// Run, Stop, the three modes and the system clocks.
#include <algorithm>
#include <cmath>
#include <utility>

#include "plc/byte_text.h"
#include "plc/checked.h"
#include "plc/number_text.h"
#include "plc/plc.h"

namespace tavorno {

Plc::Plc(Orologio& orologio)
    : Tempo(orologio),
      SI{LedI(orologio), LedI(orologio)},
      SQ{LedQ(orologio), LedQ(orologio)},
      T100m(orologio, Clock_T, [this] { Tick_T100m(); }),
      tim1(orologio, 500,
           [this] {
             stato_tim1_ ^= 1U;
             Mem_SM[0].Bit[5] = stato_tim1_;
           }),
      tim2(orologio, 30000,
           [this] {
             stato_tim2_ ^= 1U;
             Mem_SM[0].Bit[4] = stato_tim2_;
           }),
      timIO(orologio, 20, [this] { Tick_timIO(); }) {
  SI[0].Memorizza_Scorri(true);
  for (std::size_t riga = 0; riga <= 1; ++riga) {
    ascolto_ingressi_[riga] = SI[riga].Change.Ascolta([this, riga] {
      Riga_IP& ingressi = IP_I[static_cast<int>(riga)];
      for (unsigned bit = 0; bit < 8; ++bit)
        ingressi.Bit_Dir[static_cast<int>(bit)] = Cifra(SI[riga].Stato_I(), bit);
      ingressi.Val_B = SI[riga].Stato_IB();
      ingressi.Txt_B = SI[riga].Stato_BitI();
    });
  }
}

// ---- run commands -------------------------------------------------------------------------------

void Plc::mnuPlcRun() {
  sospeso_ = Giro::Nessuno;
  N_Cicli = 0;
  PLC_Acceso = -1;
  for (Riga_Timer& timer : Mem_T) timer = {};
  for (Riga_PLC& riga : Prog) {
    riga.Fronte = 0;
    riga.Impulso.Dato = false;
  }
  T100m.Enabled(true);
  PC = 0;
  etTime = "0";
  tempo_mostrato_ = -1;
  Attivi.mnuPlcRun = false;
  Attivi.mnuPlcStop = true;
  etPc = PC;
  Lista_Scelta = PC;
  Segna(Segno_Tempo | Segno_PC | Segno_Lista | Segno_Comandi);
  GestStak(Op_Pila::Azzera);
  Aggiorna_IP_Ing();
  Reset_IP_Out();
  SQ[0].LED_Reset();
  Ferma = 0;
  SM_Set();
  tim1.Enabled(true);
  tim2.Enabled(true);
  timIO.Enabled(true);

  if (Modo_Run == Modo::Step) {
    Attivi.SSTb3 = 2;
    Attivi.mnuPlcCont = false;
    Attivi.CmdStep = true;
    return;
  }
  tempo_alla_fine_ = true;
  Tempo_Ciclo = 0;
  PC = 0;
  Primo_Ciclo = -1;
  Attivi.CmdStep = false;
  if (Modo_Run == Modo::Cont) {
    Attivi.SSTb3 = 0;
    Attivi.mnuPlcCiclo = false;
    Attivi.mnuPlcStep = false;
    Cicla();
  } else {
    Attivi.SSTb3 = 1;
    Attivi.mnuPlcCont = false;
    Cicla_Ciclo();
  }
  Fine_Giro();
}

/// A loop has been left; one that Run began shows the scan time when it ends for good.
void Plc::Fine_Giro() {
  if (!In_Pausa() && std::exchange(tempo_alla_fine_, false)) Mostra_Tempo();
}

void Plc::mnuPlcStop() {
  sospeso_ = Giro::Nessuno;
  PLC_Acceso = 0;
  Attivi.mnuPlcStop = false;
  Attivi.mnuPlcRun = true;
  Attivi.mnuPlcCiclo = true;
  Attivi.mnuPlcStep = true;
  Attivi.mnuPlcCont = true;
  Attivi.CmdStep = false;
  Attivi.cmdRest = false;  // resumed, the program would run where no Stop can be given
  Ferma = -1;
  tim1.Enabled(false);
  tim2.Enabled(false);
  T100m.Enabled(false);
  timIO.Enabled(false);
  Reset_IP_Out();
  Lista_Scelta = PC;
  Segna(Segno_Comandi | Segno_Lista);
  Mostra_Tempo();
}

void Plc::Scegli_Modo(Modo modo) {
  Modo_Run = modo;
  Attivi.SSTb3 = modo == Modo::Cont ? 0 : modo == Modo::Ciclo ? 1 : 2;
  Segna(Segno_Comandi);
}

void Plc::mnuPlcStep() {
  sospeso_ = Giro::Nessuno;
  Scegli_Modo(Modo::Step);
  if (PLC_Acceso) Attivi.CmdStep = true;
  etPc = PC;  // a run that stands at a stop line executes no line on the way here
  Segna(Segno_PC);
  Ferma = -1;
}

void Plc::mnuPlcCiclo() {
  Scegli_Modo(Modo::Ciclo);
}

void Plc::mnuPlcCont() {
  sospeso_ = Giro::Nessuno;
  Scegli_Modo(Modo::Cont);
  Attivi.CmdStep = false;
  Scelte.chkList = true;
  if (!PLC_Acceso) return;
  Ferma = 0;
  if (giro_ == Giro::Nessuno) tempo_alla_fine_ = false;
  Cicla();
}

void Plc::cmdRest() {
  sospeso_ = Giro::Nessuno;
  Ferma = 0;
  Attivi.CmdStep = false;
  Segna(Segno_Comandi);
  N_Cicli = 0;
  if (giro_ == Giro::Nessuno) tempo_alla_fine_ = false;
  Cicla_Ciclo();
}

void Plc::CmdStep() {
  Lista_Scelta = PC;
  Segna(Segno_Lista);
  Esegui_Riga();
}

// ---- run loops ----------------------------------------------------------------------------------

namespace {
/// Marks that a run loop is at work, so that a command given in one of its yields starts no second.
class In_Corso {
 public:
  In_Corso(Giro& segno, Giro quale) : segno_(segno) { segno_ = quale; }
  ~In_Corso() { segno_ = Giro::Nessuno; }
  In_Corso(const In_Corso&) = delete;
  In_Corso& operator=(const In_Corso&) = delete;

 private:
  Giro& segno_;
};
}  // namespace

void Plc::Cicla() {
  if (giro_ != Giro::Nessuno) return;
  const In_Corso in_corso(giro_, Giro::Cont);
  do {
    const int righe = Hook.Cedi();
    if (In_Pausa()) return;
    Esegui_Righe(righe);
  } while (!Ferma);
}

void Plc::Cicla_Ciclo() {
  if (giro_ != Giro::Nessuno) return;
  const In_Corso in_corso(giro_, Giro::Ciclo);
  const auto cicli_fatti = [this] { return Scelte.chkSol && Scelte.txtNC == N_Cicli; };
  for (;;) {
    const int righe = Hook.Cedi();
    if (In_Pausa()) return;
    // `N_Cicli` moves at the end of a scan only, which is where many lines end as well.
    const bool a_ogni_riga = Scelte.chkStop || cicli_fatti();
    Esegui_Righe(a_ogni_riga ? 1 : righe);
    if (Ferma) return;
    const bool alla_riga = Scelte.chkStop && Scelte.txtStop == PC;
    if (!alla_riga && !cicli_fatti()) continue;
    Lista_Scelta = alla_riga ? PC : NRighe;
    Attivi.cmdRest = true;
    Attivi.CmdStep = true;
    Segna(Segno_Lista | Segno_Comandi);
    return;
  }
}

void Plc::Continua() {
  const Giro giro = std::exchange(sospeso_, Giro::Nessuno);
  if (giro == Giro::Cont) Cicla();
  if (giro == Giro::Ciclo) Cicla_Ciclo();
  Fine_Giro();
}

void Plc::Salta_Scansioni(std::int64_t scansioni) {
  N_Cicli += static_cast<std::int32_t>(scansioni);
  if (scansioni % 2 != 0) Mem_SM[0].Bit[6] ^= 1U;
  StartTimer();
}

// ---- system clocks ------------------------------------------------------------------------------

namespace {
constexpr int massimo_timer = 32760;
constexpr int fondo_scala = 32000;
constexpr int canali_AI = 3, canali_AQ = 2;

int Portata(Scala scala) {
  return scala == Scala::Volt_10 ? 10 : 20;
}
/// The word of an input channel; it may not fit its cell.
long long Parola_Analogica(float volt, Scala scala) {
  return static_cast<long long>(std::floor(volt * double{fondo_scala} / Portata(scala)));
}
/// A word times the range of its output channel, which may not fit 32 bits.
long long Per_Portata(std::int32_t parola, Scala scala) {
  return static_cast<long long>(parola) * Portata(scala);
}
float Volt_In_Uscita(std::int32_t per_portata) {
  return static_cast<float>(per_portata) / fondo_scala;
}
}  // namespace

void Plc::Tick_T100m() {
  for (Riga_Timer& timer : Mem_T) {
    if (timer.Conta != 0)
      timer.Val = static_cast<std::int16_t>(std::min(timer.Val + 1, massimo_timer));
  }
}

bool Plc::Timer_Fermi() const {
  return std::ranges::all_of(Mem_T, [](const Riga_Timer& timer) {
    return timer.Conta == 0 || timer.Val == massimo_timer;
  });
}

void Plc::Tick_timIO() {
  for (int n = 0; n < canali_AI && Scelte.opzAI != Scala::Nessuna; ++n)
    Mem_AIW[2 * n] = A_32(Parola_Analogica(Volt_AI[n], Scelte.opzAI), "Mem_AIW");
  for (int n = 0; n < canali_AQ; ++n)
    Volt_AQ[n] = Volt_In_Uscita(A_32(Per_Portata(Mem_AQW[2 * n], Scelte.opzAQ), "Volt_AQ"));
  Segna(Segno_Analogici);
}

bool Plc::Analogici_In_Pari() const {
  for (int n = 0; n < canali_AI && Scelte.opzAI != Scala::Nessuna; ++n) {
    if (Mem_AIW[2 * n] != Parola_Analogica(Volt_AI[n], Scelte.opzAI)) return false;
  }
  for (int n = 0; n < canali_AQ; ++n) {
    const long long prodotto = Per_Portata(Mem_AQW[2 * n], Scelte.opzAQ);
    const auto uscita = static_cast<std::int32_t>(prodotto);
    if (uscita != prodotto || Volt_AQ[n] != Volt_In_Uscita(uscita)) return false;
  }
  return true;
}

std::int64_t Plc::Prossimo_Tick() const {
  return Tempo.Prossimo({Timer_Fermi() ? &T100m : nullptr, Analogici_In_Pari() ? &timIO : nullptr});
}

}  // namespace tavorno
