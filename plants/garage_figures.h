// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/parts.h"
#include "plants/scene.h"

// Where the parts of the garage stand, in the order in which they are drawn. The beams and the
// lines of the sensors lie where a car of this length comes and goes at the positions of physics.
namespace tavorno::garage {

constexpr const char* uscire = "Click per far uscire l'auto";
constexpr const char* scatto = "Click per simulare intervento";

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, {left, top, width, height}, looks at first
    {"shI",       { 840, 4440,  780, 660}},
    {"shU",       {3480, 1440,  780, 660}},

    {"imgM(1)",   { 300, 1380,  540, 540}, {.ToolTip = uscire}},
    {"imgM(2)",   {1140, 1380,  540, 540}, {.ToolTip = uscire}},
    {"imgM(3)",   {1920, 1380,  540, 540}, {.ToolTip = uscire}},
    {"imgM(4)",   {2760, 3300,  540, 540}, {.ToolTip = uscire}},
    {"imgM(5)",   {3600, 3300,  540, 540}, {.ToolTip = uscire}},
    {"imgM(6)",   {4440, 3300,  540, 540}, {.ToolTip = uscire}},
    {"imgM(0)",   { 960, 4500,  540, 540}},
    {"imgMOut",   {3600, 1500,  540, 540}},

    {"shS0",      { 660, 4230, 1140,  60}},
    {"shS1",      {2940, 1230, 1500,  60}},
    {"shSQ2",     { 510, 4200,  120, 120}, {.Picture = "raggiunto", .Morsetti = "I0.2"}},
    {"shSQ3",     {2970, 4200,  120, 120}, {.Picture = "libero", .Morsetti = "I0.3"}},
    {"shSQ5",     {4470, 1200,  120, 120}, {.Picture = "raggiunto", .Morsetti = "I1.2"}},
    {"shSQ6",     {1590, 1200,  120, 120}, {.Picture = "libero", .Morsetti = "I1.3"}},
    {"linFC(0)",  { 690, 3345, 1080,  30}, {.Morsetti = "I0.4"}},
    {"linFC(1)",  {3330,  285, 1080,  30}, {.Morsetti = "I1.4"}},
    {"imgLTI",    {1860, 4440,  240, 240}, {.Picture = Lampada_Spenta, .Morsetti = "I0.1"}},
    {"imgLFC0",   {2010, 3240,  240, 240}, {.Picture = Lampada_Spenta, .Morsetti = "I0.4"}},
    {"imgLTU",    {4500, 1740,  240, 240}, {.Picture = Lampada_Spenta, .Morsetti = "I1.1"}},
    {"imgLFCU",   {4650,  180,  240, 240}, {.Picture = Lampada_Spenta, .Morsetti = "I1.4"}},
    {"imgLSI(1)", { 405, 4590,  240, 240},
     {.Picture = Lampada_Spenta, .ToolTip = "Rossa ingresso (HL2), Q0.3"}},
    {"imgLSI(0)", { 405, 4860,  240, 240},
     {.Picture = Lampada_Spenta, .ToolTip = "Verde ingresso (HL1), Q0.2"}},
    {"imgLSU(1)", {4515,  570,  240, 240}, {.Picture = Lampada_Spenta, .ToolTip = "Rossa uscita (HL4), Q0.5"}},
    {"imgLSU(0)", {4515,  840,  240, 240}, {.Picture = Lampada_Spenta, .ToolTip = "Verde uscita (HL3), Q0.4"}},
    {"shHL5",     {2340, 4440,  240, 240},
     {.Picture = Lampada_Spenta, .ToolTip = "Sbarra ingresso in movimento (HL5), Q1.0"}},
    {"shHL6",     {2640,  840,  240, 240},
     {.Picture = Lampada_Spenta, .ToolTip = "Sbarra uscita in movimento (HL6), Q1.1"}},

    {"etPosti",   {1080,  360,  540, 240}},
    {"EtInf",     {1080,  690, 1200, 240}},

