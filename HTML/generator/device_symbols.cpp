// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/device_symbols.h"

#include <string>

namespace tavorno {

namespace {

using enum Apparecchio;

/// Path data from letters and lengths: Percorso("M", 1, 2, "L", 3, 4).
template <typename... Pezzi>
std::string Percorso(const Pezzi&... pezzi) {
  std::string dati;
  const auto aggiungi = [&dati](const auto& pezzo) {
    if (!dati.empty()) dati += ' ';
    if constexpr (std::is_arithmetic_v<std::decay_t<decltype(pezzo)>>)
      dati += Numero_Svg(static_cast<double>(pezzo));
    else
      dati += pezzo;
  };
  (aggiungi(pezzi), ...);
  return dati;
}

// The blade turns on the lower end of the gap: open contacts lean left, closed ones touch a stop on
// the right.
constexpr double fisso = 5;
constexpr double perno = 25;

/// How far the blade stands from the wire at the height of the operator.
double Lama_Al_Centro(bool chiuso) {
  return chiuso ? 2.9 : -4.5;
}

void Contatto_Lama(Tavola& d, bool chiuso, double x, double y) {
  d.Linea(x, y, x, y + fisso);
  d.Linea(x, y + perno, x, y + altezza_simbolo);
  if (chiuso) {
    d.Linea(x, y + fisso, x + 7, y + fisso);
    d.Linea(x, y + perno, x + 6, y + fisso - 3);
  } else {
    d.Linea(x, y + perno, x - 8, y + fisso + 2);
  }
}

/// The roller's triangle of a position switch lies on the blade.
void Triangolo_Fine_Corsa(Tavola& d, bool chiuso, double x, double y) {
  if (chiuso)
    d.Tracciato(Percorso("M", x + 1.9, y + 19, "L", x + 4.2, y + 10, "L", x + 8.5, y + 18, "Z"));
  else
    d.Tracciato(Percorso("M", x - 2.9, y + 18.5, "L", x - 6.2, y + 9.9, "L", x - 9.5, y + 18, "Z"));
}

/// The operator of a contact, around (x, y); its link leaves to the right.
void Comando(Tavola& d, Apparecchio tipo, double x, double y) {
  switch (tipo) {
    case Pulsante:
      d.Tracciato(Percorso("M", x + 2, y - 6, "h", -5, "v", 12, "h", 5));
      break;
    case Fungo:
      d.Tracciato(Percorso("M", x, y - 7, "A", 7, 7, "0 0 0", x, y + 7, "Z"));
      break;
    case Selettore:
      d.Tracciato(Percorso("M", x - 6, y - 6, "h", 4, "v", 12, "h", 4));
      break;
    case Selettore_Chiave:
      d.Cerchio(x - 2, y - 4, 3.5);
      d.Tracciato(Percorso("M", x - 2, y - 0.5, "v", 9, "m", 0, -3, "h", -3));
      break;
    case Termico:
      d.Rettangolo(x - 6, y - 7, 11, 14);
      d.Tracciato(Percorso("M", x - 0.5, y - 7, "v", 4, "h", -3, "v", 6, "h", 3, "v", 4));
      break;
    case Fotocellula:
      d.Rettangolo(x - 6, y - 7, 11, 14);
      d.Tracciato(Percorso("M", x - 4, y - 5, "l", 7, 4, "m", 0, -3, "v", 3, "h", -3));
      d.Tracciato(Percorso("M", x - 4, y + 1, "l", 7, 4, "m", 0, -3, "v", 3, "h", -3));
      break;
    case Livello:
      d.Cerchio(x - 1, y - 3, 4);
      d.Tracciato(Percorso("M", x - 6, y + 5, "q", 3, -4, 6, 0, "q", 3, 4, 6, 0));
      break;
    case Flusso:
      d.Rettangolo(x - 6, y - 6, 11, 12);
      d.Tracciato(Percorso("M", x - 4.5, y, "h", 8, "m", -3, -3, "l", 3, 3, "l", -3, 3));
      break;
    case Termostato:
      d.Rettangolo(x - 6, y - 7, 11, 14);
      d.Testo(x - 0.5, y + 4, "θ", 11, Tavola::Ancora::Mezzo);
      break;
    default:
      break;
  }
}

bool Ha_Comando(Apparecchio tipo) {
  return tipo != Contatto && tipo != Ausiliario && tipo != Fine_Corsa;
}

void Contatto_Comandato(Tavola& d, const Dispositivo& dispositivo, double x, double y) {
  const bool chiuso = dispositivo.Chiuso_A_Riposo;
  constexpr double mezzo = 14;
  constexpr double posto_comando = -14;
  Contatto_Lama(d, chiuso, x, y);
  if (dispositivo.Tipo == Fine_Corsa) Triangolo_Fine_Corsa(d, chiuso, x, y);
  if (!Ha_Comando(dispositivo.Tipo)) return;
  // The link begins at the edge of the operator.
  const double bordo = dispositivo.Tipo == Fungo                                             ? 0
                       : dispositivo.Tipo == Pulsante || dispositivo.Tipo == Selettore       ? -2.5
                       : dispositivo.Tipo == Selettore_Chiave || dispositivo.Tipo == Livello ? 2
                                                                                             : 5;
  d.Tratteggio(x + posto_comando + bordo, y + mezzo, x + Lama_Al_Centro(chiuso), y + mezzo);
  Comando(d, dispositivo.Tipo, x + posto_comando, y + mezzo);
}

/// A box in the wire, with its leads.
void Scatola(Tavola& d, double x, double y, double larghezza, double altezza) {
  const double margine = (altezza_simbolo - altezza) / 2;
  d.Linea(x, y, x, y + margine);
  d.Linea(x, y + margine + altezza, x, y + altezza_simbolo);
  d.Rettangolo(x - larghezza / 2, y + margine, larghezza, altezza);
}

void Testo_Al_Centro(Tavola& d, double x, double y, const char* testo, double altezza) {
  d.Testo(x, y + altezza_simbolo / 2 + altezza * 0.36, testo, altezza, Tavola::Ancora::Mezzo);
}

void Simbolo_Lampada(Tavola& d, double x, double y) {
  constexpr double raggio = 8;
  constexpr double croce = raggio * 0.7071;
  const double centro = y + altezza_simbolo / 2;
  d.Linea(x, y, x, centro - raggio);
  d.Linea(x, centro + raggio, x, y + altezza_simbolo);
  d.Cerchio(x, centro, raggio);
  d.Linea(x - croce, centro - croce, x + croce, centro + croce);
  d.Linea(x - croce, centro + croce, x + croce, centro - croce);
}

/// A coil that works a valve.
void Simbolo_Elettrovalvola(Tavola& d, double x, double y) {
  Scatola(d, x, y, 12, 12);
  const double centro = y + altezza_simbolo / 2;
  d.Linea(x - 6, centro + 6, x + 6, centro - 6);
  d.Tratteggio(x - 6, centro, x - 12, centro);
  d.Tracciato(Percorso("M", x - 16, centro - 6, "h", 8, "l", -8, 12, "h", 8, "Z"));
}

}  // namespace

void Disegna_Simbolo(Tavola& disegno, const Dispositivo& dispositivo, double x, double y) {
  switch (dispositivo.Tipo) {
    case Bobina:
      Scatola(disegno, x, y, 20, 12);
      break;
    case Elettrovalvola:
      Simbolo_Elettrovalvola(disegno, x, y);
      break;
    case Lampada:
      Simbolo_Lampada(disegno, x, y);
      break;
    case Carico:
      Scatola(disegno, x, y, 16, 16);
      break;
    case Trasduttore:
      Scatola(disegno, x, y, 15, 18);
      Testo_Al_Centro(disegno, x, y, "0/1", 7);
      break;
    case Analogico_Ingresso:
    case Analogico_Uscita:
      Scatola(disegno, x, y, 34, 18);
      Testo_Al_Centro(disegno, x, y, dispositivo.Dettaglio, 8);
      break;
    default:
      Contatto_Comandato(disegno, dispositivo, x, y);
      break;
  }
}

}  // namespace tavorno
