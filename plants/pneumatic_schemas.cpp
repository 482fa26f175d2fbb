// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the five pneumatic benches.
#include "plants/pneumatic_bench.h"
#include "plants/pneumatic_figures.h"

namespace tavorno {

namespace {

// clang-format off

// Cylinders: piston, its two ends, spool, its place set and reset, its looks, limit switches minus
// and plus, their inputs, manual overrides, coils.

constexpr Riga_Cilindro cilindri_04[] = {
    {"imgPA", 420, 1080, "imgV1", 690, 300, "", "", "imgS", "imgD", 2, 3, "CmdV1a", "cmdV1b", 2, 3},
};
constexpr Riga_Cilindro cilindri_05[] = {
    {"imgPA",  420, 1080, "imgV1",  690,  300, "", "", "imgS",  "imgD",  5, 6, "CmdV1a", "cmdV1b", 2, 3},
    {"imgP2", 2490, 3150, "imgV2", 2790, 2400, "", "", "imgS2", "imgD2", 7, 8, "cmdV2a", "cmdV2b", 4, 5},
};
constexpr Riga_Cilindro cilindri_06[] = {
    {"imgV1",  360, 1030, "imgE1",  630,  240, "", "", "imga0", "imga1", 1, 2, "CmdV1a", "cmdV1b", 2, 3},
    {"imgV2", 2580, 3250, "imgE2", 2830, 2450, "", "", "imgb0", "Imgb1", 3, 4, "cmdV2a", "cmdV2b", 4, 5},
    {"imgV3", 4800, 5470, "imgE3", 5070, 4680, "", "", "imgc0", "imgc1", 5, 6, "cmdV3a", "cmdV3b", 6, 7},
};
constexpr Riga_Cilindro cilindri_07[] = {
    {"imgV1",  480, 1150, "imgE1",  750,  360, "", "", "imga0", "imga1", 1, 2, "CmdV1a", "cmdV1b", 1, 2},
    {"imgV2", 2700, 3370, "imgE2", 2965, 2565, "", "", "imgb0", "Imgb1", 3, 4, "cmdV2a", "cmdV2b", 3, 4},
    {"imgV3",  480, 1150, "imgE3",  750,  360, "", "", "imgc0", "imgc1", 5, 6, "cmdV3a", "cmdV3b", 5, 6},
    {"imgV4", 2700, 3370, "imgE4", 2970, 2580, "", "", "imgd0", "imgd1", 7, 8, "cmdV4a", "cmdV4b", 7, 8},
};
constexpr Riga_Cilindro cilindri_15[] = {
    {"imgV1",  360, 1030, "imgE1",  630,  240, "imgEON", "imgEOF", "imga0", "imga1", 1, 2, "CmdV1a", "", 2, 0},
    {"imgV2", 2580, 3250, "imgE2", 2830, 2450, "imgEON", "imgEOF", "imgb0", "Imgb1", 3, 4, "cmdV2a", "", 3, 0},
    {"imgV3", 4800, 5470, "imgE3", 5070, 4680, "imgEON", "imgEOF", "imgc0", "imgc1", 5, 6, "cmdV3a", "", 4, 0},
};

// Push buttons: name, input, down, up, picture down, picture up. What the table of inputs calls NO
// or NC is sometimes not what is wired; the wiring is here.

constexpr Riga_Pulsante pulsanti_04[] = {
    {"imgSB1", 4, '1', '0', "imgVON",  "imgVOFF"},
    {"imgSB2", 5, '1', '0', "imgPBON", "imgPBOF"},
    {"imgSB3", 6, '0', '1', "imgPGr1", "imgPGr0"},
    {"imgSB4", 7, '1', '0', "imgPBON", "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_05[] = {
    {"imgSB3",  2, '0', '1', "imgPGr1", "imgPGr0"},
    {"imgSB1",  3, '1', '0', "imgVON",  "imgVOFF"},
    {"imgSB2",  4, '1', '0', "imgPBON", "imgPBOF"},
    {"imgSB4", 10, '0', '1', "imgPBON", "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_06[] = {
    {"imgSB1",  8, '1', '0', "imgVON",  "imgVOFF"},
    {"imgSB2",  9, '1', '0', "imgPBON", "imgPBOF"},
    {"imgSB3", 10, '0', '1', "imgPGr1", "imgPGr0"},
    {"imgSB4", 11, '0', '1', "imgPBON", "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_07[] = {
    {"imgSB1",  9, '1', '0', "imgVON",  "imgVOFF"},
    {"imgSB2", 10, '1', '0', "imgPBON", "imgPBOF"},
    {"imgSB3", 11, '0', '1', "imgPGr1", "imgPGr0"},
    {"imgSB4", 12, '1', '0', "imgPBON", "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_15[] = {
    {"imgSB1",  8, '1', '0', "imgVON",  "imgVOFF"},
    {"imgSB2",  9, '1', '0', "imgPBON", "imgPBOF"},
    {"imgSB3", 10, '0', '1', "imgPGr1", "imgPGr0"},
    {"imgSB4", 11, '1', '0', "imgPBON", "imgPBOF"},
};

// Lamps: name, output, picture lit.

constexpr Riga_Lampada lampade_04[] = {{"imgHL2", 5, "imgLV"}, {"imgHL1", 4, "imgLB"}};
constexpr Riga_Lampada lampade_05[] = {{"imgLM2", 6, "imgLB"}, {"imgLS2", 7, "imgLV"}};
constexpr Riga_Lampada lampade_06[] = {
    {"imgL1",  8, "imgLB"}, {"imgL2",  9, "imgLV"}, {"imgL3", 10, "imgLV"},
    {"imgL4", 11, "imgLB"}, {"imgL5", 12, "imgLV"}, {"imgL6", 13, "imgLR"},
};
constexpr Riga_Lampada lampade_07[] = {
    {"imgL1", 10, "imgLB"}, {"imgL2", 11, "imgLV"}, {"imgL3", 12, "imgLV"},
};
constexpr Riga_Lampada lampade_15[] = {
    {"imgL1", 5, "imgLB"}, {"imgL2", 6, "imgLV"}, {"imgL3",  7, "imgLV"},
    {"imgL4", 8, "imgLB"}, {"imgL5", 9, "imgLR"}, {"imgL6", 10, "imgLR"},
};

constexpr Riga_Commutatore Selettore(int ingresso) {
  return {"imgCom", ingresso, '1', '0', "imgCD", "imgCS"};
}
// clang-format on

}  // namespace

const Schema_Pneumatico Schema_Pist_1 = {
    .Stato_I = "0100010100000000",
    .Periodo = 40,
    .Figure = Figure_04(),
    .Cilindri = cilindri_04,
    .Uscita_Aria = 1,
    .Aria_Aperta = 810,
    .Aria_Chiusa = 540,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Set Manuale",
    .Voce_Reset = "Reset Manuale",
    .UpDP = true,
    .Selettore = Selettore(1),
    .Pulsanti = pulsanti_04,
    .Ingresso_Emergenza = 8,
    .Lampade = lampade_04,
};

const Schema_Pneumatico Schema_CicloQ = {
    .Stato_I = "0100101011000000",
    .Periodo = 40,
    .Figure = Figure_05(),
    .Cilindri = cilindri_05,
    .Uscita_Aria = 1,
    .Aria_Aperta = 2260,
    .Aria_Chiusa = 1980,
    .Voce_Aria = "Apri Distributore",
    .Voce_Set = "Set Valvola",
    .Voce_Reset = "Reset Valvola",
    .UpDP = true,
    .Selettore = Selettore(1),
    .Pulsanti = pulsanti_05,
    .Ingresso_Emergenza = 9,
    .Lampade = lampade_05,
};

const Schema_Pneumatico Schema_Pist_3 = {
    .Stato_I = "1010100001110000",
    .Periodo = 40,
    .Figure = Figure_06(),
    .Cilindri = cilindri_06,
    .Uscita_Aria = 1,
    .Aria_Aperta = 750,
    .Aria_Chiusa = 480,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Apri Valvola",
    .Voce_Reset = "Chiudi Valvola",
    .UpDP = false,
    .Selettore = Selettore(7),
    .Pulsanti = pulsanti_06,
    .Ingresso_Emergenza = 12,
    .Lampade = lampade_06,
};

const Schema_Pneumatico Schema_Pist_4 = {
    .Stato_I = "1010101000101000",
    .Periodo = 80,
    .Figure = Figure_07(),
    .Cilindri = cilindri_07,
    .Uscita_Aria = 9,
    .Aria_Aperta = 880,
    .Aria_Chiusa = 600,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Apri Valvola",
    .Voce_Reset = "Chiudi Valvola",
    .UpDP = false,
    .Selettore = Selettore(14),
    .Pulsanti = pulsanti_07,
    .Ingresso_Emergenza = 13,
    .Lampade = lampade_07,
};

const Schema_Pneumatico Schema_ctr_Pist_32 = {
    .Stato_I = "1010100001010000",
    .Periodo = 40,
    .Figure = Figure_15(),
    .Cilindri = cilindri_15,
    .Uscita_Aria = 1,
    .Aria_Aperta = 750,
    .Aria_Chiusa = 480,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Apri Valvola",
    .Voce_Reset = "",
    .UpDP = false,
    .Selettore = Selettore(7),
    .Pulsanti = pulsanti_15,
    .Ingresso_Emergenza = 12,
    .Lampade = lampade_15,
};

}  // namespace tavorno
