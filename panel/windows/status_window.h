// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QWidget>
#include <cstdint>
#include <string>
#include <vector>

#include "panel/windows/fields.h"
#include "plc/fatal.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QTimer;

namespace tavorno {

struct Plc;

/// A failure of a window that reads the memory: no line of the program is to blame.
class Fatale_In_Finestra : public Fatale {
 public:
  Fatale_In_Finestra(const Fatale& fatale, const char* finestra)
      : Fatale(fatale), finestra_(finestra) {}
  const char* Finestra() const { return finestra_; }  ///< in Italian, UTF-8

 private:
  const char* finestra_;
};

/// Live monitor of the memory. It only reads, in the middle of a scan if need be. A closed window
/// is finished: whoever opens it again makes a new one.
class FrmStatiL : public QWidget {
 public:
  /// `panel` goes right under this window now and when it is first shown; it may be null. Both
  /// outlive the window.
  FrmStatiL(Plc& plc, QWidget* panel);

  /// One tick of `timV`. Throws `Fatale_In_Finestra` when a list stands at a row whose neighbour
  /// does not exist
  /// ("Mem_VB" and "Mem_VW" at 100).
  void Aggiorna();

  /// Moves the window; the panel stays where it is. Lengths in twips.
  void Poni(int left_twip, int top_twip);

  /// Somebody else has placed the panel: this window does not touch it any more.
  void Lascia_Il_Panel() { cornice_nota_ = true; }

  std::int16_t Gia_Posta = 0;    ///< -1 once the window has been shown
  std::int16_t Aggiornando = 0;  ///< -1 during a tick

 protected:
  void showEvent(QShowEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  using Visto_Numero = Visto<std::int32_t>;
  struct Byte {
    Visto<std::string> Testo;
    Visto_Numero Valore;
  };
  struct Colonna {
    QComboBox* Scelta;
    Visto_Numero Valore, Preset, Bit;
  };
  struct Memoria_V {
    QComboBox* Scelta = nullptr;
    std::vector<Visto_Numero> Celle;
  };
  struct Tabella_Colonne;
  struct Tabella_V;

  // status_layout.cpp
  QGroupBox* Riquadro_IO();
  QGroupBox* Riquadro_M();
  QGroupBox* Riquadro_Colonne();
  QGroupBox* Riquadro_Memorie();
  static Byte Riga_Byte(QGridLayout& griglia, int riga, const QString& bit, const QString& valore,
                        const QString& nome_letto);
  static std::vector<Colonna> Metti_Colonne(QGridLayout& griglia, int riga,
                                            const Tabella_Colonne& tabella);
  static Memoria_V Metti_V(QGridLayout& griglia, int riga, const Tabella_V& tabella);

  void Mostra_Tutto();
  void Posa_Panel();
  void Ritocca_Posa();

  Plc& plc_;
  QWidget* panel_;
  QTimer* timV_;
  QComboBox* cmbM1_ = nullptr;
  std::vector<Byte> ingressi_, uscite_, marker_;
  std::vector<Colonna> timer_, contatori_;
  Memoria_V vb_, vw_, vd_;
  std::vector<Visto<float>> ac_;

  bool cornice_nota_ = false;
  QPoint posto_, posto_panel_;  // of this window and of the panel when that was last placed
};

}  // namespace tavorno
