// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/edit.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ladder/edit_walk.h"
#include "ladder/normal_form.h"
#include "ladder/symbols.h"

namespace tavorno {

namespace {

constexpr int segno_nuovo = -2;  // in `Riga` of the symbol that a change is about

bool E_Contatto(Ruolo ruolo) {
  return ruolo == Ruolo::Contatto || ruolo == Ruolo::Trasforma;
}
bool E_Uscita(Ruolo ruolo) {
  return ruolo == Ruolo::Bobina || ruolo == Ruolo::Scatola;
}

/// A contact with the mnemonic that begins a branch.
Elemento Come_Contatto(Passo_Scala passo, const Simbolo& simbolo) {
  if (simbolo.Cosa == Ruolo::Contatto) passo.Istr = simbolo.Base;
  return {std::move(passo), {}};
}

Modifica Rifiuto(const Diagramma& diagramma, int quale, std::string motivo) {
  return {diagramma, quale, std::move(motivo)};
}

/// The new diagram in order, if it may be, with the symbol that bears the mark.
Modifica Concludi(const Diagramma& vecchio, int quale, Diagramma nuovo) {
  for (Piolo& piolo : nuovo) Riordina(piolo);
  if (std::string motivo = Impedimento(nuovo); !motivo.empty())
    return Rifiuto(vecchio, quale, std::move(motivo));
  int scelto = -1;
  int numero = 0;
  Per_Ogni_Simbolo(nuovo, [&](Passo_Scala& passo) {
    if (passo.Riga == segno_nuovo) {
      passo.Riga = -1;
      scelto = numero;
    }
    ++numero;
  });
  return {std::move(nuovo), scelto, {}};
}

// ---- insertions ---------------------------------------------------------------------------------

Piolo Piolo_Con(const Passo_Scala& passo, const Simbolo& simbolo) {
  switch (simbolo.Cosa) {
    case Ruolo::Da_Solo:
      return {{}, {Nodo{{}, passo, {}}}};
    case Ruolo::Contatore: {
      Piolo piolo;
      for (int n = 0; n < simbolo.Ingressi; ++n) piolo.Ingressi.push_back({Contatto_Vuoto()});
      piolo.Seguito.push_back({{}, passo, {}});
      return piolo;
    }
    case Ruolo::Contatto:
      return {{{Come_Contatto(passo, simbolo)}}, {Uscita_Vuota()}};
    case Ruolo::Trasforma:
      return {{{Contatto_Vuoto(), Come_Contatto(passo, simbolo)}}, {Uscita_Vuota()}};
    default:
      return {{{Contatto_Vuoto()}}, {Nodo{{}, passo, {}}}};
  }
}

template <class Tabella>
auto A(Tabella& tabella, std::size_t indice) {
  return tabella.begin() + static_cast<std::ptrdiff_t>(indice);
}

bool Solo_Uscita_Vuota(const Piolo& piolo) {
  return piolo.Ingressi.size() == 1 && piolo.Seguito.size() == 1 &&
         Da_Completare(piolo.Seguito.front().Uscita);
}
bool Tutto_Vuoto(Piolo& piolo) {
  bool vuoto = true;
  Per_Ogni_Simbolo(piolo, [&](const Passo_Scala& passo) { vuoto = vuoto && Da_Completare(passo); });
  return vuoto;
}

/// A branch beside a stretch of a series.
void Affianca(Serie& serie, std::size_t da, std::size_t a, Elemento nuovo) {
  Elemento parallelo;
  parallelo.Rami.emplace_back(std::make_move_iterator(A(serie, da)),
                              std::make_move_iterator(A(serie, a + 1)));
  parallelo.Rami.push_back({std::move(nuovo)});
  serie.erase(A(serie, da), A(serie, a + 1));
  serie.insert(A(serie, da), std::move(parallelo));
}

const char* Inserisci_Contatto(Diagramma& nuovo, const Posto_Simbolo& posto, int fino, Verso verso,
                               const Passo_Scala& passo, const Simbolo& simbolo) {
  Elemento contatto = Come_Contatto(passo, simbolo);
  Piolo& piolo = nuovo[posto.Piolo];
  if (posto.In_Serie) {
    Serie& serie = *posto.In_Serie;
    Elemento& qui = serie[posto.Indice];
    if (verso == Verso::Sotto) {
      const Posto_Simbolo altro = Trova_Simbolo(nuovo, fino);
      if (altro.In_Serie != &serie) return "i contatti scelti non stanno sullo stesso filo";
      Affianca(serie, std::min(posto.Indice, altro.Indice), std::max(posto.Indice, altro.Indice),
               std::move(contatto));
    } else if (Da_Completare(qui.Passo) && simbolo.Cosa == Ruolo::Contatto) {
      qui = std::move(contatto);
    } else {
      serie.insert(A(serie, posto.Indice + (verso == Verso::Dopo ? 1 : 0)), std::move(contatto));
    }
    return nullptr;
  }
  if (piolo.Ingressi.empty()) {
    nuovo.insert(A(nuovo, posto.Piolo + (verso == Verso::Prima ? 0 : 1)),
                 Piolo_Con(passo, simbolo));
    return nullptr;
  }
  // Behind the wire that only this output hangs on, else on a stretch of its own.
  Serie& davanti = posto.Nodi->size() == 1 && posto.Davanti
                       ? *posto.Davanti
                       : (*posto.Nodi)[posto.N_Nodo].Condizione;
  if (verso != Verso::Sotto) {
    if (davanti.size() == 1 && Da_Completare(davanti.front().Passo) &&
        simbolo.Cosa == Ruolo::Contatto)
      davanti.front() = std::move(contatto);
    else
      davanti.push_back(std::move(contatto));
    return nullptr;
  }
  if (davanti.empty()) return "davanti a questa uscita non c'è un ramo da affiancare";
  Affianca(davanti, 0, davanti.size() - 1, std::move(contatto));
  return nullptr;
}

/// One more output below the wire behind `serie[indice]`, which goes on to `seguito`.
void Deriva(Serie& serie, std::size_t indice, std::vector<Nodo>& seguito,
            const Passo_Scala& passo) {
  if (indice + 1 < serie.size()) {
    Nodo resto;
    resto.Condizione.assign(std::make_move_iterator(A(serie, indice + 1)),
                            std::make_move_iterator(serie.end()));
    serie.erase(A(serie, indice + 1), serie.end());
    resto.Seguito = std::move(seguito);
    seguito.clear();
    seguito.push_back(std::move(resto));
  }
  seguito.push_back({{}, passo, {}});
}

const char* Inserisci_Uscita(Diagramma& nuovo, const Posto_Simbolo& posto, Verso verso,
                             const Passo_Scala& passo, const Simbolo& simbolo) {
  Piolo& piolo = nuovo[posto.Piolo];
  if (piolo.Ingressi.size() != 1) {
    nuovo.insert(A(nuovo, posto.Piolo + (verso == Verso::Prima ? 0 : 1)),
                 Piolo_Con(passo, simbolo));
    return nullptr;
  }
  if (Solo_Uscita_Vuota(piolo)) {
    piolo.Seguito.front().Uscita = passo;
  } else if (posto.In_Serie) {
    if (posto.In_Ramo)
      return "un'uscita non può stare dentro un parallelo: scegliere un contatto del filo davanti";
    if (posto.Nodi)
      Deriva(*posto.In_Serie, posto.Indice, (*posto.Nodi)[posto.N_Nodo].Seguito, passo);
    else
      Deriva(*posto.In_Serie, posto.Indice, piolo.Seguito, passo);
  } else {
    Nodo& qui = (*posto.Nodi)[posto.N_Nodo];
    if (Da_Completare(qui.Uscita))
      qui.Uscita = passo;
    else
      posto.Nodi->insert(A(*posto.Nodi, posto.N_Nodo + (verso == Verso::Prima ? 0 : 1)),
                         Nodo{{}, passo, {}});
  }
  return nullptr;
}

/// A counter takes over a rung without an output; else it and a line that stands alone become a
/// rung of their own.
void Inserisci_Piolo(Diagramma& nuovo, std::size_t indice, Verso verso, const Passo_Scala& passo,
                     const Simbolo& simbolo) {
  Piolo& piolo = nuovo[indice];
  if (simbolo.Cosa == Ruolo::Contatore && Solo_Uscita_Vuota(piolo)) {
    piolo.Seguito.front().Uscita = passo;
    while (std::ssize(piolo.Ingressi) < simbolo.Ingressi)
      piolo.Ingressi.push_back({Contatto_Vuoto()});
    return;
  }
  if (Tutto_Vuoto(piolo))
    piolo = Piolo_Con(passo, simbolo);
  else
    nuovo.insert(A(nuovo, indice + (verso == Verso::Prima ? 0 : 1)), Piolo_Con(passo, simbolo));
}

}  // namespace

bool Da_Completare(const Passo_Scala& passo) {
  return passo.Operandi.size() == 1 && passo.Operandi.front() == operando_mancante;
}

Modifica Inserisci(const Diagramma& diagramma, int quale, int fino, Verso verso,
                   const Passo_Scala& passo) {
  const Simbolo simbolo = Simbolo_Di(passo.Istr);
  if (simbolo.Cosa == Ruolo::Pila)
    return Rifiuto(diagramma, quale, passo.Istr + " nasce dal disegno e non vi si scrive");
  Diagramma nuovo = diagramma;
  Passo_Scala segnato = passo;
  segnato.Riga = segno_nuovo;
  if (diagramma.empty()) {
    nuovo.push_back(Piolo_Con(segnato, simbolo));
    return Concludi(diagramma, quale, std::move(nuovo));
  }
  const Posto_Simbolo posto = Trova_Simbolo(nuovo, quale);
  const char* motivo = nullptr;
  if (E_Contatto(simbolo.Cosa))
    motivo = Inserisci_Contatto(nuovo, posto, fino, verso, segnato, simbolo);
  else if (E_Uscita(simbolo.Cosa))
    motivo = Inserisci_Uscita(nuovo, posto, verso, segnato, simbolo);
  else
    Inserisci_Piolo(nuovo, posto.Piolo, verso, segnato, simbolo);
  if (motivo) return Rifiuto(diagramma, quale, motivo);
  return Concludi(diagramma, quale, std::move(nuovo));
}

Modifica Cambia(const Diagramma& diagramma, int quale, const Passo_Scala& passo) {
  const Simbolo nuova = Simbolo_Di(passo.Istr);
  Diagramma nuovo = diagramma;
  const Posto_Simbolo posto = Trova_Simbolo(nuovo, quale);
  Passo_Scala& qui =
      posto.In_Serie ? (*posto.In_Serie)[posto.Indice].Passo : (*posto.Nodi)[posto.N_Nodo].Uscita;
  const Simbolo vecchia = Simbolo_Di(qui.Istr);
  const int riga = qui.Riga;
  const bool posso = (E_Contatto(vecchia.Cosa) && E_Contatto(nuova.Cosa)) ||
                     (E_Uscita(vecchia.Cosa) && E_Uscita(nuova.Cosa)) ||
                     (vecchia.Cosa == nuova.Cosa && vecchia.Ingressi == nuova.Ingressi);
  if (!posso)
    return Rifiuto(diagramma, quale, passo.Istr + " non può stare al posto di " + qui.Istr);
  qui = E_Contatto(nuova.Cosa) ? Come_Contatto(passo, nuova).Passo : passo;
  qui.Riga = riga;
  Modifica modifica = Concludi(diagramma, quale, std::move(nuovo));
  modifica.Scelto = quale;
  return modifica;
}

Modifica Cancella(const Diagramma& diagramma, int quale) {
  Diagramma nuovo = diagramma;
  const Posto_Simbolo posto = Trova_Simbolo(nuovo, quale);
  Piolo& piolo = nuovo[posto.Piolo];
  const bool da_solo = piolo.Ingressi.empty();
  const bool del_contatore = piolo.Ingressi.size() > 1 && !posto.In_Serie;
  if (da_solo || del_contatore || Tutto_Vuoto(piolo)) return Cancella_Piolo(diagramma, quale);
  if (posto.In_Serie)
    posto.In_Serie->erase(A(*posto.In_Serie, posto.Indice));
  else
    posto.Nodi->erase(A(*posto.Nodi, posto.N_Nodo));
  Modifica modifica = Concludi(diagramma, quale, std::move(nuovo));
  if (!modifica.Fatta()) return modifica;
  // What has come into its place, else what stood before it.
  const bool al_suo_posto = quale < Quanti_Simboli(modifica.Nuovo) &&
                            Da_Completare(Simbolo_Numero(modifica.Nuovo, quale));
  modifica.Scelto = al_suo_posto ? quale : std::max(quale - 1, 0);
  return modifica;
}

Modifica Nuovo_Piolo(const Diagramma& diagramma, int quale) {
  Diagramma nuovo = diagramma;
  const std::size_t dopo =
      quale < 0 || diagramma.empty() ? nuovo.size() : Trova_Simbolo(nuovo, quale).Piolo + 1;
  Piolo piolo{{{Contatto_Vuoto()}}, {Uscita_Vuota()}};
  piolo.Ingressi.front().front().Passo.Riga = segno_nuovo;
  nuovo.insert(A(nuovo, dopo), std::move(piolo));
  return Concludi(diagramma, quale, std::move(nuovo));
}

Modifica Cancella_Piolo(const Diagramma& diagramma, int quale) {
  Diagramma nuovo = diagramma;
  const std::size_t indice = Trova_Simbolo(nuovo, quale).Piolo;
  int primo = 0;
  for (std::size_t n = 0; n < indice; ++n)
    Per_Ogni_Simbolo(nuovo[n], [&](const Passo_Scala&) { ++primo; });
  nuovo.erase(A(nuovo, indice));
  Modifica modifica = Concludi(diagramma, quale, std::move(nuovo));
  if (modifica.Fatta()) modifica.Scelto = std::min(primo, Quanti_Simboli(modifica.Nuovo) - 1);
  return modifica;
}

}  // namespace tavorno
