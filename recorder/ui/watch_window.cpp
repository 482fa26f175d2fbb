// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/ui/watch_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plants/exercises.h"
#include "recorder/force.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr std::size_t celle_iniziali = 24;
constexpr int aria = 10;  // of a row, beside its type

QTableWidgetItem* Voce(const QString& testo, bool fisso) {
  auto* voce = new QTableWidgetItem(testo);
  voce->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  if (fisso) {
    QFont cifre;  // as large as the rest of the table
    cifre.setFamilies(Carattere_Fisso().families());
    cifre.setStyleHint(QFont::Monospace);
    voce->setFont(cifre);
    voce->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  return voce;
}

QTableWidget* Crea_Tabella() {
  auto* tabella = Chiama(QStringLiteral("tabOsserva"), new QTableWidget(0, 4));
  tabella->setAccessibleName(QStringLiteral("Celle osservate"));
  tabella->setHorizontalHeaderLabels({QStringLiteral("Cella"), QStringLiteral("Formato"),
                                      QStringLiteral("Valore"), QStringLiteral("Forza")});
  tabella->verticalHeader()->hide();
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::SelectedClicked);
  tabella->setTabKeyNavigation(false);
  Segui_Colori(*tabella, [tabella] { Ritingi(*tabella); });
  tabella->horizontalHeader()->setStretchLastSection(true);
  tabella->horizontalHeader()->setMinimumSectionSize(60);
  tabella->setToolTip(
      QStringLiteral("F2: forza il valore nella colonna Forza · Spazio: inverte un bit · "
                     "Canc: toglie la riga · Ctrl+Su, Ctrl+Giù: la sposta"));
  return tabella;
}

}  // namespace

FrmOsserva::FrmOsserva(Plc& plc, const Esercizio* impianto)
    : plc_(plc),
      impianto_(impianto),
      tabella_(Crea_Tabella()),
      timO_(new QTimer(this)),
      punti_(tabella_->font().pointSizeF()),
      larghe_{140, 120, 160} {
  setObjectName(QStringLiteral("frmOsserva"));
  setWindowTitle(QStringLiteral("Finestra di osservazione"));
  Forza_Cella = [this](const Indirizzo& cella, double valore) {
    return tavorno::Forza(plc_, cella, valore);
  };

  txtCella_ = Chiama(QStringLiteral("txtCella"), new QLineEdit);
  txtCella_->setPlaceholderText(QStringLiteral("Cella da osservare: Q0.1, VW10, T37.Val, KM1"));
  txtCella_->setToolTip(QStringLiteral("Indirizzo, o simbolo dell'impianto; Invio la aggiunge"));
  txtCella_->setAccessibleName(QStringLiteral("Cella da osservare"));
  auto* aggiungi =
      Chiama(QStringLiteral("cmdAggiungi"), new QPushButton(QStringLiteral("&Aggiungi")));
  aggiungi->setToolTip(QStringLiteral("Aggiunge la cella scritta qui accanto"));
  auto* togli = Chiama(QStringLiteral("cmdTogli"), new QPushButton(QStringLiteral("&Togli")));
  togli->setToolTip(QStringLiteral("Toglie la riga scelta (Canc)"));
  auto* testata = new QHBoxLayout;
  testata->addWidget(txtCella_, 1);
  testata->addWidget(aggiungi);
  testata->addWidget(togli);

  etAvviso_ = Chiama(QStringLiteral("etAvviso"), new QLabel);
  etAvviso_->setTextFormat(Qt::PlainText);
  etAvviso_->setWordWrap(true);
  auto* righe = new QVBoxLayout(this);
  righe->setContentsMargins(8, 8, 8, 6);
  righe->addLayout(testata);
  righe->addWidget(tabella_, 1);
  righe->addWidget(etAvviso_);
  resize(560, 420);

  const auto aggiungi_scritta = [this] {
    if (Aggiungi(txtCella_->text())) txtCella_->clear();
  };
  connect(txtCella_, &QLineEdit::returnPressed, this, aggiungi_scritta);
  connect(aggiungi, &QPushButton::clicked, this, aggiungi_scritta);
  connect(togli, &QPushButton::clicked, this, &FrmOsserva::Togli);
  connect(tabella_, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* voce) {
    if (voce->column() == Forzato) Forza(voce->row(), voce->text());
  });
  tabella_->installEventFilter(this);
  for (int n = 0; n < std::ssize(larghe_); ++n)
    tabella_->setColumnWidth(n, static_cast<int>(larghe_.at(static_cast<std::size_t>(n))));
  Misura_Tabella();
  for (const Segnale& segnale : Segnali_Di(Righe_Di(impianto_), plc_, celle_iniziali))
    Metti(segnale);
  tabella_->setCurrentCell(0, Nome);

  timO_->setObjectName(QStringLiteral("timO"));
  connect(timO_, &QTimer::timeout, this, &FrmOsserva::Aggiorna);
  timO_->start(Periodo);
  Aggiorna();
}

