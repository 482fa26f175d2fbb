// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/star_delta.h"

namespace tavorno {

namespace {

constexpr const char* forza = "DClick per forzare cambiamento di Stato";
constexpr const char* interviene = "Click per simulare intervento";

// clang-format off
constexpr Riga_Figura figure_st[] = {
    // name, {left, top, width, height}, looks at first
    {"lin(0)",   { 765, 1130,  390,  950}},
    {"lin(1)",   {1965, 1130,  390, 1150}},
    {"lin(2)",   {1965, 1130, 1590, 1150}},
    {"nodo",     {1245, 1130, 2310, 1150}},
    {"KM(0)",    { 240,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.0"}},
    {"KM(1)",    {1440,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.2"}},
    {"KM(2)",    {2640,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.1"}},
    {"imgRt",    { 660, 1470,  600,  300}, {.Picture = "ImgRTOF", .ToolTip = interviene, .Morsetti = "I0.5"}},
    {"imgM",     { 330, 2070, 1320,  780}, {.Picture = "imgMOFF"}},
    {"imgS",     {1020, 2385,  300,  300}},
    {"imgT",     {1020, 2385,  300,  300}},
    {"KMa(0)",   {5862,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM1, I0.2"}},
    {"KMa(1)",   {6498,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM3, I0.3"}},
    {"KMa(2)",   {7134,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM2, I0.4"}},
    {"imgStop",  {4440, 1440,  540,  540}, {.Picture = "imgPGr0", .ToolTip = "Stop, I0.0"}},
    {"imgStart", {6120, 1440,  540,  540}, {.Picture = "imgVOFF", .ToolTip = "Start, I0.1"}},
    {"ImgEm",    {7800, 1440,  540,  540}, {.Picture = "imgROFF", .ToolTip = "Emergenza, I0.6"}},
    {"imgLS",    {4470, 2325,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu, Q0.3"}},
    {"imgLSt",   {5590, 2325,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde, Q0.4"}},
    {"imgLTri",  {6710, 2325,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde, Q0.5"}},
    {"imgLRt",   {7830, 2325,  480,  480}, {.Picture = Lampada_Spenta, .ToolTip = "Lampada gialla, Q0.6"}},
};

constexpr Riga_Contattore contattori_st[] = {
    {.Nome = "KM(0)", .Contatto = "KMa(0)", .Filo = "lin(0)", .Uscita = Q(0, 0), .Ingresso = I(0, 2)},
    {.Nome = "KM(1)", .Contatto = "KMa(1)", .Filo = "lin(1)", .Uscita = Q(0, 2), .Ingresso = I(0, 3)},
    {.Nome = "KM(2)", .Contatto = "KMa(2)", .Filo = "lin(2)", .Uscita = Q(0, 1), .Ingresso = I(0, 4)},
};

constexpr Riga_Lampada lampade_st[] = {
    {"imgLSt", Q(0, 4), "imgLV"},
    {"imgLTri", Q(0, 5), "imgLV"},
    {"imgLS", Q(0, 3), "imgLB"},
    {"imgLRt", Q(0, 6), "imgLG"},
};

constexpr Riga_Pulsante pulsanti_st[] = {
    {.Nome = "imgStop", .Posizione = I(0, 0), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgStart", .Posizione = I(0, 1), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "ImgEm", .Posizione = I(0, 6), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
};

constexpr Riga_Commutatore termici_st[] = {
    {.Nome = "imgRt", .Posizione = I(0, 5), .Azionato = '0', .Riposo = '1', .Picture_Azionato = "imgRTON",
     .Picture_Riposo = "ImgRTOF"},
};

constexpr Riga_Figura figure_st2[] = {
    {"lin(0)",   { 705, 1130,  390, 1010}},
    {"lin(1)",   {1725, 1130,  390, 1210}},
    {"lin(2)",   {1725, 1130, 1410, 1210}},
    {"lin(3)",   {3765, 1130,  390, 1010}},
    {"nodo",     {1185, 1130, 1950, 1210}},
    {"KM(0)",    { 180,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.0"}},
    {"KM(1)",    {1200,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.2"}},
    {"KM(2)",    {2220,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.1"}},
    {"KM(3)",    {3240,  840,  930,  360}, {.Picture = "imgKMOF", .ToolTip = forza, .Morsetti = "Q0.3"}},
    {"imgRt",    { 600, 1470,  600,  300}, {.Picture = "ImgRTOF", .ToolTip = interviene, .Morsetti = "I1.0"}},
    {"imgRt2",   {3660, 1470,  600,  300}, {.Picture = "ImgRTOF", .ToolTip = interviene, .Morsetti = "I1.1"}},
    {"imgM",     { 270, 2130, 1320,  780}, {.Picture = "imgMOFF"}},
    {"imgS",     { 960, 2445,  300,  300}},
    {"imgT",     { 960, 2445,  300,  300}},
    {"imgM2",    {3330, 2130, 1320,  780}, {.Picture = "imgM1OFF"}},
    {"KMa(0)",   {5964,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM1, I0.2"}},
    {"KMa(1)",   {7404,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM3, I0.6"}},
    {"KMa(2)",   {7764,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM2, I0.7"}},
    {"KMa(3)",   {6684,  405,  300,  360}, {.Picture = "imgAuxA", .ToolTip = "Contatto ausiliario KM4, I0.4"}},
    {"imgStop",  {5040, 1470,  540,  540}, {.Picture = "imgPGr0", .ToolTip = "Arresto, I0.0"}},
    {"imgStart", {6040, 1470,  540,  540}, {.Picture = "imgVOFF", .ToolTip = "Marcia motore M1, I0.1"}},
    {"imgSM2",   {7040, 1470,  540,  540}, {.Picture = "imgVOFF", .ToolTip = "Marcia motore M2, I0.3"}},
    {"ImgEm",    {8040, 1470,  540,  540}, {.Picture = "imgROFF", .ToolTip = "Emergenza, I0.5"}},
    {"imgLS1",   {4920, 2325,  480,  480},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu motore M1, Q0.4"}},
    {"imgLM1",   {5580, 2325,  480,  480},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde motore M1, Q0.5"}},
    {"imgLS2",   {6240, 2325,  480,  480},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada blu motore M2, Q0.6"}},
    {"imgLM2",   {6900, 2325,  480,  480},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada verde motore M2, Q0.7"}},
    {"imgLRt1",  {7560, 2325,  480,  480},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada gialla motore M1, Q1.0"}},
    {"imgLRt2",  {8220, 2325,  480,  480},
     {.Picture = Lampada_Spenta, .ToolTip = "Lampada gialla motore M2, Q1.1"}},
};

constexpr Riga_Contattore contattori_st2[] = {
    {.Nome = "KM(0)", .Contatto = "KMa(0)", .Filo = "lin(0)", .Uscita = Q(0, 0), .Ingresso = I(0, 2)},
    {.Nome = "KM(1)", .Contatto = "KMa(1)", .Filo = "lin(1)", .Uscita = Q(0, 2), .Ingresso = I(0, 6)},
    {.Nome = "KM(2)", .Contatto = "KMa(2)", .Filo = "lin(2)", .Uscita = Q(0, 1), .Ingresso = I(0, 7)},
    {.Nome = "KM(3)", .Contatto = "KMa(3)", .Filo = "lin(3)", .Uscita = Q(0, 3), .Ingresso = I(0, 4)},
};

constexpr Riga_Lampada lampade_st2[] = {
    {"imgLM2", Q(0, 7), "imgLV"},
    {"imgLS2", Q(0, 6), "imgLB"},
    {"imgLRt2", Q(1, 1), "imgLG"},
    {"imgLM1", Q(0, 5), "imgLV"},
    {"imgLS1", Q(0, 4), "imgLB"},
    {"imgLRt1", Q(1, 0), "imgLG"},
};

constexpr Riga_Pulsante pulsanti_st2[] = {
    {.Nome = "imgStop", .Posizione = I(0, 0), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgStart", .Posizione = I(0, 1), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgSM2", .Posizione = I(0, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "ImgEm", .Posizione = I(0, 5), .Giu = '0', .Su = '1', .Picture_Giu = "imgRON",
     .Picture_Su = "imgROFF"},
};

constexpr Riga_Commutatore termici_st2[] = {
    {.Nome = "imgRt", .Posizione = I(1, 0), .Azionato = '0', .Riposo = '1', .Picture_Azionato = "imgRTON",
     .Picture_Riposo = "ImgRTOF"},
    {.Nome = "imgRt2", .Posizione = I(1, 1), .Azionato = '0', .Riposo = '1', .Picture_Azionato = "imgRTON",
     .Picture_Riposo = "ImgRTOF"},
};
// clang-format on

}  // namespace

const Schema_Avviatore Schema_ST = {.Stato_I = "1000011000000000",
                                    .Figure = figure_st,
                                    .Contattori = contattori_st,
                                    .Lampade = lampade_st,
                                    .Pulsanti = pulsanti_st,
                                    .Termici = termici_st};
const Schema_Avviatore Schema_ST2 = {.Stato_I = "1000010011000000",
                                     .Figure = figure_st2,
                                     .Contattori = contattori_st2,
                                     .Lampade = lampade_st2,
                                     .Pulsanti = pulsanti_st2,
                                     .Termici = termici_st2};

}  // namespace tavorno
