// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/motor_starter.h"

namespace tavorno {

namespace {

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, {left, top, width, height}, looks at first
    {"linKM",    {1245, 1010,  390, 590}},
    {"filoQ(0)", {6810,  555,  300, 630}, {.Morsetti = "Q0.0"}},
    {"filoQ(1)", {7350,  555,  300, 630}, {.Morsetti = "Q0.1"}},
    {"filoQ(2)", {7890,  555,  300, 630}, {.Morsetti = "Q0.2"}},
    {"filoQ(3)", {8430,  555,  300, 630}, {.Morsetti = "Q0.3"}},
    {"imgKM",    { 720,  720,  930, 360},
     {.Picture = "imgKMOF", .ToolTip = "DbClick per forzare apertura", .Morsetti = "Q0.0"}},
    {"ImgTer",   {1140, 1170,  600, 300},
     {.Picture = "ImgRTOF", .ToolTip = "Click per simulare intervento", .Morsetti = "I0.3"}},
    {"imgM",     { 652, 1590, 1650, 975}, {.Picture = "imgMOF"}},
    {"etM",      {1725, 1605,  760, 210}},
    {"imgKMa",   {4590,  555,  300, 630}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario, I0.2"}},
    {"imgStop",  {3030, 1740,  540, 540}, {.Picture = "imgPGr0", .ToolTip = "Stop, I0.0"}},
    {"imgStart", {4050, 1740,  540, 540}, {.Picture = "imgVOFF", .ToolTip = "Start, I0.1"}},
    {"ImgEm",    {5070, 1740,  540, 540}, {.Picture = "imgROFF", .ToolTip = "Emergenza, I0.4"}},
    {"imgLA",    {6120, 1770,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu, Q0.1"}},
    {"imgLM",    {7080, 1770,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde, Q0.2"}},
    {"imgLRt",   {8040, 1770,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada gialla, Q0.3"}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgStop", .Posizione = I(0, 0), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgStart", .Posizione = I(0, 1), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "ImgEm", .Posizione = I(0, 4), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
};

constexpr Riga_Commutatore termici[] = {
    {.Nome = "ImgTer", .Posizione = I(0, 3), .Azionato = '0', .Riposo = '1', .Picture_Azionato = "imgRTON",
     .Picture_Riposo = "ImgRTOF"},
};

constexpr Riga_Contattore km = {
    .Nome = "imgKM", .Contatto = "imgKMa", .Filo = "linKM", .Uscita = Q(0, 0), .Ingresso = I(0, 2)};

constexpr Riga_Lampada marcia  = {"imgLM", Q(0, 2), "imgLV"};
constexpr Riga_Lampada arresto = {"imgLA", Q(0, 1), "imgLB"};
constexpr Riga_Lampada termico = {"imgLRt", Q(0, 3), "imgLG"};
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
