// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/awl_lexer.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <array>

#include "awl/line_words.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

struct Aspetto {
  int Stile;
  const char* Nome;
  const colori::Coppia* Tinte;
  bool Grassetto = false;
  bool Corsivo = false;
};

// What is wrong differs from what is right by more than its colour: ground, weight or slant.
constexpr std::array<Aspetto, 25> aspetti = {{
    {stile::Normale, "Testo", &colori::awl::Testo},
    {stile::Commento, "Commento", &colori::awl::Commento, false, true},
    {stile::Rete, "Segmento", &colori::awl::Rete, true},
    {stile::Titolo_Rete, "Titolo del segmento", &colori::awl::Rete, false, true},
    {stile::Operando, "Operando", &colori::awl::Testo},
    {stile::Costante, "Costante", &colori::awl::Costante},
    {stile::Non_Supportata, "Istruzione non supportata", &colori::awl::Non_Supportata, false, true},
    {stile::Sconosciuta, "Istruzione sconosciuta", &colori::awl::Errore, true},
    {stile::Numero_Listato, "Numero di riga", &colori::awl::Numero},
    {stile::Esito_Buono, "Riga corretta", &colori::awl::Buona},
    {stile::Esito_Errato, "Riga errata", &colori::awl::Errore, true},
    {stile::Messaggio, "Messaggio di errore", &colori::awl::Messaggio},
    {stile::Di(Famiglia::Contatti), "Contatti", &colori::awl::Contatti, true},
    {stile::Di(Famiglia::Uscite), "Uscite", &colori::awl::Bobine, true},
    {stile::Di(Famiglia::Pila), "Pila logica", &colori::awl::Pila, true},
    {stile::Di(Famiglia::Temporizzatori), "Temporizzatori", &colori::awl::Temporizzatori, true},
    {stile::Di(Famiglia::Contatori), "Contatori", &colori::awl::Contatori, true},
    {stile::Di(Famiglia::Trasferimenti), "Trasferimenti", &colori::awl::Trasferimenti, true},
    {stile::Di(Famiglia::Conversioni), "Conversioni", &colori::awl::Conversioni, true},
    {stile::Di(Famiglia::Confronti), "Confronti", &colori::awl::Confronti, true},
    {stile::Di(Famiglia::Aritmetica), "Aritmetica", &colori::awl::Aritmetica, true},
    {stile::Di(Famiglia::Logica), "Logica e scorrimento", &colori::awl::Logica, true},
    {stile::Di(Famiglia::Programma), "Controllo del programma", &colori::awl::Programma, true},
    {stile::Di(Famiglia::Sequenze), "Controllo di sequenza", &colori::awl::Sequenze, true},
    {stile::Di(Famiglia::Interruzioni), "Interruzioni", &colori::awl::Interruzioni, true},
}};

/// The desktop's, whatever our colours were made for.
QColor Foglio() {
  return QGuiApplication::palette().color(QPalette::Base);
}

const Aspetto* Cerca_Aspetto(int numero) {
  const auto* trovato = std::ranges::find(aspetti, numero, &Aspetto::Stile);
  return trovato == aspetti.end() ? nullptr : trovato;
}

class Penna {
 public:
  Penna(std::string_view linea, const std::function<void(int, int)>& pezzo)
      : linea_(linea), pezzo_(pezzo) {}

  /// Everything up to a column gets this look.
  void Fino_A(std::size_t colonna, int numero) {
    colonna = std::min(colonna, linea_.size());
    if (colonna <= posto_) return;
    pezzo_(static_cast<int>(colonna - posto_), numero);
    posto_ = colonna;
  }
  std::size_t Posto() const { return posto_; }
  std::string_view Linea() const { return linea_; }

 private:
  std::string_view linea_;
  const std::function<void(int, int)>& pezzo_;
  std::size_t posto_ = 0;
};

int Stile_Istruzione(const Istruzione* istruzione) {
  if (istruzione == nullptr) return stile::Sconosciuta;
  return istruzione->Trattamento == Gruppo::Non_Supportata ? stile::Non_Supportata
                                                           : stile::Di(istruzione->Gruppo_Manuale);
}

void Colora_Operandi(Penna& penna, std::size_t fine) {
  constexpr std::string_view separatori = " \t,\r\n";
  while (penna.Posto() < fine) {
    const std::size_t inizio =
        std::min(penna.Linea().find_first_not_of(separatori, penna.Posto()), fine);
    penna.Fino_A(inizio, stile::Normale);
    if (inizio == fine) return;
    const bool costante =
        std::string_view("0123456789+-").find(penna.Linea()[inizio]) != std::string_view::npos;
    const std::size_t dopo = std::min(penna.Linea().find_first_of(separatori, inizio), fine);
    penna.Fino_A(dopo, costante ? stile::Costante : stile::Operando);
  }
}

