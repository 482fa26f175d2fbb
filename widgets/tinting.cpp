// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tinting.h"

#include <QEvent>
#include <QPalette>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVariant>
#include <QWidget>
#include <utility>

namespace tavorno {

namespace {

constexpr int ruolo_coppia = Qt::UserRole + 77;

class Seguace : public QObject {
 public:
  Seguace(QWidget& parte, std::function<void()> tingi) : QObject(&parte), tingi_(std::move(tingi)) {
    parte.installEventFilter(this);
  }

 protected:
  // The widget has its new palette behind this event, and several come together.
  bool eventFilter(QObject* /*parte*/, QEvent* evento) override {
    if (evento->type() != QEvent::ApplicationPaletteChange || atteso_) return false;
    atteso_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          atteso_ = false;
          tingi_();
        },
        Qt::QueuedConnection);
    return false;
  }

 private:
  std::function<void()> tingi_;
  bool atteso_ = false;
};

/// What a widget was given last.
class Tingitura : public QObject {
 public:
  explicit Tingitura(QWidget& parte) : QObject(&parte), parte_(parte) {
    setObjectName(QStringLiteral("tingitura"));
  }
  void Metti() {
    QPalette tinte;
    if (Coppia != nullptr) {
      tinte.setColor(QPalette::Window, Coppia->Fondo);
      tinte.setColor(QPalette::Button, Coppia->Fondo);
      tinte.setColor(QPalette::WindowText, Coppia->Testo);
      tinte.setColor(QPalette::ButtonText, Coppia->Testo);
    }
    parte_.setPalette(tinte);
  }

  const colori::Coppia* Coppia = nullptr;

 private:
  QWidget& parte_;
};

}  // namespace

void Segui_Colori(QWidget& parte, std::function<void()> tingi) {
  tingi();
  new Seguace(parte, std::move(tingi));
}

void Tingi(QWidget& parte, const colori::Coppia* coppia) {
  auto* tingitura =
      parte.findChild<QObject*>(QStringLiteral("tingitura"), Qt::FindDirectChildrenOnly);
  auto* sua = static_cast<Tingitura*>(tingitura);
  if (sua == nullptr) {
    sua = new Tingitura(parte);
    sua->Coppia = coppia;
    Segui_Colori(parte, [sua] { sua->Metti(); });
  } else if (sua->Coppia != coppia) {
    sua->Coppia = coppia;
    sua->Metti();
  }
}

void Tingi(QTableWidgetItem& cella, const colori::Coppia* coppia) {
  cella.setData(ruolo_coppia, QVariant::fromValue(static_cast<const void*>(coppia)));
  cella.setBackground(coppia != nullptr ? QBrush(coppia->Fondo) : QBrush());
  cella.setForeground(coppia != nullptr ? QBrush(coppia->Testo) : QBrush());
}

void Ritingi(QTableWidget& tabella) {
  const QSignalBlocker zitta(tabella);
  for (int riga = 0; riga < tabella.rowCount(); ++riga) {
    for (int colonna = 0; colonna < tabella.columnCount(); ++colonna) {
      QTableWidgetItem* cella = tabella.item(riga, colonna);
      if (cella == nullptr) continue;
      const auto* coppia =
          static_cast<const colori::Coppia*>(cella->data(ruolo_coppia).value<const void*>());
      if (coppia != nullptr) Tingi(*cella, coppia);
    }
  }
}

}  // namespace tavorno
