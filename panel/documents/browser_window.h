// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include "panel/documents/help_folder.h"

class QAction;
class QComboBox;
class QLineEdit;
class QTimer;
class QToolBar;

namespace tavorno {

class Vista_Aiuto;

/// A small browser for the help pages. It shows itself and opens `Url_Help` when it is made.
class FrmBrowser : public QMainWindow {
 public:
  explicit FrmBrowser(const Guida& guida, QWidget* sopra = nullptr);

  /// Opens an address: a path, the name of a page, a file address, or "cerca:" and words. An empty
  /// text does nothing; what cannot be shown is told by a page of its own.
  void Vai(const QString& indirizzo);

  /// One tick of `timTimer`.
  void timTimer_Tick();

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  QToolBar* Crea_Tasti();
  void Collega_Tasti();
  void Crea_Indirizzo();
  QWidget* Crea_Ricerca();
  void Crea_Scorciatoie();
  void Disponi();
  void cboAddress_Click();
  void Navigazione_Finita(const QUrl& url);
  void Ferma();

  const Guida& guida_;
  struct {
    QAction *Back, *Forward, *Refresh, *Home, *Search, *Stop, *Esci;
  } tasti_{};
  QToolBar* tbToolBar_;
  QWidget* stacco_;  // between the keys and the address
  QComboBox* cboAddress_;
  Vista_Aiuto* brwWebBrowser_;
  QWidget* ricerca_;  // shown above the pages of a search
  QLineEdit* txtCerca_;
  QTimer* timTimer_;
  bool No_Naviga = false;  // the program is filling the address box
};

}  // namespace tavorno
