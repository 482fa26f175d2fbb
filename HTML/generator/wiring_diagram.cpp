// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/wiring_diagram.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "HTML/generator/device_symbols.h"
#include "HTML/generator/devices.h"
#include "HTML/generator/drawing.h"

namespace tavorno {

namespace {

// Heights of the drawing, from the top.
constexpr double y_piu = 26;        // rail L+
constexpr double y_sigla = 42;      // symbols of the input devices
constexpr double y_contatti = 52;   // their contacts
constexpr double y_plc = 100;       // upper edge of the PLC
constexpr double y_plc_fine = 176;  // lower edge
constexpr double y_carichi = 196;   // the loads
constexpr double y_sigla_q = 236;   // their symbols
constexpr double y_meno = 246;      // rail M
constexpr double y_legenda = 284;

constexpr double x_alimentazione = 18;
constexpr double x_plc = 34;
constexpr double primo_posto = x_plc + 24;
constexpr double ultimo_posto = 760;
constexpr double margine = 16;
constexpr double larghezza_voce = 158;
constexpr double altezza_voce = 40;

/// Room for a wire: digital ones stand closer when there are many.
constexpr double passo_stretto = 29;
constexpr double passo_comodo = 44;
constexpr double passo_analogico = 42;

struct Filo {
  const Riga_IO* Riga;
  Dispositivo Cosa;
  double X;
};

bool Analogico(const Filo& filo) {
  return filo.Cosa.Dove == Verso_Morsetto::Ingresso_Analogico ||
         filo.Cosa.Dove == Verso_Morsetto::Uscita_Analogica;
}

/// The wires of one side of the PLC, digital ones first.
std::vector<Filo> Fili(std::span<const Riga_IO> righe, Verso_Morsetto digitali,
                       Verso_Morsetto analogici) {
  std::vector<Filo> fili;
  for (const Verso_Morsetto dove : {digitali, analogici}) {
    for (const Riga_IO& riga : righe) {
      const Dispositivo cosa = Riconosci(riga);
      if (cosa.Dove == dove) fili.push_back({&riga, cosa, 0});
    }
  }
  return fili;
}

/// The widest room for which the wires of one side fit.
double Passo(const std::vector<Filo>& fili) {
  const auto analogici = static_cast<double>(std::ranges::count_if(fili, Analogico));
  const auto digitali = std::max(static_cast<double>(fili.size()) - analogici, 1.0);
  const double spazio = ultimo_posto - primo_posto - analogici * passo_analogico;
  return std::clamp(spazio / digitali, passo_stretto, passo_comodo);
}

/// Returns where the last wire's room ends.
double Disponi(std::vector<Filo>& fili, double passo) {
  double x = primo_posto;
  for (Filo& filo : fili) {
    const double largo = Analogico(filo) ? passo_analogico : passo;
    filo.X = x + largo / 2;
    x += largo;
  }
  return x;
}

/// A circle on the edge of the PLC, and its address inside.
void Disegna_Morsetto(Tavola& d, const Filo& filo, double y, double y_testo) {
  d.Cerchio(filo.X, y, 2.5);
  d.Testo(filo.X, y_testo, filo.Riga->Indirizzo, 9, Tavola::Ancora::Mezzo);
}

void Disegna_Sigla(Tavola& d, const Filo& filo, double y) {
  d.Testo(filo.X + 3, y, filo.Riga->Simbolo, 9, Tavola::Ancora::Inizio, true);
}

void Disegna_Ingresso(Tavola& d, const Filo& filo) {
  if (Analogico(filo)) {
    d.Linea(filo.X - 6, y_contatti - 6, filo.X + 6, y_contatti - 6);
    d.Linea(filo.X, y_contatti - 6, filo.X, y_contatti);
    d.Testo(filo.X + 9, y_contatti - 3, "M", 8);
    d.Testo(filo.X, y_sigla - 8, filo.Riga->Simbolo, 9, Tavola::Ancora::Mezzo, true);
  } else {
    d.Punto(filo.X, y_piu);
    d.Linea(filo.X, y_piu, filo.X, y_contatti);
    Disegna_Sigla(d, filo, y_sigla);
  }
  Disegna_Simbolo(d, filo.Cosa, filo.X, y_contatti);
  d.Linea(filo.X, y_contatti + altezza_simbolo, filo.X, y_plc - 2.5);
  Disegna_Morsetto(d, filo, y_plc, y_plc + 14);
}

void Disegna_Uscita(Tavola& d, const Filo& filo) {
  Disegna_Morsetto(d, filo, y_plc_fine, y_plc_fine - 8);
  d.Linea(filo.X, y_plc_fine + 2.5, filo.X, y_carichi);
  Disegna_Simbolo(d, filo.Cosa, filo.X, y_carichi);
  d.Linea(filo.X, y_carichi + altezza_simbolo, filo.X, y_meno);
  d.Punto(filo.X, y_meno);
  Disegna_Sigla(d, filo, y_sigla_q);
  if (filo.Cosa.Tipo == Apparecchio::Lampada)
    d.Testo(filo.X + 7, y_carichi + 4, filo.Cosa.Dettaglio, 7);
}

double Ultimo(const std::vector<Filo>& fili, bool anche_analogici) {
  double x = x_alimentazione;
  for (const Filo& filo : fili) {
    if (anche_analogici || !Analogico(filo)) x = std::max(x, filo.X);
  }
  return x;
}

/// The rails with the supply of the PLC, and the PLC itself.
void Disegna_Alimentazione(Tavola& d, double fine_piu, double fine_meno, double fine_plc) {
  const double y_lp = y_plc + 30;
  const double y_m = y_plc_fine - 26;
  d.Linea(x_alimentazione, y_piu, fine_piu, y_piu);
  d.Testo(x_alimentazione - 6, y_piu - 8, "L+  24 V", 9.5, Tavola::Ancora::Inizio, true);
  d.Linea(x_alimentazione, y_piu, x_alimentazione, y_lp);
  d.Linea(x_alimentazione, y_lp, x_plc - 2.5, y_lp);
  d.Linea(x_alimentazione, y_meno, fine_meno, y_meno);
  d.Testo(x_alimentazione - 6, y_meno + 16, "M  0 V", 9.5, Tavola::Ancora::Inizio, true);
  d.Linea(x_alimentazione, y_meno, x_alimentazione, y_m);
  d.Linea(x_alimentazione, y_m, x_plc - 2.5, y_m);

  d.Rettangolo(x_plc, y_plc, fine_plc - x_plc, y_plc_fine - y_plc);
  d.Cerchio(x_plc, y_lp, 2.5);
  d.Testo(x_plc + 6, y_lp + 3.5, "L+", 9);
  d.Cerchio(x_plc, y_m, 2.5);
  d.Testo(x_plc + 6, y_m + 3.5, "M", 9);
  d.Testo((x_plc + fine_plc) / 2, (y_plc + y_plc_fine) / 2 + 5, "PLC", 14, Tavola::Ancora::Mezzo,
          true);
}

/// One entry per kind of device; contacts are shown as they are in the first row that has them.
std::vector<Dispositivo> Voci(const std::vector<Filo>& ingressi, const std::vector<Filo>& uscite) {
  std::vector<Dispositivo> voci;
  for (const auto* fili : {&ingressi, &uscite}) {
    for (const Filo& filo : *fili) {
      if (std::ranges::find(voci, filo.Cosa.Tipo, &Dispositivo::Tipo) == voci.end())
        voci.push_back(filo.Cosa);
    }
  }
  std::ranges::sort(voci, {}, &Dispositivo::Tipo);
  return voci;
}

/// Returns where the legend ends.
double Disegna_Legenda(Tavola& d, const std::vector<Dispositivo>& voci, double larghezza) {
  const int colonne = std::max(1, static_cast<int>((larghezza - margine) / larghezza_voce));
  int posto = 0;
  for (const Dispositivo& voce : voci) {
    const double x = margine + (posto % colonne) * larghezza_voce;
    const int riga = posto / colonne;
    const double y = y_legenda + riga * altezza_voce;
    Disegna_Simbolo(d, voce, x + 24, y);
    d.Testo(x + 50, y + altezza_simbolo / 2 + 3.5, Nome_Apparecchio(voce.Tipo));
    ++posto;
  }
  const int righe = (posto + colonne - 1) / colonne;
  const double y = y_legenda + righe * altezza_voce + 6;
  d.Testo(margine - 8, y,
          "Contatti e valvole a riposo. Lampade: GN verde, RD rossa, YE gialla, BU blu.");
  return y + 14;
}

}  // namespace

std::string Schema_Collegamenti(std::span<const Riga_IO> righe, const std::string& titolo) {
  std::vector<Filo> ingressi =
      Fili(righe, Verso_Morsetto::Ingresso, Verso_Morsetto::Ingresso_Analogico);
  std::vector<Filo> uscite = Fili(righe, Verso_Morsetto::Uscita, Verso_Morsetto::Uscita_Analogica);
  const double passo = std::min(Passo(ingressi), Passo(uscite));
  const double fine_plc = std::max(Disponi(ingressi, passo), Disponi(uscite, passo));
  // Room for the legend, however small the exercise.
  const double larghezza = std::max(fine_plc + margine, 2.6 * larghezza_voce + margine);

  Tavola d;
  Disegna_Alimentazione(d, Ultimo(ingressi, false), Ultimo(uscite, true), fine_plc);
  for (const Filo& filo : ingressi) Disegna_Ingresso(d, filo);
  for (const Filo& filo : uscite) Disegna_Uscita(d, filo);
  const double altezza = Disegna_Legenda(d, Voci(ingressi, uscite), larghezza);
  return d.Svg(larghezza, altezza, titolo);
}

}  // namespace tavorno
