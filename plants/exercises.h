// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <span>
#include <string>

#include "plants/io_tables.h"
#include "plants/plant.h"
#include "plc/plc.h"

namespace tavorno {

/// A slider of the host window. Where a host has several, moving any of them writes the properties
/// of all.
struct Cursore {
  const char* Nome;     ///< "slid1(0)"
  const char* Cornice;  ///< caption of the frame around it
  int Minimo, Massimo;
  int Passo_Piccolo = 1;
  int Passo_Grande = 1;
  int Inizio = 0;                ///< where it stands when the window opens
  bool Al_Caricamento = false;   ///< written when the window opens too, not only when it moves
  const char* Scrive = nullptr;  ///< property of the plant; nullptr: it has no effect
  int Zero = 0, Pendenza = 0;    ///< property := Zero + Pendenza * value
};

/// One of the exercises: a plant, its host window and its table of inputs and outputs.
/// Texts are UTF-8 and exact.
struct Esercizio {
  int Indice;            ///< its place in the table, as `Impianto_Nr` and as the index of `mnuPrj`
  const char* Voce;      ///< caption of `mnuPrj`
  const char* Host;      ///< name of the host window
  const char* Nome;      ///< name of the plant in it
  const char* Classe;    ///< kind of the plant
  const char* Pagina;    ///< help page
  const char* Titolo;    ///< title of the host window, with its leading blank
  const char* Testo_I;   ///< name of the property that holds the inputs
  const char* Testo_Q;   ///< and of the one that holds the outputs
  int Altezza_Chiusa;    ///< height of the host window in twips, without the table
  int Altezza_Aperta;    ///< and with it
  const char* Voce_IO;   ///< caption of `chkIO`
  const char* Scheda_2;  ///< caption of the second tab
  std::span<const Cursore> Cursori = {};
  bool Analogici = false;          ///< analog values of the plant go to `Volt_AI`
  bool Ascolta_chkSim = true;      ///< a click on `chkSim` has a handler
  const char* Attivare = nullptr;  ///< a property that the host sets to True on load, or nullptr
  Elenco_IO Righe_IO;
  std::unique_ptr<Impianto> (*Crea)(Plc&);  ///< nullptr while there is no such plant
};

/// Caption of the first tab, with the digit zero.
inline constexpr const char* Scheda_1 = " Assegnazioni I/0";

/// The exercises in the order of the menu.
std::span<const Esercizio> Tabella_Esercizi();

/// The table of an exercise; empty without one.
inline Elenco_IO Righe_Di(const Esercizio* esercizio) {
  return esercizio ? esercizio->Righe_IO : Elenco_IO();
}

/// What the table of an exercise calls an address, "SB2"; empty where it has no row for it, or
/// without an exercise.
std::string Simbolo_Impianto(const std::string& indirizzo, const Esercizio* esercizio);

}  // namespace tavorno
