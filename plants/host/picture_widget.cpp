// SPDX-License-Identifier: GPL-3.0-or-later
// What a plant looks like. Its mouse and keys are in picture_input.cpp.
#include "plants/host/picture_widget.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

QRectF Rettangolo(const Figura& figura) {
  return {figura.Left(), figura.Top(), figura.Width(), figura.Height()};
}

}  // namespace

Quadro::Quadro(Impianto& impianto, const QString& file, QWidget* sopra)
    : QWidget(sopra), impianto_(impianto), disegni_(file) {
  setObjectName(QStringLiteral("Quadro"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  for (Figura& figura : impianto_.Disegno) viste_.push_back({&figura, Rettangolo(figura), {}});

  ritmo_.setSingleShot(true);
  ritmo_.setInterval(Ritmo);
  ritmo_.setTimerType(Qt::PreciseTimer);
  ritmo_.callOnTimeout(this, &Quadro::Ridisegna_Cambiate);
  impianto_.Disegno.Prendi_Cambiate();  // what the making of the plant changed; all is drawn anyway
  impianto_.Disegno.Cambiata = [this] {
    if (!ritmo_.isActive()) ritmo_.start();
  };
}

Quadro::~Quadro() {
  impianto_.Disegno.Cambiata = nullptr;
}

QSize Quadro::sizeHint() const {
  return (disegni_.Misura().size() / Twip_Per_Pixel).toSize();
}

double Quadro::Scala() const {
  const QSizeF misura = disegni_.Misura().size();
  if (misura.isEmpty()) return 1.0 / Twip_Per_Pixel;
  return std::min(width() / misura.width(), height() / misura.height());
}

QPointF Quadro::Origine() const {
  const QSizeF disegno = disegni_.Misura().size() * Scala();
  return {(width() - disegno.width()) / 2, (height() - disegno.height()) / 2};
}

QRectF Quadro::Posto(const Figura& figura) const {
  const QRectF twip = Rettangolo(figura);
  return {Origine() + twip.topLeft() * Scala(), twip.size() * Scala()};
}

QString Quadro::Gruppo(const Figura& figura) {
  const QString nome = Q(figura.Nome);
  return figura.Picture().empty() ? nome : nome + '.' + Q(figura.Picture());
}

// Where a figure paints now, with what its drawing has outside the figure's own rectangle.
QRectF Quadro::Occupato(const Vista& vista) const {
  if (!vista.Di->Visible()) return {};
  QRectF limiti = disegni_.Limiti(Gruppo(*vista.Di)).united(vista.A_Riposo);
  const QRectF ora = Rettangolo(*vista.Di);
  const double x = vista.A_Riposo.width() > 0 ? ora.width() / vista.A_Riposo.width() : 1;
  const double y = vista.A_Riposo.height() > 0 ? ora.height() / vista.A_Riposo.height() : 1;
  limiti = QRectF(ora.left() + (limiti.left() - vista.A_Riposo.left()) * x,
                  ora.top() + (limiti.top() - vista.A_Riposo.top()) * y, limiti.width() * x,
                  limiti.height() * y);
  return QRectF(Origine() + limiti.topLeft() * Scala(), limiti.size() * Scala())
      .adjusted(-3, -3, 3, 3);
}

void Quadro::Ridisegna_Cambiate() {
  const std::vector<Figura*> cambiate = impianto_.Disegno.Prendi_Cambiate();
  for (Vista& vista : viste_) {
    if (std::find(cambiate.begin(), cambiate.end(), vista.Di) == cambiate.end()) continue;
    const QRectF ora = Occupato(vista);
    update(vista.Ultimo.toAlignedRect());
    update(ora.toAlignedRect());
    vista.Ultimo = ora;
  }
}

void Quadro::paintEvent(QPaintEvent* evento) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.fillRect(evento->rect(), QColor(0xec, 0xe9, 0xe2));
  pittore.translate(Origine());
  disegni_.Disegna(pittore, QStringLiteral("fondo"), 0, Scala(), {});
  for (Vista& vista : viste_) {
    vista.Ultimo = Occupato(vista);
    if (vista.Ultimo.intersects(evento->rect())) Disegna_Figura(pittore, vista);
  }
  const Vista* fuoco = hasFocus() && fuoco_in_vista_ ? A_Fuoco() : nullptr;
  if (fuoco == nullptr) return;
  pittore.translate(-Origine());
  pittore.setPen(QPen(QColor(0x2f, 0x6f, 0xd0), 2));
  pittore.setBrush(Qt::NoBrush);
  pittore.drawRoundedRect(Posto(*fuoco->Di).adjusted(-2, -2, 2, 2), 4, 4);
}

void Quadro::Disegna_Figura(QPainter& pittore, const Vista& vista) {
  const Figura& figura = *vista.Di;
  if (!figura.Visible()) return;
  const double scala = Scala();
  const QRectF ora = Rettangolo(figura);
  QTransform posa;
  posa.translate(ora.left() * scala, ora.top() * scala);
  if (ora.size() != vista.A_Riposo.size() && !vista.A_Riposo.isEmpty())
    posa.scale(ora.width() / vista.A_Riposo.width(), ora.height() / vista.A_Riposo.height());
  posa.translate(-vista.A_Riposo.left() * scala, -vista.A_Riposo.top() * scala);
  disegni_.Disegna(pittore, Gruppo(figura), figura.FillColor(), scala, posa);

  if (figura.Caption().empty()) return;
  QFont carattere = font();
  carattere.setPixelSize(std::max(7, static_cast<int>(120 * scala)));
  pittore.setFont(carattere);
  pittore.setPen(Tinta(figura.ForeColor()));
  pittore.drawText(QRectF(ora.topLeft() * scala, ora.size() * scala), Qt::AlignCenter,
                   Q(figura.Caption()));
}

}  // namespace tavorno
