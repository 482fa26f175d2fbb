// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "widgets/text.h"

namespace tavorno {

namespace {

QMessageBox::Icon Icona_Qt(Icona simbolo) {
  switch (simbolo) {
    case Icona::Critica:
      return QMessageBox::Critical;
    case Icona::Domanda:
      return QMessageBox::Question;
    case Icona::Nessuna:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

QWidget* Finestra_Sotto(QWidget* sopra) {
  if (QWidget* modale = QApplication::activeModalWidget()) return modale;
  // A dialog over a window that was hidden would not stand in front of those that are seen; one
  // that has not been shown yet is about to be.
  QWidget* attiva = QApplication::activeWindow();
  const auto nascosta = [](const QWidget& finestra) {
    return finestra.isHidden() && finestra.testAttribute(Qt::WA_WState_ExplicitShowHide);
  };
  if (sopra == nullptr || (attiva != nullptr && nascosta(*sopra->window()))) return attiva;
  return sopra;
}

Risposta Mostra_Avviso(QWidget* sopra, const Avviso& avviso) {
  // The window under it may go first, and takes it along.
  const QPointer<QMessageBox> box = new QMessageBox(Finestra_Sotto(sopra));
  box->setObjectName(QStringLiteral("Avviso"));
  box->setWindowTitle(Q(avviso.Titolo));
  box->setTextFormat(Qt::PlainText);
  box->setText(Q(avviso.Testo));
  box->setIcon(Icona_Qt(avviso.Simbolo));
  if (!avviso.Dettagli.empty()) box->setDetailedText(Q(avviso.Dettagli));
  switch (avviso.Scelte) {
    case Tasti::Ok:
      box->setStandardButtons(QMessageBox::Ok);
      break;
    case Tasti::Ok_Annulla:
      box->setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      break;
    case Tasti::Si_No:
      box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      box->setEscapeButton(QMessageBox::Yes);  // saving loses nothing, and can still be cancelled
      break;
  }
  const int scelta = box->exec();
  if (box.isNull()) return Risposta::Annulla;
  delete box;
  switch (scelta) {
    case QMessageBox::Yes:
      return Risposta::Si;
    case QMessageBox::No:
      return Risposta::No;
    case QMessageBox::Cancel:
      return Risposta::Annulla;
    default:
      return Risposta::Ok;
  }
}

}  // namespace tavorno
