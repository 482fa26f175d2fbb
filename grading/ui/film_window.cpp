// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/ui/film_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

struct Velocita {
  const char* Nome;
  double Parte;
};
constexpr Velocita velocita[] = {{"tempo vero", 1}, {"1/2", 0.5},   {"1/5", 0.2},
                                 {"1/10", 0.1},     {"1/50", 0.02}, {"1/100", 0.01}};

QString Secondi(std::int64_t ms) {
  return QString::number(static_cast<double>(ms) / 1000, 'f', 3).replace('.', ',');
}

/// A way through the film shows no progress of its own: each step is short.
class Senza_Avanzamento {
 public:
  explicit Senza_Avanzamento(Registratore& registratore)
      : registratore_(registratore), prima_(std::exchange(registratore.Avanzamento, nullptr)) {}
  ~Senza_Avanzamento() { registratore_.Avanzamento = std::move(prima_); }
  Senza_Avanzamento(const Senza_Avanzamento&) = delete;
  Senza_Avanzamento& operator=(const Senza_Avanzamento&) = delete;

 private:
  Registratore& registratore_;
  std::function<bool(double)> prima_;
};

}  // namespace

FrmGuarda::FrmGuarda(Registratore& registratore, const Plc& plc, const Caso& caso)
    : registratore_(registratore),
      plc_(plc),
      rilievo_(caso.Rilievi.empty() ? QString() : Q(caso.Rilievi.front().Testo)),
      etRilievo_(Chiama(QStringLiteral("etRilievo"), new QLabel)),
      etPosto_(Chiama(QStringLiteral("etPosto"), new QLabel)) {
  setObjectName(QStringLiteral("frmGuarda"));
  setWindowTitle(Q("Guarda: " + caso.Nome));
  // Small, and in front of the plant that it moves.
  setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
  etRilievo_->setWordWrap(true);
  etRilievo_->setAutoFillBackground(true);
  etRilievo_->setMargin(4);
  etRilievo_->setTextFormat(Qt::PlainText);

  auto* posti = new QVBoxLayout(this);
  posti->setContentsMargins(8, 6, 8, 6);
  posti->setSpacing(4);
  posti->addWidget(etRilievo_);
  auto* tempo = new QHBoxLayout;
  Crea_Riga_Tempo(*tempo);
  posti->addLayout(tempo);
  auto* passi = new QHBoxLayout;
  passi->setSpacing(4);
  Crea_Riga_Passi(*passi);
  posti->addLayout(passi);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, [this] {
    if (Mostra_Aiuto) Mostra_Aiuto();
  });

  ritmo_.setInterval(Periodo);
  ritmo_.setTimerType(Qt::PreciseTimer);
  ritmo_.callOnTimeout(this, [this] { Avanza(static_cast<double>(orologio_.restart())); });
  // The present may come back by other ways: the plant closes, the editor opens.
  guardia_.setInterval(100);
  guardia_.callOnTimeout(this, [this] {
    if (!registratore_.In_Proiezione()) close();
  });
  guardia_.start();
  Mostra_Posto();
  Parti();
}

QPushButton* FrmGuarda::Tasto(const char* nome, const char* testo, const char* tasti,
                              const char* cosa, std::function<void()> fai) {
  auto* tasto = Chiama(QString::fromUtf8(nome), new QPushButton(Q(testo)));
  const QKeySequence sequenza(QString::fromUtf8(tasti));
  tasto->setToolTip(Q(cosa) + " (" + sequenza.toString(QKeySequence::NativeText) + ")");
  tasto->setAccessibleName(Q(cosa));
  connect(tasto, &QPushButton::clicked, this, fai);
  connect(new QShortcut(sequenza, this), &QShortcut::activated, this, std::move(fai));
  return tasto;
}

void FrmGuarda::Crea_Riga_Tempo(QBoxLayout& posti) {
  tempo_ = Chiama(QStringLiteral("sldTempo"), new QSlider(Qt::Horizontal));
  tempo_->setRange(0, static_cast<int>(std::min<std::int64_t>(Durata(), INT32_MAX)));
  tempo_->setPageStep(1000);
  tempo_->setToolTip(QStringLiteral("Il momento del caso che si guarda"));
  tempo_->setAccessibleName(tempo_->toolTip());
  connect(tempo_, &QSlider::valueChanged, this, [this](int ms) { Vai_A(ms); });
  posti.addWidget(tempo_, 1);
  etPosto_->setFont(Carattere_Fisso());
  etPosto_->setMinimumWidth(
      etPosto_->fontMetrics().horizontalAdvance(QStringLiteral("0000,000 s di 0000,000 s")));
  etPosto_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  posti.addWidget(etPosto_);
  velocita_ = Chiama(QStringLiteral("cmbVelocita"), new QComboBox);
  for (const Velocita& una : velocita) velocita_->addItem(Q(una.Nome));
  velocita_->setToolTip(QStringLiteral("Quanto va veloce il film"));
  velocita_->setAccessibleName(velocita_->toolTip());
  posti.addWidget(velocita_);
}

