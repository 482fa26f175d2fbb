// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What a drawing is made of.
namespace tavorno {

/// What a colour stands for.
enum class Tinta_Tempi : std::uint8_t {
  Fondo,
  Fondo_Nomi,
  Fondo_Gruppo,
  Fondo_Asse,
  Scelta,  ///< ground of the selected row
  Riga,    ///< between two rows
  Griglia,
  Scansione,
  Inchiostro,
  Tenue,
  Ingresso,
  Ingresso_Chiaro,
  Uscita,
  Uscita_Chiaro,
  Memoria,
  Memoria_Chiaro,
  Elemento,
  Elemento_Chiaro,
  Cursore_A,
  Cursore_B,
  Fra_Cursori,
  Segno,    ///< where the trigger went off
  Trovato,  ///< what a search found
  Ignoto,   ///< not recorded
  Bianco,
  Quante,
};

/// As 0xRRGGBB.
std::uint32_t Rgb(Tinta_Tempi tinta);

struct Punto_Disegno {
  double X, Y;
};

struct Pezzo_Disegno {
  enum class Tipo : std::uint8_t { Rettangoli, Spezzata, Area, Testo };
  enum class Ancora : std::uint8_t { Sinistra, Mezzo, Destra };

  Tipo Cosa = Tipo::Rettangoli;
  Tinta_Tempi Tinta = Tinta_Tempi::Fondo;
  /// Rectangles: two corners of each. Line and area: their corners. Text: where its base line
  /// begins, is in the middle, or ends.
  std::vector<Punto_Disegno> Punti;
  double Spessore = 1;      ///< of a line
  bool Tratteggio = false;  ///< of a line
  std::string Testo;        ///< UTF-8
  double Corpo = 12;        ///< height of a text, pixels
  bool Grassetto = false;
  Ancora Dove = Ancora::Sinistra;
};

using Disegno_Tempi = std::vector<Pezzo_Disegno>;

}  // namespace tavorno