    {"imgMI",     {5480,  618,  810, 480}, {.Picture = "imgMOF", .ToolTip = scatto}},
    {"imgFR(0)",  {6360,  780,  240, 240}, {.Picture = "chiuso", .Morsetti = "I0.7"}},
    {"shKM(0)",   {5580, 1500,  480, 360}, {.Morsetti = "Q0.0"}},
    {"imgKMa(0)", {6360, 1560,  240, 240}, {.Picture = "imgAuxA", .Morsetti = "I0.5"}},
    {"shKM(1)",   {5580, 2220,  480, 360}, {.Morsetti = "Q0.1"}},
    {"imgKMa(1)", {6360, 2280,  240, 240}, {.Picture = "imgAuxA", .Morsetti = "I0.6"}},
    {"imgPSB(0)", {5580, 3060,  540, 540},
     {.Picture = "imgNOFF", .ToolTip = "Veicolo in ingresso (SB1), I0.0"}},
    {"imgMU",     {7280,  618,  810, 480}, {.Picture = "imgMOF", .ToolTip = scatto}},
    {"imgFR(1)",  {8160,  780,  240, 240}, {.Picture = "chiuso", .Morsetti = "I1.7"}},
    {"shKM(3)",   {7380, 1500,  480, 360}, {.Morsetti = "Q0.6"}},
    {"imgKMa(3)", {8160, 1560,  240, 240}, {.Picture = "imgAuxA", .Morsetti = "I1.5"}},
    {"shKM(2)",   {7380, 2220,  480, 360}, {.Morsetti = "Q0.7"}},
    {"imgKMa(2)", {8160, 2280,  240, 240}, {.Picture = "imgAuxA", .Morsetti = "I1.6"}},
    {"imgPSB(1)", {7380, 3060,  540, 540}, {.Picture = "imgNOFF", .ToolTip = "Uscita veicolo (SB2), I1.0"}},

    {"cmdIng",    {5580, 4380, 1500, 480}, {.ToolTip = "Porta un'auto davanti alla sbarra di ingresso"}},
    {"cmdReset",  {7380, 4380, 1320, 480}, {.ToolTip = "Vuota il garage e chiude le sbarre"}},

    {"etI(0)",    {6240, 3240,  360, 180}},
    {"etI(1)",    {1800, 4890,  360, 180}},
    {"etI(2)",    { 120, 4350,  360, 180}},
    {"etI(3)",    {3120, 4350,  360, 180}},
    {"etI(4)",    {1950, 3660,  360, 180}},
    {"etI(5)",    {6660, 1590,  360, 180}},
    {"etI(6)",    {6660, 2310,  360, 180}},
    {"etI(7)",    {6660,  810,  360, 180}},
    {"etI(8)",    {8040, 3240,  360, 180}},
    {"etI(9)",    {4440, 2160,  360, 180}},
    {"etI(10)",   {4620, 1110,  360, 180}},
    {"etI(11)",   {1200, 1110,  360, 180}},
    {"etI(12)",   {4920,  300,  360, 180}},
    {"etI(13)",   {8460, 1590,  360, 180}},
    {"etI(14)",   {8460, 2310,  360, 180}},
    {"etI(15)",   {8460,  810,  360, 180}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgPSB(0)", .Posizione = I(0, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgNON",
     .Picture_Su = "imgNOFF"},
    {.Nome = "imgPSB(1)", .Posizione = I(1, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgNON",
     .Picture_Su = "imgNOFF"},
};

constexpr Riga_Lampada lampade[] = {
    {"imgLSI(0)", Q(0, 2), "imgLV"},
    {"imgLSI(1)", Q(0, 3), "imgLR"},
    {"imgLSU(0)", Q(0, 4), "imgLV"},
    {"imgLSU(1)", Q(0, 5), "imgLR"},
};

/// Lamps that are a coloured shape.
struct Riga_Lampeggiante {
  const char* Nome;
  Morsetto_Q Uscita;
};
constexpr Riga_Lampeggiante lampeggianti[] = {{"shHL5", Q(1, 0)}, {"shHL6", Q(1, 1)}};
// clang-format on

}  // namespace tavorno::garage
