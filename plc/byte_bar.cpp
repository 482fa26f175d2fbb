// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/byte_bar.h"

#include "plc/byte_text.h"

namespace tavorno {

Barra::Barra(Orologio& orologio, bool riparla)
    : riparla_(riparla), passo_(orologio, 80, [this] {
        if (posizione_ != 8) {
          Mostra(static_cast<std::uint8_t>(accesi_ | 1U << posizione_));
          ++posizione_;
        } else {
          posizione_ = 0;
          LED_Reset();
        }
      }) {}

void Barra::Assegna(std::string_view testo) {
  // At the end of most scans the text is the one that is there already.
  if (!derivati_ || !Stesso_Byte(testo, stato_)) {
    stato_ = testo;
    unsigned byte = 0;
    for (unsigned bit = 0; bit < 8 && bit < stato_.size(); ++bit) {
      if (stato_[bit] == '1') byte |= 1U << bit;
    }
    byte_ = static_cast<std::uint8_t>(byte);
    lettura_ = Testo_Lettura(byte_);
    derivati_ = true;
    Mostra(byte_);
  }
  if (INT_ON && !Stesso_Byte(passato_, stato_)) {
    passato_ = stato_;
    Change();
  }
}

void Barra::LED_Reset() {
  Mostra(0);
  Assegna("00000000");
  if (riparla_) INT_ON = true;
}

void Barra::Mostra(std::uint8_t accesi) {
  if (accesi == accesi_) return;
  accesi_ = accesi;
  derivati_ = derivati_ && accesi == byte_;
  Aspetto();
}

Barra::Stato Barra::Fotografa() const {
  return {.Testo = stato_,
          .Lettura = lettura_,
          .Passato = passato_,
          .Byte = byte_,
          .Accesi = accesi_,
          .Tipo = tipo_,
          .Forma = forma_,
          .Posizione = posizione_,
          .Derivati = derivati_,
          .Scorri = scorri_,
          .INT_ON = INT_ON,
          .Intervallo = passo_.Interval(),
          .Scadenza = passo_.Scadenza()};
}

void Barra::Ripristina(const Stato& stato) {
  stato_ = stato.Testo;
  lettura_ = stato.Lettura;
  passato_ = stato.Passato;
  byte_ = stato.Byte;
  accesi_ = stato.Accesi;
  tipo_ = stato.Tipo;
  forma_ = stato.Forma;
  posizione_ = stato.Posizione;
  derivati_ = stato.Derivati;
  scorri_ = stato.Scorri;
  INT_ON = stato.INT_ON;
  passo_.Rimetti(stato.Intervallo, stato.Scadenza);
  Aspetto();
}

void Barra::LED_Tipo(std::uint8_t tipo, std::uint8_t forma) {
  tipo_ = tipo;
  forma_ = forma;
  Aspetto();
}

void Barra::Scorri(bool acceso) {
  scorri_ = acceso;
  passo_.Enabled(acceso);
}

}  // namespace tavorno
