// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the diagram: their table, and what each does.
#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>
#include <array>
#include <string_view>

#include "plants/exercises.h"
#include "recorder/ui/diagram_window.h"
#include "trace/time_scale.h"
#include "widgets/text.h"

namespace tavorno {

namespace {
using Quale = Diagramma_Tempi::Cursore;
constexpr double zoom_di_un_tasto = 1.5;
constexpr double parte_di_pagina = 10;  // of the width, that an arrow moves
}  // namespace

// clang-format off
struct Tabella_Comandi_Tempi {
  static constexpr std::array<Comando_Tempi, 36> Righe = {{
      {.Nome = "cmdDiretta", .Icona = "Tempi_Diretta", .Tasti = "Space",
       .Cosa = "Segue il presente, o si ferma", .Fai = &FrmTempi::Diretta, .Spunta = true},
      {.Nome = "cmdTrigger", .Icona = "Tempi_Trigger", .Tasti = "T",
       .Cosa = "Trigger: si ferma quando la condizione scritta, o il segnale scelto, sale",
       .Fai = &FrmTempi::Trigger, .Spunta = true},
      {.Nome = "cmdPiu", .Icona = "Tempi_Piu", .Tasti = "+ =", .Cosa = "Ingrandisce il tempo",
       .Fai = &FrmTempi::Ingrandisci, .Stacco = true},
      {.Nome = "cmdMeno", .Icona = "Tempi_Meno", .Tasti = "-", .Cosa = "Riduce il tempo",
       .Fai = &FrmTempi::Riduci},
      {.Nome = "cmdTutto", .Icona = "Tempi_Tutto", .Tasti = "0", .Cosa = "Mostra tutta la registrazione",
       .Fai = &FrmTempi::Tutto},
      {.Nome = "cmdPrima", .Icona = "Tempi_Prima", .Tasti = "Left",
       .Cosa = "Cursore al fronte precedente del segnale scelto", .Fai = &FrmTempi::Fronte_Prima,
       .Stacco = true},
      {.Nome = "cmdDopo", .Icona = "Tempi_Dopo", .Tasti = "Right",
       .Cosa = "Cursore al prossimo fronte del segnale scelto", .Fai = &FrmTempi::Prossimo_Fronte},
      {.Nome = "cmdA", .Icona = "Tempi_A", .Tasti = "A", .Cosa = "Cursore A in mezzo alla finestra",
       .Fai = &FrmTempi::Cursore_A, .Stacco = true},
      {.Nome = "cmdB", .Icona = "Tempi_B", .Tasti = "B", .Cosa = "Cursore B in mezzo alla finestra",
       .Fai = &FrmTempi::Cursore_B},
      {.Nome = "cmdTorna", .Icona = "Tempi_Torna", .Tasti = "V",
       .Cosa = "Riporta la CPU e l'impianto all'istante del cursore", .Fai = &FrmTempi::Torna},
      {.Nome = "cmdChi", .Icona = "Tempi_Chi", .Tasti = "W",
       .Cosa = "Chi è stato? Torna all'ultimo cambiamento del segnale scelto, e segna la riga",
       .Fai = &FrmTempi::Chi},
      {.Nome = "cmdScansioni", .Icona = "Tempi_Scansioni", .Tasti = "G",
       .Cosa = "Linee dove inizia ogni scansione", .Fai = &FrmTempi::Scansioni_Si_No, .Spunta = true,
       .Stacco = true},
      {.Nome = "cmdForma", .Icona = "Tempi_Forma", .Tasti = "C",
       .Cosa = "Il valore scelto come curva, o come numeri", .Fai = &FrmTempi::Forma_Altra},
      {.Nome = "cmdSegnali", .Icona = "Tempi_Segnali", .Tasti = "Ins",
       .Cosa = "Sceglie i segnali da mostrare", .Fai = &FrmTempi::Segnali, .Stacco = true},
      {.Nome = "cmdTogli", .Tasti = "Del", .Cosa = "Toglie il segnale o il gruppo scelto",
       .Fai = &FrmTempi::Togli},
      {.Nome = "cmdPiega", .Tasti = "Return Enter", .Cosa = "Chiude o apre il gruppo",
       .Fai = &FrmTempi::Piega},
      {.Nome = "cmdSu", .Tasti = "Up", .Cosa = "Sceglie il segnale sopra", .Fai = &FrmTempi::Riga_Su},
      {.Nome = "cmdGiu", .Tasti = "Down", .Cosa = "Sceglie il segnale sotto", .Fai = &FrmTempi::Riga_Giu},
      {.Nome = "cmdSposta_Su", .Tasti = "Ctrl+Up", .Cosa = "Sposta in alto il segnale o il gruppo",
       .Fai = &FrmTempi::Sposta_Su},
      {.Nome = "cmdSposta_Giu", .Tasti = "Ctrl+Down", .Cosa = "Sposta in basso il segnale o il gruppo",
       .Fai = &FrmTempi::Sposta_Giu},
      {.Nome = "cmdPagina_Su", .Tasti = "PgUp", .Cosa = "Scorre i segnali in alto",
       .Fai = &FrmTempi::Pagina_Su},
      {.Nome = "cmdPagina_Giu", .Tasti = "PgDown", .Cosa = "Scorre i segnali in basso",
       .Fai = &FrmTempi::Pagina_Giu},
      {.Nome = "cmdSinistra", .Tasti = "Shift+Left", .Cosa = "Scorre il tempo indietro",
       .Fai = &FrmTempi::Sinistra},
      {.Nome = "cmdDestra", .Tasti = "Shift+Right", .Cosa = "Scorre il tempo avanti",
       .Fai = &FrmTempi::Destra},
      {.Nome = "cmdMs_Prima", .Tasti = "Ctrl+Left", .Cosa = "Cursore indietro di 1 ms",
       .Fai = &FrmTempi::Passo_Indietro},
      {.Nome = "cmdMs_Dopo", .Tasti = "Ctrl+Right", .Cosa = "Cursore avanti di 1 ms",
       .Fai = &FrmTempi::Passo_Avanti},
      {.Nome = "cmdInizio", .Tasti = "Home", .Cosa = "All'inizio della registrazione",
       .Fai = &FrmTempi::Inizio},
      {.Nome = "cmdFine", .Tasti = "End", .Cosa = "Al presente", .Fai = &FrmTempi::Fine},
      {.Nome = "cmdSenza", .Tasti = "Backspace", .Cosa = "Toglie cursori e segni",
       .Fai = &FrmTempi::Senza_Cursori},
      {.Nome = "cmdVai_Cerca", .Tasti = "Ctrl+F", .Cosa = "Va alla condizione da cercare",
       .Fai = &FrmTempi::Vai_A_Ricerca},
      {.Nome = "cmdCerca_Dopo", .Tasti = "F3", .Cosa = "Cerca dove la condizione diventa vera",
       .Fai = &FrmTempi::Cerca_Dopo},
      {.Nome = "cmdCerca_Prima", .Tasti = "Shift+F3", .Cosa = "La cerca all'indietro",
       .Fai = &FrmTempi::Cerca_Prima},
      {.Nome = "cmdSvg", .Tasti = "Ctrl+S", .Cosa = "Salva il diagramma come disegno SVG",
       .Fai = &FrmTempi::Salva_Svg},
      {.Nome = "cmdPng", .Tasti = "Ctrl+P", .Cosa = "Salva il diagramma come immagine PNG",
       .Fai = &FrmTempi::Salva_Png},
      {.Nome = "cmdVcd", .Tasti = "Ctrl+D", .Cosa = "Salva la registrazione come file VCD",
       .Fai = &FrmTempi::Salva_Vcd},
      {.Nome = "cmdAiuto", .Tasti = "F1", .Cosa = "Apre la guida", .Fai = &FrmTempi::Aiuto},
  }};
};
// clang-format on

std::span<const Comando_Tempi> FrmTempi::Comandi() {
  return Tabella_Comandi_Tempi::Righe;
}

/// The keys of the table, but in the field, where they are letters; there F3 and the like still
/// count, as does what the field makes of Enter.
void FrmTempi::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape) {
    if (txtCerca_->hasFocus())
      tela_->setFocus();
    else
      close();
    return;
  }
  // What the field has left over, as the Enter that it obeyed, is no command.
  const bool del_campo = txtCerca_->hasFocus() &&
                         !evento->modifiers().testFlag(Qt::ControlModifier) &&
                         evento->key() < Qt::Key_F1;
  if (del_campo) return QWidget::keyPressEvent(evento);
  QKeyCombination senza_tastierino(evento->modifiers() & ~Qt::KeypadModifier,
                                   static_cast<Qt::Key>(evento->key()));
  // "+" and "=" stand on keys that some keyboards reach with Shift alone.
  if (evento->key() == Qt::Key_Plus || evento->key() == Qt::Key_Equal)
    senza_tastierino = QKeyCombination(Qt::NoModifier, static_cast<Qt::Key>(evento->key()));
  for (const Comando_Tempi& comando : Comandi()) {
    for (const QString& tasti : Q(comando.Tasti).split(' ')) {
      if (QKeySequence(tasti) == QKeySequence(senza_tastierino)) {
        evento->accept();
        azioni_[static_cast<std::size_t>(&comando - Comandi().data())]->trigger();
        return;
      }
    }
  }
  QWidget::keyPressEvent(evento);
}