void FrmOsserva::Riparti(const Esercizio* impianto) {
  impianto_ = impianto;
  for (std::size_t n = 0; n < righe_.size(); ++n) {
    righe_[n].Chi = *Cerca_Segnale(righe_[n].Chi.Indirizzo, Righe_Di(impianto_));
    Scrivi(static_cast<int>(n));
  }
}

Indirizzo FrmOsserva::Cella(const Riga& riga) {
  return {riga.Chi.Dove, riga.Chi.Num, riga.Chi.Bit, riga.Chi.Quale};
}

// ---- rows ---------------------------------------------------------------------------------------

bool FrmOsserva::Aggiungi(const QString& testo) {
  const auto segnale = Cerca_Segnale(Utf8(testo.trimmed()), Righe_Di(impianto_));
  if (!segnale) {
    Di("\"" + testo.trimmed() + "\" non è una cella. Si possono osservare " +
       Q(Indirizzi_Ammessi()) + (impianto_ ? ", e i simboli dell'impianto." : "."));
    return false;
  }
  Di({});
  const auto presente = std::ranges::find_if(
      righe_, [&](const Riga& riga) { return riga.Chi.Indirizzo == segnale->Indirizzo; });
  if (presente == righe_.end())
    Metti(*segnale);
  else
    tabella_->setCurrentCell(static_cast<int>(presente - righe_.begin()), Nome);
  Aggiorna();
  return true;
}

void FrmOsserva::Metti(const Segnale& segnale) {
  const QSignalBlocker zitta(tabella_);
  const int riga = tabella_->rowCount();
  righe_.push_back({.Chi = segnale, .Visto = {}, .Messo = {}});
  tabella_->insertRow(riga);
  tabella_->setItem(riga, Nome, Voce({}, false));
  tabella_->setItem(riga, Formato, Voce(QStringLiteral("bit"), false));
  tabella_->setItem(riga, Presente, Voce({}, true));
  tabella_->setItem(riga, Forzato, Voce({}, true));
  permesso_.reset();
  Scrivi(riga);
  tabella_->setCurrentCell(riga, Nome);
}

