// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plc/area.h"
#include "plc/branch.h"
#include "plc/byte_text.h"
#include "plc/logic_stack.h"
#include "plc/table.h"

// The memory of the simulated CPU and the compiled program. Areas do not overlap: VB3, VW3 and VD3
// are three unrelated cells. Flags are -1 for true in 16-bit words; bit cells hold 0 or 1.
namespace tavorno {

/// One byte of inputs or outputs. Cells 0..7 are its bits; cell 8 exists and takes writes, and
/// nothing reads it into a byte value.
struct Riga_IP {
  Tabella<std::uint8_t, 8> Bit_Dir{"Bit_Dir"};  ///< state of the physical points
  Tabella<std::uint8_t, 8> Bit_Img{"Bit_Img"};  ///< what the program reads and writes in a scan
  std::int16_t Val_B = 0;                       ///< value of the byte, 0..255
  std::string Txt_B;                            ///< the byte in reading order, bit 7 first

  bool operator==(const Riga_IP& altra) const {
    return Bit_Dir == altra.Bit_Dir && Bit_Img == altra.Bit_Img && Val_B == altra.Val_B &&
           Stesso_Byte(Txt_B, altra.Txt_B);
  }
};

/// One byte of markers. Whoever writes its cells brings value and text up to date by
/// `Plc::Setta_Marker`.
struct Riga_M {
  Tabella<std::uint8_t, 8> Bit{"Mem_M.Bit"};
  std::int16_t Val_B = 0;
  std::string Txt_B;

  bool operator==(const Riga_M& altra) const {
    return Bit == altra.Bit && Val_B == altra.Val_B && Stesso_Byte(Txt_B, altra.Txt_B);
  }
};

/// One byte of sequence control relays: the only bit area with 16-bit cells, and without a value.
struct Riga_S {
  Tabella<std::int16_t, 8> Bit{"Mem_S.Bit"};

  bool operator==(const Riga_S&) const = default;
};

/// One byte of special memory.
struct Riga_SM {
  Tabella<std::uint8_t, 8> Bit{"Mem_SM.Bit"};
  std::int16_t Val_B = 0;

  bool operator==(const Riga_SM&) const = default;
};

struct Riga_Timer {
  std::int16_t Val = 0;     ///< current value in ticks of `T100m`, at most 32760
  std::int16_t PT = 0;      ///< preset in ticks
  std::uint8_t Uscita = 0;  ///< the bit read as T37
  std::int16_t Conta = 0;   ///< -1 while the tick is to add to `Val`, else 0

  bool operator==(const Riga_Timer&) const = default;
};

struct Riga_Contatore {
  std::int16_t Val = 0;
  std::int16_t PV = 0;       ///< preset
  std::uint8_t Uscita = 0;   ///< the bit read as C5
  std::uint8_t Front_A = 0;  ///< edge memory: count of CTU and CTD, down of CTUD
  std::uint8_t Front_B = 0;  ///< edge memory: up of CTUD

  bool operator==(const Riga_Contatore&) const = default;
};

/// What EU or ED last gave out, for whoever looks on: no instruction reads it, and it is no part of
/// the value of a line.
struct Impulso_Visto {
  bool Dato = false;

  constexpr bool operator==(const Impulso_Visto& /*altro*/) const { return true; }
};

/// One compiled line. Aligned so that what the interpreter reads of it is one cache line.
struct alignas(64) Riga_PLC {
  // Decoded from the texts below by `Decodifica`; what the interpreter looks at comes first, so
  // that a line costs it one stretch of memory.
  Ramo Esegui = Ramo_Assente();
  Area Codice1 = Area::Nessuna, Codice2 = Area::Nessuna;
  Connessione Unione = Connessione::LD;
  Relazione Confronto = Relazione::Nessuna;

  std::int16_t Num1 = 0, Num2 = 0, Num3 = 0;     ///< row, element number or constant
  std::int16_t Bit1 = -1, Bit2 = -1, Bit3 = -1;  ///< -1 without a dot
  std::int16_t Fronte = 0;    ///< edge memory of EU, ED, TOF; cleared on all lines at Run
  std::int16_t Salto = 0;     ///< JMP, CALL: line to go to
  std::int16_t Abil_SCR = 1;  ///< line enable, rewritten by LSCR
  std::int16_t SCR_Prima = 0, SCR_Ultima = 0;  ///< LSCR: first and last line of its section
  std::int16_t Ha_Bit = 0;                     ///< -1 when the first operand has a dot
  std::uint8_t NOper = 0;                      ///< operands on the source line
  Compito Nel_Programma = Compito::Nessuno;
  Impulso_Visto Impulso;
  /// JMP, CALL: timers that the jump leaves out. Entry 0 is unused; empty means none as well.
  std::vector<std::int16_t> Lista_T;

  std::string Istr;                 ///< mnemonic as the source table holds it
  std::string Area1, Area2, Area3;  ///< area texts of the operands

