// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/help_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr qint64 massimo_byte = 16 << 20;

QString Assoluto(const QString& percorso) {
  return QDir::cleanPath(QFileInfo(percorso).absoluteFilePath());
}

bool Sotto(const QString& percorso, const QString& cartella) {
  return !cartella.isEmpty() && percorso.startsWith(cartella + '/');
}

bool Nella_Guida(const Guida& guida, const QFileInfo& file) {
  const QString vero = file.canonicalFilePath();
  for (const QString& cartella : {guida.Dir_Help, guida.Dir_Panel}) {
    if (cartella.isEmpty()) continue;
    const QString vera = QFileInfo(cartella).canonicalFilePath();
    if (file.exists() ? Sotto(vero, vera)
                      : Sotto(file.filePath(), Assoluto(cartella)) || Sotto(file.filePath(), vera))
      return true;
  }
  return false;
}

bool Ha_Controlli(const QString& testo) {
  return std::any_of(testo.begin(), testo.end(), [](QChar c) { return c.unicode() < ' '; });
}

// A page is found by its name alone, as a student types it: "us-00" is "US-00.htm".
QString Pagina_Di_Nome(const QString& cartella, const QString& nome) {
  const QFileInfo richiesto(cartella + nome);
  if (richiesto.isFile()) return richiesto.filePath();
  for (const QFileInfo& file : richiesto.dir().entryInfoList(QDir::Files, QDir::Name)) {
    if (file.fileName().compare(richiesto.fileName(), Qt::CaseInsensitive) == 0 ||
        file.completeBaseName().compare(richiesto.fileName(), Qt::CaseInsensitive) == 0)
      return file.filePath();
  }
  return {};
}

QString Percorso_Di(const Guida& guida, const QString& testo) {
  if (QDir::isAbsolutePath(testo)) return testo;
  for (const QString& cartella : {guida.Dir_Help, guida.Dir_Panel}) {
    const QString trovata = Pagina_Di_Nome(cartella, testo);
    if (!trovata.isEmpty()) return trovata;
  }
  return guida.Dir_Help + testo;
}

}  // namespace

Luogo Dove(const Guida& guida, const QUrl& url) {
  if (url.scheme() != Q("file")) return Luogo::Esterno;
  if (!url.host().isEmpty()) return Luogo::Esterno;
  const QString percorso = url.toLocalFile();
  if (percorso.isEmpty() || Ha_Controlli(percorso)) return Luogo::Fuori;
  const QFileInfo file(Assoluto(percorso));
  if (!Nella_Guida(guida, file)) return Luogo::Fuori;
  return file.isFile() ? Luogo::Dentro : Luogo::Manca;
}

QUrl Indirizzo_Da_Testo(const Guida& guida, const QString& testo) {
  QString pulito = testo.trimmed();
  if (pulito.isEmpty()) return {};
  const QString cerca = Q(Schema_Cerca) + ':';
  if (pulito.startsWith(cerca, Qt::CaseInsensitive)) return Url_Cerca(pulito.mid(cerca.size()));
  pulito.replace('\\', '/');
  // One letter before the colon is a drive.
  static const QRegularExpression schema(Q("^[A-Za-z][A-Za-z0-9+.-]+:"));
  if (pulito.contains(schema)) {
    const QUrl url(pulito);
    if (url.isValid()) return url;
  }
  // A "#" begins the name of an anchor only behind the name of a page: folders may have one too.
  static const QRegularExpression pagina_e_segno(Q("^(.*\\.html?)#([^/]*)$"),
                                                 QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch parti = pagina_e_segno.match(pulito);
  QUrl url = QUrl::fromLocalFile(
      Assoluto(Percorso_Di(guida, parti.hasMatch() ? parti.captured(1) : pulito)));
  if (parti.hasMatch()) url.setFragment(parti.captured(2));
  return url;
}

QString Testo_Indirizzo(const QUrl& url) {
  if (url.scheme() == Q(Schema_Cerca)) return Q(Schema_Cerca) + ':' + Parole_Cercate(url);
  if (!url.isLocalFile()) return url.toString();
  const QString segno = url.hasFragment() ? '#' + url.fragment() : QString();
  return QDir::cleanPath(url.toLocalFile()) + segno;
}

QUrl Url_Cerca(const QString& parole) {
  return QUrl(Q(Schema_Cerca) + ':' +
              QString::fromLatin1(QUrl::toPercentEncoding(parole.simplified())));
}

QString Parole_Cercate(const QUrl& url) {
  return QUrl::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
}

std::optional<QByteArray> Leggi(const Guida& guida, const QUrl& url) {
  if (Dove(guida, url) != Luogo::Dentro) return std::nullopt;
  QFile file(url.toLocalFile());
  if (file.size() > massimo_byte || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  return file.readAll();
}

QStringList Pagine(const Guida& guida) {
  QStringList pagine;
  for (const QString& cartella : {guida.Dir_Help, guida.Dir_Panel}) {
    if (cartella.isEmpty()) continue;
    const QDir::Filters filtri = QDir::Files | QDir::Readable;
    for (const QString& nome : QDir(cartella).entryList({Q("*.htm"), Q("*.html")}, filtri)) {
      const QString percorso = Assoluto(QDir(cartella).filePath(nome));
      if (Dove(guida, QUrl::fromLocalFile(percorso)) == Luogo::Dentro && !pagine.contains(percorso))
        pagine += percorso;
    }
  }
  return pagine;
}

}  // namespace tavorno
