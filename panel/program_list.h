// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "widgets/screen_reader.h"

namespace tavorno {

/// What stands beside a line while it is watched.
struct Stato_Riga {
  enum class Flusso : std::uint8_t { Ignoto, Spento, Acceso };
  QString Valore;
  bool Acceso = false;  ///< the value is that of a bit that is on
  Flusso Corrente = Flusso::Ignoto;

  bool operator==(const Stato_Riga&) const = default;
};

/// The mark of a stop in the margin of a line.
struct Segno_Fermata {
  enum class Forma : std::uint8_t {
    Nessuna,
    Piena,
    Con_Condizione,
    Vuota,  ///< one that acts in a single mode of the CPU
  };
  Forma Come = Forma::Nessuna;
  QString Cosa;  ///< where it stops, for the tool tip
};

/// The lines of the loaded program. Each is shown behind its number in the CPU, which is no part of
/// its text; the selected line is the one that the CPU is about to execute.
class Lista_Programma : public QListWidget {
 public:
  explicit Lista_Programma(QWidget* parent = nullptr);

  /// Texts in Windows-1252.
  void Riempi(const std::vector<std::string>& righe);
  /// Selects a line and brings it into view; -1 removes the selection.
  void Scegli(int riga);

  /// From now on each line that is seen is asked for its state at each `Aggiorna_Stati`; an empty
  /// function ends that.
  void Mostra_Stati(std::function<Stato_Riga(int riga)> stato);
  /// `prossima`: the line to be executed next, with its thin mark; -1: none.
  void Aggiorna_Stati(int prossima);

  const Stato_Riga& Stato(int riga) const;
  int Prossima() const { return prossima_; }

  // Stops, in the margin. Empty, and a margin without stops, at first.

  std::function<Segno_Fermata(int riga)> Segno_Di;
  void Segni_Cambiati();                                  ///< to be told when `Segno_Di` would
  std::function<void(int riga)> Margine_Premuto;          ///< a click in the margin
  std::function<void(int riga, QPoint dove)> Vuole_Menu;  ///< the menu of a line, at a point of the
                                                          ///< screen; by the Menu key too
  /// Width of the margin, pixels.
  int Margine() const;
  /// The line whose margin the mouse is over, -1 for none.
  int Sotto_Il_Mouse() const { return sotto_il_mouse_; }

 protected:
  bool viewportEvent(QEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  class Voce;

  QString Detto(int riga) const;
  bool Nel_Margine(const QMouseEvent& evento) const;
  void Mouse_Sopra(int riga);

  std::function<Stato_Riga(int)> stato_;
  std::vector<Stato_Riga> stati_;  // by line; empty while nothing is watched
  int prossima_ = -1;
  int sotto_il_mouse_ = -1;
  bool premuto_ = false;  // the mouse, in the margin
  Annunci_Parchi annunci_;
};

}  // namespace tavorno
