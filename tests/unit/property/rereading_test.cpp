// SPDX-License-Identifier: GPL-3.0-or-later
// What a diagram that is opened late is told of the time before: the same as one that was there.
#include "recorder/rereading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "recorder/past_flow.h"
#include "recorder/session.h"
#include "tests/support/temporary_folder.h"
#include "trace/probe.h"

namespace tavorno::prova {

namespace {

using namespace std::chrono_literals;

/// A session that somebody has looked at all the time.
class Guardata {
 public:
  explicit Guardata(const std::vector<std::string>& righe) {
    EXPECT_TRUE(seduta.Leggi(Byte_Di_Progetto(righe)));
    seduta.progetto.Compila();
    EXPECT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
    registratore.Programma_Nuovo();
    for (const Segnale& segnale : Segnali()) viva.Aggiungi(segnale);
    cessione_ = plc.Hook.Ascolta_Cedi_Righe([this] {
      if (plc.Hook.Adesso != Vissuto::Presente) return 1'000'000;
      if (plc.PC != 0) return 7;
      Passa(1 + plc.Tempo.Adesso() % 3);
      if (plc.Tempo.Adesso() >= fine_) plc.Entra(Comando_Corsa::Pausa);
      return 7;
    });
    sonda.emplace(plc, viva);
    sonda->Guarda();
  }
  static std::vector<Segnale> Segnali() {
    std::vector<Segnale> segnali;
    for (const char* nome : {"I0.0", "Q0.0", "Q0.1", "VW10", "T37.Val", "SM0.5"})
      segnali.push_back(*Cerca_Segnale(nome, {}));
    return segnali;
  }
  void Passa(std::int64_t ms) {
    plc.Entra({.Che = Cosa::Presente, .Numero = plc.Tempo.Adesso() + ms});
  }
  /// The hand does something while the CPU stands, and somebody looks.
  void Da_Ferma(const Atto& atto) {
    plc.Entra(atto);
    sonda->Guarda();
    Passa(5);
    sonda->Guarda();
  }
  void Corri(std::int64_t ms) {
    fine_ = plc.Tempo.Adesso() + ms;
    plc.Entra(plc.In_Pausa() ? Comando_Corsa::Continua : Comando_Corsa::Run);
  }

  Seduta seduta;
  Plc& plc = seduta.plc;
  Registratore registratore{plc};
  Registrazione viva;
  std::optional<Sonda> sonda;

