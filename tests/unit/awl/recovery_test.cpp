// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/recovery.h"

#include <algorithm>
#include <random>

#include "awl/recovery_keeper.h"
#include "project_bed.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;

class Recovery : public Banco_Progetto {
 public:
  fs::path Copie() const { return cartella / "stato" / "ripristino"; }
  /// All copies on the disk, whoever holds them.
  std::vector<fs::path> File_Di_Copia() const {
    std::vector<fs::path> file;
    if (!fs::exists(Copie())) return file;
    for (const auto& voce : fs::recursive_directory_iterator(Copie())) {
      if (voce.path().extension() == ".copia") file.push_back(voce.path());
    }
    std::ranges::sort(file);
    return file;
  }
  std::optional<Copia_Progetto> Copia(std::size_t quale = 0) const {
    const std::vector<fs::path> file = File_Di_Copia();
    if (quale >= file.size()) return std::nullopt;
    return Leggi_Copia(Leggi_Byte(file[quale]));
  }
  void Salva_Come(const std::string& nome) {
    scelte.push_back(nome);
    progetto.mnuFileSave();
    ASSERT_EQ(progetto.Annulla, 0);
  }
};

Copia_Progetto Esempio() {
  Copia_Progetto copia{.Ora = 1763793012,
                       .Titolo = "prova.AWL",
                       .File = "/casa/città.AWL",
                       .File_Salvato = "",
                       .Main = "NETWORK 1\r\nfine 0\n\nsigla 3\nabc\n\r\n",
                       .Procedure = {}};
  std::string tutti;
  for (int i = 0; i < 256; ++i) tutti += static_cast<char>(i);
  copia.Procedure.push_back({1, "SBR_0", "SBR0", 1, tutti});
  copia.Procedure.push_back({4, tutti, "SBR3", 2, ""});
  return copia;
}

}  // namespace

TEST_F(Recovery, ACopyComesBackWhateverItsTextsHold) {
  const Copia_Progetto copia = Esempio();
  const std::optional<Copia_Progetto> letta = Leggi_Copia(Byte_Di(copia));
  ASSERT_TRUE(letta);
  EXPECT_EQ(letta->Ora, copia.Ora);
  EXPECT_EQ(letta->Titolo, copia.Titolo);
  EXPECT_EQ(letta->File, copia.File);
  EXPECT_EQ(letta->File_Salvato, "");
  EXPECT_EQ(letta->Main, copia.Main);
  EXPECT_EQ(letta->Procedure, copia.Procedure);
}

TEST_F(Recovery, APartOfACopyIsNone) {
  const std::string byte = Byte_Di(Esempio());
  for (std::size_t n = 0; n < byte.size(); ++n)
    EXPECT_FALSE(Leggi_Copia(std::string_view(byte).substr(0, n))) << n;
}

// Whatever a damaged disk makes of it is read without harm.
TEST_F(Recovery, ADamagedCopyIsReadOrRefused) {
  std::mt19937 caso{4711};
  const std::string byte = Byte_Di(Esempio());
  int rifiutate = 0;
  for (int i = 0; i < 5000; ++i) {
    std::string guasto = byte;
    for (int k = 0; k < 3; ++k) guasto[caso() % guasto.size()] = static_cast<char>(caso() % 256);
    const std::optional<Copia_Progetto> letta = Leggi_Copia(guasto);
    if (!letta) ++rifiutate;
    if (letta) {
      EXPECT_LE(Stato_Di(*letta).Num_SBR, Procedure_Massime);
    }
  }
  EXPECT_GT(rifiutate, 0);
}

TEST_F(Recovery, TooManyProceduresAreRefused) {
  Copia_Progetto copia;
  copia.Procedure.assign(Procedure_Massime, {1, "SBR_0", "SBR0", 1, ""});
  EXPECT_TRUE(Leggi_Copia(Byte_Di(copia)));
  copia.Procedure.push_back({1, "SBR_0", "SBR0", 1, ""});
  EXPECT_FALSE(Leggi_Copia(Byte_Di(copia)));
}

