// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/host_window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "plants/host/picture_widget.h"
#include "plc/number_text.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

/// Two groups of controls side by side, or one above the other where the window is narrow.
class Riga_Comandi : public QWidget {
 public:
  Riga_Comandi() : posti_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    posti_->setContentsMargins(10, 6, 10, 6);
    for (QHBoxLayout* gruppo : {Sinistra, Destra}) posti_->addLayout(gruppo);
  }

  QHBoxLayout* Sinistra = new QHBoxLayout;
  QHBoxLayout* Destra = new QHBoxLayout;

  QSize minimumSizeHint() const override {
    const QSize sinistra = Sinistra->minimumSize();
    const QSize destra = Destra->minimumSize();
    const QMargins bordi = posti_->contentsMargins();
    const bool due_righe = posti_->direction() == QBoxLayout::TopToBottom;
    const int alta = due_righe ? sinistra.height() + destra.height() + posti_->spacing()
                               : std::max(sinistra.height(), destra.height());
    return QSize(std::max(sinistra.width(), destra.width()), alta).grownBy(bordi);
  }
  QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void resizeEvent(QResizeEvent*) override {
    const QMargins bordi = posti_->contentsMargins();
    const int in_fila = Sinistra->minimumSize().width() + Destra->minimumSize().width() +
                        posti_->spacing() + bordi.left() + bordi.right();
    posti_->setDirection(width() < in_fila ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    updateGeometry();
  }

 private:
  QBoxLayout* posti_;
};

bool Uscita(const Riga_IO& riga) {
  return riga.Indirizzo[0] == 'Q' || (riga.Indirizzo[0] == 'A' && riga.Indirizzo[1] == 'Q');
}

}  // namespace

Finestra_Impianto::Finestra_Impianto(std::unique_ptr<Collegamento> collegamento)
    : collegamento_(std::move(collegamento)), altezza_(collegamento_->Tabella().Altezza_Chiusa) {
  const Esercizio& esercizio = collegamento_->Tabella();
  setObjectName(Q(esercizio.Host));
  setWindowTitle(Q(esercizio.Titolo));
  const QString disegni =
      QStringLiteral(":/plants/US-%1.svg").arg(esercizio.Indice, 2, 10, QChar('0'));
  quadro_ = Chiama(Q(esercizio.Nome), new Quadro(collegamento_->Macchina(), disegni));

  auto* righe = new QVBoxLayout(this);
  righe->setContentsMargins(0, 0, 0, 0);
  righe->setSpacing(0);
  righe->addWidget(quadro_, 1);
  righe->addWidget(Crea_Comandi());
  righe->addWidget(schede_ = qobject_cast<QTabWidget*>(Crea_Schede()));
  schede_->setVisible(false);

  Mostra_Corsa(false);

  move(0, 0);
  resize(Voluta());
  quadro_->setFocus();
}

// The picture looks at the plant, so it goes first.
Finestra_Impianto::~Finestra_Impianto() {
  delete quadro_;
}

void Finestra_Impianto::closeEvent(QCloseEvent* evento) {
  evento->accept();
  collegamento_->Chiudi();
  if (Chiusa) Chiusa();
}

