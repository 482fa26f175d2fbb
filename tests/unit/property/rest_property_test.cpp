// SPDX-License-Identifier: GPL-3.0-or-later
// Random programs and plants, run with and without leaving out scans that change nothing.
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <random>
#include <sstream>

#include "plants/exercises.h"
#include "plants/link.h"
#include "plc/instructions.h"
#include "random_program.h"
#include "recorder/virtual_run.h"

namespace tavorno::prova {

namespace {

/// What enters a run.
struct Entrate {
  Memoria Programma;
  const Esercizio* Impianto = nullptr;
  std::vector<Evento_Ingresso> Ingressi;
  std::vector<Gesto> Mani;
  Limiti Confini;
};

/// What a run leaves: everything that can be seen of it.
struct Uscita {
  std::string Diario;  // changes of inputs and outputs, the recorded signals, how it ended
  Memoria Memoria_Finale;
  std::int64_t Saltate = 0;
};

Uscita Corri(const Entrate& entrate, bool ogni_scansione) {
  Orologio orologio;
  Plc plc(orologio);
  std::ostringstream diario;
  const Iscrizione ascolto = plc.Hook.Mostra.Ascolta(
      [&](const Avviso& avviso) { diario << orologio.Adesso() << ' ' << avviso.Testo << '\n'; });
  static_cast<Memoria&>(plc) = entrate.Programma;

  Stato_Impianto stato;
  std::optional<Collegamento> impianto;
  if (entrate.Impianto) impianto.emplace(plc, stato, *entrate.Impianto);
  Traccia traccia(Righe_Di(entrate.Impianto));
  Limiti limiti = entrate.Confini;
  limiti.Ogni_Scansione = ogni_scansione;
  Corsa corsa(plc, limiti);
  corsa.Ingressi = entrate.Ingressi;
  corsa.Mani = entrate.Mani;
  corsa.Impianto_Collegato = impianto ? &*impianto : nullptr;
  corsa.Registra = &traccia;
  corsa.Cambio = [&](std::int64_t ms, char area, int byte, int bit, bool acceso) {
    diario << ms << ' ' << area << byte << '.' << bit << acceso << '\n';
  };
  corsa.Senza_Effetto = [&](std::int64_t ms, const Gesto& gesto) {
    diario << ms << ' ' << gesto.Come_Testo() << '\n';
  };
  const Fine_Corsa fine = corsa.Esegui();
  diario << "fine " << static_cast<int>(fine) << ' ' << corsa.Tempo() << ' ' << plc.N_Cicli << ' '
         << plc.T_Inizio << ' ' << plc.Tempo_Ciclo << ' ' << plc.etTime << ' '
         << orologio.Prossimo() << ' ' << corsa.Rapporto() << '\n';
  for (const LedI& barra : plc.SI) diario << barra.Stato_I() << ' ' << int{barra.Accesi()} << '\n';
  for (const LedQ& barra : plc.SQ) diario << barra.Stato_Q() << ' ' << int{barra.Accesi()} << '\n';
  if (impianto) {
    diario << impianto->Macchina().Stato_I() << impianto->Macchina().Stato_Q() << '\n';
    for (const Figura& figura : impianto->Macchina().Disegno)
      diario << figura.Nome << ' ' << figura.Picture() << ' ' << figura.Visible << '\n';
  }
  for (const Cambio_Segnale& cambio : traccia.Cambi())
    diario << cambio.Ms << ' ' << cambio.Quale << ' ' << cambio.Valore << '\n';
  return {diario.str(), plc, corsa.Scansioni_Saltate()};
}

/// Puts lines in that toggle at each scan, that look at it and that hide what they saw, which
/// chance alone seldom brings together.
void Semina_Alternanze(Memoria& programma, const Caso& caso) {
  static const struct {
    const char *Istr, *Area;
    std::int16_t Bit;
  } semi[] = {{"LD", "SM", 6}, {"A", "SM", 6},  {"EU", "", -1},  {"ED", "", -1},
              {"LPP", "", -1}, {"LD", "SM", 5}, {"LDN", "SM", 6}};
  for (Riga_PLC& riga : programma.Prog) {
    if (riga.Nel_Programma != Compito::Nessuno || caso(3) != 0) continue;
    const auto& seme = semi[caso(static_cast<unsigned>(std::size(semi) - 1))];
    riga.Istr = seme.Istr;
    riga.Area1 = seme.Area;
    riga.Area2.clear();
    riga.Num1 = 0;
    riga.Bit1 = seme.Bit;
    riga.NOper = seme.Bit < 0 ? 0 : 1;
    Decodifica(riga);
  }
}

/// Puts lines in that count, and that hold what counts or rises against a constant: a run may sleep
/// through the ticks in between, but not through the one that tells.
void Semina_Conteggi(Memoria& programma, const Caso& caso) {
  static const struct {
    const char *Istr, *Area;
    std::int16_t Num, Massimo;
  } semi[] = {{"TON", "T", 37, 14},      {"TONR", "T", 37, 14},     {"TOF", "T", 37, 14},
              {"LDW>=", "T", 37, 14},    {"AW=", "T", 37, 14},      {"OW<>", "T", 37, 3},
              {"LDW>", "AIW", 0, 32000}, {"AW<=", "AIW", 2, 32000}, {"R", "T", 37, 1},
              {"INCW", "T", 37, -1},     {"LD", "SM", 0, -1}};
  for (Riga_PLC& riga : programma.Prog) {
    if (riga.Nel_Programma != Compito::Nessuno || caso(3) != 0) continue;
    const auto& seme = semi[caso(static_cast<unsigned>(std::size(semi) - 1))];
    const bool costante = seme.Massimo >= 0;
    riga.Istr = seme.Istr;
    riga.Area1 = seme.Area;
    riga.Area2 = costante ? "K" : "";
    riga.Num1 = seme.Num;
    riga.Num2 = costante ? static_cast<std::int16_t>(caso(static_cast<unsigned>(seme.Massimo))) : 0;
    riga.Bit1 = seme.Area == std::string_view("SM") ? 0 : -1;
    riga.NOper = costante ? 2 : 1;
    Decodifica(riga);
  }
}

Entrate Entrate_Casuali(const Memoria& programma, const Caso& caso) {
  Entrate entrate;
  entrate.Programma = programma;
  entrate.Confini.Durata = 1 + caso(1500);
  entrate.Confini.Scansione = caso(3) ? 1 : static_cast<int>(1 + caso(40));
  entrate.Confini.Righe_Scansione = 2000;
  const auto istante = [&] { return static_cast<std::int64_t>(caso(1500)); };
  if (caso(2) == 0) {
    const auto esercizi = Tabella_Esercizi();
    entrate.Impianto = &esercizi[caso(static_cast<unsigned>(esercizi.size() - 1))];
    Orologio orologio;
    Plc plc(orologio);
    std::vector<std::string> nomi;
    const auto macchina = entrate.Impianto->Crea(plc);
    for (const Figura& figura : macchina->Disegno) {
      if (figura.Operabile()) nomi.push_back(figura.Nome);
    }
    for (unsigned n = caso(6); n > 0 && !nomi.empty(); --n)
      entrate.Mani.push_back({istante(), static_cast<Azione>(caso(3)),
                              nomi[caso(static_cast<unsigned>(nomi.size() - 1))], 0});
  } else {
    for (unsigned n = caso(6); n > 0; --n) {
      Evento_Ingresso evento;
      evento.Ms = istante();
      evento.Analogico = caso(5) == 0;
      evento.Byte = static_cast<int>(caso(1));
      evento.Bit = static_cast<int>(caso(7));
      evento.Acceso = caso(1) == 1;
      evento.Canale = static_cast<int>(caso(2));
      evento.Valore = static_cast<float>(caso(10));
      entrate.Ingressi.push_back(evento);
    }
  }
  std::ranges::stable_sort(entrate.Ingressi, {}, &Evento_Ingresso::Ms);
  std::ranges::stable_sort(entrate.Mani, {}, &Gesto::Ms);
  return entrate;
}

}  // namespace

// TAVORNO_PROGRAMMI asks for another number of programs, and TAVORNO_SEME for others.
TEST(RestProperty, ScansLeftOutChangeNothingThatCanBeSeen) {
  const char* quanti = std::getenv("TAVORNO_PROGRAMMI");
  const char* seme = std::getenv("TAVORNO_SEME");
  std::mt19937 generatore(seme ? static_cast<unsigned>(std::atol(seme)) : 20261122U);
  const Caso caso = [&](unsigned massimo) {
    return static_cast<unsigned>(generatore() % (std::uint64_t{massimo} + 1));
  };
  const int programmi = quanti ? std::atoi(quanti) : 10000;
  std::int64_t saltate = 0;
  std::int64_t scansioni = 0;
  int riposati = 0;
  for (int n = 0; n < programmi; ++n) {
    Orologio orologio;
    Plc plc(orologio);
    Progetto progetto(plc, {});
    do {
      Programma_Casuale(progetto, caso, static_cast<int>(2 + caso(caso(3) ? 15 : 80)));
    } while (!progetto.Compilato);
    if (caso(1) == 0) Semina_Alternanze(plc, caso);
    if (caso(1) == 0) Semina_Conteggi(plc, caso);
    Memoria_Casuale(plc, caso);
    const Entrate entrate = Entrate_Casuali(plc, caso);
    const Uscita tutte = Corri(entrate, true);
    const Uscita saltando = Corri(entrate, false);
    ASSERT_EQ(tutte.Diario, saltando.Diario) << "program " << n << '\n' << progetto.Lista_Comp;
    ASSERT_TRUE(tutte.Memoria_Finale == saltando.Memoria_Finale) << "program " << n << '\n'
                                                                 << progetto.Lista_Comp;
    ASSERT_EQ(tutte.Saltate, 0);
    saltate += saltando.Saltate;
    scansioni += entrate.Confini.Durata / entrate.Confini.Scansione;
    riposati += saltando.Saltate > 0;
  }
  RecordProperty("scansioni", std::to_string(scansioni));
  RecordProperty("saltate", std::to_string(saltate));
  EXPECT_GT(riposati, programmi / 10) << saltate << " scans of " << scansioni;
}

}  // namespace tavorno::prova
