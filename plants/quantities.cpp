// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/quantities.h"

#include <algorithm>

namespace tavorno {

namespace {

constexpr Grandezza Corsa_Di(int impianto, const char* nome, const char* pistone, double arretrato,
                             double esteso) {
  return {.Impianto = impianto,
          .Nome = nome,
          .Unita = "%",
          .Massimo = 100,
          .Da = Fonte_Grandezza::Left,
          .Figura = pistone,
          .Zero = arretrato,
          .Passo = 100 / (esteso - arretrato)};
}
constexpr Grandezza Livello_Di(int impianto, const char* nome, const char* liquido, double orlo) {
  return {.Impianto = impianto,
          .Nome = nome,
          .Unita = "%",
          .Massimo = 100,
          .Da = Fonte_Grandezza::Height,
          .Figura = liquido,
          .Passo = 100 / orlo};
}
constexpr Grandezza Ingresso_Di(int impianto, const char* nome, const char* unita, double massimo,
                                int canale) {
  return {.Impianto = impianto,
          .Nome = nome,
          .Unita = unita,
          .Massimo = massimo,
          .Da = Fonte_Grandezza::Volt_AI,
          .Canale = canale,
          .Passo = massimo / 10};
}

// In the order of the exercises.
constexpr Grandezza tutte[] = {
    Corsa_Di(4, "Pistone A", "imgPA", 420, 1080),
    Corsa_Di(5, "Pistone A", "imgPA", 420, 1080),
    Corsa_Di(5, "Pistone B", "imgP2", 2490, 3150),
    Corsa_Di(6, "Pistone A", "imgV1", 360, 1030),
    Corsa_Di(6, "Pistone B", "imgV2", 2580, 3250),
    Corsa_Di(6, "Pistone C", "imgV3", 4800, 5470),
    Corsa_Di(7, "Pistone A", "imgV1", 480, 1150),
    Corsa_Di(7, "Pistone B", "imgV2", 2700, 3370),
    Corsa_Di(7, "Pistone C", "imgV3", 480, 1150),
    Corsa_Di(7, "Pistone D", "imgV4", 2700, 3370),
    Livello_Di(8, "Vasca di carico", "shL1", 1080),
    Livello_Di(8, "Serbatoio", "shL2", 1560),
    Corsa_Di(9, "Apertura", "imgC", 1260, 3550),
    Ingresso_Di(10, "Livello", "l", 160, 0),
    Ingresso_Di(10, "Temperatura", "°C", 100, 1),
    Ingresso_Di(10, "Set point", "°C", 100, 2),
    Corsa_Di(11, "Sbarra ingresso", "shS0", 660, 1800),
    Corsa_Di(11, "Sbarra uscita", "shS1", 2940, 1740),
    Ingresso_Di(12, "Livello", "l", 160, 0),
    Ingresso_Di(13, "Livello", "l", 160, 0),
    Ingresso_Di(14, "Carico", "V", 10, 0),
    Ingresso_Di(14, "Posizione", "V", 10, 1),
    Corsa_Di(14, "Porte aperte", "ShP(0)", 660, 180),
    Corsa_Di(15, "Pistone A", "imgV1", 360, 1030),
    Corsa_Di(15, "Pistone B", "imgV2", 2580, 3250),
    Corsa_Di(15, "Pistone C", "imgV3", 4800, 5470),
    Ingresso_Di(17, "Posizione", "V", 10, 0),
    Ingresso_Di(17, "Riferimento", "V", 10, 1),
    {.Impianto = 17,
     .Nome = "Controllo",
     .Unita = "V",
     .Massimo = 10,
     .Da = Fonte_Grandezza::Volt_AQ,
     .Passo = 1},
};

double Letto(const Grandezza& grandezza, const Plc& plc, Impianto& macchina) {
  switch (grandezza.Da) {
    case Fonte_Grandezza::Volt_AI:
      return plc.Volt_AI[grandezza.Canale];
    case Fonte_Grandezza::Volt_AQ:
      return plc.Volt_AQ[grandezza.Canale];
    case Fonte_Grandezza::Left:
      return macchina.Disegno[grandezza.Figura].Left;
    case Fonte_Grandezza::Height:
      return macchina.Disegno[grandezza.Figura].Height;
  }
  return 0;
}

}  // namespace

std::span<const Grandezza> Grandezze_Di(int impianto) {
  const auto prima = std::ranges::lower_bound(tutte, impianto, {}, &Grandezza::Impianto);
  const auto dopo = std::ranges::upper_bound(tutte, impianto, {}, &Grandezza::Impianto);
  return {prima, dopo};
}

double Valore(const Grandezza& grandezza, const Plc& plc, Impianto& macchina) {
  return (Letto(grandezza, plc, macchina) - grandezza.Zero) * grandezza.Passo;
}

}  // namespace tavorno
