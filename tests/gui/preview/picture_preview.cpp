// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the picture of an exercise to a PNG file, or its whole window, for those who work on it.
// What happens before is told in order: the user's hand, the outputs of the CPU or a project that
// runs, time that passes, ticks and sizes of the window.
// Usage: picture_preview NUMBER FILE.png [SCALE] [premi:NAME|rilascia:NAME|clic:NAME|doppio:NAME|
//        regola:NAME=VALUE|guasto:NAME=0/1|uscite:SIXTEEN_BITS|programma:FILE.AWL|ms:TIME|
//        finestra:WIDTHxHEIGHT|spunta:NAME|scheda:N|riga:N]...
#include <QAbstractButton>
#include <QApplication>
#include <QPixmap>
#include <QTabWidget>
#include <QTableWidget>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "assets/resources.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "recorder/driven_run.h"
#include "recorder/hands.h"
#include "recorder/session.h"
#include "widgets/text.h"

using namespace tavorno;

namespace {

/// One exercise in its window, and a CPU that may run a project.
struct Prova {
  explicit Prova(const Esercizio& esercizio)
      : finestra(std::make_unique<Collegamento>(seduta.plc, stato, esercizio)) {
    finestra.Fili().Carica();
    finestra.show();
  }

  bool Esegui(const std::string& passo);

  Seduta seduta;
  Stato_Impianto stato;
  Finestra_Impianto finestra;
  bool intera = false;  // the whole window is wanted

 private:
  void Passa(int ms);
  bool Programma(const std::string& file);
};

/// A scan each millisecond, and a look at the terminals each tenth of a second.
void Prova::Passa(int ms) {
  Plc& plc = seduta.plc;
  for (int n = 1; n <= ms; ++n) {
    seduta.orologio.Avanza(1);
    const auto prima = plc.N_Cicli;
    while (plc.PLC_Acceso && plc.N_Cicli == prima) plc.Esegui_Righe(1000);
    if (n % 100 == 0) finestra.Aggiorna();
  }
}

bool Prova::Programma(const std::string& file) {
  if (!seduta.Apri(file)) return false;
  seduta.progetto.Compila();
  if (!seduta.progetto.Compilato) return false;
  Avvia_Guidata(seduta.plc, Comando_Corsa::Cont);
  Avvia_Guidata(seduta.plc, Comando_Corsa::Run);
  finestra.Mostra_Corsa();
  return seduta.plc.PLC_Acceso != 0;
}

bool Prova::Esegui(const std::string& passo) {
  const auto due_punti = passo.find(':');
  if (due_punti == std::string::npos) return false;
  const std::string cosa = passo.substr(0, due_punti);
  const std::string su = passo.substr(due_punti + 1);
  const int numero = std::atoi(su.c_str());
  if (cosa == "ms") {
    Passa(numero);
  } else if (cosa == "uscite") {
    seduta.plc.SQ[0].Stato_Q(su.substr(0, 8));
    seduta.plc.SQ[1].Stato_Q(su.substr(8));
  } else if (cosa == "programma") {
    return Programma(su);
  } else if (cosa == "finestra") {
    intera = true;
    const auto per = su.find('x');
    if (per != std::string::npos) finestra.resize(numero, std::atoi(su.c_str() + per + 1));
  } else if (cosa == "spunta") {
    auto* spunta = finestra.findChild<QAbstractButton*>(Q(su));
    if (spunta != nullptr) spunta->click();
    return spunta != nullptr;
  } else if (cosa == "scheda") {
    finestra.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(numero);
  } else if (cosa == "riga") {
    auto* tabella = finestra.findChild<QTableWidget*>("FGr");
    tabella->setFocus();
    tabella->selectRow(numero);
  } else {
    std::string errore;
    const auto gesti = Leggi_Mani("0:" + passo, errore);
    return !gesti.empty() && Esegui_Gesto(gesti.front(), finestra.Fili());
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  QApplication applicazione(argc, argv);
  Apri_Risorse();
  const Esercizio& esercizio =
      Tabella_Esercizi()[static_cast<std::size_t>(std::atoi(argv[1])) % Tabella_Esercizi().size()];
  if (esercizio.Crea == nullptr) {
    std::fprintf(stderr, "exercise %d has no plant\n", esercizio.Indice);
    return 1;
  }
  Prova prova(esercizio);
  double scala = 1;
  for (int i = 3; i < argc; ++i) {
    char* fine = nullptr;
    const double numero = std::strtod(argv[i], &fine);
    if (*fine == '\0')
      scala = numero;
    else if (!prova.Esegui(argv[i]))
      std::fprintf(stderr, "nothing happened at %s\n", argv[i]);
    QApplication::processEvents();
  }
  Quadro& quadro = prova.finestra.Disegno();
  if (!prova.intera) quadro.resize(quadro.sizeHint());
  quadro.Avanza(1);  // what has changed sets out
  quadro.Avanza(1000);
  prova.finestra.Aggiorna();
  QWidget& ritratto = prova.intera ? static_cast<QWidget&>(prova.finestra) : quadro;
  QPixmap immagine(ritratto.size() * scala);
  immagine.setDevicePixelRatio(scala);
  ritratto.render(&immagine);
  if (!immagine.save(QString::fromLocal8Bit(argv[2]))) return 1;
}
