// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "plants/host/io_history.h"

class QTableWidget;

namespace tavorno {

/// The table of inputs and outputs of an exercise, and beside each row what it reads now and how
/// long ago it last changed. The row under the pointer, or else the current one, is pointed at.
class Tabella_IO : public QWidget {
 public:
  /// The link must outlive it, the history too.
  Tabella_IO(Collegamento& fili, const Storia_IO& storia, QWidget* sopra = nullptr);

  /// Another row is pointed at; -1 for none.
  std::function<void(int riga)> Indicata;

  /// Marks the rows of a part that is pointed at elsewhere; an empty list takes the marks away.
  void Evidenzia(const std::vector<int>& righe);

  /// Writes values and times as they are now; cells that say the same are not touched.
  void Aggiorna();

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void Riempi();
  void Aggiungi_Dal_Vivo();
  void Sotto_Il_Puntatore(int riga);
  void Comunica();
  void Colora(int riga);

  Collegamento& fili_;
  const Storia_IO& storia_;
  QTableWidget* FGr_;   // the told four columns
  QTableWidget* vivo_;  // value and last change, row by row
  int puntata_ = -1;
  int detta_ = -1;  // row that `Indicata` was told last
  std::vector<int> evidenziate_;
};

}  // namespace tavorno
