// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/settings_page.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <utility>

#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int larga_cornice = 240;  // pixels of a frame that stands beside others

/// The numbers below the ticks of a slider.
class Numeri : public QWidget {
 public:
  explicit Numeri(const QSlider& cursore) : cursore_(cursore) {
    setFixedHeight(fontMetrics().height());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pittore(this);
    const int maniglia = cursore_.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &cursore_);
    const int corsa = width() - maniglia;
    for (int valore = cursore_.minimum(); valore <= cursore_.maximum();
         valore += cursore_.tickInterval()) {
      const int x = maniglia / 2 + QStyle::sliderPositionFromValue(
                                       cursore_.minimum(), cursore_.maximum(), valore, corsa);
      const QString testo = QString::number(valore);
      const int largo = fontMetrics().horizontalAdvance(testo);
      pittore.drawText(std::clamp(x - largo / 2, 0, width() - largo), fontMetrics().ascent(),
                       testo);
    }
  }

 private:
  const QSlider& cursore_;
};

}  // namespace

Pagina_Impostazioni::Pagina_Impostazioni(Collegamento& fili, QWidget* sopra)
    : QScrollArea(sopra), fili_(fili) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  auto* pagina = new QWidget;
  posti_ = new QBoxLayout(QBoxLayout::LeftToRight, pagina);
  const auto cursori = fili.Tabella().Cursori;
  if (cursori.empty())
    posti_->addWidget(new QLabel(QStringLiteral("Questo impianto non ha impostazioni.")), 0,
                      Qt::AlignTop);
  for (std::size_t n = 0; n < cursori.size(); ++n)
    posti_->addWidget(Crea_Cursore(n), 1, Qt::AlignTop);
  setWidget(pagina);
}

QGroupBox* Pagina_Impostazioni::Crea_Cursore(std::size_t numero) {
  const Cursore& cursore = fili_.Tabella().Cursori[numero];
  auto* cornice =
      Chiama(QStringLiteral("Frame%1").arg(numero + 1), new QGroupBox(Q(cursore.Cornice)));
  auto* slider = Chiama(Q(cursore.Nome), new QSlider(Qt::Horizontal));
  cursori_.push_back(slider);
  slider->setAccessibleName(Q(cursore.Cornice));
  slider->setRange(cursore.Minimo, cursore.Massimo);
  slider->setSingleStep(cursore.Passo_Piccolo);
  slider->setPageStep(cursore.Passo_Grande);
  slider->setValue(fili_.Valore(numero));
  slider->setTickPosition(QSlider::TicksBelow);
  // For the ticks the style lifts the handle from the middle, and out of a slider of its own
  // height.
  slider->setMinimumHeight(slider->sizeHint().height() +
                           slider->style()->pixelMetric(QStyle::PM_SliderTickmarkOffset));
  // So that the last tick falls on the end.
  const bool esatto = (cursore.Massimo - cursore.Minimo) % cursore.Passo_Grande == 0;
  slider->setTickInterval(esatto ? cursore.Passo_Grande : cursore.Passo_Piccolo);
  auto* valore = new QLabel(QString::number(slider->value()));
  valore->setFont(Grassetto(valore->font()));
  valore->setAlignment(Qt::AlignRight | Qt::AlignTop);
  valore->setMinimumWidth(valore->fontMetrics().horizontalAdvance(QStringLiteral("000")));
  connect(slider, &QSlider::valueChanged, this, [this, numero, valore](int nuovo) {
    valore->setText(QString::number(nuovo));
    fili_.Entra({.Che = Cosa::Cursore, .Indice = static_cast<int>(numero), .Numero = nuovo});
  });
  auto* posti = new QGridLayout(cornice);
  posti->setVerticalSpacing(0);
  posti->addWidget(slider, 0, 0);
  posti->addWidget(new Numeri(*slider), 1, 0);
  posti->addWidget(valore, 0, 1);
  return cornice;
}

void Pagina_Impostazioni::Specchia() {
  for (std::size_t n = 0; n < cursori_.size(); ++n) cursori_[n]->setValue(fili_.Valore(n));
}

void Pagina_Impostazioni::resizeEvent(QResizeEvent* evento) {
  const auto quanti = static_cast<int>(fili_.Tabella().Cursori.size());
  posti_->setDirection(viewport()->width() < quanti * larga_cornice ? QBoxLayout::TopToBottom
                                                                    : QBoxLayout::LeftToRight);
  QScrollArea::resizeEvent(evento);
}

}  // namespace tavorno
