// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/plant_options.h"

#include <algorithm>

#include "recorder/session.h"

namespace tavorno {

const Esercizio& Scegli_Impianto(std::span<const Esercizio> esercizi, std::size_t numero) {
  const Esercizio& esercizio = esercizi[numero];
  if (!esercizio.Crea)
    throw Uso_Errato("l'impianto " + std::to_string(numero) + " (" + esercizio.Voce +
                     ") non c'è ancora");
  return esercizio;
}

const Esercizio* Impianto_Di(const Argomenti& argomenti) {
  if (!argomenti.Ha("--impianto")) return nullptr;
  const auto esercizi = Tabella_Esercizi();
  const long long numero =
      argomenti.Numero("--impianto", 0, 0, static_cast<long long>(esercizi.size()) - 1);
  return &Scegli_Impianto(esercizi, static_cast<std::size_t>(numero));
}

std::vector<Gesto> Mani_Di(const Argomenti& argomenti, const Esercizio* esercizio) {
  if (!argomenti.Ha("--mani")) return {};
  if (!esercizio) throw Uso_Errato("--mani vuole anche --impianto");
  std::string errore;
  std::vector<Gesto> mani = Leggi_Mani(argomenti.Testo("--mani", ""), errore);
  if (errore.empty()) {
    Seduta prova;
    errore = Controlla_Mani(mani, *esercizio, *esercizio->Crea(prova.plc));
  }
  if (!errore.empty()) throw Uso_Errato(errore);
  return mani;
}

std::vector<Evento_Ingresso> Ingressi_Di(const Argomenti& argomenti, const Esercizio* esercizio) {
  if (!argomenti.Ha("--ingressi")) return {};
  std::string errore;
  std::vector<Evento_Ingresso> ingressi = Leggi_Ingressi(argomenti.Testo("--ingressi", ""), errore);
  if (!errore.empty()) throw Uso_Errato(errore);
  // The plant writes whole bytes, so a bit of ours would not last.
  if (esercizio && !std::ranges::all_of(ingressi, &Evento_Ingresso::Analogico))
    throw Uso_Errato("con --impianto gli ingressi digitali li dà l'impianto: usare --mani");
  return ingressi;
}

std::string Nome_Punto(char area, int byte, int bit, const Esercizio* esercizio) {
  const std::string indirizzo = area + std::to_string(byte) + '.' + std::to_string(bit);
  const std::string simbolo = Simbolo_Impianto(indirizzo, esercizio);
  return simbolo.empty() ? indirizzo : indirizzo + ' ' + simbolo;
}

}  // namespace tavorno
