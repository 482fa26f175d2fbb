// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "plants/plant.h"
#include "plc/clock.h"

namespace tavorno {

/// A property that sets the interval of a timer, in ms. The timer starts with an interval of its
/// own, which need not be what the property says before it is first written.
struct Riga_Velocita {
  const char* Nome;
  int Valore;
  int Intervallo;
};

/// A line that fills the tank: one pulse for each litre. Positions as in plants/parts.h.
struct Riga_Mandata {
  Riga_Velocita Velocita;
  int Impulsi;          ///< input of the flow meter
  const char* imgTr;    ///< its indicator
  const char* EtP;      ///< pulses since the flow began
  const char* Pompa;    ///< figures of the pump, valve, pipes and spray; nullptr where
  const char* Valvola;  ///< the plant draws them by itself
  const char* Tubi;
  const char* Spruzzo;
};

/// What the level transducer or the level switches say up to a level.
struct Riga_Livello {
  int Fino_A;         ///< litres, inclusive; of no meaning in the first row, the empty tank
  const char* Cifre;  ///< of the inputs `Livelli`, in their order
  const char* Spie;   ///< of the lamps imgTL(0), imgTL(1), ...: '1' is lit
};

/// The last row of a table of levels has no limit.
inline constexpr int Senza_Limite = std::numeric_limits<int>::max();

/// What a transducer of two bits says; its lamps are the empty, the half and the full tank.
inline constexpr Riga_Livello Parola_Livello[] = {
    {0, "00", "100"},
    {79, "01", "000"},
    {160, "10", "010"},
    {Senza_Limite, "11", "001"},
};

/// A thermal relay whose contact shows a trip for as long as it lasts, whatever its motor shows.
struct Riga_Termico {
  const char* Motore;
  const char* imgFR;
  Morsetto_I Ingresso;  ///< '0' while tripped
};

/// What the three stirred tanks differ in.
struct Schema_Serbatoio {
  const char* Stato_I;  ///< inputs at rest
  std::span<const Riga_Figura> Figure;
  float Fondo;  ///< of the tank, twips
  std::span<const Riga_Mandata> Mandate;
  Riga_Velocita Scarico;
  const char *Valvola_Scarico, *Tubo_Scarico;
  int Vuoto_Scarico;  ///< litres below which a drain tick finds the tank empty
  std::span<const int> Livelli;
  std::span<const Riga_Livello> Righe_Livello;
  const char* etTL;              ///< label with the level digits, or nullptr
  const char* etAI;              ///< label with the volts of the level
  const char* Motore_Agitatore;  ///< motor that turns `ShDos`
  std::span<const Riga_Lampada> Lampade;
  std::span<const Riga_Pulsante> Pulsanti;
  std::span<const Riga_Commutatore> Commutatori;
  std::span<const Riga_Termico> Termici;
};

/// A tank that lines fill, a timer drains and a motor stirs. The level is counted in litres by
/// ticks, and the picture of the liquid is kept in step, 10 twips a litre. Nothing stops it from
/// rising beyond what the tank holds.
class Serbatoio_Agitato : public Impianto {
 public:
  std::int16_t Livello() const { return livello_; }          ///< litres
  std::int16_t Vasca_Vuota() const { return vasca_vuota_; }  ///< -1 or 0, as of the last tick
  /// A property of the flow rates, in ms.
  int Velocita(std::string_view nome) const { return velocita_.find(nome)->second; }

 protected:
  static constexpr Colore Verde_Display = 0x9AFC7D;

  Serbatoio_Agitato(const Schema_Serbatoio& schema, Orologio& orologio);

  /// An output changed (or was stored for the first time). Lamps are no longer among them.
  virtual void Comanda(int uscita, bool eccitata) = 0;
  /// A drain tick took a litre, or found the tank empty.
  virtual void Scaricato(bool /*vuota*/) {}
  /// Level, and whatever else the plant measures, as volts.
  virtual void Aggiorna_Analogici();
  static float Volt(Figura& etichetta, float volt);

  /// The colours of the products as the pictures show them.
  static constexpr Colore Prodotti[] = {0xD68F4F, 0xCF748A, 0x9AA33A, 0x458FC9};
  /// What a line fills with from now on.
  void Tinta_Mandata(std::size_t linea, Colore prodotto) { mandate_[linea].Prodotto = prodotto; }
  /// Colours by their parts.
  static Colore Mescola(Colore uno, double parti_uno, Colore altro, double parti_altro);

  // Lines with a pump and a valve each: they flow while both are on.
  void Comanda_Pompa(std::size_t linea, bool accesa);
  void Comanda_Valvola(std::size_t linea, bool aperta);

  void Avvia_Carico(std::size_t linea);
  void Ferma_Carico(std::size_t linea);
  /// Starts or stops the drain.
  void Scarica(bool attivo);
  /// A valve that drains by gravity. It is refused to a tank that is empty as it opens, and such a
  /// tank is not drained later either, until the valve opens again.
  void Comanda_Caduta(bool aperta);
  /// Steam is a picture: `imgV4` with the pipe of this name and the spray `imgSp(2)`.
  void Mostra_Vapore(bool aperto, const char* tubo);
  void Agita(bool acceso);

  static const char* Motore(bool acceso) { return acceso ? "imgMON" : "imgMOF"; }
  static const char* Elettrovalvola(bool aperta) { return aperta ? "imgEVON" : "imgEVOF"; }
  static const char* Tubo(bool pieno) { return pieno ? "imgTON" : "imgTOF"; }

  std::int16_t Prodotto_Ok = -1;  ///< 0: nothing flows, whatever is open

 private:
  struct Mandata {
    Mandata(const Riga_Mandata& riga, Scena& disegno, Orologio& orologio,
            std::function<void()> tick);

    const Riga_Mandata& Riga;
    Figura &imgTr, &EtP;
    Temporizzatore Timer;
    bool Pompa_On = false, Valvola_On = false;
    bool Alto = false;  // the pulse of this litre has begun
    Colore Prodotto = Prodotti[0];
  };

  void Applica_Uscite() override;
  std::deque<Mandata> Crea_Mandate(Orologio& orologio);
  void Monta_Velocita(const Riga_Velocita& riga, Temporizzatore& timer);
  void Monta_Termico(const Riga_Termico& riga);
  void Controlla_Flusso(std::size_t linea);
  void Riempi(Mandata& linea);
  void Tick_Scarico();
  void Mostra_Liquido(float altezza);
  void Colora_Liquido(Colore miscela);
  void Aggiorna_Livello(int vuoto);
  void Mostra_Livello(const Riga_Livello& riga);

  const Schema_Serbatoio& schema_;
  Figura& shL = Disegno["shL"];                // surface of the liquid, with its height
  Figura& imgLiquido = Disegno["imgLiquido"];  // its body, which is stretched
  Figura& etcap = Disegno["etcap"];
  Figura& ShDos = Disegno["ShDos"];
  std::int16_t livello_ = 0;
  std::int16_t vasca_vuota_ = -1;
  std::map<std::string, int, std::less<>> velocita_;
  // Timers in the order in which they tick when they are due together.
  std::deque<Mandata> mandate_;
  Temporizzatore timP3_;
  Temporizzatore timDos_;
};

}  // namespace tavorno
