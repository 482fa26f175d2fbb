// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/fault_panel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

enum Colonna { Guasto_E_Parte, Stato, Quante_Colonne };

QString Nome_Intero(const Guasto_Impianto& guasto) {
  return Q(guasto.Parte) + QStringLiteral(" – ") + Q(guasto.Titolo);
}

/// The address of a fault of a wire; empty for one of the plant.
QString Indirizzo(const Guasto_Impianto& guasto) {
  if (guasto.Come != Mano_Guasto::Filo) return {};
  const QString nome = Q(guasto.Nome);
  return nome.mid(nome.indexOf('(') + 1).chopped(1);
}

QString Perche_No(const Guasto_Impianto& guasto, bool attivo) {
  if (guasto.Come != Mano_Guasto::Colpo)
    return QStringLiteral("Adesso non si può: la parte non risponde alla mano.");
  return attivo ? QStringLiteral(
                      "Adesso non si può: la sua uscita è spenta, e non c'è niente che "
                      "possa mancare.")
                : QStringLiteral("Si ripara da sé al prossimo cambio di un'uscita.");
}

}  // namespace

Pannello_Guasti::Pannello_Guasti(Collegamento& fili, QWidget* sopra)
    : QWidget(sopra),
      fili_(fili),
      elenco_(Chiama(QStringLiteral("lstGuasti"), new QTreeWidget)),
      spiega_(Chiama(QStringLiteral("etGuasto"), new QLabel)),
      ripara_(
          Chiama(QStringLiteral("cmdRipara"), new QPushButton(QStringLiteral("Ripara tutto")))) {
  setObjectName(QStringLiteral("Guasti"));
  for (Guasto_Impianto& guasto : Guasti_Di(fili.Tabella(), fili.Ingressi_A_Riposo()))
    voci_.push_back({std::move(guasto)});

  elenco_->setColumnCount(Quante_Colonne);
  elenco_->setHeaderLabels({QStringLiteral("Guasto"), QStringLiteral("Stato")});
  elenco_->setAccessibleName(QStringLiteral("Guasti dell'impianto e dei fili"));
  elenco_->setRootIsDecorated(true);
  elenco_->setUniformRowHeights(true);
  elenco_->header()->setStretchLastSection(false);
  elenco_->header()->setSectionResizeMode(Guasto_E_Parte, QHeaderView::Stretch);
  elenco_->header()->setSectionResizeMode(Stato, QHeaderView::ResizeToContents);
  QTreeWidgetItem* dell_impianto = nullptr;
  std::array<QTreeWidgetItem*, 2> dei_fili{};
  for (Voce& voce : voci_) {
    const auto filo = Leggi_Nome_Filo(voce.Di.Nome);
    QTreeWidgetItem*& gruppo =
        filo ? dei_fili.at(static_cast<std::size_t>(filo->Cosa)) : dell_impianto;
    if (gruppo == nullptr)
      gruppo = Crea_Gruppo(!filo ? QStringLiteral("Della macchina")
                           : filo->Cosa == Guasto_Filo::Interrotto
                               ? QStringLiteral("Filo interrotto")
                               : QStringLiteral("Contatto incollato"));
    Crea_Riga(voce, gruppo);
  }

  spiega_->setWordWrap(true);
  spiega_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  spiega_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  spiega_->setMargin(6);
  auto* area = new QScrollArea;
  area->setWidget(spiega_);
  area->setWidgetResizable(true);
  // On the ground of the page, and not as a grey patch in it.
  area->viewport()->setAutoFillBackground(false);
  spiega_->setAutoFillBackground(false);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  ripara_->setToolTip(QStringLiteral("Toglie tutti i guasti che si possono togliere"));

  auto* destra = new QVBoxLayout;
  destra->addWidget(area, 1);
  destra->addWidget(ripara_, 0, Qt::AlignRight);
  auto* posti = new QHBoxLayout(this);
  posti->setContentsMargins(4, 4, 4, 4);
  posti->addWidget(elenco_, 3);
  posti->addLayout(destra, 2);

  connect(elenco_, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* riga) { Spunta(*riga); });
  connect(elenco_, &QTreeWidget::currentItemChanged, this, [this] { Mostra_Scelto(); });
  connect(ripara_, &QPushButton::clicked, this, [this] { Ripara_Tutto(); });
  if (elenco_->topLevelItemCount() > 0) {
    elenco_->topLevelItem(0)->setExpanded(true);
    elenco_->setCurrentItem(elenco_->topLevelItem(0)->child(0));
  }
  Aggiorna();
  Segui_Colori(*this, [this] {
    scrivo_ = true;
    for (const Voce& voce : voci_) Tingi_Riga(*voce.Riga, voce.C_e);
    scrivo_ = false;
  });
}

