// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/shapes.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <utility>

#include "awl/references.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

constexpr double mezzo_contatto = 7;  // half the gap between its strokes
constexpr double mezza_altezza = 12;
constexpr double per_lettera = 7.5;
constexpr double rientro_scatola = 14;

using Nomi_Piedini = std::array<std::string_view, 2>;

/// What stands beside the wires of a box and before its operands.
struct Piedini {
  std::array<std::string_view, 3> Ingressi;
  bool Primo_Sopra;  ///< the first operand is the box's own name and stands above it
  Nomi_Piedini Operandi;
};
/// Boxes whose wires have names of their own.
struct Scatola_Propria {
  std::string_view Istr;
  Piedini Suoi;
};
constexpr std::array scatole_proprie = {
    Scatola_Propria{"TON", {{"IN"}, true, {"", "PT"}}},
    Scatola_Propria{"TOF", {{"IN"}, true, {"", "PT"}}},
    Scatola_Propria{"TONR", {{"IN"}, true, {"", "PT"}}},
    Scatola_Propria{"CTU", {{"CU", "R"}, true, {"", "PV"}}},
    Scatola_Propria{"CTD", {{"CD", "LD"}, true, {"", "PV"}}},
    Scatola_Propria{"CTUD", {{"CU", "CD", "R"}, true, {"", "PV"}}},
};

/// The operands of any other box are named by what the instruction does with them.
Nomi_Piedini Nomi_Operandi(const std::string& istr) {
  const Istruzione* istruzione = Cerca_Istruzione(istr);
  if (istruzione == nullptr || istruzione->Operandi == nullptr) return {"IN", "OUT"};
  const Usi_Operandi usi = Usi_Istruzione(*istruzione);
  const bool solo = istruzione->Operandi->Operandi == 1;
  switch (solo ? usi.Primo : usi.Secondo) {
    case Uso::Scrittura:
      return solo ? Nomi_Piedini{"OUT"} : Nomi_Piedini{"IN", "OUT"};
    case Uso::Entrambi:
      return solo ? Nomi_Piedini{"IN=OUT"} : Nomi_Piedini{"IN1", "IN2=OUT"};
    default:
      return solo ? Nomi_Piedini{"IN"} : Nomi_Piedini{"IN1", "IN2"};
  }
}

Piedini Piedini_Di(const std::string& istr) {
  const auto* riga = std::ranges::find(scatole_proprie, istr, &Scatola_Propria::Istr);
  if (riga != scatole_proprie.end()) return riga->Suoi;
  return {{"EN"}, false, Nomi_Operandi(istr)};
}

std::string Operando(const Passo_Scala& passo, std::size_t quale) {
  return quale < passo.Operandi.size() ? A_Utf8(passo.Operandi[quale]) : std::string();
}

class Tracciatore {
 public:
  Tracciatore(const Disegno& disegno, const Nome_Simbolico& nome)
      : disegno_(disegno), nome_(nome) {}

  Tratteggio_Rete Traccia() {
    forme_.Larghezza = X(disegno_.Colonne) + margine_forme;
    forme_.Altezza = disegno_.Righe * altezza_cella;
    for (const Filo& filo : disegno_.Fili)
      if (!Ripassa(filo))
        forme_.Tratti.push_back({X(filo.Colonna), Y(filo.Riga), X(filo.Colonna_Fine),
                                 Y(filo.Riga_Fine), filo.Nodo, -1});
    for (std::size_t n = 0; n < disegno_.Riquadri.size(); ++n) {
      indice_ = static_cast<int>(n);
      Metti(disegno_.Riquadri[n]);
    }
    forme_.Tratti.push_back({X(0), 0, X(0), forme_.Altezza, 0, -1});
    Metti_Giunti();
    return std::move(forme_);
  }

 private:
  static double X(int colonna) { return margine_forme + colonna * larghezza_cella; }
  static double Y(int riga) { return riga * altezza_cella + quota_filo; }

  /// An upright wire on the rail or within a longer one of its point: drawn twice it would be
  /// thicker than the others.
  bool Ripassa(const Filo& filo) const {
    if (filo.Colonna != filo.Colonna_Fine) return false;
    if (filo.Colonna == 0) return filo.Nodo == 0;
    return std::ranges::any_of(disegno_.Fili, [&](const Filo& altro) {
      if (altro.Colonna != filo.Colonna || altro.Colonna_Fine != filo.Colonna ||
          altro.Nodo != filo.Nodo || altro.Riga > filo.Riga || altro.Riga_Fine < filo.Riga_Fine)
        return false;
      const bool uguale = altro.Riga == filo.Riga && altro.Riga_Fine == filo.Riga_Fine;
      return !uguale || &altro < &filo;
    });
  }

