// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "plc/clock.h"
#include "plc/subscription.h"

namespace tavorno {

/// A byte bar: one byte of inputs or outputs with its row of eight LEDs. It is the relay of the
/// digital traffic: whoever assigns a bit text that differs from the last one that passed raises
/// `Change`, inside the assignment.
class Barra {
 public:
  Barra(const Barra&) = delete;
  Barra& operator=(const Barra&) = delete;

  Annuncio<> Change;   ///< a different text passed
  Annuncio<> Aspetto;  ///< the LEDs must be drawn again

  bool INT_ON = true;  ///< false: texts are stored and shown, but `Change` stays silent

  /// Which of the eight LEDs are lit, bit 0 the first. It follows the text, but for the chase.
  std::uint8_t Accesi() const { return accesi_; }

  /// All LEDs dark, and the text "00000000" passes.
  void LED_Reset();

  /// Colour (0 green, 1 yellow, other red) and form (0 with rays, other without) of all LEDs.
  void LED_Tipo(std::uint8_t tipo, std::uint8_t forma);
  std::uint8_t Tipo() const { return tipo_; }
  std::uint8_t Forma() const { return forma_; }

  /// The chase: one LED more per `Interval` (milliseconds, at first 80), then dark again.
  bool Scorri() const { return scorri_; }
  void Scorri(bool acceso);
  /// As a stored setting is read: the field alone, and nothing chases.
  void Memorizza_Scorri(bool acceso) { scorri_ = acceso; }
  /// True when the text that stands could be assigned once more and nothing would follow.
  bool In_Pari() const { return derivati_ && (!INT_ON || passato_ == stato_); }

  /// All that a bar holds.
  struct Stato {
    std::string Testo, Lettura, Passato;
    std::uint8_t Byte = 0, Accesi = 0, Tipo = 0, Forma = 0, Posizione = 0;
    bool Derivati = true, Scorri = false, INT_ON = true;
    int Intervallo = 80;
    std::int64_t Scadenza = Orologio::Mai;

    bool operator==(const Stato&) const = default;
  };
  Stato Fotografa() const;
  /// As it was then; the LEDs are drawn again, and `Change` stays silent.
  void Ripristina(const Stato& stato);

  int Interval() const { return passo_.Interval(); }
  void Interval(int millisecondi) { passo_.Interval(millisecondi); }

 protected:
  /// `riparla`: a reset lets the bar speak again, whatever `INT_ON` was.
  Barra(Orologio& orologio, bool riparla);
  ~Barra() = default;

  /// Eight characters, leftmost bit 0; what is not '1', or missing, is dark.
  void Assegna(std::string_view testo);

  void Memorizza_Byte(std::uint8_t valore) {
    byte_ = valore;
    derivati_ = false;
  }
  void Memorizza_Lettura(std::string_view testo) {
    lettura_ = testo;
    derivati_ = false;
  }

  std::string stato_ = "00000000";
  std::uint8_t byte_ = 0;
  std::string lettura_ = "00000000";
  bool derivati_ = true;  // byte, reading text and LEDs agree with the text

 private:
  void Mostra(std::uint8_t accesi);

  std::string passato_ = "00000000";  // the last text that raised `Change`
  std::uint8_t accesi_ = 0;
  std::uint8_t tipo_ = 0, forma_ = 0;
  bool scorri_ = false;
  std::uint8_t posizione_ = 0;  // next LED of the chase
  bool riparla_;
  Temporizzatore passo_;
};

/// Input bar `SI(n)`.
class LedI : public Barra {
 public:
  explicit LedI(Orologio& orologio) : Barra(orologio, false) {}

  const std::string& Stato_I() const { return stato_; }
  void Stato_I(std::string_view testo) { Assegna(testo); }
  std::uint8_t Stato_IB() const { return byte_; }                 ///< 0..255
  void Stato_IB(std::uint8_t valore) { Memorizza_Byte(valore); }  ///< storage only
  const std::string& Stato_BitI() const { return lettura_; }      ///< leftmost character bit 7
  void Stato_BitI(std::string_view testo) { Memorizza_Lettura(testo); }  ///< storage only
};

/// Output bar `SQ(n)`. Unlike an input bar, it has `INT_ON` set after a reset.
class LedQ : public Barra {
 public:
  explicit LedQ(Orologio& orologio) : Barra(orologio, true) {}

  const std::string& Stato_Q() const { return stato_; }
  void Stato_Q(std::string_view testo) { Assegna(testo); }
  std::uint8_t Stato_QB() const { return byte_; }                 ///< 0..255
  void Stato_QB(std::uint8_t valore) { Memorizza_Byte(valore); }  ///< storage only
  const std::string& Stato_QBitI() const { return lettura_; }     ///< leftmost character bit 7
  void Stato_QBitI(std::string_view testo) { Memorizza_Lettura(testo); }  ///< storage only
};

}  // namespace tavorno
