// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "plants/host/drawings.h"
#include "plants/plant.h"

namespace tavorno {

/// Draws any plant from its figures and its drawings, and turns mouse and keyboard into the hand of
/// the user: Tab goes from one thing that can be operated to the next, Space presses and releases
/// it, Return clicks it twice, the arrow keys and the wheel turn an up/down.
class Quadro : public QWidget {
 public:
  /// `file`: the plant's drawings. The plant must outlive its picture.
  Quadro(Impianto& impianto, const QString& file, QWidget* sopra = nullptr);
  ~Quadro() override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint() * 0.4; }

  /// The topmost visible figure that can be operated there; nullptr for none. Pixels of the widget.
  Figura* Figura_A(const QPointF& punto) const;
  /// Where a figure stands now, in pixels of the widget.
  QRectF Posto(const Figura& figura) const;
  /// The id of the group that draws a figure now.
  static QString Gruppo(const Figura& figura);

  static constexpr int Ritmo = 20;  ///< ms between two drawings at least

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void keyReleaseEvent(QKeyEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  bool focusNextPrevChild(bool avanti) override;
  bool event(QEvent* evento) override;

 private:
  struct Vista {
    Figura* Di;
    QRectF A_Riposo;  ///< twips: where its drawing stands in the file
    QRectF Ultimo;    ///< pixels: where it was drawn last
  };

  double Scala() const;
  QPointF Origine() const;
  bool Si_Opera(const Figura& figura) const;
  bool Gira(const Figura& figura, int passi);
  void Disegna_Figura(QPainter& pittore, const Vista& vista);
  QRectF Occupato(const Vista& vista) const;
  void Ridisegna_Cambiate();
  /// `mano`: `mouse_` or `spazio_`.
  void Premi(Figura*& mano, Figura& figura);
  void Rilascia(Figura*& mano, bool sopra);
  template <class Quali>
  Figura* In_Cima(const QPointF& punto, Quali quali) const;
  std::vector<Vista*> Operabili();
  void Metti_Fuoco(const Figura& figura, bool in_vista);
  Vista* A_Fuoco();

  Impianto& impianto_;
  Disegni disegni_;
  std::vector<Vista> viste_;  // in drawing order
  QTimer ritmo_;
  QString fuoco_;                // name of the figure that the keyboard operates
  bool fuoco_in_vista_ = false;  // its frame would cross labels, so it waits for a key
  // Held down. There are two, so that a hand on each can hold two buttons at once.
  Figura* mouse_ = nullptr;
  Figura* spazio_ = nullptr;
};

}  // namespace tavorno
