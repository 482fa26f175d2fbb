// SPDX-License-Identifier: GPL-3.0-or-later
// The logic stack, contacts and outputs.
#include "plc/byte_text.h"
#include "plc/checked.h"
#include "plc/instructions.h"
#include "plc/operands.h"
#include "plc/plc.h"

namespace tavorno {

// ---- contacts -----------------------------------------------------------------------------------

namespace {
/// Inlined, so that of the areas only the one at hand is left.
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

std::int16_t Memoria::AC1_Bit(Area area, int num, int bit, std::int16_t& err) const {
  return Leggi_Bit(*this, area, num, bit, err);
}

namespace {

/// A contact on an image bit: `unisci` makes the stack operation out of the bit that was read.
template <class Unisci>
[[gnu::always_inline]] inline Esito Contatto(Plc& plc, const Riga_PLC& riga, Area area,
                                             Unisci unisci) {
  std::int16_t err = 0;
  const std::int16_t bit = Leggi_Bit(plc, area, riga.Num1, riga.Bit1, err);
  if (err) return Esito::Errore;
  unisci(bit);
  return Esito::Avanti;
}

/// The immediate forms take the physical point of an input, whatever the area text.
template <class Unisci>
Esito Contatto_Immediato(Plc& plc, const Riga_PLC& riga, Unisci unisci) {
  unisci(std::int16_t{plc.IP_I[riga.Num1].Bit_Dir[riga.Bit1]});
  return Esito::Avanti;
}

[[gnu::always_inline]] inline Esito Istr_LD(Plc& plc, Riga_PLC& riga, Area area) {
  return Contatto(plc, riga, area, [&plc](std::int16_t x) { plc.GestStak(Op_Pila::Spingi, x); });
}
[[gnu::always_inline]] inline Esito Istr_LDN(Plc& plc, Riga_PLC& riga, Area area) {
  return Contatto(plc, riga, area,
                  [&plc](std::int16_t x) { plc.GestStak(Op_Pila::Spingi, Negato(x)); });
}
[[gnu::always_inline]] inline Esito Istr_A(Plc& plc, Riga_PLC& riga, Area area) {
  return Contatto(plc, riga, area, [&plc](std::int16_t x) { Cima_E(plc, x); });
}
[[gnu::always_inline]] inline Esito Istr_AN(Plc& plc, Riga_PLC& riga, Area area) {
  return Contatto(plc, riga, area, [&plc](std::int16_t x) { Cima_E(plc, Negato(x)); });
}
[[gnu::always_inline]] inline Esito Istr_O(Plc& plc, Riga_PLC& riga, Area area) {
  return Contatto(plc, riga, area, [&plc](std::int16_t x) { Cima_O(plc, x); });
}
[[gnu::always_inline]] inline Esito Istr_ON(Plc& plc, Riga_PLC& riga, Area area) {
  return Contatto(plc, riga, area, [&plc](std::int16_t x) { Cima_O(plc, Negato(x)); });
}
Esito Istr_LDI(Plc& plc, Riga_PLC& riga) {
  return Contatto_Immediato(plc, riga,
                            [&plc](std::int16_t x) { plc.GestStak(Op_Pila::Spingi, x); });
}
Esito Istr_LDNI(Plc& plc, Riga_PLC& riga) {
  return Contatto_Immediato(plc, riga,
                            [&plc](std::int16_t x) { plc.GestStak(Op_Pila::Spingi, Negato(x)); });
}
Esito Istr_AI(Plc& plc, Riga_PLC& riga) {
  return Contatto_Immediato(plc, riga, [&plc](std::int16_t x) { Cima_E(plc, x); });
}
Esito Istr_ANI(Plc& plc, Riga_PLC& riga) {
  return Contatto_Immediato(plc, riga, [&plc](std::int16_t x) { Cima_E(plc, Negato(x)); });
}
Esito Istr_OI(Plc& plc, Riga_PLC& riga) {
  return Contatto_Immediato(plc, riga, [&plc](std::int16_t x) { Cima_O(plc, x); });
}
Esito Istr_ONI(Plc& plc, Riga_PLC& riga) {
  return Contatto_Immediato(plc, riga, [&plc](std::int16_t x) { Cima_O(plc, Negato(x)); });
}

Esito Istr_NOT(Plc& plc, Riga_PLC& /*riga*/) {
  plc.GestStak(Op_Pila::Cima, Negato(plc.Stak[0]));
  return Esito::Avanti;
}

Esito Istr_EU(Plc& plc, Riga_PLC& riga) {
  // A level that is on in the first scan counts as already on: no edge is seen there.
  const bool nuovo = plc.Primo_Ciclo == 0 && plc.Stak[0] == 1 && riga.Fronte == 0;
  riga.Fronte = plc.Primo_Ciclo != 0 ? plc.Stak[0]
                : plc.Stak[0] == 1   ? std::int16_t{1}
                                     : std::int16_t{0};
  riga.Impulso.Dato = nuovo;
  plc.GestStak(Op_Pila::Cima, nuovo ? 1 : 0);
  return Esito::Avanti;
}

Esito Istr_ED(Plc& plc, Riga_PLC& riga) {
  const bool caduto = plc.Stak[0] == 0 && riga.Fronte == 1;
  riga.Fronte = plc.Stak[0] == 1 ? 1 : 0;
  riga.Impulso.Dato = caduto;
  plc.GestStak(Op_Pila::Cima, caduto ? 1 : 0);
  return Esito::Avanti;
}

// ---- stack --------------------------------------------------------------------------------------

Esito Istr_ALD(Plc& plc, Riga_PLC& /*riga*/) {
  plc.GestStak(Op_Pila::E_Togli);
  return Esito::Avanti;
}
Esito Istr_OLD(Plc& plc, Riga_PLC& /*riga*/) {
  plc.GestStak(Op_Pila::O_Togli);
  return Esito::Avanti;
}
Esito Istr_LPS(Plc& plc, Riga_PLC& /*riga*/) {
  plc.GestStak(Op_Pila::Duplica);
  return Esito::Avanti;
}
Esito Istr_LRD(Plc& plc, Riga_PLC& /*riga*/) {
  plc.GestStak(Op_Pila::Seconda);
  return Esito::Avanti;
}
Esito Istr_LPP(Plc& plc, Riga_PLC& /*riga*/) {
  plc.GestStak(Op_Pila::Togli);
  return Esito::Avanti;
}

// ---- outputs ------------------------------------------------------------------------------------

/// Every instruction that writes M begins with this: its first one finds no text in any row.
void Inizia_Marker(Memoria& memoria) {
  if (memoria.Mem_M[0].Txt_B.empty()) memoria.Setta_Marker();
}

/// One cell of M and, when it changed, the value and the text of its byte. They follow from the
/// bit: gathering the eight cells again would wait for the one that was just written.
void Scrivi_Marker(Memoria& memoria, int riga, int bit, std::uint8_t valore) {
  Riga_M& marker = memoria.Mem_M[riga];
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

[[gnu::always_inline]] inline Esito Istr_Assegna(Plc& plc, Riga_PLC& riga, Area area) {
  const auto valore = static_cast<std::int16_t>(plc.Stak[0] & riga.Abil_SCR);
  switch (area) {
    case Area::Q:
      plc.IP_Q[riga.Num1].Bit_Img[riga.Bit1] = static_cast<std::uint8_t>(valore);
      plc.Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::M:
      Inizia_Marker(plc);
      Scrivi_Marker(plc, riga.Num1, riga.Bit1, static_cast<std::uint8_t>(valore));
      return Esito::Avanti;
    case Area::S:
      plc.Mem_S[riga.Num1].Bit[riga.Bit1] = valore;
      return Esito::Avanti;
    default:
      return Esito::Errore;
  }
}

Esito Istr_Assegna_I(Plc& plc, Riga_PLC& riga) {
  Riga_IP& uscite = plc.IP_Q[riga.Num1];
  const auto valore = static_cast<std::uint8_t>(plc.Stak[0] & riga.Abil_SCR);
  uscite.Bit_Img[riga.Bit1] = valore;
  uscite.Bit_Dir[riga.Bit1] = valore;
  plc.Aggiorna_IPQ(riga.Num1);
  return Esito::Avanti;
}

[[gnu::always_inline]] inline Esito Istr_S(Plc& plc, Riga_PLC& riga, Area area) {
  const int ultimo = A_16(A_16(riga.Bit1 + riga.Num2, "S") - 1, "S");
  const bool flusso = Flusso(plc, riga);
  switch (area) {
    case Area::Q:
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit)
        plc.IP_Q[riga.Num1].Bit_Img[bit] = 1;
      plc.Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::M:
      Inizia_Marker(plc);
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit)
        Scrivi_Marker(plc, riga.Num1, bit, 1);
      return Esito::Avanti;
    case Area::S:
      for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) plc.Mem_S[riga.Num1].Bit[bit] = 1;
      return Esito::Avanti;
    default:
      return Esito::Errore;
  }
}

[[gnu::always_inline]] inline Esito Istr_R(Plc& plc, Riga_PLC& riga, Area area) {
  const bool flusso = Flusso(plc, riga);
  // On T and C the count runs over element numbers, and every round means the element named.
  const bool elemento = area == Area::T || area == Area::C;
  const int primo = elemento ? riga.Num1 : riga.Bit1;
  const int ultimo = A_16(A_16(primo + riga.Num2, "R") - 1, "R");
  switch (area) {
    case Area::Q:
      for (int bit = primo; flusso && bit <= ultimo; ++bit) plc.IP_Q[riga.Num1].Bit_Img[bit] = 0;
      plc.Aggiorna_IPQ(riga.Num1);
      return Esito::Avanti;
    case Area::S:
      for (int bit = primo; flusso && bit <= ultimo; ++bit) plc.Mem_S[riga.Num1].Bit[bit] = 0;
      return Esito::Avanti;
    case Area::M:
      Inizia_Marker(plc);
      // Only here a reset runs over into the next byte, and there up to its cell 8.
      for (int bit = primo; flusso && bit <= ultimo && bit <= 16; ++bit) {
        if (bit <= 7)
          Scrivi_Marker(plc, riga.Num1, bit, 0);
        else if (riga.Num1 < plc.Mem_M.ultimo)
          Scrivi_Marker(plc, riga.Num1 + 1, bit - 8, 0);
        else
          return Esito::Errore;
      }
      return Esito::Avanti;
    case Area::T:
      if (flusso && primo <= ultimo) {
        Riga_Timer& timer = plc.Mem_T[riga.Num1];
        timer.Uscita = 0;
        timer.Val = 0;
        timer.Conta = 0;
      }
      return Esito::Avanti;
    case Area::C:
      if (flusso && primo <= ultimo) {
        Riga_Contatore& contatore = plc.Mem_C[riga.Num1];
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

Esito Istr_SI(Plc& plc, Riga_PLC& riga) {
  const int ultimo = A_16(riga.Bit1 + riga.Num2, "SI");
  const bool flusso = Flusso(plc, riga);
  for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) {
    Riga_IP& uscite = plc.IP_Q[riga.Num1];
    uscite.Bit_Dir[bit] = static_cast<std::uint8_t>(plc.Stak[0]);
    uscite.Bit_Img[bit] = static_cast<std::uint8_t>(plc.Stak[0]);
  }
  plc.Aggiorna_IPQ(riga.Num1);
  return Esito::Avanti;
}

Esito Istr_RI(Plc& plc, Riga_PLC& riga) {
  const int ultimo = A_16(riga.Bit1 + riga.Num2, "RI");
  const bool flusso = Flusso(plc, riga);
  for (int bit = riga.Bit1; flusso && bit <= ultimo; ++bit) plc.IP_Q[riga.Num1].Bit_Img[bit] = 0;
  plc.Aggiorna_IPQ(riga.Num1);
  return Esito::Avanti;
}

}  // namespace

// ---- rows of the table -------------------------------------------------------------------------

// clang-format off
righe::Righe righe::Contatti() {
  return Insieme_Di({Di(Famiglia::Contatti, Gruppo::Con_Regola, {
      {.Nome = "LD", .Operandi = &regole::Contatto, .Esegui = Per_Area<Istr_LD>(), .Aiuto = "Carica il bit in cima alla pila: contatto normalmente aperto"},
      {.Nome = "LDN", .Operandi = &regole::Contatto, .Esegui = Per_Area<Istr_LDN>(), .Aiuto = "Carica il bit negato: contatto normalmente chiuso"},
      {.Nome = "LDI", .Operandi = &regole::Contatto_Immediato, .Esegui = Istr_LDI, .Aiuto = "Carica subito lo stato dell'ingresso fisico"},
      {.Nome = "LDNI", .Operandi = &regole::Contatto_Immediato, .Esegui = Istr_LDNI, .Aiuto = "Carica subito lo stato negato dell'ingresso fisico"},
      {.Nome = "A", .Operandi = &regole::Contatto, .Esegui = Per_Area<Istr_A>(), .Aiuto = "AND del bit con la cima della pila: contatto in serie"},
      {.Nome = "AN", .Operandi = &regole::Contatto, .Esegui = Per_Area<Istr_AN>(), .Aiuto = "AND del bit negato: contatto chiuso in serie"},
      {.Nome = "AI", .Operandi = &regole::Contatto_Immediato, .Esegui = Istr_AI, .Aiuto = "AND con l'ingresso fisico, letto subito"},
      {.Nome = "ANI", .Operandi = &regole::Contatto_Immediato, .Esegui = Istr_ANI, .Aiuto = "AND con l'ingresso fisico negato, letto subito"},
      {.Nome = "O", .Operandi = &regole::Contatto, .Esegui = Per_Area<Istr_O>(), .Aiuto = "OR del bit con la cima della pila: contatto in parallelo"},
      {.Nome = "ON", .Operandi = &regole::Contatto, .Esegui = Per_Area<Istr_ON>(), .Aiuto = "OR del bit negato: contatto chiuso in parallelo"},
      {.Nome = "OI", .Operandi = &regole::Contatto_Immediato, .Esegui = Istr_OI, .Aiuto = "OR con l'ingresso fisico, letto subito"},
      {.Nome = "ONI", .Operandi = &regole::Contatto_Immediato, .Esegui = Istr_ONI, .Aiuto = "OR con l'ingresso fisico negato, letto subito"},
  }), Di(Famiglia::Contatti, Gruppo::Senza_Operandi, {
      {.Nome = "NOT", .Esegui = Istr_NOT, .Aiuto = "Inverte la cima della pila"},
      {.Nome = "EU", .Esegui = Istr_EU, .Aiuto = "Fronte di salita: vero per una scansione quando la cima passa da 0 a 1"},
      {.Nome = "ED", .Esegui = Istr_ED, .Aiuto = "Fronte di discesa: vero per una scansione quando la cima passa da 1 a 0"},
  })});
}

righe::Righe righe::Pila() {
  return Di(Famiglia::Pila, Gruppo::Senza_Operandi, {
      {.Nome = "ALD", .Esegui = Istr_ALD, .Aiuto = "AND dei due valori in cima alla pila: blocchi in serie"},
      {.Nome = "OLD", .Esegui = Istr_OLD, .Aiuto = "OR dei due valori in cima alla pila: blocchi in parallelo"},
      {.Nome = "LPS", .Esegui = Istr_LPS, .Aiuto = "Duplica la cima della pila"},
      {.Nome = "LRD", .Esegui = Istr_LRD, .Aiuto = "Copia il secondo valore della pila in cima"},
      {.Nome = "LPP", .Esegui = Istr_LPP, .Aiuto = "Toglie la cima della pila"},
      {.Nome = "NOP", .Esegui = Ramo_Nullo, .Aiuto = "Nessuna operazione"},
  });
}

righe::Righe righe::Uscite() {
  return Di(Famiglia::Uscite, Gruppo::Con_Regola, {
      {.Nome = "=", .Operandi = &regole::Uscita, .Esegui = Per_Area<Istr_Assegna>(), .Aiuto = "Assegna la cima della pila al bit: bobina"},
      {.Nome = "=I", .Operandi = &regole::Uscita_Immediata, .Esegui = Istr_Assegna_I, .Aiuto = "Assegna la cima della pila all'uscita fisica, subito"},
      {.Nome = "S", .Operandi = &regole::Set, .Esegui = Per_Area<Istr_S>(), .Aiuto = "Mette a 1 N bit a partire da quello indicato"},
      {.Nome = "R", .Operandi = &regole::Reset, .Esegui = Per_Area<Istr_R>(), .Aiuto = "Mette a 0 N bit a partire da quello indicato, oppure azzera un temporizzatore o un contatore"},
      {.Nome = "SI", .Operandi = &regole::Set_Immediato, .Esegui = Istr_SI, .Aiuto = "Mette a 1 subito N+1 uscite fisiche"},
      {.Nome = "RI", .Operandi = &regole::Set_Immediato, .Esegui = Istr_RI, .Aiuto = "Mette a 0 N+1 uscite nell'immagine"},
  });
}
// clang-format on

}  // namespace tavorno
