// SPDX-License-Identifier: GPL-3.0-or-later
// A picture is drawn in pieces, where something changed. Whatever happened, what stands on the
// screen is what a drawing of everything would show. TAVORNO_FIGURE_PASSI makes it longer, and
// TAVORNO_SEME begins elsewhere; gui.host.scales runs it on screens with other dots per pixel.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>
#include <cstdlib>
#include <random>

#include "host/host_bed.h"
#include "plants/exercises.h"
#include "widgets/colours.h"

namespace tavorno {
namespace {

unsigned Dall_Ambiente(const char* nome, unsigned altrimenti) {
  const char* valore = std::getenv(nome);
  return valore == nullptr ? altrimenti : static_cast<unsigned>(std::atoi(valore));
}

/// A picture among other things of a window, driven by hand: no timer runs, since no events do.
struct Caso {
  Caso(int indice, QScreen& schermo, unsigned seme)
      : impianto(Tabella_Esercizi()[static_cast<std::size_t>(indice)].Crea(plc)),
        finestra(Con_Posto(schermo)),
        quadro(new Quadro(*impianto,
                          QStringLiteral(":/plants/US-%1.svg").arg(indice, 2, 10, QChar('0')),
                          finestra.get())),
        coperchio(new QWidget(finestra.get())),
        caso(seme) {
    coperchio->setAutoFillBackground(true);
    coperchio->hide();
    quadro->Riduci_Animazioni(false);
    // Wider than the drawing, so that its scale follows from its height alone.
    quadro->setGeometry(7, 11, quadro->sizeHint().width() + 61, quadro->sizeHint().height());
    finestra->show();
    finestra->activateWindow();
    quadro->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
    for (const Figura& figura : impianto->Disegno) {
      if (figura.Operabile()) operabili.push_back(&figura);
      for (const QString& morsetto : quadro->Morsetti_Di(figura)) morsetti << morsetto;
    }
    Mostra();
  }

  static std::unique_ptr<QWidget> Con_Posto(QScreen& schermo) {
    auto finestra = std::make_unique<QWidget>();
    finestra->setGeometry(QRect(schermo.geometry().topLeft(), QSize(900, 620)));
    return finestra;
  }

  unsigned Tra(unsigned quanti) { return static_cast<unsigned>(caso() % quanti); }

  void Mouse(QEvent::Type tipo, const QPointF& dove) const {
    const auto tasto = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent evento(tipo, dove, quadro->mapToGlobal(dove), tasto, tasto, {});
    QCoreApplication::sendEvent(quadro, &evento);
  }

  void Passa(int ms) {
    for (; ms > 0; ms -= Quadro::Ritmo) {
      orologio.Avanza(Quadro::Ritmo);
      quadro->Avanza(Quadro::Ritmo);
      if (Tra(3) == 0) Mostra();
    }
  }

  /// What waits to be drawn is drawn, and nothing else happens.
  void Mostra() const {
    for (int volta = 0; volta < 3; ++volta) {
      // What has just appeared asks a little later.
      for (const QEvent::Type tipo : {QEvent::UpdateLater, QEvent::UpdateRequest})
        QCoreApplication::sendPostedEvents(nullptr, tipo);
    }
  }

