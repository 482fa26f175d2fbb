// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/main_window_tables.h"

namespace tavorno {

// clang-format off

std::span<const Voce_Menu> Menu_Editor() {
  static constexpr auto senza = Spunta::Senza;
  static constexpr std::array<Voce_Menu, 28> voci = {{
      {0, "mnuFile", "&File"},
      {1, "mnuFileNew", "&Nuovo File .AWL", senza, "Ctrl+N"},
      {1, "mnuFileOpen", "&Apri File .AWL", senza, "Ctrl+O"},
      {1, "mnuFileSave", "&Salva File .AWL", senza, "Ctrl+S"},
      {1, "", ""},
      {1, "mnuFileTxtImp", "&Importa File TXT in finestra corrente", senza, "Ctrl+I"},
      {1, "mnuFileTxtExp", "&Esporta finestra corrente Come File TXT", senza, "Ctrl+E"},
      {1, "mnufiltxtT", "Salva Progetto come File T&XT"},
      {1, "", ""},
      {1, "mnuFileStp", "Sta&mpa", senza, "Ctrl+P"},
      {1, "", ""},
      {1, "mnuFileEnd", "&Termina", senza, "Ctrl+Q"},
      {0, "mnuPlc", "&PLC"},
      {1, "mnuPlcCompile", "Compila &Progetto", senza, "F7"},
      {1, "mnuPlcCarica", "Carica nella &CPU", senza, "F8"},
      {0, "mnuView", "&Visualizza"},
      {1, "mnuViewTB", "&Tool Bar", Spunta::Messa},
      {1, "mnuViewSTB", "&Status Bar", Spunta::Messa},
      {1, "", ""},
      {1, "mnuViewCode", "&Finestra Editor"},
      {2, "mnuViewC(0)", "&Main", senza, "Ctrl+1"},
      {2, "mnuViewC(1)", "&Procedure", senza, "Ctrl+2"},
      {2, "mnuViewC(2)", "&Lista Errori Compilazione", senza, "Ctrl+3"},
      {0, "MnuHLP", "&Help"},
      {1, "MnuHLPIndex", "&Indice", senza, "F1"},
      {1, "MnuHlpList", "&Lista istruzioni Supportate", senza, "Shift+F1"},
      {1, "", ""},
      {1, "MnuHLPInfo", "&About"},
  }};
  return voci;
}

std::span<const Tasto_Barra> Barra_Editor() {
  static constexpr std::array<Tasto_Barra, 9> tasti = {{
      {"New", "Nuovo Progetto", "New", "mnuFileNew"},
      {"Open", "Apri Progetto", "Open", "mnuFileOpen"},
      {"Save", "Salva Progetto", "Save", "mnuFileSave"},
      {"Compila", "Compila Progetto", "Compila", "mnuPlcCompile", false, true},
      {"Carica", "Carica nella CPU", "Carica", "mnuPlcCarica"},
      {"Stampa", "Stampa", "Stampa", "mnuFileStp", false, true},
      {"Centra", "Centra Finestra", "Centra"},
      {"Info", "Informazioni", "Info", "MnuHLPInfo"},
      {"Termina", "Termina", "Termina", "mnuFileEnd", false, true},
  }};
  return tasti;
}

// clang-format on

}  // namespace tavorno
