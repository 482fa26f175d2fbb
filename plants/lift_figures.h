// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/parts.h"
#include "plants/scene.h"

// Where the parts of the lift stand, in the order in which they are drawn.
namespace tavorno::ascensore {

constexpr const char* pulsante_su = "imgRil";    // a key of the service box, at rest
constexpr const char* pulsante_giu = "imgPrem";  // and down

// clang-format off
constexpr Riga_Figura figure[] = {
    // name, {left, top, width, height}, looks at first
    {"lin2",       {1200,  780,   15,  240}},
    {"lin1",       {2565,  780,   15, 3960}},
    {"imgP",       {2400, 4740,  360,  660}},
    {"imgC",       { 660, 1020, 1095,  810}, {.Morsetti = "AIW2"}},
    {"linFC",      { 720, 1560,  975,   30}, {.Morsetti = "I1.6"}},
    {"ShP(0)",     { 660, 1140,  555,  660}},
    {"ShP(1)",     {1200, 1140,  555,  660}},
    {"imgLFC",     {1050, 1320,  315,  480},
     {.Picture = "libera", .ToolTip = "Persona tra le porte (fotocellula B1), I1.6"}},
    {"imgM",       {1080,  180,  660,  540}, {.Picture = "imgMOF"}},
    {"imgSu",      {1860,  390,  210,  300}},
    {"imgGiu",     {2100,  390,  210,  300}},

    {"extracorsa", { 690, 2850, 1620,  300}},
    {"imgSC(0)",   {2160, 4560,  180,  120}, {.Picture = "spento"}},
    {"imgSC(1)",   {2160, 3360,  180,  120}, {.Picture = "spento"}},
    {"imgSC(2)",   {2160, 2160,  180,  120}, {.Picture = "spento"}},
    {"imgSC(3)",   {2160,  980,  180,  120}, {.Picture = "acceso"}},

    {"EtP(0)",     {3000, 4740,  300,  300}},
    {"EtP(1)",     {3000, 3540,  300,  300}},
    {"EtP(2)",     {3000, 2340,  300,  300}},
    {"EtP(3)",     {3000, 1160,  300,  300}},
    {"shFcP(0)",   {3060, 5100,  180,  120}, {.Morsetti = "I0.0"}},
    {"shFcP(1)",   {3060, 3900,  180,  120}, {.Morsetti = "I0.1"}},
    {"shFcP(2)",   {3060, 2700,  180,  120}, {.Morsetti = "I0.2"}},
    {"shFcP(3)",   {3060, 1520,  180,  120}, {.Morsetti = "I0.3"}},
    {"imgPP(0)",   {3480, 1220,  360,  360},
     {.Picture = "imgBOFF", .ToolTip = "Chiamata terzo piano (SB4), I1.0"}},
    {"imgPP(1)",   {3480, 2400,  360,  360},
     {.Picture = "imgBOFF", .ToolTip = "Chiamata secondo piano (SB3), I0.7"}},
    {"imgPP(2)",   {3480, 3600,  360,  360},
     {.Picture = "imgBOFF", .ToolTip = "Chiamata primo piano (SB2), I0.6"}},
    {"imgPP(3)",   {3480, 4800,  360,  360},
     {.Picture = "imgBOFF", .ToolTip = "Chiamata piano terra (SB1), I0.5"}},
    {"imgLP(0)",   {3960, 4800,  360,  360},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada piano terra (HL1), Q0.4"}},
    {"imgLP(1)",   {3960, 3600,  360,  360},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada primo piano (HL2), Q0.5"}},
    {"imgLP(2)",   {3960, 2400,  360,  360},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada secondo piano (HL3), Q0.6"}},
    {"imgLP(3)",   {3960, 1220,  360,  360},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada terzo piano (HL4), Q0.7"}},

    {"imgPC(4)",   {5100,  540,  420,  420}, {.Picture = "imgROFF", .ToolTip = "Arresto cabina (SB5), I1.1"}},
    {"imgPC(3)",   {5100, 1080,  420,  420},
     {.Picture = "imgBOFF", .ToolTip = "Mandata terzo piano (SB6), I1.2"}},
    {"imgPC(2)",   {5100, 1620,  420,  420},
     {.Picture = "imgBOFF", .ToolTip = "Mandata secondo piano (SB7), I1.3"}},
    {"imgPC(1)",   {5100, 2160,  420,  420},
     {.Picture = "imgBOFF", .ToolTip = "Mandata primo piano (SB8), I1.4"}},
    {"imgPC(0)",   {5100, 2700,  420,  420},
     {.Picture = "imgBOFF", .ToolTip = "Mandata piano terra (SB9), I1.5"}},
    {"imgLC(3)",   {5730, 1080,  420,  420},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada cabina terzo piano (HL5), Q1.0"}},
    {"imgLC(2)",   {5730, 1620,  420,  420},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada cabina secondo piano (HL6), Q1.1"}},
    {"imgLC(1)",   {5730, 2160,  420,  420},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada cabina primo piano (HL7), Q1.2"}},
    {"imgLC(0)",   {5730, 2700,  420,  420},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada cabina piano terra (HL8), Q1.3"}},
    {"imgLOver",   {5100, 3240,  420,  420},
     {.Picture = Lampada_Spenta, .ToolTip = "Sovraccarico cabina (HL9), Q1.4"}},
    {"imgLAlarm",  {5730, 3240,  420,  420},
     {.Picture = Lampada_Spenta, .ToolTip = "Malfunzionamento (HL10), Q1.5"}},

    {"shFcP(4)",   {4860, 4500,  180,  180}, {.Picture = "acceso", .ToolTip = "Porte chiuse (SQ5), I0.4"}},
    {"shFcP(5)",   {4860, 4800,  180,  180}, {.Picture = "spento", .ToolTip = "Porte aperte (SQ6), I1.7"}},
    {"EtPos",      {5640, 5070,  780,  240}, {.Morsetti = "AIW2"}},

    {"Label3",     {6840,  300, 1980,  240}},
    {"imgCom",     {6960,  660,  600,  600},
     {.Picture = "imgCS", .ToolTip = "Selettore SA1: servizio o manutenzione"}},
    {"imgLAl",     {8040,  720,  480,  480}, {.Picture = Lampada_Spenta}},
    {"etIn(1)",    {6840, 1380, 1980,  240}},
    {"etIn(2)",    {6840, 1620, 1980,  240}},
    {"cmdSu",      {6900, 2040,  900,  480},
     {.Picture = pulsante_su, .ToolTip = "Salita a mano, in manutenzione", .Morsetti = "Q0.0"}},
    {"cmdGiu",     {7860, 2040,  900,  480},
     {.Picture = pulsante_su, .ToolTip = "Discesa a mano, in manutenzione", .Morsetti = "Q0.1"}},
    {"cmdOpen",    {6900, 2640,  900,  480},
     {.Picture = pulsante_su, .ToolTip = "Chiude le porte a mano, in manutenzione", .Morsetti = "Q0.2"}},
    {"cmdClose",   {7860, 2640,  900,  480},
     {.Picture = pulsante_su, .ToolTip = "Apre le porte a mano, in manutenzione", .Morsetti = "Q0.3"}},

    {"Label5",     {6840, 3660, 1980,  240}},
    {"EtCC",       {6960, 4080,  900,  360}},
    {"UpD1",       {7980, 3960,  540,  600}, {.ToolTip = "Carico della cabina (T_P), AIW0"}},
};

constexpr Riga_Pulsante pulsanti[] = {
    {.Nome = "imgPP(0)", .Posizione = I(1, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPP(1)", .Posizione = I(0, 7), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPP(2)", .Posizione = I(0, 6), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPP(3)", .Posizione = I(0, 5), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPC(0)", .Posizione = I(1, 5), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPC(1)", .Posizione = I(1, 4), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPC(2)", .Posizione = I(1, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPC(3)", .Posizione = I(1, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgBON",
     .Picture_Su = "imgBOFF"},
    {.Nome = "imgPC(4)", .Posizione = I(1, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
};

constexpr Riga_Lampada lampade[] = {
    {"imgLP(0)", Q(0, 4), "imgLG"},
    {"imgLP(1)", Q(0, 5), "imgLG"},
    {"imgLP(2)", Q(0, 6), "imgLG"},
    {"imgLP(3)", Q(0, 7), "imgLG"},
    {"imgLC(3)", Q(1, 0), "imgLG"},
    {"imgLC(2)", Q(1, 1), "imgLG"},
    {"imgLC(1)", Q(1, 2), "imgLG"},
    {"imgLC(0)", Q(1, 3), "imgLG"},
    {"imgLOver", Q(1, 4), "imgLR"},
    {"imgLAlarm", Q(1, 5), "imgLR"},
};
// clang-format on

}  // namespace tavorno::ascensore
