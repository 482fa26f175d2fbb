// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/to_list.h"

#include <algorithm>

#include "ladder/symbols.h"

namespace tavorno {

namespace {

constexpr int posti_pila = 8;

class Scrivano {
 public:
  void Scrivi(const Piolo& piolo) {
    // What earlier rungs left on the stack is never read again, and may fall out.
    occupati_ = 0;
    for (const Serie& ingresso : piolo.Ingressi) Blocco(ingresso);
    Derivazioni(piolo.Seguito);
  }

  std::vector<Passo_Scala> Righe;
  bool Troppo_Profondo = false;

 private:
  void Aggiungi(std::string istr) { Righe.push_back({std::move(istr), {}, -1}); }
  void Aggiungi(const Passo_Scala& passo, Attacco come) {
    Righe.push_back(passo);
    if (Simbolo_Di(passo.Istr).Cosa == Ruolo::Contatto)
      Righe.back().Istr = Attaccato(passo.Istr, come);
  }
  void Occupa() {
    if (++occupati_ > posti_pila) Troppo_Profondo = true;
  }

  /// A value of its own on the stack.
  void Blocco(const Serie& serie) {
    Inizio(serie.front());
    for (std::size_t n = 1; n < serie.size(); ++n) In_Serie(serie[n]);
  }

  void Inizio(const Elemento& elemento) {
    if (!elemento.Parallelo()) {
      Aggiungi(elemento.Passo, Attacco::Inizio);
      Occupa();
      return;
    }
    Blocco(elemento.Rami.front());
    for (std::size_t n = 1; n < elemento.Rami.size(); ++n) {
      const Serie& ramo = elemento.Rami[n];
      if (ramo.size() == 1 && !ramo.front().Parallelo()) {
        Aggiungi(ramo.front().Passo, Attacco::In_Parallelo);
      } else {
        Blocco(ramo);
        Aggiungi("OLD");
        --occupati_;
      }
    }
  }

  void In_Serie(const Elemento& elemento) {
    if (!elemento.Parallelo()) {
      Aggiungi(elemento.Passo, Attacco::In_Serie);
      return;
    }
    Inizio(elemento);
    Aggiungi("ALD");
    --occupati_;
  }

  /// What hangs on the value on top: a coil leaves it as it is, a wire that goes on does not, so
  /// the value is kept for what comes behind it.
  void Derivazioni(const std::vector<Nodo>& nodi) {
    bool tenuto = false;
    for (std::size_t n = 0; n < nodi.size(); ++n) {
      const Nodo& nodo = nodi[n];
      if (nodo.Condizione.empty()) {
        Righe.push_back(nodo.Uscita);
        continue;
      }
      const bool ultimo = n + 1 == nodi.size();
      if (!ultimo && !tenuto) {
        Aggiungi("LPS");
        Occupa();
        tenuto = true;
      }
      for (const Elemento& elemento : nodo.Condizione) In_Serie(elemento);
      if (!nodo.Uscita.Istr.empty()) Righe.push_back(nodo.Uscita);
      Derivazioni(nodo.Seguito);
      if (ultimo) continue;
      // The value comes back: for good when no wire goes on behind the next one.
      const bool serve_ancora =
          std::any_of(nodi.begin() + static_cast<std::ptrdiff_t>(n) + 1, nodi.end() - 1,
                      [](const Nodo& altro) { return !altro.Condizione.empty(); });
      Aggiungi(serve_ancora ? "LRD" : "LPP");
      if (!serve_ancora) {
        --occupati_;
        tenuto = false;
      }
    }
  }

  int occupati_ = 0;
};

}  // namespace

std::optional<std::vector<Passo_Scala>> Elenca(const Diagramma& diagramma) {
  Scrivano scrivano;
  for (const Piolo& piolo : diagramma) scrivano.Scrivi(piolo);
  if (scrivano.Troppo_Profondo) return {};
  return std::move(scrivano.Righe);
}

std::string Come_Testo(const Passo_Scala& passo) {
  std::string testo = passo.Istr;
  for (const std::string& operando : passo.Operandi) testo += " " + operando;
  return testo;
}

}  // namespace tavorno
