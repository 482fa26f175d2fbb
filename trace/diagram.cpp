// SPDX-License-Identifier: GPL-3.0-or-later
// The signals of a diagram and their rows; its time is in diagram_time.cpp.
#include "trace/diagram.h"

#include <algorithm>
#include <array>

namespace tavorno {

namespace {

constexpr double alta_titolo = 22, alta_bit = 26, alta_valori = 26, alta_curva = 64;

struct Gruppo_Di_Aree {
  const char* Nome;
  std::initializer_list<Area> Aree;
};
const std::array<Gruppo_Di_Aree, 7>& Gruppi_Di_Aree() {
  static const std::array<Gruppo_Di_Aree, 7> gruppi = {
      {{"Ingressi", {Area::I, Area::IB}},
       {"Uscite", {Area::Q, Area::QB}},
       {"Analogici", {Area::AIW, Area::AQW}},
       {"Marker", {Area::M, Area::MB, Area::S, Area::SM, Area::SMB}},
       {"Temporizzatori", {Area::T}},
       {"Contatori", {Area::C}},
       {"Memoria V e accumulatori", {Area::VB, Area::VW, Area::VD, Area::AC}}}};
  return gruppi;
}

std::size_t Gruppo_Di(Area area) {
  const auto& gruppi = Gruppi_Di_Aree();
  for (std::size_t n = 0; n < gruppi.size(); ++n) {
    if (std::ranges::find(gruppi[n].Aree, area) != gruppi[n].Aree.end()) return n;
  }
  return gruppi.size() - 1;
}

Forma Forma_Prima(const Segnale& segnale) {
  if (segnale.Di_Bit()) return Forma::Bit;
  return segnale.Analogico() || segnale.Quale == Parte_Cella::Val ? Forma::Curva : Forma::Valori;
}

double Alta(Forma forma) {
  return forma == Forma::Curva ? alta_curva : forma == Forma::Bit ? alta_bit : alta_valori;
}

}  // namespace

// ---- signals ------------------------------------------------------------------------------------

void Diagramma_Tempi::Aggiungi(const Segnale& segnale) {
  const std::size_t numero = registrazione_.Aggiungi(segnale);
  const std::size_t area = Gruppo_Di(segnale.Dove);
  const std::string nome = Gruppi_Di_Aree()[area].Nome;
  auto gruppo = std::ranges::find(gruppi_, nome, &Gruppo_Diagramma::Nome);
  if (gruppo == gruppi_.end()) {
    // Before the first group that comes after it by the table.
    gruppo = std::ranges::find_if(gruppi_, [&](const Gruppo_Diagramma& uno) {
      const auto& aree = Gruppi_Di_Aree();
      const auto suo = std::ranges::find(aree, uno.Nome, &Gruppo_Di_Aree::Nome) - aree.begin();
      return static_cast<std::size_t>(suo) > area;
    });
    gruppo = gruppi_.insert(gruppo, {.Nome = nome, .Voci = {}});
  }
  if (std::ranges::find(gruppo->Voci, numero, &Voce_Diagramma::Segnale) == gruppo->Voci.end())
    gruppo->Voci.push_back({numero, Forma_Prima(segnale)});
  gruppo->Chiuso = false;
  const auto righe = Righe();
  for (std::size_t n = 0; n < righe.size(); ++n) {
    const Voce_Diagramma* voce = Voce(righe[n]);
    if (voce != nullptr && voce->Segnale == numero) scelta_ = n;
  }
}

void Diagramma_Tempi::Mostra_Solo(const std::vector<Segnale>& segnali) {
  const std::vector<Segnale> prima = Mostrati();
  for (const Segnale& vecchio : prima) {
    const bool resta = std::ranges::any_of(
        segnali, [&](const Segnale& uno) { return uno.Indirizzo == vecchio.Indirizzo; });
    if (resta) continue;
    if (const auto numero = registrazione_.Cerca(vecchio.Indirizzo)) registrazione_.Togli(*numero);
  }
  gruppi_.clear();
  for (const Segnale& segnale : segnali) Aggiungi(segnale);
  scelta_.reset();
}

std::vector<Segnale> Diagramma_Tempi::Mostrati() const {
  std::vector<Segnale> tutti;
  for (const Gruppo_Diagramma& gruppo : gruppi_) {
    for (const Voce_Diagramma& voce : gruppo.Voci)
      tutti.push_back(registrazione_.Chi(voce.Segnale));
  }
  return tutti;
}

// ---- rows ---------------------------------------------------------------------------------------

std::vector<Riga_Diagramma> Diagramma_Tempi::Righe() const {
  std::vector<Riga_Diagramma> righe;
  double y = 0;
  for (std::size_t g = 0; g < gruppi_.size(); ++g) {
    righe.push_back({g, {}, y, alta_titolo});
    y += alta_titolo;
    if (gruppi_[g].Chiuso) continue;
    for (std::size_t v = 0; v < gruppi_[g].Voci.size(); ++v) {
      const double alta = Alta(gruppi_[g].Voci[v].Come);
      righe.push_back({g, v, y, alta});
      y += alta;
    }
  }
  return righe;
}

double Diagramma_Tempi::Alto() const {
  const auto righe = Righe();
  return righe.empty() ? 0 : righe.back().Y + righe.back().Alta;
}

std::optional<Riga_Diagramma> Diagramma_Tempi::Riga_A(double y) const {
  for (const Riga_Diagramma& riga : Righe()) {
    if (y >= riga.Y && y < riga.Y + riga.Alta) return riga;
  }
  return {};
}

const Voce_Diagramma* Diagramma_Tempi::Voce(const Riga_Diagramma& riga) const {
  return riga.Voce ? &gruppi_[riga.Gruppo].Voci[*riga.Voce] : nullptr;
}

const Segnale* Diagramma_Tempi::Segnale_Di(const Riga_Diagramma& riga) const {
  const Voce_Diagramma* voce = Voce(riga);
  return voce ? &registrazione_.Chi(voce->Segnale) : nullptr;
}

const Onda* Diagramma_Tempi::Onda_Di(const Riga_Diagramma& riga) const {
  const Voce_Diagramma* voce = Voce(riga);
  return voce ? &registrazione_.Quando(voce->Segnale) : nullptr;
}

// ---- the selected row ---------------------------------------------------------------------------

std::optional<Riga_Diagramma> Diagramma_Tempi::Riga_Scelta() const {
  const auto righe = Righe();
  if (!scelta_ || *scelta_ >= righe.size()) return {};
  return righe[*scelta_];
}

void Diagramma_Tempi::Scegli(std::optional<std::size_t> riga) {
  scelta_ = riga && *riga < Righe().size() ? riga : std::nullopt;
}

void Diagramma_Tempi::Scegli_Accanto(int passi) {
  const auto quante = static_cast<int>(Righe().size());
  if (quante == 0) return;
  const int ora = scelta_ ? static_cast<int>(*scelta_) + passi : passi > 0 ? 0 : quante - 1;
  scelta_ = static_cast<std::size_t>(std::clamp(ora, 0, quante - 1));
}

void Diagramma_Tempi::Sposta_Scelta(int passi) {
  const auto riga = Riga_Scelta();
  if (!riga) return;
  const auto sposta = [passi](auto& dove, std::size_t posto) {
    const auto nuovo = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(
        static_cast<std::ptrdiff_t>(posto) + passi, 0, std::ssize(dove) - 1));
    auto preso = std::move(dove[posto]);
    dove.erase(dove.begin() + static_cast<std::ptrdiff_t>(posto));
    dove.insert(dove.begin() + static_cast<std::ptrdiff_t>(nuovo), std::move(preso));
    return nuovo;
  };
  std::size_t gruppo = riga->Gruppo;
  std::optional<std::size_t> voce = riga->Voce;
  if (voce)
    voce = sposta(gruppi_[gruppo].Voci, *voce);
  else
    gruppo = sposta(gruppi_, gruppo);
  const auto righe = Righe();
  for (std::size_t n = 0; n < righe.size(); ++n) {
    if (righe[n].Gruppo == gruppo && righe[n].Voce == voce) scelta_ = n;
  }
}

