// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/parts.h"
#include "plants/scene.h"

// Where the parts of the gate stand, in the order in which they are drawn.
namespace tavorno::cancello {

constexpr const char* nota_termico = "Click per simulare l'intervento del relè termico (FR), I0.5";

constexpr const char* chiave_a_riposo = "imgC0";

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, {left, top, width, height}, looks at first
    {"shP1",     { 840, 1320,  435, 930}},
    {"ShP2",     {3600, 1320,  435, 930}},
    {"picP",     {1155, 1440,  105, 780},
     {.Picture = "riposo", .ToolTip = "Costa pneumatica di sicurezza (SQ3), I0.6"}},
    {"shL",      { 960, 1140,  180, 180}, {.Morsetti = "Q0.1"}},
    {"imgSir",   { 810,  990,  480, 360}, {.Morsetti = "Q0.1"}},
    {"Label2",   {1740, 1230, 1440, 210}},
    {"shKM1",    {2340,  720, 1860, 345}},
    {"shKM2",    {3840,  720,  375, 345}},
    {"nodo",     {2340,  720, 2930, 345}},
    {"imgKm1",   {1800,  480,  930, 240}, {.Picture = "imgKMOF", .Morsetti = "I0.3 Q0.2"}},
    {"imgKM2",   {3300,  480,  930, 240}, {.Picture = "imgKMOF", .Morsetti = "I0.4 Q0.3"}},
    {"imgM",     {5220,  705,  480, 480}, {.Picture = "imgMOF", .ToolTip = nota_termico}},
    {"imgFR",    {4695,  765,  195, 375}, {.Picture = "ImgRTOF", .Morsetti = "I0.5"}},
    {"shC",      {1290, 2250,  180, 240}, {.Picture = "operato", .Morsetti = "I0.2"}},
    {"shA",      {5760, 2250,  180, 240}, {.Picture = "riposo", .Morsetti = "I0.0"}},

    {"etCom(1)", {6270,  315,  240, 330}, {.ToolTip = "Selettore a chiave in posizione 1 (SA_1), I0.7"}},
    {"imgCom",   {6570,  210,  540, 540}, {.Picture = chiave_a_riposo}},
    {"etCom(2)", {7170,  315,  240, 330}, {.ToolTip = "Selettore a chiave in posizione 2 (SA_2), I1.0"}},
    {"imgSB(2)", {8010,  270,  420, 420}, {.Picture = "imgVOFF", .ToolTip = "Pulsante (SB1), I1.1"}},
    {"imgL",     {6450, 1140,  180, 180}, {.Picture = "imgLOF"}},
    {"imgSB(0)", {6780, 1020,  420, 420}, {.Picture = "imgBOFF", .ToolTip = "Telecomando (SB2), I1.2"}},
    {"imgSB(1)", {8010, 1020,  420, 420},
     {.Picture = "imgROFF", .ToolTip = "Pulsante normalmente chiuso (SB3), I1.3"}},
    {"imgHL1",   {6300, 1785,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde (HL1), Q0.4"}},
    {"imgHL2",   {7230, 1785,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada gialla (HL2), Q0.5"}},
    {"imgHL3",   {8160, 1785,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu (HL3), Q0.6"}},

    // In the passage behind the gate, on the ground.
    {"linFC",    {1500, 2085, 1920,  30}, {.Morsetti = "I0.1 Q0.0"}},
    {"imgLFC",   {3390, 2010,  150, 225}, {.Picture = "imgLFCOF", .Morsetti = "I0.1 Q0.0"}},
    {"picFC",    {2340, 1680,  360, 555},
     {.Picture = "libera", .ToolTip = "Ostacolo davanti alla fotocellula (B), I0.1"}},
    {"imgC",     {1260, 1500, 2400, 720}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgSB(1)", .Posizione = I(1, 3), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
    {.Nome = "imgSB(2)", .Posizione = I(1, 1), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
};

/// A side of the key selector, which springs back.
struct Riga_Selettore {
  const char* Nome;
  Morsetto_I Posizione;
  const char* Picture;
};

constexpr Riga_Selettore selettore[] = {
    {"etCom(1)", I(0, 7), "imgC1"},
    {"etCom(2)", I(1, 0), "imgC2"},
};

constexpr Riga_Lampada lampade[] = {
    {"imgHL1", Q(0, 4), "imgLV"},
    {"imgHL2", Q(0, 5), "imgLG"},
    {"imgHL3", Q(0, 6), "imgLB"},
};
// clang-format on

}  // namespace tavorno::cancello
