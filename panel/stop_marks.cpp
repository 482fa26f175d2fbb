// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/stop_marks.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>

#include "recorder/ui/stops_dialog.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

Fermate_Pannello::Fermate_Pannello(FrmPLC& pannello, Plc& plc, Guida_Corsa& corsa)
    : QObject(&pannello),
      pannello_(pannello),
      c_(pannello.Controlli()),
      plc_(plc),
      corsa_(corsa),
      txtFermate_(Chiama(QStringLiteral("txtFermate"), new QLineEdit)) {
  Fermato = Avvisa = [](const QString&) {};
  Chiedi = [&pannello](const Fermate& fermate, int riga,
                       std::function<void(const Fermate&)> fatto) {
    Chiedi_Fermate(&pannello, fermate, riga, std::move(fatto));
  };
  txtFermate_->setPlaceholderText(Q("Fermati: Q0.1 sale; VW10 > 300"));
  txtFermate_->setToolTip(
      Q("Dove ci si ferma, in pausa: riga 12, Q0.1 sale, Q0.1 scende, T37 cambia, VW10 > 300, "
        "riga 12 se VW10 > 300; con x3 alla terza volta; più d'una con ;"));
  txtFermate_->setAccessibleName(Q("Condizioni di fermata"));
  connect(txtFermate_, &QLineEdit::editingFinished, this, [this] { Leggi_Campo(); });

  Lista_Programma& lista = *c_.listSrc;
  lista.Segno_Di = [this](int riga) { return Segno(riga); };
  lista.Margine_Premuto = [this](int riga) { Alterna(riga); };
  lista.Vuole_Menu = [this](int riga, QPoint dove) { Menu_Della_Riga(riga, dove); };
  const auto ridisegna = [this] { c_.listSrc->Segni_Cambiati(); };
  connect(c_.chkStop, &QCheckBox::toggled, this, ridisegna);
  connect(c_.txtStop, &QLineEdit::textChanged, this, ridisegna);
}

// ---- what is shown ------------------------------------------------------------------------------

bool Fermate_Pannello::Stop_Alla_Riga(int riga) const {
  return plc_.Scelte.chkStop && plc_.Scelte.txtStop == riga;
}

Segno_Fermata Fermate_Pannello::Segno(int riga) const {
  using Forma = Segno_Fermata::Forma;
  if (const Fermata* fermata = fermate_.Alla_Riga(riga))
    return {fermata->Cosa().empty() && fermata->Volte == 1 ? Forma::Piena : Forma::Con_Condizione,
            Q("Fermata: " + fermata->Testo())};
  if (Stop_Alla_Riga(riga))
    return {Forma::Vuota, Q("Stop alla Riga ") + QString::number(riga) + Q(": solo in Ciclo")};
  return {};
}

int Fermate_Pannello::Riga_Scelta() const {
  return c_.listSrc->currentRow();
}

void Fermate_Pannello::Aggiungi_Voci(QMenu& menu) {
  const auto voce = [&](const char* nome, const char* testo, const char* tasto,
                        const char* suggerimento, std::function<void()> fai) {
    QAction* azione = Chiama(QString::fromUtf8(nome), menu.addAction(Q(testo)));
    azione->setShortcut(QKeySequence(QString::fromUtf8(tasto)));
    azione->setToolTip(Q(suggerimento));
    connect(azione, &QAction::triggered, this, std::move(fai));
  };
  voce("mnuFermata", "&Fermata alla riga scelta", "Ctrl+F9",
       "Mette o toglie la fermata alla riga scelta della lista, come un clic sul margine",
       [this] { Alterna(Riga_Scelta()); });
  voce("mnuFermate", "Fermate e condi&zioni...", "Shift+F9",
       "Tutte le fermate, con le loro condizioni e il numero di volte",
       [this] { Modifica(Riga_Scelta()); });
}

/// Comes back at once, for a program may be running.
void Fermate_Pannello::Menu_Della_Riga(int riga, const QPoint& dove) {
  auto* menu = Chiama(QStringLiteral("mnuMargine"), new QMenu(c_.listSrc));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* alterna = menu->addAction(Q("&Fermata alla riga ") + QString::number(riga),
                                     [this, riga] { Alterna(riga); });
  alterna->setCheckable(true);
  alterna->setChecked(fermate_.Alla_Riga(riga) != nullptr);
  menu->addAction(Q("&Condizione e volte..."), [this, riga] { Modifica(riga); });
  menu->addAction(Q("&Togli tutte le fermate"), [this] { Togli_Tutte(); })
      ->setEnabled(!fermate_.Vuote());
  menu->popup(dove);
}

// ---- changes ------------------------------------------------------------------------------------

void Fermate_Pannello::Alterna(int riga) {
  if (riga < 0 || riga >= c_.listSrc->count()) return;
  if (Stop_Alla_Riga(riga) && !fermate_.Alla_Riga(riga)) return c_.chkStop->setChecked(false);
  fermate_.Alterna_Riga(riga);
  Cambiate();
}

void Fermate_Pannello::Modifica(int riga) {
  Chiedi(fermate_, riga, [this](const Fermate& nuove) {
    fermate_ = nuove;
    Cambiate();
  });
}

void Fermate_Pannello::Togli_Tutte() {
  fermate_.Togli_Tutte();
  Cambiate();
}

void Fermate_Pannello::Leggi_Campo() {
  std::string errore;
  if (Utf8(txtFermate_->text()) == fermate_.Come_Testo()) return;
  const bool letta = fermate_.Leggi(Utf8(txtFermate_->text()), errore);
  Cambiate();
  if (!letta) Avvisa(Q(errore));
}

void Fermate_Pannello::Cambiate() {
  fermate_.Ricomincia(plc_);
  txtFermate_->setText(Q(fermate_.Come_Testo()));
  txtFermate_->setCursorPosition(0);
  c_.listSrc->Segni_Cambiati();
  if (fermate_.Vuote()) {
    corsa_.Fermati_Qui = nullptr;
    return;
  }
  corsa_.Fermati_Qui = [this] {
    const Fermata* fermata = fermate_.Raggiunta(plc_);
    if (fermata == nullptr) return false;
    Fermato(Q("Fermata: " + fermata->Testo()));
    pannello_.Aggiorna();  // what the list still has to show of the run comes first
    c_.listSrc->Scegli(plc_.PC);
    return true;
  };
}

}  // namespace tavorno
