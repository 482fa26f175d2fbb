// SPDX-License-Identifier: GPL-3.0-or-later
// Random sessions of the editor against a simple model of what a project is.
#include <algorithm>
#include <cstdlib>
#include <random>

#include "awl/writer.h"
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

/// A procedure as the model knows it; its text begins with the mark of its project.
struct Blocco {
  std::string nome;
  std::string testo;

  bool operator==(const Blocco&) const = default;
};

/// What a student would say that a project is.
struct Modello {
  std::string main;
  std::vector<Blocco> procedure;

  bool operator==(const Modello&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Modello& modello) {
  out << '[' << modello.main;
  for (const Blocco& blocco : modello.procedure) out << '|' << blocco.nome << ' ' << blocco.testo;
  return out << ']';
}

class Session : public Banco_Editor {
 public:
  unsigned Caso(unsigned quanti) { return static_cast<unsigned>(generatore_() % quanti); }

  /// The project that is on the screen.
  Modello Vista() const {
    Modello vista{txtList().Byte(), {}};
    for (int i = 1; i <= progetto.Num_SBR; ++i)
      vista.procedure.push_back({progetto.Tab_SBR[i].Nome, progetto.Tab_SBR[i].Testo});
    return vista;
  }
  /// Screen and project tell the same.
  void Concordano() const {
    ASSERT_EQ(txtList().Byte(), progetto.txtList);
    if (progetto.Num_SBR == 0) return;
    ASSERT_EQ(TabSP().count(), progetto.Num_SBR);
    for (int i = 1; i <= progetto.Num_SBR; ++i) {
      ASSERT_EQ(Utf8(TabSP().tabText(i - 1)), progetto.Tab_SBR[i].Nome);
      if (i > 1) {
        ASSERT_LT(progetto.Tab_SBR[i - 1].Num, progetto.Tab_SBR[i].Num);
      }
    }
    if (progetto.Scheda >= 1) {
      ASSERT_EQ(txtP().Byte(), progetto.Tab_SBR[progetto.Scheda].Testo);
    }
  }
  /// The texts as a save and a read make them, by the pure functions.
  static Modello Letto(const Modello& modello) {
    Sorgente sorgente;
    sorgente.Main = modello.main;
    for (const Blocco& blocco : modello.procedure)
      sorgente.Procedure.push_back({.Num = 0,
                                    .Nome = blocco.nome,
                                    .Sigla = "SBR" + blocco.nome.substr(4),
                                    .Indice = 0,
                                    .Testo = blocco.testo});
    const Lettura lettura = Leggi_Sorgente(Byte_Di(sorgente));
    EXPECT_TRUE(lettura.Riuscita()) << lettura.Rifiuto.Come_Testo();
    Modello letto{lettura.Letta.Main, {}};
    for (const Riga_SBR& procedura : lettura.Letta.Procedure)
      letto.procedure.push_back({procedura.Nome, procedura.Testo});
    return letto;
  }
  /// Where a new procedure goes, and its number.
  static std::size_t Buco(const Modello& modello) {
    std::size_t posto = 0;
    while (posto < modello.procedure.size() &&
           modello.procedure[posto].nome == "SBR_" + std::to_string(posto))
      ++posto;
    return posto;
  }
  static void Aggiungi(AwlEditor& testo, const std::string& riga) {
    testo.append(QString::fromStdString(riga + "\r\n"));
  }

