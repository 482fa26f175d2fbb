// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/completion.h"

#include <algorithm>

#include "plc/codepage.h"

namespace tavorno {

namespace {

constexpr std::string_view senza_operandi = "senza operandi";

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
  return istruzione.Operandi_Liberi.empty() ? senza_operandi : istruzione.Operandi_Liberi;
}

}  // namespace

std::vector<std::string> Completamenti(std::string_view inizio) {
  std::vector<std::string> nomi;
  const std::string cercato = Maiuscole(inizio);
  if (cercato.empty()) return nomi;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Trattamento == Gruppo::Non_Supportata) continue;
    const std::string nome(istruzione.Nome_Scritto());
    if (nome == cercato && Operandi_Di(istruzione) == senza_operandi) return {};
    if (nome.starts_with(cercato)) nomi.push_back(nome);
  }
  std::ranges::sort(nomi);
  return nomi;
}

std::string Suggerimento(const Istruzione& istruzione) {
  return std::string(istruzione.Nome_Scritto()) + "   " + std::string(Operandi_Di(istruzione)) +
         "\n" + istruzione.Aiuto;
}

}  // namespace tavorno