/// What does not change by itself: name and format.
void FrmOsserva::Scrivi(int riga) {
  const QSignalBlocker zitta(tabella_);
  const Segnale& chi = righe_[static_cast<std::size_t>(riga)].Chi;
  tabella_->item(riga, Nome)
      ->setText(Q(chi.Ha_Simbolo() ? chi.Nome + "  " + chi.Indirizzo : chi.Nome));
  if (chi.Di_Bit() || chi.Dove == Area::AC) {
    tabella_->removeCellWidget(riga, Formato);
    tabella_->item(riga, Formato)
        ->setText(chi.Di_Bit() ? QStringLiteral("bit") : QStringLiteral("reale"));
    return;
  }
  tabella_->item(riga, Formato)->setText({});
  auto* scelta = new QComboBox;
  for (const Nome_Formato& formato : nomi_formati) scelta->addItem(Q(formato.Nome));
  scelta->setCurrentIndex(static_cast<int>(righe_[static_cast<std::size_t>(riga)].Come));
  scelta->setToolTip("Formato di " + Q(chi.Nome));
  scelta->setAccessibleName(scelta->toolTip());
  connect(scelta, &QComboBox::currentIndexChanged, this, [this, scelta](int indice) {
    for (int n = 0; n < tabella_->rowCount(); ++n) {
      if (tabella_->cellWidget(n, Formato) != scelta) continue;
      Riga& sua = righe_[static_cast<std::size_t>(n)];
      sua.Come = nomi_formati[static_cast<std::size_t>(indice)].Codice;
      sua.Visto.reset();
      sua.Acceso = 0;
    }
    Aggiorna();
  });
  tabella_->setCellWidget(riga, Formato, scelta);
}

void FrmOsserva::Togli() {
  const int riga = tabella_->currentRow();
  if (riga < 0) return;
  righe_.erase(righe_.begin() + riga);
  tabella_->removeRow(riga);
}

void FrmOsserva::Sposta(int passi) {
  const int riga = tabella_->currentRow();
  const int nuova = std::clamp(riga + passi, 0, tabella_->rowCount() - 1);
  if (riga < 0 || nuova == riga) return;
  std::swap(righe_[static_cast<std::size_t>(riga)], righe_[static_cast<std::size_t>(nuova)]);
  for (const int n : {riga, nuova}) {
    righe_[static_cast<std::size_t>(n)].Visto.reset();
    righe_[static_cast<std::size_t>(n)].Acceso = 0;
    Scrivi(n);
  }
  tabella_->setCurrentCell(nuova, Nome);
  Aggiorna();
}

// ---- values -------------------------------------------------------------------------------------

void FrmOsserva::Aggiorna() {
  Permetti();
  const QSignalBlocker zitta(tabella_);
  for (int n = 0; n < tabella_->rowCount(); ++n) {
    Riga& riga = righe_[static_cast<std::size_t>(n)];
    const double adesso = Leggi_Cella(plc_, Cella(riga));
    const bool cambiato = riga.Visto && *riga.Visto != adesso;
    if (riga.Messo && *riga.Messo != adesso) riga.Messo.reset();  // the program wrote it
    if (cambiato) riga.Acceso = Luce + 1;
    if (!riga.Visto || cambiato)
      tabella_->item(n, Presente)->setText(Q(Testo_Cella(Cella(riga), adesso, riga.Come)));
    riga.Visto = adesso;
    riga.Acceso = std::max(0, riga.Acceso - 1);
    QTableWidgetItem& voce = *tabella_->item(n, Presente);
    const colori::Coppia* tinta = riga.Messo                         ? &colori::Cella_Forzata
                                  : riga.Acceso > 0                  ? &colori::Cella_Cambiata
                                  : riga.Chi.Di_Bit() && adesso != 0 ? &colori::Bit_Uno
                                                                     : nullptr;
    if (voce.background() != (tinta ? QBrush(tinta->Fondo) : QBrush())) Tingi(voce, tinta);
    const QString segno = riga.Messo ? QStringLiteral("forzato") : QString();
    if (tabella_->item(n, Forzato)->text() != segno) tabella_->item(n, Forzato)->setText(segno);
  }
}

/// The column can be typed into only while a value may be set.
void FrmOsserva::Permetti() {
  const bool permesso = Si_Puo_Forzare(plc_);
  if (permesso_ == permesso) return;
  permesso_ = permesso;
  const QSignalBlocker zitta(tabella_);
  for (int n = 0; n < tabella_->rowCount(); ++n) {
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    tabella_->item(n, Forzato)->setFlags(permesso ? base | Qt::ItemIsEditable : base);
  }
  Di({});
}

