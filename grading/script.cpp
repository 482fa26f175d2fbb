// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/script.h"

#include <algorithm>
#include <lua5.4/lua.hpp>
#include <map>
#include <utility>

#include "grading/lua_messages.h"
#include "plants/exercises.h"

namespace tavorno {

namespace {

constexpr std::size_t rilievi_massimi = 100;
constexpr std::size_t note_massime = 100;
constexpr std::size_t richieste_massime = 1000;
constexpr double arrotondamento = 1e-6;  // of marks like 0,1

int Carica(lua_State* stato, const std::string& testo, const std::string& nome, const char* tipo) {
  return luaL_loadbufferx(stato, testo.data(), testo.size(), ("@" + nome).c_str(), tipo);
}

/// A script as Lua's own code; empty when it has a fault.
std::string Compilato(const Sorgente_Script& script) {
  const Recinto recinto{Limiti_Script{}};
  std::string codice;
  const lua_Writer scrivi = [](lua_State* /*stato*/, const void* dati, std::size_t quanti,
                               void* dove) {
    static_cast<std::string*>(dove)->append(static_cast<const char*>(dati), quanti);
    return 0;
  };
  if (Carica(recinto.Stato(), script.Testo, script.Nome, "t") == LUA_OK)
    lua_dump(recinto.Stato(), scrivi, &codice, 0);
  return codice;
}

int Carica(lua_State* stato, const Sorgente_Script& script) {
  // Hand-ins are many and scripts are few: each thread reads a script once.
  thread_local std::map<std::pair<std::string, std::string>, std::string> compilati;
  const auto [compilato, nuovo] = compilati.try_emplace({script.Nome, script.Testo});
  if (nuovo) compilato->second = Compilato(script);
  const std::string& codice = compilato->second;
  return codice.empty() ? Carica(stato, script.Testo, script.Nome, "t")
                        : Carica(stato, codice, script.Nome, "b");
}

std::string Messaggio(lua_State* stato) {
  std::size_t lungo = 0;
  const char* testo = lua_tolstring(stato, -1, &lungo);  // of a number too
  std::string messaggio = testo ? std::string(testo, lungo) : "errore senza messaggio";
  lua_pop(stato, 1);
  return In_Italiano(messaggio);
}

}  // namespace

std::string Errore_Di_Sintassi(const Sorgente_Script& script) {
  const Recinto recinto{Limiti_Script{}};
  return Carica(recinto.Stato(), script) == LUA_OK ? "" : Messaggio(recinto.Stato());
}

Sorgente_Script Leggi_Script(const std::string& file) {
  try {
    Sorgente_Script script = Leggi_Sorgente(file);
    const std::string sbaglio = Errore_Di_Sintassi(script);
    if (!sbaglio.empty()) throw std::runtime_error(sbaglio);
    return script;
  } catch (const std::runtime_error& errore) {
    throw std::runtime_error(file + ": " + errore.what());
  }
}

Esame::Esame(const Sorgente_Script& script, const Ambiente_Script& ambiente,
             int (*funzioni)(lua_State*))
    : script_(script),
      ambiente_(ambiente),
      funzioni_(funzioni),
      impianto_(ambiente.Impianto),
      scorte_(ambiente.Inizio),
      recinto_(ambiente.Limiti) {
  *static_cast<Esame**>(lua_getextraspace(recinto_.Stato())) = this;
}

Esame& Esame::Di(lua_State* stato) {
  return **static_cast<Esame**>(lua_getextraspace(stato));
}

const Esercizio* Esame::Leggi() {
  lua_State* stato = recinto_.Stato();
  lua_pushcfunction(stato, funzioni_);
  int esito = lua_pcall(stato, 0, 0, 0);
  if (esito == LUA_OK) esito = Carica(stato, script_);
  if (esito == LUA_OK) esito = lua_pcall(stato, 0, 0, 0);
  if (esito != LUA_OK) Registra_Errore(stato);
  if (banco_) Fine();
  return impianto_;
}

std::vector<Caso> Esame::Esegui() {
  Leggi();
  for (const Prova& prova : prove_) {
    if (scorte_.Ferma.stop_requested()) break;
    if (Voluta(prova)) Esegui_Prova(prova);
  }
  return std::move(casi_);
}

void Esame::Scegli_Impianto(int numero) {
  const Esercizio& nominato = Tabella_Esercizi()[static_cast<std::size_t>(numero)];
  if (impianto_ && impianto_ != &nominato)
    throw Errore_Script("questo script è per l'impianto " + std::to_string(numero) +
                        ", e non per il " + std::to_string(impianto_->Indice));
  if (banco_) throw Errore_Script("impianto: va chiamata in testa allo script");
  impianto_ = &nominato;
}

void Esame::Aggiungi_Prova(const std::string& nome, std::optional<double> massimo, int funzione) {
  if (In_Prova) throw Errore_Script("prova: una prova non può contenerne un'altra");
  if (static_cast<int>(prove_.size()) >= ambiente_.Limiti.Casi)
    throw Errore_Script("lo script ha più di " + std::to_string(ambiente_.Limiti.Casi) + " casi");
  prove_.push_back({nome, massimo, funzione});
}

bool Esame::Voluta(const Prova& prova) const {
  if (!ambiente_.Solo_Caso.empty() && prova.Nome != ambiente_.Solo_Caso) return false;
  return !ambiente_.Basta_Un_Errore || std::ranges::all_of(casi_, &Caso::Superato);
}

void Esame::Esegui_Prova(const Prova& prova) {
  Inizia(prova.Nome, prova.Massimo);
  if (Esaurito()) {
    Incolpa_Script("prova non eseguita, perché lo script ha già superato un limite");
  } else {
    lua_State* stato = recinto_.Stato();
    In_Prova = true;
    lua_rawgeti(stato, LUA_REGISTRYINDEX, prova.Funzione);
    const bool errore = lua_pcall(stato, 0, 0, 0) != LUA_OK;
    if (errore && !Conclusa()) Registra_Errore(stato);
    lua_settop(stato, 0);
    In_Prova = false;
  }
  Fine();
}

Collaudo& Esame::Banco() {
  if (!banco_) Inizia(script_.Nome, {});
  return *banco_;
}

Caso& Esame::Adesso() {
  Banco();
  return casi_.back();
}

void Esame::Inizia(const std::string& nome, std::optional<double> massimo) {
  ++Numero_Caso;
  conto_ = {};
  conto_.Dichiarati = massimo;
  const bool troppe = scorte_.Righe < 0;
  banco_ = std::make_unique<Collaudo>(troppe ? nullptr : ambiente_.Programma,
                                      troppe ? Collaudo::troppe_righe : ambiente_.Motivo, impianto_,
                                      scorte_, ambiente_.Riprendi);
  Caso caso;
  caso.Script = script_.Nome;
  caso.Nome = Accorcia(nome);
  casi_.push_back(std::move(caso));
  film_.reset();
  Registra_Tempi();
}

void Esame::Registra_Tempi() {
  if (ambiente_.Riprendi || ambiente_.Tempi) tempi_.emplace(Righe_Di(impianto_));
  std::vector<Traccia*> tracce;
  if (ambiente_.Registra) tracce.push_back(ambiente_.Registra);
  if (tempi_) tracce.push_back(&*tempi_);
  if (tracce.empty()) return;
  for (Traccia* traccia : tracce) traccia->Inizia_Caso(casi_.back().Nome);
  banco_->Campione = [this, tracce] {
    for (Traccia* traccia : tracce) traccia->Campiona(banco_->Tempo(), banco_->Cpu());
  };
  banco_->Campione();
}

void Esame::Fine() {
  Caso& caso = casi_.back();
  caso.Ms = banco_->Tempo();
  if (!banco_->Guasto().empty()) {
    conto_.Senza_Punti = true;
    caso.Rilievi.insert(caso.Rilievi.begin(), {banco_->Istante_Guasto(), banco_->Guasto()});
    caso.Listato = ambiente_.Programma ? banco_->Listato() : ambiente_.Listato;
    film_ = banco_->Ripresa();
  }
  if (conto_.Senza_Punti) caso.Punti = 0;
  caso.Massimo = conto_.Dichiarati.value_or(conto_.Contati);
  const double differenza = conto_.Contati - caso.Massimo;
  if (differenza > arrotondamento || (caso.Superato() && differenza < -arrotondamento))
    Incolpa_Script("la prova dichiara " + Testo_Punti(caso.Massimo) + " punti e ne assegna " +
                   Testo_Punti(conto_.Contati));
  if (caso.Punti > caso.Massimo - arrotondamento) caso.Punti = caso.Massimo;
  if (ambiente_.Registra) ambiente_.Registra->Fine_Caso(caso.Ms);
  if (tempi_) tempi_->Fine_Caso(caso.Ms);
  if (ambiente_.Al_Caso)
    ambiente_.Al_Caso({caso, casi_.size(), std::max(casi_.size(), prove_.size()),
                       film_ ? &*film_ : nullptr, tempi_ ? &*tempi_ : nullptr});
  banco_.reset();
  ++Numero_Caso;
}

bool Esame::Si_Giudica() {
  // What a broken program, or one that never began, goes on doing wrong follows from that.
  return Banco().Guasto().empty() && !conto_.Senza_Premessa;
}

void Esame::Rileva(const std::string& testo) {
  Caso& caso = Adesso();
  if (ambiente_.Riprendi && !film_) {
    film_ = banco_->Ripresa();
    film_->Titolo = caso.Nome;
  }
  if (caso.Rilievi.size() < rilievi_massimi)
    caso.Rilievi.push_back({banco_->Tempo(), Accorcia(testo)});
}

void Esame::Verifica(bool vera, const std::string& testo) {
  if (vera || !Si_Giudica()) return;
  conto_.Senza_Punti = true;
  Rileva(testo);
}

void Esame::Serve(bool vera, const std::string& testo) {
  Registra(true, 0, vera, testo);
  if (!vera) conto_.Senza_Premessa = true;
}

void Esame::Segna_Punti(double punti, bool meritati, const std::string& testo) {
  Registra(false, punti, meritati, testo);
}

void Esame::Registra(bool premessa, double punti, bool soddisfatta, const std::string& testo) {
  Caso& caso = Adesso();
  const Esito_Richiesta esito = !Si_Giudica() ? Esito_Richiesta::Non_Giudicata
                                : soddisfatta ? Esito_Richiesta::Soddisfatta
                                              : Esito_Richiesta::Mancata;
  conto_.Contati += punti;
  if (esito == Esito_Richiesta::Soddisfatta) caso.Punti += punti;
  if (esito == Esito_Richiesta::Mancata) Rileva((premessa ? "premessa mancata: " : "") + testo);
  if (caso.Richieste.size() < richieste_massime)
    caso.Richieste.push_back({premessa, punti, Accorcia(testo), esito, banco_->Tempo()});
}

void Esame::Annota(const std::string& testo) {
  Caso& caso = Adesso();
  if (caso.Note.size() < note_massime) caso.Note.push_back(Accorcia(testo));
}

bool Esame::Usa(const std::string& nome) {
  if (usati_.contains(nome)) return false;
  lua_State* stato = recinto_.Stato();
  try {
    if (Carica(stato, Leggi_Vicino(script_, nome)) != LUA_OK)
      throw std::runtime_error(Messaggio(stato));
  } catch (const std::runtime_error& errore) {
    throw Errore_Script(std::string("usa: ") + errore.what());
  }
  usati_.insert(nome);
  return true;
}

void Esame::Registra_Errore(lua_State* stato) {
  Banco();
  Incolpa_Script("errore nello script: " + Messaggio(stato));
}

void Esame::Incolpa_Script(const std::string& testo) {
  Rileva(testo);
  casi_.back().Script_Errato = true;
}

}  // namespace tavorno
