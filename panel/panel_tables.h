// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "widgets/command_tables.h"

// Menus and tool bar of the panel, in the order of the screen.
namespace tavorno {

/// The commands of the panel, by their fixed names. A title of the menu bar leads to its entries.
struct Azioni_Pannello {
  QAction *mnuFile, *mnuFileNew, *mnuFileOpen, *mnuFileEdit, *mnuFileEnd;
  QAction *mnuPlc, *mnuPlcRun, *mnuPlcStop, *mnuPlcStep, *mnuPlcCont, *mnuPLCCiclo, *mnuPLCPiu;
  QAction *mnuView, *mnuViewTB, *mnuViewSTB, *mnuViewSet, *mnuViewKOP, *mnuViewIO, *mnuViewStati,
      *mnuViewTempi, *mnuViewVerifica, *mnuViewDisponi, *mnuViewTavolo, *mnuViewFinestre,
      *mnuViewPiu, *mnuViewMeno, *mnuViewNormale, *mnuViewProiettore, *mnuViewDaltonici;
  QAction *mnuProgetti, *MnuHLP, *mnuHlpGen, *mnuHlpSet, *mnuInfAb;
  std::vector<QAction*> mnuPrj;  ///< the exercises, by index

  /// The buttons of the tool bar `tB1`, by their keys.
  struct Tasti {
    QAction *New, *Open, *Save, *Run, *Stop, *Step, *Ciclo, *Cont;
    QAction *SetPLC, *SetIst, *Debug, *Centra, *Info, *Termina;
  } tB1;
};

/// Rows that fill `azioni` when the menus and the bar are made of them. Without the entries of
/// `mnuProgetti`, which follow from the table of exercises, and of the windows that have a row in
/// child_windows.cpp.
std::vector<Voce_Menu> Menu_Pannello(Azioni_Pannello& azioni);
std::vector<Tasto_Barra> Barra_Pannello(Azioni_Pannello::Tasti& tasti);

}  // namespace tavorno
