// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "plants/plant.h"
#include "plc/plc.h"

namespace tavorno {

/// US-17: a slide on a screw, with a motor behind a power amplifier. The control voltage comes from
/// `Volt_AQ`(0); position, reference and hysteresis go to `Volt_AI`(0) to (2). No stop ends its
/// way: beyond the limit switches the slide goes on, and its voltage leaves the range from 0 to 10.
///
/// `Regola` knows the property Enabled (0 or not), and the up/downs UpD1 (tenths of a volt) and
/// UpD2 (thousandths of a volt), 0 to 100.
class ctr_Assi : public Impianto {
 public:
  explicit ctr_Assi(Plc& plc);

  /// The control voltage last applied, volts.
  float ME_VC() const { return me_vc_; }
  /// Sets step and interval of the movement. It goes on in small steps at 0 V too.
  void ME_VC(float volt);

  float ME_VRIF = 0, ME_POS = 0;  ///< kept, without effect
  std::int16_t ME_Sped = 0;       ///< kept, without effect

  /// Whether the analog output is being read.
  bool Enabled() const { return timIO.Enabled(); }
  void Enabled(bool acceso) { timIO.Enabled(acceso); }

  std::uint8_t Senso_Asse = 0;       ///< 0 forward (the position rises), 1 backward
  std::int16_t Potenza_On = 0;       ///< -1 while the power contactor is on
  std::int16_t Marcia_Avanti = 0;    ///< -1 while MA is on
  std::int16_t Marcia_Indietro = 0;  ///< -1 while MI is on
  float Passo_Asse = 15;             ///< travel in one tick of `timMove`, twips

  Temporizzatore timIO, timMove, timG;

 private:
  struct Comando;
  static const Comando comandi_[];
  struct Limite;
  static const Limite indietro_, avanti_;

  void Applica_Uscite() override;
  void Comanda(const Comando& comando, bool acceso);
  void Monta_Finecorsa(const Limite& limite);
  void Monta_Manuale(const char* nome, std::uint8_t senso);
  void Monta_Regolatori();
  void Accendi(const char* filo, bool in_tensione);
  void Mostra_Limite(const Limite& limite, bool raggiunto);
  void Segna_Limite(const Limite& limite, bool raggiunto);
  void Tick_timIO();
  void Tick_timMove();
  void Tick_timG();

  Figura& ShIndP = Disegno["ShIndP"];
  Figura& shC = Disegno["shC"];
  Figura& ShPerno = Disegno["ShPerno"];

  Plc& plc_;
  float me_vc_ = 0;
};

}  // namespace tavorno
