// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "bench/plant_options.h"
#include "command_bed.h"

namespace tavorno::prova {

using ::testing::HasSubstr;

struct Mano_Errata {
  std::vector<std::string> opzioni;
  std::string motivo;
};

const std::string fuori_tabella = "il valore di --impianto deve essere un numero intero tra 0 e " +
                                  std::to_string(Tabella_Esercizi().size() - 1);

class WrongPlantUse : public Banco_Comandi, public ::testing::WithParamInterface<Mano_Errata> {};

TEST_P(WrongPlantUse, ExitsWithSixtyFourAndOneLineThatSaysWhat) {
  std::vector<std::string> parole = {"esegui", "a"};
  parole.insert(parole.end(), GetParam().opzioni.begin(), GetParam().opzioni.end());
  EXPECT_EQ(Comando(parole), 64);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, std::string("tavorno-banco: ") + GetParam().motivo +
                     " (tavorno-banco --help per l'aiuto)\n");
}

INSTANTIATE_TEST_SUITE_P(
    PlantNumbers, WrongPlantUse,
    ::testing::Values(
        Mano_Errata{{"--impianto"}, "manca il valore dell'opzione --impianto"},
        Mano_Errata{{"--impianto", std::to_string(Tabella_Esercizi().size())}, fuori_tabella},
        Mano_Errata{{"--impianto", "-1"}, fuori_tabella},
        Mano_Errata{{"--impianto", "US-00"}, fuori_tabella},
        Mano_Errata{{"--mani", "0:premi:imgStart"}, "--mani vuole anche --impianto"},
        Mano_Errata{{"--impianto", "0", "--ingressi", "0:AI0=1,5:I0.1=1"},
                    "con --impianto gli ingressi digitali li dà l'impianto: usare --mani"}));

Mano_Errata Malformata(const char* lista, const char* messaggio) {
  return {{"--impianto", "0", "--mani", lista}, messaggio};
}

#define FORMA                                                                     \
  ": si scrive 500:premi:NOME, oppure rilascia, clic, doppio, oppure 500:regola:" \
  "NOME=3, oppure 500:guasto:NOME=1"

INSTANTIATE_TEST_SUITE_P(
    MalformedHands, WrongPlantUse,
    ::testing::Values(
        Malformata("", "gesto non valido \"\"" FORMA),
        Malformata("premi:imgStart", "gesto non valido \"premi:imgStart\"" FORMA),
        Malformata("-1:premi:imgStart", "gesto non valido \"-1:premi:imgStart\"" FORMA),
        Malformata("5:tocca:imgStart", "gesto non valido \"5:tocca:imgStart\"" FORMA),
        Malformata("5:premi", "gesto non valido \"5:premi\"" FORMA),
        Malformata("5:premi:", "gesto non valido \"5:premi:\"" FORMA),
        Malformata("5:premiimgStart", "gesto non valido \"5:premiimgStart\"" FORMA),
        Malformata("5:premi:imgStart=1", "gesto non valido \"5:premi:imgStart=1\"" FORMA),
        Malformata("5:regola:UpD1", "gesto non valido \"5:regola:UpD1\"" FORMA),
        Malformata("5:regola:UpD1=", "gesto non valido \"5:regola:UpD1=\"" FORMA),
        Malformata("5:regola:UpD1=alto", "gesto non valido \"5:regola:UpD1=alto\"" FORMA),
        Malformata("5:regola:UpD1=3V", "gesto non valido \"5:regola:UpD1=3V\"" FORMA),
        Malformata("5:regola:UpD1=nan", "gesto non valido \"5:regola:UpD1=nan\"" FORMA),
        Malformata("5:guasto:filo(I0.0)", "gesto non valido \"5:guasto:filo(I0.0)\"" FORMA),
        Malformata("5:regola:=3", "gesto non valido \"5:regola:=3\"" FORMA),
        Malformata("5:premi:imgStart,", "gesto non valido \"\"" FORMA)));

#undef FORMA

Mano_Errata Sbagliata(const char* impianto, const char* lista, const char* messaggio) {
  return {{"--impianto", impianto, "--mani", lista}, messaggio};
}

