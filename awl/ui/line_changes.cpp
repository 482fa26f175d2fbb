// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/line_changes.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string>

namespace tavorno {

namespace {

/// What a save and a read leave alone of a line.
std::string Sostanza(std::string_view linea) {
  std::string sostanza;
  for (const char c : linea) {
    const bool vuoto = c == ' ' || c == '\t' || c == ',' || c == '\r' || c == '\n';
    if (!vuoto) sostanza += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  return sostanza;
}

using Sostanze = std::vector<std::string>;

Sostanze Sostanze_Di(const std::vector<std::string_view>& linee) {
  Sostanze sostanze;
  for (const std::string_view linea : linee) sostanze.push_back(Sostanza(linea));
  return sostanze;
}

/// Which old lines go with which new ones: the longest row of pairs of one substance.
std::vector<std::pair<std::size_t, std::size_t>> Coppie(const Sostanze& vecchie,
                                                        const Sostanze& nuove) {
  const std::size_t m = vecchie.size();
  const std::size_t n = nuove.size();
  std::vector<std::vector<int>> lunga(m + 1, std::vector<int>(n + 1));
  for (std::size_t i = m; i-- > 0;) {
    for (std::size_t j = n; j-- > 0;)
      lunga[i][j] = vecchie[i] == nuove[j] ? lunga[i + 1][j + 1] + 1
                                           : std::max(lunga[i + 1][j], lunga[i][j + 1]);
  }
  std::vector<std::pair<std::size_t, std::size_t>> coppie;
  for (std::size_t i = 0, j = 0; i < m && j < n;) {
    if (vecchie[i] == nuove[j])
      coppie.emplace_back(i++, j++);
    else if (lunga[i + 1][j] >= lunga[i][j + 1])
      ++i;
    else
      ++j;
  }
  return coppie;
}

}  // namespace

std::vector<std::string_view> Linee_Intere(std::string_view testo) {
  std::vector<std::string_view> linee;
  while (!testo.empty()) {
    const std::size_t a_capo = std::min(testo.find_first_of("\r\n"), testo.size());
    const std::size_t fine =
        std::min(a_capo + (testo.substr(a_capo, 2) == "\r\n" ? 2 : 1), testo.size());
    linee.push_back(testo.substr(0, fine));
    testo.remove_prefix(fine);
  }
  return linee;
}

std::vector<Tratto_Cambiato> Tratti_Cambiati(const std::vector<std::string_view>& vecchie,
                                             const std::vector<std::string_view>& nuove) {
  std::vector<Tratto_Cambiato> tratti;
  if (vecchie.empty() || nuove.empty()) {
    const auto intero = [](const std::vector<std::string_view>& linee) {
      return linee.empty() ? std::string_view()
                           : std::string_view(linee.front().data(),
                                              linee.back().data() + linee.back().size());
    };
    tratti.push_back({intero(vecchie), intero(nuove)});
    return tratti;
  }

  std::vector<std::pair<std::size_t, std::size_t>> coppie;
  if (vecchie.size() == nuove.size()) {
    for (std::size_t i = 0; i < vecchie.size(); ++i) coppie.emplace_back(i, i);
  } else {
    coppie = Coppie(Sostanze_Di(vecchie), Sostanze_Di(nuove));
  }
  coppie.emplace_back(vecchie.size(), nuove.size());

  const auto da_a = [](const std::vector<std::string_view>& linee, std::size_t da, std::size_t a) {
    const char* inizio =
        da < linee.size() ? linee[da].data() : linee.back().data() + linee.back().size();
    const char* fine = a > da ? linee[a - 1].data() + linee[a - 1].size() : inizio;
    return std::string_view(inizio, fine);
  };
  std::size_t i = 0;
  std::size_t j = 0;
  for (const auto& [vecchia, nuova] : coppie) {
    for (; i < vecchia && j < nuova; ++i, ++j) tratti.push_back({vecchie[i], nuove[j]});
    if (i < vecchia || j < nuova)
      tratti.push_back({da_a(vecchie, i, vecchia), da_a(nuove, j, nuova)});
    i = vecchia;
    j = nuova;
    if (i == vecchie.size()) break;
    if (vecchie[i] != nuove[j]) tratti.push_back({vecchie[i], nuove[j]});
    ++i;
    ++j;
  }
  return tratti;
}

}  // namespace tavorno
