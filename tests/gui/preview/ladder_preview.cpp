// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the ladder window of a project as a PNG file, for those who work on it: compiled and after
// some scans with these inputs. A file of another kind, pdf or svg, is what the window saves.
// Usage: ladder_preview FILE.AWL FILE.png [WIDTH HEIGHT [ZOOM% [PLANT [I0BITS SCANS [NETWORK]]]]]
#include <QApplication>
#include <QPixmap>
#include <cstdlib>

#include "assets/resources.h"
#include "ladder/ui/ladder_export.h"
#include "ladder/ui/ladder_window.h"
#include "plants/exercises.h"
#include "recorder/session.h"
#include "widgets/text.h"

using namespace tavorno;

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  QApplication applicazione(argc, argv);
  Apri_Risorse();
  const auto numero = [&](int quale, int senza) {
    return argc > quale ? std::atoi(argv[quale]) : senza;
  };
  Seduta seduta;
  if (!seduta.Apri(argv[1])) return 1;
  seduta.progetto.Compila();
  const int impianto = numero(6, -1);
  const Esercizio* esercizio =
      impianto < 0 ? nullptr : &Tabella_Esercizi()[static_cast<std::size_t>(impianto)];
  Legami_Scala legami;
  legami.Nome = [&](const std::string& operando) { return Simbolo_Impianto(operando, esercizio); };
  legami.Modificabile = [] { return true; };
  legami.Scrivi = [](int, const std::string&) {};
  FrmScala finestra(seduta.plc, seduta.progetto, std::move(legami), {});
  finestra.resize(numero(3, 940), numero(4, 600));
  finestra.show();
  finestra.Vista().Ingrandisci(numero(5, 100) / 100.0);
  if (const int scansioni = numero(8, 0); scansioni > 0) {
    seduta.plc.mnuPlcStep();
    seduta.plc.mnuPlcRun();
    seduta.plc.SI[0].Stato_I(argv[7]);
    while (seduta.plc.PLC_Acceso && seduta.plc.N_Cicli < scansioni) {
      seduta.plc.Esegui_Riga();
      if (seduta.plc.PC == 0) seduta.orologio.Avanza(10);
    }
  }
  const QString file = QString::fromLocal8Bit(argv[2]);
  if (!file.endsWith(u".png"))
    return Salva_Scala(file, finestra.Vista().Foglio(), Q(argv[1]), {}).isEmpty() ? 0 : 1;
  if (argc > 9) finestra.Vista().Scegli(numero(9, 0), 0);
  finestra.Aggiorna();
  QApplication::processEvents();
  return finestra.grab().save(file) ? 0 : 1;
}