QTreeWidgetItem* Pannello_Guasti::Crea_Gruppo(const QString& titolo) {
  auto* gruppo = new QTreeWidgetItem(elenco_, {titolo});
  gruppo->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  gruppo->setFont(0, Grassetto(font()));
  return gruppo;
}

void Pannello_Guasti::Crea_Riga(Voce& voce, QTreeWidgetItem* gruppo) {
  const QString indirizzo = Indirizzo(voce.Di);
  const QString testo = indirizzo.isEmpty()
                            ? Nome_Intero(voce.Di)
                            : indirizzo + QStringLiteral("  ") + Nome_Intero(voce.Di);
  voce.Riga = new QTreeWidgetItem(gruppo, {testo});
  voce.Riga->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  voce.Riga->setToolTip(
      0, Q(voce.Di.In_Officina) + QStringLiteral("\nNome negli script: ") + Q(voce.Di.Nome));
  voce.Riga->setCheckState(0, Qt::Unchecked);
}

void Pannello_Guasti::Tingi_Riga(QTreeWidgetItem& riga, bool attivo) {
  for (int colonna = 0; colonna < Quante_Colonne; ++colonna) {
    riga.setBackground(colonna, attivo ? QBrush(colori::Guasto.Fondo) : QBrush());
    riga.setForeground(colonna, attivo ? QBrush(colori::Guasto.Testo) : QBrush());
  }
}

Pannello_Guasti::Voce* Pannello_Guasti::Trova(const QTreeWidgetItem* riga) {
  const auto trovata = std::ranges::find(voci_, riga, &Voce::Riga);
  return trovata == voci_.end() ? nullptr : &*trovata;
}

void Pannello_Guasti::Spunta(const QTreeWidgetItem& riga) {
  const Voce* voce = Trova(&riga);
  if (scrivo_ || voce == nullptr) return;
  Imposta(Q(voce->Di.Nome), riga.checkState(0) == Qt::Checked);
}

bool Pannello_Guasti::Imposta(const QString& nome, bool attivo) {
  const auto voce =
      std::ranges::find_if(voci_, [&](const Voce& una) { return Q(una.Di.Nome) == nome; });
  if (voce == voci_.end()) return false;
  const bool riuscito = Metti(voce->Di, attivo, fili_);
  elenco_->setCurrentItem(voce->Riga);
  voce->C_e = !Attivo(voce->Di, fili_);  // so that its row is written whatever the tick says
  Aggiorna();
  if (!riuscito)
    spiega_->setText(QStringLiteral("<b>%1</b><br>%2")
                         .arg(Nome_Intero(voce->Di).toHtmlEscaped(),
                              Perche_No(voce->Di, attivo).toHtmlEscaped()));
  return riuscito;
}

void Pannello_Guasti::Ripara_Tutto() {
  for (const Voce& voce : voci_) {
    if (Attivo(voce.Di, fili_)) Metti(voce.Di, false, fili_);
  }
  Aggiorna();
}