// ---- time ---------------------------------------------------------------------------------------

void FrmTempi::Diretta() {
  diagramma_.In_Diretta = !diagramma_.In_Diretta;
  diagramma_.Disarma();
  diagramma_.Segui();
}

void FrmTempi::Ingrandisci() {
  diagramma_.Zoom(1 / zoom_di_un_tasto);
}

void FrmTempi::Riduci() {
  diagramma_.Zoom(zoom_di_un_tasto);
}

void FrmTempi::Tutto() {
  diagramma_.Mostra_Tutto();
}

void FrmTempi::Inizio() {
  diagramma_.Sposta(-1e12);
  diagramma_.Vista.Da = static_cast<double>(registrazione_.Inizio()) -
                        diagramma_.Vista.Larga * 0.02 * diagramma_.Vista.Per_Punto;
}

void FrmTempi::Fine() {
  diagramma_.In_Diretta = true;
  diagramma_.Segui();
}

void FrmTempi::Sinistra() {
  diagramma_.Sposta(-diagramma_.Vista.Larga / parte_di_pagina);
}

void FrmTempi::Destra() {
  diagramma_.Sposta(diagramma_.Vista.Larga / parte_di_pagina);
}

// ---- cursors ------------------------------------------------------------------------------------

void FrmTempi::Fronte_Prima() {
  if (!diagramma_.Al_Fronte(-1)) Di(QStringLiteral("Nessun fronte prima di qui."));
}

