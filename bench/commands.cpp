// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/commands.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iomanip>
#include <memory>
#include <optional>

#include "bench/arguments.h"
#include "bench/json_report.h"
#include "bench/ladder_command.h"
#include "bench/plant_options.h"
#include "bench/report_files.h"
#include "bench/session_command.h"
#include "bench/speed.h"
#include "bench/trace_options.h"
#include "grading/reports.h"
#include "manual/manuals.h"
#include "plants/exercises.h"
#include "plants/link.h"
#include "plc/codepage.h"
#include "recorder/session.h"
#include "recorder/session_file.h"
#include "recorder/virtual_run.h"

namespace tavorno {

namespace {

/// A message box on one line of its own for each line of its text.
void Stampa_Avviso(std::ostream& out, const Avviso& avviso) {
  std::string testo = avviso.Titolo + ": " + avviso.Testo;
  std::erase(testo, '\r');
  for (std::size_t a_capo = testo.find('\n'); a_capo != std::string::npos;
       a_capo = testo.find('\n', a_capo + 1))
    testo.insert(a_capo + 1, "    ");
  out << testo << '\n';
}

void Stampa_Listato(std::ostream& out, const std::string& listato) {
  std::string testo = A_Utf8(listato);
  std::erase(testo, '\r');
  out << testo;
}

/// Opens and compiles; empty when the project is unreadable, which has been reported.
std::unique_ptr<Seduta> Apri_E_Compila(const std::string& file, std::ostream& err) {
  auto seduta = std::make_unique<Seduta>();
  if (!seduta->Apri(file)) {
    for (const Avviso& avviso : seduta->Avvisi) Stampa_Avviso(err, avviso);
    err << file << ": impossibile leggere il progetto.\n"
        << seduta->progetto.Dettaglio.Come_Testo() << '\n';
    return nullptr;
  }
  if (!seduta->progetto.Nota_Lettura.empty())
    err << file << ": " << seduta->progetto.Nota_Lettura << '\n';
  seduta->progetto.Compila();
  return seduta;
}

int Comando_Compila(const Argomenti& argomenti, std::ostream& out, std::ostream& err) {
  const auto seduta = Apri_E_Compila(argomenti.Un_File(), err);
  if (!seduta) return Uscita_Illeggibile;
  if (argomenti.Ha("--json")) {
    out << Rapporto_Json(*seduta) << '\n';
  } else {
    Stampa_Listato(out, seduta->progetto.Lista_Comp);
    for (const Avviso& avviso : seduta->Avvisi) Stampa_Avviso(out, avviso);
  }
  return seduta->progetto.Compilato ? Uscita_Buona : Uscita_Errori;
}

/// The same for a project that is to run: its errors have been reported, with the exit status.
std::unique_ptr<Seduta> Apri_Per_Eseguire(const std::string& file, std::ostream& err,
                                          Stato_Uscita& stato) {
  auto seduta = Apri_E_Compila(file, err);
  stato = seduta ? Uscita_Errori : Uscita_Illeggibile;
  if (!seduta) return nullptr;
  if (!seduta->progetto.Compilato) {
    Stampa_Listato(err, seduta->progetto.Lista_Comp);
    for (const Avviso& avviso : seduta->Avvisi) Stampa_Avviso(err, avviso);
    return nullptr;
  }
  seduta->Avvisi.clear();
  return seduta;
}

/// With `--uscita` what entered is written to that file as a session.
int Comando_Esegui(const Argomenti& argomenti, std::ostream& out, std::ostream& err) {
  Limiti limiti;
  limiti.Durata = argomenti.Numero("--ms", limiti.Durata, 1, 86'400'000);
  limiti.Scansione = static_cast<int>(argomenti.Numero("--scansione", limiti.Scansione, 1, 10000));
  limiti.Ogni_Scansione = argomenti.Ha("--ogni-scansione");
  const Esercizio* esercizio = Impianto_Di(argomenti);
  std::vector<Evento_Ingresso> ingressi = Ingressi_Di(argomenti, esercizio);
  std::vector<Gesto> mani = Mani_Di(argomenti, esercizio);

  Stato_Uscita illeggibile{};
  const std::string& file = argomenti.Un_File();
  Controlla_Rapporti(argomenti, {"--vcd", "--svg", "--uscita"}, {file});
  const auto seduta = Apri_Per_Eseguire(file, err, illeggibile);
  if (!seduta) return illeggibile;

  std::optional<Registratore> registratore;
  if (argomenti.Ha("--uscita")) {
    registratore.emplace(seduta->plc);
    registratore->Ms_Tra_Tappe = registratore->Righe_Tra_Tappe = Momento::Mai;  // nobody goes back
  }
  Stato_Impianto stato;
  std::optional<Collegamento> impianto;
  if (esercizio) impianto.emplace(seduta->plc, stato, *esercizio);

  Corsa corsa(seduta->plc, limiti);
  corsa.Ingressi = std::move(ingressi);
  corsa.Mani = std::move(mani);
  if (impianto) corsa.Impianto_Collegato = &*impianto;
  corsa.Cambio = [&](std::int64_t ms, char area, int byte, int bit, bool acceso) {
    out << std::setw(8) << ms << " ms  " << Nome_Punto(area, byte, bit, esercizio) << " = "
        << acceso << '\n';
  };
  corsa.Senza_Effetto = [&](std::int64_t ms, const Gesto& gesto) {
    out << std::setw(8) << ms << " ms  " << gesto.Come_Testo()
        << ": nessun effetto, la figura ora è nascosta\n";
  };
  Traccia traccia(Righe_Di(esercizio));
  if (Vuole_Traccia(argomenti)) corsa.Registra = &traccia;
  const Fine_Corsa fine = corsa.Esegui();
  Scrivi_Traccia(argomenti, traccia, file);
  if (registratore) {
    registratore->Titolo = seduta->progetto.File_Titolo;
    Scrivi_Rapporto(argomenti.Testo("--uscita", ""), Byte_Di(registratore->Registrata()));
  }

  for (const Avviso& avviso : seduta->Avvisi) {
    out << std::setw(8) << corsa.Tempo() << " ms  ";
    Stampa_Avviso(out, avviso);
  }
  switch (fine) {
    case Fine_Corsa::Tempo:
      out << "Fine: " << corsa.Tempo() << " ms, " << seduta->plc.N_Cicli << " scansioni.\n";
      return Uscita_Buona;
    case Fine_Corsa::Senza_MEND:
      out << "Interrotto: il programma non raggiunge MEND (" << limiti.Righe_Scansione
          << " righe senza finire la scansione).\n";
      break;
    case Fine_Corsa::Arresto:
      out << "Interrotto: la CPU si è fermata alla riga " << seduta->plc.PC << ".\n";
      break;
    case Fine_Corsa::Fatale:
      out << "Errore fatale: " << corsa.Rapporto() << '\n';
      break;
  }
  return Uscita_Errori;
}

/// As it is written in Italian: "3,7".
std::string Un_Decimale(double numero) {
  char testo[64];
  std::snprintf(testo, sizeof testo, "%.1f", numero);
  std::string cifre = testo;
  std::ranges::replace(cifre, '.', ',');
  return cifre;
}

int Comando_Misura(const Argomenti& argomenti, std::ostream& out, std::ostream& err) {
  const std::chrono::milliseconds durata{argomenti.Numero("--ms", 1000, 1, 60'000)};
  Stato_Uscita illeggibile{};
  const auto seduta = Apri_Per_Eseguire(argomenti.Un_File(), err, illeggibile);
  if (!seduta) return illeggibile;
  try {
    const Velocita velocita = Misura(seduta->plc, durata);
    if (!seduta->plc.PLC_Acceso) {
      for (const Avviso& avviso : seduta->Avvisi) Stampa_Avviso(out, avviso);
      out << "Interrotto: la CPU si è fermata alla riga " << seduta->plc.PC << ".\n";
      return Uscita_Errori;
    }
    const auto righe = static_cast<double>(velocita.Righe);
    out << seduta->plc.Prog.Righe() << " righe: " << Un_Decimale(righe / velocita.Secondi / 1e6)
        << " milioni di righe al secondo, " << Un_Decimale(velocita.Secondi / righe * 1e9)
        << " ns per riga, "
        << Un_Decimale(static_cast<double>(velocita.Scansioni) / velocita.Secondi / 1e3)
        << " mila scansioni al secondo.\n"
        << "Tempo di processore: " << Un_Decimale(velocita.Secondi_Processore / righe * 1e9)
        << " ns per riga, " << Un_Decimale(velocita.Secondi_Processore / velocita.Secondi * 100)
        << " % del tempo.\n";
    return Uscita_Buona;
  } catch (const Fatale& fatale) {
    out << "Errore fatale: " << Rapporto_Fatale(fatale, seduta->plc) << '\n';
    return Uscita_Errori;
  }
}

}  // namespace

int Banco(const std::vector<std::string>& argomenti, std::ostream& out, std::ostream& err) {
  try {
    if (argomenti.empty()) throw Uso_Errato("manca il comando");
    const std::string& comando = argomenti.front();
    const std::vector<std::string> resto(argomenti.begin() + 1, argomenti.end());
    for (const std::string& parola : argomenti) {
      if (parola == "--help" || parola == "-h") {
        out << Aiuto(Manuale_Banco());
        return Uscita_Buona;
      }
    }
    if (comando == "--version") {
      out << "tavorno-banco " << Versione() << '\n';
      return Uscita_Buona;
    }
    if (comando == "compila") return Comando_Compila(Argomenti(resto, {}, {"--json"}), out, err);
    if (comando == "esegui")
      return Comando_Esegui(
          Argomenti(resto,
                    {"--ms", "--scansione", "--ingressi", "--impianto", "--mani", "--vcd", "--svg"},
                    {"--ogni-scansione"}),
          out, err);
    if (comando == "registra") {
      const Argomenti letti(resto,
                            {"--ms", "--scansione", "--ingressi", "--impianto", "--mani", "--vcd",
                             "--svg", "--uscita"},
                            {"--ogni-scansione"});
      if (!letti.Ha("--uscita")) throw Uso_Errato("manca --uscita, il file della seduta");
      return Comando_Esegui(letti, out, err);
    }
    if (comando == "rivivi")
      return Comando_Rivivi(
          Argomenti(resto, {"--fino-a", "--vcd", "--svg", "--confronta", "--script"}, {}), out);
    if (comando == "scala")
      return Comando_Scala(Argomenti(resto, {"--svg", "--impianto"}, {}), out, err);
    if (comando == "misura") return Comando_Misura(Argomenti(resto, {"--ms"}, {}), out, err);
    throw Uso_Errato("comando sconosciuto: " + comando);
  } catch (const Uso_Errato& errore) {
    err << "tavorno-banco: " << errore.what() << " (tavorno-banco --help per l'aiuto)\n";
    return Uscita_Uso;
  } catch (const std::runtime_error& errore) {
    err << "tavorno-banco: " << errore.what() << '\n';
    return Uscita_Errori;
  }
}

}  // namespace tavorno
