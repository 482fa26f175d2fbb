// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/analog_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>

#include "panel/windows/fields.h"
#include "panel/windows/value_scale.h"
#include "plc/plc.h"
#include "widgets/screen_reader.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int massimo_volt = 10;
constexpr int massimo_mA = 20;
constexpr int numeri_scala = 5;  // intervals between the numbers below a slider
constexpr int periodo_valori = 100;

}  // namespace

FrmSimAI::FrmSimAI(Plc& plc) : plc_(plc), volt_(new QRadioButton(Q("0-10 V"))) {
  setObjectName("frmSimAI");
  setWindowTitle(Q("Simulatore Ingressi an."));
  Chiudi_Con_Esc(*this);

  auto* griglia = new QGridLayout;
  griglia->setColumnStretch(1, 1);
  griglia->setHorizontalSpacing(10);
  griglia->setVerticalSpacing(0);
  for (int i = 0; i < 3; ++i) Aggiungi_Canale(i, *griglia);

  auto* milliampere = new QRadioButton(Q("0-20 mA"));
  volt_->setObjectName("opzI(0)");
  milliampere->setObjectName("opzI(1)");
  volt_->setToolTip(Q("Cursori da 0 a 10 V"));
  milliampere->setToolTip(Q("Cursori da 0 a 20 mA"));
  volt_->setChecked(true);
  connect(volt_, &QRadioButton::toggled, this, [this] { opzI(); });
  auto* fine = Tasto("cmdEnd", "Termina", "Azzera gli ingressi analogici e chiude la finestra");
  connect(fine, &QPushButton::clicked, this, [this] { cmdEnd(); });
  auto* piede = new QHBoxLayout;
  piede->setSpacing(14);
  piede->addWidget(volt_);
  piede->addWidget(milliampere);
  piede->addStretch();
  piede->addWidget(fine);

  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(14, 14, 14, 12);
  colonna->setSpacing(12);
  colonna->addLayout(griglia, 1);
  colonna->addLayout(piede);
  resize(420, sizeHint().height());

  auto* periodo = new QTimer(this);
  connect(periodo, &QTimer::timeout, this, [this] { Mostra_Valori(); });
  periodo->start(periodo_valori);
  Mostra_Valori();
}

void FrmSimAI::Aggiungi_Canale(int indice, QGridLayout& griglia) {
  const QString nome = QStringLiteral("AIW%1").arg(2 * indice);
  auto* cursore = new QSlider(Qt::Horizontal, this);
  cursore->setObjectName(Con_Indice("sldS", indice));
  cursore->setToolTip(Q("Ingresso analogico ") + nome);
  cursore->setRange(0, massimo_volt);
  cursore->setSingleStep(1);
  cursore->setPageStep(2);
  cursore->setTickPosition(QSlider::TicksBelow);
  cursore->setTickInterval(1);
  cursore->setMinimumHeight(cursore->sizeHint().height() + 4);  // the thumb is higher than told
  connect(cursore, &QSlider::valueChanged, this, [this] { sldS(); });
  auto* scala = new Scala_Cursore(*cursore, massimo_volt / numeri_scala);
  QLabel* valore = Campo_Valore(Con_Indice("etV", indice), 7);
  valore->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  valore->setToolTip(Q("Valore presente all'ingresso"));
  Intitola(*valore, nome + ':');

  const int riga = 3 * indice;
  auto* margini = new QHBoxLayout;  // room for the numbers that stand out at both ends
  margini->setContentsMargins(8, 0, 8, 0);
  margini->addWidget(cursore);
  griglia.addWidget(Etichetta(nome, cursore), riga, 0);
  griglia.addLayout(margini, riga, 1);
  griglia.addWidget(valore, riga, 2);
  griglia.addWidget(scala, riga + 1, 1);
  if (indice < 2) griglia.setRowMinimumHeight(riga + 2, 14);
  canali_[static_cast<std::size_t>(indice)] = {cursore, scala, valore, std::nullopt};
}

void FrmSimAI::opzI() {
  const int massimo = volt_->isChecked() ? massimo_volt : massimo_mA;
  for (Canale& canale : canali_) {
    // A narrower range may move the thumb; the input keeps its value until somebody scrolls.
    const QSignalBlocker zitto(canale.Cursore);
    canale.Cursore->setMaximum(massimo);
    canale.Scala->Passo(massimo / numeri_scala);
    canale.Mostrato.reset();
  }
  Mostra_Valori();
}

void FrmSimAI::Poni(int canale, double valore) {
  plc_.Entra({.Che = Cosa::Volt_AI, .Indice = canale, .Valore = valore});
}

void FrmSimAI::sldS() {
  for (int i = 0; i < 3; ++i) Poni(i, canali_[static_cast<std::size_t>(i)].Cursore->value());
  Mostra_Valori();
}

void FrmSimAI::Mostra_Valori() {
  const QString misura = volt_->isChecked() ? Q(" V") : Q(" mA");
  for (int i = 0; i < 3; ++i) {
    Canale& canale = canali_[static_cast<std::size_t>(i)];
    const float valore = plc_.Volt_AI[i];
    if (canale.Mostrato == valore) continue;
    canale.Mostrato = valore;
    canale.Valore->setText(QString::number(static_cast<double>(valore), 'g', 4) + misura);
  }
}

void FrmSimAI::Specchia() {
  for (int i = 0; i < 3; ++i) {
    QSlider& cursore = *canali_[static_cast<std::size_t>(i)].Cursore;
    const QSignalBlocker zitto(cursore);
    cursore.setValue(static_cast<int>(std::lround(plc_.Volt_AI[i])));
  }
  Mostra_Valori();
}

void FrmSimAI::cmdEnd() {
  for (int i = 0; i < 3; ++i) Poni(i, 0);
  close();
}

}  // namespace tavorno
