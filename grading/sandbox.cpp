// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/sandbox.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <lua5.4/lua.hpp>
#include <new>
#include <string_view>

#include "grading/processor_time.h"

namespace tavorno {

/// What the callbacks of the language do to the fence they belong to.
struct Accesso_Recinto {
  static void* Alloca(void* recinto, void* blocco, std::size_t vecchio, std::size_t nuovo);
  static void Controlla(lua_State* stato, lua_Debug*);
};

namespace {

constexpr int passo = 100;  // instructions between two looks at the limits

// What stays of each library. A metatable could hang the machine in a finalizer, which no hook
// sees; a caught error would let a script go on behind its limits.
constexpr const char* globali[] = {"assert",   "error",    "ipairs", "next",     "pairs", "select",
                                   "tonumber", "tostring", "type",   "rawequal", "rawlen"};
constexpr const char* tolte_da_string[] = {"dump"};
constexpr const char* tolte_da_table[] = {"move"};
constexpr const char* tolte_da_math[] = {"randomseed"};

// What a call may take that no hook can interrupt: some seconds at worst.
constexpr double passi_massimi = 1e10;

// The functions of patterns take time of the order of length to the power of the repetitions, each
// step as long as the pattern may be (a set, or a text to be found as it is).
constexpr const char* con_modello[] = {"find", "match", "gmatch", "gsub"};

double Passi_Del_Modello(std::string_view modello, std::size_t lungo_testo) {
  const auto lungo = static_cast<double>(std::max<std::size_t>(lungo_testo, 2));
  double passi = lungo * static_cast<double>(modello.size());
  for (std::size_t n = 0; n < modello.size(); ++n) {
    const bool speciale = modello[n] == '%' && ++n < modello.size();
    if (speciale ? modello[n] == 'b' || (modello[n] >= '1' && modello[n] <= '9')
                 : n < modello.size() && std::strchr("*+-?", modello[n]))
      passi *= lungo;
  }
  return passi;
}

/// The original, in the frame of the call: so that its errors name function and line.
int Originale(lua_State* stato) {
  return lua_tocfunction(stato, lua_upvalueindex(1))(stato);
}

int Con_Modello(lua_State* stato) {
  Accesso_Recinto::Controlla(stato, nullptr);
  std::size_t lungo_testo = 0, lungo_modello = 0;
  luaL_checklstring(stato, 1, &lungo_testo);
  const char* modello = luaL_checklstring(stato, 2, &lungo_modello);
  if (Passi_Del_Modello({modello, lungo_modello}, lungo_testo) > passi_massimi)
    return luaL_error(stato, "il modello di ricerca ha troppe ripetizioni per un testo così lungo");
  return Originale(stato);
}

/// Nothing, repeated: the original would count on to the last time.
int Ripeti(lua_State* stato) {
  std::size_t lungo = 0, lungo_separatore = 0;
  luaL_checklstring(stato, 1, &lungo);
  luaL_optlstring(stato, 3, "", &lungo_separatore);
  if (lungo + lungo_separatore > 0) return Originale(stato);
  lua_pushliteral(stato, "");
  return 1;
}

/// Long texts that differ at their ends are compared for a long time, without a hook unless a
/// function of the script does it.
int Ordina(lua_State* stato) {
  Accesso_Recinto::Controlla(stato, nullptr);
  luaL_checktype(stato, 1, LUA_TTABLE);
  const bool a_modo_suo = lua_isfunction(stato, 2) && !lua_iscfunction(stato, 2);
  const auto quanti = static_cast<lua_Integer>(lua_rawlen(stato, 1));
  std::size_t lungo = 1;
  for (lua_Integer n = 1; n <= quanti && !a_modo_suo; ++n) {
    if (lua_rawgeti(stato, 1, n) == LUA_TSTRING)
      lungo = std::max<std::size_t>(lungo, lua_rawlen(stato, -1));
    lua_pop(stato, 1);
  }
  const auto molti = static_cast<double>(quanti) + 1;
  if (!a_modo_suo && molti * std::log2(molti) * static_cast<double>(lungo) > passi_massimi)
    return luaL_error(stato, "i testi da ordinare sono troppo lunghi");
  return Originale(stato);
}

/// Puts `intorno` around a function of the table on top of the stack.
void Avvolgi(lua_State* stato, const char* nome, lua_CFunction intorno) {
  lua_getfield(stato, -1, nome);
  lua_pushcclosure(stato, intorno, 1);
  lua_setfield(stato, -2, nome);
}

template <std::size_t n>
void Togli(lua_State* stato, const char* const (&nomi)[n]) {
  for (const char* nome : nomi) {
    lua_pushnil(stato);
    lua_setfield(stato, -2, nome);
  }
}

int Prepara(lua_State* stato) {
  luaL_requiref(stato, LUA_GNAME, luaopen_base, 0);
  lua_newtable(stato);
  for (const char* nome : globali) {
    lua_getfield(stato, -2, nome);
    lua_setfield(stato, -2, nome);
  }
  lua_rawseti(stato, LUA_REGISTRYINDEX, LUA_RIDX_GLOBALS);
  lua_settop(stato, 0);

  luaL_requiref(stato, LUA_STRLIBNAME, luaopen_string, 1);
  Togli(stato, tolte_da_string);
  for (const char* nome : con_modello) Avvolgi(stato, nome, Con_Modello);
  Avvolgi(stato, "rep", Ripeti);

  luaL_requiref(stato, LUA_TABLIBNAME, luaopen_table, 1);
  Togli(stato, tolte_da_table);
  Avvolgi(stato, "sort", Ordina);

  // The same numbers each time, so that two runs say the same.
  luaL_requiref(stato, LUA_MATHLIBNAME, luaopen_math, 1);
  lua_getfield(stato, -1, "randomseed");
  lua_pushinteger(stato, 1);
  lua_call(stato, 1, 0);
  Togli(stato, tolte_da_math);

  luaL_requiref(stato, LUA_UTF8LIBNAME, luaopen_utf8, 1);
  lua_settop(stato, 0);
  return 0;
}

}  // namespace

void* Accesso_Recinto::Alloca(void* recinto, void* blocco, std::size_t vecchio, std::size_t nuovo) {
  auto& memoria = static_cast<Recinto*>(recinto)->memoria_;
  if (!blocco) vecchio = 0;  // then it is the kind of object
  if (nuovo == 0) {
    std::free(blocco);
    memoria += vecchio;
    return nullptr;
  }
  if (nuovo > vecchio && nuovo - vecchio > memoria) return nullptr;
  void* altro = std::realloc(blocco, nuovo);
  if (altro) memoria = memoria + vecchio - nuovo;
  return altro;
}

void Accesso_Recinto::Controlla(lua_State* stato, lua_Debug*) {
  void* dati = nullptr;
  lua_getallocf(stato, &dati);
  auto& recinto = *static_cast<Recinto*>(dati);
  recinto.istruzioni_ -= passo;
  if (recinto.istruzioni_ < 0) luaL_error(stato, "%s", Recinto::troppe_istruzioni);
  const auto adesso = std::chrono::steady_clock::now();
  if (adesso < recinto.scadenza_) return;
  const auto resto = recinto.processore_ - Tempo_Del_Filo();
  recinto.tempo_scaduto_ = resto.count() < 0;
  if (recinto.tempo_scaduto_) luaL_error(stato, "%s", Recinto::troppo_tempo);
  recinto.scadenza_ = adesso + resto;
}

Recinto::Recinto(const Limiti_Script& limiti)
    : memoria_(limiti.Memoria),
      istruzioni_(limiti.Istruzioni),
      processore_(limiti.Processore + std::chrono::ceil<std::chrono::seconds>(Tempo_Del_Filo())),
      scadenza_(std::chrono::steady_clock::now() + limiti.Processore),
      stato_(lua_newstate(Accesso_Recinto::Alloca, this)) {
  if (!stato_) throw std::bad_alloc();
  lua_pushcfunction(stato_, Prepara);
  if (lua_pcall(stato_, 0, 0, 0) != LUA_OK) {
    lua_close(stato_);
    throw std::bad_alloc();
  }
  lua_sethook(stato_, Accesso_Recinto::Controlla, LUA_MASKCOUNT, passo);
}

Recinto::~Recinto() {
  lua_close(stato_);
}

}  // namespace tavorno
