// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/error_marks.h"

#include <algorithm>

#include "widgets/text.h"

namespace tavorno {

void Segni_Errori::Prendi(const Progetto& progetto, const Documenti_Procedure& documenti) {
  Dimentica();
  for (int k = 0; k <= progetto.CPU.NRighe; ++k) {
    const Posto_Riga& posto = progetto.Righe_Src[k].Posto;
    Riga& riga = righe_.emplace_back();
    riga.Chiave = posto.Testo == 0 ? Chiave_Main : documenti.Chiave(posto.Testo);
    riga.Linea = posto.Linea;
  }
  for (const Diagnosi& rilievo : progetto.Rilievi) {
    if (!Nota(rilievo.Riga)) continue;
    Riga& riga = righe_[static_cast<std::size_t>(rilievo.Riga)];
    riga.Grado = std::min(riga.Grado.value_or(rilievo.Grado), rilievo.Grado);
    if (!riga.Messaggio.isEmpty()) riga.Messaggio += '\n';
    riga.Messaggio += Q(Senza_Freccia(rilievo.Messaggio));
  }
}

void Segni_Errori::Dimentica() {
  righe_.clear();
  segnati_.clear();
}

void Segni_Errori::Metti(AwlEditor& editor, int chiave) {
  if (!segnati_.insert(chiave).second) return;
  editor.Togli_Segni();
  for (Riga& riga : righe_) {
    if (riga.Chiave != chiave) continue;
    riga.Segno = editor.Segui(riga.Linea);
    if (riga.Grado) editor.Segna(riga.Linea, *riga.Grado, riga.Messaggio);
  }
}

std::vector<int> Segni_Errori::Segnate() const {
  std::vector<int> segnate;
  for (std::size_t i = 0; i < righe_.size(); ++i) {
    if (righe_[i].Grado) segnate.push_back(static_cast<int>(i));
  }
  return segnate;
}

int Segni_Errori::Chiave(int riga) const {
  return Nota(riga) ? righe_[static_cast<std::size_t>(riga)].Chiave : -1;
}

int Segni_Errori::Linea(const AwlEditor* editor, int riga) const {
  if (!Nota(riga)) return 0;
  const Riga& nota = righe_[static_cast<std::size_t>(riga)];
  const bool segue = editor != nullptr && nota.Segno >= 0;
  const int ora = segue ? editor->Linea_Seguita(nota.Segno) : -1;
  return ora < 0 ? nota.Linea : ora;
}

}  // namespace tavorno
