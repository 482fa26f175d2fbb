// SPDX-License-Identifier: GPL-3.0-or-later
// The plant that reads analog outputs is played again by what the journal tells of them.
#include <gtest/gtest.h>

#include <map>

#include "recorder/door.h"
#include "recorder/recorder.h"
#include "recorder/session.h"
#include "recorder/session_file.h"
#include "recorder/whole_state.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

constexpr int assi = 17;

/// The axis under a program that drives it with a voltage which rises all the time.
class Asse_In_Moto {
 public:
  Asse_In_Moto() {
    EXPECT_TRUE(seduta.Leggi(
        Byte_Di_Progetto({"LD SM0.0", "= Q0.3", "LD I0.0", "= Q0.1", "LDN I0.0", "= Q0.2",
                          "LD SM0.0", "INCW VW10", "MOVW VW10, AQW0", "MOVW VW10, AQW2"})));
    seduta.progetto.Compila();
    EXPECT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
    registratore.Programma_Nuovo();
    registratore.Ms_Tra_Tappe = 200;
    fili = std::make_unique<Collegamento>(plc, stato, Tabella_Esercizi()[assi]);
    fili->Carica();
    registratore.Apri = [this](int) {
      fili->Apri();
      return fili.get();
    };
    cessione_ = plc.Hook.Ascolta_Cedi_Righe([this] { return Cedi(); });
  }

  /// Runs until `ms`, and stands in a pause then.
  void Corri(std::int64_t ms) {
    fine_ = ms;
    plc.Entra(plc.In_Pausa() ? Comando_Corsa::Continua : Comando_Corsa::Run);
    EXPECT_TRUE(plc.In_Pausa());
    EXPECT_EQ(plc.Tempo.Adesso(), ms);
  }

  void Confronta_Tutti() {
    for (const auto& [righe, visto] : Visti) {
      ASSERT_TRUE(registratore.Vai({.Righe = righe}));
      ASSERT_EQ(Prima_Differenza(Elenca_Stato(plc, fili.get()), visto), "")
          << "after " << righe << " lines";
    }
  }

  Seduta seduta;
  Plc& plc = seduta.plc;
  Registratore registratore{plc};
  Stato_Impianto stato;
  std::unique_ptr<Collegamento> fili;
  std::map<std::int64_t, Stato_Intero> Visti;  // by the lines executed
  std::int64_t Rifatte = 0;                    // times that a replay asked what to do next
  std::int64_t Passo = 1;                      // ms of a move of the clock

 private:
  int Cedi() {
    if (plc.Hook.Adesso != Vissuto::Presente) {
      ++Rifatte;
      return 1'000'000;
    }
    if (plc.PC != 0) return 96;
    plc.Entra({.Che = Cosa::Presente, .Numero = std::min(fine_, plc.Tempo.Adesso() + Passo)});
    if (plc.Tempo.Adesso() == fine_)
      plc.Entra(Comando_Corsa::Pausa);
    else if (++viste_ % 97 == 0)  // right before a line
      Visti[plc.Righe_Fatte] = Elenca_Stato(plc, fili.get());
    return 96;
  }

  Iscrizione cessione_;
  std::int64_t fine_ = 0;
  int viste_ = 0;
};

