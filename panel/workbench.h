// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "panel/loan.h"

class QDockWidget;
class QToolBar;

namespace tavorno {

class Finestra_Impianto;

/// The views that a workbench takes in.
enum class Vista_Tavolo : std::uint8_t { CPU, Lista, Tempi, Osserva, Stati, Tabella_IO };
inline constexpr std::size_t viste_del_tavolo = 6;

/// Where a view is docked, and how large: parts in a thousand of the window, of its width for what
/// stands at a side and of its height for what stands above others there or at the bottom.
struct Posto_Tavolo {
  Qt::DockWidgetArea Area;
  int Largo, Alto;
  bool Linguetta = false;  ///< behind the one before it in its area, with a tab
};

/// A row of the ready arrangement. Without a plant the panel keeps what has no place.
struct Riga_Tavolo {
  Vista_Tavolo Chi;
  const char* Nome;    ///< objectName of the dock
  const char* Titolo;  ///< Italian, UTF-8
  std::optional<Posto_Tavolo> Con_Impianto, Senza;
};

std::span<const Riga_Tavolo> Tabella_Tavolo();

/// By `Vista_Tavolo`; a view that is not there is null.
using Viste_Tavolo = std::array<QWidget*, viste_del_tavolo>;

/// "Tavolo di lavoro": one window to work in. The plant's window, or the panel where none is open,
/// takes the views in as docks, the very objects that else stand in windows of their own, in the
/// order of the table. When it ends everything is back where it was.
class Tavolo : public QObject {
 public:
  /// With an open plant: a window with its title, which has the panel's menus and tool bars as long
  /// as it lives while the panel is hidden. Without (`impianto` null) the panel itself.
  Tavolo(QMainWindow& pannello, Finestra_Impianto* impianto, const Viste_Tavolo& viste);
  /// Back to the windows, as `Rendi`.
  ~Tavolo() override;

  bool Impianto_Chiude = false;     ///< the plant is being closed: it is not shown again
  std::function<void()> Si_Chiude;  ///< its window was closed: the plant is to be closed

  QMainWindow& Finestra() { return *finestra_; }
  QDockWidget* Riquadro(Vista_Tavolo chi) const;

  /// A view that was opened since takes its place.
  void Accogli(Vista_Tavolo chi, QWidget& vista);
  /// The ready arrangement again, with what was closed or moved.
  void Disponi();

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  using Posto_Di = std::optional<Posto_Tavolo> Riga_Tavolo::*;

  void Prendi_Impianto(Finestra_Impianto& impianto);
  void Rendi_Viste(bool finestre);
  void Prendi_Barre();
  void Rendi_Barre();
  void Misura();

  QMainWindow& pannello_;
  QPointer<Finestra_Impianto> impianto_;
  Posto_Di posto_;
  Posto_Finestra posto_pannello_;
  QMainWindow* finestra_;  // the panel, or ours
  std::optional<Prestito> prestito_impianto_;
  std::vector<Prestito> prestiti_;
  std::array<QPointer<QDockWidget>, viste_del_tavolo> riquadri_;
  QList<QPointer<QToolBar>> barre_;
  QList<QKeySequence> tasti_;
  bool tabella_spuntata_ = false;  // the plant's tick before
  bool a_mano_ = false;            // the user has moved a border
};

}  // namespace tavorno
