// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/from_list.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "ladder/symbols.h"
#include "ladder/to_list.h"

namespace tavorno {

namespace {

constexpr std::size_t posti_pila = 8;

/// A point under construction. A value on the logic stack is a reference to one.
struct Punto {
  int Riga = 0;  ///< line where it began
  Serie Condizione;
  Punto* Padre = nullptr;  ///< nullptr: its wire begins at the rail
  Passo_Scala Uscita;
  std::vector<Punto*> Seguito;
  bool Disegnato = false;    ///< begins a rung, or has become part of another point
  bool Sconosciuto = false;  ///< its value on the stack is no longer the one of the drawing
};

struct Piolo_Nuovo {
  std::vector<Punto*> Ingressi;
  std::vector<Punto*> Seguito;
};

/// Whether power that is off in front of it is off behind it. Only then can a block be put behind
/// something else.
bool Solo_Contatti(const Serie& serie) {
  return std::ranges::all_of(serie, [](const Elemento& elemento) {
    if (elemento.Parallelo()) return std::ranges::all_of(elemento.Rami, Solo_Contatti);
    return Simbolo_Di(elemento.Passo.Istr).Cosa == Ruolo::Contatto;
  });
}

/// The lines of the instructions that are drawn, in the order in which they would be written.
void Raccogli(const Serie& serie, std::vector<int>& righe) {
  for (const Elemento& elemento : serie) {
    if (!elemento.Parallelo()) righe.push_back(elemento.Passo.Riga);
    for (const Serie& ramo : elemento.Rami) Raccogli(ramo, righe);
  }
}
void Raccogli(const std::vector<Nodo>& nodi, std::vector<int>& righe) {
  for (const Nodo& nodo : nodi) {
    Raccogli(nodo.Condizione, righe);
    if (!nodo.Uscita.Istr.empty()) righe.push_back(nodo.Uscita.Riga);
    Raccogli(nodo.Seguito, righe);
  }
}

/// Walks the lines as the logic stack would, with points in place of bits. All of it throws
/// `Non_Disegnabile`.
class Disegnatore {
 public:
  void Aggiungi(const Passo_Scala& passo) {
    riga_ = passo.Riga;
    const Simbolo simbolo = Simbolo_Di(passo.Istr);
    switch (simbolo.Cosa) {
      case Ruolo::Contatto:
        Contatto(passo, simbolo);
        break;
      case Ruolo::Trasforma:
        In_Serie({{passo, {}}});
        break;
      case Ruolo::Pila:
        Pila(passo.Istr);
        break;
      case Ruolo::Bobina:
      case Ruolo::Scatola:
        Uscita(passo, simbolo);
        break;
      case Ruolo::Contatore:
        Contatore(passo, simbolo);
        break;
      case Ruolo::Da_Solo:
        pioli_.push_back({{}, {Nuova_Uscita(passo)}});
        if (simbolo.Lascia_Altro) Dimentica();
        break;
    }
  }

  Diagramma Fine() {
    for (const Punto& punto : punti_) {
      if (!punto.Disegnato) Rifiuta("carica un valore che non comanda nulla", punto.Riga);
      if (punto.Padre && punto.Uscita.Istr.empty() && punto.Seguito.empty())
        Rifiuta("continua il circuito senza comandare nulla", punto.Riga);
    }
    Diagramma diagramma;
    for (const Piolo_Nuovo& nuovo : pioli_) {
      Piolo piolo;
      for (Punto* ingresso : nuovo.Ingressi)
        piolo.Ingressi.push_back(std::move(ingresso->Condizione));
      piolo.Seguito = Nodi(nuovo.Seguito.empty() ? nuovo.Ingressi.front()->Seguito : nuovo.Seguito);
      diagramma.push_back(std::move(piolo));
    }
    Controlla_Ordine(diagramma);
    return diagramma;
  }

 private:
  [[noreturn]] void Rifiuta(std::string motivo, int riga) const {
    throw Non_Disegnabile{riga, std::move(motivo), false};
  }

  /// A value of the stack, 0 the top.
  Punto& Valore(std::size_t posto) const {
    if (posto >= pila_.size())
      throw Non_Disegnabile{
          riga_, "usa un valore della pila che questo segmento non ha caricato con LD", true};
    Punto& punto = *pila_[pila_.size() - 1 - posto];
    if (punto.Sconosciuto)
      Rifiuta(
          "usa un valore della pila caricato prima di una chiamata, un'etichetta o un contatore",
          riga_);
    return punto;
  }
  Punto& Cima() const { return Valore(0); }

  /// Nothing has gone on from it, so it can still grow.
  bool Libero(const Punto& punto) const {
    return punto.Seguito.empty() && std::ranges::count(pila_, &punto) < 2;
  }
  bool Blocco_Libero(const Punto& punto) const { return !punto.Padre && Libero(punto); }

  Punto& Nuovo(Punto* padre) {
    Punto& punto = punti_.emplace_back();
    punto.Riga = riga_;
    punto.Padre = padre;
    if (padre) {
      padre->Seguito.push_back(&punto);
      punto.Disegnato = true;
    }
    return punto;
  }
  Punto* Nuova_Uscita(const Passo_Scala& passo) {
    Punto& punto = punti_.emplace_back();
    punto.Riga = riga_;
    punto.Uscita = passo;
    punto.Disegnato = true;
    return &punto;
  }

  void Spingi(Punto& punto) {
    pila_.push_back(&punto);
    if (pila_.size() > posti_pila) pila_.pop_front();  // the oldest value falls out
  }

