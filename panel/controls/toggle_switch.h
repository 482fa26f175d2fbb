// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "widgets/screen_reader.h"

class QSvgRenderer;

namespace tavorno {

/// One toggle switch of a row: it only shows a picture and tells when it was let go, by mouse or
/// space bar. All other keys are the row's.
class Interruttore : public QWidget, public Per_Lettori {
 public:
  enum class Immagine { imgPOFF, imgPON, imgP };  ///< off, on, held down

  /// `disegni` must outlive the switch.
  Interruttore(QSvgRenderer& disegni, QWidget* sopra);

  std::function<void()> Rilasciato;

  Immagine Mostrata() const { return mostrata_; }
  void Mostra(Immagine immagine);

  Letto Leggi(int pezzo) const override;
  void Esegui(int pezzo) override;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void keyReleaseEvent(QKeyEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void hideEvent(QHideEvent* evento) override;

 private:
  void Premi();
  void Lascia();
  void Rinuncia();

  QSvgRenderer& disegni_;
  Immagine mostrata_ = Immagine::imgPOFF;
  Immagine prima_ = Immagine::imgPOFF;  // what stood there before it was held down
  bool premuto_ = false;
};

}  // namespace tavorno