void FrmTempi::Prossimo_Fronte() {
  if (!diagramma_.Al_Fronte(1)) Di(QStringLiteral("Nessun fronte dopo di qui."));
}

void FrmTempi::Cursore_A() {
  diagramma_.Metti_In_Mezzo(Quale::A);
}

void FrmTempi::Cursore_B() {
  diagramma_.Metti_In_Mezzo(Quale::B);
}

void FrmTempi::Torna() {
  const auto& cursore = diagramma_.Posto(diagramma_.Attivo);
  if (!cursore) return Di(QStringLiteral("Prima metti il cursore, con un clic nel diagramma."));
  if (Riporta) Riporta(std::clamp(*cursore, registrazione_.Inizio(), registrazione_.Fine()));
}

void FrmTempi::Chi() {
  const auto riga = diagramma_.Riga_Scelta();
  const Segnale* segnale = riga ? diagramma_.Segnale_Di(*riga) : nullptr;
  if (segnale == nullptr) return Di(QStringLiteral("Prima scegli un segnale, con un clic."));
  const std::int64_t ms = diagramma_.Posto(diagramma_.Attivo)
                              .value_or(diagramma_.Passato.value_or(plc_.Tempo.Adesso()));
  if (Chi_E_Stato)
    Chi_E_Stato(std::clamp(ms, registrazione_.Inizio(), registrazione_.Fine()), segnale->Indirizzo);
}

