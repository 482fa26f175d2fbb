// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/address.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "plc/byte_text.h"

namespace tavorno {

namespace {

struct Riga_Campo {
  std::string_view Nome;
  Campo Dove;
  int Ultimo;               // number
  int Passo;                // between numbers that exist
  bool Bit;                 // ".0" to ".7" follows
  std::string_view Preset;  // name of the preset of a timer or counter
  double Minimo, Massimo;   // of a value
};

constexpr double min_16 = std::numeric_limits<std::int16_t>::min();
constexpr double max_16 = std::numeric_limits<std::int16_t>::max();
constexpr double min_32 = std::numeric_limits<std::int32_t>::min();
constexpr double max_32 = std::numeric_limits<std::int32_t>::max();

// clang-format off
constexpr Riga_Campo campi[] = {
    {"I",   Campo::I,    1,  1, true,  "",   0, 1},
    {"Q",   Campo::Q,    1,  1, true,  "",   0, 1},
    {"M",   Campo::M,    4,  1, true,  "",   0, 1},
    {"SM",  Campo::SM,  30,  1, true,  "",   0, 1},
    {"S",   Campo::S,    4,  1, true,  "",   0, 1},
    {"T",   Campo::T,   40,  1, false, "PT", min_16, max_16},
    {"C",   Campo::C,   20,  1, false, "PV", min_16, max_16},
    {"IB",  Campo::IB,   1,  1, false, "",   0, 255},
    {"QB",  Campo::QB,   1,  1, false, "",   0, 255},
    {"MB",  Campo::MB,   4,  1, false, "",   0, 255},
    {"SMB", Campo::SMB, 30,  1, false, "",   0, 255},
    {"VB",  Campo::VB, 100,  1, false, "",   min_16, max_16},
    {"VW",  Campo::VW, 100,  1, false, "",   min_16, max_16},
    {"VD",  Campo::VD, 100,  1, false, "",   min_32, max_32},
    {"AC",  Campo::AC,   4,  1, false, "",   min_32, max_32},
    {"AIW", Campo::AIW,  4,  2, false, "",   min_32, max_32},
    {"AQW", Campo::AQW,  2,  2, false, "",   min_32, max_32},
};
// clang-format on

const Riga_Campo& Riga(Campo dove) {
  for (const Riga_Campo& riga : campi) {
    if (riga.Dove == dove) return riga;
  }
  return campi[0];
}

/// A whole number without sign at the left of `testo`, which is shortened by it.
std::optional<int> Numero(std::string_view& testo, int massimo) {
  int numero = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc{} || testo.front() == '-' || numero > massimo) return {};
  testo.remove_prefix(static_cast<std::size_t>(fine - testo.data()));
  return numero;
}

template <class Celle>
double Byte(const Celle& celle) {
  int byte = 0;
  for (int bit = 0; bit < 8; ++bit) byte |= (celle[bit] != 0 ? 1 : 0) << bit;
  return byte;
}

template <class Celle>
void Scrivi_Byte(Celle& celle, std::uint8_t byte) {
  for (int bit = 0; bit < 8; ++bit) celle[bit] = static_cast<std::uint8_t>(byte >> bit & 1);
}

std::uint8_t Con_Bit(std::uint8_t byte, int bit, bool acceso) {
  const unsigned peso = 1U << static_cast<unsigned>(bit);
  return static_cast<std::uint8_t>(acceso ? byte | peso : byte & ~peso);
}

void Scrivi_Ingressi(Plc& plc, int num, std::uint8_t byte) {
  plc.SI[static_cast<std::size_t>(num)].Stato_I(Testo_Bit(byte));
}

void Scrivi_Uscite(Plc& plc, int num, std::uint8_t byte) {
  plc.Byte_Bit(byte, num);
  plc.IP_Q[num].Val_B = byte;
  Scrivi_Lettura(plc.IP_Q[num].Txt_B, byte);
  plc.SQ[static_cast<std::size_t>(num)].Stato_Q(Testo_Bit(byte));
}

template <class Elemento>
void Scrivi_Elemento(Elemento& elemento, std::int16_t& preset, Parte quale, double valore) {
  const auto intero = static_cast<std::int16_t>(valore);
  if (quale == Parte::Bit)
    elemento.Uscita = static_cast<std::uint8_t>(intero);
  else
    (quale == Parte::Val ? elemento.Val : preset) = intero;
}

}  // namespace

std::optional<Indirizzo> Leggi_Indirizzo(std::string_view testo) {
  std::string maiuscolo(testo);
  for (char& c : maiuscolo) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  const std::size_t lettere = maiuscolo.find_first_of("0123456789");
  if (lettere == std::string::npos) return {};
  const std::string_view nome = std::string_view(maiuscolo).substr(0, lettere);
  std::string_view resto = std::string_view(maiuscolo).substr(lettere);
  for (const Riga_Campo& riga : campi) {
    if (riga.Nome != nome) continue;
    const auto num = Numero(resto, riga.Ultimo);
    if (!num || *num % riga.Passo != 0) return {};
    Indirizzo indirizzo{riga.Dove, *num};
    if (resto.starts_with(".")) {
      resto.remove_prefix(1);
      if (riga.Bit) {
        const auto bit = resto.empty() ? std::nullopt : Numero(resto, 7);
        if (!bit) return {};
        indirizzo.Bit = *bit;
        return resto.empty() ? std::optional(indirizzo) : std::nullopt;
      }
      if (riga.Preset.empty()) return {};
      if (resto == "VAL")
        indirizzo.Quale = Parte::Val;
      else if (resto == riga.Preset)
        indirizzo.Quale = Parte::Preset;
      else
        return {};
      return indirizzo;
    }
    if (riga.Bit || !resto.empty()) return {};
    return indirizzo;
  }
  return {};
}

