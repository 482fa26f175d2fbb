// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "trace/markup.h"
#include "trace/wave_strokes.h"

namespace tavorno {

namespace {

using Tipo = Pezzo_Disegno::Tipo;
using Ancora = Pezzo_Disegno::Ancora;
using Cursore = Diagramma_Tempi::Cursore;

constexpr double asse = Misura_Disegno::Asse;
constexpr double alta_bandiera = 17;
constexpr double corpo_piccolo = 12;

class Pittore_Tempi {
 public:
  Pittore_Tempi(const Diagramma_Tempi& diagramma, const Misura_Disegno& misura)
      : d_(diagramma),
        misura_(misura),
        righe_(diagramma.Righe()),
        inizio_(diagramma.Dati().Inizio()),
        basso_(std::min(misura.Alta, asse + diagramma.Alto() - misura.Scorrimento)) {}

  Disegno_Tempi Disegna() {
    Rettangolo(Tinta_Tempi::Fondo, 0, 0, misura_.Larga, misura_.Alta);
    Rettangolo(Tinta_Tempi::Fondo_Nomi, 0, asse, misura_.Nomi, misura_.Alta);
    Fra_Cursori();
    Fondi_Righe();
    Griglia();
    for (const Riga_Diagramma& riga : righe_) {
      const double y = Y(riga);
      if (y + riga.Alta > asse && y < misura_.Alta)
        riga.Titolo() ? Titolo(riga) : Segnale_Riga(riga);
    }
    Linea(Tinta_Tempi::Griglia, misura_.Nomi, 0, misura_.Nomi, misura_.Alta);
    Segni();
    Asse();
    Bandiere();
    return std::move(disegno_);
  }

 private:
  double X(double ms) const { return misura_.Nomi + d_.Vista.X(ms); }
  double X(std::int64_t ms) const { return X(static_cast<double>(ms)); }
  double Y(const Riga_Diagramma& riga) const { return asse + riga.Y - misura_.Scorrimento; }
  bool In_Vista(double x) const { return x >= misura_.Nomi && x <= misura_.Larga; }

  void Rettangolo(Tinta_Tempi tinta, double x1, double y1, double x2, double y2) {
    disegno_.push_back({.Tinta = tinta, .Punti = {{x1, y1}, {x2, y2}}, .Testo = {}});
  }
  void Linea(Tinta_Tempi tinta, double x1, double y1, double x2, double y2, double spessore = 1,
             bool tratteggio = false) {
    disegno_.push_back({.Cosa = Tipo::Spezzata,
                        .Tinta = tinta,
                        .Punti = {{x1, y1}, {x2, y2}},
                        .Spessore = spessore,
                        .Tratteggio = tratteggio,
                        .Testo = {}});
  }
  void Scritta(Tinta_Tempi tinta, double x, double y, const std::string& testo, double corpo = 12,
               Ancora dove = Ancora::Sinistra, bool grassetto = false) {
    disegno_.push_back({.Cosa = Tipo::Testo,
                        .Tinta = tinta,
                        .Punti = {{x, y}},
                        .Testo = testo,
                        .Corpo = corpo,
                        .Grassetto = grassetto,
                        .Dove = dove});
  }
  double Lunga(const std::string& testo, double corpo = 12) const {
    return static_cast<double>(Lunghezza_Utf8(testo)) * misura_.Per_Lettera * corpo / 12;
  }
  /// The text, cut to a width.
  std::string In(const std::string& testo, double larga) const {
    const auto posti = static_cast<std::size_t>(std::max(0.0, larga / misura_.Per_Lettera));
    if (Lunghezza_Utf8(testo) <= posti) return testo;
    return posti < 2 ? "" : Primi_Utf8(testo, posti - 1) + "…";
  }

  void Fra_Cursori() {
    if (!d_.A || !d_.B) return;
    const double x1 = std::clamp(X(std::min(*d_.A, *d_.B)), misura_.Nomi, misura_.Larga);
    const double x2 = std::clamp(X(std::max(*d_.A, *d_.B)), misura_.Nomi, misura_.Larga);
    if (x2 > x1) Rettangolo(Tinta_Tempi::Fra_Cursori, x1, asse, x2, basso_);
  }

