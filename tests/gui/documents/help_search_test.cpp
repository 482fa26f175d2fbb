// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/help_search.h"

#include <gtest/gtest.h>

#include <QFileInfo>

#include "documents/help_pages.h"
#include "panel/documents/help_notices.h"

namespace tavorno {
namespace {

class Search : public Pagine_Di_Prova {
 protected:
  QStringList Nomi(const char* parole) const {
    QStringList nomi;
    for (const Trovata& trovata : Cerca(guida, Q(parole)))
      nomi += QFileInfo(trovata.File).fileName();
    return nomi;
  }
};

struct Ricerca {
  const char* Parole;
  bool Trova;
};
// All in a page with "La VELOCITÀ del nastro è 12&nbsp;m/s: l’asse <b>si fer</b>ma."
constexpr std::array ricerche{
    Ricerca{"velocità", true},
    Ricerca{"velocita", true},
    Ricerca{"VELOCITÀ", true},
    Ricerca{"nàstro", true},
    Ricerca{"nastro velocità", true},
    Ricerca{"velo", true},
    Ricerca{"l'asse", true},
    Ricerca{"ferma", true},
    Ricerca{"12 m/s", true},
    Ricerca{"nastro ponte", false},
    Ricerca{"b", false},
    Ricerca{"&nbsp;", false},
    Ricerca{"", false},
    Ricerca{"   ", false},
    Ricerca{".*", false},
};

class Search_Words : public Search, public ::testing::WithParamInterface<Ricerca> {};

TEST_P(Search_Words, CapitalsAccentsAndTagsDoNotMatter) {
  Scrivi("HTML/Prova.htm",
         "<title>N. 1</title><p>La VELOCIT\xc3\x80 del nastro &egrave; 12&nbsp;m/s: "
         "l\xe2\x80\x99"
         "asse <b>si fer</b>ma.</p>");
  EXPECT_EQ(Nomi(GetParam().Parole).contains(Q("Prova.htm")), GetParam().Trova);
}

INSTANTIATE_TEST_SUITE_P(Words, Search_Words, ::testing::ValuesIn(ricerche));

TEST_F(Search, LooksInBothFolders) {
  EXPECT_EQ(Nomi("motore"), QStringList{Q("US-00.htm")});
  EXPECT_EQ(Nomi("timer"), QStringList{Q("SET_IST.htm")});
}

TEST_F(Search, NeverLooksOutside) {
  QFile::link(Radice() + Q("/segreto.htm"), guida.Dir_Help + Q("legame.htm"));
  EXPECT_TRUE(Nomi("PAROLA_SEGRETA").isEmpty());
}

TEST_F(Search, AWordInTheTitleComesFirst) {
  Scrivi("HTML/A.htm", "<title>Altro</title><p>pompa pompa pompa</p>");
  Scrivi("HTML/B.htm", "<title>La pompa</title><p>testo</p>");
  EXPECT_EQ(Nomi("pompa"), QStringList({Q("B.htm"), Q("A.htm")}));
}

TEST_F(Search, TheExtractShowsTheSentenceWithItsHitsMarked) {
  Scrivi("HTML/A.htm",
         "<title>Altro</title><p>pompa | indice</p><p>Quando il livello scende la pompa &lt;P1&gt; "
         "riparte da sola.</p>");
  const auto trovate = Cerca(guida, Q("pompa"));
  ASSERT_EQ(trovate.size(), 1);
  EXPECT_EQ(trovate[0].Titolo, Q("Altro"));
  EXPECT_EQ(trovate[0].Estratto,
            Q("Quando il livello scende la <span class=\"trovato\">pompa</span> &lt;P1&gt; riparte "
              "da sola."));
  EXPECT_EQ(trovate[0].Volte, 2);
}

TEST_F(Search, TheExtractOfALongPageIsShort) {
  Scrivi("HTML/A.htm", "<p>" + QByteArray("parola ").repeated(500) + "pompa " +
                           QByteArray("parola ").repeated(500) + "</p>");
  const auto trovate = Cerca(guida, Q("pompa"));
  ASSERT_EQ(trovate.size(), 1);
  EXPECT_LT(trovate[0].Estratto.size(), 320);
  EXPECT_TRUE(trovate[0].Estratto.startsWith(Q("… parola")));
  EXPECT_TRUE(trovate[0].Estratto.endsWith(Q("parola …")));
  EXPECT_TRUE(trovate[0].Estratto.contains(Q("<span class=\"trovato\">pompa</span>")));
}

TEST_F(Search, ResultsAreLinks) {
  const QString html = Pagina_Ricerca(guida, Q("motore"));
  EXPECT_TRUE(html.contains(Q("file://") + guida.Dir_Panel + Q("US-00.htm"))) << Utf8(html);
  EXPECT_TRUE(html.contains(Q("Pagine trovate: 1")));
}

TEST_F(Search, NoResultIsSaid) {
  EXPECT_TRUE(
      Pagina_Ricerca(guida, Q("<zzz>")).contains(Q("Nessuna pagina contiene «&lt;zzz&gt;»")));
}

TEST_F(Search, WithoutWordsAllPagesAreListed) {
  const QString html = Pagina_Ricerca(guida, QString());
  for (const char* titolo : {"Indice", "Istruzioni", "Linguaggio", "00 Marcia", "Senza.htm"})
    EXPECT_TRUE(html.contains(Q(titolo))) << titolo;
}

}  // namespace
}  // namespace tavorno
