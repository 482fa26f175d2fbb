// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

#include "panel/recent_files.h"

class QAction;
class QMenu;

namespace tavorno {

/// A project that is offered by its title.
struct Progetto_Offerto {
  QString Titolo;
  QString File;
};

/// The projects that lie beside the program: those of a folder "examples", which is the program's
/// own or that of its installation, without the solved exercises.
std::vector<Progetto_Offerto> Esempi_Installati(const QString& cartella_programma);
/// The solved exercises, in the same folder or in "solutions" beside it.
std::vector<Progetto_Offerto> Progetti_Risolti(const QString& cartella_programma);

/// The submenus "Esempi" and "File recenti" of the menu "File", in the windows that open projects.
class Menu_File : public QObject {
 public:
  Menu_File(const File_Recenti& recenti, QString cartella_programma,
            std::function<void(const QString& file)> apri);

  /// Into the menu of `titolo`, before `fine`; chosen as long as `apri` can be.
  void Metti_In(const QAction& titolo, QAction& fine, const QAction& apri) const;
  /// One of those that came with the program: nobody's own folder.
  bool Fornito(const QString& file) const;

 private:
  void Riempi_Esempi(QMenu& menu) const;
  void Riempi_Recenti(QMenu& menu) const;
  void Aggiungi(QMenu& menu, const std::vector<Progetto_Offerto>& progetti) const;

  const File_Recenti& recenti_;
  QString cartella_;
  std::function<void(const QString& file)> apri_;
};

}  // namespace tavorno
