// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "plc/plc.h"
#include "plc/quiet_cells.h"

namespace tavorno {

/// Tells when scanning a program has become pointless: a scan that leaves the CPU and what hears
/// its outputs as it found them is followed by another such scan, until a timer of the clock ticks
/// or a hand moves. Whoever runs the program in whole scans reports each of them here and may then
/// leave out those that would change nothing.
///
/// Only the CPU has to be looked at: a plant hears of a scan by the output bars alone, and a bar
/// that is given the text that it has says nothing. SM0.6 toggles at each scan, so where a program
/// looks at it, two scans in a row, with nothing in between, are watched before anything is left
/// out: the second proves that the toggling changes nothing else, or that it undoes what the first
/// changed. In that case, a period of two, scans are left out in twos, and only where no output
/// takes part in it.
///
/// In turn: `Riposa`; then a scan and `Scansione_Fatta`, or `Salta`.
class Riposo {
 public:
  /// Who has to notice what changes between two scans: the lines alone, since the owner looks
  /// itself wherever time has passed, so that what no line can tell (`Celle_Quiete`) ends no rest;
  /// or whoever looks on at the top of a scan as well, and then any change ends it.
  enum class Per : std::uint8_t { Le_Righe, Chi_Guarda };

  explicit Riposo(Plc& plc, Per chi = Per::Le_Righe) : plc_(plc), chi_(chi) {}
  Riposo(const Riposo&) = delete;
  Riposo& operator=(const Riposo&) = delete;

  /// Nothing is known any more: at Run, after lines that were not reported, and when a timer ticked
  /// or a hand moved in the middle of a scan.
  void Da_Capo() {
    fase_ = Fase::Ignoto;
    attesa_ = pausa_ = 0;
    letto_ = false;
  }

  /// Right before a scan: true when the scans from here on would change nothing but what `Salta`
  /// brings up to date. It compares the whole state, so between two scans it need be asked only
  /// where a timer ticked or a hand moved since.
  bool Riposa() {
    if (fase_ == Fase::Ignoto) return false;
    if (chi_ == Per::Le_Righe && fase_ == Fase::Riposo && periodo_ == 1)
      quiete_.Porta_Avanti(plc_, foto_[0].Memoria);
    parte_uguale_ = Come_Allora();
    return fase_ == Fase::Riposo && parte_uguale_;
  }

  /// A whole scan has been run, of so many lines; `PC` stands at line 0 again. Returns whether the
  /// next ones would change nothing.
  bool Scansione_Fatta(std::int64_t righe);

  /// While it rests: when the next tick is due that may end it. A tick that would change nothing
  /// needs no look behind it. Where what enters is written down, any tick is waited for, so that
  /// the writing can be played again up to each of them.
  std::int64_t Prossimo() const {
    const bool uno_qualsiasi = periodo_ != 1 || plc_.Hook.Entra.Ascoltato();
    return uno_qualsiasi ? plc_.Tempo.Prossimo() : plc_.Prossimo_Tick();
  }

  /// While it rests: every scan leaves the whole CPU as it is, not only every second one.
  bool Sempre_Uguale() const { return periodo_ == 1; }

  /// How many of the next scans may be left out at once: 0 to `scansioni`, and no more than fit
  /// into `N_Cicli`.
  std::int64_t Saltabili(std::int64_t scansioni) const {
    const std::int64_t quante = std::min(scansioni, INT32_MAX - 1 - std::int64_t{plc_.N_Cicli});
    return quante - quante % periodo_;
  }
  /// Lines of so many scans that `Saltabili` allows.
  std::int64_t Righe(std::int64_t scansioni) const {
    return periodo_ == 1 ? scansioni * foto_[0].Righe_Scansione
                         : scansioni / 2 * (foto_[0].Righe_Scansione + foto_[1].Righe_Scansione);
  }

  /// Leaves out so many scans, as `Saltabili` allows and at least 1, the last of them now: they are
  /// counted, SM0.6 toggles for each, and the last one began at the present instant.
  void Salta(std::int64_t scansioni);
  /// How many were left out in all.
  std::int64_t Saltate() const { return saltate_; }

 private:
  /// What is known of the scans behind: nothing; the state that the last one left; that it had
  /// found the same; that it had found another, with the same outputs; that the period is over and
  /// has come back to where it began.
  enum class Fase : std::uint8_t { Ignoto, Guardato, Fermo, Diverso, Riposo };

  /// The state of the CPU between two scans, without what merely grows.
  struct Foto {
    Celle Memoria;
    std::vector<std::pair<std::int16_t, std::int16_t>>
        Righe;  // edge memory and enable of the lines
    std::array<std::string, 2> Ingressi, Lettura_Ingressi, Uscite;
    std::array<std::uint8_t, 2> Byte_Ingressi{};
    Opzioni Scelte;
    Modo Modo_Run = Modo::Cont;
    std::int32_t Tempo_Ciclo = 0;
    std::int16_t Primo_Ciclo = 0;
    std::int64_t Righe_Scansione = 0;  // of the scan that begins here
  };

  bool Conta_SM06() const { return chi_ == Per::Chi_Guarda || quiete_.Legge_SM06(); }
  void Fotografa(std::size_t lato);
  bool Uscite_Come_Allora() const;
  bool Come_Allora() const;
  bool Righe_Come_Allora() const;
  bool Ripete(std::int64_t righe);
  bool Si_E_Posata();

  Plc& plc_;
  Per chi_;
  Fase fase_ = Fase::Ignoto;
  Celle_Quiete quiete_;
  bool letto_ = false;         // the program, by `quiete_`
  std::array<Foto, 2> foto_;   // the second where the period is two
  std::size_t lato_ = 0;       // the one that the present state is held against
  int periodo_ = 1;            // scans, 1 or 2
  bool parte_uguale_ = false;  // the scan began with that state
  std::int64_t saltate_ = 0;
  int attesa_ = 0;  // scans until the next look
  int pausa_ = 0;   // how many the next failure costs
};

}  // namespace tavorno
