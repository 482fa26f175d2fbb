// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/ladder_command.h"

#include "awl/file_io.h"
#include "bench/exit_status.h"
#include "bench/plant_options.h"
#include "bench/report_files.h"
#include "ladder/project_ladder.h"
#include "recorder/session.h"

namespace tavorno {

namespace {

/// What stays a list, a line each, and the count of the others.
void Riassumi(std::span<const Blocco_Scala> blocchi, std::ostream& out) {
  int tutte = 0;
  int disegnate = 0;
  for (const Blocco_Scala& blocco : blocchi) {
    for (const Rete_Scala& rete : blocco.Reti) {
      ++tutte;
      if (rete.Disegnata()) {
        ++disegnate;
        continue;
      }
      const auto& motivo = std::get<Non_Disegnabile>(rete.Forma);
      out << blocco.Nome << ", " << rete.Titolo << ", riga " << motivo.Riga
          << ": resta in lista, perché " << motivo.Motivo << ".\n";
    }
  }
  out << "Segmenti disegnati: " << disegnate << " su " << tutte << ".\n";
}

}  // namespace

int Comando_Scala(const Argomenti& argomenti, std::ostream& out, std::ostream& err) {
  const Esercizio* esercizio = Impianto_Di(argomenti);
  const std::string& file = argomenti.Un_File();
  Controlla_Rapporti(argomenti, {"--svg"}, {file});
  Seduta seduta;
  if (!seduta.Apri(file)) {
    err << file << ": impossibile leggere il progetto.\n"
        << seduta.progetto.Dettaglio.Come_Testo() << '\n';
    return Uscita_Illeggibile;
  }
  const auto righe = static_cast<std::size_t>(seduta.plc.NRighe) + 1;
  const auto blocchi = Scala_Di({seduta.progetto.Righe_Src.begin(), righe});
  const std::string svg = Documento_Svg(
      blocchi, Testo_Percorso(Percorso_Disco(file).filename()),
      [esercizio](const std::string& operando) { return Simbolo_Impianto(operando, esercizio); });
  if (!argomenti.Ha("--svg")) {
    out << svg;
    return Uscita_Buona;
  }
  Scrivi_Rapporto(argomenti.Testo("--svg", ""), svg);
  Riassumi(blocchi, out);
  return Uscita_Buona;
}

}  // namespace tavorno
