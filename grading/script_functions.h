// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

struct lua_State;

namespace tavorno {

class Esame;

/// A function that scripts call.
struct Riga_Funzione {
  const char* Nome;
  const char* Uso;    ///< how it is called
  const char* Aiuto;  ///< one line of Italian help
  int (*Esegui)(lua_State* stato, Esame& esame);
};

std::span<const Riga_Funzione> Funzioni_Script();

/// Makes all of them known; to be called by the language, protected.
int Registra_Funzioni(lua_State* stato);

}  // namespace tavorno
