// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/awl_editor.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>

#include "awl/line_numbers.h"
#include "awl/ui/completion.h"
#include "awl/ui/line_changes.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

enum Margine : int { Margine_Numeri = 0, Margine_Segni = 1, Margine_Pieghe = 2 };
enum Segno_Riga : int {
  Segno_Errore = 0,
  Segno_Fondo = 1,
  Segno_Invisibile = 2,
  Segno_Avvertimento = 3,
};

// A tab goes to the column of the operands in the canonical line.
constexpr int larghezza_tabulazione = 7;
constexpr int indicatore_suggerimento = 8;  // the first that is free
constexpr int attesa_suggerimento = 500;    // ms of a resting pointer

struct Comando_Modifica {
  const char* Testo;
  unsigned Messaggio;
  QKeySequence::StandardKey Tasti;
  bool Modifica;  // not for a text that is read only
  bool Stacco;
};

constexpr std::array<Comando_Modifica, 7> comandi_modifica = {{
    {"&Annulla", QsciScintilla::SCI_UNDO, QKeySequence::Undo, true, false},
    {"&Ripeti", QsciScintilla::SCI_REDO, QKeySequence::Redo, true, false},
    {"&Taglia", QsciScintilla::SCI_CUT, QKeySequence::Cut, true, true},
    {"&Copia", QsciScintilla::SCI_COPY, QKeySequence::Copy, false, false},
    {"&Incolla", QsciScintilla::SCI_PASTE, QKeySequence::Paste, true, false},
    {"&Elimina", QsciScintilla::SCI_CLEAR, QKeySequence::Delete, true, false},
    {"&Seleziona tutto", QsciScintilla::SCI_SELECTALL, QKeySequence::SelectAll, false, true},
}};

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
  setLexer(lexer_);
  Prepara_Vista();
  Prepara_Documento();
  if (genere_ == Genere_Testo::Programma) Prepara_Aiuti();

  connect(this, &QsciScintillaBase::SCN_MODIFIED, this, [this](int, int tipo) {
    constexpr int testo = SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT;
    const bool a_meta = (tipo & SC_MULTISTEPUNDOREDO) != 0 && (tipo & SC_LASTSTEPINUNDOREDO) == 0;
    if (scrive_ || (tipo & testo) == 0) return;
    if ((tipo & SC_PERFORMED_USER) != 0 && Scritto) Scritto();
    if (!a_meta && Cambiato) Cambiato();
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
  setFrameShape(QFrame::StyledPanel);
  setWrapMode(WrapNone);
  setScrollWidth(1);
  setScrollWidthTracking(true);
  setBackspaceUnindents(false);
  setAutoIndent(false);
  setCaretLineVisible(true);
  setCaretLineBackgroundColor(QColor(0xf4f7fb));
  setSelectionBackgroundColor(QColor(0xbcd4ee));
  resetSelectionForegroundColor();

  setMarginsFont(lexer()->defaultFont(stile::Numero_Listato));
  setMarginsForegroundColor(QColor(0x6b7280));
  setMarginsBackgroundColor(QColor(0xf0f2f4));
  const bool programma = genere_ == Genere_Testo::Programma;
  setMarginType(Margine_Numeri, TextMarginRightJustified);
  setMarginWidth(Margine_Numeri, programma ? QStringLiteral("00000") : QString());
  setMarginMarkerMask(Margine_Numeri, 0);
  setMarginType(Margine_Segni, SymbolMargin);
  setMarginWidth(Margine_Segni, programma ? 16 : 0);
  setMarginMarkerMask(Margine_Segni, 1 << Segno_Errore | 1 << Segno_Avvertimento);
  setMarginWidth(Margine_Pieghe, 0);

  markerDefine(Circle, Segno_Errore);
  setMarkerBackgroundColor(QColor(0xd0112b), Segno_Errore);
  setMarkerForegroundColor(QColor(0x8c0019), Segno_Errore);
  markerDefine(RightTriangle, Segno_Avvertimento);
  setMarkerBackgroundColor(QColor(0xe8a200), Segno_Avvertimento);
  setMarkerForegroundColor(QColor(0x7a5b00), Segno_Avvertimento);
  markerDefine(Background, Segno_Fondo);
  setMarkerBackgroundColor(QColor(0xfdecec), Segno_Fondo);
  markerDefine(Invisible, Segno_Invisibile);
  setAnnotationDisplay(AnnotationIndented);
  indicatorDefine(SquiggleIndicator, indicatore_suggerimento);
  setIndicatorForegroundColor(QColor(0xc98a00), indicatore_suggerimento);
}

void AwlEditor::Prepara_Aiuti() {
  SendScintilla(SCI_AUTOCSETSEPARATOR, ' ');
  SendScintilla(SCI_AUTOCSETIGNORECASE, 1L);
  SendScintilla(SCI_AUTOCSETAUTOHIDE, 1L);
  SendScintilla(SCI_AUTOCSETMAXHEIGHT, 8L);
  SendScintilla(SCI_SETMOUSEDWELLTIME, static_cast<long>(attesa_suggerimento));
  setCallTipsBackgroundColor(QColor(0xfffbe6));
  setCallTipsForegroundColor(QColor(0x202428));
  connect(this, &QsciScintillaBase::SCN_CHARADDED, this, [this](int c) { Dopo_Carattere(c); });
  connect(this, &QsciScintillaBase::SCN_DWELLSTART, this,
          [this](int posizione, int x, int y) { Mostra_Suggerimento_A(posizione, x, y); });
  connect(this, &QsciScintillaBase::SCN_DWELLEND, this,
          [this](int, int, int) { SendScintilla(SCI_CALLTIPCANCEL); });
}

// ---- text ---------------------------------------------------------------------------------------

std::string AwlEditor::Byte() const {
  const auto* utf8 = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return Da_Utf8(std::string_view(utf8, static_cast<std::size_t>(length())));
}

void AwlEditor::Scrivi(const std::string& byte) {
  const std::string nuovo = A_Utf8(byte);
  const auto* utf8 = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  const std::string vecchio(utf8, static_cast<std::size_t>(length()));
  if (nuovo == vecchio) return;

  const std::vector<std::string_view> vecchie = Linee_Intere(vecchio);
  const std::vector<std::string_view> nuove = Linee_Intere(nuovo);
  scrive_ = true;
  setReadOnly(false);
  SendScintilla(SCI_BEGINUNDOACTION);
  // From the end, so that the places further up stay what they are.
  const std::vector<Tratto_Cambiato> tratti = Tratti_Cambiati(vecchie, nuove);
  for (auto tratto = tratti.rbegin(); tratto != tratti.rend(); ++tratto)
    Sostituisci(
        vecchie.empty() ? 0 : static_cast<std::size_t>(tratto->Vecchio.data() - vecchio.data()),
        tratto->Vecchio, tratto->Nuovo);
  SendScintilla(SCI_ENDUNDOACTION);
  setReadOnly(Di_Sola_Lettura());
  scrive_ = false;
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
  SendScintilla(SCI_SETTARGETRANGE, inizio + prima,
                static_cast<long>(inizio + vecchio.size() - dopo));
  const std::string pezzo(nuovo.substr(prima, nuovo.size() - dopo - prima));
  SendScintilla(SCI_REPLACETARGET, pezzo.size(), pezzo.data());
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

void AwlEditor::Mostra_Documento(const QsciDocument& documento) {
  cancelList();
  SendScintilla(SCI_CALLTIPCANCEL);
  setDocument(documento);
  Prepara_Documento();
}

std::string AwlEditor::Linea_Byte(int linea) const {
  const long inizio = SendScintilla(SCI_POSITIONFROMLINE, linea);
  const long fine = SendScintilla(SCI_GETLINEENDPOSITION, linea);
  const auto* utf8 = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return {utf8 + inizio, static_cast<std::size_t>(fine - inizio)};
}

// ---- margin and marks ---------------------------------------------------------------------------

void AwlEditor::Numera(const std::vector<int>& numeri) {
  for (int linea = 0; linea < lines(); ++linea) {
    const auto indice = static_cast<std::size_t>(linea);
    const int numero = indice < numeri.size() ? numeri[indice] : Numerazione::Nessuno;
    const QString testo = numero == Numerazione::Nessuno ? QString() : QString::number(numero);
    // Telling the component what it knows already would make it paint again.
    if (testo == Numero_Mostrato(linea)) continue;
    if (testo.isEmpty())
      clearMarginText(linea);
    else
      setMarginText(linea, testo, STYLE_LINENUMBER);
  }
}

QString AwlEditor::Numero_Mostrato(int linea) const {
  std::array<char, 16> cifre{};
  const long lunghezza = SendScintilla(SCI_MARGINGETTEXT, linea, static_cast<void*>(nullptr));
  if (lunghezza <= 0 || lunghezza >= static_cast<long>(cifre.size())) return {};
  SendScintilla(SCI_MARGINGETTEXT, linea, static_cast<void*>(cifre.data()));
  return QString::fromLatin1(cifre.data(), lunghezza);
}

int AwlEditor::Segui(int linea) {
  return markerAdd(linea, Segno_Invisibile);
}

int AwlEditor::Linea_Seguita(int segno) const {
  return markerLine(segno);
}

void AwlEditor::Segna(int linea, Gravita grado, const QString& messaggio) {
  if (grado == Gravita::Errore) {
    markerAdd(linea, Segno_Errore);
    markerAdd(linea, Segno_Fondo);
  } else {
    markerAdd(linea, Segno_Avvertimento);
  }
  annotate(linea, messaggio, stile::Messaggio);
}

void AwlEditor::Togli_Segni() {
  for (const int segno : {Segno_Errore, Segno_Fondo, Segno_Invisibile, Segno_Avvertimento})
    markerDeleteAll(segno);
  clearAnnotations();
}

void AwlEditor::Suggerisci(std::vector<Diagnosi> suggerimenti) {
  suggerimenti_ = std::move(suggerimenti);
  SendScintilla(SCI_SETINDICATORCURRENT, indicatore_suggerimento);
  SendScintilla(SCI_INDICATORCLEARRANGE, 0L, static_cast<long>(length()));
  for (const Diagnosi& suggerimento : suggerimenti_) {
    // Columns count characters, positions count bytes.
    const long inizio = SendScintilla(SCI_POSITIONFROMLINE, suggerimento.Posto.Linea);
    const long da = SendScintilla(SCI_POSITIONRELATIVE, inizio, suggerimento.Colonna);
    const long a = SendScintilla(SCI_POSITIONRELATIVE, da, suggerimento.Lunghezza);
    if (a > da) SendScintilla(SCI_INDICATORFILLRANGE, da, a - da);
  }
}

QString AwlEditor::Suggerito(int linea) const {
  QString testo;
  for (const Diagnosi& suggerimento : suggerimenti_) {
    if (suggerimento.Posto.Linea != linea) continue;
    if (!testo.isEmpty()) testo += '\n';
    testo += Q(suggerimento.Messaggio);
  }
  return testo;
}

bool AwlEditor::Ha_Avvertimento(int linea) const {
  return (markersAtLine(linea) & (1U << Segno_Avvertimento)) != 0;
}

bool AwlEditor::Ha_Errore(int linea) const {
  return (markersAtLine(linea) & (1U << Segno_Errore)) != 0;
}

void AwlEditor::Vai_A(int linea) {
  const int presente = std::clamp(linea, 0, lines() - 1);
  setCursorPosition(presente, 0);
  SendScintilla(SCI_VERTICALCENTRECARET);
  setFocus(Qt::OtherFocusReason);
}

void AwlEditor::Vai_In_Fondo() {
  SendScintilla(SCI_DOCUMENTEND);
  setFocus(Qt::OtherFocusReason);
}

// ---- help while typing --------------------------------------------------------------------------

void AwlEditor::Dopo_Carattere(int carattere) {
  if (carattere == ' ' || carattere == '\t')
    Mostra_Suggerimento();
  else if (carattere != '\r' && carattere != '\n')
    Offri_Completamenti();
}

void AwlEditor::Offri_Completamenti() {
  int linea = 0;
  int colonna = 0;
  getCursorPosition(&linea, &colonna);
  const std::string testo = Linea_Byte(linea);
  const Prima_Parola parola = Trova_Prima_Parola(testo);
  if (parola.Vuota() || parola.Fine != static_cast<std::size_t>(colonna)) return;
  const std::string fin_qui = testo.substr(parola.Inizio, parola.Fine - parola.Inizio);
  std::string lista;
  for (const std::string& nome : Completamenti(fin_qui)) {
    if (!lista.empty()) lista += ' ';
    lista += nome;
  }
  if (lista.empty())
    SendScintilla(SCI_AUTOCCANCEL);
  else if (!isListActive())
    SendScintilla(SCI_AUTOCSHOW, fin_qui.size(), lista.c_str());
}

void AwlEditor::Mostra_Suggerimento() {
  const auto posizione = static_cast<int>(SendScintilla(SCI_GETCURRENTPOS));
  const auto linea = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, posizione));
  const auto inizio = static_cast<int>(SendScintilla(SCI_POSITIONFROMLINE, linea));
  const std::string testo = Linea_Byte(linea);
  const Prima_Parola parola = Trova_Prima_Parola(testo);
  const Istruzione* istruzione = Istruzione_Di(testo);
  const auto colonna = static_cast<std::size_t>(posizione - inizio);
  // Behind a comment there is nothing left to help with.
  const bool muto = istruzione == nullptr || parola.Vuota() || colonna > testo.find("//");
  Mostra_Aiuto(static_cast<unsigned long>(inizio) + parola.Inizio, linea,
               muto ? "" : Suggerimento(*istruzione));
}

