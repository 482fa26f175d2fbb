// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/ui/diagram_window.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plants/exercises.h"
#include "recorder/ui/signal_choice.h"
#include "widgets/elided_label.h"
#include "widgets/icons.h"
#include "widgets/message_box.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

// A running program shares its thread with the pictures: they take one part in so many of it.
constexpr double parte_del_tempo = 50;
// And with the replay of what went before, which has more where nothing else is to be done.
constexpr auto fetta_in_corsa = std::chrono::microseconds{1500};
constexpr auto fetta_da_ferma = std::chrono::milliseconds{20};
constexpr double secondi_iniziali = 10;
constexpr double punti_di_barra = 10'000;  // of the scroll bar of time, for the whole recording

QString Tasti_Come_Testo(const Comando_Tempi& comando) {
  QStringList tasti;
  for (const QString& uno : Q(comando.Tasti).split(' '))
    tasti << QKeySequence(uno).toString(QKeySequence::NativeText);
  return tasti.join(QStringLiteral(" o "));
}

QLabel* Campo(const char* nome) {
  auto* campo = Chiama(QString::fromUtf8(nome), new QLabel);
  campo->setTextFormat(Qt::PlainText);
  return campo;
}

}  // namespace

FrmTempi::FrmTempi(Plc& plc, const Esercizio* impianto)
    : plc_(plc), impianto_(impianto), tela_(new Tela_Tempi(diagramma_)) {
  setObjectName(QStringLiteral("frmTempi"));
  setWindowTitle(QStringLiteral("Diagramma dei tempi"));
  Avvisa = [this](const Avviso& avviso) { Mostra_Avviso(this, avviso); };
  Scegli_Segnali = [this](std::vector<Segnale>& scelti) {
    return Chiedi_Segnali(this, impianto_, plc_, scelti);
  };

  scorri_righe_ = Chiama(QStringLiteral("vsbRighe"), new QScrollBar(Qt::Vertical));
  scorri_tempo_ = Chiama(QStringLiteral("hsbTempo"), new QScrollBar(Qt::Horizontal));
  scorri_righe_->setFocusPolicy(Qt::NoFocus);
  scorri_tempo_->setFocusPolicy(Qt::NoFocus);

  auto* comandi = new QHBoxLayout;
  comandi->setContentsMargins(4, 2, 6, 2);
  comandi->addWidget(Crea_Barra_Tempi());
  comandi->addWidget(Crea_Ricerca(), 1);

  etCursori_ = Chiama(QStringLiteral("etCursori"), new Etichetta_Accorciata(Qt::ElideRight));
  etVista_ = Campo("etVista");
  etVista_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  etCursori_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* piede = new QHBoxLayout;
  piede->setContentsMargins(8, 2, 8, 4);
  piede->addWidget(etCursori_, 1);
  piede->addWidget(etVista_);

  auto* griglia = new QGridLayout;
  griglia->setSpacing(0);
  griglia->addWidget(tela_, 0, 0);
  griglia->addWidget(scorri_righe_, 0, 1);
  griglia->addWidget(scorri_tempo_, 1, 0);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setSpacing(0);
  tutto->addLayout(comandi);
  tutto->addLayout(griglia, 1);
  tutto->addLayout(piede);
  resize(1000, 460);

  tela_->Mossa = [this] { Mosso(); };
  tela_->Vuole_Segnali = [this] { Segnali(); };
  tela_->Vuole_Menu = [this](QPoint dove) { Mostra_Menu(dove); };
  connect(scorri_righe_, &QScrollBar::valueChanged, this, [this](int y) { tela_->Scorri(y); });
  connect(scorri_tempo_, &QScrollBar::valueChanged, this, [this](int posto) {
    const auto durata = static_cast<double>(registrazione_.Fine() - registrazione_.Inizio());
    diagramma_.In_Diretta = false;
    diagramma_.Vista.Da =
        static_cast<double>(registrazione_.Inizio()) + posto / punti_di_barra * durata;
    Ridisegna();
  });

  timT_ = new QTimer(this);
  timT_->setObjectName(QStringLiteral("timT"));
  connect(timT_, &QTimer::timeout, this, [this] {
    Aggiorna();
    const double attesa = std::max<double>(Periodo, tela_->Costo() * parte_del_tempo);
    timT_->setInterval(static_cast<int>(std::lround(attesa)));
  });
  timT_->start(Periodo);

  diagramma_.Vista.Per_Punto = secondi_iniziali * 1000 / 700;
  Riparti(impianto);
  tela_->setFocus();
}

