// SPDX-License-Identifier: GPL-3.0-or-later
// What changes the program.
#include <algorithm>

#include "awl/line_numbers.h"
#include "awl/line_words.h"
#include "awl/screen_rows.h"
#include "awl/templates.h"
#include "ladder/edit_walk.h"
#include "ladder/rewrite.h"
#include "ladder/to_list.h"
#include "ladder/typed.h"
#include "ladder/ui/ladder_entry.h"
#include "ladder/ui/ladder_view.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

QString Frase(const std::string& motivo) {
  QString frase = Q(motivo);
  if (frase.isEmpty()) return frase;
  frase[0] = frase[0].toUpper();
  return frase.endsWith('.') ? frase : frase + '.';
}

/// The networks that a text begins.
int Quante_Reti(const std::string& testo) {
  return static_cast<int>(std::ranges::count_if(
      Linee(testo), [](std::string_view linea) { return linea.starts_with("NETWORK"); }));
}

}  // namespace

bool Vista_Scala::Modificabile() const {
  return legami_.Scrivi && legami_.Modificabile && legami_.Modificabile();
}

bool Vista_Scala::Posso_Modificare() const {
  if (!Modificabile()) {
    Avvisa(QStringLiteral(
        "Lo schema si modifica con l'editor aperto: menu File, \"Modifica Progetto\"."));
    return false;
  }
  if (rete_ < 0)
    Avvisa(QStringLiteral("Il programma non ha segmenti: Ctrl+Ins comincia il primo."));
  else if (!Rete(rete_).Disegnata())
    Avvisa(QStringLiteral("Questo segmento resta in lista: si modifica nel testo (Invio)."));
  else if (foglio_.Pila_Contesa())
    Avvisa(
        QStringLiteral("Un segmento usa i valori che un altro lascia sulla pila: finché è così, "
                       "il programma si modifica nel testo (Invio)."));
  else
    return true;
  return false;
}

Diagramma Vista_Scala::Schema_Scelto() const {
  return Rete(rete_).Schema();
}

/// With the caret on a network's title no symbol is marked: the first one counts.
int Vista_Scala::Simbolo_Scelto() const {
  return std::min(std::max(scelto_, 0), Rete(rete_).Simboli() - 1);
}

void Vista_Scala::Applica(const Modifica& modifica) {
  if (!modifica.Fatta()) {
    if (campo_->Aperto()) campo_->Rifiuta(Frase(modifica.Motivo));
    return Avvisa(Frase(modifica.Motivo));
  }
  campo_->Chiudi();
  setFocus(Qt::OtherFocusReason);
  const Rete_Foglio& rete = Rete(rete_);
  const int testo = rete.Testo;
  const std::string nuovo = Riscrivi_Rete(Testo_A_Schermo(progetto_, testo), rete.Rete,
                                          foglio_.Righe(), *Elenca(modifica.Nuovo));
  const int quale = rete_;
  legami_.Scrivi(testo, nuovo);
  Aggiorna();
  Avvisa(QString());
  Scegli(quale, modifica.Scelto);
}

void Vista_Scala::Comincia_Battuta(const QString& testo) {
  if (!Posso_Modificare()) return;
  const bool vuoto = scelto_ >= 0 && Da_Completare(Simbolo_Numero(Schema_Scelto(), scelto_));
  cambia_ = false;
  Mostra(rete_, scelto_);
  // Operands alone complete what is not filled in.
  const std::string istr = vuoto ? Simbolo_Numero(Schema_Scelto(), scelto_).Istr : std::string();
  campo_->Apri(Posto(rete_, scelto_).bottomLeft() + QPoint(4, -6), testo, istr, false);
}

void Vista_Scala::Metti(const QString& testo) {
  const Battuta battuta = Leggi_Battuta(A_Byte(testo));
  if (!battuta.Passo || !battuta.Messaggio.empty()) return Comincia_Battuta(testo);
  if (!Posso_Modificare()) return;
  cambia_ = false;
  Conferma(testo);
}

void Vista_Scala::Cambia_Scelto() {
  if (!Posso_Modificare() || scelto_ < 0) return;
  const Passo_Scala passo = Simbolo_Numero(Schema_Scelto(), scelto_);
  cambia_ = true;
  Mostra(rete_, scelto_);
  const bool vuoto = Da_Completare(passo);
  campo_->Apri(Posto(rete_, scelto_).bottomLeft() + QPoint(4, -6),
               vuoto ? Da_Byte(passo.Istr) + ' ' : Da_Byte(Linea_Canonica(passo)).simplified(),
               passo.Istr, !vuoto);
}

