// SPDX-License-Identifier: GPL-3.0-or-later
// Random sessions on all plants: played again they are the same, to the last figure.
#include <gtest/gtest.h>

#include <cstdlib>

#include "random_session.h"

namespace tavorno::prova {

namespace {

/// A CPU of its own, with the plant that the replay leaves.
struct Rifatta {
  Orologio orologio;
  Plc plc{orologio};
  std::optional<Replica> replica;
  bool Fatale_Visto = false;

  explicit Rifatta(const Registrazione& registrazione) {
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
  }
  registratore.Torna_Al_Presente();
  ASSERT_EQ(Prima_Differenza(Elenca_Stato(sessione.plc, sessione.Impianto()), presente), "");
}

TEST(Replay, GivesTheSameSessionOnAllPlants) {
  int fatali = 0;
  for (int seme = Seme_Da(); seme < Seme_Da() + Sessioni(); ++seme) {
    const auto numero = static_cast<unsigned>(seme);
    Sessione_Casuale sessione(numero, Impianto_Del_Seme(numero));
    sessione.Gioca(400);
    const Registrazione registrazione = sessione.registratore->Registrata();
    Rifatta rifatta(registrazione);
    SCOPED_TRACE("seed " + std::to_string(seme));
    rifatta.Vai();
    ASSERT_EQ(rifatta.Fatale_Visto, sessione.Fatale_Visto);
    Stato_Intero rifatto = rifatta.Stato();
    Stato_Intero vero = Elenca_Stato(sessione.plc, sessione.Impianto());
    if (sessione.Fatale_Visto) {
      rifatto = Senza_Tempo_Mostrato(std::move(rifatto));
      vero = Senza_Tempo_Mostrato(std::move(vero));
    }
    ASSERT_EQ(Prima_Differenza(rifatto, vero), "");
    fatali += sessione.Fatale_Visto;
    if (!sessione.Fatale_Visto) Confronta_I_Momenti(sessione);
    if (HasFatalFailure()) return;
  }
  EXPECT_LT(2 * fatali, Sessioni() + 2);
}

}  // namespace tavorno::prova
