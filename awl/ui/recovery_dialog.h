// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <cstddef>
#include <optional>

#include "awl/dialogs.h"
#include "awl/recovery.h"

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace tavorno {

/// Offers the texts that an earlier program left unsaved, each with its name, its time and a look
/// at it. Accepted, `Scelta` is to be taken up; rejected, all that was not thrown away stays for
/// the next start.
class FrmRecupera : public QDialog {
 public:
  /// `eredita` has entries and outlives the dialog.
  FrmRecupera(Eredita& eredita, Dialoghi chiedi, QWidget* sopra);

  std::size_t Scelta() const;

 private:
  void Riempi();
  void Mostra_Scelta();
  void Butta();

  Eredita& eredita_;
  Dialoghi chiedi_;
  QListWidget* lstCopie = nullptr;
  QPlainTextEdit* txtVista = nullptr;
  QPushButton* cmdRecupera = nullptr;
};

}  // namespace tavorno
