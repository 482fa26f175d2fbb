// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

struct lua_State;

// The arguments of a function that a script calls. A wrong one throws `Errore_Script` with the name
// of the function; nothing here raises an error of the language, which would leap over destructors.
namespace tavorno {

std::string_view Arg_Testo(lua_State* stato, int numero, const char* funzione);
/// An empty text when the argument is missing.
std::string_view Arg_Testo_Facoltativo(lua_State* stato, int numero, const char* funzione);
double Arg_Numero(lua_State* stato, int numero, const char* funzione, double minimo,
                  double massimo);
long long Arg_Intero(lua_State* stato, int numero, const char* funzione, long long minimo,
                     long long massimo);
void Arg_Funzione(lua_State* stato, int numero, const char* funzione);
/// false, nil and 0 are false, since bits read as 0 and 1.
bool Vero(lua_State* stato, int numero);

}  // namespace tavorno
