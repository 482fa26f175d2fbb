// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "plants/plant.h"
#include "plc/clock.h"

namespace tavorno {

/// US-11: a garage with six numbered spaces, one lane in and one lane out, each with a barrier on a
/// motor. Cars move of themselves; barriers go where their contactors push them, past their limits
/// too, and a barrier that reaches its open limit sets a car in motion whether there is one or not.
///
/// Properties for `Regola`: ME_Speed, and ME_DisabilitaI, which greys the address labels.
class ctr_Garage : public Impianto {
 public:
  explicit ctr_Garage(Orologio& orologio);

  static constexpr int Posti = 6;

  // Flags are 0 or -1; spaces count from 1, and 0 is none yet.
  std::array<std::int16_t, Posti + 1> Posto_Occupato{};
  std::int16_t Posti_Occupati = 0;
  std::int16_t Auto_In_Ingresso = 0;  ///< from the accepted press of SB1 to the parking of the car
  std::int16_t Auto_Pronta = 0;       ///< a car has been at the entrance since the last reset
  std::int16_t Posto_Scelto = 0;      ///< space of the entering car
  std::int16_t Auto_In_Uscita = 0;    ///< from the click on a parked car to its leaving the picture
  std::int16_t Posto_Uscita = 0;      ///< space that the leaving car came from
  std::int16_t Sbarra_I_Aperta = 0, Sbarra_U_Aperta = 0;
  float Passo_Sbarra = 100;  ///< of a barrier in one tick, twips
  float Passo_Auto = 80;     ///< of a car in one tick, twips

  Temporizzatore timSBIOpen, timSBIClose, timSBUOpen, timSBUClose;
  Temporizzatore Timer1, Timer2;             ///< car on its way in: to the lane, to its space
  Temporizzatore timOut0, timOut1, timOut2;  ///< car on its way out: to the lane, to the exit, out

 private:
  struct Corsia;
  struct Contattore;
  struct Sbarra;
  static const Corsia entrata_, uscita_;
  static const Contattore contattori_[];
  static const Sbarra apre_ingresso_, chiude_ingresso_, apre_uscita_, chiude_uscita_;

  void Applica_Uscite() override;
  void Comanda(const Contattore& contattore, bool eccitato);
  void Muovi(const Sbarra& sbarra);
  void Fine_Corsa(const char* spia, bool raggiunto);
  void Corsia_Occupata(const Corsia& corsia, bool occupata);
  void Fotocellula(const Corsia& corsia, bool interrotta);
  bool Comandato(const Corsia& corsia) const;
  void Termico(const Corsia& corsia);
  void Conta(int variazione);
  void Libero();
  void Riposo();

  // what the user does
  void cmdIng();
  void SB1_Premuto();
  void Esci(int posto);
  void cmdReset();

  void Tick_Timer1();
  void Tick_Timer2();
  void Parcheggia();
  void Tick_timOut0();
  void Tick_timOut1();
  void Tick_timOut2();

  Figura& entra = Disegno["imgM(0)"];
  Figura& esce = Disegno["imgMOut"];
};

}  // namespace tavorno
