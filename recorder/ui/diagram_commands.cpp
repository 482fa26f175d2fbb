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

struct Tabella_Comandi_Tempi {
  static constexpr std::array<Comando_Tempi, 36> Righe = {{
      {"cmdDiretta", "Tempi_Diretta", "Space", "Segue il presente, o si ferma", &FrmTempi::Diretta,
       true},
      {"cmdTrigger", "Tempi_Trigger", "T",
       "Trigger: si ferma quando la condizione scritta, o il segnale scelto, sale",
       &FrmTempi::Trigger, true},
      {"cmdPiu", "Tempi_Piu", "+ =", "Ingrandisce il tempo", &FrmTempi::Ingrandisci, false, true},
      {"cmdMeno", "Tempi_Meno", "-", "Riduce il tempo", &FrmTempi::Riduci},
      {"cmdTutto", "Tempi_Tutto", "0", "Mostra tutta la registrazione", &FrmTempi::Tutto},
      {"cmdPrima", "Tempi_Prima", "Left", "Cursore al fronte precedente del segnale scelto",
       &FrmTempi::Fronte_Prima, false, true},
      {"cmdDopo", "Tempi_Dopo", "Right", "Cursore al prossimo fronte del segnale scelto",
       &FrmTempi::Prossimo_Fronte},
      {"cmdA", "Tempi_A", "A", "Cursore A in mezzo alla finestra", &FrmTempi::Cursore_A, false,
       true},
      {"cmdB", "Tempi_B", "B", "Cursore B in mezzo alla finestra", &FrmTempi::Cursore_B},
      {"cmdTorna", "Tempi_Torna", "V", "Riporta la CPU e l'impianto all'istante del cursore",
       &FrmTempi::Torna},
      {"cmdChi", "Tempi_Chi", "W",
       "Chi è stato? Torna all'ultimo cambiamento del segnale scelto, e segna la riga",
       &FrmTempi::Chi},
      {"cmdScansioni", "Tempi_Scansioni", "G", "Linee dove inizia ogni scansione",
       &FrmTempi::Scansioni_Si_No, true, true},
      {"cmdForma", "Tempi_Forma", "C", "Il valore scelto come curva, o come numeri",
       &FrmTempi::Forma_Altra},
      {"cmdSegnali", "Tempi_Segnali", "Ins", "Sceglie i segnali da mostrare", &FrmTempi::Segnali,
       false, true},
      {"cmdTogli", "", "Del", "Toglie il segnale o il gruppo scelto", &FrmTempi::Togli},
      {"cmdPiega", "", "Return Enter", "Chiude o apre il gruppo", &FrmTempi::Piega},
      {"cmdSu", "", "Up", "Sceglie il segnale sopra", &FrmTempi::Riga_Su},
      {"cmdGiu", "", "Down", "Sceglie il segnale sotto", &FrmTempi::Riga_Giu},
      {"cmdSposta_Su", "", "Ctrl+Up", "Sposta in alto il segnale o il gruppo",
       &FrmTempi::Sposta_Su},
      {"cmdSposta_Giu", "", "Ctrl+Down", "Sposta in basso il segnale o il gruppo",
       &FrmTempi::Sposta_Giu},
      {"cmdPagina_Su", "", "PgUp", "Scorre i segnali in alto", &FrmTempi::Pagina_Su},
      {"cmdPagina_Giu", "", "PgDown", "Scorre i segnali in basso", &FrmTempi::Pagina_Giu},
      {"cmdSinistra", "", "Shift+Left", "Scorre il tempo indietro", &FrmTempi::Sinistra},
      {"cmdDestra", "", "Shift+Right", "Scorre il tempo avanti", &FrmTempi::Destra},
      {"cmdMs_Prima", "", "Ctrl+Left", "Cursore indietro di 1 ms", &FrmTempi::Passo_Indietro},
      {"cmdMs_Dopo", "", "Ctrl+Right", "Cursore avanti di 1 ms", &FrmTempi::Passo_Avanti},
      {"cmdInizio", "", "Home", "All'inizio della registrazione", &FrmTempi::Inizio},
      {"cmdFine", "", "End", "Al presente", &FrmTempi::Fine},
      {"cmdSenza", "", "Backspace", "Toglie cursori e segni", &FrmTempi::Senza_Cursori},
      {"cmdVai_Cerca", "", "Ctrl+F", "Va alla condizione da cercare", &FrmTempi::Vai_A_Ricerca},
      {"cmdCerca_Dopo", "", "F3", "Cerca dove la condizione diventa vera", &FrmTempi::Cerca_Dopo},
      {"cmdCerca_Prima", "", "Shift+F3", "La cerca all'indietro", &FrmTempi::Cerca_Prima},
      {"cmdSvg", "", "Ctrl+S", "Salva il diagramma come disegno SVG", &FrmTempi::Salva_Svg},
      {"cmdPng", "", "Ctrl+P", "Salva il diagramma come immagine PNG", &FrmTempi::Salva_Png},
      {"cmdVcd", "", "Ctrl+D", "Salva la registrazione come file VCD", &FrmTempi::Salva_Vcd},
      {"cmdAiuto", "", "F1", "Apre la guida", &FrmTempi::Aiuto},
  }};
};

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