  void Contatto(const Passo_Scala& passo, const Simbolo& simbolo) {
    Passo_Scala contatto = passo;
    contatto.Istr = simbolo.Base;
    switch (simbolo.Come) {
      case Attacco::Inizio: {
        Punto& punto = Nuovo(nullptr);
        punto.Condizione.push_back({std::move(contatto), {}});
        Spingi(punto);
        break;
      }
      case Attacco::In_Serie:
        In_Serie({{std::move(contatto), {}}});
        break;
      case Attacco::In_Parallelo:
        In_Parallelo(Cima(), {{std::move(contatto), {}}});
        break;
    }
  }

  /// Goes on from the top: the point grows, or a new one begins where something is connected.
  void In_Serie(Serie elementi) {
    Punto* punto = &Cima();
    if (!Libero(*punto)) {
      Inizia_Piolo(*punto);
      punto = &Nuovo(punto);
      pila_.back() = punto;
    }
    for (Elemento& elemento : elementi) punto->Condizione.push_back(std::move(elemento));
  }

  void In_Parallelo(Punto& punto, Serie ramo) {
    if (!Blocco_Libero(punto))
      Rifiuta("mette in parallelo a un punto da cui il circuito è già proseguito", riga_);
    Serie& serie = punto.Condizione;
    if (serie.size() == 1 && serie.front().Parallelo()) {
      serie.front().Rami.push_back(std::move(ramo));
      return;
    }
    Elemento parallelo;
    parallelo.Rami.push_back(std::move(serie));
    parallelo.Rami.push_back(std::move(ramo));
    serie.clear();
    serie.push_back(std::move(parallelo));
  }

  void Pila(const std::string& istr) {
    if (istr == "ALD" || istr == "OLD") {
      Punto& blocco = Cima();
      Punto& sotto = Valore(1);
      if (!Blocco_Libero(blocco))
        Rifiuta("unisce un blocco da cui il circuito è già proseguito", riga_);
      blocco.Disegnato = true;
      Serie elementi = std::move(blocco.Condizione);
      pila_.pop_back();
      if (istr == "OLD") {
        In_Parallelo(sotto, std::move(elementi));
        return;
      }
      if (!Solo_Contatti(elementi))
        Rifiuta(
            "mette in serie un blocco con NOT, EU o ED, che nel disegno agirebbero anche su ciò "
            "che sta prima",
            riga_);
      In_Serie(std::move(elementi));
    } else if (istr == "LPS") {
      Spingi(Cima());
    } else if (istr == "LRD") {
      pila_.back() = &Valore(1);
    } else {
      Valore(1);  // what comes up must be known
      pila_.pop_back();
    }
  }

  void Inizia_Piolo(Punto& punto) {
    if (punto.Disegnato) return;
    punto.Disegnato = true;
    pioli_.push_back({{&punto}, {}});
  }

  void Uscita(const Passo_Scala& passo, const Simbolo& simbolo) {
    Punto& punto = Cima();
    Inizia_Piolo(punto);
    punto.Seguito.push_back(Nuova_Uscita(passo));
    if (simbolo.Lascia_Altro) Dimentica();
  }

  void Dimentica() {
    for (Punto* valore : pila_) valore->Sconosciuto = true;
  }

  void Contatore(const Passo_Scala& passo, const Simbolo& simbolo) {
    Piolo_Nuovo piolo;
    for (int n = simbolo.Ingressi - 1; n >= 0; --n) {
      Punto& ingresso = Valore(static_cast<std::size_t>(n));
      if (!Blocco_Libero(ingresso)) Rifiuta("un ingresso del contatore comanda anche altro", riga_);
      ingresso.Disegnato = true;
      ingresso.Sconosciuto = true;
      piolo.Ingressi.push_back(&ingresso);
    }
    piolo.Seguito.push_back(Nuova_Uscita(passo));
    pioli_.push_back(std::move(piolo));
  }

  static std::vector<Nodo> Nodi(const std::vector<Punto*>& punti) {
    std::vector<Nodo> nodi;
    nodi.reserve(punti.size());
    for (Punto* punto : punti)
      nodi.push_back({std::move(punto->Condizione), punto->Uscita, Nodi(punto->Seguito)});
    return nodi;
  }

  /// A diagram is read from top to bottom; lines in another order would see other values.
  void Controlla_Ordine(const Diagramma& diagramma) const {
    std::vector<int> righe;
    for (const Piolo& piolo : diagramma) {
      for (const Serie& ingresso : piolo.Ingressi) Raccogli(ingresso, righe);
      Raccogli(piolo.Seguito, righe);
    }
    const auto primo = std::ranges::is_sorted_until(righe);
    if (primo != righe.end())
      Rifiuta("torna a un punto del circuito dopo averne iniziato un altro", *(primo - 1));
  }

  int riga_ = 0;
  std::deque<Punto> punti_;  // references to them stay good
  std::deque<Punto*> pila_;  // top at the end
  std::vector<Piolo_Nuovo> pioli_;
};

}  // namespace

std::variant<Diagramma, Non_Disegnabile> Disegna(std::span<const Passo_Scala> rete) {
  try {
    Disegnatore disegnatore;
    for (const Passo_Scala& passo : rete) disegnatore.Aggiungi(passo);
    Diagramma diagramma = disegnatore.Fine();
    if (!Elenca(diagramma))
      return Non_Disegnabile{rete.front().Riga,
                             "ha più derivazioni una dentro l'altra di quante la pila ne tenga",
                             false};
    return diagramma;
  } catch (const Non_Disegnabile& motivo) {
    return motivo;
  }
}

}  // namespace tavorno
