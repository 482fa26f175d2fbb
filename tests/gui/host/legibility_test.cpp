// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of every picture can be read: large enough, on a ground that it stands out from, and
// touched by nothing, in every state of every figure.
#include <gtest/gtest.h>

#include <QFile>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <cmath>
#include <map>
#include <random>
#include <set>

#include "host/host_bed.h"
#include "plants/exercises.h"
#include "plants/host/picture_widget.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

constexpr double minimo = 120;     // twips: 9 pt at 100 %
constexpr double contrasto = 4.5;  // to one
constexpr double aria = 30;        // twips beside a text that are free of other texts
constexpr int pixel_twip = 5;      // twips to a pixel of what is looked at

QString File_Di(int indice) {
  return QStringLiteral(":/plants/US-%1.svg").arg(indice, 2, 10, QChar('0'));
}

QString Leggi(const QString& file) {
  QFile aperto(file);
  EXPECT_TRUE(aperto.open(QIODevice::ReadOnly)) << file.toStdString();
  return QString::fromUtf8(aperto.readAll());
}

struct Elemento_Xml {
  QString Nome, Testo;
  std::map<QString, QString> Attributi;
  std::vector<Elemento_Xml> Figli;
};

Elemento_Xml Leggi_Nodo(QXmlStreamReader& xml) {
  Elemento_Xml nodo;
  nodo.Nome = xml.name().toString();
  for (const auto& attributo : xml.attributes())
    nodo.Attributi[attributo.name().toString()] = attributo.value().toString();
  while (!xml.atEnd()) {
    const auto segno = xml.readNext();
    if (segno == QXmlStreamReader::StartElement)
      nodo.Figli.push_back(Leggi_Nodo(xml));
    else if (segno == QXmlStreamReader::Characters)
      nodo.Testo += xml.text();
    else if (segno == QXmlStreamReader::EndElement)
      break;
  }
  return nodo;
}

Elemento_Xml Leggi_Albero(const QString& testo) {
  QXmlStreamReader xml(testo);
  xml.readNextStartElement();
  return Leggi_Nodo(xml);
}

QTransform Trasformazione(const QString& testo) {
  static const QRegularExpression passo(QStringLiteral("(\\w+)\\(([^)]*)\\)"));
  QTransform totale;
  std::vector<std::pair<QString, QStringList>> passi;
  for (auto trovati = passo.globalMatch(testo); trovati.hasNext();) {
    const auto trovato = trovati.next();
    const QStringList n = trovato.captured(2).split(',');
    QTransform uno;
    if (trovato.captured(1) == u"translate")
      uno.translate(n[0].toDouble(), n.size() > 1 ? n[1].toDouble() : 0);
    if (trovato.captured(1) == u"scale")
      uno.scale(n[0].toDouble(), n.size() > 1 ? n[1].toDouble() : n[0].toDouble());
    if (trovato.captured(1) == u"rotate") uno.rotate(n[0].toDouble());
    totale = uno * totale;
  }
  return totale;
}

struct Scritta {
  QString Gruppo, Testo, Carattere;
  double Alta = 0;  // twips
  QColor Colore;
  QRectF Posto;  // twips: of its ink
};

using Ereditati = std::map<QString, QString>;

class Raccolta {
 public:
  explicit Raccolta(const QString& file) : albero_(Leggi_Albero(Leggi(file))) {
    const Elemento_Xml foglio = Leggi_Albero(Leggi(QStringLiteral(":/plants/symbols.svg")));
    for (const Elemento_Xml* radice :
         std::initializer_list<const Elemento_Xml*>{&foglio, &albero_}) {
      for (const Elemento_Xml& figlio : radice->Figli) {
        if (figlio.Nome != u"defs") continue;
        for (const Elemento_Xml& simbolo : figlio.Figli)
          simboli_[simbolo.Attributi.at("id")] = simbolo;
      }
    }
    for (const Elemento_Xml& gruppo : albero_.Figli) {
      if (gruppo.Nome == u"g") Cammina(gruppo, {}, {}, gruppo.Attributi.at("id"));
    }
  }
  std::vector<Scritta> Scritte;

