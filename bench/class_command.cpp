// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/class_command.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <iostream>
#include <thread>

#include "awl/file_io.h"
#include "bench/arguments.h"
#include "bench/commands.h"
#include "bench/interruption.h"
#include "bench/plant_options.h"
#include "bench/process.h"
#include "bench/program_folder.h"
#include "bench/report_files.h"
#include "grading/class_hand_ins.h"
#include "grading/class_report.h"
#include "grading/grader.h"
#include "grading/reports.h"
#include "manual/manuals.h"
#include "plants/exercises.h"
#include "trace/trace.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

/// A folder for what comes out of an archive; it goes with its owner.
class Appoggio {
 public:
  Appoggio() : cartella_(Cartella_Di_Appoggio()) {}
  ~Appoggio() {
    std::error_code nessuno;
    fs::remove_all(cartella_, nessuno);
  }
  Appoggio(const Appoggio&) = delete;
  Appoggio& operator=(const Appoggio&) = delete;
  const fs::path& Cartella() const { return cartella_; }

 private:
  fs::path cartella_;
};

/// The diagram of a case that failed, from the times of its only run; empty for others.
std::string Diagramma(const Caso_Giocato& giocato) {
  const Caso& caso = giocato.Esito;
  if (caso.Superato() || caso.Script_Errato || !giocato.Tempi) return "";
  const std::string svg = Diagramma_Svg(*giocato.Tempi, caso.Nome, caso.Rilievi.front().Ms);
  return svg.substr(std::min(svg.find("<svg"), svg.size()));
}

Voto Esamina_Consegna(const Consegna& consegna, Verifiche verifiche) {
  Voto voto;
  voto.Studente = consegna.Studente.empty() ? consegna.File : consegna.Studente;
  if (!consegna.Motivo.empty() || Interruzione::Chiesta()) {
    voto.Esito = Non_Esaminata(consegna.File,
                               consegna.Motivo.empty() ? "esame interrotto" : consegna.Motivo);
    return voto;
  }
  verifiche.Tempi = true;
  verifiche.Al_Caso = [&voto](const Caso_Giocato& giocato) {
    voto.Diagrammi.push_back(Diagramma(giocato));
  };
  voto.Esito = Esamina(consegna.Percorso, verifiche);
  if (!voto.Esito.Compilato) voto.Diagrammi.clear();
  const std::string byte = Leggi_File(consegna.Percorso).Byte;
  voto.Impronta = Firma_Di(byte);
  voto.Programma = Programma_In_Chiaro(byte);
  voto.Esito.Progetto = consegna.File;  // the same wherever it was unpacked
  return voto;
}

