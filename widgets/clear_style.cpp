// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/clear_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "widgets/close_icon.h"
#include "widgets/colours.h"

namespace tavorno {

namespace {

// How Fusion makes a line of a palette, in percent; a box that can be ticked gets it a tenth
// lighter.
constexpr int contorno = 140;
constexpr int contorno_fuoco = 125;
constexpr int chiarezza_fuoco = 160;  // of 255, at most
constexpr double con_margine = colori::Visibile * 1.3;
constexpr double sotto_il_velo = colori::Visibile * 1.9;

QColor Linea_Fuoco(const QColor& scelta) {
  QColor linea = scelta.darker(contorno_fuoco);
  if (linea.value() > chiarezza_fuoco)
    linea.setHsl(linea.hue(), linea.saturation(), chiarezza_fuoco);
  return linea;
}

/// The window whose outline can be seen on `finestra`.
QColor Finestra_Che_Disegna(const QColor& finestra, double contrasto) {
  const QColor linea = colori::Su(finestra.darker(contorno), finestra, contrasto);
  const QColor fatta = linea.lighter(contorno);
  // On a middle grey no line that is lighter than the ground can be had.
  return colori::Contrasto(fatta.darker(contorno), finestra) >= colori::Visibile
             ? fatta
             : QColor(colori::Nero);
}

void Cornice(QPainter& pittore, const QRect& dove, const QColor& colore) {
  pittore.save();
  pittore.setPen(colore);
  pittore.setBrush(Qt::NoBrush);
  pittore.drawRect(dove.adjusted(0, 0, -1, -1));
  pittore.restore();
}

/// Draws with a copy of the options that has another palette; false when they are of another kind.
template <class Opzioni>
bool Con(const QStyleOption* opzioni, const auto& tinte, const auto& disegna) {
  const auto* sue = qstyleoption_cast<const Opzioni*>(opzioni);
  if (sue == nullptr) return false;
  Opzioni copia(*sue);
  copia.palette = tinte(sue->palette);
  disegna(&copia);
  return true;
}

QColor Linea_Fuoco_Su(const QColor& scelta, const QColor& finestra) {
  return colori::Su(Linea_Fuoco(scelta), finestra, con_margine);
}

}  // namespace

QPalette Con_Contorni_Visibili(const QPalette& tinte, bool velati) {
  using P = QPalette;
  P nuove = tinte;
  for (const P::ColorGroup gruppo : {P::Active, P::Inactive, P::Disabled}) {
    const QColor finestra = tinte.color(gruppo, P::Window);
    nuove.setColor(gruppo, P::Window,
                   Finestra_Che_Disegna(finestra, velati ? sotto_il_velo : con_margine));
    const QColor fuoco = Linea_Fuoco_Su(tinte.color(gruppo, P::Highlight), finestra);
    nuove.setColor(gruppo, P::Highlight, fuoco.lighter(contorno_fuoco));
  }
  return nuove;
}

Stile_Chiaro::Stile_Chiaro() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Stile_Chiaro::polish(QPalette& tinte) {
  using P = QPalette;
  QProxyStyle::polish(tinte);
  for (const P::ColorGroup gruppo : {P::Active, P::Inactive, P::Disabled}) {
    const QColor fondo = tinte.color(gruppo, P::Base);
    const QColor sua = tinte.color(gruppo, P::PlaceholderText);
    const auto sopra = [&](int colore, int sotto) {
      return sotto + (colore - sotto) * sua.alpha() / 255;
    };
    const QColor vista(sopra(sua.red(), fondo.red()), sopra(sua.green(), fondo.green()),
                       sopra(sua.blue(), fondo.blue()));
    if (colori::Contrasto(vista, fondo) < colori::Leggibile)
      tinte.setColor(gruppo, P::PlaceholderText, colori::Su(vista, fondo));
  }
}

QPalette Stile_Chiaro::Per(const QPalette& tinte, bool velati) const {
  constexpr std::size_t tante = 64;  // palettes of a desktop that has changed go with the rest
  auto& fatte = fatte_[velati ? 1 : 0];
  auto trovata = fatte.find(tinte.cacheKey());
  if (trovata == fatte.end()) {
    if (fatte.size() >= tante) fatte.clear();
    const QPalette nuova = Con_Contorni_Visibili(tinte, velati);
    // A part that is drawn of other parts comes back with what it was given.
    fatte.emplace(nuova.cacheKey(), nuova);
    trovata = fatte.emplace(tinte.cacheKey(), nuova).first;
  }
  QPalette sua = trovata->second;
  sua.setCurrentColorGroup(tinte.currentColorGroup());
  return sua;
}

void Stile_Chiaro::drawPrimitive(PrimitiveElement parte, const QStyleOption* opzioni,
                                 QPainter* pittore, const QWidget* sopra) const {
  const auto tinte = [this](const QPalette& sue) { return Per(sue); };
  const auto disegna = [&](const QStyleOption* queste) {
    QProxyStyle::drawPrimitive(parte, queste, pittore, sopra);
  };
  bool fatto = false;
  switch (parte) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
    case PE_PanelButtonCommand:
      fatto = Con<QStyleOptionButton>(opzioni, tinte, disegna);
      break;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
      fatto = Con<QStyleOptionFrame>(opzioni, tinte, disegna);
      break;
    default:
      break;
  }
  if (!fatto) disegna(opzioni);
  // A menu lies over sheets that may have its colour.
  if (parte == PE_PanelMenu)
    Cornice(*pittore, opzioni->rect,
            Per(opzioni->palette).color(QPalette::Window).darker(contorno));
  // Fusion only breathes it on.
  if (parte == PE_FrameFocusRect && opzioni->state.testFlag(State_KeyboardFocusChange))
    Cornice(*pittore, opzioni->rect,
            Linea_Fuoco_Su(opzioni->palette.color(QPalette::Highlight),
                           opzioni->palette.color(QPalette::Window)));
}