void FrmTempi::Riparti(const Esercizio* impianto) {
  impianto_ = impianto;
  diagramma_.Mostra_Solo(Segnali_Di(Righe_Di(impianto_), plc_));
  iniziali_ = diagramma_.Mostrati();
  sonda_.Guarda();
  Riempi();
  Ridisegna();
}

void FrmTempi::Altra_Seduta(const Esercizio* impianto) {
  registrazione_.Svuota();
  sonda_.Da_Capo();
  diagramma_.Togli_Cursori();
  diagramma_.Disarma();
  diagramma_.In_Diretta = true;
  messaggio_.clear();
  visti_ = fine_vista_ = -1;
  Riparti(impianto);
}

void FrmTempi::Programma_Caricato() {
  if (diagramma_.Mostrati() == iniziali_) Riparti(impianto_);
}

// ---- bar, search --------------------------------------------------------------------------------

QToolBar* FrmTempi::Crea_Barra_Tempi() {
  auto* barra = Chiama(QStringLiteral("tbTempi"), new QToolBar);
  barra->setIconSize(QSize(22, 22));
  for (const Comando_Tempi& comando : Comandi()) {
    auto* azione = Chiama(QString::fromUtf8(comando.Nome), new QAction(Q(comando.Cosa), this));
    azione->setCheckable(comando.Spunta);
    azione->setToolTip(Q(comando.Cosa) + "  (" + Tasti_Come_Testo(comando) + ")");
    connect(azione, &QAction::triggered, this, [this, fai = comando.Fai] {
      messaggio_.clear();
      (this->*fai)();
      Ridisegna();
    });
    azioni_.push_back(azione);
    if (*comando.Icona == '\0') continue;
    if (comando.Stacco) barra->addSeparator();
    Metti_Icona(*barra, *azione, Q(comando.Icona));
    barra->addAction(azione);
    if (auto* tasto = qobject_cast<QToolButton*>(barra->widgetForAction(azione))) {
      tasto->setFocusPolicy(Qt::NoFocus);
      tasto->setAccessibleName(Q(comando.Cosa));
    }
  }
  auto* esporta = Chiama(QStringLiteral("cmdEsporta"), new QToolButton);
  Metti_Icona(*esporta, QStringLiteral("Save"));
  esporta->setToolTip(
      QStringLiteral("Salva: disegno SVG (Ctrl+S), immagine PNG (Ctrl+P), "
                     "registrazione VCD (Ctrl+D)"));
  esporta->setAccessibleName(QStringLiteral("Salva"));
  esporta->setFocusPolicy(Qt::NoFocus);
  esporta->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(esporta);
  for (QAction* azione : azioni_) {
    const QString nome = azione->objectName();
    if (nome == u"cmdSvg" || nome == u"cmdPng" || nome == u"cmdVcd") menu->addAction(azione);
  }
  esporta->setMenu(menu);
  barra->addWidget(esporta);
  return barra;
}

