// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/cpu_front.h"

#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "controls/controls.h"
#include "panel/controls/compartment.h"
#include "plc/plc.h"

namespace tavorno {
namespace {

class CpuFront : public ::testing::Test {
 protected:
  CpuFront() {
    fronte.resize(Fronte_CPU::Misura);
    fronte.show();
  }
  bool Visibile(const char* nome) const { return !Figlio_Di<>(fronte, nome).isHidden(); }
  QWidget& Coperchio() const { return Figlio_Di<>(fronte, "pic2"); }
  void Clic_Sportello() { QTest::mouseClick(&Coperchio(), Qt::LeftButton, {}, QPoint(200, 74)); }
  void Tick(int volte) { orologio.Avanza(50 * volte); }
  bool In_Moto() const { return fronte.Cover().Timer1.Enabled(); }

  Orologio orologio;
  Plc plc{orologio};
  Fronte_CPU fronte{plc};
};

TEST_F(CpuFront, StartsClosedWithTheSwitchRows) {
  EXPECT_EQ(fronte.Sportello_Aperto(), 0);
  EXPECT_TRUE(Visibile("SimI(0)"));
  EXPECT_TRUE(Visibile("SimI(1)"));
  EXPECT_FALSE(Visibile("SimC"));
  EXPECT_FALSE(Visibile("imgN"));
  EXPECT_FALSE(Visibile("imgPL1"));
  EXPECT_FALSE(Visibile("imgPL2"));
  EXPECT_TRUE(Visibile("imgPS"));
}

TEST_F(CpuFront, ItsControlsHaveTheirCaptions) {
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(fronte.SI(i).Caption(), QStringLiteral("I%1").arg(i));
    EXPECT_EQ(fronte.SQ(i).Caption(), QStringLiteral("Q%1").arg(i));
    EXPECT_EQ(fronte.Sim_I(i).Caption(), QStringLiteral("I%1").arg(i));
    EXPECT_EQ(&Figlio_Di<>(fronte, Con_Indice("SI", i)), &fronte.SI(i));
    EXPECT_EQ(&Figlio_Di<>(fronte, Con_Indice("SQ", i)), &fronte.SQ(i));
  }
  EXPECT_EQ(fronte.Sim_I(0).ForeColor(), QColor(Qt::blue));
  EXPECT_EQ(fronte.Sim_I(1).ForeColor(), fronte.palette().color(QPalette::ButtonText));
}

TEST_F(CpuFront, ItsBarsShowTheBytesOfTheCpu) {
  plc.SI[0].Stato_I("10000000");
  plc.SI[1].Stato_I("01000000");
  plc.SQ[0].Stato_Q("00100000");
  plc.SQ[1].Stato_Q("00010000");
  QCoreApplication::processEvents();
  EXPECT_EQ(fronte.SI(0).Accesi(), 1);
  EXPECT_EQ(fronte.SI(1).Accesi(), 2);
  EXPECT_EQ(fronte.SQ(0).Accesi(), 4);
  EXPECT_EQ(fronte.SQ(1).Accesi(), 8);
}

TEST_F(CpuFront, TheLampsTellRunAndStop) {
  fronte.Stato(true);
  EXPECT_TRUE(Visibile("imgPL1"));
  EXPECT_TRUE(Visibile("imgPL2"));
  EXPECT_FALSE(Visibile("imgPS"));
  fronte.Stato(false);
  EXPECT_FALSE(Visibile("imgPL1"));
  EXPECT_FALSE(Visibile("imgPL2"));
  EXPECT_TRUE(Visibile("imgPS"));
}

struct Caso_Sportello {
  int Modo;
  bool Aperto;      // before
  bool Parte;       // the cover begins to move
  bool SimI, SimC;  // shown afterwards, where both the thumbwheel and SimI(0) were shown before
  bool pic2, imgN;
};
class CoverMode : public CpuFront, public ::testing::WithParamInterface<Caso_Sportello> {};

TEST_P(CoverMode, DoesWhatItsRowTells) {
  const Caso_Sportello& atteso = GetParam();
  if (atteso.Aperto) {
    fronte.PLC_Sportello(Modo_Sportello::Apri);
    Tick(17);
  }
  fronte.Sim_I(1).hide();
  fronte.Sim_C().show();
  fronte.PLC_Sportello(static_cast<Modo_Sportello>(atteso.Modo));
  EXPECT_EQ(In_Moto(), atteso.Parte);
  EXPECT_EQ(Visibile("SimI(0)"), atteso.SimI);
  EXPECT_EQ(Visibile("SimI(1)"), atteso.Modo == 3);
  EXPECT_EQ(Visibile("SimC"), atteso.SimC);
  EXPECT_EQ(Visibile("pic2"), atteso.pic2);
  EXPECT_EQ(Visibile("imgN"), atteso.imgN);
  Tick(20);
  EXPECT_EQ(fronte.Sportello_Aperto() != 0, atteso.Aperto != atteso.Parte);
}

INSTANTIATE_TEST_SUITE_P(All, CoverMode,
                         ::testing::Values(
                             //             mode open  moves SimI  SimC  pic2  imgN
                             Caso_Sportello{0, false, false, true, true, true, false},
                             Caso_Sportello{0, true, true, true, true, true, false},
                             Caso_Sportello{1, false, true, true, true, true, false},
                             Caso_Sportello{1, true, false, true, true, true, false},
                             Caso_Sportello{2, false, false, false, false, false, true},
                             Caso_Sportello{2, true, true, false, false, false, true},
                             Caso_Sportello{3, false, false, true, false, true, false},
                             Caso_Sportello{3, true, false, true, false, true, false},
                             Caso_Sportello{4, false, false, true, true, true, false}));

TEST_F(CpuFront, ClosingAPlantBringsTheSwitchRowsBackAndNotTheThumbwheel) {
  fronte.Sim_I(1).hide();
  fronte.Sim_C().show();
  fronte.PLC_Sportello(Modo_Sportello::Impianto);
  fronte.PLC_Sportello(Modo_Sportello::Interruttori);
  EXPECT_TRUE(Visibile("SimI(1)"));
  EXPECT_FALSE(Visibile("SimC"));
}

TEST_F(CpuFront, AClickOnTheCoverOpensAndClosesIt) {
  EXPECT_EQ(Coperchio().geometry(), QRect(0, -1, 399, 77));
  Clic_Sportello();
  Tick(17);
  EXPECT_EQ(fronte.Sportello_Aperto(), -1);
  EXPECT_EQ(Coperchio().y(), -65);
  Clic_Sportello();
  Tick(17);
  EXPECT_EQ(fronte.Sportello_Aperto(), 0);
}

TEST_F(CpuFront, AClickDuringTheTravelOnlyKeepsTheTimerOn) {
  Clic_Sportello();
  Tick(6);
  Clic_Sportello();
  EXPECT_TRUE(In_Moto());
  EXPECT_EQ(Coperchio().y(), -25);
  Tick(1);
  EXPECT_EQ(Coperchio().y(), -29);
  Tick(10);
  EXPECT_EQ(fronte.Sportello_Aperto(), -1);
}

TEST_F(CpuFront, TheSpaceBarMovesTheCover) {
  QTest::keyClick(&Coperchio(), Qt::Key_Space);
  EXPECT_TRUE(In_Moto());
}

TEST_F(CpuFront, TheOpenCompartmentShowsTheStateOfTheCpu) {
  fronte.PLC_Sportello(Modo_Sportello::Apri);
  Tick(17);
  const auto vano = [this] { return Figlio_Di<>(fronte, "pic1").grab().toImage(); };
  const QImage prima = vano();
  EXPECT_EQ(vano(), prima);
  plc.Mem_SM[28].Val_B = 255;
  const QImage potenziometro = vano();
  EXPECT_NE(potenziometro, prima);
  plc.Scelte.opzAQ = Scala::mA_20;
  const QImage gamma = vano();
  EXPECT_NE(gamma, potenziometro);
  plc.PLC_Acceso = -1;
  EXPECT_NE(vano(), gamma);
}

class CpuFrontSize : public CpuFront, public ::testing::WithParamInterface<QSize> {};

TEST_P(CpuFrontSize, KeepsItsProportionsBetweenItsBounds) {
  fronte.resize(GetParam());
  const double scala =
      std::clamp(std::min(GetParam().width() / 640.0, GetParam().height() / 310.0), 0.55, 2.0);
  EXPECT_NEAR(fronte.SQ(1).width(), 260 * scala, 1);
  EXPECT_NEAR(fronte.Sim_I(0).height(), 50 * scala, 1);
  EXPECT_NEAR(Figlio_Di<>(fronte, "pic1").width(), 393 * scala, 1);
  // Each lamp stands above the switch of its bit.
  for (int bit = 0; bit < 8; ++bit) {
    const auto centro = [&](QWidget& riga, const char* nome) {
      const QWidget& figlio = Figlio_Di<>(riga, Con_Indice(nome, bit));
      return figlio.mapTo(&fronte, figlio.rect().center()).x();
    };
    EXPECT_NEAR(centro(fronte.SI(0), "imgLI0"), centro(fronte.Sim_I(0), "imgI0"), 1) << bit;
    EXPECT_NEAR(centro(fronte.SQ(0), "imgLI0"), centro(fronte.SI(0), "imgLI0"), 1) << bit;
  }
  for (const QWidget* figlio : fronte.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    EXPECT_TRUE(fronte.rect().contains(figlio->geometry())) << qPrintable(figlio->objectName());
}

INSTANTIATE_TEST_SUITE_P(All, CpuFrontSize,
                         ::testing::Values(QSize(352, 171), QSize(512, 248), QSize(640, 310),
                                           QSize(900, 310), QSize(640, 500), QSize(1280, 620),
                                           QSize(1900, 900)));

/// Where two pictures differ; null when they do not.
QRect Differenza(const QImage& una, const QImage& altra) {
  QRect diversa;
  for (int y = 0; y < una.height(); ++y) {
    for (int x = 0; x < una.width(); ++x)
      if (una.pixel(x, y) != altra.pixel(x, y)) diversa |= QRect(x, y, 1, 1);
  }
  return diversa;
}

TEST_F(CpuFront, ATerminalThatIsPointedAtIsMarkedWithItsLed) {
  const auto ritratto = [&] {
    QCoreApplication::processEvents();  // the bars take over what the CPU has
    return fronte.grab().toImage();
  };
  const QImage prima = ritratto();
  std::vector<QRect> segni;
  for (const bool uscita : {false, true}) {
    for (int byte = 0; byte < 2; ++byte) {
      const QWidget& barra = uscita ? static_cast<QWidget&>(fronte.SQ(byte)) : fronte.SI(byte);
      for (int bit = 0; bit < 8; ++bit) {
        const QString morsetto =
            QStringLiteral("%1%2.%3").arg(uscita ? 'Q' : 'I').arg(byte).arg(bit);
        // The LED is what changes when its bit does.
        std::string bits(8, '0');
        bits[static_cast<std::size_t>(bit)] = '1';
        if (uscita)
          plc.SQ[byte].Stato_Q(bits);
        else
          plc.SI[byte].Stato_I(bits);
        const QRect led = Differenza(prima, ritratto());
        EXPECT_TRUE(barra.geometry().contains(led)) << morsetto.toStdString();
        if (uscita)
          plc.SQ[byte].Stato_Q("00000000");
        else
          plc.SI[byte].Stato_I("00000000");

        fronte.Indica({morsetto});
        const QRect segno = Differenza(prima, ritratto());
        EXPECT_TRUE(segno.contains(led.center())) << morsetto.toStdString();
        // It reaches from the LED beyond the bar, to where the terminal is, and no neighbour.
        EXPECT_GT(segno.height(), barra.height()) << morsetto.toStdString();
        for (const QRect& altro : segni)
          EXPECT_FALSE(segno.contains(altro.center())) << morsetto.toStdString();
        segni.push_back(segno);
        fronte.Indica({});
      }
    }
  }
  fronte.Indica({});
  EXPECT_EQ(ritratto(), prima);
  fronte.Indica({"AIW0"});  // there is no terminal of it on the front
  EXPECT_EQ(ritratto(), prima);
}

TEST_F(CpuFront, TheTabKeyGoesFromTheFirstRowToTheSecond) {
  fronte.activateWindow();
  Leva(fronte.Sim_I(0), 7).setFocus();
  QTest::keyClick(&Leva(fronte.Sim_I(0), 7), Qt::Key_Tab);
  EXPECT_EQ(fronte.focusWidget(), &Leva(fronte.Sim_I(1), 0));
}

}  // namespace
}  // namespace tavorno
