// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <span>

#include "plc/hooks.h"
#include "recorder/rereading.h"
#include "recorder/ui/diagram_canvas.h"
#include "trace/probe.h"

class QAction;
class QLabel;
class QLineEdit;
class QScrollBar;
class QTimer;
class QToolBar;

namespace tavorno {

struct Esercizio;
class FrmTempi;

/// What can be done to a diagram. Those with an icon are buttons too.
struct Comando_Tempi {
  const char* Nome;        ///< objectName of its action
  const char* Icona = "";  ///< file in :/icons/, "" for a key alone
  const char* Tasti;       ///< as QKeySequence reads them; several between blanks
  const char* Cosa;        ///< what it does, in Italian
  void (FrmTempi::*Fai)();
  bool Spunta = false;  ///< its button can stand pressed
  bool Stacco = false;  ///< a gap before its button
};

/// "Diagramma dei tempi": the signals of the CPU over time, live and as long as it is open. Closed,
/// it is gone and costs nothing.
class FrmTempi : public QWidget {
 public:
  /// Begins with the signals of the open plant (null: none is) and of the loaded program.
  explicit FrmTempi(Plc& plc, const Esercizio* impianto = nullptr);

  /// Another plant was opened or closed: its signals, as at first.
  void Riparti(const Esercizio* impianto);
  /// Another session was opened, with its plant: nothing of the one before is shown any more.
  void Altra_Seduta(const Esercizio* impianto);
  /// Another program was loaded: its signals, unless others were chosen meanwhile.
  void Programma_Caricato();

  /// What the session was before these signals were recorded: a replay of it, or nullptr where
  /// there is none. Empty: nobody knows.
  std::function<std::unique_ptr<Rilettura>(const std::vector<Segnale>& segnali)> Rileggi;
  /// Begins to fill in what is not recorded yet; `Aggiorna` goes on with it, a slice at a time.
  void Riempi();
  bool Si_Riempie() const { return rilettura_ != nullptr; }

  std::function<void()> Mostra_Aiuto;
  /// Takes CPU and plant back to what is seen at that moment. Empty: nobody can.
  std::function<void(std::int64_t ms)> Riporta;
  /// Takes them back to the last change of that cell before it, and marks the line that made it.
  std::function<void(std::int64_t ms, const std::string& indirizzo)> Chi_E_Stato;
  /// What became of a question; stands below until something else is done.
  void Racconta(const QString& messaggio);
  /// Asks where to save a file of a type ("svg", "png", "vcd"); empty: nowhere.
  std::function<QString(const QString& tipo)> Chiedi_File;
  std::function<void(const Avviso&)> Avvisa;
  /// Chooses signals among all; false: cancelled.
  std::function<bool(std::vector<Segnale>& scelti)> Scegli_Segnali;

  /// Records the present and shows what changed; its timer does it 20 times a second.
  void Aggiorna();

  Diagramma_Tempi& Dati() { return diagramma_; }
  Registrazione& Registrati() { return registrazione_; }
  Sonda& Orecchio() { return sonda_; }

  static std::span<const Comando_Tempi> Comandi();

  /// What is seen, as a file of that type; false when it cannot be written, and `perche` says why.
  bool Salva(const QString& file, const QString& tipo, QString& perche);

  static constexpr int Periodo = 50;  ///< ms between two pictures

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  friend struct Tabella_Comandi_Tempi;

  QToolBar* Crea_Barra_Tempi();
  QWidget* Crea_Ricerca();
  void Mosso();
  void Riempi_Ancora();
  void Scrivi_Stato();
  void Mostra_Barre();
  void Di(const QString& messaggio);
  void Ridisegna();

  // diagram_commands.cpp
  void Diretta();
  void Ingrandisci();
  void Riduci();
  void Tutto();
  void Inizio();
  void Fine();
  void Prossimo_Fronte();
  void Fronte_Prima();
  void Cursore_A();
  void Cursore_B();
  void Torna();
  void Chi();
  void Senza_Cursori();
  void Cerca_Dopo();
  void Cerca_Prima();
  void Trigger();
  void Scansioni_Si_No();
  void Forma_Altra();
  void Piega();
  void Riga_Su();
  void Riga_Giu();
  void Sposta_Su();
  void Sposta_Giu();
  void Pagina_Su();
  void Pagina_Giu();
  void Sinistra();
  void Destra();
  void Passo_Indietro();
  void Passo_Avanti();
  void Togli();
  void Segnali();
  void Vai_A_Ricerca();
  void Salva_Svg();
  void Salva_Png();
  void Salva_Vcd();
  void Aiuto();
  std::optional<Condizione> Leggi();
  void Cerca(int verso);
  void Salva_Come(const QString& tipo);
  void Mostra_Menu(QPoint dove);

  Plc& plc_;
  const Esercizio* impianto_;
  Registrazione registrazione_;
  Diagramma_Tempi diagramma_{registrazione_};
  Sonda sonda_{plc_, registrazione_};

  Tela_Tempi* tela_;
  QScrollBar *scorri_righe_, *scorri_tempo_;
  QLineEdit* txtCerca_;
  QLabel *etCursori_, *etVista_;
  QTimer* timT_;
  std::vector<QAction*> azioni_;  // in the order of the table
  QString messaggio_;             // of the last search, until something else is done
  std::int64_t visti_ = -1, fine_vista_ = -1;
  std::vector<Segnale> iniziali_;  // as `Riparti` chose them
  std::unique_ptr<Rilettura> rilettura_;
};

}  // namespace tavorno
