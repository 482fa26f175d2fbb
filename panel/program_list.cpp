// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/program_list.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

const colori::Coppia& Tinta_Valore(const Stato_Riga& stato) {
  return stato.Acceso ? colori::Bit_Uno : colori::Valore_Riga;
}

/// A line that can be seen on the desktop's own sheet.
QColor Sul_Foglio(const QColor& tinta, const QStyleOptionViewItem& opzioni) {
  return colori::Su(tinta, opzioni.palette.color(QPalette::Base), colori::Visibile);
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
                     Sul_Foglio(acceso ? colori::Corrente : colori::Senza_Corrente, opzioni));
  }
  if (stato.Valore.isEmpty()) return;
  const int larga = opzioni.fontMetrics.horizontalAdvance(stato.Valore) + 12;
  const QRect posto(riga.right() - larga - 2, riga.top() + 1, larga, riga.height() - 2);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(QColor(Tinta_Valore(stato).Fondo));
  pittore.drawRoundedRect(posto, 3, 3);
  pittore.setPen(Tinta_Valore(stato).Testo);
  pittore.drawText(posto, Qt::AlignCenter, stato.Valore);
}

/// Width of the place for the mark of a stop, at the left border.
int Posto_Del_Segno(const QFontMetrics& metrica) {
  return metrica.height() * 3 / 4 + 2;
}

/// A disc, with a bar in it where there is a condition; a ring where it acts in one mode only. Pale
/// where a click would set one.
void Disegna_Fermata(QPainter& pittore, const QStyleOptionViewItem& opzioni,
                     Segno_Fermata::Forma forma, bool sotto_il_mouse) {
  using Forma = Segno_Fermata::Forma;
  if (forma == Forma::Nessuna && !sotto_il_mouse) return;
  const double lato = Posto_Del_Segno(opzioni.fontMetrics) - 3;
  const QRectF posto(opzioni.rect.left() + 1.5, QRectF(opzioni.rect).center().y() - lato / 2, lato,
                     lato);
  pittore.setRenderHint(QPainter::Antialiasing);
  const QColor tinta = forma == Forma::Nessuna ? colori::Fermata_Possibile : colori::Fermata;
  pittore.setPen(forma == Forma::Vuota ? QPen(tinta, 2) : QPen(Qt::NoPen));
  pittore.setBrush(forma == Forma::Vuota ? QBrush(Qt::NoBrush) : QBrush(tinta));
  pittore.drawEllipse(forma == Forma::Vuota ? posto.adjusted(1, 1, -1, -1) : posto);
  if (forma == Forma::Con_Condizione) {
    pittore.setPen(QPen(colori::Nella_Fermata.Di(colori::In_Uso()), 2));
    pittore.drawLine(QPointF(posto.left() + lato * 0.25, posto.center().y()),
                     QPointF(posto.right() - lato * 0.25, posto.center().y()));
  }
}

/// A thin arrow at the left border: this line is next.
void Disegna_Prossima(QPainter& pittore, const QStyleOptionViewItem& opzioni) {
  const QRect& riga = opzioni.rect;
  const double mezzo = riga.center().y() + 0.5, x = riga.left() + 1.5;
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(QPen(Sul_Foglio(colori::Prossima_Riga, opzioni), 1.5));
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
    const int margine = lista_->Margine();
    riga.rect.setLeft(riga.rect.left() + margine);
    QStyledItemDelegate::paint(pittore, riga, indice);

    const QRect numero(opzioni.rect.left(), opzioni.rect.top(), margine, opzioni.rect.height());
    pittore->save();
    pittore->setFont(opzioni.font);
    pittore->fillRect(numero, colori::Numero_Riga.Fondo);
    pittore->setPen(colori::Numero_Riga.Testo);
    pittore->drawText(numero.adjusted(0, 0, -6, 0), Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(indice.row()));
    if (lista_->Segno_Di)
      Disegna_Fermata(*pittore, opzioni, lista_->Segno_Di(indice.row()).Come,
                      lista_->Sotto_Il_Mouse() == indice.row());
    Disegna_Stato(*pittore, opzioni, lista_->Stato(indice.row()), margine);
    if (lista_->Prossima() == indice.row()) Disegna_Prossima(*pittore, opzioni);
    pittore->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& opzioni, const QModelIndex& indice) const override {
    return QStyledItemDelegate::sizeHint(opzioni, indice) + QSize(lista_->Margine(), 2);
  }

 private:
  Lista_Programma* lista_;
};

}  // namespace

/// A line as it is read aloud: with its number, and with what stands beside it at this moment.
class Lista_Programma::Voce : public QListWidgetItem {
 public:
  Voce(const QString& testo, Lista_Programma* lista)
      : QListWidgetItem(testo, lista, QListWidgetItem::UserType), lista_(*lista) {}

