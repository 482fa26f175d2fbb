// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/project_ladder.h"

#include "awl/text.h"
#include "ladder/to_list.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

bool E_Network(const Riga_Src& riga) {
  return riga.Istr.starts_with("NETWORK");
}

/// "NETWORK 3    //Arresto" in two.
void Intitola(Rete_Scala& rete, const std::string& riga) {
  const std::size_t barra = riga.find('/');
  rete.Titolo = A_Utf8(Trim(riga.substr(0, barra)));
  if (barra == std::string::npos) return;
  const std::size_t inizio = riga.find_first_not_of('/', barra);
  if (inizio != std::string::npos) rete.Commento = A_Utf8(Trim(riga.substr(inizio)));
}

Passo_Scala Passo(const Riga_Src& riga, int numero) {
  Passo_Scala passo{riga.Istr, {}, numero};
  for (const std::string* operando : {&riga.Op1, &riga.Op2, &riga.Op3})
    if (!operando->empty()) passo.Operandi.push_back(*operando);
  return passo;
}

/// Written in another way, a network leaves other values on the logic stack. Where somebody reads
/// what an earlier network left, only those may be drawn that would be written as they are.
void Lascia_In_Lista(std::vector<Blocco_Scala>& blocchi) {
  for (Blocco_Scala& blocco : blocchi) {
    for (Rete_Scala& rete : blocco.Reti) {
      const auto* diagramma = std::get_if<Diagramma>(&rete.Forma);
      if (diagramma && Elenca(*diagramma) != rete.Passi)
        rete.Forma = Non_Disegnabile{
            rete.Riga, "un altro segmento usa i valori che questo lascia sulla pila", false};
    }
  }
}

}  // namespace

std::vector<Blocco_Scala> Scala_Di(std::span<const Riga_Src> righe) {
  std::vector<Blocco_Scala> blocchi{{"MAIN", {}}};
  const auto nuova_rete = [&](int numero) -> Rete_Scala& {
    Rete_Scala& rete = blocchi.back().Reti.emplace_back();
    rete.Riga = rete.Ultima = numero;
    return rete;
  };
  for (std::size_t n = 0; n < righe.size(); ++n) {
    const Riga_Src& riga = righe[n];
    const int numero = static_cast<int>(n);
    if (riga.Istr.starts_with("SBR")) {
      blocchi.push_back({A_Utf8(riga.Op1), {}});
    } else if (E_Network(riga)) {
      Intitola(nuova_rete(numero), riga.Testo_Lista);
    } else if (riga.Istr != "MEND" && riga.Istr != "RET") {
      std::vector<Rete_Scala>& reti = blocchi.back().Reti;
      Rete_Scala& rete = reti.empty() ? nuova_rete(numero) : reti.back();
      rete.Passi.push_back(Passo(riga, numero));
      rete.Ultima = numero;
    }
  }
  bool pila_contesa = false;
  for (Blocco_Scala& blocco : blocchi) {
    for (Rete_Scala& rete : blocco.Reti) {
      rete.Forma = Disegna(rete.Passi);
      const auto* motivo = std::get_if<Non_Disegnabile>(&rete.Forma);
      pila_contesa = pila_contesa || (motivo && motivo->Usa_Pila_Precedente);
    }
  }
  if (pila_contesa) Lascia_In_Lista(blocchi);
  return blocchi;
}

}  // namespace tavorno
