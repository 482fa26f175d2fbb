// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/mixer_heated.h"

#include <algorithm>
#include <string>

#include "plc/number_text.h"

namespace tavorno {

namespace {

constexpr const char* scatta = "Click per simulare intervento";

// clang-format off
// name, {left, top, width, height}, looks at first
//
// Later figures cover earlier ones: the tank stands before its liquid and hides what rises beyond.
constexpr Riga_Figura figure[] = {
    {"imgSp(0)",   {3300, 1080,  240,  300}},
    {"imgSp(1)",   {3060, 1200,  240,  240}},
    {"imgLiquido", {3000, 2999, 1800,    1}},
    {"shL",        {3000, 3000, 1800,    0}},
    {"imgSp(2)",   {3060, 2400,  420,  420}},
    {"ShDos",      {3420, 2520,  960,  240}, {.Picture = "imgDos4"}},
    {"imgVasca",   {2940,  900, 1920, 2280}},
    {"imgT1",      { 720,  780, 2700,  300}, {.Picture = "imgTOF"}},
    {"imgT2",      { 720, 1140, 2400,  780}, {.Picture = "imgTOF"}},
    {"imgT3",      {3840, 3060, 1800,  720}, {.Picture = "imgTOF"}},
    {"imgTv",      { 480, 2760, 2880,  840}, {.Picture = "imgTOF"}},
    {"imgM(0)",    { 900,  600,  480,  480}, {.Picture = "imgMOF", .ToolTip = scatta, .Morsetti = "Q0.0"}},
    {"imgM(1)",    { 900, 1620,  480,  480}, {.Picture = "imgMOF", .ToolTip = scatta, .Morsetti = "Q0.1"}},
    {"imgM(2)",    {4860, 3480,  480,  480}, {.Picture = "imgMOF", .ToolTip = scatta, .Morsetti = "Q0.2"}},
    {"imgM(3)",    {3660,  180,  480,  480}, {.Picture = "imgMOF", .ToolTip = scatta, .Morsetti = "Q0.4"}},
    {"imgV1",      {1560,  480,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.5"}},
    {"imgV2",      {1560, 1500,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.6"}},
    {"imgV3",      {4260, 3360,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.7"}},
    {"imgV4",      {1320, 3180,  360,  480}, {.Picture = "imgEVOF", .Morsetti = "Q0.3"}},
    {"imgTr(0)",   {2130,  690,  300,  300}, {.Picture = "imgTrOF", .Morsetti = "I0.0"}},
    {"imgTr(1)",   {2130, 1710,  300,  300}, {.Picture = "imgTrOF", .Morsetti = "I0.1"}},
    {"EtP(0)",     {2040, 1050,  480,  180}},
    {"EtP(1)",     {2040, 2070,  480,  180}},
    {"imgTL(0)",   {4935, 2895,  150,  150}, {.Picture = "spenta"}},
    {"imgTL(1)",   {4935, 2125,  150,  150}, {.Picture = "spenta"}},
    {"imgTL(2)",   {4935, 1325,  150,  150}, {.Picture = "spenta"}},
    {"shT",        {5580, 2380,   60,  200}},
    {"imgSet",     {5655, 2020,  180,  120}},
    {"etT",        {5040,  330,  480,  180}, {.Morsetti = "AIW2"}},
    {"etSet",      {5040,  870,  480,  180}, {.Morsetti = "AIW4"}},
    {"UpDown1",    {5580,  852,  240,  360}, {.ToolTip = "Set point temperatura, AIW4"}},
    {"imgLT",      {5340, 3000,  300,  300}, {.Picture = "imgLTOF", .Morsetti = "I0.7"}},
    {"etcap",      { 360, 2670,  480,  180}, {.Morsetti = "AIW0"}},
    {"etTL",       {1260, 2670,  480,  180}, {.Morsetti = "I0.4 I0.5"}},
    {"sspTr",      {1920, 2640,  540,  240},
     {.Picture = "imgSspOF", .ToolTip = "Tenere premuto per i bit del trasduttore di livello"}},
    {"etI(0)",     {2280,  528,  300,  150}},
    {"etI(1)",     {2280, 1548,  300,  150}},
    {"etI(2)",     {1140, 1098,  300,  150}},
    {"etI(3)",     {1140, 2118,  300,  150}},
    {"etI(4)",     {1170, 2490,  330,  150}},
    {"etI(5)",     {1500, 2490,  330,  150}},
    {"etI(6)",     {5100, 3978,  300,  150}},
    {"etI(7)",     {5490, 3312,  300,  150}},
    {"etI(8)",     {4440,  438,  300,  150}},
    {"imgCom(0)",  {6030,  375,  540,  540},
     {.Picture = "imgComOF", .ToolTip = "SA1 Automatico/Manuale, I1.1"}},
    {"imgSB(0)",   {6750,  375,  540,  540},
     {.Picture = "imgSBOF", .ToolTip = "SB1 Start ciclo automatico, I1.2"}},
    {"imgSB(1)",   {7470,  375,  540,  540},
     {.Picture = "imgSBOF", .ToolTip = "SB2 Stop ciclo automatico, I1.3"}},
    {"imgCom(1)",  {6030, 1475,  540,  540}, {.Picture = "imgComOF", .ToolTip = "SA2 Carico Prodotto 1, I1.4"}},
    {"imgCom(2)",  {6750, 1475,  540,  540}, {.Picture = "imgComOF", .ToolTip = "SA3 Carico Prodotto 2, I1.5"}},
    {"imgCom(3)",  {7470, 1475,  540,  540}, {.Picture = "imgComOF", .ToolTip = "SA4 Scarico Miscela, I1.6"}},
    {"imgCom(4)",  {8190, 1475,  540,  540}, {.Picture = "imgComOF", .ToolTip = "SA5 Agitatore-Vapore, I1.7"}},
    {"etI(9)",     {6150,  930,  300,  150}},
    {"etI(10)",    {6870,  930,  300,  150}},
    {"etI(11)",    {7590,  930,  300,  150}},
    {"etI(12)",    {6150, 2030,  300,  150}},
    {"etI(13)",    {6870, 2030,  300,  150}},
    {"etI(14)",    {7590, 2030,  300,  150}},
    {"etI(15)",    {8310, 2030,  300,  150}},
    {"imgL(0)",    {6120, 2575,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL1 verde, Q1.0"}},
    {"imgL(1)",    {6840, 2575,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL2 verde, Q1.1"}},
    {"imgL(2)",    {7560, 2575,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL3 blu, Q1.2"}},
    {"imgL(3)",    {8280, 2575,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL4 rossa, Q1.3"}},
    {"imgL(4)",    {6120, 3335,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL5 gialla, Q1.4"}},
    {"imgL(5)",    {6840, 3335,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL6 gialla, Q1.5"}},
    {"imgL(6)",    {7560, 3335,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL7 gialla, Q1.6"}},
    {"imgL(7)",    {8280, 3335,  360,  360}, {.Picture = Lampada_Spenta, .ToolTip = "HL8 gialla, Q1.7"}},
    {"etAI(0)",    {6030, 4152,  600,  180}, {.Morsetti = "AIW0"}},
    {"etAI(1)",    {6990, 4152,  600,  180}, {.Morsetti = "AIW2"}},
    {"etAI(2)",    {7950, 4152,  600,  180}, {.Morsetti = "AIW4"}},
    {"imgFR(0)",   { 620, 1087,  180,  210}, {.Picture = "chiuso", .Morsetti = "I0.2"}},
    {"imgFR(1)",   { 620, 2107,  180,  210}, {.Picture = "chiuso", .Morsetti = "I0.3"}},
    {"imgFR(2)",   {4585, 3985,  180,  210}, {.Picture = "chiuso", .Morsetti = "I0.6"}},
    {"imgFR(3)",   {4770,  408,  180,  210}, {.Picture = "chiuso", .Morsetti = "I1.0"}},
    {"picTr",      {1080, 2880, 1440,  300}},
    {"et1",        {1500, 2955,  300,  150}},
    {"et2",        {2160, 2955,  300,  150}},
};

constexpr Riga_Mandata mandate[] = {
    {{"ME_Speed1", 300, 300}, 1, "imgTr(0)", "EtP(0)", "imgM(0)", "imgV1", "imgT1", "imgSp(0)"},
    {{"ME_Speed2", 300, 300}, 2, "imgTr(1)", "EtP(1)", "imgM(1)", "imgV2", "imgT2", "imgSp(1)"},
};

constexpr int livelli[] = {5, 6};

constexpr Riga_Lampada lampade[] = {
    {"imgL(0)", Q(1, 0), "imgLV"}, {"imgL(1)", Q(1, 1), "imgLV"}, {"imgL(2)", Q(1, 2), "imgLB"},
    {"imgL(3)", Q(1, 3), "imgLR"}, {"imgL(4)", Q(1, 4), "imgLG"}, {"imgL(5)", Q(1, 5), "imgLG"},
    {"imgL(6)", Q(1, 6), "imgLG"}, {"imgL(7)", Q(1, 7), "imgLG"},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgSB(0)", .Posizione = I(1, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB(1)", .Posizione = I(1, 3), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
};

constexpr Riga_Termico termici[] = {
    {"imgM(0)", "imgFR(0)", I(0, 2)}, {"imgM(1)", "imgFR(1)", I(0, 3)},
    {"imgM(2)", "imgFR(2)", I(0, 6)}, {"imgM(3)", "imgFR(3)", I(1, 0)},
};

constexpr Riga_Commutatore commutatori[] = {
    {.Nome = "imgCom(0)", .Posizione = I(1, 1), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(1)", .Posizione = I(1, 4), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(2)", .Posizione = I(1, 5), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(3)", .Posizione = I(1, 6), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(4)", .Posizione = I(1, 7), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
};
// clang-format on

constexpr Schema_Serbatoio schema = {
    .Stato_I = "0011001010010000",
    .Figure = figure,
    .Fondo = 3000,
    .Mandate = mandate,
    .Scarico = {"ME_SpeedS", 100, 300},
    .Valvola_Scarico = "imgV3",
    .Tubo_Scarico = "imgT3",
    .Vuoto_Scarico = 2,
    .Livelli = livelli,
    .Righe_Livello = Parola_Livello,
    .etTL = "etTL",
    .etAI = "etAI(0)",
    .Motore_Agitatore = "imgM(3)",
    .Lampade = lampade,
    .Pulsanti = pulsanti,
    .Commutatori = commutatori,
    .Termici = termici,
};

constexpr int BT = 8;            // input of the thermostat
constexpr int ambiente = 20;     // degrees: nothing gets colder
constexpr int pieno = 10;        // a counter of the temperature acts above this,
constexpr int pieno_lento = 20;  // the one of the cooling air above this
constexpr Colore grigio = Tavolozza(8), verde = Tavolozza(10);

// The thermometer, twips.
constexpr int twip_per_grado = 10;
constexpr int base_colonna = 2580, base_indice = 2520;  // at 0 degrees: foot, and mark of the set
constexpr int gradi_massimi = 105;                      // where it ends

/// Counts a second of what acts on the temperature; true when it makes a degree.
bool Un_Grado(int& conta, int limite) {
  conta += 2;
  if (conta <= limite) return false;
  conta = 0;
  return true;
}

}  // namespace

ctr_Misc::ctr_Misc(Orologio& orologio)
    : Serbatoio_Agitato(schema, orologio), timVap_(orologio, 1000, [this] { Tick_Temperatura(); }) {
  for (const char* nome : {"etTL", "etT", "etSet", "etAI(0)", "etAI(1)", "etAI(2)"})
    Disegno[nome].ForeColor = Verde_Display;
  for (int n = 0; n < 16; ++n) {
    Figura& etI = Disegno("etI", n);
    etI.Caption = "I" + std::to_string(n / 8) + "." + std::to_string(n % 8);
    etI.ForeColor = grigio;
  }
  Regolatori["ME_ModoI"] = {.Cambia = [this](double modo) {
    for (int n = 0; n < 16; ++n) Disegno("etI", n).ForeColor = modo == 0 ? grigio : verde;
  }};
  Regolatori["UpDown1"] = {.Cambia =
                               [this](double valore) {
                                 Cambia_Set(valore);
                                 txtC("QWE");
                               },
                           .Valore = 50,
                           .Minimo = 20,
                           .Massimo = 80,
                           .Passo = 1};
  Monta_Trasduttore();
  Disegno["imgSp(2)"].Visible = false;
  Mostra_Temperatura(ambiente);
  Cambia_Set(50);
  timVap_.Enabled(true);
}

// What the two bits of the level are called, for as long as the button is held.
void ctr_Misc::Monta_Trasduttore() {
  const auto mostra = [this](bool visibile) {
    Disegno["sspTr"].Picture = visibile ? "imgSspON" : "imgSspOF";
    Disegno["et1"].Caption = Disegno["etI(4)"].Caption();
    Disegno["et2"].Caption = Disegno["etI(5)"].Caption();
    for (const char* nome : {"picTr", "et1", "et2"}) Disegno[nome].Visible = visibile;
  };
  mostra(false);
  Disegno["sspTr"].Premi = [this, mostra] {
    mostra(true);
    Invia();
  };
  Disegno["sspTr"].Rilascia = [this, mostra] {
    mostra(false);
    Invia();
  };
}

void ctr_Misc::Comanda(int uscita, bool eccitata) {
  switch (uscita) {
    case 1:
      pompa_1_ = eccitata;
      return Comanda_Pompa(0, eccitata);
    case 2:
      pompa_2_ = eccitata;
      return Comanda_Pompa(1, eccitata);
    case 3:
      pompa_3_ = eccitata;
      Disegno["imgM(2)"].Picture = Motore(eccitata);
      return Scarica(pompa_3_ && valvola_3_);
    case 4:
      vapore_ = eccitata;
      return Mostra_Vapore(eccitata, "imgTv");
    case 5:
      return Agita(eccitata);
    case 6:
      valvola_1_ = eccitata;
      return Comanda_Valvola(0, eccitata);
    case 7:
      valvola_2_ = eccitata;
      return Comanda_Valvola(1, eccitata);
    case 8:
      valvola_3_ = eccitata;
      Disegno["imgV3"].Picture = Elettrovalvola(eccitata);
      return Scarica(pompa_3_ && valvola_3_);
    default:
      return;
  }
}

// An empty tank is at the temperature of the air at once.
void ctr_Misc::Scaricato(bool vuota) {
  if (vuota) Mostra_Temperatura(ambiente);
}

void ctr_Misc::Cambia_Set(double valore) {
  set_temperatura_ = static_cast<float>(valore);
  const int gradi = static_cast<int>(valore);
  etSet.Caption = std::to_string(gradi);
  Disegno["imgSet"].Top = static_cast<float>(base_indice - twip_per_grado * gradi);
  Aggiorna_Analogici();
}

void ctr_Misc::Mostra_Temperatura(int gradi) {
  etT.Caption = std::to_string(gradi);
  const int colonna = twip_per_grado * std::min(gradi, gradi_massimi);
  Disegno["shT"].Top = static_cast<float>(base_colonna - colonna);
  Disegno["shT"].Height = static_cast<float>(colonna);
}

void ctr_Misc::Tick_Temperatura() {
  int gradi = Numero_Decimale(etT.Caption()).value_or(ambiente);
  const int set = Numero_Decimale(etSet.Caption()).value_or(ambiente);
  const auto raffredda = [&gradi] { gradi = std::max(gradi - 1, ambiente); };
  if (vapore_ && Un_Grado(conta_vapore_, pieno)) ++gradi;
  if (pompa_1_ && valvola_1_ && Un_Grado(conta_freddo_1_, pieno)) raffredda();
  if (pompa_2_ && valvola_2_ && Un_Grado(conta_freddo_2_, pieno)) raffredda();
  if (!vapore_ && Un_Grado(conta_raffredda_, pieno_lento)) raffredda();
  Mostra_Temperatura(gradi);
  temperatura_ = static_cast<float>(gradi);
  Aggiorna_Analogici();
  const bool raggiunta = set <= gradi;
  Disegno["imgLT"].Picture = raggiunta ? "imgLTON" : "imgLTOF";
  Ingresso(BT, raggiunta ? '1' : '0');
  Stato_I(std::string(Stato_I()));
  txtC(Stato_I() + std::string(16, '0') + Disegno["etAI(1)"].Caption());
}

void ctr_Misc::Aggiorna_Analogici() {
  Serbatoio_Agitato::Aggiorna_Analogici();
  ME_AIW2 = Volt(Disegno["etAI(1)"], temperatura_ * 10 / 100);
  ME_AIW4 = Volt(Disegno["etAI(2)"], set_temperatura_ * 10 / 100);
}

}  // namespace tavorno
