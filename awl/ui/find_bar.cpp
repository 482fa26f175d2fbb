// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/find_bar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <type_traits>
#include <utility>

#include "awl/ui/awl_editor.h"
#include "awl/ui/text_field.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

Campo_Testo* Campo(const char* nome, const char* letto, const char* aiuto) {
  auto* campo = Chiama(QString::fromUtf8(nome), new Campo_Testo);
  campo->setAccessibleName(QString::fromUtf8(letto));
  campo->setToolTip(QString::fromUtf8(aiuto));
  campo->setClearButtonEnabled(true);
  return campo;
}

template <class Tasto, class Comando>
void Aggiungi(QHBoxLayout& riga, const char* nome, const char* testo, const char* aiuto,
              Comando comando) {
  auto* tasto = Chiama(QString::fromUtf8(nome), new Tasto);
  tasto->setText(QString::fromUtf8(testo));
  tasto->setToolTip(QString::fromUtf8(aiuto));
  tasto->setAccessibleName(QString::fromUtf8(aiuto));
  if constexpr (std::is_same_v<Tasto, QPushButton>) tasto->setAutoDefault(true);  // Enter too
  QObject::connect(tasto, &QAbstractButton::clicked, tasto, comando);
  riga.addWidget(tasto);
}

}  // namespace

Barra_Ricerca::Barra_Ricerca(std::function<AwlEditor*()> davanti, QWidget* sopra)
    : QWidget(sopra), davanti_(std::move(davanti)) {
  setObjectName(QStringLiteral("barRicerca"));
  Crea_Righe();
  hide();
  connect(txtCerca_, &QLineEdit::textChanged, this, [this] { Aggiorna(); });
  connect(txtCerca_, &QLineEdit::returnPressed, this, [this] { Vai(1); });
  connect(txtSostituisci_, &QLineEdit::returnPressed, this, [this] { Sostituisci(); });
  for (QCheckBox* spunta : {chkParole_, chkOperandi_})
    connect(spunta, &QCheckBox::toggled, this, [this] { Aggiorna(); });
  auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  esc->setContext(Qt::WidgetWithChildrenShortcut);
  connect(esc, &QShortcut::activated, this, [this] { Chiudi(); });
  auto* indietro = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Return), txtCerca_);
  indietro->setContext(Qt::WidgetShortcut);
  connect(indietro, &QShortcut::activated, this, [this] { Vai(-1); });
}

void Barra_Ricerca::Crea_Righe() {
  auto* righe = new QVBoxLayout(this);
  righe->setContentsMargins(6, 2, 6, 2);
  righe->setSpacing(2);
  auto* prima = new QHBoxLayout;
  txtCerca_ = Campo("txtCerca", "Testo da cercare",
                    "Invio va al prossimo posto, Maiusc+Invio a quello prima, Esc chiude");
  prima->addWidget(new QLabel(QStringLiteral("Trova:")));
  prima->addWidget(txtCerca_, 1);
  Aggiungi<QToolButton>(*prima, "cmdCercaPrec", "◀", "Posto precedente (Maiusc+F3)",
                        [this] { Vai(-1); });
  Aggiungi<QToolButton>(*prima, "cmdCercaSucc", "▶", "Posto successivo (F3)", [this] { Vai(1); });
  etTrovati_ = Chiama(QStringLiteral("etTrovati"), new QLabel);
  etTrovati_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("nessun posto ")));
  prima->addWidget(etTrovati_);
  chkParole_ = Chiama(QStringLiteral("chkParole"), new QCheckBox(QStringLiteral("Parole intere")));
  chkParole_->setToolTip(QStringLiteral("T3 non trova T37"));
  chkOperandi_ =
      Chiama(QStringLiteral("chkOperandi"), new QCheckBox(QStringLiteral("Solo operandi")));
  chkOperandi_->setToolTip(QStringLiteral("Non cerca nei commenti e nelle istruzioni"));
  prima->addWidget(chkParole_);
  prima->addWidget(chkOperandi_);
  Aggiungi<QToolButton>(*prima, "cmdCercaChiudi", "✕", "Chiude la ricerca (Esc)",
                        [this] { Chiudi(); });
  righe->addLayout(prima);

  seconda_ = new QWidget;
  auto* riga = new QHBoxLayout(seconda_);
  riga->setContentsMargins(0, 0, 0, 0);
  txtSostituisci_ = Campo("txtSostituisci", "Testo da mettere al suo posto",
                          "Invio sostituisce il posto scelto e va al prossimo");
  riga->addWidget(new QLabel(QStringLiteral("Sostituisci con:")));
  riga->addWidget(txtSostituisci_, 1);
  Aggiungi<QPushButton>(*riga, "cmdSostituisci", "Sostituisci",
                        "Sostituisce il posto scelto e va al prossimo", [this] { Sostituisci(); });
  Aggiungi<QPushButton>(*riga, "cmdSostTutti", "Sostituisci tutti",
                        "Sostituisce tutti i posti segnati, in un passo che si può annullare",
                        [this] { Sostituisci_Tutti(); });
  righe->addWidget(seconda_);
}