void AwlEditor::Mostra_Suggerimento_A(int posizione, int, int) {
  if (posizione < 0) return;
  const auto linea = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, posizione));
  const long inizio = SendScintilla(SCI_POSITIONFROMLINE, linea);
  const std::string testo = Linea_Byte(linea);
  const Prima_Parola parola = Trova_Prima_Parola(testo);
  const Istruzione* istruzione = Istruzione_Di(testo);
  const auto colonna = static_cast<std::size_t>(posizione - inizio);
  const bool muto = istruzione == nullptr || colonna < parola.Inizio || colonna >= parola.Fine;
  Mostra_Aiuto(static_cast<unsigned long>(posizione), linea, muto ? "" : Suggerimento(*istruzione));
}

/// What there is to say of an instruction, below what there is to say of its line.
void AwlEditor::Mostra_Aiuto(unsigned long posizione, int linea, const std::string& istruzione) {
  std::string aiuto = Utf8(Suggerito(linea));
  if (!aiuto.empty() && !istruzione.empty()) aiuto += "\n\n";
  aiuto += istruzione;
  if (!aiuto.empty()) SendScintilla(SCI_CALLTIPSHOW, posizione, aiuto.c_str());
}

void AwlEditor::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  const bool spazio = evento->key() == Qt::Key_Space && evento->modifiers() == Qt::ControlModifier;
  if (genere_ == Genere_Testo::Listato && invio) {
    int linea = 0;
    int colonna = 0;
    getCursorPosition(&linea, &colonna);
    if (Linea_Scelta) Linea_Scelta(linea);
  } else if (genere_ == Genere_Testo::Programma && spazio) {
    Offri_Completamenti();
    if (!isListActive()) Mostra_Suggerimento();
  } else if (evento->matches(QKeySequence::Undo)) {
    undo();
  } else if (evento->matches(QKeySequence::Redo)) {
    redo();
  } else {
    QsciScintilla::keyPressEvent(evento);
  }
}

