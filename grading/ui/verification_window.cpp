// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/ui/verification_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

#include "grading/script_files.h"
#include "grading/ui/time_sheet.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

enum Colonne { Colonna_Caso, Colonna_Esito, Colonna_Punti, Colonna_Durata, Quante_Colonne };

QString Secondi(std::int64_t ms) {
  return QString::number(static_cast<double>(ms) / 1000, 'f', 3).replace('.', ',') +
         QStringLiteral(" s");
}

QString Su_Massimo(double punti, double massimo) {
  return Q(Testo_Punti(punti) + " su " + Testo_Punti(massimo));
}

QString Parola(const Caso& caso) {
  return caso.Superato()      ? QStringLiteral("superato")
         : caso.Script_Errato ? QStringLiteral("errore dello script")
                              : QStringLiteral("non superato");
}

/// What did not hold, and what a script noted.
QString Rilievi_Di(const Caso& caso) {
  QStringList righe;
  for (const Rilievo& rilievo : caso.Rilievi)
    righe << "Dopo " + Secondi(rilievo.Ms) + ": " + Q(rilievo.Testo);
  for (const std::string& nota : caso.Note) righe << "Nota: " + Q(nota);
  if (!caso.Listato.empty()) righe << Q(caso.Listato);
  if (righe.isEmpty()) righe << QStringLiteral("Tutto quello che si chiede in questo caso c'è.");
  return righe.join('\n');
}

}  // namespace

FrmVerifica::FrmVerifica(const Esercizio& esercizio, Legami_Verifica legami)
    : esercizio_(esercizio),
      legami_(std::move(legami)),
      etEsito_(Chiama(QStringLiteral("etEsito"), new QLabel)),
      avanzamento_(Chiama(QStringLiteral("prgVerifica"), new QProgressBar)),
      tabella_(Chiama(QStringLiteral("tabCasi"), new QTableWidget(0, Quante_Colonne))),
      rilievi_(Chiama(QStringLiteral("txtRilievi"), new QPlainTextEdit)),
      tempi_(new Foglio_Tempi) {
  setObjectName(QStringLiteral("frmVerifica"));
  setWindowTitle(Q(std::string("Verifica: ") + esercizio.Voce));
  Crea_Tabella();
  rilievi_->setReadOnly(true);
  rilievi_->setTabChangesFocus(true);
  rilievi_->setAccessibleName(QStringLiteral("Rilievi del caso scelto"));
  rilievi_->setToolTip(QStringLiteral("Che cosa non andava nel caso scelto, e quando"));

  auto* posti = new QVBoxLayout(this);
  posti->setContentsMargins(8, 8, 8, 8);
  auto* testa = new QHBoxLayout;
  Crea_Testa(*testa);
  posti->addLayout(testa);
  auto* parti = Chiama(QStringLiteral("splParti"), new QSplitter(Qt::Vertical));
  for (QWidget* parte : std::initializer_list<QWidget*>{tabella_, rilievi_, tempi_})
    parti->addWidget(parte);
  parti->setChildrenCollapsible(false);
  parti->setSizes({200, 60, 260});
  parti->setStretchFactor(0, 3);
  parti->setStretchFactor(2, 2);
  posti->addWidget(parti, 1);
  auto* tasti = new QHBoxLayout;
  Crea_Tasti(*tasti);
  posti->addLayout(tasti);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, [this] {
    if (legami_.Mostra_Aiuto) legami_.Mostra_Aiuto();
  });

  sguardo_.setInterval(50);
  sguardo_.callOnTimeout(this, [this] { Guarda_Lavoro(); });
  resize(820, 620);
  tabella_->setFocus();
  Avvia();
}

void FrmVerifica::Crea_Testa(QBoxLayout& posti) {
  etEsito_->setFont(Grassetto(etEsito_->font()));
  etEsito_->setAutoFillBackground(true);
  etEsito_->setMargin(5);
  etEsito_->setTextFormat(Qt::PlainText);
  etEsito_->setWordWrap(true);
  posti.addWidget(etEsito_, 1);
  avanzamento_->setMaximumWidth(220);
  avanzamento_->setFormat(QStringLiteral("%v di %m"));
  avanzamento_->setAccessibleName(QStringLiteral("Casi provati"));
  posti.addWidget(avanzamento_);
}

