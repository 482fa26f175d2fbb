// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/script_arguments.h"

#include <lua5.4/lua.hpp>
#include <string>

#include "grading/test_bed.h"

namespace tavorno {

namespace {

[[noreturn]] void Sbagliato(int numero, const char* funzione, const std::string& cosa) {
  throw Errore_Script(std::string(funzione) + ": l'argomento " + std::to_string(numero) +
                      " deve essere " + cosa);
}

std::string Senza_Zeri(double valore) {
  return valore == static_cast<double>(static_cast<long long>(valore))
             ? std::to_string(static_cast<long long>(valore))
             : std::to_string(valore);
}

}  // namespace

std::string_view Arg_Testo(lua_State* stato, int numero, const char* funzione) {
  if (lua_type(stato, numero) != LUA_TSTRING) Sbagliato(numero, funzione, "un testo");
  std::size_t lungo = 0;
  const char* testo = lua_tolstring(stato, numero, &lungo);
  return {testo, lungo};
}

std::string_view Arg_Testo_Facoltativo(lua_State* stato, int numero, const char* funzione) {
  return lua_isnoneornil(stato, numero) ? std::string_view() : Arg_Testo(stato, numero, funzione);
}

double Arg_Numero(lua_State* stato, int numero, const char* funzione, double minimo,
                  double massimo) {
  const double valore = lua_type(stato, numero) == LUA_TBOOLEAN ? lua_toboolean(stato, numero)
                                                                : lua_tonumber(stato, numero);
  const bool numerico =
      lua_type(stato, numero) == LUA_TNUMBER || lua_type(stato, numero) == LUA_TBOOLEAN;
  if (!numerico || !(valore >= minimo && valore <= massimo))
    Sbagliato(numero, funzione,
              "un numero tra " + Senza_Zeri(minimo) + " e " + Senza_Zeri(massimo));
  return valore;
}

long long Arg_Intero(lua_State* stato, int numero, const char* funzione, long long minimo,
                     long long massimo) {
  int intero = 1;
  const long long valore = lua_type(stato, numero) == LUA_TBOOLEAN
                               ? lua_toboolean(stato, numero)
                               : lua_tointegerx(stato, numero, &intero);
  if (intero == 0 || valore < minimo || valore > massimo)
    Sbagliato(numero, funzione,
              "un numero intero tra " + std::to_string(minimo) + " e " + std::to_string(massimo));
  return valore;
}

void Arg_Funzione(lua_State* stato, int numero, const char* funzione) {
  if (lua_type(stato, numero) != LUA_TFUNCTION) Sbagliato(numero, funzione, "una funzione");
}

bool Vero(lua_State* stato, int numero) {
  if (lua_type(stato, numero) == LUA_TNUMBER) return lua_tonumber(stato, numero) != 0;
  return lua_toboolean(stato, numero) != 0;
}

}  // namespace tavorno
