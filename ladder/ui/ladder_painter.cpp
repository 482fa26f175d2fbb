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
      const QString& valore = stato_.Viva ? stato_.Valori[static_cast<qsizetype>(n)] : QString();
      p_.setFont(Carattere_Scala(scritta.Stile));
      p_.setPen(Tinta(scritta.Stile).Di(serie_));
      if (valore.isEmpty()) {
        p_.drawText(scritta.Posto, scritta.Testo);
        continue;
      }
      // The number stands behind the address, and both where the address stood.
      const QString coda = QStringLiteral(" = ") + valore;
      const QFontMetricsF misura = p_.fontMetrics();
      const double prima = misura.horizontalAdvance(scritta.Testo);
      const double tutto = prima + misura.horizontalAdvance(coda);
      const double x = scritta.X - (scritta.Dove == Ancora::Centro   ? tutto / 2
                                    : scritta.Dove == Ancora::Destra ? tutto
                                                                     : 0);
      p_.drawText(QPointF(x, scritta.Posto.y()), scritta.Testo);
      p_.setPen(colori::Scala_Valore.Testo.Di(serie_));
      p_.drawText(QPointF(x + prima, scritta.Posto.y()), coda);
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
    return posto.adjusted(-manca / 2, 0, manca / 2, 0);
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
    p_.setBrush(QColor(vivi ? colori::Scala_Vivo.Testo : colori::Scala_Testo.Testo));
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
