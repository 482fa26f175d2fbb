// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/hands.h"

#include <cmath>
#include <optional>
#include <set>
#include <sstream>

#include "plants/faults.h"
#include "recorder/entry_reader.h"

namespace tavorno {

namespace {

struct Riga_Azione {
  Azione Cosa;
  const char* Parola;
  const char* Verbo;  ///< in "non ha ... da premere"
};

constexpr Riga_Azione azioni[] = {
    {Azione::Premi, "premi", "da premere"},    {Azione::Rilascia, "rilascia", "da rilasciare"},
    {Azione::Clic, "clic", "per un clic"},     {Azione::Doppio, "doppio", "per un doppio clic"},
    {Azione::Regola, "regola", "da regolare"}, {Azione::Guasto, "guasto", "da guastare"},
};

bool Con_Valore(Azione cosa) {
  return cosa == Azione::Regola || cosa == Azione::Guasto;
}

const Riga_Azione& Riga_Di(Azione cosa) {
  return *std::ranges::find(azioni, cosa, &Riga_Azione::Cosa);
}

std::string Testo_Di(double valore) {
  std::ostringstream testo;
  testo << valore;
  return testo.str();
}

/// One movement of the list; empty when it is not well formed.
std::optional<Gesto> Leggi_Gesto(std::string_view testo) {
  Voce voce(testo);
  Gesto gesto;
  gesto.Ms = voce.Istante();
  voce.Vuole(":");
  const auto azione = std::ranges::find_if(
      azioni, [&voce](const Riga_Azione& riga) { return voce.Inizia_Con(riga.Parola); });
  if (azione == std::end(azioni)) return {};
  gesto.Cosa = azione->Cosa;
  voce.Vuole(":");
  gesto.Nome = voce.Nome_Fino_A('=');
  if (Con_Valore(gesto.Cosa)) {
    voce.Vuole("=");
    gesto.Valore = voce.Numero(-1'000'000.0, 1'000'000.0);
  }
  if (!voce.Finita_Bene()) return {};
  return gesto;
}

/// Where a slider or an up/down can stand.
struct Campo {
  double Minimo, Massimo, Passo;