/// What one asks of the row and the moment under the mouse.
void FrmTempi::Mostra_Menu(QPoint dove) {
  auto* menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("menuTempi"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setToolTipsVisible(true);
  const struct {
    const char *Nome, *Testo;
  } voci[] = {
      {"cmdChi", "&Chi è stato?"},
      {"cmdTorna", "&Torna a questo istante"},
      {"cmdPrima", "Fronte &precedente"},
      {"cmdDopo", "Prossimo &fronte"},
      {"cmdForma", "Come cur&va o come numeri"},
      {"cmdTogli", "T&oglie il segnale"},
      {"cmdSegnali", "&Segnali..."},
  };
  for (const auto& riga : voci) {
    const auto& comandi = Comandi();
    const auto comando = std::ranges::find_if(
        comandi, [&](const Comando_Tempi& uno) { return std::string_view(uno.Nome) == riga.Nome; });
    QAction* sua = azioni_[static_cast<std::size_t>(comando - comandi.begin())];
    QAction* voce = menu->addAction(sua->icon(), Q(riga.Testo), sua, &QAction::trigger);
    voce->setObjectName(Q(riga.Nome));
    voce->setShortcut(QKeySequence(Q(comando->Tasti).split(' ').first()));
    voce->setToolTip(sua->toolTip());
  }
  menu->popup(dove);
}

void FrmTempi::Senza_Cursori() {
  diagramma_.Togli_Cursori();
}

void FrmTempi::Passo_Indietro() {
  diagramma_.Passo_Cursore(-1);
}

void FrmTempi::Passo_Avanti() {
  diagramma_.Passo_Cursore(1);
}

// ---- search and trigger -------------------------------------------------------------------------

void FrmTempi::Vai_A_Ricerca() {
  txtCerca_->setFocus();
  txtCerca_->selectAll();
}

std::optional<Condizione> FrmTempi::Leggi() {
  std::string errore;
  auto condizione = Leggi_Condizione(Utf8(txtCerca_->text()), Righe_Di(impianto_), errore);
  if (!condizione) Di(Q(errore));
  return condizione;
}

void FrmTempi::Cerca(int verso) {
  const auto condizione = Leggi();
  if (!condizione) return;
  const std::size_t prima = diagramma_.Mostrati().size();
  if (diagramma_.Cerca(*condizione, verso))
    Di("Trovato a " + Q(Testo_Istante(*diagramma_.Trovato - registrazione_.Inizio())) + ".");
  else
    Di(verso > 0 ? QStringLiteral("Dopo il cursore non diventa mai vera.")
                 : QStringLiteral("Prima del cursore non diventa mai vera."));
  if (diagramma_.Mostrati().size() != prima) Riempi();
}

void FrmTempi::Cerca_Dopo() {
  Cerca(1);
}

void FrmTempi::Cerca_Prima() {
  Cerca(-1);
}

/// On the written condition, or on the rising edge of the selected signal.
void FrmTempi::Trigger() {
  if (diagramma_.Armato()) return diagramma_.Disarma();
  const auto riga = diagramma_.Riga_Scelta();
  const Segnale* segnale = riga ? diagramma_.Segnale_Di(*riga) : nullptr;
  if (txtCerca_->text().trimmed().isEmpty()) {
    if (segnale == nullptr)
      return Di(QStringLiteral("Scegli un segnale, o scrivi una condizione, per il trigger."));
    txtCerca_->setText(Q(segnale->Nome + " sale"));
  }
  if (auto condizione = Leggi()) {
    diagramma_.Arma(std::move(*condizione));
    Di("Trigger armato: " + txtCerca_->text());
  }
}

// ---- rows ---------------------------------------------------------------------------------------

void FrmTempi::Scansioni_Si_No() {
  diagramma_.Griglia_Scansioni = !diagramma_.Griglia_Scansioni;
  if (diagramma_.Griglia_Scansioni && diagramma_.Vista.Per_Punto > 0.25)
    Di(QStringLiteral("Le scansioni si vedono ingrandendo il tempo."));
}

void FrmTempi::Forma_Altra() {
  diagramma_.Cambia_Forma();
}

void FrmTempi::Piega() {
  diagramma_.Piega();
  tela_->Mostra_Scelta();
}

void FrmTempi::Riga_Su() {
  diagramma_.Scegli_Accanto(-1);
  tela_->Mostra_Scelta();
}

void FrmTempi::Riga_Giu() {
  diagramma_.Scegli_Accanto(1);
  tela_->Mostra_Scelta();
}

void FrmTempi::Sposta_Su() {
  diagramma_.Sposta_Scelta(-1);
  tela_->Mostra_Scelta();
}

void FrmTempi::Sposta_Giu() {
  diagramma_.Sposta_Scelta(1);
  tela_->Mostra_Scelta();
}

void FrmTempi::Pagina_Su() {
  tela_->Scorri(tela_->Scorrimento() - tela_->height() * 0.7);
}

void FrmTempi::Pagina_Giu() {
  tela_->Scorri(tela_->Scorrimento() + tela_->height() * 0.7);
}

void FrmTempi::Togli() {
  diagramma_.Togli_Scelta();
}

void FrmTempi::Segnali() {
  std::vector<Segnale> scelti = diagramma_.Mostrati();
  if (!Scegli_Segnali(scelti)) return;
  diagramma_.Mostra_Solo(scelti);
  sonda_.Guarda();
  Riempi();
}

// ---- the rest -----------------------------------------------------------------------------------

void FrmTempi::Salva_Svg() {
  Salva_Come(QStringLiteral("svg"));
}

void FrmTempi::Salva_Png() {
  Salva_Come(QStringLiteral("png"));
}

void FrmTempi::Salva_Vcd() {
  Salva_Come(QStringLiteral("vcd"));
}

void FrmTempi::Aiuto() {
  if (Mostra_Aiuto) Mostra_Aiuto();
}

}  // namespace tavorno