void FrmVerifica::Crea_Tabella() {
  tabella_->setHorizontalHeaderLabels({QStringLiteral("Caso"), QStringLiteral("Esito"),
                                       QStringLiteral("Punti"), QStringLiteral("Durata")});
  tabella_->horizontalHeader()->setSectionResizeMode(Colonna_Caso, QHeaderView::Stretch);
  for (int colonna : {Colonna_Esito, Colonna_Punti, Colonna_Durata})
    tabella_->horizontalHeader()->setSectionResizeMode(colonna, QHeaderView::ResizeToContents);
  tabella_->horizontalHeader()->setHighlightSections(false);
  tabella_->verticalHeader()->setVisible(false);
  tabella_->verticalHeader()->setDefaultSectionSize(tabella_->fontMetrics().height() + 8);
  tabella_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella_->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella_->setTabKeyNavigation(false);
  Segui_Colori(*tabella_, [this] { Ritingi(*tabella_); });
  tabella_->setAccessibleName(QStringLiteral("Casi"));
  tabella_->setToolTip(
      QStringLiteral("I casi provati; Invio o doppio clic su uno non superato lo "
                     "fa guardare"));
  connect(tabella_, &QTableWidget::itemSelectionChanged, this, [this] { Mostra_Caso(); });
  connect(tabella_, &QTableWidget::itemActivated, this, [this] { Guarda_Caso(); });
}

void FrmVerifica::Crea_Tasti(QBoxLayout& posti) {
  const auto tasto = [&](const char* nome, const char* testo, const char* tasti, const char* cosa,
                         void (FrmVerifica::*fai)()) {
    auto* nuovo = Chiama(QString::fromUtf8(nome), new QPushButton(Q(testo)));
    const QKeySequence sequenza(QString::fromUtf8(tasti));
    nuovo->setShortcut(sequenza);
    nuovo->setToolTip(Q(cosa) + " (" + sequenza.toString(QKeySequence::NativeText) + ")");
    connect(nuovo, &QPushButton::clicked, this, fai);
    posti.addWidget(nuovo);
    return nuovo;
  };
  cmdGuarda_ = tasto("cmdGuarda", "Guarda", "Ctrl+G",
                     "Rivede il caso scelto nel disegno dell'impianto, fino al primo rilievo",
                     &FrmVerifica::Guarda_Caso);
  posti.addStretch();
  cmdVerifica_ = tasto("cmdVerificaAncora", "Verifica ancora", "F9",
                       "Prova da capo il programma che sta nella CPU", &FrmVerifica::Avvia);
  cmdAnnulla_ =
      tasto("cmdAnnulla", "Annulla", "Esc", "Interrompe la verifica", &FrmVerifica::Annulla);
  cmdChiudi_ = Chiama(QStringLiteral("cmdChiudi"), new QPushButton(QStringLiteral("Chiudi")));
  cmdChiudi_->setToolTip(QStringLiteral("Chiude la finestra (Esc, a verifica finita)"));
  connect(cmdChiudi_, &QPushButton::clicked, this, &QWidget::close);
  posti.addWidget(cmdChiudi_);
}

void FrmVerifica::Mostra_In_Corso() {
  avanzamento_->setVisible(In_Corso());
  cmdVerifica_->setEnabled(!In_Corso());
  cmdAnnulla_->setEnabled(In_Corso());
  // The same key breaks off what is going on, and closes what is over.
  cmdChiudi_->setShortcut(In_Corso() ? QKeySequence() : QKeySequence(Qt::Key_Escape));
}

void FrmVerifica::Di(const QString& testo, bool buono) {
  etEsito_->setText(testo);
  const colori::Coppia& tinta = In_Corso() ? colori::In_Stop
                                : buono    ? colori::In_Run
                                           : colori::Guasto;
  Tingi(*etEsito_, &tinta);
}

// ---- the work -----------------------------------------------------------------------------------

void FrmVerifica::Avvia() {
  if (In_Corso()) return;
  casi_.clear();
  tabella_->setRowCount(0);
  Mostra_Caso();
  std::string perche = "Nella CPU non c'è un programma.";
  std::optional<Stesura> programma = legami_.Programma ? legami_.Programma(perche) : std::nullopt;
  if (programma) {
    try {
      Verifiche verifiche;
      verifiche.Impianto = &esercizio_;
      verifiche.Script.push_back(Leggi_Sorgente(legami_.Script));
      lavoro_ = std::make_unique<Verifica_In_Corso>(std::move(*programma), std::move(verifiche));
    } catch (const std::exception& errore) {
      perche =
          "Lo script dell'esercizio non si può usare: " + legami_.Script + ": " + errore.what();
    }
  }
  avanzamento_->setRange(0, 0);
  Mostra_In_Corso();
  if (!In_Corso()) return Di(Q(perche), false);
  Di(QStringLiteral("Verifica in corso…"), true);
  sguardo_.start();
}

