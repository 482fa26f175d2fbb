// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "awl/diagnostic.h"
#include "awl/find.h"
#include "awl/symbols.h"
#include "awl/ui/awl_lexer.h"
#include "awl/ui/scintilla.h"
#include "widgets/own_text.h"

class QMenu;

namespace tavorno {

/// A text with its undo history and its marks, which an editor shows one at a time. Copies are the
/// same text.
class Documento_Testo {
  friend class AwlEditor;
  QsciDocument documento_;
  std::shared_ptr<bool> mostrato_ = std::make_shared<bool>(false);
};

/// A text of statement list: coloured, with the numbers of its rows in the margin, help while
/// typing and marks of errors. It shows and edits; what the text means is others' business.
class AwlEditor : public QsciScintilla, public Testo_Proprio {
 public:
  /// A listing is for reading only.
  AwlEditor(Genere_Testo genere, const char* nome, QWidget* sopra);

  /// The user changed the text, undo included: once for each key or command, however many lines it
  /// changes.
  std::function<void()> Cambiato;
  std::function<void()> Scritto;          ///< the same without undo and redo, and before it
  std::function<void(int)> Linea_Scelta;  ///< a line (from 0) was double clicked or got Enter
  std::function<void()> Congeda;          ///< Esc, with nothing of the text's own to close

  /// What undo and redo go on to when this text has nothing left to take back or to do again.
  struct Oltre {
    std::function<bool()> Possibile;
    std::function<void()> Fai;
  };
  Oltre Oltre_Annulla, Oltre_Ripeti;
  void undo() override;
  void redo() override;
  bool Annullabile() const { return isUndoAvailable() || Va_Oltre(Oltre_Annulla); }
  bool Ripetibile() const { return isRedoAvailable() || Va_Oltre(Oltre_Ripeti); }

  /// The text in the code page of the files, lines joined by CR LF.
  std::string Byte() const;
  /// Makes the text this one, in one step that can be undone. Only what differs is replaced, line
  /// by line, so that the caret keeps its place and marks their lines, in undo and redo as well.
  /// Does not call `Cambiato`.
  void Scrivi(const std::string& byte);
  /// The same for a listing, with what there is to say of its lines besides.
  void Scrivi_Listato(const std::vector<Riga_Listato>& righe, const std::vector<Diagnosi>& rilievi);
  /// Grey and for reading only, or as usual.
  void Spegni(bool spento);
  /// Many changes that are one to the user: one step of undo, and told once behind them all.
  void In_Un_Passo(const std::function<void()>& modifiche);
  void Dimentica_Annulla() { SendScintilla(SCI_EMPTYUNDOBUFFER); }

  /// Shows another text, from its beginning. No other editor may show it at any time.
  void Mostra_Documento(const Documento_Testo& altro);
  const Documento_Testo& Documento() const { return documento_; }

  /// Numbers in the margin by line, `Numerazione::Nessuno` for none; lines beyond have none.
  void Numera(const std::vector<int>& numeri);
  QString Numero_Mostrato(int linea) const;

  /// Marks: where a row is now, though lines have come and gone above it.
  int Segui(int linea);                ///< returns the handle of a mark that nobody sees
  int Linea_Seguita(int segno) const;  ///< -1 when the line is gone
  void Segna(int linea, Gravita grado, const QString& messaggio);
  void Togli_Segni();
  /// Underlines pieces of lines as worth a look, instead of those before; a resting pointer and the
  /// key for help tell why. Not part of the text's marks.
  void Suggerisci(std::vector<Diagnosi> suggerimenti);
  QString Suggerito(int linea) const;  ///< what is suggested for a line; empty for nothing
  /// Frames the ends of lines that the file has no room for, instead of those before.
  void Segna_Eccedenze(const std::vector<Trovato>& pezzi);
  bool Ha_Errore(int linea) const;
  bool Ha_Avvertimento(int linea) const;

  // awl_editor_places.cpp: columns count characters, from 0

