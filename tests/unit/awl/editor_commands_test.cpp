// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's file commands as far as they need no window.
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

std::string Testa(const std::string& nome) {
  return Banco_Progetto::Righe({"// " + nome, "//COMMENTI DEL SOTTOPROGRAMMA", "//", ""});
}

const std::string nuovo_main = Banco_Progetto::Righe(
    {"//Main Program", "//COMMENTI DEL PROGRAMMA", "//", "",
     "NETWORK 1       //TITOLO DEL SEGMENTO (una riga)", "//", "//COMMENTI DEL SEGMENTO", "//"});

}  // namespace

using EditorCommands = Banco_Progetto;

// ---- projects -----------------------------------------------------------------------------------

TEST_F(EditorCommands, NewLeavesTheOldProceduresOnScreen) {
  progetto.New_Sub();
  progetto.Scrivi_Procedura("NOT");
  progetto.Formattato = -1;
  progetto.mnuFileNew(false);
  EXPECT_EQ(progetto.txtList, nuovo_main);
  EXPECT_EQ(progetto.Testo_Main, nuovo_main);
  EXPECT_EQ(progetto.Num_SBR, 0);
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
  EXPECT_EQ(progetto.txtP, "NOT");
  EXPECT_EQ(progetto.File_Titolo, "NoName.AWL");
  EXPECT_EQ(progetto.stB[0], "File: NoName.AWL");
  EXPECT_EQ(progetto.Formattato, 0);
  EXPECT_TRUE(progetto.Comandi_Attivi);
  EXPECT_FALSE(progetto.cmdDelP);
}

struct Caso_Nuovo {
  std::string nome;
  bool chiede;
  bool modificato;
  Risposta risposta;
  int domande;
  int salvataggi;
};

class NewCommand : public Banco_Progetto, public testing::WithParamInterface<Caso_Nuovo> {};

TEST_P(NewCommand, AsksToSaveWhatWasEdited) {
  const Caso_Nuovo& caso = GetParam();
  progetto.Scrivi_Main("NOT");
  progetto.Modificato = caso.modificato ? -1 : 0;
  risposte = {caso.risposta};
  scelte = {"salvato.AWL"};
  progetto.mnuFileNew(caso.chiede);
  ASSERT_EQ(static_cast<int>(avvisi.size()), caso.domande);
  if (caso.domande == 1) {
    EXPECT_EQ(Testi_Avvisi(), Lista{"Attenzione!: Salvare il progetto corrente?"});
    EXPECT_EQ(avvisi[0].Scelte, Tasti::Si_No);
  }
  EXPECT_EQ(static_cast<int>(richieste.size()), caso.salvataggi);
  EXPECT_EQ(std::filesystem::exists(Percorso("salvato.AWL")), caso.salvataggi == 1);
  EXPECT_EQ(progetto.txtList, nuovo_main);
}

INSTANTIATE_TEST_SUITE_P(AllAnswers, NewCommand,
                         testing::Values(Caso_Nuovo{"Yes", true, true, Risposta::Si, 1, 1},
                                         Caso_Nuovo{"No", true, true, Risposta::No, 1, 0},
                                         Caso_Nuovo{"NotEdited", true, false, Risposta::Si, 0, 0},
                                         Caso_Nuovo{"AtTheStart", false, true, Risposta::Si, 0, 0}),
                         [](const auto& caso) { return caso.param.nome; });

