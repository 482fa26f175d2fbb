// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "awl/source_line.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QListWidget;
class QTextEdit;

namespace tavorno {

struct Progetto;
struct Riga_PLC;

/// Shows each instruction line as the reader stored it and as the compiler did, field by field. The
/// source lines are those of the moment of opening; the compiled ones are read when chosen.
class FrmDebug : public QWidget {
 public:
  /// `progetto` outlives the window.
  explicit FrmDebug(Progetto& progetto);

 private:
  QWidget* Pagina_Listato();
  QWidget* Pagina_HEX();
  QLayout* Testa_HEX();
  QLayout* Operandi_HEX();
  QLayout* Piede_HEX();
  QWidget* Pagina_Errori();
  QListWidget* Lista(const char* nome, const char* suggerimento) const;

  void lstI(int indice);
  void listCod(int indice);
  void Senza_Record();
  void Mostra_Timer(const Riga_PLC& riga);

  Progetto& progetto_;
  std::vector<Riga_Src> righe_;

  std::array<QLabel*, 5> EtInf_{};
  std::array<QLabel*, 10> et1_{};  // 1 to 9
  std::array<QLabel*, 3> etS_{};
  std::array<QGroupBox*, 2> CorOp_{};
  QLabel* etR_ = nullptr;
  QTextEdit* txt1_ = nullptr;
  QComboBox* cmbTim_ = nullptr;
};

}  // namespace tavorno
