// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/reversing_starter.h"

namespace tavorno {

namespace {

constexpr const char* forza = "D.Click per forzare cambiamento di stato";

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, {left, top, width, height}, looks at first
    {"linKM1",     { 825, 1130, 1770,  600}},
    {"linKM2",     {2205, 1130,  390,  600}},
    {"nodo",       { 825, 1130, 1770, 1200}},
    {"imgKm1",     { 300,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.0"}},
    {"imgKM2",     {1680,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.1"}},
    {"ImgTer",     {2100, 1830,  600,  300},
     {.Picture = "ImgRTOF", .ToolTip = "Click per simulare intervento", .Morsetti = "I0.5"}},
    {"imgM",       {1770, 2310, 1320,  780}, {.Picture = "imgMOF"}},
    {"etM",        { 840, 2655,  900,  240}},
    {"imgKM1a",    {4170,  405,  300,  360},
     {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM1, I0.0"}},
    {"imgKM2a",    {6990,  405,  300,  360},
     {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM2, I0.4"}},
    {"imgStop",    {3900, 1530,  540,  540}, {.Picture = "imgPGr0", .ToolTip = "Stop, I0.1"}},
    {"imgStart",   {5240, 1530,  540,  540}, {.Picture = "imgVOFF", .ToolTip = "Marcia avanti, I0.2"}},
    {"imgInd",     {6580, 1530,  540,  540}, {.Picture = "imgVOFF", .ToolTip = "Marcia indietro, I0.3"}},
    {"ImgEm",      {7920, 1530,  540,  540}, {.Picture = "imgROFF", .ToolTip = "Emergenza, I0.6"}},
    {"imgLS",      {3930, 2460,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu, Q0.2"}},
    {"imgLI",      {4935, 2460,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde, Q0.3"}},
    {"imgLA",      {5940, 2460,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde, Q0.4"}},
    {"imgLRt",     {6945, 2460,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada gialla, Q0.5"}},
    {"imgLAttesa", {7950, 2460,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada rossa, Q0.6"}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgStop", .Posizione = I(0, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgStart", .Posizione = I(0, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgInd", .Posizione = I(0, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "ImgEm", .Posizione = I(0, 6), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
};

constexpr Riga_Commutatore termici[] = {
    {.Nome = "ImgTer", .Posizione = I(0, 5), .Azionato = '0', .Riposo = '1', .Picture_Azionato = "imgRTON",
     .Picture_Riposo = "ImgRTOF"},
};

constexpr Riga_Contattore km1 = {
    .Nome = "imgKm1", .Contatto = "imgKM1a", .Filo = "linKM1", .Uscita = Q(0, 0), .Ingresso = I(0, 0)};
constexpr Riga_Contattore km2 = {
    .Nome = "imgKM2", .Contatto = "imgKM2a", .Filo = "linKM2", .Uscita = Q(0, 1), .Ingresso = I(0, 4)};

constexpr Riga_Lampada hl1 = {"imgLA", Q(0, 4), "imgLV"};
constexpr Riga_Lampada hl2 = {"imgLI", Q(0, 3), "imgLV"};
constexpr Riga_Lampada hl3 = {"imgLS", Q(0, 2), "imgLB"};
constexpr Riga_Lampada hl4 = {"imgLRt", Q(0, 5), "imgLG"};
constexpr Riga_Lampada hl5 = {"imgLAttesa", Q(0, 6), "imgLR"};
// clang-format on

}  // namespace

INV::INV() : Impianto(figure, "0100011000000000", Invio::Se_Diverso) {
  Caption("Nastro Due");
  Monta(pulsanti);
  Monta(termici);
  Disegno[km1.Nome].Doppio_Clic = [this] { KMAStato(km1_eccitato_ ? "0" : "1"); };
  Disegno[km2.Nome].Doppio_Clic = [this] { KMIStato(km2_eccitato_ ? "0" : "1"); };
}

void INV::KMAStato(std::string_view stato) {
  km1_eccitato_ = stato != "0";
  Mostra(km1, km1_eccitato_);
  Concludi();
}

void INV::KMIStato(std::string_view stato) {
  km2_eccitato_ = stato != "0";
  Mostra(km2, km2_eccitato_);
  Concludi();
}

void INV::Concludi() {
  const bool alimentato = km1_eccitato_ || km2_eccitato_;
  Disegno["imgM"].Picture = alimentato ? "imgMON" : "imgMOF";
  // The wires of both meet: what one of them feeds is live below the other as well.
  Disegno["nodo"].FillColor = Tavolozza(alimentato ? 12 : 15);
  Invia();
}

void INV::SET_HL1(std::string_view stato) {
  Mostra(hl1, stato);
}
void INV::SET_HL2(std::string_view stato) {
  Mostra(hl2, stato);
}
void INV::SET_HL3(std::string_view stato) {
  Mostra(hl3, stato);
}
void INV::SET_HL4(std::string_view stato) {
  Mostra(hl4, stato);
}
void INV::SET_HL5(std::string_view stato) {
  Mostra(hl5, stato);
}

void INV::Applica_Uscite() {
  KMAStato(Uscita(km1.Uscita));
  KMIStato(Uscita(km2.Uscita));
  SET_HL1(Uscita(hl1.Uscita));
  SET_HL2(Uscita(hl2.Uscita));
  SET_HL3(Uscita(hl3.Uscita));
  SET_HL4(Uscita(hl4.Uscita));
  SET_HL5(Uscita(hl5.Uscita));
}

}  // namespace tavorno
