// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/parts.h"
#include "plants/scene.h"

// Where the parts of the axis stand, in the order in which they are drawn.
namespace tavorno::asse {

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, {left, top, width, height}, looks at first
    {"ImgRiga", {1310,  210, 6260, 240}},
    {"linM",    { 438, 1005,  264, 465}},
    {"filoTP",  {5040, 1470,  435, 435}, {.Morsetti = "AIW0"}},
    {"filoSET", {5040, 2375,   66,  60}, {.Morsetti = "AIW2"}},
    {"filoIST", {5040, 2890,   66,  60}, {.Morsetti = "AIW4"}},
    {"filoVC",  {2880, 2070,  300, 120}, {.Morsetti = "AQW0"}},
    {"ShPerno", {1140,  705, 6690, 150}, {.Picture = "filetto_4"}},
    {"imgFCI",  {1050, 1020,  300, 360},
     {.Picture = "riposo", .ToolTip = "Click per simulare il fuori corsa indietro (SQ1), I0.5"}},
    {"imgFCA",  {7530, 1020,  300, 360},
     {.Picture = "riposo", .ToolTip = "Click per simulare il fuori corsa avanti (SQ2), I0.6"}},
    {"shI",     {1380, 1185,  120, 120}},
    {"shA",     {7380, 1185,  120, 120}},
    {"shC",     {1320,  570,  360, 450}},
    {"ShIndP",  {1440,  450,  120, 120}, {.Morsetti = "AIW0"}},
    {"shRif",   {4380,   90,  120, 120}},

    {"shAP",    {2730, 1620,  150, 150}},
    {"imgL0",   { 300, 1890,  480, 480},
     {.Picture = Lampada_Spenta, .ToolTip = "Alimentazione di potenza (AC), Q0.2"}},
    {"imgL2",   { 960, 1890,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Marcia avanti (MA), Q0.0"}},
    {"imgL1",   {1620, 1890,  480, 480}, {.Picture = Lampada_Spenta, .ToolTip = "Marcia indietro (MI), Q0.1"}},
    {"EtVc",    {2280, 2010,  600, 240}, {.Morsetti = "AQW0"}},
    {"cmdV2",   { 480, 2820,  960, 210},
     {.Picture = "rilasciato", .ToolTip = "Muove l'asse indietro senza il PLC, finché premuto"}},
    {"cmdV1",   {1620, 2820,  960, 210},
     {.Picture = "rilasciato", .ToolTip = "Muove l'asse avanti senza il PLC, finché premuto"}},

    {"EtPos",   {4440, 1770,  600, 240}, {.Morsetti = "AIW0"}},
    {"EtRif",   {4440, 2285,  600, 240}, {.Morsetti = "AIW2"}},
    {"UpD1",    {5100, 2240,  270, 330}, {.ToolTip = "Riferimento (AIW2): da 0 a 10 V a passi di 0,1 V"}},
    {"EtIst",   {4440, 2800,  600, 240}, {.Morsetti = "AIW4"}},
    {"UpD2",    {5100, 2755,  270, 330}, {.ToolTip = "Isteresi (AIW4): da 0 a 0,1 V a passi di 0,001 V"}},

    {"imgP(0)", {5880, 1755,  420, 420}, {.Picture = "imgVOFF", .ToolTip = "Start controllo, I0.0"}},
    {"imgP(1)", {6480, 1755,  420, 420}, {.Picture = "imgROFF", .ToolTip = "Stop controllo, I0.1"}},
    {"imgP(2)", {7080, 1755,  420, 420}, {.Picture = "imgBOFF", .ToolTip = "Avanti manuale (SB1), I0.2"}},
    {"imgP(3)", {7680, 1755,  420, 420}, {.Picture = "imgBOFF", .ToolTip = "Indietro manuale (SB2), I0.3"}},
    {"imgCom",  {8280, 1755,  420, 420},
     {.Picture = "imgCS", .ToolTip = "Selettore automatico/manuale (SB3), I0.4"}},
    {"imgL(0)", {5850, 2664,  420, 420}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada (HL1), Q0.3"}},
    {"imgL(1)", {6345, 2664,  420, 420}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu (HL2), Q0.4"}},
    {"imgL(2)", {6840, 2664,  420, 420}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde (HL3), Q0.5"}},
    {"imgL(3)", {7335, 2664,  420, 420}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde (HL4), Q0.6"}},
    {"imgL(4)", {7830, 2664,  420, 420}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu (HL5), Q0.7"}},
    {"imgL(5)", {8325, 2664,  420, 420}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada rossa (HL6), Q1.0"}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgP(0)", .Posizione = I(0, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgP(1)", .Posizione = I(0, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
    {.Nome = "imgP(2)", .Posizione = I(0, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgP(3)", .Posizione = I(0, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
};

constexpr Riga_Commutatore selettori[] = {
    {.Nome = "imgCom", .Posizione = I(0, 4), .Azionato = '1', .Riposo = '0', .Picture_Azionato = "imgCD",
     .Picture_Riposo = "imgCS"},
};

constexpr Riga_Lampada lampade[] = {
    {"imgL(0)", Q(0, 3), "imgLN"},
    {"imgL(1)", Q(0, 4), "imgLB"},
    {"imgL(2)", Q(0, 5), "imgLV"},
    {"imgL(3)", Q(0, 6), "imgLV"},
    {"imgL(4)", Q(0, 7), "imgLB"},
    {"imgL(5)", Q(1, 0), "imgLR"},
};
// clang-format on

}  // namespace tavorno::asse
