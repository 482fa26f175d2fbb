// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAccessible>
#include <QGroupBox>
#include <QScreen>
#include <QTimer>
#include <QTimerEvent>
#include <algorithm>
#include <vector>

#include "panel/windows/status_window.h"
#include "plc/fatal.h"
#include "widgets/twips.h"
#include "window_bed.h"

namespace tavorno {
namespace {

class Status : public Banco_Finestre {
 public:
  std::string Mostrato(const std::string& nome) {
    finestra.Aggiorna();
    return Testo(finestra, nome.c_str());
  }

  QWidget panel;
  FrmStatiL finestra{plc, nullptr};
};

std::vector<std::string> Voci(const QWidget& finestra, const char* nome) {
  std::vector<std::string> voci;
  const auto& lista = Trova<QComboBox>(finestra, nome);
  voci.reserve(static_cast<std::size_t>(lista.count()));
  for (int i = 0; i < lista.count(); ++i) voci.push_back(lista.itemText(i).toStdString());
  return voci;
}

TEST_F(Status, WindowHasItsNameAndTitle) {
  EXPECT_EQ(finestra.objectName(), "frmStatiL");
  EXPECT_EQ(finestra.windowTitle(), " Indicatori Stato Elementi PLC.");
  Prova_Finestra(finestra);
}

TEST_F(Status, ItsValuesAreReadWithWhatTheyBelongTo) {
  const auto letto = [this](const char* nome) {
    finestra.Aggiorna();
    return QAccessible::queryAccessibleInterface(&Trova<QLabel>(finestra, nome))
        ->text(QAccessible::Name)
        .toStdString();
  };
  plc.IP_I[0].Txt_B = "00000101";
  plc.IP_I[0].Val_B = 5;
  EXPECT_EQ(letto("etIW(0)"), "IB0: 00000101");
  EXPECT_EQ(letto("etIB(0)"), "IB0: 5");
  plc.Mem_T[37].Val = 12;
  EXPECT_EQ(letto("etTmrV(2)"), "T37 valore: 12");
  plc.Mem_T[5].Val = 7;
  Trova<QComboBox>(finestra, "cmbIndT(2)").setCurrentIndex(5);
  EXPECT_EQ(letto("etTmrV(2)"), "T5 valore: 7");
  plc.Mem_VW[4] = -3;
  Trova<QComboBox>(finestra, "cmbVW").setCurrentIndex(3);
  EXPECT_EQ(letto("etDVw(1)"), "VW4: -3");
  Trova<QComboBox>(finestra, "cmbM1").setCurrentIndex(1);
  EXPECT_TRUE(QString::fromStdString(letto("etmb(0)")).startsWith("M1: ")) << letto("etmb(0)");
}

struct Lista {
  const char* Nome;
  int Quante;
  int Cifre;
  const char* Prefisso;
  int Scelta;
};

constexpr Lista liste[] = {
    {"cmbM1", 2, 2, "M", 0},       {"cmbIndT(0)", 41, 1, "", 32}, {"cmbIndT(1)", 41, 1, "", 33},
    {"cmbIndT(2)", 41, 1, "", 37}, {"cmbIndT(3)", 41, 1, "", 38}, {"cmbIndC(0)", 21, 1, "", 0},
    {"cmbIndC(1)", 21, 1, "", 1},  {"cmbIndC(2)", 21, 1, "", 2},  {"cmbVb", 101, 3, "", 0},
    {"cmbVW", 101, 3, "", 0},      {"cmbVD", 101, 3, "", 0},
};

class Status_List : public Status, public ::testing::WithParamInterface<Lista> {};

TEST_P(Status_List, HasItsItemsAndItsSelection) {
  const Lista& lista = GetParam();
  std::vector<std::string> attese;
  for (int n = 0; n < lista.Quante; ++n) {
    const std::string numero = std::to_string(n);
    const auto zeri = std::max(0, lista.Cifre - static_cast<int>(numero.size()));
    attese.push_back(lista.Prefisso + std::string(static_cast<std::size_t>(zeri), '0') + numero);
  }
  EXPECT_EQ(Voci(finestra, lista.Nome), attese);
  EXPECT_EQ(Trova<QComboBox>(finestra, lista.Nome).currentIndex(), lista.Scelta);
}
INSTANTIATE_TEST_SUITE_P(All, Status_List, ::testing::ValuesIn(liste));

/// A slot, what stands in the memory for it, and what it shows then.
struct Posto {
  const char* Nome;
  const char* Riquadro;
  void (*Scrivi)(Plc& plc);
  const char* Atteso;
};

constexpr const char* IO = "Stato I/O";
constexpr const char* M = "Stato M";
constexpr const char* TC = "Timer/Counter";
constexpr const char* V = "Memorie/Accumulatori";

const Posto posti[] = {
    {"etIW(0)", IO, [](Plc& p) { p.IP_I[0].Txt_B = "00000101"; }, "00000101"},
    {"etIW(1)", IO, [](Plc& p) { p.IP_I[1].Txt_B = "10000000"; }, "10000000"},
    {"etIB(0)", IO, [](Plc& p) { p.IP_I[0].Val_B = 5; }, "5"},
    {"etIB(1)", IO, [](Plc& p) { p.IP_I[1].Val_B = 255; }, "255"},
    {"etQW(0)", IO, [](Plc& p) { p.IP_Q[0].Txt_B = "00000001"; }, "00000001"},
    {"etQW(1)", IO, [](Plc& p) { p.IP_Q[1].Txt_B = "11111111"; }, "11111111"},
    {"etQB(0)", IO, [](Plc& p) { p.IP_Q[0].Val_B = 1; }, "1"},
    {"etQB(1)", IO, [](Plc& p) { p.IP_Q[1].Val_B = 128; }, "128"},
    {"etM(0)", M, [](Plc& p) { p.Mem_M[0].Txt_B = "00000001"; }, "00000001"},
    {"etM(1)", M, [](Plc& p) { p.Mem_M[1].Txt_B = "00000010"; }, "00000010"},
    {"etM(2)", M, [](Plc& p) { p.Mem_M[2].Txt_B = "00000100"; }, "00000100"},
    {"etM(3)", M, [](Plc& p) { p.Mem_M[3].Txt_B = "00001000"; }, "00001000"},
    {"etmb(0)", M, [](Plc& p) { p.Mem_M[0].Val_B = 10; }, "10"},
    {"etmb(1)", M, [](Plc& p) { p.Mem_M[1].Val_B = 11; }, "11"},
    {"etmb(2)", M, [](Plc& p) { p.Mem_M[2].Val_B = 12; }, "12"},
    {"etmb(3)", M, [](Plc& p) { p.Mem_M[3].Val_B = 13; }, "13"},
    {"etTmrV(0)", TC, [](Plc& p) { p.Mem_T[32].Val = 50; }, "50"},
    {"etTmrV(1)", TC, [](Plc& p) { p.Mem_T[33].Val = 51; }, "51"},
    {"etTmrV(2)", TC, [](Plc& p) { p.Mem_T[37].Val = 52; }, "52"},
    {"etTmrV(3)", TC, [](Plc& p) { p.Mem_T[38].Val = 32760; }, "32760"},
    {"etTmrS(0)", TC, [](Plc& p) { p.Mem_T[32].PT = 100; }, "100"},
    {"etTmrS(1)", TC, [](Plc& p) { p.Mem_T[33].PT = 101; }, "101"},
    {"etTmrS(2)", TC, [](Plc& p) { p.Mem_T[37].PT = 102; }, "102"},
    {"etTmrS(3)", TC, [](Plc& p) { p.Mem_T[38].PT = -3; }, "-3"},
    {"etTmrB(0)", TC, [](Plc& p) { p.Mem_T[32].Uscita = 1; }, "1"},
    {"etTmrB(1)", TC, [](Plc& p) { p.Mem_T[33].Uscita = 1; }, "1"},
    {"etTmrB(2)", TC, [](Plc& p) { p.Mem_T[37].Uscita = 1; }, "1"},
    {"etTmrB(3)", TC, [](Plc& p) { p.Mem_T[38].Uscita = 1; }, "1"},
    {"etCV(0)", TC, [](Plc& p) { p.Mem_C[0].Val = -32768; }, "-32768"},
    {"etCV(1)", TC, [](Plc& p) { p.Mem_C[1].Val = 7; }, "7"},
    {"etCV(2)", TC, [](Plc& p) { p.Mem_C[2].Val = 8; }, "8"},
    {"etCS(0)", TC, [](Plc& p) { p.Mem_C[0].PV = 6; }, "6"},
    {"etCS(1)", TC, [](Plc& p) { p.Mem_C[1].PV = 7; }, "7"},
    {"etCS(2)", TC, [](Plc& p) { p.Mem_C[2].PV = 8; }, "8"},
    {"etCB(0)", TC, [](Plc& p) { p.Mem_C[0].Uscita = 1; }, "1"},
    {"etCB(1)", TC, [](Plc& p) { p.Mem_C[1].Uscita = 1; }, "1"},
    {"etCB(2)", TC, [](Plc& p) { p.Mem_C[2].Uscita = 1; }, "1"},
    {"etDVB(0)", V, [](Plc& p) { p.Mem_VB[0] = 255; }, "255"},
    {"etDVB(1)", V, [](Plc& p) { p.Mem_VB[1] = -1; }, "-1"},
    {"etDVw(0)", V, [](Plc& p) { p.Mem_VW[0] = 32767; }, "32767"},
    {"etDVw(1)", V, [](Plc& p) { p.Mem_VW[1] = -32768; }, "-32768"},
    {"etDVd", V, [](Plc& p) { p.Mem_VD[0] = -2147483647; }, "-2147483647"},
    {"etAC(0)", V, [](Plc& p) { p.Mem_AC[0] = 100; }, "100"},
    {"etAC(1)", V, [](Plc& p) { p.Mem_AC[1] = -0.5F; }, "-0.5"},
    {"etAC(2)", V, [](Plc& p) { p.Mem_AC[2] = 1234567; }, "1234567"},
    {"etAC(3)", V, [](Plc& p) { p.Mem_AC[3] = 2147483648.0F; }, "2.147484E+09"},
};

class Status_Slot : public Status, public ::testing::WithParamInterface<Posto> {};

TEST_P(Status_Slot, FollowsItsCellAtTheNextTick) {
  const Posto& posto = GetParam();
  const std::string prima = Mostrato(posto.Nome);
  EXPECT_NE(prima, posto.Atteso);
  posto.Scrivi(plc);
  EXPECT_EQ(Testo(finestra, posto.Nome), prima);
  EXPECT_EQ(Mostrato(posto.Nome), posto.Atteso);
  const QWidget* riquadro = Trova<QLabel>(finestra, posto.Nome).parentWidget();
  EXPECT_EQ(qobject_cast<const QGroupBox*>(riquadro)->title(), posto.Riquadro);
}

TEST_P(Status_Slot, NoOtherSlotShowsIt) {
  const Posto& posto = GetParam();
  std::vector<std::string> prima;
  for (const Posto& altro : posti) prima.push_back(Mostrato(altro.Nome));
  posto.Scrivi(plc);
  finestra.Aggiorna();
  for (std::size_t k = 0; k < std::size(posti); ++k) {
    if (posti[k].Nome != posto.Nome) {
      EXPECT_EQ(Testo(finestra, posti[k].Nome), prima[k]) << posti[k].Nome;
    }
  }
}
INSTANTIATE_TEST_SUITE_P(All, Status_Slot, ::testing::ValuesIn(posti));

class Status_Caption : public Status, public ::testing::WithParamInterface<const char*> {};

TEST_P(Status_Caption, StandsInTheWindow) {
  bool trovato = false;
  for (const QLabel* etichetta : finestra.findChildren<QLabel*>())
    trovato = trovato || etichetta->text() == QString::fromUtf8(GetParam());
  EXPECT_TRUE(trovato);
}
INSTANTIATE_TEST_SUITE_P(All, Status_Caption,
                         ::testing::Values("IB0:", "IB1:", "QB0:", "QB1:",
                                           ".7  .6  .5  .4 .3 .2  .1  .0",
                                           "Txx :", "Cxx :", "Valore :", "Set :", "Bit :", "VB:",
                                           "VW:", "VD:", "AC0:", "AC1:", "AC2:", "AC3:"));

TEST_F(Status, StoppedItStillFollowsTheInputBars) {
  EXPECT_EQ(plc.PLC_Acceso, 0);
  plc.SI[0].Stato_I("10100000");
  EXPECT_EQ(Mostrato("etIW(0)"), "00000101");
  EXPECT_EQ(Mostrato("etIB(0)"), "5");
}

TEST_F(Status, M01ShowsTheRows1To4AndTheirNamesWithoutColon) {
  for (int k = 0; k <= 4; ++k) plc.Mem_M[k].Val_B = static_cast<std::int16_t>(20 + k);
  for (int k = 0; k < 4; ++k)
    EXPECT_EQ(Testo(finestra, ("etM1(" + std::to_string(k) + ")").c_str()),
              "M" + std::to_string(k));
  Scegli(finestra, "cmbM1", 1);
  for (int k = 0; k < 4; ++k) {
    const std::string indice = "(" + std::to_string(k) + ")";
    EXPECT_EQ(Testo(finestra, ("etM1" + indice).c_str()), "M" + std::to_string(k + 1));
    EXPECT_EQ(Mostrato("etmb" + indice), std::to_string(21 + k));
  }
}

TEST_F(Status, AnotherTimerOrCounterIsShownInItsColumn) {
  plc.Mem_T[40] = {11, 12, 1, 0};
  plc.Mem_C[20] = {13, 14, 1, 0, 0};
  Scegli(finestra, "cmbIndT(3)", 40);
  Scegli(finestra, "cmbIndC(2)", 20);
  EXPECT_EQ(Mostrato("etTmrV(3)"), "11");
  EXPECT_EQ(Mostrato("etTmrS(3)"), "12");
  EXPECT_EQ(Mostrato("etTmrB(3)"), "1");
  EXPECT_EQ(Mostrato("etCV(2)"), "13");
  EXPECT_EQ(Mostrato("etCS(2)"), "14");
  EXPECT_EQ(Mostrato("etCB(2)"), "1");
}

TEST_F(Status, TimersShowTicks) {
  plc.T100m.Enabled(true);
  plc.Mem_T[37].Conta = -1;
  orologio.Avanza(5000);
  EXPECT_EQ(Mostrato("etTmrV(2)"), "50");
}

TEST_F(Status, ChoosingVCellsNamesThem) {
  EXPECT_EQ(Testo(finestra, "etnB(1)"), "1");
  Scegli(finestra, "cmbVb", 7);
  Scegli(finestra, "cmbVW", 98);
  Scegli(finestra, "cmbVD", 100);
  EXPECT_EQ(Testo(finestra, "etnB(0)"), "7");
  EXPECT_EQ(Testo(finestra, "etnB(1)"), "8");
  EXPECT_EQ(Testo(finestra, "etnw(0)"), "98");
  EXPECT_EQ(Testo(finestra, "etnw(1)"), "99");
  EXPECT_EQ(Testo(finestra, "etnd"), "100");
  plc.Mem_VB[8] = 3;
  plc.Mem_VW[99] = 4;
  plc.Mem_VD[100] = 5;
  EXPECT_EQ(Mostrato("etDVB(1)"), "3");
  EXPECT_EQ(Mostrato("etDVw(1)"), "4");
  EXPECT_EQ(Mostrato("etDVd"), "5");
}

class Status_Last : public Status,
                    public ::testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(Status_Last, HasNoNeighbourAndTheReadIsFatal) {
  Scegli(finestra, GetParam().first, 99);
  finestra.Aggiorna();
  Scegli(finestra, GetParam().first, 100);
  try {
    finestra.Aggiorna();
    FAIL() << "no failure";
  } catch (const Fatale& fatale) {
    EXPECT_EQ(fatale.Tabella(), GetParam().second);
    EXPECT_EQ(fatale.Indice(), 101);
  }
}
INSTANTIATE_TEST_SUITE_P(All, Status_Last,
                         ::testing::Values(std::pair{"cmbVb", "Mem_VB"},
                                           std::pair{"cmbVW", "Mem_VW"}));

TEST_F(Status, ATickInsideATickDoesNothing) {
  plc.Mem_VB[0] = 9;
  finestra.Aggiornando = -1;
  finestra.Aggiorna();
  EXPECT_EQ(Testo(finestra, "etDVB(0)"), "0");
  finestra.Aggiornando = 0;
  finestra.Aggiorna();
  EXPECT_EQ(Testo(finestra, "etDVB(0)"), "9");
  EXPECT_EQ(finestra.Aggiornando, 0);
}

TEST_F(Status, ItWritesNothing) {
  plc.Mem_M[0].Txt_B = "00000001";
  const Memoria prima = plc;
  finestra.Aggiorna();
  EXPECT_EQ(static_cast<const Memoria&>(plc), prima);
}

TEST_F(Status, TheTimerRunsFromLoadToUnload) {
  const auto& timV = *finestra.findChild<QTimer*>("timV");
  EXPECT_TRUE(timV.isActive());
  EXPECT_LE(timV.interval(), 20);
  finestra.show();
  Premi(finestra, "cmdEnd");
  EXPECT_FALSE(finestra.isVisible());
  EXPECT_FALSE(timV.isActive());
}

// ---- placing -----------------------------------------------------------------------------------

QPoint Sotto(const QWidget& finestra) {
  return {finestra.x(), finestra.y() + finestra.frameGeometry().height() + 1};
}

TEST_F(Status, ThePanelGoesRightUnderTheWindow) {
  panel.move(30, 300);
  FrmStatiL stati(plc, &panel);
  EXPECT_EQ(panel.pos(), Sotto(stati));
  EXPECT_EQ(stati.Gia_Posta, 0);
}

TEST_F(Status, TheFirstShowPlacesThePanelAgain) {
  FrmStatiL stati(plc, &panel);
  panel.move(77, 88);
  stati.Poni(500, 200);
  stati.show();
  EXPECT_EQ(stati.pos(), QPoint(50, 20));
  EXPECT_EQ(panel.pos(), Sotto(stati));
  EXPECT_EQ(stati.Gia_Posta, -1);
}

TEST_F(Status, ThePanelGoesNoFurtherToTheRightThanTheScreenHasRoom) {
  const QRect schermo = panel.screen()->availableGeometry();
  panel.resize(300, 100);
  FrmStatiL stati(plc, &panel);
  stati.Poni(Twip(schermo.width() - 200), 0);
  stati.show();
  EXPECT_EQ(panel.x(), schermo.width() - panel.frameGeometry().width());
  EXPECT_EQ(panel.y(), Sotto(stati).y());
}

TEST_F(Status, ALaterMoveLeavesThePanelWhereItWasPutTheFirstTime) {
  FrmStatiL stati(plc, &panel);
  stati.show();
  const QPoint posto = panel.pos();
  stati.hide();
  stati.Poni(3000, 0);
  stati.show();
  stati.Aggiorna();
  EXPECT_EQ(stati.pos(), QPoint(300, 0));
  EXPECT_EQ(panel.pos(), posto);
}

TEST_F(Status, APanelMovedByHandStaysThere) {
  FrmStatiL stati(plc, &panel);
  stati.show();
  panel.move(5, 6);
  auto& timV = *stati.findChild<QTimer*>("timV");
  QTimerEvent scatto(timV.timerId());
  QCoreApplication::sendEvent(&timV, &scatto);
  EXPECT_EQ(panel.pos(), QPoint(5, 6));
}

}  // namespace
}  // namespace tavorno
