// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/about_window.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTimer>
#include <QVBoxLayout>

#include "panel/documents/version.h"
#include "widgets/text.h"
#include "widgets/tinting.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

constexpr int pausa = 2000;      // ms before the picture begins to scroll
constexpr int periodo = 100;     // ms
constexpr int passo = 10;        // twips
constexpr int fine_corsa = 100;  // twips that the picture leaves below
constexpr int alto_quadro = 230;
constexpr int alto_riga = 24;  // of a line of the picture, for whoever scrolls by hand
constexpr int punti_nome = 34;
constexpr int ombra = 2;

/// The tall picture, drawn as vectors wherever it is shown.
class Disegno : public QWidget {
 public:
  explicit Disegno(const QString& file) : disegno_(file) {
    setObjectName("imgInf");
    setFixedSize(disegno_.defaultSize());
  }

 protected:
  void paintEvent(QPaintEvent* /*evento*/) override {
    QPainter penna(this);
    disegno_.render(&penna, QRectF(rect()));
  }

 private:
  QSvgRenderer disegno_;
};

/// The window through which the picture is seen. The wheel scrolls it as the bar does.
class Quadro : public QFrame {
 public:
  explicit Quadro(QScrollBar& barra) : barra_(barra) {
    setObjectName("picInf");
    setFrameShape(QFrame::NoFrame);
  }

 protected:
  bool event(QEvent* evento) override {
    return evento->type() == QEvent::Wheel ? barra_.event(evento) : QFrame::event(evento);
  }

 private:
  QScrollBar& barra_;
};

QLabel* Etichetta(const char* nome, const QString& testo) {
  auto* etichetta = new QLabel(testo);
  etichetta->setObjectName(Q(nome));
  etichetta->setTextFormat(Qt::PlainText);
  return etichetta;
}

// One of the two labels that lie on each other; `spostata` pixels right and down.
QLabel* Nome_Programma(const char* nome, int spostata, const colori::Coppia& tinte) {
  QLabel* etichetta = Etichetta(nome, Q("Tavorno "));
  QFont font(Q("DejaVu Serif"), punti_nome, QFont::Bold);
  font.setStyleHint(QFont::Serif);
  etichetta->setFont(font);
  Tingi(*etichetta, &tinte);
  etichetta->setContentsMargins(spostata, spostata, ombra - spostata, ombra - spostata);
  return etichetta;
}

}  // namespace

FrmAbaut::FrmAbaut(QWidget* sopra)
    : QDialog(sopra),
      vsV_(new QScrollBar(Qt::Vertical)),
      timer1_(new QTimer(this)),
      timer2_(new QTimer(this)) {
  setObjectName("frmAbaut");
  setWindowTitle(Q("Informazioni sul programma."));
  setModal(true);

  auto* chiudi = new QPushButton(Q("&OK"));
  chiudi->setObjectName("cmdOk");
  chiudi->setDefault(true);
  chiudi->setToolTip(Q("Chiude la finestra"));
  connect(chiudi, &QPushButton::clicked, this, &QDialog::accept);

  auto* piede = new QHBoxLayout;
  piede->addWidget(Etichetta("EtV2", Q("Ver. %1.%2.%3   %4")
                                         .arg(Dati_Programma.Maggiore)
                                         .arg(Dati_Programma.Minore)
                                         .arg(Dati_Programma.Revisione)
                                         .arg(Q(Dati_Programma.Licenza))));
  piede->addStretch();
  piede->addWidget(chiudi);

  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(18, 14, 18, 14);
  colonna->setSpacing(12);
  colonna->addLayout(Crea_Testata());
  colonna->addLayout(Crea_Quadro());
  colonna->addLayout(piede);
  colonna->setSizeConstraint(QLayout::SetFixedSize);

  timer1_->setObjectName("Timer1");
  timer1_->setInterval(periodo);
  connect(timer1_, &QTimer::timeout, this, [this] { Tick_Timer1(); });
  timer2_->setObjectName("Timer2");
  timer2_->setInterval(pausa);
  connect(timer2_, &QTimer::timeout, this, [this] { Tick_Timer2(); });
  timer2_->start();
  chiudi->setFocus();
}

QLayout* FrmAbaut::Crea_Testata() {
  auto* icona = new QLabel;
  constexpr QSize lato(72, 72);
  icona->setPixmap(QIcon(Q(":/icons/tavorno.svg")).pixmap(lato, devicePixelRatioF()));
  icona->setFixedSize(lato);

  auto* testi = new QGridLayout;
  testi->setVerticalSpacing(2);
  testi->addWidget(Nome_Programma("et1(0)", ombra, colori::Nome_Ombra), 0, 0);
  testi->addWidget(Nome_Programma("et1(1)", 0, colori::Nome_Programma), 0, 0);
  QLabel* cosa = Etichetta("EtInf", Q("Simulatore per micro PLC Siemens S7 200."));
  QFont grassetto = cosa->font();
  grassetto.setBold(true);
  cosa->setFont(grassetto);
  testi->addWidget(cosa, 1, 0);
  testi->addWidget(Etichetta("etver", Q(Dati_Programma.Descrizione)), 2, 0);

  auto* riga = new QHBoxLayout;
  riga->setSpacing(18);
  riga->addWidget(icona, 0, Qt::AlignVCenter);
  riga->addLayout(testi, 1);
  return riga;
}

QLayout* FrmAbaut::Crea_Quadro() {
  auto* disegno = new Disegno(Q(":/about/about.svg"));
  disegno->setAccessibleName(Q("Che cos'è Tavorno, i diciotto esercizi, i tasti"));
  auto* quadro = new Quadro(*vsV_);
  quadro->setFixedSize(disegno->width(), alto_quadro);
  disegno->setParent(quadro);

  vsV_->setObjectName("vsV");
  vsV_->setAccessibleName(Q("Scorre il disegno"));
  vsV_->setFocusPolicy(Qt::StrongFocus);
  vsV_->setRange(0, Twip(disegno->height() - quadro->height()));
  vsV_->setSingleStep(Twip(alto_riga));
  vsV_->setPageStep(Twip(alto_quadro));
  connect(vsV_, &QScrollBar::valueChanged, disegno,
          [disegno](int valore) { disegno->move(0, -Px(valore)); });

  auto* riga = new QHBoxLayout;
  riga->setSpacing(0);
  riga->addWidget(quadro);
  riga->addWidget(vsV_);
  return riga;
}

void FrmAbaut::Tick_Timer1() {
  if (vsV_->value() > vsV_->maximum() - fine_corsa) {
    timer1_->stop();
  } else {
    vsV_->setValue(vsV_->value() + passo);
  }
}

void FrmAbaut::Tick_Timer2() {
  timer1_->start();
  timer2_->stop();
}

}  // namespace tavorno
