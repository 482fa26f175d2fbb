// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace tavorno {

/// What stands beside a line while it is watched.
struct Stato_Riga {
  enum class Flusso : std::uint8_t { Ignoto, Spento, Acceso };
  QString Valore;
  bool Acceso = false;  ///< the value is that of a bit that is on
  Flusso Corrente = Flusso::Ignoto;

  bool operator==(const Stato_Riga&) const = default;
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

 private:
  void paintEvent(QPaintEvent* evento) override;

  std::function<Stato_Riga(int)> stato_;
  std::vector<Stato_Riga> stati_;  // by line; empty while nothing is watched
  int prossima_ = -1;
};

}  // namespace tavorno
