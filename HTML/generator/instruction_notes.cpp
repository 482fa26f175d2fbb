// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/instruction_notes.h"

namespace tavorno {

namespace {

// clang-format off
constexpr Nota_Istruzione note[] = {
    {"LDI", "", "Vede un ingresso cambiato durante la scansione; <code>LD</code> lo vede dalla scansione dopo."},
    {"EU", "", "Nella prima scansione dopo RUN (modi continuo e ciclo) non dà mai l'impulso."},
    {"ED", "", "Ogni riga <code>EU</code> o <code>ED</code> ha la sua memoria del fronte."},
    {"LPS", "", "La pila ha otto posti: un nono valore fa cadere il più vecchio, senza avviso."},
    {"=", "", "Scrive a ogni scansione, anche lo 0."},
    {"=I", "", "L'uscita fisica cambia subito, senza aspettare la fine della scansione."},
    {"S", "", "Il conto dei bit non passa al byte dopo: <code>S M0.7, 3</code> fa chiudere il simulatore."},
    {"R", "", "Su M il conto passa al byte dopo. Su T e C azzera soltanto l'elemento indicato, qualunque sia il numero."},
    {"SI", "", "Con numero N agisce su N+1 uscite: <code>SI Q0.0, 1</code> accende Q0.0 e Q0.1."},
    {"RI", "", "Agisce su N+1 bit; l'uscita fisica si spegne alla fine della scansione."},
    {"TON", "", "Il preset è in scatti di 100 ms: +30 sono 3 s. Il valore continua a crescere fino a 32760. Da T41 a T63 passa la compilazione, ma fa chiudere il simulatore: lo stesso vale per TOF e TONR."},
    {"TOF", "", "L'uscita resta accesa per il tempo impostato dopo che l'ingresso si è spento."},
    {"TONR", "", "Il tempo non si azzera togliendo l'ingresso: serve <code>R</code> sul temporizzatore."},
    {"CTU", "", "Si caricano due bit: prima il conteggio, poi il reset. Nella prima scansione non conta."},
    {"CTD", "", "Si caricano due bit: prima il conteggio, poi il caricamento. Con VW al caricamento il valore diventa il <em>numero</em> della parola, non il suo contenuto."},
    {"CTUD", "", "Si caricano tre bit: avanti, indietro, reset. Il valore può diventare negativo."},
    {"MOVB", "", "Guarda solo la cima della pila: agisce anche in una sezione SCR non attiva."},
    {"MOVW", "", "IW, QW e MW non sono letti in binario: con I0.0 e I0.2 a 1 il byte si scrive 00000101 e IW0 vale 101. Con il bit 5, 6 o 7 a 1 il numero è troppo grande e il PLC si ferma."},
    {"MOVD", "", "Guarda solo la cima della pila: agisce anche in una sezione SCR non attiva."},
    {"BIW", "", "Le uscite cambiano subito, a metà della scansione."},
    {"BTI", "", "Con T o C come destinazione scrive il preset, non il valore."},
    {"+I", "", "Fuori da -32768..32767: SM1.1 va a 1 e OP2 resta com'era."},
    {"-I", "", "Fuori da -32768..32767: SM1.1 va a 1 e OP2 resta com'era."},
    {"*I", "", "Fuori dal campo: SM1.1 va a 1 e in OP2 c'è 32767, anche se il risultato era negativo."},
    {"/I", "", "Il resto si perde. Divisione per 0: OP2 resta com'era e SM1.3 va a 1, dove resta finché non chiudi il simulatore."},
    {"+D", "", "Un risultato sopra 32767 diventa 32767 e SM1.1 va a 1."},
    {"/D", "", "Il resto si perde. Divisione per 0: OP2 resta com'era e SM1.3 va a 1, dove resta finché non chiudi il simulatore."},
    {"INCB", "", "Il byte è contato con il segno: sopra 127 SM1.1 va a 1, ma il valore è scritto lo stesso."},
    {"INCW", "", "Oltre 32767 il simulatore si chiude: controlla prima il valore."},
    {"DECW", "", "Sotto -32768 il simulatore si chiude: controlla prima il valore."},
    {"NETW", "NETWORK n //titolo", "Si scrive <code>NETWORK</code> e il numero; divide il programma in segmenti e non fa nulla."},
    {"MEND", "", "La mette il simulatore alla fine del programma principale: non va scritta."},
    {"JMP", "JMP    n", "Salta se la cima della pila è 1. I temporizzatori saltati si fermano al valore raggiunto. Non può stare in una sezione SCR."},
    {"LBL", "LBL    n", "Un'etichetta per ogni numero."},
    {"CALL", "CALL   nome", "Chiama se la cima della pila è 1; il nome è quello della linguetta, per esempio SBR_0. Se non chiama, ferma i temporizzatori della procedura."},
    {"SBR", "", "La mette il simulatore all'inizio di ogni procedura: non va scritta."},
    {"RET", "", "La mette il simulatore alla fine di ogni procedura: non va scritta. Una procedura che ne chiama un'altra non ritorna al posto giusto: chiama solo dal programma principale."},
    {"LSCR", "LSCR   Sx.y", "Il bit S è guardato quando la riga è eseguita. Nella sezione non possono stare <code>JMP</code> e <code>LBL</code>."},
    {"SCRE", "SCRE", "Ogni <code>LSCR</code> vuole la sua <code>SCRE</code>."},
};
// clang-format on

}  // namespace

std::span<const Nota_Istruzione> Note_Istruzioni() {
  return note;
}

}  // namespace tavorno
