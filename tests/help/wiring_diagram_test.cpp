// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/wiring_diagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "HTML/generator/devices.h"
#include "HTML/generator/drawing.h"
#include "help_page.h"
#include "plants/exercises.h"

namespace tavorno::prova {

namespace {

using enum Apparecchio;

struct Device {
  Riga_IO row;
  Apparecchio kind;
  bool closed;
  const char* detail;
};

class DeviceOfARow : public ::testing::TestWithParam<Device> {};

TEST_P(DeviceOfARow, IsToldFromItsTexts) {
  const Dispositivo device = Riconosci(GetParam().row);
  EXPECT_EQ(device.Tipo, GetParam().kind) << Nome_Apparecchio(device.Tipo);
  EXPECT_EQ(device.Chiuso_A_Riposo, GetParam().closed);
  EXPECT_STREQ(device.Dettaglio, GetParam().detail);
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, DeviceOfARow,
    ::testing::Values(
        Device{{"SB1", "I0.0", "Pulsante (NC) Stop"}, Pulsante, true, ""},
        Device{{"SB2", "I0.0", "Pulsante (NA) prenotazione pedone"}, Pulsante, false, ""},
        Device{{"SB5", "I1.0", "Pulsante (NC) simulatore sicurezza esterna"}, Fungo, true, ""},
        Device{{"SB3", "I0.6", "Pulsante (NC)simulazione emergenza esterna"}, Fungo, true, ""},
        Device{{"SA", "I1.2", "Selettore ON/OFF Scarico miscela"}, Selettore, false, ""},
        Device{{"SB3", "I0.4", "Selettore (NO) modo Controllo"}, Selettore, false, ""},
        Device{{"SA_1", "I0.7", "Contatto (NO) Selettore a chiave Posiz. 1"},
               Selettore_Chiave,
               false,
               ""},
        Device{{"a0", "I0.1", "Fine corsa (NO) A-"}, Fine_Corsa, false, ""},
        Device{
            {"SQ3", "I0.6", "Contatto (NC) Costa pneumatica di sicurezza"}, Fine_Corsa, true, ""},
        Device{{"KM1a", "I0.2", "Contatto (NO) ausiliaria contattore KM1"}, Ausiliario, false, ""},
        Device{{"FR1", "I0.2", "Contatto (NC) Relè Termico motore pompa P1"}, Termico, true, ""},
        Device{
            {"B1", "I1.6", "Contatto (NO) Fotocellula presenza persone"}, Fotocellula, false, ""},
        Device{{"SL2", "I0.1", "Micro (NC) Livello Min vasca di carico"}, Livello, true, ""},
        Device{{"BF", "I1.4", "Contatto (NO) trasduttore digitale flusso"}, Flusso, false, ""},
        Device{
            {"BT", "I0.7", "Contatto (NO) Termostato temperatura miscela"}, Termostato, false, ""},
        Device{{"BL1", "I0.4", "Bit 1 Trasduttore Livello"}, Trasduttore, false, ""},
        Device{{"X", "I0.0", "Contatto (NC)"}, Contatto, true, ""},
        Device{{"Pos", "AIW2", "Trasduttore posizione cabina (0-10V)"},
               Analogico_Ingresso,
               false,
               "0-10 V"},
        Device{{"IST", "AIW4", "Valore analogico Isteresi (0-1 V)"},
               Analogico_Ingresso,
               false,
               "0-1 V"}));

INSTANTIATE_TEST_SUITE_P(
    Outputs, DeviceOfARow,
    ::testing::Values(
        Device{{"KM1", "Q0.0", "Motore Pompa P1"}, Bobina, false, ""},
        Device{{"AC", "Q0.2", "Contattore Alimentazione di potenza"}, Bobina, false, ""},
        Device{{"1Y1", "Q0.1", "Bobina Set  Valvola 1V1"}, Elettrovalvola, false, ""},
        Device{{"YV5", "Q0.6", "Elettrovalcola Scarico miscela"}, Elettrovalvola, false, ""},
        Device{{"HL2", "Q0.3", "Lampada Rossa semaforo Ingresso"}, Lampada, false, "RD"},
        Device{{"HL4", "Q0.1", "Lampada Gialla Segnalazione Movimento"}, Lampada, false, "YE"},
        Device{{"HL1", "Q0.3", "Lampada verde 'Pompa ON'"}, Lampada, false, "GN"},
        Device{{"HL3", "Q0.6", "Lampada Blu "}, Lampada, false, "BU"},
        Device{{"HL1", "Q0.3", "Lampada"}, Lampada, false, ""},
        Device{{"VacB", "Q0.0", "Alimentazione Fotocellula B"}, Carico, false, ""},
        Device{{"VC", "AQW0", "Tensione analogica di controllo uscita AP"},
               Analogico_Uscita,
               false,
               "0-10 V"}));

class Diagram : public ::testing::TestWithParam<int> {
 protected:
  const Esercizio& exercise = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  const std::string picture = Schema_Collegamenti(exercise.Righe_IO, exercise.Titolo);
};

TEST_P(Diagram, NamesEveryTerminalAndDeviceOnce) {
  const std::string texts = picture;
  for (const Riga_IO& row : exercise.Righe_IO) {
    EXPECT_EQ(Contents(texts, ">" + std::string(row.Indirizzo) + "</text>", "\n").size(), 1U)
        << row.Indirizzo;
    EXPECT_GE(Contents(texts, ">" + std::string(row.Simbolo) + "</text>", "\n").size(), 1U)
        << row.Simbolo;
  }
}

TEST_P(Diagram, FitsThePage) {
  const double width = std::stod(Attributes(picture, "width").front());
  EXPECT_GE(width, 400);
  EXPECT_LE(width, 780);  // what the help window shows without scrolling
}

TEST_P(Diagram, TellsItsDevicesInALegend) {
  for (const Riga_IO& row : exercise.Righe_IO) {
    const std::string name = Nome_Apparecchio(Riconosci(row).Tipo);
    EXPECT_NE(picture.find(">" + name + "</text>"), std::string::npos) << name;
  }
}

// An unknown kind would be drawn as a bare contact.
TEST_P(Diagram, KnowsAllItsInputDevices) {
  for (const Riga_IO& row : exercise.Righe_IO)
    EXPECT_NE(Riconosci(row).Tipo, Contatto) << row.Simbolo << " " << row.Commento;
}

INSTANTIATE_TEST_SUITE_P(All, Diagram,
                         ::testing::Range(0, static_cast<int>(Tabella_Esercizi().size())));

TEST(Drawing, WritesLengthsWithAtMostTwoDecimals) {
  EXPECT_EQ(Numero_Svg(12), "12");
  EXPECT_EQ(Numero_Svg(0), "0");
  EXPECT_EQ(Numero_Svg(1.5), "1.5");
  EXPECT_EQ(Numero_Svg(1.05), "1.05");
  EXPECT_EQ(Numero_Svg(2.345), "2.35");
  EXPECT_EQ(Numero_Svg(-0.25), "-0.25");
}

TEST(Drawing, TextsMayHoldAnyCharacter) {
  Tavola drawing;
  drawing.Testo(0, 0, "a<b & \"c\"");
  const std::string picture = drawing.Svg(10, 10, "x > y");
  EXPECT_NE(picture.find(">a&lt;b &amp; &quot;c&quot;</text>"), std::string::npos);
  EXPECT_NE(picture.find("<title>x &gt; y</title>"), std::string::npos);
}

}  // namespace

}  // namespace tavorno::prova
