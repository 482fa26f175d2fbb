// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/host_window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>
#include <algorithm>
#include <initializer_list>

#include "plants/host/command_row.h"
#include "plants/host/fault_panel.h"
#include "plants/host/io_table.h"
#include "plants/host/picture_widget.h"
#include "plants/host/settings_page.h"
#include "plants/host/strip.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

constexpr int larga_accanto = 600;    // pixels of the table beside the picture at least
constexpr int larga_tabella = 740;    // with its comments in full
constexpr int periodo_sguardo = 100;  // ms

enum Righe { Riga_Del_Quadro, Riga_Della_Striscia, Riga_Dei_Comandi, Riga_Delle_Schede };

}  // namespace

Finestra_Impianto::Finestra_Impianto(std::unique_ptr<Collegamento> collegamento)
    : collegamento_(std::move(collegamento)),
      storia_(*collegamento_),
      altezza_(collegamento_->Tabella().Altezza_Chiusa) {
  const Esercizio& esercizio = collegamento_->Tabella();
  setObjectName(Q(esercizio.Host));
  setWindowTitle(Q(esercizio.Titolo));
  quadro_ = Crea_Quadro();
  striscia_ = new Striscia(storia_);
  tabella_ = new Tabella_IO(*collegamento_, storia_);
  guasti_ = new Pannello_Guasti(*collegamento_);
  comandi_ = new Riga_Comandi(Q(esercizio.Voce_IO));

  posti_ = new QGridLayout(this);
  posti_->setContentsMargins(0, 0, 0, 0);
  posti_->setSpacing(0);
  posti_->addWidget(quadro_, Riga_Del_Quadro, 0);
  posti_->addWidget(striscia_, Riga_Della_Striscia, 0);
  posti_->addWidget(comandi_, Riga_Dei_Comandi, 0);
  posti_->addWidget(schede_ = Crea_Schede(), Riga_Delle_Schede, 0);
  posti_->setRowStretch(Riga_Del_Quadro, 1);
  posti_->setColumnStretch(0, 1);
  schede_->setVisible(false);
  striscia_->setVisible(false);
  Disponi(size());

  Collega_Comandi();
  Collega_Indicazioni();
  sguardo_.setInterval(periodo_sguardo);
  sguardo_.callOnTimeout(this, [this] { Aggiorna(); });
  sguardo_.start();

  move(0, 0);
  resize(Voluta());
  quadro_->setFocus();
}

Quadro* Finestra_Impianto::Crea_Quadro() {
  const Esercizio& esercizio = collegamento_->Tabella();
  const QString disegni =
      QStringLiteral(":/plants/US-%1.svg").arg(esercizio.Indice, 2, 10, QChar('0'));
  auto* quadro = Chiama(Q(esercizio.Nome), new Quadro(collegamento_->Macchina(), disegni));
  quadro->Mano = [this](const Atto& atto) { return collegamento_->Entra(atto); };
  quadro->Ostacolo = [this](const Figura& figura) { return Ostacolo(figura); };
  return quadro;
}

/// Inputs that the switches drive hear nothing of the plant.
QString Finestra_Impianto::Ostacolo(const Figura& figura) const {
  if (collegamento_->Cpu().Hook.Adesso == Vissuto::Passato)
    return QStringLiteral("si guarda il passato della seduta; si comanda dal presente");
  const QStringList morsetti = quadro_->Morsetti_Di(figura);
  const bool ingresso = std::ranges::any_of(
      morsetti, [](const QString& morsetto) { return morsetto.startsWith('I'); });
  if (collegamento_->chkSim() && ingresso)
    return QStringLiteral("la CPU non lo sente: i suoi ingressi arrivano dagli interruttori");
  return {};
}

Collegamento* Finestra_Impianto::Riapri() {
  const bool a_fuoco = quadro_->hasFocus();
  const auto indicata = quadro_->Indicata;
  delete quadro_;
  quadro_ = nullptr;
  collegamento_->Apri();
  quadro_ = Crea_Quadro();
  quadro_->Indicata = indicata;
  quadro_->Segna_Guasti(guasti_->Fili_Guasti());
  posti_->addWidget(quadro_, Riga_Del_Quadro, 0);
  if (a_fuoco) quadro_->setFocus();
  return collegamento_.get();
}

QCheckBox& Finestra_Impianto::chkIO() const {
  return *comandi_->chkIO;
}

void Finestra_Impianto::Specchia() {
  comandi_->chkSim->setChecked(collegamento_->chkSim());
  impostazioni_->Specchia();
  Aggiorna();
  quadro_->update();
}

// What looks at the plant goes first.
Finestra_Impianto::~Finestra_Impianto() {
  for (QWidget* vista : std::initializer_list<QWidget*>{quadro_, striscia_, tabella_, guasti_})
    delete vista;
}