TEST_F(EditorCommands, NewKeepsEditsWhoseSaveIsCancelled) {
  progetto.Scrivi_Main("NOT");
  risposte = {Risposta::Si};
  progetto.mnuFileNew(true);
  EXPECT_EQ(richieste.size(), 1U);
  EXPECT_EQ(progetto.txtList, "NOT");
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(EditorCommands, NewReplacesAnEmptyTextThatCouldNotBeSaved) {
  progetto.Scrivi_Main("");
  risposte = {Risposta::Si};
  progetto.mnuFileNew(true);
  EXPECT_EQ(Testi_Avvisi(), (Lista{"Attenzione!: Salvare il progetto corrente?",
                                   "Attenzione: Nessuna riga di codice inserita!"}));
  EXPECT_EQ(progetto.txtList, nuovo_main);
}

TEST_F(EditorCommands, OpenReadsTheChosenFile) {
  Scrivi("uno.AWL",
         File_Main({"NOT"}) + Righe({"SUBROUTINE_BLOCK SBR_0:SBR0", "END_SUBROUTINE_BLOCK"}));
  progetto.Scrivi_Main("perso");  // unsaved edits go without a word
  progetto.Compilato = -1;
  scelte = {"uno.AWL"};
  progetto.mnuFileOpen();
  EXPECT_TRUE(avvisi.empty());
  ASSERT_EQ(richieste.size(), 1U);
  EXPECT_FALSE(richieste[0].Salva);
  EXPECT_EQ(richieste[0].Filtro, "File AWL (*.AWL)|*.AWL");
  EXPECT_EQ(progetto.File_Progetto, Percorso("uno.AWL"));
  EXPECT_EQ(progetto.File_Titolo, "uno.AWL");
  EXPECT_EQ(progetto.stB[0], "File: uno.AWL");
  EXPECT_EQ(progetto.Formattato, -1);
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(progetto.Modificato, 0);
  EXPECT_EQ(progetto.Annulla, 0);
  EXPECT_TRUE(progetto.Comandi_Attivi);
  EXPECT_TRUE(progetto.cmdDelP);
}

TEST_F(EditorCommands, OpenCancelledChangesNothing) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  const std::string testo = progetto.txtList;
  progetto.Compilato = progetto.Modificato = -1;
  progetto.mnuFileOpen();
  EXPECT_EQ(progetto.Annulla, -1);
  EXPECT_EQ(progetto.txtList, testo);
  EXPECT_EQ(progetto.File_Progetto, Percorso("prova.AWL"));
  EXPECT_EQ(progetto.File_Titolo, "prova.AWL");
  EXPECT_EQ(progetto.Compilato, -1);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(EditorCommands, SaveOfAnEmptyProjectShowsABoxAndNoDialog) {
  progetto.mnuFileSave();
  EXPECT_EQ(Testi_Avvisi(), Lista{"Attenzione: Nessuna riga di codice inserita!"});
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
  EXPECT_TRUE(richieste.empty());
  EXPECT_EQ(progetto.Annulla, -1);
}

TEST_F(EditorCommands, SaveAlwaysAsksAndKeepsTitleAndEdits) {
  progetto.Scrivi_Main("NOT");
  progetto.File_Titolo = "vecchio.AWL";
  progetto.Annulla = -1;
  scelte = {"uno.AWL", "due.AWL"};
  progetto.mnuFileSave();
  progetto.mnuFileSave();
  EXPECT_EQ(richieste.size(), 2U);
  EXPECT_EQ(Leggi("uno.AWL"), Leggi("due.AWL"));
  EXPECT_EQ(progetto.File_Salva, Percorso("due.AWL"));
  EXPECT_EQ(progetto.File_Titolo, "vecchio.AWL");
  EXPECT_EQ(progetto.stB[0], "File: due.AWL");
  EXPECT_EQ(progetto.Testo_Main, "NOT\r\n");
  EXPECT_EQ(progetto.txtList, "NOT");
  EXPECT_EQ(progetto.Modificato, -1);
  EXPECT_EQ(progetto.Annulla, 0);
}

TEST_F(EditorCommands, SaveCancelledSetsAnnullaOnly) {
  progetto.Scrivi_Main("NOT");
  progetto.mnuFileSave();
  EXPECT_EQ(progetto.Annulla, -1);
  EXPECT_EQ(progetto.File_Salva, "");
  EXPECT_EQ(progetto.Testo_Main, "NOT");
  EXPECT_EQ(progetto.stB[0], "File:");
}

TEST_F(EditorCommands, AreEnabledByStateOneAndDisabledByStateZeroOnly) {
  progetto.New_Sub();
  progetto.Gestione_Voci(0);
  for (const int stato : {0, 2, 3}) {
    progetto.Gestione_Voci(static_cast<std::uint8_t>(stato));
    EXPECT_FALSE(progetto.Comandi_Attivi) << stato;
    EXPECT_FALSE(progetto.cmdDelP) << stato;
  }
  for (const int stato : {1, 2, 3}) {
    progetto.Gestione_Voci(static_cast<std::uint8_t>(stato));
    EXPECT_TRUE(progetto.Comandi_Attivi) << stato;
    EXPECT_TRUE(progetto.cmdDelP) << stato;
  }
  progetto.Num_SBR = 0;
  progetto.Gestione_Voci(1);
  EXPECT_FALSE(progetto.cmdDelP);
}

// ---- text files ---------------------------------------------------------------------------------

class TextFiles : public Banco_Progetto {
 protected:
  void Importa(int pagina) {
    progetto.Pagina = pagina;
    progetto.Formattato = progetto.Compilato = -1;
    Scrivi("testo.TXT", "//uno\r\n\tLD  I0.0\r\n");
    scelte = {"testo.TXT"};
    progetto.mnuFileTxtImp();
    EXPECT_EQ(richieste.back().Filtro, "File di Testo  (*.TXT)|*.TXT");
    EXPECT_FALSE(richieste.back().Salva);
    EXPECT_EQ(progetto.Formattato, 0);
    EXPECT_EQ(progetto.Compilato, 0);
    EXPECT_TRUE(progetto.Comandi_Attivi);
  }
};

TEST_F(TextFiles, ReplaceTheMainTextAsTheyStand) {
  progetto.Scrivi_Main("vecchio");
  Importa(0);
  EXPECT_EQ(progetto.txtList, "//uno\r\n\tLD  I0.0\r\n");
  EXPECT_EQ(progetto.Testo_Main, progetto.txtList);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(TextFiles, BecomeAProcedureOnItsPage) {
  progetto.Scrivi_Main("vecchio");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("prima");
  Importa(1);
  EXPECT_EQ(progetto.txtList, "vecchio");
  EXPECT_EQ(progetto.Num_SBR, 2);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, "prima");
  EXPECT_EQ(progetto.Tab_SBR[2].Testo, Testa("SBR_1") + "//uno\r\n\tLD  I0.0\r\n");
  EXPECT_EQ(progetto.txtP, progetto.Tab_SBR[2].Testo);
  EXPECT_TRUE(progetto.cmdDelP);
}

TEST_F(TextFiles, ChangeNoTextOnTheOtherPages) {
  progetto.Scrivi_Main("vecchio");
  progetto.txtP = "altro";
  for (const int pagina : {2, 3}) Importa(pagina);
  EXPECT_EQ(progetto.txtList, "vecchio");
  EXPECT_EQ(progetto.txtP, "altro");
  EXPECT_EQ(progetto.Num_SBR, 0);
}

TEST_F(TextFiles, CancelledChangeNothing) {
  progetto.Scrivi_Main("vecchio");
  progetto.Formattato = progetto.Compilato = -1;
  progetto.mnuFileTxtImp();
  progetto.mnuFileTxtExp();
  progetto.mnufiltxtT();
  EXPECT_EQ(progetto.Annulla, -1);
  EXPECT_EQ(progetto.txtList, "vecchio");
  EXPECT_EQ(progetto.Formattato, -1);
  EXPECT_EQ(progetto.Compilato, -1);
  EXPECT_EQ(progetto.File_Salva, "");
}

TEST_F(TextFiles, ThatCannotBeReadChangeNothing) {
  progetto.Scrivi_Main("vecchio");
  progetto.Formattato = -1;
  scelte = {"manca.TXT"};
  progetto.mnuFileTxtImp();
  EXPECT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(progetto.txtList, "vecchio");
  EXPECT_EQ(progetto.Formattato, -1);
}

TEST_F(TextFiles, LeavePathAndEditsOfTheProjectButTakeTheNextWrite) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  for (const bool intero : {false, true}) {
    const std::string nome = intero ? "intero.TXT" : "pagina.TXT";
    scelte = {nome};
    if (intero)
      progetto.mnufiltxtT();
    else
      progetto.mnuFileTxtExp();
    EXPECT_EQ(progetto.File_Salva, Percorso(nome));
    EXPECT_EQ(progetto.File_Progetto, Percorso("prova.AWL"));
    EXPECT_EQ(progetto.File_Titolo, "prova.AWL");
    EXPECT_EQ(progetto.Modificato, 0);
    EXPECT_EQ(progetto.Formattato, -1);
  }
  scelte = {"dopo.AWL"};
  progetto.mnuFileSave();
  EXPECT_EQ(progetto.File_Salva, Percorso("dopo.AWL"));
  EXPECT_TRUE(Leggi("dopo.AWL").starts_with("ORGANIZATION_BLOCK"));
}

