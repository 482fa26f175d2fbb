// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

namespace tavorno {

/// The lines of the loaded program. Each is shown behind its number in the CPU, which is no part of
/// its text; the selected line is the one that the CPU is about to execute.
class Lista_Programma : public QListWidget {
 public:
  explicit Lista_Programma(QWidget* parent = nullptr);

  /// Texts in Windows-1252.
  void Riempi(const std::vector<std::string>& righe);
  /// Selects a line and brings it into view; -1 removes the selection.
  void Scegli(int riga);

 private:
  void paintEvent(QPaintEvent* evento) override;
};

}  // namespace tavorno
