// SPDX-License-Identifier: GPL-3.0-or-later
// A row of a plant's table that is pointed at lights up the part, its LED and its terminal.
#include <QImage>
#include <QTableWidget>

#include "panel/application.h"
#include "panel/child_windows.h"
#include "panel/panel_bed.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"

namespace tavorno {
namespace {

struct Indicata_Dal_Pannello : Banco_Pannello {
  Guida guida;
  Finestre finestre{pannello, plc, progetto, guida};
  Finestra_Impianto* host = nullptr;
  QTableWidget* FGr = nullptr;

  Indicata_Dal_Pannello() {
    pannello.show();
    Azione(pannello, "mnuPrj(0)").trigger();
    for (QWidget* finestra : QApplication::topLevelWidgets())
      if (auto* trovata = dynamic_cast<Finestra_Impianto*>(finestra)) host = trovata;
    host->findChild<QAbstractButton*>("chkIO")->click();
    FGr = host->findChild<QTableWidget*>("FGr");
  }
  ~Indicata_Dal_Pannello() override { host->close(); }

  static QImage Ritratto(QWidget& di) {
    QImage immagine(di.size(), QImage::Format_RGB32);
    di.render(&immagine);
    return immagine;
  }
  /// The LEDs of the first bytes, which the mark lies over.
  QList<QImage> Led() {
    const QImage fronte = Ritratto(*c.Fronte);
    return {fronte.copy(c.Fronte->SI(0).geometry()), fronte.copy(c.Fronte->SQ(0).geometry())};
  }
  /// Part and LEDs differ from these.
  void Accese(const QImage& figura, const QList<QImage>& led, bool si) {
    EXPECT_EQ(Ritratto(host->Disegno()) != figura, si);
    EXPECT_EQ(Led() != led, si);
  }
};

TEST_F(Indicata_Dal_Pannello, UnderThePointerAndUnderTheCaret) {
  host->Disegno().setFocus();
  QCoreApplication::processEvents();
  const QImage figura = Ritratto(host->Disegno());
  const QList<QImage> led = Led();
  FGr->scrollToItem(FGr->item(7, 0));
  QTest::mouseMove(FGr->viewport(), FGr->visualItemRect(FGr->item(7, 1)).center());
  Accese(figura, led, true);
  QEvent via(QEvent::Leave);
  QCoreApplication::sendEvent(FGr->viewport(), &via);
  Accese(figura, led, false);

  host->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(host));
  FGr->setFocus();
  FGr->setCurrentCell(3, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Led() != led; }, 20000));
  EXPECT_NE(Ritratto(host->Disegno()), figura);
}

TEST_F(Indicata_Dal_Pannello, APartUnderThePointerDoesSoToo) {
  QCoreApplication::processEvents();  // the LEDs take over what the plant has told at its start
  const QList<QImage> led = Led();
  Quadro& quadro = host->Disegno();
  const Figura& start = host->Fili().Macchina().Disegno["imgStart"];
  QTest::mouseMove(&quadro, quadro.Posto(start).center().toPoint());
  EXPECT_NE(Led(), led);
  QTest::mouseMove(&quadro, QPoint(1, 1));
  EXPECT_EQ(Led(), led);
}

}  // namespace
}  // namespace tavorno
