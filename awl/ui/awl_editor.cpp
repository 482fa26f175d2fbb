// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/awl_editor.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>
#include <utility>

#include "awl/ui/editor_numbers.h"
#include "awl/ui/line_changes.h"
#include "widgets/colours.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

// A tab goes to the column of the operands in the canonical line.
constexpr int larghezza_tabulazione = 7;
constexpr int attesa_suggerimento = 500;  // ms of a resting pointer

bool In_Mezzo(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// A cut here would split a character or a line end.
bool Taglio_Vietato(std::string_view testo, std::size_t posto) {
  if (posto == 0 || posto >= testo.size()) return false;
  return In_Mezzo(testo[posto]) || (testo[posto - 1] == '\r' && testo[posto] == '\n');
}

}  // namespace

AwlEditor::AwlEditor(Genere_Testo genere, const char* nome, QWidget* sopra)
    : QsciScintilla(sopra), genere_(genere), lexer_(new AwlLexer(genere, this)) {
  setObjectName(QString::fromUtf8(nome));
  documento_.documento_ = document();
  *documento_.mostrato_ = true;
  setLexer(lexer_);
  Prepara_Vista();
  Prepara_Documento();
  if (genere_ == Genere_Testo::Programma) Prepara_Aiuti();

  connect(this, &QsciScintillaBase::SCN_MODIFIED, this, [this](int, int tipo) {
    constexpr int testo = SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT;
    const bool a_meta = (tipo & SC_MULTISTEPUNDOREDO) != 0 && (tipo & SC_LASTSTEPINUNDOREDO) == 0;
    if (scrive_ || (tipo & testo) == 0) return;
    if ((tipo & SC_PERFORMED_USER) != 0 && Scritto) Scritto();
    if (raccoglie_ > 0)
      raccolto_ = true;
    else if (!a_meta && Cambiato)
      Cambiato();
  });
  connect(this, &QsciScintillaBase::SCN_DOUBLECLICK, this, [this](int, int linea) {
    if (Linea_Scelta) Linea_Scelta(linea);
  });
}

// These belong to the text and not to its view.
void AwlEditor::Prepara_Documento() {
  setUtf8(true);
  setEolMode(EolWindows);
  setTabWidth(larghezza_tabulazione);
  setIndentationsUseTabs(true);
  setTabIndents(false);  // the key types a tab everywhere
  setReadOnly(Di_Sola_Lettura());
}

void AwlEditor::Prepara_Vista() {
  setFrameShape(QFrame::NoFrame);  // its lines need the height
  setExtraAscent(-1);              // the type has air above its letters
  setWrapMode(WrapNone);
  setScrollWidth(1);
  setScrollWidthTracking(true);
  setBackspaceUnindents(false);
  setAutoIndent(false);
  setCaretLineVisible(true);
  setMarginsFont(lexer()->defaultFont(stile::Numero_Listato));
  const bool programma = genere_ == Genere_Testo::Programma;
  setMarginType(Margine_Numeri, TextMarginRightJustified);
  setMarginWidth(Margine_Numeri, programma ? QStringLiteral("00000") : QString());
  setMarginMarkerMask(Margine_Numeri, 0);
  setMarginType(Margine_Segni, SymbolMargin);
  setMarginWidth(Margine_Segni, programma ? 16 : 0);
  setMarginMarkerMask(Margine_Segni, 1 << Segno_Errore | 1 << Segno_Avvertimento);
  setMarginWidth(Margine_Pieghe, 0);

  markerDefine(Circle, Segno_Errore);
  markerDefine(RightTriangle, Segno_Avvertimento);
  markerDefine(Background, Segno_Fondo);
  markerDefine(Invisible, Segno_Invisibile);
  setAnnotationDisplay(AnnotationIndented);
  indicatorDefine(FullBoxIndicator, Indicatore_Eccedenza);
  indicatorDefine(StraightBoxIndicator, Indicatore_Trovato);
  indicatorDefine(SquiggleIndicator, Indicatore_Suggerimento);
  Segui_Colori(*this, [this] { Tingi_Vista(); });
}

void AwlEditor::Ingrandisci_Testo(double fattore) {
  constexpr double corpo = 10;  // points
  for (int n = static_cast<int>(margini_.size()); n < margins(); ++n)
    margini_.push_back(marginWidth(n));
  zoomTo(static_cast<int>(std::lround(corpo * (fattore - 1))));
  for (int n = 0; n < margins(); ++n)
    setMarginWidth(n,
                   static_cast<int>(std::lround(margini_[static_cast<std::size_t>(n)] * fattore)));
}

