// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/address.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "plc/byte_text.h"
#include "plc/codepage.h"
#include "plc/operands.h"

namespace tavorno {

namespace {

/// Areas with cells that can be looked at.
bool Ha_Celle(const Riga_Area& riga) {
  return riga.Ultima >= 0 && riga.Contenuto != Cella::Testo;
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
double Leggi_Elemento(const Elemento& elemento, std::int16_t preset, Parte_Cella quale) {
  return quale == Parte_Cella::Bit   ? elemento.Uscita
         : quale == Parte_Cella::Val ? elemento.Val
                                     : preset;
}

template <class Elemento>
void Scrivi_Elemento(Elemento& elemento, std::int16_t& preset, Parte_Cella quale, double valore) {
  const auto intero = static_cast<std::int16_t>(valore);
  if (quale == Parte_Cella::Bit)
    elemento.Uscita = static_cast<std::uint8_t>(intero);
  else
    (quale == Parte_Cella::Val ? elemento.Val : preset) = intero;
}

}  // namespace

std::optional<Indirizzo> Leggi_Indirizzo(std::string_view testo) {
  const std::string maiuscolo = Maiuscole(testo);
  const auto cifra = std::ranges::find_if(maiuscolo, [](char c) { return c >= '0' && c <= '9'; });
  if (cifra == maiuscolo.end()) return {};
  const auto lettere = static_cast<std::size_t>(cifra - maiuscolo.begin());
  const Riga_Area& riga = Riga_Di(Cerca_Area(std::string_view(maiuscolo).substr(0, lettere)));
  if (!Ha_Celle(riga)) return {};
  std::string_view resto = std::string_view(maiuscolo).substr(lettere);
  const auto num = Numero(resto, riga.Ultima);
  if (!num || *num % riga.Passo != 0) return {};
  Indirizzo indirizzo{riga.Codice, *num};
  if (!resto.starts_with(".")) {
    if (riga.Bit != 0 || !resto.empty()) return {};
    return indirizzo;
  }
  resto.remove_prefix(1);
  if (riga.Bit != 0) {
    const auto bit = resto.empty() ? std::nullopt : Numero(resto, riga.Bit - 1);
    if (!bit || !resto.empty()) return {};
    indirizzo.Bit = *bit;
    return indirizzo;
  }
  if (riga.Preset.empty()) return {};
  if (resto == "VAL")
    indirizzo.Quale = Parte_Cella::Val;
  else if (resto == riga.Preset)
    indirizzo.Quale = Parte_Cella::Preset;
  else
    return {};
  return indirizzo;
}

std::string Testo_Indirizzo(const Indirizzo& indirizzo) {
  const Riga_Area& riga = Riga_Di(indirizzo.Dove);
  std::string testo = std::string(riga.Nome) + std::to_string(indirizzo.Num);
  if (riga.Bit > 0) testo += "." + std::to_string(indirizzo.Bit);
  if (riga.Preset.empty() || indirizzo.Quale == Parte_Cella::Bit) return testo;
  return testo + (indirizzo.Quale == Parte_Cella::Val ? ".Val" : "." + std::string(riga.Preset));
}

std::string Indirizzi_Ammessi() {
  std::string testo;
  for (const Riga_Area& riga : tabella_aree) {
    if (!Ha_Celle(riga)) continue;
    const std::string nome(riga.Nome);
    const std::string ultimo = std::to_string(riga.Ultima);
    const std::string ultimo_bit = riga.Bit != 0 ? "." + std::to_string(riga.Bit - 1) : "";
    testo += (testo.empty() ? "" : ", ") + nome + "0" + (riga.Bit != 0 ? ".0" : "") + ".." + nome +
             ultimo + ultimo_bit;
    if (!riga.Preset.empty()) testo += " (.Val, ." + std::string(riga.Preset) + ")";
  }
  return testo;
}

double Leggi_Cella(const Plc& plc, const Indirizzo& indirizzo) {
  const int num = indirizzo.Num;
  const auto posto = static_cast<std::size_t>(num);
  switch (indirizzo.Dove) {
    case Area::I:
      return plc.SI[posto].Stato_IB() >> indirizzo.Bit & 1;
    case Area::Q:
      return plc.SQ[posto].Stato_QB() >> indirizzo.Bit & 1;
    case Area::IB:
      return plc.SI[posto].Stato_IB();
    case Area::QB:
      return plc.SQ[posto].Stato_QB();
    case Area::MB:
      return Byte(plc.Mem_M[num].Bit);
    case Area::SMB:
      return Byte(plc.Mem_SM[num].Bit);
    case Area::T:
      return Leggi_Elemento(plc.Mem_T[num], plc.Mem_T[num].PT, indirizzo.Quale);
    case Area::C:
      return Leggi_Elemento(plc.Mem_C[num], plc.Mem_C[num].PV, indirizzo.Quale);
    case Area::AC:
      return plc.Mem_AC[num];
    default:
      break;
  }
  std::int32_t intero = 0;
  if (Leggi(plc, operandi::cella, indirizzo.Dove, num, intero)) return intero;
  std::int16_t errore = 0;
  return plc.AC1_Bit(indirizzo.Dove, num, indirizzo.Bit, errore);
}

bool Sta_In_Cella(const Indirizzo& indirizzo, double valore) {
  const Riga_Area& riga = Riga_Di(indirizzo.Dove);
  const bool bit_di_elemento = !riga.Preset.empty() && indirizzo.Quale == Parte_Cella::Bit;
  const double massimo = bit_di_elemento ? 1 : riga.Massimo;
  const double minimo = bit_di_elemento ? 0 : riga.Minimo;
  if (!(valore >= minimo && valore <= massimo)) return false;
  return riga.Contenuto == Cella::Reale || valore == std::floor(valore);
}

bool Scrivi_Cella(Plc& plc, const Indirizzo& indirizzo, double valore) {
  if (!Sta_In_Cella(indirizzo, valore)) return false;
  const int num = indirizzo.Num;
  const auto posto = static_cast<std::size_t>(num);
  const auto intero = static_cast<std::int32_t>(valore);
  const auto byte = static_cast<std::uint8_t>(intero);
  switch (indirizzo.Dove) {
    case Area::I:
      Scrivi_Ingressi(plc, num, Con_Bit(plc.SI[posto].Stato_IB(), indirizzo.Bit, intero != 0));
      break;
    case Area::Q:
      Scrivi_Uscite(plc, num, Con_Bit(plc.SQ[posto].Stato_QB(), indirizzo.Bit, intero != 0));
      break;
    case Area::M:
      plc.Mem_M[num].Bit[indirizzo.Bit] = byte;
      plc.Setta_Marker();
      break;
    case Area::SM:
      plc.Mem_SM[num].Bit[indirizzo.Bit] = byte;
      break;
    case Area::S:
      plc.Mem_S[num].Bit[indirizzo.Bit] = static_cast<std::int16_t>(intero);
      break;
    case Area::T:
      Scrivi_Elemento(plc.Mem_T[num], plc.Mem_T[num].PT, indirizzo.Quale, valore);
      break;
    case Area::C:
      Scrivi_Elemento(plc.Mem_C[num], plc.Mem_C[num].PV, indirizzo.Quale, valore);
      break;
    case Area::IB:
      Scrivi_Ingressi(plc, num, byte);
      break;
    case Area::QB:
      Scrivi_Uscite(plc, num, byte);
      break;
    case Area::MB:
      Scrivi_Byte(plc.Mem_M[num].Bit, byte);
      plc.Setta_Marker();
      break;
    case Area::SMB:
      Scrivi_Byte(plc.Mem_SM[num].Bit, byte);
      plc.Mem_SM[num].Val_B = byte;
      break;
    case Area::AC:
      plc.Mem_AC[num] = static_cast<float>(valore);
      break;
    default:
      return Scrivi(plc, operandi::cella, indirizzo.Dove, num, intero);
  }
  return true;
}

}  // namespace tavorno