INSTANTIATE_TEST_SUITE_P(
    WrongNamesAndValues, WrongPlantUse,
    ::testing::Values(
        Sbagliata("0", "5:premi:imgStrat",
                  "l'impianto 0 non ha \"imgStrat\" da premere, ma ha: imgStop, imgStart, ImgEm"),
        Sbagliata("0", "5:rilascia:imgM",
                  "l'impianto 0 non ha \"imgM\" da rilasciare, ma ha: imgStop, imgStart, ImgEm"),
        Sbagliata("0", "5:premi:imgstart",
                  "l'impianto 0 non ha \"imgstart\" da premere, ma ha: imgStop, imgStart, ImgEm"),
        Sbagliata("0", "5:clic:imgStart",
                  "l'impianto 0 non ha \"imgStart\" per un clic, ma ha: ImgTer"),
        Sbagliata("3", "5:doppio:KM(4)",
                  "l'impianto 3 non ha \"KM(4)\" per un doppio clic, "
                  "ma ha: KM(0), KM(1), KM(2), KM(3)"),
        Sbagliata("4", "5:doppio:imgPA",
                  "l'impianto 4 non ha niente per un doppio clic: \"imgPA\""),
        Sbagliata("0", "5:regola:UpD1=3", "l'impianto 0 non ha niente da regolare: \"UpD1\""),
        Sbagliata("14", "5:regola:ME_DeltaS=3",
                  "l'impianto 14 non ha \"ME_DeltaS\" da regolare, "
                  "ma ha: slid1(0), slid1(1), UpD1"),
        Sbagliata("14", "5:regola:UpD1=11", "UpD1 va da 0 a 10 a passi di 1, e non a 11"),
        Sbagliata("14", "5:regola:UpD1=2.5", "UpD1 va da 0 a 10 a passi di 1, e non a 2.5"),
        Sbagliata("4", "5:regola:SlidP=0", "SlidP va da 1 a 10 a passi di 1, e non a 0"),
        Sbagliata("0", "5:guasto:filo(I1.0)=1",
                  "l'impianto 0 non ha \"filo(I1.0)\" da guastare, ma ha: ImgTer, imgKM, "
                  "filo(I0.0), incollato(I0.0), filo(I0.1), incollato(I0.1), filo(I0.2), "
                  "incollato(I0.2), filo(I0.3), incollato(I0.3), filo(I0.4), incollato(I0.4)"),
        Sbagliata("0", "5:guasto:ImgTer=2", "ImgTer va da 0 a 1 a passi di 1, e non a 2"),
        Sbagliata("0", "5:rilascia:imgStart", "imgStart non è premuto a 5 ms"),
        Sbagliata("0", "5:premi:imgStart,9:premi:imgStart", "imgStart è già premuto a 9 ms"),
        // Sorted by time, the release comes first.
        Sbagliata("0", "9:premi:imgStart,5:rilascia:imgStart", "imgStart non è premuto a 5 ms")));

/// The plants arrive one after the other.
TEST(PlantChoice, AnExerciseWithoutAPlantIsRefusedByName) {
  std::vector<Esercizio> esercizi(Tabella_Esercizi().begin(), Tabella_Esercizi().end());
  EXPECT_EQ(&Scegli_Impianto(esercizi, 3), &esercizi[3]);
  esercizi[3].Crea = nullptr;
  try {
    Scegli_Impianto(esercizi, 3);
    FAIL() << "no message";
  } catch (const Uso_Errato& errore) {
    EXPECT_STREQ(errore.what(), "l'impianto 3 (03-Ciclo Automatico di due unità) non c'è ancora");
  }
}

class WrongOrder : public Banco_Comandi {};

TEST_F(WrongOrder, AWrongHandIsToldBeforeTheProjectIsRead) {
  EXPECT_EQ(Comando({"esegui", "manca.AWL", "--impianto", "0", "--mani", "0:clic:imgM"}), 64);
  EXPECT_THAT(err, HasSubstr("\"imgM\" per un clic"));
}

TEST_F(WrongOrder, AnUnreadableProjectBesideAPlantStillExitsWithTwo) {
  EXPECT_EQ(Comando({"esegui", (cartella / "manca.AWL").string(), "--impianto", "0"}), 2);
  EXPECT_EQ(out, "");
}

}  // namespace tavorno::prova