void AwlEditor::Tingi_Vista() {
  namespace tinte = colori::awl;
  const QColor foglio = QGuiApplication::palette().color(QPalette::Base);
  lexer_->Ritingi();
  setCaretForegroundColor(colori::Su(tinte::Testo.Testo, foglio));
  setCaretLineBackgroundColor(tinte::Riga);
  setSelectionBackgroundColor(tinte::Scelta.Fondo);
  setSelectionForegroundColor(tinte::Scelta.Testo);
  setMarginsForegroundColor(tinte::Margine.Testo);
  setMarginsBackgroundColor(tinte::Margine.Fondo);
  setMarkerBackgroundColor(tinte::Punto_Errore, Segno_Errore);
  setMarkerForegroundColor(tinte::Bordo_Errore, Segno_Errore);
  setMarkerBackgroundColor(tinte::Punto_Avvertimento, Segno_Avvertimento);
  setMarkerForegroundColor(tinte::Bordo_Avvertimento, Segno_Avvertimento);
  setMarkerBackgroundColor(tinte::Messaggio.Fondo, Segno_Fondo);
  Incornicia(Indicatore_Eccedenza, colori::Su(tinte::Fuori_Colonna, foglio, colori::Visibile));
  Incornicia(Indicatore_Trovato, colori::Su(tinte::Trovato, foglio, colori::Visibile));
  setIndicatorForegroundColor(colori::Su(tinte::Suggerimento, foglio, colori::Visibile),
                              Indicatore_Suggerimento);
  setCallTipsBackgroundColor(tinte::Fumetto.Fondo);
  setCallTipsForegroundColor(tinte::Fumetto.Testo);
}

/// A frame around letters that stay to be read: a colour is opaque to this component, within too.
void AwlEditor::Incornicia(int indicatore, const QColor& colore) {
  constexpr long dentro = 40, bordo = 255;
  setIndicatorForegroundColor(colore, indicatore);
  SendScintilla(SCI_INDICSETALPHA, indicatore, dentro);
  SendScintilla(SCI_INDICSETOUTLINEALPHA, indicatore, bordo);
}

void AwlEditor::Prepara_Aiuti() {
  SendScintilla(SCI_AUTOCSETSEPARATOR, separatore_lista);
  SendScintilla(SCI_AUTOCSETTYPESEPARATOR, '\x01');  // no pictures, and comments may hold "?"
  SendScintilla(SCI_AUTOCSETIGNORECASE, 1L);
  SendScintilla(SCI_AUTOCSETAUTOHIDE, 1L);
  SendScintilla(SCI_AUTOCSETMAXHEIGHT, 8L);
  SendScintilla(SCI_SETMOUSEDWELLTIME, static_cast<long>(attesa_suggerimento));
  connect(this, &QsciScintillaBase::SCN_CHARADDED, this, [this](int c) { Dopo_Carattere(c); });
  connect(this, &QsciScintillaBase::SCN_DWELLSTART, this,
          [this](int posizione, int x, int y) { Mostra_Suggerimento_A(posizione, x, y); });
  connect(
      this, qOverload<const char*, int, int, int>(&QsciScintillaBase::SCN_AUTOCSELECTION), this,
      [this](const char* scelta, int posizione, int, int) { Prendi_Proposta(scelta, posizione); });
  connect(this, &QsciScintillaBase::SCN_DWELLEND, this,
          [this](int, int, int) { SendScintilla(SCI_CALLTIPCANCEL); });
}

// ---- text ---------------------------------------------------------------------------------------

std::string AwlEditor::Byte() const {
  const auto* utf8 = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return Da_Utf8(std::string_view(utf8, static_cast<std::size_t>(length())));
}

void AwlEditor::Scrivi(const std::string& byte) {
  scrive_ = true;
  setReadOnly(false);
  SendScintilla(SCI_BEGINUNDOACTION);
  Sostituisci_Testo(A_Utf8(byte));
  SendScintilla(SCI_ENDUNDOACTION);
  setReadOnly(Di_Sola_Lettura());
  scrive_ = false;
}

/// Line by line from the first to the last that differs.
void AwlEditor::Sostituisci_Testo(const std::string& nuovo) {
  const auto* utf8 = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  const std::string vecchio(utf8, static_cast<std::size_t>(length()));
  if (nuovo == vecchio) return;
  std::vector<std::string_view> vecchie = Linee_Intere(vecchio);
  std::vector<std::string_view> nuove = Linee_Intere(nuovo);
  const auto [fin_qui, qui] = std::ranges::mismatch(vecchie, nuove);
  const std::size_t inizio = fin_qui == vecchie.end()
                                 ? vecchio.size()
                                 : static_cast<std::size_t>(fin_qui->data() - vecchio.data());
  vecchie.erase(vecchie.begin(), fin_qui);
  nuove.erase(nuove.begin(), qui);
  while (!vecchie.empty() && !nuove.empty() && vecchie.back() == nuove.back()) {
    vecchie.pop_back();
    nuove.pop_back();
  }
  // From the end, so that the places further up stay what they are.
  const std::vector<Tratto_Cambiato> tratti = Tratti_Cambiati(vecchie, nuove);
  for (auto tratto = tratti.rbegin(); tratto != tratti.rend(); ++tratto) {
    const std::ptrdiff_t da = vecchie.empty() ? 0 : tratto->Vecchio.data() - vecchie.front().data();
    Sostituisci(inizio + static_cast<std::size_t>(da), tratto->Vecchio, tratto->Nuovo);
  }
}

