// SPDX-License-Identifier: GPL-3.0-or-later
// The logic stack, contacts and outputs.
#include "plc/checked.h"
#include "plc/plc.h"

namespace tavorno {

void Plc::GestStak(std::uint8_t codice, std::int16_t valore) {
  switch (codice) {
    case 0:
      Stak.Azzera();
      break;
    case 1:
      Stak.Spingi(valore);
      break;
    case 2: {
      const auto due = static_cast<std::int16_t>(Stak[0] & Stak[1]);
      Stak.Togli();
      Stak[0] = due;
      break;
    }
    case 3: {
      const auto due = static_cast<std::int16_t>(Stak[0] | Stak[1]);
      Stak.Togli();
      Stak[0] = due;
      break;
    }
    case 4:
      Stak[0] = valore;
      break;
    case 5:
      Stak.Spingi(Stak[0]);
      break;
    case 6:
      Stak[0] = Stak[1];
      break;
    case 7:
      Stak.Togli();
      break;
    default:
      break;
  }
  if (Scelte.chkVs) Segna(Segno_Pila);
}

// ---- contacts -----------------------------------------------------------------------------------

std::int16_t Plc::AC1_Bit(Area area, int num, int bit, std::int16_t& err) const {
  err = 0;
  switch (area) {
    case Area::I:
      return IP_I[num].Bit_Img[bit];
    case Area::Q:
      return IP_Q[num].Bit_Img[bit];
    case Area::M:
      return Mem_M[num].Bit[bit];
    case Area::SM:
      return Mem_SM[num].Bit[bit];
    case Area::T:
      return Mem_T[num].Uscita;
    case Area::C:
      return Mem_C[num].Uscita;
    case Area::S:
      return Mem_S[num].Bit[bit];
    default:
      err = -1;
      return 0;
  }
}

namespace {
std::int16_t Negato(std::int16_t bit) {
  return bit != 1 ? 1 : 0;
}
}  // namespace

/// A contact on an image bit: `unisci` makes the stack operation out of the bit that was read.
template <class Unisci>
Esito Plc::Contatto(const Riga_PLC& riga, Unisci unisci) {
  std::int16_t err = 0;
  const std::int16_t bit = AC1_Bit(riga.Codice1, riga.Num1, riga.Bit1, err);
  if (err) return Esito::Errore;
  unisci(bit);
  return Esito::Avanti;
}

/// The immediate forms take the physical point of an input, whatever the area text.
template <class Unisci>
Esito Plc::Contatto_Immediato(const Riga_PLC& riga, Unisci unisci) {
  unisci(std::int16_t{IP_I[riga.Num1].Bit_Dir[riga.Bit1]});
  return Esito::Avanti;
}

Esito Plc::Istr_LD(Riga_PLC& riga) {
  return Contatto(riga, [this](std::int16_t x) { GestStak(1, x); });
}
Esito Plc::Istr_LDN(Riga_PLC& riga) {
  return Contatto(riga, [this](std::int16_t x) { GestStak(1, Negato(x)); });
}
Esito Plc::Istr_A(Riga_PLC& riga) {
  return Contatto(riga, [this](std::int16_t x) { Cima_E(x); });
}
Esito Plc::Istr_AN(Riga_PLC& riga) {
  return Contatto(riga, [this](std::int16_t x) { Cima_E(Negato(x)); });
}
Esito Plc::Istr_O(Riga_PLC& riga) {
  return Contatto(riga, [this](std::int16_t x) { Cima_O(x); });
}
Esito Plc::Istr_ON(Riga_PLC& riga) {
  return Contatto(riga, [this](std::int16_t x) { Cima_O(Negato(x)); });
}
Esito Plc::Istr_LDI(Riga_PLC& riga) {
  return Contatto_Immediato(riga, [this](std::int16_t x) { GestStak(1, x); });
}
Esito Plc::Istr_LDNI(Riga_PLC& riga) {
  return Contatto_Immediato(riga, [this](std::int16_t x) { GestStak(1, Negato(x)); });
}
Esito Plc::Istr_AI(Riga_PLC& riga) {
  return Contatto_Immediato(riga, [this](std::int16_t x) { Cima_E(x); });
}
Esito Plc::Istr_ANI(Riga_PLC& riga) {
  return Contatto_Immediato(riga, [this](std::int16_t x) { Cima_E(Negato(x)); });
}
Esito Plc::Istr_OI(Riga_PLC& riga) {
  return Contatto_Immediato(riga, [this](std::int16_t x) { Cima_O(x); });
}
Esito Plc::Istr_ONI(Riga_PLC& riga) {
  return Contatto_Immediato(riga, [this](std::int16_t x) { Cima_O(Negato(x)); });
}

Esito Plc::Istr_NOT(Riga_PLC& /*riga*/) {
  GestStak(4, Negato(Stak[0]));
  return Esito::Avanti;
}

Esito Plc::Istr_EU(Riga_PLC& riga) {
  // A level that is on in the first scan counts as already on: no edge is seen there.
  const bool nuovo = Primo_Ciclo == 0 && Stak[0] == 1 && riga.Fronte == 0;
  riga.Fronte = Primo_Ciclo != 0 ? Stak[0] : Stak[0] == 1 ? std::int16_t{1} : std::int16_t{0};
  GestStak(4, nuovo ? 1 : 0);
  return Esito::Avanti;
}

Esito Plc::Istr_ED(Riga_PLC& riga) {
  const bool caduto = Stak[0] == 0 && riga.Fronte == 1;
  riga.Fronte = Stak[0] == 1 ? 1 : 0;
  GestStak(4, caduto ? 1 : 0);
  return Esito::Avanti;
}

// ---- stack --------------------------------------------------------------------------------------

Esito Plc::Istr_ALD(Riga_PLC& /*riga*/) {
  GestStak(2);
  return Esito::Avanti;
}
Esito Plc::Istr_OLD(Riga_PLC& /*riga*/) {
  GestStak(3);
  return Esito::Avanti;
}
Esito Plc::Istr_LPS(Riga_PLC& /*riga*/) {
  GestStak(5);
  return Esito::Avanti;
}
Esito Plc::Istr_LRD(Riga_PLC& /*riga*/) {
  GestStak(6);
  return Esito::Avanti;
}
Esito Plc::Istr_LPP(Riga_PLC& /*riga*/) {
  GestStak(7);
  return Esito::Avanti;
}

// ---- outputs ------------------------------------------------------------------------------------

Esito Plc::Istr_Assegna(Riga_PLC& riga) {
  const auto valore = static_cast<std::int16_t>(Stak[0] & riga.Abil_SCR);
  switch (riga.Codice1) {
    case Area::Q:
      IP_Q[riga.Num1].Bit_Img[riga.Bit1] = static_cast<std::uint8_t>(valore);
      Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::M:
      Mem_M[riga.Num1].Bit[riga.Bit1] = static_cast<std::uint8_t>(valore);
      Setta_Marker();
      return Esito::Avanti;
    case Area::S:
      Mem_S[riga.Num1].Bit[riga.Bit1] = valore;
      return Esito::Avanti;
    default:
      return Esito::Errore;
  }
}

Esito Plc::Istr_Assegna_I(Riga_PLC& riga) {
  Riga_IP& uscite = IP_Q[riga.Num1];
  const auto valore = static_cast<std::uint8_t>(Stak[0] & riga.Abil_SCR);
  uscite.Bit_Img[riga.Bit1] = valore;
  uscite.Bit_Dir[riga.Bit1] = valore;
  Aggiorna_IPQ(riga.Num1);
  return Esito::Avanti;
}

Esito Plc::Istr_S(Riga_PLC& riga) {
  const int ultimo = A_16(A_16(riga.Bit1 + riga.Num2, "S") - 1, "S");
  const bool flusso = Flusso(riga);
  switch (riga.Codice1) {
    case Area::Q:
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) IP_Q[riga.Num1].Bit_Img[bit] = 1;
      Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::M:
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) Mem_M[riga.Num1].Bit[bit] = 1;
      Setta_Marker();
      return Esito::Avanti;
    case Area::S:
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) Mem_S[riga.Num1].Bit[bit] = 1;
      return Esito::Avanti;
    default:
      return Esito::Errore;
  }
}

