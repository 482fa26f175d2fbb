// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "assets/resources.h"
#include "recorder/session.h"
#include "recorder/ui/diagram_window.h"

namespace tavorno {

/// A program under the diagram, on a virtual clock: Q0.0 follows I0.0, and VW0 counts its scans.
struct Banco_Diagramma : ::testing::Test {
  Seduta seduta;
  Plc& plc = seduta.plc;
  Iscrizione orologio, mani;
  std::unique_ptr<FrmTempi> finestra;
  int scansione = 0;

  void Carica(const char* righe) {
    ASSERT_TRUE(
        seduta.Leggi("ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Prova\r\nBEGIN\r\n"
                     "NETWORK 1 //Prova\r\n" +
                     std::string(righe) + "END_ORGANIZATION_BLOCK\r\n"));
    seduta.progetto.Compila();
    ASSERT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
  }
  void SetUp() override {
    Carica("LD I0.0\r\n= Q0.0\r\nINCW VW0\r\n");
    orologio = plc.Hook.Ascolta_Cedi([this] {
      if (plc.PC == 0) seduta.orologio.Avanza(1);
    });
    finestra = std::make_unique<FrmTempi>(plc);
    finestra->show();
    finestra->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  }

  /// A run of so many scans, a millisecond each; I0.0 is on in every second hundred of them.
  void Corri(int scansioni) {
    mani = plc.Hook.Ascolta_Cedi([this, scansioni] {
      if (plc.PC != 0) return;
      if (++scansione % 100 == 0)
        plc.SI[0].Stato_I(scansione / 100 % 2 != 0 ? "10000000" : "00000000");
      if (scansione >= scansioni) plc.mnuPlcStop();
    });
    plc.mnuPlcRun();
    mani.Termina();
    finestra->Aggiorna();
  }

  Diagramma_Tempi& D() { return finestra->Dati(); }
  Tela_Tempi& Tela() { return *finestra->findChild<Tela_Tempi*>("picTempi"); }
  QString Stato() { return finestra->findChild<QLabel*>("etCursori")->text(); }
  QLineEdit& Cerca() { return *finestra->findChild<QLineEdit*>("txtCerca"); }
  void Premi(int tasto, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(&Tela(), static_cast<Qt::Key>(tasto), con);
  }
  /// Selects the row of a signal by the keyboard.
  void Scegli(const std::string& nome) {
    for (int n = 0; n < 50; ++n) {
      Premi(Qt::Key_Down);
      const auto riga = D().Riga_Scelta();
      const Segnale* segnale = riga ? D().Segnale_Di(*riga) : nullptr;
      if (segnale != nullptr && segnale->Nome == nome) return;
    }
    FAIL() << nome;
  }
  /// A point of the row of a signal, at a moment.
  QPoint Punto(const std::string& nome, std::int64_t ms) {
    for (const Riga_Diagramma& riga : D().Righe()) {
      const Segnale* segnale = D().Segnale_Di(riga);
      if (segnale == nullptr || segnale->Nome != nome) continue;
      const Misura_Disegno misura = Tela().Misura();
      return QPointF(misura.Nomi + D().Vista.X(static_cast<double>(ms)),
                     Misura_Disegno::Asse + riga.Y - misura.Scorrimento + riga.Alta / 2)
          .toPoint();
    }
    ADD_FAILURE() << nome;
    return {};
  }
};

}  // namespace tavorno