  /// One step on the window, and what the model says of it.
  void Passo() {
    static const std::vector<std::string> righe = {"LD I0.0",   "= Q0.1", "NOT",          "//nota",
                                                   "NETWORK 2", "",       "ld   i0.3 //x"};
    const std::string& riga = righe[Caso(static_cast<unsigned>(righe.size()))];
    const unsigned scelta = Caso(100);
    if (scelta < 25) {
      Aggiungi(txtList(), riga);
      modello.main += riga + "\r\n";
    } else if (scelta < 45) {
      if (progetto.Scheda < 1 || progetto.Scheda > progetto.Num_SBR) return;
      Aggiungi(txtP(), riga);
      modello.procedure[static_cast<std::size_t>(progetto.Scheda - 1)].testo += riga + "\r\n";
    } else if (scelta < 55) {
      if (modello.procedure.size() >= 6) return;
      prima_dei_comandi_.push_back(modello);
      const std::size_t posto = Buco(modello);
      Premi_Anche_Nascosto("cmdSub");
      const std::string nome = "SBR_" + std::to_string(posto);
      ASSERT_EQ(progetto.Scheda, static_cast<int>(posto) + 1);
      modello.procedure.insert(modello.procedure.begin() + static_cast<std::ptrdiff_t>(posto),
                               {nome, progetto.Tab_SBR[progetto.Scheda].Testo});
    } else if (scelta < 62) {
      if (modello.procedure.empty() || progetto.Scheda < 1) return;
      prima_dei_comandi_.push_back(modello);
      modello.procedure.erase(modello.procedure.begin() + (progetto.Scheda - 1));
      Premi_Anche_Nascosto("cmdDelP");
    } else if (scelta < 70) {
      if (modello.procedure.empty()) return;
      const auto scheda = static_cast<int>(Caso(static_cast<unsigned>(modello.procedure.size())));
      Q_EMIT TabSP().tabBarClicked(scheda);
    } else if (scelta < 76) {
      if (Linee(modello) > 250 || (progetto.Formattato && !progetto.Modificato)) return;
      Scegli("seduta.AWL");
      Comanda("mnuPlcCompile");  // all its questions are answered Ok
      salvato = modello;
      modello = Letto(salvato);
    } else if (scelta < 80) {
      if (salvato.main.empty()) return;
      prima_dei_comandi_.push_back(modello);
      Scegli("seduta.AWL");
      Comanda("mnuFileOpen");
      modello = Letto(salvato);
    } else if (scelta < 83) {
      prima_dei_comandi_.push_back(modello);
      Comanda("mnuFileNew");  // the box is answered No
      modello = {progetto.txtList, {}};
    } else {
      AwlEditor& testo = Caso(2) == 0 ? txtList() : txtP();
      const Modello prima = Vista();
      testo.undo();
      modello = Vista();
      if (modello == prima) return;
      if (Diversi(modello, prima) > 1) {
        ASSERT_NE(std::ranges::find(prima_dei_comandi_, modello), prima_dei_comandi_.end())
            << "undo mixes two projects";
      }
      testo.redo();
      ASSERT_EQ(Vista(), prima) << "redo does not meet undo";
      if (Caso(2) == 0) {
        testo.undo();
        ASSERT_EQ(Vista(), modello) << "undo does not repeat itself";
      } else {
        modello = prima;
      }
    }
  }

  Modello modello;
  Modello salvato;

 private:
  void Premi_Anche_Nascosto(const QString& nome) const { Trova<QPushButton>(nome).click(); }
  static int Linee(const Modello& modello) {
    auto linee = std::ranges::count(modello.main, '\n');
    for (const Blocco& blocco : modello.procedure) linee += std::ranges::count(blocco.testo, '\n');
    return static_cast<int>(linee);
  }
  /// Texts that differ; many when the procedures are others.
  static int Diversi(const Modello& a, const Modello& b) {
    if (a.procedure.size() != b.procedure.size()) return 99;
    int diversi = a.main == b.main ? 0 : 1;
    for (std::size_t i = 0; i < a.procedure.size(); ++i) {
      if (a.procedure[i].nome != b.procedure[i].nome) return 99;
      if (a.procedure[i] != b.procedure[i]) ++diversi;
    }
    return diversi;
  }

  std::vector<Modello> prima_dei_comandi_;
  std::mt19937 generatore_{20261122};
};

/// In the test run; by hand as many as TAVORNO_SESSION_STEPS says.
int Passi() {
  const char* voluti = std::getenv("TAVORNO_SESSION_STEPS");
  return voluti == nullptr ? 1500 : std::atoi(voluti);
}

}  // namespace

TEST_F(Session, KeepsProceduresTheirOrderAndTheirTexts) {
  Avvia(Avvio::Nuovo);
  modello = Vista();
  int fatti = 0;
  for (; fatti < Passi(); ++fatti) {
    ASSERT_NO_FATAL_FAILURE(Passo()) << fatti;
    ASSERT_EQ(Vista(), modello) << fatti;
    ASSERT_NO_FATAL_FAILURE(Concordano()) << fatti;
    risponditore.Avvisi.clear();
    risponditore.Richieste.clear();
    risponditore.File.clear();
  }
  EXPECT_EQ(fatti, Passi());
}

}  // namespace tavorno::prova
