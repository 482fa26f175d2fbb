// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/fields.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>

#include "widgets/screen_reader.h"

namespace tavorno {

namespace {

constexpr int margine = 6;  // between a value and the border of its field, pixels

class Campo : public QLabel {
 protected:
  void paintEvent(QPaintEvent* evento) override {
    {
      QPainter pittore(this);
      pittore.fillRect(rect(), palette().brush(QPalette::Mid));
      pittore.fillRect(rect().adjusted(1, 1, -1, -1), palette().brush(QPalette::Base));
    }
    QLabel::paintEvent(evento);
  }
};

}  // namespace

QLabel* Etichetta(const QString& testo, QWidget* per) {
  auto* etichetta = new QLabel(testo);
  etichetta->setTextFormat(Qt::PlainText);
  if (auto* valore = qobject_cast<QLabel*>(per))
    Intitola(*valore, testo);
  else if (per != nullptr)
    per->setAccessibleName(testo);
  return etichetta;
}

QLabel* Campo_Valore(const QString& nome, int caratteri) {
  auto* campo = new Campo;
  campo->setObjectName(nome);
  campo->setTextFormat(Qt::PlainText);
  campo->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  campo->setForegroundRole(QPalette::Text);
  campo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  campo->setIndent(margine);
  campo->setAttribute(Qt::WA_OpaquePaintEvent);  // its frame needs no drawing anew below it
  const QFontMetrics misura(campo->font());
  campo->setMinimumWidth(misura.horizontalAdvance(QLatin1Char('0')) * caratteri + 2 * margine);
  campo->setFixedHeight(misura.height() + margine);
  campo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return campo;
}

QPushButton* Tasto(const char* nome, const char* testo, const char* suggerimento) {
  auto* tasto = new QPushButton(QString::fromUtf8(testo));
  tasto->setObjectName(QLatin1String(nome));
  tasto->setToolTip(QString::fromUtf8(suggerimento));
  tasto->setAutoDefault(true);
  tasto->setMinimumWidth(tasto->sizeHint().width() + 2 * margine);
  return tasto;
}

void Chiudi_Con_Esc(QWidget& finestra) {
  auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), &finestra);
  QObject::connect(esc, &QShortcut::activated, &finestra, &QWidget::close);
}

QString Come_Testo(std::int32_t valore) {
  return QString::number(valore);
}

QString Come_Testo(float valore) {
  constexpr int cifre = 7;
  return QString::number(static_cast<double>(valore), 'G', cifre);
}

QString Come_Testo(const std::string& cifre) {
  return QString::fromStdString(cifre);
}

}  // namespace tavorno
