// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "awl/dialogs.h"
#include "awl/file_io.h"
#include "awl/listing.h"
#include "awl/program.h"
#include "awl/reader.h"
#include "awl/seen_files.h"
#include "plc/memory.h"
#include "plc/subscription.h"
#include "plc/table.h"

namespace tavorno {

/// A project as it stands in the editor: a value, so that what a command takes away can be kept and
/// put back as a whole. Texts are bytes of Windows-1252 with lines joined by CR LF; paths and
/// titles are UTF-8.
struct Stato_Progetto {
  std::string Testo_Main;
  Tabella<Riga_SBR, Procedure_Massime> Tab_SBR{"Tab_SBR"};  ///< rows 1..Num_SBR; row 0 unused
  std::uint8_t Num_SBR = 0;
  std::string File_Progetto;    ///< full path of the file to read
  std::string File_Titolo;      ///< file name with its extension
  std::int16_t Formattato = 0;  ///< -1: the text on screen came from a read of a saved project
  std::int16_t Modificato = 0;  ///< -1: edited after the last read
  std::string Testi_Salvati;    ///< `Testi` as they were last read, saved or begun anew
  int Numero = 0;               ///< of the project among those of this process
  std::string File_Salvato;     ///< full path of the file last read or saved, empty for none

  std::string txtList;             ///< the Main text on screen
  std::string txtP;                ///< the text of the selected procedure on screen
  std::vector<std::string> TabSP;  ///< captions of the procedures' tabs
  int Scheda = 0;                  ///< selected tab of `TabSP`, from 1; 0 for the empty tab
  std::array<std::string, 3> stB{"File:", "", "Errori: ----"};  ///< first panels of the status bar
  bool Comandi_Attivi = false;  ///< save, compile, load and print can be given
  bool cmdDelP = false;         ///< a procedure can be removed
  bool CmdNet_1 = false;        ///< a network can be added to a procedure

  std::vector<Diagnosi> Rilievi;            ///< of the last compile, and of the read before it
  std::vector<Riga_Listato> Righe_Listato;  ///< of the last compile
  std::string Lista_Comp;                   ///< the same as text; each line ends in CR, CR, LF
  int Errori = 0;                           ///< error count of the last compile
  std::array<std::string, 3> etNR{"0", "0", "0"};  ///< instructions, errors, file lines

  bool Vuoto() const { return txtList.empty() && Num_SBR == 0; }
  /// The texts that a save keeps, as they stand on the screen, one behind the other.
  std::string Testi() const;
  /// Whether leaving now would lose something, which `Modificato` does not tell: a save leaves it
  /// set, and so does the choice of a procedure.
  bool Da_Salvare() const { return !Vuoto() && Testi() != Testi_Salvati; }
  /// The texts as a value, without rows: `main` is the Main text that counts.
  Sorgente Come_Sorgente(const std::string& main) const;
};

/// The source model under the names of the machine's own texts, and the order in which the editor
/// asks and shows; what happens to a text is in reader.h, writer.h and program.h. Messages are
/// UTF-8. The compiled program and `NRighe` live in the CPU's memory and are shared with it.
struct Progetto : Stato_Progetto {
  Progetto(Memoria& cpu, Dialoghi dialoghi) : CPU(cpu), Chiedi(std::move(dialoghi)) {}

  Memoria& CPU;
  Dialoghi Chiedi;                ///< of the editor, while it is open
  bool Nessuno_Risponde = false;  ///< boxes are only collected
  std::string Nota_Lettura;       ///< what such a caller should say of the file last read, UTF-8
  Dialoghi Riserva;               ///< for the questions that are put while `Chiedi` is empty
  /// The texts of the project with this number are in a file, or the user does not want them.
  std::function<void(int numero)> Al_Sicuro;

  // ---- source model ----------------------------------------------------------------------------

  /// One row per instruction line of the whole project, rows 0..CPU.NRighe; valid after a read
  /// only.
  Tabella<Riga_Src, Righe_Massime - 1> Righe_Src{"Righe_Src"};
  std::int16_t Err_Lettura = 0;  ///< -1: a line could not be read
  std::int16_t Annulla = 0;      ///< -1: the last file dialog was cancelled, or the write failed
  Dettaglio_Lettura Dettaglio;   ///< of the last failed read

  Tabella<std::string, Righe_File_Massime - 1> Righe_Prog{"Righe_Prog"};  ///< the file as lines
  std::int16_t NRighe_Prog = 0;  ///< last used entry of `Righe_Prog`
  std::string File_Salva;        ///< path that the next write goes to
  File_Visti Visti;              ///< files as they were last read or written here

  /// The CPU's table of lines is another one: after a read, and after each compile.
  Annuncio<> Programma_Cambiato;

