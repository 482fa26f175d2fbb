// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "awl/project.h"
#include "plants/link.h"
#include "random_program.h"
#include "recorder/door.h"
#include "recorder/recorder.h"
#include "recorder/whole_state.h"

namespace tavorno::prova {

/// A session by chance: a program, sometimes a plant, and hands that do whatever a panel lets them,
/// between any two lines.
class Sessione_Casuale {
 public:
  /// `impianto`: the exercise whose plant is opened now and then; -1 for none.
  Sessione_Casuale(unsigned seme, int impianto)
      : generatore_(seme), impianto_(impianto), progetto(plc, {}) {
    const Caso caso = [this](unsigned massimo) { return Numero(massimo); };
    do {
      Programma_Casuale(progetto, caso, static_cast<int>(2 + Numero(Numero(3) ? 15 : 80)));
    } while (!progetto.Compilato);
    Memoria_Casuale(plc, caso);
    registratore = std::make_unique<Registratore>(plc);
    if (Numero(1)) registratore->Ms_Tra_Tappe = 1 + Numero(300);
    if (Numero(9) == 0) registratore->Limite = 20'000;
    // A box that stands open for a while: time goes on behind it.
    avvisi_ = plc.Hook.Mostra.Ascolta([this](const Avviso&) {
      if (plc.Hook.Adesso == Vissuto::Presente) Tempo();
    });
    registratore->Ascolta_Chiusura();
    entrate_ = plc.Hook.Entra.Ascolta([this](const Atto& entrata) { Non_Era_L_Ultima(entrata); });
    cessione_ = plc.Hook.Ascolta_Cedi_Righe([this] { return Cedi(); });
  }

  Orologio orologio;
  Plc plc{orologio};

  /// A moment, and all that was true of it.
  struct Visto {
    Momento Quando;
    Stato_Intero Stato;
    std::string Byte;
    bool Sicuro = false;  ///< nothing more entered before the next line
  };
  std::vector<Visto> Visti;  ///< since the plant last came or went
  bool Fatale_Visto = false;

  /// Plays until nothing runs; ends in a pause, a stop or a fatal end.
  void Gioca(int cessioni) {
    rimaste_ = cessioni;
    try {
      while (rimaste_ > 0) {
        --rimaste_;
        Qualcosa();
        static constexpr Comando_Corsa comandi[] = {
            Comando_Corsa::Run,   Comando_Corsa::Run,      Comando_Corsa::Passo,
            Comando_Corsa::Passo, Comando_Corsa::Cont,     Comando_Corsa::Ciclo,
            Comando_Corsa::Step,  Comando_Corsa::Riprendi, Comando_Corsa::Continua};
        Comando(comandi[Numero(std::size(comandi) - 1)]);
        if (Numero(2) == 0) Guarda();
      }
    } catch (const Fatale&) {
      Fatale_Visto = true;
    }
  }

  std::mt19937& Generatore() { return generatore_; }
  unsigned Numero(unsigned massimo) {
    return static_cast<unsigned>(generatore_() % (std::uint64_t{massimo} + 1));
  }

 private:
  std::mt19937 generatore_;
  int impianto_;
  Stato_Impianto stato_;
  std::unique_ptr<Collegamento> fili_;
  Iscrizione avvisi_, entrate_, cessione_;
  int rimaste_ = 0;
  std::int64_t righe_comando_ = -1;  // where a command last set lines going

 public:
  Progetto progetto;
  std::unique_ptr<Registratore> registratore;
  Collegamento* Impianto() { return fili_.get(); }
  /// The plant is somebody else's from now on, as the window's is whose past is shown.
  std::unique_ptr<Collegamento>& Fili() { return fili_; }
  Stato_Impianto& Stato() { return stato_; }

 private:
  void Tempo() {
    plc.Entra({.Che = Cosa::Presente,
               .Numero = orologio.Adesso() + (Numero(20) ? Numero(3) : Numero(400))});
  }

  void Guarda() {
    if (Visti.size() >= 40 || plc.Righe_Fatte == righe_comando_ ||
        (!Visti.empty() && Visti.back().Quando.Righe == plc.Righe_Fatte))
      return;
    Visti.push_back(
        {registratore->Adesso(), Elenca_Stato(plc, fili_.get()), Byte_Di_Stato(plc, fili_.get())});
  }

  /// A line count stands for the moment right before the next line runs.
  void Non_Era_L_Ultima(const Atto& entrata) {
    if (plc.Hook.Adesso != Vissuto::Presente) return;
    if (Fa_Correre(entrata, plc)) righe_comando_ = plc.Righe_Fatte;
    if (Visti.empty()) return;
    Visto& visto = Visti.back();
    if (visto.Sicuro || visto.Quando.Righe != plc.Righe_Fatte) return;
    if (Fa_Correre(entrata, plc))
      visto.Sicuro = true;
    else
      Visti.pop_back();
  }

  /// What a student may do to the commands that can be given.
  void Comando(Comando_Corsa comando) {
    const Comandi& attivi = plc.Attivi;
    const bool concesso = [&] {
      switch (comando) {
        case Comando_Corsa::Run:
          return attivi.mnuPlcRun;
        case Comando_Corsa::Stop:
          return attivi.mnuPlcStop;
        case Comando_Corsa::Cont:
          return attivi.mnuPlcCont;
        case Comando_Corsa::Ciclo:
          return attivi.mnuPlcCiclo;
        case Comando_Corsa::Step:
          return attivi.mnuPlcStep;
        case Comando_Corsa::Passo:
          return attivi.CmdStep;
        case Comando_Corsa::Riprendi:
          return attivi.cmdRest;
        default:
          return true;
      }
    }();
    if (concesso) plc.Entra(comando);
  }

