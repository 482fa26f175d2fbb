// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/fault_panel.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

#include "host/host_bed.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

struct Guasti : ::testing::Test {
  Banco_Host banco{0};
  Pannello_Guasti& pannello = dynamic_cast<Pannello_Guasti&>(banco.Trova<QWidget>("Guasti"));
  QTreeWidget& elenco = banco.Trova<QTreeWidget>("lstGuasti");
  QToolButton& tasto = banco.Trova<QToolButton>("cmdGuasti");

  QTreeWidgetItem* Riga(const QString& inizio) {
    const auto righe = elenco.findItems(inizio, Qt::MatchStartsWith | Qt::MatchRecursive);
    EXPECT_EQ(righe.size(), 1) << inizio.toStdString();
    return righe.isEmpty() ? nullptr : righe.front();
  }
  /// The menu as it opens now.
  QList<QAction*> Voci() {
    Q_EMIT tasto.menu()->aboutToShow();
    return tasto.menu()->findChildren<QAction*>();
  }
  QAction* Voce(const char* nome) {
    for (QAction* voce : Voci()) {
      if (voce->objectName() == nome) return voce;
    }
    ADD_FAILURE() << nome;
    return nullptr;
  }
  std::string Spiega() { return Utf8(banco.Trova<QLabel>("etGuasto").text()); }
};

TEST_F(Guasti, TheListHasThePlantsOwnFirstAndTwoForEachInput) {
  ASSERT_EQ(elenco.topLevelItemCount(), 3);
  EXPECT_EQ(elenco.topLevelItem(0)->text(0), "Della macchina");
  EXPECT_EQ(elenco.topLevelItem(0)->childCount(), 2);
  EXPECT_EQ(elenco.topLevelItem(1)->text(0), "Filo interrotto");
  EXPECT_EQ(elenco.topLevelItem(1)->childCount(), 5);
  EXPECT_EQ(elenco.topLevelItem(2)->text(0), "Contatto incollato");
  EXPECT_EQ(elenco.topLevelItem(2)->childCount(), 5);
}

TEST_F(Guasti, ATickBringsAFaultAboutAndTakesItAway) {
  auto* riga = Riga("FR – Relè termico");
  riga->setCheckState(0, Qt::Checked);
  EXPECT_EQ(banco.plc.SI[0].Stato_I()[3], '0');
  EXPECT_EQ(riga->text(1), "attivo");
  EXPECT_EQ(pannello.Attivi(), 1);
  EXPECT_EQ(tasto.text(), "Guasti: 1");
  EXPECT_TRUE(tasto.toolTip().contains("FR – Relè termico intervenuto"));
  riga->setCheckState(0, Qt::Unchecked);
  EXPECT_EQ(banco.plc.SI[0].Stato_I()[3], '1');
  EXPECT_EQ(tasto.text(), "Guasti");
}

TEST_F(Guasti, WhatTheHandDoesInThePictureShowsInTheList) {
  QTest::mouseClick(&banco.Disegno(), Qt::LeftButton, {}, banco.Centro("ImgTer"));
  banco.finestra->Aggiorna();
  EXPECT_EQ(Riga("FR – Relè termico")->checkState(0), Qt::Checked);
  EXPECT_EQ(tasto.text(), "Guasti: 1");
}

TEST_F(Guasti, ABrokenWireIsMarkedAtItsPart) {
  auto& quadro = banco.Disegno();
  const auto disegna = [&quadro] {
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    return immagine;
  };
  const QImage prima = disegna();
  for (const char* guasto : {"I0.0  SB1 – Filo interrotto", "I0.0  SB1 – Contatto incollato"}) {
    auto* riga = Riga(guasto);
    riga->setCheckState(0, Qt::Checked);
    const QImage ora = disegna();
    QRect segno;
    for (int y = 0; y < ora.height(); ++y) {
      for (int x = 0; x < ora.width(); ++x)
        if (ora.pixel(x, y) != prima.pixel(x, y)) segno |= QRect(x, y, 1, 1);
    }
    const QRectF parte = quadro.Posto(banco.Macchina().Disegno["imgStop"]);
    EXPECT_TRUE(segno.intersects(parte.toRect())) << guasto;
    EXPECT_LT(std::max(segno.width(), segno.height()), 24) << guasto;
    riga->setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(disegna(), prima) << guasto;
  }
}

