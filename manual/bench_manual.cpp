// SPDX-License-Identifier: GPL-3.0-or-later
#include "manual/manuals.h"

namespace tavorno {

namespace {

constexpr Opzione_Manuale compila[] = {
    {{"--json"},
     {"un oggetto JSON con listing, errors, boxes, diagnostics e prog",
      "a JSON object with listing, errors, boxes, diagnostics and prog"}},
};

constexpr Opzione_Manuale esegui[] = {
    {{"--ms T"},
     {"durata in millisecondi virtuali (1..86400000, normalmente 10000)",
      "duration in virtual milliseconds (1..86400000, normally 10000)"}},
    {{"--scansione MS"},
     {"tempo virtuale di una scansione (1..10000, normalmente 1)",
      "virtual time of a scan (1..10000, normally 1)"}},
    {{"--ingressi LISTA", "--ingressi LIST"},
     {"ingressi nel tempo, per esempio \"0:I0.1=1,500:I0.1=0\";\n"
      "un canale analogico in volt: \"800:AI0=2.5\"",
      "inputs over time, for instance \"0:I0.1=1,500:I0.1=0\";\n"
      "an analog channel in volts: \"800:AI0=2.5\""}},
    {{"--impianto N"},
     {"collega l'impianto dell'esercizio N ({esercizi}): gli ingressi\n"
      "li dà lui, e accanto agli indirizzi si leggono i simboli",
      "connects the plant of exercise N ({esercizi}): it gives the inputs,\n"
      "and symbols stand beside the addresses"}},
    {{"--mani LISTA", "--mani LIST"},
     {"ciò che la mano fa sull'impianto, con i nomi delle figure:\n"
      "\"500:premi:imgStart,700:rilascia:imgStart\"  un pulsante\n"
      "\"3000:clic:ImgTer\"      un relè termico, un commutatore\n"
      "\"4000:doppio:imgKM\"     un contattore forzato\n"
      "\"5000:regola:UpD1=3\"    un regolatore o un cursore\n"
      "\"7000:guasto:filo(I0.3)=1\"    un guasto, e con 0 la riparazione\n"
      "Un nome sbagliato fa elencare quelli che ci sono.",
      "what a hand does to the plant, by the names of the figures:\n"
      "\"500:premi:imgStart,700:rilascia:imgStart\"  a push button\n"
      "\"3000:clic:ImgTer\"      a thermal relay, a selector\n"
      "\"4000:doppio:imgKM\"     a contactor that is forced\n"
      "\"5000:regola:UpD1=3\"    a knob or a slider\n"
      "\"7000:guasto:filo(I0.3)=1\"    a fault, and with 0 its repair.\n"
      "A wrong name makes it list those that there are."}},
    {{"--vcd FILE"},
     {"ingressi e uscite nel tempo, per GTKWave", "inputs and outputs over time, for GTKWave"}},
    {{"--svg FILE"}, {"diagramma dei tempi", "timing diagram"}},
    {{"--ogni-scansione"},
     {"esegue anche le scansioni che non cambiano nulla: dà gli\nstessi risultati, più lentamente",
      "runs the scans that change nothing, too: the same\nresults, more slowly"}},
};

constexpr Opzione_Manuale registra[] = {
    {{"--uscita SEDUTA", "--uscita SESSION"},
     {"il file della seduta; le altre opzioni sono quelle di esegui",
      "the file of the session; the other options are those of esegui"}},
};

constexpr Opzione_Manuale rivivi[] = {
    {{"--fino-a MS"},
     {"si ferma a quel momento, in millisecondi dall'inizio",
      "stops at that moment, in milliseconds from the beginning"}},
    {{"--vcd FILE"},
     {"ingressi e uscite nel tempo, per GTKWave", "inputs and outputs over time, for GTKWave"}},
    {{"--svg FILE"}, {"diagramma dei tempi", "timing diagram"}},
    {{"--confronta ALTRA", "--confronta OTHER"},
     {"confronta due sedute e dice la prima differenza: memoria,\norologi, figure dell'impianto",
      "compares two sessions and tells the first difference: memory,\nclocks, figures of the "
      "plant"}},
    {{"--script FILE"},
     {"le mani della seduta come caso di prova in Lua",
      "the hands of the session as a test case in Lua"}},
};

constexpr Opzione_Manuale scala[] = {
    {{"--svg FILE"},
     {"il disegno va in un file e si stampa che cosa resta in lista;\nsenza, il disegno si stampa",
      "the drawing goes to a file, and what stays a list is printed;\n"
      "without it the drawing is printed"}},
    {{"--impianto N"},
     {"sopra gli indirizzi si leggono i simboli dell'esercizio N",
      "the symbols of exercise N stand above the addresses"}},
};

constexpr Opzione_Manuale misura[] = {
    {{"--ms T"},
     {"durata in millisecondi veri (1..60000, normalmente 1000)",
      "duration in real milliseconds (1..60000, normally 1000)"}},
};

constexpr Comando_Manuale banco[] = {
    {{"tavorno-banco compila FILE.AWL [--json]"},
     {"Stampa il listato di compilazione e gli avvisi.",
      "Prints the listing of the compiler and its messages."},
     compila},
    {{"tavorno-banco esegui FILE.AWL [opzioni]", "tavorno-banco esegui FILE.AWL [options]"},
     {"Compila, esegue e stampa ogni cambiamento di ingressi e uscite.",
      "Compiles, runs, and prints each change of an input or output."},
     esegui},
    {{"tavorno-banco registra FILE.AWL --uscita SEDUTA [opzioni]",
      "tavorno-banco registra FILE.AWL --uscita SESSION [options]"},
     {"Esegue e stampa come esegui, e scrive in un file tutto ciò che è entrato nella\n"
      "seduta: i tempi, gli ingressi, le mani, i comandi.",
      "Runs and prints as esegui does, and writes everything that entered the session\n"
      "into a file: times, inputs, hands, commands."},
     registra},
    {{"tavorno-banco rivivi SEDUTA [opzioni]", "tavorno-banco rivivi SESSION [options]"},
     {"Rifà una seduta registrata, dal banco o dalla finestra, riga per riga, e stampa\n"
      "gli stessi cambiamenti.",
      "Plays a recorded session again, from the bench or the window, line by line, and\n"
      "prints the same changes."},
     rivivi},
    {{"tavorno-banco scala FILE.AWL [--svg FILE] [--impianto N]"},
     {"Disegna il progetto a contatti (KOP), un segmento sotto l'altro. Ciò che uno\n"
      "schema a contatti non può dire resta in lista, con il motivo.",
      "Draws the project as a ladder diagram, one network below the other. What a\n"
      "ladder diagram cannot say stays a list, with the reason."},
     scala},
    {{"tavorno-banco misura FILE.AWL [--ms T]"},
     {"Compila ed esegue alla massima velocità, in tempo reale, e stampa quante\n"
      "righe e quante scansioni al secondo, per l'orologio e per il processore.",
      "Compiles, runs at full speed in real time, and prints how many lines and\n"
      "scans a second, by the clock and by the processor."},
     misura},
    {{"tavorno-banco prova PROGETTO.AWL... SCRIPT.lua... [opzioni]"},
     {"Esamina progetti con uno script e assegna i punti; le opzioni e le\n"
      "funzioni degli script sono in \"tavorno-banco prova --help\"."},
     {},
     true},
    {{"tavorno-banco classe CARTELLA|ZIP SCRIPT.lua|--esercizio N [opzioni]"},
     {"Esamina una classe e scrive una pagina per studente, quella del docente e\n"
      "le tabelle dei punti; vedi \"tavorno-banco classe --help\"."},
     {},
     true},
    {{"tavorno-banco --help"}, {"Questo testo.", "The help, in Italian."}, {}},
    {{"tavorno-banco --version"},
     {"La versione del programma.", "The version of the program."},
     {}},
};

constexpr Opzione_Manuale file_banco[] = {
    {{"/usr/share/tavorno/examples"},
     {"progetti commentati e gli script degli esercizi",
      "projects with comments, and the scripts of the exercises"}},
    {{"/usr/share/tavorno/solutions"},
     {"i progetti risolti, nel pacchetto tavorno-docente",
      "the solved projects, in the package tavorno-docente"}},
    {{"/usr/share/doc/tavorno-docente/banco.md.gz"},
     {"la guida del docente agli script e agli esami",
      "the teacher's guide to scripts and exams, in Italian"}},
};

constexpr Manuale manuale_banco = {
    "tavorno-banco",
    {"compila ed esegue progetti AWL senza finestre, in tempo virtuale",
     "compiles and runs AWL projects without windows, in virtual time"},
    {"Usa la stessa CPU, lo stesso compilatore e gli stessi impianti di tavorno(1). Un minuto "
     "dell'impianto dura pochi millesimi, e due esecuzioni dello stesso progetto danno lo stesso "
     "risultato fino all'ultimo byte.",
     "Uses the CPU, the compiler and the plants of tavorno(1). A minute of the plant takes a few "
     "milliseconds, and two runs of the same project give the same result to the last byte. All "
     "messages are in Italian."},
    banco,
    {"0 tutto bene, 1 errori di compilazione o di esecuzione oppure\n"
     "un file che non si può scrivere, 2 progetto illeggibile, 64 uso errato.",
     "0 all is well, 1 errors of compiler or run, or a file that cannot be written, 2 a project "
     "that cannot be read, 64 wrong use."},
    file_banco};

}  // namespace

const Manuale& Manuale_Banco() {
  return manuale_banco;
}

}  // namespace tavorno