void Finestra_Impianto::closeEvent(QCloseEvent* evento) {
  evento->accept();
  if (Sta_Per_Chiudere) Sta_Per_Chiudere();
  sguardo_.stop();
  if (Indica_Morsetti) Indica_Morsetti({});
  collegamento_->Chiudi();
  if (Chiusa) Chiusa();
}

void Finestra_Impianto::Collega_Comandi() {
  connect(comandi_->chkSim, &QCheckBox::clicked, this, [this](bool spuntato) {
    collegamento_->Entra({.Che = Cosa::Usa_Interruttori, .Numero = spuntato});
    comandi_->chkSim->setChecked(collegamento_->chkSim());
  });
  connect(comandi_->chkIO, &QCheckBox::toggled, this, &Finestra_Impianto::Apri_Tabella);
  connect(comandi_->chkStriscia, &QCheckBox::toggled, this, &Finestra_Impianto::Apri_Striscia);
  const auto guida = [this] {
    if (Mostra_Aiuto) Mostra_Aiuto(collegamento_->Tabella().Pagina);
  };
  connect(comandi_->cmdSch, &QPushButton::clicked, this, guida);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, guida);
  const auto tempi = [this] {
    if (Mostra_Tempi) Mostra_Tempi();
  };
  connect(comandi_->cmdTempi, &QPushButton::clicked, this, tempi);
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_D), this), &QShortcut::activated, this,
          tempi);
  const auto verifica = [this] {
    if (Verifica) Verifica();
  };
  connect(comandi_->cmdVerifica, &QPushButton::clicked, this, verifica);
  connect(new QShortcut(QKeySequence(Qt::Key_F9), this), &QShortcut::activated, this, verifica);
  connect(comandi_->cmdEnd, &QPushButton::clicked, this, &QWidget::close);

  QMenu* menu = comandi_->mnuGuasti;
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    menu->clear();
    guasti_->Riempi(*menu);
    QAction* pannello = menu->addAction(QStringLiteral("Pannello dei guasti…"));
    pannello->setObjectName(QStringLiteral("mnuPannelloGuasti"));
    connect(pannello, &QAction::triggered, this, [this] {
      comandi_->chkIO->setChecked(true);
      schede_->setCurrentWidget(guasti_);
    });
  });
  guasti_->Cambiati = [this] {
    comandi_->Mostra_Guasti(guasti_->Attivi(), guasti_->Elenco());
    quadro_->Segna_Guasti(guasti_->Fili_Guasti());
  };
}

QTabWidget* Finestra_Impianto::Crea_Schede() {
  auto* schede = Chiama(QStringLiteral("SSTab1"), new QTabWidget);
  schede->addTab(tabella_, Q(Scheda_1));
  impostazioni_ = new Pagina_Impostazioni(*collegamento_);
  schede->addTab(impostazioni_, Q(collegamento_->Tabella().Scheda_2));
  schede->addTab(guasti_, QStringLiteral("Guasti"));
  return schede;
}

// A part that is pointed at anywhere lights up everywhere: in the picture, in the table and,
// through the panel, its LED and its terminal.
void Finestra_Impianto::Collega_Indicazioni() {
  tabella_->Indicata = [this](int riga) {
    QStringList morsetti;
    if (riga >= 0)
      morsetti << Q(storia_.Tabella().Righe_IO[static_cast<std::size_t>(riga)].Indirizzo);
    quadro_->Indica(morsetti);
    if (Indica_Morsetti) Indica_Morsetti(morsetti);
  };
  quadro_->Indicata = [this](const QStringList& morsetti) {
    std::vector<int> righe;
    const auto tutte = storia_.Tabella().Righe_IO;
    for (std::size_t n = 0; n < tutte.size(); ++n) {
      if (morsetti.contains(Q(tutte[n].Indirizzo))) righe.push_back(static_cast<int>(n));
    }
    tabella_->Evidenzia(righe);
    if (Indica_Morsetti) Indica_Morsetti(morsetti);
  };
}

void Finestra_Impianto::Aggiorna() {
  Mostra_Corsa();
  storia_.Guarda();
  guasti_->Aggiorna();
  if (tabella_->isVisible()) tabella_->Aggiorna();
  if (striscia_->isVisible()) striscia_->update();
}

QSize Finestra_Impianto::Voluta() const {
  const int striscia = striscia_->isHidden() ? 0 : striscia_->sizeHint().height();
  return {quadro_->sizeHint().width(), Px(altezza_) + striscia};
}

void Finestra_Impianto::Mostra_Corsa() {
  const Plc& cpu = collegamento_->Cpu();
  const Corsa accesa = cpu.In_Pausa() ? Corsa::In_Pausa : Corsa::In_Moto;
  comandi_->Mostra_Corsa(cpu.PLC_Acceso != 0 ? accesa : Corsa::Ferma);
}