Esito Plc::Istr_R(Riga_PLC& riga) {
  const bool flusso = Flusso(riga);
  // On T and C the count runs over element numbers, and every round means the element named.
  const bool elemento = riga.Codice1 == Area::T || riga.Codice1 == Area::C;
  const int primo = elemento ? riga.Num1 : riga.Bit1;
  const int ultimo = A_16(A_16(primo + riga.Num2, "R") - 1, "R");
  switch (riga.Codice1) {
    case Area::Q:
      for (int bit = primo; flusso && bit <= ultimo; ++bit) IP_Q[riga.Num1].Bit_Img[bit] = 0;
      Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::S:
      for (int bit = primo; flusso && bit <= ultimo; ++bit) Mem_S[riga.Num1].Bit[bit] = 0;
      return Esito::Avanti;
    case Area::M: {
      Esito esito = Esito::Avanti;
      // Only here a reset runs over into the next byte, and there up to its cell 8.
      for (int bit = primo; flusso && bit <= ultimo && bit <= 16; ++bit) {
        if (bit <= 7) {
          Mem_M[riga.Num1].Bit[bit] = 0;
        } else if (riga.Num1 + 1 > Mem_M.ultimo) {
          esito = Esito::Errore;
          break;
        } else {
          Mem_M[riga.Num1 + 1].Bit[bit - 8] = 0;
        }
      }
      Setta_Marker();
      return esito;
    }
    case Area::T:
      if (flusso && primo <= ultimo) {
        Riga_Timer& timer = Mem_T[riga.Num1];
        timer.Uscita = 0;
        timer.Val = 0;
        timer.Conta = 0;
      }
      return Esito::Avanti;
    case Area::C:
      if (flusso && primo <= ultimo) {
        Riga_Contatore& contatore = Mem_C[riga.Num1];
        contatore.Uscita = 0;
        contatore.Val = 0;
      }
      return Esito::Avanti;
    default:
      return Esito::Errore;
  }
}

// The counts of SI and RI include both ends, and RI leaves the physical point to the end of the
// scan.

Esito Plc::Istr_SI(Riga_PLC& riga) {
  const int ultimo = A_16(riga.Bit1 + riga.Num2, "SI");
  const bool flusso = Flusso(riga);
  for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) {
    Riga_IP& uscite = IP_Q[riga.Num1];
    uscite.Bit_Dir[bit] = static_cast<std::uint8_t>(Stak[0]);
    uscite.Bit_Img[bit] = static_cast<std::uint8_t>(Stak[0]);
  }
  Aggiorna_IPQ(riga.Num1);
  return Esito::Avanti;
}

Esito Plc::Istr_RI(Riga_PLC& riga) {
  const int ultimo = A_16(riga.Bit1 + riga.Num2, "RI");
  const bool flusso = Flusso(riga);
  for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) IP_Q[riga.Num1].Bit_Img[bit] = 0;
  Aggiorna_IPQ(riga.Num1);
  return Esito::Avanti;
}

}  // namespace tavorno
