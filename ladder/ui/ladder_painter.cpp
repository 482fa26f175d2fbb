// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/ui/ladder_painter.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QVector>
#include <algorithm>

#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr double tratto = 1.5, tratto_vivo = 2.75;
constexpr double sporge = 3;  // of a mark around a symbol

colori::Tinta Tinta(Stile_Scritta stile) {
  return stile == Stile_Scritta::Simbolo ? colori::Scala_Simbolo.Testo : colori::Scala_Testo.Testo;
}

/// The number behind an address.
QString Coda(const Stato_Rete& stato, std::size_t quale) {
  const QString valore = stato.Viva ? stato.Valori[static_cast<qsizetype>(quale)] : QString();
  return valore.isEmpty() ? valore : QStringLiteral(" = ") + valore;
}

class Pittura {
 public:
  Pittura(QPainter& pittore, const Rete_Foglio& rete, const Stato_Rete& stato, colori::Serie serie)
      : p_(pittore), rete_(rete), stato_(stato), serie_(serie) {}

  /// What stands behind the strokes: the chosen ones, the present one, contacts that let pass.
  void Fondi(const Segni_Rete& segni) {
    const int da = std::min(segni.Scelto, segni.Fino);
    const int a = std::max(segni.Scelto, segni.Fino);
    for (int n = std::max(da, 0); n <= a; ++n) Segna(n, colori::Scala_Scelta.Fondo);
    if (segni.Presente >= 0) Segna(segni.Presente, colori::Scala_Presente.Fondo);
    if (!stato_.Viva) return;
    for (int n = 0; n < rete_.Simboli(); ++n) {
      const auto indice = static_cast<std::size_t>(n);
      const Ruolo ruolo = rete_.Come.Riquadri[indice].Come.Cosa;
      if (!stato_.Flusso.Attivi[indice] || ruolo == Ruolo::Da_Solo) continue;
      const bool riquadro = ruolo == Ruolo::Scatola || ruolo == Ruolo::Contatore;
      const QRectF& cuore = rete_.Cuori[indice];
      p_.fillRect(riquadro ? cuore : cuore.adjusted(0, 3, 0, -3),
                  (riquadro ? colori::Scala_Agisce : colori::Scala_Passa).Di(serie_));
    }
  }

  void Cornici_Di_Scelta(const Segni_Rete& segni) {
    p_.setBrush(Qt::NoBrush);
    if (segni.Scelto < 0 || segni.Scelto >= rete_.Simboli()) return;
    p_.setPen(QPen(colori::Scala_Cursore.Di(serie_), 1.5, Qt::DashLine));
    p_.drawRect(Posto(segni.Scelto).adjusted(-sporge, -sporge, sporge, sporge));
  }

  void Tratti() {
    for (const bool viva : {false, true}) {
      // Along a row one stretch ends where the next begins; at corners the upright one reaches
      // over.
      QVector<QLineF> in_riga;
      QVector<QLineF> altre;
      for (const Asta& asta : rete_.Forme.Tratti) {
        if (Vivo(asta.Nodo) != viva) continue;
        (asta.Y1 == asta.Y2 ? in_riga : altre).append({asta.X1, asta.Y1, asta.X2, asta.Y2});
      }
      Penna(viva, Qt::FlatCap);
      p_.drawLines(in_riga);
      Penna(viva, Qt::SquareCap);
      p_.drawLines(altre);
      Curve(viva);
      Giunti(viva);
    }
  }

  void Scritte() {
    for (std::size_t n = 0; n < rete_.Scritte.size(); ++n) {
      const Scritta_Pronta& scritta = rete_.Scritte[n];
      const QString coda = Coda(stato_, n);
      const QRectF posto = Posto_Scritta(rete_, stato_, n);
      p_.setFont(Carattere_Scala(scritta.Stile));
      const QFontMetricsF misura(p_.font());
      const double prima = misura.horizontalAdvance(scritta.Testo);
      const double tutto = prima + misura.horizontalAdvance(coda);
      p_.save();
      p_.translate(posto.left(), scritta.Posto.y());
      if (tutto > posto.width()) p_.scale(posto.width() / tutto, 1);
      p_.setPen(Tinta(scritta.Stile).Di(serie_));
      p_.drawText(QPointF(0, 0), scritta.Testo);
      p_.setPen(colori::Scala_Valore.Testo.Di(serie_));
      p_.drawText(QPointF(prima, 0), coda);
      p_.restore();
    }
  }

