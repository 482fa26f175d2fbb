// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/faults.h"

#include <algorithm>

#include "plants/wire_fault_words.h"

namespace tavorno {

namespace {

/// A kind of fault that plants have of their own.
struct Genere {
  const char* Titolo;
  Mano_Guasto Come;
  const char* Picture;
  const char* In_Officina;
};

constexpr Genere termico(const char* picture) {
  return {"Relè termico intervenuto", Mano_Guasto::Clic, picture,
          "Il motore assorbe troppo o ha perso una fase: il relè apre il suo contatto e lo tiene "
          "aperto finché qualcuno non lo riarma. Fermare il motore tocca al programma."};
}
constexpr Genere contattore = {
    "Contattore che non segue il comando", Mano_Guasto::Doppio, "imgKMON",
    "Bobina bruciata se non chiude, contatti saldati se non apre. L'uscita non lo sa: lo dice "
    "soltanto il contatto ausiliario. Torna com'è comandato al prossimo cambio di un'uscita."};
constexpr Genere contattore_caduto = {
    "Contattore caduto", Mano_Guasto::Colpo, "imgKMON",
    "La bobina si è bruciata o il suo filo si è staccato: l'uscita resta accesa e il motore è "
    "fermo. Lo dice soltanto il contatto ausiliario. Si può provocare a contattore chiuso, e dura "
    "fino al prossimo cambio di un'uscita."};
constexpr Genere aria = {
    "Manca l'aria compressa", Mano_Guasto::Colpo, "imgV0ON",
    "Compressore fermo o tubo staccato: i pistoni si fermano dove sono e nessun fine corsa "
    "risponde più. Si può provocare ad aria aperta, e dura fino al prossimo cambio di un'uscita."};
constexpr Genere valvola = {
    "Valvola spostata a mano", Mano_Guasto::Tieni, "imgP1(1)",
    "Qualcuno preme il comando manuale della valvola: il pistone si muove senza che il programma "
    "lo abbia detto. Finisce quando lo si lascia."};
constexpr Genere valvola_reset = {valvola.Titolo, valvola.Come, "imgP1(2)", valvola.In_Officina};
constexpr Genere prodotto = {
    "Manca il prodotto", Mano_Guasto::Tieni, "",
    "Il serbatoio è vuoto o il filtro è otturato: la pompa gira, ma il trasduttore di portata non "
    "dà impulsi e il livello non sale. Il programma se ne accorge solo contando il tempo."};
constexpr Genere fuori_corsa = {
    "Fuori corsa inceppato", Mano_Guasto::Clic, "operato",
    "La levetta è rimasta premuta: il PLC crede l'asse alla fine della corsa. Il prossimo passo "
    "dell'asse la libera."};
constexpr Genere scattato = termico("imgRTON"), aperto = termico("aperto");

struct Riga_Guasto {
  int Impianto;
  const char *Nome, *Parte;
  const Genere* Di;
  const char* Testimone;  ///< nullptr: the figure itself
  int Uscita;             ///< with what the testimony is compared; 0: with nothing
};

// clang-format off
constexpr Riga_Guasto righe[] = {
    {0, "ImgTer", "FR",  &scattato,          nullptr, 0},
    {0, "imgKM",  "KM",  &contattore_caduto, nullptr, 1},
    {1, "ImgTer", "FR",  &scattato,          nullptr, 0},
    {1, "imgKm1", "KM1", &contattore,        nullptr, 1},
    {1, "imgKM2", "KM2", &contattore,        nullptr, 2},
    {2, "imgRt",  "FR",  &scattato,          nullptr, 0},
    {2, "KM(0)",  "KM1", &contattore,        nullptr, 1},
    {2, "KM(2)",  "KM2", &contattore,        nullptr, 2},
    {2, "KM(1)",  "KM3", &contattore,        nullptr, 3},
    {3, "imgRt",  "FR1", &scattato,          nullptr, 0},
    {3, "imgRt2", "FR2", &scattato,          nullptr, 0},
    {3, "KM(0)",  "KM1", &contattore,        nullptr, 1},
    {3, "KM(2)",  "KM2", &contattore,        nullptr, 2},
    {3, "KM(1)",  "KM3", &contattore,        nullptr, 3},
    {3, "KM(3)",  "KM4", &contattore,        nullptr, 4},
    {4, "cmdDis", "0V",  &aria,              "imgV0", 1},
    {4, "CmdV1a", "1Y1", &valvola,           nullptr, 2},
    {4, "cmdV1b", "1Y2", &valvola_reset,     nullptr, 3},
    {5, "cmdDis", "0V",  &aria,              "imgV0", 1},
    {5, "CmdV1a", "1Y1", &valvola,           nullptr, 2},
    {5, "cmdV1b", "1Y2", &valvola_reset,     nullptr, 3},
    {5, "cmdV2a", "2Y1", &valvola,           nullptr, 4},
    {5, "cmdV2b", "2Y2", &valvola_reset,     nullptr, 5},
    {6, "cmdDis", "0V",  &aria,              "imgV0", 1},
    {6, "CmdV1a", "1Y1", &valvola,           nullptr, 2},
    {6, "cmdV1b", "1Y2", &valvola_reset,     nullptr, 3},
    {6, "cmdV2a", "2Y1", &valvola,           nullptr, 4},
    {6, "cmdV2b", "2Y2", &valvola_reset,     nullptr, 5},
    {6, "cmdV3a", "3Y1", &valvola,           nullptr, 6},
    {6, "cmdV3b", "3Y2", &valvola_reset,     nullptr, 7},
    {7, "cmdDis", "0V",  &aria,              "imgV0", 9},
    {7, "CmdV1a", "1Y1", &valvola,           nullptr, 1},
    {7, "cmdV1b", "1Y2", &valvola_reset,     nullptr, 2},
    {7, "cmdV2a", "2Y1", &valvola,           nullptr, 3},
    {7, "cmdV2b", "2Y2", &valvola_reset,     nullptr, 4},
    {7, "cmdV3a", "3Y1", &valvola,           nullptr, 5},
    {7, "cmdV3b", "3Y2", &valvola_reset,     nullptr, 6},
    {7, "cmdV4a", "4Y1", &valvola,           nullptr, 7},
    {7, "cmdV4b", "4Y2", &valvola_reset,     nullptr, 8},
    {8, "imgP1",  "FR1", &aperto,            "imgFR", 0},
    {9, "imgM",   "FR",  &scattato,          "imgFR", 0},
    {10, "imgM(0)", "FR1", &aperto,          "imgFR(0)", 0},
    {10, "imgM(1)", "FR2", &aperto,          "imgFR(1)", 0},
    {10, "imgM(2)", "FR3", &aperto,          "imgFR(2)", 0},
    {10, "imgM(3)", "FR4", &aperto,          "imgFR(3)", 0},
    {11, "imgMI",   "FR1", &aperto,          "imgFR(0)", 0},
    {11, "imgMU",   "FR2", &aperto,          "imgFR(1)", 0},
    {13, "imgM(0)", "FR1", &aperto,          "imgFR(0)", 0},
    {13, "imgM(1)", "FR2", &aperto,          "imgFR(1)", 0},
    {13, "etGP(0)", "A",   &prodotto,        nullptr, 0},
    {13, "etGP(1)", "B",   &prodotto,        nullptr, 0},
    {13, "etGP(2)", "C",   &prodotto,        nullptr, 0},
    {13, "etGP(3)", "D",   &prodotto,        nullptr, 0},
    {15, "cmdDis", "0V",  &aria,             "imgV0", 1},
    {15, "CmdV1a", "1Y1", &valvola,          nullptr, 2},
    {15, "cmdV2a", "2Y1", &valvola,          nullptr, 3},
    {15, "cmdV3a", "3Y1", &valvola,          nullptr, 4},
    {17, "imgFCI", "SQ1", &fuori_corsa,      nullptr, 0},
    {17, "imgFCA", "SQ2", &fuori_corsa,      nullptr, 0},
};
// clang-format on

Guasto_Impianto Dell_Impianto(const Riga_Guasto& riga) {
  const Genere& genere = *riga.Di;
  return {.Nome = riga.Nome,
          .Parte = riga.Parte,
          .Titolo = genere.Titolo,
          .In_Officina = genere.In_Officina,
          .Come = genere.Come,
          .Testimone = riga.Testimone ? riga.Testimone : riga.Nome,
          .Picture = genere.Picture,
          .Uscita = riga.Uscita};
}

Guasto_Impianto Del_Filo(Guasto_Filo cosa, const Riga_IO& riga, bool chiuso_a_riposo) {
  return {.Nome = Nome_Guasto(cosa, riga.Indirizzo),
          .Parte = riga.Simbolo,
          .Titolo = Titolo_Guasto_Filo(cosa, riga),
          .In_Officina = Guasto_Filo_In_Parole(cosa, riga, chiuso_a_riposo),
          .Come = Mano_Guasto::Filo,
          .Testimone = "",
          .Picture = ""};
}

}  // namespace

std::vector<Guasto_Impianto> Guasti_Di(const Esercizio& esercizio, std::string_view a_riposo) {
  std::vector<Guasto_Impianto> guasti;
  for (const Riga_Guasto& riga : righe) {
    if (riga.Impianto == esercizio.Indice) guasti.push_back(Dell_Impianto(riga));
  }
  for (const Riga_IO& riga : esercizio.Righe_IO) {
    for (const Guasto_Filo cosa : {Guasto_Filo::Interrotto, Guasto_Filo::Incollato}) {
      const auto filo = Leggi_Nome_Filo(Nome_Guasto(cosa, riga.Indirizzo));
      if (!filo || (filo->Analogico && !esercizio.Analogici)) continue;
      guasti.push_back(Del_Filo(cosa, riga, !filo->Analogico && a_riposo.at(filo->Posto) == '1'));
    }
  }
  return guasti;
}

bool Attivo(const Guasto_Impianto& guasto, Collegamento& impianto) {
  if (guasto.Come == Mano_Guasto::Filo) return impianto.Guastato(guasto.Nome);
  Impianto& macchina = impianto.Macchina();
  const Figura* testimone = macchina.Disegno.Trova(guasto.Testimone);
  if (!testimone) return false;
  if (guasto.Picture.empty()) return testimone->ForeColor() == Tavolozza(12);
  const bool mostra = testimone->Picture() == guasto.Picture;
  if (guasto.Uscita == 0) return mostra;
  const bool comandato = macchina.Stato_Q().at(static_cast<std::size_t>(guasto.Uscita - 1)) == '1';
  // The button of a valve shows its coil too: only without the coil it is the hand.
  return guasto.Come == Mano_Guasto::Tieni ? mostra && !comandato : mostra != comandato;
}

bool Metti(const Guasto_Impianto& guasto, bool attivo, Collegamento& impianto) {
  if (guasto.Come == Mano_Guasto::Filo)
    return impianto.Entra({.Che = Cosa::Guasto, .Numero = attivo, .Testo = guasto.Nome});
  if (Attivo(guasto, impianto) == attivo) return true;
  const auto Fai = [&](Cosa che) { return impianto.Entra({.Che = che, .Testo = guasto.Nome}); };
  switch (guasto.Come) {
    case Mano_Guasto::Doppio:
      Fai(Cosa::Doppio_Clic);
      break;
    case Mano_Guasto::Colpo:
      if (!attivo) return false;
      if (!Fai(Cosa::Doppio_Clic)) {
        Fai(Cosa::Premi);
        Fai(Cosa::Rilascia);
      }
      break;
    case Mano_Guasto::Tieni:
      if (attivo)
        Fai(Cosa::Premi);
      else
        Fai(Cosa::Rilascia);
      break;
    case Mano_Guasto::Clic:
      Fai(Cosa::Clic);
      break;
    case Mano_Guasto::Filo:
      break;
  }
  return Attivo(guasto, impianto) == attivo;
}

}  // namespace tavorno
