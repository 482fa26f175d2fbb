// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QBoxLayout;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QPushButton;
class QToolButton;

namespace tavorno {

/// How the CPU stands, as far as a plant shows it.
enum class Corsa { Ferma, In_Pausa, In_Moto };

/// Ticks and buttons below the picture of a plant: in one row, or in two or three where the window
/// is narrow.
class Riga_Comandi : public QWidget {
 public:
  /// `voce_io`: caption of the tick that shows the table.
  explicit Riga_Comandi(const QString& voce_io, QWidget* sopra = nullptr);

  QCheckBox *chkSim, *chkIO, *chkStriscia;
  QPushButton *cmdVerifica, *cmdTempi, *cmdSch, *cmdEnd;
  QMenu* mnuGuasti;  ///< opens below its button; who owns the row fills it when it is about to show

  void Mostra_Corsa(Corsa corsa);
  /// Shows how many faults there are; `elenco` names them, one a line.
  void Mostra_Guasti(int quanti, const QString& elenco);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  QBoxLayout *posti_, *spunte_;
  QHBoxLayout *viste_, *destra_;
  QLabel* etRun_;
  QToolButton* cmdGuasti_;
};

}  // namespace tavorno
