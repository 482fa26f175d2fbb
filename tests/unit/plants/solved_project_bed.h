// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "tests/unit/plants/link_bed.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

/// An exercise with its solved project, both running on virtual time with a scan every 10 ms.
class Banco_Risolto : public Banco_Impianto {
 public:
  static constexpr int Scansione = 10;

  void Avvia(int numero, const std::string& file) {
    Apri(numero);
    const std::filesystem::path percorso = std::filesystem::path(TAVORNO_EXAMPLES) / file;
    progetto.File_Progetto = percorso.string();
    progetto.File_Titolo = file;
    progetto.LeggiTxt();
    if (!progetto.Err_Lettura) progetto.Compila();
    if (!progetto.Compilato) throw std::runtime_error(progetto.Lista_Comp);
    plc.mnuPlcStep();
    plc.mnuPlcRun();
    Passa(100);
  }

  void Passa(int millisecondi) {
    for (int ms = 0; ms < millisecondi; ms += Scansione) {
      orologio.Avanza(Scansione);
      const auto prima = plc.N_Cicli;
      while (plc.N_Cicli == prima && plc.PLC_Acceso) plc.CmdStep();
      Dopo_La_Scansione();
    }
  }
  /// Runs until a condition holds; false when it does not within the time.
  template <class Condizione>
  bool Attendi(Condizione condizione, int millisecondi = 90000) {
    for (int ms = 0; ms < millisecondi && !condizione(); ms += Scansione) Passa(Scansione);
    return condizione();
  }

  /// A push of 200 ms.
  void Spingi(const std::string& nome) {
    Macchina().Premi(nome);
    Passa(200);
    Macchina().Rilascia(nome);
    Macchina().Clic(nome);
    Passa(20);
  }

  bool Q(int posizione) const { return Uscite_Q()[static_cast<std::size_t>(posizione - 1)] == '1'; }
  Figura& F(const std::string& nome) { return Macchina().Disegno[nome]; }

 protected:
  /// What must hold after every scan.
  virtual void Dopo_La_Scansione() {}

 private:
  std::string Uscite_Q() const { return plc.SQ[0].Stato_Q() + plc.SQ[1].Stato_Q(); }
};

}  // namespace tavorno::prova
