// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/procedure_documents.h"

#include <algorithm>
#include <utility>

namespace tavorno {

void Documenti_Procedure::Adegua(int quante) {
  while (Quanti() > quante) documenti_.pop_back();
  while (Quanti() < quante) documenti_.push_back(Nuovo());
}

void Documenti_Procedure::Inserisci(int riga) {
  documenti_.insert(documenti_.begin() + (riga - 1), Nuovo());
}

void Documenti_Procedure::Togli(int riga) {
  documenti_.erase(documenti_.begin() + (riga - 1));
}

const Documento_Testo& Documenti_Procedure::Di(int riga) const {
  return documenti_.at(static_cast<std::size_t>(riga - 1)).Testo;
}

bool Documenti_Procedure::Prima_Volta(int riga) {
  return !std::exchange(documenti_.at(static_cast<std::size_t>(riga - 1)).Mostrato, true);
}

AwlEditor::Veduta& Documenti_Procedure::Veduta_Di(int riga) {
  return documenti_.at(static_cast<std::size_t>(riga - 1)).Veduta;
}

int Documenti_Procedure::Chiave(int riga) const {
  return documenti_.at(static_cast<std::size_t>(riga - 1)).Chiave;
}

int Documenti_Procedure::Riga(int chiave) const {
  const auto trovato = std::ranges::find(documenti_, chiave, &Documento::Chiave);
  return trovato == documenti_.end() ? 0 : static_cast<int>(trovato - documenti_.begin()) + 1;
}

}  // namespace tavorno
