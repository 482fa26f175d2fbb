// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/scene.h"

#include <algorithm>
#include <stdexcept>

namespace tavorno {

Figura::Figura(Scena& scena, const Riga_Figura& riga)
    : Nome(riga.Nome),
      Morsetti(riga.Morsetti),
      Left(*this, riga.Left),
      Top(*this, riga.Top),
      Width(*this, riga.Width),
      Height(*this, riga.Height),
      Visible(*this, true),
      Picture(*this, riga.Picture),
      Caption(*this, ""),
      ToolTip(*this, riga.ToolTip),
      FillColor(*this, Tavolozza(15)),
      ForeColor(*this, Tavolozza(0)),
      FillStyle(*this, 0),
      scena_(scena) {}

void Figura::Segna() {
  scena_.Segna(*this);
}

Scena::Scena(std::span<const Riga_Figura> righe) {
  for (const Riga_Figura& riga : righe) figure_.emplace_back(*this, riga);
}

Figura* Scena::Trova(std::string_view nome) {
  const auto trovata = std::ranges::find(figure_, nome, &Figura::Nome);
  return trovata == figure_.end() ? nullptr : &*trovata;
}

Figura& Scena::operator[](std::string_view nome) {
  Figura* figura = Trova(nome);
  if (!figura) throw std::out_of_range("no figure " + std::string(nome));
  return *figura;
}

Figura& Scena::operator()(std::string_view nome, int indice) {
  return (*this)[std::string(nome) + "(" + std::to_string(indice) + ")"];
}

void Scena::Segna(Figura& figura) {
  if (figura.segnata_) return;
  figura.segnata_ = true;
  const bool prima = cambiate_.empty();
  cambiate_.push_back(&figura);
  if (prima && Cambiata) Cambiata();
}

std::vector<Figura*> Scena::Prendi_Cambiate() {
  for (Figura* figura : cambiate_) figura->segnata_ = false;
  return std::exchange(cambiate_, {});
}

}  // namespace tavorno
