// SPDX-License-Identifier: GPL-3.0-or-later
// Plants and their drawings belong together: every figure has its group, every group is driven by
// its plant.
#include "plants/host/drawings.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <random>
#include <set>

#include "host/host_bed.h"
#include "plants/exercises.h"
#include "plants/host/picture_widget.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

QString File_Di(const Esercizio& esercizio) {
  return QStringLiteral(":/plants/US-%1.svg").arg(esercizio.Indice, 2, 10, QChar('0'));
}

/// The ids of the groups right below the root.
std::set<QString> Gruppi(const QString& file) {
  QFile aperto(file);
  std::set<QString> ids;
  if (!aperto.open(QIODevice::ReadOnly)) return ids;
  QXmlStreamReader xml(&aperto);
  for (int livello = 0; !xml.atEnd();) {
    const auto segno = xml.readNext();
    if (segno == QXmlStreamReader::StartElement && ++livello == 2 && xml.name() == u"g")
      ids.insert(xml.attributes().value("id").toString());
    if (segno == QXmlStreamReader::EndElement) --livello;
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return ids;
}

/// "KM(2).imgKMON" is "KM.imgKMON".
QString Senza_Indice(QString gruppo) {
  static const QRegularExpression indice(QStringLiteral("\\(\\d+\\)"));
  return gruppo.remove(indice);
}

struct Disegni_Di : ::testing::TestWithParam<int> {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  std::set<QString> gruppi = Gruppi(File_Di(esercizio));
  Orologio orologio;
  Plc plc{orologio};
  std::unique_ptr<Impianto> impianto = esercizio.Crea(plc);

  bool Solo_Testo(const Figura& figura) const {
    return !figura.Caption().empty() && figura.Picture().empty() &&
           !gruppi.contains(Q(figura.Nome));
  }
  void Guarda(const Figura& figura, std::set<QString>& visti) {
    if (!figura.Visible() || Solo_Testo(figura)) return;
    const QString gruppo = Quadro::Gruppo(figura);
    EXPECT_TRUE(gruppi.contains(gruppo)) << "no group " << gruppo.toStdString();
    visti.insert(gruppo);
  }
  void Guarda_Cambiate(std::set<QString>& visti) {
    for (const Figura* figura : impianto->Disegno.Prendi_Cambiate()) Guarda(*figura, visti);
  }
};

TEST_P(Disegni_Di, EveryFigureHasItsGroupAndEveryGroupIsDriven) {
  ASSERT_FALSE(gruppi.empty());
  ASSERT_TRUE(Disegni(File_Di(esercizio)).Valido());
  std::set<QString> visti{QStringLiteral("fondo")};
  for (const Figura& figura : impianto->Disegno) Guarda(figura, visti);
  // A user who tries everything on a machine whose program has gone wild.
  std::mt19937 caso(20);  // always the same
  const auto uno_di = [&](int quanti) {
    return std::uniform_int_distribution<int>(0, quanti - 1)(caso);
  };
  std::vector<std::string> nomi;
  for (const Figura& figura : impianto->Disegno) nomi.push_back(figura.Nome);
  for (int giro = 0; giro < 20000; ++giro) {
    const std::string& nome = nomi[static_cast<std::size_t>(uno_di(static_cast<int>(nomi.size())))];
    switch (uno_di(6)) {
      case 0:
        impianto->Premi(nome);
        Guarda_Cambiate(visti);
        impianto->Rilascia(nome);
        impianto->Clic(nome);
        break;
      case 1:
        impianto->Doppio_Clic(nome);
        break;
      case 2: {
        std::string uscite(16, '0');
        for (char& bit : uscite) bit = uno_di(4) == 0 ? '1' : '0';
        impianto->Stato_Q(uscite);
        break;
      }
      case 3:
        if (const Regolatore* regolatore = impianto->Trova_Regolatore(nome))
          impianto->Regola(nome, uno_di(2) ? regolatore->Massimo : regolatore->Minimo);
        break;
      default:
        orologio.Avanza(uno_di(3000));
    }
    Guarda_Cambiate(visti);
    if (HasFailure()) return;
  }
  // What one of an array does the others do as well; what has no pictures only comes and goes.
  for (const Figura& figura : impianto->Disegno) {
    if (figura.Picture().empty()) visti.insert(Q(figura.Nome));
  }
  std::set<QString> senza_indici;
  for (const QString& gruppo : visti) senza_indici.insert(Senza_Indice(gruppo));
  for (const QString& gruppo : gruppi)
    EXPECT_TRUE(senza_indici.contains(Senza_Indice(gruppo)))
        << "nobody drives " << gruppo.toStdString();
}

TEST_P(Disegni_Di, NothingIsDrawnOutsideThePicture) {
  const Disegni disegni(File_Di(esercizio));
  for (const QString& gruppo : gruppi) {
    const QRectF limiti = disegni.Limiti(gruppo);
    EXPECT_TRUE(disegni.Misura().adjusted(-30, -30, 30, 30).contains(limiti))
        << gruppo.toStdString();
  }
}

TEST_P(Disegni_Di, EverySymbolIsOfItsOwnFileOrOfTheSharedSheet) {
  QString testo;
  for (const QString& file : {File_Di(esercizio), QStringLiteral(":/plants/symbols.svg")}) {
    QFile aperto(file);
    ASSERT_TRUE(aperto.open(QIODevice::ReadOnly)) << file.toStdString();
    testo += QString::fromUtf8(aperto.readAll());
  }
  static const QRegularExpression richiamo(QStringLiteral("(?:href=\"|url\\()#([\\w-]+)[\")]"));
  for (auto trovati = richiamo.globalMatch(testo); trovati.hasNext();) {
    const QString id = trovati.next().captured(1);
    EXPECT_TRUE(testo.contains("id=\"" + id + '"')) << "nothing is drawn by " << id.toStdString();
  }
}

/// What moves the contact of an input, as its row and the tool tip of its part have it.
QString Chi_Lo_Muove(const QString& detto) {
  static const std::pair<const char*, const char*> segni[] = {
      {"selettore", "turn"}, {"emergenza", "mushroom"},      {"sicurezza", "mushroom"},
      {"pulsante", "pb"},    {"termico", "thermal-contact"}, {"fine corsa", "cam"},
      {"micro", "cam"},      {"ausiliari", "contact"},
  };
  for (const auto& [parola, segno] : segni)
    if (detto.contains(QLatin1String(parola), Qt::CaseInsensitive)) return QLatin1String(segno);
  return {};
}

TEST_P(Disegni_Di, AContactHasTheSignOfWhatMovesIt) {
  QFile aperto(File_Di(esercizio));
  ASSERT_TRUE(aperto.open(QIODevice::ReadOnly));
  const QString testo = QString::fromUtf8(aperto.readAll());
  const Quadro quadro(*impianto, File_Di(esercizio));
  static const QRegularExpression contatto(
      QStringLiteral("#sym-(?:(pb|turn|mushroom|cam|contact)-n[oc]|(thermal-contact))"));
  static const QRegularExpression gruppo(QStringLiteral("\n<g id=\"([^\".]+)[^>]*>(.*?)\n</g>"),
                                         QRegularExpression::DotMatchesEverythingOption);
  int quanti = 0;
  for (auto trovati = gruppo.globalMatch(testo); trovati.hasNext();) {
    const auto uno = trovati.next();
    const Figura* figura = nullptr;
    for (auto segni = contatto.globalMatch(uno.captured(2)); segni.hasNext(); ++quanti) {
      const auto segno = segni.next();
      if (figura == nullptr) figura = &impianto->Disegno[uno.captured(1).toStdString()];
      for (const Riga_IO& riga : esercizio.Righe_IO) {
        if (riga.Indirizzo[0] != 'I') continue;
        if (!quadro.Morsetti_Di(*figura).contains(Q(riga.Indirizzo))) continue;
        EXPECT_EQ(segno.captured(1) + segno.captured(2),
                  Chi_Lo_Muove(Q(figura->ToolTip()) + ' ' + Q(riga.Commento)))
            << uno.captured(1).toStdString() << ' ' << riga.Indirizzo << ' ' << riga.Commento;
      }
    }
  }
  if (GetParam() <= 8) {
    EXPECT_GT(quanti, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Esercizi, Disegni_Di, ::testing::ValuesIn(Con_Impianto()));

TEST(Colours, NumberedOnesTakeOurShadeAndOthersStay) {
  EXPECT_EQ(Tinta(Tavolozza(12)), QColor(0xd3, 0x30, 0x2f));
  EXPECT_EQ(Tinta(0x030201), QColor(1, 2, 3));
}

// Red is the colour of stop, fault and live wires: windings under tension, and the eye of a
// photocell, which is one in the workshop.
TEST(Drawings, NoOtherSymbolIsRed) {
  static const QRegularExpression simbolo(
      QStringLiteral("\\n  <g id=\"sym-([^\"]+)\"(.*?)(?=\\n  <g id=|</defs>)"),
      QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression colore(QStringLiteral("#[0-9a-f]{6}\\b"));
  static const QRegularExpression rosso(
      QStringLiteral("red|mushroom|tripped|thermal-contact-open|thermal-contact-live|^star$|^delta$"
                     "|^photocell-tx$"));
  QFile foglio(QStringLiteral(":/plants/symbols.svg"));
  ASSERT_TRUE(foglio.open(QIODevice::ReadOnly));
  int quanti = 0;
  const QString testo = QString::fromUtf8(foglio.readAll());
  for (auto trovati = simbolo.globalMatch(testo); trovati.hasNext(); ++quanti) {
    const auto uno = trovati.next();
    if (rosso.match(uno.captured(1)).hasMatch()) continue;
    for (auto colori = colore.globalMatch(uno.captured(2)); colori.hasNext();) {
      const QColor quale(colori.next().captured(0));
      const bool rossa = quale.hsvHue() < 18 || quale.hsvHue() > 342;
      EXPECT_FALSE(rossa && quale.hsvSaturationF() > 0.5F && quale.valueF() > 0.35F)
          << uno.captured(1).toStdString() << ' ' << quale.name().toStdString();
    }
  }
  EXPECT_GT(quanti, 90);
}

TEST(Drawings, AnAddressStandsInTheMiddleOfItsTag) {
  QFile aperto(QStringLiteral(":/plants/US-11.svg"));
  ASSERT_TRUE(aperto.open(QIODevice::ReadOnly));
  const QString testo = QString::fromUtf8(aperto.readAll());
  Orologio orologio;
  Plc plc{orologio};
  const auto garage = Tabella_Esercizi()[11].Crea(plc);
  for (int n = 0; n < 16; ++n) {
    const Figura& scritta = garage->Disegno("etI", n);
    const QPoint centro =
        QRectF(scritta.Left, scritta.Top, scritta.Width, scritta.Height).center().toPoint();
    EXPECT_TRUE(testo.contains(QStringLiteral("#sym-tag\" transform=\"translate(%1,%2)\"")
                                   .arg(centro.x())
                                   .arg(centro.y())))
        << scritta.Caption();
  }
}

TEST(Drawings, TheLettersOfADeviceAreBold) {
  for (const char* lettere : {"M1", "KM2", "FR1"}) EXPECT_TRUE(In_Grassetto(lettere)) << lettere;
  for (const char* altro : {"", "M", "12", "0.0", "I0.3", "AIW0", "LIBERO", "Nastro Due", "1M"})
    EXPECT_FALSE(In_Grassetto(altro)) << altro;
}

TEST(Drawings, AFileThatIsNotThereDrawsNothing) {
  EXPECT_FALSE(Disegni(QStringLiteral(":/plants/none.svg")).Valido());
}

}  // namespace
}  // namespace tavorno
