// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <optional>
#include <vector>

#include "panel/loan.h"

namespace tavorno {

/// How large the texts of list, editor, status, watch and diagram are, all together and as long as
/// the program runs: Ctrl and the wheel over one of them, and the commands of the panel. One window
/// can be projected besides: as large as the screen, its texts half as large again.
class Grandezza_Testo : public QObject {
 public:
  Grandezza_Testo();

  /// From now on the texts of this widget and of all in it follow.
  void Segui(QWidget& vista);

  void Cambia(int passi);
  void Normale();
  int Passi() const { return passi_; }  ///< of a tenth each; 0: as told

  /// The window in front, or no longer.
  void Proietta(QWidget* finestra);
  QWidget* Proiettata() const { return proiettata_; }

  static constexpr int Passi_Minimi = -3, Passi_Massimi = 12;
  static constexpr double Di_Proiettore = 1.5;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  double Fattore(const QWidget& vista) const;
  void Applica(QWidget& radice, double fattore);
  void Applica_A_Tutte();
  const QWidget* Seguita(const QObject* oggetto) const;

  std::vector<QPointer<QWidget>> viste_;
  int passi_ = 0;
  QPointer<QWidget> proiettata_;
  std::optional<Posto_Finestra> posto_proiettata_;
  QLayout::SizeConstraint vincolo_ = QLayout::SetDefaultConstraint;  // its layout's, before
};

}  // namespace tavorno