  void Fondi_Righe() {
    for (std::size_t n = 0; n < righe_.size(); ++n) {
      const double y = Y(righe_[n]);
      if (y + righe_[n].Alta <= asse || y >= misura_.Alta) continue;
      if (righe_[n].Titolo())
        Rettangolo(Tinta_Tempi::Fondo_Gruppo, 0, y, misura_.Larga, y + righe_[n].Alta);
      if (d_.Scelta() == n) Rettangolo(Tinta_Tempi::Scelta, 0, y, misura_.Nomi, y + righe_[n].Alta);
      Linea(Tinta_Tempi::Riga, 0, y + righe_[n].Alta, misura_.Larga, y + righe_[n].Alta);
    }
  }

  std::int64_t Passo() const { return Passo_Tacche(92 * d_.Vista.Per_Punto); }

  template <class Fai>
  void Tacche(std::int64_t passo, Fai fai) const {
    const auto da = static_cast<std::int64_t>(std::floor(d_.Vista.Da)) - inizio_;
    const auto a = static_cast<std::int64_t>(std::ceil(d_.Vista.A())) - inizio_;
    for (std::int64_t ms = std::max<std::int64_t>(0, da / passo * passo); ms <= a; ms += passo) {
      const double x = X(ms + inizio_);
      if (In_Vista(x)) fai(ms, x);
    }
  }

  void Griglia() {
    const double ignoto_da = std::clamp(X(inizio_), misura_.Nomi, misura_.Larga);
    if (ignoto_da > misura_.Nomi)
      Rettangolo(Tinta_Tempi::Ignoto, misura_.Nomi, asse, ignoto_da, basso_);
    if (d_.Griglia_Scansioni && d_.Vista.Per_Punto <= 0.25) {
      const auto inizi =
          d_.Dati().Inizi_Scansione().Fra(static_cast<std::int64_t>(std::floor(d_.Vista.Da)),
                                          static_cast<std::int64_t>(std::ceil(d_.Vista.A())),
                                          static_cast<std::size_t>(misura_.Larga / 4));
      for (const std::int64_t ms : inizi) {
        if (In_Vista(X(ms))) Linea(Tinta_Tempi::Scansione, X(ms), asse, X(ms), basso_);
      }
    }
    Tacche(Passo(),
           [&](std::int64_t, double x) { Linea(Tinta_Tempi::Griglia, x, asse, x, basso_); });
  }

  // ---- rows
  // --------------------------------------------------------------------------------------

  void Titolo(const Riga_Diagramma& riga) {
    const Gruppo_Diagramma& gruppo = d_.Gruppi()[riga.Gruppo];
    const double y = Y(riga), mezzo = y + riga.Alta / 2;
    const std::vector<Punto_Disegno> freccia =
        gruppo.Chiuso
            ? std::vector<Punto_Disegno>{{9, mezzo - 4.5}, {15, mezzo}, {9, mezzo + 4.5}}
            : std::vector<Punto_Disegno>{{7.5, mezzo - 3}, {16.5, mezzo - 3}, {12, mezzo + 3}};
    disegno_.push_back(
        {.Cosa = Tipo::Area, .Tinta = Tinta_Tempi::Tenue, .Punti = freccia, .Testo = {}});
    Scritta(Tinta_Tempi::Inchiostro, 22, mezzo + 4.2,
            gruppo.Nome + "  (" + std::to_string(gruppo.Voci.size()) + ")", 12, Ancora::Sinistra,
            true);
    if (!gruppo.Chiuso) return;
    for (const Voce_Diagramma& voce : gruppo.Voci)
      Traccia_Attivita(disegno_, d_.Dati().Quando(voce.Segnale), d_.Vista, d_.Dati().Fine(),
                       {misura_.Nomi, misura_.Larga, mezzo - 4, mezzo + 4},
                       Tinte_Di(d_.Dati().Chi(voce.Segnale).Dove).Linea);
  }

  /// The columns of the values at the right of the names: one, or one for each cursor.
  void Valori(const Riga_Diagramma& riga, double base) {
    const bool due = d_.A && d_.B;
    double destra = misura_.Nomi - 8;
    if (due) {
      Scritta(Tinta_Tempi::Cursore_B, destra, base, d_.Valore_A(riga, Cursore::B), 12,
              Ancora::Destra);
      destra -= 66;
      Scritta(Tinta_Tempi::Cursore_A, destra, base, d_.Valore_A(riga, Cursore::A), 12,
              Ancora::Destra);
      return;
    }
    const Cursore quale = d_.B ? Cursore::B : Cursore::A;
    const Tinta_Tempi tinta = d_.B   ? Tinta_Tempi::Cursore_B
                              : d_.A ? Tinta_Tempi::Cursore_A
                                     : Tinta_Tempi::Inchiostro;
    Scritta(tinta, destra, base, d_.Valore_A(riga, quale), 12, Ancora::Destra, !d_.A && !d_.B);
  }

