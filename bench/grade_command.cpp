// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/grade_command.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <thread>

#include "awl/file_io.h"
#include "bench/arguments.h"
#include "bench/commands.h"
#include "bench/interruption.h"
#include "bench/plant_options.h"
#include "bench/process.h"
#include "bench/report_files.h"
#include "bench/trace_options.h"
#include "grading/grader.h"
#include "grading/hand_in_search.h"
#include "grading/reports.h"
#include "grading/script_functions.h"
#include "manual/manuals.h"
#include "plants/exercises.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

class Illeggibile : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

Sorgente_Script Script_Di(const std::string& file) {
  try {
    return Leggi_Script(file);
  } catch (const std::runtime_error& errore) {
    throw Illeggibile(errore.what());
  }
}

bool Cartella(const std::string& percorso) {
  std::error_code errore;  // an impossible path is no folder
  return fs::is_directory(Percorso_Disco(percorso), errore);
}

/// What the command line names.
struct Incarico {
  std::vector<std::string> Progetti;
  std::vector<Scartata> Scartate;
  bool Molti = false;
  Verifiche Con;

  Testata In_Testa() const {
    Testata testata;
    for (const Sorgente_Script& script : Con.Script)
      testata.Con.push_back({script.Nome, script.Impronta});
    return testata;
  }
};

Incarico Leggi_Incarico(const Argomenti& argomenti) {
  Incarico incarico;
  std::vector<std::string> altri;
  for (const std::string& file : argomenti.File()) {
    if (Estensione(file) == ".lua" && !Cartella(file))
      incarico.Con.Script.push_back(Script_Di(file));
    else
      altri.push_back(file);
  }
  if (altri.empty()) throw Uso_Errato("manca il file del progetto");
  if (incarico.Con.Script.empty()) throw Uso_Errato("manca lo script (un file .lua)");
  incarico.Molti = altri.size() > 1;
  for (const std::string& file : altri) {
    if (Cartella(file)) {
      incarico.Molti = true;
      const Consegne_Trovate trovate = Cerca_Consegne(file);
      if (trovate.Progetti.empty() && trovate.Scartate.empty())
        throw Illeggibile(file + ": la cartella non contiene progetti .AWL.");
      incarico.Progetti.insert(incarico.Progetti.end(), trovate.Progetti.begin(),
                               trovate.Progetti.end());
      incarico.Scartate.insert(incarico.Scartate.end(), trovate.Scartate.begin(),
                               trovate.Scartate.end());
    } else {
      incarico.Progetti.push_back(file);
    }
  }
  incarico.Con.Solo_Caso = argomenti.Testo("--caso", "");
  incarico.Con.Inizio.Ogni_Scansione = argomenti.Ha("--ogni-scansione");
  incarico.Con.Impianto = Impianto_Di(argomenti);
  if (!incarico.Con.Impianto) incarico.Con.Impianto = Impianto_Nominato(incarico.Con.Script);
  return incarico;
}

std::vector<Esito_Progetto> Esamina_Molti(const Incarico& incarico, unsigned processi, bool righe,
                                          std::ostream& out, std::ostream& err) {
  std::vector<Esito_Progetto> esiti;
  // Nobody wants the progress in a file.
  const bool terminale = &err == &std::cerr && Errori_Su_Terminale();
  const std::size_t tutti = incarico.Progetti.size();
  const Interruzione interruzione;
  Esamina_Tutti(
      incarico.Progetti, incarico.Con, processi,
      [&](Esito_Progetto esito) {
        if (terminale) err << "\r\033[K";
        if (righe) Stampa_Riga(out, esito);
        out.flush();
        esiti.push_back(std::move(esito));
      },
      [&](std::size_t fatti) {
        if (!terminale) return;
        err << "esaminati " << fatti << " di " << tutti << std::flush;
        if (fatti == tutti) err << "\r\033[K";
      },
      Interruzione::Chiesta);
  for (const Scartata& scartata : incarico.Scartate) {
    esiti.push_back(Non_Esaminata(scartata.Percorso, scartata.Motivo));
    if (righe) Stampa_Riga(out, esiti.back());
  }
  return esiti;
}

