// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/templates.h"

#include "plc/number_text.h"

namespace tavorno {

std::string Testo_Network(int numero) {
  return "NETWORK" + Numero_Con_Spazio(numero) +
         "       //TITOLO DEL SEGMENTO (una riga)\r\n"
         "//\r\n"
         "//COMMENTI DEL SEGMENTO\r\n"
         "//\r\n";
}

std::string Testo_Nuovo_Main() {
  return "//Main Program\r\n//COMMENTI DEL PROGRAMMA\r\n//\r\n\r\n" + Testo_Network(1);
}

std::string Testa_Procedura(const std::string& nome) {
  return "// " + nome + "\r\n//COMMENTI DEL SOTTOPROGRAMMA\r\n//\r\n\r\n";
}

std::string Testo_Nuova_Procedura(const std::string& nome) {
  return Testa_Procedura(nome) + Testo_Network(1);
}

}  // namespace tavorno