Ricerca Barra_Ricerca::Cerca() const {
  return {A_Byte(txtCerca_->text()), chkParole_->isChecked(), chkOperandi_->isChecked()};
}

void Barra_Ricerca::Apri(bool sostituisci) {
  AwlEditor* testo = davanti_();
  const QString scelto = testo->selectedText();
  if (!scelto.isEmpty() && !scelto.contains('\n') && !scelto.contains('\r'))
    txtCerca_->setText(scelto);
  sostituisce_ = sostituisci;
  seconda_->setVisible(sostituisci && !testo->isReadOnly());
  show();
  QLineEdit* campo = sostituisci && !txtCerca_->text().isEmpty() ? txtSostituisci_ : txtCerca_;
  if (!campo->isVisible()) campo = txtCerca_;
  campo->setFocus(Qt::ShortcutFocusReason);
  campo->selectAll();
  Aggiorna();
}

void Barra_Ricerca::Chiudi() {
  if (isHidden()) return;
  hide();
  Aggiorna();
  davanti_()->setFocus(Qt::OtherFocusReason);
}

void Barra_Ricerca::Aggiorna() {
  AwlEditor* testo = davanti_();
  if (segnato_ != nullptr && (segnato_ != testo || isHidden())) segnato_->Evidenzia({});
  segnato_ = isHidden() ? nullptr : testo;
  if (isHidden()) return;
  seconda_->setVisible(sostituisce_ && !testo->isReadOnly());
  trovati_ = Trova_Tutti(testo->Byte(), Cerca());
  testo->Evidenzia(trovati_);
  Racconta(*testo);
}

/// Which of the places is selected; how many there are when none is.
std::size_t Barra_Ricerca::Dove_Siamo(const AwlEditor& testo) const {
  const auto scelto =
      std::ranges::find_if(trovati_, [&](const Trovato& posto) { return testo.E_Scelto(posto); });
  return static_cast<std::size_t>(scelto - trovati_.begin());
}

void Barra_Ricerca::Racconta(const AwlEditor& testo) {
  const std::size_t qui = Dove_Siamo(testo);
  if (txtCerca_->text().isEmpty())
    etTrovati_->clear();
  else if (trovati_.empty())
    etTrovati_->setText(QStringLiteral("nessun posto"));
  else if (qui < trovati_.size())
    etTrovati_->setText(QStringLiteral("%1 di %2").arg(qui + 1).arg(trovati_.size()));
  else
    etTrovati_->setText(trovati_.size() == 1 ? QStringLiteral("1 posto")
                                             : QStringLiteral("%1 posti").arg(trovati_.size()));
}

void Barra_Ricerca::Vai(int verso) {
  if (txtCerca_->text().isEmpty()) return Apri(false);
  if (isHidden()) show();
  Aggiorna();
  if (trovati_.empty()) return;
  AwlEditor& testo = *davanti_();
  const std::size_t quanti = trovati_.size();
  std::size_t qui = Dove_Siamo(testo);
  if (qui < quanti) {
    qui = (qui + (verso > 0 ? 1 : quanti - 1)) % quanti;
  } else {
    const AwlEditor::Punto cursore = testo.Cursore();
    const auto dopo = std::ranges::find_if(trovati_, [&](const Trovato& posto) {
      return std::pair(posto.Linea, posto.Colonna) >= std::pair(cursore.Linea, cursore.Colonna);
    });
    const auto primo = static_cast<std::size_t>(dopo - trovati_.begin());
    qui = verso > 0 ? primo % quanti : (primo + quanti - 1) % quanti;
  }
  testo.Scegli(trovati_[qui]);
  Racconta(testo);
}

void Barra_Ricerca::Sostituisci() {
  AwlEditor& testo = *davanti_();
  const std::size_t qui = Dove_Siamo(testo);
  if (qui < trovati_.size()) {
    const Trovato posto = trovati_[qui];
    const std::string nuovo = A_Byte(txtSostituisci_->text());
    const Ritocco ritocco{{0, posto.Linea}, posto.Colonna, posto.Lunghezza, nuovo};
    testo.Ritocca({&ritocco, 1});
    // The search goes on behind what was put in.
    testo.setCursorPosition(posto.Linea, posto.Colonna + static_cast<int>(nuovo.size()));
  }
  Vai(1);
}

void Barra_Ricerca::Sostituisci_Tutti() {
  AwlEditor& testo = *davanti_();
  const auto ritocchi = Sostituzioni(testo.Byte(), Cerca(), A_Byte(txtSostituisci_->text()));
  testo.Ritocca(ritocchi);
  Aggiorna();
  etTrovati_->setText(ritocchi.size() == 1 ? QStringLiteral("1 sostituito")
                                           : QStringLiteral("%1 sostituiti").arg(ritocchi.size()));
}

}  // namespace tavorno