void Pannello_Guasti::Aggiorna() {
  const int prima = attivi_;
  attivi_ = 0;
  bool cambiati = false;
  scrivo_ = true;
  for (Voce& voce : voci_) {
    const bool ora = Attivo(voce.Di, fili_);
    attivi_ += ora;
    if (ora == voce.C_e) continue;
    cambiati = true;
    voce.C_e = ora;
    voce.Riga->setCheckState(0, ora ? Qt::Checked : Qt::Unchecked);
    if (ora) voce.Riga->parent()->setExpanded(true);
    voce.Riga->setText(Stato, ora ? QStringLiteral("attivo") : QString());
    Tingi_Riga(*voce.Riga, ora);
  }
  scrivo_ = false;
  ripara_->setEnabled(attivi_ > 0);
  if (!cambiati && attivi_ == prima) return;
  Mostra_Scelto();
  if (Cambiati) Cambiati();
}

void Pannello_Guasti::Mostra_Scelto() {
  const Voce* voce = Trova(elenco_->currentItem());
  if (voce == nullptr) {
    spiega_->setText(
        QStringLiteral("Un guasto spuntato è presente. Quelli dei fili stanno tra l'impianto e i "
                       "morsetti: l'impianto non ne sa nulla."));
    return;
  }
  spiega_->setText(
      QStringLiteral("<b>%1</b><br>%2")
          .arg(Nome_Intero(voce->Di).toHtmlEscaped(), Q(voce->Di.In_Officina).toHtmlEscaped()));
}

QString Pannello_Guasti::Elenco() const {
  QStringList righe;
  for (const Voce& voce : voci_) {
    if (!voce.C_e) continue;
    const QString indirizzo = Indirizzo(voce.Di);
    righe << Nome_Intero(voce.Di) + (indirizzo.isEmpty() ? QString() : " (" + indirizzo + ')');
  }
  return righe.join('\n');
}

QStringList Pannello_Guasti::Fili_Guasti() const {
  QStringList morsetti;
  for (const Voce& voce : voci_) {
    if (voce.C_e && Leggi_Nome_Filo(voce.Di.Nome)) morsetti << Indirizzo(voce.Di);
  }
  return morsetti;
}

void Pannello_Guasti::Riempi(QMenu& menu) {
  Aggiorna();
  std::array<QMenu*, 2> dei_fili{};
  for (const Voce& voce : voci_) {
    const auto filo = Leggi_Nome_Filo(voce.Di.Nome);
    QMenu* dove = &menu;
    if (filo) {
      QMenu*& sotto = dei_fili.at(static_cast<std::size_t>(filo->Cosa));
      if (sotto == nullptr) {
        if (filo->Cosa == Guasto_Filo::Interrotto) menu.addSeparator();
        sotto = menu.addMenu(filo->Cosa == Guasto_Filo::Interrotto
                                 ? QStringLiteral("Filo interrotto")
                                 : QStringLiteral("Contatto incollato"));
      }
      dove = sotto;
    }
    const QString testo =
        filo ? Indirizzo(voce.Di) + QStringLiteral("  ") + Q(voce.Di.Parte) : Nome_Intero(voce.Di);
    QAction* azione = dove->addAction(testo);
    azione->setObjectName(Q(voce.Di.Nome));
    azione->setCheckable(true);
    azione->setChecked(voce.C_e);
    azione->setToolTip(Q(voce.Di.In_Officina));
    connect(azione, &QAction::triggered, this,
            [this, nome = Q(voce.Di.Nome)](bool attivo) { Imposta(nome, attivo); });
  }
  menu.addSeparator();
  QAction* tutto = menu.addAction(QStringLiteral("Ripara tutto"));
  tutto->setObjectName(QStringLiteral("mnuRipara"));
  tutto->setEnabled(attivi_ > 0);
  connect(tutto, &QAction::triggered, this, [this] { Ripara_Tutto(); });
}

}  // namespace tavorno
