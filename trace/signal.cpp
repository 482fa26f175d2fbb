// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/signal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "plc/codepage.h"

namespace tavorno {

namespace {

struct Operando_Riga {
  Area Codice;
  int Num, Bit;
};

/// The cell that an operand means, as a text; empty where it is none that can be looked at.
std::string Testo_Operando(const Operando_Riga& operando) {
  const Riga_Area& area = Riga_Di(operando.Codice);
  if (area.Ultima < 0 || operando.Num < 0 || operando.Num > area.Ultima) return {};
  std::string testo = std::string(area.Nome) + std::to_string(operando.Num);
  if (area.Bit > 0) testo += "." + std::to_string(std::max(0, operando.Bit));
  return testo;
}

class Raccolta {
 public:
  explicit Raccolta(std::size_t massimi) : massimi_(massimi) {}

  void Metti(const std::string& nome, const std::string& indirizzo) {
    if (segnali_.size() >= massimi_ || !Leggi_Indirizzo(indirizzo)) return;
    const bool presente = std::ranges::any_of(
        segnali_, [&](const Segnale& uno) { return uno.Indirizzo == indirizzo; });
    if (!presente) segnali_.push_back(Fai_Segnale(nome, indirizzo));
  }
  std::vector<Segnale> Prendi() { return std::move(segnali_); }

 private:
  std::size_t massimi_;
  std::vector<Segnale> segnali_;
};

}  // namespace

bool Segnale::Di_Bit() const {
  const Riga_Area& area = Riga_Di(Dove);
  return area.Bit > 0 || (!area.Preset.empty() && Quale == Parte_Cella::Bit);
}

Segnale Fai_Segnale(const std::string& nome, const std::string& indirizzo) {
  Segnale segnale{nome, indirizzo};
  if (const auto letto = Leggi_Indirizzo(indirizzo)) {
    segnale.Dove = letto->Dove;
    segnale.Num = letto->Num;
    segnale.Bit = letto->Bit;
    segnale.Quale = letto->Quale;
  }
  return segnale;
}

double Valore(const Segnale& segnale, const Plc& plc) {
  if (segnale.Dove == Area::AIW) return plc.Volt_AI[segnale.Num / 2];
  if (segnale.Dove == Area::AQW) return plc.Volt_AQ[segnale.Num / 2];
  return Leggi_Cella(plc, {segnale.Dove, segnale.Num, segnale.Bit, segnale.Quale});
}

std::string Testo_Valore(const Segnale& segnale, double valore) {
  if (std::isnan(valore)) return "?";
  char testo[64];
  if (segnale.Analogico())
    std::snprintf(testo, sizeof testo, "%.2f V", valore);
  else if (segnale.Dove == Area::AC)
    std::snprintf(testo, sizeof testo, "%.7g", valore);
  else
    std::snprintf(testo, sizeof testo, "%.0f", valore);
  std::string cifre = testo;
  std::ranges::replace(cifre, '.', ',');
  return cifre;
}

std::vector<Segnale> Segnali_Di(Elenco_IO impianto, const Memoria& memoria, std::size_t massimi) {
  Raccolta raccolta(massimi);
  for (const Riga_IO& riga : impianto) raccolta.Metti(riga.Simbolo, riga.Indirizzo);
  for (const Riga_PLC& riga : memoria.Prog) {
    // Further operands are numbers in nearly all instructions; those that are cells appear in
    // other lines too.
    for (const Operando_Riga& operando : {Operando_Riga{riga.Codice1, riga.Num1, riga.Bit1},
                                          Operando_Riga{riga.Codice2, riga.Num2, riga.Bit2}}) {
      if (operando.Codice == Area::SM || operando.Codice == Area::SMB) continue;
      const std::string testo = Testo_Operando(operando);
      if (testo.empty()) continue;
      raccolta.Metti(testo, testo);
      if (!Riga_Di(operando.Codice).Preset.empty()) raccolta.Metti(testo + ".Val", testo + ".Val");
    }
  }
  return raccolta.Prendi();
}

std::vector<Segnale> Tutte_Le_Celle() {
  std::vector<Segnale> celle;
  for (const Riga_Area& area : tabella_aree) {
    for (int num = 0; num <= area.Ultima; num += area.Passo) {
      for (int bit = 0; bit < std::max(1, area.Bit); ++bit) {
        for (const Parte_Cella parte : {Parte_Cella::Bit, Parte_Cella::Val, Parte_Cella::Preset}) {
          if (parte != Parte_Cella::Bit && area.Preset.empty()) continue;
          const std::string testo = Testo_Indirizzo({area.Codice, num, bit, parte});
          if (Leggi_Indirizzo(testo)) celle.push_back(Fai_Segnale(testo, testo));
        }
      }
    }
  }
  return celle;
}

std::optional<Segnale> Cerca_Segnale(const std::string& testo, Elenco_IO impianto) {
  const std::string cercato = Maiuscole(testo);
  for (const Riga_IO& riga : impianto) {
    if (Maiuscole(riga.Simbolo) == cercato || Maiuscole(riga.Indirizzo) == cercato)
      return Fai_Segnale(riga.Simbolo, riga.Indirizzo);
  }
  const auto letto = Leggi_Indirizzo(testo);
  if (!letto) return {};
  const std::string indirizzo = Testo_Indirizzo(*letto);
  return Fai_Segnale(indirizzo, indirizzo);
}

}  // namespace tavorno
