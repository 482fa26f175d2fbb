// SPDX-License-Identifier: GPL-3.0-or-later
#include "manual/manuals.h"

namespace tavorno {

namespace {

constexpr Comando_Manuale comandi[] = {
    {{"tavorno [FILE.AWL]"},
     {"Apre il pannello e, se c'è un progetto, anche l'editor con il progetto.",
      "Opens the panel and, when a project is named, the editor with it."},
     {}},
    {{"tavorno --help"}, {"Questo testo.", "The help, in Italian."}, {}},
    {{"tavorno --version"}, {"La versione del programma.", "The version of the program."}, {}},
};

constexpr Opzione_Manuale file[] = {
    {{"/usr/share/tavorno/examples"},
     {"progetti commentati, da aprire nell'editor",
      "projects with comments, to open in the editor"}},
    {{"/usr/share/tavorno/HTML"},
     {"le pagine della guida (F1)", "the pages of the help (F1), in Italian"}},
};

constexpr Manuale manuale = {
    "tavorno",
    {"simulatore didattico di un piccolo PLC", "teaching simulator of a small PLC"},
    {"Esegue programmi in AWL (lista istruzioni) su un PLC simulato, con interruttori e LED oppure "
     "con diciotto impianti animati: avviatori di motori, banchi pneumatici, ascensore, garage, "
     "miscelatori, serbatoio, cancello, asse di posizione e attraversamento pedonale.\n\n"
     "F1 apre la guida, che comincia dai primi passi.",
     "Runs control programs in AWL (statement list) on a simulated PLC, against switches and LEDs "
     "or against eighteen animated plants: motor starters, pneumatic benches, lift, garage, "
     "mixers, tank, gate, position axis and pedestrian crossing. Windows and help are in "
     "Italian.\n\n"
     "F1 opens the help, which begins with first steps."},
    comandi,
    {"0 il programma è stato chiuso, 64 uso errato, 70 la CPU simulata è finita in\n"
     "un errore fatale, detto sullo standard error.",
     "0 the program was closed, 64 wrong use, 70 the simulated CPU ended in a fatal error, which "
     "is told on standard error."},
    file};

}  // namespace

const Manuale& Manuale_Tavorno() {
  return manuale;
}

}  // namespace tavorno
