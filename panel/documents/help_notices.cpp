// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/help_notices.h"

#include <QFileInfo>
#include <QUrl>

#include "panel/documents/help_folder.h"
#include "panel/documents/help_search.h"
#include "panel/documents/html_text.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

QString Nome(const QColor& colore) {
  return colore.name();
}

QString Pagina(const QString& titolo, const QString& corpo) {
  return Q("<html><head><title>%1</title><style>"
           "body { margin: 16px 20px; }"
           "a { color: %3; }"
           "h1 { color: %4; font-size: x-large; font-weight: 600; }"
           "p { line-height: 130%; }"
           "li { margin-bottom: 4px; }"
           ".dove { color: %5; }"
           ".trovato { background-color: %6; color: %7; font-weight: 600; }"
           "</style></head><body><h1>%1</h1>%2</body></html>")
      .arg(titolo.toHtmlEscaped(), corpo, Nome(colori::Guida_Legame.Testo),
           Nome(colori::Guida_Titolo.Testo), Nome(colori::Guida_Dove.Testo),
           Nome(colori::Guida_Trovata.Fondo), Nome(colori::Guida_Trovata.Testo));
}

QString Legame(const QUrl& url, const QString& testo) {
  return Q("<a href=\"%1\">%2</a>")
      .arg(QString::fromLatin1(url.toEncoded()).toHtmlEscaped(), testo.toHtmlEscaped());
}

QString Legame_File(const QString& file, const QString& testo) {
  return Legame(QUrl::fromLocalFile(file), testo);
}

QString Vie_Di_Uscita(const Guida& guida) {
  return Q("<p>") + Legame(Indirizzo_Da_Testo(guida, Q("Index.htm")), Q("Indice della guida")) +
         Q(" &nbsp;·&nbsp; ") + Legame(Url_Cerca({}), Q("Cerca nella guida")) + Q("</p>");
}

QString Titolo_Pagina(const Guida& guida, const QString& file) {
  const auto byte = Leggi(guida, QUrl::fromLocalFile(file));
  const QString titolo = byte ? Titolo_Html(Decodifica_Html(*byte)) : QString();
  return titolo.isEmpty() ? QFileInfo(file).fileName() : titolo;
}

QString Elenco_Pagine(const Guida& guida) {
  QString corpo =
      Q("<p>Scrivere una o più parole nella casella qui sopra e premere Invio: si "
        "trovano le pagine che le contengono tutte. Maiuscole e accenti non "
        "contano.</p><p>Tutte le pagine della guida:</p><ul>");
  for (const QString& file : Pagine(guida))
    corpo += Q("<li>") + Legame_File(file, Titolo_Pagina(guida, file)) + Q("</li>");
  return corpo + Q("</ul>");
}

}  // namespace

QString Pagina_Avviso(const Guida& guida, const QUrl& url) {
  const QString nome = Q("<p><code>%1</code></p>").arg(Testo_Indirizzo(url).toHtmlEscaped());
  const QString uscita = Vie_Di_Uscita(guida);
  switch (Dove(guida, url)) {
    case Luogo::Esterno:
      return Pagina(Q("Pagina esterna"),
                    Q("<p>Questo indirizzo non fa parte della guida:</p>") + nome +
                        Q("<p>Il simulatore non usa la rete: per vedere la pagina copiare "
                          "l'indirizzo in un programma di navigazione.</p>") +
                        uscita);
    case Luogo::Fuori:
      return Pagina(Q("Pagina fuori dalla guida"),
                    Q("<p>Questa finestra mostra soltanto le pagine della guida. Questo file non "
                      "ne fa parte:</p>") +
                        nome + uscita);
    case Luogo::Manca:
    case Luogo::Dentro:
      break;
  }
  return Pagina(Q("Pagina non trovata"),
                Q("<p>La pagina della guida <b>%1</b> manca o non si può leggere:</p>")
                        .arg(url.fileName().toHtmlEscaped()) +
                    nome +
                    Q("<p>Se l'indirizzo è stato scritto a mano, controllarlo; altrimenti "
                      "reinstallare il programma.</p>") +
                    uscita);
}

QString Pagina_Ricerca(const Guida& guida, const QString& parole) {
  if (parole.isEmpty()) return Pagina(Q("Cerca nella guida"), Elenco_Pagine(guida));
  const QVector<Trovata> trovate = Cerca(guida, parole);
  const QString titolo = Q("Cerca nella guida: ") + parole;
  if (trovate.isEmpty())
    return Pagina(titolo, Q("<p>Nessuna pagina contiene «%1».</p><p>Provare con meno parole, o con "
                            "una parte della parola.</p>")
                                  .arg(parole.toHtmlEscaped()) +
                              Vie_Di_Uscita(guida));
  QString corpo = Q("<p class=\"dove\">Pagine trovate: %1</p>").arg(trovate.size());
  for (const Trovata& trovata : trovate)
    corpo += Q("<p><b>%1</b> &nbsp;<span class=\"dove\">%2</span><br>%3</p>")
                 .arg(Legame_File(trovata.File, trovata.Titolo),
                      QFileInfo(trovata.File).fileName().toHtmlEscaped(), trovata.Estratto);
  return Pagina(titolo, corpo);
}

}  // namespace tavorno