 private:
  bool Vivo(Nodo_Elettrico nodo) const {
    return stato_.Viva && nodo >= 0 && stato_.Flusso.Vivi[static_cast<std::size_t>(nodo)];
  }
  QRectF Posto(int simbolo) const {
    const auto indice = static_cast<std::size_t>(simbolo);
    QRectF posto = rete_.Cuori[indice];
    // With its address and the plant's name, and wide enough for a stroke to be seen.
    const QRectF& cella = rete_.Celle[indice];
    posto.setTop(cella.top() + sporge + 1);
    posto.setBottom(std::max(posto.bottom(), std::min(cella.bottom(), posto.bottom() + 12)));
    const double manca = std::max(0.0, 64 - posto.width());
    posto.adjust(-manca / 2, 0, manca / 2, 0);
    // No edge through a number that is wider.
    for (std::size_t n = 0; n < rete_.Scritte.size(); ++n) {
      if (rete_.Scritte[n].Riquadro != simbolo || rete_.Scritte[n].Operando < 0) continue;
      const QRectF scritta = Posto_Scritta(rete_, stato_, n);
      posto.setLeft(std::min(posto.left(), scritta.left()));
      posto.setRight(std::max(posto.right(), scritta.right()));
    }
    return posto;
  }
  void Segna(int simbolo, const colori::Tinta& tinta) {
    if (simbolo < rete_.Simboli())
      p_.fillRect(Posto(simbolo).adjusted(-sporge, -sporge, sporge, sporge), tinta.Di(serie_));
  }
  void Penna(bool viva, Qt::PenCapStyle fine) {
    p_.setBrush(Qt::NoBrush);
    p_.setPen(QPen((viva ? colori::Scala_Vivo : colori::Scala_Testo).Testo.Di(serie_),
                   viva ? tratto_vivo : tratto, Qt::SolidLine, fine));
  }
  void Curve(bool vive) {
    for (const Cornice& cornice : rete_.Forme.Cornici)
      if (Vivo(cornice.Nodo) == vive)
        p_.drawRect(QRectF(cornice.X, cornice.Y, cornice.Larghezza, cornice.Altezza));
    for (const Parentesi& curva : rete_.Forme.Curve) {
      if (Vivo(curva.Nodo) != vive) continue;
      QPainterPath via(QPointF(curva.X + curva.Larghezza, curva.Y - curva.Altezza / 2));
      via.quadTo(curva.X - curva.Larghezza, curva.Y, curva.X + curva.Larghezza,
                 curva.Y + curva.Altezza / 2);
      p_.drawPath(via);
    }
  }

  void Giunti(bool vivi) {
    p_.setPen(Qt::NoPen);
    p_.setBrush((vivi ? colori::Scala_Vivo : colori::Scala_Testo).Testo.Di(serie_));
    for (const Giunto& giunto : rete_.Forme.Giunti)
      if (Vivo(giunto.Nodo) == vivi)
        p_.drawEllipse(QPointF(giunto.X, giunto.Y), raggio_giunto, raggio_giunto);
  }

  QPainter& p_;
  const Rete_Foglio& rete_;
  const Stato_Rete& stato_;
  colori::Serie serie_;
};

