// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "awl/diagnostic.h"
#include "awl/references.h"
#include "awl/symbols.h"
#include "awl/text_edits.h"
#include "awl/ui/text_tables.h"

class QMainWindow;
class QVBoxLayout;

namespace tavorno {

class AwlEditor;
class Barra_Ricerca;
class Barra_Riga;
class Elenco_Usi;
struct Cambio_Nome;
struct Progetto;

/// What the commands on the texts work on.
struct Testi_In_Vista {
  Progetto& Dati;
  AwlEditor* Main;
  AwlEditor* Procedura;
  AwlEditor* Listato;
  std::function<void(Posto_Riga)> Mostra;  ///< brings a line to the front, with the caret
  /// Goes to the next mark of the compile or the last; false when there is none.
  std::function<bool(int verso)> Errore;
  /// Runs what changes several texts at once, so that one undo takes all of it back.
  std::function<void(const std::function<void()>&)> Insieme;
  std::function<void(const QString&)> Dici;  ///< why a command does nothing; empty: it does
};

/// The commands of the menus "Cerca", "Vai a", "Righe e nomi" and "Schemi di segmento": which text
/// they work on and what is shown; what happens to the text is in awl/.
class Comandi_Testi : public QObject {
 public:
  /// The menus exist; the bars go to the end of `sotto`.
  Comandi_Testi(QMainWindow& finestra, Azioni_Testi& azioni, Testi_In_Vista vista,
                QVBoxLayout& sotto);

  /// Another page is in front, or a text has changed.
  void Aggiorna();
  /// What the open plant calls its operands.
  void Usa_Simboli(const Simboli& simboli);

 private:
  void Collega_Cerca();
  void Collega_Vai();
  void Collega_Righe();
  void Riempi_Schemi(QMainWindow& finestra);

  AwlEditor& Davanti() const;
  void Lega(QAction* voce, const std::function<void()>& comando);
  int Numero() const;  // of the text in front: 0 the Main, a procedure's row, or `Di_Nessuno`
  bool Scrivibile() const;
  bool Si_Scrive() const;  // the same, and says when not
  Sorgente Testi() const;
  void Cambia_Linee(const std::function<Cambio_Linee(std::string_view, int, int)>& come);
  void Segmento(int (*cerca)(std::string_view, int), const char* nessuno);
  void Alla_Meta();
  void Salta(Posto_Riga meta);
  void Indietro();
  void Vai_A_Riga(int numero);
  void Mostra_Usi(bool con_nome);
  void Riempi_Usi();
  std::string Dai_Nome(const std::string& nuovo);
  void Scrivi_Nome(const Cambio_Nome& cambio);
  void Mostra_Schemi();

  Azioni_Testi& azioni_;
  Testi_In_Vista vista_;
  Barra_Ricerca* ricerca_;
  Barra_Riga* riga_;
  Elenco_Usi* usi_;
  Nominato nominato_;  // what the list of uses shows
  Simboli simboli_;
  std::vector<Posto_Riga> salti_;  // where the jumps began
};

}  // namespace tavorno
