// SPDX-License-Identifier: GPL-3.0-or-later
// Keys, and the menu of the right button.
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <array>

#include "awl/ui/awl_editor.h"
#include "awl/ui/text_field.h"

namespace tavorno {

namespace {

struct Comando_Modifica {
  const char* Testo;
  unsigned Messaggio;
  QKeySequence::StandardKey Tasti;
  bool Modifica = false;  // not for a text that is read only
  bool Stacco = false;
};

constexpr std::array<Comando_Modifica, 7> comandi_modifica = {{
    {.Testo = "&Annulla",
     .Messaggio = QsciScintilla::SCI_UNDO,
     .Tasti = QKeySequence::Undo,
     .Modifica = true},
    {.Testo = "&Ripeti",
     .Messaggio = QsciScintilla::SCI_REDO,
     .Tasti = QKeySequence::Redo,
     .Modifica = true},
    {.Testo = "&Taglia",
     .Messaggio = QsciScintilla::SCI_CUT,
     .Tasti = QKeySequence::Cut,
     .Modifica = true,
     .Stacco = true},
    {.Testo = "&Copia", .Messaggio = QsciScintilla::SCI_COPY, .Tasti = QKeySequence::Copy},
    {.Testo = "&Incolla",
     .Messaggio = QsciScintilla::SCI_PASTE,
     .Tasti = QKeySequence::Paste,
     .Modifica = true},
    {.Testo = "&Elimina",
     .Messaggio = QsciScintilla::SCI_CLEAR,
     .Tasti = QKeySequence::Delete,
     .Modifica = true},
    {.Testo = "&Seleziona tutto",
     .Messaggio = QsciScintilla::SCI_SELECTALL,
     .Tasti = QKeySequence::SelectAll,
     .Stacco = true},
}};

}  // namespace

void AwlEditor::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  const bool spazio = evento->key() == Qt::Key_Space && evento->modifiers() == Qt::ControlModifier;
  if (genere_ == Genere_Testo::Listato && invio) {
    int linea = 0;
    int colonna = 0;
    getCursorPosition(&linea, &colonna);
    if (Linea_Scelta) Linea_Scelta(linea);
  } else if (genere_ == Genere_Testo::Programma && spazio) {
    Offri_Completamenti(true);
    if (!isListActive()) Mostra_Suggerimento();
  } else if (evento->key() == Qt::Key_Escape && !isListActive() &&
             SendScintilla(SCI_CALLTIPACTIVE) == 0 && Congeda) {
    QsciScintilla::keyPressEvent(evento);
    Congeda();
  } else if (evento->matches(QKeySequence::Undo)) {
    undo();
  } else if (evento->matches(QKeySequence::Redo)) {
    redo();
  } else {
    Raccogli([&] { Batti(*evento); });
  }
}

/// What the component itself does with a key. Where it has no command for a combination it would
/// type the letter of its key.
void AwlEditor::Batti(QKeyEvent& evento) {
  Senza_Lettera(evento, Senza_AltGr(evento),
                [this](QKeyEvent& tasto) { QsciScintilla::keyPressEvent(&tasto); });
}

void AwlEditor::Cedi_Tasti(const QKeySequence& tasti) {
  if (tasti.isEmpty()) return;
  const int codice = tasti[0].toCombined();
  for (QsciCommand* comando : standardCommands()->commands()) {
    if (comando->key() == codice) comando->setKey(0);
    if (comando->alternateKey() == codice) comando->setAlternateKey(0);
  }
}

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

bool AwlEditor::canInsertFromMimeData(const QMimeData* dati) const {
  return !dati->hasUrls() && QsciScintilla::canInsertFromMimeData(dati);
}

/// The component would take a file here, and then do nothing with it.
void AwlEditor::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls())
    evento->ignore();
  else
    QsciScintilla::dragEnterEvent(evento);
}

void AwlEditor::contextMenuEvent(QContextMenuEvent* evento) {
  Menu_Modifica()->exec(evento->globalPos());
}

}  // namespace tavorno
