// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/run_driver.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>
#include <thread>
#include <utility>

namespace tavorno {

namespace {

constexpr std::chrono::milliseconds una_scansione{1};

std::int64_t In_Millisecondi(std::chrono::nanoseconds istante) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(istante).count();
}

}  // namespace

Guida_Corsa::Guida_Corsa(Plc& plc, std::function<void()> aggiorna) : plc_(plc) {
  cronometro_.start();
  cessione_ = plc_.Hook.Ascolta_Cedi_Righe([this] { return Cedi(); });

  // A stopped CPU has a living plant, a cover that slides and blinking lamps: they need the clock.
  clock_a_riposo_.setTimerType(Qt::PreciseTimer);
  clock_a_riposo_.setInterval(A_Riposo);
  clock_a_riposo_.callOnTimeout([this] { Tick(); });
  clock_a_riposo_.start();

  schermo_.setTimerType(Qt::PreciseTimer);
  schermo_.setInterval(Schermo);
  schermo_.callOnTimeout(std::move(aggiorna));
  schermo_.start();
}

void Guida_Corsa::Ferma() {
  clock_a_riposo_.stop();
  schermo_.stop();
  ferma_ = Vero();
}

// ---- time ---------------------------------------------------------------------------------------

Guida_Corsa::Istante Guida_Corsa::Adesso(Istante vero) const {
  if (congelata_ || battito_ != Battito::Nessuno) return base_;
  const Istante passato = vero - base_vera_;
  if (velocita_ == 1) return base_ + passato;
  return base_ +
         Istante{static_cast<std::int64_t>(static_cast<double>(passato.count()) * velocita_)};
}

void Guida_Corsa::Riparti_Da(Istante adesso) {
  base_ = adesso;
  base_vera_ = Vero();
  scansione_ = std::min(scansione_, adesso);
}

void Guida_Corsa::Porta_Al_Presente(Istante adesso) {
  plc_.Entra({.Che = Cosa::Presente, .Numero = In_Millisecondi(adesso)});
}

void Guida_Corsa::Tick() {
  if (plc_.Hook.Adesso != Vissuto::Presente) {
    altrove_ = true;
    return;
  }
  if (std::exchange(altrove_, false)) Riparti_Da(std::chrono::milliseconds{plc_.Tempo.Adesso()});
  if (plc_.In_Giro() == Giro::Nessuno) durate_.Interrompi();
  if (congelata_ && sospesa_ && !plc_.In_Pausa()) {  // a command has ended the pause
    Riparti_Da(base_);
    congelata_ = false;
  }
  // A run at a beat has its time from its scans; a CPU that stands lives on.
  if (battito_ != Battito::Nessuno && !congelata_ && plc_.In_Giro() == Giro::Nessuno)
    base_ += A_Riposo;
  Porta_Al_Presente(Adesso());
}

void Guida_Corsa::Velocita(double parte) {
  Riparti_Da(Adesso());
  velocita_ = std::clamp(parte, 0.001, 1.0);
  riposo_.Da_Capo();
}

void Guida_Corsa::Batti(Battito battito, int ms) {
  Riparti_Da(Adesso());
  battito_ = battito;
  passo_battito_ = std::chrono::milliseconds{std::max(ms, 1)};
  riposo_.Da_Capo();
}

void Guida_Corsa::Pausa() {
  if (congelata_) return;
  if (plc_.In_Giro() != Giro::Nessuno) {
    pausa_chiesta_ = true;  // granted at the end of the yield, when nothing else enters
    return;
  }
  Riparti_Da(Adesso());
  sospesa_ = plc_.In_Pausa();
  congelata_ = true;
}

void Guida_Corsa::Continua() {
  // The clock may have gone back, when a moment of the past became the present.
  Riparti_Da(std::chrono::milliseconds{plc_.Tempo.Adesso()});
  congelata_ = sospesa_ = altrove_ = false;
  prima_riga_ = true;
  plc_.Entra(Comando_Corsa::Continua);
}

// ---- the yield ----------------------------------------------------------------------------------

void Guida_Corsa::Eventi_Di_Finestra() {
  QCoreApplication::processEvents();
  eventi_ = Vero();
}

bool Guida_Corsa::Si_Batte_Qui() const {
  switch (battito_) {
    case Battito::Riga:
      return true;
    case Battito::Rete:
      return plc_.PC == 0 || plc_.Prog[plc_.PC].Istr.starts_with("NETW");
    case Battito::Scansione:
      return plc_.PC == 0;
    case Battito::Nessuno:
      break;
  }
  return false;
}

void Guida_Corsa::Aspetta_Il_Battito() {
  if (Al_Battito) Al_Battito(plc_.PC);
  const Istante fine = Vero() + passo_battito_;
  while (Vero() < fine && !pausa_chiesta_ && !plc_.Ferma && battito_ != Battito::Nessuno) {
    std::this_thread::sleep_for(std::min<Istante>(fine - Vero(), Eventi));
    Eventi_Di_Finestra();
  }
}