// ---- context menu -------------------------------------------------------------------------------

std::unique_ptr<QMenu> AwlEditor::Menu_Modifica() {
  auto menu = std::make_unique<QMenu>();
  for (const Comando_Modifica& comando : comandi_modifica) {
    if (comando.Modifica && isReadOnly()) continue;
    if (comando.Stacco && !menu->isEmpty()) menu->addSeparator();
    QAction* azione = menu->addAction(QString::fromUtf8(comando.Testo), [this, &comando] {
      if (comando.Messaggio == SCI_UNDO)
        undo();
      else if (comando.Messaggio == SCI_REDO)
        redo();
      else
        SendScintilla(comando.Messaggio);
    });
    azione->setShortcut(comando.Tasti);
    azione->setShortcutVisibleInContextMenu(true);
    switch (comando.Messaggio) {
      case SCI_UNDO:
        azione->setEnabled(Annullabile());
        break;
      case SCI_REDO:
        azione->setEnabled(Ripetibile());
        break;
      case SCI_PASTE:
        azione->setEnabled(SendScintilla(SCI_CANPASTE) != 0);
        break;
      case SCI_SELECTALL:
        azione->setEnabled(length() != 0);
        break;
      default:
        azione->setEnabled(hasSelectedText());
        break;
    }
  }
  return menu;
}

void AwlEditor::contextMenuEvent(QContextMenuEvent* evento) {
  Menu_Modifica()->exec(evento->globalPos());
}

}  // namespace tavorno
