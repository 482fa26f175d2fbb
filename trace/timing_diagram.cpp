// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdio>

#include "trace/markup.h"
#include "trace/time_scale.h"
#include "trace/timing_layout.h"
#include "trace/trace.h"

namespace tavorno {

namespace {

// All in the units of the drawing.
constexpr double margine = 16, margine_destro = 30;  // half a time stands beyond the axis
constexpr double larghezza_nomi = inizio_asse - margine;
constexpr double altezza_bit = 24, onda_bit = 14;
constexpr double altezza_analogica = 72, onda_analogica = 56;
constexpr double alto_righe = fine_testata + 6;
constexpr double larghezza_minima = 760, larghezza_massima = 6000;
constexpr double per_secondo = 18;
constexpr double passo_tacche = 70;  // at least
constexpr double fine_tratto = 0.4;  // changes closer than this become one stroke

constexpr const char* carattere = R"(font-family="DejaVu Sans, Liberation Sans, sans-serif")";
constexpr const char* inchiostro = "#2f2c28";
constexpr const char* grigio = "#6b665e";
constexpr const char* griglia = "#dcd8cf";

struct Tinta {
  const char* Linea;
  const char* Fondo;
};
constexpr Tinta tinta_ingressi = {"#1f6f9e", "#d5e6f0"};
constexpr Tinta tinta_uscite = {"#b3541e", "#f6dfce"};

const Tinta& Tinta_Di(const Segnale& segnale) {
  return segnale.Uscita() ? tinta_uscite : tinta_ingressi;
}

std::string Cifre(double valore) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.1f", valore);
  std::string cifre = testo;
  if (cifre.ends_with(".0")) cifre.resize(cifre.size() - 2);
  return cifre;
}

class Foglio {
 public:
  void Linea(double x1, double y1, double x2, double y2, const char* colore, double spessore = 1) {
    testo_ += "<line x1=\"" + Cifre(x1) + "\" y1=\"" + Cifre(y1) + "\" x2=\"" + Cifre(x2) +
              "\" y2=\"" + Cifre(y2) + "\" stroke=\"" + colore + "\" stroke-width=\"" +
              Cifre(spessore) + "\"/>\n";
  }
  void Scritta(double x, double y, const std::string& testo, int altezza, const char* colore,
               const char* ancora = "start", const char* peso = "normal") {
    testo_ += "<text x=\"" + Cifre(x) + "\" y=\"" + Cifre(y) + "\" " + carattere + " font-size=\"" +
              std::to_string(altezza) + "\" font-weight=\"" + peso + "\" fill=\"" + colore +
              "\" text-anchor=\"" + ancora + "\">" + In_Xml(testo) + "</text>\n";
  }
  void Tratto(const std::string& percorso, const char* linea, const char* fondo) {
    testo_ += "<path d=\"" + percorso + "\" stroke=\"" + linea + "\" fill=\"" + fondo +
              "\" stroke-width=\"1.5\" stroke-linejoin=\"round\"/>\n";
  }
  void Segno(double x, double alto, double basso) {
    testo_ += "<line class=\"segno\" x1=\"" + Cifre(x) + "\" y1=\"" + Cifre(alto) + "\" x2=\"" +
              Cifre(x) + "\" y2=\"" + Cifre(basso) +
              "\" stroke=\"#c0281c\" stroke-width=\"2\" stroke-dasharray=\"6 3\"/>\n";
  }
  const std::string& Testo() const { return testo_; }

 private:
  std::string testo_;
};

class Disegno_Tempi {
 public:
  Disegno_Tempi(const Traccia& traccia, const std::string& titolo, std::int64_t segno)
      : traccia_(traccia), titolo_(titolo), segno_(segno) {
    durata_ = static_cast<double>(std::max<std::int64_t>(traccia.Durata(), 1));
    largo_ = std::clamp(durata_ / 1000 * per_secondo, larghezza_minima, larghezza_massima);
    cambi_.resize(traccia.Segnali().size());
    for (const Cambio_Segnale& cambio : traccia.Cambi()) cambi_[cambio.Quale].push_back(cambio);
  }

  std::string Disegna() {
    double alto = alto_righe;
    for (std::size_t n = 0; n < cambi_.size(); ++n) {
      if (Da_Mostrare(n))
        alto += traccia_.Segnali()[n].Analogico() ? altezza_analogica : altezza_bit;
    }
    const double larghezza = margine + larghezza_nomi + largo_ + margine_destro;
    const double altezza = alto + margine * 1.5;
    Intestazione();
    Asse(alto);
    double y = alto_righe;
    for (std::size_t n = 0; n < cambi_.size(); ++n) {
      if (!Da_Mostrare(n)) continue;
      const bool analogico = traccia_.Segnali()[n].Analogico();
      analogico ? Analogico(n, y) : Bit(n, y);
      y += analogico ? altezza_analogica : altezza_bit;
    }
    Casi(alto);
    if (segno_ >= 0) foglio_.Segno(X(segno_), alto_righe - 6, alto);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           Cifre(larghezza) + "\" height=\"" + Cifre(altezza) + "\" viewBox=\"0 0 " +
           Cifre(larghezza) + " " + Cifre(altezza) + "\">\n<rect width=\"" + Cifre(larghezza) +
           "\" height=\"" + Cifre(altezza) + "\" fill=\"#ffffff\"/>\n" + foglio_.Testo() +
           "</svg>\n";
  }

 private:
  double X(std::int64_t ms) const {
    return margine + larghezza_nomi + static_cast<double>(ms) / durata_ * largo_;
  }

  /// Points without a symbol show only when something happens on them.
  bool Da_Mostrare(std::size_t n) const {
    const Segnale& segnale = traccia_.Segnali()[n];
    if (segnale.Nome != segnale.Indirizzo) return true;
    return std::ranges::any_of(cambi_[n], [](const auto& c) { return c.Valore != 0; });
  }

