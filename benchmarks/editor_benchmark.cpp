// SPDX-License-Identifier: GPL-3.0-or-later
// What a key takes in the editor: a project of 300 rows with everything on (completion, hints,
// symbols of an exercise, the ladder, the copy of the unsaved text), and Tab on a selection of
// 1,000 lines. Usage: editor_benchmark [KEYS]
#include <QApplication>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "assets/resources.h"
#include "awl/recovery_keeper.h"
#include "awl/ui/main_window.h"
#include "panel/child_windows.h"
#include "panel/panel_window.h"
#include "plc/plc.h"

using namespace tavorno;
using Orario = std::chrono::steady_clock;

namespace {

/// 250 rows in the Main and 50 in a procedure, with comments.
Sorgente Progetto_Grande() {
  Sorgente progetto;
  for (int rete = 0; rete < 50; ++rete) {
    const std::string n = std::to_string(rete % 8);
    progetto.Main += "NETWORK " + std::to_string(rete + 1) + "       //segmento\r\n//\r\n" +
                     "LD     I0." + n + "            //ingresso\r\nAN     I1." + n +
                     "\r\nTON    T" + std::to_string(rete % 40) + ", +30\r\n=      Q0." + n +
                     "\r\n";
  }
  Riga_SBR procedura{1, "SBR_0", "SBR0", 1, ""};
  for (int riga = 0; riga < 25; ++riga)
    procedura.Testo += "LD     M" + std::to_string(riga % 8) + ".0\r\n=      M" +
                       std::to_string(riga % 8) + ".1\r\n";
  progetto.Procedure.push_back(procedura);
  return progetto;
}

/// The editor among the windows that follow each key: an exercise with its symbols and the
/// ladder; and the copy of the unsaved text.
struct Banco {
  QTemporaryDir copie;
  Orologio orologio;
  Plc plc{orologio};
  Progetto progetto{plc, {}};
  FrmPLC pannello{plc, progetto};
  Guida guida;
  Finestre finestre{pannello, plc, progetto, guida};
  Custode_Testi custode{progetto, copie.path().toStdString()};
  AwlEditor* testo = nullptr;

  explicit Banco(const Sorgente& sorgente) {
    finestre.Apri_Impianto(0);
    finestre.Mostra_Editor(Avvio::Nuovo);
    finestre.Mostra_Scala();
    for (QWidget* finestra : QApplication::topLevelWidgets())
      if (finestra->objectName() == "frmMain")
        testo = static_cast<AwlEditor*>(finestra->findChild<QsciScintilla*>("txtList"));
    if (testo == nullptr) std::exit(2);
    progetto.Scrivi_Main(sorgente.Main);
    progetto.Num_SBR = static_cast<std::uint8_t>(sorgente.Procedure.size());
    for (std::size_t i = 0; i < sorgente.Procedure.size(); ++i)
      progetto.Tab_SBR[static_cast<int>(i) + 1] = sorgente.Procedure[i];
    testo->setText(QString::fromStdString(sorgente.Main));
    Pausa();
  }
  ~Banco() { custode.Congeda(); }

  /// Milliseconds until the key has had all its effects, those on the screen included.
  double Batti(int tasto, const QString& carattere) const {
    const auto inizio = Orario::now();
    QKeyEvent giu(QEvent::KeyPress, tasto, Qt::NoModifier, carattere);
    QApplication::sendEvent(testo, &giu);
    QApplication::processEvents();
    return Passati(inizio);
  }
  /// The longest time in which a key would have to wait, in a pause in which hints and marks of
  /// lines are worked out and the copy is written.
  double Pausa() {
    constexpr double durata = 600;
    double peggiore = 0;
    const auto da = Orario::now();
    for (bool scritta = false; Passati(da) < durata;) {
      const auto inizio = Orario::now();
      QApplication::processEvents();
      if (!std::exchange(scritta, true)) custode.Passo();
      peggiore = std::max(peggiore, Passati(inizio));
    }
    return peggiore;
  }
  static double Passati(Orario::time_point da) {
    return std::chrono::duration<double, std::milli>(Orario::now() - da).count();
  }
};

void Riferisci(const char* cosa, std::vector<double> misure) {
  std::sort(misure.begin(), misure.end());
  std::printf("%-44s median %7.2f ms  95 %% %7.2f ms  worst %7.2f ms\n", cosa,
              misure[misure.size() / 2], misure[misure.size() * 95 / 100], misure.back());
}

void Battuta(int tasti) {
  Banco banco(Progetto_Grande());
  std::vector<double> misure;
  std::vector<double> pause;
  const QString riga = QStringLiteral("ld i0.0 //");
  banco.testo->Vai_A(150);
  for (int i = 0; i < tasti; ++i) {
    const QChar c = riga[i % riga.size()];
    if (i % riga.size() == 0) misure.push_back(banco.Batti(Qt::Key_Return, QStringLiteral("\r")));
    misure.push_back(banco.Batti(c.unicode(), QString(c)));
    if (i % 15 == 14) pause.push_back(banco.Pausa());
  }
  Riferisci("a key in a project of 300 rows", misure);
  Riferisci("the longest wait in a pause behind it", pause);
}

void Tabulazione() {
  std::string mille;
  for (int i = 0; i < 1000; ++i) mille += "LD     I0." + std::to_string(i % 8) + "\r\n";
  std::vector<double> misure;
  for (int giro = 0; giro < 10; ++giro) {
    Banco banco({.Main = mille, .Procedure = {}, .Righe = {}});
    banco.testo->selectAll();
    banco.Pausa();
    misure.push_back(banco.Batti(Qt::Key_Tab, QStringLiteral("\t")));
  }
  Riferisci("Tab on a selection of 1,000 lines", misure);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication applicazione(argc, argv);
  Apri_Risorse();
  Battuta(argc > 1 ? std::atoi(argv[1]) : 300);
  Tabulazione();
}