  void Mano() {
    std::vector<std::string> nomi;
    for (const Figura& figura : fili_->Macchina().Disegno) {
      if (figura.Operabile() || fili_->Macchina().Trova_Regolatore(figura.Nome))
        nomi.push_back(figura.Nome);
    }
    const auto& cursori = fili_->Tabella().Cursori;
    if (!cursori.empty() && Numero(4) == 0) {
      const auto quale = Numero(static_cast<unsigned>(cursori.size() - 1));
      fili_->Entra({.Che = Cosa::Cursore,
                    .Indice = static_cast<int>(quale),
                    .Numero = cursori[quale].Minimo + static_cast<int>(Numero(20))});
    } else if (Numero(15) == 0) {
      fili_->Entra({.Che = Cosa::Guasto,
                    .Numero = Numero(1),
                    .Testo = Numero(1) ? "filo(I0.1)" : "filo(I0.3)"});
    } else if (Numero(15) == 0) {
      fili_->Entra({.Che = Cosa::Usa_Interruttori, .Numero = Numero(1)});
    } else if (!nomi.empty()) {
      static constexpr Cosa mani[] = {Cosa::Premi, Cosa::Rilascia, Cosa::Clic, Cosa::Doppio_Clic,
                                      Cosa::Regola};
      fili_->Entra({.Che = mani[Numero(std::size(mani) - 1)],
                    .Valore = static_cast<double>(Numero(10)),
                    .Testo = nomi[Numero(static_cast<unsigned>(nomi.size() - 1))]});
    }
  }

  void Apri_O_Chiudi() {
    if (fili_) {
      fili_->Chiudi();
      fili_.reset();
    } else {
      fili_ = std::make_unique<Collegamento>(
          plc, stato_, Tabella_Esercizi()[static_cast<std::size_t>(impianto_)]);
      if (Numero(3) == 0) Tempo();
      fili_->Carica();
    }
    Visti.clear();
  }

  std::string Otto_Bit() {
    std::string testo = "00000000";
    for (char& bit : testo) bit = Numero(1) ? '1' : '0';
    return testo;
  }

  void Qualcosa() {
    switch (Numero(30)) {
      case 0:
        plc.Entra(
            {.Che = Cosa::Ingresso, .Indice = static_cast<int>(Numero(1)), .Testo = Otto_Bit()});
        break;
      case 1:
        plc.Entra({.Che = Cosa::Volt_AI,
                   .Indice = static_cast<int>(Numero(2)),
                   .Valore = static_cast<double>(Numero(10))});
        break;
      case 2:
        plc.Entra({.Che = Cosa::Potenziometro,
                   .Indice = static_cast<int>(Numero(1)),
                   .Numero = Numero(255)});
        break;
      case 3: {
        const auto scelta = static_cast<Scelta_Pannello>(Numero(Scelte_Pannello - 1));
        const bool numero = scelta == Scelta_Pannello::txtStop || scelta == Scelta_Pannello::txtNC;
        plc.Entra(Di_Scelta(scelta, Numero(numero ? 8 : 1)));
        break;
      }
      case 4:
        plc.Entra({.Che = Cosa::Periodo, .Numero = Numero(1) ? 10 : 100});
        break;
      case 5:
        Forza(plc,
              Numero(1) ? "VW" + std::to_string(Numero(20)) : "M0." + std::to_string(Numero(7)),
              Numero(1));
        break;
      case 6:
        if (Numero(3) == 0) plc.Entra({.Che = Cosa::Azzera_Elementi, .Numero = Numero(1)});
        break;
      case 7:
        if (plc.PC == 0 && plc.PLC_Acceso) plc.Entra({.Che = Cosa::Salta, .Numero = 1 + Numero(5)});
        break;
      case 8:
        if (impianto_ >= 0 && Numero(fili_ ? 9 : 1) == 0) Apri_O_Chiudi();
        break;
      case 9:
        if (Numero(9) == 0) {
          const Caso caso = [this](unsigned massimo) { return Numero(massimo); };
          const int righe = plc.Prog.Righe();
          if (plc.PLC_Acceso || righe < 3) break;
          do {
            Programma_Casuale(progetto, caso, 20);
          } while (!progetto.Compilato);
          registratore->Programma_Nuovo();
          Visti.clear();
        }
        break;
      case 10:
      case 11:
      case 12:
      case 13:
        if (fili_) Mano();
        break;
      default:
        Tempo();
    }
  }

  int Cedi() {
    if (plc.Hook.Adesso != Vissuto::Presente) return 1'000'000;
    for (unsigned n = Numero(2); n > 0; --n) Qualcosa();
    if (Numero(60) == 0) {
      static constexpr Comando_Corsa comandi[] = {Comando_Corsa::Stop,  Comando_Corsa::Step,
                                                  Comando_Corsa::Cont,  Comando_Corsa::Ciclo,
                                                  Comando_Corsa::Passo, Comando_Corsa::Run};
      Comando(comandi[Numero(std::size(comandi) - 1)]);
    }
    if (Numero(10) == 0) Guarda();
    if (--rimaste_ <= 0 || Numero(80) == 0) plc.Entra(Comando_Corsa::Pausa);
    return static_cast<int>(1 + Numero(Numero(1) ? 95 : 5));
  }
};

}  // namespace tavorno::prova
