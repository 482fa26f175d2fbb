// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "plants/link.h"
#include "plc/plc.h"
#include "plc/rest.h"
#include "recorder/recorder.h"
#include "trace/address.h"

namespace tavorno {

/// A bound of the script was passed; the message is Italian, UTF-8.
class Limite_Superato : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A call that the script may not make like this; the message is Italian, UTF-8.
class Errore_Script : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a script may still spend. All cases of a script draw on the same.
struct Scorte {
  std::int64_t Ms = 6 * 3'600'000LL;       ///< virtual time
  std::int64_t Righe = 2'000'000'000;      ///< lines of the program
  std::int64_t Righe_Scansione = 100'000;  ///< lines of one scan; not consumed
  bool Ogni_Scansione = false;  ///< run scans that change nothing as well; the results are the same
  std::stop_token Ferma;  ///< somebody does not want to wait for the end: a limit that is passed
};

/// A fresh CPU with a program, and a fresh plant if there is one, in virtual time at one scan per
/// millisecond. Nothing here blocks: a run goes on only while time passes. Everything enters by the
/// door, so that what happened can be played again in a window.
class Collaudo {
 public:
  /// Without a program (it does not compile) the CPU is broken from the start, for `motivo`.
  /// `registra`: what enters is written down.
  Collaudo(const Memoria* programma, const std::string& motivo, const Esercizio* esercizio,
           Scorte& scorte, bool registra = false);
  Collaudo(const Collaudo&) = delete;
  Collaudo& operator=(const Collaudo&) = delete;

  /// In Cont and Ciclo the first scan follows at once.
  void Run();
  void Stop();
  void Scegli_Modo(Modo modo);
  void Passo();            ///< one line, in mode Step
  void Cicli(int quanti);  ///< whole scans, a millisecond each
  /// Time passes; the CPU scans if it is running in mode Cont. False: nothing can have changed, as
  /// far as `Passa_Fino_Al_Cambio` looks.
  bool Passa(std::int64_t ms);
  /// Time passes until something may have changed, at least 1 and at most `ms`, which is positive;
  /// returns how much. Only SM0.6 and what merely grows are not looked at.
  std::int64_t Passa_Fino_Al_Cambio(std::int64_t ms);

  // The user's hand. False for a hidden figure; an unknown one, and one that listens to nothing,
  // throws `Errore_Script`. A press and a release over one figure are a click, as in the window.
  bool Premi(std::string_view nome);
  bool Rilascia(std::string_view nome);  ///< false for what is not pressed: nothing happens
  bool Clic(std::string_view nome);      ///< a push button is held for `durata_clic`
  bool Doppio_Clic(std::string_view nome);
  /// A value that no hand could set throws `Errore_Script`.
  void Regola(std::string_view nome, double valore);
  /// A fault of the plant or of its wires (see `Guasti_Di`). False when it cannot come or go now;
  /// an unknown one throws `Errore_Script`.
  bool Guasta(std::string_view nome, bool attivo);

  /// Throws `Errore_Script` for a value that the cell cannot hold.
  void Scrivi(const Indirizzo& indirizzo, double valore, const char* funzione);
  void Volt(int canale, double volt);  ///< of an analog input

  Plc& Cpu() { return plc_; }
  Impianto& Macchina();  ///< throws `Errore_Script` without a plant
  Figura& Elemento(std::string_view nome);

  std::int64_t Tempo() const { return orologio_.Adesso() + perso_; }
  /// Why the program came to an end that is none; empty while all is well. From then on time passes
  /// and nothing else happens.
  const std::string& Guasto() const { return guasto_; }
  std::int64_t Istante_Guasto() const { return orologio_.Adesso(); }
  const std::string& Listato() const { return listato_; }  ///< lines around the failure
  /// What entered up to now; of a fatal end, up to right before the line. Empty when nothing is
  /// written down.
  std::optional<Seduta_Registrata> Ripresa();
  std::vector<Avviso> Prendi_Avvisi();

  /// Something may have changed: called after each scan and each act of the hand.
  std::function<void()> Campione;

  static constexpr int durata_clic = 100;  // ms
  /// The failure of a program whose lines are spent.
  static constexpr const char* troppe_righe = "Il programma esegue troppe righe.";

 private:
  template <class Azione>
  void Proteggi(Azione azione);
  void Scansione();
  void Un_Millisecondo(bool scansione);
  std::int64_t Salta(std::int64_t ms);
  void Lascia_Fuori(std::int64_t scansioni);
  void Consuma(std::int64_t ms);
  void Passano(std::int64_t ms);
  void Mano(Cosa cosa, std::string_view nome);
  void Rompi(std::string guasto);
  void Campiona() const {
    if (Campione) Campione();
  }
  Figura& Elemento_Operabile(std::string_view nome);

  Scorte& scorte_;
  Orologio orologio_;
  Plc plc_{orologio_};
  Riposo riposo_{plc_};
  bool riposa_ = false;  // the next scan would change nothing, and nothing happened since
  std::unique_ptr<Registratore> scriba_;  // before the wires, which announce themselves
  Stato_Impianto stato_;
  std::unique_ptr<Collegamento> filo_;
  std::set<std::string, std::less<>> premuti_;  // figures under a finger
  std::vector<Avviso> avvisi_;
  Iscrizione ascolto_;
  std::string guasto_, listato_;
  bool fatale_ = false;
  std::int64_t perso_ = 0;  // time that passed over a broken CPU
};

}  // namespace tavorno