void FrmOsserva::Forza(int n, const QString& testo) {
  Riga& riga = righe_[static_cast<std::size_t>(n)];
  const auto valore = Leggi_Valore(Cella(riga), Utf8(testo), riga.Come);
  if (testo.trimmed().isEmpty()) {
    // Nothing was typed.
  } else if (!valore) {
    Di("\"" + testo + "\" non è un valore per " + Q(riga.Chi.Nome) +
       ": scrivi un numero, 16#FF o 2#1010.");
  } else {
    const std::string perche = Forza_Cella(Cella(riga), *valore);
    Di(Q(perche));
    if (perche.empty()) riga.Messo = Leggi_Cella(plc_, Cella(riga));
  }
  const QSignalBlocker zitta(tabella_);
  tabella_->item(n, Forzato)->setText({});
  Aggiorna();
}

void FrmOsserva::Inverti_Bit() {
  const int n = tabella_->currentRow();
  if (n < 0) return;
  const Riga& riga = righe_[static_cast<std::size_t>(n)];
  if (!riga.Chi.Di_Bit()) return;
  Forza(n, Leggi_Cella(plc_, Cella(riga)) != 0 ? QStringLiteral("0") : QStringLiteral("1"));
}

/// A message, or what can be done here.
void FrmOsserva::Di(const QString& messaggio) {
  if (!messaggio.isEmpty()) return etAvviso_->setText(messaggio);
  if (plc_.Hook.Adesso == Vissuto::Passato)
    return etAvviso_->setText(
        QStringLiteral("PASSATO: sono i valori di quel momento; per forzarne uno riprendi da lì, o "
                       "torna al presente."));
  etAvviso_->setText(
      Si_Puo_Forzare(plc_)
          ? QStringLiteral("La CPU è ferma: scrivi nella colonna Forza (F2) il valore che vuoi; "
                           "Spazio inverte un bit.")
          : QStringLiteral("Il programma gira: per forzare un valore passa in Step, o fermalo."));
}

/// Rows and columns are as large as their type; what the user has given a column grows with it.
void FrmOsserva::Misura_Tabella() {
  tabella_->verticalHeader()->setDefaultSectionSize(tabella_->fontMetrics().height() + aria);
  const double punti = tabella_->font().pointSizeF();
  const double fattore = punti / std::exchange(punti_, punti);
  for (int n = 0; n < std::ssize(larghe_); ++n) {
    double& larga = larghe_.at(static_cast<std::size_t>(n));
    const int ora = tabella_->columnWidth(n);
    if (std::lround(larga) != ora) larga = ora;
    larga *= fattore;
    tabella_->setColumnWidth(n, static_cast<int>(std::lround(larga)));
  }
}

// ---- keys ---------------------------------------------------------------------------------------

bool FrmOsserva::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::FontChange) Misura_Tabella();
  if (evento->type() != QEvent::KeyPress) return QWidget::eventFilter(oggetto, evento);
  const auto* tasto = static_cast<QKeyEvent*>(evento);
  const bool ctrl = tasto->modifiers().testFlag(Qt::ControlModifier);
  switch (tasto->key()) {
    case Qt::Key_Delete:
      Togli();
      return true;
    case Qt::Key_Space:
      Inverti_Bit();
      return true;
    case Qt::Key_F2:
      tabella_->setCurrentCell(tabella_->currentRow(), Forzato);
      break;  // the table opens its editor there
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (!ctrl) break;
      Sposta(tasto->key() == Qt::Key_Up ? -1 : 1);
      return true;
    default:
      break;
  }
  return QWidget::eventFilter(oggetto, evento);
}

void FrmOsserva::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape)
    close();
  else
    QWidget::keyPressEvent(evento);
}

void FrmOsserva::closeEvent(QCloseEvent* evento) {
  timO_->stop();
  QWidget::closeEvent(evento);
}

}  // namespace tavorno