  QVariant data(int ruolo) const override {
    if (ruolo != Qt::AccessibleTextRole) return QListWidgetItem::data(ruolo);
    const int riga = lista_.row(this);
    return QStringLiteral("Riga %1: %2%3").arg(riga).arg(text().simplified(), lista_.Detto(riga));
  }

 private:
  const Lista_Programma& lista_;
};

Lista_Programma::Lista_Programma(QWidget* parent) : QListWidget(parent), annunci_(*this) {
  setFont(Carattere_Fisso());
  setUniformItemSizes(true);
  setItemDelegate(new Con_Numero(this));
  setToolTip(QStringLiteral("Lista Istruzioni"));
  viewport()->setMouseTracking(true);
  setAccessibleName(QStringLiteral("Programma nella CPU"));
}

void Lista_Programma::Riempi(const std::vector<std::string>& righe) {
  clear();
  for (const std::string& riga : righe) new Voce(Da_Byte(riga), this);
  Segni_Cambiati();
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

/// What is beside a line, in words. A line out of sight has its state too when somebody asks.
QString Lista_Programma::Detto(int riga) const {
  if (!stato_) return {};
  const Stato_Riga stato = stato_(riga);
  QString detto;
  if (!stato.Valore.isEmpty()) detto += QStringLiteral("; vale ") + stato.Valore.simplified();
  if (stato.Corrente == Stato_Riga::Flusso::Acceso) detto += QStringLiteral("; passa corrente");
  if (stato.Corrente == Stato_Riga::Flusso::Spento) detto += QStringLiteral("; non passa corrente");
  if (riga == prossima_) detto += QStringLiteral("; sarà eseguita");
  return detto;
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
    if (riga == currentRow()) annunci_.Cambiato(riga);
  }
  if (cambiato) viewport()->update();
}

// ---- the margin ---------------------------------------------------------------------------------

int Lista_Programma::Margine() const {
  const QFontMetrics metrica = fontMetrics();
  return Posto_Del_Segno(metrica) + metrica.horizontalAdvance(QStringLiteral("0000")) + 4;
}

void Lista_Programma::Segni_Cambiati() {
  if (!Segno_Di) return;
  for (int riga = 0; riga < count(); ++riga)
    item(riga)->setData(Qt::AccessibleDescriptionRole, Segno_Di(riga).Cosa);
  viewport()->update();
}

bool Lista_Programma::Nel_Margine(const QMouseEvent& evento) const {
  return Margine_Premuto && evento.position().x() + horizontalOffset() < Margine() &&
         indexAt(evento.position().toPoint()).isValid();
}

void Lista_Programma::Mouse_Sopra(int riga) {
  if (riga == sotto_il_mouse_) return;
  sotto_il_mouse_ = riga;
  viewport()->setCursor(riga < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
  viewport()->update();
}

bool Lista_Programma::viewportEvent(QEvent* evento) {
  if (evento->type() == QEvent::MouseMove) {
    const auto& mossa = static_cast<QMouseEvent&>(*evento);
    const bool libero = mossa.buttons() == Qt::NoButton && Nel_Margine(mossa);
    Mouse_Sopra(libero ? indexAt(mossa.position().toPoint()).row() : -1);
  } else if (evento->type() == QEvent::Leave) {
    Mouse_Sopra(-1);
  } else if (evento->type() == QEvent::ToolTip && Segno_Di) {
    const auto& aiuto = static_cast<const QHelpEvent&>(*evento);
    const QModelIndex riga = indexAt(aiuto.pos());
    const QString cosa = riga.isValid() ? Segno_Di(riga.row()).Cosa : QString();
    if (!cosa.isEmpty() && aiuto.pos().x() + horizontalOffset() < Margine()) {
      QToolTip::showText(aiuto.globalPos(), cosa, viewport());
      return true;
    }
  }
  return QListWidget::viewportEvent(evento);
}

/// A press in the margin selects nothing: it is no click on the line.
void Lista_Programma::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton || !Nel_Margine(*evento))
    return QListWidget::mousePressEvent(evento);
  premuto_ = true;
  setFocus(Qt::MouseFocusReason);
  Margine_Premuto(indexAt(evento->position().toPoint()).row());
}

void Lista_Programma::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (Nel_Margine(*evento))
    mousePressEvent(evento);
  else
    QListWidget::mouseDoubleClickEvent(evento);
}

void Lista_Programma::mouseReleaseEvent(QMouseEvent* evento) {
  if (!std::exchange(premuto_, false)) QListWidget::mouseReleaseEvent(evento);
}

void Lista_Programma::contextMenuEvent(QContextMenuEvent* evento) {
  const bool tasto = evento->reason() == QContextMenuEvent::Keyboard;
  const int riga = tasto ? currentRow() : indexAt(evento->pos()).row();
  if (!Vuole_Menu || riga < 0) return;
  Vuole_Menu(riga, tasto ? viewport()->mapToGlobal(visualItemRect(item(riga)).bottomLeft())
                         : evento->globalPos());
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
