// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/link.h"

#include "plc/codepage.h"

namespace tavorno {

namespace {

/// The timers on rows `da`..`fino_a`, behind the unused entry 0.
std::vector<std::int16_t> Timer_Tra(std::span<const Riga_PLC> righe, std::size_t da,
                                    std::size_t fino_a) {
  std::vector<std::int16_t> lista = {0};
  for (std::size_t i = da; i <= fino_a; ++i) {
    if (righe[i].Nel_Programma == Compito::Temporizzatore) lista.push_back(righe[i].Num1);
  }
  return lista;
}

/// The row that closes the procedure which begins at `inizio`; the last row if none does.
std::size_t Fine_Procedura(std::span<const Riga_PLC> righe, std::size_t inizio) {
  std::size_t riga = inizio;
  while (riga + 1 < righe.size() && righe[riga].Nel_Programma != Compito::Fine_Procedura) ++riga;
  return riga;
}

/// Jumps, and labels of their number, or calls and procedures of their name, counted against each
/// other.
class Conto {
 public:
  /// `cosa` is what the row leads to, and was found so many times.
  void Chiudi(std::size_t riga, int trovate, const std::string& cosa) {
    aperti_ += 1 - trovate;
    if (trovate == 1) return;
    passo_.Guasti.push_back(
        {static_cast<int>(riga),
         trovate == 0 ? "Manca " + cosa
                      : cosa + " c'è " + std::to_string(trovate) + " volte: vale l'ultima"});
  }
  Passo Esito() {
    passo_.Esito = aperti_ != 0 ? 1 : 0;
    return std::move(passo_);
  }

 private:
  int aperti_ = 0;
  Passo passo_;
};

}  // namespace

Passo Assegna_JMP(std::span<Riga_PLC> righe) {
  Conto conto;
  std::size_t meta = 0;  // not reset between jumps
  for (std::size_t i = 0; i < righe.size(); ++i) {
    Riga_PLC& salto = righe[i];
    if (salto.Nel_Programma != Compito::Salto) continue;
    int etichette = 0;
    for (std::size_t j = 0; j < righe.size(); ++j) {
      if (righe[j].Nel_Programma != Compito::Etichetta || righe[j].Num1 != salto.Num1) continue;
      meta = j;
      salto.Salto = static_cast<std::int16_t>(j);
      ++etichette;
    }
    salto.Lista_T = Timer_Tra(righe, i, meta);
    conto.Chiudi(i, etichette, "l'etichetta LBL " + std::to_string(salto.Num1));
  }
  return conto.Esito();
}

Passo Assegna_SBR(std::span<Riga_PLC> righe) {
  Conto conto;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    Riga_PLC& chiamata = righe[i];
    if (chiamata.Nel_Programma != Compito::Chiamata) continue;
    int procedure = 0;
    const std::string nome = Maiuscole(chiamata.Area1);
    for (std::size_t j = 0; j < righe.size(); ++j) {
      const Riga_PLC& procedura = righe[j];
      if (procedura.Nel_Programma != Compito::Procedura || Maiuscole(procedura.Area1) != nome)
        continue;
      chiamata.Salto = static_cast<std::int16_t>(j);
      ++procedure;
      chiamata.Lista_T = Timer_Tra(righe, j, Fine_Procedura(righe, j));
    }
    conto.Chiudi(i, procedure, "la procedura di nome \"" + A_Utf8(nome) + "\"");
  }
  return conto.Esito();
}

Passo Assegna_SCR(std::span<Riga_PLC> righe) {
  Passo passo;
  const auto guasto = [&](std::size_t riga, const char* motivo) {
    passo.Guasti.push_back({static_cast<int>(riga), motivo});
    passo.Esito = 1;
  };
  for (std::size_t i = 0; i < righe.size(); ++i) {
    Riga_PLC& sezione = righe[i];
    sezione.Abil_SCR = 1;
    passo.Righe_Viste = static_cast<int>(i) + 1;
    if (sezione.Nel_Programma != Compito::Passo) continue;
    sezione.SCR_Prima = static_cast<std::int16_t>(i + 1);
    std::size_t j = i + 1;
    for (; j < righe.size() && righe[j].Nel_Programma != Compito::Fine_Passo; ++j) {
      const Compito compito = righe[j].Nel_Programma;
      if (compito != Compito::Etichetta && compito != Compito::Salto) continue;
      guasto(j, "LBL e JMP non possono stare tra LSCR e SCRE");
      return passo;
    }
    if (j == righe.size())
      guasto(i, "Manca SCRE, che chiude la sezione");
    else
      sezione.SCR_Ultima = static_cast<std::int16_t>(j - 1);
  }
  return passo;
}

}  // namespace tavorno