TEST_F(Guasti, EachSaysWhatItDoesInTheWorkshop) {
  elenco.setCurrentItem(Riga("I0.0  SB1 – Filo interrotto"));
  EXPECT_NE(Spiega().find("guasto sicuro"), std::string::npos) << Spiega();
  elenco.setCurrentItem(Riga("I0.0  SB1 – Contatto incollato"));
  EXPECT_NE(Spiega().find("Guasto pericoloso"), std::string::npos) << Spiega();
}

TEST_F(Guasti, WhatCannotFailNowSaysWhyAndStaysUnticked) {
  auto* riga = Riga("KM – Contattore caduto");
  riga->setCheckState(0, Qt::Checked);
  EXPECT_EQ(riga->checkState(0), Qt::Unchecked);
  EXPECT_EQ(pannello.Attivi(), 0);
  EXPECT_NE(Spiega().find("la sua uscita è spenta"), std::string::npos) << Spiega();
  banco.plc.SQ[0].Stato_Q("10000000");
  riga->setCheckState(0, Qt::Checked);
  EXPECT_EQ(riga->checkState(0), Qt::Checked);
  riga->setCheckState(0, Qt::Unchecked);
  EXPECT_EQ(riga->checkState(0), Qt::Checked) << "it is not for the hand to mend";
  EXPECT_NE(Spiega().find("al prossimo cambio"), std::string::npos) << Spiega();
  banco.plc.SQ[0].Stato_Q("00000000");
  banco.finestra->Aggiorna();
  EXPECT_EQ(riga->checkState(0), Qt::Unchecked);
}

TEST_F(Guasti, OneButtonMendsThemAll) {
  pannello.Imposta("ImgTer", true);
  pannello.Imposta("filo(I0.0)", true);
  pannello.Imposta("incollato(I0.1)", true);
  EXPECT_EQ(pannello.Attivi(), 3);
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "01001000");
  banco.Trova<QPushButton>("cmdRipara").click();
  EXPECT_EQ(pannello.Attivi(), 0);
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "10011000");
  EXPECT_FALSE(banco.Trova<QPushButton>("cmdRipara").isEnabled());
}

TEST_F(Guasti, TheMenuHasThemToo) {
  Voce("ImgTer")->trigger();
  EXPECT_EQ(pannello.Attivi(), 1);
  EXPECT_TRUE(Voce("ImgTer")->isChecked());
  Voce("incollato(I0.1)")->trigger();
  EXPECT_EQ(banco.plc.SI[0].Stato_I()[1], '1');
  Voce("mnuRipara")->trigger();
  EXPECT_EQ(pannello.Attivi(), 0);
}

TEST_F(Guasti, TheMenuOpensThePanel) {
  EXPECT_FALSE(pannello.isVisible());
  Voce("mnuPannelloGuasti")->trigger();
  EXPECT_TRUE(pannello.isVisible());
  EXPECT_EQ(banco.Trova<QTabWidget>("SSTab1").currentWidget(), &pannello);
}

TEST_F(Guasti, AnUnknownNameIsNothing) {
  EXPECT_FALSE(pannello.Imposta("filo(I1.7)", true));
  EXPECT_EQ(pannello.Attivi(), 0);
}

struct Guasti_Di_Tutti : ::testing::TestWithParam<int> {};

TEST_P(Guasti_Di_Tutti, ComeAndGoThroughThePanel) {
  Banco_Host banco(GetParam());
  auto& pannello = dynamic_cast<Pannello_Guasti&>(banco.Trova<QWidget>("Guasti"));
  for (const Guasto_Impianto& guasto :
       Guasti_Di(banco.finestra->Fili().Tabella(), banco.finestra->Fili().Ingressi_A_Riposo())) {
    if (guasto.Come == Mano_Guasto::Colpo) continue;
    EXPECT_TRUE(pannello.Imposta(Q(guasto.Nome), true)) << guasto.Nome;
    EXPECT_EQ(pannello.Attivi(), 1) << guasto.Nome;
    EXPECT_TRUE(pannello.Imposta(Q(guasto.Nome), false)) << guasto.Nome;
    EXPECT_EQ(pannello.Attivi(), 0) << guasto.Nome;
  }
}

INSTANTIATE_TEST_SUITE_P(Esercizi, Guasti_Di_Tutti, ::testing::ValuesIn(Con_Impianto()));

}  // namespace
}  // namespace tavorno