  /// No two wires cross that are not joined: each part of a network has cells of its own.
  void Metti_Giunti() {
    enum { Destra = 1, Sinistra = 2, Sotto = 4, Sopra = 8, Tutte = 15 };
    struct Angolo {
      int Vie = 0;
      Nodo_Elettrico Nodo = 0;  // of the upright wire, which all others end at
    };
    std::map<std::pair<int, int>, Angolo> angoli;  // column and row
    for (const Filo& filo : disegno_.Fili) {
      for (int c = filo.Colonna; c < filo.Colonna_Fine; ++c) {
        angoli[{c, filo.Riga}].Vie |= Destra;
        angoli[{c + 1, filo.Riga}].Vie |= Sinistra;
      }
      for (int r = filo.Riga; r < filo.Riga_Fine; ++r) {
        Angolo& sopra = angoli[{filo.Colonna, r}];
        Angolo& sotto = angoli[{filo.Colonna, r + 1}];
        sopra = {sopra.Vie | Sotto, filo.Nodo};
        sotto = {sotto.Vie | Sopra, filo.Nodo};
      }
    }
    for (const Riquadro& r : disegno_.Riquadri) {
      if (r.Come.Cosa == Ruolo::Da_Solo) continue;
      angoli[{r.Colonna, r.Riga}].Vie |= Destra;
      for (const Entrata& entrata : r.Entrate) angoli[{r.Colonna, entrata.Riga}].Vie |= Destra;
      if (r.Come.Cosa == Ruolo::Contatto || r.Come.Cosa == Ruolo::Trasforma)
        angoli[{r.Colonna + 1, r.Riga}].Vie |= Sinistra;
    }
    for (const auto& [dove, angolo] : angoli)
      if (angolo.Vie == Tutte)
        forme_.Giunti.push_back({X(dove.first), Y(dove.second), angolo.Nodo});
  }

  void Linea(double x1, double y1, double x2, double y2, Nodo_Elettrico nodo) {
    forme_.Tratti.push_back({x1, y1, x2, y2, nodo, indice_});
  }
  void Scrivi(double x, double y, std::string testo, Stile_Scritta stile,
              Ancora posto = Ancora::Centro, int operando = -1) {
    if (!testo.empty())
      forme_.Scritte.push_back({x, y, std::move(testo), stile, posto, indice_, operando});
  }
  void Scrivi_Operando(double x, double y, const Passo_Scala& passo, std::size_t quale,
                       Ancora posto = Ancora::Centro) {
    Scrivi(x, y, Operando(passo, quale), Stile_Scritta::Indirizzo, posto, static_cast<int>(quale));
  }

  /// The address above a symbol, and the plant's name for it above that.
  void Etichetta(double x, double y, const Passo_Scala& passo) {
    const std::string operando = Operando(passo, 0);
    Scrivi_Operando(x, y, passo, 0);
    if (nome_ && !operando.empty()) Scrivi(x, y - 13, nome_(operando), Stile_Scritta::Simbolo);
  }

  void Metti(const Riquadro& riquadro) {
    switch (riquadro.Come.Cosa) {
      case Ruolo::Contatto:
      case Ruolo::Trasforma:
        Contatto(riquadro);
        break;
      case Ruolo::Bobina:
        Bobina(riquadro);
        break;
      case Ruolo::Da_Solo:
        Da_Solo(riquadro);
        break;
      default:
        Scatola(riquadro);
        break;
    }
  }

  void Contatto(const Riquadro& r) {
    const double x = X(r.Colonna);
    const double y = Y(r.Riga);
    const double centro = x + larghezza_cella / 2;
    std::string segno = r.Come.Segno;
    const bool negato = segno.starts_with('/');
    if (negato) segno.erase(0, 1);
    const double mezzo =
        std::max(mezzo_contatto, static_cast<double>(segno.size()) * per_lettera / 2 + 7);
    Linea(x, y, centro - mezzo, y, r.Prima);
    Linea(centro + mezzo, y, x + larghezza_cella, y, r.Dopo);
    Linea(centro - mezzo, y - mezza_altezza, centro - mezzo, y + mezza_altezza, r.Prima);
    Linea(centro + mezzo, y - mezza_altezza, centro + mezzo, y + mezza_altezza, r.Dopo);
    if (negato)
      Linea(centro - mezzo, y + mezza_altezza, centro + mezzo, y - mezza_altezza, r.Prima);
    Scrivi(centro, y + 4, segno, Stile_Scritta::Segno);
    Etichetta(centro, y - mezza_altezza - 6, r.Passo);
    Scrivi_Operando(centro, y + mezza_altezza + 13, r.Passo, 1);
  }

