// SPDX-License-Identifier: GPL-3.0-or-later
// The verdict on the program of a CPU, and what a failed case looks like when it is played again.
#include "grading/verification.h"

#include <gmock/gmock.h>

#include <chrono>

#include "recorder/replay.h"
#include "recorder/session.h"
#include "tests/unit/grading/grading_bed.h"

namespace tavorno::prova {

using ::testing::HasSubstr;

namespace {

/// What a look at each case found.
struct Visto {
  Caso Esito;
  std::optional<Seduta_Registrata> Film;
  std::vector<Segnale> Segnali;
  std::vector<Cambio_Segnale> Cambi;
};

class Riprese : public Banco_Esami {
 public:
  std::vector<Visto> Guarda(const std::vector<std::string>& righe, const std::string& script,
                            int impianto) {
    std::vector<Visto> visti;
    base.Riprendi = true;
    base.Al_Caso = [&](const Caso_Giocato& giocato) {
      visti.push_back({giocato.Esito, giocato.Film ? std::optional(*giocato.Film) : std::nullopt,
                       giocato.Tempi->Segnali(), giocato.Tempi->Cambi()});
    };
    Esito(righe, script, impianto);
    return visti;
  }
};

/// The film again, on a CPU and a plant of its own.
class Proiezione_Di_Prova {
 public:
  explicit Proiezione_Di_Prova(const Seduta_Registrata& film)
      : replica_(plc, film.Voci, film.Voci.Inizio) {
    Metti_Stato(plc, *film.Programma, film.Stato);
    avvisi_ = plc.Hook.Mostra.Ascolta([this](const Avviso& avviso) { avvisi.push_back(avviso); });
  }
  void Fino_A(std::int64_t ms) { replica_.Vai({.Ms = ms}); }
  void Fino_In_Fondo() { replica_.Vai(); }

  Orologio orologio;
  Plc plc{orologio};
  std::vector<Avviso> avvisi;

 private:
  Replica replica_;
  Iscrizione avvisi_;
};

/// What the diagram says of a moment: the last value of each signal up to then.
std::vector<double> Nel_Diagramma(const Visto& visto, std::int64_t ms) {
  std::vector<double> valori(visto.Segnali.size());
  for (const Cambio_Segnale& cambio : visto.Cambi) {
    if (cambio.Ms <= ms) valori[cambio.Quale] = cambio.Valore;
  }
  return valori;
}

}  // namespace

const std::vector<std::string> insegue = {"LD I0.1", "= Q0.0"};

TEST_F(Riprese, AFailedCaseIsAFilmUpToItsFirstFinding) {
  const auto visti = Guarda(insegue, R"(
    prova('buono', 1, function() run() attendi(10) punti(1, true, '') end)
    prova('cattivo', 2, function()
      run() attendi(100)
      premi('imgStart') attendi(50) rilascia('imgStart') attendi(150)
      punti(1, leggi('Q0.0') == 1, 'primo')
      premi("imgStart") attendi(500) punti(1, false, 'secondo')
    end))",
                            0);
  ASSERT_EQ(visti.size(), 2U);
  EXPECT_FALSE(visti[0].Film);
  ASSERT_TRUE(visti[1].Film);
  EXPECT_EQ(visti[1].Film->Titolo, "cattivo");
  Proiezione_Di_Prova film(*visti[1].Film);
  film.Fino_A(120);
  EXPECT_EQ(film.plc.SQ[0].Stato_QB(), 1);
  film.Fino_In_Fondo();
  EXPECT_EQ(film.orologio.Adesso(), 300);
  EXPECT_EQ(film.plc.SQ[0].Stato_QB(), 0) << "and what came behind is not in it";
}

