// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/mixer_four.h"

#include <algorithm>
#include <string>

namespace tavorno {

namespace {

constexpr const char* scatta = "Click per simulare intervento";
constexpr const char* manca = "Tenere premuto per simulare la mancanza di prodotto";

// clang-format off
// name, {left, top, width, height}, looks at first
//
// imgTG(n) leads from the tank of a product to its valve, imgTOP from the valves to the pump, imgTVP
// from the pump into the mixing tank.
constexpr Riga_Figura figure[] = {
    {"imgSp",      {3720,  900,  240,  240}},
    {"imgLiquido", {3480, 2699, 1500,    1}},
    {"shL",        {3480, 2700, 1500,    0}},
    {"ShDos",      {3810, 2340,  840,  240}, {.Picture = "imgDos4"}},
    {"imgVasca",   {3420,  780, 1620, 2040}},
    {"imgTG(0)",   { 360,  900,   60,  840}, {.Picture = "imgTOF"}},
    {"imgTG(1)",   { 900,  900,   60,  840}, {.Picture = "imgTOF"}},
    {"imgTG(2)",   {1440,  900,   60,  840}, {.Picture = "imgTOF"}},
    {"imgTG(3)",   {1980,  900,   60,  840}, {.Picture = "imgTOF"}},
    {"imgTG(4)",   {2700, 2700, 1560,  360}, {.Picture = "imgTOF"}},
    {"imgTOP",     { 360, 1710, 2040,   60}, {.Picture = "imgTOF"}},
    {"imgTVP",     {2760,  480, 1140, 1290}, {.Picture = "imgTOF"}},
    {"imgV(0)",    { 270, 1080,  480,  360}, {.Picture = "imgEVOF", .Morsetti = "Q0.0"}},
    {"imgV(1)",    { 810, 1080,  480,  360}, {.Picture = "imgEVOF", .Morsetti = "Q0.1"}},
    {"imgV(2)",    {1350, 1080,  480,  360}, {.Picture = "imgEVOF", .Morsetti = "Q0.2"}},
    {"imgV(3)",    {1890, 1080,  480,  360}, {.Picture = "imgEVOF", .Morsetti = "Q0.3"}},
    {"imgV(4)",    {3060, 2640,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.6"}},
    {"imgM(0)",    {2280, 1500,  480,  480}, {.Picture = "imgMOF", .ToolTip = scatta, .Morsetti = "Q0.5"}},
    {"imgM(1)",    {3990,  120,  480,  480}, {.Picture = "imgMOF", .ToolTip = scatta, .Morsetti = "Q0.4"}},
    {"imgTr",      {2880, 1080,  300,  300}, {.Picture = "imgTrOF", .Morsetti = "I1.4"}},
    {"EtP",        {2880, 1935,  480,  180}},
    {"etGP(0)",    { 180,  540,  420,  240}, {.ToolTip = manca}},
    {"etGP(1)",    { 720,  540,  420,  240}, {.ToolTip = manca}},
    {"etGP(2)",    {1260,  540,  420,  240}, {.ToolTip = manca}},
    {"etGP(3)",    {1800,  540,  420,  240}, {.ToolTip = manca}},
    {"imgFR(0)",   {1995, 1947,  180,  210}, {.Picture = "chiuso", .Morsetti = "I1.0"}},
    {"imgFR(1)",   {5130,  267,  180,  210}, {.Picture = "chiuso", .Morsetti = "I1.1"}},
    {"imgTL(0)",   {5115, 2605,  150,  150}, {.Picture = "spenta", .Morsetti = "I0.6"}},
    {"imgTL(1)",   {5115, 2225,  150,  150}, {.Picture = "spenta", .Morsetti = "I0.1"}},
    {"imgTL(2)",   {5115, 1825,  150,  150}, {.Picture = "spenta", .Morsetti = "I0.2"}},
    {"imgTL(3)",   {5115, 1425,  150,  150}, {.Picture = "spenta", .Morsetti = "I0.3"}},
    {"imgTL(4)",   {5115, 1025,  150,  150}, {.Picture = "spenta", .Morsetti = "I0.4"}},
    {"etcap",      { 420, 2520,  480,  180}, {.Morsetti = "AIW0"}},
    {"etAI",       {1440, 2520,  480,  180}, {.Morsetti = "AIW0"}},
    {"imgSB(0)",   {5670,  480,  480,  480}, {.Picture = "imgSBOF", .ToolTip = "SB1 Start ciclo, I0.0"}},
    {"imgSB(1)",   {6210,  480,  480,  480}, {.Picture = "imgSBOF", .ToolTip = "SB2 Stop Ciclo, I0.5"}},
    {"imgSB(2)",   {6750,  480,  480,  480},
     {.Picture = "imgSBOF", .ToolTip = "SB3 Reset ind. manutenzione, I0.7"}},
    {"imgCom",     {7290,  480,  480,  480}, {.Picture = "imgComOF", .ToolTip = "SA Scarico miscela, I1.2"}},
    {"ImgEm",      {7830,  480,  480,  480}, {.Picture = "imgROFF", .ToolTip = "SB4 Emergenza esterna, I1.3"}},
    {"imgCEM",     {8370,  480,  480,  480}, {.Picture = "imgCC", .ToolTip = "Contatto di SB4, I1.3"}},
    {"imgL(7)",    {5705, 1530,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL0 rossa, Manutenzione M1, Q0.7"}},
    {"imgL(8)",    {6740, 1530,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL1 rossa, Manutenzione M2, Q1.0"}},
    {"imgL(0)",    {7775, 1530,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL2 verde, Ciclo Attivo, Q1.1"}},
    {"imgL(4)",    {5705, 2070,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL6 blu, Fine Ciclo, Q1.2"}},
    {"imgL(1)",    {6740, 2070,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL3 verde, Serbatoio in scarico, Q1.3"}},
    {"imgL(2)",    {7775, 2070,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL4 verde, Motore M1 ON, Q1.4"}},
    {"imgL(3)",    {5705, 2610,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL5 verde, Motore M2 ON, Q1.5"}},
    {"imgL(5)",    {6740, 2610,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL7 gialla, Termico M1 Scattato, Q1.6"}},
    {"imgL(6)",    {7775, 2610,  300,  300},
     {.Picture = Lampada_Spenta, .ToolTip = "HL8 gialla, Termico M2 Scattato, Q1.7"}},
};

constexpr Riga_Mandata mandate[] = {
    {{"ME_SpedP", 300, 300}, 13, "imgTr", "EtP", nullptr, nullptr, nullptr, nullptr}};

// SL0 and SL1 to SL4
constexpr int livelli[] = {7, 2, 3, 4, 5};

constexpr Riga_Livello righe_livello[] = {
    {0,            "01111", "10000"},
    {39,           "11111", "00000"},
    {79,           "10111", "01000"},
    {119,          "10011", "01100"},
    {160,          "10001", "01110"},
    {Senza_Limite, "10000", "01111"},
};

constexpr Riga_Lampada lampade[] = {
    {"imgL(7)", Q(0, 7), "imgLR"}, {"imgL(8)", Q(1, 0), "imgLR"}, {"imgL(0)", Q(1, 1), "imgLV"},
    {"imgL(4)", Q(1, 2), "imgLB"}, {"imgL(1)", Q(1, 3), "imgLV"}, {"imgL(2)", Q(1, 4), "imgLV"},
    {"imgL(3)", Q(1, 5), "imgLV"}, {"imgL(5)", Q(1, 6), "imgLG"}, {"imgL(6)", Q(1, 7), "imgLG"},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgSB(0)", .Posizione = I(0, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(1)", .Posizione = I(0, 5), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(2)", .Posizione = I(0, 7), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
};

constexpr Riga_Termico termici[] = {{"imgM(0)", "imgFR(0)", I(1, 0)}, {"imgM(1)", "imgFR(1)", I(1, 1)}};

constexpr Riga_Commutatore commutatori[] = {
    {.Nome = "imgCom", .Posizione = I(1, 2), .Azionato = '1', .Riposo = '0',
     .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
};
// clang-format on

constexpr Schema_Serbatoio schema = {
    .Stato_I = "0111110011010000",
    .Figure = figure,
    .Fondo = 2700,
    .Mandate = mandate,
    .Scarico = {"ME_SpedS", 200, 200},
    .Valvola_Scarico = "imgV(4)",
    .Tubo_Scarico = "imgTG(4)",
    .Vuoto_Scarico = 1,
    .Livelli = livelli,
    .Righe_Livello = righe_livello,
    .etTL = nullptr,
    .etAI = "etAI",
    .Motore_Agitatore = "imgM(1)",
    .Lampade = lampade,
    .Pulsanti = pulsanti,
    .Commutatori = commutatori,
    .Termici = termici,
};

constexpr int SB4 = 12;  // input of the emergency button

}  // namespace

ctr_Mis4::ctr_Mis4(Orologio& orologio) : Serbatoio_Agitato(schema, orologio) {
  Disegno["etAI"].ForeColor = Verde_Display;
  Disegno["etAI"].Caption = "0.00";
  Disegno["imgSp"].Visible = false;
  Monta_Emergenza(SB4);
  Monta_Mancanza();
}

// Any letter stops whatever flows.
void ctr_Mis4::Monta_Mancanza() {
  for (int n = 0; n < 4; ++n) {
    Figura& etGP = Disegno("etGP", n);
    etGP.Caption = std::string(1, static_cast<char>('A' + n));
    etGP.Premi = [this, &etGP] {
      etGP.ForeColor = Tavolozza(12);
      Prodotto_Ok = 0;
    };
    etGP.Rilascia = [this, &etGP] {
      etGP.ForeColor = Tavolozza(0);
      Prodotto_Ok = -1;
    };
  }
}

void ctr_Mis4::Comanda(int uscita, bool eccitata) {
  if (uscita <= 4) return Comanda_Prodotto(static_cast<std::size_t>(uscita - 1), eccitata);
  if (uscita == 5) return Agita(eccitata);
  if (uscita == 6) return Comanda_Pompa_P1(eccitata);
  Comanda_Caduta(eccitata);
}

// A valve that falls stops the fill, even while another stands open and the pump runs.
void ctr_Mis4::Comanda_Prodotto(std::size_t valvola, bool aperta) {
  valvole_.at(valvola) = aperta;
  Mostra_Prodotto();
  Disegno("imgV", static_cast<int>(valvola)).Picture = Elettrovalvola(aperta);
  Carica(aperta && pompa_);
}

// Through valves that are open together flows a mixture of their products.
void ctr_Mis4::Mostra_Prodotto() {
  Colore miscela = 0;
  double parti = 0;
  for (std::size_t n = 0; n < valvole_.size(); ++n) {
    if (valvole_.at(n)) miscela = Mescola(miscela, parti++, Prodotti[n], 1);
  }
  if (parti == 0) return;
  Tinta_Mandata(0, miscela);
  for (const char* nome : {"imgTOP", "imgTVP", "imgSp"}) Disegno[nome].FillColor = miscela;
}

void ctr_Mis4::Comanda_Pompa_P1(bool accesa) {
  pompa_ = accesa;
  Disegno["imgM(0)"].Picture = Motore(accesa);
  Carica(accesa && std::ranges::find(valvole_, true) != valvole_.end());
}

void ctr_Mis4::Carica(bool attivo) {
  for (int n = 0; n < 4; ++n)
    Disegno("imgTG", n).Picture = Tubo(attivo && valvole_.at(static_cast<std::size_t>(n)));
  Disegno["imgTOP"].Picture = Tubo(attivo);
  Disegno["imgTVP"].Picture = Tubo(attivo);
  Disegno["imgSp"].Visible = attivo;
  if (attivo)
    Avvia_Carico(0);
  else
    Ferma_Carico(0);
}

}  // namespace tavorno