void AwlEditor::Sostituisci(std::size_t inizio, std::string_view vecchio, std::string_view nuovo) {
  const auto [fin_qui, qui] = std::ranges::mismatch(vecchio, nuovo);
  auto prima = static_cast<std::size_t>(fin_qui - vecchio.begin());
  while (Taglio_Vietato(vecchio, prima) || Taglio_Vietato(nuovo, prima)) --prima;
  const std::size_t resto = std::min(vecchio.size(), nuovo.size()) - prima;
  std::size_t dopo = 0;
  while (dopo < resto && vecchio[vecchio.size() - 1 - dopo] == nuovo[nuovo.size() - 1 - dopo])
    ++dopo;
  while (dopo > 0 && (Taglio_Vietato(vecchio, vecchio.size() - dopo) ||
                      Taglio_Vietato(nuovo, nuovo.size() - dopo)))
    --dopo;
  SendScintilla(SCI_SETTARGETRANGE, static_cast<unsigned long>(inizio + prima),
                static_cast<long>(inizio + vecchio.size() - dopo));
  const std::string pezzo(nuovo.substr(prima, nuovo.size() - dopo - prima));
  SendScintilla(SCI_REPLACETARGET, pezzo.size(), pezzo.data());
}

/// A key or command may change a thousand lines, one by one; what follows from a change looks at
/// the whole project.
void AwlEditor::Raccogli(const std::function<void()>& modifiche) {
  ++raccoglie_;
  modifiche();
  if (--raccoglie_ == 0 && std::exchange(raccolto_, false) && Cambiato) Cambiato();
}

void AwlEditor::In_Un_Passo(const std::function<void()>& modifiche) {
  Raccogli([&] {
    SendScintilla(SCI_BEGINUNDOACTION);
    modifiche();
    SendScintilla(SCI_ENDUNDOACTION);
  });
}

void AwlEditor::Spegni(bool spento) {
  if (spento == spento_) return;
  spento_ = spento;
  setReadOnly(Di_Sola_Lettura());
  setCaretLineVisible(!spento);
  lexer_->Spegni(spento);
}

void AwlEditor::Scrivi_Listato(const std::vector<Riga_Listato>& righe,
                               const std::vector<Diagnosi>& rilievi) {
  std::string testo;
  for (const Riga_Listato& riga : righe) testo.append(riga.Come_Testo()).append("\r\n");
  lexer_->Righe_Listato = righe;
  Scrivi(testo);
  clearAnnotations();
  for (const Diagnosi& rilievo : rilievi) {
    // The listing tells the faults of its own lines; of the link passes it has no words.
    if (rilievo.Stato != 1 || rilievo.Riga < 0 || rilievo.Riga >= lines()) continue;
    const QString prima = annotation(rilievo.Riga);
    annotate(rilievo.Riga,
             prima.isEmpty() ? Q(rilievo.Messaggio) : prima + '\n' + Q(rilievo.Messaggio),
             stile::Messaggio);
  }
}

void AwlEditor::undo() {
  if (isUndoAvailable())
    SendScintilla(SCI_UNDO);
  else if (Va_Oltre(Oltre_Annulla))
    Oltre_Annulla.Fai();
}

void AwlEditor::redo() {
  // What was taken back last comes again first.
  if (Va_Oltre(Oltre_Ripeti))
    Oltre_Ripeti.Fai();
  else
    SendScintilla(SCI_REDO);
}

void AwlEditor::Mostra_Documento(const Documento_Testo& altro) {
  Chiudi_Aiuti();
  const void* prima = SendScintillaPtrResult(SCI_GETDOCPOINTER);
  setDocument(altro.documento_);
  void* ora = SendScintillaPtrResult(SCI_GETDOCPOINTER);
  // The component takes a reference to a text that it puts aside, and does not give it back when
  // it shows that again.
  if (ora != prima && std::exchange(*altro.mostrato_, true))
    SendScintilla(SCI_RELEASEDOCUMENT, 0UL, ora);
  documento_ = altro;
  Prepara_Documento();
}

std::string AwlEditor::Linea_Byte(int linea) const {
  const long inizio = SendScintilla(SCI_POSITIONFROMLINE, linea);
  const long fine = SendScintilla(SCI_GETLINEENDPOSITION, linea);
  const auto* utf8 = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return {utf8 + inizio, static_cast<std::size_t>(fine - inizio)};
}

}  // namespace tavorno
