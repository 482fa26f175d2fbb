// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/pneumatic_figures.h"

#include "plants/parts.h"

namespace tavorno {

namespace {

// clang-format off
// name, left, top, width, height, picture at first, tool tip
//
// linT is the trunk of the air, linP(n) and linM(n) lead to the plus and minus side of cylinder n.

constexpr Riga_Figura figure_04[] = {
    {"linT",     885, 2040,   60,  600},
    {"linP(0)",  390,  840,  390,  900},
    {"linM(0)",  990,  840,  240,  900},
    {"imgPA",    420,  540,  990,  300},
    {"imgV1",    300, 1740,  780,  300, "", "", "Q0.1 Q0.2"},
    {"imgV0",    540, 2640,  540,  270, "imgV0OF", "", "Q0.0"},
    {"imgS",    1356,  360,  180,  270, "imgLON", "Fine corsa a0", "I0.1"},
    {"imgD",    1884,  360,  180,  270, "imgLOF", "Fine corsa a1", "I0.2"},
    {"EtP(0)",   555,  930,  240,  210, "", "Velocità Pistone"},
    {"EtP(1)",   825,  930,  240,  210, "", "Velocità Pistone"},
    {"UpDP(0)",  555, 1140,  240,  360, "", "Velocità Pistone"},
    {"UpDP(1)",  825, 1140,  240,  360, "", "Velocità Pistone"},
    {"CmdV1a",  1380, 1080, 1140,  240, "imgP1(0)", "Comando manuale 1Y1", "Q0.1"},
    {"cmdV1b",  1380, 1380, 1140,  240, "imgP1(3)", "Comando manuale 1Y2", "Q0.2"},
    {"cmdDis",  1590, 2640,  960,  240, "imgP1(0)", "Comando manuale 0Y1", "Q0.0"},
    {"imgCom",  2850,  510,  600,  600, "imgCS", "Selettore aria, I0.0"},
    {"imgSB1",  3630,  510,  600,  600, "imgVOFF", "Pulsante, I0.3"},
    {"imgSB2",  4410,  510,  600,  600, "imgPBOF", "Pulsante, I0.4"},
    {"imgSB3",  5190,  510,  600,  600, "imgPGr0", "Pulsante, I0.5"},
    {"imgSB4",  5970,  510,  600,  600, "imgPBOF", "Pulsante, I0.6"},
    {"ImgEm",   4500, 2760,  600,  600, "imgROFF", "Emergenza esterna, I0.7"},
    {"imgCEM",  5670, 2760,  600,  600, "imgCC", "Contatto di SB5, I0.7"},
    {"imgHL1",  2910, 1695,  480,  480, Lampada_Spenta, "Lampada blu, Q0.3"},
    {"imgHL2",  3690, 1695,  480,  480, Lampada_Spenta, "Lampada HL2, Q0.4"},
};

constexpr Riga_Figura figure_05[] = {
    {"linT",     885, 2040, 2100,  600},
    {"linP(0)",  390,  840,  390,  900},
    {"linM(0)",  990,  840,  240,  900},
    {"linP(1)", 2460,  840,  420,  900},
    {"linM(1)", 3090,  840,  210,  900},
    {"imgPA",    420,  540,  990,  300},
    {"imgP2",   2490,  540,  990,  300},
    {"imgV1",    300, 1740,  780,  300, "", "", "Q0.1 Q0.2"},
    {"imgV2",   2400, 1740,  780,  300, "", "", "Q0.3 Q0.4"},
    {"imgV0",   1980, 2640,  560,  270, "imgV0OF", "", "Q0.0"},
    {"imgS",    1356,  360,  180,  270, "imgLON", "Fine corsa a0", "I0.4"},
    {"imgD",    1884,  360,  180,  270, "imgLOF", "Fine corsa a1", "I0.5"},
    {"imgS2",   3426,  360,  180,  270, "imgLON", "Fine corsa b0", "I0.6"},
    {"imgD2",   3954,  360,  180,  270, "imgLOF", "Fine corsa b1", "I0.7"},
    {"EtP(0)",   555,  930,  240,  210, "", "Regolatore Pressione"},
    {"EtP(1)",   825,  930,  240,  210, "", "Regolatore Pressione"},
    {"UpDP(0)",  555, 1140,  240,  360, "", "Regolatore Pressione"},
    {"UpDP(1)",  825, 1140,  240,  360, "", "Regolatore Pressione"},
    {"EtP(2)",  2625,  930,  240,  210, "", "Regolatore Pressione"},
    {"EtP(3)",  2895,  930,  240,  210, "", "Regolatore Pressione"},
    {"UpDP(2)", 2625, 1140,  240,  360, "", "Regolatore Pressione"},
    {"UpDP(3)", 2895, 1140,  240,  360, "", "Regolatore Pressione"},
    {"CmdV1a",  1380, 1080,  930,  240, "imgP1(0)", "Comando manuale 1Y1", "Q0.1"},
    {"cmdV1b",  1380, 1380,  930,  240, "imgP1(3)", "Comando manuale 1Y2", "Q0.2"},
    {"cmdV2a",  3450, 1080,  930,  240, "imgP1(0)", "Comando manuale 2Y1", "Q0.3"},
    {"cmdV2b",  3450, 1380,  930,  240, "imgP1(3)", "Comando manuale 2Y2", "Q0.4"},
    {"cmdDis",  3060, 2640, 1320,  240, "imgP1(0)", "Comando manuale 0Y1", "Q0.0"},
    {"imgCom",  4950,  510,  600,  600, "imgCS", "Selettore aria, I0.0"},
    {"imgSB3",  5730,  510,  600,  600, "imgPGr0", "Stop ciclo automatico, I0.1"},
    {"imgSB1",  6510,  510,  600,  600, "imgVOFF", "Start ciclo automatico, I0.2"},
    {"imgSB2",  7290,  510,  600,  600, "imgPBOF", "Start ciclo singolo, I0.3"},
    {"imgSB4",  8070,  510,  600,  600, "imgPBOF", "Pulsante, I1.1"},
    {"ImgEm",   6600, 2760,  600,  600, "imgROFF", "Emergenza esterna, I1.0"},
    {"imgCEM",  7770, 2760,  600,  600, "imgCC", "Contatto di SB5, I1.0"},
    {"imgLM2",  5010, 1695,  480,  480, Lampada_Spenta, "Lampada blu, Q0.5"},
    {"imgLS2",  5790, 1695,  480,  480, Lampada_Spenta, "Lampada verde, Q0.6"},
};

constexpr Riga_Figura figure_06[] = {
    {"linT",     825, 1680, 4440,  480},
    {"linP(0)",  330,  720,  390,  660},
    {"linM(0)",  930,  720,  250,  660},
    {"linP(1)", 2550,  720,  370,  660},
    {"linM(1)", 3120,  720,  280,  660},
    {"linP(2)", 4770,  720,  390,  660},
    {"linM(2)", 5370,  720,  250,  660},
    {"imgV1",    360,  420, 1000,  300},
    {"imgV2",   2580,  420, 1000,  300},
    {"imgV3",   4800,  420, 1000,  300},
    {"imgE1",    240, 1380,  780,  300, "", "", "Q0.1 Q0.2"},
    {"imgE2",   2450, 1380,  760,  300, "", "", "Q0.3 Q0.4"},
    {"imgE3",   4680, 1380,  780,  300, "", "", "Q0.5 Q0.6"},
    {"imgV0",    480, 2160,  540,  270, "imgV0OF", "", "Q0.0"},
    {"imga0",   1306,  240,  180,  270, "imgLON", "Fine corsa a0", "I0.0"},
    {"imga1",   1844,  240,  180,  270, "imgLOF", "Fine corsa a1", "I0.1"},
    {"imgb0",   3526,  240,  180,  270, "imgLON", "Fine corsa b0", "I0.2"},
    {"Imgb1",   4064,  240,  180,  270, "imgLOF", "Fine corsa b1", "I0.3"},
    {"imgc0",   5746,  240,  180,  270, "imgLON", "Fine corsa c0", "I0.4"},
    {"imgc1",   6284,  240,  180,  270, "imgLOF", "Fine corsa c1", "I0.5"},
    {"CmdV1a",  1300,  735,  960,  210, "imgP1(0)", "Comando manuale 1Y1", "Q0.1"},
    {"cmdV1b",  1300,  975,  960,  210, "imgP1(3)", "Comando manuale 1Y2", "Q0.2"},
    {"cmdV2a",  3520,  735,  960,  210, "imgP1(0)", "Comando manuale 2Y1", "Q0.3"},
    {"cmdV2b",  3520,  975,  960,  210, "imgP1(3)", "Comando manuale 2Y2", "Q0.4"},
    {"cmdV3a",  5740,  735,  960,  210, "imgP1(0)", "Comando manuale 3Y1", "Q0.5"},
    {"cmdV3b",  5740,  975,  960,  210, "imgP1(3)", "Comando manuale 3Y2", "Q0.6"},
    {"cmdDis",  1530, 2160,  960,  240, "imgP1(0)", "Comando manuale 0Y1", "Q0.0"},
    {"imgCom",  7035,  360,  480,  480, "imgCS", "Selettore aria compressa, I0.6"},
    {"imgSB1",  7635,  360,  480,  480, "imgVOFF", "Start ciclo automatico, I0.7"},
    {"imgSB2",  8235,  360,  480,  480, "imgPBOF", "Start ciclo singolo, I1.0"},
    {"imgSB3",  7035, 1170,  480,  480, "imgPGr0", "Stop ciclo automatico, I1.1"},
    {"imgSB4",  7635, 1170,  480,  480, "imgPBOF", "Pulsante, I1.2"},
    {"ImgEm",   4350, 2185,  420,  420, "imgROFF", "Emergenza esterna, I1.3"},
    {"imgCEM",  5580, 2185,  420,  420, "imgCC", "Contatto di SB5, I1.3"},
    {"imgL1",   6954, 2060,  300,  300, Lampada_Spenta, "Lampada blu, Q0.7"},
    {"imgL2",   7266, 2060,  300,  300, Lampada_Spenta, "Lampada verde, Q1.0"},
    {"imgL3",   7578, 2060,  300,  300, Lampada_Spenta, "Lampada verde, Q1.1"},
    {"imgL4",   7890, 2060,  300,  300, Lampada_Spenta, "Lampada blu, Q1.2"},
    {"imgL5",   8202, 2060,  300,  300, Lampada_Spenta, "Lampada verde, Q1.3"},
    {"imgL6",   8514, 2060,  300,  300, Lampada_Spenta, "Lampada rossa, Q1.4"},
};

constexpr Riga_Figura figure_07[] = {
    {"linT",     120, 1680, 3045, 2640},
    {"linP(0)",  450,  720,  390,  660},
    {"linM(0)", 1050,  720,  250,  660},
    {"linP(1)", 2670,  720,  385,  660},
    {"linM(1)", 3275,  720,  245,  660},
    {"linP(2)",  450, 2820,  390,  660},
    {"linM(2)", 1050, 2820,  250,  660},
    {"linP(3)", 2670, 2820,  390,  660},
    {"linM(3)", 3270, 2820,  250,  660},
    {"imgV1",    480,  420, 1000,  300},
    {"imgV2",   2700,  420, 1000,  300},
    {"imgV3",    480, 2520, 1000,  300},
    {"imgV4",   2700, 2520, 1000,  300},
    {"imgE1",    360, 1380,  780,  300, "", "", "Q0.0 Q0.1"},
    {"imgE2",   2565, 1380,  800,  300, "", "", "Q0.2 Q0.3"},
    {"imgE3",    360, 3480,  780,  300, "", "", "Q0.4 Q0.5"},
    {"imgE4",   2580, 3480,  780,  300, "", "", "Q0.6 Q0.7"},
    {"imgV0",    600, 4320,  560,  270, "imgV0OF", "", "Q1.0"},
    {"imga0",   1426,  240,  180,  270, "imgLON", "Fine corsa a0", "I0.0"},
    {"imga1",   1964,  240,  180,  270, "imgLOF", "Fine corsa a1", "I0.1"},
    {"imgb0",   3646,  240,  180,  270, "imgLON", "Fine corsa b0", "I0.2"},
    {"Imgb1",   4184,  240,  180,  270, "imgLOF", "Fine corsa b1", "I0.3"},
    {"imgc0",   1426, 2340,  180,  270, "imgLON", "Fine corsa c0", "I0.4"},
    {"imgc1",   1964, 2340,  180,  270, "imgLOF", "Fine corsa c1", "I0.5"},
    {"imgd0",   3646, 2340,  180,  270, "imgLON", "Fine corsa d0", "I0.6"},
    {"imgd1",   4184, 2340,  180,  270, "imgLOF", "Fine corsa d1", "I0.7"},
    {"CmdV1a",  1420,  735,  960,  210, "imgP1(0)", "Comando manuale 1Y1", "Q0.0"},
    {"cmdV1b",  1420,  975,  960,  210, "imgP1(3)", "Comando manuale 1Y2", "Q0.1"},
    {"cmdV2a",  3640,  735,  960,  210, "imgP1(0)", "Comando manuale 2Y1", "Q0.2"},
    {"cmdV2b",  3640,  975,  960,  210, "imgP1(3)", "Comando manuale 2Y2", "Q0.3"},
    {"cmdV3a",  1420, 2835,  960,  210, "imgP1(0)", "Comando manuale 3Y1", "Q0.4"},
    {"cmdV3b",  1420, 3075,  960,  210, "imgP1(3)", "Comando manuale 3Y2", "Q0.5"},
    {"cmdV4a",  3640, 2835,  960,  210, "imgP1(0)", "Comando manuale 4Y1", "Q0.6"},
    {"cmdV4b",  3640, 3075,  960,  210, "imgP1(3)", "Comando manuale 4Y2", "Q0.7"},
    {"cmdDis",  1680, 4320,  960,  240, "imgP1(0)", "Comando manuale 0Y1", "Q1.0"},
    {"imgSB1",  4950,  930,  600,  600, "imgVOFF", "Start ciclo automatico, I1.0"},
    {"imgSB2",  5730,  930,  600,  600, "imgPBOF", "Start ciclo singolo, I1.1"},
    {"imgSB3",  6510,  930,  600,  600, "imgPGr0", "Stop ciclo automatico, I1.2"},
    {"imgSB4",  7290,  930,  600,  600, "imgPBOF", "Pulsante, I1.3"},
    {"imgCom",  8070,  930,  600,  600, "imgCS", "Selettore aria compressa, I1.5"},
    {"ImgEm",   6600, 3480,  600,  600, "imgROFF", "Emergenza esterna, I1.4"},
    {"imgCEM",  7770, 3480,  600,  600, "imgCC", "Contatto di SB5, I1.4"},
    {"imgL1",   5010, 2115,  480,  480, Lampada_Spenta, "Lampada blu, Q1.1"},
    {"imgL2",   5790, 2115,  480,  480, Lampada_Spenta, "Lampada verde, Q1.2"},
    {"imgL3",   6570, 2115,  480,  480, Lampada_Spenta, "Lampada verde, Q1.3"},
};

constexpr Riga_Figura figure_15[] = {
    {"linT",     825, 1500, 4440,  480},
    {"linP(0)",  330,  720,  390,  480},
    {"linM(0)",  930,  720,  250,  480},
    {"linP(1)", 2550,  720,  370,  480},
    {"linM(1)", 3120,  720,  280,  480},
    {"linP(2)", 4770,  720,  390,  480},
    {"linM(2)", 5370,  720,  250,  480},
    {"imgV1",    360,  420, 1000,  300},
    {"imgV2",   2580,  420, 1000,  300},
    {"imgV3",   4800,  420, 1000,  300},
    {"imgE1",    240, 1200,  780,  300, "imgEOF", "", "Q0.1"},
    {"imgE2",   2450, 1200,  760,  300, "imgEOF", "", "Q0.2"},
    {"imgE3",   4680, 1200,  780,  300, "imgEOF", "", "Q0.3"},
    {"imgV0",    480, 1980,  540,  270, "imgV0OF", "", "Q0.0"},
    {"imga0",   1306,  240,  180,  270, "imgLON", "Fine corsa a0", "I0.0"},
    {"imga1",   1844,  240,  180,  270, "imgLOF", "Fine corsa a1", "I0.1"},
    {"imgb0",   3526,  240,  180,  270, "imgLON", "Fine corsa b0", "I0.2"},
    {"Imgb1",   4064,  240,  180,  270, "imgLOF", "Fine corsa b1", "I0.3"},
    {"imgc0",   5746,  240,  180,  270, "imgLON", "Fine corsa c0", "I0.4"},
    {"imgc1",   6284,  240,  180,  270, "imgLOF", "Fine corsa c1", "I0.5"},
    {"CmdV1a",  1300,  780,  960,  210, "imgP1(0)", "Comando manuale 1Y1", "Q0.1"},
    {"cmdV2a",  3520,  780,  960,  210, "imgP1(0)", "Comando manuale 2Y1", "Q0.2"},
    {"cmdV3a",  5740,  780,  960,  210, "imgP1(0)", "Comando manuale 3Y1", "Q0.3"},
    {"cmdDis",  1530, 1980,  960,  240, "imgP1(0)", "Comando manuale 0Y1", "Q0.0"},
    {"imgCom",  7035,  360,  480,  480, "imgCS", "Selettore aria compressa, I0.6"},
    {"imgSB1",  7635,  360,  480,  480, "imgVOFF", "Start ciclo automatico, I0.7"},
    {"imgSB2",  8235,  360,  480,  480, "imgPBOF", "Start ciclo singolo, I1.0"},
    {"imgSB3",  7035, 1170,  480,  480, "imgPGr0", "Stop ciclo automatico, I1.1"},
    {"imgSB4",  7635, 1170,  480,  480, "imgPBOF", "Pulsante, I1.2"},
    {"ImgEm",   4350, 2005,  420,  420, "imgROFF", "Emergenza esterna, I1.3"},
    {"imgCEM",  5580, 2005,  420,  420, "imgCC", "Contatto di SB5, I1.3"},
    {"imgL1",   6954, 2060,  300,  300, Lampada_Spenta, "Lampada blu, Q0.4"},
    {"imgL2",   7266, 2060,  300,  300, Lampada_Spenta, "Lampada verde, Q0.5"},
    {"imgL3",   7578, 2060,  300,  300, Lampada_Spenta, "Lampada verde, Q0.6"},
    {"imgL4",   7890, 2060,  300,  300, Lampada_Spenta, "Lampada blu, Q0.7"},
    {"imgL5",   8202, 2060,  300,  300, Lampada_Spenta, "Lampada rossa, Q1.0"},
    {"imgL6",   8514, 2060,  300,  300, Lampada_Spenta, "Lampada rossa, Q1.1"},
};
// clang-format on

}  // namespace

std::span<const Riga_Figura> Figure_04() {
  return figure_04;
}
std::span<const Riga_Figura> Figure_05() {
  return figure_05;
}
std::span<const Riga_Figura> Figure_06() {
  return figure_06;
}
std::span<const Riga_Figura> Figure_07() {
  return figure_07;
}
std::span<const Riga_Figura> Figure_15() {
  return figure_15;
}

}  // namespace tavorno
