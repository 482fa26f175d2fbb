// SPDX-License-Identifier: GPL-3.0-or-later
// What the table of inputs and outputs says of a button, a selector or a lamp stands beside it in
// the picture.
#include <gtest/gtest.h>

#include <QFile>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QRegularExpression>
#include <algorithm>

#include "host/host_bed.h"
#include "plants/host/drawings.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

const QStringList colori_di_lampade{"blu", "verde", "gialla", "rossa"};

/// The words that tell what a part is, not what it is for.
const QStringList di_ogni_riga{"pulsante", "selettore", "lampada", "contatto", "micro",
                               "no",       "nc",        "na",      "a",        "chiave"};

QStringList Parole(const QString& testo) {
  static const QRegularExpression tra(QStringLiteral("[^\\w]+"),
                                      QRegularExpression::UseUnicodePropertiesOption);
  return testo.toLower().split(tra, Qt::SkipEmptyParts);
}

/// Where a sheet and its machine cross each other the picture is right, and the help page says so.
struct Incrociata {
  int Esercizio;
  const char *Indirizzo, *Foglio, *Macchina;
};
const Incrociata incrociate[] = {
    {2, "I0.0", "Pulsante (NO) 'Start'", "Pulsante (NC) 'Stop'"},
    {2, "I0.1", "Pulsante (NC) 'Stop'", "Pulsante (NO) 'Start'"},
    {3, "Q0.7", "Lampada Verde 'Marcia Motore M1'", "Lampada Verde 'Marcia Motore M2'"},
};

QString Commento(int esercizio, const Riga_IO& riga) {
  for (const Incrociata& una : incrociate) {
    if (una.Esercizio != esercizio || Q(una.Indirizzo) != Q(riga.Indirizzo)) continue;
    EXPECT_STREQ(riga.Commento, una.Foglio);
    return Q(una.Macchina);
  }
  return Q(riga.Commento);
}

/// What the row says the part is for; empty where it leaves that to the student.
QStringList Funzione(const QString& commento) {
  QStringList parole = Parole(commento);
  parole.removeIf([](const QString& parola) {
    return di_ogni_riga.contains(parola) || colori_di_lampade.contains(parola);
  });
  return parole;
}

/// "Agit." and "autom." are "Agitatore" and "automatico", "T" is "Terra".
bool Sta_Per(const QString& scritta, const QString& parola) {
  const auto quante = std::min({scritta.size(), parola.size(), qsizetype{4}});
  return quante > 0 && scritta.left(quante) == parola.left(quante);
}

struct Scritta {
  QStringList Parole;
  QRectF Posto;  // twips
};

struct Funzioni : ::testing::TestWithParam<int> {
  Banco_Host banco{GetParam()};
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  QString disegno;
  std::vector<Scritta> scritte;

  Funzioni() {
    QFile file(QStringLiteral(":/plants/US-%1.svg").arg(GetParam(), 2, 10, QChar('0')));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    disegno = QString::fromUtf8(file.readAll());
    static const QRegularExpression testo(QStringLiteral("<text ([^>]*)>([^<]*)</text>"));
    for (auto trovati = testo.globalMatch(disegno); trovati.hasNext();) {
      const auto trovato = trovati.next();
      Prendi(trovato.captured(1), trovato.captured(2));
    }
    for (const Figura& figura : banco.Macchina().Disegno)
      if (!figura.Caption().empty())
        scritte.push_back({Parole(Q(figura.Caption())), Posto(figura)});
  }

  static QString Attributo(const QString& tutti, const char* nome) {
    const QRegularExpression uno(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(QLatin1String(nome)));
    return uno.match(tutti).captured(1);
  }

  void Prendi(const QString& attributi, const QString& testo) {
    static const QRegularExpression indirizzo(QStringLiteral("\\b[IQ][01]\\.[0-7]\\b"));
    static const QRegularExpression simbolo(QStringLiteral("\\b(?:SB|SA|HL)\\d*\\b"));
    QFont carattere(QLatin1String{Carattere_Disegni});
    carattere.setPixelSize(Attributo(attributi, "font-size").toInt());
    const double largo = QFontMetricsF(carattere).horizontalAdvance(testo);
    double x = Attributo(attributi, "x").toDouble();
    const QString ancora = Attributo(attributi, "text-anchor");
    if (ancora == u"middle") x -= largo / 2;
    if (ancora == u"end") x -= largo;
    const double alta = carattere.pixelSize();
    const double y = Attributo(attributi, "y").toDouble() - alta;
    QString parole = testo;
    scritte.push_back(
        {Parole(parole.remove(indirizzo).remove(simbolo)), QRectF(x, y, largo, alta)});
  }

