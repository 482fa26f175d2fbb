// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/program_list.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

const colori::Coppia& Tinta_Valore(const Stato_Riga& stato) {
  return stato.Acceso ? colori::Bit_Uno : colori::Valore_Riga;
}

/// Power is a bar before the text, thick where it flows; the state of the operand stands at the
/// right border.
void Disegna_Stato(QPainter& pittore, const QStyleOptionViewItem& opzioni, const Stato_Riga& stato,
                   int margine) {
  const QRect riga = opzioni.rect;
  if (stato.Corrente != Stato_Riga::Flusso::Ignoto) {
    const bool acceso = stato.Corrente == Stato_Riga::Flusso::Acceso;
    const int larga = acceso ? 4 : 1;
    pittore.fillRect(riga.left() + margine - larga, riga.top(), larga, riga.height(),
                     acceso ? colori::Corrente : colori::Senza_Corrente);
  }
  if (stato.Valore.isEmpty()) return;
  const int larga = opzioni.fontMetrics.horizontalAdvance(stato.Valore) + 12;
  const QRect posto(riga.right() - larga - 2, riga.top() + 1, larga, riga.height() - 2);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(Tinta_Valore(stato).Fondo);
  pittore.drawRoundedRect(posto, 3, 3);
  pittore.setPen(Tinta_Valore(stato).Testo);
  pittore.drawText(posto, Qt::AlignCenter, stato.Valore);
}

/// A thin arrow at the left border: this line is next.
void Disegna_Prossima(QPainter& pittore, const QRect& riga) {
  const double mezzo = riga.center().y() + 0.5, x = riga.left() + 1.5;
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(QPen(colori::Prossima_Riga, 1.5));
  pittore.drawPolyline(
      QPolygonF{QPointF(x, mezzo - 4), QPointF(x + 5, mezzo), QPointF(x, mezzo + 4)});
  pittore.drawLine(QPointF(riga.left(), riga.top() + 0.5), QPointF(riga.right(), riga.top() + 0.5));
}

/// Draws the number of the row in a margin before the text.
class Con_Numero : public QStyledItemDelegate {
 public:
  explicit Con_Numero(Lista_Programma* lista) : QStyledItemDelegate(lista), lista_(lista) {}

  void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
             const QModelIndex& indice) const override {
    QStyleOptionViewItem riga = opzioni;
    const int margine = Margine(opzioni);
    riga.rect.setLeft(riga.rect.left() + margine);
    QStyledItemDelegate::paint(pittore, riga, indice);

    const QRect numero(opzioni.rect.left(), opzioni.rect.top(), margine, opzioni.rect.height());
    pittore->save();
    pittore->setFont(opzioni.font);
    pittore->fillRect(numero, colori::Numero_Riga.Fondo);
    pittore->setPen(colori::Numero_Riga.Testo);
    pittore->drawText(numero.adjusted(0, 0, -6, 0), Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(indice.row()));
    Disegna_Stato(*pittore, opzioni, lista_->Stato(indice.row()), margine);
    if (lista_->Prossima() == indice.row()) Disegna_Prossima(*pittore, opzioni.rect);
    pittore->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& opzioni, const QModelIndex& indice) const override {
    return QStyledItemDelegate::sizeHint(opzioni, indice) + QSize(Margine(opzioni), 2);
  }

 private:
  static int Margine(const QStyleOptionViewItem& opzioni) {
    return opzioni.fontMetrics.horizontalAdvance(QStringLiteral("0000")) + 4;
  }

  Lista_Programma* lista_;
};

}  // namespace

Lista_Programma::Lista_Programma(QWidget* parent) : QListWidget(parent) {
  setFont(Carattere_Fisso());
  setUniformItemSizes(true);
  setItemDelegate(new Con_Numero(this));
  setToolTip(QStringLiteral("Lista Istruzioni"));
}

void Lista_Programma::Riempi(const std::vector<std::string>& righe) {
  clear();
  for (const std::string& riga : righe) addItem(Da_Byte(riga));
}

void Lista_Programma::Scegli(int riga) {
  if (riga == currentRow() && (riga < 0) == selectedItems().isEmpty()) return;
  if (riga < 0 || riga >= count()) {
    setCurrentRow(-1);
    clearSelection();
    return;
  }
  setCurrentRow(riga);
  scrollToItem(item(riga), QAbstractItemView::EnsureVisible);
}

const Stato_Riga& Lista_Programma::Stato(int riga) const {
  static const Stato_Riga niente;
  const auto posto = static_cast<std::size_t>(riga);
  return posto < stati_.size() ? stati_[posto] : niente;
}

void Lista_Programma::Mostra_Stati(std::function<Stato_Riga(int)> stato) {
  stato_ = std::move(stato);
  stati_.clear();
  prossima_ = -1;
  viewport()->update();
}

void Lista_Programma::Aggiorna_Stati(int prossima) {
  if (!stato_ || count() == 0) return;
  bool cambiato = prossima != prossima_;
  prossima_ = prossima;
  stati_.resize(static_cast<std::size_t>(count()));
  const int prima = std::max(0, indexAt(QPoint(1, 1)).row());
  for (int riga = prima; riga < count(); ++riga) {
    if (visualItemRect(item(riga)).top() > viewport()->height()) break;
    Stato_Riga nuovo = stato_(riga);
    Stato_Riga& vecchio = stati_[static_cast<std::size_t>(riga)];
    if (nuovo == vecchio) continue;
    vecchio = std::move(nuovo);
    cambiato = true;
  }
  if (cambiato) viewport()->update();
}

void Lista_Programma::paintEvent(QPaintEvent* evento) {
  QListWidget::paintEvent(evento);
  if (count() > 0) return;
  QPainter pittore(viewport());
  pittore.setPen(palette().color(QPalette::Text));
  pittore.drawText(viewport()->rect().adjusted(16, 16, -16, -16),
                   Qt::AlignCenter | Qt::TextWordWrap,
                   QStringLiteral("Nessun programma nella CPU.\n\nScrivi o apri un progetto "
                                  "nell'editor, compilalo e caricalo."));
}

}  // namespace tavorno
