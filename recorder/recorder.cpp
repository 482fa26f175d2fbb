// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/recorder.h"

#include <algorithm>

#include "recorder/door.h"

namespace tavorno {

Registratore::Registratore(Plc& plc)
    : plc_(plc), programma_(std::make_shared<const Stesura>(Copia_Programma(plc))) {
  ascolti_.push_back(plc.Hook.Entra.Ascolta([this](const Atto& entrata) { Annota(entrata); }));
  ascolti_.push_back(plc.Hook.Mostra.Ascolta_Per_Primo([this](const Avviso&) {
    if (plc_.Hook.Adesso == Vissuto::Presente) in_avviso_ = true;
  }));
  Ascolta_Chiusura();
  for (std::size_t n = 0; n < 2; ++n) {
    // Before the plant hears of it.
    ascolti_.push_back(plc.SQ[n].Change.Ascolta_Per_Primo([this, n] {
      if (apertura_ >= 0)
        Annota(
            {.Che = Cosa::Uscita, .Indice = static_cast<int>(n), .Numero = plc_.SQ[n].Stato_QB()});
    }));
  }
  Ricomincia();
}

void Registratore::Ascolta_Chiusura() {
  avviso_chiuso_ = plc_.Hook.Mostra.Ascolta([this](const Avviso&) {
    if (plc_.Hook.Adesso != Vissuto::Presente) return;
    Annota({.Che = Cosa::Avviso_Chiuso});
    in_avviso_ = false;
  });
}

void Registratore::Ricomincia() {
  giornale_ = Giornale(plc_.Righe_Fatte, plc_.Tempo.Adesso());
  tappe_.clear();
  apertura_ = -1;
  analogiche_ = senza_tappe_ = false;
  primo_ = Adesso();
  Metti_Tappa();
}

void Registratore::Metti_Tappa() {
  tappe_.push_back({programma_, plc_.Fotografa(), giornale_.Segna(), apertura_, interruttori_});
}

void Registratore::Programma_Nuovo() {
  if (In_Proiezione()) {  // it is loaded into the CPU as it was left
    const Stesura nuovo = Copia_Programma(plc_);
    Torna_Al_Presente();
    Metti_Programma(plc_, nuovo);
  }
  // There is no way back to what the program made of it; an open plant goes on from here too.
  if (Nel_Passato()) Riprendi_Da_Qui();
  programma_ = std::make_shared<const Stesura>(Copia_Programma(plc_));
  giornale_.Scrivi(plc_.Righe_Fatte, {.Che = Cosa::Programma}, programma_);
  primo_ = Adesso();
  if (!in_avviso_ && !senza_tappe_) Metti_Tappa();
}

void Registratore::Annota(const Atto& entrata) {
  if (plc_.Hook.Adesso != Vissuto::Presente) return;
  const Istantanea& ultima = tappe_.back().Stato;
  const bool lontana = plc_.Tempo.Adesso() - ultima.Adesso >= Ms_Tra_Tappe ||
                       plc_.Righe_Fatte - ultima.Corsa.Righe_Fatte >= Righe_Tra_Tappe;
  // An output changes within a line, a box stands within one.
  const bool fra_due_righe = entrata.Che != Cosa::Uscita && !in_avviso_;
  if (fra_due_righe && (entrata.Che == Cosa::Apri || chiuso_ || (lontana && !senza_tappe_))) {
    if (apertura_ < 0 && Occupata() > Limite) Dimentica();
    chiuso_ ? Lascia_L_Impianto() : Metti_Tappa();
  }
  const bool tempo = entrata.Che == Cosa::Presente || entrata.Che == Cosa::Passano;
  if (analogiche_ && tempo) scambio_.Prima_Di(entrata, plc_, giornale_);
  giornale_.Scrivi(plc_.Righe_Fatte, entrata);
  if (entrata.Che == Cosa::Ingresso)
    interruttori_.at(static_cast<std::size_t>(entrata.Indice)) = entrata.Testo;
  if (entrata.Che == Cosa::Apri) {
    apertura_ = static_cast<int>(std::ssize(tappe_)) - 1;
    analogiche_ = Legge_Analogiche(entrata.Indice);
    scambio_.Da_Capo();
    primo_ = Adesso();
  } else if (entrata.Che == Cosa::Chiudi) {
    apertura_ = -1;
    analogiche_ = senza_tappe_ = false;
    chiuso_ = true;
    primo_ = Adesso();
  }
}

/// The first place to start from without the plant that has closed. No way leads back behind it:
/// the lines since then cannot be told by their count from those before.
void Registratore::Lascia_L_Impianto() {
  Metti_Tappa();
  chiuso_ = false;
  primo_ = Adesso();
}

/// The older half goes, up to a place where no plant was open.
void Registratore::Dimentica() {
  const auto meta = tappe_.begin() + std::ssize(tappe_) / 2;
  const auto prima =
      std::find_if(meta, tappe_.end(), [](const Tappa& tappa) { return tappa.Apertura < 0; });
  if (prima == tappe_.end()) return Ricomincia();
  const int tolte = static_cast<int>(prima - tappe_.begin());
  const std::size_t byte = prima->Dove.Byte;
  tappe_.erase(tappe_.begin(), prima);
  for (Tappa& tappa : tappe_) {
    tappa.Dove.Byte -= byte;
    tappa.Dove.Ultima -= std::min(tappa.Dove.Ultima, byte);
    if (tappa.Apertura >= 0) tappa.Apertura -= tolte;
  }
  giornale_.Dimentica(tappe_.front().Dove, byte);
  const Istantanea& stato = tappe_.front().Stato;
  primo_.Righe = std::max(primo_.Righe, stato.Corsa.Righe_Fatte);
  primo_.Ms = std::max(primo_.Ms, stato.Adesso);
}

std::size_t Registratore::Occupata() const {
  const std::size_t una = sizeof(Tappa) + programma_->Righe.size() * sizeof(Istantanea::Riga);
  return giornale_.Byte().size() + tappe_.size() * una;
}

Seduta_Registrata Registratore::Registrata() {
  giornale_.Ultima_Riga = Presente().Righe;
  return {Titolo, tappe_.front().Programma, tappe_.front().Stato, giornale_};
}

Seduta_Registrata Registratore::Dal_Primo() {
  if (chiuso_ && !Nel_Passato() && plc_.In_Giro() == Giro::Nessuno) Lascia_L_Impianto();
  Seduta_Registrata tutta = Registrata();
  const Tappa& prima = Tappa_Prima(primo_);
  const Tappa& inizio =
      prima.Apertura >= 0 ? tappe_[static_cast<std::size_t>(prima.Apertura)] : prima;
  tutta.Programma = inizio.Programma;
  tutta.Stato = inizio.Stato;
  Posto_Giornale dove = inizio.Dove;
  const std::size_t byte = std::exchange(dove.Byte, 0);
  dove.Ultima -= std::min(dove.Ultima, byte);
  tutta.Voci.Dimentica(dove, byte);
  return tutta;
}

int Registratore::Impianto_Di(const Seduta_Registrata& registrazione) {
  Lettore_Giornale lettore(registrazione.Voci, registrazione.Voci.Inizio);
  while (const auto voce = lettore.Prossima()) {
    if (voce->Entra.Che == Cosa::Apri) return voce->Entra.Indice;
  }
  return -1;
}

void Registratore::Prendi(const Seduta_Registrata& registrazione) {
  Lettore_Giornale lettore(registrazione.Voci, registrazione.Voci.Inizio);
  std::int64_t ms = registrazione.Stato.Adesso;
  Momento primo{registrazione.Stato.Corsa.Righe_Fatte, ms};
  std::shared_ptr<const Stesura> ultimo = registrazione.Programma;
  while (const auto voce = lettore.Prossima()) {
    ms = std::max(ms, lettore.Dove().Ms);
    if (voce->Entra.Che != Cosa::Programma) continue;
    primo = {voce->Righe, lettore.Dove().Ms};
    ultimo = registrazione.Voci.Programma(voce->Entra.Numero);
  }
  if (!lettore.Guasto().empty()) throw Giornale_Discorde(lettore.Guasto());
  if (!ultimo) throw Giornale_Discorde("il giornale nomina un programma che non c'è");
  replica_.reset();
  Titolo = registrazione.Titolo;
  programma_ = ultimo;
  giornale_ = registrazione.Voci;
  const auto& barre = registrazione.Stato.SI;
  tappe_ = {{registrazione.Programma, registrazione.Stato, giornale_.Inizio, -1,
             Leve{barre[0].Testo, barre[1].Testo}}};
  const int impianto = Impianto_Di(registrazione);
  apertura_ = impianto >= 0 ? 0 : -1;
  analogiche_ = impianto >= 0 && Legge_Analogiche(impianto);
  senza_tappe_ = analogiche_ && !Racconta_Lo_Scambio(giornale_);
  primo_ = primo;
  presente_ = {giornale_.Ultima_Riga, ms};
  plc_.Hook.Adesso = Vissuto::Passato;
  Vai(primo_);
}

void Registratore::Proietta(const Seduta_Registrata& film) {
  Torna_Al_Presente();
  giornale_.Ultima_Riga = plc_.Righe_Fatte;
  messo_via_ = Scritto{Titolo,   programma_, tappe_,      giornale_,    primo_,
                       Adesso(), apertura_,  analogiche_, senza_tappe_, chiuso_};
  try {
    Prendi(film);
  } catch (...) {
    if (Nel_Passato())
      Torna_Al_Presente();
    else
      Rimetti();
    throw;
  }
}

/// What was laid aside is at hand again; CPU and plant follow by `Vai`.
void Registratore::Rimetti() {
  replica_.reset();
  Scritto& scritto = *messo_via_;
  Titolo = std::move(scritto.Titolo);
  programma_ = std::move(scritto.Programma);
  tappe_ = std::move(scritto.Tappe);
  giornale_ = std::move(scritto.Voci);
  primo_ = scritto.Primo;
  presente_ = scritto.Presente;
  scambio_.Da_Capo();
  apertura_ = scritto.Apertura;
  analogiche_ = scritto.Analogiche;
  senza_tappe_ = scritto.Senza_Tappe;
  chiuso_ = scritto.Chiuso;
  messo_via_.reset();
}

// ---- the past -----------------------------------------------------------------------------------

const Tappa& Registratore::Tappa_Prima(Momento momento) const {
  const auto dopo = std::ranges::find_if(tappe_, [&](const Tappa& tappa) {
    return tappa.Stato.Corsa.Righe_Fatte > momento.Righe || tappa.Stato.Adesso > momento.Ms;
  });
  return dopo == tappe_.begin() ? *dopo : *(dopo - 1);
}

/// The replay, its CPU and its plant stand at this place afterwards.
void Registratore::Parti(Replica& replica, Plc& plc, const Tappa& tappa) const {
  if (tappa.Apertura >= 0) {
    const Tappa& apertura = tappe_[static_cast<std::size_t>(tappa.Apertura)];
    Metti_Stato(plc, *apertura.Programma, apertura.Stato);
    replica.Solo_Impianto(tappa.Dove);
  }
  Metti_Stato(plc, *tappa.Programma, tappa.Stato);
  replica.In_Giro = tappa.Stato.In_Giro != Giro::Nessuno;
}

bool Registratore::Vai(Momento momento) {
  if (plc_.In_Giro() != Giro::Nessuno) return false;
  if (chiuso_ && !Nel_Passato()) Lascia_L_Impianto();
  if (momento.Righe < primo_.Righe || momento.Ms < primo_.Ms) return false;
  if (!Nel_Passato()) {
    presente_ = Adesso();
    giornale_.Ultima_Riga = plc_.Righe_Fatte;
    replica_.reset();
  }
  plc_.Hook.Adesso = Vissuto::Passato;
  const Tappa& tappa = Tappa_Prima(momento);
  const bool avanti = momento.Righe > plc_.Righe_Fatte && momento.Ms > plc_.Tempo.Adesso() &&
                      tappa.Stato.Corsa.Righe_Fatte <= plc_.Righe_Fatte &&
                      tappa.Stato.Adesso <= plc_.Tempo.Adesso();
  if (!avanti || !replica_) Vai_Da_Capo(tappa);
  // A replay that fails is of no more use.
  std::unique_ptr<Replica> replica = std::move(replica_);
  Segui(*replica, plc_.Righe_Fatte, std::min(momento.Righe, presente_.Righe));
  replica->Vai(momento);
  qui_ = replica->Dove();
  in_giro_ = replica->In_Giro;
  interruttori_ = Leve_A(tappa, qui_);
  if (Apri || apertura_ < 0) replica_ = std::move(replica);
  return true;
}

void Registratore::Vai_Da_Capo(const Tappa& tappa) {
  const Tappa& inizio =
      tappa.Apertura >= 0 ? tappe_[static_cast<std::size_t>(tappa.Apertura)] : tappa;
  replica_ = std::make_unique<Replica>(plc_, giornale_, inizio.Dove);
  if (Apri && apertura_ >= 0) replica_->Apri = Apri;  // no replay goes back behind its opening
  Parti(*replica_, plc_, tappa);
}

Leve Registratore::Leve_A(const Tappa& tappa, const Posto_Giornale& fine) const {
  Leve leve = tappa.Interruttori;
  Lettore_Giornale lettore(giornale_, tappa.Dove);
  const auto letto = [&] {
    return std::pair(lettore.Dove().Byte, lettore.Dove().Ripetute) >=
           std::pair(fine.Byte, fine.Ripetute);
  };
  while (!letto()) {
    const auto voce = lettore.Prossima();
    if (!voce) break;
    if (voce->Entra.Che == Cosa::Ingresso)
      leve.at(static_cast<std::size_t>(voce->Entra.Indice)) = voce->Entra.Testo;
  }
  return leve;
}

bool Registratore::Vai_A_Vista(std::int64_t ms) {
  if (plc_.In_Giro() != Giro::Nessuno || ms < primo_.Ms) return false;
  std::int64_t orologio = -1, righe = -1;
  const bool in_giro = Rivedi({.Ms = ms}, {.Ms = ms}, false, [&](const Plc& plc) {
    if (plc.PC != 0 || plc.Tempo.Adesso() == orologio) return true;
    orologio = plc.Tempo.Adesso();
    righe = plc.Righe_Fatte;
    return true;
  });
  // A CPU that stands changes by the clock and by hands alone.
  return in_giro && righe >= 0 ? Vai({.Righe = righe, .Ms = ms}) : Vai({.Ms = ms});
}

/// Lets the progress be shown.
void Registratore::Segui(Replica& replica, std::int64_t da, std::int64_t a) const {
  replica.Guarda = nullptr;
  if (!Avanzamento) return;
  replica.Guarda = [this, da, a, volta = 0]() mutable {
    constexpr int ogni = 4096;
    if (++volta % ogni != 0 || a <= da) return true;
    return Avanzamento(static_cast<double>(plc_.Righe_Fatte - da) / static_cast<double>(a - da));
  };
}

void Registratore::Torna_Al_Presente() {
  if (!Nel_Passato()) return;
  if (In_Proiezione()) Rimetti();
  const auto avanzamento = std::exchange(Avanzamento, nullptr);  // there is no way to stop half way
  Vai({});
  Avanzamento = avanzamento;
  replica_.reset();
  plc_.Hook.Adesso = Vissuto::Presente;
}

void Registratore::Riprendi_Da_Qui() {
  if (!Nel_Passato()) return;
  if (In_Proiezione()) return Torna_Al_Presente();
  replica_.reset();
  giornale_.Tronca(qui_);
  scambio_.Da_Capo();
  std::erase_if(tappe_, [&](const Tappa& tappa) {
    return tappa.Stato.Corsa.Righe_Fatte > plc_.Righe_Fatte ||
           tappa.Stato.Adesso > plc_.Tempo.Adesso() || tappa.Dove.Byte > qui_.Byte;
  });
  plc_.Hook.Adesso = Vissuto::Presente;
  if (in_giro_) Annota(Di_Comando(Comando_Corsa::Pausa));
}

}  // namespace tavorno
