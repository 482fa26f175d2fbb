// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/completion.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plc/codepage.h"

namespace tavorno {

namespace {

constexpr std::string_view senza_operandi = "senza operandi";

/// Operands of the mnemonics whose operands nobody checks.
constexpr std::array<std::pair<std::string_view, std::string_view>, 7> operandi_liberi = {{
    {"NETW", "numero //titolo del segmento"},
    {"JMP", "numero dell'etichetta"},
    {"LBL", "numero dell'etichetta"},
    {"CALL", "nome della procedura"},
    {"SBR", "nome della procedura"},
    {"INT", "nome della routine"},
    {"LSCR", "bit di S"},
}};

std::string_view Operandi_Di(const Istruzione& istruzione) {
  switch (istruzione.Trattamento) {
    case Gruppo::Con_Regola:
      return istruzione.Operandi->Aiuto;
    case Gruppo::Non_Supportata:
      return "istruzione non supportata";
    case Gruppo::Senza_Operandi:
      return senza_operandi;
    case Gruppo::Accettata:
      break;
  }
  const auto* trovati = std::ranges::find(operandi_liberi, std::string_view(istruzione.Nome),
                                          &std::pair<std::string_view, std::string_view>::first);
  return trovati == operandi_liberi.end() ? senza_operandi : trovati->second;
}

/// As a student writes it.
std::string Nome_Scritto(const Istruzione& istruzione) {
  return istruzione.Nome == "NETW" ? "NETWORK" : istruzione.Nome;
}

}  // namespace

Prima_Parola Trova_Prima_Parola(std::string_view linea) {
  const std::size_t inizio = std::min(linea.find_first_not_of(" \t"), linea.size());
  const std::size_t vuoto = std::min(linea.find_first_of(" \t\r\n", inizio), linea.size());
  const std::size_t commento = std::min(linea.find("//", inizio), linea.size());
  return {inizio, std::min(vuoto, commento)};
}

const Istruzione* Istruzione_Di(std::string_view linea) {
  if (linea.starts_with("NETWORK")) return Cerca_Istruzione("NETWORK ");
  const Prima_Parola parola = Trova_Prima_Parola(linea);
  return Cerca_Istruzione(Maiuscole(linea.substr(parola.Inizio, parola.Fine - parola.Inizio)));
}

std::vector<std::string> Completamenti(std::string_view inizio) {
  std::vector<std::string> nomi;
  const std::string cercato = Maiuscole(inizio);
  if (cercato.empty()) return nomi;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Trattamento == Gruppo::Non_Supportata) continue;
    const std::string nome = Nome_Scritto(istruzione);
    if (nome == cercato && Operandi_Di(istruzione) == senza_operandi) return {};
    if (nome.starts_with(cercato)) nomi.push_back(nome);
  }
  std::ranges::sort(nomi);
  return nomi;
}

std::string Suggerimento(const Istruzione& istruzione) {
  return Nome_Scritto(istruzione) + "   " + std::string(Operandi_Di(istruzione)) + "\n" +
         istruzione.Aiuto;
}

}  // namespace tavorno
