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
constexpr Genere teleruttore = {
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
  const char* Testimone = nullptr;  ///< none: the figure itself
  Morsetto_Q Uscita = {};           ///< with what the testimony is compared; none: with nothing
};

// clang-format off
constexpr Riga_Guasto righe_guasti[] = {
    {.Impianto = 0, .Nome = "ImgTer", .Parte = "FR", .Di = &scattato},
    {.Impianto = 0, .Nome = "imgKM", .Parte = "KM", .Di = &contattore_caduto, .Uscita = Q(0, 0)},
    {.Impianto = 1, .Nome = "ImgTer", .Parte = "FR", .Di = &scattato},
    {.Impianto = 1, .Nome = "imgKm1", .Parte = "KM1", .Di = &teleruttore, .Uscita = Q(0, 0)},
    {.Impianto = 1, .Nome = "imgKM2", .Parte = "KM2", .Di = &teleruttore, .Uscita = Q(0, 1)},
    {.Impianto = 2, .Nome = "imgRt", .Parte = "FR", .Di = &scattato},
    {.Impianto = 2, .Nome = "KM(0)", .Parte = "KM1", .Di = &teleruttore, .Uscita = Q(0, 0)},
    {.Impianto = 2, .Nome = "KM(2)", .Parte = "KM2", .Di = &teleruttore, .Uscita = Q(0, 1)},
    {.Impianto = 2, .Nome = "KM(1)", .Parte = "KM3", .Di = &teleruttore, .Uscita = Q(0, 2)},
    {.Impianto = 3, .Nome = "imgRt", .Parte = "FR1", .Di = &scattato},
    {.Impianto = 3, .Nome = "imgRt2", .Parte = "FR2", .Di = &scattato},
    {.Impianto = 3, .Nome = "KM(0)", .Parte = "KM1", .Di = &teleruttore, .Uscita = Q(0, 0)},
    {.Impianto = 3, .Nome = "KM(2)", .Parte = "KM2", .Di = &teleruttore, .Uscita = Q(0, 1)},
    {.Impianto = 3, .Nome = "KM(1)", .Parte = "KM3", .Di = &teleruttore, .Uscita = Q(0, 2)},
    {.Impianto = 3, .Nome = "KM(3)", .Parte = "KM4", .Di = &teleruttore, .Uscita = Q(0, 3)},
    {.Impianto = 4, .Nome = "cmdDis", .Parte = "0V", .Di = &aria, .Testimone = "imgV0", .Uscita = Q(0, 0)},
    {.Impianto = 4, .Nome = "CmdV1a", .Parte = "1Y1", .Di = &valvola, .Uscita = Q(0, 1)},
    {.Impianto = 4, .Nome = "cmdV1b", .Parte = "1Y2", .Di = &valvola_reset, .Uscita = Q(0, 2)},
    {.Impianto = 5, .Nome = "cmdDis", .Parte = "0V", .Di = &aria, .Testimone = "imgV0", .Uscita = Q(0, 0)},
    {.Impianto = 5, .Nome = "CmdV1a", .Parte = "1Y1", .Di = &valvola, .Uscita = Q(0, 1)},
    {.Impianto = 5, .Nome = "cmdV1b", .Parte = "1Y2", .Di = &valvola_reset, .Uscita = Q(0, 2)},
    {.Impianto = 5, .Nome = "cmdV2a", .Parte = "2Y1", .Di = &valvola, .Uscita = Q(0, 3)},
    {.Impianto = 5, .Nome = "cmdV2b", .Parte = "2Y2", .Di = &valvola_reset, .Uscita = Q(0, 4)},
    {.Impianto = 6, .Nome = "cmdDis", .Parte = "0V", .Di = &aria, .Testimone = "imgV0", .Uscita = Q(0, 0)},
    {.Impianto = 6, .Nome = "CmdV1a", .Parte = "1Y1", .Di = &valvola, .Uscita = Q(0, 1)},
    {.Impianto = 6, .Nome = "cmdV1b", .Parte = "1Y2", .Di = &valvola_reset, .Uscita = Q(0, 2)},
    {.Impianto = 6, .Nome = "cmdV2a", .Parte = "2Y1", .Di = &valvola, .Uscita = Q(0, 3)},
    {.Impianto = 6, .Nome = "cmdV2b", .Parte = "2Y2", .Di = &valvola_reset, .Uscita = Q(0, 4)},
    {.Impianto = 6, .Nome = "cmdV3a", .Parte = "3Y1", .Di = &valvola, .Uscita = Q(0, 5)},
    {.Impianto = 6, .Nome = "cmdV3b", .Parte = "3Y2", .Di = &valvola_reset, .Uscita = Q(0, 6)},
    {.Impianto = 7, .Nome = "cmdDis", .Parte = "0V", .Di = &aria, .Testimone = "imgV0", .Uscita = Q(1, 0)},
    {.Impianto = 7, .Nome = "CmdV1a", .Parte = "1Y1", .Di = &valvola, .Uscita = Q(0, 0)},
    {.Impianto = 7, .Nome = "cmdV1b", .Parte = "1Y2", .Di = &valvola_reset, .Uscita = Q(0, 1)},
    {.Impianto = 7, .Nome = "cmdV2a", .Parte = "2Y1", .Di = &valvola, .Uscita = Q(0, 2)},
    {.Impianto = 7, .Nome = "cmdV2b", .Parte = "2Y2", .Di = &valvola_reset, .Uscita = Q(0, 3)},
    {.Impianto = 7, .Nome = "cmdV3a", .Parte = "3Y1", .Di = &valvola, .Uscita = Q(0, 4)},
    {.Impianto = 7, .Nome = "cmdV3b", .Parte = "3Y2", .Di = &valvola_reset, .Uscita = Q(0, 5)},
    {.Impianto = 7, .Nome = "cmdV4a", .Parte = "4Y1", .Di = &valvola, .Uscita = Q(0, 6)},
    {.Impianto = 7, .Nome = "cmdV4b", .Parte = "4Y2", .Di = &valvola_reset, .Uscita = Q(0, 7)},
    {.Impianto = 8, .Nome = "imgP1", .Parte = "FR1", .Di = &aperto, .Testimone = "imgFR"},
    {.Impianto = 9, .Nome = "imgM", .Parte = "FR", .Di = &scattato, .Testimone = "imgFR"},
    {.Impianto = 10, .Nome = "imgM(0)", .Parte = "FR1", .Di = &aperto, .Testimone = "imgFR(0)"},
    {.Impianto = 10, .Nome = "imgM(1)", .Parte = "FR2", .Di = &aperto, .Testimone = "imgFR(1)"},
    {.Impianto = 10, .Nome = "imgM(2)", .Parte = "FR3", .Di = &aperto, .Testimone = "imgFR(2)"},
    {.Impianto = 10, .Nome = "imgM(3)", .Parte = "FR4", .Di = &aperto, .Testimone = "imgFR(3)"},
    {.Impianto = 11, .Nome = "imgMI", .Parte = "FR1", .Di = &aperto, .Testimone = "imgFR(0)"},
    {.Impianto = 11, .Nome = "imgMU", .Parte = "FR2", .Di = &aperto, .Testimone = "imgFR(1)"},
    {.Impianto = 13, .Nome = "imgM(0)", .Parte = "FR1", .Di = &aperto, .Testimone = "imgFR(0)"},
    {.Impianto = 13, .Nome = "imgM(1)", .Parte = "FR2", .Di = &aperto, .Testimone = "imgFR(1)"},
    {.Impianto = 13, .Nome = "etGP(0)", .Parte = "A", .Di = &prodotto},
    {.Impianto = 13, .Nome = "etGP(1)", .Parte = "B", .Di = &prodotto},
    {.Impianto = 13, .Nome = "etGP(2)", .Parte = "C", .Di = &prodotto},
    {.Impianto = 13, .Nome = "etGP(3)", .Parte = "D", .Di = &prodotto},
    {.Impianto = 15, .Nome = "cmdDis", .Parte = "0V", .Di = &aria, .Testimone = "imgV0", .Uscita = Q(0, 0)},
    {.Impianto = 15, .Nome = "CmdV1a", .Parte = "1Y1", .Di = &valvola, .Uscita = Q(0, 1)},
    {.Impianto = 15, .Nome = "cmdV2a", .Parte = "2Y1", .Di = &valvola, .Uscita = Q(0, 2)},
    {.Impianto = 15, .Nome = "cmdV3a", .Parte = "3Y1", .Di = &valvola, .Uscita = Q(0, 3)},
    {.Impianto = 17, .Nome = "imgFCI", .Parte = "SQ1", .Di = &fuori_corsa},
    {.Impianto = 17, .Nome = "imgFCA", .Parte = "SQ2", .Di = &fuori_corsa},
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
  for (const Riga_Guasto& riga : righe_guasti) {
    if (riga.Impianto == esercizio.Indice) guasti.push_back(Dell_Impianto(riga));
  }
  for (const Riga_IO& riga : esercizio.Righe_IO) {
    for (const Guasto_Filo cosa : {Guasto_Filo::Interrotto, Guasto_Filo::Incollato}) {
      const auto filo = Leggi_Nome_Filo(Nome_Guasto(cosa, riga.Indirizzo));
      if (!filo) continue;
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
