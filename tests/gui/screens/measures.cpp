// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/measures.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"

namespace tavorno {
namespace {

/// The lines of the document; its table begins with a cell "Window".
class Documento {
 public:
  Documento() {
    QFile file(nome_);
    if (!file.open(QIODevice::ReadOnly)) return;
    righe_ = QString::fromUtf8(file.readAll()).split('\n');
    for (qsizetype n = 0; n < righe_.size() && inizio_ < 0; ++n)
      if (righe_[n].startsWith("| Window |")) inizio_ = n;
  }
  qsizetype Colonna(const QString& schermo) const {
    return inizio_ < 0 ? -1 : Celle(inizio_).indexOf(schermo);
  }
  QString Cella(const QString& finestra, qsizetype colonna) const {
    const qsizetype riga = Riga_Di(finestra);
    return riga < Fine() ? Celle(riga).value(colonna) : QString();
  }
  bool Metti(const QString& finestra, qsizetype colonna, const QString& cella) {
    const qsizetype riga = Riga_Di(finestra);
    if (riga == Fine()) righe_.insert(riga, "| " + finestra + " |");
    QStringList celle = Celle(riga);
    while (celle.size() < Celle(inizio_).size()) celle << QString();
    celle[colonna] = cella;
    righe_[riga] = "| " + celle.join(" | ") + " |";
    QFile file(nome_);
    return file.open(QIODevice::WriteOnly) && file.write(righe_.join('\n').toUtf8()) > 0;
  }

 private:
  QStringList Celle(qsizetype riga) const {
    QStringList celle = righe_[riga].split('|').mid(1);
    if (!celle.isEmpty()) celle.removeLast();
    for (QString& cella : celle) cella = cella.trimmed();
    return celle;
  }
  qsizetype Fine() const {
    qsizetype n = inizio_ + 2;
    while (n < righe_.size() && righe_[n].startsWith('|')) ++n;
    return n;
  }
  qsizetype Riga_Di(const QString& finestra) const {
    qsizetype n = inizio_ + 2;
    while (n < Fine() && Celle(n).value(0) != finestra) ++n;
    return n;
  }

  QString nome_ = QStringLiteral(TAVORNO_SCREENS_DOC);
  QStringList righe_;
  qsizetype inizio_ = -1;
};

/// Letters of another version of the same face are a little wider.
bool Come_Detto(const QString& detto, const QString& misurato) {
  static const QRegularExpression numero("\\d+");
  auto uno = numero.globalMatch(detto);
  auto altro = numero.globalMatch(misurato);
  while (uno.hasNext() && altro.hasNext()) {
    const int a = uno.next().captured().toInt();
    const int b = altro.next().captured().toInt();
    if (std::abs(a - b) > 12 + std::max(a, b) / 25) return false;
  }
  return !uno.hasNext() && !altro.hasNext();
}

QString Nome_Schermo(const QWidget& finestra) {
  const QScreen& schermo = *finestra.screen();
  if (QGuiApplication::screens().size() > 1) return QStringLiteral("two");
  return QStringLiteral("%1x%2@%3")
      .arg(schermo.size().width())
      .arg(schermo.size().height())
      .arg(schermo.devicePixelRatio());
}

QString Cornice(const QWidget& finestra) {
  const QRect cornice = finestra.frameGeometry();
  return QStringLiteral("%1x%2 at %3,%4")
      .arg(cornice.width())
      .arg(cornice.height())
      .arg(cornice.x())
      .arg(cornice.y());
}

void Confronta(const QString& nome, const QWidget& finestra, const QString& misura) {
  const QString riga = nome.trimmed();
  static Documento documento;
  const qsizetype colonna = documento.Colonna(Nome_Schermo(finestra));
  ASSERT_GT(colonna, 0) << "no column " << Nome_Schermo(finestra).toStdString();
  if (qgetenv("TAVORNO_MEASURES") == "write") {
    ASSERT_TRUE(documento.Metti(riga, colonna, misura));
  }
  const QString detta = documento.Cella(riga, colonna);
  EXPECT_TRUE(Come_Detto(detta, misura)) << riga.toStdString() << ": told '" << detta.toStdString()
                                         << "', measured '" << misura.toStdString() << "'";
}

}  // namespace

void Come_Nel_Documento(const QString& riga, const QWidget& finestra) {
  Confronta(riga, finestra, Cornice(finestra));
}

void Come_Nel_Documento(const QString& riga, Finestra_Impianto& impianto) {
  const QSize mostrato = impianto.Disegno().size();
  const QSize detto = impianto.Disegno().sizeHint();
  const double scala = std::min(mostrato.width() / double(detto.width()),
                                mostrato.height() / double(detto.height()));
  Confronta(riga, impianto,
            QStringLiteral("%1, %2 %").arg(Cornice(impianto)).arg(std::lround(100 * scala)));
}

}  // namespace tavorno