QWidget* Finestra_Impianto::Crea_Comandi() {
  auto* riga = new Riga_Comandi;

  auto* chkSim = Chiama(QStringLiteral("chkSim"),
                        new QCheckBox(QStringLiteral("Usa Simulatore PLC per gli Ingressi")));
  chkSim->setToolTip(
      QStringLiteral("Gli ingressi arrivano dagli interruttori del PLC e non "
                     "dall'impianto"));
  connect(chkSim, &QCheckBox::clicked, this,
          [this](bool spuntato) { collegamento_->chkSim(spuntato); });
  auto* chkIO = Chiama(QStringLiteral("chkIO"), new QCheckBox(Q(collegamento_->Tabella().Voce_IO)));
  chkIO->setToolTip(QStringLiteral("Mostra la tabella degli ingressi e delle uscite"));
  connect(chkIO, &QCheckBox::toggled, this, &Finestra_Impianto::Apri_Tabella);
  auto* cmdSch = Chiama(QStringLiteral("cmdSch"), new QPushButton(QStringLiteral("Info")));
  cmdSch->setToolTip(QStringLiteral("Schema Elettrico"));
  const auto guida = [this] {
    if (Mostra_Aiuto) Mostra_Aiuto(collegamento_->Tabella().Pagina);
  };
  connect(cmdSch, &QPushButton::clicked, this, guida);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, guida);
  auto* cmdTempi = Chiama(QStringLiteral("cmdTempi"), new QPushButton(QStringLiteral("Tempi")));
  cmdTempi->setToolTip(QStringLiteral("Diagramma dei tempi di ingressi e uscite (Ctrl+D)"));
  const auto tempi = [this] {
    if (Mostra_Tempi) Mostra_Tempi();
  };
  connect(cmdTempi, &QPushButton::clicked, this, tempi);
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_D), this), &QShortcut::activated, this,
          tempi);
  auto* cmdEnd = Chiama(QStringLiteral("cmdEnd"), new QPushButton(QStringLiteral("Chiudi")));
  cmdEnd->setToolTip(QStringLiteral("Termina"));
  connect(cmdEnd, &QPushButton::clicked, this, &QWidget::close);

  etRun_ = Chiama(QStringLiteral("etRun"), new QLabel);
  etRun_->setFont(Grassetto(etRun_->font()));
  etRun_->setAlignment(Qt::AlignCenter);
  etRun_->setAutoFillBackground(true);
  etRun_->setMinimumWidth(etRun_->fontMetrics().horizontalAdvance(QStringLiteral("CPU in STOP")) +
                          12);

  riga->Sinistra->addWidget(chkSim);
  riga->Sinistra->addSpacing(16);
  riga->Sinistra->addWidget(chkIO);
  riga->Sinistra->addStretch();
  riga->Destra->addStretch();
  riga->Destra->addWidget(etRun_);
  riga->Destra->addWidget(cmdTempi);
  riga->Destra->addWidget(cmdSch);
  riga->Destra->addWidget(cmdEnd);
  return riga;
}

QWidget* Finestra_Impianto::Crea_Schede() {
  auto* schede = Chiama(QStringLiteral("SSTab1"), new QTabWidget);
  schede->addTab(Assegna_IO(), Q(Scheda_1));
  schede->addTab(Impostazioni(), Q(collegamento_->Tabella().Scheda_2));
  const Esercizio& esercizio = collegamento_->Tabella();
  schede->setFixedHeight(Px(esercizio.Altezza_Aperta - esercizio.Altezza_Chiusa));
  return schede;
}

QWidget* Finestra_Impianto::Assegna_IO() {
  const auto righe = collegamento_->Tabella().Righe_IO;
  auto* FGr = Chiama(QStringLiteral("FGr"), new QTableWidget(static_cast<int>(righe.size()), 4));
  FGr->setHorizontalHeaderLabels({QString(), QStringLiteral("Simbolo"), QStringLiteral("Indirizzo"),
                                  QStringLiteral("Commento")});
  FGr->verticalHeader()->hide();
  FGr->verticalHeader()->setDefaultSectionSize(FGr->fontMetrics().height() + 4);
  FGr->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FGr->setSelectionBehavior(QAbstractItemView::SelectRows);
  constexpr std::array larghezze{400, 700, 700, 3300};
  for (int colonna = 0; colonna < 4; ++colonna)
    FGr->setColumnWidth(colonna, Px(larghezze[static_cast<std::size_t>(colonna)]));
  FGr->horizontalHeader()->setStretchLastSection(true);

  for (int n = 0; n < static_cast<int>(righe.size()); ++n) {
    const Riga_IO& riga = righe[static_cast<std::size_t>(n)];
    const std::array testi{Q(Numero_Con_Spazio(n + 1)), Q(riga.Simbolo), Q(riga.Indirizzo),
                           Q(riga.Commento)};
    for (int colonna = 0; colonna < 4; ++colonna) {
      auto* cella = new QTableWidgetItem(testi[static_cast<std::size_t>(colonna)]);
      if (colonna == 1 || colonna == 2) {
        // Our shades of the two numbered colours of the table, light enough to read on.
        const colori::Coppia& tinta = Uscita(riga) ? colori::Uscite : colori::Ingressi;
        cella->setBackground(tinta.Fondo);
        cella->setForeground(tinta.Testo);
      }
      if (colonna == 3) cella->setForeground(FGr->palette().buttonText());
      FGr->setItem(n, colonna, cella);
    }
  }
  return FGr;
}

