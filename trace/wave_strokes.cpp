// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/wave_strokes.h"

#include <algorithm>
#include <cmath>

#include "trace/markup.h"

namespace tavorno {

namespace {

using Tipo = Pezzo_Disegno::Tipo;

/// A stretch of the sheet, from pixel to pixel, in which a wave stands still or moves too often to
/// be drawn edge by edge.
struct Passo_Onda {
  double X1, X2;
  bool Fitto;  ///< more than one change within a pixel
  Onda::Tratto Cosa;
};

/// Walks over the columns of pixels and skips where nothing changes.
template <class Fai>
void Percorri(const Onda& onda, const Vista_Tempi& vista, std::int64_t fine,
              const Posto_Onda& posto, Fai fai) {
  if (onda.Vuota()) return;
  const double larga = posto.Destra - posto.Sinistra;
  // The present has lasted for a moment, so that what happened just now is seen.
  const double ultimo = std::min(larga, vista.X(static_cast<double>(fine) + 1));
  double x = std::max(0.0, vista.X(static_cast<double>(onda.Inizio())));
  while (x < ultimo) {
    const auto ms = static_cast<std::int64_t>(std::floor(vista.Ms(x) + 1e-6));
    const auto dopo = onda.Dopo(ms);
    const double prossimo = dopo ? std::min(ultimo, vista.X(static_cast<double>(*dopo))) : ultimo;
    if (prossimo - x >= 1 || prossimo >= ultimo) {
      const auto valore = onda.A(ms);
      if (!valore) return;
      fai(Passo_Onda{x, prossimo, false, {0, *valore, *valore, *valore, *valore}});
      x = prossimo;
      continue;
    }
    // Columns with several changes, one by one.
    const double destra = std::min(ultimo, std::floor(x) + 1);
    const auto fino_a = static_cast<std::int64_t>(std::ceil(vista.Ms(destra) - 1e-6));
    const auto tratto = onda.Fra(ms, std::max(fino_a, ms + 1));
    if (!tratto) return;
    fai(Passo_Onda{x, destra, tratto->Fronti > 1, *tratto});
    x = destra;
  }
}

void Metti(Disegno_Tempi& disegno, Tipo tipo, Tinta_Tempi tinta, std::vector<Punto_Disegno> punti,
           double spessore = 1.5) {
  if (punti.size() < 2) return;
  disegno.push_back(
      {.Cosa = tipo, .Tinta = tinta, .Punti = std::move(punti), .Spessore = spessore, .Testo = {}});
}

/// One more rectangle, or the last one longer where it ends at this one.
void Allunga(std::vector<Punto_Disegno>& rettangoli, double x1, double x2,
             const Posto_Onda& posto) {
  if (!rettangoli.empty() && rettangoli.back().X == x1)
    rettangoli.back().X = x2;
  else
    rettangoli.insert(rettangoli.end(), {{x1, posto.Alto}, {x2, posto.Basso + 0.5}});
}

}  // namespace

Tinte_Onda Tinte_Di(Area area) {
  switch (area) {
    case Area::I:
    case Area::IB:
    case Area::AIW:
      return {Tinta_Tempi::Ingresso, Tinta_Tempi::Ingresso_Chiaro};
    case Area::Q:
    case Area::QB:
    case Area::AQW:
      return {Tinta_Tempi::Uscita, Tinta_Tempi::Uscita_Chiaro};
    case Area::T:
    case Area::C:
      return {Tinta_Tempi::Elemento, Tinta_Tempi::Elemento_Chiaro};
    default:
      return {Tinta_Tempi::Memoria, Tinta_Tempi::Memoria_Chiaro};
  }
}

void Traccia_Bit(Disegno_Tempi& disegno, const Onda& onda, const Vista_Tempi& vista,
                 std::int64_t fine, const Posto_Onda& posto, const Tinte_Onda& tinte) {
  std::vector<Punto_Disegno> linea, alti, fitti;
  const auto y = [&](double valore) { return valore != 0 ? posto.Alto : posto.Basso; };
  Percorri(onda, vista, fine, posto, [&](const Passo_Onda& passo) {
    const double x1 = posto.Sinistra + passo.X1, x2 = posto.Sinistra + passo.X2;
    if (passo.Fitto)
      Allunga(fitti, x1, x2, posto);
    else if (passo.Cosa.Ultimo != 0)
      Allunga(alti, x1, x2, posto);
    if (linea.empty() || linea.back().Y != y(passo.Cosa.Primo))
      linea.push_back({x1, y(passo.Cosa.Primo)});
    if (passo.Cosa.Ultimo != passo.Cosa.Primo) linea.push_back({x1, y(passo.Cosa.Ultimo)});
    linea.push_back({x2, y(passo.Cosa.Ultimo)});
  });
  Metti(disegno, Tipo::Rettangoli, tinte.Chiara, std::move(alti));
  Metti(disegno, Tipo::Spezzata, tinte.Linea, std::move(linea));
  Metti(disegno, Tipo::Rettangoli, tinte.Linea, std::move(fitti));
}

void Traccia_Curva(Disegno_Tempi& disegno, const Onda& onda, const Vista_Tempi& vista,
                   std::int64_t fine, const Posto_Onda& posto, const Tinte_Onda& tinte,
                   double minimo, double massimo) {
  const double scala = massimo > minimo ? (posto.Basso - posto.Alto) / (massimo - minimo) : 0;
  const auto y = [&](double valore) {
    return std::isfinite(valore) ? posto.Basso - (valore - minimo) * scala : posto.Basso;
  };
  const double zero = std::clamp(y(0), posto.Alto, posto.Basso);
  std::vector<Punto_Disegno> linea;
  Percorri(onda, vista, fine, posto, [&](const Passo_Onda& passo) {
    const double x1 = posto.Sinistra + passo.X1, x2 = posto.Sinistra + passo.X2;
    linea.push_back({x1, y(passo.Cosa.Primo)});
    if (passo.Cosa.Fronti > 0) {
      // The column's extremes, so that no peak is lost.
      linea.push_back({x1, y(passo.Cosa.Minimo)});
      linea.push_back({x1, y(passo.Cosa.Massimo)});
      linea.push_back({x1, y(passo.Cosa.Ultimo)});
    }
    linea.push_back({x2, y(passo.Cosa.Ultimo)});
  });
  if (linea.empty()) return;
  std::vector<Punto_Disegno> area = linea;
  area.push_back({linea.back().X, zero});
  area.push_back({linea.front().X, zero});
  Metti(disegno, Tipo::Area, tinte.Chiara, std::move(area));
  Metti(disegno, Tipo::Spezzata, tinte.Linea, std::move(linea));
}

void Traccia_Valori(Disegno_Tempi& disegno, const Segnale& segnale, const Onda& onda,
                    const Vista_Tempi& vista, std::int64_t fine, const Posto_Onda& posto,
                    const Tinte_Onda& tinte, double per_lettera) {
  constexpr double punta = 3;  // of a box, where its value ends
  const double mezzo = (posto.Alto + posto.Basso) / 2;
  std::vector<Punto_Disegno> fitti;
  Percorri(onda, vista, fine, posto, [&](const Passo_Onda& passo) {
    const double x1 = posto.Sinistra + passo.X1, x2 = posto.Sinistra + passo.X2;
    if (passo.Cosa.Fronti > 0 || x2 - x1 < 2 * punta) return Allunga(fitti, x1, x2, posto);
    const std::vector<Punto_Disegno> scatola = {
        {x1, mezzo}, {x1 + punta, posto.Alto},  {x2 - punta, posto.Alto},
        {x2, mezzo}, {x2 - punta, posto.Basso}, {x1 + punta, posto.Basso},
        {x1, mezzo}};
    Metti(disegno, Tipo::Area, tinte.Chiara, scatola);
    Metti(disegno, Tipo::Spezzata, tinte.Linea, scatola, 1.2);
    const std::string testo = Testo_Valore(segnale, passo.Cosa.Ultimo);
    if (static_cast<double>(Lunghezza_Utf8(testo)) * per_lettera > x2 - x1 - 3 * punta) return;
    disegno.push_back({.Cosa = Tipo::Testo,
                       .Tinta = Tinta_Tempi::Inchiostro,
                       .Punti = {{(x1 + x2) / 2, mezzo + 4.2}},
                       .Testo = testo,
                       .Dove = Pezzo_Disegno::Ancora::Mezzo});
  });
  Metti(disegno, Tipo::Rettangoli, tinte.Linea, std::move(fitti));
}

void Traccia_Attivita(Disegno_Tempi& disegno, const Onda& onda, const Vista_Tempi& vista,
                      std::int64_t fine, const Posto_Onda& posto, Tinta_Tempi tinta) {
  std::vector<Punto_Disegno> tacche;
  double ultima = posto.Sinistra;  // where recording begins is no change
  bool prima = true;
  Percorri(onda, vista, fine, posto, [&](const Passo_Onda& passo) {
    const double x1 = posto.Sinistra + passo.X1;
    const bool cambia = passo.Cosa.Fronti > 0 || !prima;
    prima = false;
    if (!cambia || x1 < ultima + 1) return;
    ultima = x1;
    tacche.insert(tacche.end(), {{x1, posto.Alto}, {x1 + 1, posto.Basso}});
  });
  Metti(disegno, Tipo::Rettangoli, tinta, std::move(tacche));
}

}  // namespace tavorno