/// A new rung begins where a list begins one: with LD behind an output.
void Vista_Scala::Conferma(const QString& testo) {
  const Diagramma schema = Schema_Scelto();
  const int simboli = Quanti_Simboli(schema);
  const int quale = Simbolo_Scelto();
  const Passo_Scala qui = quale >= 0 ? Simbolo_Numero(schema, quale) : Passo_Scala{};
  const bool vuoto = Da_Completare(qui);
  const Battuta battuta = Leggi_Battuta(A_Byte(testo), cambia_ || vuoto ? qui.Istr : std::string());
  if (!battuta.Passo) return;
  const Passo_Scala& passo = *battuta.Passo;
  const Ruolo ruolo = Simbolo_Di(qui.Istr).Cosa;
  const bool su_contatto = ruolo == Ruolo::Contatto || ruolo == Ruolo::Trasforma;
  if (cambia_) return Applica(Cambia(schema, quale, passo));
  if (quale >= 0 && !su_contatto && !vuoto && passo.Istr.starts_with("LD") &&
      battuta.Come.Cosa == Ruolo::Contatto) {
    const Modifica piolo = tavorno::Nuovo_Piolo(schema, quale);
    if (!piolo.Fatta()) return Applica(piolo);
    return Applica(Inserisci(piolo.Nuovo, piolo.Scelto, piolo.Scelto, Verso::Dopo, passo));
  }
  const bool accanto = battuta.Come.Come == Attacco::In_Parallelo;
  const bool contatto = battuta.Come.Cosa == Ruolo::Contatto;
  const Verso verso = contatto && accanto && !vuoto ? Verso::Sotto : Verso::Dopo;
  Applica(Inserisci(schema, quale, std::min(std::max(fino_, quale), simboli - 1), verso, passo));
}

void Vista_Scala::Elimina() {
  if (Posso_Modificare() && scelto_ >= 0) Applica(Cancella(Schema_Scelto(), scelto_));
}

void Vista_Scala::Elimina_Piolo() {
  if (Posso_Modificare() && scelto_ >= 0) Applica(Cancella_Piolo(Schema_Scelto(), scelto_));
}

void Vista_Scala::Nuovo_Piolo() {
  if (!Posso_Modificare()) return;
  Applica(tavorno::Nuovo_Piolo(Schema_Scelto(), Simbolo_Scelto()));
}

/// At the end of the block that the chosen network belongs to.
void Vista_Scala::Nuova_Rete() {
  if (!Modificabile()) return static_cast<void>(Posso_Modificare());
  const int testo = rete_ < 0 ? 0 : Rete(rete_).Testo;
  std::string byte = Testo_A_Schermo(progetto_, testo);
  if (!byte.empty() && !byte.ends_with("\r\n")) byte += "\r\n";
  legami_.Scrivi(testo, byte + Testo_Network(Quante_Reti(byte) + 1));
  Aggiorna();
  int ultima = -1;
  for (std::size_t n = 0; n < foglio_.Reti().size(); ++n)
    if (foglio_.Reti()[n].Testo == testo) ultima = static_cast<int>(n);
  Scegli(ultima, -1);
}

void Vista_Scala::Annulla(bool ripeti) {
  if (!Modificabile()) return static_cast<void>(Posso_Modificare());
  if (!legami_.Annulla) return;
  const int rete = rete_;
  const int scelto = scelto_;
  legami_.Annulla(rete_ < 0 ? 0 : Rete(rete_).Testo, ripeti);
  Aggiorna();
  Scegli(rete, scelto);
}

void Vista_Scala::Vai_Al_Testo() {
  if (!Modificabile() || !legami_.Vai_A)
    return Avvisa(
        QStringLiteral("Il testo si vede con l'editor aperto: menu File, \"Modifica Progetto\"."));
  if (rete_ < 0) return;
  const Rete_Foglio& rete = Rete(rete_);
  int riga = rete.Rete.Riga;
  for (int n = scelto_; n >= 0 && n < rete.Simboli(); --n) {
    riga = rete.Come.Riquadri[static_cast<std::size_t>(n)].Passo.Riga;
    if (riga >= 0) break;
  }
  if (riga >= 0) legami_.Vai_A(foglio_.Righe()[static_cast<std::size_t>(riga)].Posto);
}

}  // namespace tavorno