  void Intestazione() {
    foglio_.Scritta(margine, margine + 14, titolo_, 16, inchiostro, "start", "bold");
  }

  void Asse(double basso) {
    const std::int64_t passo = Passo_Tacche(passo_tacche / largo_ * durata_);
    for (std::int64_t ms = 0; ms <= traccia_.Durata(); ms += passo) {
      foglio_.Linea(X(ms), alto_righe - 6, X(ms), basso, griglia);
      foglio_.Scritta(X(ms), alto_righe - 12, Testo_Tacca(ms, passo), 11, grigio, "middle");
    }
  }

  void Nome(std::size_t n, double y, double centro) {
    const Segnale& segnale = traccia_.Segnali()[n];
    foglio_.Linea(margine, y, margine + larghezza_nomi + largo_, y, griglia);
    const bool simbolo = segnale.Nome != segnale.Indirizzo;
    foglio_.Scritta(margine, centro, segnale.Nome, 12, inchiostro, "start", "bold");
    if (simbolo) foglio_.Scritta(margine + 92, centro, segnale.Indirizzo, 11, grigio);
  }

  /// The strokes of one signal within each case; `f` gives the height of a value.
  template <class Altezza>
  std::string Percorso(std::size_t n, Altezza f, double base, bool chiuso) const {
    std::string percorso;
    std::size_t primo = 0;
    const auto& cambi = cambi_[n];
    for (const Caso_Registrato& caso : traccia_.Casi()) {
      bool aperto = false;
      double x = 0, inizio = 0;
      for (; primo < cambi.size() && cambi[primo].Ms <= caso.Fine; ++primo) {
        const double nuova_x = X(cambi[primo].Ms);
        if (!aperto) {
          inizio = x = nuova_x;
          percorso += "M" + Cifre(x) + " " + Cifre(chiuso ? base : f(cambi[primo].Valore));
          aperto = true;
        } else if (nuova_x - x >= fine_tratto) {
          x = nuova_x;
          percorso += "H" + Cifre(x);
        }
        percorso += "V" + Cifre(f(cambi[primo].Valore));
      }
      if (!aperto) continue;
      percorso += "H" + Cifre(X(caso.Fine));
      if (chiuso) percorso += "V" + Cifre(base) + "H" + Cifre(inizio) + "Z";
    }
    return percorso;
  }

  void Bit(std::size_t n, double y) {
    const double base = y + altezza_bit - 5;
    Nome(n, y, y + 16);
    const Tinta& tinta = Tinta_Di(traccia_.Segnali()[n]);
    const auto f = [&](double valore) { return valore != 0 ? base - onda_bit : base; };
    foglio_.Tratto(Percorso(n, f, base, true), "none", tinta.Fondo);
    foglio_.Tratto(Percorso(n, f, base, false), tinta.Linea, "none");
  }

  void Analogico(std::size_t n, double y) {
    Nome(n, y, y + 20);
    const double base = y + altezza_analogica - 8;
    const Tinta& tinta = Tinta_Di(traccia_.Segnali()[n]);
    double massimo = 10, minimo = 0;
    for (const Cambio_Segnale& cambio : cambi_[n]) {
      massimo = std::max(massimo, cambio.Valore);
      minimo = std::min(minimo, cambio.Valore);
    }
    const double scala = onda_analogica / (massimo - minimo);
    const auto f = [&](double valore) { return base - (valore - minimo) * scala; };
    const double destra = margine + larghezza_nomi - 6;
    foglio_.Scritta(destra, f(massimo) + 9, Con_Virgola(massimo), 10, grigio, "end");
    foglio_.Scritta(destra, f(minimo), Con_Virgola(minimo), 10, grigio, "end");
    if (minimo < 0) {
      foglio_.Linea(margine + larghezza_nomi, f(0), margine + larghezza_nomi + largo_, f(0),
                    griglia);
      if (f(minimo) - f(0) > 14 && f(0) - f(massimo) > 20)
        foglio_.Scritta(destra, f(0) + 4, "0", 10, grigio, "end");
    }
    foglio_.Scritta(margine, y + 36, "volt", 11, grigio);
    foglio_.Tratto(Percorso(n, f, f(0), true), "none", tinta.Fondo);
    foglio_.Tratto(Percorso(n, f, f(0), false), tinta.Linea, "none");
  }

  void Casi(double basso) {
    for (const Caso_Registrato& caso : traccia_.Casi()) {
      const double x = X(caso.Inizio);
      foglio_.Linea(x, margine + 30, x, alto_righe - 24, grigio);  // not through the times
      foglio_.Linea(x, alto_righe - 6, x, basso, grigio);
      const auto posto = static_cast<std::size_t>(std::max(0.0, (X(caso.Fine) - x - 8) / 6.4));
      std::string nome = caso.Nome;
      if (Lunghezza_Utf8(nome) > posto) nome = posto < 3 ? "" : Primi_Utf8(nome, posto - 1) + "…";
      foglio_.Scritta(x + 4, margine + 42, nome, 11, inchiostro);
    }
    foglio_.Linea(margine, basso, margine + larghezza_nomi + largo_, basso, griglia);
  }

  const Traccia& traccia_;
  const std::string& titolo_;
  std::int64_t segno_;
  double durata_ = 1, largo_ = 1;
  std::vector<std::vector<Cambio_Segnale>> cambi_;  // by signal
  Foglio foglio_;
};

}  // namespace

std::string Diagramma_Svg(const Traccia& traccia, const std::string& titolo, std::int64_t segno) {
  return Disegno_Tempi(traccia, titolo, segno).Disegna();
}

}  // namespace tavorno
