// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/flow.h"

#include <algorithm>
#include <string_view>

#include "awl/source_line.h"
#include "plc/fatal.h"
#include "plc/operands.h"

namespace tavorno {

namespace {

const Riga_PLC* Riga_Di(const Passo_Scala& passo, const Memoria& cpu) {
  if (passo.Riga < 0 || passo.Riga >= cpu.Prog.Righe()) return nullptr;
  return &cpu.Prog[passo.Riga];
}

/// What a contact reads. Its mnemonic is "LD" and a tail: nothing, N, I, NI, or a comparison.
bool Passa(const Memoria& cpu, const Riga_PLC& riga, std::string_view coda) {
  std::int16_t err = 0;
  if (riga.Confronto != Relazione::Nessuna) {
    const bool vale = coda.starts_with('B')   ? cpu.Confronta_B(riga, err)
                      : coda.starts_with('W') ? cpu.Confronta_W(riga, err)
                                              : cpu.Confronta_D(riga, err);
    return vale && err == 0;
  }
  const bool subito = coda.ends_with('I');
  const bool negato = coda.starts_with('N');
  const std::int16_t bit = subito
                               ? static_cast<std::int16_t>(cpu.IP_I[riga.Num1].Bit_Dir[riga.Bit1])
                               : cpu.AC1_Bit(riga.Codice1, riga.Num1, riga.Bit1, err);
  return err == 0 && (negato ? bit != 1 : bit == 1);
}

bool Passa(const Riquadro& riquadro, const Memoria& cpu, bool arriva) {
  const Riga_PLC* riga = Riga_Di(riquadro.Passo, cpu);
  if (!riga) return false;
  if (riquadro.Come.Cosa == Ruolo::Trasforma)
    return riquadro.Passo.Istr == "NOT" ? !arriva : riga->Impulso.Dato;
  try {
    constexpr std::size_t testa = 2;  // "LD"
    return Passa(cpu, *riga, std::string_view(riquadro.Come.Base).substr(testa));
  } catch (const Fatale&) {
    return false;
  }
}

/// Jumps, calls and returns look at the power alone.
bool Agisce(const Riquadro& riquadro, const Memoria& cpu, bool arriva) {
  const Riga_PLC* riga = Riga_Di(riquadro.Passo, cpu);
  if (!riga || !arriva) return false;
  return riga->Abil_SCR != 0 || riga->Nel_Programma == Compito::Salto ||
         riga->Nel_Programma == Compito::Chiamata || riquadro.Passo.Istr == "CRET";
}

bool Contatto(const Riquadro& riquadro) {
  return riquadro.Come.Cosa == Ruolo::Contatto;
}

}  // namespace

bool In_Cpu(std::span<const Passo_Scala> passi, const Memoria& cpu) {
  return std::ranges::all_of(passi, [&](const Passo_Scala& passo) {
    const Riga_PLC* riga = Riga_Di(passo, cpu);
    if (!riga || riga->Istr != passo.Istr) return false;
    Riga_Src sorgente;
    sorgente.Istr = passo.Istr;
    sorgente.NOp = static_cast<std::uint8_t>(passo.Operandi.size());
    constexpr std::size_t massimi = 3;
    std::string* const operandi[massimi] = {&sorgente.Op1, &sorgente.Op2, &sorgente.Op3};
    for (std::size_t n = 0; n < massimi && n < passo.Operandi.size(); ++n)
      *operandi[n] = passo.Operandi[n];
    Riga_PLC sua;
    Riempi_Riga(sua, sorgente);
    const auto uguale = [&](auto campo) { return sua.*campo == riga->*campo; };
    return uguale(&Riga_PLC::Area1) && uguale(&Riga_PLC::Num1) && uguale(&Riga_PLC::Bit1) &&
           uguale(&Riga_PLC::Area2) && uguale(&Riga_PLC::Num2) && uguale(&Riga_PLC::Bit2);
  });
}

Flusso_Rete Flusso_Di(const Disegno& disegno, const Memoria& cpu) {
  Flusso_Rete flusso;
  flusso.Attivi.resize(disegno.Riquadri.size());
  flusso.Vivi = Correnti(disegno, [&](const Riquadro& riquadro, bool arriva) {
    const bool passa = Passa(riquadro, cpu, arriva);
    flusso.Attivi[static_cast<std::size_t>(&riquadro - disegno.Riquadri.data())] = passa;
    return Contatto(riquadro) ? passa && arriva : passa;
  });
  for (std::size_t n = 0; n < disegno.Riquadri.size(); ++n) {
    const Riquadro& riquadro = disegno.Riquadri[n];
    if (Contatto(riquadro) || riquadro.Come.Cosa == Ruolo::Trasforma) continue;
    flusso.Attivi[n] = Agisce(riquadro, cpu, flusso.Vivi[static_cast<std::size_t>(riquadro.Prima)]);
  }
  return flusso;
}

std::string Valore_Di(const Riquadro& riquadro, std::size_t operando, const Memoria& cpu) {
  using enum Area;
  static constexpr Insieme numeri{VB, VW, VD, AC, T, C, AIW, AQW, IB, QB, MB, SMB, IW, QW, MW};
  const Riga_PLC* riga = Riga_Di(riquadro.Passo, cpu);
  const Ruolo cosa = riquadro.Come.Cosa;
  const bool di_numeri =
      cosa == Ruolo::Scatola || cosa == Ruolo::Contatore ||
      (cosa == Ruolo::Contatto && riga != nullptr && riga->Confronto != Relazione::Nessuna);
  if (!riga || !di_numeri || operando > 1) return {};
  try {
    std::int32_t valore = 0;
    const bool letto = operando == 0 ? Leggi(cpu, numeri, riga->Codice1, riga->Num1, valore)
                                     : Leggi(cpu, numeri, riga->Codice2, riga->Num2, valore);
    return letto ? std::to_string(valore) : std::string();
  } catch (const Fatale&) {
    return {};
  }
}

}  // namespace tavorno
