// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/help_folder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>

#include "documents/help_pages.h"
#include "panel/documents/help_view.h"
#include "panel/documents/html_text.h"

namespace tavorno {
namespace {

// ---- ways out of the help folders ---------------------------------------------------------------

struct Fuga {
  const char* Nome;
  const char* Testo;  // "@" stands for the folder above HTML
  Luogo Atteso;
};

// Names without a scheme are paths: what is a percent sign there is a percent sign in the name.
constexpr std::array fughe{
    Fuga{"Parent", "../segreto.htm", Luogo::Fuori},
    Fuga{"ParentInTheMiddle", "Panel/../../segreto.htm", Luogo::Fuori},
    Fuga{"Backslashes", "Panel\\..\\..\\segreto.htm", Luogo::Fuori},
    Fuga{"AbsolutePath", "@/segreto.htm", Luogo::Fuori},
    Fuga{"AbsolutePathWithParent", "@/HTML/../segreto.htm", Luogo::Fuori},
    Fuga{"SiblingWithTheSameBeginning", "@/HTML2/segreto.htm", Luogo::Fuori},
    Fuga{"FileAddress", "file://@/segreto.htm", Luogo::Fuori},
    Fuga{"FileAddressInCapitals", "FILE://@/segreto.htm", Luogo::Fuori},
    Fuga{"FileAddressWithOneSlash", "file:@/segreto.htm", Luogo::Fuori},
    Fuga{"FileAddressWithParent", "file://@/HTML/../segreto.htm", Luogo::Fuori},
    Fuga{"PercentDots", "file://@/HTML/%2e%2e/segreto.htm", Luogo::Fuori},
    Fuga{"PercentSlash", "file://@/HTML/..%2Fsegreto.htm", Luogo::Fuori},
    Fuga{"PercentAll", "file://@/HTML%2F%2E%2E%2Fsegreto%2Ehtm", Luogo::Fuori},
    Fuga{"PercentZero", "file://@/HTML/Index.htm%00/../../segreto.htm", Luogo::Fuori},
    Fuga{"LinkToAFile", "legame.htm", Luogo::Fuori},
    Fuga{"LinkToAFolder", "cartella/segreto.htm", Luogo::Fuori},
    Fuga{"SystemFile", "/etc/passwd", Luogo::Fuori},
    Fuga{"Device", "/dev/zero", Luogo::Fuori},
    Fuga{"OtherComputer", "file://altrove/HTML/Index.htm", Luogo::Esterno},
    Fuga{"Http", "http://127.0.0.1/Index.htm", Luogo::Esterno},
    Fuga{"Https", "HTTPS://example.org/", Luogo::Esterno},
    Fuga{"Ftp", "ftp://127.0.0.1/x.htm", Luogo::Esterno},
    Fuga{"Resource", "qrc:/icons/tavorno.svg", Luogo::Esterno},
    Fuga{"ResourcePath", ":/icons/tavorno.svg", Luogo::Fuori},
    Fuga{"Data", "data:text/html,testo", Luogo::Esterno},
    Fuga{"Script", "javascript:alert(1)", Luogo::Esterno},
    Fuga{"TheFolderItself", "@/HTML", Luogo::Fuori},
    Fuga{"AFolderInside", "Panel", Luogo::Manca},
    Fuga{"MissingPage", "US-99.htm", Luogo::Manca},
    Fuga{"MissingPageOutside", "../US-99.htm", Luogo::Fuori},
    Fuga{"PercentInAPlainPath", "%2e%2e/segreto.htm", Luogo::Manca},
};

class Escape : public Pagine_Di_Prova, public ::testing::WithParamInterface<Fuga> {
 protected:
  Escape() {
    QFile::link(Radice() + Q("/segreto.htm"), guida.Dir_Help + Q("legame.htm"));
    QFile::link(Radice(), guida.Dir_Help + Q("cartella"));
    QDir(Radice()).mkpath(Q("HTML2"));
    Scrivi("HTML2/segreto.htm", "PAROLA_SEGRETA");
  }
  QString Testo() const { return Q(GetParam().Testo).replace('@', Radice()); }
};

TEST_P(Escape, IsSeen) {
  const QUrl url = Indirizzo_Da_Testo(guida, Testo());
  EXPECT_EQ(Dove(guida, url), GetParam().Atteso) << Utf8(url.toString());
  EXPECT_FALSE(Leggi(guida, url).has_value());
}

TEST_P(Escape, ShowsAPageThatSaysSo) {
  Vista_Aiuto vista(guida);
  vista.setSource(Indirizzo_Da_Testo(guida, Testo()));
  const QString titolo = GetParam().Atteso == Luogo::Esterno ? Q("Pagina esterna")
                         : GetParam().Atteso == Luogo::Fuori ? Q("Pagina fuori dalla guida")
                                                             : Q("Pagina non trovata");
  EXPECT_EQ(vista.Titolo(), titolo);
  EXPECT_FALSE(vista.toPlainText().contains(Q("PAROLA_SEGRETA")));
}

TEST_P(Escape, AsALinkOfAPageReadsNothingEither) {
  Vista_Aiuto vista(guida);
  vista.setSource(Indirizzo_Da_Testo(guida, Q("Index.htm")));
  vista.setSource(QUrl(Testo()));
  EXPECT_FALSE(vista.toPlainText().contains(Q("PAROLA_SEGRETA")));
  EXPECT_TRUE(vista.Titolo().startsWith(Q("Pagina "))) << Utf8(vista.Titolo());
}

INSTANTIATE_TEST_SUITE_P(Ways, Escape, ::testing::ValuesIn(fughe),
                         [](const auto& riga) { return std::string(riga.param.Nome); });

class Resources : public Pagine_Di_Prova {
 protected:
  QImage Immagine(const QString& nome) {
    Vista_Aiuto vista(guida);
    vista.setSource(Indirizzo_Da_Testo(guida, Q("Index.htm")));
    return vista.document()->resource(QTextDocument::ImageResource, QUrl(nome)).value<QImage>();
  }
};

TEST_F(Resources, APictureOfTheHelpIsRead) {
  EXPECT_EQ(Immagine(Q("buona.png")).size(), QSize(9, 6));
}

TEST_F(Resources, APictureOutsideIsReplaced) {
  QFile::link(Radice() + Q("/segreto.png"), guida.Dir_Help + Q("legame.png"));
  for (const QString& nome :
       {Q("../segreto.png"), Q("%2e%2e/segreto.png"), Q("legame.png"), Radice() + Q("/segreto.png"),
        Q("file://") + Radice() + Q("/segreto.png"), Q("http://127.0.0.1/x.png"), Q("manca.png"),
        Q("qrc:/segreto.png"), Q(":/icons/tavorno.svg"), Q("Index.htm")}) {
    const QImage immagine = Immagine(nome);
    EXPECT_FALSE(immagine.isNull()) << Utf8(nome);
    EXPECT_EQ(immagine.size(), QSize(48, 32)) << Utf8(nome);
  }
}

TEST_F(Resources, ADrawingIsDrawnAtTheScreensScale) {
  Scrivi("HTML/d.svg",
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"30\" height=\"20\">"
         "<rect width=\"30\" height=\"20\" fill=\"#ff0000\"/></svg>");
  const QImage immagine = Immagine(Q("d.svg"));
  EXPECT_EQ(immagine.deviceIndependentSize(), QSizeF(30, 20));
  EXPECT_EQ(immagine.pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(Resources, ADrawingThatNamesAPictureIsReplaced) {
  const QByteArray disegno =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"30\" height=\"20\">"
      "<image width=\"9\" height=\"9\" href=\"" +
      Radice().toUtf8() + "/segreto.png\"/></svg>";
  Scrivi("HTML/d.svg", disegno);
  EXPECT_EQ(Immagine(Q("d.svg")).size(), QSize(48, 32));
}

TEST_F(Resources, AStyleSheetOfTheHelpIsReadAndOneOutsideIsNot) {
  Scrivi("HTML/stile.css", "p { color: #ff0000 }");
  Scrivi("stile.css", "p { color: #00ff00 }");
  Scrivi("HTML/Panel/con.htm",
         "<html><head><link rel=\"stylesheet\" type=\"text/css\" "
         "href=\"../stile.css\"></head><p>testo</p></html>");
  Scrivi("HTML/Panel/senza.htm",
         "<html><head><link rel=\"stylesheet\" type=\"text/css\" "
         "href=\"../../stile.css\"></head><p>testo</p></html>");
  Vista_Aiuto vista(guida);
  vista.setSource(Indirizzo_Da_Testo(guida, Q("Index.htm")));  // of another folder
  const auto colore = [&vista](const QUrl& url) {
    vista.setSource(url);
    return vista.document()->firstBlock().begin().fragment().charFormat().foreground().color();
  };
  EXPECT_EQ(colore(Indirizzo_Da_Testo(guida, Q("con.htm"))), QColor(Qt::red));
  EXPECT_NE(colore(Indirizzo_Da_Testo(guida, Q("senza.htm"))), QColor(Qt::green));
}

// ---- addresses ----------------------------------------------------------------------------------

struct Nome_Scritto {
  const char* Testo;
  const char* File;  // below HTML
};
constexpr std::array nomi_scritti{
    Nome_Scritto{"Index.htm", "Index.htm"},
    Nome_Scritto{"  Index.htm ", "Index.htm"},
    Nome_Scritto{"index", "Index.htm"},
    Nome_Scritto{"SET_IST.htm", "SET_IST.htm"},
    Nome_Scritto{"Index-AWL.htm", "Index-AWL.htm"},
    Nome_Scritto{"US-00.htm", "Panel/US-00.htm"},
    Nome_Scritto{"us-00", "Panel/US-00.htm"},
    Nome_Scritto{"Panel/US-00.htm", "Panel/US-00.htm"},
    Nome_Scritto{"Panel\\US-00.htm", "Panel/US-00.htm"},
    Nome_Scritto{"Index.htm#fine", "Index.htm#fine"},
    Nome_Scritto{"@/HTML/Index.htm", "Index.htm"},
    Nome_Scritto{"@/HTML/Panel/../Index.htm", "Index.htm"},
    Nome_Scritto{"file://@/HTML/Index.htm", "Index.htm"},
    Nome_Scritto{"file://@/HTML/Index.htm#fine", "Index.htm#fine"},
};

class Typed_Name : public Pagine_Di_Prova, public ::testing::WithParamInterface<Nome_Scritto> {};

TEST_P(Typed_Name, FindsItsPage) {
  const QUrl url = Indirizzo_Da_Testo(guida, Q(GetParam().Testo).replace('@', Radice()));
  EXPECT_EQ(Dove(guida, url), Luogo::Dentro);
  EXPECT_EQ(Testo_Indirizzo(url), guida.Dir_Help + Q(GetParam().File));
}

INSTANTIATE_TEST_SUITE_P(Names, Typed_Name, ::testing::ValuesIn(nomi_scritti));

using Address = Pagine_Di_Prova;

TEST_F(Address, AnEmptyTextMeansNothing) {
  EXPECT_FALSE(Indirizzo_Da_Testo(guida, Q("")).isValid());
  EXPECT_FALSE(Indirizzo_Da_Testo(guida, Q("   ")).isValid());
}

TEST_F(Address, ASearchKeepsItsWords) {
  for (const char* parole : {"", "timer", "timer TON", "50% a/b?c#d", "velocità"}) {
    const QUrl url = Indirizzo_Da_Testo(guida, Q("cerca:") + Q(parole));
    EXPECT_TRUE(url.isValid());
    EXPECT_EQ(Parole_Cercate(url), Q(parole));
    EXPECT_EQ(Testo_Indirizzo(url), Q("cerca:") + Q(parole));
  }
}

TEST_F(Address, AFolderMayHaveANumberSignInItsName) {
  QDir(Radice()).mkpath(Q("a#b/HTML"));
  Scrivi("a#b/HTML/Index.htm", "<p>qui</p>");
  guida.Dir_Help = Radice() + Q("/a#b/HTML/");
  const QUrl url = Indirizzo_Da_Testo(guida, guida.Dir_Help + Q("Index.htm#fine"));
  EXPECT_EQ(Dove(guida, url), Luogo::Dentro);
  EXPECT_EQ(url.fragment(), Q("fine"));
}

TEST_F(Address, TheHelpFolderMayBeReachedThroughALink) {
  QFile::link(Radice() + Q("/HTML"), Radice() + Q("/guida"));
  guida.Dir_Help = Radice() + Q("/guida/");
  guida.Dir_Panel = Radice() + Q("/guida/Panel/");
  EXPECT_EQ(Dove(guida, Indirizzo_Da_Testo(guida, Q("Index.htm"))), Luogo::Dentro);
  EXPECT_EQ(Dove(guida, Indirizzo_Da_Testo(guida, Q("manca.htm"))), Luogo::Manca);
  EXPECT_EQ(Dove(guida, Indirizzo_Da_Testo(guida, Q("../segreto.htm"))), Luogo::Fuori);
}

TEST_F(Address, AllPagesAreListedOnce) {
  QFile::link(Radice() + Q("/segreto.htm"), guida.Dir_Help + Q("legame.htm"));
  QStringList nomi;
  for (const QString& pagina : Pagine(guida)) nomi += pagina.mid(guida.Dir_Help.size());
  EXPECT_EQ(nomi, QStringList({Q("Index-AWL.htm"), Q("Index.htm"), Q("Senza.htm"), Q("SET_IST.htm"),
                               Q("Panel/US-00.htm")}));
}

TEST(Html, ReadsBothCodePages) {
  EXPECT_EQ(Decodifica_Html("perch\xc3\xa9"), Q("perché"));
  EXPECT_EQ(Decodifica_Html("perch\xe9 \x80"), Q("perché €"));
}

TEST(Html, GivesTitleAndText) {
  const QString html =
      Q("<html><head><TITLE>\n Uno &amp; due </TITLE><style>p { color: red }</style>"
        "<script>nascosto()</script></head><body><!-- nota --><h1>Testa</h1>\n"
        "<p>un <b>timer</b>\n TON,  perch&eacute;</p><p> </p></body></html>");
  EXPECT_EQ(Titolo_Html(html), Q("Uno & due"));
  EXPECT_EQ(Testo_Html(html), Q("Testa\nun timer TON, perché"));
  EXPECT_EQ(Titolo_Html(Q("<p>niente</p>")), QString());
}

}  // namespace
}  // namespace tavorno
