// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <memory>

class QCheckBox;
class QPlainTextEdit;
class QPrinter;

namespace tavorno {

struct Progetto;

/// Lets the user choose a device and set it up; false when the user gave up.
using Scelta_Stampante = std::function<bool(QPrinter& stampante, QWidget* sopra)>;

/// The dialog of the window system, without the choice of page numbers. Nothing is ever selected in
/// the print buffer, so printing a selection is not offered either.
bool Scegli_Stampante(QPrinter& stampante, QWidget* sopra);

/// Prints the text of the project.
class FrmStampe : public QDialog {
 public:
  explicit FrmStampe(Progetto& progetto, Scelta_Stampante scegli_stampante = Scegli_Stampante,
                     QWidget* sopra = nullptr);
  ~FrmStampe() override;

 private:
  void cmdStp(int indice);
  void Stampa();
  void Riempi_Testo();
  bool Chiedi_Stampante();

  Progetto& progetto_;
  Scelta_Stampante scegli_stampante_;
  std::array<QCheckBox*, 2> chkStp_{};
  QPlainTextEdit* txtList_;
  std::unique_ptr<QPrinter>
      stampante_;  // made at first use: asking the system for printers is slow
};

}  // namespace tavorno
