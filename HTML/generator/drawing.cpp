// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/drawing.h"

#include <cmath>

#include "HTML/generator/html_text.h"

namespace tavorno {

namespace {

std::string Attributo(std::string_view nome, double valore) {
  return " " + std::string(nome) + "=\"" + Numero_Svg(valore) + "\"";
}

std::string Estremi(double x1, double y1, double x2, double y2) {
  return Attributo("x1", x1) + Attributo("y1", y1) + Attributo("x2", x2) + Attributo("y2", y2);
}

}  // namespace

std::string Numero_Svg(double valore) {
  const long centesimi = std::lround(valore * 100);
  const long resto = std::labs(centesimi) % 100;
  std::string testo = centesimi < 0 ? "-" : "";
  testo += std::to_string(std::labs(centesimi) / 100);
  if (resto != 0) testo += resto < 10 ? ".0" : ".";
  if (resto != 0) testo += std::to_string(resto % 10 == 0 ? resto / 10 : resto);
  return testo;
}

void Tavola::Linea(double x1, double y1, double x2, double y2) {
  elementi_ += "<line" + Estremi(x1, y1, x2, y2) + "/>\n";
}

void Tavola::Tratteggio(double x1, double y1, double x2, double y2) {
  elementi_ += "<line" + Estremi(x1, y1, x2, y2) + " stroke-dasharray=\"2 2\"/>\n";
}

void Tavola::Tracciato(std::string_view dati) {
  elementi_ += "<path d=\"" + std::string(dati) + "\"/>\n";
}

void Tavola::Rettangolo(double x, double y, double larghezza, double altezza) {
  elementi_ += "<rect" + Attributo("x", x) + Attributo("y", y) + Attributo("width", larghezza) +
               Attributo("height", altezza) + "/>\n";
}

void Tavola::Cerchio(double x, double y, double raggio) {
  elementi_ +=
      "<circle" + Attributo("cx", x) + Attributo("cy", y) + Attributo("r", raggio) + "/>\n";
}

void Tavola::Punto(double x, double y) {
  elementi_ += "<circle" + Attributo("cx", x) + Attributo("cy", y) +
               " r=\"2\" fill=\"#000\" stroke=\"none\"/>\n";
}

void Tavola::Testo(double x, double y, std::string_view testo, double altezza, Ancora ancora,
                   bool neretto) {
  elementi_ += "<text" + Attributo("x", x) + Attributo("y", y) + Attributo("font-size", altezza);
  if (ancora != Ancora::Inizio)
    elementi_ += ancora == Ancora::Mezzo ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
  if (neretto) elementi_ += " font-weight=\"bold\"";
  elementi_ += " fill=\"#000\" stroke=\"none\">" + Html(testo) + "</text>\n";
}

std::string Tavola::Svg(double larghezza, double altezza, std::string_view titolo) const {
  const std::string misure = Numero_Svg(larghezza) + " " + Numero_Svg(altezza);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attributo("width", larghezza) +
         Attributo("height", altezza) + " viewBox=\"0 0 " + misure + "\">\n<title>" + Html(titolo) +
         "</title>\n<rect" + Attributo("width", larghezza) + Attributo("height", altezza) +
         " fill=\"#fff\"/>\n<g fill=\"none\" stroke=\"#000\" stroke-width=\"1.2\" "
         "font-family=\"sans-serif\">\n" +
         elementi_ + "</g>\n</svg>\n";
}

}  // namespace tavorno
