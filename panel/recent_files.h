// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QSettings;

namespace tavorno {

/// The projects that were opened or saved last, newest first, and the folder of the file dialogs.
/// For as long as the process lives, or, with a place to keep them, from one session to the next.
class File_Recenti {
 public:
  static constexpr int Quanti = 8;

  /// Takes up what an earlier session has left; `dove` must outlive this.
  void Ricorda_In(QSettings& dove);
  /// A project was opened or saved.
  void Usato(const QString& file);
  /// Those that are still there, as absolute paths.
  QStringList Elenco() const;

 private:
  QStringList elenco_;
  QSettings* dove_ = nullptr;
};

}  // namespace tavorno