void Testata(QPainter& p, const Rete_Foglio& rete, const Segni_Rete& segni, double larghezza,
             colori::Serie serie) {
  const double sopra = rete.Y_Titolo - rete.Y - 16;
  if (segni.Rete_Presente)
    p.fillRect(QRectF(0, sopra, larghezza, 22), colori::Scala_Presente.Fondo.Di(serie));
  else if (segni.Rete_Scelta)
    p.fillRect(QRectF(0, sopra, larghezza, 22), colori::Scala_Scelta.Fondo.Di(serie));
  if (segni.Del_Cursore)
    p.fillRect(QRectF(4, sopra, 4, rete.Altezza - sopra - 4), colori::Scala_Cursore.Di(serie));
  const double x = Foglio_Scala::margine;
  if (!rete.Intestazione.isEmpty()) {
    QFont grande = Carattere_Scala(Stile_Scritta::Nome);
    grande.setPixelSize(16);
    p.setFont(grande);
    p.setPen(colori::Scala_Testo.Testo.Di(serie));
    p.drawText(QPointF(x, 26), rete.Intestazione);
  }
  p.setFont(Carattere_Scala(Stile_Scritta::Nome));
  p.setPen(colori::Scala_Testo.Testo.Di(serie));
  const QPointF posto(x, rete.Y_Titolo - rete.Y);
  p.drawText(posto, rete.Titolo);
  const double dopo = p.fontMetrics().horizontalAdvance(rete.Titolo) + 14;
  p.setFont(Carattere_Scala(Stile_Scritta::Indirizzo));
  p.setPen(colori::Scala_Commento.Testo.Di(serie));
  p.drawText(posto + QPointF(dopo, 0), rete.Commento);
}

void Elenco(QPainter& p, const Rete_Foglio& rete, colori::Serie serie) {
  QFont fisso(QStringLiteral("DejaVu Sans Mono"));
  fisso.setStyleHint(QFont::Monospace);
  fisso.setPixelSize(12);
  double y = 14;
  for (const QString& riga : rete.Lista) {
    p.setFont(y == 14 ? Carattere_Scala(Stile_Scritta::Indirizzo) : fisso);
    p.setPen((y == 14 ? colori::Scala_Commento : colori::Scala_Testo).Testo.Di(serie));
    p.drawText(QPointF(0, y), riga);
    y += 18;
  }
}

}  // namespace

Stato_Rete Stato_Di(const Rete_Foglio& rete, const Memoria& cpu) {
  Stato_Rete stato;
  if (!rete.Disegnata() || !In_Cpu(rete.Rete.Passi, cpu)) return stato;
  stato.Viva = true;
  stato.Flusso = Flusso_Di(rete.Come, cpu);
  for (const Scritta_Pronta& scritta : rete.Scritte) {
    const bool numero = scritta.Operando >= 0 && scritta.Riquadro >= 0;
    stato.Valori << (numero ? Q(Valore_Di(
                                  rete.Come.Riquadri[static_cast<std::size_t>(scritta.Riquadro)],
                                  static_cast<std::size_t>(scritta.Operando), cpu))
                            : QString());
  }
  return stato;
}

QRectF Posto_Scritta(const Rete_Foglio& rete, const Stato_Rete& stato, std::size_t quale) {
  const Scritta_Pronta& scritta = rete.Scritte[quale];
  const QFontMetricsF misura(Carattere_Scala(scritta.Stile));
  double larga = misura.horizontalAdvance(scritta.Testo + Coda(stato, quale));
  if (scritta.Spazio > 0) larga = std::min(larga, scritta.Spazio);
  const double x = scritta.Dove == Ancora::Centro   ? scritta.X - larga / 2
                   : scritta.Dove == Ancora::Destra ? scritta.X - larga
                                                    : scritta.X;
  return {x, scritta.Posto.y() - misura.ascent(), larga, misura.height()};
}

void Dipingi_Rete(QPainter& pittore, const Rete_Foglio& rete, const Stato_Rete& stato,
                  const Segni_Rete& segni, double larghezza, colori::Serie serie) {
  Testata(pittore, rete, segni, larghezza, serie);
  pittore.save();
  pittore.translate(Foglio_Scala::margine, rete.Y_Disegno - rete.Y);
  if (rete.Lista.isEmpty()) {
    Pittura pittura(pittore, rete, stato, serie);
    pittura.Fondi(segni);
    pittura.Tratti();
    pittura.Scritte();
    pittura.Cornici_Di_Scelta(segni);
  } else {
    Elenco(pittore, rete, serie);
  }
  pittore.restore();
}

}  // namespace tavorno
