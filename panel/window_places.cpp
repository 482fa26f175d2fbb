// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/window_places.h"

#include <algorithm>
#include <cstdlib>

namespace tavorno {

namespace {

constexpr int barra = 16;      // thickness of a scroll bar
constexpr int tolleranza = 4;  // pixels by which a desktop may place a window otherwise
constexpr int comoda = 600;    // width at which the CPU and its values can be read at a glance

}  // namespace

bool Vicini(const QRect& uno, const QRect& altro) {
  return std::abs(uno.x() - altro.x()) <= tolleranza &&
         std::abs(uno.y() - altro.y()) <= tolleranza &&
         std::abs(uno.width() - altro.width()) <= tolleranza &&
         std::abs(uno.height() - altro.height()) <= tolleranza;
}

QRect Dentro(const QRect& schermo, const QRect& finestra) {
  const QSize misura = finestra.size().boundedTo(schermo.size());
  const QPoint ultimo(schermo.right() + 1 - misura.width(), schermo.bottom() + 1 - misura.height());
  return {QPoint(std::clamp(finestra.x(), schermo.left(), ultimo.x()),
                 std::clamp(finestra.y(), schermo.top(), ultimo.y())),
          misura};
}

QRect Posto_Film(const QRect& schermo, const QRect& pannello, const Misura_Finestra& film) {
  QSize misura = film.Voluta.boundedTo(schermo.size());
  const int accanto = pannello.left() - schermo.left();
  if (!pannello.isEmpty() && accanto >= film.Minima.width())
    misura.setWidth(std::min(misura.width(), accanto));
  const int destra = schermo.right() + 1 - misura.width();
  const int fondo = schermo.bottom() + 1 - misura.height();
  const auto coperto = [&](const QPoint& angolo) {
    const QRect comune = pannello.intersected({angolo, misura});
    return comune.isEmpty() ? 0 : comune.width() * comune.height();
  };
  const QPoint angoli[] = {{schermo.left(), fondo},
                           {destra, fondo},
                           {destra, schermo.top()},
                           {schermo.left(), schermo.top()}};
  return {*std::ranges::min_element(angoli, {}, coperto), misura};
}

Posti_Impianto Posti_Colonna(const QRect& schermo, const QPoint& angolo,
                             const Misura_Finestra& stati, const Misura_Finestra& pannello) {
  const int larga = schermo.right() + 1 - angolo.x();
  const int alta = schermo.bottom() + 1 - angolo.y();
  QSize sopra = stati.Voluta.boundedTo(QSize(larga, alta));
  const int per_stati = alta - Stacco_Pannello - pannello.Minima.height();
  // Scrolled to and fro, it needs the bar's height more.
  if (sopra.width() < stati.Voluta.width()) sopra.setHeight(std::min(sopra.height() + barra, alta));
  if (sopra.height() > per_stati)
    sopra.setHeight(std::max(per_stati, std::min(stati.Minima.height(), sopra.height())));
  const int y = angolo.y() + sopra.height() + Stacco_Pannello;
  const QSize sotto = pannello.Voluta.boundedTo(QSize(larga, schermo.bottom() + 1 - y));
  return {{}, {angolo, sopra}, {QPoint(angolo.x(), y), sotto}};
}

Posti_Impianto Posti_Esercizio(const QRect& schermo, const Misura_Finestra& impianto,
                               const Misura_Finestra& stati, const Misura_Finestra& pannello,
                               const QRect& pannello_ora) {
  const QPoint angolo = schermo.topLeft();
  QSize grande = impianto.Voluta.boundedTo(schermo.size());
  const Posti_Impianto detti{{angolo, grande},
                             {angolo + QPoint(grande.width() + Stacco_Stati, 0), stati.Voluta},
                             pannello_ora};
  if (schermo.contains(detti.Stati) && schermo.contains(pannello_ora) &&
      !pannello_ora.intersects(detti.Impianto) && !pannello_ora.intersects(detti.Stati))
    return detti;

  // First what is comfortable, as long as the picture stays readable, then what has to be.
  const auto lascia = [&](int larghezza, int almeno) {
    const int resta = schermo.width() - Stacco_Stati - larghezza;
    if (grande.width() > resta) grande.setWidth(std::max(resta, std::min(almeno, grande.width())));
  };
  lascia(comoda, impianto.Voluta.width() * 85 / 100);
  lascia(std::max(stati.Minima.width(), pannello.Minima.width()), impianto.Minima.width());
  Posti_Impianto posti =
      Posti_Colonna(schermo, angolo + QPoint(grande.width() + Stacco_Stati, 0), stati, pannello);
  posti.Impianto = {angolo, grande};
  return posti;
}

}  // namespace tavorno
