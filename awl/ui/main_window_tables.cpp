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
      {"New", "Nuovo Progetto", "New"},
      {"Open", "Apri Progetto", "Open"},
      {"Save", "Salva Progetto", "Save"},
      {"Compila", "Compila Progetto", "Compila", false, true},
      {"Carica", "Carica nella CPU", "Carica"},
      {"Stampa", "Stampa", "Stampa", false, true},
      {"Centra", "Centra Finestra", "Centra"},
      {"Info", "Informazioni", "Info"},
      {"Termina", "Termina", "Termina", false, true},
  }};
  return tasti;
}

std::span<const Tasto_Voce> Tasti_Delle_Voci() {
  static constexpr std::array<Tasto_Voce, 8> coppie = {{
      {"tB1(New)", "mnuFileNew"},
      {"tB1(Open)", "mnuFileOpen"},
      {"tB1(Save)", "mnuFileSave"},
      {"tB1(Compila)", "mnuPlcCompile"},
      {"tB1(Carica)", "mnuPlcCarica"},
      {"tB1(Stampa)", "mnuFileStp"},
      {"tB1(Info)", "MnuHLPInfo"},
      {"tB1(Termina)", "mnuFileEnd"},
  }};
  return coppie;
}

// clang-format on

}  // namespace tavorno