  /// Where the caret is.
  struct Punto {
    int Linea = 0;
    int Colonna = 0;
  };
  Punto Cursore() const;
  /// What of the text is selected and in sight: bytes, a line, pixels.
  struct Veduta {
    long Ancora = 0;
    long Cursore = 0;
    long Prima_Linea = 0;
    long Scostamento = 0;
  };
  Veduta Come_Si_Vede() const;
  /// Places that the text does not have become its nearest ones.
  void Rivedi(const Veduta& veduta);
  /// The lines that the selection touches, or the caret's: the first and the last.
  std::pair<int, int> Linee_Scelte() const;
  /// Selects a piece of a line and brings it into sight.
  void Scegli(const Trovato& pezzo);
  bool E_Scelto(const Trovato& pezzo) const;
  /// Frames these pieces, instead of those before.
  void Evidenzia(const std::vector<Trovato>& pezzi);
  /// Changes by the user, each one step that can be undone.
  void Cambia(const Cambio_Linee& cambio);
  void Ritocca(std::span<const Ritocco> ritocchi);

  /// The caret at the beginning of a line, in sight, and the keyboard to this text.
  void Vai_A(int linea);
  void Vai_In_Fondo();

  /// What the plant calls its operands: in lists, in tips and under a resting pointer.
  void Usa_Simboli(const Simboli& simboli);
  /// The same in grey behind the ends of the lines; not part of the text. On at first.
  void Annota_Simboli(bool annota);
  /// A list, when the caret stands at the end of a word that can become a mnemonic or an operand of
  /// the plant; `anche_vuota`: also where such an operand could begin.
  void Offri_Completamenti(bool anche_vuota = false);
  /// A tip, when the caret's line begins with an instruction.
  void Mostra_Suggerimento();

  /// Its styles grow by whole points, and the margins with them.
  void Ingrandisci_Testo(double fattore) override;

  /// Closes list and tip.
  void Chiudi_Aiuti();

  /// Leaves a key to a command of the window.
  void Cedi_Tasti(const QKeySequence& tasti);

  /// What the right button offers.
  std::unique_ptr<QMenu> Menu_Modifica();

 protected:
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  // Files are the window's.
  bool canInsertFromMimeData(const QMimeData* dati) const override;
  void dragEnterEvent(QDragEnterEvent* evento) override;

 private:
  void Prepara_Documento();
  std::pair<long, long> Posizioni(const Trovato& pezzo) const;
  void Sostituisci_Testo(const std::string& nuovo);
  void Indica(int indicatore, const std::vector<Trovato>& pezzi);
  void Batti(QKeyEvent& evento);
  void Raccogli(const std::function<void()>& modifiche);
  void Sostituisci(std::size_t inizio, std::string_view vecchio, std::string_view nuovo);
  bool Di_Sola_Lettura() const { return genere_ == Genere_Testo::Listato || spento_; }
  void Prepara_Vista();
  void Tingi_Vista();
  void Incornicia(int indicatore, const QColor& colore);
  void Prepara_Aiuti();
  std::string Linea_Byte(int linea) const;  // UTF-8, without its end
  void Dopo_Carattere(int carattere);
  void Mostra_Suggerimento_A(int posizione, int x, int y);
  void Prendi_Proposta(std::string_view scelta, int posizione);
  void Mostra_Aiuto(std::uintptr_t posizione, int linea, std::string aiuto);
  static bool Va_Oltre(const Oltre& oltre) { return oltre.Possibile && oltre.Possibile(); }

  Genere_Testo genere_;
  AwlLexer* lexer_;
  Documento_Testo documento_;  // that is shown
  std::vector<Diagnosi> suggerimenti_;
  Simboli simboli_;
  std::vector<int> margini_;  // their widths before the text was enlarged for the first time
  bool annota_ = true;
  bool spento_ = false;
  bool scrive_ = false;  // a command, not the user, is changing the text
  int raccoglie_ = 0;    // changes are told later, together
  bool raccolto_ = false;
};

}  // namespace tavorno