  static QRectF Posto(const Figura& figura) {
    return {figura.Left, figura.Top, figura.Width, figura.Height};
  }

  /// In the same column or the same row, and near.
  static bool Accanto(const QRectF& parte, const QRectF& scritta) {
    constexpr double sopra_sotto = 1250, di_fianco = 800;  // twips between their edges
    const double in_x =
        std::max({0.0, scritta.left() - parte.right(), parte.left() - scritta.right()});
    const double in_y =
        std::max({0.0, scritta.top() - parte.bottom(), parte.top() - scritta.bottom()});
    return (in_x == 0 && in_y <= sopra_sotto) || (in_y == 0 && in_x <= di_fianco);
  }

  /// A text beside one of the parts of a terminal has no other words than these.
  bool Scritta_Accanto(const char* morsetto, const QStringList& parole) {
    const auto detta = [&](const Scritta& scritta) {
      return !scritta.Parole.isEmpty() &&
             std::ranges::all_of(scritta.Parole, [&](const QString& una) {
               return std::ranges::any_of(
                   parole, [&](const QString& parola) { return Sta_Per(una, parola); });
             });
    };
    return std::ranges::any_of(banco.Macchina().Disegno, [&](const Figura& figura) {
      return banco.Disegno().Morsetti_Di(figura).contains(QLatin1String(morsetto)) &&
             std::ranges::any_of(scritte, [&](const Scritta& scritta) {
               return Accanto(Posto(figura), scritta.Posto) && detta(scritta);
             });
    });
  }

  /// The colour in which a lamp is drawn when it is lit; empty where the drawing does not say.
  QString Colore_Disegnato(const char* morsetto) {
    const std::map<QString, QString> colori{
        {"imgLB", "blu"}, {"imgLV", "verde"}, {"imgLG", "gialla"}, {"imgLR", "rossa"}};
    for (const Figura& figura : banco.Macchina().Disegno) {
      if (!banco.Disegno().Morsetti_Di(figura).contains(QLatin1String(morsetto))) continue;
      for (const auto& [picture, colore] : colori)
        if (disegno.contains("<g id=\"" + Q(figura.Nome) + '.' + picture + '"')) return colore;
    }
    return {};
  }
};
INSTANTIATE_TEST_SUITE_P(Esercizi, Funzioni, ::testing::ValuesIn(Con_Impianto()));

bool Comando_O_Lampada(const Riga_IO& riga) {
  const QString commento = Q(riga.Commento);
  return commento.startsWith(QStringLiteral("Pulsante")) ||
         commento.contains(QStringLiteral("Selettore")) ||
         commento.startsWith(QStringLiteral("Lampada"));
}

TEST_P(Funzioni, StandBesideEveryButtonSelectorAndLamp) {
  for (const Riga_IO& riga : esercizio.Righe_IO) {
    if (!Comando_O_Lampada(riga)) continue;
    const QStringList funzione = Funzione(Commento(GetParam(), riga)) + Parole(Q(riga.Simbolo));
    if (Funzione(Commento(GetParam(), riga)).isEmpty()) continue;
    EXPECT_TRUE(Scritta_Accanto(riga.Indirizzo, funzione))
        << riga.Simbolo << ' ' << riga.Indirizzo << ' ' << riga.Commento;
  }
}

// What is told by its colour alone has the colour's name, unless the lamp is drawn in another.
TEST_P(Funzioni, ALampWithoutOneHasTheNameOfItsColour) {
  for (const Riga_IO& riga : esercizio.Righe_IO) {
    const QString commento = Q(riga.Commento);
    if (!commento.startsWith(QStringLiteral("Lampada"))) continue;
    if (!Funzione(commento).isEmpty()) continue;
    const QString disegnato = Colore_Disegnato(riga.Indirizzo);
    for (const QString& colore : colori_di_lampade) {
      if (!Parole(commento).contains(colore)) continue;
      EXPECT_EQ(Scritta_Accanto(riga.Indirizzo, {colore}), colore == disegnato)
          << riga.Simbolo << ' ' << riga.Indirizzo << ' ' << riga.Commento;
    }
  }
}

TEST(Functions, AWordStandsForAnotherByItsBeginning) {
  EXPECT_TRUE(Sta_Per("agit", "agitatore"));
  EXPECT_TRUE(Sta_Per("t", "terra"));
  EXPECT_FALSE(Sta_Per("m2", "m1"));
  EXPECT_FALSE(Sta_Per("fine", "stop"));
  EXPECT_EQ(Funzione("Lampada Verde ()"), QStringList());
  EXPECT_EQ(Funzione("Pulsante (NC) 'Stop Ciclo Automatico'"),
            QStringList({"stop", "ciclo", "automatico"}));
}

}  // namespace
}  // namespace tavorno
