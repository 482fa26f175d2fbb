// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/tank_level.h"

#include <algorithm>
#include <limits>

namespace tavorno {

/// A level switch, with its lamp and the rays of the lamp.
struct Riga_Micro {
  Morsetto_I Ingresso;
  const char *Spia, *Raggi;
};

namespace {

// clang-format off
// name, {left, top, width, height}, looks at first
constexpr Riga_Figura figure[] = {
    {"imgSpruzzo",  { 780,  900,  240, 1500}},
    {"spruzzo",     {3720,  510,  240, 1425}},
    {"shL1",        { 600, 1935, 1680,  465}},
    {"shL2",        {3480, 1770, 1680,  165}},
    {"imgVasca",    { 540, 1320, 1800, 1140}},
    {"shSerb",      {3420,  375, 1800, 1560}},
    {"linR1",       { 540, 2400, 1800,   60}},
    {"imgTubi",     {2280,  240, 1560, 2040}, {.Picture = "imgTOF"}},
    {"imgV1",       { 360,  315,  360,  450}, {.Picture = "imgEVOF", .Morsetti = "Q0.0"}},
    {"shV1",        { 450,  354,  180,  150}},
    {"imgP1",       {2520, 2010,  480,  480},
     {.Picture = "imgMOF", .ToolTip = "Click per simulare intervento", .Morsetti = "Q0.1"}},
    {"imgFR",       {2260, 2472,  180,  210}, {.Picture = "chiuso", .Morsetti = "I0.2"}},
    {"imgV3",       {4230, 1995,  360,  450}, {.Picture = "imgEVOF", .Morsetti = "Q0.2"}},
    {"shV3",        {4320, 2034,  180,  150}},
    {"imgMax1",     { 345, 1500,  150,  150}, {.Morsetti = "I0.0"}},
    {"imgRaggi(0)", { 345, 1500,  150,  150}},
    {"imgMin1",     { 345, 2280,  150,  150}, {.Morsetti = "I0.1"}},
    {"imgRaggi(1)", { 345, 2280,  150,  150}},
    {"imgMax2",     {5265,  555,  150,  150}, {.Morsetti = "I0.5"}},
    {"imgRaggi(4)", {5265,  555,  150,  150}},
    {"imgMed",      {5265, 1160,  150,  150}, {.Morsetti = "I0.4"}},
    {"imgRaggi(3)", {5265, 1160,  150,  150}},
    {"imgMin2",     {5265, 1810,  150,  150}, {.Morsetti = "I0.3"}},
    {"imgRaggi(2)", {5265, 1810,  150,  150}},
    {"imgCom(0)",   {6000,  315,  480,  480},
     {.Picture = "imgComOF", .ToolTip = "SA1 Automatico/Manuale, I0.6"}},
    {"imgAlt(0)",   {6720,  315,  480,  480}, {.Picture = "imgSBOF", .ToolTip = "SB1 Pulsante, I0.7"}},
    {"imgCom(1)",   {7440,  315,  480,  480},
     {.Picture = "imgComOF", .ToolTip = "SA2 Comando Manuale elettrov. YV1, I1.0"}},
    {"imgCom(2)",   {8160,  315,  480,  480},
     {.Picture = "imgComOF", .ToolTip = "SA3 Comando Manuale elettrov. YV2, I1.1"}},
    {"imgCom(3)",   {6000, 1305,  480,  480},
     {.Picture = "imgComOF", .ToolTip = "SA4 Comando Manuale Pompa P1, I1.2"}},
    {"imgAlt(1)",   {6720, 1305,  480,  480}, {.Picture = "imgSBOF", .ToolTip = "SB3 Stop Automatico, I1.3"}},
    {"imgSB6",      {7440, 1305,  480,  480}, {.Picture = "imgSBOF", .ToolTip = "SB2 Start Automatico, I1.4"}},
    {"imgHL1",      {6075, 2295,  330,  330},
     {.Picture = Lampada_Spenta, .ToolTip = "HL1 verde, Pompa ON, Q0.3"}},
    {"imgHL2",      {6795, 2295,  330,  330},
     {.Picture = Lampada_Spenta, .ToolTip = "HL2 gialla, Termico Scattato, Q0.4"}},
    {"imgHL3",      {7515, 2295,  330,  330},
     {.Picture = Lampada_Spenta, .ToolTip = "HL3 rossa, Vasca di Carico Vuota, Q0.5"}},
    {"imgHL4",      {8235, 2295,  330,  330},
     {.Picture = Lampada_Spenta, .ToolTip = "HL4 blu, Modo Automatico, Q0.6"}},
};

constexpr Riga_Commutatore commutatori[] = {
    {.Nome = "imgP1", .Posizione = I(0, 2), .Azionato = '0', .Riposo = '1', .Picture_Azionato = "imgFR",
     .Picture_Riposo = "imgMOF"},
    {.Nome = "imgCom(0)", .Posizione = I(0, 6), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(1)", .Posizione = I(1, 0), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(2)", .Posizione = I(1, 1), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
    {.Nome = "imgCom(3)", .Posizione = I(1, 2), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgComON",
     .Picture_Riposo = "imgComOF"},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgAlt(0)", .Posizione = I(0, 7), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgAlt(1)", .Posizione = I(1, 3), .Giu = '0', .Su = '1', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
    {.Nome = "imgSB6", .Posizione = I(1, 4), .Giu = '1', .Su = '0', .Picture_Giu = "imgSBON",
     .Picture_Su = "imgSBOF"},
};

constexpr Riga_Lampada lampade[] = {
    {"imgHL1", Q(0, 3), "imgLV"}, {"imgHL2", Q(0, 4), "imgLG"}, {"imgHL3", Q(0, 5), "imgLR"}, {"imgHL4", Q(0, 6), "imgLB"},
};
// clang-format on

constexpr Riga_Micro SL1 = {I(0, 0), "imgMax1", "imgRaggi(0)"},
                     SL2 = {I(0, 1), "imgMin1", "imgRaggi(1)"};
constexpr Riga_Micro SL3 = {I(0, 3), "imgMin2", "imgRaggi(2)"},
                     SL4 = {I(0, 4), "imgMed", "imgRaggi(3)"};
constexpr Riga_Micro SL5 = {I(0, 5), "imgMax2", "imgRaggi(4)"};
constexpr int FR1 = 3;  // input of the thermal relay

/// Levels, twips: a switch is operated beyond the first and at rest again beyond the second.
struct Soglie {
  int Azionato, Riposo;
};
constexpr Soglie max_vasca = {825, 725}, min_vasca = {45, 145};
constexpr Soglie max_serbatoio = {1305, 1205}, min_serbatoio = {50, 80};
constexpr int medio_serbatoio = 700;  // without hysteresis
constexpr std::int16_t pozza = 5;     // what stays of a level below the bottom, twips

constexpr int intervallo = 200;                      // ms, of all three timers
constexpr int carico = 8, pompata = 5, scarico = 7;  // twips per tick
constexpr Colore accesa = 255, spenta = 16512;
constexpr Colore in_tensione = Tavolozza(12), a_riposo = Tavolozza(15);

std::int16_t Altezza(float twip) {
  return static_cast<std::int16_t>(twip);
}

void Sposta(std::int16_t& livello, int twip) {
  livello = static_cast<std::int16_t>(
      std::min<int>(livello + twip, std::numeric_limits<std::int16_t>::max()));
}

/// The liquid in a tank; what would lie below the bottom stays as a puddle.
void Mostra_Livello(Figura& liquido, std::int16_t fondo, std::int16_t& livello) {
  liquido.Top = static_cast<float>(fondo - livello);
  if (livello < 0) livello = pozza;
  liquido.Height = static_cast<float>(livello);
}

}  // namespace

Ctr_Level0::Ctr_Level0(Orologio& orologio)
    : Impianto(figure, "1111110100010000", Invio::Doppio),
      fondo_vasca_(Altezza(Disegno["linR1"].Top)),
      fondo_serbatoio_(Altezza(Disegno["shSerb"].Top + Disegno["shSerb"].Height)),
      livello_vasca_(Altezza(shL1.Height)),
      livello_serbatoio_(Altezza(shL2.Height)),
      timEV1_(orologio, intervallo,
              [this] {
                Sposta(livello_vasca_, carico);
                Aggiorna_Vasca();
              }),
      timEV2_(orologio, intervallo,
              [this] {
                if (serbatoio_vuoto_) return;
                Sposta(livello_serbatoio_, -scarico);
                Aggiorna_Serbatoio();
              }),
      timP1_(orologio, intervallo, [this] { Pompa(); }) {
  Disegno["imgSpruzzo"].Visible = false;
  Disegno["spruzzo"].Visible = false;
  for (const Riga_Micro* micro : {&SL1, &SL2, &SL3, &SL4, &SL5}) {
    Disegno[micro->Spia].FillColor = spenta;
    Disegno[micro->Raggi].Visible = false;
  }
  Monta(commutatori);
  Monta(pulsanti);
  // The contact shows a trip for as long as it lasts, whatever the pump shows.
  Figura& imgP1 = Disegno["imgP1"];
  imgP1.Clic = [this, scatta = imgP1.Clic] {
    scatta();
    Disegno["imgFR"].Picture = Ingresso(FR1) == '0' ? "aperto" : "chiuso";
  };
}

void Ctr_Level0::Applica_Uscite() {
  for (int uscita = 1; uscita <= 3; ++uscita) {
    if (!Uscita_Cambiata(uscita)) continue;
    const bool eccitata = Uscita(uscita) == "1";
    if (uscita == 1) Comanda_YV1(eccitata);
    if (uscita == 2) Comanda_KM1(eccitata);
    if (uscita == 3) Comanda_YV2(eccitata);
  }
  for (const Riga_Lampada& lampada : lampade)
    if (Uscita_Cambiata(lampada.Uscita)) Impianto::Mostra(lampada, Uscita(lampada.Uscita));
}

void Ctr_Level0::Comanda_YV1(bool aperta) {
  timEV1_.Enabled(aperta);
  Disegno["imgV1"].Picture = aperta ? "imgEVON" : "imgEVOF";
  Disegno["shV1"].FillColor = aperta ? in_tensione : a_riposo;
  Disegno["imgSpruzzo"].Visible = aperta;
}

void Ctr_Level0::Comanda_KM1(bool accesa_ora) {
  pompa_on_ = accesa_ora;
  timP1_.Enabled(accesa_ora);
  Disegno["imgP1"].Picture = accesa_ora ? "imgMON" : "imgMOF";
  Mostra_Tubi();
}

void Ctr_Level0::Comanda_YV2(bool aperta) {
  scarico_on_ = aperta;
  timEV2_.Enabled(aperta);
  shV3.FillColor = aperta ? in_tensione : a_riposo;
  Mostra_Scarico();
}

// Run dry, the pump turns and moves nothing.
void Ctr_Level0::Pompa() {
  if (vasca_vuota_) return;
  Sposta(livello_vasca_, -pompata);
  Sposta(livello_serbatoio_, pompata);
  Aggiorna_Vasca();
  Aggiorna_Serbatoio();
}

// A switch is operated by a level strictly beyond its limit. Between the two limits it stays as it
// was.
void Ctr_Level0::Micro(const Riga_Micro& micro, bool azionato) {
  Ingresso(micro.Ingresso, azionato ? '0' : '1');
  Disegno[micro.Spia].FillColor = azionato ? accesa : spenta;
  Disegno[micro.Raggi].Visible = azionato;
}

void Ctr_Level0::Aggiorna_Vasca() {
  Mostra_Livello(shL1, fondo_vasca_, livello_vasca_);
  if (livello_vasca_ > max_vasca.Azionato || livello_vasca_ < max_vasca.Riposo)
    Micro(SL1, livello_vasca_ > max_vasca.Azionato);
  if (livello_vasca_ < min_vasca.Azionato || livello_vasca_ > min_vasca.Riposo) {
    vasca_vuota_ = livello_vasca_ < min_vasca.Azionato ? -1 : 0;
    Mostra_Tubi();
    Micro(SL2, vasca_vuota_ != 0);
  }
  Invia();
}

void Ctr_Level0::Aggiorna_Serbatoio() {
  Mostra_Livello(shL2, fondo_serbatoio_, livello_serbatoio_);
  Micro(SL4, livello_serbatoio_ > medio_serbatoio);
  if (livello_serbatoio_ > max_serbatoio.Azionato || livello_serbatoio_ < max_serbatoio.Riposo)
    Micro(SL5, livello_serbatoio_ > max_serbatoio.Azionato);
  if (livello_serbatoio_ < min_serbatoio.Azionato || livello_serbatoio_ > min_serbatoio.Riposo) {
    serbatoio_vuoto_ = livello_serbatoio_ < min_serbatoio.Azionato ? -1 : 0;
    Mostra_Scarico();
    Micro(SL3, serbatoio_vuoto_ != 0);
  }
  Invia();
}

void Ctr_Level0::Mostra_Tubi() {
  const bool scorre = pompa_on_ && !vasca_vuota_;
  Disegno["imgTubi"].Picture = scorre ? "imgTON" : "imgTOF";
  Disegno["spruzzo"].Visible = scorre;
}

void Ctr_Level0::Mostra_Scarico() {
  Disegno["imgV3"].Picture = !scarico_on_ ? "imgEVOF" : serbatoio_vuoto_ ? "imgEVVU" : "imgEVON";
}

}  // namespace tavorno
