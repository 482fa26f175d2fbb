// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "panel/panel_tables.h"

class QCheckBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMainWindow;
class QPushButton;
class QRadioButton;
class QSlider;
class QTabWidget;
class QToolBar;

namespace tavorno {

class Fronte_CPU;
class Lista_Programma;
struct Plc;

/// The controls of the panel, by their fixed names.
struct Controlli_Pannello {
  QToolBar* tB1;
  Fronte_CPU* Fronte;
  Lista_Programma* listSrc;
  QWidget* vistaLista;  ///< the list with its heading

  QTabWidget *SSTb3, *SSTb4;
  QCheckBox *chkList, *chkStop, *chkSol, *chkIP, *chkVs, *chkVal;
  QLabel *etTime, *etPc;
  QGroupBox* frSP;
  QPushButton *CmdStep, *cmdRest;
  QLineEdit *txtStop, *txtNC;

  QFrame* picII;
  std::array<QLabel*, 2> etIPI, etIPQ;
  std::array<QLabel*, 8> etS;

  std::array<QSlider*, 2> SlidP;
  std::array<QLabel*, 2> etPa;
  std::array<QRadioButton*, 2> opzAI, opzAQ;
  std::array<QLabel*, 3> etAI, etAIV, etg1;
  std::array<QLabel*, 2> etAQ, etAQV, etg2;

  std::array<QLabel*, 4> stB;
  QLabel* etDurate;  ///< mean and longest scan, behind the four
};

/// Makes and lays out everything below the menus of the panel. The tool bar's buttons go to
/// `tasti`.
Controlli_Pannello Crea_Controlli(QMainWindow& finestra, Plc& plc, Azioni_Pannello::Tasti& tasti);

}  // namespace tavorno