QWidget* FrmTempi::Crea_Ricerca() {
  auto* ricerca = new QWidget;
  auto* posti = new QHBoxLayout(ricerca);
  posti->setContentsMargins(8, 0, 0, 0);
  posti->setSpacing(4);
  txtCerca_ = Chiama(QStringLiteral("txtCerca"), new QLineEdit);
  txtCerca_->setPlaceholderText(QStringLiteral("Cerca: Q0.1 sale, VW10 > 300 e I0.0 = 1"));
  txtCerca_->setToolTip(
      QStringLiteral("Condizione da cercare, anche per il trigger: un segnale con sale, scende, "
                     "cambia, =, <>, <, >, <=, >=; più prove si uniscono con \"e\".\nInvio o F3 "
                     "avanti, Maiusc+Invio o Maiusc+F3 indietro, Esc torna al diagramma (Ctrl+F)"));
  txtCerca_->setAccessibleName(QStringLiteral("Condizione da cercare"));
  txtCerca_->setClearButtonEnabled(true);
  txtCerca_->setMinimumWidth(120);
  posti->addWidget(txtCerca_, 1);
  connect(txtCerca_, &QLineEdit::returnPressed, this, [this] {
    messaggio_.clear();
    Cerca(QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
    Ridisegna();
  });
  const auto tasto = [&](const char* nome, Qt::ArrowType freccia, void (FrmTempi::*comando)()) {
    auto* nuovo = Chiama(QString::fromUtf8(nome), new QToolButton);
    nuovo->setArrowType(freccia);
    nuovo->setFocusPolicy(Qt::NoFocus);
    const auto riga = std::ranges::find(Comandi(), comando, &Comando_Tempi::Fai);
    QAction* sua = azioni_[static_cast<std::size_t>(riga - Comandi().begin())];
    nuovo->setToolTip(sua->toolTip());
    nuovo->setAccessibleName(sua->text());
    connect(nuovo, &QToolButton::clicked, sua, &QAction::trigger);
    posti->addWidget(nuovo);
  };
  tasto("cmdIndietro", Qt::UpArrow, &FrmTempi::Cerca_Prima);
  tasto("cmdAvanti", Qt::DownArrow, &FrmTempi::Cerca_Dopo);
  return ricerca;
}

// ---- what went before ---------------------------------------------------------------------------

void FrmTempi::Riempi() {
  rilettura_ = Rileggi ? Rileggi(diagramma_.Mostrati()) : nullptr;
  if (!rilettura_) return;
  registrazione_.Comincia(rilettura_->Da());
  diagramma_.Segui();
}

void FrmTempi::Riempi_Ancora() {
  if (!rilettura_ || plc_.Hook.Adesso == Vissuto::Replica) return;
  const bool in_corsa = plc_.In_Giro() != Giro::Nessuno;
  if (!rilettura_->Avanti(in_corsa ? std::chrono::nanoseconds{fetta_in_corsa} : fetta_da_ferma)) {
    registrazione_.Anteponi(rilettura_->Dati());
    rilettura_.reset();
    diagramma_.Segui();
    Ridisegna();
  }
  Scrivi_Stato();
}

// ---- showing ------------------------------------------------------------------------------------

void FrmTempi::Aggiorna() {
  sonda_.Guarda();
  Riempi_Ancora();
  std::optional<std::int64_t> visto;
  if (plc_.Hook.Adesso == Vissuto::Passato) visto = plc_.Tempo.Adesso();
  if (std::exchange(diagramma_.Passato, visto) != visto) Ridisegna();
  const bool cambiato = registrazione_.Cambi() != visti_;
  const double fine = diagramma_.Vista.X(static_cast<double>(registrazione_.Fine()));
  const bool passato = registrazione_.Fine() != fine_vista_ &&
                       (diagramma_.In_Diretta || fine <= diagramma_.Vista.Larga);
  if (!cambiato && !passato) return;
  visti_ = registrazione_.Cambi();
  fine_vista_ = registrazione_.Fine();
  const bool armato = diagramma_.Armato();
  diagramma_.Segui();
  if (armato && diagramma_.Scattato)
    Di("Il trigger è scattato a " +
       Q(Testo_Istante(*diagramma_.Scattato - registrazione_.Inizio())) + ".");
  Ridisegna();
}

void FrmTempi::Racconta(const QString& messaggio) {
  Di(messaggio);
  Ridisegna();
}

void FrmTempi::Di(const QString& messaggio) {
  messaggio_ = messaggio;
}

void FrmTempi::Ridisegna() {
  tela_->update();
  Mosso();
}

void FrmTempi::Mosso() {
  Mostra_Barre();
  Scrivi_Stato();
  for (std::size_t n = 0; n < azioni_.size(); ++n) {
    QAction& azione = *azioni_[n];
    if (azione.objectName() == u"cmdDiretta") azione.setChecked(diagramma_.In_Diretta);
    if (azione.objectName() == u"cmdTrigger") azione.setChecked(diagramma_.Armato());
    if (azione.objectName() == u"cmdScansioni") azione.setChecked(diagramma_.Griglia_Scansioni);
  }
}

void FrmTempi::Mostra_Barre() {
  const QSignalBlocker righe(scorri_righe_);
  scorri_righe_->setRange(0, static_cast<int>(std::ceil(tela_->Scorrimento_Massimo())));
  scorri_righe_->setPageStep(std::max(1, tela_->height()));
  scorri_righe_->setSingleStep(26);
  scorri_righe_->setValue(static_cast<int>(tela_->Scorrimento()));
  scorri_righe_->setVisible(scorri_righe_->maximum() > 0);

  const QSignalBlocker tempo(scorri_tempo_);
  const double durata =
      std::max(1.0, static_cast<double>(registrazione_.Fine() - registrazione_.Inizio()));
  const double vista = diagramma_.Vista.A() - diagramma_.Vista.Da;
  const auto punti = [&](double ms) {
    return static_cast<int>(std::clamp(ms / durata, 0.0, 1.0) * punti_di_barra);
  };
  scorri_tempo_->setRange(0, punti(durata - vista * 0.9));
  scorri_tempo_->setPageStep(std::max(1, punti(vista)));
  scorri_tempo_->setValue(
      punti(diagramma_.Vista.Da - static_cast<double>(registrazione_.Inizio())));
}

void FrmTempi::Scrivi_Stato() {
  QStringList parti;
  const std::int64_t zero = registrazione_.Inizio();
  if (diagramma_.A) parti << "A " + Q(Testo_Istante(*diagramma_.A - zero));
  if (diagramma_.B) parti << "B " + Q(Testo_Istante(*diagramma_.B - zero));
  if (diagramma_.A && diagramma_.B) {
    const std::int64_t differenza = *diagramma_.B - *diagramma_.A;
    QString testo = "B − A = " + Q(Testo_Durata(differenza));
    if (differenza != 0)
      testo += " (" + Q(Con_Virgola(1000.0 / std::abs(static_cast<double>(differenza)))) + " Hz)";
    parti << testo;
  }
  if (!messaggio_.isEmpty()) parti << messaggio_;
  if (parti.isEmpty())
    parti << QStringLiteral(
        "Clic: cursore A · Maiusc+clic: cursore B · rotella: ingrandisce · tasto destro: menu, "
        "trascinato scorre · "
        "F1: guida");
  etCursori_->setText(parti.join(QStringLiteral("    ")));
  etCursori_->setToolTip(etCursori_->text());
  const auto larga =
      static_cast<std::int64_t>(std::llround(diagramma_.Vista.A() - diagramma_.Vista.Da));
  const QString riempie = rilettura_ ? QStringLiteral("rilegge il passato: %1 %  ·  ")
                                           .arg(rilettura_->Fatta() * 100, 0, 'f', 0)
                                     : QString();
  etVista_->setText(riempie + "finestra di " + Q(Testo_Durata(larga)) + "  ·  " +
                    (diagramma_.Armato()     ? QStringLiteral("trigger armato")
                     : diagramma_.In_Diretta ? QStringLiteral("in diretta")
                                             : QStringLiteral("ferma")));
}

void FrmTempi::closeEvent(QCloseEvent* evento) {
  timT_->stop();
  QWidget::closeEvent(evento);
}

}  // namespace tavorno
