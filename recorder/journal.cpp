// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/journal.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace tavorno {

namespace {

// The first byte of a record: the kind, and above it a small number or the sign that it follows.
constexpr unsigned bit_genere = 5;
constexpr unsigned maschera_genere = (1U << bit_genere) - 1;
constexpr unsigned numero_segue = 7;
constexpr unsigned ripetizione = maschera_genere;
static_assert(Cose <= static_cast<int>(ripetizione));

constexpr std::size_t testo_massimo = 200;

bool Con_Numero_Breve(Cosa che) {
  return che == Cosa::Presente || che == Cosa::Passano || che == Cosa::Salta;
}
bool Con_Indice(Cosa che) {
  switch (che) {
    case Cosa::Comando:
    case Cosa::Ingresso:
    case Cosa::Volt_AI:
    case Cosa::Potenziometro:
    case Cosa::Scelta:
    case Cosa::Aspetto_LED:
    case Cosa::Apri:
    case Cosa::Cursore:
    case Cosa::Uscita:
      return true;
    default:
      return false;
  }
}
bool Con_Numero(Cosa che) {
  switch (che) {
    case Cosa::Potenziometro:
    case Cosa::Scelta:
    case Cosa::Aspetto_LED:
    case Cosa::Periodo:
    case Cosa::Azzera_Elementi:
    case Cosa::Programma:
    case Cosa::Usa_Interruttori:
    case Cosa::Cursore:
    case Cosa::Uscita:
    case Cosa::Guasto:
      return true;
    default:
      return false;
  }
}
bool Con_Valore(Cosa che) {
  return che == Cosa::Volt_AI || che == Cosa::Forza || che == Cosa::Regola;
}
bool Con_Testo(Cosa che) {
  return che == Cosa::Ingresso || che == Cosa::Guasto || che == Cosa::Forza ||
         (che >= Cosa::Premi && che <= Cosa::Regola);
}

void Metti(std::vector<std::uint8_t>& byte, std::uint64_t numero) {
  for (; numero >= 0x80; numero >>= 7U) byte.push_back(static_cast<std::uint8_t>(numero | 0x80U));
  byte.push_back(static_cast<std::uint8_t>(numero));
}

void Metti_Testata(std::vector<std::uint8_t>& byte, unsigned genere, std::uint64_t numero) {
  const bool breve = numero < numero_segue;
  const unsigned alto = breve ? static_cast<unsigned>(numero) : numero_segue;
  byte.push_back(static_cast<std::uint8_t>(alto << bit_genere | genere));
  if (!breve) Metti(byte, numero);
}

std::uint64_t A_Zigzag(std::int64_t numero) {
  return (static_cast<std::uint64_t>(numero) << 1U) ^ static_cast<std::uint64_t>(numero >> 63U);
}
std::int64_t Da_Zigzag(std::uint64_t numero) {
  return static_cast<std::int64_t>(numero >> 1U) ^ -static_cast<std::int64_t>(numero & 1U);
}

}  // namespace

Stesura Copia_Programma(const Memoria& cpu) {
  return {{cpu.Prog.begin(), cpu.Prog.end()}, cpu.NRighe};
}

void Metti_Programma(Memoria& cpu, const Stesura& programma) {
  cpu.Prog.Ridimensiona(static_cast<int>(programma.Righe.size()));
  std::ranges::copy(programma.Righe, cpu.Prog.begin());
  cpu.NRighe = programma.NRighe;
}

void Giornale::Scrivi(std::int64_t righe, const Atto& entrata,
                      std::shared_ptr<const Stesura> programma) {
  const std::size_t inizio = byte_.size();
  std::int64_t numero = entrata.Numero;
  if (entrata.Che == Cosa::Presente) numero -= fine_.Ms;
  if (entrata.Che == Cosa::Programma) {
    numero = static_cast<std::int64_t>(programmi_.size());
    programmi_.push_back(std::move(programma));
  }
  const bool breve = Con_Numero_Breve(entrata.Che);
  Metti_Testata(byte_, static_cast<unsigned>(entrata.Che),
                breve ? static_cast<std::uint64_t>(numero) : 0);
  Metti(byte_, static_cast<std::uint64_t>(righe - fine_.Righe));
  if (Con_Indice(entrata.Che)) Metti(byte_, static_cast<std::uint64_t>(entrata.Indice));
  if (Con_Numero(entrata.Che)) Metti(byte_, A_Zigzag(numero));
  if (Con_Valore(entrata.Che)) {
    const auto bit = std::bit_cast<std::uint64_t>(entrata.Valore);
    for (unsigned n = 0; n < 64; n += 8) byte_.push_back(static_cast<std::uint8_t>(bit >> n));
  }
  if (Con_Testo(entrata.Che)) {
    const std::string_view testo = entrata.Testo.substr(0, testo_massimo);
    Metti(byte_, testo.size());
    byte_.insert(byte_.end(), testo.begin(), testo.end());
  }
  fine_.Righe = righe;
  if (entrata.Che == Cosa::Presente || entrata.Che == Cosa::Passano) fine_.Ms += numero;

  const std::size_t lunga = byte_.size() - inizio;
  const auto ultima = byte_.begin() + static_cast<std::ptrdiff_t>(ultima_);
  if (breve && lunga == ultima_fine_ - ultima_ &&
      std::equal(ultima, ultima + static_cast<std::ptrdiff_t>(lunga),
                 byte_.begin() + static_cast<std::ptrdiff_t>(inizio))) {
    byte_.resize(volte_ > 0 ? ripetizione_ : inizio);
    ripetizione_ = byte_.size();
    Metti_Testata(byte_, ripetizione, ++volte_);
    return;
  }
  ultima_ = inizio;
  ultima_fine_ = byte_.size();
  volte_ = 0;
}

