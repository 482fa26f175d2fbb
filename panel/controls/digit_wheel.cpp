// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/digit_wheel.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>
#include <QWheelEvent>

#include "panel/controls/element.h"
#include "widgets/colours.h"

namespace tavorno {

namespace {

constexpr QSizeF misura_tasto(24, 11);
constexpr int scatto_ruota = 120;  // of a mouse wheel, eighths of a degree

class Tasto_Rotella : public QAbstractButton {
 public:
  Tasto_Rotella(QSvgRenderer& disegni, const char* gruppo, const QString& nome, QWidget* sopra)
      : QAbstractButton(sopra), disegni_(disegni), gruppo_(QString::fromLatin1(gruppo)) {
    setObjectName(nome);
    setAccessibleName(qstrcmp(gruppo, "su") == 0 ? QStringLiteral("Avanti")
                                                 : QStringLiteral("Indietro"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    setAutoRepeat(true);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pennello(this);
    pennello.setRenderHint(QPainter::Antialiasing);
    disegni_.render(&pennello, isDown() ? gruppo_ + QStringLiteral("_premuto") : gruppo_,
                    QRectF(rect()));
  }

 private:
  QSvgRenderer& disegni_;
  QString gruppo_;
};

}  // namespace

Rotella::Rotella(QSvgRenderer& disegni, const QString& nome, const QString& nome_cifra,
                 QWidget* sopra)
    : QWidget(sopra),
      disegni_(disegni),
      etichetta_(Crea_Etichetta(this, nome_cifra)),
      su_(new Tasto_Rotella(disegni, "su", nome + QStringLiteral(".Su"), this)),
      giu_(new Tasto_Rotella(disegni, "giu", nome + QStringLiteral(".Giu"), this)) {
  setObjectName(nome);
  setFocusPolicy(Qt::StrongFocus);
  Colora(*etichetta_, colori::Cifra_Ruota.Testo);
  etichetta_->setFont(Grassetto(etichetta_->font()));
  connect(su_, &QAbstractButton::clicked, this, [this] { Passo(1); });
  connect(giu_, &QAbstractButton::clicked, this, [this] { Passo(-1); });
  Mostra(0);
}

void Rotella::Value(int numero) {
  const int cifra = numero == 10 ? 0 : numero == -1 ? 9 : numero;
  if (cifra == cifra_) return;
  Mostra(cifra);
  if (Cambiata) Cambiata();
}

void Rotella::Azzera() {
  Mostra(0);
}

void Rotella::Mostra(int cifra) {
  cifra_ = cifra;
  etichetta_->setText(QString::number(cifra));
  Annuncia_Numero(*this, cifra);
}

Letto Rotella::Leggi(int) const {
  return {.Nome = accessibleName(), .Aiuto = toolTip(), .Ruolo = QAccessible::SpinBox};
}

std::optional<Numero_Letto> Rotella::Leggi_Numero(int) const {
  return Numero_Letto{.Valore = static_cast<double>(cifra_), .Minimo = 0, .Massimo = 9};
}

void Rotella::Metti_Numero(int, double valore) {
  if (valore >= 0 && valore <= 9) Value(static_cast<int>(valore));
}

void Rotella::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  pennello.setRenderHint(QPainter::Antialiasing);
  disegni_.render(&pennello, QStringLiteral("ruota"), QRectF(rect()));
  if (!hasFocus()) return;
  pennello.scale(width() / static_cast<double>(Misura.width()),
                 height() / static_cast<double>(Misura.height()));
  Disegna_Fuoco(pennello, QRectF(3.5, 12.75, 27, 22.5));
}

void Rotella::resizeEvent(QResizeEvent*) {
  const double scala = width() / static_cast<double>(Misura.width());
  const QRectF tasto(QPointF((Misura.width() - misura_tasto.width()) / 2, 2), misura_tasto);
  Disponi(*su_, tasto, scala);
  Disponi(*giu_, tasto.translated(0, Misura.height() - misura_tasto.height() - 4), scala);
  Disponi(*etichetta_, QRectF(6, 15, 22, 18), scala, 15);
}

void Rotella::keyPressEvent(QKeyEvent* evento) {
  const int tasto = evento->key();
  if (tasto == Qt::Key_Up)
    Passo(1);
  else if (tasto == Qt::Key_Down)
    Passo(-1);
  else if (tasto == Qt::Key_Left)
    focusPreviousChild();
  else if (tasto == Qt::Key_Right)
    focusNextChild();
  else if (tasto >= Qt::Key_0 && tasto <= Qt::Key_9)
    Value(tasto - Qt::Key_0);
  else
    QWidget::keyPressEvent(evento);
}

void Rotella::wheelEvent(QWheelEvent* evento) {
  resto_ruota_ += evento->angleDelta().y();
  for (; resto_ruota_ >= scatto_ruota; resto_ruota_ -= scatto_ruota) Passo(1);
  for (; resto_ruota_ <= -scatto_ruota; resto_ruota_ += scatto_ruota) Passo(-1);
  evento->accept();
}

void Rotella::focusInEvent(QFocusEvent*) {
  update();
}

void Rotella::focusOutEvent(QFocusEvent*) {
  update();
}

}  // namespace tavorno
