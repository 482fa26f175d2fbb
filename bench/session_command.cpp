// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/session_command.h"

#include <array>
#include <iomanip>
#include <optional>

#include "bench/exit_status.h"
#include "bench/plant_options.h"
#include "bench/report_files.h"
#include "bench/trace_options.h"
#include "plants/exercises.h"
#include "recorder/session_file.h"
#include "recorder/session_script.h"
#include "recorder/whole_state.h"

namespace tavorno {

namespace {

Seduta_Registrata Apri(const std::string& file) {
  std::string motivo;
  auto registrazione = Apri_Registrazione(file, motivo);
  if (!registrazione) throw std::runtime_error(file + ": " + motivo);
  return std::move(*registrazione);
}

/// The plant that is opened first in a session, or nullptr.
const Esercizio* Primo_Impianto(const Giornale& voci) {
  Lettore_Giornale lettore(voci, voci.Inizio);
  while (const auto voce = lettore.Prossima()) {
    const auto esercizi = Tabella_Esercizi();
    if (voce->Entra.Che == Cosa::Apri && voce->Entra.Indice < std::ssize(esercizi))
      return &esercizi[static_cast<std::size_t>(voce->Entra.Indice)];
  }
  return nullptr;
}

/// A session on a CPU of its own.
struct Rivissuta {
  explicit Rivissuta(const Seduta_Registrata& registrazione)
      : inizio(registrazione.Stato.Adesso),
        replica(plc, registrazione.Voci, registrazione.Voci.Inizio) {
    Metti_Stato(plc, *registrazione.Programma, registrazione.Stato);
    replica.In_Giro = registrazione.Stato.In_Giro != Giro::Nessuno;
  }
  std::int64_t Tempo() const { return plc.Tempo.Adesso() - inizio; }

  Orologio orologio;
  Plc plc{orologio};
  std::int64_t inizio;
  Replica replica;
};

/// Tells each change of an input or output, an output before its plant reacts to it.
std::vector<Iscrizione> Ascolta_Cambi(Plc& plc, std::array<std::array<std::uint8_t, 2>, 2>& visti,
                                      const std::function<void(char, int, int, bool)>& cambio) {
  const auto confronta = [&visti, cambio](char area, int byte, std::uint8_t adesso) {
    std::uint8_t& prima = visti[area == 'Q'][static_cast<std::size_t>(byte)];
    const unsigned diversi = prima ^ adesso;
    prima = adesso;
    for (int bit = 0; bit < 8; ++bit) {
      if ((diversi >> bit & 1U) != 0) cambio(area, byte, bit, adesso >> bit & 1U);
    }
  };
  std::vector<Iscrizione> ascolti;
  for (std::size_t n = 0; n < 2; ++n) {
    visti[0][n] = plc.SI[n].Stato_IB();
    visti[1][n] = plc.SQ[n].Stato_QB();
    ascolti.push_back(plc.SI[n].Change.Ascolta(
        [&plc, n, confronta] { confronta('I', static_cast<int>(n), plc.SI[n].Stato_IB()); }));
    ascolti.push_back(plc.SQ[n].Change.Ascolta_Per_Primo(
        [&plc, n, confronta] { confronta('Q', static_cast<int>(n), plc.SQ[n].Stato_QB()); }));
  }
  return ascolti;
}

/// Both side by side, from millisecond to millisecond: where they part for the first time.
int Confronta(const Seduta_Registrata& una, const Seduta_Registrata& altra, std::ostream& out) {
  Rivissuta a(una), b(altra);
  std::int64_t ms = 0;
  for (bool vive = true; vive; ++ms) {
    const bool a_vive = a.replica.Vai({.Ms = a.inizio + ms});
    const bool b_vive = b.replica.Vai({.Ms = b.inizio + ms});
    if (Byte_Di_Stato(a.plc, a.replica.Impianto) != Byte_Di_Stato(b.plc, b.replica.Impianto)) {
      out << "Prima differenza a " << ms << " ms: "
          << Prima_Differenza(Elenca_Stato(a.plc, a.replica.Impianto),
                              Elenca_Stato(b.plc, b.replica.Impianto))
          << '\n';
      return Uscita_Errori;
    }
    if (a_vive != b_vive) {
      out << "Una delle due sedute finisce a " << ms << " ms, l'altra continua.\n";
      return Uscita_Errori;
    }
    vive = a_vive;
  }
  out << "Le due sedute sono uguali: " << ms - 1 << " ms.\n";
  return Uscita_Buona;
}

}  // namespace

int Comando_Rivivi(const Argomenti& argomenti, std::ostream& out) {
  const std::string& file = argomenti.Un_File();
  std::vector<std::string> letti{file};
  if (argomenti.Ha("--confronta")) letti.push_back(argomenti.Testo("--confronta", ""));
  Controlla_Rapporti(argomenti, {"--vcd", "--svg", "--script"}, letti);
  const Seduta_Registrata registrazione = Apri(file);
  if (argomenti.Ha("--confronta"))
    return Confronta(registrazione, Apri(argomenti.Testo("--confronta", "")), out);

  const Esercizio* esercizio = Primo_Impianto(registrazione.Voci);
  Rivissuta rivissuta(registrazione);
  Plc& plc = rivissuta.plc;
  std::array<std::array<std::uint8_t, 2>, 2> visti{};
  const auto ascolti = Ascolta_Cambi(plc, visti, [&](char area, int byte, int bit, bool acceso) {
    out << std::setw(8) << rivissuta.Tempo() << " ms  " << Nome_Punto(area, byte, bit, esercizio)
        << " = " << acceso << '\n';
  });
  const Iscrizione avvisi = plc.Hook.Mostra.Ascolta([&](const Avviso& avviso) {
    out << std::setw(8) << rivissuta.Tempo() << " ms  " << avviso.Titolo << ": " << avviso.Testo
        << '\n';
  });
  Traccia traccia(Righe_Di(esercizio));
  if (Vuole_Traccia(argomenti)) {
    traccia.Inizia_Caso("esecuzione");
    rivissuta.replica.Guarda = [&] {
      traccia.Campiona(rivissuta.Tempo(), plc);
      return true;
    };
  }
  Momento fine;
  if (argomenti.Ha("--fino-a"))
    fine.Ms = rivissuta.inizio + argomenti.Numero("--fino-a", 0, 0, 1'000'000'000'000);
  int stato = Uscita_Buona;
  std::string rapporto;
  try {
    rivissuta.replica.Vai(fine);
  } catch (const Fatale& fatale) {
    rapporto = "Errore fatale: " + Rapporto_Fatale(fatale, plc) + "\n";
    stato = Uscita_Errori;
  }
  if (Vuole_Traccia(argomenti)) {
    traccia.Campiona(rivissuta.Tempo(), plc);
    traccia.Fine_Caso(rivissuta.Tempo());
    Scrivi_Traccia(argomenti, traccia, registrazione.Titolo);
  }
  if (argomenti.Ha("--script"))
    Scrivi_Rapporto(argomenti.Testo("--script", ""), Script_Di(registrazione));
  out << rapporto << "Fine: " << rivissuta.Tempo() << " ms, " << plc.N_Cicli << " scansioni.\n";
  return stato;
}

}  // namespace tavorno