  void Segnale_Riga(const Riga_Diagramma& riga) {
    const Segnale& segnale = *d_.Segnale_Di(riga);
    const Onda& onda = *d_.Onda_Di(riga);
    const Tinte_Onda tinte = Tinte_Di(segnale.Dove);
    const double y = Y(riga), basso = y + riga.Alta;
    const double base = riga.Alta > 40 ? y + 20 : y + riga.Alta / 2 + 4.2;
    const bool due = d_.A && d_.B;
    Rettangolo(tinte.Linea, 0, y, 4, basso);
    const double fine_nomi = misura_.Nomi - (due ? 136 : 76);
    double x = 22;
    if (segnale.Ha_Simbolo()) {
      const std::string nome = In(segnale.Nome, (fine_nomi - x) * 0.6);
      Scritta(Tinta_Tempi::Inchiostro, x, base, nome, 12, Ancora::Sinistra, true);
      x = std::max(x + 84, x + Lunga(nome) * 1.1 + 8);
      Scritta(Tinta_Tempi::Tenue, x, base, In(segnale.Indirizzo, fine_nomi - x), corpo_piccolo);
    } else {
      Scritta(Tinta_Tempi::Inchiostro, x, base, In(segnale.Nome, fine_nomi - x), 12,
              Ancora::Sinistra, true);
    }
    Valori(riga, base);
    Non_Registrato(onda, y, basso);

    const std::int64_t fine = d_.Dati().Fine();
    const Posto_Onda posto{misura_.Nomi, misura_.Larga, y + 5, basso - 5};
    switch (d_.Voce(riga)->Come) {
      case Forma::Bit:
        return Traccia_Bit(disegno_, onda, d_.Vista, fine, posto, tinte);
      case Forma::Valori:
        return Traccia_Valori(disegno_, segnale, onda, d_.Vista, fine, posto, tinte,
                              misura_.Per_Lettera);
      case Forma::Curva:
        Curva(segnale, onda, posto, tinte);
    }
  }

  void Curva(const Segnale& segnale, const Onda& onda, const Posto_Onda& posto,
             const Tinte_Onda& tinte) {
    auto [minimo, massimo] = onda.Estremi();
    minimo = std::min(minimo, 0.0);
    massimo = std::max(massimo, segnale.Analogico() ? 10.0 : 1.0);
    Scritta(Tinta_Tempi::Tenue, 22, posto.Basso - 14, "max " + Testo_Valore(segnale, massimo),
            corpo_piccolo);
    Scritta(Tinta_Tempi::Tenue, 22, posto.Basso, "min " + Testo_Valore(segnale, minimo),
            corpo_piccolo);
    const double zero = posto.Basso + minimo * (posto.Basso - posto.Alto) / (massimo - minimo);
    Linea(Tinta_Tempi::Griglia, posto.Sinistra, zero, posto.Destra, zero);
    Traccia_Curva(disegno_, onda, d_.Vista, d_.Dati().Fine(), posto, tinte, minimo, massimo);
  }

  void Non_Registrato(const Onda& onda, double y, double basso) {
    const double da = onda.Vuota() ? misura_.Larga : X(onda.Inizio());
    const double x1 = std::clamp(X(inizio_), misura_.Nomi, misura_.Larga);
    const double x2 = std::clamp(da, misura_.Nomi, misura_.Larga);
    if (x2 > x1) Rettangolo(Tinta_Tempi::Ignoto, x1, y + 1, x2, basso);
  }

  // ---- marks and axis
  // ----------------------------------------------------------------------------

