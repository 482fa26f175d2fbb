// SPDX-License-Identifier: GPL-3.0-or-later
// What a key takes in the editor: a project of 300 rows with everything on, and Tab on a selection
// of 1,000 lines.
// Usage: editor_benchmark [KEYS]
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "assets/resources.h"
#include "awl/ui/main_window.h"
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

struct Banco {
  Orologio orologio;
  Plc plc{orologio};
  Progetto progetto{plc, {}};
  FrmMain finestra{progetto, plc, {}};
  AwlEditor* testo = static_cast<AwlEditor*>(finestra.findChild<QsciScintilla*>("txtList"));

  explicit Banco(const Sorgente& sorgente) {
    finestra.show();
    finestra.Avvia(Avvio::Nuovo);
    progetto.Scrivi_Main(sorgente.Main);
    progetto.Num_SBR = static_cast<std::uint8_t>(sorgente.Procedure.size());
    for (std::size_t i = 0; i < sorgente.Procedure.size(); ++i)
      progetto.Tab_SBR[static_cast<int>(i) + 1] = sorgente.Procedure[i];
    testo->setText(QString::fromStdString(sorgente.Main));
    Respira();
  }
  static void Respira() { QApplication::processEvents(); }
  /// Milliseconds until the key has had all its effects, those on the screen included.
  double Batti(int tasto, const QString& carattere) const {
    const auto inizio = Orario::now();
    QKeyEvent giu(QEvent::KeyPress, tasto, Qt::NoModifier, carattere);
    QApplication::sendEvent(testo, &giu);
    QApplication::processEvents();
    return std::chrono::duration<double, std::milli>(Orario::now() - inizio).count();
  }
};

void Riferisci(const char* cosa, std::vector<double> misure) {
  std::sort(misure.begin(), misure.end());
  std::printf("%-44s median %7.2f ms  95 %% %7.2f ms  worst %7.2f ms\n", cosa,
              misure[misure.size() / 2], misure[misure.size() * 95 / 100], misure.back());
}

void Battuta(int tasti) {
  const Banco banco(Progetto_Grande());
  std::vector<double> misure;
  const QString riga = QStringLiteral("ld i0.0 //");
  banco.testo->Vai_A(150);
  for (int i = 0; i < tasti; ++i) {
    const QChar c = riga[i % riga.size()];
    if (i % riga.size() == 0) misure.push_back(banco.Batti(Qt::Key_Return, QStringLiteral("\r")));
    misure.push_back(banco.Batti(c.unicode(), QString(c)));
  }
  Riferisci("a key in a project of 300 rows", misure);
}

void Tabulazione() {
  std::string mille;
  for (int i = 0; i < 1000; ++i) mille += "LD     I0." + std::to_string(i % 8) + "\r\n";
  std::vector<double> misure;
  for (int giro = 0; giro < 10; ++giro) {
    const Banco banco({.Main = mille, .Procedure = {}, .Righe = {}});
    banco.testo->selectAll();
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
