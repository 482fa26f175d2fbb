// SPDX-License-Identifier: GPL-3.0-or-later
#include "project_bed.h"

namespace tavorno::prova {

using NewProject = Banco_Progetto;

TEST_F(NewProject, HasTheDefaultText) {
  progetto.mnuFileNew(false);
  EXPECT_EQ(progetto.txtList, Righe({"//Main Program", "//COMMENTI DEL PROGRAMMA", "//", "",
                                     "NETWORK 1       //TITOLO DEL SEGMENTO (una riga)", "//",
                                     "//COMMENTI DEL SEGMENTO", "//"}));
}

TEST_F(NewProject, SavesCompilesAndLoads) {
  progetto.mnuFileNew(false);
  scelte = {"nuovo.AWL"};
  progetto.mnuPlcCarica();
  EXPECT_EQ(Testi_Avvisi(),
            (std::vector<std::string>{"Attenzione!: Il progetto non è formattato correttamente!\r\n"
                                      "Occorre salvare il file prima della compilazione.",
                                      "Attenzione!:  1 Righe compilate con successo!"}));
  EXPECT_EQ(progetto.Carica_CPU, 1);
}

}  // namespace tavorno::prova