void Giornale::Tronca(const Posto_Giornale& posto) {
  byte_.resize(std::min(byte_.size(), posto.Byte));
  if (posto.Ripetute > 0) Metti_Testata(byte_, ripetizione, posto.Ripetute);
  fine_.Righe = posto.Righe;
  fine_.Ms = posto.Ms;
  Segna();
}

void Giornale::Dimentica(const Posto_Giornale& inizio, std::size_t byte) {
  byte_.erase(byte_.begin(), byte_.begin() + static_cast<std::ptrdiff_t>(byte));
  byte_.shrink_to_fit();
  Inizio = inizio;
  Segna();
}

std::shared_ptr<const Stesura> Giornale::Programma(std::int64_t indice) const {
  if (indice < 0 || indice >= std::ssize(programmi_)) return nullptr;
  return programmi_[static_cast<std::size_t>(indice)];
}

Giornale Giornale::Da_Byte(Posto_Giornale inizio, Posto_Giornale fine,
                           std::vector<std::uint8_t> byte,
                           std::vector<std::shared_ptr<const Stesura>> programmi) {
  Giornale giornale;
  giornale.Inizio = inizio;
  giornale.fine_ = fine;
  giornale.byte_ = std::move(byte);
  giornale.programmi_ = std::move(programmi);
  return giornale;
}

std::uint8_t Lettore_Giornale::Ottetto(std::size_t& byte) {
  if (byte >= giornale_.byte_.size()) {
    guasto_ = "il giornale finisce a metà di una voce";
    return 0;
  }
  return giornale_.byte_[byte++];
}

std::uint64_t Lettore_Giornale::Numero(std::size_t& byte) {
  std::uint64_t numero = 0;
  for (unsigned posto = 0; posto < 63; posto += 7) {
    const std::uint8_t ottetto = Ottetto(byte);
    numero |= std::uint64_t{ottetto & 0x7FU} << posto;
    if (ottetto < 0x80) return numero;
  }
  guasto_ = "un numero del giornale è troppo grande";
  return 0;
}

std::optional<Voce_Giornale> Lettore_Giornale::Leggi(std::size_t& byte) {
  Voce_Giornale voce;
  const unsigned testata = Ottetto(byte);
  const unsigned genere = testata & maschera_genere;
  if (genere >= Cose) guasto_ = "il giornale ha una voce sconosciuta";
  if (!guasto_.empty()) return {};
  Atto& entra = voce.Entra;
  entra.Che = static_cast<Cosa>(genere);
  std::uint64_t breve = testata >> bit_genere;
  if (breve == numero_segue) breve = Numero(byte);
  const std::uint64_t righe = Numero(byte);
  constexpr std::uint64_t massimo = 1ULL << 53U;
  if (breve > massimo || righe > massimo) guasto_ = "un numero del giornale è troppo grande";
  voce.Righe = qui_.Righe + static_cast<std::int64_t>(righe);
  if (Con_Numero_Breve(entra.Che)) entra.Numero = static_cast<std::int64_t>(breve);
  if (entra.Che == Cosa::Presente) entra.Numero += qui_.Ms;
  if (Con_Indice(entra.Che)) {
    const std::uint64_t indice = Numero(byte);
    if (indice > 1000) guasto_ = "il giornale nomina ciò che non c'è";
    entra.Indice = static_cast<int>(indice);
  }
  if (Con_Numero(entra.Che)) entra.Numero = Da_Zigzag(Numero(byte));
  if (Con_Valore(entra.Che)) {
    std::uint64_t bit = 0;
    for (unsigned n = 0; n < 64; n += 8) bit |= std::uint64_t{Ottetto(byte)} << n;
    entra.Valore = std::bit_cast<double>(bit);
  }
  if (Con_Testo(entra.Che)) {
    const std::uint64_t lungo = Numero(byte);
    if (lungo > testo_massimo || byte + lungo > giornale_.byte_.size())
      guasto_ = "un testo del giornale è troppo lungo";
    if (!guasto_.empty()) return {};
    entra.Testo = {reinterpret_cast<const char*>(giornale_.byte_.data()) + byte,
                   static_cast<std::size_t>(lungo)};
    byte += static_cast<std::size_t>(lungo);
  }
  if (!guasto_.empty()) return {};
  return voce;
}

std::optional<Voce_Giornale> Lettore_Giornale::Prossima() {
  if (!guasto_.empty() || qui_.Byte >= giornale_.byte_.size()) return {};
  std::size_t dopo = qui_.Byte;
  std::optional<Voce_Giornale> voce;
  if ((giornale_.byte_[qui_.Byte] & maschera_genere) == ripetizione) {
    std::uint64_t volte = Ottetto(dopo) >> bit_genere;
    if (volte == numero_segue) volte = Numero(dopo);
    if (volte == 0 || qui_.Byte == giornale_.Inizio.Byte)
      guasto_ = "il giornale ripete ciò che non c'è";
    if (!guasto_.empty()) return {};
    std::size_t ultima = qui_.Ultima;
    voce = Leggi(ultima);
    if (++qui_.Ripetute >= volte) {
      qui_.Byte = dopo;
      qui_.Ripetute = 0;
    }
  } else {
    voce = Leggi(dopo);
    qui_.Ultima = qui_.Byte;
    qui_.Byte = dopo;
  }
  if (!voce) return {};
  qui_.Righe = voce->Righe;
  if (voce->Entra.Che == Cosa::Presente) qui_.Ms = voce->Entra.Numero;
  if (voce->Entra.Che == Cosa::Passano) qui_.Ms += voce->Entra.Numero;
  return voce;
}

}  // namespace tavorno
