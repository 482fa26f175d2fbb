// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/source_line.h"

#include "awl/operand.h"
#include "plc/instructions.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

std::int16_t Numero(std::string_view testo) {
  const auto valore = Numero_16(testo);
  if (valore) return *valore;
  return testo.find('-') == std::string_view::npos ? INT16_MAX : INT16_MIN;
}

/// Returns `Ha_Bit`.
std::int16_t Riempi(const std::string& testo, std::string& area, std::int16_t& numero,
                    std::int16_t& bit) {
  const Operando parti = Split_Operando(testo);
  area = parti.Area;
  numero = Numero(parti.Numero);
  bit = Numero(parti.Bit);
  return parti.Ha_Bit;
}

}  // namespace

bool Nomina_Procedura(const std::string& istr) {
  const Istruzione* istruzione = Cerca_Istruzione(istr);
  return istruzione && Nomina_Procedura(istruzione->Nel_Programma);
}

void Riempi_Riga(Riga_PLC& riga, const Riga_Src& sorgente) {
  const std::int16_t abilitata = riga.Abil_SCR;  // the SCR pass alone rewrites it
  riga = {};
  riga.Abil_SCR = abilitata;
  riga.Istr = sorgente.Istr;
  riga.NOper = sorgente.NOp;
  if (Nomina_Procedura(riga.Istr)) {
    riga.Area1 = sorgente.Op1;
  } else {
    if (riga.NOper >= 1 && riga.NOper <= 3)
      riga.Ha_Bit = Riempi(sorgente.Op1, riga.Area1, riga.Num1, riga.Bit1);
    if (riga.NOper == 2 || riga.NOper == 3) Riempi(sorgente.Op2, riga.Area2, riga.Num2, riga.Bit2);
    if (riga.NOper == 3) Riempi(sorgente.Op3, riga.Area3, riga.Num3, riga.Bit3);
  }
  Decodifica(riga);
}

}  // namespace tavorno
