// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/analog_exchange.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "plants/exercises.h"

namespace tavorno {

namespace {

// Numbers of outputs in the journal's file, behind those of the bars.
constexpr int parola = 2;  // and 3: AQW0 and AQW2
constexpr int quando = 4;  // ms until the exchange ticks, 0 while it does not

}  // namespace

bool Legge_Analogiche(int indice) {
  const auto righe = Tabella_Esercizi()[static_cast<std::size_t>(indice)].Righe_IO;
  return std::ranges::any_of(righe, [](const Riga_IO& riga) {
    return std::string_view(riga.Indirizzo).starts_with("AQ");
  });
}

void Scambio_Annotato::Prima_Di(const Atto& tempo, const Plc& plc, Giornale& giornale) {
  const std::int64_t adesso = plc.Tempo.Adesso();
  const std::int64_t fino_a = tempo.Che == Cosa::Presente ? tempo.Numero : adesso + tempo.Numero;
  const Temporizzatore& scambio = plc.timIO;
  const auto scrivi = [&](int indice, std::int64_t numero) {
    giornale.Scrivi(plc.Righe_Fatte, {.Che = Cosa::Uscita, .Indice = indice, .Numero = numero});
  };
  // The timer ticks on by itself; only a Run or a Stop makes it another one.
  const std::int64_t fase = scambio.Enabled() ? scambio.Scadenza() % scambio.Interval() : -1;
  if (fase_ != fase) scrivi(quando, scambio.Enabled() ? scambio.Scadenza() - adesso : 0);
  fase_ = fase;
  if (scambio.Scadenza() > fino_a) return;
  for (int canale = 0; canale < 2; ++canale) {
    const std::int32_t ora = plc.Mem_AQW[2 * canale];
    auto& prima = parole_[static_cast<std::size_t>(canale)];
    if (prima != ora) scrivi(parola + canale, ora);
    prima = ora;
  }
}

bool Dello_Scambio(const Atto& uscita) {
  return uscita.Che == Cosa::Uscita && uscita.Indice >= parola;
}

bool Scambio_Possibile(const Atto& uscita) {
  if (uscita.Indice == quando) return uscita.Numero >= 0 && uscita.Numero <= 1000;
  using Parola = std::numeric_limits<std::int32_t>;
  return uscita.Indice >= parola && uscita.Indice < quando && uscita.Numero >= Parola::min() &&
         uscita.Numero <= Parola::max();
}

void Rifai_Scambio(const Atto& uscita, Plc& plc) {
  if (uscita.Indice == quando)
    plc.timIO.Rimetti(plc.timIO.Interval(),
                      uscita.Numero > 0 ? plc.Tempo.Adesso() + uscita.Numero : Orologio::Mai);
  else
    plc.Mem_AQW[2 * (uscita.Indice - parola)] = static_cast<std::int32_t>(uscita.Numero);
}

bool Racconta_Lo_Scambio(const Giornale& giornale) {
  Lettore_Giornale lettore(giornale, giornale.Inizio);
  while (const auto voce = lettore.Prossima()) {
    if (Dello_Scambio(voce->Entra)) return true;
  }
  return false;
}

}  // namespace tavorno
