// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

#include "plants/plant.h"
#include "plc/clock.h"

namespace tavorno {

/// A floor of the lift, as its sensor knows it.
struct Riga_Piano {
  int Centro;           ///< `Top` of the cabin that stands level, twips
  Morsetto_I Ingresso;  ///< of its sensor
  const char* EtP;
};

/// The floors from the ground up; their index is that of `imgSC`, `shFcP` and `EtP`.
std::span<const Riga_Piano> Piani_Ascensore();

/// US-14: a lift with four floors, a counterweight and two door leaves. It goes where its motors
/// push it, past the end floors and with open doors too; stopping it is the program's work.
///
/// Properties for `Regola`: ME_DeltaS and ME_DeltaP in twips, ME_SpedP in ms, ME_POS 0 or not, and
/// the load cell UpD1 in volts.
class ctr_Ascensore : public Impianto {
 public:
  explicit ctr_Ascensore(Orologio& orologio);

  std::int16_t Manutenzione = 0;   ///< 0 in service, -1 in maintenance
  std::uint8_t Senso_Cabina = 0;   ///< 1 rising, 0 falling
  std::uint8_t Senso_Porte = 0;    ///< 0 closing, 1 opening
  std::uint8_t Stato_Porte = 1;    ///< 0 fully open, 1 fully closed, 2 between
  std::int16_t Isteresi = 50;      ///< half width of a floor's band, twips
  std::int16_t Passo_Cabina = 20;  ///< travel of the cabin in one tick, twips

  Temporizzatore timCab, timP;

 private:
  struct Comando;
  static const Comando comandi_[];

  void Applica_Uscite() override;
  void Comanda(const Comando& comando, bool acceso);
  void Monta_Selettore();
  void Monta_Fotocellula();
  void Tick_timCab();
  void Tick_timP();
  void Mostra_Piano(int indice, bool in_zona);
  void Mostra_Porte(int indice, bool azionato);
  void Invia_Con(const std::string& testo);

  Figura& imgC = Disegno["imgC"];
  Figura& imgP = Disegno["imgP"];
  Figura& porta_sinistra = Disegno["ShP(0)"];
  Figura& porta_destra = Disegno["ShP(1)"];
  Figura& EtPos = Disegno["EtPos"];
};

}  // namespace tavorno
