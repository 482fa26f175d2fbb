// SPDX-License-Identifier: GPL-3.0-or-later
// What going back costs after a long run of 300 lines, a scan a millisecond, as the window runs
// them: the processor time of each step, and how much memory the journal holds.
// Usage: recorder_benchmark [MINUTES [EXERCISE...]], where -1 stands for no plant.
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <vector>

#include "benchmarks/programs.h"
#include "plants/link.h"
#include "recorder/recorder.h"
#include "trace/address.h"

namespace {

using namespace tavorno;

constexpr int nessuno = -1;
constexpr int assi = 17;

/// The mixed program; for the plant that reads an analog output, one that changes it.
misura::Programma Programma_Per(int impianto) {
  const misura::Programma analogica = {"LD SM0.5", "MOVW +16000 AQW0", "LDN SM0.5",
                                       "MOVW +8000 AQW0"};
  if (impianto != assi) return misura::Misto(300);
  misura::Programma programma = misura::Misto(300 - static_cast<int>(analogica.size()));
  programma.insert(programma.end(), analogica.begin(), analogica.end());
  return programma;
}

class Seduta_Lunga {
 public:
  Seduta_Lunga(int minuti, int impianto) {
    misura::Carica(plc_, Programma_Per(impianto));
    plc_.mnuPlcStop();
    registratore_ = std::make_unique<Registratore>(plc_);
    if (impianto != nessuno) {
      fili_ = std::make_unique<Collegamento>(
          plc_, stato_, Tabella_Esercizi()[static_cast<std::size_t>(impianto)]);
      fili_->Carica();
      registratore_->Apri = [this](int) {
        fili_->Apri();
        return fili_.get();
      };
    }
    plc_.Entra(Comando_Corsa::Cont);
    const std::int64_t fine = std::int64_t{minuti} * 60'000;
    // As the window's driver: the clock moves before each scan, and a hand now and then.
    const Iscrizione cessione = plc_.Hook.Ascolta_Cedi_Righe([&] {
      if (plc_.Hook.Adesso != Vissuto::Presente || plc_.PC != 0) return 96;
      const std::int64_t ms = plc_.Tempo.Adesso() + 1;
      plc_.Entra({.Che = Cosa::Presente, .Numero = ms});
      if (ms % 700 == 0) plc_.Entra(Di_Ingresso(1, ms % 1400 == 0 ? "00100000" : "00000000"));
      if (ms >= fine) plc_.Entra(Comando_Corsa::Pausa);
      return 96;
    });
    plc_.Entra(Comando_Corsa::Run);
  }

  template <class Passo>
  void Misura(const char* nome, Passo passo) {
    const std::clock_t da = std::clock();
    const bool fatto = passo(*registratore_);
    const double secondi = static_cast<double>(std::clock() - da) / CLOCKS_PER_SEC;
    std::printf("  %-34s %7.3f s%s\n", nome, secondi, fatto ? "" : "  (nothing there)");
  }

  Registratore& Chi() { return *registratore_; }

 private:
  Orologio orologio_;
  Plc plc_{orologio_};
  Stato_Impianto stato_;
  std::unique_ptr<Registratore> registratore_;
  std::unique_ptr<Collegamento> fili_;
};

void Prova(int minuti, int impianto) {
  Seduta_Lunga seduta(minuti, impianto);
  if (impianto == nessuno)
    std::printf("%d minutes, no plant", minuti);
  else
    std::printf("%d minutes, exercise %02d", minuti, impianto);
  std::printf(": %.1f MB, the past begins %.0f minutes ago\n",
              static_cast<double>(seduta.Chi().Occupata()) / 1e6,
              static_cast<double>(seduta.Chi().Presente().Ms - seduta.Chi().Primo().Ms) / 60'000);
  seduta.Misura("a line back", [](Registratore& r) { return r.Riga_Indietro(); });
  seduta.Misura("a scan back", [](Registratore& r) { return r.Scansione_Indietro(); });
  seduta.Misura("a second back", [](Registratore& r) { return r.Tempo_Indietro(1000); });
  seduta.Misura("the last change of Q0.3", [](Registratore& r) {
    int riga = 0;
    const auto dove = Leggi_Indirizzo("Q0.3");
    return r.Ultimo_Cambio([&](const Plc& plc) { return Leggi_Cella(plc, *dove); }, riga);
  });
  seduta.Misura("to the cursor, a quarter back", [](Registratore& r) {
    return r.Vai_A_Vista(r.Presente().Ms - (r.Presente().Ms - r.Primo().Ms) / 4);
  });
  seduta.Misura("to the present", [](Registratore& r) {
    r.Torna_Al_Presente();
    return true;
  });
}

}  // namespace

int main(int argc, char** argv) {
  const int minuti = argc > 1 ? std::atoi(argv[1]) : 10;
  std::vector<int> impianti{nessuno, 0, 7, 9, 14, 17};
  if (argc > 2) impianti.clear();
  for (int n = 2; n < argc; ++n) impianti.push_back(std::atoi(argv[n]));
  for (const int impianto : impianti) Prova(minuti, impianto);
}
