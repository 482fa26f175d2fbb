// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <QSvgRenderer>
#include <string>

#include "widgets/own_text.h"

namespace tavorno {

/// The timing diagram of a case, the same drawing that the pages of a class hold, in a sheet that
/// scrolls, with the names of the signals always in sight. It begins where the marked moment is.
class Foglio_Tempi : public QScrollArea, public Testo_Proprio {
 public:
  Foglio_Tempi();

  /// Empty: there is none. `descrizione` is for who cannot see it.
  void Mostra(const std::string& svg, const QString& descrizione);
  bool Vuoto() const { return !disegno_.isValid(); }
  void Ingrandisci_Testo(double fattore) override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  class Carta;
  void Misura();
  void Porta_Al_Segno();

  QSvgRenderer disegno_;
  Carta* carta_;
  double segno_ = -1;  // where the marked moment stands, in units of the drawing
  double scala_ = 1;   // pixels to such a unit
};

}  // namespace tavorno
