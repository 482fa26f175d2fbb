// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/crossing.h"

namespace tavorno {

namespace {

// clang-format off
constexpr Riga_Figura figure_semaforo[] = {
    // name, {left, top, width, height}, looks at first
    {"imgR",     {6360,  180, 480, 480}, {.Picture = "imgR0", .ToolTip = "Lampada rossa veicoli (HL1), Q0.2"}},
    {"imgG",     {6360,  690, 480, 480}, {.Picture = "imgG0", .ToolTip = "Lampada gialla veicoli (HL2), Q0.3"}},
    {"imgV",     {6360, 1200, 480, 480}, {.Picture = "imgV0", .ToolTip = "Lampada verde veicoli (HL3), Q0.4"}},
    {"imgP1",    {7980,  240, 600, 600},
     {.Picture = "imgP(1)", .ToolTip = "Lampada rossa pedonale (HL4), Q0.0"}},
    {"imgP2",    {7980,  960, 600, 600},
     {.Picture = "imgP(3)", .ToolTip = "Lampada verde pedonale (HL5), Q0.1"}},
    {"imgSB(0)", {4020,   60, 360, 360}, {.Picture = "imgROFF", .ToolTip = "Prenotazione pedone (SB2), I0.0"}},
    {"imgSB(1)", {1680, 1440, 360, 360}, {.Picture = "imgROFF", .ToolTip = "Prenotazione pedone (SB1), I0.1"}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgSB(0)", .Posizione = I(0, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
    {.Nome = "imgSB(1)", .Posizione = I(0, 1), .Giu = '1', .Su = '0', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
};

struct Riga_Luce {
  const char* Nome;
  Morsetto_Q Uscita;
  const char* Accesa;
  const char* Spenta;
};

constexpr Riga_Luce luci[] = {
    {"imgP1", Q(0, 0), "imgP(0)", "imgP(1)"},
    {"imgP2", Q(0, 1), "imgP(2)", "imgP(3)"},
    {"imgR", Q(0, 2), "imgR1",   "imgR0"},
    {"imgG", Q(0, 3), "imgG1",   "imgG0"},
    {"imgV", Q(0, 4), "imgV1",   "imgV0"},
};
// clang-format on

}  // namespace

ctr_Semaf1::ctr_Semaf1() : Impianto(figure_semaforo, "0000000000000000", Invio::Doppio) {
  Monta(pulsanti);
}

void ctr_Semaf1::Applica_Uscite() {
  for (const Riga_Luce& luce : luci) {
    if (Uscita_Cambiata(luce.Uscita))
      Disegno[luce.Nome].Picture = Uscita(luce.Uscita) == "1" ? luce.Accesa : luce.Spenta;
  }
}

}  // namespace tavorno