  // ---- results
  // -----------------------------------------------------------------------------------

  std::vector<Diagnosi> Rilievi_Lettura;  ///< of the last read
  std::vector<Genere> Passi_Errati;       ///< link passes of the last compile with a fault
  std::int16_t Compilato = 0;             ///< -1: the last compile ended with no error
  std::uint8_t Carica_CPU = 0;            ///< 1: a compiled program was handed to the panel

  int Pagina = 0;                ///< selected page of `SSTb2`
  std::array<bool, 2> chkCom{};  ///< comments in the CPU's listing: of lines, of networks

  // ---- reading and writing (project.cpp) -------------------------------------------------------

  /// Reads `File_Progetto` and rebuilds all of the above, with its boxes on single lines. On
  /// failure `Err_Lettura` is set, the project is empty and `Dettaglio` tells why.
  void LeggiTxt();
  /// The same from what a file holds, without any box, and the boxes that are then due.
  void Leggi_Contenuto(const Contenuto_File& contenuto);
  void Mostra_Rilievi_Lettura() const;
  /// What a file of text holds, in the code page. A file that may be UTF-8 and has no mark is asked
  /// about, or told about and left as it is when `Nessuno_Risponde`.
  Contenuto_File Contenuto(const std::string& percorso);
  /// The same from the bytes of a file.
  void Leggi_Byte(std::string_view byte);
  /// What every caller of a failed read says.
  void Avvisa_Lettura_Fallita() const;

  /// Builds `Righe_Prog`. False when the text has more lines than the table or a line cannot be
  /// written; the reason is shown in a box.
  bool Crea_Progetto();
  /// Writes `Righe_Prog` to `File_Salva` in one step; a failure is shown in a box and leaves the
  /// old file whole.
  bool SalvaFile();

  // ---- compiling (compile_commands.cpp) --------------------------------------------------------

  /// Compiles and links the rows that the last read left, and reports.
  void Compila();
  void mnuPlcCompile();
  /// Compiles, and hands the program to the panel when it is free of errors.
  void mnuPlcCarica();
  /// Saves and reads back, so that the text is the formatted one; `Annulla` when nothing was saved.
  void Save_Read();
  /// The steps of a compile, for a window that shows what has come out between them: whether there
  /// are rows to compile, the compile, its boxes, the hand-over.
  bool Prepara_Compilazione();
  void Compila_Righe_Lette();
  void Riferisci();
  void Consegna();

  // ---- commands of the editor (editor_commands.cpp, procedures.cpp) ----------------------------

  /// What the texts are from now on is another project than before.
  void Altro_Progetto();
  void mnuFileNew(bool chiedi_di_salvare);
  /// Asks whether to save the project, and does. False when it was to be saved and is not.
  bool Chiedi_Di_Salvare();
  void mnuFileOpen();
  /// The file that the user wants to open; a cancelled dialog sets `Annulla`.
  std::optional<File_Scelto> Scegli_Da_Aprire();
  /// Reads a file that was chosen, without any box; `Riferisci_Apertura` shows those that are due.
  void Apri_File(const File_Scelto& scelto, const Contenuto_File& contenuto);
  void Riferisci_Apertura() const;
  void mnuFileSave();
  void mnuFileTxtImp();
  void mnuFileTxtExp();
  void mnufiltxtT();
  void CmdNet(int indice);  ///< 0 adds a network to the Main text, 1 to the selected procedure

  void New_Sub();
  /// A procedure from a given text, behind a short head. Returns its row, which the caller selects;
  /// 0 when there is no room.
  int New_SubTxt(const std::string& testo);
  void Remove_Sub();

  /// The user typed: the text becomes the master copy.
  void Scrivi_Main(std::string testo);
  void Scrivi_Procedura(std::string testo);
  void Scegli_Procedura(int scheda);
  void Gestione_Voci(std::uint8_t stato);  ///< 0 disables the commands on a project, 1 enables

 private:
  int numeri_ = 0;  // given to projects so far

  Risposta Avvisa(const Avviso& avviso) const;
  void Prendi(Lettura lettura);
  void Lettura_Fallita();
  int Inserisci_Procedura();
  void Esporta(const std::string& testo);
  std::optional<File_Scelto> Scegli_File(const Richiesta_File& richiesta);
  std::optional<File_Scelto> Scegli_Dove_Scrivere(Richiesta_File richiesta);
  void Sistemati() const;
  bool Scrivi_Testo(const std::string& testo);
};

/// The name of a file without its folders.
std::string Titolo_Di(const std::string& percorso);

/// The text before the first ".", or all of it.
std::string Testo_Base(const std::string& testo);

}  // namespace tavorno