  void Bobina(const Riquadro& r) {
    const double x = X(r.Colonna);
    const double y = Y(r.Riga);
    const double centro = x + larghezza_cella / 2;
    const double mezzo =
        std::max(12.0, static_cast<double>(r.Come.Segno.size()) * per_lettera / 2 + 6);
    Linea(x, y, centro - mezzo, y, r.Prima);
    constexpr double pancia = 5;
    forme_.Curve.push_back({centro - mezzo, y, pancia, 2 * mezza_altezza, r.Prima, indice_});
    forme_.Curve.push_back({centro + mezzo, y, -pancia, 2 * mezza_altezza, r.Prima, indice_});
    Scrivi(centro, y + 4, r.Come.Segno, Stile_Scritta::Segno);
    Etichetta(centro, y - mezza_altezza - 6, r.Passo);
    Scrivi_Operando(centro, y + mezza_altezza + 13, r.Passo, 1);
  }

  void Scatola(const Riquadro& r) {
    const Piedini piedini = Piedini_Di(r.Passo.Istr);
    const double sinistra = X(r.Colonna) + rientro_scatola;
    const double larghezza = r.Larghezza * larghezza_cella - 2 * rientro_scatola;
    const double sopra = Y(r.Riga) - 20;
    // Its lower edge leaves the names of the row below their place.
    const double altezza = r.Altezza * altezza_cella - quota_filo + 14;
    forme_.Cornici.push_back({sinistra, sopra, larghezza, altezza, r.Prima, indice_});
    const double centro = sinistra + larghezza / 2;
    Scrivi(centro, sopra + 15, A_Utf8(r.Come.Segno), Stile_Scritta::Nome);
    // The wires come in one below the other; those between have their own rows.
    for (std::size_t n = 0; n < piedini.Ingressi.size(); ++n) {
      if (piedini.Ingressi[n].empty()) break;
      const auto riga =
          static_cast<std::size_t>(n) < r.Entrate.size() ? r.Entrate[n] : Entrata{r.Riga, r.Prima};
      const double y = Y(riga.Riga);
      Linea(X(r.Colonna), y, sinistra, y, riga.Nodo);
      Scrivi(sinistra + 5, y + 4, std::string(piedini.Ingressi[n]), Stile_Scritta::Piedino,
             Ancora::Sinistra);
    }
    std::size_t primo = 0;
    if (piedini.Primo_Sopra) {
      Etichetta(centro, sopra - 5, r.Passo);
      primo = 1;
    }
    double y = sopra + altezza - 9;
    for (std::size_t n = r.Passo.Operandi.size(); n-- > primo;) {
      const std::string nome = n < 2 ? std::string(piedini.Operandi[n]) : std::string();
      Scrivi(sinistra + 5, y, nome, Stile_Scritta::Piedino, Ancora::Sinistra);
      Scrivi_Operando(sinistra + larghezza - 5, y, r.Passo, n, Ancora::Destra);
      y -= 16;
      const std::string simbolo = nome_ ? nome_(Operando(r.Passo, n)) : std::string();
      if (simbolo.empty()) continue;
      Scrivi(sinistra + larghezza - 5, y + 3, simbolo, Stile_Scritta::Simbolo, Ancora::Destra);
      y -= 13;
    }
  }

  void Da_Solo(const Riquadro& r) {
    const double y = Y(r.Riga);
    Linea(X(0), y, X(0) + larghezza_cella / 2, y, -1);
    const double larghezza = 1.5 * larghezza_cella;
    const double sinistra = X(0) + larghezza_cella / 2;
    forme_.Cornici.push_back({sinistra, y - 14, larghezza, 28, -1, indice_});
    std::string testo = A_Utf8(r.Come.Segno);
    if (!r.Passo.Operandi.empty()) testo += "  " + Operando(r.Passo, 0);
    Scrivi(sinistra + larghezza / 2, y + 5, std::move(testo), Stile_Scritta::Nome);
  }

  const Disegno& disegno_;
  const Nome_Simbolico& nome_;
  Tratteggio_Rete forme_;
  int indice_ = -1;
};

}  // namespace

Tratteggio_Rete Traccia_Forme(const Disegno& disegno, const Nome_Simbolico& nome) {
  return Tracciatore(disegno, nome).Traccia();
}

}  // namespace tavorno
