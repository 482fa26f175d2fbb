// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/past_flow.h"

#include <algorithm>

namespace tavorno {

std::vector<Flusso_Riga> Flusso_Al_Momento(Registratore& registratore) {
  const std::int64_t adesso = registratore.Adesso().Righe;
  const std::int64_t primo = registratore.Primo().Righe;
  // Most scans are shorter than the first try; one that loops for long is left in part unknown.
  constexpr std::int64_t vicino = 1000, lontano = 16 * vicino;
  for (std::int64_t quanto = vicino;; quanto = lontano) {
    const std::int64_t da = std::max(adesso - quanto, primo);
    if (da >= adesso) return {};
    Flusso_Scansione flusso;
    registratore.Rivedi({.Righe = da}, {.Righe = adesso}, true, [&](const Plc& plc) {
      if (plc.Righe_Fatte <= adesso) flusso.Guarda(plc);
      return true;
    });
    if (flusso.Intera() || da == primo || quanto == lontano) return flusso.Noti();
  }
}

}  // namespace tavorno
