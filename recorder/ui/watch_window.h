// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "trace/cell_format.h"
#include "trace/signal.h"

class QLabel;
class QLineEdit;
class QTableWidget;
class QTableWidgetItem;
class QTimer;

namespace tavorno {

struct Esercizio;

/// "Finestra di osservazione": cells of one's choice, each in its format. A value that changes
/// lights up for a moment; while the CPU stands a value can be set, and is shown as forced as long
/// as it stands. The window reads only while it is open.
class FrmOsserva : public QWidget {
 public:
  /// Begins with the cells that the program and the open plant (null: none is) name.
  explicit FrmOsserva(Plc& plc, const Esercizio* impianto = nullptr);

  /// Another plant was opened or closed: its symbols.
  void Riparti(const Esercizio* impianto);

  /// Sets a cell by hand; empty when it was done, else why not, in Italian.
  std::function<std::string(const Indirizzo& cella, double valore)> Forza_Cella;

  /// An address or a symbol as a new row; false when it is none, and the window says so.
  bool Aggiungi(const QString& testo);

  /// Shows what the cells hold; its timer does it ten times a second.
  void Aggiorna();

  static constexpr int Periodo = 100;  ///< ms between two looks
  static constexpr int Luce = 8;       ///< looks for which a change is lit

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  enum Colonna { Nome, Formato, Presente, Forzato };
  struct Riga {
    Segnale Chi;
    Formato_Cella Come = Formato_Cella::Con_Segno;
    std::optional<double> Visto, Messo;  // the value as shown; as set by hand
    int Acceso = 0;                      // looks for which it is still lit
  };

  void Metti(const Segnale& segnale);
  void Togli();
  void Sposta(int passi);
  void Inverti_Bit();
  void Forza(int riga, const QString& testo);
  void Scrivi(int riga);
  void Permetti();
  void Misura_Tabella();
  void Di(const QString& messaggio);
  static Indirizzo Cella(const Riga& riga);

  Plc& plc_;
  const Esercizio* impianto_;
  std::vector<Riga> righe_;
  QLineEdit* txtCella_;
  QTableWidget* tabella_;
  QLabel* etAvviso_;
  QTimer* timO_;
  std::optional<bool> permesso_;
  double punti_;                        // of the table's type
  std::array<double, Forzato> larghe_;  // of its columns, as far as they have a width of their own
};

}  // namespace tavorno
