// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/edit_walk.h"

#include "plc/fatal.h"

namespace tavorno {

namespace {

/// Goes through all symbols until it is told to stop.
class Giro {
 public:
  using Ferma = std::function<bool(Passo_Scala&, const Posto_Simbolo&)>;
  explicit Giro(Ferma ferma) : ferma_(std::move(ferma)) {}

  bool Piolo_Intero(Piolo& piolo, std::size_t numero) {
    posto_ = {};
    posto_.Piolo = numero;
    for (Serie& ingresso : piolo.Ingressi)
      if (In(ingresso, false)) return true;
    return In(piolo.Seguito, piolo.Ingressi.empty() ? nullptr : &piolo.Ingressi.front());
  }

 private:
  bool In(Serie& serie, bool ramo) {
    for (std::size_t n = 0; n < serie.size(); ++n) {
      for (Serie& uno : serie[n].Rami)
        if (In(uno, true)) return true;
      if (serie[n].Parallelo()) continue;
      posto_.In_Serie = &serie;
      posto_.Indice = n;
      posto_.In_Ramo = ramo;
      if (ferma_(serie[n].Passo, posto_)) return true;
    }
    return false;
  }

  bool In(std::vector<Nodo>& nodi, Serie* davanti) {
    for (std::size_t n = 0; n < nodi.size(); ++n) {
      posto_.Nodi = &nodi;
      posto_.N_Nodo = n;
      if (In(nodi[n].Condizione, false)) return true;
      posto_.In_Serie = nullptr;
      posto_.In_Ramo = false;
      posto_.Davanti = davanti;
      if (!nodi[n].Uscita.Istr.empty() && ferma_(nodi[n].Uscita, posto_)) return true;
      if (In(nodi[n].Seguito, &nodi[n].Condizione)) return true;
    }
    return false;
  }

  Ferma ferma_;
  Posto_Simbolo posto_;
};

}  // namespace

Posto_Simbolo Trova_Simbolo(Diagramma& diagramma, int quale) {
  Posto_Simbolo trovato;
  int resto = quale;
  Giro giro([&](Passo_Scala&, const Posto_Simbolo& posto) {
    trovato = posto;
    return resto-- == 0;
  });
  for (std::size_t n = 0; n < diagramma.size(); ++n)
    if (quale >= 0 && giro.Piolo_Intero(diagramma[n], n)) return trovato;
  Fatale_Indice("Diagramma", quale);
}

void Per_Ogni_Simbolo(Piolo& piolo, const std::function<void(Passo_Scala&)>& fai) {
  Giro([&](Passo_Scala& passo, const Posto_Simbolo&) {
    fai(passo);
    return false;
  }).Piolo_Intero(piolo, 0);
}

void Per_Ogni_Simbolo(Diagramma& diagramma, const std::function<void(Passo_Scala&)>& fai) {
  for (Piolo& piolo : diagramma) Per_Ogni_Simbolo(piolo, fai);
}

int Quanti_Simboli(const Diagramma& diagramma) {
  int quanti = 0;
  Diagramma copia = diagramma;
  Per_Ogni_Simbolo(copia, [&](const Passo_Scala&) { ++quanti; });
  return quanti;
}

Passo_Scala Simbolo_Numero(const Diagramma& diagramma, int quale) {
  Diagramma copia = diagramma;
  const Posto_Simbolo posto = Trova_Simbolo(copia, quale);
  return posto.In_Serie ? (*posto.In_Serie)[posto.Indice].Passo
                        : (*posto.Nodi)[posto.N_Nodo].Uscita;
}

}  // namespace tavorno