  bool operator==(const Riga_PLC&) const = default;
};

/// The line put together again from its fields, in the code page of the source.
std::string Testo_Riga(const Riga_PLC& riga);

/// The operations of `GestStak`, with their codes.
enum class Op_Pila : std::uint8_t {
  Azzera = 0,   ///< all cells 0
  Spingi = 1,   ///< a value on top
  E_Togli = 2,  ///< the two on top become one, by AND
  O_Togli = 3,  ///< the same by OR
  Cima = 4,     ///< a value in place of the top
  Duplica = 5,  ///< the top once more on top
  Seconda = 6,  ///< the second in place of the top
  Togli = 7,    ///< the top away
};

/// The operations of `Rit_Stak`, with their codes.
enum class Op_Ritorni : std::uint8_t {
  Azzera = 0,
  Spingi = 1,
  /// Removes two levels at once, so that the return from a nested call empties the table: a trait
  /// of the machine.
  Togli_Due = 2,
};

/// The cells that a program reads and writes, and the two stacks.
struct Celle {
  Tabella<Riga_IP, Riga_Di(Area::I).Ultima> IP_I{"IP_I"};
  Tabella<Riga_IP, Riga_Di(Area::Q).Ultima> IP_Q{"IP_Q"};
  Tabella<Riga_M, Riga_Di(Area::M).Ultima> Mem_M{"Mem_M"};
  Tabella<Riga_S, Riga_Di(Area::S).Ultima> Mem_S{"Mem_S"};
  Tabella<Riga_SM, Riga_Di(Area::SM).Ultima> Mem_SM{"Mem_SM"};
  Tabella<std::int16_t, Riga_Di(Area::VB).Ultima> Mem_VB{"Mem_VB"};  ///< cells of 16 bits
  Tabella<std::int16_t, Riga_Di(Area::VW).Ultima> Mem_VW{"Mem_VW"};
  Tabella<std::int32_t, Riga_Di(Area::VD).Ultima> Mem_VD{"Mem_VD"};
  Tabella<float, Riga_Di(Area::AC).Ultima> Mem_AC{"Mem_AC"};
  Tabella<Riga_Timer, Riga_Di(Area::T).Ultima> Mem_T{"Mem_T"};
  Tabella<Riga_Contatore, Riga_Di(Area::C).Ultima> Mem_C{"Mem_C"};
  Tabella<std::int32_t, Riga_Di(Area::AIW).Ultima> Mem_AIW{
      "Mem_AIW"};  ///< 32000 at full scale; used at 0, 2, 4
  Tabella<std::int32_t, Riga_Di(Area::AQW).Ultima> Mem_AQW{
      "Mem_AQW"};  ///< 32000 at full scale; used at 0, 2
  Tabella<float, Riga_Di(Area::AIW).Ultima / 2> Volt_AI{
      "Volt_AI"};  ///< by channel; volts or milliamperes
  Tabella<float, Riga_Di(Area::AQW).Ultima / 2> Volt_AQ{
      "Volt_AQ"};  ///< by channel; volts or milliamperes
  Pila_Logica Stak;
  Tabella<std::int16_t, 7> Stak_Rit{"Stak_Rit"};  ///< return lines, top at 0

  bool operator==(const Celle&) const = default;
};

/// The cells and the program, and what touches nothing else.
struct Memoria : Celle {
  Tabella_Variabile<Riga_PLC> Prog{"Prog"};  ///< rows 0..NRighe
  std::int16_t NRighe = 0;                   ///< last line of `Prog`
  std::int16_t PC = 0;                       ///< line to execute next

  bool operator==(const Memoria&) const = default;

  /// An operation on the logic stack; codes without one change nothing. `valore` is what Spingi
  /// and Cima write.
  void GestStak(Op_Pila codice, std::int16_t valore = 0);
  /// The same on the table of return lines.
  void Rit_Stak(Op_Ritorni codice, std::int16_t valore = 0);

  /// Brings values and texts of all marker bytes up to date with their cells.
  void Setta_Marker();
  /// After a compile: timers stand still, counters are blank.
  void Init_PLC();
  /// The special bits as Run leaves them.
  void SM_Set();

  /// The bit that a contact reads: 0 or 1 (T, C: the output). `err` is -1 for an area that has no
  /// bit to read, with the value 0, else 0.
  std::int16_t AC1_Bit(Area area, int num, int bit, std::int16_t& err) const;
  /// Operands of comparisons; 0 and `err` -1 on a failure. `err` is never cleared. Bytes reach 255,
  /// words 32767; a word below -32768 throws `Fatale`.
  std::int16_t Leggi_B(Area area, int num, std::int16_t& err) const;
  std::int16_t Leggi_W(Area area, int num, std::int16_t& err) const;
  std::int32_t Leggi_D(Area area, int num, std::int16_t& err) const;
  /// Whether the comparison of a line holds; false and `err` -1 when an operand cannot be read.
  bool Confronta_B(const Riga_PLC& riga, std::int16_t& err) const;
  bool Confronta_W(const Riga_PLC& riga, std::int16_t& err) const;
  bool Confronta_D(const Riga_PLC& riga, std::int16_t& err) const;
};

// Here and not in a source file: with its code known, an operation is a few machine instructions.
[[gnu::always_inline]] inline void Memoria::GestStak(Op_Pila codice, std::int16_t valore) {
  switch (codice) {
    case Op_Pila::Azzera:
      Stak.Azzera();
      break;
    case Op_Pila::Spingi:
      Stak.Spingi(valore);
      break;
    case Op_Pila::E_Togli: {
      const auto due = static_cast<std::int16_t>(Stak[0] & Stak[1]);
      Stak.Togli();
      Stak[0] = due;
      break;
    }
    case Op_Pila::O_Togli: {
      const auto due = static_cast<std::int16_t>(Stak[0] | Stak[1]);
      Stak.Togli();
      Stak[0] = due;
      break;
    }
    case Op_Pila::Cima:
      Stak[0] = valore;
      break;
    case Op_Pila::Duplica:
      Stak.Spingi(Stak[0]);
      break;
    case Op_Pila::Seconda:
      Stak[0] = Stak[1];
      break;
    case Op_Pila::Togli:
      Stak.Togli();
      break;
    default:
      break;
  }
}

}  // namespace tavorno
