// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "plants/host/io_history.h"
#include "plants/link.h"

class QCheckBox;
class QGridLayout;
class QTabWidget;

namespace tavorno {

class Pagina_Impostazioni;
class Pannello_Guasti;
class Quadro;
class Riga_Comandi;
class Striscia;
class Tabella_IO;

/// The one host window of all plants: picture, strip of the last minute, ticks and buttons, table
/// of inputs and outputs, settings, faults. Everything that differs comes from the table of
/// exercises. The table stands below the picture, or beside it where that leaves the picture
/// larger.
class Finestra_Impianto : public QWidget {
 public:
  /// An open plant that has not spoken yet. It lives as long as the window.
  explicit Finestra_Impianto(std::unique_ptr<Collegamento> collegamento);
  ~Finestra_Impianto() override;

  std::function<void(const char* pagina)> Mostra_Aiuto;  ///< "Info": a page of the exercises
  std::function<void()> Mostra_Tempi;                    ///< the timing diagram
  std::function<void()> Verifica;                        ///< the verdict on the program
  std::function<void()> Sta_Per_Chiudere;                ///< the plant is about to be closed
  std::function<void()> Chiusa;                          ///< the plant was closed
  std::function<void()> Tabella_Mossa;                   ///< table or strip appeared or went
  /// Addresses such as "I0.3" whose LED and terminal are to light up; none for an empty list.
  std::function<void(const QStringList& morsetti)> Indica_Morsetti;

  Quadro& Disegno() { return *quadro_; }
  Collegamento& Fili() { return *collegamento_; }
  QTabWidget& Schede() { return *schede_; }  ///< table, settings and faults
  QCheckBox& chkIO() const;                  ///< whether the table shows
  /// Makes plant and picture anew, which have not spoken yet, and hands out their wires.
  Collegamento* Riapri();
  /// Shows ticks and sliders as the wires have them, after another time was put back.
  void Specchia();
  /// Nominal height in twips, as the table of exercises has it: with or without the I/O table.
  int Altezza() const { return altezza_; }
  /// The size without its frame that the window is told to have now, in pixels.
  QSize Voluta() const;

  /// Shows now whether the CPU runs, stands or is held by a pause.
  void Mostra_Corsa();

  /// Looks at the terminals now, and shows what changed: it does so by itself ten times a second.
  void Aggiorna();

 protected:
  void closeEvent(QCloseEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  Quadro* Crea_Quadro();
  QString Ostacolo(const Figura& figura) const;
  QTabWidget* Crea_Schede();
  void Apri_Tabella(bool aperta);
  void Apri_Striscia(bool aperta);
  void Mostra(QWidget& vista, bool aperta, int pixel);
  int Crescita(const QWidget& vista, const QSize& prima, int pixel) const;
  int Sotto_Il_Quadro() const;
  bool Meglio_Accanto(const QSize& finestra) const;
  void Disponi(const QSize& finestra);
  bool Schede_Qui() const;
  void Collega_Comandi();
  void Collega_Indicazioni();

  std::unique_ptr<Collegamento> collegamento_;
  Storia_IO storia_;
  Quadro* quadro_;
  Striscia* striscia_;
  Tabella_IO* tabella_;
  Pannello_Guasti* guasti_;
  Riga_Comandi* comandi_;
  Pagina_Impostazioni* impostazioni_ = nullptr;
  QGridLayout* posti_;
  QTabWidget* schede_ = nullptr;
  QTimer sguardo_;
  int altezza_;
  bool accanto_ = false;                     // the table stands beside the picture
  std::map<const QWidget*, int> cresciuta_;  // by how many pixels the window grew for it
};

}  // namespace tavorno