int Guida_Corsa::Cedi() {
  if (plc_.Hook.Adesso != Vissuto::Presente) {
    durate_.Interrompi();
    return std::numeric_limits<int>::max();
  }
  Istante vero = Vero();  // read once: the clock costs as much as ten lines
  if (plc_.PC == 0 && plc_.N_Cicli == 0) durate_.Da_Capo();
  durate_.Arriva(vero, plc_.PC == 0 && plc_.N_Cicli == cicli_visti_ + 1);
  const int righe = Guarda(vero);
  durate_.Riparte(vero, plc_.PC == 0);
  if (congelata_) durate_.Interrompi();
  return righe;
}

/// Time and the windows go on, and `vero` with them; returns how many lines the program may do
/// before the next look.
int Guida_Corsa::Guarda(Istante& vero) {
  if (congelata_ || altrove_) {
    Riparti_Da(std::chrono::milliseconds{plc_.Tempo.Adesso()});
    congelata_ = altrove_ = false;
  }
  Istante adesso = Adesso(vero);
  if (plc_.PC == 0) {
    const Istante prima = std::exchange(adesso, Inizia_Scansione(adesso));
    if (adesso != prima) vero = Vero();
  } else if (vero - eventi_ >= Eventi || plc_.Tempo.Prossimo() <= In_Millisecondi(adesso)) {
    riposo_.Da_Capo();  // something is about to happen in the middle of a scan
  }
  Porta_Al_Presente(adesso);
  if (vero - eventi_ >= Eventi) {
    Eventi_Di_Finestra();
    vero = Vero();
  }
  if (Si_Batte_Qui()) {
    Aspetta_Il_Battito();
    vero = Vero();
  }
  const bool fermata = Fermati_Qui && !prima_riga_ && Fermati_Qui();
  prima_riga_ = false;
  if (fermata || std::exchange(pausa_chiesta_, false)) {
    Riparti_Da(Adesso());
    plc_.Entra(Comando_Corsa::Pausa);
    congelata_ = sospesa_ = true;
  }
  if (plc_.PC == 0) riposo_.Riposa();
  const bool una = Fermati_Qui || battito_ == Battito::Riga || battito_ == Battito::Rete;
  return una ? 1 : Righe_Per_Sguardo;
}

/// The scan before is done and the next one would begin. Returns the present instant.
Guida_Corsa::Istante Guida_Corsa::Inizia_Scansione(Istante adesso) {
  const bool una_in_piu = plc_.N_Cicli == cicli_visti_ + 1;
  cicli_visti_ = plc_.N_Cicli;
  if (battito_ != Battito::Nessuno) {
    if (una_in_piu) base_ += una_scansione;
    riposo_.Da_Capo();
    return base_;
  }
  if (!Attesa || plc_.Modo_Run != Modo::Cont || !una_in_piu || velocita_ != 1 || Fermati_Qui)
    riposo_.Da_Capo();
  else if (riposo_.Scansione_Fatta(0))
    return Riposa(adesso);
  const Istante fine = scansione_ + una_scansione;
  if (Attesa && velocita_ == 1 && adesso < fine) {
    std::this_thread::sleep_for(fine - adesso);
    adesso = Adesso();
  }
  while (velocita_ != 1 && adesso < fine && !pausa_chiesta_ && !plc_.Ferma) {
    std::this_thread::sleep_for(Eventi);
    Eventi_Di_Finestra();
    adesso = Adesso();
    Porta_Al_Presente(adesso);
  }
  scansione_ = adesso;
  return adesso;
}

/// Sleeps up to the next tick or the next round of window events, again and again while neither
/// changes anything for the program, and counts the scans that would have been run meanwhile.
Guida_Corsa::Istante Guida_Corsa::Riposa(Istante adesso) {
  do {
    const Istante finestre = adesso + (eventi_ + Eventi_A_Riposo - Vero());
    const Istante evento =
        std::chrono::milliseconds{std::min(plc_.Tempo.Prossimo(), In_Millisecondi(finestre) + 1)};
    const Istante fine = std::max(evento, scansione_ + una_scansione);
    if (adesso < fine) std::this_thread::sleep_for(fine - adesso);
    adesso = Adesso();
    const auto scansioni = riposo_.Saltabili((adesso - scansione_) / una_scansione);
    if (scansioni < 1) break;
    scansione_ += scansioni * una_scansione;
    Porta_Al_Presente(adesso);
    riposo_.Salta(scansioni);
    cicli_visti_ = plc_.N_Cicli;
    if (Vero() - eventi_ >= Eventi_A_Riposo) {
      Eventi_Di_Finestra();
      adesso = Adesso();
    }
  } while (Attesa && !pausa_chiesta_ && riposo_.Riposa());
  return adesso;
}

}  // namespace tavorno
