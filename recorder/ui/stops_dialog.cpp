// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/ui/stops_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

enum Colonna { Riga, Condizione, Volte, Quante_Colonne };

QTableWidget* Crea_Tabella() {
  auto* tabella = Chiama(QStringLiteral("tabFermate"), new QTableWidget(0, Quante_Colonne));
  tabella->setHorizontalHeaderLabels({Q("Riga"), Q("Condizione"), Q("Volte")});
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 10);
  tabella->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
  tabella->setTabKeyNavigation(false);
  const QFontMetrics metrica = tabella->fontMetrics();
  tabella->setColumnWidth(Riga, metrica.horizontalAdvance(QStringLiteral("Riga 00000")));
  tabella->setColumnWidth(Volte, metrica.horizontalAdvance(QStringLiteral("Volte 0000")));
  tabella->horizontalHeader()->setSectionResizeMode(Condizione, QHeaderView::Stretch);
  tabella->horizontalHeaderItem(Riga)->setToolTip(
      Q("Numero della riga prima di cui ci si ferma; vuoto: a qualunque riga"));
  tabella->horizontalHeaderItem(Condizione)
      ->setToolTip(Q("Q0.1 sale, I0.0 scende, T37 cambia, VW10 > 300; vuota: sempre"));
  tabella->horizontalHeaderItem(Volte)->setToolTip(Q("3: ci si ferma ogni tre volte"));
  tabella->setAccessibleName(Q("Fermate"));
  return tabella;
}

}  // namespace

Dialogo_Fermate::Dialogo_Fermate(QWidget* sopra, const Fermate& fermate, int riga)
    : QDialog(sopra), fermate_(fermate), tabella_(Crea_Tabella()) {
  setObjectName(QStringLiteral("frmFermate"));
  setWindowTitle(Q("Fermate"));
  auto* aggiungi = Chiama(QStringLiteral("cmdAggiungi"), new QPushButton(Q("&Aggiungi")));
  auto* togli = Chiama(QStringLiteral("cmdTogli"), new QPushButton(Q("&Togli")));
  auto* tutte = Chiama(QStringLiteral("cmdTutte"), new QPushButton(Q("Togli t&utte")));
  aggiungi->setToolTip(Q("Una nuova fermata (Ins)"));
  togli->setToolTip(Q("Toglie la fermata scelta (Canc)"));
  tutte->setToolTip(Q("Toglie tutte le fermate"));
  etAvviso_ = Chiama(QStringLiteral("etAvviso"), new QLabel);
  etAvviso_->setTextFormat(Qt::PlainText);
  etAvviso_->setWordWrap(true);
  auto* tasti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  for (QPushButton* uno : {aggiungi, togli, tutte}) uno->setAutoDefault(false);

  auto* lato = new QVBoxLayout;
  for (QPushButton* uno : {aggiungi, togli, tutte}) lato->addWidget(uno);
  lato->addStretch();
  auto* mezzo = new QHBoxLayout;
  mezzo->addWidget(tabella_, 1);
  mezzo->addLayout(lato);
  auto* righe = new QVBoxLayout(this);
  righe->addLayout(mezzo, 1);
  righe->addWidget(etAvviso_);
  righe->addWidget(tasti);
  resize(520, 320);

  const auto nuova = [this] {
    Aggiungi({}, {}, QStringLiteral("1"));
    tabella_->editItem(tabella_->currentItem());
  };
  connect(aggiungi, &QPushButton::clicked, this, nuova);
  connect(togli, &QPushButton::clicked, this, &Dialogo_Fermate::Togli);
  connect(tutte, &QPushButton::clicked, this, [this] { tabella_->setRowCount(0); });
  connect(new QShortcut(QKeySequence(Qt::Key_Insert), tabella_), &QShortcut::activated, this,
          nuova);
  connect(new QShortcut(QKeySequence(Qt::Key_Delete), tabella_), &QShortcut::activated, this,
          &Dialogo_Fermate::Togli);
  connect(tasti, &QDialogButtonBox::accepted, this, &Dialogo_Fermate::accept);
  connect(tasti, &QDialogButtonBox::rejected, this, &QDialog::reject);

  int scelta = -1;
  for (const Fermata& fermata : fermate_.Tutte()) {
    const bool ovunque = fermata.Riga == Fermata::Ogni_Riga;
    if (scelta < 0 && !ovunque && fermata.Riga == riga) scelta = tabella_->rowCount();
    Aggiungi(ovunque ? QString() : QString::number(fermata.Riga), Q(fermata.Cosa()),
             QString::number(fermata.Volte));
  }
  if (scelta < 0) {
    scelta = tabella_->rowCount();
    Aggiungi(riga < 0 ? QString() : QString::number(riga), {}, QStringLiteral("1"));
  }
  tabella_->setCurrentCell(scelta, Condizione);
  tabella_->setFocus();
  Di({});
}