std::vector<Voto> Esamina_Classe(const std::vector<Consegna>& consegne, const Verifiche& verifiche,
                                 unsigned processi, std::ostream& err) {
  const Interruzione interruzione;
  const bool terminale = &err == &std::cerr && Errori_Su_Terminale();
  std::vector<Voto> voti(consegne.size());
  std::atomic<std::size_t> prossima = 0, fatte = 0;
  std::vector<std::jthread> operai;
  for (unsigned n = 0; n < processi && n < consegne.size(); ++n) {
    operai.emplace_back([&] {
      for (std::size_t posto = 0; (posto = prossima++) < consegne.size();) {
        voti[posto] = Esamina_Consegna(consegne[posto], verifiche);
        ++fatte;
      }
    });
  }
  while (terminale && fatte < consegne.size()) {
    err << "\r\033[Kesaminate " << fatte << " di " << consegne.size() << std::flush;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  operai.clear();  // waits for them
  if (terminale) err << "\r\033[K" << std::flush;
  return voti;
}

void Prepara_Uscita(const std::string& nome) {
  std::error_code errore;
  const fs::path cartella = Percorso_Disco(nome);
  fs::create_directories(cartella, errore);
  if (errore || !fs::is_directory(cartella, errore))
    throw std::runtime_error("impossibile scrivere \"" + nome + "\": non è una cartella");
  if (!fs::is_empty(cartella, errore) || errore)
    throw Uso_Errato("la cartella \"" + nome +
                     "\" non è vuota: i rapporti non prendono il posto di altri file");
}

void Scrivi_Rapporti(const fs::path& cartella, const std::vector<Voto>& voti,
                     const Testata& testata) {
  std::vector<Esito_Progetto> esiti;
  esiti.reserve(voti.size());
  for (const Voto& voto : voti) esiti.push_back(voto.Esito);
  Scrivi_Rapporto(Testo_Percorso(cartella / "indice.html"), Pagina_Docente(voti, testata));
  for (std::size_t n = 0; n < voti.size(); ++n)
    Scrivi_Rapporto(Testo_Percorso(cartella / Nome_Pagina(n)), Pagina_Studente(voti[n], testata));
  Scrivi_Rapporto(Testo_Percorso(cartella / Nome_Pagina_Simili), Pagina_Simili(voti, testata));
  Scrivi_Rapporto(Testo_Percorso(cartella / "punti.csv"), Tabella_Csv(voti));
  Scrivi_Rapporto(Testo_Percorso(cartella / "junit.xml"), Rapporto_Junit(esiti, testata));
  Scrivi_Rapporto(Testo_Percorso(cartella / "esiti.json"), Rapporto_Json(esiti, testata) + "\n");
}

/// What a class is graded with: a script of its own, or an exercise with the one that comes with
/// it.
struct Compito {
  std::string Script;
  const Esercizio* Impianto = nullptr;
};

Compito Compito_Di(const Argomenti& argomenti) {
  const bool esercizio = argomenti.Ha("--esercizio");
  if (argomenti.File().size() != (esercizio ? 1U : 2U))
    throw Uso_Errato(
        "servono le consegne (una cartella o un archivio zip) e lo script, oppure --esercizio");
  if (!esercizio) return {argomenti.File()[1], Impianto_Di(argomenti)};
  const auto esercizi = Tabella_Esercizi();
  const long long numero =
      argomenti.Numero("--esercizio", 0, 0, static_cast<long long>(esercizi.size()) - 1);
  return {Testo_Percorso(File_Esercizio(Cartella_Programma(), static_cast<int>(numero))),
          &Scegli_Impianto(esercizi, static_cast<std::size_t>(numero))};
}

int Esegui(const Argomenti& argomenti, std::ostream& out, std::ostream& err) {
  const Compito compito = Compito_Di(argomenti);
  const std::string uscita =
      argomenti.Testo("--uscita", "esiti-" + fs::path(compito.Script).stem().string());
  const auto processi = static_cast<unsigned>(
      argomenti.Numero("--processi", std::max(1U, std::thread::hardware_concurrency()), 1, 256));
  Verifiche verifiche;
  verifiche.Impianto = compito.Impianto;
  const Appoggio appoggio;
  std::vector<Consegna> consegne;
  Testata testata;
  try {
    verifiche.Script.push_back(Leggi_Script(compito.Script));
    const Sorgente_Script& script = verifiche.Script.front();
    testata.Con.push_back({script.Nome, script.Impronta});
    consegne = Leggi_Classe(argomenti.File()[0], appoggio.Cartella());
  } catch (const std::runtime_error& errore) {
    err << errore.what() << '\n';
    return Uscita_Illeggibile;
  }
  if (!verifiche.Impianto) verifiche.Impianto = Impianto_Nominato(verifiche.Script);
  if (consegne.empty()) {
    err << argomenti.File()[0] << ": non ci sono consegne.\n";
    return Uscita_Illeggibile;
  }
  Prepara_Uscita(uscita);
  const std::vector<Voto> voti = Esamina_Classe(consegne, verifiche, processi, err);
  Scrivi_Rapporti(Percorso_Disco(uscita), voti, testata);

  bool errati = false, superati = true;
  for (const Voto& voto : voti) {
    Stampa_Riga(out, voto.Esito);
    errati = errati || voto.Esito.Script_Errato();
    superati = superati && voto.Esito.Superato();
  }
  out << "Rapporti in " << uscita << "/indice.html\n";
  return errati ? Uscita_Illeggibile : superati ? Uscita_Buona : Uscita_Errori;
}

}  // namespace

std::string Aiuto_Classe() {
  return Aiuto(Manuale_Classe());
}

int Comando_Classe(const std::vector<std::string>& parole, std::ostream& out, std::ostream& err) {
  if (std::ranges::any_of(parole, [](const auto& p) { return p == "--help" || p == "-h"; })) {
    out << Aiuto_Classe();
    return Uscita_Buona;
  }
  try {
    return Esegui(Argomenti(parole, {"--uscita", "--esercizio", "--impianto", "--processi"}, {}),
                  out, err);
  } catch (const Uso_Errato& errore) {
    err << "tavorno-banco: " << errore.what() << " (tavorno-banco classe --help per l'aiuto)\n";
    return Uscita_Uso;
  } catch (const std::exception& errore) {
    err << "tavorno-banco: " << errore.what() << '\n';
    return Uscita_Errori;
  }
}

}  // namespace tavorno
