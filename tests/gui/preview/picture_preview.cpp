// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the picture of an exercise to a PNG file, for those who work on it. What happens before is
// told in order: the user's hand, the outputs of the CPU, time that passes.
// Usage: picture_preview NUMBER FILE.png [SCALE] [premi:NAME|rilascia:NAME|clic:NAME|doppio:NAME|
//        regola:NAME=VALUE|uscite:SIXTEEN_BITS|ms:TIME]...
#include <QApplication>
#include <QPixmap>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "assets/resources.h"
#include "plants/exercises.h"
#include "plants/host/picture_widget.h"
#include "widgets/text.h"

using namespace tavorno;

namespace {

bool Esegui(Impianto& impianto, Orologio& orologio, const std::string& passo) {
  const auto due_punti = passo.find(':');
  if (due_punti == std::string::npos) return false;
  const std::string cosa = passo.substr(0, due_punti);
  const std::string su = passo.substr(due_punti + 1);
  if (cosa == "premi") return impianto.Premi(su);
  if (cosa == "rilascia") return impianto.Rilascia(su);
  if (cosa == "doppio") return impianto.Doppio_Clic(su);
  if (cosa == "clic") {
    const bool premuto = impianto.Premi(su);
    const bool rilasciato = impianto.Rilascia(su);
    return impianto.Clic(su) || premuto || rilasciato;
  }
  if (cosa == "regola") {
    const auto uguale = su.find('=');
    return impianto.Regola(su.substr(0, uguale), std::atof(su.c_str() + uguale + 1));
  }
  if (cosa == "uscite") {
    impianto.Stato_Q(su);
    return true;
  }
  if (cosa != "ms") return false;
  orologio.Avanza(std::atoi(su.c_str()));
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
  Orologio orologio;
  Plc plc(orologio);
  const auto impianto = esercizio.Crea(plc);
  Quadro quadro(*impianto,
                QStringLiteral(":/plants/US-%1.svg").arg(esercizio.Indice, 2, 10, QChar('0')));
  double scala = 1;
  for (int i = 3; i < argc; ++i) {
    char* fine = nullptr;
    const double numero = std::strtod(argv[i], &fine);
    if (*fine == '\0')
      scala = numero;
    else if (!Esegui(*impianto, orologio, argv[i]))
      std::fprintf(stderr, "nothing happened at %s\n", argv[i]);
  }
  const QSize misura = quadro.sizeHint();
  quadro.resize(misura);
  quadro.Avanza(1);  // what has changed sets out
  quadro.Avanza(1000);
  QPixmap immagine(misura * scala);
  immagine.setDevicePixelRatio(scala);
  quadro.render(&immagine);
  if (!immagine.save(QString::fromLocal8Bit(argv[2]))) return 1;
}
