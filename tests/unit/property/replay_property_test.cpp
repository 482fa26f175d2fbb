// SPDX-License-Identifier: GPL-3.0-or-later
// Random sessions on all plants: played again they are the same, to the last figure.
#include <gtest/gtest.h>

#include <cstdlib>

#include "random_session.h"
#include "recorder/session.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

/// A CPU of its own, with the plant that the replay leaves.
struct Rifatta {
  Orologio orologio;
  Plc plc{orologio};
  std::optional<Replica> replica;
  bool Fatale_Visto = false;

  explicit Rifatta(const Seduta_Registrata& registrazione) {
    Metti_Stato(plc, *registrazione.Programma, registrazione.Stato);
    replica.emplace(plc, registrazione.Voci, registrazione.Voci.Inizio);
    replica->In_Giro = registrazione.Stato.In_Giro != Giro::Nessuno;
  }
  void Vai(Momento momento = {}) {
    try {
      replica->Vai(momento);
    } catch (const Fatale&) {
      Fatale_Visto = true;
    } catch (const Giornale_Discorde& discorde) {
      ADD_FAILURE() << discorde.what();
    }
  }
  Stato_Intero Stato() { return Elenca_Stato(plc, replica->Impianto); }
};

/// A fatal end leaves the scan time as it was last shown, between two yields and not at a line.
Stato_Intero Senza_Tempo_Mostrato(Stato_Intero stato) {
  std::erase_if(stato, [](const auto& riga) { return riga.first == "etTime"; });
  return stato;
}

int Seme_Da() {
  const char* da = std::getenv("TAVORNO_SEME");
  return da ? std::atoi(da) : 1;
}
int Sessioni() {
  const char* quante = std::getenv("TAVORNO_SESSIONI");
  return quante ? std::atoi(quante) : 76;
}

int Impianto_Del_Seme(unsigned seme) {
  return static_cast<int>(seme % 19) - 1;  // -1: none
}

}  // namespace

/// What each of the moments that were looked at was like, when one goes back to it.
void Confronta_I_Momenti(Sessione_Casuale& sessione) {
  Registratore& registratore = *sessione.registratore;
  registratore.Apri = [&](int) {
    sessione.Fili()->Apri();
    return sessione.Impianto();
  };
  const Stato_Intero presente = Elenca_Stato(sessione.plc, sessione.Impianto());
  std::vector<Sessione_Casuale::Visto> visti = std::move(sessione.Visti);
  std::ranges::shuffle(visti, sessione.Generatore());
  for (const Sessione_Casuale::Visto& visto : visti) {
    ASSERT_TRUE(registratore.Vai({.Righe = visto.Quando.Righe}));
    ASSERT_EQ(Prima_Differenza(Elenca_Stato(sessione.plc, sessione.Impianto()), visto.Stato), "")
        << "after " << visto.Quando.Righe << " lines";
    ASSERT_EQ(Byte_Di_Stato(sessione.plc, sessione.Impianto()), visto.Byte);
    for (const Sessione_Casuale::Visto& altro : visti)
      ASSERT_EQ(visto.Byte == altro.Byte, visto.Stato == altro.Stato);
  }
  registratore.Torna_Al_Presente();
  ASSERT_EQ(Prima_Differenza(Elenca_Stato(sessione.plc, sessione.Impianto()), presente), "");
}

/// Plays a session, plays it again, and goes back in it. Returns whether it had a fatal end.
bool Prova(unsigned seme) {
  SCOPED_TRACE("seed " + std::to_string(seme));
  Sessione_Casuale sessione(seme, Impianto_Del_Seme(seme));
  sessione.Gioca(400);
  const Seduta_Registrata registrazione = sessione.registratore->Registrata();
  Rifatta rifatta(registrazione);
  rifatta.Vai();
  EXPECT_EQ(rifatta.Fatale_Visto, sessione.Fatale_Visto);
  Stato_Intero rifatto = rifatta.Stato();
  Stato_Intero vero = Elenca_Stato(sessione.plc, sessione.Impianto());
  if (sessione.Fatale_Visto) {
    rifatto = Senza_Tempo_Mostrato(std::move(rifatto));
    vero = Senza_Tempo_Mostrato(std::move(vero));
  }
  EXPECT_EQ(Prima_Differenza(rifatto, vero), "");
  if (!sessione.Fatale_Visto) Confronta_I_Momenti(sessione);
  return sessione.Fatale_Visto;
}

TEST(Replay, GivesTheSameSessionOnAllPlants) {
  int fatali = 0;
  for (int seme = Seme_Da(); seme < Seme_Da() + Sessioni() && !HasFailure(); ++seme)
    fatali += Prova(static_cast<unsigned>(seme));
  EXPECT_LT(2 * fatali, Sessioni() + 2);
}

