// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>

#include "trace/trace.h"

namespace tavorno {

namespace {

/// The short name of a variable: printable characters from "!" on.
std::string Sigla(std::size_t numero) {
  constexpr std::size_t cifre = '~' - '!' + 1;
  std::string sigla;
  do {
    sigla += static_cast<char>('!' + numero % cifre);
    numero /= cifre;
  } while (numero > 0);
  return sigla;
}

/// What a reader takes as one name: no blanks, and no points, which would be levels.
std::string Nome_Semplice(const std::string& testo) {
  std::string nome;
  for (const char c : testo) {
    const bool buono = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    nome += buono ? c : '_';
  }
  return nome.empty() ? "_" : nome;
}

std::string Numero(double valore) {
  char testo[32];
  const auto fine = std::to_chars(testo, testo + sizeof testo, static_cast<float>(valore));
  return {testo, fine.ptr};
}

std::string Binario(std::size_t numero) {
  std::string bit;
  for (; numero > 0; numero /= 2) bit.insert(bit.begin(), numero % 2 ? '1' : '0');
  return bit.empty() ? "0" : bit;
}

/// A whole number as it is in 32 bits.
std::string Binario_32(double valore) {
  return Binario(static_cast<std::uint32_t>(static_cast<std::int64_t>(valore)));
}

bool Reale(const Segnale& segnale) {
  return segnale.Analogico() || segnale.Dove == Area::AC;
}

struct Livello {
  const char* Nome;
  std::initializer_list<Area> Aree;
};
const Livello livelli[] = {{"ingressi", {Area::I, Area::IB}},
                           {"uscite", {Area::Q, Area::QB}},
                           {"ingressi_analogici", {Area::AIW}},
                           {"uscite_analogiche", {Area::AQW}},
                           {"marker", {Area::M, Area::MB, Area::S, Area::SM, Area::SMB}},
                           {"temporizzatori", {Area::T}},
                           {"contatori", {Area::C}},
                           {"memoria", {Area::VB, Area::VW, Area::VD, Area::AC}}};

}  // namespace

std::string Testo_Vcd(const Traccia& traccia) {
  const auto& segnali = traccia.Segnali();
  const std::string sigla_caso = Sigla(segnali.size());
  std::string testo =
      "$version tavorno-banco $end\n$timescale 1 ms $end\n$scope module tavorno $end\n"
      "$var integer 16 " +
      sigla_caso + " caso $end\n";
  std::map<std::string, int> usati;
  for (const Livello& livello : livelli) {
    std::string variabili;
    for (std::size_t n = 0; n < segnali.size(); ++n) {
      const Segnale& segnale = segnali[n];
      if (std::ranges::find(livello.Aree, segnale.Dove) == livello.Aree.end()) continue;
      std::string nome = Nome_Semplice(segnale.Nome);
      if (segnale.Nome != segnale.Indirizzo) nome += "_" + Nome_Semplice(segnale.Indirizzo);
      if (const int volte = usati[nome]++; volte > 0) nome += "_" + std::to_string(volte + 1);
      variabili += std::string("$var ") +
                   (Reale(segnale)     ? "real 64 "
                    : segnale.Di_Bit() ? "wire 1 "
                                       : "integer 32 ") +
                   Sigla(n) + " " + nome + " $end\n";
    }
    if (!variabili.empty())
      testo +=
          std::string("$scope module ") + livello.Nome + " $end\n" + variabili + "$upscope $end\n";
  }
  testo += "$upscope $end\n";
  for (const Caso_Registrato& caso : traccia.Casi())
    testo += "$comment caso " + std::to_string(&caso - traccia.Casi().data() + 1) + " da " +
             std::to_string(caso.Inizio) + " ms: " + Nome_Semplice(caso.Nome) + " $end\n";
  testo += "$enddefinitions $end\n";

  std::int64_t adesso = -1;
  std::size_t caso = 0;
  const auto Porta_A = [&](std::int64_t ms) {
    if (ms == adesso) return;
    adesso = ms;
    testo += "#" + std::to_string(ms) + "\n";
    while (caso < traccia.Casi().size() && traccia.Casi()[caso].Inizio <= ms)
      testo += "b" + Binario(++caso) + " " + sigla_caso + "\n";
  };
  for (const Cambio_Segnale& cambio : traccia.Cambi()) {
    Porta_A(cambio.Ms);
    const Segnale& segnale = segnali[cambio.Quale];
    if (Reale(segnale))
      testo += "r" + Numero(cambio.Valore) + " " + Sigla(cambio.Quale) + "\n";
    else if (!segnale.Di_Bit())
      testo += "b" + Binario_32(cambio.Valore) + " " + Sigla(cambio.Quale) + "\n";
    else
      testo += (cambio.Valore != 0 ? "1" : "0") + Sigla(cambio.Quale) + "\n";
  }
  Porta_A(traccia.Durata());
  return testo;
}

}  // namespace tavorno