void Dialogo_Fermate::Aggiungi(const QString& riga, const QString& cosa, const QString& volte) {
  const int n = tabella_->rowCount();
  tabella_->insertRow(n);
  tabella_->setItem(n, Riga, new QTableWidgetItem(riga));
  tabella_->setItem(n, Condizione, new QTableWidgetItem(cosa));
  tabella_->setItem(n, Volte, new QTableWidgetItem(volte));
  tabella_->setCurrentCell(n, Condizione);
}

void Dialogo_Fermate::Togli() {
  if (tabella_->currentRow() >= 0) tabella_->removeRow(tabella_->currentRow());
}

QString Dialogo_Fermate::Cella(int riga, int colonna) const {
  return tabella_->item(riga, colonna)->text().trimmed();
}

void Dialogo_Fermate::accept() {
  QStringList testi;
  for (int n = 0; n < tabella_->rowCount(); ++n) {
    const QString riga = Cella(n, Riga), cosa = Cella(n, Condizione), volte = Cella(n, Volte);
    if (riga.isEmpty() && cosa.isEmpty()) continue;  // one that was never filled in
    QString testo = riga.isEmpty() ? cosa : Q("riga ") + riga;
    if (!riga.isEmpty() && !cosa.isEmpty()) testo += Q(" se ") + cosa;
    if (!volte.isEmpty() && volte != u"1") testo += Q(" x") + volte;
    std::string errore;
    if (testo.contains(u';') || !Leggi_Fermata(Utf8(testo), errore)) {
      tabella_->setCurrentCell(n, riga.isEmpty() || !cosa.isEmpty() ? Condizione : Riga);
      tabella_->setFocus();
      return Di(Q("Riga ") + QString::number(n + 1) + Q(" della tabella: ") +
                (errore.empty() ? Q("una condizione sola per fermata") : Q(errore)));
    }
    testi << testo;
  }
  std::string errore;
  if (!fermate_.Leggi(Utf8(testi.join(u';')), errore)) return Di(Q(errore));
  QDialog::accept();
}

/// A message, or what can be written here.
void Dialogo_Fermate::Di(const QString& messaggio) {
  etAvviso_->setText(
      !messaggio.isEmpty()
          ? messaggio
          : Q("Riga: prima di quale riga, vuota per tutte. Condizione: Q0.1 sale, I0.0 scende, T37 "
              "cambia, VW10 > 300; vuota: sempre. Volte: 3 si ferma ogni tre volte."));
}

void Chiedi_Fermate(QWidget* sopra, const Fermate& fermate, int riga,
                    std::function<void(const Fermate&)> fatto) {
  auto* dialogo = new Dialogo_Fermate(sopra, fermate, riga);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialogo, &QDialog::accepted, dialogo,
                   [dialogo, fatto = std::move(fatto)] { fatto(dialogo->Scelte()); });
  dialogo->open();
}

}  // namespace tavorno