TEST_F(Recovery, AProjectComesBackAsItStood) {
  progetto.mnuFileNew(false);
  progetto.New_Sub();
  progetto.New_Sub();
  progetto.Scheda = 1;
  progetto.Remove_Sub();
  progetto.Scrivi_Main("NETWORK 1\r\nLD I0.0\r\n");
  const Stato_Progetto tornato = Stato_Di(Copia_Di(progetto, 1));
  EXPECT_EQ(tornato.Testi(), progetto.Testi());
  EXPECT_TRUE(tornato.Da_Salvare());
  EXPECT_EQ(tornato.TabSP, std::vector<std::string>{"SBR_1"});
  EXPECT_EQ(tornato.Tab_SBR[1].Num, 2);
  EXPECT_EQ(tornato.Scheda, 1);
  EXPECT_EQ(tornato.txtP, progetto.Tab_SBR[1].Testo);
  EXPECT_EQ(tornato.File_Titolo, "NoName.AWL");
  EXPECT_EQ(tornato.Formattato, 0);
}

// ---- the keeper ---------------------------------------------------------------------------------

TEST_F(Recovery, UnsavedTextHasACopyThatFollowsIt) {
  Custode_Testi custode(progetto, Copie());
  custode.Passo();
  progetto.mnuFileNew(false);
  custode.Passo();
  EXPECT_TRUE(File_Di_Copia().empty()) << "nothing was typed yet";
  for (const std::string testo : {"LD I0.0", "LD I0.0\r\n= Q0.0"}) {
    progetto.Scrivi_Main(testo);
    custode.Passo();
    EXPECT_EQ(custode.Errore(), "");
    ASSERT_TRUE(Copia());
    EXPECT_EQ(Copia()->Main, testo);
    EXPECT_EQ(File_Di_Copia().size(), 1U);
  }
}

TEST_F(Recovery, AnUnchangedTextIsNotWrittenForEver) {
  Custode_Testi custode(progetto, Copie());
  progetto.Scrivi_Main("LD I0.0");
  custode.Passo();
  custode.Passo();  // once more, through to the disk
  const fs::path file = File_Di_Copia().at(0);
  Scrivi_Byte(file, "di qualcuno");
  custode.Passo();
  custode.Scrivi_Ora();
  EXPECT_EQ(Leggi_Byte(file), "di qualcuno");
  progetto.Scrivi_Main("LD I0.1");
  custode.Scrivi_Ora();
  EXPECT_EQ(Copia()->Main, "LD I0.1");
}

TEST_F(Recovery, TheCopyGoesWhenTheTextIsSaved) {
  Custode_Testi custode(progetto, Copie());
  progetto.Scrivi_Main("LD I0.0");
  custode.Passo();
  scelte = {"manca/a.AWL"};
  progetto.mnuFileSave();
  EXPECT_EQ(File_Di_Copia().size(), 1U) << "a save that failed";
  Salva_Come("a.AWL");
  EXPECT_TRUE(File_Di_Copia().empty());
  custode.Passo();
  EXPECT_TRUE(File_Di_Copia().empty());
  progetto.Scrivi_Main("LD I0.1");
  custode.Passo();
  ASSERT_TRUE(Copia());
  EXPECT_EQ(Copia()->File_Salvato, Percorso("a.AWL"));
}

TEST_F(Recovery, TheCopyGoesWhenTheUserDoesNotWantTheText) {
  Custode_Testi custode(progetto, Copie());
  progetto.Scrivi_Main("LD I0.0");
  custode.Passo();
  risposte = {Risposta::No};
  progetto.mnuFileNew(true);
  EXPECT_TRUE(File_Di_Copia().empty());
}

