// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/test_bed.h"

#include <algorithm>
#include <limits>

#include "plc/codepage.h"
#include "recorder/door.h"
#include "recorder/driven_run.h"
#include "recorder/hands.h"

namespace tavorno {

namespace {

/// The lines around `PC`, with a mark at it.
std::string Righe_Intorno(const Plc& plc) {
  constexpr int intorno = 3;
  std::string testo;
  const int prima = std::max(0, plc.PC - intorno);
  const int ultima = std::min(plc.Prog.Righe() - 1, plc.PC + intorno);
  for (int riga = prima; riga <= ultima; ++riga) {
    testo += (riga == plc.PC ? "> " : "  ") + std::to_string(riga) + "  " +
             A_Utf8(Testo_Riga(plc.Prog[riga])) + "\n";
  }
  return testo;
}

/// The names that there are, for whoever mistyped one.
std::string Elenco(const std::vector<std::string>& nomi) {
  std::string testo;
  for (const std::string& nome : nomi) testo += (testo.empty() ? "" : ", ") + nome;
  return testo;
}

}  // namespace

Collaudo::Collaudo(const Memoria* programma, const std::string& motivo, const Esercizio* esercizio,
                   Scorte& scorte, bool registra)
    : scorte_(scorte) {
  ascolto_ = plc_.Hook.Mostra.Ascolta([this](const Avviso& avviso) { avvisi_.push_back(avviso); });
  if (programma)
    static_cast<Memoria&>(plc_) = *programma;
  else
    guasto_ = motivo;
  if (registra) {
    scriba_ = std::make_unique<Registratore>(plc_);
    scriba_->Ms_Tra_Tappe = scriba_->Righe_Tra_Tappe = std::numeric_limits<std::int64_t>::max();
  }
  if (esercizio) {
    filo_ = std::make_unique<Collegamento>(plc_, stato_, *esercizio);
    filo_->Carica();
  }
}

void Collaudo::Rompi(std::string guasto) {
  guasto_ = std::move(guasto);
  listato_ = Righe_Intorno(plc_);
}

/// What goes wrong inside the CPU or the plant is the end of this CPU, and not of the grading.
template <class Azione>
void Collaudo::Proteggi(Azione azione) {
  if (!guasto_.empty()) return;
  riposa_ = false;
  try {
    azione();
  } catch (const Fatale& fatale) {
    std::string rapporto = Rapporto_Fatale(fatale, plc_);
    std::ranges::replace(rapporto, '\n', ' ');
    fatale_ = true;
    Rompi("Errore fatale del programma: " + rapporto);
  }
  Campiona();
}

void Collaudo::Scansione() {
  const std::int32_t prima = plc_.N_Cicli;
  std::int64_t resto = scorte_.Righe_Scansione;
  while (resto > 0 && plc_.N_Cicli == prima && plc_.PLC_Acceso)
    resto -= plc_.Esegui_Righe(static_cast<int>(resto));
  if (resto == 0 && plc_.N_Cicli == prima && plc_.PLC_Acceso) {
    Rompi("Il programma non raggiunge MEND (" + std::to_string(scorte_.Righe_Scansione) +
          " righe senza finire la scansione).");
    return;
  }
  const std::int64_t righe = scorte_.Righe_Scansione - resto;
  scorte_.Righe -= righe;
  if (scorte_.Righe < 0) {
    Rompi(troppe_righe);
    return;
  }
  if (plc_.PLC_Acceso) {
    riposa_ = !scorte_.Ogni_Scansione && plc_.PC == 0 && riposo_.Scansione_Fatta(righe);
    return;
  }
  std::string testo = "La CPU si è fermata alla riga " + std::to_string(plc_.PC) + ".";
  if (!avvisi_.empty()) testo += " " + avvisi_.back().Titolo + ": " + avvisi_.back().Testo;
  std::ranges::replace(testo, '\n', ' ');
  Rompi(std::move(testo));
}

void Collaudo::Run() {
  if (plc_.PLC_Acceso) return;
  Proteggi([this] {
    riposo_.Da_Capo();
    Avvia_Guidata(plc_, Comando_Corsa::Run);
    if (plc_.Modo_Run != Modo::Step && plc_.N_Cicli == 0) Scansione();
  });
}

void Collaudo::Stop() {
  if (!plc_.PLC_Acceso) return;
  Proteggi([this] {
    plc_.Entra(
        Comando_Corsa::Pausa);  // played again, the loop runs no line more, as it does not here
    plc_.Entra(Comando_Corsa::Stop);
  });
}

void Collaudo::Scegli_Modo(Modo modo) {
  const bool acceso = plc_.PLC_Acceso != 0;
  if (acceso && modo != plc_.Modo_Run &&
      !(modo == Modo::Cont    ? plc_.Attivi.mnuPlcCont
        : modo == Modo::Ciclo ? plc_.Attivi.mnuPlcCiclo
                              : plc_.Attivi.mnuPlcStep))
    throw Errore_Script("modo: con la CPU in RUN questo modo non si può scegliere; prima stop()");
  Proteggi([&] {
    switch (modo) {
      case Modo::Cont:
        Avvia_Guidata(plc_, Comando_Corsa::Cont);
        break;
      case Modo::Ciclo:
        plc_.Entra(Comando_Corsa::Ciclo);
        break;
      case Modo::Step:
        plc_.Entra(Comando_Corsa::Step);
        break;
    }
  });
}

void Collaudo::Passo() {
  if (!guasto_.empty()) return;
  if (!plc_.PLC_Acceso || plc_.Modo_Run != Modo::Step)
    throw Errore_Script("passo: serve la CPU in RUN nel modo Step");
  Proteggi([this] {
    plc_.Entra(Comando_Corsa::Passo);
    riposo_.Da_Capo();
    --scorte_.Righe;
  });
}

void Collaudo::Cicli(int quanti) {
  if (!guasto_.empty()) {
    Consuma(quanti);
    perso_ += quanti;
    return;
  }
  if (!plc_.PLC_Acceso) throw Errore_Script("cicli: la CPU è ferma; prima run()");
  for (int n = 0; n < quanti; ++n) Un_Millisecondo(true);
}

void Collaudo::Consuma(std::int64_t ms) {
  scorte_.Ms -= ms;
  if (scorte_.Ferma.stop_requested()) throw Limite_Superato("l'esame è stato interrotto");
  if (scorte_.Ms < 0) throw Limite_Superato("lo script supera il limite di tempo virtuale");
}

void Collaudo::Passano(std::int64_t ms) {
  plc_.Entra({.Che = Cosa::Passano, .Numero = ms});
}

void Collaudo::Un_Millisecondo(bool scansione) {
  Consuma(1);
  if (!guasto_.empty()) {
    ++perso_;
    return;
  }
  Proteggi([&] {
    Passano(1);
    if (!scansione) return;
    const bool riposa = !scorte_.Ogni_Scansione && riposo_.Riposa();
    if (riposa && riposo_.Saltabili(1) > 0 && riposo_.Righe(1) <= scorte_.Righe)
      Lascia_Fuori(1);
    else
      Scansione();
  });
}

void Collaudo::Lascia_Fuori(std::int64_t scansioni) {
  riposo_.Salta(scansioni);
  scorte_.Righe -= riposo_.Righe(scansioni);
  riposa_ = true;
}

/// Lets time pass at once, at most `ms`, to where a timer ticks or a supply runs out. Returns how
/// much, 0 where the next scan has to be looked at.
std::int64_t Collaudo::Salta(std::int64_t ms) {
  if (!riposa_) return 0;
  constexpr std::int64_t due = 2;  // lines of two scans are known whatever the period is
  ms = riposo_.Saltabili(
      std::min({ms, riposo_.Prossimo() - orologio_.Adesso() - 1, scorte_.Ms,
                scorte_.Righe / std::max<std::int64_t>(riposo_.Righe(due), 1) * due}));
  if (ms <= 0) return 0;
  Consuma(ms);
  Passano(ms);
  Lascia_Fuori(ms);  // and nothing is there to be sampled
  return ms;
}

bool Collaudo::Passa(std::int64_t ms) {
  bool forse_cambiato = false;
  for (std::int64_t n = 0; n < ms; ++n) {
    if (!guasto_.empty()) {
      Consuma(ms - n);
      perso_ += ms - n;
      break;
    }
    const bool scansione = plc_.PLC_Acceso && plc_.Modo_Run == Modo::Cont;
    const std::int64_t saltati = scansione ? Salta(ms - n) : 0;
    if (saltati > 0) {
      n += saltati - 1;
      forse_cambiato = forse_cambiato || !riposo_.Sempre_Uguale();
    } else {
      Un_Millisecondo(scansione);
      forse_cambiato = true;
    }
  }
  return forse_cambiato;
}

std::int64_t Collaudo::Passa_Fino_Al_Cambio(std::int64_t ms) {
  const bool scansione = guasto_.empty() && plc_.PLC_Acceso && plc_.Modo_Run == Modo::Cont;
  const std::int64_t saltati = scansione && riposo_.Sempre_Uguale() ? Salta(ms) : 0;
  if (saltati == ms) return ms;
  Passa(1);
  return saltati + 1;
}

std::vector<Avviso> Collaudo::Prendi_Avvisi() {
  return std::exchange(avvisi_, {});
}

std::optional<Seduta_Registrata> Collaudo::Ripresa() {
  if (!scriba_) return {};
  Seduta_Registrata ripresa = scriba_->Registrata();
  if (fatale_ && plc_.Righe_Fatte > 0) --ripresa.Voci.Ultima_Riga;
  return ripresa;
}

// ---- the user's hand ----------------------------------------------------------------------------

Impianto& Collaudo::Macchina() {
  if (!filo_)
    throw Errore_Script(
        "nessun impianto: lo script lo nomina con impianto(N), oppure il banco va avviato con "
        "--impianto N (\"classe\" anche con --esercizio N)");
  return filo_->Macchina();
}

Figura& Collaudo::Elemento(std::string_view nome) {
  Impianto& macchina = Macchina();
  if (Figura* figura = macchina.Disegno.Trova(nome)) return *figura;
  std::vector<std::string> nomi;
  for (const Figura& figura : macchina.Disegno) nomi.push_back(figura.Nome);
  throw Errore_Script("l'elemento \"" + std::string(nome) + "\" non esiste; ci sono " +
                      Elenco(nomi));
}

Figura& Collaudo::Elemento_Operabile(std::string_view nome) {
  Figura& figura = Elemento(nome);
  if (figura.Operabile()) return figura;
  std::vector<std::string> nomi;
  for (const Figura& altra : Macchina().Disegno) {
    if (altra.Operabile()) nomi.push_back(altra.Nome);
  }
  throw Errore_Script("l'elemento \"" + std::string(nome) + "\" non si aziona; si azionano " +
                      Elenco(nomi));
}

void Collaudo::Mano(Cosa cosa, std::string_view nome) {
  filo_->Entra({.Che = cosa, .Testo = nome});
}

bool Collaudo::Premi(std::string_view nome) {
  if (!Elemento_Operabile(nome).Visible) return false;
  if (premuti_.emplace(nome).second) Proteggi([&] { Mano(Cosa::Premi, nome); });
  return true;
}

bool Collaudo::Rilascia(std::string_view nome) {
  Elemento_Operabile(nome);
  const auto premuto = premuti_.find(nome);
  if (premuto == premuti_.end()) return false;
  premuti_.erase(premuto);
  Proteggi([&] {
    Mano(Cosa::Rilascia, nome);
    Mano(Cosa::Clic, nome);
  });
  return true;
}

bool Collaudo::Clic(std::string_view nome) {
  const Figura& figura = Elemento_Operabile(nome);
  if (!Premi(nome)) return false;
  if (figura.Premi || figura.Rilascia) Passa(durata_clic);
  Rilascia(nome);
  return true;
}

bool Collaudo::Doppio_Clic(std::string_view nome) {
  const Figura& figura = Elemento_Operabile(nome);
  if (!Clic(nome)) return false;
  if (!figura.Doppio_Clic) {  // two presses of an ordinary button
    Passa(durata_clic);
    return Clic(nome);
  }
  Proteggi([&] {
    Mano(Cosa::Doppio_Clic, nome);
    Mano(Cosa::Rilascia, nome);
  });
  return true;
}

void Collaudo::Regola(std::string_view nome, double valore) {
  Impianto& macchina = Macchina();
  Gesto gesto{0, Azione::Regola, std::string(nome), valore};
  // The hand reaches a property through the slider that writes it.
  for (const Cursore& cursore : filo_->Tabella().Cursori) {
    if (!cursore.Scrive || nome != cursore.Scrive) continue;
    gesto.Nome = cursore.Nome;
    gesto.Valore = (valore - cursore.Zero) / cursore.Pendenza;
  }
  const std::string errore = Controlla_Mani({&gesto, 1}, filo_->Tabella(), macchina);
  if (!errore.empty()) throw Errore_Script("regola: " + errore);
  Proteggi([&] { Esegui_Gesto(gesto, *filo_); });
}

bool Collaudo::Guasta(std::string_view nome, bool attivo) {
  Impianto& macchina = Macchina();
  const Gesto gesto{0, Azione::Guasto, std::string(nome), attivo ? 1.0 : 0.0};
  const std::string errore = Controlla_Mani({&gesto, 1}, filo_->Tabella(), macchina);
  if (!errore.empty()) throw Errore_Script("guasto: " + errore);
  bool riuscito = false;
  Proteggi([&] { riuscito = Esegui_Gesto(gesto, *filo_); });
  return riuscito;
}

void Collaudo::Scrivi(const Indirizzo& indirizzo, double valore, const char* funzione) {
  bool scritto = true;
  Proteggi([&] { scritto = Forza(plc_, Testo_Indirizzo(indirizzo), valore); });
  if (!scritto)
    throw Errore_Script(std::string(funzione) + ": il valore non sta in questo indirizzo");
}

void Collaudo::Volt(int canale, double volt) {
  plc_.Entra({.Che = Cosa::Volt_AI, .Indice = canale, .Valore = volt});
}

}  // namespace tavorno
