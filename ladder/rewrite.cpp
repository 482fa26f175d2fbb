// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/rewrite.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

#include "awl/line_numbers.h"
#include "awl/line_words.h"
#include "awl/text.h"

namespace tavorno {

namespace {

/// How well an old instruction fits a new one; 0: not at all.
int Affinita(const Passo_Scala& vecchio, const Passo_Scala& nuovo) {
  if (nuovo.Riga >= 0) return nuovo.Riga != vecchio.Riga ? 0 : nuovo == vecchio ? 4 : 3;
  return nuovo == vecchio ? 2 : 0;
}

/// Which old instructions go with which new ones: for each new one the index of an old one or -1,
/// rising, with the greatest sum of fits.
std::vector<int> Accoppia(std::span<const Passo_Scala> vecchi, std::span<const Passo_Scala> nuovi) {
  const std::size_t m = vecchi.size();
  const std::size_t n = nuovi.size();
  std::vector<std::vector<int>> somma(m + 1, std::vector<int>(n + 1));
  for (std::size_t i = m; i-- > 0;) {
    for (std::size_t j = n; j-- > 0;) {
      somma[i][j] = std::max(somma[i + 1][j], somma[i][j + 1]);
      const int affinita = Affinita(vecchi[i], nuovi[j]);
      if (affinita > 0) somma[i][j] = std::max(somma[i][j], somma[i + 1][j + 1] + affinita);
    }
  }
  std::vector<int> coppie(n, -1);
  for (std::size_t i = 0, j = 0; i < m && j < n;) {
    const int affinita = Affinita(vecchi[i], nuovi[j]);
    if (affinita > 0 && somma[i][j] == somma[i + 1][j + 1] + affinita)
      coppie[j++] = static_cast<int>(i++);
    else if (somma[i][j] == somma[i + 1][j])
      ++i;
    else
      ++j;
  }
  return coppie;
}

/// The old line with another instruction in front of its comment.
std::string Con_Commento(std::string_view linea, const Passo_Scala& passo) {
  std::string nuova = Linea_Canonica(passo);
  const std::size_t commento = linea.find("//");
  if (commento == std::string_view::npos) return nuova;
  nuova.resize(std::max(nuova.size() + 1, commento), ' ');
  return nuova += linea.substr(commento);
}

/// The line behind which the instructions of an empty network begin: its title, or the last of the
/// comments below it.
int Prima_Del_Vuoto(const std::vector<std::string_view>& linee, int titolo) {
  int ultima = titolo;
  for (int n = titolo + 1; n < std::ssize(linee); ++n) {
    const std::string_view linea = linee[static_cast<std::size_t>(n)];
    if (Diventa_Riga(linea)) break;
    if (linea.starts_with("//")) ultima = n;
  }
  return ultima;
}

}  // namespace

std::string Linea_Canonica(const Passo_Scala& passo) {
  if (passo.Operandi.empty()) return passo.Istr;
  std::string linea = passo.Istr;
  linea.resize(std::max(linea.size() + 1, Colonna_Operandi), ' ');
  for (std::size_t n = 0; n < passo.Operandi.size(); ++n)
    linea += (n == 0 ? "" : ", ") + passo.Operandi[n];
  return linea;
}

std::string Riscrivi_Rete(std::string_view testo, const Rete_Scala& rete,
                          std::span<const Riga_Src> righe, std::span<const Passo_Scala> nuovi) {
  const std::vector<std::string_view> linee = Linee(testo);
  const auto linea_di = [&](int riga) { return righe[static_cast<std::size_t>(riga)].Posto.Linea; };
  // What becomes of a line: nothing in the map, it stays; and what comes in behind it.
  std::map<int, std::string> cambiate;
  std::map<int, std::vector<std::string>> aggiunte;
  std::map<int, bool> tolte;
  for (const Passo_Scala& passo : rete.Passi) tolte[linea_di(passo.Riga)] = true;

  const std::vector<int> coppie = Accoppia(rete.Passi, nuovi);
  int qui = rete.Passi.empty()
                ? rete.Titolo.empty() ? -1 : Prima_Del_Vuoto(linee, linea_di(rete.Riga))
                : linea_di(rete.Passi.front().Riga) - 1;
  for (std::size_t n = 0; n < nuovi.size(); ++n) {
    if (coppie[n] < 0) {
      aggiunte[qui].push_back(Linea_Canonica(nuovi[n]));
      continue;
    }
    const Passo_Scala& vecchio = rete.Passi[static_cast<std::size_t>(coppie[n])];
    qui = linea_di(vecchio.Riga);
    tolte[qui] = false;
    if (vecchio != nuovi[n])
      cambiate[qui] = Con_Commento(linee[static_cast<std::size_t>(qui)], nuovi[n]);
  }

  std::vector<std::string> scritte;
  for (int n = -1; n < std::ssize(linee); ++n) {
    const auto cambiata = cambiate.find(n);
    const auto tolta = tolte.find(n);
    if (cambiata != cambiate.end())
      scritte.push_back(cambiata->second);
    else if (n >= 0 && (tolta == tolte.end() || !tolta->second))
      scritte.emplace_back(linee[static_cast<std::size_t>(n)]);
    std::ranges::move(aggiunte[n], std::back_inserter(scritte));
  }
  std::string nuovo;
  for (std::size_t n = 0; n < scritte.size(); ++n) {
    if (n > 0) nuovo += CRLF;
    nuovo += scritte[n];
  }
  // What is added behind the last line gets an end of its own.
  const bool in_fondo =
      !linee.empty() && linee.back().find_first_not_of(" \t") != std::string_view::npos;
  if (in_fondo && !scritte.empty() && scritte.back() != linee.back()) nuovo += CRLF;
  return nuovo;
}

}  // namespace tavorno
