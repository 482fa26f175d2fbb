// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/mixer_two.h"

namespace tavorno {

namespace {

// clang-format off
// name, {left, top, width, height}, looks at first
constexpr Riga_Figura figure[] = {
    {"imgSp(0)",   {2880,  960,  240,  240}},
    {"imgSp(1)",   {2760, 1080,  240,  180}},
    {"imgLiquido", {2700, 2759, 1500,    1}},
    {"shL",        {2700, 2760, 1500,    0}},
    {"imgSp(2)",   {2760, 2280,  360,  360}},
    {"ShDos",      {3030, 2382,  840,  240}, {.Picture = "imgDos4"}},
    {"imgVasca",   {2640,  840, 1620, 2100}},
    {"imgT1",      { 660,  660, 2400,  300}, {.Picture = "imgTOF"}},
    {"imgT2",      { 660, 1020, 2160,  720}, {.Picture = "imgTOF"}},
    {"imgT3",      {3390, 2820, 1800,  270}, {.Picture = "imgTOF"}},
    {"imgT4",      { 480, 2580, 2580,  120}, {.Picture = "imgTOF"}},
    {"imgM(0)",    { 780,  480,  480,  480}, {.Picture = "imgMOF", .Morsetti = "Q0.1"}},
    {"imgM(1)",    { 780, 1440,  480,  480}, {.Picture = "imgMOF", .Morsetti = "Q0.2"}},
    {"imgM(2)",    {3210,  120,  480,  480}, {.Picture = "imgMOF", .Morsetti = "Q0.5"}},
    {"imgV1",      {1380,  360,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.0"}},
    {"imgV2",      {1380, 1320,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.3"}},
    {"imgV3",      {4560, 2670,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.4"}},
    {"imgV4",      {1140, 2280,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q1.6"}},
    {"imgTr(0)",   {1890,  570,  300,  300}, {.Picture = "imgTrOF", .Morsetti = "I0.0"}},
    {"imgTr(1)",   {1890, 1530,  300,  300}, {.Picture = "imgTrOF", .Morsetti = "I0.1"}},
    {"EtP(0)",     {1800,  930,  480,  180}},
    {"EtP(1)",     {1800, 1890,  480,  180}},
    {"imgTL(0)",   {4335, 2565,  150,  150}, {.Picture = "spenta"}},
    {"imgTL(1)",   {4335, 1885,  150,  150}, {.Picture = "spenta"}},
    {"imgTL(2)",   {4335, 1085,  150,  150}, {.Picture = "spenta"}},
    {"etTL",       {4500, 1440,  480,  180}, {.Morsetti = "I0.2 I0.3"}},
    {"etcap",      {4500,  330,  480,  180},
     {.ToolTip = "Tenere premuto per l'indirizzo del livello", .Morsetti = "AIW0"}},
    {"etGI",       {4560,  120,  420,  150}},
    {"etAI",       {4500,  690,  480,  180}, {.Morsetti = "AIW0"}},
    {"ImgEm",      {5520,  390,  540,  540}, {.Picture = "imgROFF", .ToolTip = "SB1 Emergenza esterna, I0.4"}},
    {"imgCEM",     {6180,  390,  540,  540}, {.Picture = "imgCC", .ToolTip = "Contatto di SB1, I0.4"}},
    {"imgCom",     {6840,  390,  540,  540}, {.Picture = "imgComOF", .ToolTip = "SA Manuale/Automatico, I0.5"}},
    {"imgSB(0)",   {7500,  390,  540,  540}, {.Picture = "imgSBOF", .ToolTip = "SB11 Start automatico, I0.6"}},
    {"imgSB(1)",   {8160,  390,  540,  540}, {.Picture = "imgSBOF", .ToolTip = "SB10 Stop automatico, I0.7"}},
    {"imgSB(2)",   {5445, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB2 Start Carico prodotto 1 in manuale, I1.0"}},
    {"imgSB(3)",   {5865, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB3 Stop Carico prodotto 1 in manuale, I1.1"}},
    {"imgSB(4)",   {6285, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB4 Start Carico prodotto 2 in manuale, I1.2"}},
    {"imgSB(5)",   {6705, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB5 Stop Carico prodotto 2 in manuale, I1.3"}},
    {"imgSB(6)",   {7125, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB6 Start Mescolatore-Vapore in manuale, I1.4"}},
    {"imgSB(7)",   {7545, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB7 Stop Mescolatore-Vapore in manuale, I1.5"}},
    {"imgSB(8)",   {7965, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB8 Start Scarico Miscela in manuale, I1.6"}},
    {"imgSB(9)",   {8385, 1575,  390,  390},
     {.Picture = "imgSBOF", .ToolTip = "SB9 Stop Scarico Miscela in manuale, I1.7"}},
    {"imgL(0)",    {5475, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL1 verde, Q0.6"}},
    {"imgL(1)",    {5895, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL2 verde, Q0.7"}},
    {"imgL(2)",    {6315, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL3 verde, Q1.0"}},
    {"imgL(3)",    {6735, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL4 verde, Q1.1"}},
    {"imgL(4)",    {7155, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL5 gialla, Q1.2"}},
    {"imgL(5)",    {7575, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL6 blu, Q1.3"}},
    {"imgL(6)",    {7995, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL7 blu, Q1.4"}},
    {"imgL(7)",    {8415, 2331,  330,  330}, {.Picture = Lampada_Spenta, .ToolTip = "HL8 rossa, Q1.5"}},
};

constexpr Riga_Mandata mandate[] = {
    {{"ME_SpedP1", 200, 200}, 1, "imgTr(0)", "EtP(0)", "imgM(0)", "imgV1", "imgT1", "imgSp(0)"},
    {{"ME_SpedP2", 200, 200}, 2, "imgTr(1)", "EtP(1)", "imgM(1)", "imgV2", "imgT2", "imgSp(1)"},
};

constexpr int livelli[] = {3, 4};

constexpr Riga_Lampada lampade[] = {
    {"imgL(0)", Q(0, 6), "imgLV"}, {"imgL(1)", Q(0, 7), "imgLV"}, {"imgL(2)", Q(1, 0), "imgLV"},
    {"imgL(3)", Q(1, 1), "imgLV"}, {"imgL(4)", Q(1, 2), "imgLG"}, {"imgL(5)", Q(1, 3), "imgLB"},
    {"imgL(6)", Q(1, 4), "imgLB"}, {"imgL(7)", Q(1, 5), "imgLR"},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgSB(0)", .Posizione = I(0, 6), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(1)", .Posizione = I(0, 7), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(2)", .Posizione = I(1, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(3)", .Posizione = I(1, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(4)", .Posizione = I(1, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(5)", .Posizione = I(1, 3), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(6)", .Posizione = I(1, 4), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(7)", .Posizione = I(1, 5), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(8)", .Posizione = I(1, 6), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(9)", .Posizione = I(1, 7), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
};

constexpr Riga_Commutatore commutatori[] = {
    {.Nome = "imgCom", .Posizione = I(0, 5), .Azionato = '1', .Riposo = '0',
     .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
};
// clang-format on

constexpr Schema_Serbatoio schema = {
    .Stato_I = "0000100101010101",
    .Figure = figure,
    .Fondo = 2760,
    .Mandate = mandate,
    .Scarico = {"ME_SpedS", 100, 100},
    .Valvola_Scarico = "imgV3",
    .Tubo_Scarico = "imgT3",
    .Vuoto_Scarico = 1,
    .Livelli = livelli,
    .Righe_Livello = Parola_Livello,
    .etTL = "etTL",
    .etAI = "etAI",
    .Motore_Agitatore = "imgM(2)",
    .Lampade = lampade,
    .Pulsanti = pulsanti,
    .Commutatori = commutatori,
    .Termici = {},
};

constexpr int SB1 = 5;  // input of the emergency button

}  // namespace

ctr_Mis2::ctr_Mis2(Orologio& orologio) : Serbatoio_Agitato(schema, orologio) {
  for (const char* nome : {"etTL", "etAI"}) Disegno[nome].ForeColor = Verde_Display;
  Disegno["etAI"].Caption = "0.00";
  Disegno["imgSp(2)"].Visible = false;
  Monta_Emergenza(SB1);

  Figura& etGI = Disegno["etGI"];
  etGI.Caption = "AIW0";
  etGI.Visible = false;
  Disegno["etcap"].Premi = [&etGI] { etGI.Visible = true; };
  Disegno["etcap"].Rilascia = [&etGI] { etGI.Visible = false; };
}

void ctr_Mis2::Comanda(int uscita, bool eccitata) {
  switch (uscita) {
    case 1:
      return Comanda_Valvola(0, eccitata);
    case 2:
      return Comanda_Pompa(0, eccitata);
    case 3:
      return Comanda_Pompa(1, eccitata);
    case 4:
      return Comanda_Valvola(1, eccitata);
    case 5:
      return Comanda_Caduta(eccitata);
    case 6:
      return Agita(eccitata);
    case 15:
      return Mostra_Vapore(eccitata, "imgT4");
    default:
      return;
  }
}

}  // namespace tavorno
