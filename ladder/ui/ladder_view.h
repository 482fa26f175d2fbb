// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <optional>
#include <vector>

#include "ladder/edit.h"
#include "ladder/ui/ladder_painter.h"
#include "ladder/ui/ladder_sheet.h"
#include "plc/plc.h"
#include "widgets/own_text.h"

namespace tavorno {

class Campo_Scala;

/// What the view needs of its surroundings. Without the members about texts it only shows.
struct Legami_Scala {
  Nome_Simbolico Nome;                                 ///< of the plant that is open; may be empty
  std::function<bool()> Modificabile;                  ///< there is an editor to write to
  std::function<std::optional<Posto_Riga>()> Cursore;  ///< the editor's, while there is one
  std::function<void(Posto_Riga posto)> Vai_A;         ///< shows a line in the editor
  /// Makes the text of a block this one, in one step that the editor can undo.
  std::function<void(int testo, const std::string& byte)> Scrivi;
  std::function<void(int testo, bool ripeti)> Annulla;  ///< or does again, in a block's text
};

/// The whole project as a ladder, live while the CPU runs it. It keeps no copy of what the CPU
/// holds: `Aggiorna` looks at texts, caret and memory. A window's content, or a dock's.
class Vista_Scala : public QAbstractScrollArea, public Testo_Proprio {
 public:
  /// Both must outlive the view.
  Vista_Scala(const Plc& plc, const Stato_Progetto& progetto, Legami_Scala legami,
              QWidget* sopra = nullptr);

  std::function<void()> Scelta_Cambiata;                ///< the chosen symbol, or what it does
  std::function<void(const QString& testo)> Messaggio;  ///< why something cannot be done

  void Aggiorna();
  /// The operands have other names from now on.
  void Nomi_Cambiati();

  double Ingrandimento() const { return zoom_ / proiezione_; }
  void Ingrandisci(double zoom);  ///< 1: 100 %; kept within a quarter and four times
  void Adatta();                  ///< so large that the sheet is as wide as the view
  void Ingrandisci_Testo(double fattore) override;  ///< what the user chose, so many times

  const Foglio_Scala& Foglio() const { return foglio_; }
  const Stato_Rete& Stato(int rete) const { return stati_[static_cast<std::size_t>(rete)]; }
  int Rete_Scelta() const { return rete_; }
  int Scelto() const { return scelto_; }
  void Scegli(int rete, int simbolo);
  /// What there is to say of the chosen symbol, for a status bar or a screen reader.
  QString Descrizione() const;
  /// The same of any symbol; -1: of its network.
  QString In_Parole_Di(int rete, int simbolo) const;
  /// What the author wrote behind the line of a symbol, without its slashes.
  QString Commento_Di(int rete, int simbolo) const;
  /// Its place in the view, pixels.
  QRect Posto(int rete, int simbolo) const;

  // ---- commands
  // ----------------------------------------------------------------------------------

  void Vai_Al_Testo();
  /// Opens the field, with this in it; what is typed goes beside the chosen symbol.
  void Comincia_Battuta(const QString& testo);
  /// The same, at once where nothing is left to be typed.
  void Metti(const QString& testo);
  void Cambia_Scelto();  ///< the field with the chosen instruction
  void Elimina();
  void Elimina_Piolo();
  void Nuovo_Piolo();
  void Nuova_Rete();
  void Annulla(bool ripeti);
  bool Modificabile() const;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  bool event(QEvent* evento) override;

 private:
  struct Punto_Colpito {
    int Rete = -1, Simbolo = -1;
  };
  const Rete_Foglio& Rete(int rete) const { return foglio_.Reti()[static_cast<std::size_t>(rete)]; }
  void Regola_Barre();
  void Guarda_Cpu();
  void Guarda_Cursore();
  void Ridipingi(int rete);
  void Mostra(int rete, int simbolo);
  QRectF Posto_Foglio(int rete, int simbolo) const;
  Punto_Colpito Colpito(const QPoint& punto) const;
  Segni_Rete Segni(int rete) const;
  void Avvisa(const QString& testo) const;

  // ladder_keys.cpp
  bool Muovi(const QKeyEvent& evento);
  void Muovi_Accanto(int dx, int dy, bool allunga);
  void Cambia_Rete(int passo);

  // ladder_commands.cpp
  bool Posso_Modificare() const;
  void Applica(const Modifica& modifica);
  void Conferma(const QString& testo);
  Diagramma Schema_Scelto() const;
  int Simbolo_Scelto() const;

  const Plc& plc_;
  const Stato_Progetto& progetto_;
  Legami_Scala legami_;
  Foglio_Scala foglio_;
  std::vector<Stato_Rete> stati_;
  double zoom_ = 1;        // pixels to a unit of the sheet
  double proiezione_ = 1;  // the part of it that the user has not chosen
  int rete_ = -1, scelto_ = -1, fino_ = -1;
  int riga_presente_ = -1;
  std::optional<Posto_Riga> cursore_;
  int rete_cursore_ = -1;
  Campo_Scala* campo_;
  bool cambia_ = false;  // the field changes the chosen symbol
};

/// A symbol in words: "contatto chiuso I0.1 SB0, passa".
QString In_Parole(const Rete_Foglio& rete, int simbolo, const Stato_Rete& stato,
                  const Nome_Simbolico& nome);

}  // namespace tavorno
