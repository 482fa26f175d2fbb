// SPDX-License-Identifier: GPL-3.0-or-later
// The logic stack, contacts and outputs.
#include "plc/byte_text.h"
#include "plc/checked.h"
#include "plc/plc.h"

namespace tavorno {

// ---- contacts -----------------------------------------------------------------------------------

namespace {
/// Inlined into each contact, so that each has a branch of its own on the area.
[[gnu::always_inline]] inline std::int16_t Leggi_Bit(const Memoria& memoria, Area area, int num,
                                                     int bit, std::int16_t& err) {
  err = 0;
  switch (area) {
    case Area::I:
      return memoria.IP_I[num].Bit_Img[bit];
    case Area::Q:
      return memoria.IP_Q[num].Bit_Img[bit];
    case Area::M:
      return memoria.Mem_M[num].Bit[bit];
    case Area::SM:
      return memoria.Mem_SM[num].Bit[bit];
    case Area::T:
      return memoria.Mem_T[num].Uscita;
    case Area::C:
      return memoria.Mem_C[num].Uscita;
    case Area::S:
      return memoria.Mem_S[num].Bit[bit];
    default:
      err = -1;
      return 0;
  }
}

std::int16_t Negato(std::int16_t bit) {
  return bit != 1 ? 1 : 0;
}
}  // namespace

std::int16_t Plc::AC1_Bit(Area area, int num, int bit, std::int16_t& err) const {
  return Leggi_Bit(*this, area, num, bit, err);
}

/// A contact on an image bit: `unisci` makes the stack operation out of the bit that was read.
template <class Unisci>
Esito Plc::Contatto(const Riga_PLC& riga, Unisci unisci) {
  std::int16_t err = 0;
  const std::int16_t bit = Leggi_Bit(*this, riga.Codice1, riga.Num1, riga.Bit1, err);
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

void Plc::Scrivi_Marker(int riga, int bit, std::uint8_t valore) {
  Riga_M& marker = Mem_M[riga];
  std::uint8_t& cella = marker.Bit[bit];
  if (cella == valore) return;
  cella = valore;
  if (bit > 7) return;
  const unsigned peso = 1U << bit;
  const unsigned altri = static_cast<unsigned>(marker.Val_B) & ~peso;
  const auto byte = static_cast<std::uint8_t>(valore != 0 ? altri | peso : altri);
  marker.Val_B = byte;
  Scrivi_Lettura(marker.Txt_B, byte);
}

Esito Plc::Istr_Assegna(Riga_PLC& riga) {
  const auto valore = static_cast<std::int16_t>(Stak[0] & riga.Abil_SCR);
  switch (riga.Codice1) {
    case Area::Q:
      IP_Q[riga.Num1].Bit_Img[riga.Bit1] = static_cast<std::uint8_t>(valore);
      Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::M:
      Inizia_Marker();
      Scrivi_Marker(riga.Num1, riga.Bit1, static_cast<std::uint8_t>(valore));
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
      Inizia_Marker();
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) Scrivi_Marker(riga.Num1, bit, 1);
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
    case Area::M:
      Inizia_Marker();
      // Only here a reset runs over into the next byte, and there up to its cell 8.
      for (int bit = primo; flusso && bit <= ultimo && bit <= 16; ++bit) {
        if (bit <= 7)
          Scrivi_Marker(riga.Num1, bit, 0);
        else if (riga.Num1 < Mem_M.ultimo)
          Scrivi_Marker(riga.Num1 + 1, bit - 8, 0);
        else
          return Esito::Errore;
      }
      return Esito::Avanti;
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
