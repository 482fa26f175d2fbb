// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/program_list.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

/// Draws the number of the row in a margin before the text.
class Con_Numero : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

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
    pittore->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& opzioni, const QModelIndex& indice) const override {
    return QStyledItemDelegate::sizeHint(opzioni, indice) + QSize(Margine(opzioni), 2);
  }

 private:
  static int Margine(const QStyleOptionViewItem& opzioni) {
    return opzioni.fontMetrics.horizontalAdvance(QStringLiteral("0000")) + 4;
  }
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