/// An instruction line from the pen's place up to a column.
void Colora_Istruzione(Penna& penna, std::size_t fine) {
  const std::size_t prima = penna.Posto();
  const std::string_view testo = penna.Linea().substr(prima, fine - prima);
  if (testo.starts_with("NETWORK")) {
    penna.Fino_A(std::min(testo.find('/'), testo.size()) + prima, stile::Rete);
    penna.Fino_A(fine, stile::Titolo_Rete);
    return;
  }
  if (testo.starts_with("TITLE=")) {
    penna.Fino_A(fine, stile::Commento);
    return;
  }
  const Parola parola = Trova_Prima_Parola(testo);
  penna.Fino_A(parola.Inizio + prima, stile::Normale);
  if (!parola.Vuota()) penna.Fino_A(parola.Fine + prima, Stile_Istruzione(Istruzione_Di(testo)));
  // The writer of the file begins a comment at a single bar.
  const std::size_t commento = std::min(testo.find('/', parola.Fine), testo.size());
  Colora_Operandi(penna, commento + prima);
  penna.Fino_A(fine, stile::Commento);
}

}  // namespace

void Colora_Linea(std::string_view linea, const std::function<void(int, int)>& pezzo) {
  Penna penna(linea, pezzo);
  Colora_Istruzione(penna, linea.size());
}

void Colora_Linea(const Riga_Listato& riga, const std::function<void(int, int)>& pezzo) {
  const std::string linea = A_Utf8(riga.Come_Testo());
  const std::size_t esito = riga.Numero.size() + 1;
  const std::size_t istruzione = esito + riga.Esito.size() + 2;
  Penna penna(linea, pezzo);
  penna.Fino_A(esito, stile::Numero_Listato);
  penna.Fino_A(istruzione - 2, riga.Errata ? stile::Esito_Errato : stile::Esito_Buono);
  penna.Fino_A(istruzione, stile::Normale);
  Colora_Istruzione(penna, linea.size() - riga.Messaggio.size());
  penna.Fino_A(linea.size(), stile::Messaggio);
}

AwlLexer::AwlLexer(Genere_Testo genere, QsciScintilla* editor)
    : QsciLexerCustom(editor), genere_(genere) {
  setDefaultFont(defaultFont(stile::Normale));
}

QString AwlLexer::description(int numero) const {
  const Aspetto* aspetto = Cerca_Aspetto(numero);
  return aspetto == nullptr ? QString() : Q(aspetto->Nome);
}

QColor AwlLexer::defaultColor(int numero) const {
  const Aspetto* aspetto = Cerca_Aspetto(numero);
  const colori::Tinta testo = (aspetto == nullptr ? colori::awl::Testo : *aspetto->Tinte).Testo;
  const QColor su_carta = colori::Su(testo, defaultPaper(numero));
  // What stands on the sheet stands in the caret's line too.
  const bool sul_foglio = aspetto == nullptr || aspetto->Tinte->Fondo == colori::Foglio;
  return sul_foglio && !spento_ ? colori::Su(su_carta, colori::awl::Riga) : su_carta;
}

QColor AwlLexer::defaultPaper(int numero) const {
  const Aspetto* aspetto = Cerca_Aspetto(numero);
  if (spento_) return colori::awl::Spento;
  if (aspetto == nullptr || aspetto->Tinte->Fondo == colori::Foglio) return Foglio();
  return aspetto->Tinte->Fondo;
}

QFont AwlLexer::defaultFont(int numero) const {
  QFont tipo(QStringLiteral("DejaVu Sans Mono"), 9);
  tipo.setStyleHint(QFont::Monospace);
  if (const Aspetto* aspetto = Cerca_Aspetto(numero)) {
    tipo.setBold(aspetto->Grassetto);
    tipo.setItalic(aspetto->Corsivo);
  }
  return tipo;
}

void AwlLexer::Spegni(bool spento) {
  spento_ = spento;
  Ritingi();
}

void AwlLexer::Ritingi() {
  for (const Aspetto& aspetto : aspetti) {
    setColor(defaultColor(aspetto.Stile), aspetto.Stile);
    setPaper(defaultPaper(aspetto.Stile), aspetto.Stile);
  }
  setColor(defaultColor(QsciScintillaBase::STYLE_DEFAULT), QsciScintillaBase::STYLE_DEFAULT);
  setPaper(defaultPaper(QsciScintillaBase::STYLE_DEFAULT), QsciScintillaBase::STYLE_DEFAULT);
}

void AwlLexer::styleText(int inizio, int fine) {
  const auto lunghezza = static_cast<std::size_t>(editor()->length());
  const auto* byte = static_cast<const char*>(
      editor()->SendScintillaPtrResult(QsciScintilla::SCI_GETCHARACTERPOINTER));
  const std::string_view testo(byte, lunghezza);
  auto posto = static_cast<std::size_t>(inizio);
  auto numero_linea = static_cast<std::size_t>(
      editor()->SendScintilla(QsciScintilla::SCI_LINEFROMPOSITION, inizio));
  startStyling(inizio);
  while (posto < std::min(static_cast<std::size_t>(fine), lunghezza)) {
    std::size_t dopo = std::min(testo.find('\n', posto), lunghezza - 1) + 1;
    std::string_view linea = testo.substr(posto, dopo - posto);
    const std::size_t fine_linea = std::min(linea.find_first_of("\r\n"), linea.size());
    const auto colora = [this](int quanti, int numero) { setStyling(quanti, numero); };
    if (genere_ == Genere_Testo::Listato && numero_linea < Righe_Listato.size())
      Colora_Linea(Righe_Listato[numero_linea], colora);
    else
      Colora_Linea(linea.substr(0, fine_linea), colora);
    ++numero_linea;
    if (fine_linea < linea.size())
      setStyling(static_cast<int>(linea.size() - fine_linea), stile::Normale);
    posto = dopo;
  }
}

}  // namespace tavorno