QWidget* Finestra_Impianto::Impostazioni() {
  auto* pagina = new QWidget;
  auto* righe = new QVBoxLayout(pagina);
  const auto cursori = collegamento_->Tabella().Cursori;
  if (cursori.empty())
    righe->addWidget(new QLabel(QStringLiteral("Questo impianto non ha impostazioni.")));
  for (std::size_t n = 0; n < cursori.size(); ++n) {
    const Cursore& cursore = cursori[n];
    auto* cornice = Chiama(QStringLiteral("Frame%1").arg(n + 1), new QGroupBox(Q(cursore.Cornice)));
    auto* posti = new QHBoxLayout(cornice);
    auto* slider = Chiama(Q(cursore.Nome), new QSlider(Qt::Horizontal));
    slider->setRange(cursore.Minimo, cursore.Massimo);
    slider->setSingleStep(cursore.Passo_Piccolo);
    slider->setPageStep(cursore.Passo_Grande);
    slider->setValue(collegamento_->Valore(n));
    slider->setTickPosition(QSlider::TicksBelow);
    // So that the last tick falls on the end.
    const bool esatto = (cursore.Massimo - cursore.Minimo) % cursore.Passo_Grande == 0;
    slider->setTickInterval(esatto ? cursore.Passo_Grande : cursore.Passo_Piccolo);
    auto* valore = new QLabel(QString::number(slider->value()));
    valore->setMinimumWidth(valore->fontMetrics().horizontalAdvance(QStringLiteral("000")));
    connect(slider, &QSlider::valueChanged, this, [this, n, valore](int nuovo) {
      valore->setText(QString::number(nuovo));
      collegamento_->Muovi(n, nuovo);
    });
    posti->addWidget(slider);
    posti->addWidget(valore);
    righe->addWidget(cornice);
  }
  righe->addStretch();
  return pagina;
}

QSize Finestra_Impianto::Voluta() const {
  return {quadro_->sizeHint().width(), Px(altezza_)};
}

void Finestra_Impianto::Mostra_Corsa(bool acceso) {
  etRun_->setText(acceso ? QStringLiteral("CPU in RUN") : QStringLiteral("CPU in STOP"));
  const colori::Coppia& tinta = acceso ? colori::In_Run : colori::In_Stop;
  QPalette tinte = etRun_->palette();
  tinte.setColor(QPalette::Window, tinta.Fondo);
  tinte.setColor(QPalette::WindowText, tinta.Testo);
  etRun_->setPalette(tinte);
}

/// The height shows or hides the table. What the user has made the window larger by stays.
void Finestra_Impianto::Apri_Tabella(bool aperta) {
  const Esercizio& esercizio = collegamento_->Tabella();
  const int prima = altezza_;
  altezza_ = aperta ? esercizio.Altezza_Aperta : esercizio.Altezza_Chiusa;
  const int voluta = height() + Px(altezza_) - Px(prima);
  schede_->setVisible(aperta);
  layout()->activate();  // else the window may not shrink yet
  if (isMaximized() || isFullScreen()) return;
  resize(width(), voluta);
  if (Tabella_Mossa) Tabella_Mossa();
}

}  // namespace tavorno