  std::string Fa_Qualcosa() {
    switch (Tra(15)) {
      case 0:
      case 1:
      case 2: {
        std::string uscite(16, '0');
        for (char& bit : uscite) bit = Tra(3) == 0 ? '1' : '0';
        impianto->Stato_Q(uscite);
        return "outputs " + uscite;
      }
      case 3:
      case 4: {
        if (operabili.empty()) return "nothing";
        const Figura& figura = *operabili[Tra(static_cast<unsigned>(operabili.size()))];
        const QPointF dove = quadro->Posto(figura).center();
        Mouse(QEvent::MouseMove, dove);
        Mouse(QEvent::MouseButtonPress, dove);
        Mostra();
        if (Tra(2) == 0) Passa(100);
        if (Tra(4) != 0) Mouse(QEvent::MouseButtonRelease, dove);
        return "press on " + figura.Nome;
      }
      case 5: {
        if (operabili.empty()) return "nothing";
        const Figura& figura = *operabili[Tra(static_cast<unsigned>(operabili.size()))];
        impianto->Clic(figura.Nome);
        impianto->Doppio_Clic(figura.Nome);
        return "clicks on " + figura.Nome;
      }
      case 6:
        if (morsetti.isEmpty() || Tra(3) == 0) {
          quadro->Indica({});
          return "no mark";
        } else {
          const QString& quale =
              morsetti[static_cast<int>(Tra(static_cast<unsigned>(morsetti.size())))];
          quadro->Indica({quale});
          return "mark of " + quale.toStdString();
        }
      case 7:
        coperchio->setGeometry(static_cast<int>(Tra(400)), static_cast<int>(Tra(400)), 143, 87);
        coperchio->setVisible(!coperchio->isVisible());
        return "cover";
      case 8: {
        // As far as the layout is concerned, nobody looks before the size is what it was.
        const QSize prima = quadro->size();
        quadro->resize(prima.width() - 40, prima.height() - 51);
        impianto->Stato_Q(Tra(2) == 0 ? "0000000000000000" : "1111000000000000");
        quadro->Avanza(Quadro::Ritmo);
        quadro->resize(prima);
        return "there and back";
      }
      case 9:
        quadro->hide();
        impianto->Stato_Q(Tra(2) == 0 ? "0000000000000000" : "1010101010101010");
        orologio.Avanza(400);
        if (Tra(2) == 0) quadro->Avanza(400);
        quadro->show();
        return "hidden";
      case 10:
        quadro->Riduci_Animazioni(!quadro->Animazioni_Ridotte());
        return "stillness";
      case 11:
        QTest::keyClick(quadro, Qt::Key_Tab);
        return "next by key";
      case 12:
        colori::Per_Daltonici(!colori::In_Uso().Daltonici);
        return "colours";
      case 13: {
        const auto schermi = QGuiApplication::screens();
        QScreen* altro = schermi[static_cast<int>(Tra(static_cast<unsigned>(schermi.size())))];
        finestra->setGeometry(QRect(altro->geometry().topLeft(), finestra->size()));
        return "on a screen with " + std::to_string(altro->devicePixelRatio());
      }
      default:
        quadro->move(7 + static_cast<int>(Tra(30)), 11 + static_cast<int>(Tra(30)));
        return "moved";
    }
  }

  QImage Schermo() const {
    return finestra->screen()
        ->grabWindow(finestra->winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  }

  /// Where the screen shows something else than a drawing from nothing; null for nowhere. All that
  /// has changed must have been drawn.
  QRect Diverso() {
    quadro->Avanza(0);
    Mostra();
    const QImage mostrato = Schermo();
    const QSize prima = quadro->size();
    quadro->resize(prima + QSize(2, 0));
    Mostra();
    quadro->resize(prima);
    Mostra();
    const QImage vero = Schermo();
    if (mostrato == vero) return {};
    QRect dove;
    for (int y = 0; y < vero.height(); ++y) {
      for (int x = 0; x < vero.width(); ++x) {
        if (mostrato.pixel(x, y) != vero.pixel(x, y)) dove |= QRect(x, y, 1, 1);
      }
    }
    if (const char* dove_salvare = std::getenv("TAVORNO_FIGURE_DIVERSE")) {
      mostrato.save(QString::fromLocal8Bit(dove_salvare) + "-shown.png");
      vero.save(QString::fromLocal8Bit(dove_salvare) + "-true.png");
    }
    return dove;
  }

  Orologio orologio;
  Plc plc{orologio};
  std::unique_ptr<Impianto> impianto;
  std::unique_ptr<QWidget> finestra;
  ~Caso() { colori::Per_Daltonici(false); }

  Quadro* quadro;
  QWidget* coperchio;
  std::mt19937 caso;
  std::vector<const Figura*> operabili;
  QStringList morsetti;
};

struct Tenuta : ::testing::TestWithParam<int> {};

TEST_P(Tenuta, WhatIsShownIsWhatADrawingOfEverythingShows) {
  const unsigned passi = Dall_Ambiente("TAVORNO_FIGURE_PASSI", 10);
  const unsigned primo = Dall_Ambiente("TAVORNO_SEME", 1);
  for (QScreen* schermo : QGuiApplication::screens()) {
    const unsigned seme = (primo * 100) + static_cast<unsigned>(GetParam());
    Caso caso(GetParam(), *schermo, seme);
    std::string strada;
    for (unsigned passo = 0; passo < passi; ++passo) {
      strada += caso.Fa_Qualcosa() + "; ";
      caso.Passa(Quadro::Ritmo * static_cast<int>(caso.Tra(30)));
      const QRect diverso = caso.Diverso();
      ASSERT_TRUE(diverso.isNull())
          << schermo->devicePixelRatio() << " dots per pixel, seed " << primo << ": " << diverso.x()
          << ',' << diverso.y() << ' ' << diverso.width() << 'x' << diverso.height() << " after "
          << strada;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Pictures, Tenuta, ::testing::ValuesIn(Con_Impianto()),
                         [](const auto& caso) { return "US" + std::to_string(caso.param); });

}  // namespace
}  // namespace tavorno
