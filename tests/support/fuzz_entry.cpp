// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz_entry.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "random_program.h"

namespace tavorno::prova {

namespace {

void Pretendi(bool vero, const std::string& cosa) {
  if (vero) return;
  std::fprintf(stderr, "breach: %s\n", cosa.c_str());
  std::abort();
}

/// A file in memory, so that a fuzzer does not wear out a disk.
class File_In_Memoria {
 public:
  explicit File_In_Memoria(const std::uint8_t* dati, std::size_t quanti)
      : descrittore_(::memfd_create("prova", 0)) {
    Pretendi(::write(descrittore_, dati, quanti) == static_cast<ssize_t>(quanti), "memfd");
  }
  ~File_In_Memoria() { ::close(descrittore_); }
  File_In_Memoria(const File_In_Memoria&) = delete;
  File_In_Memoria& operator=(const File_In_Memoria&) = delete;
  std::string Percorso() const { return "/proc/self/fd/" + std::to_string(descrittore_); }

 private:
  int descrittore_;
};

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
  const File_In_Memoria file(dati, quanti);
  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});
  progetto.File_Progetto = file.Percorso();
  progetto.LeggiTxt();
  if (progetto.Err_Lettura) {
    Pretendi(!progetto.Dettaglio.Motivo.empty(), "a failed read without a reason");
    return;
  }
  Pretendi(plc.Prog.Righe() == plc.NRighe + 1, "rows after a read");

  progetto.Compila();
  Pretendi((progetto.Compilato != 0) == (progetto.Errori == 0), "Compilato");
  progetto.Crea_Progetto();
  if (!progetto.Compilato) return;

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
