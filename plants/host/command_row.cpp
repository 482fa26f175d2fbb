// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/command_row.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <initializer_list>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr int aria = 8;  // pixels between two ticks

/// Short words need no wide buttons, and all stand in one row then.
class Tasto_Breve : public QPushButton {
 public:
  using QPushButton::QPushButton;
  QSize sizeHint() const override {
    return {fontMetrics().horizontalAdvance(text()) + 20, QPushButton::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

template <class Controllo>
Controllo* Crea(const char* nome, const QString& testo, const QString& nota) {
  auto* controllo = Chiama(QString::fromLatin1(nome), new Controllo(testo));
  controllo->setToolTip(nota);
  return controllo;
}

}  // namespace

Riga_Comandi::Riga_Comandi(const QString& voce_io, QWidget* sopra)
    : QWidget(sopra),
      chkSim(Crea<QCheckBox>("chkSim", QStringLiteral("Usa Simulatore PLC per gli Ingressi"),
                             QStringLiteral("Gli ingressi arrivano dagli interruttori del PLC e "
                                            "non dall'impianto"))),
      chkIO(Crea<QCheckBox>("chkIO", voce_io,
                            QStringLiteral("Mostra la tabella degli ingressi e delle uscite"))),
      chkStriscia(
          Crea<QCheckBox>("chkStriscia", QStringLiteral("Andamento"),
                          QStringLiteral("Mostra l'ultimo minuto delle misure e dei bit scelti"))),
      cmdVerifica(Crea<Tasto_Breve>(
          "cmdVerifica", QStringLiteral("Verifica"),
          QStringLiteral("Prova il programma con i casi dell'esercizio e assegna i punti (F9)"))),
      cmdTempi(
          Crea<Tasto_Breve>("cmdTempi", QStringLiteral("Tempi"),
                            QStringLiteral("Diagramma dei tempi di ingressi e uscite (Ctrl+D)"))),
      cmdSch(
          Crea<Tasto_Breve>("cmdSch", QStringLiteral("Info"), QStringLiteral("Schema Elettrico"))),
      cmdEnd(Crea<Tasto_Breve>("cmdEnd", QStringLiteral("Chiudi"), QStringLiteral("Termina"))),
      mnuGuasti(Chiama(QStringLiteral("mnuGuasti"), new QMenu(this))),
      posti_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      spunte_(new QBoxLayout(QBoxLayout::LeftToRight)),
      viste_(new QHBoxLayout),
      destra_(new QHBoxLayout),
      etRun_(Chiama(QStringLiteral("etRun"), new QLabel)),
      cmdGuasti_(Chiama(QStringLiteral("cmdGuasti"), new QToolButton)) {
  etRun_->setFont(Grassetto(etRun_->font()));
  etRun_->setAlignment(Qt::AlignCenter);
  etRun_->setAutoFillBackground(true);
  etRun_->setMinimumWidth(etRun_->fontMetrics().horizontalAdvance(QStringLiteral("PAUSA")) + 8);
  mnuGuasti->setToolTipsVisible(true);
  cmdGuasti_->setPopupMode(QToolButton::InstantPopup);
  cmdGuasti_->setMenu(mnuGuasti);
  cmdGuasti_->setFocusPolicy(Qt::StrongFocus);
  cmdGuasti_->setMinimumSize(
      QFontMetrics(Grassetto(font())).horizontalAdvance(QStringLiteral("Guasti: 00")) + 26,
      cmdSch->sizeHint().height());

  viste_->addWidget(chkIO);
  viste_->addSpacing(aria);
  viste_->addWidget(chkStriscia);
  viste_->addStretch();
  spunte_->setSpacing(aria);
  spunte_->addWidget(chkSim);
  spunte_->addLayout(viste_, 1);
  destra_->addStretch();
  for (QWidget* uno :
       std::initializer_list<QWidget*>{etRun_, cmdGuasti_, cmdVerifica, cmdTempi, cmdSch, cmdEnd})
    destra_->addWidget(uno);
  for (QPushButton* tasto : {cmdVerifica, cmdTempi, cmdSch, cmdEnd})
    tasto->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  posti_->setContentsMargins(7, 6, 7, 6);
  posti_->addLayout(spunte_);
  posti_->addLayout(destra_);
  Mostra_Corsa(Corsa::Ferma);
  Mostra_Guasti(0, {});
}

QSize Riga_Comandi::minimumSizeHint() const {
  const QMargins bordi = posti_->contentsMargins();
  const int larga = std::max({chkSim->minimumSizeHint().width(), viste_->minimumSize().width(),
                              destra_->minimumSize().width()});
  const int spunte = spunte_->minimumSize().height();
  const int destra = destra_->minimumSize().height();
  const bool in_fila = posti_->direction() == QBoxLayout::LeftToRight;
  const int alta = in_fila ? std::max(spunte, destra) : spunte + destra + posti_->spacing();
  return QSize(larga, alta).grownBy(bordi);
}

void Riga_Comandi::resizeEvent(QResizeEvent*) {
  const QMargins bordi = posti_->contentsMargins();
  const int dentro = width() - bordi.left() - bordi.right();
  const int spunte = chkSim->sizeHint().width() + aria + viste_->minimumSize().width();
  const int in_fila = spunte + posti_->spacing() + destra_->minimumSize().width();
  spunte_->setDirection(dentro < spunte ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  spunte_->setSpacing(dentro < spunte ? posti_->spacing() : aria);
  posti_->setDirection(dentro < in_fila ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  updateGeometry();
}

void Riga_Comandi::Mostra_Corsa(Corsa corsa) {
  static constexpr struct {
    const char *Testo, *Nota;
    const colori::Coppia* Tinta;
  } modi[] = {{"STOP", "La CPU è in STOP", &colori::In_Stop},
              {"PAUSA", "La CPU è in RUN, ma una pausa la tiene ferma (F8)", &colori::In_Stop},
              {"RUN", "La CPU è in RUN", &colori::In_Run}};
  const auto& modo = modi[static_cast<int>(corsa)];
  if (etRun_->text() == QLatin1String{modo.Testo}) return;
  etRun_->setText(QString::fromUtf8(modo.Testo));
  etRun_->setToolTip(QString::fromUtf8(modo.Nota));
  etRun_->setAccessibleName(etRun_->toolTip());
  Tingi(*etRun_, modo.Tinta);
}

void Riga_Comandi::Mostra_Guasti(int quanti, const QString& elenco) {
  const bool ci_sono = quanti > 0;
  cmdGuasti_->setText(ci_sono ? QStringLiteral("Guasti: %1").arg(quanti)
                              : QStringLiteral("Guasti"));
  cmdGuasti_->setToolTip(ci_sono ? "Guasti presenti:\n" + elenco
                                 : QStringLiteral("Guasti della macchina e dei fili"));
  Tingi(*cmdGuasti_, ci_sono ? &colori::Guasto : nullptr);
  cmdGuasti_->setFont(ci_sono ? Grassetto(font()) : font());
}

}  // namespace tavorno