 private:
  void Cammina(const Elemento_Xml& nodo, const QTransform& posa, Ereditati ereditati,
               const QString& id) {
    for (const auto& [nome, valore] : nodo.Attributi) ereditati[nome] = valore;
    const auto propria = nodo.Attributi.find("transform");
    const QTransform qui =
        propria == nodo.Attributi.end() ? posa : Trasformazione(propria->second) * posa;
    if (nodo.Nome == u"use") {
      ereditati.erase("transform");
      const auto simbolo = simboli_.find(nodo.Attributi.at("href").mid(1));
      ASSERT_NE(simbolo, simboli_.end()) << nodo.Attributi.at("href").toStdString();
      Cammina(simbolo->second, qui, ereditati, id);
    }
    if (nodo.Nome == u"text") Prendi(nodo, qui, ereditati, id);
    for (const Elemento_Xml& figlio : nodo.Figli) Cammina(figlio, qui, ereditati, id);
  }

  void Prendi(const Elemento_Xml& nodo, const QTransform& posa, Ereditati& stile,
              const QString& id) {
    const double alta = stile["font-size"].toDouble();
    QFont carattere(stile["font-family"]);
    carattere.setPixelSize(static_cast<int>(alta));
    carattere.setBold(stile["font-weight"] == u"bold");
    const auto numero = [&nodo](const char* nome) {
      const auto trovato = nodo.Attributi.find(nome);
      return trovato == nodo.Attributi.end() ? 0.0 : trovato->second.toDouble();
    };
    const double largo = QFontMetricsF(carattere).horizontalAdvance(nodo.Testo.trimmed());
    double x = numero("x");
    if (stile["text-anchor"] == u"middle") x -= largo / 2;
    if (stile["text-anchor"] == u"end") x -= largo;
    QPainterPath inchiostro;
    inchiostro.addText(x, numero("y"), carattere, nodo.Testo.trimmed());
    const double scala = std::sqrt(std::abs(posa.determinant()));
    Scritte.push_back({id, nodo.Testo, stile["font-family"], alta * scala, QColor(stile["fill"]),
                       posa.mapRect(inchiostro.boundingRect())});
  }

  Elemento_Xml albero_;
  std::map<QString, Elemento_Xml> simboli_;
};

double Luminosita(QColor colore) {
  const auto lineare = [](double c) {
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) +
         0.0722 * lineare(colore.blueF());
}