void Giro_Completo(Asse_In_Moto& asse) {
  asse.Corri(997);
  asse.fili->Entra({.Che = Cosa::Regola, .Valore = 70, .Testo = "UpD1"});
  asse.plc.Entra(Di_Scelta(Scelta_Pannello::opzAQ, static_cast<int>(Scala::mA_20)));
  asse.Corri(1503);
  asse.plc.Entra(Di_Ingresso(0, "10000000"));
  asse.fili->Entra({.Che = Cosa::Usa_Interruttori, .Numero = 1});
  asse.Passo = 7;  // does not meet the exchange, which ticks every 20 ms
  asse.Corri(2600);
  // Another phase of the exchange, and a while without any.
  asse.plc.Entra(Comando_Corsa::Stop);
  asse.plc.Entra({.Che = Cosa::Presente, .Numero = 2711});
  EXPECT_TRUE(Forza(asse.plc, "AQW0", 20'000));
  asse.Passo = 33;
  asse.Corri(3700);
  asse.plc.Entra(Di_Scelta(Scelta_Pannello::opzAQ, static_cast<int>(Scala::Volt_10)));
  asse.Passo = 1;
  asse.Corri(5000);
}

}  // namespace

TEST(AxisReplay, EveryMomentIsWhatItWas) {
  Asse_In_Moto asse;
  Giro_Completo(asse);
  ASSERT_GT(asse.Visti.size(), 20U);
  const Stato_Intero fine = Elenca_Stato(asse.plc, asse.fili.get());
  EXPECT_NE(Prima_Differenza(asse.Visti.begin()->second, fine), "");
  asse.Confronta_Tutti();
  asse.registratore.Torna_Al_Presente();
  EXPECT_EQ(Prima_Differenza(Elenca_Stato(asse.plc, asse.fili.get()), fine), "");
}

TEST(AxisReplay, AStepBackPlaysTheLastStretchAlone) {
  Asse_In_Moto asse;
  Giro_Completo(asse);
  asse.Rifatte = 0;
  ASSERT_TRUE(asse.registratore.Riga_Indietro());
  EXPECT_GT(asse.Rifatte, 0);
  EXPECT_LT(asse.Rifatte, 2 * asse.registratore.Ms_Tra_Tappe);
}

TEST(AxisReplay, ASessionGoesOnFromAPastMomentAndCanStillBeGoneBackIn) {
  Asse_In_Moto asse;
  Giro_Completo(asse);
  ASSERT_TRUE(asse.registratore.Vai({.Righe = std::next(asse.Visti.begin(), 12)->first}));
  asse.registratore.Riprendi_Da_Qui();
  asse.Visti.erase(std::next(asse.Visti.begin(), 13), asse.Visti.end());
  asse.Corri(asse.plc.Tempo.Adesso() + 800);
  asse.Corri(asse.plc.Tempo.Adesso() + 801);
  asse.Confronta_Tutti();
}

TEST(AxisReplay, TheJournalOfARisingVoltageStaysSmall) {
  Asse_In_Moto asse;
  asse.registratore.Ms_Tra_Tappe = 1'000'000;
  asse.Corri(30'000);
  constexpr std::size_t all_ora = 20UL * 1024 * 1024;
  EXPECT_LT(asse.registratore.Registrata().Voci.Byte().size(), all_ora / 120 / 4);
}

TEST(AxisReplay, AnEarlyFileThatTellsNothingOfAnalogOutputsIsPlayedLineByLine) {
  Asse_In_Moto asse;
  Giro_Completo(asse);
  // The same session as the first version wrote it.
  Seduta_Registrata prima = asse.registratore.Registrata();
  Giornale voci(prima.Voci.Inizio.Righe, prima.Voci.Inizio.Ms);
  Lettore_Giornale lettore(prima.Voci, prima.Voci.Inizio);
  while (const auto voce = lettore.Prossima()) {
    if (!Dello_Scambio(voce->Entra))
      voci.Scrivi(voce->Righe, voce->Entra, prima.Voci.Programma(voce->Entra.Numero));
  }
  voci.Ultima_Riga = prima.Voci.Ultima_Riga;
  ASSERT_FALSE(Racconta_Lo_Scambio(voci));
  ASSERT_TRUE(Racconta_Lo_Scambio(prima.Voci));
  prima.Voci = std::move(voci);
  asse.registratore.Prendi(prima);
  asse.Confronta_Tutti();
  // And goes on, and back once more.
  ASSERT_TRUE(asse.registratore.Vai({.Righe = std::next(asse.Visti.begin(), 12)->first}));
  asse.registratore.Riprendi_Da_Qui();
  asse.Visti.erase(std::next(asse.Visti.begin(), 13), asse.Visti.end());
  asse.Corri(asse.plc.Tempo.Adesso() + 800);
  asse.Confronta_Tutti();
}

/// The bytes of a session's file with another version, and a checksum that fits.
std::string Con_Versione(std::string byte, char versione) {
  byte[sizeof("TAVORNO-SEDUTA ") - 1] = versione;
  std::uint64_t somma = 0xcbf29ce484222325ULL;
  for (std::size_t n = 0; n + 8 < byte.size(); ++n)
    somma = (somma ^ static_cast<std::uint8_t>(byte[n])) * 0x100000001b3ULL;
  for (unsigned n = 0; n < 8; ++n) byte[byte.size() - 8 + n] = static_cast<char>(somma >> 8 * n);
  return byte;
}

TEST(AxisReplay, FilesOfBothVersionsAreReadAndLaterOnesRefused) {
  Asse_In_Moto asse;
  asse.Corri(300);
  const std::string byte = Byte_Di(asse.registratore.Registrata());
  ASSERT_TRUE(byte.starts_with("TAVORNO-SEDUTA 2\n"));
  std::string motivo;
  for (const char versione : {'1', '2'}) {
    const auto letta = Leggi_Registrazione(Con_Versione(byte, versione), motivo);
    ASSERT_TRUE(letta) << motivo;
    EXPECT_TRUE(Racconta_Lo_Scambio(letta->Voci));
  }
  EXPECT_FALSE(Leggi_Registrazione(Con_Versione(byte, '3'), motivo));
  EXPECT_NE(motivo.find("versione 3"), std::string::npos) << motivo;
}

}  // namespace tavorno::prova
