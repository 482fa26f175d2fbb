// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/motor_starter.h"

namespace tavorno {

namespace {

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, left, top, width, height, picture at first, tool tip
    {"linKM",    1245, 1010,  390,  590},
    {"filoQ(0)", 6810,  555,  300,  630, "", "", "Q0.0"},
    {"filoQ(1)", 7350,  555,  300,  630, "", "", "Q0.1"},
    {"filoQ(2)", 7890,  555,  300,  630, "", "", "Q0.2"},
    {"filoQ(3)", 8430,  555,  300,  630, "", "", "Q0.3"},
    {"imgKM",     720,  720,  930,  360, "imgKMOF", "DbClick per forzare apertura", "Q0.0"},
    {"ImgTer",   1140, 1170,  600,  300, "ImgRTOF", "Click per simulare intervento", "I0.3"},
    {"imgM",      652, 1590, 1650,  975, "imgMOF"},
    {"etM",      1725, 1605,  760,  210},
    {"imgKMa",   4590,  555,  300,  630, "imgAuxA", "Contatto ausiliario, I0.2"},
    {"imgStop",  3030, 1740,  540,  540, "imgPGr0", "Stop, I0.0"},
    {"imgStart", 4050, 1740,  540,  540, "imgVOFF", "Start, I0.1"},
    {"ImgEm",    5070, 1740,  540,  540, "imgROFF", "Emergenza, I0.4"},
    {"imgLA",    6120, 1770,  480,  480, Lampada_Spenta, "Lampada blu, Q0.1"},
    {"imgLM",    7080, 1770,  480,  480, Lampada_Spenta, "Lampada verde, Q0.2"},
    {"imgLRt",   8040, 1770,  480,  480, Lampada_Spenta, "Lampada gialla, Q0.3"},
};

constexpr Riga_Pulsante pulsanti[] = {
    // name, input, down, up, picture down, picture up
    {"imgStop",  1, '0', '1', "imgPGr1", "imgPGr0"},
    {"imgStart", 2, '1', '0', "imgVON",  "imgVOFF"},
    {"ImgEm",    5, '0', '1', "imgRON",  "imgROFF"},
};

constexpr Riga_Commutatore termici[] = {{"ImgTer", 4, '0', '1', "imgRTON", "ImgRTOF"}};

constexpr Riga_Contattore km = {"imgKM", "imgKMa", "linKM", 1, 3};

constexpr Riga_Lampada marcia  = {"imgLM",  3, "imgLV"};
constexpr Riga_Lampada arresto = {"imgLA",  2, "imgLB"};
constexpr Riga_Lampada termico = {"imgLRt", 4, "imgLG"};
// clang-format on

}  // namespace

KM::KM() : Impianto(figure, "1001100000000000", Invio::Se_Diverso) {
  Caption("Nastro Due");
  Monta(pulsanti);
  Monta(termici);
  // Only the contactor and its input fall: contact and wire go on showing what was commanded.
  imgKM.Doppio_Clic = [this] {
    imgKM.Picture = "imgKMOF";
    imgM.Picture = "imgMOF";
    Ingresso(km.Ingresso, '0');
    Invia();
  };
}

void KM::KMStato(std::string_view stato) {
  const bool eccitato = stato != "0";
  Mostra(km, eccitato);
  imgM.Picture = eccitato ? "imgMON" : "imgMOF";
  Invia();
}

void KM::Stato_LMarcia(std::string_view stato) {
  Mostra(marcia, stato);
}
void KM::Stato_LArresto(std::string_view stato) {
  Mostra(arresto, stato);
}
void KM::Stato_LRT(std::string_view stato) {
  Mostra(termico, stato);
}

void KM::Applica_Uscite() {
  KMStato(Uscita(km.Uscita));
  Stato_LMarcia(Uscita(marcia.Uscita));
  Stato_LArresto(Uscita(arresto.Uscita));
  Stato_LRT(Uscita(termico.Uscita));
}

}  // namespace tavorno
