// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/panel_tables.h"

#include <array>

namespace tavorno {

namespace {

constexpr std::array menu{
    Voce_Menu{0, "mnuFile", "&File"},
    Voce_Menu{1, "mnuFileNew", "&Nuovo Progetto", Spunta::Senza, "Ctrl+N"},
    Voce_Menu{1, "mnuFileOpen", "&Apri Progetto", Spunta::Senza, "Ctrl+O"},
    Voce_Menu{1, "mnuFileEdit", "&Modifica Progetto", Spunta::Senza, "Ctrl+E"},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuFileEnd", "&Termina", Spunta::Senza, "Ctrl+Q"},
    Voce_Menu{0, "mnuPlc", "&PLC"},
    Voce_Menu{1, "mnuPlcRun", "&RUN", Spunta::Senza, "F5"},
    Voce_Menu{1, "mnuPlcStop", "&STOP", Spunta::Senza, "Shift+F5"},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuPlcStep", "&Esegui in Step", Spunta::Vuota},
    Voce_Menu{1, "mnuPlcCont", "Esegui in &Continuo", Spunta::Messa},
    Voce_Menu{1, "mnuPLCCiclo", "Esegui Sin&golo Ciclo", Spunta::Vuota},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuPLCPiu", "Avanza di un &passo", Spunta::Senza, "F10"},
    Voce_Menu{0, "mnuView", "&Visualizza"},
    Voce_Menu{1, "mnuViewTB", "&Tool Bar", Spunta::Messa},
    Voce_Menu{1, "mnuViewSTB", "&Status Bar", Spunta::Messa},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuViewSet", "Finestra &Impostazioni PLC"},
    Voce_Menu{1, "mnuViewKOP", "Finestra &Scalaro"},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuViewIO", "Simulatore Ingressi A&nalogici"},
    Voce_Menu{1, "mnuViewStati", "Finestra Stati &Elementi"},
    Voce_Menu{0, "mnuProgetti", "&Simulatori Processi"},
    Voce_Menu{0, "MnuHLP", "&Help"},
    Voce_Menu{1, "mnuHlpGen", "&Indice", Spunta::Senza, "F1"},
    Voce_Menu{1, "mnuHlpSet", "&Set Istruzioni"},
    Voce_Menu{1, "", ""},
    Voce_Menu{1, "mnuInfAb", "&About"},
};

constexpr std::array barra{
    Tasto_Barra{"New", "Nuovo Progetto", "New", "mnuFileNew"},
    Tasto_Barra{"Open", "Apri Progetto", "Open", "mnuFileOpen"},
    Tasto_Barra{"Save", "Modifica File Corrente", "Edit", "mnuFileEdit"},
    Tasto_Barra{"Run", "Run PLC", "Run", "mnuPlcRun", true, true},
    Tasto_Barra{"Stop", "Stop PLC", "Stop", "mnuPlcStop", true},
    Tasto_Barra{"Step", "Step Mode", "Step", "mnuPlcStep", true, true},
    Tasto_Barra{"Ciclo", "Esecuzione Singolo Ciclo", "Ciclo", "mnuPLCCiclo", true},
    Tasto_Barra{"Cont", "Modo Continuo", "Cont", "mnuPlcCont", true},
    Tasto_Barra{"SetPLC", "Impostazioni PLC", "SetPLC", "mnuViewSet", false, true},
    Tasto_Barra{"SetIst", "Set Istruzioni supportate", "SetIst", "mnuHlpSet"},
    Tasto_Barra{"Debug", "Stoto Elementi", "Debug", "mnuViewStati"},
    Tasto_Barra{"Centra", "Centra Finestra", "Centra", "", false, true},
    Tasto_Barra{"Info", "Informazioni", "Info", "mnuInfAb"},
    Tasto_Barra{"Termina", "Termina", "Termina", "mnuFileEnd"},
};

}  // namespace

std::span<const Voce_Menu> Menu_Pannello() {
  return menu;
}
std::span<const Tasto_Barra> Barra_Pannello() {
  return barra;
}

}  // namespace tavorno
