// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/plc.h"
#include "plc/snapshot.h"

namespace tavorno {

Istantanea Plc::Fotografa() const {
  Istantanea stato;
  stato.Memoria = *this;
  stato.NRighe = NRighe;
  stato.PC = PC;
  stato.Righe.reserve(static_cast<std::size_t>(Prog.Righe()));
  for (const Riga_PLC& riga : Prog) stato.Righe.push_back({riga.Fronte, riga.Abil_SCR});
  stato.Corsa = *this;
  stato.In_Giro = giro_;
  stato.Sospeso = sospeso_;
  stato.Scelte = Scelte;
  stato.Attivi = Attivi;
  for (std::size_t n = 0; n < 2; ++n) {
    stato.SI[n] = SI[n].Fotografa();
    stato.SQ[n] = SQ[n].Fotografa();
  }
  stato.Adesso = Tempo.Adesso();
  const Temporizzatore* const timer[] = {&T100m, &tim1, &tim2, &timIO};
  for (std::size_t n = 0; n < std::size(timer); ++n)
    stato.Timer_CPU[n] = {timer[n]->Interval(), timer[n]->Scadenza()};
  stato.Stato_tim1 = stato_tim1_;
  stato.Stato_tim2 = stato_tim2_;
  stato.etTime = etTime;
  stato.etIPI = etIPI;
  stato.etIPQ = etIPQ;
  stato.etPc = etPc;
  stato.Lista_Scelta = Lista_Scelta;
  stato.Tempo_Alla_Fine = tempo_alla_fine_;
  stato.Tempo_Mostrato = tempo_mostrato_;
  return stato;
}

void Plc::Ripristina(const Istantanea& stato) {
  static_cast<Celle&>(*this) = stato.Memoria;
  NRighe = stato.NRighe;
  PC = stato.PC;
  int n_riga = 0;
  for (const Istantanea::Riga& riga : stato.Righe) {
    Prog[n_riga].Fronte = riga.Fronte;
    Prog[n_riga++].Abil_SCR = riga.Abil_SCR;
  }
  static_cast<Stato_Corsa&>(*this) = stato.Corsa;
  sospeso_ = stato.In_Giro != Giro::Nessuno ? stato.In_Giro : stato.Sospeso;
  Scelte = stato.Scelte;
  Attivi = stato.Attivi;
  Tempo.Rimetti(stato.Adesso);
  for (std::size_t n = 0; n < 2; ++n) {
    SI[n].Ripristina(stato.SI[n]);
    SQ[n].Ripristina(stato.SQ[n]);
  }
  Temporizzatore* const timer[] = {&T100m, &tim1, &tim2, &timIO};
  for (std::size_t n = 0; n < std::size(timer); ++n)
    timer[n]->Rimetti(stato.Timer_CPU[n].Intervallo, stato.Timer_CPU[n].Scadenza);
  stato_tim1_ = stato.Stato_tim1;
  stato_tim2_ = stato.Stato_tim2;
  etTime = stato.etTime;
  etIPI = stato.etIPI;
  etIPQ = stato.etIPQ;
  etPc = stato.etPc;
  Lista_Scelta = stato.Lista_Scelta;
  tempo_alla_fine_ = stato.Tempo_Alla_Fine;
  tempo_mostrato_ = stato.Tempo_Mostrato;
  Segna(Segno_Immagini | Segno_PC | Segno_Tempo | Segno_Lista | Segno_Comandi | Segno_Analogici);
}

}  // namespace tavorno
