// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace tavorno {

/// One digit of the thumbwheel switch, to try: `UpD1` turns it, `etC1` shows it. It writes nothing.
class Campione_Contraves : public QWidget {
 public:
  Campione_Contraves();

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  void Gira(int passo);

  QLabel* etC1_;
  int cifra_ = 0;
};

}  // namespace tavorno
