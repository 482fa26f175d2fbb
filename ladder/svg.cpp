// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include "ladder/shapes.h"
#include "trace/markup.h"

namespace tavorno {

namespace {

/// At most one decimal, as a file for people has it.
std::string Cifre(double numero) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.1f", numero);
  std::string cifre = testo;
  if (cifre.ends_with(".0")) cifre.resize(cifre.size() - 2);
  return cifre;
}

const char* Classe(Stile_Scritta stile) {
  switch (stile) {
    case Stile_Scritta::Simbolo:
      return "simbolo";
    case Stile_Scritta::Segno:
      return "segno";
    case Stile_Scritta::Nome:
      return "nome";
    case Stile_Scritta::Piedino:
      return "piedino";
    default:
      return "indirizzo";
  }
}

const char* Ancora_Svg(Ancora posto) {
  switch (posto) {
    case Ancora::Sinistra:
      return "start";
    case Ancora::Destra:
      return "end";
    default:
      return "middle";
  }
}

std::string Punto_Svg(double x, double y) {
  return Cifre(x) + " " + Cifre(y);
}

}  // namespace

std::string Come_Svg(const Tratteggio_Rete& forme, const std::vector<bool>& vivi) {
  std::string testo;
  const auto classe = [&](Nodo_Elettrico nodo) {
    const bool vivo = nodo >= 0 && static_cast<std::size_t>(nodo) < vivi.size() &&
                      vivi[static_cast<std::size_t>(nodo)];
    return vivo ? " class=\"vivo\"" : "";
  };
  for (const Cornice& c : forme.Cornici)
    testo += "<rect x=\"" + Cifre(c.X) + "\" y=\"" + Cifre(c.Y) + "\" width=\"" +
             Cifre(c.Larghezza) + "\" height=\"" + Cifre(c.Altezza) + "\" rx=\"2\"" +
             classe(c.Nodo) + "/>\n";
  for (const Asta& t : forme.Tratti)
    testo += "<path d=\"M" + Punto_Svg(t.X1, t.Y1) + " L" + Punto_Svg(t.X2, t.Y2) + "\"" +
             classe(t.Nodo) + "/>\n";
  for (const Parentesi& p : forme.Curve)
    testo += "<path d=\"M" + Punto_Svg(p.X + p.Larghezza, p.Y - p.Altezza / 2) + " Q" +
             Punto_Svg(p.X - p.Larghezza, p.Y) + " " +
             Punto_Svg(p.X + p.Larghezza, p.Y + p.Altezza / 2) + "\"" + classe(p.Nodo) + "/>\n";
  for (const Giunto& g : forme.Giunti)
    testo += "<circle cx=\"" + Cifre(g.X) + "\" cy=\"" + Cifre(g.Y) + "\" r=\"" +
             Cifre(raggio_giunto) + "\"" + classe(g.Nodo) + "/>\n";
  for (const Scritta& s : forme.Scritte)
    testo += "<text x=\"" + Cifre(s.X) + "\" y=\"" + Cifre(s.Y) + "\" class=\"" + Classe(s.Stile) +
             "\" text-anchor=\"" + Ancora_Svg(s.Posto) + "\">" + In_Xml(s.Testo) + "</text>\n";
  return testo;
}

}  // namespace tavorno
