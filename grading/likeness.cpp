// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/likeness.h"

#include <algorithm>
#include <map>
#include <span>
#include <utility>

#include "awl/reader.h"
#include "grading/sha256.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

/// A word of an instruction line: fixed, or a name that its author chose.
struct Parola {
  std::string Testo;
  bool Nome = false;
};

/// One network: its words, the procedure in front.
using Rete = std::vector<Parola>;

/// The kind of cell that an author picks at will: "M", "VW", "T"; empty for inputs, outputs,
/// special bits and numbers, which mean the same to everybody.
std::string Genere_Scelto(const std::string& operando) {
  const std::size_t inizio = operando.find_first_not_of("*&");
  if (inizio == std::string::npos) return {};
  const std::size_t cifre = operando.find_first_of("0123456789", inizio);
  if (cifre == std::string::npos) return {};
  const std::string area = operando.substr(inizio, cifre - inizio);
  static constexpr std::string_view aree[] = {"M",  "MB", "MW", "MD", "V",  "VB", "VW",
                                              "VD", "S",  "SB", "SW", "SD", "T",  "C"};
  return std::ranges::find(aree, area) == std::end(aree) ? std::string{} : area;
}

std::vector<Rete> Reti_Di(std::span<const Riga_Src> righe, bool scelte) {
  std::vector<Rete> reti;
  Parola procedura{"MAIN", false};
  bool nuova = true;
  for (const Riga_Src& riga : righe) {
    const bool network = riga.Istr.starts_with("NETWORK");
    if (riga.Istr.starts_with("SBR")) procedura = {riga.Op1, true};
    nuova = nuova || network || riga.Istr.starts_with("SBR");
    if (network || riga.Istr.starts_with("SBR") || riga.Istr == "MEND" || riga.Istr == "RET")
      continue;
    if (std::exchange(nuova, false)) reti.push_back({procedura});
    reti.back().push_back({riga.Istr, false});
    for (const std::string* operando : {&riga.Op1, &riga.Op2, &riga.Op3}) {
      if (operando->empty()) continue;
      const bool nome = operando == &riga.Op1 && Nomina_Procedura(riga.Istr);
      reti.back().push_back({*operando, nome || (scelte && !Genere_Scelto(*operando).empty())});
    }
  }
  return reti;
}

/// A name is known by its kind at first, then by the places where it is used, then by the names
/// beside it there, and so on: the same in two programs that differ in names and order alone.
std::string Senza_Nomi(const std::vector<Rete>& reti) {
  constexpr int giri = 6;
  std::map<std::string, std::string> sigle;
  for (const Rete& rete : reti) {
    for (const Parola& parola : rete)
      if (parola.Nome) sigle[parola.Testo] = Genere_Scelto(parola.Testo);
  }
  std::vector<std::string> testi(reti.size());
  for (int giro = 0; giro < giri; ++giro) {
    std::map<std::string, std::vector<std::string>> usi;
    for (std::size_t n = 0; n < reti.size(); ++n) {
      testi[n].clear();
      for (const Parola& parola : reti[n])
        testi[n] += (parola.Nome ? "?" + sigle[parola.Testo] : parola.Testo) + ' ';
      for (std::size_t posto = 0; posto < reti[n].size(); ++posto) {
        if (reti[n][posto].Nome)
          usi[reti[n][posto].Testo].push_back(testi[n] + std::to_string(posto));
      }
    }
    for (auto& [nome, dove] : usi) {
      std::ranges::sort(dove);
      std::string tutti = sigle[nome];
      for (const std::string& uso : dove) tutti += '\n' + uso;
      sigle[nome] = Sha256(tutti).substr(0, 16);
    }
  }
  std::ranges::sort(testi);
  std::string insieme;
  for (const std::string& testo : testi) insieme += testo + '\n';
  return Sha256(insieme);
}

}  // namespace

Firma Firma_Di(std::string_view byte) {
  const Lettura lettura = Leggi_Sorgente(byte);
  if (!lettura.Riuscita()) return {};
  const std::vector<Rete> reti = Reti_Di(lettura.Letta.Righe, false);
  if (reti.empty()) return {};
  return {Sha256(std::string(byte)), Senza_Nomi(reti),
          Senza_Nomi(Reti_Di(lettura.Letta.Righe, true))};
}

std::string Programma_In_Chiaro(std::string_view byte) {
  const Sorgente sorgente = Leggi_Sorgente(byte).Letta;
  std::string testo = sorgente.Main;
  for (const Riga_SBR& procedura : sorgente.Procedure)
    testo += "\n" + procedura.Sigla + " " + procedura.Nome + "\n" + procedura.Testo;
  std::string pulito;  // without the blanks at the ends of lines
  for (const char c : testo) {
    if (c == '\n') pulito.erase(pulito.find_last_not_of(" \r") + 1);
    pulito += c;
  }
  return A_Utf8(pulito);
}

std::vector<Gruppo_Simili> Consegne_Simili(const std::vector<Firma>& firme) {
  std::map<std::string, std::vector<std::size_t>> per_nomi;
  for (std::size_t n = 0; n < firme.size(); ++n)
    if (!firme[n].Nomi.empty()) per_nomi[firme[n].Nomi].push_back(n);
  std::vector<Gruppo_Simili> gruppi;
  for (auto& [firma, uguali] : per_nomi) {
    std::vector<std::size_t>& quali = uguali;
    if (quali.size() < 2) continue;
    const auto tutti = [&](std::string Firma::*parte) {
      return std::ranges::all_of(
          quali, [&](std::size_t n) { return firme[n].*parte == firme[quali.front()].*parte; });
    };
    const Somiglianza come = tutti(&Firma::Byte)    ? Somiglianza::Uguali
                             : tutti(&Firma::Righe) ? Somiglianza::Riordinate
                                                    : Somiglianza::Rinominate;
    gruppi.push_back({come, std::move(quali)});
  }
  std::ranges::sort(gruppi, {}, [](const Gruppo_Simili& gruppo) { return gruppo.Quali.front(); });
  return gruppi;
}

}  // namespace tavorno