/// The height shows or hides the table. What the user has made the window larger by stays.
void Finestra_Impianto::Apri_Tabella(bool aperta) {
  if (!Schede_Qui()) return;
  const Esercizio& esercizio = collegamento_->Tabella();
  const int prima = altezza_;
  altezza_ = aperta ? esercizio.Altezza_Aperta : esercizio.Altezza_Chiusa;
  Mostra(*schede_, aperta, Px(altezza_) - Px(prima));
}

void Finestra_Impianto::Apri_Striscia(bool aperta) {
  Mostra(*striscia_, aperta, (aperta ? 1 : -1) * striscia_->sizeHint().height());
}

void Finestra_Impianto::Mostra(QWidget& vista, bool aperta, int pixel) {
  const bool ferma = !isWindow() || isMaximized() || isFullScreen();
  const QSize prima = size();  // what appears may make the window grow at once
  vista.setVisible(aperta);
  int di_quanto = 0;
  if (ferma)
    cresciuta_.erase(&vista);
  else if (aperta)
    di_quanto = cresciuta_[&vista] = Crescita(vista, prima, pixel);
  else
    di_quanto = cresciuta_.contains(&vista) ? -cresciuta_[&vista] : pixel;
  const QSize voluta(prima.width(), prima.height() + di_quanto);
  Disponi(voluta);
  layout()->activate();  // else the window may not shrink yet
  if (ferma) return;
  resize(voluta);
  if (Tabella_Mossa) Tabella_Mossa();
}

/// By how much a window of this size grows for what appears in it and wants these pixels: by
/// nothing where there is room at the side, and within the screen once the user has enlarged it.
int Finestra_Impianto::Crescita(const QWidget& vista, const QSize& prima, int pixel) const {
  if (&vista == schede_ && Meglio_Accanto(prima)) return 0;
  constexpr int tondo = 1;  // pixels that rounding the told heights may leave
  if (prima.height() + pixel <= Voluta().height() + tondo) return pixel;
  const int cornice = frameGeometry().height() - height();
  const int schermo = screen()->availableGeometry().height() - cornice;
  return std::clamp(schermo - prima.height(), 0, pixel);
}

/// Pixels that strip and commands take.
int Finestra_Impianto::Sotto_Il_Quadro() const {
  return comandi_->sizeHint().height() +
         (striscia_->isHidden() ? 0 : striscia_->sizeHint().height());
}

/// Whether the picture is larger with the table at its side than with the table below.
bool Finestra_Impianto::Meglio_Accanto(const QSize& finestra) const {
  if (schede_->isHidden()) return false;
  if (finestra.width() < larga_accanto + quadro_->minimumSizeHint().width()) return false;
  const QSizeF disegno = quadro_->sizeHint();
  const int sotto = Sotto_Il_Quadro();
  const auto scala = [&](int largo, int alto) {
    return std::min(largo / disegno.width(), alto / disegno.height());
  };
  const int con_tabella = Px(storia_.Tabella().Altezza_Aperta - storia_.Tabella().Altezza_Chiusa);
  return scala(finestra.width() - larga_accanto, finestra.height() - sotto) >
         scala(finestra.width(), finestra.height() - sotto - con_tabella);
}

/// Somebody else may be showing the table for a while, and then sees to its place.
bool Finestra_Impianto::Schede_Qui() const {
  return schede_->parentWidget() == this;
}

void Finestra_Impianto::Disponi(const QSize& finestra) {
  if (!Schede_Qui()) return;
  const bool accanto = Meglio_Accanto(finestra);
  const int alta = Px(storia_.Tabella().Altezza_Aperta - storia_.Tabella().Altezza_Chiusa);
  if (accanto != accanto_) {
    accanto_ = accanto;
    posti_->removeWidget(schede_);
    if (accanto)
      posti_->addWidget(schede_, Riga_Del_Quadro, 1, Riga_Delle_Schede, 1);
    else
      posti_->addWidget(schede_, Riga_Delle_Schede, 0);
  }
  // Beside the picture it takes what the picture cannot use.
  const int alto = finestra.height() - Sotto_Il_Quadro();
  const QSize disegno = quadro_->sizeHint();
  const int larga = std::clamp(finestra.width() - disegno.width() * alto / disegno.height(),
                               larga_accanto, larga_tabella);
  schede_->setMinimumSize(accanto ? QSize(larga, 0) : QSize(0, alta));
  schede_->setMaximumSize(accanto ? QSize(larga, QWIDGETSIZE_MAX) : QSize(QWIDGETSIZE_MAX, alta));
  posti_->activate();  // nothing is drawn where it was before
}

void Finestra_Impianto::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  Disponi(size());
}

}  // namespace tavorno
