// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/layout.h"

#include <algorithm>
#include <utility>

namespace tavorno {

namespace {

constexpr int larghezza_scatola = 2;
constexpr int altezza_scatola = 2;

struct Misura {
  int Larghezza = 0, Altezza = 1;
};

Misura Misura_Di(const Serie& serie);

Misura Misura_Di(const Elemento& elemento) {
  if (!elemento.Parallelo()) return {1, 1};
  Misura misura{0, 0};
  for (const Serie& ramo : elemento.Rami) {
    const Misura una = Misura_Di(ramo);
    misura.Larghezza = std::max(misura.Larghezza, una.Larghezza);
    misura.Altezza += una.Altezza;
  }
  return misura;
}

Misura Misura_Di(const Serie& serie) {
  Misura misura;
  for (const Elemento& elemento : serie) {
    const Misura uno = Misura_Di(elemento);
    misura.Larghezza += uno.Larghezza;
    misura.Altezza = std::max(misura.Altezza, uno.Altezza);
  }
  return misura;
}

Misura Misura_Di(const Passo_Scala& uscita) {
  const Ruolo ruolo = Simbolo_Di(uscita.Istr).Cosa;
  if (ruolo == Ruolo::Bobina || ruolo == Ruolo::Da_Solo) return {1, 1};
  return {larghezza_scatola, altezza_scatola};
}

Misura Misura_Di(const std::vector<Nodo>& nodi);

Misura Misura_Di(const Nodo& nodo) {
  const Misura inizio = Misura_Di(nodo.Condizione);
  const Misura resto = nodo.Uscita.Istr.empty() ? Misura_Di(nodo.Seguito) : Misura_Di(nodo.Uscita);
  return {inizio.Larghezza + resto.Larghezza, std::max(inizio.Altezza, resto.Altezza)};
}

/// One below the other.
Misura Misura_Di(const std::vector<Nodo>& nodi) {
  Misura misura{0, 0};
  for (const Nodo& nodo : nodi) {
    const Misura uno = Misura_Di(nodo);
    misura.Larghezza = std::max(misura.Larghezza, uno.Larghezza);
    misura.Altezza += uno.Altezza;
  }
  return misura;
}

class Impaginatore {
 public:
  explicit Impaginatore(int colonne) {
    disegno_.Colonne = colonne;
    disegno_.Legami.emplace_back();
  }

  void Aggiungi(const Piolo& piolo) {
    const int riga = disegno_.Righe;
    if (piolo.Ingressi.empty()) {
      disegno_.Righe += Da_Solo(piolo.Seguito.front().Uscita, riga);
    } else if (piolo.Ingressi.size() > 1) {
      disegno_.Righe += Contatore(piolo, riga);
    } else {
      Nodo radice{piolo.Ingressi.front(), {}, piolo.Seguito};
      Metti(radice, 0, riga, 0);
      disegno_.Righe += Misura_Di(radice).Altezza;
    }
  }

  Disegno Fine() { return std::move(disegno_); }

 private:
  Nodo_Elettrico Nuovo(Legame legame) {
    disegno_.Legami.push_back(std::move(legame));
    return static_cast<Nodo_Elettrico>(disegno_.Legami.size()) - 1;
  }
  void Filo_In_Riga(int da, int a, int riga, Nodo_Elettrico nodo) {
    if (da < a) disegno_.Fili.push_back({da, riga, a, riga, nodo});
  }
  void Filo_Fra_Righe(int colonna, int da, int a, Nodo_Elettrico nodo) {
    if (da < a) disegno_.Fili.push_back({colonna, da, colonna, a, nodo});
  }

  /// Behind each the column and point where the wire goes on.
  struct Fine_Filo {
    int Colonna;
    Nodo_Elettrico Nodo;
  };

  Fine_Filo Metti(const Serie& serie, int colonna, int riga, Nodo_Elettrico nodo) {
    Fine_Filo fine{colonna, nodo};
    for (const Elemento& elemento : serie) fine = Metti(elemento, fine.Colonna, riga, fine.Nodo);
    return fine;
  }

  Fine_Filo Metti(const Elemento& elemento, int colonna, int riga, Nodo_Elettrico nodo) {
    if (!elemento.Parallelo()) {
      const int indice = Metti_Simbolo(elemento.Passo, colonna, riga, {1, 1}, nodo);
      const Nodo_Elettrico dopo = Nuovo({{nodo}, indice});
      disegno_.Riquadri[static_cast<std::size_t>(indice)].Dopo = dopo;
      return {colonna + 1, dopo};
    }
    const int fine = colonna + Misura_Di(elemento).Larghezza;
    std::vector<Fine_Filo> rami;
    std::vector<int> righe;
    int sotto = riga;
    for (const Serie& ramo : elemento.Rami) {
      rami.push_back(Metti(ramo, colonna, sotto, nodo));
      righe.push_back(sotto);
      sotto += Misura_Di(ramo).Altezza;
    }
    Legame unione;
    for (const Fine_Filo& ramo : rami) unione.Da.push_back(ramo.Nodo);
    // The branches end in one point, so the last stretch of each belongs to it.
    const Nodo_Elettrico dopo = Nuovo(std::move(unione));
    for (std::size_t n = 0; n < rami.size(); ++n)
      Filo_In_Riga(rami[n].Colonna, fine, righe[n], dopo);
    Filo_Fra_Righe(colonna, riga, righe.back(), nodo);
    Filo_Fra_Righe(fine, riga, righe.back(), dopo);
    return {fine, dopo};
  }

