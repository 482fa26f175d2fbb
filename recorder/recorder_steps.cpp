// SPDX-License-Identifier: GPL-3.0-or-later
// The recorder's steps through the past, and its search there.
#include <algorithm>

#include "recorder/recorder.h"

namespace tavorno {

namespace {

/// How many lines back the beginning of a scan is looked for at first.
constexpr std::int64_t ricerca_scansione = 4000;

}  // namespace

bool Registratore::Riga_Indietro() {
  return plc_.Righe_Fatte > primo_.Righe && Vai({.Righe = plc_.Righe_Fatte - 1});
}

bool Registratore::Riga_Avanti() {
  return Nel_Passato() && plc_.Righe_Fatte < presente_.Righe &&
         Vai({.Righe = plc_.Righe_Fatte + 1});
}

bool Registratore::Tempo_Indietro(std::int64_t ms) {
  const std::int64_t adesso = plc_.Tempo.Adesso();
  return adesso > primo_.Ms && Vai({.Ms = std::max(adesso - ms, primo_.Ms)});
}

bool Registratore::Tempo_Avanti(std::int64_t ms) {
  const std::int64_t adesso = plc_.Tempo.Adesso();
  return Nel_Passato() && adesso < presente_.Ms && Vai({.Ms = adesso + ms});
}

bool Registratore::Scansione_Indietro() {
  const std::int64_t adesso = plc_.Righe_Fatte;
  for (std::int64_t lontano = ricerca_scansione; adesso > primo_.Righe; lontano *= 16) {
    const std::int64_t da = std::max(adesso - lontano, primo_.Righe);
    std::int64_t trovata = -1;
    Rivedi({.Righe = da}, {.Righe = adesso}, true, [&](const Plc& plc) {
      if (plc.PC == 0 && plc.Righe_Fatte >= da && plc.Righe_Fatte < adesso)
        trovata = plc.Righe_Fatte;
      return true;
    });
    if (trovata >= 0) return Vai({.Righe = trovata});
    if (da == primo_.Righe) break;
  }
  return false;
}

bool Registratore::Scansione_Avanti() {
  if (!Nel_Passato()) return false;
  const std::int64_t adesso = plc_.Righe_Fatte;
  std::int64_t trovata = -1;
  Rivedi({.Righe = adesso}, {}, true, [&](const Plc& plc) {
    if (plc.PC == 0 && plc.Righe_Fatte > adesso) trovata = plc.Righe_Fatte;
    return trovata < 0;
  });
  return trovata >= 0 && Vai({.Righe = trovata});
}

bool Registratore::Ultimo_Cambio(const std::function<double(const Plc&)>& valore, int& riga) {
  const Momento adesso = Adesso();
  struct Trovato {
    std::int64_t Righe = -1;
    int Riga = -1;
  };
  // Lines that this one looks at are watched one by one; before them only what each entry finds is
  // compared, and then the lines between the two entries.
  const auto cerca = [&](std::int64_t da, std::int64_t a, bool ogni_riga, std::int64_t& inizio) {
    Trovato trovato;
    std::optional<double> prima;
    std::int64_t righe_prima = da;
    int pc_prima = -1;
    Rivedi({.Righe = da}, {.Righe = a}, ogni_riga, [&](const Plc& plc) {
      const double ora = valore(plc);
      if (prima && ora != *prima && plc.Righe_Fatte <= a) {
        const bool da_una_riga = plc.Righe_Fatte > righe_prima;
        trovato.Righe = plc.Righe_Fatte;
        trovato.Riga = !da_una_riga ? -1 : plc.PC > 0 ? plc.PC - 1 : pc_prima;
        inizio = righe_prima;
      }
      prima = ora;
      righe_prima = plc.Righe_Fatte;
      pc_prima = plc.PC;
      return true;
    });
    return trovato;
  };
  constexpr std::int64_t da_vicino = 200'000;
  std::int64_t inizio = 0;
  const std::int64_t vicino = std::max(adesso.Righe - da_vicino, primo_.Righe);
  Trovato trovato = cerca(vicino, adesso.Righe, true, inizio);
  std::int64_t fine = vicino;
  for (std::int64_t lontano = 20 * da_vicino; trovato.Righe < 0 && fine > primo_.Righe;
       lontano *= 20) {
    const std::int64_t da = std::max(adesso.Righe - lontano, primo_.Righe);
    trovato = cerca(da, fine, false, inizio);
    if (trovato.Righe >= 0) trovato = cerca(inizio, trovato.Righe, true, inizio);
    fine = da;
  }
  riga = trovato.Riga;
  return trovato.Righe >= 0 && Vai({.Righe = trovato.Righe});
}

bool Registratore::Rivedi(Momento da, Momento a, bool ogni_riga,
                          const std::function<bool(const Plc&)>& guarda) {
  if (!Nel_Passato()) giornale_.Ultima_Riga = plc_.Righe_Fatte;
  Orologio orologio;
  Plc plc(orologio);
  const Tappa& tappa = Tappa_Prima(da);
  const Tappa& inizio =
      tappa.Apertura >= 0 ? tappe_[static_cast<std::size_t>(tappa.Apertura)] : tappa;
  Replica replica(plc, giornale_, inizio.Dove);
  Parti(replica, plc, tappa);
  if (plc.Righe_Fatte < da.Righe && da.Righe != Momento::Mai) replica.Vai(da);
  replica.Ogni_Riga = ogni_riga;
  replica.Guarda = [&] { return guarda(plc); };
  if (!guarda(plc)) return false;
  replica.Vai(a);
  if (!replica.Fermata()) guarda(plc);
  return replica.In_Giro;
}

}  // namespace tavorno
