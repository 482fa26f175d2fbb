// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <span>
#include <string_view>

#include "plants/plant.h"
#include "plc/clock.h"

namespace tavorno {

/// One double-acting cylinder with its 5/2 valve. Lengths in twips, positions from 1.
struct Riga_Cilindro {
  const char* Pistone;
  float Arretrato, Esteso;  ///< where the piston stands at its two ends
  const char* Valvola;
  float Left_Set, Left_Reset;    ///< of the valve's spool
  const char* Picture_Set = "";  ///< a spool with a spring has two looks, others none
  const char* Picture_Reset = "";
  const char* Micro_Meno;  ///< limit switches at the retracted and at the extended end
  const char* Micro_Piu;
  Morsetto_I Ingresso_Meno, Ingresso_Piu;
  const char* Cmd_Set;  ///< manual overrides
  const char* Cmd_Reset = "";
  Morsetto_Q Uscita_Set;
  Morsetto_Q Uscita_Reset = {};  ///< none: a valve with one coil and a spring
};

/// What the five benches differ in. Outputs act in the order air, cylinders, lamps.
struct Schema_Pneumatico {
  const char* Stato_I;  ///< inputs at rest
  int Periodo;          ///< of the cylinders' timers, ms
  std::span<const Riga_Figura> Figure;
  std::span<const Riga_Cilindro> Cilindri;
  Morsetto_Q Uscita_Aria;
  float Aria_Aperta, Aria_Chiusa;  ///< `Left` of `imgV0`
  const char* Voce_Aria;           ///< captions of the manual overrides
  const char* Voce_Set;
  const char* Voce_Reset;
  bool UpDP;  ///< a speed for each direction of each cylinder; otherwise one for all
  Riga_Commutatore Selettore;
  std::span<const Riga_Pulsante> Pulsanti;
  Morsetto_I Ingresso_Emergenza;
  std::span<const Riga_Lampada> Lampade;  ///< in the order in which outputs act
};

extern const Schema_Pneumatico Schema_Pist_1;       ///< US-04: one cylinder
extern const Schema_Pneumatico Schema_CicloQ;       ///< US-05: two
extern const Schema_Pneumatico Schema_Pist_3;       ///< US-06: three
extern const Schema_Pneumatico Schema_Pist_4;       ///< US-07: four
extern const Schema_Pneumatico Schema_ctr_Pist_32;  ///< US-15: three, with monostable valves

/// A bench of electro-pneumatic cylinders behind one air valve. The cycle is the program's work;
/// the bench gives each stroke its time, and the faults that a cycle has to survive.
class Banco_Pneumatico : public Impianto {
 public:
  static constexpr std::uint8_t Arretrato = 0, Esteso = 1, In_Moto = 2;

  Banco_Pneumatico(const Schema_Pneumatico& schema, Orologio& orologio);

  // Procedures of the outputs take the character as a text: "1" is energised, anything else not.
  // Cylinders count from 0; any other is fatal.

  void Aria(std::string_view stato);
  void Set_Valvola(int cilindro, std::string_view stato);
  void Reset_Valvola(int cilindro, std::string_view stato);

  /// `Arretrato`, `Esteso`, or `In_Moto`, which also holds for one that stands between its ends.
  std::uint8_t Stato(int cilindro) const { return cilindri_[Posto(cilindro)].Stato; }
  bool Valvola(int cilindro) const { return cilindri_[Posto(cilindro)].Valvola; }  ///< true: set
  bool Aria() const { return aria_; }
  /// Twips per tick: 2n extends and 2n + 1 retracts cylinder n.
  float Passo(int indice) const { return passo_.at(static_cast<std::size_t>(indice)); }

 private:
  struct Cilindro {
    Cilindro(Banco_Pneumatico& banco, const Riga_Cilindro& riga, std::size_t numero,
             Orologio& orologio);

    const Riga_Cilindro& Riga;
    Figura &Pistone, &Spola, &Micro_Meno, &Micro_Piu, &Linee_Piu, &Linee_Meno;
    Temporizzatore Timer;
    bool Estende = false;
    std::uint8_t Stato = Arretrato;
    bool Valvola = false;
  };

  void Applica_Uscite() override;
  void Monta_Comandi();
  void Monta_Velocita();
  void Comanda(Cilindro& cilindro, bool set);
  void Pressione(Cilindro& cilindro);
  void Avvia(Cilindro& cilindro);
  void Muovi(std::size_t numero);
  std::size_t Posto(int cilindro) const;

  const Schema_Pneumatico& schema_;
  Figura& imgV0 = Disegno["imgV0"];
  bool aria_ = false;
  std::array<float, 8> passo_;
  std::deque<Cilindro> cilindri_;
};

}  // namespace tavorno
