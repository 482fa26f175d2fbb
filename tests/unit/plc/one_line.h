// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cpu.h"
#include "filled_memory.h"

namespace tavorno::prova {

/// Top of the stack and line enable: power flows only with both on.
struct Porta {
  int cima, abilitata;

  bool Flusso() const { return cima == 1 && abilitata == 1; }
};
inline constexpr Porta aperta{1, 1};
inline constexpr Porta chiuse[] = {{0, 1}, {1, 0}, {0, 0}};

/// How a line ends: well, in the run-time error, or in the end of the program.
enum class Fine { Bene, Errore, Crollo };
using enum Fine;

/// Every area that an operand can name; K stands for a constant.
inline constexpr const char* aree[] = {"I",   "Q",   "M",   "S",  "SM", "T",  "C",  "IB",
                                       "QB",  "MB",  "SMB", "VB", "IW", "QW", "MW", "VW",
                                       "AIW", "AQW", "VD",  "AC", "K",  "V"};

/// The operand of an area with a number, as written in a line.
inline std::string Operando_Di(std::string_view area, int numero) {
  const std::string testo = std::to_string(numero);
  if (area == "K") return numero < 0 ? testo : "+" + testo;
  const bool bit = area == "I" || area == "Q" || area == "M" || area == "S" || area == "SM";
  return std::string(area) + testo + (bit ? ".1" : "");
}

/// An area in a list such as " I IB ", where the blanks keep I apart from IB.
inline bool Elencata(std::string_view elenco, std::string_view area) {
  return elenco.find(" " + std::string(area) + " ") != std::string_view::npos;
}

/// Puts a value into a cell of the areas that hold nothing but values.
inline void Metti(Memoria& m, std::string_view area, int n, double valore) {
  const auto lungo = static_cast<std::int32_t>(static_cast<long long>(valore));
  const auto corto = static_cast<std::int16_t>(lungo);
  if (area == "VB") m.Mem_VB[n] = corto;
  if (area == "VW") m.Mem_VW[n] = corto;
  if (area == "VD") m.Mem_VD[n] = lungo;
  if (area == "AC") m.Mem_AC[n] = static_cast<float>(valore);
  if (area == "AIW") m.Mem_AIW[n] = lungo;
}

/// One line executed alone, with the whole memory compared afterwards.
class Una_Riga : public Cpu {
 protected:
  Una_Riga() { Semina(); }

  /// Something in every cell that a line could touch by mistake, and a value of its own in every
  /// cell that it may read; the bytes are below 256, their limit as operands.
  void Semina() {
    static_cast<Memoria&>(plc) = Memoria{};
    std::int16_t n = 100;
    for (Riga_IP& ingressi : plc.IP_I) ingressi.Val_B = ++n;
    for (Riga_IP& uscite : plc.IP_Q) {
      for (std::uint8_t& bit : uscite.Bit_Img) bit = 1;
      for (std::uint8_t& bit : uscite.Bit_Dir) bit = 1;
      uscite.Val_B = ++n;
    }
    for (Riga_M& marker : plc.Mem_M) marker.Val_B = ++n;
    for (Riga_SM& speciali : plc.Mem_SM) speciali.Val_B = ++n;
    plc.IP_I[1].Txt_B = "00001011";
    plc.IP_Q[1].Txt_B = "00001100";
    plc.Mem_M[1].Txt_B = "00001101";
    for (std::uint8_t& bit : plc.Mem_SM[1].Bit) bit = 1;  // only arithmetic changes a flag
    for (const int i : {0, 1}) {
      plc.Mem_VB[i] = ++n;
      plc.Mem_VW[i] = ++n;
      plc.Mem_VD[i] = ++n;
      plc.Mem_AC[i] = ++n;
      plc.Mem_AIW[i] = ++n;
      plc.Mem_AQW[i] = ++n;
    }
    for (Riga_Timer& timer : plc.Mem_T) timer = {++n, ++n, 1, 0};
    for (Riga_Contatore& contatore : plc.Mem_C) contatore = {++n, ++n, 1, 1, 1};
    for (int cella = 0; cella <= 7; ++cella) plc.Stak[cella] = 1;
  }

  /// A program that stands at row `pc`, as in a run. The cells of the stack below the top differ,
  /// so that a push or a pop shows.
  void Prepara(const std::vector<std::string>& righe, int pc, Porta porta = aperta) {
    Carica(righe);
    plc.PC = static_cast<std::int16_t>(pc);
    plc.PLC_Acceso = -1;
    for (int cella = 1; cella <= 7; ++cella) plc.Stak[cella] = cella % 3 == 0 ? 1 : 0;
    plc.Stak[0] = static_cast<std::int16_t>(porta.cima);
    plc.Prog[pc].Abil_SCR = static_cast<std::int16_t>(porta.abilitata);
  }

  /// The line stands at row 1, which reads no inputs, between two others.
  void Prepara(const std::string& riga, Porta porta = aperta) {
    Prepara({"NOP", riga, "NOP"}, 1, porta);
  }

  /// The line ends well, with `pc` as the next one, and leaves the whole memory as in `atteso`.
  void Attendi(Memoria atteso, int pc = 2) {
    const auto acceso = plc.PLC_Acceso;
    atteso.PC = static_cast<std::int16_t>(pc);
    plc.Esegui_Riga();
    EXPECT_TRUE(plc == atteso);
    EXPECT_TRUE(avvisi.empty());
    EXPECT_EQ(plc.PLC_Acceso, acceso);
  }

  /// The line ends in the run-time error and leaves the memory as in `atteso`, but for what Stop
  /// switches off.
  void Attendi_Errore(Memoria atteso) {
    Uscite_Spente(atteso);
    plc.Esegui_Riga();
    EXPECT_TRUE(plc == atteso);
    EXPECT_FALSE(plc.PLC_Acceso);
    ASSERT_EQ(avvisi.size(), 1U);
    EXPECT_EQ(avvisi[0].Testo, Errore_Run_Time);
    avvisi.clear();  // the next line of the same test is to give its own
  }

  void Attendi_Errore() { Attendi_Errore(plc); }

  /// The line ends as told; after a fatal end nothing is compared.
  void Attendi(Fine fine, const Memoria& atteso) {
    if (fine == Bene)
      Attendi(atteso);
    else if (fine == Errore)
      Attendi_Errore(atteso);
    else
      EXPECT_THROW(plc.Esegui_Riga(), Fatale);
  }
};

}  // namespace tavorno::prova
