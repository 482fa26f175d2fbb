// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/ui/ladder_sheet.h"

#include <QFontMetricsF>
#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "awl/screen_rows.h"
#include "ladder/to_list.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr double altezza_intestazione = 44;
constexpr double altezza_titolo = 32;
constexpr double altezza_riga_lista = 18;
constexpr double respiro = 14;  // below a network
constexpr double larghezza_minima = 600;
constexpr int pixel_testo = 12, pixel_piedino = 11;
constexpr double stacco_operandi = 3;

double Larghezza_Testo(const QString& testo, Stile_Scritta stile) {
  return QFontMetricsF(Carattere_Scala(stile)).horizontalAdvance(testo);
}

Scritta_Pronta Prepara(const Scritta& scritta) {
  Scritta_Pronta pronta;
  pronta.Testo = Q(scritta.Testo);
  pronta.Stile = scritta.Stile;
  pronta.Dove = scritta.Posto;
  pronta.X = scritta.X;
  pronta.Riquadro = scritta.Riquadro;
  pronta.Operando = scritta.Operando;
  const double lunga =
      scritta.Posto == Ancora::Sinistra ? 0 : Larghezza_Testo(pronta.Testo, scritta.Stile);
  pronta.Posto = {scritta.X - (scritta.Posto == Ancora::Centro ? lunga / 2 : lunga), scritta.Y};
  return pronta;
}

/// An operand and its number stay within their symbol's cells, and right of the name of their pin.
void Dai_Spazio(Rete_Foglio& rete) {
  for (Scritta_Pronta& operando : rete.Scritte) {
    if (operando.Operando < 0 || operando.Riquadro < 0) continue;
    const QRectF& cella = rete.Celle[static_cast<std::size_t>(operando.Riquadro)];
    operando.Spazio = cella.width() - 2 * stacco_operandi;
    if (operando.Dove != Ancora::Destra) continue;
    double da = cella.left();
    for (const Scritta_Pronta& altra : rete.Scritte)
      if (altra.Riquadro == operando.Riquadro && altra.Dove == Ancora::Sinistra &&
          altra.Posto.y() == operando.Posto.y())
        da = altra.Posto.x() + Larghezza_Testo(altra.Testo, altra.Stile);
    operando.Spazio = operando.X - da - 2 * stacco_operandi;
  }
}

/// What is between the two strokes of a contact, the brackets of a coil, the edges of a box.
std::vector<QRectF> Cuori_Di(const Disegno& disegno, const Tratteggio_Rete& forme) {
  std::vector<QRectF> cuori(disegno.Riquadri.size());
  const auto unisci = [&](int riquadro, const QRectF& parte) {
    if (riquadro < 0) return;
    QRectF& cuore = cuori[static_cast<std::size_t>(riquadro)];
    cuore = cuore.isNull() ? parte : cuore.united(parte);
  };
  for (const Asta& asta : forme.Tratti) {
    if (asta.X1 == asta.X2 && asta.Riquadro >= 0)
      unisci(asta.Riquadro, QRectF(asta.X1, asta.Y1, 1e-6, asta.Y2 - asta.Y1));
  }
  for (const Parentesi& curva : forme.Curve)
    unisci(curva.Riquadro, QRectF(curva.X, curva.Y - curva.Altezza / 2, 1e-6, curva.Altezza));
  for (const Cornice& cornice : forme.Cornici)
    unisci(cornice.Riquadro, QRectF(cornice.X, cornice.Y, cornice.Larghezza, cornice.Altezza));
  return cuori;
}

bool Stessi_Passi(const std::vector<Passo_Scala>& uni, const std::vector<Passo_Scala>& altri) {
  return std::ranges::equal(uni, altri, [](const Passo_Scala& uno, const Passo_Scala& altro) {
    return uno == altro && uno.Riga == altro.Riga;
  });
}

/// The texts and names that a sheet depends on.
std::vector<std::string> Testi_Di(const Stato_Progetto& progetto) {
  std::vector<std::string> testi{progetto.txtList};
  for (int n = 1; n <= progetto.Num_SBR; ++n) {
    testi.push_back(progetto.Tab_SBR[n].Nome);
    testi.push_back(progetto.Tab_SBR[n].Testo);
  }
  return testi;
}

}  // namespace

QFont Carattere_Scala(Stile_Scritta stile) {
  static const auto carattere = [](int pixel, bool grassetto) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixel);
    font.setBold(grassetto);
    return font;
  };
  static const QFont normale = carattere(pixel_testo, false);
  static const QFont grassetto = carattere(pixel_testo, true);
  static const QFont piedino = carattere(pixel_piedino, false);
  if (stile == Stile_Scritta::Nome) return grassetto;
  return stile == Stile_Scritta::Piedino ? piedino : normale;
}

int Rete_Foglio::Simbolo_Di_Riga(int riga) const {
  int trovato = -1;
  for (int n = 0; n < Simboli(); ++n) {
    const int sua = Come.Riquadri[static_cast<std::size_t>(n)].Passo.Riga;
    if (sua >= 0 && sua <= riga) trovato = n;
  }
  return trovato;
}

