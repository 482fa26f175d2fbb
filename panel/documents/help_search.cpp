// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/help_search.h"

#include <QFileInfo>
#include <QUrl>
#include <algorithm>
#include <optional>

#include "panel/documents/help_folder.h"
#include "panel/documents/html_text.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr qsizetype prima_del_trovato = 60;
constexpr qsizetype lunghezza_estratto = 220;
constexpr qsizetype paragrafo_lungo = 50;
constexpr int peso_titolo = 20;

/// A text without capitals and accents, and for each of its characters the one it comes from.
struct Piegato {
  QString Testo;
  QVector<qsizetype> Origine;
};

Piegato Piega(const QString& testo) {
  Piegato piegato;
  piegato.Testo.reserve(testo.size());
  piegato.Origine.reserve(testo.size());
  for (qsizetype i = 0; i < testo.size(); ++i) {
    const QChar carattere = testo[i] == QChar(0x2019) ? QChar('\'') : testo[i];
    const QString parti = carattere.unicode() < 0x80
                              ? QString(carattere)
                              : QString(carattere).normalized(QString::NormalizationForm_KD);
    for (const QChar parte : parti) {
      if (parte.isMark()) continue;
      piegato.Testo += parte.toCaseFolded();
      piegato.Origine += i;
    }
  }
  return piegato;
}

struct Tratto {
  qsizetype Da;
  qsizetype A;  // one past the end
};

// Places of all words in the unfolded text, in its order and without overlaps; none when one of the
// words is missing.
QVector<Tratto> Tratti(const Piegato& piegato, const QStringList& parole) {
  QVector<Tratto> tratti;
  for (const QString& parola : parole) {
    qsizetype posto = piegato.Testo.indexOf(parola);
    if (posto < 0) return {};
    for (; posto >= 0; posto = piegato.Testo.indexOf(parola, posto + parola.size()))
      tratti += {piegato.Origine[posto], piegato.Origine[posto + parola.size() - 1] + 1};
  }
  std::sort(tratti.begin(), tratti.end(), [](const Tratto& a, const Tratto& b) {
    return a.Da != b.Da ? a.Da < b.Da : a.A > b.A;
  });
  qsizetype fine = 0;
  QVector<Tratto> staccati;
  for (const Tratto& tratto : tratti) {
    if (tratto.Da < fine) continue;
    staccati += tratto;
    fine = tratto.A;
  }
  return staccati;
}

// The first hit within a sentence tells more than one in a heading or a row of links.
const Tratto& Piu_Chiaro(const QString& testo, const QVector<Tratto>& tratti) {
  for (const Tratto& tratto : tratti) {
    const qsizetype inizio = testo.lastIndexOf('\n', tratto.Da) + 1;
    const qsizetype fine = testo.indexOf('\n', tratto.A);
    if ((fine < 0 ? testo.size() : fine) - inizio >= paragrafo_lungo) return tratto;
  }
  return tratti.constFirst();
}

QString Html(const QString& testo) {
  return testo.toHtmlEscaped().replace('\n', Q(" · "));
}

QString Estratto(const QString& testo, const QVector<Tratto>& tratti) {
  const Tratto& chiaro = Piu_Chiaro(testo, tratti);
  const qsizetype paragrafo = testo.lastIndexOf('\n', chiaro.Da) + 1;
  qsizetype da = std::max(paragrafo, chiaro.Da - prima_del_trovato);
  if (da > paragrafo) da = std::min(testo.indexOf(' ', da) + 1, chiaro.Da);
  qsizetype a = std::min(testo.size(), std::max(da + lunghezza_estratto, chiaro.A));
  if (a < testo.size()) a = std::max(testo.lastIndexOf(' ', a), chiaro.A);
  QString html = da > paragrafo ? Q("… ") : QString();
  qsizetype scritto = da;
  for (const Tratto& tratto : tratti) {
    if (tratto.Da < da || tratto.A > a) continue;
    html += Html(testo.mid(scritto, tratto.Da - scritto)) + Q("<span class=\"trovato\">") +
            Html(testo.mid(tratto.Da, tratto.A - tratto.Da)) + Q("</span>");
    scritto = tratto.A;
  }
  html += Html(testo.mid(scritto, a - scritto));
  return a < testo.size() ? html + Q(" …") : html;
}

std::optional<Trovata> Cerca_In(const Guida& guida, const QString& file,
                                const QStringList& parole) {
  const std::optional<QByteArray> byte = Leggi(guida, QUrl::fromLocalFile(file));
  if (!byte) return std::nullopt;
  const QString html = Decodifica_Html(*byte);
  QString titolo = Titolo_Html(html);
  if (titolo.isEmpty()) titolo = QFileInfo(file).fileName();
  // The title belongs to the text, so that words may stand partly here and partly there.
  const QString testo = titolo + '\n' + Testo_Html(html);
  const QVector<Tratto> tratti = Tratti(Piega(testo), parole);
  if (tratti.isEmpty()) return std::nullopt;
  int volte = 0;
  QVector<Tratto> nel_corpo;
  for (const Tratto& tratto : tratti) {
    const bool nel_titolo = tratto.Da < titolo.size();
    volte += nel_titolo ? peso_titolo : 1;
    if (!nel_titolo) nel_corpo += tratto;
  }
  return Trovata{file, titolo, Estratto(testo, nel_corpo.isEmpty() ? tratti : nel_corpo), volte};
}

}  // namespace

QVector<Trovata> Cerca(const Guida& guida, const QString& parole) {
  const QStringList piegate = Piega(parole).Testo.split(' ', Qt::SkipEmptyParts);
  QVector<Trovata> trovate;
  if (piegate.isEmpty()) return trovate;
  for (const QString& file : Pagine(guida))
    if (auto trovata = Cerca_In(guida, file, piegate)) trovate += *trovata;
  std::stable_sort(trovate.begin(), trovate.end(),
                   [](const Trovata& a, const Trovata& b) { return a.Volte > b.Volte; });
  return trovate;
}

}  // namespace tavorno