  void Metti(const Nodo& nodo, int colonna, int riga, Nodo_Elettrico da) {
    const Fine_Filo fine = Metti(nodo.Condizione, colonna, riga, da);
    if (!nodo.Uscita.Istr.empty()) {
      Metti_Uscita(nodo.Uscita, fine.Colonna, riga, fine.Nodo);
      return;
    }
    int sotto = riga;
    int ultima = riga;
    for (const Nodo& altro : nodo.Seguito) {
      Metti(altro, fine.Colonna, sotto, fine.Nodo);
      ultima = sotto;
      // What stands in front reaches down beside the first of them.
      sotto += Misura_Di(altro).Altezza;
    }
    Filo_Fra_Righe(fine.Colonna, riga, ultima, fine.Nodo);
  }

  void Metti_Uscita(const Passo_Scala& uscita, int colonna, int riga, Nodo_Elettrico nodo) {
    const Misura misura = Misura_Di(uscita);
    const int posto = disegno_.Colonne - misura.Larghezza;
    Filo_In_Riga(colonna, posto, riga, nodo);
    Metti_Simbolo(uscita, posto, riga, misura, nodo);
  }

  int Metti_Simbolo(const Passo_Scala& passo, int colonna, int riga, Misura misura,
                    Nodo_Elettrico nodo) {
    disegno_.Riquadri.push_back({colonna,
                                 riga,
                                 misura.Larghezza,
                                 misura.Altezza,
                                 passo,
                                 Simbolo_Di(passo.Istr),
                                 nodo,
                                 0,
                                 {}});
    return static_cast<int>(disegno_.Riquadri.size()) - 1;
  }

  int Da_Solo(const Passo_Scala& passo, int riga) {
    Metti_Simbolo(passo, 0, riga, {disegno_.Colonne, 1}, 0);
    return 1;
  }

  /// The wires one below the other, and the box along all of them.
  int Contatore(const Piolo& piolo, int riga) {
    const int posto = disegno_.Colonne - larghezza_scatola;
    int sotto = riga;
    std::vector<Entrata> entrate;
    for (const Serie& ingresso : piolo.Ingressi) {
      const Fine_Filo fine = Metti(ingresso, 0, sotto, 0);
      Filo_In_Riga(fine.Colonna, posto, sotto, fine.Nodo);
      entrate.push_back({sotto, fine.Nodo});
      sotto += Misura_Di(ingresso).Altezza;
    }
    const int altezza = std::max(entrate.back().Riga - riga + 1, altezza_scatola);
    Metti_Simbolo(piolo.Seguito.front().Uscita, posto, riga, {larghezza_scatola, altezza},
                  entrate.front().Nodo);
    disegno_.Riquadri.back().Entrate = std::move(entrate);
    return std::max(sotto - riga, altezza);
  }

  Disegno disegno_;
};

int Colonne_Di(const Piolo& piolo) {
  if (piolo.Ingressi.empty()) return 1;
  int ingressi = 0;
  for (const Serie& ingresso : piolo.Ingressi)
    ingressi = std::max(ingressi, Misura_Di(ingresso).Larghezza);
  return ingressi + Misura_Di(piolo.Seguito).Larghezza;
}

}  // namespace

Disegno Impagina(const Diagramma& diagramma) {
  constexpr int colonne_minime = 4;  // a short rung does not put its coil beside the rail
  int colonne = colonne_minime;
  for (const Piolo& piolo : diagramma) colonne = std::max(colonne, Colonne_Di(piolo));
  Impaginatore impaginatore(colonne);
  for (const Piolo& piolo : diagramma) impaginatore.Aggiungi(piolo);
  return impaginatore.Fine();
}

std::vector<bool> Correnti(const Disegno& disegno,
                           const std::function<bool(const Riquadro&, bool arriva)>& passa) {
  std::vector<bool> vivi(disegno.Legami.size());
  if (vivi.empty()) return vivi;
  vivi[0] = true;
  for (std::size_t n = 1; n < vivi.size(); ++n) {
    const Legame& legame = disegno.Legami[n];
    const bool arriva = std::ranges::any_of(
        legame.Da, [&](Nodo_Elettrico da) { return vivi[static_cast<std::size_t>(da)]; });
    vivi[n] = legame.Elemento < 0
                  ? arriva
                  : passa(disegno.Riquadri[static_cast<std::size_t>(legame.Elemento)], arriva);
  }
  return vivi;
}

}  // namespace tavorno
