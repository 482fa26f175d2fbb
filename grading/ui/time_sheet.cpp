// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/ui/time_sheet.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>

#include "trace/timing_layout.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int vicino = 24;  // to the right edge, pixels: less would hide what comes next

/// Where the marked moment stands, in the units of the drawing; -1 without one.
double Posto_Del_Segno(const QString& svg) {
  static const QRegularExpression segno(QStringLiteral("class=\"segno\" x1=\"([0-9.]+)\""));
  const QRegularExpressionMatch trovato = segno.match(svg);
  return trovato.hasMatch() ? trovato.captured(1).toDouble() : -1;
}

}  // namespace

class Foglio_Tempi::Carta : public QWidget {
 public:
  Carta(QSvgRenderer& disegno, const double& scala) : disegno_(disegno), scala_(scala) {}

 protected:
  void paintEvent(QPaintEvent* /*evento*/) override {
    if (!disegno_.isValid()) return;
    QPainter pittore(this);
    pittore.scale(scala_, scala_);
    const QRectF tutto(QPointF(0, 0), QSizeF(disegno_.defaultSize()));
    disegno_.render(&pittore, tutto);
    // What has scrolled out at the left: the names come along.
    const double fuori = -x() / scala_;
    if (fuori <= 0) return;
    pittore.setClipRect(QRectF(fuori, fine_testata, inizio_asse, tutto.height() - fine_testata));
    disegno_.render(&pittore, tutto.translated(fuori, 0));
  }

 private:
  QSvgRenderer& disegno_;
  const double& scala_;
};

Foglio_Tempi::Foglio_Tempi()
    : carta_(Chiama(QStringLiteral("picTempiCaso"), new Carta(disegno_, scala_))) {
  setObjectName(QStringLiteral("foglioTempi"));
  setWidget(carta_);
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, carta_, qOverload<>(&QWidget::update));
  setFocusPolicy(Qt::StrongFocus);
  setToolTip(
      QStringLiteral("Ingressi e uscite del caso scelto; la linea rossa è il momento del "
                     "primo rilievo. Le frecce scorrono"));
  QPalette tinte = palette();
  tinte.setColor(QPalette::Window, colori::Tempi[0].Di(colori::Carta));  // an SVG of its own
  viewport()->setPalette(tinte);
  viewport()->setAutoFillBackground(true);
}

void Foglio_Tempi::Mostra(const std::string& svg, const QString& descrizione) {
  const QString testo = Q(svg);
  disegno_.load(testo.toUtf8());
  Misura();
  carta_->setAccessibleName(QStringLiteral("Diagramma dei tempi"));
  carta_->setAccessibleDescription(descrizione);
  setAccessibleName(descrizione);
  segno_ = Posto_Del_Segno(testo);
  verticalScrollBar()->setValue(0);
  Porta_Al_Segno();
}

void Foglio_Tempi::Ingrandisci_Testo(double fattore) {
  scala_ = fattore;
  Misura();
  Porta_Al_Segno();
}

void Foglio_Tempi::Misura() {
  carta_->resize(disegno_.isValid() ? (QSizeF(disegno_.defaultSize()) * scala_).toSize()
                                    : QSize(1, 1));
  carta_->update();
}

void Foglio_Tempi::Porta_Al_Segno() {
  const int largo = viewport()->width();
  const int segno = static_cast<int>(segno_ * scala_);
  horizontalScrollBar()->setValue(segno < largo - vicino ? 0 : segno - largo * 3 / 4);
}

void Foglio_Tempi::resizeEvent(QResizeEvent* evento) {
  QScrollArea::resizeEvent(evento);
  Porta_Al_Segno();
}

void Foglio_Tempi::keyPressEvent(QKeyEvent* evento) {
  constexpr int passo = 60;  // pixels
  switch (evento->key()) {
    case Qt::Key_Left:
      return horizontalScrollBar()->setValue(horizontalScrollBar()->value() - passo);
    case Qt::Key_Right:
      return horizontalScrollBar()->setValue(horizontalScrollBar()->value() + passo);
    default:
      QScrollArea::keyPressEvent(evento);
  }
}

}  // namespace tavorno