double Contrasto(QColor uno, QColor altro) {
  const double a = Luminosita(uno) + 0.05;
  const double b = Luminosita(altro) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

std::ostream& operator<<(std::ostream& uscita, const Scritta& scritta) {
  return uscita << scritta.Gruppo.toStdString() << " \"" << scritta.Testo.toStdString() << "\" at "
                << scritta.Posto.left() << "," << scritta.Posto.top() << " to "
                << scritta.Posto.right() << "," << scritta.Posto.bottom();
}

struct Leggibilita : ::testing::TestWithParam<int> {
  QString file = File_Di(GetParam());
  Raccolta raccolta{file};
  QTemporaryDir cartella;
  Orologio orologio;
  Plc plc{orologio};
  std::unique_ptr<Impianto> impianto =
      Tabella_Esercizi()[static_cast<std::size_t>(GetParam())].Crea(plc);
  std::unique_ptr<Quadro> quadro;
  std::set<QString> detti;

  Leggibilita() {
    // The picture without its texts: what they stand on. Its own symbols go before shared ones.
    static const QRegularExpression scritta(QStringLiteral("<text[^>]*>[^<]*</text>"));
    const QString foglio = Leggi(QStringLiteral(":/plants/symbols.svg"));
    static const QRegularExpression simbolo(
        QStringLiteral("\n  <g id=\"[^\"]+\">(?:(?!\n  <g id=).)*?<text.*?\n  </g>"),
        QRegularExpression::DotMatchesEverythingOption);
    QString muti;
    for (auto trovati = simbolo.globalMatch(foglio.left(foglio.indexOf("</defs>")));
         trovati.hasNext();)
      muti += trovati.next().captured(0);
    QString testo = Leggi(file);
    testo.insert(testo.indexOf('>', testo.indexOf("<svg")) + 1, "<defs>" + muti + "</defs>");
    const QString muto = cartella.filePath("muto.svg");
    QFile aperto(muto);
    EXPECT_TRUE(aperto.open(QIODevice::WriteOnly));
    aperto.write(testo.remove(scritta).toUtf8());
    aperto.close();
    quadro = std::make_unique<Quadro>(*impianto, muto);
    quadro->Riduci_Animazioni(true);
    quadro->resize(quadro->sizeHint() * 10 / pixel_twip);
  }

  /// Texts that are seen now, those that the widget writes among them.
  std::vector<Scritta> Viste() {
    std::set<QString> gruppi{QStringLiteral("fondo")};
    std::map<QString, QPointF> spostati;
    for (const Figura& figura : impianto->Disegno) {
      if (figura.Visible()) gruppi.insert(Quadro::Gruppo(figura));
    }
    std::vector<Scritta> viste;
    for (const Scritta& scritta : raccolta.Scritte) {
      if (gruppi.contains(scritta.Gruppo)) viste.push_back(scritta);
    }
    for (const Figura& figura : impianto->Disegno) {
      if (!figura.Visible() || figura.Caption().empty()) continue;
      QFont carattere(QLatin1String{Carattere_Disegni});
      carattere.setPixelSize(120);
      carattere.setBold(In_Grassetto(Q(figura.Caption())));
      const QRectF stretto = QFontMetricsF(carattere).tightBoundingRect(Q(figura.Caption()));
      QRectF posto(0, 0, stretto.width(), stretto.height());
      posto.moveCenter(QRectF(figura.Left, figura.Top, figura.Width, figura.Height).center());
      viste.push_back({Q(figura.Nome), Q(figura.Caption()), Carattere_Disegni, 120,
                       Tinta_Testo(figura.ForeColor()), posto});
    }
    return viste;
  }

  QImage Senza_Scritte() {
    std::vector<std::string> didascalie;
    for (Figura& figura : impianto->Disegno) {
      didascalie.push_back(figura.Caption);
      figura.Caption = "";
    }
    QImage immagine(quadro->size(), QImage::Format_RGB32);
    quadro->render(&immagine);
    for (std::size_t n = 0; Figura & figura : impianto->Disegno) figura.Caption = didascalie[n++];
    return immagine;
  }

  /// Lines, rings and rays keep away from what stands beside them by more than what one sees as a
  /// touch. A figure's own texts stand in its own shape.
  void Guarda_Intorno(const Scritta& una, const QRect& pixel, const QImage& fondo,
                      const std::string& stato) {
    if (una.Gruppo != u"fondo") return;
    const int largo = una.Testo.size() > 1 ? 5 : 3;  // the number of a port stands at its port
    const QRect intorno = pixel.adjusted(-largo, -1, largo, 1).intersected(fondo.rect());
    const QColor suo = fondo.pixelColor(pixel.center());
    for (int y = intorno.top(); y <= intorno.bottom(); ++y) {
      for (int x = intorno.left(); x <= intorno.right(); ++x) {
        if (pixel.contains(x, y) || Contrasto(suo, fondo.pixelColor(x, y)) < 1.6) continue;
        if (Nuovo("intorno" + una.Gruppo + una.Testo + QString::number(una.Posto.x())))
          ADD_FAILURE() << stato << ": " << una << " has something close by at " << x * pixel_twip
                        << "," << y * pixel_twip;
        return;
      }
    }
  }

  void Guarda(const std::string& stato) {
    const std::vector<Scritta> viste = Viste();
    const QImage fondo = Senza_Scritte();
    for (std::size_t n = 0; n < viste.size(); ++n) {
      const Scritta& una = viste[n];
      for (std::size_t m = n + 1; m < viste.size(); ++m) {
        if (una.Posto.adjusted(-aria, 0, aria, 0).intersects(viste[m].Posto) &&
            Nuovo(una.Testo + '/' + viste[m].Testo))
          ADD_FAILURE() << stato << ": " << una << " touches " << viste[m];
      }
      const QRect pixel = QRectF(una.Posto.topLeft() / pixel_twip, una.Posto.size() / pixel_twip)
                              .toAlignedRect()
                              .intersected(fondo.rect());
      Guarda_Intorno(una, pixel, fondo, stato);
      double peggiore = 21;
      QPoint dove;
      for (int y = pixel.top(); y <= pixel.bottom(); ++y) {
        for (int x = pixel.left(); x <= pixel.right(); ++x) {
          const double qui = Contrasto(una.Colore, fondo.pixelColor(x, y));
          if (qui < peggiore) {
            peggiore = qui;
            dove = QPoint(x, y) * pixel_twip;
          }
        }
      }
      if (peggiore < contrasto && Nuovo(una.Gruppo + una.Testo + QString::number(una.Posto.x())))
        ADD_FAILURE() << stato << ": " << una << " has " << peggiore << " to one at " << dove.x()
                      << "," << dove.y();
    }
  }

  /// So that each fault is told once.
  bool Nuovo(const QString& detto) { return detti.insert(detto).second; }
};

TEST_P(Leggibilita, NoTextIsSmallOrOfAnotherFace) {
  ASSERT_FALSE(raccolta.Scritte.empty());
  for (const Scritta& scritta : raccolta.Scritte) {
    EXPECT_GE(std::round(scritta.Alta * 10) / 10, minimo) << scritta;
    EXPECT_EQ(scritta.Carattere, Carattere_Disegni) << scritta;
  }
}

TEST_P(Leggibilita, RaysOfTwoLampsNeverMeet) {
  constexpr double raggio = 243;  // twips: from the middle of the drawn lamp to the tips
  static const QRegularExpression lampada(
      QStringLiteral("sym-lamp-[a-z]+\" transform=\"translate\\(([\\d.]+),([\\d.]+)\\)(?: "
                     "scale\\(([\\d.]+)\\))?"));
  std::vector<std::pair<QPointF, double>> lampade;
  for (auto trovate = lampada.globalMatch(Leggi(file)); trovate.hasNext();) {
    const auto una = trovate.next();
    const double scala = una.captured(3).isEmpty() ? 1 : una.captured(3).toDouble();
    const QPointF mezzo(una.captured(1).toDouble(), una.captured(2).toDouble());
    for (const auto& [altra, suo] : lampade) {
      const double lontane = std::hypot(mezzo.x() - altra.x(), mezzo.y() - altra.y());
      if (lontane == 0) continue;  // the same lamp, dark
      EXPECT_GE(lontane, raggio * scala + suo) << mezzo.x() << "," << mezzo.y();
    }
    lampade.emplace_back(mezzo, raggio * scala);
  }
}

TEST_P(Leggibilita, NothingTouchesATextInAnyStateOfAnyFigure) {
  std::map<QString, QStringList> altri;  // the pictures of each figure that has some
  for (const QString& riga : Leggi(file).split('\n')) {
    static const QRegularExpression gruppo(QStringLiteral("^<g id=\"([^\".]+)\\.([^\"]+)\""));
    const auto trovato = gruppo.match(riga);
    if (trovato.hasMatch()) altri[trovato.captured(1)] << trovato.captured(2);
  }
  Guarda("at rest");
  qsizetype quanti = 1;
  for (const auto& [figura, suoi] : altri) quanti = std::max(quanti, suoi.size());
  std::map<QString, std::string> riposo;
  for (const Figura& figura : impianto->Disegno) riposo[Q(figura.Nome)] = figura.Picture;
  for (qsizetype n = 0; n < quanti; ++n) {
    for (Figura& figura : impianto->Disegno) {
      const auto suoi = altri.find(Q(figura.Nome));
      if (suoi != altri.end() && n < suoi->second.size())
        figura.Picture = suoi->second[n].toStdString();
    }
    Guarda("in its pictures number " + std::to_string(n + 1));
  }
  for (Figura& figura : impianto->Disegno) figura.Picture = riposo[Q(figura.Nome)];
  // And wherever a program can lead it.
  std::mt19937 caso(7);  // always the same
  for (int giro = 0; giro < 25; ++giro) {
    std::string uscite(16, '0');
    for (char& bit : uscite) bit = caso() % 2 ? '1' : '0';
    impianto->Stato_Q(uscite);
    orologio.Avanza(static_cast<int>(caso() % 4000));
    Guarda("with the outputs " + uscite);
  }
}

struct Vasca : Leggibilita {};

TEST_P(Vasca, TheNumbersInATankAreReadAtEveryLevel) {
  const std::map<int, std::string> riempie = {{8, "1100000000000000"},
                                              {10, "1100011000000000"},
                                              {12, "1110000000000000"},
                                              {13, "1000010000000000"}};
  impianto->Stato_Q(riempie.at(GetParam()));
  for (int livello = 0; livello < 12; ++livello) {
    orologio.Avanza(10000);
    Guarda("after " + std::to_string(10 * (livello + 1)) + " s of filling");
  }
}
INSTANTIATE_TEST_SUITE_P(Esercizi, Vasca, ::testing::Values(8, 10, 12, 13));

INSTANTIATE_TEST_SUITE_P(Esercizi, Leggibilita, ::testing::ValuesIn(Con_Impianto()));

}  // namespace
}  // namespace tavorno
