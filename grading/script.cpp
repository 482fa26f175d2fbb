// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/script.h"

#include <algorithm>
#include <lua5.4/lua.hpp>

#include "grading/lua_messages.h"
#include "grading/script_functions.h"
#include "trace/trace.h"

namespace tavorno {

namespace {

constexpr std::size_t rilievi_massimi = 100;
constexpr std::size_t note_massime = 100;

int Carica(lua_State* stato, const Sorgente_Script& script) {
  return luaL_loadbufferx(stato, script.Testo.data(), script.Testo.size(),
                          ("@" + script.Nome).c_str(), "t");
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

Esame::Esame(const Sorgente_Script& script, const Ambiente_Script& ambiente)
    : script_(script), ambiente_(ambiente), scorte_(ambiente.Inizio), recinto_(ambiente.Limiti) {
  *static_cast<Esame**>(lua_getextraspace(recinto_.Stato())) = this;
}

Esame& Esame::Di(lua_State* stato) {
  return **static_cast<Esame**>(lua_getextraspace(stato));
}

std::vector<Caso> Esame::Esegui() {
  lua_State* stato = recinto_.Stato();
  lua_pushcfunction(stato, Registra_Funzioni);
  int esito = lua_pcall(stato, 0, 0, 0);
  if (esito == LUA_OK) esito = Carica(stato, script_);
  if (esito == LUA_OK) esito = lua_pcall(stato, 0, 0, 0);
  if (esito != LUA_OK && !Interrotto) Registra_Errore(stato);
  if (banco_) Fine();
  return std::move(casi_);
}

Collaudo& Esame::Banco() {
  if (!banco_) Inizia(script_.Nome);
  return *banco_;
}

Caso& Esame::Adesso() {
  Banco();
  return casi_.back();
}

bool Esame::Inizia(const std::string& nome) {
  if (In_Prova && !ambiente_.Solo_Caso.empty() && nome != ambiente_.Solo_Caso) return false;
  const bool fallito = !std::ranges::all_of(casi_, &Caso::Superato);
  if (In_Prova && ambiente_.Basta_Un_Errore && fallito) return false;
  if (In_Prova && static_cast<int>(casi_.size()) >= ambiente_.Limiti.Casi) {
    In_Prova = false;
    throw Errore_Script("lo script ha più di " + std::to_string(ambiente_.Limiti.Casi) + " casi");
  }
  if (banco_) Fine();
  ++Numero_Caso;
  banco_ = std::make_unique<Collaudo>(ambiente_.Programma, ambiente_.Motivo, ambiente_.Impianto,
                                      scorte_);
  Caso caso;
  caso.Script = script_.Nome;
  caso.Nome = Accorcia(nome);
  casi_.push_back(std::move(caso));
  if (ambiente_.Registra) {
    ambiente_.Registra->Inizia_Caso(casi_.back().Nome);
    banco_->Campione = [this] { ambiente_.Registra->Campiona(banco_->Tempo(), banco_->Cpu()); };
    banco_->Campione();
  }
  return true;
}

void Esame::Fine() {
  Caso& caso = casi_.back();
  caso.Ms = banco_->Tempo();
  if (!banco_->Guasto().empty()) {
    caso.Rilievi.insert(caso.Rilievi.begin(), {banco_->Istante_Guasto(), banco_->Guasto()});
    caso.Listato = ambiente_.Programma ? banco_->Listato() : ambiente_.Listato;
  }
  if (ambiente_.Registra) ambiente_.Registra->Fine_Caso(caso.Ms);
  banco_.reset();
  ++Numero_Caso;
}

void Esame::Rileva(const std::string& testo) {
  // What a broken program goes on doing wrong follows from its failure.
  if (Banco().Guasto().empty()) Rileva_Sempre(banco_->Tempo(), testo);
}

void Esame::Rileva_Sempre(std::int64_t ms, const std::string& testo) {
  Caso& caso = Adesso();
  if (caso.Rilievi.size() < rilievi_massimi) caso.Rilievi.push_back({ms, Accorcia(testo)});
}

void Esame::Segna_Punti(double punti, bool meritati, const std::string& testo) {
  Caso& caso = Adesso();
  caso.Massimo += punti;
  if (meritati && banco_->Guasto().empty())
    caso.Punti += punti;
  else
    Rileva(testo);
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
  Rileva_Sempre(Banco().Tempo(), "errore nello script: " + Messaggio(stato));
}

}  // namespace tavorno
