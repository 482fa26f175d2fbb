// SPDX-License-Identifier: GPL-3.0-or-later
// One call of the interpreter, and the exchange between images and byte bars at the ends of a scan.
#include <algorithm>

#include "plc/byte_text.h"
#include "plc/checked.h"
#include "plc/codepage.h"
#include "plc/number_text.h"
#include "plc/plc.h"

namespace tavorno {

/// The line `numero`, which is that of `PC`, without its end.
[[gnu::always_inline]] inline Esito Plc::Esegui_Ramo(int numero) {
  Riga_PLC& riga = Prog[numero];
  if (numero == 0) [[unlikely]] {
    StartTimer();
    Aggiorna_IP_Ing();
  }
  return riga.Esegui(*this, riga);
}

/// What a line that ends well shows.
void Plc::Mostra_Riga() {
  if (Modo_Run == Modo::Step) {
    etPc = PC;
    Segna(Segno_PC);
  }
  if (tempo_mostrato_ != Tempo_Ciclo && Scelte.chkList) Mostra_Tempo();
}

int Plc::Esegui_Righe(int massimo) {
  // The number stays in a register: read back from `PC`, each line would wait for the last one's
  // write. Only a line that ends otherwise moves `PC` itself.
  std::int16_t riga = PC;
  int fatte = 1, contate = 0;
  const auto Conta = [&] {
    Righe_Fatte += fatte - contate;
    contate = fatte;
  };
  try {
    for (;; ++fatte) {
      const Esito esito = Esegui_Ramo(riga);
      if (esito != Esito::Avanti) [[unlikely]] {
        Conta();  // whoever hears of the end may look at it
        if (Fine_Diversa(esito) == Esito::Fine || Ferma || fatte >= massimo) return fatte;
        riga = PC;
        continue;
      }
      riga = A_16(riga + 1, "PC");
      PC = riga;
      if (Ferma || fatte >= massimo) [[unlikely]] {
        Conta();
        Mostra_Riga();
        return fatte;
      }
    }
  } catch (...) {
    Conta();
    throw;
  }
}

/// A line that does not just end: a jump goes on at once, up to a line that is none. How that one
/// ended.
Esito Plc::Fine_Diversa(Esito esito) {
  for (int salti = 1; esito == Esito::Salto; ++salti) {
    if (salti == Salti_Di_Seguito) return esito;
    esito = Esegui_Ramo(PC);
  }
  switch (esito) {
    case Esito::Errore:
      Hook.Mostra(Avviso{"Run Time Error",
                         "Run Time Error! Il programma sarà terminato!",
                         Icona::Critica,
                         Tasti::Ok,
                         {}});
      mnuPlcStop();
      return esito;
    case Esito::Ignota:
      Hook.Mostra({"Errore in Esecuzione!",
                   "Riga " + std::to_string(PC) + " : <" + A_Utf8(Prog[PC].Istr) +
                       ">--> Istruzione non riconosciuta!\nIl Programma verrà terminato.",
                   Icona::Critica,
                   Tasti::Ok,
                   {}});
      mnuPlcStop();
      Ferma = -1;
      PC = A_16(PC + 1, "PC");
      Mostra_Riga();
      return esito;
    case Esito::Fine:
      PC = 0;
      Mostra_Riga();
      Mem_SM[0].Bit[1] = 0;
      return esito;
    default:
      PC = A_16(PC + 1, "PC");
      Mostra_Riga();
      return esito;
  }
}

void Plc::Mostra_Tempo() {
  tempo_mostrato_ = Tempo_Ciclo;
  etTime = Formato(Tempo_Ciclo, "0000#");
  Segna(Segno_Tempo);
}

void Plc::StartTimer() {
  T_Inizio = static_cast<std::int32_t>(Tempo.Adesso());
}

void Plc::StopTimer() {
  // The start is kept in 32 bits, and so is the difference, whatever the clock reads by then.
  Tempo_Ciclo = static_cast<std::int32_t>(Tempo.Adesso() - T_Inizio);
}

void Plc::Setta_Uscite() {
  for (int riga = 0; riga <= 1; ++riga) {
    Riga_IP& uscite = IP_Q[riga];
    std::copy_n(uscite.Bit_Img.Dati(), 8, uscite.Bit_Dir.Dati());
    const std::uint8_t byte = Byte_Di_Celle(uscite.Bit_Img.Dati());
    uscite.Val_B = byte;
    Scrivi_Lettura(uscite.Txt_B, byte);
    SQ[static_cast<std::size_t>(riga)].Stato_Q(Testo_Bit(byte));
  }
}

void Plc::Aggiorna_IP_Ing() {
  for (int riga = 0; riga <= 1; ++riga) {
    const LedI& barra = SI[static_cast<std::size_t>(riga)];
    Riga_IP& ingressi = IP_I[riga];
    const std::string& stato = barra.Stato_I();
    for (unsigned bit = 0; bit < 8; ++bit) {
      const std::uint8_t cifra = Cifra(stato, bit);
      ingressi.Bit_Dir.Dati()[bit] = cifra;
      ingressi.Bit_Img.Dati()[bit] = cifra;
    }
    if (Scelte.chkIP) {
      etIPI[static_cast<std::size_t>(riga)] = barra.Stato_BitI();
      Segna(Segno_Immagini);
    }
    ingressi.Val_B = barra.Stato_IB();
    if (!Stesso_Byte(ingressi.Txt_B, barra.Stato_BitI())) ingressi.Txt_B = barra.Stato_BitI();
  }
}

void Plc::Reset_IP_Out() {
  for (std::size_t riga = 0; riga <= 1; ++riga) {
    Riga_IP& uscite = IP_Q[static_cast<int>(riga)];
    std::fill_n(uscite.Bit_Dir.Dati(), 8, std::uint8_t{0});
    std::fill_n(uscite.Bit_Img.Dati(), 8, std::uint8_t{0});
    uscite.Val_B = 0;
    etIPQ[riga].clear();
    SQ[riga].Stato_Q("00000000");
  }
  Segna(Segno_Immagini);
}

void Plc::Aggiorna_IPQ(int riga) {
  if (!Scelte.chkIP) return;
  const std::uint8_t byte = Byte_Di_Celle(IP_Q[riga].Bit_Img.Dati());  // checks the row
  etIPQ[static_cast<std::size_t>(riga)] = Testo_Lettura(byte);
  Segna(Segno_Immagini);
}

void Plc::Byte_Bit(int valore, int riga) {
  Riga_IP& uscite = IP_Q[riga];
  for (int bit = 0; bit <= 7; ++bit) {
    const auto cella = static_cast<std::uint8_t>(valore >> bit & 1);
    uscite.Bit_Img[bit] = cella;
    uscite.Bit_Dir[bit] = cella;
  }
  Aggiorna_IPQ(riga);
}

std::string Rapporto_Fatale(const Fatale& fatale, const Plc& plc) {
  std::string testo = fatale.Cosa() + "\nTabella o operazione: " + fatale.Tabella() +
                      "\nIndice o valore: " + std::to_string(fatale.Indice()) +
                      "\nRiga: " + std::to_string(plc.PC);
  if (plc.PC >= 0 && plc.PC < plc.Prog.Righe()) {
    testo += "  " + A_Utf8(Testo_Riga(plc.Prog[plc.PC]));
  }
  return testo;
}

}  // namespace tavorno
