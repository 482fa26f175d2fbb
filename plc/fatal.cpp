// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/fatal.h"

#include <utility>

namespace tavorno {

Fatale::Fatale(std::string cosa, std::string tabella, long long indice)
    : cosa_(std::move(cosa)), tabella_(std::move(tabella)), indice_(indice) {
  testo_ = cosa_ + ": " + tabella_ + " [" + std::to_string(indice_) + "]";
}

void Fatale_Indice(const char* tabella, long long indice) {
  throw Fatale("Indice fuori dalla tabella", tabella, indice);
}

void Fatale_Overflow(const char* operazione, long long valore) {
  throw Fatale("Valore troppo grande per la cella", operazione, valore);
}

void Fatale_Testo(const char* tabella, long long indice) {
  throw Fatale("Testo senza un numero", tabella, indice);
}

}  // namespace tavorno
