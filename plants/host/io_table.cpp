// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/io_table.h"

#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>
#include <array>
#include <utility>

#include "plc/number_text.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

enum Colonna_Viva { Valore_Ora, Ultimo_Cambio, Colonne_Vive };

bool Uscita(const Riga_IO& riga) {
  return riga.Indirizzo[0] == 'Q' || (riga.Indirizzo[0] == 'A' && riga.Indirizzo[1] == 'Q');
}

QString Volt(double volt) {
  return QString::number(volt, 'f', 2).replace('.', ',') + QStringLiteral(" V");
}

/// "0,4 s fa", "12 s fa", "3 min fa".
QString Da_Quando(std::int64_t ms) {
  if (ms < 10'000)
    return QStringLiteral("%1 s fa").arg(
        QString::number(static_cast<double>(ms) / 1000, 'f', 1).replace('.', ','));
  if (ms < 60'000) return QStringLiteral("%1 s fa").arg(ms / 1000);
  return QStringLiteral("%1 min fa").arg(ms / 60'000);
}

QTableWidget* Crea_Tabella(const QString& nome, int righe, const QStringList& titoli) {
  auto* tabella = Chiama(nome, new QTableWidget(righe, static_cast<int>(titoli.size())));
  tabella->setHorizontalHeaderLabels(titoli);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 4);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella->setTabKeyNavigation(false);
  tabella->setMouseTracking(true);
  tabella->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  tabella->viewport()->setMouseTracking(true);
  return tabella;
}

}  // namespace

Tabella_IO::Tabella_IO(Collegamento& fili, const Storia_IO& storia, QWidget* sopra)
    : QWidget(sopra), fili_(fili), storia_(storia) {
  const int righe = static_cast<int>(fili.Tabella().Righe_IO.size());
  FGr_ = Crea_Tabella(QStringLiteral("FGr"), righe,
                      {QString(), QStringLiteral("Simbolo"), QStringLiteral("Indirizzo"),
                       QStringLiteral("Commento")});
  FGr_->setAccessibleName(QStringLiteral("Ingressi e uscite"));
  vivo_ = Crea_Tabella(QStringLiteral("FGrVivo"), righe,
                       {QStringLiteral("Valore"), QStringLiteral("Ultimo cambio")});
  vivo_->setAccessibleName(QStringLiteral("Valori presenti"));
  vivo_->setFocusPolicy(Qt::NoFocus);  // the caret walks through the rows of the other one
  auto* posti = new QHBoxLayout(this);
  posti->setContentsMargins(0, 0, 0, 0);
  posti->setSpacing(0);
  posti->addWidget(FGr_, 1);
  posti->addWidget(vivo_);
  Riempi();
  Aggiungi_Dal_Vivo();
  Segui_Colori(*this, [this] {
    for (int n = 0; n < FGr_->rowCount(); ++n) Colora(n);
    Ritingi(*vivo_);
  });

  for (QTableWidget* tabella : {FGr_, vivo_}) {
    tabella->installEventFilter(this);
    tabella->viewport()->installEventFilter(this);
    connect(tabella, &QTableWidget::cellEntered, this,
            [this](int riga) { Sotto_Il_Puntatore(riga); });
  }
  connect(FGr_, &QTableWidget::currentCellChanged, this, [this](int riga) {
    vivo_->selectRow(riga);
    Comunica();
  });
  connect(vivo_, &QTableWidget::cellPressed, this, [this](int riga) {
    FGr_->setFocus();
    FGr_->selectRow(riga);
  });
  connect(vivo_->verticalScrollBar(), &QScrollBar::valueChanged, FGr_->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(FGr_->verticalScrollBar(), &QScrollBar::valueChanged, vivo_->verticalScrollBar(),
          &QScrollBar::setValue);
  Aggiorna();
}

void Tabella_IO::Riempi() {
  constexpr std::array larghezze{400, 700, 700, 3300};
  for (int colonna = 0; colonna < 4; ++colonna)
    FGr_->setColumnWidth(colonna, Px(larghezze[static_cast<std::size_t>(colonna)]));
  FGr_->horizontalHeader()->setStretchLastSection(true);
  FGr_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // the live columns have the bar
  const auto righe = fili_.Tabella().Righe_IO;
  for (int n = 0; n < FGr_->rowCount(); ++n) {
    const Riga_IO& riga = righe[static_cast<std::size_t>(n)];
    const std::array testi{Q(Numero_Con_Spazio(n + 1)), Q(riga.Simbolo), Q(riga.Indirizzo),
                           Q(riga.Commento)};
    for (int colonna = 0; colonna < 4; ++colonna) {
      auto* cella = new QTableWidgetItem(testi[static_cast<std::size_t>(colonna)]);
      cella->setToolTip(Q(riga.Commento));
      FGr_->setItem(n, colonna, cella);
    }
  }
}

void Tabella_IO::Aggiungi_Dal_Vivo() {
  vivo_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  vivo_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  vivo_->horizontalHeader()->setStretchLastSection(true);
  const QFontMetrics misure = vivo_->fontMetrics();
  const int valore = misure.horizontalAdvance(QStringLiteral("00,00 V guasto")) + 12;
  const int cambio = misure.horizontalAdvance(QStringLiteral("Ultimo cambio")) + 20;
  vivo_->setColumnWidth(Valore_Ora, valore);
  vivo_->setFixedWidth(valore + cambio + vivo_->verticalScrollBar()->sizeHint().width() +
                       2 * vivo_->frameWidth());
  for (int n = 0; n < vivo_->rowCount(); ++n) {
    for (int colonna = 0; colonna < Colonne_Vive; ++colonna)
      vivo_->setItem(n, colonna, new QTableWidgetItem);
  }
}

/// Our shades of the two numbered colours of the table, light enough to read on.
void Tabella_IO::Colora(int riga) {
  const Riga_IO& di = fili_.Tabella().Righe_IO[static_cast<std::size_t>(riga)];
  const bool marcata = std::ranges::find(evidenziate_, riga) != evidenziate_.end();
  const colori::Coppia& tinta = marcata      ? colori::Indicata
                                : Uscita(di) ? colori::Uscite
                                             : colori::Ingressi;
  for (int colonna = 0; colonna < 4; ++colonna) {
    QTableWidgetItem* cella = FGr_->item(riga, colonna);
    if (colonna == 1 || colonna == 2) {
      cella->setBackground(QBrush(tinta.Fondo));
      cella->setForeground(QBrush(tinta.Testo));
    } else {
      cella->setBackground(marcata ? QBrush(tinta.Fondo) : QBrush());
      cella->setForeground(colonna == 3 && !marcata ? FGr_->palette().buttonText()
                           : marcata                ? QBrush(tinta.Testo)
                                                    : QBrush());
    }
  }
}

void Tabella_IO::Aggiorna() {
  const auto scrivi = [](QTableWidgetItem& cella, const QString& testo, const QString& nota,
                         const colori::Coppia* tinta) {
    if (cella.text() == testo && cella.toolTip() == nota) return;
    cella.setText(testo);
    cella.setToolTip(nota);
    Tingi(cella, tinta);
  };
  for (int n = 0; n < vivo_->rowCount(); ++n) {
    const auto riga = static_cast<std::size_t>(n);
    const char* indirizzo = fili_.Tabella().Righe_IO[riga].Indirizzo;
    const double valore = storia_.Valore(riga);
    const bool analogico = storia_.Punto(riga).Analogico;
    QString testo = analogico ? Volt(valore) : QString::number(static_cast<int>(valore));
    const colori::Coppia* tinta = !analogico && valore != 0 ? &colori::Bit_Uno : nullptr;
    QString nota;
    const bool rotto = fili_.Guastato(Nome_Guasto(Guasto_Filo::Interrotto, indirizzo));
    if (rotto || fili_.Guastato(Nome_Guasto(Guasto_Filo::Incollato, indirizzo))) {
      testo += QStringLiteral("  guasto");
      nota = rotto ? QStringLiteral("Guasto: il filo di questo ingresso è interrotto")
                   : QStringLiteral("Guasto: il contatto di questo ingresso è incollato");
      tinta = &colori::Guasto;
    }
    scrivi(*vivo_->item(n, Valore_Ora), testo, nota, tinta);
    const auto cambiato = storia_.Cambiato(riga);
    scrivi(*vivo_->item(n, Ultimo_Cambio),
           cambiato ? Da_Quando(storia_.Adesso() - *cambiato) : QStringLiteral("mai"), {}, nullptr);
  }
}

void Tabella_IO::Evidenzia(const std::vector<int>& righe) {
  if (righe == evidenziate_) return;
  const std::vector<int> prima = std::exchange(evidenziate_, righe);
  for (const int riga : prima) Colora(riga);
  for (const int riga : righe) Colora(riga);
  if (!righe.empty()) FGr_->scrollToItem(FGr_->item(righe.front(), 0));
}

void Tabella_IO::Sotto_Il_Puntatore(int riga) {
  puntata_ = riga;
  Comunica();
}

void Tabella_IO::Comunica() {
  const int riga = puntata_ >= 0 ? puntata_ : FGr_->hasFocus() ? FGr_->currentRow() : -1;
  if (riga == detta_) return;
  detta_ = riga;
  if (Indicata) Indicata(riga);
}

bool Tabella_IO::eventFilter(QObject* oggetto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::Leave:
      Sotto_Il_Puntatore(-1);
      break;
    case QEvent::MouseMove: {
      auto* finestra = qobject_cast<QWidget*>(oggetto);
      auto* tabella = qobject_cast<QTableWidget*>(finestra->parentWidget());
      if (tabella == nullptr) break;
      const auto* mosso = static_cast<const QMouseEvent*>(evento);
      Sotto_Il_Puntatore(tabella->rowAt(static_cast<int>(mosso->position().y())));
      break;
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      // The table learns of its focus behind this filter.
      QMetaObject::invokeMethod(
          this, [this] { Comunica(); }, Qt::QueuedConnection);
      break;
    default:
      break;
  }
  return QWidget::eventFilter(oggetto, evento);
}

// Both have a header of one height and rows of one height; a horizontal bar of the one is room that
// the other must leave too.
void Tabella_IO::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  const bool stretta = FGr_->width() < Px(400 + 700 + 700 + 3300) + 2 * FGr_->frameWidth();
  FGr_->setHorizontalScrollBarPolicy(stretta ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  vivo_->setHorizontalScrollBarPolicy(stretta ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

}  // namespace tavorno
