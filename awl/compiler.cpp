// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of source into a program: the loop over the lines and the link passes.
#include <array>

#include "awl/checker.h"
#include "awl/link.h"
#include "awl/program.h"
#include "awl/text.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

/// SBR, MEND and RET come from the keywords of the blocks and stand in no text.
bool Nel_Testo(Compito compito) {
  return compito != Compito::Procedura && compito != Compito::Fine_Programma &&
         compito != Compito::Fine_Procedura;
}

Diagnosi Di_Riga(const Riga_Src& sorgente, const Riga_PLC& compilata, int riga, Parte_Riga parte) {
  const Tratto_Riga tratto =
      Nel_Testo(compilata.Nel_Programma) ? Tratto_Di(sorgente, parte) : Tratto_Riga{};
  Diagnosi diagnosi;
  diagnosi.Posto = sorgente.Posto;
  diagnosi.Colonna = tratto.Colonna;
  diagnosi.Lunghezza = tratto.Lunghezza;
  diagnosi.Riga = riga;
  diagnosi.Testo = A_Utf8(Trim(sorgente.Testo_Lista));
  return diagnosi;
}

struct Nome_Passo {
  Genere Di;
  Passo (*Esegui)(std::span<Riga_PLC>);
  Gravita Grado;
};

// Only the last pass counts as an error, and then as the only one.
constexpr std::array<Nome_Passo, 3> passi = {{
    {.Di = Genere::Salti, .Esegui = Assegna_JMP, .Grado = Gravita::Avvertimento},
    {.Di = Genere::Procedure, .Esegui = Assegna_SBR, .Grado = Gravita::Avvertimento},
    {.Di = Genere::Sezioni, .Esegui = Assegna_SCR, .Grado = Gravita::Errore},
}};

}  // namespace

Compilazione Compila_Righe(std::span<const Riga_Src> righe) {
  Compilazione esito;
  std::vector<Riga_PLC>& prodotte = esito.Prodotto.Righe;
  prodotte.resize(righe.size());
  for (std::size_t k = 0; k < righe.size(); ++k) {
    Riempi_Riga(prodotte[k], righe[k]);
    const Esito_Riga giudizio = Controlla_Riga(prodotte[k], righe[k]);
    if (giudizio.Stato == 0) continue;
    ++esito.Errori;
    Diagnosi& diagnosi = esito.Rilievi.emplace_back(
        Di_Riga(righe[k], prodotte[k], static_cast<int>(k), giudizio.Dove));
    diagnosi.Stato = giudizio.Stato;
    diagnosi.Messaggio = giudizio.Testo;
  }

  for (const Nome_Passo& nome : passi) {
    const Passo passo = nome.Esegui(prodotte);
    for (const Guasto& guasto : passo.Guasti) {
      const auto riga = static_cast<std::size_t>(guasto.Riga);
      Diagnosi& diagnosi = esito.Rilievi.emplace_back(
          Di_Riga(righe[riga], prodotte[riga], guasto.Riga, Parte_Riga::Intera));
      diagnosi.Grado = nome.Grado;
      diagnosi.Di = nome.Di;
      diagnosi.Stato = 1;
      diagnosi.Messaggio = guasto.Motivo;
    }
    if (passo.Esito != 0) esito.Passi_Errati.push_back(nome.Di);
    if (nome.Di != Genere::Sezioni) continue;
    esito.Prodotto.Righe_Abilitate = passo.Righe_Viste;
    if (passo.Esito != 0) esito.Errori = 1;
  }
  return esito;
}

void Carica(const Programma& programma, Memoria& cpu) {
  const int righe = static_cast<int>(programma.Righe.size());
  if (cpu.Prog.Righe() != righe) cpu.Prog.Ridimensiona(righe);
  for (int i = 0; i < righe; ++i) {
    const std::int16_t abilitata = cpu.Prog[i].Abil_SCR;
    cpu.Prog[i] = programma.Righe[static_cast<std::size_t>(i)];
    if (i >= programma.Righe_Abilitate) cpu.Prog[i].Abil_SCR = abilitata;
  }
  cpu.NRighe = static_cast<std::int16_t>(righe - 1);
}

}  // namespace tavorno