// Opening asks nothing, so what was there is not given up knowingly.
TEST_F(Recovery, ATextThatAnotherTookThePlaceOfKeepsItsCopy) {
  Scrivi("altro.AWL", Byte_Di_Progetto({"NOT"}));
  Custode_Testi custode(progetto, Copie());
  progetto.Scrivi_Main("LD I0.0");
  custode.Passo();
  const Stato_Progetto prima = progetto;
  scelte = {"altro.AWL"};
  progetto.mnuFileOpen();
  custode.Passo();
  ASSERT_EQ(File_Di_Copia().size(), 1U);
  EXPECT_EQ(Copia()->Main, "LD I0.0");
  progetto.Scrivi_Main("NOP 1");
  custode.Passo();
  EXPECT_EQ(File_Di_Copia().size(), 2U);

  static_cast<Stato_Progetto&>(progetto) = prima;  // undo
  progetto.Scrivi_Main("LD I0.7");
  custode.Passo();
  ASSERT_EQ(File_Di_Copia().size(), 2U);
  EXPECT_EQ(Copia(0)->Main, "LD I0.7");
  EXPECT_EQ(Copia(1)->Main, "NOP 1");
  custode.Congeda();
  EXPECT_TRUE(File_Di_Copia().empty());
}

TEST_F(Recovery, WhatCannotBeKeptIsTold) {
  Scrivi("stato", "a file where the folder should be");
  Custode_Testi custode(progetto, Copie());
  progetto.Scrivi_Main("LD I0.0");
  custode.Passo();
  EXPECT_EQ(custode.Errore(), "una parte del percorso non è una cartella");
  fs::remove(cartella / "stato");
  custode.Passo();
  EXPECT_EQ(custode.Errore(), "");
  EXPECT_TRUE(Copia());
}

// ---- who gets what ------------------------------------------------------------------------------

TEST_F(Recovery, ARunningProgramKeepsItsCopies) {
  Progetto altro(plc, {});
  Custode_Testi mio(progetto, Copie()), suo(altro, Copie());
  progetto.Scrivi_Main("mio");
  altro.Scrivi_Main("suo");
  mio.Passo();
  suo.Passo();
  EXPECT_EQ(File_Di_Copia().size(), 2U);
  EXPECT_TRUE(Eredita(Copie()).Voci().empty());
  EXPECT_EQ(File_Di_Copia().size(), 2U);
}

TEST_F(Recovery, WhatAnEndedProgramLeftIsOfferedToOne) {
  {
    Custode_Testi custode(progetto, Copie());
    progetto.Scrivi_Main("LD I0.0");
    custode.Passo();
  }
  {
    Eredita prima(Copie());
    ASSERT_EQ(prima.Voci().size(), 1U);
    ASSERT_TRUE(prima.Voci()[0].Copia);
    EXPECT_EQ(prima.Voci()[0].Copia->Main, "LD I0.0");
    EXPECT_TRUE(Eredita(Copie()).Voci().empty()) << "somebody else looks at it";
  }
  Eredita ancora(Copie());
  ASSERT_EQ(ancora.Voci().size(), 1U) << "put off, not thrown away";
  ancora.Butta(0);
  EXPECT_TRUE(ancora.Voci().empty());
  EXPECT_TRUE(File_Di_Copia().empty());
}

TEST_F(Recovery, ADamagedCopyIsOfferedAsWhatItIs) {
  Scrivi_Byte(Copie() / "uno" / "1.copia", "mezza");
  const Eredita eredita(Copie());
  ASSERT_EQ(eredita.Voci().size(), 1U);
  EXPECT_FALSE(eredita.Voci()[0].Copia);
  EXPECT_EQ(eredita.Voci()[0].Byte, "mezza");
}

TEST_F(Recovery, NothingIsLeftOfAnOrderlyEnd) {
  {
    Custode_Testi custode(progetto, Copie());
    progetto.Scrivi_Main("LD I0.0");
    custode.Passo();
    custode.Congeda();
  }
  EXPECT_TRUE(fs::is_empty(Copie()));
  fs::create_directory(Copie() / "vuota");
  { const Eredita eredita(Copie()); }
  EXPECT_TRUE(fs::is_empty(Copie())) << "an empty folder of a killed program";
}

}  // namespace tavorno::prova
