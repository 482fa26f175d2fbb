// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "plants/faults.h"

class QLabel;
class QMenu;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace tavorno {

/// All faults of the open exercise: each with its name, a tick while it is there, and what it does
/// in the workshop. A click on the tick brings it about or takes it away.
class Pannello_Guasti : public QWidget {
 public:
  /// The link must outlive it.
  explicit Pannello_Guasti(Collegamento& fili, QWidget* sopra = nullptr);

  std::function<void()> Cambiati;  ///< faults came or went, or so it seems

  /// Shows which faults are there now.
  void Aggiorna();
  /// How many are there, as last shown.
  int Attivi() const { return attivi_; }
  /// Their names and devices, one a line; empty for none.
  QString Elenco() const;
  /// Addresses of the inputs whose wires have a fault, as last shown.
  QStringList Fili_Guasti() const;

  /// Brings a fault about or takes it away. False when it cannot now: the panel then says why.
  bool Imposta(const QString& nome, bool attivo);
  /// Takes all away that can be taken away.
  void Ripara_Tutto();

  /// Fills a menu with them: the plant's own first, then a sub-menu for each fault of the wires.
  void Riempi(QMenu& menu);

 private:
  struct Voce {
    Guasto_Impianto Di;
    QTreeWidgetItem* Riga = nullptr;
    bool C_e = false;
  };
  QTreeWidgetItem* Crea_Gruppo(const QString& titolo);
  void Crea_Riga(Voce& voce, QTreeWidgetItem* gruppo);
  static void Tingi_Riga(QTreeWidgetItem& riga, bool attivo);
  void Spunta(const QTreeWidgetItem& riga);
  void Mostra_Scelto();
  Voce* Trova(const QTreeWidgetItem* riga);

  Collegamento& fili_;
  std::vector<Voce> voci_;
  QTreeWidget* elenco_;
  QLabel* spiega_;
  QPushButton* ripara_;
  int attivi_ = 0;
  bool scrivo_ = false;  // the ticks change because the plant did
};

}  // namespace tavorno
