// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/error_marks.h"

#include "awl/line_numbers.h"
#include "awl/ui/listing_line.h"
#include "widgets/text.h"

namespace tavorno {

void Segni_Errori::Prendi(const Progetto& progetto, const Documenti_Procedure& documenti) {
  Dimentica();
  constexpr std::string_view fine_riga = "\r\r\n";
  constexpr std::size_t freccia = 3;  // the arrow is the listing's own
  const Numerazione numerazione(progetto);
  std::string_view listato = progetto.Lista_Comp;
  for (std::size_t fine = listato.find(fine_riga); fine != std::string_view::npos;
       fine = listato.find(fine_riga)) {
    const std::string_view testo = listato.substr(0, fine);
    listato.remove_prefix(fine + fine_riga.size());
    const Riga_Listato letta = Leggi_Riga_Listato(testo);
    Riga& riga = righe_.emplace_back();
    riga.Errata = letta.Errata;
    if (letta.Avviso < testo.size()) riga.Messaggio = Da_Byte(testo.substr(letta.Avviso + freccia));
    const auto posto = numerazione.Posto(letta.Numero);
    if (!letta.Valida || !posto) continue;
    riga.Chiave = posto->Testo == 0 ? Chiave_Main : documenti.Chiave(posto->Testo);
    riga.Linea = posto->Linea;
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
    if (riga.Errata) editor.Segna_Errore(riga.Linea, riga.Messaggio);
  }
}

int Segni_Errori::Chiave(int riga) const {
  return Nota(riga) ? righe_[static_cast<std::size_t>(riga)].Chiave : -1;
}

int Segni_Errori::Linea(const AwlEditor& editor, int riga) const {
  if (!Nota(riga)) return 0;
  const Riga& nota = righe_[static_cast<std::size_t>(riga)];
  const int ora = nota.Segno < 0 ? -1 : editor.Linea_Seguita(nota.Segno);
  return ora < 0 ? nota.Linea : ora;
}

}  // namespace tavorno