void Diagramma_Tempi::Togli_Scelta() {
  const auto riga = Riga_Scelta();
  if (!riga) return;
  Gruppo_Diagramma& gruppo = gruppi_[riga->Gruppo];
  if (riga->Titolo()) {
    for (const Voce_Diagramma& voce : gruppo.Voci) registrazione_.Togli(voce.Segnale);
    gruppo.Voci.clear();
  } else {
    registrazione_.Togli(gruppo.Voci[*riga->Voce].Segnale);
    gruppo.Voci.erase(gruppo.Voci.begin() + static_cast<std::ptrdiff_t>(*riga->Voce));
  }
  if (gruppo.Voci.empty())
    gruppi_.erase(gruppi_.begin() + static_cast<std::ptrdiff_t>(riga->Gruppo));
  const std::size_t restano = Righe().size();
  if (restano == 0)
    scelta_.reset();
  else
    scelta_ = std::min(*scelta_, restano - 1);
}

void Diagramma_Tempi::Cambia_Forma() {
  const auto riga = Riga_Scelta();
  const Segnale* segnale = riga ? Segnale_Di(*riga) : nullptr;
  if (segnale == nullptr || segnale->Di_Bit()) return;
  Forma& come = gruppi_[riga->Gruppo].Voci[*riga->Voce].Come;
  come = come == Forma::Curva ? Forma::Valori : Forma::Curva;
}

void Diagramma_Tempi::Piega() {
  const auto riga = Riga_Scelta();
  if (!riga) return;
  gruppi_[riga->Gruppo].Chiuso = !gruppi_[riga->Gruppo].Chiuso;
  const auto righe = Righe();
  for (std::size_t n = 0; n < righe.size(); ++n) {
    if (righe[n].Gruppo == riga->Gruppo && righe[n].Titolo()) scelta_ = n;
  }
}

std::vector<std::size_t> Diagramma_Tempi::Visti() const {
  std::vector<std::size_t> numeri;
  for (const Gruppo_Diagramma& gruppo : gruppi_) {
    if (gruppo.Chiuso) continue;
    for (const Voce_Diagramma& voce : gruppo.Voci) numeri.push_back(voce.Segnale);
  }
  return numeri;
}

}  // namespace tavorno
