// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "plants/link.h"

class QLabel;
class QTabWidget;

namespace tavorno {

class Quadro;

/// The one host window of all plants: picture, ticks and buttons, table of inputs and outputs,
/// settings. Everything that differs comes from the table of exercises.
class Finestra_Impianto : public QWidget {
 public:
  /// An open plant that has not spoken yet. It lives as long as the window.
  explicit Finestra_Impianto(std::unique_ptr<Collegamento> collegamento);
  ~Finestra_Impianto() override;

  std::function<void(const char* pagina)> Mostra_Aiuto;  ///< "Info": a page of the exercises
  std::function<void()> Mostra_Tempi;                    ///< the timing diagram
  std::function<void()> Chiusa;                          ///< the plant was closed
  std::function<void()> Tabella_Mossa;                   ///< the table appeared or went

  Quadro& Disegno() { return *quadro_; }
  Collegamento& Fili() { return *collegamento_; }
  /// Nominal height in twips, as the table of exercises has it: with or without the I/O table.
  int Altezza() const { return altezza_; }
  /// The size without its frame that the window is told to have now, in pixels.
  QSize Voluta() const;

  /// Shows whether the CPU runs.
  void Mostra_Corsa(bool acceso);

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  QWidget* Crea_Comandi();
  QWidget* Crea_Schede();
  QWidget* Assegna_IO();
  QWidget* Impostazioni();
  void Apri_Tabella(bool aperta);

  std::unique_ptr<Collegamento> collegamento_;
  Quadro* quadro_;
  QTabWidget* schede_ = nullptr;
  QLabel* etRun_ = nullptr;
  int altezza_;
};

}  // namespace tavorno