// ---- encodings ----------------------------------------------------------------------------------

struct Caso_Utf8 {
  std::string nome;
  std::string segno;
  std::string perche;  ///< the word as the file has it
  Risposta risposta;
  int domande;
  std::string letta;
};

class OpenedEncoding : public Banco_Progetto, public testing::WithParamInterface<Caso_Utf8> {};

TEST_P(OpenedEncoding, IsThatOfTheFileOrAsked) {
  const Caso_Utf8& caso = GetParam();
  Scrivi("uno.AWL", caso.segno + File_Main({"//" + caso.perche, "NOT"}));
  Scrivi("uno.TXT", caso.segno + "//" + caso.perche);
  for (const bool importa : {false, true}) {
    avvisi.clear();
    risposte = {caso.risposta};
    scelte = {importa ? "uno.TXT" : "uno.AWL"};
    importa ? progetto.mnuFileTxtImp() : progetto.mnuFileOpen();
    EXPECT_EQ(progetto.Err_Lettura, 0);
    EXPECT_NE(progetto.txtList.find("//" + caso.letta), std::string::npos) << progetto.txtList;
    ASSERT_EQ(static_cast<int>(avvisi.size()), caso.domande);
    if (caso.domande == 0) continue;
    EXPECT_EQ(avvisi[0].Scelte, Tasti::Si_No);
    EXPECT_NE(avvisi[0].Testo.find("\"perché\", con No \"perchÃ©\""), std::string::npos)
        << avvisi[0].Testo;
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, OpenedEncoding,
    testing::Values(Caso_Utf8{"CodePage", "", "perch\xE9", Risposta::Si, 0, "perch\xE9"},
                    Caso_Utf8{"Utf8Mark", "\xEF\xBB\xBF", "perch\xC3\xA9", Risposta::No, 0,
                              "perch\xE9"},
                    Caso_Utf8{"TakenAsUtf8", "", "perch\xC3\xA9", Risposta::Si, 1, "perch\xE9"},
                    Caso_Utf8{"LeftAsItIs", "", "perch\xC3\xA9", Risposta::No, 1, "perch\xC3\xA9"}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(EditorCommands, OpenTellsThatAllTextStoodOutsideOfTheBlocks) {
  Scrivi("uno.AWL", "LD I0.0\r\n= Q0.0\r\nEND_ORGANIZATION_BLOCK\r\n");
  scelte = {"uno.AWL"};
  progetto.mnuFileOpen();
  EXPECT_EQ(
      Testi_Avvisi(),
      Lista{"Attenzione!: Il progetto è vuoto. Righe che non vengono lette: 2, dalla riga 1 "
            "(\"LD I0.0\") in poi, perché stanno fuori dai blocchi: un programma comincia con "
            "\"ORGANIZATION_BLOCK MAIN:OB1\"."});
  EXPECT_EQ(progetto.Err_Lettura, 0);
  EXPECT_EQ(progetto.Testo_Main, "");
}

TEST_F(EditorCommands, OpenTellsOfCharactersThatGetLost) {
  Scrivi("uno.AWL", "\xEF\xBB\xBF" + File_Main({"//\xE2\x86\x92", "NOT"}));
  scelte = {"uno.AWL"};
  progetto.mnuFileOpen();
  EXPECT_EQ(Testi_Avvisi(),
            Lista{"Attenzione!: Caratteri che il programma non ha, e che diventano \"?\": 1."});
  EXPECT_EQ(progetto.Err_Lettura, 0);
}

}  // namespace tavorno::prova
