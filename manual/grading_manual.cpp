// SPDX-License-Identifier: GPL-3.0-or-later
#include "manual/manuals.h"

namespace tavorno {

namespace {

constexpr Opzione_Manuale prova[] = {
    {{"--impianto N"},
     {"l'esercizio collegato alla CPU ({esercizi})",
      "the exercise connected to the CPU ({esercizi})"}},
    {{"--caso NOME", "--caso NAME"},
     {"esegue soltanto la prova con questo nome", "plays only the case of this name"}},
    {{"--junit FILE"},
     {"rapporto JUnit XML, un testcase per ogni prova", "a JUnit XML report, a testcase per case"}},
    {{"--csv FILE"},
     {"tabella dei punti, una riga per progetto", "a table of the marks, one row per project"}},
    {{"--json"}, {"stampa il rapporto in JSON", "prints the report as JSON"}},
    {{"--vcd FILE"},
     {"ingressi e uscite nel tempo, per GTKWave (un solo progetto)",
      "inputs and outputs over time, for GTKWave (one project only)"}},
    {{"--svg FILE"},
     {"diagramma dei tempi (un solo progetto)", "timing diagram (one project only)"}},
    {{"--processi N"},
     {"quanti progetti alla volta (normalmente i processori)",
      "how many projects at a time (normally the processors)"}},
    {{"--ogni-scansione"},
     {"esegue anche le scansioni che non cambiano nulla: dà gli\nstessi risultati, più lentamente",
      "runs the scans that change nothing, too: the same\nresults, more slowly"}},
};

constexpr Comando_Manuale comandi_prova[] = {
    {{"tavorno-banco prova PROGETTO.AWL... SCRIPT.lua... [opzioni]",
      "tavorno-banco prova PROJECT.AWL... SCRIPT.lua... [options]"},
     {"I file .lua sono gli script, gli altri i progetti; di una cartella si\n"
      "esaminano tutti i file .AWL, anche quelli nelle sue sottocartelle.\n"
      "Con un solo progetto stampa ogni caso; con più progetti li esamina insieme\n"
      "su tutti i processori e stampa una riga per ciascuno.",
      "Grades projects. Files named .lua are the scripts, the others the projects; of a folder all "
      "files named .AWL are graded, those of its subfolders too. With one project it prints each "
      "case; several are graded together on all processors, a line each."},
     prova},
};

constexpr Manuale manuale_prova = {
    "tavorno-banco prova",
    {"esamina progetti con uno o più script, in tempo virtuale"},
    {""},
    comandi_prova,
    {"0 tutte le prove superate, 1 qualcuna no, una consegna non esaminata\n"
     "oppure un rapporto che non si può scrivere, 2 progetto illeggibile o script sbagliato,\n"
     "64 uso errato.",
     "0 all cases pass, 1 some do not, or a hand-in that was not graded, or a report that cannot "
     "be written, 2 a project that cannot be read or a wrong script, 64 wrong use."},
    {}};

constexpr Opzione_Manuale classe[] = {
    {{"--esercizio N"},
     {"lo script che il programma porta con sé per\nl'esercizio ({esercizi}), al posto di "
      "SCRIPT.lua",
      "the script that comes with the program for the\nexercise ({esercizi}), in place of "
      "SCRIPT.lua"}},
    {{"--uscita DIR"},
     {"la cartella dei rapporti, che deve essere nuova o vuota\n"
      "(normalmente esiti- e il nome dello script):\n"
      "indice.html, una pagina per studente, simili.html,\n"
      "punti.csv, junit.xml, esiti.json",
      "the folder of the reports, which must be new or empty\n"
      "(normally esiti- and the script's name):\n"
      "indice.html, a page per student, simili.html,\n"
      "punti.csv, junit.xml, esiti.json"}},
    {{"--impianto N"},
     {"l'esercizio collegato alla CPU ({esercizi}); senza, quello che\nlo script nomina",
      "the exercise connected to the CPU ({esercizi}); without it, the\none that the script "
      "names"}},
    {{"--processi N"},
     {"quante consegne alla volta (normalmente i processori)",
      "how many hand-ins at a time (normally the processors)"}},
};

constexpr Comando_Manuale comandi_classe[] = {
    {{"tavorno-banco classe CARTELLA|ZIP SCRIPT.lua|--esercizio N [opzioni]",
      "tavorno-banco classe FOLDER|ZIP SCRIPT.lua|--esercizio N [options]"},
     {"Le consegne sono i file .AWL di una cartella, o di un archivio zip come lo\n"
      "scarica una piattaforma; il nome dello studente viene dal percorso.",
      "Grades a class. The hand-ins are the files named .AWL of a folder, or of a zip as a "
      "learning "
      "platform exports it; the student's name comes from the path."},
     classe},
};

constexpr Manuale manuale_classe = {
    "tavorno-banco classe",
    {"esamina le consegne di una classe e scrive i rapporti"},
    {""},
    comandi_classe,
    {"0 tutte superate, 1 qualcuna no, non esaminata o un rapporto che\n"
     "non si può scrivere, 2 consegne o script illeggibili, 64 uso errato.",
     "0 all pass, 1 some do not, or were not graded, or a report that cannot be written, 2 "
     "hand-ins "
     "or scripts that cannot be read, 64 wrong use."},
    {}};

}  // namespace

const Manuale& Manuale_Prova() {
  return manuale_prova;
}
const Manuale& Manuale_Classe() {
  return manuale_classe;
}

const Testo_Manuale Titolo_Funzioni = {
    "Funzioni degli script (Lua 5.4, senza file, processi e rete):"};

}  // namespace tavorno