/// A program of our own, and its recorder.
struct Registrata_A_Mano {
  explicit Registrata_A_Mano(const std::vector<std::string>& righe) {
    EXPECT_TRUE(seduta.Leggi(Byte_Di_Progetto(righe)));
    seduta.progetto.Compila();
    EXPECT_EQ(seduta.progetto.Errori, 0);
    registratore.emplace(seduta.plc);
  }
  void Confronta(Collegamento* fili) {
    const Seduta_Registrata registrazione = registratore->Registrata();
    Rifatta rifatta(registrazione);
    rifatta.Vai();
    EXPECT_EQ(Prima_Differenza(rifatta.Stato(), Elenca_Stato(seduta.plc, fili)), "");
  }
  Seduta seduta;
  Plc& plc = seduta.plc;
  std::optional<Registratore> registratore;
};

// Random sessions found these two.

TEST(Replay, AnOutputIsToldInTheMiddleOfTheStepThatBringsIt) {
  Registrata_A_Mano r({"LD SM0.0", "= Q0.0"});
  Stato_Impianto stato;
  Collegamento fili(r.plc, stato, Tabella_Esercizi()[0]);
  fili.Carica();
  r.plc.Entra(Comando_Corsa::Step);
  r.plc.Entra(Comando_Corsa::Run);
  for (int passo = 0; passo < 12; ++passo) r.plc.Entra(Comando_Corsa::Passo);
  EXPECT_EQ(r.plc.SQ[0].Stato_Q(), "10000000");
  r.Confronta(&fili);
}

TEST(Replay, ARunThatAPauseLeftEndsAsItWouldHaveEnded) {
  Registrata_A_Mano r({"LD SM0.0", "= Q0.0"});
  r.registratore->Ms_Tra_Tappe = 1;
  int cessioni = 0;
  const Iscrizione cessione = r.plc.Hook.Ascolta_Cedi([&] {
    if (r.plc.Hook.Adesso != Vissuto::Presente) return;
    r.plc.Entra({.Che = Cosa::Presente, .Numero = r.plc.Tempo.Adesso() + 3});
    ++cessioni;
    if (cessioni == 7) r.plc.Entra(Comando_Corsa::Pausa);
    if (cessioni == 20) r.plc.Entra(Comando_Corsa::Stop);
  });
  r.plc.Entra(Di_Scelta(Scelta_Pannello::chkList, 0));  // the time is shown at the end alone
  r.plc.Entra(Comando_Corsa::Run);
  EXPECT_TRUE(r.plc.In_Pausa());
  const std::string a_meta = r.plc.etTime;
  EXPECT_EQ(a_meta, "0");
  r.plc.Entra(Comando_Corsa::Continua);
  EXPECT_FALSE(r.plc.In_Pausa());
  EXPECT_NE(r.plc.etTime, a_meta);
  const Stato_Intero fine = Elenca_Stato(r.plc, nullptr);
  r.Confronta(nullptr);
  ASSERT_TRUE(r.registratore->Riga_Indietro());
  r.registratore->Torna_Al_Presente();
  EXPECT_EQ(Prima_Differenza(Elenca_Stato(r.plc, nullptr), fine), "");
}

TEST(Replay, TheLastChangeNamesItsLine) {
  Registrata_A_Mano r({"LD I0.0", "= Q0.0", "LD SM0.5", "= Q0.1"});
  int cessioni = 0;
  const Iscrizione cessione = r.plc.Hook.Ascolta_Cedi([&] {
    if (r.plc.Hook.Adesso != Vissuto::Presente) return;
    r.plc.Entra({.Che = Cosa::Presente, .Numero = r.plc.Tempo.Adesso() + 1});
    if (++cessioni == 50) r.plc.Entra(Di_Ingresso(0, "10000000"));
    if (cessioni == 400) r.plc.Entra(Comando_Corsa::Pausa);
  });
  r.plc.Entra(Comando_Corsa::Run);
  int riga = -1;
  ASSERT_TRUE(r.registratore->Ultimo_Cambio(
      [](const Plc& plc) { return plc.IP_Q[0].Bit_Img[0] != 0 ? 1.0 : 0.0; }, riga));
  EXPECT_EQ(Testo_Riga(r.plc.Prog[riga]).substr(0, 1), "=");
  EXPECT_EQ(r.plc.IP_Q[0].Bit_Img[0], 1);
  EXPECT_LT(r.plc.Righe_Fatte, 60);
  r.registratore->Riprendi_Da_Qui();
  EXPECT_TRUE(r.plc.In_Pausa());
  r.Confronta(nullptr);
}

}  // namespace tavorno::prova
