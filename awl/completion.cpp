// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/completion.h"

#include <algorithm>
#include <charconv>

#include "awl/line_words.h"
#include "awl/operand.h"
#include "awl/references.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

constexpr std::string_view senza_operandi = "senza operandi";

std::string_view Operandi_Scritti(const Istruzione& istruzione) {
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

constexpr std::string_view vuoti = " \t,";

/// The first column behind the instruction, where its comment begins.
std::size_t Fine_Istruzione(std::string_view linea, const Parola& mnemonico) {
  return std::min(linea.find('/', mnemonico.Fine), linea.size());
}

/// What the line checker says of an operand in its place.
bool Accetta(const Istruzione& istruzione, std::size_t posto, const std::string& nome) {
  if (istruzione.Trattamento != Gruppo::Con_Regola) return false;
  const Regola& regola = *istruzione.Operandi;
  if (posto > 1 || (posto == 1 && !regola.Op2)) return false;
  const Operando parti = Split_Operando(nome);
  int numero = 0;
  std::from_chars(parti.Numero.data(), parti.Numero.data() + parti.Numero.size(), numero);
  const Regola_Operando& sua = posto == 0 ? regola.Op1 : *regola.Op2;
  return sua.Controlla(Cerca_Area(parti.Area), numero).Stato == 0;
}

std::string Con_Simbolo(const std::string& nome, const Simbolo_Operando& simbolo) {
  return nome + "  " + simbolo.Intero();
}

}  // namespace

std::vector<std::string> Completamenti(std::string_view inizio) {
  std::vector<std::string> nomi;
  const std::string cercato = Maiuscole(inizio);
  if (cercato.empty()) return nomi;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Trattamento == Gruppo::Non_Supportata) continue;
    const std::string nome(istruzione.Nome_Scritto());
    if (nome == cercato && Operandi_Scritti(istruzione) == senza_operandi) return {};
    if (nome.starts_with(cercato)) nomi.push_back(nome);
  }
  std::ranges::sort(nomi);
  return nomi;
}

std::string Suggerimento(const Istruzione& istruzione) {
  return std::string(istruzione.Nome_Scritto()) + "   " +
         std::string(Operandi_Scritti(istruzione)) + "\n" + istruzione.Aiuto;
}

bool Ferma_La_CPU(const Istruzione& istruzione) {
  return istruzione.Trattamento != Gruppo::Non_Supportata && istruzione.Esegui == Ramo_Assente();
}

std::string_view Proposte::Da_Scrivere(std::string_view testo) {
  return testo.substr(0, testo.find(' '));
}

Proposte Proponi(std::string_view linea, std::size_t colonna, const Simboli& simboli,
                 bool anche_vuota) {
  Proposte proposte;
  const Parola prima = Trova_Prima_Parola(linea);
  if (!prima.Vuota() && colonna == prima.Fine) {
    proposte.Inizio = prima.Inizio;
    for (std::string& nome : Completamenti(prima.Di(linea))) {
      if (Ferma_La_CPU(*Istruzione_Di(nome))) nome += "  (ferma la CPU)";
      proposte.Testi.push_back(std::move(nome));
    }
    return proposte;
  }
  const Istruzione* istruzione = Istruzione_Di(linea);
  if (istruzione == nullptr || colonna <= prima.Fine || colonna > Fine_Istruzione(linea, prima))
    return proposte;
  // Nothing of a word behind the caret is thrown away.
  if (colonna < linea.size() && vuoti.find(linea[colonna]) == vuoti.npos && linea[colonna] != '/')
    return proposte;
  proposte.Inizio = linea.find_last_of(vuoti, colonna - 1) + 1;
  const std::string fin_qui = Maiuscole(linea.substr(proposte.Inizio, colonna - proposte.Inizio));
  if (fin_qui.empty() && !anche_vuota) return proposte;
  const auto davanti = static_cast<std::size_t>(std::ranges::count_if(
      Operandi_Di(linea),
      [&](const Parola& operando) { return operando.Fine <= proposte.Inizio; }));
  if (simboli.contains(fin_qui)) return proposte;
  for (const auto& [nome, simbolo] : simboli) {
    if (nome.starts_with(fin_qui) && Accetta(*istruzione, davanti, nome))
      proposte.Testi.push_back(Con_Simbolo(nome, simbolo));
  }
  return proposte;
}

std::string Simbolo_In(std::string_view linea, std::size_t colonna, const Simboli& simboli) {
  for (const Parola& operando : Operandi_Di(linea)) {
    if (colonna < operando.Inizio || colonna > operando.Fine) continue;
    const auto trovato = simboli.find(Nome_Operando(operando.Di(linea)));
    if (trovato != simboli.end()) return Con_Simbolo(trovato->first, trovato->second);
  }
  return {};
}

std::string Nota_Simboli(std::string_view linea, const Simboli& simboli) {
  std::vector<Simboli::const_iterator> noti;
  for (const Parola& operando : Operandi_Di(linea)) {
    const auto trovato = simboli.find(Nome_Operando(operando.Di(linea)));
    if (trovato != simboli.end() && std::ranges::find(noti, trovato) == noti.end())
      noti.push_back(trovato);
  }
  if (noti.size() == 1) return noti.front()->second.Intero();
  std::string nota;
  for (const auto& noto : noti)
    nota += (nota.empty() ? "" : ", ") + noto->first + " " + noto->second.Nome;
  return nota;
}

}  // namespace tavorno