void Foglio_Scala::Disegna(Rete_Foglio& rete, const Nome_Simbolico& nome) const {
  if (!rete.Disegnata()) {
    const auto& motivo = std::get<Non_Disegnabile>(rete.Rete.Forma);
    rete.Lista
        << QStringLiteral("Resta in lista: %1 (riga %2).").arg(Q(motivo.Motivo)).arg(motivo.Riga);
    for (const Passo_Scala& passo : rete.Rete.Passi)
      rete.Lista << QStringLiteral("%1  %2").arg(passo.Riga).arg(Da_Byte(Come_Testo(passo)));
    return;
  }
  if (rete.Schema().empty()) return;
  rete.Come = Impagina(rete.Schema());
  rete.Forme = Traccia_Forme(rete.Come, nome);
  for (const Scritta& scritta : rete.Forme.Scritte) rete.Scritte.push_back(Prepara(scritta));
  for (const Riquadro& r : rete.Come.Riquadri)
    rete.Celle.emplace_back(margine_forme + r.Colonna * larghezza_cella, r.Riga * altezza_cella,
                            r.Larghezza * larghezza_cella, r.Altezza * altezza_cella);
  rete.Cuori = Cuori_Di(rete.Come, rete.Forme);
  Dai_Spazio(rete);
}

void Foglio_Scala::Disponi() {
  larghezza_ = larghezza_minima;
  double y = margine;
  for (Rete_Foglio& rete : reti_) {
    rete.Y = y;
    if (!rete.Intestazione.isEmpty()) y += altezza_intestazione;
    rete.Y_Titolo = y + altezza_titolo - 12;
    y += altezza_titolo;
    rete.Y_Disegno = y;
    y += rete.Disegnata() ? rete.Forme.Altezza
                          : altezza_riga_lista * static_cast<double>(rete.Lista.size());
    if (rete.Disegnata() && rete.Schema().empty()) y += altezza_cella / 2;
    y += respiro;
    rete.Altezza = y - rete.Y;
    double larga = rete.Forme.Larghezza;
    for (const QString& riga : rete.Lista)
      larga = std::max(larga, Larghezza_Testo(riga, Stile_Scritta::Indirizzo));
    larga =
        std::max(larga, Larghezza_Testo(rete.Titolo + "   " + rete.Commento, Stile_Scritta::Nome));
    larghezza_ = std::max(larghezza_, larga + 2 * margine);
  }
  altezza_ = y + margine;
}

bool Foglio_Scala::Componi(const Stato_Progetto& progetto, const Nome_Simbolico& nome) {
  std::vector<std::string> testi = Testi_Di(progetto);
  if (composto_ && testi == testi_) return false;
  if (!composto_) reti_.clear();
  composto_ = true;
  testi_ = std::move(testi);
  righe_ = Righe_A_Schermo(progetto);
  std::vector<Rete_Foglio> vecchie = std::exchange(reti_, {});
  pila_contesa_ = false;
  for (Blocco_Scala& blocco : Scala_Di(righe_)) {
    bool prima = true;
    for (Rete_Scala& rete : blocco.Reti) {
      const auto* motivo = std::get_if<Non_Disegnabile>(&rete.Forma);
      pila_contesa_ = pila_contesa_ || (motivo && motivo->Usa_Pila_Precedente);
      const auto nota = std::ranges::find_if(vecchie, [&](const Rete_Foglio& vecchia) {
        return !vecchia.Rete.Passi.empty() && vecchia.Disegnata() && rete.Forma.index() == 0 &&
               Stessi_Passi(vecchia.Rete.Passi, rete.Passi);
      });
      Rete_Foglio nuova;
      if (nota != vecchie.end()) {
        nuova = std::move(*nota);
        nuova.Rete = std::move(rete);
        nota->Rete.Passi.clear();
      } else {
        nuova.Rete = std::move(rete);
        Disegna(nuova, nome);
      }
      nuova.Testo = righe_[static_cast<std::size_t>(nuova.Rete.Riga)].Posto.Testo;
      nuova.Intestazione = !prima             ? QString()
                           : nuova.Testo == 0 ? QStringLiteral("Programma principale")
                                              : "Procedura " + Q(blocco.Nome);
      prima = false;
      nuova.Titolo = Q(nuova.Rete.Titolo);
      nuova.Commento = Q(nuova.Rete.Commento);
      reti_.push_back(std::move(nuova));
    }
  }
  Disponi();
  return true;
}

std::pair<std::size_t, std::size_t> Foglio_Scala::Fra(double sopra, double sotto) const {
  const auto primo = std::ranges::partition_point(
      reti_, [&](const Rete_Foglio& rete) { return rete.Y + rete.Altezza < sopra; });
  const auto ultimo = std::partition_point(
      primo, reti_.end(), [&](const Rete_Foglio& rete) { return rete.Y <= sotto; });
  return {static_cast<std::size_t>(primo - reti_.begin()),
          static_cast<std::size_t>(ultimo - reti_.begin())};
}

int Foglio_Scala::Rete_Di_Riga(int riga) const {
  for (std::size_t n = 0; n < reti_.size(); ++n)
    if (riga >= reti_[n].Rete.Riga && riga <= reti_[n].Rete.Ultima) return static_cast<int>(n);
  return -1;
}

int Foglio_Scala::Riga_Di(Posto_Riga posto) const {
  int trovata = -1;
  for (std::size_t n = 0; n < righe_.size(); ++n) {
    const Posto_Riga& suo = righe_[n].Posto;
    if (suo.Testo == posto.Testo && suo.Linea <= posto.Linea) trovata = static_cast<int>(n);
  }
  return trovata;
}

}  // namespace tavorno
