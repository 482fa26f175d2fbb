// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/scene.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

namespace tavorno {

Figura::Figura(Scena& scena, const Riga_Figura& riga)
    : Nome(riga.Nome),
      Morsetti(riga.Aspetto.Morsetti),
      Left(*this, riga.Posto.Left),
      Top(*this, riga.Posto.Top),
      Width(*this, riga.Posto.Width),
      Height(*this, riga.Posto.Height),
      Visible(*this, true),
      Picture(*this, riga.Aspetto.Picture),
      Caption(*this, ""),
      ToolTip(*this, riga.Aspetto.ToolTip),
      FillColor(*this, Tavolozza(15)),
      ForeColor(*this, Tavolozza(0)),
      FillStyle(*this, 0),
      scena_(scena) {}

void Figura::Segna() {
  scena_.Segna(*this);
}

Scena::Scena(std::span<const Riga_Figura> righe) {
  per_nome_.reserve(righe.size());
  for (const Riga_Figura& riga : righe) {
    Figura& figura = figure_.emplace_back(*this, riga);
    per_nome_.emplace(figura.Nome, &figura);
  }
}

Figura* Scena::Trova(std::string_view nome) {
  const auto trovata = per_nome_.find(nome);
  return trovata == per_nome_.end() ? nullptr : trovata->second;
}

Figura& Scena::operator[](std::string_view nome) {
  Figura* figura = Trova(nome);
  if (!figura) throw std::out_of_range("no figure " + std::string(nome));
  return *figura;
}

Figura& Scena::operator()(std::string_view nome, int indice) {
  std::array<char, 32> testo{};      // names are short, and a text on the heap for each look is not
  constexpr std::size_t resto = 14;  // of it for the index and its parentheses
  if (nome.size() > testo.size() - resto)
    return (*this)[std::string(nome) + "(" + std::to_string(indice) + ")"];
  char* fine = std::ranges::copy(nome, testo.data()).out;
  *fine++ = '(';
  fine = std::to_chars(fine, testo.data() + testo.size(), indice).ptr;
  *fine++ = ')';
  return (*this)[std::string_view(testo.data(), fine)];
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
