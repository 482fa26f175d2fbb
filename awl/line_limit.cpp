// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/line_limit.h"

#include <algorithm>
#include <array>
#include <string>

#include "awl/line_words.h"
#include "awl/text.h"
#include "awl/writer.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

/// The piece of `linea` from `inizio` to `fine` of which the last `troppi` characters are too many.
Trovato Coda(int linea, std::size_t inizio, std::size_t fine, std::size_t troppi) {
  const std::size_t quanti = std::min(troppi, fine - inizio);
  return {linea, static_cast<int>(fine - quanti), static_cast<int>(quanti)};
}

std::size_t Oltre(std::size_t lunghezza, std::size_t colonna) {
  return lunghezza > colonna ? lunghezza - colonna : 0;
}

/// What the canonical form of an instruction has too much, of its mnemonic and of the whole.
struct Di_Troppo {
  std::size_t Mnemonico = 0, Tutto = 0;
};

Di_Troppo Misura(const std::string& istruzione) {
  constexpr std::array<std::size_t, 4> separatori = {0, 0, 2, 4};  // ", " between operands
  const auto spazi = static_cast<std::size_t>(std::ranges::count(istruzione, ' '));
  if (spazi >= separatori.size()) return {};  // refused for another reason
  if (spazi == 0) return {0, Oltre(istruzione.size(), Colonna_CPU)};
  const std::size_t mnemonico = istruzione.find(' ');
  const std::size_t operandi = istruzione.size() - mnemonico - spazi;
  return {Oltre(mnemonico, Colonna_Operandi),
          Oltre(Colonna_Operandi + operandi + separatori.at(spazi), Colonna_CPU)};
}

Trovato Eccedenza(std::string linea, int numero) {
  std::ranges::replace(linea, '\t', ' ');
  if (linea.empty() || linea.starts_with(' ') || linea.starts_with("//") ||
      linea.starts_with("TITLE="))
    return {};
  if (const Istruzione* intera = Cerca_Testa(linea)) {
    const std::size_t barra = linea.find('/');
    if (intera->Nel_Programma != Compito::Segmento || barra == std::string::npos) return {};
    const std::size_t fine = Trim(linea.substr(0, barra)).size();
    return Coda(numero, 0, fine, Oltre(fine, Colonna_Commento_Network));
  }
  std::string salvata;
  try {
    salvata = Norm_Riga(linea);
  } catch (const Riga_Rifiutata&) {
    return {};
  }
  const Di_Troppo troppi = Misura(Trim(salvata.substr(0, salvata.find("//"))));
  const std::size_t fine = Trim(linea.substr(0, linea.find("//"))).size();
  const std::size_t parola = std::min(linea.find(' '), fine);
  if (troppi.Mnemonico > 0) return Coda(numero, 0, parola, troppi.Mnemonico);
  return Coda(numero, 0, fine, troppi.Tutto);
}

}  // namespace

std::vector<Trovato> Eccedenze(std::string_view testo) {
  std::vector<Trovato> trovate;
  int numero = 0;
  for (const std::string_view linea : Linee(testo)) {
    const Trovato trovata = Eccedenza(std::string(linea), numero++);
    if (trovata.Lunghezza > 0) trovate.push_back(trovata);
  }
  return trovate;
}

}  // namespace tavorno
