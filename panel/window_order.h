// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <map>
#include <set>

#include "panel/place_memory.h"
#include "panel/window_places.h"

class QMainWindow;

namespace tavorno {

class Finestra_Impianto;
class FrmStatiL;

/// Keeps the windows of the program on the screen and from under each other. Every window opens
/// where it is told to; what has no room there is fitted. A window that the user has moved or
/// resized is left alone until "Disponi finestre".
class Ordine_Finestre : public QObject {
 public:
  explicit Ordine_Finestre(QMainWindow& pannello);

  /// From now on the window opens within its screen.
  void Sorveglia(QWidget& finestra);

  /// Before and after the windows of an exercise, or the status window alone (`impianto` null),
  /// are shown at their told places.
  void Sta_Per_Aprire();
  void Aperte(Finestra_Impianto* impianto, FrmStatiL& stati);
  /// The plant, or the status window alone, was closed: the panel has its size back.
  void Chiuse();

  /// Before and after the panel takes more room by itself: what stands as given is fitted anew.
  void Sta_Per_Crescere();
  void Cresciuto();

  /// Fits what has no room. `tutte`: those that the user has moved as well.
  void Disponi(bool tutte);

  /// Keeps the places of the windows that are still open.
  void Ricorda_Aperte();
  /// Where windows of earlier sessions stood.
  Posti_Ricordati Posti;

  /// What the user has moved since the last placing stays his.
  void Rispetta_Mani();

  /// False for a moment after windows were opened or placed, until their frames are known.
  bool Assestate() const { return !assesta_.isActive(); }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  bool A_Mano(QWidget& finestra) const;
  bool D_Esercizio(const QWidget& finestra) const;
  QString Nell_Esercizio(const QWidget& finestra) const;
  void Ricorda(QWidget& finestra);
  void Ricorda_Esercizio();
  void Appena_Mostrata(QWidget& finestra);
  bool Tutto_A_Posto(const QRect& schermo) const;
  void Metti(QWidget& finestra, const QRect& cornice, bool tutte);
  void Porta(QWidget& finestra, const QRect& cornice) const;
  QMargins Bordi(const QWidget& finestra) const;
  QRect Accanto_Al_Pannello(const QWidget& finestra) const;
  Misura_Finestra Misura(const QWidget& finestra, const QSize& voluta) const;
  QRect Schermo() const;
  void Assesta();

  QMainWindow& pannello_;
  QPointer<Finestra_Impianto> impianto_;
  QPointer<FrmStatiL> stati_;
  QRect prima_;                     // the panel's frame before it had to give way
  std::map<QWidget*, QRect> dati_;  // the frames that were given
  std::set<QWidget*> sorvegliate_, a_mano_;
  std::set<QWidget*> nuove_;           // shown a moment ago
  std::map<QWidget*, QRect> tornate_;  // of these, where the user had put them
  // The desktop tells late how thick its frames are.
  QTimer assesta_;
  int giri_ = 0, quiete_ = 0;
  QMargins bordi_;  // of the panel, that the last placing reckoned with
};

}  // namespace tavorno
