// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/verification.h"

#include <algorithm>
#include <utility>

namespace tavorno {

Memoria Appena_Caricata(const Stesura& programma) {
  Memoria cpu;
  Metti_Programma(cpu, programma);
  const Riga_PLC mai_eseguita;
  for (Riga_PLC& riga : cpu.Prog) {
    riga.Fronte = mai_eseguita.Fronte;
    riga.Abil_SCR = mai_eseguita.Abil_SCR;
    riga.Impulso = mai_eseguita.Impulso;
  }
  return cpu;
}

Esito_Progetto Verifica(const Stesura& programma, const Verifiche& verifiche) {
  return Esamina_Programma(Appena_Caricata(programma), verifiche);
}

Verifica_In_Corso::Verifica_In_Corso(Stesura programma, Verifiche verifiche)
    : programma_(std::move(programma)), verifiche_(std::move(verifiche)) {
  operaio_ = std::jthread([this](const std::stop_token& ferma) { Lavora(ferma); });
}

Verifica_In_Corso::~Verifica_In_Corso() = default;

void Verifica_In_Corso::Lavora(const std::stop_token& ferma) {
  verifiche_.Inizio.Ferma = ferma;
  verifiche_.Riprendi = true;
  verifiche_.Al_Caso = [this, &ferma](const Caso_Giocato& giocato) {
    if (!ferma.stop_requested()) Metti(giocato);
  };
  esito_ = Verifica(programma_, verifiche_);
  finita_ = true;
  finita_.notify_all();
}

void Verifica_In_Corso::Metti(const Caso_Giocato& giocato) {
  Caso_Verificato caso;
  caso.Esito = giocato.Esito;
  if (giocato.Film) caso.Film = *giocato.Film;
  if (giocato.Tempi && !giocato.Esito.Superato())
    caso.Diagramma =
        Diagramma_Svg(*giocato.Tempi, giocato.Esito.Nome, giocato.Esito.Rilievi.front().Ms);
  tutti_ = giocato.Tutti;
  const std::scoped_lock chiuso(chiave_);
  pronti_.push_back(std::move(caso));
}

std::vector<Caso_Verificato> Verifica_In_Corso::Prendi() {
  const std::scoped_lock chiuso(chiave_);
  return std::exchange(pronti_, {});
}

}  // namespace tavorno
