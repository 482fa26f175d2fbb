// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/grader.h"

#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "awl/file_io.h"
#include "grading/script_functions.h"
#include "plc/codepage.h"
#include "recorder/session.h"

namespace tavorno {

namespace {

std::string Senza_CR(std::string testo) {
  std::erase(testo, '\r');
  return testo;
}

/// In universal time, so that a report does not depend on where it was written; empty for what is
/// not there.
std::string Ultima_Modifica(const std::string& percorso) {
  namespace tempo = std::chrono;
  std::error_code errore;
  const auto scritto = std::filesystem::last_write_time(Percorso_Disco(percorso), errore);
  if (errore) return "";
  const auto istante = tempo::floor<tempo::seconds>(tempo::file_clock::to_sys(scritto));
  const auto giorno = tempo::floor<tempo::days>(istante);
  const tempo::year_month_day data(giorno);
  const tempo::hh_mm_ss ora(istante - giorno);
  char testo[64];
  const int n = std::snprintf(
      testo, sizeof testo, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(data.year()),
      static_cast<unsigned>(data.month()), static_cast<unsigned>(data.day()),
      static_cast<int>(ora.hours().count()), static_cast<int>(ora.minutes().count()),
      static_cast<int>(ora.seconds().count()));
  return {testo, static_cast<std::size_t>(n)};
}

/// Reads and compiles into `ambiente`.
void Prepara(Seduta& seduta, const std::string& percorso, Ambiente_Script& ambiente,
             Esito_Progetto& esito) {
  if (!seduta.Apri(percorso)) {
    esito.Illeggibile = true;
    ambiente.Motivo =
        "Impossibile leggere il progetto: " + Senza_CR(seduta.progetto.Dettaglio.Come_Testo());
    return;
  }
  seduta.progetto.Compila();
  if (seduta.progetto.Compilato) {
    ambiente.Programma = &seduta.plc;
    esito.Compilato = true;
    return;
  }
  esito.Con_Errori = true;
  ambiente.Motivo = "Il progetto non si compila: errori " + std::to_string(seduta.progetto.Errori);
  ambiente.Listato = Senza_CR(A_Utf8(seduta.progetto.Lista_Comp));
}

/// What goes wrong in the bench itself fails the hand-in, and says so.
template <class Azione>
void Con_Riguardo(Esito_Progetto& esito, Azione azione) {
  const auto Fallisci = [&](const std::string& perche) {
    Caso caso;
    caso.Nome = "esame";
    caso.Rilievi.push_back({0, perche});
    esito.Casi.push_back(std::move(caso));
  };
  try {
    azione(Fallisci);
  } catch (const std::exception& errore) {
    Fallisci(std::string("errore interno del banco: ") + errore.what());
  }
}

Ambiente_Script Ambiente_Di(const Verifiche& verifiche, Traccia* traccia) {
  Ambiente_Script ambiente;
  ambiente.Impianto = verifiche.Impianto;
  ambiente.Registra = traccia;
  ambiente.Solo_Caso = verifiche.Solo_Caso;
  ambiente.Basta_Un_Errore = verifiche.Basta_Un_Errore;
  ambiente.Limiti = verifiche.Limiti;
  ambiente.Inizio = verifiche.Inizio;
  ambiente.Al_Caso = verifiche.Al_Caso;
  ambiente.Riprendi = verifiche.Riprendi;
  ambiente.Tempi = verifiche.Tempi;
  return ambiente;
}

template <class Fallimento>
void Esegui_Script(const Verifiche& verifiche, const Ambiente_Script& ambiente,
                   const Fallimento& fallisci, Esito_Progetto& esito) {
  for (const Sorgente_Script& script : verifiche.Script) {
    Esame esame(script, ambiente, Registra_Funzioni);
    for (Caso& caso : esame.Esegui()) esito.Casi.push_back(std::move(caso));
  }
  if (!ambiente.Programma && esito.Superato()) fallisci(ambiente.Motivo);
  if (esito.Casi.empty()) fallisci("nessuno script contiene una prova che si possa eseguire");
}

}  // namespace

const Esercizio* Impianto_Nominato(const std::vector<Sorgente_Script>& script) {
  Ambiente_Script ambiente;
  ambiente.Motivo = "lo script si legge soltanto";
  for (const Sorgente_Script& uno : script) {
    if (const Esercizio* impianto = Esame(uno, ambiente, Registra_Funzioni).Leggi())
      return impianto;
  }
  return nullptr;
}

Esito_Progetto Esamina_Programma(const Memoria& programma, const Verifiche& verifiche,
                                 Traccia* traccia) {
  Esito_Progetto esito;
  esito.Compilato = true;
  Con_Riguardo(esito, [&](const auto& fallisci) {
    Ambiente_Script ambiente = Ambiente_Di(verifiche, traccia);
    ambiente.Programma = &programma;
    Esegui_Script(verifiche, ambiente, fallisci, esito);
  });
  return esito;
}

Esito_Progetto Esamina(const std::string& percorso, const Verifiche& verifiche, Traccia* traccia) {
  Esito_Progetto esito;
  esito.Progetto = percorso;
  esito.Data = Ultima_Modifica(percorso);
  Con_Riguardo(esito, [&](const auto& fallisci) {
    const auto seduta = std::make_unique<Seduta>();
    Ambiente_Script ambiente = Ambiente_Di(verifiche, traccia);
    Prepara(*seduta, percorso, ambiente, esito);
    Esegui_Script(verifiche, ambiente, fallisci, esito);
  });
  return esito;
}

}  // namespace tavorno
