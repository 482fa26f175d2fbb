// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/wire_faults.h"

namespace tavorno {

namespace {

constexpr std::string_view interrotto = "filo(", incollato = "incollato(";
constexpr std::size_t bit = 8, digitali = 16, analogici = 3;

std::uint32_t Maschera(const Nome_Filo& nome) {
  return 1U << (nome.Analogico ? digitali + nome.Posto : nome.Posto);
}

/// The digit at a place of the text, if it is less than `quanti`.
std::optional<std::size_t> Cifra(std::string_view testo, std::size_t dove, std::size_t quanti) {
  const auto cifra = static_cast<std::size_t>(static_cast<unsigned char>(testo[dove])) - '0';
  if (cifra >= quanti) return {};
  return cifra;
}

}  // namespace

std::optional<Nome_Filo> Leggi_Nome_Filo(std::string_view nome) {
  Nome_Filo filo;
  if (nome.starts_with(incollato)) {
    filo.Cosa = Guasto_Filo::Incollato;
    nome.remove_prefix(incollato.size());
  } else if (nome.starts_with(interrotto)) {
    nome.remove_prefix(interrotto.size());
  } else {
    return {};
  }
  if (!nome.ends_with(')')) return {};
  nome.remove_suffix(1);
  if (nome.size() == 4 && nome[0] == 'I' && nome[2] == '.') {
    const auto byte = Cifra(nome, 1, 2);
    const auto posto = Cifra(nome, 3, bit);
    if (!byte || !posto) return {};
    filo.Posto = *byte * bit + *posto;
    return filo;
  }
  if (nome.size() != 4 || !nome.starts_with("AIW") || filo.Cosa == Guasto_Filo::Incollato)
    return {};
  const auto parola = Cifra(nome, 3, 2 * analogici);
  if (!parola || *parola % 2 != 0) return {};
  filo.Analogico = true;
  filo.Posto = *parola / 2;
  return filo;
}

std::string Nome_Guasto(Guasto_Filo cosa, std::string_view indirizzo) {
  return std::string(cosa == Guasto_Filo::Incollato ? incollato : interrotto)
      .append(indirizzo)
      .append(")");
}

void Guasti_Fili::Metti(const Nome_Filo& nome, bool attivo) {
  std::uint32_t& quali = nome.Cosa == Guasto_Filo::Incollato ? incollati_ : interrotti_;
  quali = attivo ? quali | Maschera(nome) : quali & ~Maschera(nome);
}

bool Guasti_Fili::Attivo(const Nome_Filo& nome) const {
  const std::uint32_t quali = nome.Cosa == Guasto_Filo::Incollato ? incollati_ : interrotti_;
  return (quali & Maschera(nome)) != 0;
}

std::string Guasti_Fili::Ai_Morsetti(std::string ingressi) const {
  for (std::size_t posto = 0; posto < ingressi.size() && posto < digitali; ++posto) {
    if ((interrotti_ >> posto & 1U) != 0)
      ingressi[posto] = '0';
    else if ((incollati_ >> posto & 1U) != 0)
      ingressi[posto] = '1';
  }
  return ingressi;
}

float Guasti_Fili::Al_Morsetto(std::size_t canale, float volt) const {
  return (interrotti_ >> (digitali + canale) & 1U) != 0 ? 0.0F : volt;
}

}  // namespace tavorno
