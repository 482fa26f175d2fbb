// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "awl/project.h"
#include "awl/ui/awl_editor.h"
#include "awl/ui/error_marks.h"
#include "awl/ui/main_window_tables.h"
#include "awl/ui/procedure_documents.h"
#include "awl/ui/project_history.h"
#include "awl/ui/start_mode.h"
#include "awl/ui/text_commands.h"
#include "plc/plc.h"

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QTabWidget;
class QToolBar;

namespace tavorno {

struct Copia_Progetto;

/// The windows that the editor can ask for. An empty one switches its command off.
struct Legami_Editor {
  std::function<void()> Mostra_Pannello;  ///< called once, when the window closes
  std::function<void()> Mostra_Debug, Mostra_Stampe, Mostra_Info, Mostra_Scala;
  std::function<void(const QString& pagina)> Mostra_Aiuto;  ///< a file of the help folder
  std::function<void(const QString& file)> File_Usato;      ///< a project was read or saved
};

/// The editor's window. The project is the master copy of all that it shows; the window gives the
/// commands and mirrors the result.
class FrmMain : public QMainWindow {
 public:
  /// The window's own displays begin anew; the project's texts stay. When the project has no
  /// dialogs yet it gets this window's, for as long as the window lives.
  FrmMain(Progetto& progetto, Plc& plc, Legami_Editor legami);
  ~FrmMain() override;

  /// What the window opens for.
  void Avvia(Avvio Avvio_File);

  /// Takes up a project that an earlier program has left unsaved.
  void Riprendi(const Copia_Progetto& copia);

  /// Opens a project as the command does, without its dialog.
  void Apri_Questo(const QString& file);

  /// Goes to the line that row `numero` of the last compile came from.
  void Vai_A_Riga(int numero);

  /// What the open plant calls its operands; empty without a plant.
  void Usa_Simboli(const Simboli& simboli);

  const Azioni_Editor& Azioni() const { return a_; }

  // For who shows the project in another way.
  /// Where the caret stands, of the text in front; none on the listing.
  std::optional<Posto_Riga> Posto_Cursore() const;
  /// Goes to a line of a text; nothing for a procedure that is not there.
  void Vai_A(Posto_Riga posto);
  /// Makes the text of a block (0 the Main, else a procedure's row) this one, in one step that can
  /// be undone.
  void Scrivi_Testo(int testo, const std::string& byte);
  void Annulla_Testo(int testo, bool ripeti);

 protected:
  void closeEvent(QCloseEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void showEvent(QShowEvent* evento) override;
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

 private:
  // main_window_layout.cpp
  void Crea_Controlli();
  QWidget* Crea_Pagina_Main();
  QWidget* Crea_Pagina_Procedure();
  QWidget* Crea_Pagina_Listato();
  QWidget* Crea_Spunte();
  void Crea_Stato();
  QHBoxLayout* Riga_Pulsanti();
  static QPushButton* Aggiungi_Pulsante(QHBoxLayout& riga, const Pulsante& pulsante);
  void Mostra_Data_Ora();
  int Altezza_Normale() const;
  void Regola_Altezza();

  // main_window.cpp: commands
  void Collega_Comandi();
  void Collega_Testi();
  void Apri(const File_Scelto& file);
  void Chiedi_E_Apri();
  void Nuovo();
  void Compila(bool carica);
  void Inserimento(const std::function<void()>& comando);
  void Rimozione();
  void Insieme(const std::function<void()>& comando);
  void Network(int indice);
  void Scegli_Procedura(int scheda);
  void Dici(const QString& testo);
  void Al_Primo_Errore();
  void Guarda_Il_Disco();

  // main_window_places.cpp: from place to place in the project
  void Cambia_Pagina(int pagina);
  AwlEditor* Testo_Di(int testo);
  bool Errore_Vicino(int verso);

  // main_window_history.cpp: undo beyond the texts
  /// The project with the texts that show it, their histories and marks.
  struct Vista {
    Stato_Progetto Stato;
    Documento_Testo Main;
    Documenti_Procedure Procedure;
    Segni_Errori Segni;
    AwlEditor::Veduta Veduta_Main;
  };
  Vista Come_Sta() const;
  AwlEditor& Davanti() const;
  void Sostituito(Vista prima);
  void Rimetti(Vista vista);
  void Collega_Storia();

  // main_window_mirror.cpp: what the project holds, on the screen
  void Specchia();
  void Specchia_Esiti();
  bool Specchia_Schede();
  void Mostra_Procedura(int riga);
  void Specchia_Voci();
  void Specchia_Residuo(bool scelta);
  void Specchia_Numeri();
  void Suggerisci();
  void Testo_Cambiato(AwlEditor& editor);

  Progetto& p_;
  Plc& plc_;
  Legami_Editor legami_;
  bool dialoghi_propri_ = false;
  Avvio avvio_ = Avvio::Vuoto;
  bool salva_attivo_ = false;
  bool chiusa_ = false;
  std::string file_usato_;
  bool specchia_ = false;  // the controls change because the project did, not the other way round

  Azioni_Editor a_{};
  std::array<QPushButton*, 2> CmdNet{};
  QPushButton* cmdTest = nullptr;
  QPushButton* cmdSub = nullptr;
  QPushButton* cmdDelP = nullptr;
  QLabel* etSenza_SBR = nullptr;  // says that the text below belongs to no procedure
  AwlEditor* txtList = nullptr;
  AwlEditor* txtP = nullptr;
  AwlEditor* txtLst = nullptr;
  QTabWidget* SSTb2 = nullptr;
  QTabBar* TabSP = nullptr;
  QToolBar* tB1 = nullptr;
  QWidget* picF = nullptr;
  QStackedWidget* righe_ = nullptr;  // tabs and buttons of each page
  std::array<QLabel*, 3> etNR{};
  std::array<QLabel*, 5> pannelli_{};
  std::array<QCheckBox*, 2> chkCom{};

  Documenti_Procedure documenti_;
  int mostrata_ = 0;  // key of the text in `txtP`, 0 for one that belongs to no procedure
  Segni_Errori segni_;
  Documento_Testo residuo_;  // what `txtP` shows while no procedure is selected
  Comandi_Testi* comandi_ = nullptr;
  QTimer suggerisci_;         // a moment after the last change
  bool testi_nuovi_ = false;  // the texts on screen have no history yet
  Storia_Comandi<Vista> storia_;
};

}  // namespace tavorno