void FrmGuarda::Crea_Riga_Passi(QBoxLayout& posti) {
  const auto passo = [this](bool (Registratore::*quale)()) {
    return [this, quale] { Passo([this, quale] { return (registratore_.*quale)(); }); };
  };
  posti.addWidget(
      Tasto("cmdDaCapo", "Da capo", "Home", "Rivede il caso dall'inizio", [this] { Da_Capo(); }));
  posti.addWidget(Tasto("cmdRigaIndietro", "◀ riga", "Ctrl+Left", "Una riga indietro",
                        passo(&Registratore::Riga_Indietro)));
  posti.addWidget(Tasto("cmdScansioneIndietro", "◀ scansione", "Left", "Una scansione indietro",
                        passo(&Registratore::Scansione_Indietro)));
  cmdVai_ = Tasto("cmdVai", "Pausa", "F8", "Ferma il film, e lo fa proseguire",
                  [this] { In_Moto() ? Ferma() : Parti(); });
  cmdVai_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Prosegui")) + 24);
  posti.addWidget(cmdVai_);
  posti.addWidget(Tasto("cmdScansioneAvanti", "scansione ▶", "Right", "Una scansione avanti",
                        passo(&Registratore::Scansione_Avanti)));
  posti.addWidget(Tasto("cmdRigaAvanti", "riga ▶", "Ctrl+Right", "Una riga avanti",
                        passo(&Registratore::Riga_Avanti)));
  posti.addStretch();
  posti.addWidget(Tasto("cmdTorna", "Torna al tuo programma", "Esc",
                        "CPU e impianto tornano com'erano prima di guardare", [this] { close(); }));
  for (QPushButton* tasto : findChildren<QPushButton*>())
    tasto->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

// ---- moving -------------------------------------------------------------------------------------

bool FrmGuarda::In_Fondo() const {
  return arrivato_ || (plc_.Righe_Fatte >= registratore_.Presente().Righe &&
                       plc_.Tempo.Adesso() >= registratore_.Presente().Ms);
}

/// A step through the film. False where it cannot be done; a fatal line is held in front of.
bool FrmGuarda::Vai(const std::function<bool()>& mossa) {
  if (!registratore_.In_Proiezione()) return false;
  const Senza_Avanzamento senza(registratore_);
  bool mosso = false;
  try {
    mosso = mossa();
  } catch (const Fatale&) {
    arrivato_ = true;
  } catch (const Giornale_Discorde&) {
    arrivato_ = true;
  }
  return mosso;
}

void FrmGuarda::Avanza(double ms) {
  resto_ += ms * velocita[static_cast<std::size_t>(velocita_->currentIndex())].Parte;
  const auto interi = static_cast<std::int64_t>(resto_);
  if (interi < 1) return;
  resto_ -= static_cast<double>(interi);
  // Where a long skip lies ahead the clock stands until it is over: it is held to that moment.
  const std::int64_t fin_qui = std::min(Durata(), tempo_->value() + interi);
  const bool all_ultimo = fin_qui >= Durata();
  Vai([&] {
    return registratore_.Vai(all_ultimo ? Momento{}
                                        : Momento{.Ms = registratore_.Primo().Ms + fin_qui});
  });
  {
    const QSignalBlocker zitto(*tempo_);
    tempo_->setValue(static_cast<int>(fin_qui));
  }
  arrivato_ = arrivato_ || all_ultimo;
  if (In_Fondo()) Ferma();
  Mostra_Posto();
  if (Specchia) Specchia(In_Fondo());
}

void FrmGuarda::Parti() {
  if (In_Fondo()) return Da_Capo();
  orologio_.start();
  resto_ = 0;
  ritmo_.start();
  Mostra_Posto();
}

void FrmGuarda::Ferma() {
  ritmo_.stop();
  Mostra_Posto();
}

void FrmGuarda::Da_Capo() {
  Vai_A(0);
  if (!In_Fondo()) {
    orologio_.start();
    resto_ = 0;
    ritmo_.start();
  }
  Mostra_Posto();
}

void FrmGuarda::Passo(const std::function<bool()>& mossa) {
  ritmo_.stop();
  arrivato_ = false;
  Vai(mossa);
  const QSignalBlocker zitto(*tempo_);
  tempo_->setValue(static_cast<int>(Trascorso()));
  Mostra_Posto();
  if (Specchia) Specchia(true);
}

void FrmGuarda::Vai_A(std::int64_t ms) {
  arrivato_ = false;
  const bool all_ultimo = ms >= Durata();
  Vai([&] {
    if (all_ultimo) return registratore_.Vai({});
    if (ms <= 0) return registratore_.Vai(registratore_.Primo());
    return registratore_.Vai({.Ms = registratore_.Primo().Ms + ms});
  });
  arrivato_ = arrivato_ || all_ultimo;
  const QSignalBlocker zitto(*tempo_);
  tempo_->setValue(static_cast<int>(ms));
  if (In_Fondo()) ritmo_.stop();
  Mostra_Posto();
  if (Specchia) Specchia(true);
}

void FrmGuarda::Mostra_Posto() {
  const std::int64_t ms = std::max<std::int64_t>(Trascorso(), tempo_->value());
  etPosto_->setText(Secondi(std::min(ms, Durata())) + " s di " + Secondi(Durata()) + " s");
  const bool qui = In_Fondo();
  etRilievo_->setText(qui ? "Qui non va: " + rilievo_
                          : "Dopo " + Secondi(Durata()) + " s: " + rilievo_);
  Tingi(*etRilievo_, qui ? &colori::Guasto : &colori::Pila);
  cmdVai_->setText(In_Moto() ? QStringLiteral("Pausa")
                   : qui     ? QStringLiteral("Rivedi")
                             : QStringLiteral("Prosegui"));
}

void FrmGuarda::closeEvent(QCloseEvent* evento) {
  QWidget::closeEvent(evento);
  ritmo_.stop();
  guardia_.stop();
  if (std::exchange(chiusa_, true)) return;
  if (registratore_.In_Proiezione()) {
    const Senza_Avanzamento senza(registratore_);
    try {
      registratore_.Torna_Al_Presente();
    } catch (const Giornale_Discorde&) {
      // As far as it came; the panel says that it shows the past.
    }
  }
  if (Chiusa) Chiusa();
}

}  // namespace tavorno