 private:
  Iscrizione cessione_;
  std::int64_t fine_ = 0;
};

const std::vector<std::string> programma = {"LD I0.0", "= Q0.0", "LDN T37",   "TON T37, 2",
                                            "LD T37",  "EU",     "INCW VW10", "LD SM0.5",
                                            "A Q0.0",  "= Q0.1"};

void Vivi(Guardata& guardata) {
  Plc& plc = guardata.plc;
  guardata.Da_Ferma(Di_Ingresso(0, "10000000"));
  guardata.Corri(1200);
  guardata.Da_Ferma(Di_Ingresso(0, "00000000"));
  guardata.Corri(900);
  guardata.Da_Ferma(Di_Comando(Comando_Corsa::Stop));
  guardata.Da_Ferma(Di_Ingresso(0, "10000000"));
  guardata.Da_Ferma(Di_Comando(Comando_Corsa::Step));
  guardata.Da_Ferma(Di_Comando(Comando_Corsa::Run));
  for (int passo = 0; passo < 25; ++passo) guardata.Da_Ferma(Di_Comando(Comando_Corsa::Passo));
  EXPECT_NE(plc.Mem_VW[10], 0);
}

void Uguali(const Registrazione& una, const Registrazione& altra, std::int64_t da, std::int64_t a) {
  ASSERT_LT(da, a);
  for (const Segnale& segnale : Guardata::Segnali()) {
    const auto qui = una.Cerca(segnale.Indirizzo), li = altra.Cerca(segnale.Indirizzo);
    ASSERT_TRUE(qui && li) << segnale.Indirizzo;
    EXPECT_GT(una.Quando(*qui).Cambi(), 2U) << segnale.Indirizzo;
    for (std::int64_t ms = da; ms <= a; ++ms)
      ASSERT_EQ(una.Quando(*qui).A(ms), altra.Quando(*li).A(ms))
          << segnale.Indirizzo << " at " << ms;
  }
}

/// Who looks on marks a scan that a pause holds up twice, when it should begin and when it does.
void Stesse_Scansioni(const Registrazione& una, const Registrazione& viva, std::size_t pause) {
  const auto segni = una.Inizi_Scansione().Fra(0, una.Fine(), 100'000);
  const auto veri = viva.Inizi_Scansione().Fra(0, una.Fine(), 100'000);
  EXPECT_TRUE(std::ranges::includes(veri, segni));
  EXPECT_LE(veri.size() - segni.size(), pause);
  EXPECT_GT(segni.size(), 100U);
}

}  // namespace

TEST(Rereading, TellsWhatSomebodySawWhoWasThereAllTheTime) {
  Guardata guardata(programma);
  Vivi(guardata);
  Rilettura rilettura(guardata.registratore, Guardata::Segnali());
  while (rilettura.Avanti(1s)) {
  }
  EXPECT_EQ(rilettura.Fatta(), 1);
  const Registrazione& dati = rilettura.Dati();
  EXPECT_EQ(dati.Inizio(), rilettura.Da());
  EXPECT_EQ(dati.Fine(), guardata.plc.Tempo.Adesso());
  Uguali(dati, guardata.viva, dati.Inizio(), dati.Fine());
  Stesse_Scansioni(dati, guardata.viva, 2);
}

TEST(Rereading, ComesToTheSameInTheSmallestSlices) {
  Guardata guardata(programma);
  Vivi(guardata);
  Rilettura una(guardata.registratore, Guardata::Segnali());
  Rilettura altra(guardata.registratore, Guardata::Segnali());
  while (una.Avanti(1s)) {
  }
  int fette = 0;
  double prima = 0;
  while (altra.Avanti(1ns)) {
    EXPECT_GE(altra.Fatta(), prima);
    prima = altra.Fatta();
    ASSERT_LT(++fette, 1'000'000);
    // The session itself goes on meanwhile.
    if (fette == 50) guardata.Corri(300);
  }
  EXPECT_GT(fette, 100);
  Uguali(una.Dati(), altra.Dati(), una.Dati().Inizio(), una.Dati().Fine());
}

TEST(Rereading, FillsWhatALateRecordingLacks) {
  Guardata guardata(programma);
  guardata.Corri(300);
  guardata.Da_Ferma(Di_Ingresso(0, "10000000"));
  guardata.Corri(700);
  Registrazione tardi;
  for (const Segnale& segnale : Guardata::Segnali()) tardi.Aggiungi(segnale);
  Sonda tarda(guardata.plc, tardi);
  tarda.Guarda();
  const std::int64_t aperta = tardi.Inizio();
  ASSERT_GT(aperta, 600);
  Rilettura rilettura(guardata.registratore, Guardata::Segnali());
  tardi.Comincia(rilettura.Da());
  EXPECT_EQ(tardi.Inizio(), rilettura.Da());
  EXPECT_FALSE(tardi.Quando(0).A(aperta - 1)) << "not known yet";
  guardata.Corri(800);
  while (rilettura.Avanti(1s)) {
  }
  guardata.plc.Entra(Di_Ingresso(0, "00000000"));
  guardata.sonda->Guarda();
  tarda.Guarda();
  guardata.Corri(800);
  tardi.Anteponi(rilettura.Dati());
  Uguali(tardi, guardata.viva, rilettura.Da(), guardata.plc.Tempo.Adesso());
  for (std::size_t numero = 0; numero < tardi.Quanti(); ++numero) {
    EXPECT_EQ(tardi.Quando(numero).Cambi(), guardata.viva.Quando(numero).Cambi())
        << "no edge where the two meet: " << tardi.Chi(numero).Indirizzo;
    EXPECT_EQ(tardi.Quando(numero).Estremi(), guardata.viva.Quando(numero).Estremi());
  }
  Stesse_Scansioni(tardi, guardata.viva, 3);
  // Once more changes nothing.
  const std::int64_t cambi = tardi.Cambi();
  tardi.Anteponi(rilettura.Dati());
  EXPECT_EQ(tardi.Cambi(), cambi);
}

TEST(Rereading, ThePowerOfAPastMomentIsThatOfItsScan) {
  Guardata guardata({"LD I0.0", "A SM0.5", "= Q0.0", "LDN I0.0", "= Q0.1"});
  guardata.Corri(100);
  guardata.plc.Entra(Di_Ingresso(0, "10000000"));
  guardata.Corri(2000);
  Registratore& registratore = guardata.registratore;
  Plc& plc = guardata.plc;
  const auto testo = [&] {
    std::string flussi;
    for (const Flusso_Riga flusso : Flusso_Al_Momento(registratore))
      flussi += flusso == Flusso_Riga::Ignoto ? '.' : flusso == Flusso_Riga::Acceso ? '1' : '0';
    return flussi;
  };
  std::set<std::string> visti;
  for (const std::int64_t ms : {60, 90, 150, 400, 700, 1200, 1900}) {
    ASSERT_TRUE(registratore.Vai({.Ms = ms}));
    ASSERT_TRUE(registratore.Scansione_Indietro());
    ASSERT_EQ(plc.PC, 0);
    // The last scan was run with what its lines show now; nothing has entered since.
    const bool i00 = plc.IP_I[0].Bit_Img[0] != 0, q00 = plc.IP_Q[0].Bit_Img[0] != 0;
    const std::string flussi = testo();
    EXPECT_EQ(flussi, i00 ? (q00 ? "11100." : "10000.") : "00011.") << "before " << ms;
    visti.insert(flussi);
  }
  EXPECT_EQ(visti.size(), 3U);
  ASSERT_TRUE(registratore.Vai({.Righe = registratore.Primo().Righe}));
  EXPECT_EQ(testo(), "") << "there is no scan before";
  registratore.Torna_Al_Presente();
  // In the middle of a scan the lines that are still to come are unknown.
  ASSERT_TRUE(registratore.Scansione_Indietro());
  const std::string prima = testo();
  ASSERT_TRUE(registratore.Riga_Avanti());
  ASSERT_TRUE(registratore.Riga_Avanti());
  EXPECT_EQ(testo().substr(0, 1), "1");
  EXPECT_EQ(testo().substr(2), "....");
  ASSERT_TRUE(registratore.Scansione_Indietro());
  EXPECT_EQ(testo(), prima);
}

}  // namespace tavorno::prova