void FrmVerifica::Annulla() {
  if (!In_Corso()) return;
  lavoro_->Annulla();
  cmdAnnulla_->setEnabled(false);
  Di(QStringLiteral("Annullo la verifica…"), false);
}

void FrmVerifica::Guarda_Lavoro() {
  if (!In_Corso()) return;
  const bool finita = lavoro_->Finita();  // asked first: nothing comes behind
  for (Caso_Verificato& caso : lavoro_->Prendi()) {
    Aggiungi(caso);
    casi_.push_back(std::move(caso));
    if (casi_.size() == 1) tabella_->selectRow(0);
  }
  avanzamento_->setMaximum(static_cast<int>(lavoro_->Tutti()));
  avanzamento_->setValue(static_cast<int>(casi_.size()));
  if (finita) Fine();
}

void FrmVerifica::Aggiungi(const Caso_Verificato& caso) {
  const int riga = tabella_->rowCount();
  tabella_->insertRow(riga);
  const colori::Coppia* tinta = caso.Esito.Superato() ? nullptr : &colori::Guasto;
  const QString testi[] = {Q(caso.Esito.Nome), Parola(caso.Esito),
                           Su_Massimo(caso.Esito.Punti, caso.Esito.Massimo),
                           Secondi(caso.Esito.Ms)};
  for (int colonna = 0; colonna < Quante_Colonne; ++colonna) {
    auto* cella = new QTableWidgetItem(testi[colonna]);
    if (colonna >= Colonna_Punti) cella->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (colonna == Colonna_Esito) Tingi(*cella, tinta);
    cella->setToolTip(testi[colonna]);
    tabella_->setItem(riga, colonna, cella);
  }
}

void FrmVerifica::Fine() {
  sguardo_.stop();
  const Esito_Progetto esito = lavoro_->Esito();
  const bool annullata = lavoro_->Annullata();
  lavoro_.reset();
  Mostra_In_Corso();
  if (annullata) return Di(QStringLiteral("Verifica annullata: l'esito non è completo."), false);
  if (casi_.empty() && !esito.Casi.empty())  // nothing was played
    return Di(Q(esito.Primo_Rilievo()), false);
  Di("Punti: " + Su_Massimo(esito.Punti(), esito.Massimo()) + ". Casi superati: " +
         QString::number(esito.Superati()) + " su " + QString::number(esito.Casi.size()) + ".",
     esito.Superato());
  // What wants to be looked at is at hand.
  for (std::size_t n = 0; n < casi_.size(); ++n) {
    if (casi_[n].Esito.Superato()) continue;
    if (tabella_->currentRow() <= 0) tabella_->selectRow(static_cast<int>(n));
    break;
  }
}

// ---- a case -------------------------------------------------------------------------------------

const Caso_Verificato* FrmVerifica::Scelto() const {
  const int riga = tabella_->currentRow();
  const bool scelta = riga >= 0 && static_cast<std::size_t>(riga) < casi_.size() &&
                      !tabella_->selectedItems().isEmpty();
  return scelta ? &casi_[static_cast<std::size_t>(riga)] : nullptr;
}

void FrmVerifica::Mostra_Caso() {
  const Caso_Verificato* caso = Scelto();
  rilievi_->setPlainText(caso ? Rilievi_Di(caso->Esito) : QString());
  const bool con_tempi = caso && !caso->Diagramma.empty();
  tempi_->Mostra(con_tempi ? caso->Diagramma : std::string(),
                 con_tempi
                     ? "Diagramma dei tempi di " + Q(caso->Esito.Nome) +
                           ", con una linea rossa dopo " + Secondi(caso->Esito.Rilievi.front().Ms)
                     : QStringLiteral("Nessun diagramma: il caso è superato"));
  tempi_->setVisible(con_tempi);
  cmdGuarda_->setEnabled(caso && caso->Film.has_value());
}

void FrmVerifica::Guarda_Caso() {
  const Caso_Verificato* caso = Scelto();
  if (caso && caso->Film && legami_.Guarda) legami_.Guarda(*caso);
}

}  // namespace tavorno
