// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <functional>
#include <string>

#include "ladder/ui/ladder_view.h"
#include "widgets/command_tables.h"

class QLabel;
class QPrinter;
class QTimer;

namespace tavorno {

/// What the window asks others for. An empty member switches its command off.
struct Servizi_Scala {
  std::function<void()> Mostra_Aiuto;
  /// Lets the user choose a device; false when the user gave up.
  std::function<bool(QPrinter& stampante, QWidget* sopra)> Scegli_Stampante;
  /// The file to write ("pdf", "svg", "png"), empty when the user gave up. By default a dialog.
  std::function<QString(const QString& tipo)> Chiedi_File;
  std::function<void(const QString& testo)> Avvisa;  ///< a failure; by default a message box
};

/// The commands of the ladder's window, by their fixed names.
struct Azioni_Scala {
  QAction *mnuScStampa, *mnuScPdf, *mnuScSvg, *mnuScPng, *mnuScChiudi;
  QAction *mnuScAnnulla, *mnuScRipeti, *mnuScCambia, *mnuScElimina, *mnuScSimboli, *mnuScPiolo,
      *mnuScViaPiolo, *mnuScRete;
  QAction *mnuScPiu, *mnuScMeno, *mnuScReale, *mnuScAdatta, *mnuScTesto, *mnuScGuida;
};

/// The ladder of the project in a window of its own: the view with its commands.
class FrmScala : public QMainWindow {
 public:
  FrmScala(const Plc& plc, const Stato_Progetto& progetto, Legami_Scala legami,
           Servizi_Scala servizi);

  Vista_Scala& Vista() { return *vista_; }
  /// One tick of `timScala`.
  void Aggiorna();

 private:
  void Crea_Comandi();
  void Crea_Barre();
  void Salva(const QString& tipo);
  void Stampa();
  void Racconta();
  QString Titolo_Stampa() const;

  const Stato_Progetto& progetto_;
  Nome_Simbolico nome_;
  Servizi_Scala servizi_;
  Vista_Scala* vista_;
  Azioni_Scala a_{};
  QLabel* etScelto_;
  QLabel* etZoom_;
  QTimer* timScala_;
  QString messaggio_;
  std::string titolo_ = "?";
};

/// One command that puts a symbol into the diagram.
struct Simbolo_Barra {
  const char* Nome;   ///< objectName of its action
  const char* Testo;  ///< in Italian, UTF-8
  const char* Istr;   ///< what is typed for it
  bool Stacco = false;
};
/// The commands in the order of the tool bar.
std::span<const Simbolo_Barra> Simboli_Barra();
/// The symbol of an instruction as an icon.
QIcon Icona_Simbolo(const std::string& istr);

}  // namespace tavorno
