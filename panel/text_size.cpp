// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/text_size.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QVariant>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "widgets/own_text.h"

namespace tavorno {

namespace {

constexpr double per_passo = 1.1;

// What a widget measured before its text was enlarged for the first time.
constexpr char punti[] = "basePunti";
constexpr char suo[] = "baseSuo";  // its font is not that of the widget around it
constexpr char minima[] = "baseMinima";
constexpr char massima[] = "baseMassima";

void Annota(QWidget& parte) {
  if (parte.property(punti).isValid() || dynamic_cast<Testo_Proprio*>(&parte) != nullptr) return;
  parte.setProperty(punti, parte.font().pointSizeF());
  parte.setProperty(suo, parte.testAttribute(Qt::WA_SetFont));
  parte.setProperty(minima, parte.minimumSize());
  parte.setProperty(massima, parte.maximumSize());
}

int Scalata(int pixel, double fattore) {
  return pixel == QWIDGETSIZE_MAX ? pixel : static_cast<int>(std::lround(pixel * fattore));
}
QSize Scalata(const QSize& misura, double fattore) {
  return {Scalata(misura.width(), fattore), Scalata(misura.height(), fattore)};
}

/// A font of its own, and the lengths that were given by hand to hold its text.
void Ingrandisci(QWidget& parte, bool radice, double fattore) {
  if (auto* testo = dynamic_cast<Testo_Proprio*>(&parte)) return testo->Ingrandisci_Testo(fattore);
  if (!parte.property(punti).isValid()) return;
  // A font in pixels follows the height of its own part, which grows below.
  const bool in_punti = parte.property(punti).toDouble() > 0;
  if (in_punti && (radice || parte.property(suo).toBool())) {
    QFont carattere = parte.font();
    carattere.setPointSizeF(parte.property(punti).toDouble() * fattore);
    parte.setFont(carattere);
  }
  if (radice) return;
  if (auto* lista = qobject_cast<QComboBox*>(&parte)) {
    // It keeps the least width of the font that it was first measured with.
    const QSize prima = parte.property(minima).toSize();
    lista->setMinimumSize(fattore == 1 ? prima : prima.expandedTo(lista->sizeHint()));
    return;
  }
  if (qobject_cast<QLabel*>(&parte) == nullptr) return;
  parte.setMinimumSize(Scalata(parte.property(minima).toSize(), fattore));
  parte.setMaximumSize(Scalata(parte.property(massima).toSize(), fattore));
}

}  // namespace

Grandezza_Testo::Grandezza_Testo() {
  qApp->installEventFilter(this);
}

void Grandezza_Testo::Segui(QWidget& vista) {
  std::erase_if(viste_, [](const QPointer<QWidget>& una) { return una.isNull(); });
  viste_.emplace_back(&vista);
  // What it measures before anything around it grows: in a workbench it has the font of the window.
  Annota(vista);
  for (QWidget* parte : vista.findChildren<QWidget*>()) Annota(*parte);
  if (passi_ != 0) Applica(vista, Fattore(vista));
}

void Grandezza_Testo::Cambia(int passi) {
  passi_ = std::clamp(passi_ + passi, Passi_Minimi, Passi_Massimi);
  Applica_A_Tutte();
}

void Grandezza_Testo::Normale() {
  Cambia(-passi_);
}

void Grandezza_Testo::Proietta(QWidget* finestra) {
  const QPointer<QWidget> prima = std::exchange(proiettata_, nullptr);
  if (prima) {
    Applica(*prima, 1);
    if (prima->layout() != nullptr) prima->layout()->setSizeConstraint(vincolo_);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    posto_proiettata_->Rimetti(*prima);
  }
  if (finestra != nullptr && finestra != prima) {
    proiettata_ = finestra;
    posto_proiettata_.emplace(*finestra);
    // A layout that wants more room for the larger texts would resize the window, which then no
    // longer fills the screen.
    if (QLayout* disposizione = finestra->layout()) {
      vincolo_ = disposizione->sizeConstraint();
      disposizione->setSizeConstraint(QLayout::SetNoConstraint);
    }
    Applica(*finestra, Di_Proiettore);
    finestra->showFullScreen();
  }
  Applica_A_Tutte();
}

double Grandezza_Testo::Fattore(const QWidget& vista) const {
  const bool grande = proiettata_ && vista.window() == proiettata_;
  return std::pow(per_passo, passi_) * (grande ? Di_Proiettore : 1);
}

void Grandezza_Testo::Applica_A_Tutte() {
  for (const QPointer<QWidget>& vista : viste_) {
    if (vista) Applica(*vista, Fattore(*vista));
  }
}

/// All but the windows in it and what follows for itself.
void Grandezza_Testo::Applica(QWidget& radice, double fattore) {
  QList<QWidget*> parti = radice.findChildren<QWidget*>();
  parti.removeIf([&](QWidget* parte) {
    return parte->window() != radice.window() || Seguita(parte) != Seguita(&radice);
  });
  // A bold caption takes its size from what is around it, so all are noted before any grows.
  Annota(radice);
  if (fattore != 1)
    for (QWidget* parte : std::as_const(parti)) Annota(*parte);
  Ingrandisci(radice, true, fattore);
  for (QWidget* parte : std::as_const(parti)) Ingrandisci(*parte, false, fattore);
  // From within: of what lies behind other views no layout tells the one around it on its own.
  std::ranges::reverse(parti);
  for (QWidget* parte : std::as_const(parti)) {
    if (parte->layout() != nullptr) {
      parte->layout()->invalidate();
      parte->layout()->activate();
    }
    parte->updateGeometry();
  }
}

/// The view that an object belongs to; null: none.
const QWidget* Grandezza_Testo::Seguita(const QObject* oggetto) const {
  for (; oggetto != nullptr; oggetto = oggetto->parent()) {
    for (const QPointer<QWidget>& vista : viste_) {
      if (vista == oggetto) return vista;
    }
  }
  return nullptr;
}

bool Grandezza_Testo::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Wheel) {
    const auto* giro = static_cast<const QWheelEvent*>(evento);
    if (!giro->modifiers().testFlag(Qt::ControlModifier) || giro->angleDelta().y() == 0 ||
        Seguita(oggetto) == nullptr)
      return false;
    Cambia(giro->angleDelta().y() > 0 ? 1 : -1);
    return true;
  }
  // A text has commands of its own for these keys.
  if (evento->type() != QEvent::ShortcutOverride) return false;
  const auto* tasto = static_cast<const QKeyEvent*>(evento);
  const bool nostro = tasto->modifiers().testFlag(Qt::ControlModifier) &&
                      (tasto->key() == Qt::Key_Plus || tasto->key() == Qt::Key_Minus ||
                       tasto->key() == Qt::Key_Equal || tasto->key() == Qt::Key_0);
  if (!nostro || Seguita(oggetto) == nullptr) return false;
  evento->ignore();
  return true;
}

}  // namespace tavorno