TEST_F(Riprese, AFilmHoldsWhereTheProgramBreaks) {
  struct Riga {
    std::vector<std::string> Righe;
    std::string Perche;
  };
  const Riga righe[] = {
      {{"NOP", "LD SM0.0", "RET"}, "MEND"},
      {{"LD SM0.5", "EU", "S M0.7, 5"}, "fatale"},
  };
  for (const Riga& riga : righe) {
    const auto visti = Guarda(riga.Righe, R"(
      prova('rotto', 1, function() run() attendi(3000) punti(1, false, 'mai') end))",
                              -1);
    ASSERT_EQ(visti.size(), 1U);
    ASSERT_TRUE(visti[0].Film);
    EXPECT_THAT(visti[0].Esito.Rilievi.front().Testo, HasSubstr(riga.Perche));
    Proiezione_Di_Prova film(*visti[0].Film);
    film.Fino_In_Fondo();
    EXPECT_EQ(film.orologio.Adesso(), visti[0].Esito.Rilievi.front().Ms);
  }
}

TEST_F(Riprese, StopAndRunAreInTheFilmAsTheyWere) {
  const auto visti = Guarda({"LD SM0.0", "INCW VW0", "LD SM0.1", "INCW VW2", "LD I0.1", "= Q0.1"},
                            R"(
    prova('giri', 1, function()
      run() cicli(5) stop() attendi(40) ingresso('I0.1', 1) analogico(0, 5)
      run() attendi(7) scrivi('VW10', 77) stop()
      modo('Step') run() passo() passo() passo()
      stop() modo('Cont') run() attendi(3)
      print(leggi('VW0'), leggi('VW2'), leggi('AIW0'))
      punti(1, false, 'qui')
    end))",
                            -1);
  ASSERT_EQ(visti.size(), 1U);
  Proiezione_Di_Prova film(*visti[0].Film);
  film.Fino_In_Fondo();
  const Plc& plc = film.plc;
  EXPECT_EQ(visti[0].Esito.Note.at(0), std::to_string(plc.Mem_VW[0]) + " " +
                                           std::to_string(plc.Mem_VW[2]) + " " +
                                           std::to_string(plc.Mem_AIW[0]));
  EXPECT_EQ(plc.Mem_VW[10], 77);
  EXPECT_EQ(plc.SQ[0].Stato_QB(), 2);
}

/// Hands, faults, waits and messages on each plant, at any moment: the film shows what the diagram
/// does.
TEST_F(Riprese, AtEachMomentTheFilmIsTheDiagram) {
  const std::vector<std::string> righe = {
      "LD I0.0", "O I0.1",   "= Q0.0",     "LD I0.2", "= Q0.1",   "LD SM0.5",
      "= Q0.2",  "LD I0.3",  "TON T37, 4", "LD T37",  "= Q0.3",   "LD I0.4",
      "EU",      "INCW VW0", "LDN I0.5",   "= Q0.4",  "LD SM0.0", "MOVW VW0, AQW0"};
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    SCOPED_TRACE(esercizio.Indice);
    Orologio orologio;
    Plc plc(orologio);
    std::string mani;
    const std::unique_ptr<Impianto> macchina = esercizio.Crea(plc);
    for (const Figura& figura : macchina->Disegno) {
      if (figura.Operabile())
        mani += "clic('" + figura.Nome + "') attendi(37) premi('" + figura.Nome + "') attendi(61) ";
    }
    const auto visti = Guarda(righe,
                              "prova('mani', 1, function() run() attendi(50) " + mani +
                                  " stop() attendi(80) run() attendi(400) punti(1, false, 'qui') "
                                  "end)",
                              esercizio.Indice);
    ASSERT_EQ(visti.size(), 1U);
    ASSERT_TRUE(visti[0].Film) << visti[0].Esito.Rilievi.front().Testo;
    const std::int64_t fine = visti[0].Esito.Ms;
    Proiezione_Di_Prova film(*visti[0].Film);
    for (std::int64_t ms = 23; ms < fine; ms += 97) {
      film.Fino_A(ms);
      const std::vector<double> attesi = Nel_Diagramma(visti[0], ms);
      for (std::size_t n = 0; n < attesi.size(); ++n)
        ASSERT_EQ(Valore(visti[0].Segnali[n], film.plc), attesi[n])
            << visti[0].Segnali[n].Nome << " a " << ms << " ms";
    }
  }
}