void Stile_Chiaro::drawControl(ControlElement parte, const QStyleOption* opzioni, QPainter* pittore,
                               const QWidget* sopra) const {
  const auto tinte = [this](const QPalette& sue) { return Per(sue); };
  const auto disegna = [&](const QStyleOption* queste) {
    QProxyStyle::drawControl(parte, queste, pittore, sopra);
  };
  if (parte != CE_ProgressBarGroove || !Con<QStyleOptionProgressBar>(opzioni, tinte, disegna))
    disegna(opzioni);
}

void Stile_Chiaro::drawComplexControl(ComplexControl parte, const QStyleOptionComplex* opzioni,
                                      QPainter* pittore, const QWidget* sopra) const {
  const auto tinte = [this](const QPalette& sue) { return Per(sue); };
  const auto velate = [this](const QPalette& sue) { return Per(sue, true); };
  const auto disegna = [&](const QStyleOptionComplex* queste) {
    QProxyStyle::drawComplexControl(parte, queste, pittore, sopra);
  };
  bool fatto = false;
  switch (parte) {
    case CC_SpinBox:
      fatto = Con<QStyleOptionSpinBox>(opzioni, tinte, disegna);
      break;
    case CC_ComboBox:
      fatto = Con<QStyleOptionComboBox>(opzioni, tinte, disegna);
      break;
    case CC_Slider:
      fatto = Con<QStyleOptionSlider>(opzioni, tinte, disegna);
      break;
    case CC_ScrollBar:
      fatto = Con<QStyleOptionSlider>(opzioni, velate, disegna);
      break;
    default:
      break;
  }
  if (!fatto) disegna(opzioni);
}

QIcon Stile_Chiaro::standardIcon(StandardPixmap quale, const QStyleOption* opzioni,
                                 const QWidget* sopra) const {
  if (quale == SP_TitleBarCloseButton) return Croce_Di_Chiusura();
  return QProxyStyle::standardIcon(quale, opzioni, sopra);
}

}  // namespace tavorno
