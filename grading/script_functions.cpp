// SPDX-License-Identifier: GPL-3.0-or-later
// What a script can do. An error of the language leaps over destructors, so a function that may
// raise one holds nothing on its stack that owns memory: texts on their way lie in the `Esame`.
#include "grading/script_functions.h"

#include <algorithm>
#include <functional>
#include <lua5.4/lua.hpp>
#include <map>
#include <new>
#include <optional>
#include <string>
#include <string_view>

#include "grading/lua_messages.h"
#include "grading/script.h"
#include "grading/script_arguments.h"
#include "trace/address.h"

namespace tavorno {

namespace {

constexpr long long costo_chiamata = 20;  // instructions
constexpr double punti_massimi = 1000;    // of a case, and of one demand
constexpr long long tempo_massimo = 24 * 3'600'000LL;
constexpr const char* tipo_elemento = "tavorno.elemento";

std::string Riga_Chiamante(lua_State* stato) {
  lua_Debug posto{};
  if (!lua_getstack(stato, 1, &posto) || !lua_getinfo(stato, "l", &posto)) return "";
  return " (riga " + std::to_string(posto.currentline) + ")";
}

std::string Messaggio_O_Riga(lua_State* stato, int numero, const char* funzione) {
  if (lua_type(stato, numero) == LUA_TNUMBER) lua_tolstring(stato, numero, nullptr);  // in place
  const std::string_view testo = Arg_Testo_Facoltativo(stato, numero, funzione);
  return testo.empty() ? "condizione non verificata" + Riga_Chiamante(stato) : std::string(testo);
}

// ---- run ----------------------------------------------------------------------------------------

int Fa_Run(lua_State*, Esame& esame) {
  esame.Banco().Run();
  return 0;
}

int Fa_Stop(lua_State*, Esame& esame) {
  esame.Banco().Stop();
  return 0;
}

int Fa_Modo(lua_State* stato, Esame& esame) {
  struct Riga_Modo {
    std::string_view Nome;
    Modo Quale;
  };
  static constexpr Riga_Modo modi[] = {
      {"Cont", Modo::Cont}, {"Ciclo", Modo::Ciclo}, {"Step", Modo::Step}};
  const std::string_view nome = Arg_Testo(stato, 1, "modo");
  for (const Riga_Modo& riga : modi) {
    if (riga.Nome != nome) continue;
    esame.Banco().Scegli_Modo(riga.Quale);
    return 0;
  }
  throw Errore_Script("modo: i modi sono \"Cont\", \"Ciclo\" e \"Step\"");
}

int Fa_Passo(lua_State*, Esame& esame) {
  esame.Banco().Passo();
  return 0;
}

int Fa_Cicli(lua_State* stato, Esame& esame) {
  esame.Banco().Cicli(static_cast<int>(Arg_Intero(stato, 1, "cicli", 0, 100'000'000)));
  return 0;
}

int Fa_Attendi(lua_State* stato, Esame& esame) {
  lua_pushboolean(stato, esame.Banco().Passa(Arg_Intero(stato, 1, "attendi", 0, tempo_massimo)));
  return 1;
}

/// Calls the function at the top again and again, after the time that `passa` lets go by of what is
/// left; `dice_ms` tells it how much has gone.
template <class Passa>
int Aspetta(lua_State* stato, Esame& esame, const char* nome, bool dice_ms, Passa passa) {
  Arg_Funzione(stato, 1, nome);
  const long long limite = Arg_Intero(stato, 2, nome, 0, tempo_massimo);
  esame.Banco();
  const int caso = esame.Numero_Caso;
  for (long long ms = 0;; ms += passa(esame.Banco(), limite - ms)) {
    lua_pushvalue(stato, 1);
    if (dice_ms) lua_pushinteger(stato, ms);
    lua_call(stato, dice_ms ? 1 : 0, 1);
    const bool vero = Vero(stato, -1);
    lua_pop(stato, 1);
    if (esame.Numero_Caso != caso)
      throw Errore_Script(std::string(nome) + ": la funzione non può cominciare un'altra prova");
    const bool rotto = !esame.Banco().Guasto().empty();
    if ((vero && !rotto) || ms >= limite || rotto) {
      if (rotto) esame.Banco().Passa(limite - ms);
      lua_pushboolean(stato, vero && !rotto);
      lua_pushinteger(stato, ms);
      return 2;
    }
  }
}

int Fa_Attendi_Fino(lua_State* stato, Esame& esame) {
  return Aspetta(stato, esame, "attendi_fino", false, [](Collaudo& banco, long long) -> long long {
    banco.Passa(1);
    return 1;
  });
}

int Fa_Attendi_Quando(lua_State* stato, Esame& esame) {
  return Aspetta(stato, esame, "attendi_quando", true,
                 [](Collaudo& banco, long long resto) -> long long {
                   return banco.Passa_Fino_Al_Cambio(resto);
                 });
}

// ---- the user's hand ----------------------------------------------------------------------------

template <bool (Collaudo::*azione)(std::string_view), const char* const& nome>
int Aziona(lua_State* stato, Esame& esame) {
  lua_pushboolean(stato, (esame.Banco().*azione)(Arg_Testo(stato, 1, nome)));
  return 1;
}
constexpr const char* premi = "premi";
constexpr const char* rilascia = "rilascia";
constexpr const char* clic = "clic";
constexpr const char* doppio_clic = "doppio_clic";

int Fa_Regola(lua_State* stato, Esame& esame) {
  const std::string_view nome = Arg_Testo(stato, 1, "regola");
  esame.Banco().Regola(nome, Arg_Numero(stato, 2, "regola", -1e9, 1e9));
  return 0;
}

int Fa_Guasto(lua_State* stato, Esame& esame) {
  const std::string_view nome = Arg_Testo(stato, 1, "guasto");
  const bool attivo = lua_isnoneornil(stato, 2) || Vero(stato, 2);
  lua_pushboolean(stato, esame.Banco().Guasta(nome, attivo));
  return 1;
}

// ---- memory -------------------------------------------------------------------------------------

Indirizzo Arg_Indirizzo(lua_State* stato, const char* funzione) {
  // A script asks for the same few addresses again and again.
  thread_local std::map<std::string, Indirizzo, std::less<>> letti;
  constexpr std::size_t abbastanza = 100;
  const std::string_view testo = Arg_Testo(stato, 1, funzione);
  if (const auto letto = letti.find(testo); letto != letti.end()) return letto->second;
  if (const auto indirizzo = Leggi_Indirizzo(testo)) {
    if (letti.size() < abbastanza) letti.emplace(testo, *indirizzo);
    return *indirizzo;
  }
  throw Errore_Script(std::string(funzione) + ": l'indirizzo \"" + std::string(testo) +
                      "\" non esiste; ci sono " + Indirizzi_Ammessi());
}

void Scrivi(lua_State* stato, Esame& esame, const char* funzione, const Indirizzo& indirizzo) {
  esame.Banco().Scrivi(indirizzo, Arg_Numero(stato, 2, funzione, -1e12, 1e12), funzione);
}

int Fa_Ingresso(lua_State* stato, Esame& esame) {
  const Indirizzo indirizzo = Arg_Indirizzo(stato, "ingresso");
  if (indirizzo.Dove != Area::I) throw Errore_Script("ingresso: serve un punto tra I0.0 e I1.7");
  Scrivi(stato, esame, "ingresso", indirizzo);
  return 0;
}

int Fa_Analogico(lua_State* stato, Esame& esame) {
  const long long canale = Arg_Intero(stato, 1, "analogico", 0, 2);
  const double volt = Arg_Numero(stato, 2, "analogico", -1000, 1000);
  esame.Banco().Volt(static_cast<int>(canale), volt);
  return 0;
}

int Fa_Leggi(lua_State* stato, Esame& esame) {
  const Indirizzo indirizzo = Arg_Indirizzo(stato, "leggi");
  const double valore = Leggi_Cella(esame.Banco().Cpu(), indirizzo);
  if (indirizzo.Dove == Area::AC)
    lua_pushnumber(stato, valore);
  else
    lua_pushinteger(stato, static_cast<lua_Integer>(valore));
  return 1;
}

int Fa_Scrivi(lua_State* stato, Esame& esame) {
  Scrivi(stato, esame, "scrivi", Arg_Indirizzo(stato, "scrivi"));
  return 0;
}

// ---- pictures and messages ----------------------------------------------------------------------

/// A figure of the machine of one case.
struct Maniglia {
  const Figura* Quale;
  int Numero_Caso;
};

int Fa_Elemento(lua_State* stato, Esame& esame) {
  const Figura& figura = esame.Banco().Elemento(Arg_Testo(stato, 1, "elemento"));
  void* posto = lua_newuserdatauv(stato, sizeof(Maniglia), 0);
  new (posto) Maniglia{&figura, esame.Numero_Caso};
  luaL_setmetatable(stato, tipo_elemento);
  return 1;
}

struct Riga_Proprieta {
  std::string_view Nome;
  void (*Metti)(lua_State*, const Figura&);
};

void Metti_Testo(lua_State* stato, const std::string& testo) {
  lua_pushlstring(stato, testo.data(), testo.size());
}

constexpr Riga_Proprieta proprieta[] = {
    {"Left", [](lua_State* s, const Figura& f) { lua_pushnumber(s, f.Left()); }},
    {"Top", [](lua_State* s, const Figura& f) { lua_pushnumber(s, f.Top()); }},
    {"Width", [](lua_State* s, const Figura& f) { lua_pushnumber(s, f.Width()); }},
    {"Height", [](lua_State* s, const Figura& f) { lua_pushnumber(s, f.Height()); }},
    {"Visible", [](lua_State* s, const Figura& f) { lua_pushboolean(s, f.Visible()); }},
    {"Picture", [](lua_State* s, const Figura& f) { Metti_Testo(s, f.Picture()); }},
    {"Caption", [](lua_State* s, const Figura& f) { Metti_Testo(s, f.Caption()); }},
    {"ToolTip", [](lua_State* s, const Figura& f) { Metti_Testo(s, f.ToolTip()); }},
    {"FillColor", [](lua_State* s, const Figura& f) { lua_pushinteger(s, f.FillColor()); }},
    {"ForeColor", [](lua_State* s, const Figura& f) { lua_pushinteger(s, f.ForeColor()); }},
    {"FillStyle", [](lua_State* s, const Figura& f) { lua_pushinteger(s, f.FillStyle()); }},
};

int Proprieta_Elemento(lua_State* stato, Esame& esame) {
  const auto& maniglia = *static_cast<const Maniglia*>(lua_touserdata(stato, 1));
  if (maniglia.Numero_Caso != esame.Numero_Caso)
    throw Errore_Script("questo elemento appartiene a una prova già finita");
  const std::string_view nome = Arg_Testo(stato, 2, "elemento");
  for (const Riga_Proprieta& riga : proprieta) {
    if (riga.Nome != nome) continue;
    riga.Metti(stato, *maniglia.Quale);
    return 1;
  }
  throw Errore_Script("la proprietà \"" + std::string(nome) + "\" non esiste");
}

int Assegna_Proprieta(lua_State*, Esame&) {
  throw Errore_Script("le proprietà di un elemento si leggono soltanto");
}

int Fa_Messaggi(lua_State* stato, Esame& esame) {
  esame.Avvisi = esame.Banco().Prendi_Avvisi();
  lua_createtable(stato, static_cast<int>(esame.Avvisi.size()), 0);
  for (lua_Integer n = 0; const Avviso& avviso : esame.Avvisi) {
    lua_pushfstring(stato, "%s: %s", avviso.Titolo.c_str(), avviso.Testo.c_str());
    lua_rawseti(stato, -2, ++n);
  }
  return 1;
}

/// Runs in the state and within the limits of the script.
int Fa_Usa(lua_State* stato, Esame& esame) {
  if (esame.Usa(std::string(Arg_Testo(stato, 1, "usa")))) lua_call(stato, 0, 0);
  return 0;
}

// ---- verdicts -----------------------------------------------------------------------------------

int Fa_Verifica(lua_State* stato, Esame& esame) {
  const bool vero = Vero(stato, 1);
  esame.Verifica(vero, Messaggio_O_Riga(stato, 2, "verifica"));
  lua_pushboolean(stato, vero);
  return 1;
}

int Fa_Serve(lua_State* stato, Esame& esame) {
  const bool vero = Vero(stato, 1);
  esame.Serve(vero, Messaggio_O_Riga(stato, 2, "serve"));
  if (esame.Conclusa()) throw Errore_Script("prova conclusa");
  lua_pushboolean(stato, vero);
  return 1;
}

int Fa_Punti(lua_State* stato, Esame& esame) {
  const double punti = Arg_Numero(stato, 1, "punti", 0, punti_massimi);
  const bool vero = Vero(stato, 2);
  esame.Segna_Punti(punti, vero, Messaggio_O_Riga(stato, 3, "punti"));
  lua_pushboolean(stato, vero);
  return 1;
}

int Fa_Impianto(lua_State* stato, Esame& esame) {
  esame.Scegli_Impianto(static_cast<int>(
      Arg_Intero(stato, 1, "impianto", 0, static_cast<long long>(Tabella_Esercizi().size()) - 1)));
  return 0;
}

int Fa_Prova(lua_State* stato, Esame& esame) {
  const std::string_view nome = Arg_Testo(stato, 1, "prova");
  std::optional<double> massimo;
  if (lua_isnumber(stato, 2)) massimo = Arg_Numero(stato, 2, "prova", 0, punti_massimi);
  const int funzione = massimo ? 3 : 2;
  Arg_Funzione(stato, funzione, "prova");
  lua_pushvalue(stato, funzione);
  const int riferimento = luaL_ref(stato, LUA_REGISTRYINDEX);
  esame.Aggiungi_Prova(std::string(nome), massimo, riferimento);
  return 0;
}

int Fa_Print(lua_State* stato, Esame& esame) {
  esame.Errore.clear();
  const int quanti = lua_gettop(stato);
  // No more than the report keeps: the text grows outside the memory of the script.
  for (int numero = 1; numero <= quanti && esame.Errore.size() <= lunghezza_messaggio; ++numero) {
    if (numero > 1) esame.Errore += ' ';
    std::size_t lungo = 0;
    const char* testo = luaL_tolstring(stato, numero, &lungo);
    esame.Errore.append(testo, std::min(lungo, lunghezza_messaggio + 1));
    lua_pop(stato, 1);
  }
  esame.Annota(esame.Errore);
  return 0;
}

// clang-format off
constexpr Riga_Funzione funzioni[] = {
    {"prova", "prova(nome, [punti,] funzione)", "un caso con un nome, che vale quei punti, su una CPU e un impianto nuovi", Fa_Prova},
    {"punti", "punti(n, condizione, messaggio)", "n punti se la condizione è vera, altrimenti il caso non è superato; restituisce la condizione", Fa_Punti},
    {"serve", "serve(condizione, messaggio)", "una premessa: se è falsa il caso non è superato e i punti che seguono non si guadagnano", Fa_Serve},
    {"verifica", "verifica(condizione, messaggio)", "se la condizione è falsa il caso non è superato e non dà punti; restituisce la condizione", Fa_Verifica},
    {"impianto", "impianto(numero)", "in testa allo script, l'impianto per cui è fatto", Fa_Impianto},
    {"run", "run()", "avvia la CPU; nei modi Cont e Ciclo esegue subito la prima scansione", Fa_Run},
    {"stop", "stop()", "ferma la CPU", Fa_Stop},
    {"modo", "modo(\"Cont\"|\"Ciclo\"|\"Step\")", "sceglie il modo: Cont scandisce mentre il tempo passa, Ciclo con cicli(n), Step con passo()", Fa_Modo},
    {"passo", "passo()", "esegue una riga, nel modo Step", Fa_Passo},
    {"cicli", "cicli(n)", "esegue n scansioni intere, di un millisecondo l'una", Fa_Cicli},
    {"attendi", "attendi(ms)", "lascia passare il tempo virtuale; vero se intanto qualcosa può essere cambiato", Fa_Attendi},
    {"attendi_fino", "attendi_fino(funzione, ms)", "aspetta che la funzione dia vero, al massimo ms; restituisce vero o falso e i millisecondi passati", Fa_Attendi_Fino},
    {"attendi_quando", "attendi_quando(funzione, ms)", "come attendi_fino, ma guarda soltanto quando qualcosa può essere cambiato: è più svelta", Fa_Attendi_Quando},
    {"premi", "premi(elemento)", "preme un elemento dell'impianto; falso se è nascosto", Aziona<&Collaudo::Premi, premi>},
    {"rilascia", "rilascia(elemento)", "lo rilascia", Aziona<&Collaudo::Rilascia, rilascia>},
    {"clic", "clic(elemento)", "un clic; un pulsante resta premuto 100 ms", Aziona<&Collaudo::Clic, clic>},
    {"doppio_clic", "doppio_clic(elemento)", "un doppio clic", Aziona<&Collaudo::Doppio_Clic, doppio_clic>},
    {"regola", "regola(nome, valore)", "muove un cursore o un regolatore dell'impianto", Fa_Regola},
    {"guasto", "guasto(nome, [attivo])", "provoca un guasto dell'impianto o di un filo, \"ImgTer\" o \"filo(I0.3)\" o \"incollato(I0.3)\"; con falso lo ripara; falso se ora non si può", Fa_Guasto},
    {"ingresso", "ingresso(\"I0.3\", 1)", "accende o spegne un ingresso", Fa_Ingresso},
    {"analogico", "analogico(canale, volt)", "tensione dell'ingresso analogico 0, 1 o 2 (AIW0, AIW2, AIW4)", Fa_Analogico},
    {"leggi", "leggi(indirizzo)", "valore di un indirizzo: \"Q0.0\", \"VW10\", \"T37.Val\"; i bit valgono 0 o 1", Fa_Leggi},
    {"scrivi", "scrivi(indirizzo, valore)", "lo cambia", Fa_Scrivi},
    {"elemento", "elemento(nome).Left", "una proprietà di un elemento del disegno: Left, Top, Width, Height, Visible, Picture, Caption, ToolTip, FillColor, ForeColor, FillStyle", Fa_Elemento},
    {"messaggi", "messaggi()", "tabella con i messaggi mostrati dalla CPU dall'ultima chiamata", Fa_Messaggi},
    {"usa", "usa(\"file.lua\")", "esegue, una volta sola, un altro script della stessa cartella: le sue funzioni restano", Fa_Usa},
    {"print", "print(...)", "scrive una nota nel rapporto del caso", Fa_Print},
};
// clang-format on

constexpr Riga_Funzione uso_elemento[] = {{"__index", "", "", Proprieta_Elemento},
                                          {"__newindex", "", "", Assegna_Proprieta}};

/// Between the language and the rows above: exceptions end here and become errors of the language.
int Ponte(lua_State* stato) {
  Esame& esame = Esame::Di(stato);
  const auto& riga = *static_cast<const Riga_Funzione*>(lua_touserdata(stato, lua_upvalueindex(1)));
  esame.Spazio().Addebita(costo_chiamata);
  try {
    return riga.Esegui(stato, esame);
  } catch (const std::exception& errore) {
    esame.Errore = errore.what();
  }
  return luaL_error(stato, "%s", esame.Errore.c_str());
}

void Metti_Funzione(lua_State* stato, const Riga_Funzione& riga) {
  // The language keeps pointers without const; the row is only read.
  lua_pushlightuserdata(stato, const_cast<Riga_Funzione*>(&riga));
  lua_pushcclosure(stato, Ponte, 1);
}

}  // namespace

std::span<const Riga_Funzione> Funzioni_Script() {
  return funzioni;
}

int Registra_Funzioni(lua_State* stato) {
  for (const Riga_Funzione& riga : funzioni) {
    Metti_Funzione(stato, riga);
    lua_setglobal(stato, riga.Nome);
  }
  luaL_newmetatable(stato, tipo_elemento);
  for (const Riga_Funzione& riga : uso_elemento) {
    Metti_Funzione(stato, riga);
    lua_setfield(stato, -2, riga.Nome);
  }
  return 0;
}

}  // namespace tavorno