  struct Segno {
    std::optional<std::int64_t> Ms;
    Tinta_Tempi Tinta;
    const char* Nome;
    bool Tratteggio;
  };
  std::array<Segno, 5> Tutti_I_Segni() const {
    return {{{d_.Passato, Tinta_Tempi::Segno, "passato", false},
             {d_.Trovato, Tinta_Tempi::Trovato, "trovato", true},
             {d_.Scattato, Tinta_Tempi::Segno, "trigger", true},
             {d_.A, Tinta_Tempi::Cursore_A, "A", false},
             {d_.B, Tinta_Tempi::Cursore_B, "B", false}}};
  }

  void Segni() {
    const double presente = X(d_.Dati().Fine());
    if (!d_.Dati().Vuota() && In_Vista(presente))
      Linea(Tinta_Tempi::Tenue, presente, asse, presente, basso_, 1, true);
    for (const Segno& segno : Tutti_I_Segni()) {
      if (segno.Ms && In_Vista(X(*segno.Ms)))
        Linea(segno.Tinta, X(*segno.Ms), asse - 4, X(*segno.Ms), basso_, 1.5, segno.Tratteggio);
    }
  }

  void Asse() {
    Rettangolo(Tinta_Tempi::Fondo_Asse, 0, 0, misura_.Larga, asse);
    Linea(Tinta_Tempi::Griglia, 0, asse, misura_.Larga, asse);
    Linea(Tinta_Tempi::Griglia, misura_.Nomi, 0, misura_.Nomi, asse);
    const double base = asse - 9;
    Scritta(Tinta_Tempi::Tenue, 8, base, "Segnale", corpo_piccolo);
    const bool due = d_.A && d_.B;
    const double destra = misura_.Nomi - 8;
    if (due)
      Scritta(Tinta_Tempi::Cursore_A, destra - 66, base, "in A", corpo_piccolo, Ancora::Destra);
    const char* colonna = due || d_.B ? "in B" : d_.A ? "in A" : d_.Passato ? "passato" : "adesso";
    Scritta(due || d_.B ? Tinta_Tempi::Cursore_B
            : d_.A      ? Tinta_Tempi::Cursore_A
                        : Tinta_Tempi::Tenue,
            destra, base, colonna, corpo_piccolo, Ancora::Destra);
    const std::int64_t passo = Passo();
    Tacche(passo, [&](std::int64_t ms, double x) {
      Linea(Tinta_Tempi::Tenue, x, asse - 6, x, asse);
      const std::string testo = Testo_Tacca(ms, passo);
      const double mezza = Lunga(testo, corpo_piccolo) / 2;
      if (x - mezza > misura_.Nomi && x + mezza < misura_.Larga)
        Scritta(Tinta_Tempi::Tenue, x, base, testo, corpo_piccolo, Ancora::Mezzo);
    });
  }

  /// Each mark's name and time stand above the axis; those that are hidden under another move to
  /// its left.
  void Bandiere() {
    double libera = misura_.Nomi;
    std::vector<Segno> visti;
    for (const Segno& segno : Tutti_I_Segni()) {
      if (segno.Ms && In_Vista(X(*segno.Ms))) visti.push_back(segno);
    }
    std::ranges::stable_sort(visti, {}, [](const Segno& segno) { return *segno.Ms; });
    for (const Segno& segno : visti) {
      const std::string testo = std::string(segno.Nome) + "  " + Testo_Istante(*segno.Ms - inizio_);
      const double larga = Lunga(testo, corpo_piccolo) + 12;
      const double x = X(*segno.Ms);
      const double da = std::clamp(std::max(x - larga / 2, libera), misura_.Nomi,
                                   std::max(misura_.Nomi, misura_.Larga - larga));
      Rettangolo(segno.Tinta, da, 2, da + larga, 2 + alta_bandiera);
      Linea(segno.Tinta, x, 2 + alta_bandiera, x, asse, 1.5);
      Scritta(Tinta_Tempi::Bianco, da + larga / 2, 2 + alta_bandiera - 4.6, testo, corpo_piccolo,
              Ancora::Mezzo, true);
      libera = da + larga + 2;
    }
  }

  const Diagramma_Tempi& d_;
  const Misura_Disegno& misura_;
  std::vector<Riga_Diagramma> righe_;
  std::int64_t inizio_;
  double basso_;  // where the rows end
  Disegno_Tempi disegno_;
};

}  // namespace

Disegno_Tempi Disegna(const Diagramma_Tempi& diagramma, const Misura_Disegno& misura) {
  return Pittore_Tempi(diagramma, misura).Disegna();
}

}  // namespace tavorno
