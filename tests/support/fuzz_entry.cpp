// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz_entry.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "awl/writer.h"
#include "random_program.h"

namespace tavorno::prova {

namespace {

void Pretendi(bool vero, const std::string& cosa) {
  if (vero) return;
  std::fprintf(stderr, "breach: %s\n", cosa.c_str());
  std::abort();
}

/// Numbers from the bytes, and zeros when they are used up.
class Byte_Del_Fuzzer {
 public:
  Byte_Del_Fuzzer(const std::uint8_t* dati, std::size_t quanti) : dati_(dati), restano_(quanti) {}
  unsigned operator()(unsigned massimo) {
    unsigned valore = 0;
    for (unsigned coperti = massimo; coperti != 0; coperti >>= 8) {
      valore = valore << 8 | (restano_ > 0 ? *dati_ : 0U);
      if (restano_ > 0) {
        ++dati_;
        --restano_;
      }
    }
    return massimo == 0xFFFFFFFFU ? valore : valore % (massimo + 1);
  }

 private:
  const std::uint8_t* dati_;
  std::size_t restano_;
};

}  // namespace

void Prova_Progetto(const std::uint8_t* dati, std::size_t quanti) {
  const std::string_view byte(reinterpret_cast<const char*>(dati), quanti);
  const Lettura lettura = Leggi_Sorgente(byte);
  if (!lettura.Riuscita()) {
    Pretendi(!lettura.Rifiuto.Motivo.empty(), "a failed read without a reason");
    return;
  }
  const Compilazione esito = Compila_Sorgente(lettura.Letta);
  for (const Diagnosi& rilievo : esito.Rilievi) {
    Pretendi(rilievo.Riga >= 0 && rilievo.Riga < static_cast<int>(esito.Prodotto.Righe.size()),
             "a row that does not exist");
    Pretendi(rilievo.Posto.Testo <= static_cast<int>(lettura.Letta.Procedure.size()),
             "a text that does not exist");
    Pretendi(!rilievo.Messaggio.empty(), "a finding without a word");
  }
  const Scrittura scrittura = Scrivi_Sorgente(lettura.Letta);
  Pretendi(scrittura.Riuscita() || !scrittura.Rifiuto.Motivo.empty(), "no reason for no file");
  if (esito.Errori != 0) return;

  Orologio orologio;
  Plc plc(orologio);
  Carica(esito.Prodotto, plc);
  plc.Modo_Run = Modo::Step;
  try {
    plc.mnuPlcRun();
    for (int i = 0; i < 2000 && plc.PLC_Acceso; ++i) {
      if (i % 64 == 0) plc.SI[0].Stato_I(i % 128 == 0 ? "11110000" : "10101010");
      plc.Tempo.Avanza(i % 32);
      plc.CmdStep();
    }
  } catch (const Fatale&) {
    return;  // a named end
  }
}

void Prova_Programma(const std::uint8_t* dati, std::size_t quanti) {
  Byte_Del_Fuzzer byte(dati, quanti);
  const Caso caso = [&byte](unsigned massimo) { return byte(massimo); };
  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});
  Programma_Casuale(progetto, caso, static_cast<int>(4 + caso(60)));
  if (!progetto.Compilato) return;
  Memoria_Casuale(plc, caso);
  long long eseguite = 0;
  const std::string rotto = Esegui_Controllando(plc, caso, 400, eseguite);
  Pretendi(rotto.empty(), rotto);
}

}  // namespace tavorno::prova
