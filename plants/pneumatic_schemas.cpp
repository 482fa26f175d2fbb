// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the five pneumatic benches.
#include "plants/pneumatic_bench.h"
#include "plants/pneumatic_figures.h"

namespace tavorno {

namespace {

// clang-format off

constexpr Riga_Cilindro cilindri_04[] = {
    {.Pistone = "imgPA", .Arretrato = 420, .Esteso = 1080, .Valvola = "imgV1", .Left_Set = 690,
     .Left_Reset = 300, .Micro_Meno = "imgS", .Micro_Piu = "imgD", .Ingresso_Meno = I(0, 1), .Ingresso_Piu = I(0, 2),
     .Cmd_Set = "CmdV1a", .Cmd_Reset = "cmdV1b", .Uscita_Set = Q(0, 1), .Uscita_Reset = Q(0, 2)},
};
constexpr Riga_Cilindro cilindri_05[] = {
    {.Pistone = "imgPA", .Arretrato = 420, .Esteso = 1080, .Valvola = "imgV1", .Left_Set = 690,
     .Left_Reset = 300, .Micro_Meno = "imgS", .Micro_Piu = "imgD", .Ingresso_Meno = I(0, 4), .Ingresso_Piu = I(0, 5),
     .Cmd_Set = "CmdV1a", .Cmd_Reset = "cmdV1b", .Uscita_Set = Q(0, 1), .Uscita_Reset = Q(0, 2)},
    {.Pistone = "imgP2", .Arretrato = 2490, .Esteso = 3150, .Valvola = "imgV2", .Left_Set = 2790,
     .Left_Reset = 2400, .Micro_Meno = "imgS2", .Micro_Piu = "imgD2", .Ingresso_Meno = I(0, 6), .Ingresso_Piu = I(0, 7),
     .Cmd_Set = "cmdV2a", .Cmd_Reset = "cmdV2b", .Uscita_Set = Q(0, 3), .Uscita_Reset = Q(0, 4)},
};
constexpr Riga_Cilindro cilindri_06[] = {
    {.Pistone = "imgV1", .Arretrato = 360, .Esteso = 1030, .Valvola = "imgE1", .Left_Set = 630,
     .Left_Reset = 240, .Micro_Meno = "imga0", .Micro_Piu = "imga1", .Ingresso_Meno = I(0, 0), .Ingresso_Piu = I(0, 1),
     .Cmd_Set = "CmdV1a", .Cmd_Reset = "cmdV1b", .Uscita_Set = Q(0, 1), .Uscita_Reset = Q(0, 2)},
    {.Pistone = "imgV2", .Arretrato = 2580, .Esteso = 3250, .Valvola = "imgE2", .Left_Set = 2830,
     .Left_Reset = 2450, .Micro_Meno = "imgb0", .Micro_Piu = "Imgb1", .Ingresso_Meno = I(0, 2), .Ingresso_Piu = I(0, 3),
     .Cmd_Set = "cmdV2a", .Cmd_Reset = "cmdV2b", .Uscita_Set = Q(0, 3), .Uscita_Reset = Q(0, 4)},
    {.Pistone = "imgV3", .Arretrato = 4800, .Esteso = 5470, .Valvola = "imgE3", .Left_Set = 5070,
     .Left_Reset = 4680, .Micro_Meno = "imgc0", .Micro_Piu = "imgc1", .Ingresso_Meno = I(0, 4), .Ingresso_Piu = I(0, 5),
     .Cmd_Set = "cmdV3a", .Cmd_Reset = "cmdV3b", .Uscita_Set = Q(0, 5), .Uscita_Reset = Q(0, 6)},
};
constexpr Riga_Cilindro cilindri_07[] = {
    {.Pistone = "imgV1", .Arretrato = 480, .Esteso = 1150, .Valvola = "imgE1", .Left_Set = 750,
     .Left_Reset = 360, .Micro_Meno = "imga0", .Micro_Piu = "imga1", .Ingresso_Meno = I(0, 0), .Ingresso_Piu = I(0, 1),
     .Cmd_Set = "CmdV1a", .Cmd_Reset = "cmdV1b", .Uscita_Set = Q(0, 0), .Uscita_Reset = Q(0, 1)},
    {.Pistone = "imgV2", .Arretrato = 2700, .Esteso = 3370, .Valvola = "imgE2", .Left_Set = 2965,
     .Left_Reset = 2565, .Micro_Meno = "imgb0", .Micro_Piu = "Imgb1", .Ingresso_Meno = I(0, 2), .Ingresso_Piu = I(0, 3),
     .Cmd_Set = "cmdV2a", .Cmd_Reset = "cmdV2b", .Uscita_Set = Q(0, 2), .Uscita_Reset = Q(0, 3)},
    {.Pistone = "imgV3", .Arretrato = 480, .Esteso = 1150, .Valvola = "imgE3", .Left_Set = 750,
     .Left_Reset = 360, .Micro_Meno = "imgc0", .Micro_Piu = "imgc1", .Ingresso_Meno = I(0, 4), .Ingresso_Piu = I(0, 5),
     .Cmd_Set = "cmdV3a", .Cmd_Reset = "cmdV3b", .Uscita_Set = Q(0, 4), .Uscita_Reset = Q(0, 5)},
    {.Pistone = "imgV4", .Arretrato = 2700, .Esteso = 3370, .Valvola = "imgE4", .Left_Set = 2970,
     .Left_Reset = 2580, .Micro_Meno = "imgd0", .Micro_Piu = "imgd1", .Ingresso_Meno = I(0, 6), .Ingresso_Piu = I(0, 7),
     .Cmd_Set = "cmdV4a", .Cmd_Reset = "cmdV4b", .Uscita_Set = Q(0, 6), .Uscita_Reset = Q(0, 7)},
};
constexpr Riga_Cilindro cilindri_15[] = {
    {.Pistone = "imgV1", .Arretrato = 360, .Esteso = 1030, .Valvola = "imgE1", .Left_Set = 630,
     .Left_Reset = 240, .Picture_Set = "imgEON", .Picture_Reset = "imgEOF", .Micro_Meno = "imga0",
     .Micro_Piu = "imga1", .Ingresso_Meno = I(0, 0), .Ingresso_Piu = I(0, 1), .Cmd_Set = "CmdV1a", .Uscita_Set = Q(0, 1)},
    {.Pistone = "imgV2", .Arretrato = 2580, .Esteso = 3250, .Valvola = "imgE2", .Left_Set = 2830,
     .Left_Reset = 2450, .Picture_Set = "imgEON", .Picture_Reset = "imgEOF", .Micro_Meno = "imgb0",
     .Micro_Piu = "Imgb1", .Ingresso_Meno = I(0, 2), .Ingresso_Piu = I(0, 3), .Cmd_Set = "cmdV2a", .Uscita_Set = Q(0, 2)},
    {.Pistone = "imgV3", .Arretrato = 4800, .Esteso = 5470, .Valvola = "imgE3", .Left_Set = 5070,
     .Left_Reset = 4680, .Picture_Set = "imgEON", .Picture_Reset = "imgEOF", .Micro_Meno = "imgc0",
     .Micro_Piu = "imgc1", .Ingresso_Meno = I(0, 4), .Ingresso_Piu = I(0, 5), .Cmd_Set = "cmdV3a", .Uscita_Set = Q(0, 3)},
};

// What the table of inputs calls NO or NC is sometimes not what is wired; the wiring is here.

constexpr Riga_Pulsante pulsanti_04[] = {
    {.Nome = "imgSB1", .Posizione = I(0, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgSB2", .Posizione = I(0, 4), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
    {.Nome = "imgSB3", .Posizione = I(0, 5), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgSB4", .Posizione = I(0, 6), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_05[] = {
    {.Nome = "imgSB3", .Posizione = I(0, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgSB1", .Posizione = I(0, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgSB2", .Posizione = I(0, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
    {.Nome = "imgSB4", .Posizione = I(1, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_06[] = {
    {.Nome = "imgSB1", .Posizione = I(0, 7), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgSB2", .Posizione = I(1, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
    {.Nome = "imgSB3", .Posizione = I(1, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgSB4", .Posizione = I(1, 2), .Giu = '0', .Su = '1', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_07[] = {
    {.Nome = "imgSB1", .Posizione = I(1, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgSB2", .Posizione = I(1, 1), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
    {.Nome = "imgSB3", .Posizione = I(1, 2), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgSB4", .Posizione = I(1, 3), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
};
constexpr Riga_Pulsante pulsanti_15[] = {
    {.Nome = "imgSB1", .Posizione = I(0, 7), .Giu = '1', .Su = '0', .Picture_Giu = "imgVON",
     .Picture_Su = "imgVOFF"},
    {.Nome = "imgSB2", .Posizione = I(1, 0), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
    {.Nome = "imgSB3", .Posizione = I(1, 1), .Giu = '0', .Su = '1', .Picture_Giu = "imgPGr1",
     .Picture_Su = "imgPGr0"},
    {.Nome = "imgSB4", .Posizione = I(1, 2), .Giu = '1', .Su = '0', .Picture_Giu = "imgPBON",
     .Picture_Su = "imgPBOF"},
};

// Lamps: name, output, picture lit.

constexpr Riga_Lampada lampade_04[] = {{"imgHL2", Q(0, 4), "imgLV"}, {"imgHL1", Q(0, 3), "imgLB"}};
constexpr Riga_Lampada lampade_05[] = {{"imgLM2", Q(0, 5), "imgLB"}, {"imgLS2", Q(0, 6), "imgLV"}};
constexpr Riga_Lampada lampade_06[] = {
    {"imgL1", Q(0, 7), "imgLB"}, {"imgL2", Q(1, 0), "imgLV"}, {"imgL3", Q(1, 1), "imgLV"},
    {"imgL4", Q(1, 2), "imgLB"}, {"imgL5", Q(1, 3), "imgLV"}, {"imgL6", Q(1, 4), "imgLR"},
};
constexpr Riga_Lampada lampade_07[] = {
    {"imgL1", Q(1, 1), "imgLB"}, {"imgL2", Q(1, 2), "imgLV"}, {"imgL3", Q(1, 3), "imgLV"},
};
constexpr Riga_Lampada lampade_15[] = {
    {"imgL1", Q(0, 4), "imgLB"}, {"imgL2", Q(0, 5), "imgLV"}, {"imgL3", Q(0, 6), "imgLV"},
    {"imgL4", Q(0, 7), "imgLB"}, {"imgL5", Q(1, 0), "imgLR"}, {"imgL6", Q(1, 1), "imgLR"},
};

constexpr Riga_Commutatore Selettore(Morsetto_I ingresso) {
  return {"imgCom", ingresso, '1', '0', "imgCD", "imgCS"};
}
// clang-format on

}  // namespace

const Schema_Pneumatico Schema_Pist_1 = {
    .Stato_I = "0100010100000000",
    .Periodo = 40,
    .Figure = Figure_04(),
    .Cilindri = cilindri_04,
    .Uscita_Aria = Q(0, 0),
    .Aria_Aperta = 810,
    .Aria_Chiusa = 540,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Set Manuale",
    .Voce_Reset = "Reset Manuale",
    .UpDP = true,
    .Selettore = Selettore(I(0, 0)),
    .Pulsanti = pulsanti_04,
    .Ingresso_Emergenza = I(0, 7),
    .Lampade = lampade_04,
};

const Schema_Pneumatico Schema_CicloQ = {
    .Stato_I = "0100101011000000",
    .Periodo = 40,
    .Figure = Figure_05(),
    .Cilindri = cilindri_05,
    .Uscita_Aria = Q(0, 0),
    .Aria_Aperta = 2260,
    .Aria_Chiusa = 1980,
    .Voce_Aria = "Apri Distributore",
    .Voce_Set = "Set Valvola",
    .Voce_Reset = "Reset Valvola",
    .UpDP = true,
    .Selettore = Selettore(I(0, 0)),
    .Pulsanti = pulsanti_05,
    .Ingresso_Emergenza = I(1, 0),
    .Lampade = lampade_05,
};

const Schema_Pneumatico Schema_Pist_3 = {
    .Stato_I = "1010100001110000",
    .Periodo = 40,
    .Figure = Figure_06(),
    .Cilindri = cilindri_06,
    .Uscita_Aria = Q(0, 0),
    .Aria_Aperta = 750,
    .Aria_Chiusa = 480,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Apri Valvola",
    .Voce_Reset = "Chiudi Valvola",
    .UpDP = false,
    .Selettore = Selettore(I(0, 6)),
    .Pulsanti = pulsanti_06,
    .Ingresso_Emergenza = I(1, 3),
    .Lampade = lampade_06,
};

const Schema_Pneumatico Schema_Pist_4 = {
    .Stato_I = "1010101000101000",
    .Periodo = 80,
    .Figure = Figure_07(),
    .Cilindri = cilindri_07,
    .Uscita_Aria = Q(1, 0),
    .Aria_Aperta = 880,
    .Aria_Chiusa = 600,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Apri Valvola",
    .Voce_Reset = "Chiudi Valvola",
    .UpDP = false,
    .Selettore = Selettore(I(1, 5)),
    .Pulsanti = pulsanti_07,
    .Ingresso_Emergenza = I(1, 4),
    .Lampade = lampade_07,
};

const Schema_Pneumatico Schema_ctr_Pist_32 = {
    .Stato_I = "1010100001010000",
    .Periodo = 40,
    .Figure = Figure_15(),
    .Cilindri = cilindri_15,
    .Uscita_Aria = Q(0, 0),
    .Aria_Aperta = 750,
    .Aria_Chiusa = 480,
    .Voce_Aria = "Apri Valvola",
    .Voce_Set = "Apri Valvola",
    .Voce_Reset = "",
    .UpDP = false,
    .Selettore = Selettore(I(0, 6)),
    .Pulsanti = pulsanti_15,
    .Ingresso_Emergenza = I(1, 3),
    .Lampade = lampade_15,
};

}  // namespace tavorno
