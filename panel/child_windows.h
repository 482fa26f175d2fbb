// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <type_traits>
#include <typeindex>
#include <vector>

#include "awl/project.h"
#include "awl/ui/start_mode.h"
#include "panel/documents/browser_window.h"
#include "panel/file_menus.h"
#include "panel/panel_window.h"
#include "panel/text_size.h"
#include "panel/window_order.h"
#include "panel/workbench.h"
#include "plants/link.h"
#include "plc/plc.h"

class QDialog;
class QSettings;
class QWindow;

namespace tavorno {

class Finestra_Impianto;
struct Copia_Progetto;
class FrmMain;
class FrmOsserva;
class FrmScala;
class FrmSetPLC;
class FrmSimAI;
class FrmStatiL;
class FrmTempi;
class Rilettura;
struct Segnale;

/// The windows beside the panel. Each is made when it is first asked for and thrown away when it is
/// closed, so it always starts from its defaults.
class Finestre {
 public:
  Finestre(FrmPLC& pannello, Plc& plc, Progetto& progetto, Guida& guida);
  ~Finestre();
  Finestre(const Finestre&) = delete;
  Finestre& operator=(const Finestre&) = delete;

  void Mostra_Editor(Avvio avvio_file);
  /// The editor with a project that an earlier program has left unsaved.
  void Mostra_Recuperato(const Copia_Progetto& copia);
  /// The editor with the project of a file.
  void Apri_File(const QString& file);
  void Mostra_Impostazioni();
  void Mostra_Analogici();
  void Mostra_Stati();
  /// The timing diagram, of the open plant and the loaded program.
  void Mostra_Tempi();
  /// Cells of the user's choice.
  void Mostra_Osserva();
  void Mostra_Debug();
  void Mostra_Scala();
  void Mostra_Stampe();
  void Mostra_Info();
  /// The host window of an exercise with the status window at its right. One at a time.
  void Apri_Impianto(int indice);
  /// One window to work in, or its ready arrangement again; and back to windows of their own.
  void Mostra_Tavolo();
  void Separa_Finestre();
  Tavolo* Al_Tavolo() const { return tavolo_.get(); }
  /// `indirizzo`: the page with its directory.
  void Mostra_Aiuto(const QString& indirizzo);

  /// The host window of the open plant, or nullptr.
  Finestra_Impianto* Impianto() const;
  /// What the session was up to now, for the timing diagram; empty: nobody knows.
  std::function<std::unique_ptr<Rilettura>(const std::vector<Segnale>& segnali)> Rileggi;
  /// Takes the session back to what the timing diagram shows at a moment; empty: nobody can.
  std::function<void(std::int64_t ms)> Torna_A;
  /// Takes it back to the last change of a cell before that moment.
  std::function<void(std::int64_t ms, const std::string& indirizzo)> Chi_E_Stato;
  /// Tells the open diagram what became of that.
  void Racconta_Al_Diagramma(const QString& messaggio);
  /// Where the active cursor of the open diagram stands.
  std::optional<std::int64_t> Cursore_Del_Diagramma() const;
  /// Another session was opened: what was recorded of the one before goes.
  void Altra_Seduta();
  /// Windows that hold something of the CPU by themselves show it as it is now.
  void Specchia();

  /// Called before a plant comes or goes and before the editor opens: the past must be over.
  std::function<void()> Al_Presente = [] {};
  /// The verdict on the program, for the open plant.
  std::function<void()> Verifica;

  const Ordine_Finestre& Ordine() const { return ordine_; }
  Ordine_Finestre& Ordine() { return ordine_; }

  File_Recenti Recenti;

  /// Recent files, where the windows stand and which colours were chosen, from one session to the
  /// next; `dove` must outlive this. Before the panel is shown.
  void Ricorda_In(QSettings& dove);

  std::int16_t Sim_Contraves = 0;  ///< -1 while the thumbwheel stands in for the second switch row

 private:
  /// Makes a window when it is not there.
  template <class Finestra, class Crea>
  Finestra& Trova(QPointer<Finestra>& finestra, Crea crea) {
    if (!finestra) {
      finestra = crea();
      finestra->setAttribute(Qt::WA_DeleteOnClose);
      ordine_.Sorveglia(*finestra);
      finestra->addActions(pannello_.Comandi_Ovunque());
      if constexpr (!std::is_same_v<Finestra, FrmMain>) {  // which has another command for F8
        if (pannello_.Pausa != nullptr) finestra->addAction(pannello_.Pausa);
      }
    }
    return *finestra;
  }
  template <class Finestra, class... Cosa>
  void Mostra_Altra(const char* pagina, Cosa&... cosa);
  static void Di_Tasti(QWidget& finestra);
  void Prepara(QWidget& finestra, const char* pagina);
  FrmMain& Editor();
  static void Porta_Avanti(QWidget& finestra);
  void Avanti_Il_Pannello();
  void Segui_Testo(QWidget& finestra);
  // view_windows.cpp
  FrmStatiL& Stati(bool col_pannello = true);
  FrmTempi& Tempi();
  FrmOsserva& Osserva();
  // workbench_windows.cpp
  void Nel_Tavolo(Vista_Tavolo chi, QWidget& vista);
  void Lascia_Tavolo(bool impianto_chiude);
  bool Guida_Al_Tavolo();
  void Cambia_Simboli(const Esercizio* impianto);
  void Mostra_Modale(QDialog* dialogo);
  std::vector<QWidget*> Tutte() const;
  void Fuoco_A(const QWindow* finestra);

  FrmPLC& pannello_;
  Plc& plc_;
  Progetto& progetto_;
  Guida& guida_;
  Stato_Impianto impianto_aperto_;
  Ordine_Finestre ordine_;
  Menu_File menu_file_;
  QPointer<Finestra_Impianto> impianto_, chiuso_;  // the latter is on its way out
  QPointer<FrmMain> editor_;
  QPointer<FrmSetPLC> impostazioni_;
  QPointer<FrmSimAI> analogici_;
  QPointer<FrmStatiL> stati_;
  QPointer<FrmTempi> tempi_;
  QPointer<FrmOsserva> osserva_;
  QPointer<FrmScala> scala_;
  std::map<std::type_index, QPointer<QWidget>> altre_;  // that nobody here needs to know
  const Esercizio* esercizio_ = nullptr;                // that is open
  Grandezza_Testo testo_;
  QSettings* ricordi_ = nullptr;
  std::unique_ptr<Tavolo> tavolo_;
  std::vector<QPointer<QWidget>> solo_al_tavolo_;  // views that were not there before
  QPointer<FrmBrowser> aiuto_;
  QPointer<QDialog> modale_;        // print window or about box
  const QWidget* prima_ = nullptr;  // the program's own window that had the focus last
  QObject ascolto_;                 // ends what this object listens to
};

}  // namespace tavorno
