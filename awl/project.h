// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "awl/dialogs.h"
#include "awl/source_line.h"
#include "plc/memory.h"
#include "plc/table.h"

namespace tavorno {

/// One procedure of the project.
struct Riga_SBR {
  std::uint8_t Num = 0;     ///< its number plus 1: "SBR0" has 1
  std::string Nome;         ///< as written after the block keyword; the caption of its tab
  std::string Sigla;        ///< "SBR" and the number
  std::uint8_t Indice = 0;  ///< the row's own index
  std::string Testo;

  bool operator==(const Riga_SBR&) const = default;
};

/// Why a read was given up, for a caller that shows or prints it. Texts in UTF-8.
struct Dettaglio_Lettura {
  int Riga = 0;        ///< line of the file from 1; 0 when the file as a whole is meant
  std::string Testo;   ///< that line
  std::string Motivo;  ///< in Italian; empty: no read has failed

  std::string Come_Testo() const;
};

/// The source model and the commands of the editor on it, without a window. Texts are bytes of
/// Windows-1252 with lines joined by CR LF; paths, titles and messages are UTF-8. The compiled
/// program and `NRighe` live in the CPU's memory and are shared with it.
struct Progetto {
  Progetto(Memoria& cpu, Dialoghi dialoghi) : CPU(cpu), Chiedi(std::move(dialoghi)) {}

  Memoria& CPU;
  Dialoghi Chiedi;

  // ---- source model ----------------------------------------------------------------------------

  std::string Testo_Main;
  Tabella<Riga_SBR, 64> Tab_SBR{"Tab_SBR"};  ///< rows 1..Num_SBR, sorted by `Num`; row 0 unused
  std::uint8_t Num_SBR = 0;
  /// One row per instruction line of the whole project, rows 0..CPU.NRighe; valid after a read
  /// only.
  Tabella<Riga_Src, 300> Righe_Src{"Righe_Src"};
  std::int16_t Err_Lettura = 0;  ///< -1: a line could not be read
  std::int16_t Annulla = 0;      ///< -1: the last file dialog was cancelled, or the write failed
  std::string File_Progetto;     ///< full path of the file to read
  std::string File_Titolo;       ///< file name with its extension
  Dettaglio_Lettura Dettaglio;   ///< of the last failed read

  Tabella<std::string, 1000> Righe_Prog{"Righe_Prog"};  ///< the file as lines, built before a write
  std::int16_t NRighe_Prog = 0;                         ///< last used entry of `Righe_Prog`
  std::string File_Salva;                               ///< path that the next write goes to

  // ---- state of the editor ---------------------------------------------------------------------

  std::int16_t Formattato = 0;  ///< -1: the text on screen came from a read of a saved project
  std::int16_t Modificato = 0;  ///< -1: edited after the last read
  std::string Testi_Salvati;    ///< `Testi` as they were last read, saved or begun anew
  std::int16_t Compilato = 0;   ///< -1: the last compile ended with no error
  std::uint8_t Carica_CPU = 0;  ///< 1: a compiled program was handed to the panel
  std::string Lista_Comp;       ///< listing of the last compile; each line ends in CR, CR, LF
  int Errori = 0;               ///< error count of the last compile

  std::string txtList;             ///< the Main text on screen
  std::string txtP;                ///< the text of the selected procedure on screen
  std::vector<std::string> TabSP;  ///< captions of the procedures' tabs
  int Scheda = 0;                  ///< selected tab of `TabSP`, from 1; 0 for the empty tab
  int Pagina = 0;                  ///< selected page of `SSTb2`
  std::array<std::string, 3> stB{"File:", "", "Errori: ----"};  ///< first panels of the status bar
  std::array<std::string, 3> etNR{"0", "0", "0"};  ///< instructions, errors, file lines
  bool Comandi_Attivi = false;                     ///< save, compile, load and print can be given
  bool cmdDelP = false;                            ///< a procedure can be removed
  bool CmdNet_1 = false;                           ///< a network can be added to a procedure
  std::array<bool, 2> chkCom{};  ///< comments in the CPU's listing: of lines, of networks

  // ---- reading (reader.cpp, line_splitter.cpp) -------------------------------------------------

  /// Reads `File_Progetto` and rebuilds all of the above. On failure `Err_Lettura` is set, the
  /// project is empty and `Dettaglio` tells why.
  void LeggiTxt();
  /// Classifies one line, fills the next row of `Righe_Src` if it is an instruction, and returns
  /// its canonical text.
  std::string Debug_Line(const std::string& riga);
  /// The same for an instruction line. Throws `Riga_Rifiutata` for one that the table or the
  /// columns cannot take.
  std::string Cerca_Com(const std::string& riga);

  // ---- writing (writer.cpp) --------------------------------------------------------------------

  /// Builds `Righe_Prog`. False when the text has more lines than the table or a line cannot be
  /// written; the reason is shown in a box.
  bool Crea_Progetto();
  /// Writes `Righe_Prog` to `File_Salva` in one step; a failure is shown in a box and leaves the
  /// old file whole.
  bool SalvaFile();
  /// A line of the editor as the file holds it: single blanks, no commas between operands.
  static std::string Norm_Riga(const std::string& riga);
  /// Operands with blanks for their commas; three or four commas lose them all, and more throw
  /// `Riga_Rifiutata`.
  static std::string Norm_Operandi(const std::string& testo);
  std::string Testo_Progetto() const;  ///< the whole project for reading by a person

  // ---- compiling (checker.cpp, compiler.cpp) ---------------------------------------------------

  /// Checks row `indice` of `Prog`, appends its line to `Lista_Comp` and returns the status.
  std::uint8_t Controlla_Riga(int indice);
  /// Compiles and links the rows that the last read left, and reports.
  void Compila();
  void mnuPlcCompile();
  /// Compiles, and hands the program to the panel when it is free of errors.
  void mnuPlcCarica();
  /// Saves and reads back, so that the text is the formatted one; `Annulla` when nothing was saved.
  void Save_Read();

  // ---- commands of the editor (editor_commands.cpp, procedures.cpp) ----------------------------

  void mnuFileNew(bool chiedi_di_salvare);
  /// Asks whether to save the project, and does. False when it was to be saved and is not.
  bool Chiedi_Di_Salvare();
  bool Vuoto() const { return txtList.empty() && Num_SBR == 0; }
  /// The texts that a save keeps, as they stand on the screen, one behind the other.
  std::string Testi() const;
  /// Whether leaving now would lose something, which `Modificato` does not tell: a save leaves it
  /// set, and so does the choice of a procedure.
  bool Da_Salvare() const { return !Vuoto() && Testi() != Testi_Salvati; }
  void mnuFileOpen();
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
  Risposta Avvisa(const Avviso& avviso) const;
  void Lettura_Fallita();
  void Avvisa_Lettura_Fallita();
  int Inserisci_Procedura();
  void Esporta(const std::string& testo);
  std::optional<File_Scelto> Scegli_File(const Richiesta_File& richiesta);
  bool Scrivi_Testo(const std::string& testo);
};

/// The text before the first ".", or all of it.
std::string Testo_Base(const std::string& testo);

}  // namespace tavorno
