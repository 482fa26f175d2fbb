// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <span>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QWidget;

// Menus and tool bars are tables in their windows; these functions make them.
namespace tavorno {

enum class Spunta : unsigned char { Senza, Vuota, Messa };

/// One row of a window's menus, in the order of the screen. `Livello` 0 is a title of the menu bar,
/// 1 an entry of the title above, 2 an entry of the submenu above. An empty name is a separator.
struct Voce_Menu {
  int Livello;
  const char* Nome;   ///< objectName of the action
  const char* Testo;  ///< caption, "&" before the access key
  Spunta Segno = Spunta::Senza;
  const char* Tasti = "";    ///< short cut as QKeySequence reads it, may be empty
  QAction** Dove = nullptr;  ///< where the window keeps the action, if it does
  const char* Aiuto = "";    ///< tool tip, may be empty: then there is none
};

/// One button of a tool bar.
struct Tasto_Barra {
  const char* Chiave;        ///< objectName is the bar's name with the key in brackets: "tB1(New)"
  const char* Suggerimento;  ///< tool tip
  const char* Icona;         ///< file in :/icons/ without its extension
  const char* Voce = "";     ///< the menu entry that it stands for, may be empty
  bool Spunta = false;       ///< the button can stand pressed
  bool Stacco = false;       ///< a gap before it
  QAction** Dove = nullptr;  ///< where the window keeps the action, if it does
};

void Crea_Menu(QMainWindow& finestra, std::span<const Voce_Menu> voci);

/// One more entry of a menu, in front of another of its entries or, without one, at the end.
QAction& Aggiungi_Voce(QMenu& menu, const Voce_Menu& voce, QAction* davanti_a = nullptr);

/// A fixed bar at the top, with icons of one size.
QToolBar* Crea_Barra(QMainWindow& finestra, const char* nome, std::span<const Tasto_Barra> tasti);

/// Puts a window in the middle of its screen.
void Centra(QWidget& finestra);

}  // namespace tavorno
