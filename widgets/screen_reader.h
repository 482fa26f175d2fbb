// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <set>

class QLabel;
class QWidget;

// What screen readers are told of widgets that paint themselves.
namespace tavorno {

/// A widget, or a piece of one, in words.
struct Letto {
  QString Nome;
  QString Aiuto = {};  ///< what the name leaves out
  QAccessible::Role Ruolo = QAccessible::StaticText;
  QAccessible::State Stato = {};
  QRect Posto = {};  ///< of a piece: pixels of its widget
  /// What a reader can do with it, one of the names of QAccessibleActionInterface; empty: nothing.
  QString Azione = {};
};

/// A number that can be read and set.
struct Numero_Letto {
  double Valore = 0, Minimo = 0, Massimo = 0, Passo = 1;
};

/// Base of a widget that says what it is. Piece -1 is the widget itself; pieces 0 and following are
/// its children in the place of its child widgets.
class Per_Lettori {
 public:
  static constexpr int Tutto = -1;

  Per_Lettori();
  virtual ~Per_Lettori() = default;
  Per_Lettori(const Per_Lettori&) = delete;
  Per_Lettori& operator=(const Per_Lettori&) = delete;

  virtual Letto Leggi(int pezzo) const = 0;
  virtual int Pezzi() const { return 0; }
  virtual int Pezzo_A_Fuoco() const { return Tutto; }
  virtual std::optional<Numero_Letto> Leggi_Numero(int /*pezzo*/) const { return {}; }
  virtual void Metti_Numero(int /*pezzo*/, double /*valore*/) {}
  virtual void Esegui(int /*pezzo*/) {}

  /// Expires with this: a widget is still asked what it is while it is being destroyed.
  std::weak_ptr<const bool> Vivo() const { return vivo_; }

 private:
  std::shared_ptr<const bool> vivo_ = std::make_shared<const bool>(true);
};

/// What stands before the text of a label where only the eye sees what it belongs to. Such a label
/// is read when somebody asks: a value that changes all the time is not announced.
void Intitola(QLabel& etichetta, const QString& titolo);

/// Tells that the name of a widget, or of one of its pieces, is another one.
void Annuncia_Nome(QWidget& widget, int pezzo = Per_Lettori::Tutto);
/// The same of its tick and of its number.
void Annuncia_Spunta(QWidget& widget);
void Annuncia_Numero(QWidget& widget, double valore);
/// The keyboard is on another piece.
void Annuncia_Fuoco(QWidget& widget, int pezzo);

/// Tells what changes many times a second at most once in a while, so that a reader can follow.
/// Nothing happens while no reader listens.
class Annunci_Parchi {
 public:
  explicit Annunci_Parchi(QWidget& widget);

  void Cambiato(int pezzo);

  std::function<bool()> Ascoltato = QAccessible::isActive;  ///< a reader is there
  std::function<void(int pezzo)> Annuncia;                  ///< at first `Annuncia_Nome`

  static constexpr int Pausa = 1000;  ///< ms between two rounds

 private:
  QTimer pausa_;
  std::set<int> cambiati_;
};

}  // namespace tavorno