// ---- the program of a CPU -----------------------------------------------------------------------

TEST_F(Riprese, WhatTheProgramHasDoneSoFarCountsForNothing) {
  Seduta seduta;
  ASSERT_TRUE(seduta.Apri(Progetto_Con({"LD I0.0", "EU", "S M0.0, 1", "LD M0.0", "= Q0.0"})));
  seduta.progetto.Compila();
  const Memoria pulita = seduta.plc;
  seduta.plc.SI[0].Stato_I("10000000");
  seduta.plc.mnuPlcStep();
  seduta.plc.mnuPlcRun();
  for (int riga = 0; riga < 40; ++riga) seduta.plc.CmdStep();
  EXPECT_NE(static_cast<const Memoria&>(seduta.plc), pulita);
  EXPECT_EQ(Appena_Caricata(Copia_Programma(seduta.plc)), pulita);
}

struct In_Corso : Riprese {
  Stesura Programma(const std::vector<std::string>& righe) {
    Seduta seduta;
    EXPECT_TRUE(seduta.Apri(Progetto_Con(righe)));
    seduta.progetto.Compila();
    return Copia_Programma(seduta.plc);
  }
  static Verifiche Con(const std::string& script, int impianto) {
    Verifiche verifiche;
    verifiche.Script.push_back({"esame.lua", script});
    verifiche.Impianto = &Tabella_Esercizi()[static_cast<std::size_t>(impianto)];
    return verifiche;
  }
  static std::vector<Caso_Verificato> Fino_Alla_Fine(Verifica_In_Corso& lavoro) {
    while (!lavoro.Finita()) std::this_thread::yield();
    return lavoro.Prendi();
  }
};

TEST_F(In_Corso, OnAThreadOfItsOwnTheVerdictIsTheSame) {
  const std::string script = R"(
    prova('uno', 1, function() run() attendi(10) punti(1, leggi('Q0.0') == 1, 'spento') end)
    prova('due', 2, function() run() attendi(10) punti(2, leggi('Q0.0') == 0, 'acceso') end))";
  const Stesura programma = Programma(insegue);
  Verifica_In_Corso lavoro(programma, Con(script, 0));
  const auto casi = Fino_Alla_Fine(lavoro);
  ASSERT_EQ(casi.size(), 2U);
  EXPECT_EQ(lavoro.Tutti(), 2U);
  EXPECT_EQ(casi[0].Esito, lavoro.Esito().Casi[0]);
  EXPECT_THAT(casi[0].Diagramma, HasSubstr("class=\"segno\""));
  EXPECT_TRUE(casi[0].Film);
  EXPECT_EQ(casi[1].Diagramma, "");
  EXPECT_FALSE(casi[1].Film);
  EXPECT_EQ(lavoro.Esito().Casi, Verifica(programma, Con(script, 0)).Casi);
}

TEST_F(In_Corso, ItEndsSoonWhenNobodyWantsIt) {
  // Hours of a machine that does not rest.
  const std::string script =
      "for n = 1, 900 do prova('caso ' .. n, 1, function() run() attendi(3600000) end) end";
  Verifica_In_Corso lavoro(Programma({"LD SM0.0", "INCW VW0", "LD SM0.6", "= Q0.0"}),
                           Con(script, 9));
  lavoro.Annulla();
  EXPECT_TRUE(lavoro.Annullata());
  EXPECT_LT(Fino_Alla_Fine(lavoro).size(), 900U);
  // And one that nobody stops ends with its object.
  const Verifica_In_Corso altro(Programma({"LD SM0.6", "= Q0.0"}), Con(script, 9));
}

TEST_F(In_Corso, ACaseInTheMiddleIsLeftToo) {
  const std::string script = "prova('lungo', 1, function() run() attendi(20000000) end)";
  Verifica_In_Corso lavoro(Programma({"LD SM0.6", "= Q0.0"}), Con(script, 0));
  lavoro.Annulla();
  EXPECT_EQ(Fino_Alla_Fine(lavoro).size(), 0U);
}

}  // namespace tavorno::prova
