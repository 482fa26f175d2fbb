// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "trace/condition.h"
#include "trace/recording.h"
#include "trace/time_scale.h"

namespace tavorno {

/// How a signal is drawn.
enum class Forma : std::uint8_t {
  Bit,
  Curva,   ///< a height for each value
  Valori,  ///< boxes with the value in them
};

/// A signal in the diagram.
struct Voce_Diagramma {
  std::size_t Segnale = 0;  ///< number in the recording
  Forma Come = Forma::Bit;

  bool operator==(const Voce_Diagramma&) const = default;
};

struct Gruppo_Diagramma {
  std::string Nome;  ///< Italian, UTF-8
  std::vector<Voce_Diagramma> Voci;
  bool Chiuso = false;
};

/// A row as it stands on the screen: the title of a group, or one of its signals.
struct Riga_Diagramma {
  std::size_t Gruppo = 0;
  std::optional<std::size_t> Voce;  ///< none: the title
  double Y = 0, Alta = 0;           ///< pixels below the top of the first row

  bool Titolo() const { return !Voce; }
};

/// A timing diagram: which signals of a recording, in which groups, through which window of time,
/// with what marks. Everything that a user does to one is a member here; a window gives the
/// commands and paints what `Disegna` makes of it.
class Diagramma_Tempi {
 public:
  explicit Diagramma_Tempi(Registrazione& registrazione) : registrazione_(registrazione) {}

  const Registrazione& Dati() const { return registrazione_; }
  const std::vector<Gruppo_Diagramma>& Gruppi() const { return gruppi_; }

  // ---- signals
  // -----------------------------------------------------------------------------------

  /// At the end of the group of its area; one that stands already is only selected.
  void Aggiungi(const Segnale& segnale);
  /// All others go, these come, in their order.
  void Mostra_Solo(const std::vector<Segnale>& segnali);
  std::vector<Segnale> Mostrati() const;

  /// The rows from top to bottom; folded groups have only their title.
  std::vector<Riga_Diagramma> Righe() const;
  double Alto() const;  ///< of all rows, pixels
  std::optional<Riga_Diagramma> Riga_A(double y) const;

  const Voce_Diagramma* Voce(const Riga_Diagramma& riga) const;
  const Segnale* Segnale_Di(const Riga_Diagramma& riga) const;
  const Onda* Onda_Di(const Riga_Diagramma& riga) const;

  // ---- the selected row
  // --------------------------------------------------------------------------

  std::optional<std::size_t> Scelta() const { return scelta_; }  ///< index in `Righe`
  std::optional<Riga_Diagramma> Riga_Scelta() const;
  void Scegli(std::optional<std::size_t> riga);
  /// So many rows further down; without a selection the first or last one.
  void Scegli_Accanto(int passi);
  /// The selected signal up or down within its group, or the selected group among the others.
  void Sposta_Scelta(int passi);
  void Togli_Scelta();
  void Cambia_Forma();
  void Piega();  ///< the group of the selected row, which its title then is

  // ---- time
  // --------------------------------------------------------------------------------------

  Vista_Tempi Vista;
  bool In_Diretta = true;  ///< the right border follows the present
  bool Griglia_Scansioni = true;

  /// To be called when something was recorded: moves the window where it follows.
  void Segui();
  void Larga(double punti);
  void Zoom(double fattore, double x);
  /// Around the active cursor where it is seen, else around the middle; live, at the present.
  void Zoom(double fattore);
  void Sposta(double punti);  ///< positive: later
  void Mostra_Tutto();

  // ---- cursors
  // -----------------------------------------------------------------------------------

  enum class Cursore : std::uint8_t { A, B };
  std::optional<std::int64_t> A, B;
  std::optional<std::int64_t> Passato;  ///< the moment that is shown of a CPU in its past
  Cursore Attivo = Cursore::A;

  const std::optional<std::int64_t>& Posto(Cursore quale) const {
    return quale == Cursore::A ? A : B;
  }
  void Metti(Cursore quale, std::int64_t ms);
  /// In the middle of the window, and active.
  void Metti_In_Mezzo(Cursore quale);
  void Togli_Cursori();
  /// The edge of that row that is at most `punti` away from `x`, else the moment at `x`.
  std::int64_t Aggancia(double x, const std::optional<Riga_Diagramma>& riga, double punti) const;
  /// The active cursor to the next (1) or previous (-1) edge of the selected row, of all signals
  /// that are seen where none is selected. False when there is none.
  bool Al_Fronte(int verso);
  /// The active cursor by so many milliseconds.
  void Passo_Cursore(std::int64_t ms);
  /// The signal's value at that cursor; where there is none, at the past moment or at the present.
  /// "" before it was recorded.
  std::string Valore_A(const Riga_Diagramma& riga, Cursore quale) const;

  // ---- search and trigger
  // ------------------------------------------------------------------------

  /// The active cursor to where the condition becomes true, next (1) or before (-1). Signals that
  /// are not recorded yet are added. False when it is nowhere.
  bool Cerca(const Condizione& condizione, int verso);
  std::optional<std::int64_t> Trovato;

  /// From now on the condition is looked for; where it becomes true the window stops.
  void Arma(Condizione condizione);
  void Disarma() { trigger_.reset(); }
  bool Armato() const { return trigger_.has_value(); }
  std::optional<std::int64_t> Scattato;  ///< when it did

 private:
  std::vector<std::size_t> Visti() const;
  void Porta_A(std::int64_t ms);
  std::int64_t Punto_Di_Partenza() const;

  Registrazione& registrazione_;
  std::vector<Gruppo_Diagramma> gruppi_;
  std::optional<std::size_t> scelta_;
  struct Trigger {
    Condizione Cosa;
    std::int64_t Da;
  };
  std::optional<Trigger> trigger_;
};

}  // namespace tavorno