std::string Indirizzi_Ammessi() {
  std::string testo;
  for (const Riga_Campo& riga : campi) {
    const std::string nome(riga.Nome);
    const std::string ultimo = std::to_string(riga.Ultimo);
    testo += (testo.empty() ? "" : ", ") + nome + "0" + (riga.Bit ? ".0" : "") + ".." + nome +
             ultimo + (riga.Bit ? ".7" : "");
    if (!riga.Preset.empty()) testo += " (.Val, ." + std::string(riga.Preset) + ")";
  }
  return testo;
}

double Leggi_Cella(const Plc& plc, const Indirizzo& indirizzo) {
  const int num = indirizzo.Num;
  const auto posto = static_cast<std::size_t>(num);
  switch (indirizzo.Dove) {
    case Campo::I:
      return plc.SI[posto].Stato_IB() >> indirizzo.Bit & 1;
    case Campo::Q:
      return plc.SQ[posto].Stato_QB() >> indirizzo.Bit & 1;
    case Campo::M:
      return plc.Mem_M[num].Bit[indirizzo.Bit];
    case Campo::SM:
      return plc.Mem_SM[num].Bit[indirizzo.Bit];
    case Campo::S:
      return plc.Mem_S[num].Bit[indirizzo.Bit];
    case Campo::T: {
      const Riga_Timer& timer = plc.Mem_T[num];
      return indirizzo.Quale == Parte::Bit   ? timer.Uscita
             : indirizzo.Quale == Parte::Val ? timer.Val
                                             : timer.PT;
    }
    case Campo::C: {
      const Riga_Contatore& contatore = plc.Mem_C[num];
      return indirizzo.Quale == Parte::Bit   ? contatore.Uscita
             : indirizzo.Quale == Parte::Val ? contatore.Val
                                             : contatore.PV;
    }
    case Campo::IB:
      return plc.SI[posto].Stato_IB();
    case Campo::QB:
      return plc.SQ[posto].Stato_QB();
    case Campo::MB:
      return Byte(plc.Mem_M[num].Bit);
    case Campo::SMB:
      return Byte(plc.Mem_SM[num].Bit);
    case Campo::VB:
      return plc.Mem_VB[num];
    case Campo::VW:
      return plc.Mem_VW[num];
    case Campo::VD:
      return plc.Mem_VD[num];
    case Campo::AC:
      return plc.Mem_AC[num];
    case Campo::AIW:
      return plc.Mem_AIW[num];
    case Campo::AQW:
      return plc.Mem_AQW[num];
  }
  return 0;
}

bool Scrivi_Cella(Plc& plc, const Indirizzo& indirizzo, double valore) {
  const Riga_Campo& riga = Riga(indirizzo.Dove);
  const bool bit_di_elemento = !riga.Preset.empty() && indirizzo.Quale == Parte::Bit;
  const double massimo = bit_di_elemento ? 1 : riga.Massimo;
  const double minimo = bit_di_elemento ? 0 : riga.Minimo;
  if (!(valore >= minimo && valore <= massimo)) return false;
  if (indirizzo.Dove != Campo::AC && valore != std::floor(valore)) return false;

  const int num = indirizzo.Num;
  const auto posto = static_cast<std::size_t>(num);
  const auto intero = static_cast<std::int32_t>(valore);
  const auto byte = static_cast<std::uint8_t>(intero);
  switch (indirizzo.Dove) {
    case Campo::I:
      Scrivi_Ingressi(plc, num, Con_Bit(plc.SI[posto].Stato_IB(), indirizzo.Bit, intero != 0));
      break;
    case Campo::Q:
      Scrivi_Uscite(plc, num, Con_Bit(plc.SQ[posto].Stato_QB(), indirizzo.Bit, intero != 0));
      break;
    case Campo::M:
      plc.Mem_M[num].Bit[indirizzo.Bit] = byte;
      plc.Setta_Marker();
      break;
    case Campo::SM:
      plc.Mem_SM[num].Bit[indirizzo.Bit] = byte;
      break;
    case Campo::S:
      plc.Mem_S[num].Bit[indirizzo.Bit] = static_cast<std::int16_t>(intero);
      break;
    case Campo::T:
      Scrivi_Elemento(plc.Mem_T[num], plc.Mem_T[num].PT, indirizzo.Quale, valore);
      break;
    case Campo::C:
      Scrivi_Elemento(plc.Mem_C[num], plc.Mem_C[num].PV, indirizzo.Quale, valore);
      break;
    case Campo::IB:
      Scrivi_Ingressi(plc, num, byte);
      break;
    case Campo::QB:
      Scrivi_Uscite(plc, num, byte);
      break;
    case Campo::MB:
      Scrivi_Byte(plc.Mem_M[num].Bit, byte);
      plc.Setta_Marker();
      break;
    case Campo::SMB:
      Scrivi_Byte(plc.Mem_SM[num].Bit, byte);
      plc.Mem_SM[num].Val_B = byte;
      break;
    case Campo::VB:
      plc.Mem_VB[num] = static_cast<std::int16_t>(intero);
      break;
    case Campo::VW:
      plc.Mem_VW[num] = static_cast<std::int16_t>(intero);
      break;
    case Campo::VD:
      plc.Mem_VD[num] = intero;
      break;
    case Campo::AC:
      plc.Mem_AC[num] = static_cast<float>(valore);
      break;
    case Campo::AIW:
      plc.Mem_AIW[num] = intero;
      break;
    case Campo::AQW:
      plc.Mem_AQW[num] = intero;
      break;
  }
  return true;
}

}  // namespace tavorno
