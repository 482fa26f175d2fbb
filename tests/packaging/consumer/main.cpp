// SPDX-License-Identifier: GPL-3.0-or-later
// Somebody else's program with a CPU of its own: compiles a text, switches inputs on and off in
// virtual time, and prints what the outputs do.
#include <cstdio>
#include <string>

#include "recorder/session.h"
#include "recorder/virtual_run.h"

int main() {
  tavorno::Seduta seduta;  // a clock, a CPU on it, and a project
  if (!seduta.Leggi("ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\nNETWORK 1\r\n"
                    "LD I0.1\r\nO Q0.0\r\nA I0.0\r\n= Q0.0\r\nEND_ORGANIZATION_BLOCK\r\n"))
    return 2;
  seduta.progetto.Compila();
  if (!seduta.progetto.Compilato) return 1;

  tavorno::Limiti limiti;
  limiti.Durata = 1000;
  tavorno::Corsa corsa(seduta.plc, limiti);
  std::string errore;
  corsa.Ingressi = tavorno::Leggi_Ingressi("0:I0.0=1,200:I0.1=1,300:I0.1=0,700:I0.0=0", errore);
  corsa.Cambio = [](std::int64_t ms, char area, int byte, int bit, bool acceso) {
    if (area == 'Q') std::printf("%4d ms  Q%d.%d = %d\n", static_cast<int>(ms), byte, bit, acceso);
  };
  return corsa.Esegui() == tavorno::Fine_Corsa::Tempo ? 0 : 1;
}
