// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

class QAction;
class QToolButton;

namespace tavorno {

/// Buttons and fields from left to right, in as many lines as its width asks for, so that none
/// hides behind another. What is not visible takes no room.
class Riga_A_Capo : public QWidget {
 public:
  explicit Riga_A_Capo(QWidget* sopra = nullptr);

  /// At the end of the row. `allarga`: it takes what its line leaves free.
  void Metti(QWidget* parte, bool allarga = false);
  QToolButton* Metti(QAction* azione);
  /// A gap, where the next one does not begin a line.
  void Stacco();

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  struct Parte {
    QWidget* Chi;
    bool Allarga, Stacco;
  };
  int Disponi(int larga, bool sposta) const;
  void Adatta();

  std::vector<Parte> parti_;
  bool stacco_ = false;  // before the next one
};

}  // namespace tavorno
