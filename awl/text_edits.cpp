// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/text_edits.h"

#include <algorithm>

#include "awl/line_words.h"
#include "awl/text.h"

namespace tavorno {

namespace {

std::vector<std::string> Da_A(std::string_view testo, int da, int a) {
  const std::vector<std::string_view> linee = Linee(testo);
  return {linee.begin() + da, linee.begin() + a + 1};
}

}  // namespace

Cambio_Linee Commenta(std::string_view testo, int da, int a) {
  std::vector<std::string> linee = Da_A(testo, da, a);
  const auto vuota = [](const std::string& linea) {
    return linea.find_first_not_of(" \t") == std::string::npos;
  };
  if (std::ranges::all_of(linee, vuota)) return {};
  const bool togli = std::ranges::all_of(
      linee, [&](const std::string& linea) { return vuota(linea) || linea.starts_with("//"); });
  for (std::string& linea : linee) {
    if (vuota(linea)) continue;
    linea = togli ? linea.substr(2) : "//" + linea;
  }
  return {da, a - da + 1, std::move(linee), da, a - da + 1};
}

Cambio_Linee Sposta(std::string_view testo, int da, int a, int verso) {
  const int ultima = static_cast<int>(Linee(testo).size()) - 1;
  if (verso < 0 ? da == 0 : a >= ultima) return {};
  const int prima = verso < 0 ? da - 1 : da;
  std::vector<std::string> linee = Da_A(testo, prima, prima + a - da + 1);
  const auto perno = verso < 0 ? linee.begin() + 1 : linee.end() - 1;
  std::rotate(linee.begin(), perno, linee.end());
  const int quante = static_cast<int>(linee.size());
  return {prima, quante, std::move(linee), da + verso, a - da + 1};
}

Cambio_Linee Raddoppia(std::string_view testo, int da, int a) {
  return {a + 1, 0, Da_A(testo, da, a), a + 1, a - da + 1};
}

std::string Con_Cambio(std::string_view testo, const Cambio_Linee& cambio) {
  std::vector<std::string_view> linee = Linee(testo);
  const auto prima = linee.begin() + cambio.Prima;
  linee.erase(prima, prima + cambio.Quante);
  linee.insert(linee.begin() + cambio.Prima, cambio.Nuove.begin(), cambio.Nuove.end());
  std::string nuovo;
  for (std::size_t i = 0; i < linee.size(); ++i) nuovo.append(i > 0 ? CRLF : "").append(linee[i]);
  return nuovo;
}

std::string Con_Ritocchi(std::string_view testo, int testo_nr, std::span<const Ritocco> ritocchi) {
  const std::vector<std::string_view> linee = Linee(testo);
  std::string nuovo(testo);
  // From the end, so that the places further up stay what they are.
  for (auto ritocco = ritocchi.rbegin(); ritocco != ritocchi.rend(); ++ritocco) {
    if (ritocco->Posto.Testo != testo_nr) continue;
    const std::string_view linea = linee.at(static_cast<std::size_t>(ritocco->Posto.Linea));
    const auto inizio = static_cast<std::size_t>(linea.data() - testo.data());
    nuovo.replace(inizio + static_cast<std::size_t>(ritocco->Colonna),
                  static_cast<std::size_t>(ritocco->Lunghezza), ritocco->Nuovo);
  }
  return nuovo;
}

}  // namespace tavorno
