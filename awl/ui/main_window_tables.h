// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "awl/ui/text_tables.h"
#include "widgets/command_tables.h"

// The editor window's captions, in the order of the screen.
namespace tavorno {

/// The commands of the editor, by their fixed names.
struct Azioni_Editor {
  QAction *mnuFile, *mnuFileNew, *mnuFileOpen, *mnuFileSave, *mnuFileTxtImp, *mnuFileTxtExp,
      *mnufiltxtT;
  QAction *mnuFileStp, *mnuFileEnd, *mnuPlcCompile, *mnuPlcCarica, *mnuViewTB, *mnuViewSTB,
      *mnuViewKOP;
  std::array<QAction*, 3> mnuViewC;
  QAction *MnuHLPIndex, *MnuHlpList, *MnuHLPInfo;
  Azioni_Testi Testi;

  /// The buttons of the tool bar `tB1`, by their keys.
  struct Tasti {
    QAction *New, *Open, *Save, *Compila, *Carica, *Stampa, *Centra, *Info, *Termina;
  } tB1;
};

/// Rows that fill `azioni` when the menus and the bar are made of them.
std::vector<Voce_Menu> Menu_Editor(Azioni_Editor& azioni);
std::vector<Tasto_Barra> Barra_Editor(Azioni_Editor& azioni);

/// A push button below a text.
struct Pulsante {
  const char* Nome;
  const char* Testo;
  int Larghezza;      ///< in twips
  const char* Tasti;  ///< short cut
  const char* Suggerimento;
};

inline constexpr std::array<const char*, 4> Pagine_Editor = {" Main", " Procedure", " List Error",
                                                             "Tab 3"};
inline constexpr int Pagina_Listato = 2;
inline constexpr int Pagina_Nascosta = 3;

inline constexpr Pulsante Pulsante_Network_Main = {
    .Nome = "CmdNet(0)",
    .Testo = "Inserisci Network",
    .Larghezza = 1515,
    .Tasti = "Ctrl+Return",
    .Suggerimento = "Aggiunge un segmento in fondo al programma principale"};
inline constexpr Pulsante Pulsante_Test = {
    .Nome = "cmdTest",
    .Testo = "Finestra Test",
    .Larghezza = 1155,
    .Tasti = "F9",
    .Suggerimento = "Mostra lo stato delle aree di memoria e delle righe"};
inline constexpr Pulsante Pulsante_Network_SBR = {
    .Nome = "CmdNet(1)",
    .Testo = "Inserisci Network",
    .Larghezza = 1515,
    .Tasti = "Ctrl+Return",
    .Suggerimento = "Aggiunge un segmento in fondo alla procedura"};
inline constexpr Pulsante Pulsante_Nuova_SBR = {
    .Nome = "cmdSub",
    .Testo = "Inserisci SBR",
    .Larghezza = 1155,
    .Tasti = "Ctrl+Shift+Return",
    .Suggerimento = "Aggiunge una procedura al progetto"};
inline constexpr Pulsante Pulsante_Rimuovi_SBR = {
    .Nome = "cmdDelP",
    .Testo = "Rimuovi SBR",
    .Larghezza = 1155,
    .Tasti = "",
    .Suggerimento = "Toglie dal progetto la procedura scelta"};

/// Labels of the listing's page, each with the name of the label that shows its value.
struct Etichetta_Valore {
  const char* Nome;
  const char* Testo;
  const char* Valore;
};
inline constexpr std::array<Etichetta_Valore, 3> Etichette_Listato = {{
    {"etg(18)", "Istruzioni Compilate :", "etNR(0)"},
    {"etg(19)", "Errori Rilevati :", "etNR(1)"},
    {"etg(20)", "Righe Totali lette nel progetto :", "etNR(2)"},
}};

inline constexpr std::array<const char*, 2> Spunte_Commenti = {
    "Inserisci commenti di riga nel listato CPU",
    "Inserisci commenti di Network  nel listato CPU",
};

inline constexpr int Pannelli_Stato = 5;

}  // namespace tavorno