  bool Contiene(double valore) const {
    return valore >= Minimo && valore <= Massimo && std::remainder(valore - Minimo, Passo) == 0;
  }
};

const Cursore* Trova_Cursore(const Esercizio& esercizio, std::string_view nome) {
  const auto trovato = std::ranges::find(esercizio.Cursori, nome, &Cursore::Nome);
  return trovato == esercizio.Cursori.end() ? nullptr : &*trovato;
}

/// Of a slider, or of a figure that is an up/down; empty for anything else.
std::optional<Campo> Campo_Di(const Esercizio& esercizio, const Impianto& macchina,
                              std::string_view nome) {
  if (const Cursore* cursore = Trova_Cursore(esercizio, nome))
    return Campo{static_cast<double>(cursore->Minimo), static_cast<double>(cursore->Massimo),
                 static_cast<double>(cursore->Passo_Piccolo)};
  const Regolatore* regolatore = macchina.Trova_Regolatore(nome);
  if (!regolatore) return {};
  return Campo{regolatore->Minimo, regolatore->Massimo, regolatore->Passo};
}

/// The figure listens to this action of the mouse.
bool Sente(const Figura& figura, Azione cosa) {
  switch (cosa) {
    case Azione::Premi:
    case Azione::Rilascia:
      return figura.Premi || figura.Rilascia;
    case Azione::Clic:
      return figura.Clic != nullptr;
    case Azione::Doppio:
      return figura.Doppio_Clic != nullptr;
    case Azione::Regola:
    case Azione::Guasto:
      break;
  }
  return false;
}

/// All names that fit the action, in the order of the picture.
std::vector<std::string> Nomi_Per(Azione cosa, const Esercizio& esercizio, Impianto& macchina) {
  std::vector<std::string> nomi;
  if (cosa == Azione::Guasto) {
    for (const Guasto_Impianto& guasto : Guasti_Di(esercizio, macchina.Stato_I()))
      nomi.push_back(guasto.Nome);
    return nomi;
  }
  if (cosa == Azione::Regola) {
    for (const Cursore& cursore : esercizio.Cursori) nomi.emplace_back(cursore.Nome);
  }
  for (const Figura& figura : macchina.Disegno) {
    if (cosa == Azione::Regola ? Campo_Di(esercizio, macchina, figura.Nome).has_value()
                               : Sente(figura, cosa))
      nomi.push_back(figura.Nome);
  }
  return nomi;
}

std::string Controlla_Gesto(const Gesto& gesto, const Esercizio& esercizio, Impianto& macchina) {
  const std::vector<std::string> nomi = Nomi_Per(gesto.Cosa, esercizio, macchina);
  const std::string impianto = "l'impianto " + std::to_string(esercizio.Indice);
  const std::string verbo = Riga_Di(gesto.Cosa).Verbo;
  if (nomi.empty()) return impianto + " non ha niente " + verbo + ": \"" + gesto.Nome + "\"";
  if (std::ranges::find(nomi, gesto.Nome) == nomi.end()) {
    std::string elenco;
    for (const std::string& nome : nomi) elenco += (elenco.empty() ? "" : ", ") + nome;
    return impianto + " non ha \"" + gesto.Nome + "\" " + verbo + ", ma ha: " + elenco;
  }
  if (!Con_Valore(gesto.Cosa)) return "";
  const Campo campo =
      gesto.Cosa == Azione::Guasto ? Campo{0, 1, 1} : *Campo_Di(esercizio, macchina, gesto.Nome);
  if (campo.Contiene(gesto.Valore)) return "";
  return gesto.Nome + " va da " + Testo_Di(campo.Minimo) + " a " + Testo_Di(campo.Massimo) +
         " a passi di " + Testo_Di(campo.Passo) + ", e non a " + Testo_Di(gesto.Valore);
}

bool Gira(const Gesto& gesto, Collegamento& impianto) {
  const Cursore* cursore = Trova_Cursore(impianto.Tabella(), gesto.Nome);
  if (!cursore)
    return impianto.Entra({.Che = Cosa::Regola, .Valore = gesto.Valore, .Testo = gesto.Nome});
  return impianto.Entra({.Che = Cosa::Cursore,
                         .Indice = static_cast<int>(cursore - impianto.Tabella().Cursori.data()),
                         .Numero = static_cast<int>(gesto.Valore)});
}

bool Guasta(const Gesto& gesto, Collegamento& impianto) {
  const auto guasti = Guasti_Di(impianto.Tabella(), impianto.Ingressi_A_Riposo());
  const auto guasto = std::ranges::find(guasti, gesto.Nome, &Guasto_Impianto::Nome);
  return guasto != guasti.end() && Metti(*guasto, gesto.Valore != 0, impianto);
}

}  // namespace

std::string Gesto::Come_Testo() const {
  const std::string testo = std::string(Riga_Di(Cosa).Parola) + ":" + Nome;
  return Con_Valore(Cosa) ? testo + "=" + Testo_Di(Valore) : testo;
}

std::vector<Gesto> Leggi_Mani(const std::string& testo, std::string& errore) {
  std::optional<std::string> errata;
  std::vector<Gesto> mani = Leggi_Lista(testo, Leggi_Gesto, errata);
  if (errata)
    errore = "gesto non valido \"" + *errata +
             "\": si scrive 500:premi:NOME, oppure rilascia, clic, doppio, oppure "
             "500:regola:NOME=3, oppure 500:guasto:NOME=1";
  return mani;
}

std::string Controlla_Mani(std::span<const Gesto> mani, const Esercizio& esercizio,
                           Impianto& macchina) {
  std::set<std::string> premute;
  for (const Gesto& gesto : mani) {
    const std::string errore = Controlla_Gesto(gesto, esercizio, macchina);
    if (!errore.empty()) return errore;
    if (gesto.Cosa == Azione::Premi && !premute.insert(gesto.Nome).second)
      return gesto.Nome + " è già premuto a " + std::to_string(gesto.Ms) + " ms";
    if (gesto.Cosa == Azione::Rilascia && premute.erase(gesto.Nome) == 0)
      return gesto.Nome + " non è premuto a " + std::to_string(gesto.Ms) + " ms";
  }
  return "";
}

bool Esegui_Gesto(const Gesto& gesto, Collegamento& impianto) {
  const auto Fai = [&](Cosa che) { return impianto.Entra({.Che = che, .Testo = gesto.Nome}); };
  const auto Su = [&] {
    const bool rilasciato = Fai(Cosa::Rilascia);
    return Fai(Cosa::Clic) || rilasciato;
  };
  switch (gesto.Cosa) {
    case Azione::Premi:
      return Fai(Cosa::Premi);
    case Azione::Rilascia:
      return Su();
    case Azione::Clic:
    case Azione::Doppio: {
      // A hidden figure never got the press, so it must not get the release either.
      const Figura* figura = impianto.Macchina().Disegno.Trova(gesto.Nome);
      if (!figura || !figura->Visible) return false;
      Fai(Cosa::Premi);
      Su();
      return gesto.Cosa == Azione::Clic || Fai(Cosa::Doppio_Clic);
    }
    case Azione::Regola:
      return Gira(gesto, impianto);
    case Azione::Guasto:
      return Guasta(gesto, impianto);
  }
  return false;
}

}  // namespace tavorno