void Stampa_Somma(std::ostream& out, const std::vector<Esito_Progetto>& esiti) {
  const auto superati = std::ranges::count_if(esiti, &Esito_Progetto::Superato);
  const auto saltati = std::ranges::count_if(
      esiti, [](const Esito_Progetto& esito) { return !esito.Non_Esaminato.empty(); });
  const auto errati = std::ranges::count_if(esiti, &Esito_Progetto::Script_Errato);
  out << "Superati " << superati << " progetti su " << esiti.size() << ".";
  if (saltati > 0) out << " Non esaminati: " << saltati << ".";
  if (errati > 0) out << " Con un errore dello script: " << errati << ".";
  out << '\n';
}

int Esegui(const Argomenti& argomenti, std::ostream& out, std::ostream& err) {
  const Incarico incarico = Leggi_Incarico(argomenti);
  const bool json = argomenti.Ha("--json");
  const bool tracce = Vuole_Traccia(argomenti);
  if (incarico.Molti && tracce)
    throw Uso_Errato("le opzioni --vcd e --svg vogliono un solo progetto");
  const auto processi = static_cast<unsigned>(
      argomenti.Numero("--processi", std::max(1U, std::thread::hardware_concurrency()), 1, 256));

  Controlla_Rapporti(argomenti, {"--junit", "--csv", "--vcd", "--svg"}, incarico.Progetti);
  const Testata testata = incarico.In_Testa();
  std::vector<Esito_Progetto> esiti;
  // A file that cannot be written must not cost the others: the grading may have taken an hour.
  std::string non_scritto;
  const auto Prova_A_Scrivere = [&non_scritto](const auto& scrivi) {
    try {
      scrivi();
    } catch (const std::runtime_error& errore) {
      if (non_scritto.empty()) non_scritto = errore.what();
    }
  };
  const auto Scrivi = [&](const char* opzione, auto rapporto) {
    if (argomenti.Ha(opzione))
      Prova_A_Scrivere(
          [&] { Scrivi_Rapporto(argomenti.Testo(opzione, ""), rapporto(esiti, testata)); });
  };
  if (incarico.Molti) {
    esiti = Esamina_Molti(incarico, processi, !json, out, err);
    if (!json) Stampa_Somma(out, esiti);
  } else {
    Traccia traccia(Righe_Di(incarico.Con.Impianto));
    const std::string& progetto = incarico.Progetti.front();
    esiti.push_back(Esamina(progetto, incarico.Con, tracce ? &traccia : nullptr));
    if (!json) Stampa_Progetto(out, esiti.front());
    Prova_A_Scrivere([&] { Scrivi_Traccia(argomenti, traccia, progetto); });
  }
  if (json) out << Rapporto_Json(esiti, testata) << '\n';
  Scrivi("--junit", Rapporto_Junit);
  Scrivi("--csv", Rapporto_Csv);
  if (!non_scritto.empty()) throw std::runtime_error(non_scritto);

  if (std::ranges::any_of(esiti, &Esito_Progetto::Script_Errato)) return Uscita_Illeggibile;
  if (!incarico.Molti && esiti.front().Illeggibile) return Uscita_Illeggibile;
  return std::ranges::all_of(esiti, &Esito_Progetto::Superato) ? Uscita_Buona : Uscita_Errori;
}

}  // namespace

std::string Aiuto_Prova() {
  std::string testo = Aiuto_Uso(Manuale_Prova()) + "\n" + Titolo_Funzioni.Italiano + "\n";
  for (const Riga_Funzione& riga : Funzioni_Script())
    testo += std::string("  ") + riga.Uso + "\n      " + riga.Aiuto + "\n";
  return testo + Aiuto_Stati(Manuale_Prova());
}

int Comando_Prova(const std::vector<std::string>& parole, std::ostream& out, std::ostream& err) {
  if (std::ranges::any_of(parole, [](const auto& p) { return p == "--help" || p == "-h"; })) {
    out << Aiuto_Prova();
    return Uscita_Buona;
  }
  try {
    return Esegui(
        Argomenti(parole,
                  {"--impianto", "--caso", "--junit", "--csv", "--vcd", "--svg", "--processi"},
                  {"--json", "--ogni-scansione"}),
        out, err);
  } catch (const Uso_Errato& errore) {
    err << "tavorno-banco: " << errore.what() << " (tavorno-banco prova --help per l'aiuto)\n";
    return Uscita_Uso;
  } catch (const Illeggibile& errore) {
    err << errore.what() << '\n';
    return Uscita_Illeggibile;
  } catch (const std::exception& errore) {
    err << "tavorno-banco: " << errore.what() << '\n';
    return Uscita_Errori;
  }
}

}  // namespace tavorno
