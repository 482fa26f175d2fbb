// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/ui/ladder_entry.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "ladder/typed.h"
#include "plc/instructions.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr int larghezza_campo = 210;
constexpr int larghezza_detto = 300;

QStringList Mnemonici() {
  QStringList nomi;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    const bool da_scrivere = istruzione.Trattamento != Gruppo::Non_Supportata &&
                             istruzione.Testa.empty() &&
                             Simbolo_Di(istruzione.Nome).Cosa != Ruolo::Pila;
    if (da_scrivere) nomi << Q(istruzione.Nome) + ' ';
  }
  nomi.sort();
  return nomi;
}

}  // namespace

Campo_Scala::Campo_Scala(QWidget* sopra)
    : QFrame(sopra), testo_(new QLineEdit(this)), detto_(new QLabel(this)) {
  setObjectName(QStringLiteral("Campo_Scala"));
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  testo_->setObjectName(QStringLiteral("txtBattuta"));
  testo_->setAccessibleName(QStringLiteral("Istruzione da mettere nello schema"));
  testo_->setToolTip(QStringLiteral(
      "Istruzione o solo operandi: \"AN I0.1\", \"/I0.1\", \"TON T37, +50\". Invio conferma, Esc "
      "lascia."));
  testo_->setFont(Carattere_Fisso(10));
  testo_->setMaxLength(80);
  detto_->setObjectName(QStringLiteral("etDetto"));
  detto_->setWordWrap(true);
  detto_->setContentsMargins(4, 2, 4, 2);
  detto_->setAutoFillBackground(true);
  detto_->setBackgroundRole(QPalette::Window);  // not that of the sheet that it lies on
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(1, 1, 1, 1);
  colonna->setSpacing(0);
  colonna->addWidget(testo_);
  colonna->addWidget(detto_);
  testo_->installEventFilter(this);
  auto* completa = new QCompleter(Mnemonici(), testo_);
  completa->setCaseSensitivity(Qt::CaseInsensitive);
  completa->setCompletionMode(QCompleter::InlineCompletion);
  testo_->setCompleter(completa);
  connect(testo_, &QLineEdit::textChanged, this, [this] { Esamina(); });
  hide();
}

void Campo_Scala::Apri(const QPoint& posto, const QString& testo, const std::string& istr,
                       bool tutto) {
  posto_ = posto;
  istr_ = istr;
  testo_->setText(testo);
  if (tutto) testo_->selectAll();
  Esamina();
  show();
  raise();
  testo_->setFocus(Qt::OtherFocusReason);
}

void Campo_Scala::Chiudi() {
  if (!isVisible()) return;
  hide();
}

void Campo_Scala::Rifiuta(const QString& motivo) {
  Racconta(motivo, true);
}

void Campo_Scala::Racconta(const QString& testo, bool errore) {
  const colori::Coppia& coppia = errore ? colori::Scala_Errore : colori::Scala_Aiuto;
  Tingi(*detto_, &coppia);
  detto_->setText(testo);
  detto_->setVisible(!testo.isEmpty());
  testo_->setAccessibleDescription(testo);
  const int larga = testo.isEmpty() ? larghezza_campo : larghezza_detto;
  setFixedWidth(larga);
  layout()->activate();
  const int alta =
      testo_->sizeHint().height() + 4 + (testo.isEmpty() ? 0 : detto_->heightForWidth(larga - 4));
  setFixedHeight(alta);
  // Below its symbol as long as there is room.
  const QWidget* sotto = parentWidget();
  move(std::clamp(posto_.x(), 0, std::max(0, sotto->width() - larga)),
       std::clamp(posto_.y(), 0, std::max(0, sotto->height() - alta)));
}

void Campo_Scala::Esamina() {
  const Battuta battuta = Leggi_Battuta(A_Byte(testo_->text()), istr_);
  accettato_ = battuta.Passo && battuta.Messaggio.empty();
  const bool a_meta = !battuta.Passo || battuta.Passo->Operandi.empty();
  // Whoever is still at the mnemonic is not told off for operands that are to come.
  if (accettato_ || (a_meta && !battuta.Aiuto.empty()))
    Racconta(Q(battuta.Aiuto), false);
  else if (!battuta.Passo)
    Racconta(QString(), false);
  else
    Racconta(Q(battuta.Messaggio), true);
}

bool Campo_Scala::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress) {
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) {
      const QString scritto = testo_->text();
      if (accettato_) {
        if (Confermato) Confermato(scritto);
      } else if (scritto.trimmed().isEmpty()) {
        if (Lasciato) Lasciato();
      } else {
        const Battuta battuta = Leggi_Battuta(A_Byte(scritto), istr_);
        Racconta(Q(battuta.Messaggio), true);
      }
      return true;
    }
    if (tasto == Qt::Key_Escape) {
      if (Lasciato) Lasciato();
      return true;
    }
  }
  // Keys of the view and of the window are letters here.
  if (evento->type() == QEvent::ShortcutOverride) evento->accept();
  return QFrame::eventFilter(oggetto, evento);
}

}  // namespace tavorno
