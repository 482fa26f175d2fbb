// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cstdio>

#include "trace/drawing.h"
#include "trace/markup.h"

namespace tavorno {

namespace {

constexpr double alta_titolo = 34;

// In the order of the enumeration. The window has its own list of them.
constexpr std::array<std::uint32_t, static_cast<std::size_t>(Tinta_Tempi::Quante)> colori = {
    0xffffff,            // ground
    0xf7f9fb,            // ground of the names
    0xe6ebf1,            // ground of a group
    0xf0f3f7,            // ground of the axis
    0xcfe2f7,            // selected row
    0xe3e7ec,            // between rows
    0xd3d9e0,            // grid
    0xd8cdea,            // scans
    0x1b1f24,            // text
    0x566070,            // lesser text
    0x1f6f9e, 0xcfe4f2,  // inputs
    0xb3541e, 0xf8dcc6,  // outputs
    0x6a45a0, 0xe4daf3,  // memory
    0x147a5c, 0xcdeade,  // timers and counters
    0x0b6e3a,            // cursor A
    0x8a1fa0,            // cursor B
    0xfff6d6,            // between the cursors
    0xc0281c,            // trigger
    0x8a5a00,            // found
    0xeceef1,            // not recorded
    0xffffff,
};

std::string Cifre(double valore) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.2f", valore);
  std::string cifre = testo;
  while (cifre.ends_with('0')) cifre.pop_back();
  if (cifre.ends_with('.')) cifre.pop_back();
  return cifre;
}

std::string Esadecimale(Tinta_Tempi tinta) {
  char testo[16];
  std::snprintf(testo, sizeof testo, "#%06x", Rgb(tinta));
  return testo;
}

std::string Percorso(const std::vector<Punto_Disegno>& punti) {
  std::string testo;
  for (const Punto_Disegno& punto : punti)
    testo += (testo.empty() ? "M" : "L") + Cifre(punto.X) + " " + Cifre(punto.Y);
  return testo;
}

std::string Elemento(const Pezzo_Disegno& pezzo) {
  const std::string tinta = Esadecimale(pezzo.Tinta);
  switch (pezzo.Cosa) {
    case Pezzo_Disegno::Tipo::Rettangoli: {
      std::string testo;
      for (std::size_t n = 0; n + 1 < pezzo.Punti.size(); n += 2) {
        const Punto_Disegno &uno = pezzo.Punti[n], &due = pezzo.Punti[n + 1];
        testo += "<rect x=\"" + Cifre(uno.X) + "\" y=\"" + Cifre(uno.Y) + "\" width=\"" +
                 Cifre(due.X - uno.X) + "\" height=\"" + Cifre(due.Y - uno.Y) + "\" fill=\"" +
                 tinta + "\"/>\n";
      }
      return testo;
    }
    case Pezzo_Disegno::Tipo::Spezzata:
      return "<path d=\"" + Percorso(pezzo.Punti) + "\" stroke=\"" + tinta +
             "\" fill=\"none\" stroke-linejoin=\"round\" stroke-width=\"" + Cifre(pezzo.Spessore) +
             "\"" + (pezzo.Tratteggio ? " stroke-dasharray=\"5 3\"" : "") + "/>\n";
    case Pezzo_Disegno::Tipo::Area:
      return "<path d=\"" + Percorso(pezzo.Punti) + "Z\" fill=\"" + tinta + "\"/>\n";
    default:
      break;
  }
  static constexpr const char* ancore[] = {"start", "middle", "end"};
  return "<text x=\"" + Cifre(pezzo.Punti[0].X) + "\" y=\"" + Cifre(pezzo.Punti[0].Y) +
         "\" font-size=\"" + Cifre(pezzo.Corpo) + "\"" +
         (pezzo.Grassetto ? " font-weight=\"bold\"" : "") + " text-anchor=\"" +
         ancore[static_cast<std::size_t>(pezzo.Dove)] + "\" fill=\"" + tinta + "\">" +
         In_Xml(pezzo.Testo) + "</text>\n";
}

}  // namespace

std::uint32_t Rgb(Tinta_Tempi tinta) {
  return colori[static_cast<std::size_t>(tinta)];
}

std::string Come_Svg(const Disegno_Tempi& disegno, const Misura_Disegno& misura,
                     const std::string& titolo) {
  const std::string larga = Cifre(misura.Larga), alta = Cifre(misura.Alta + alta_titolo);
  std::string corpo;
  for (const Pezzo_Disegno& pezzo : disegno) corpo += Elemento(pezzo);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
         "width=\"" +
         larga + "\" height=\"" + alta + "\" viewBox=\"0 0 " + larga + " " + alta +
         "\" font-family=\"DejaVu Sans, Arial, sans-serif\">\n<rect width=\"" + larga +
         "\" height=\"" + alta + "\" fill=\"#ffffff\"/>\n<text x=\"8\" y=\"22\" font-size=\"16\" " +
         "font-weight=\"bold\" fill=\"" + Esadecimale(Tinta_Tempi::Inchiostro) + "\">" +
         In_Xml(titolo) + "</text>\n<g transform=\"translate(0 " + Cifre(alta_titolo) + ")\">\n" +
         corpo + "</g>\n</svg>\n";
}

}  // namespace tavorno
