// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/browser_window.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <functional>

#include "panel/documents/help_view.h"
#include "widgets/command_tables.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

constexpr int periodo = 5;             // ms
constexpr int senza_indirizzo = 1600;  // twips of the tool bar that the address leaves to the keys
constexpr int bordo_pagina = 10;       // twips
constexpr int alto_barra = 500;        // twips
constexpr QSize icona_tasto(18, 18);
constexpr QSize area_tasto(21, 34);
constexpr char in_lavoro[] = "Elaborazione in corso...";

}  // namespace

QToolBar* FrmBrowser::Crea_Tasti() {
  const std::array tasti{
      Tasto_Barra{.Chiave = "Back",
                  .Suggerimento = "Indietro (Alt+Sinistra)",
                  .Icona = "Back",
                  .Dove = &tasti_.Back},
      Tasto_Barra{.Chiave = "Forward",
                  .Suggerimento = "Avanti (Alt+Destra)",
                  .Icona = "Forward",
                  .Dove = &tasti_.Forward},
      Tasto_Barra{.Chiave = "Refresh",
                  .Suggerimento = "Aggiorna la pagina (Ctrl+R)",
                  .Icona = "Refresh",
                  .Dove = &tasti_.Refresh},
      Tasto_Barra{.Chiave = "Home",
                  .Suggerimento = "Indice della guida (Alt+Home)",
                  .Icona = "Home",
                  .Dove = &tasti_.Home},
      Tasto_Barra{.Chiave = "Search",
                  .Suggerimento = "Cerca nella guida (Ctrl+F)",
                  .Icona = "Search",
                  .Dove = &tasti_.Search},
      Tasto_Barra{.Chiave = "Stop",
                  .Suggerimento = "Interrompi (Esc)",
                  .Icona = "StopLoad",
                  .Dove = &tasti_.Stop},
      Tasto_Barra{.Chiave = "Esci",
                  .Suggerimento = "Chiudi la guida (Ctrl+W)",
                  .Icona = "Esci",
                  .Dove = &tasti_.Esci},
  };
  return Crea_Barra(*this, "tbToolBar", tasti);
}

FrmBrowser::FrmBrowser(const Guida& guida, QWidget* sopra)
    : QMainWindow(sopra),
      guida_(guida),
      tbToolBar_(Crea_Tasti()),
      stacco_(new QWidget),
      cboAddress_(new QComboBox),
      brwWebBrowser_(new Vista_Aiuto(guida)),
      ricerca_(Crea_Ricerca()),
      timTimer_(new QTimer(this)) {
  setObjectName("frmBrowser");
  setWindowTitle(Q("Guida"));
  Collega_Tasti();
  Crea_Indirizzo();
  Crea_Scorciatoie();

  brwWebBrowser_->setObjectName("brwWebBrowser");
  brwWebBrowser_->setAccessibleName(Q("Pagina della guida"));
  brwWebBrowser_->setFrameShape(QFrame::NoFrame);
  brwWebBrowser_->Comincia = [this] { timTimer_Tick(); };
  brwWebBrowser_->Finita = [this](const QUrl& url) { Navigazione_Finita(url); };
  timTimer_->setObjectName("timTimer");
  timTimer_->setInterval(periodo);
  connect(timTimer_, &QTimer::timeout, this, [this] { timTimer_Tick(); });

  auto* corpo = new QWidget;
  auto* colonna = new QVBoxLayout(corpo);
  colonna->setContentsMargins(0, 0, Px(bordo_pagina), 0);
  colonna->setSpacing(0);
  colonna->addWidget(ricerca_);
  colonna->addWidget(brwWebBrowser_, 1);
  setCentralWidget(corpo);
  resize(860, 680);
  setMinimumSize(360, 240);

  show();
  Disponi();
  const QUrl url = Indirizzo_Da_Testo(guida_, guida_.Url_Help);
  if (!url.isValid()) return;
  const QString testo = Testo_Indirizzo(url);
  No_Naviga = true;
  cboAddress_->addItem(testo);
  cboAddress_->setEditText(testo);
  No_Naviga = false;
  Vai(testo);
  brwWebBrowser_->setFocus();
}

void FrmBrowser::Collega_Tasti() {
  tbToolBar_->setIconSize(icona_tasto);  // forgets the height
  tbToolBar_->setFixedHeight(Px(alto_barra));
  tbToolBar_->layout()->setSpacing(0);
  for (QAction* azione : tbToolBar_->actions())
    tbToolBar_->widgetForAction(azione)->setFixedSize(area_tasto);

  const struct {
    QAction* azione;
    const char* combinazioni;  // separated by "; "
    std::function<void()> comando;
  } righe[] = {
      {tasti_.Back, "Alt+Left; Back", [this] { brwWebBrowser_->backward(); }},
      {tasti_.Forward, "Alt+Right; Forward", [this] { brwWebBrowser_->forward(); }},
      {tasti_.Refresh, "Ctrl+R", [this] { brwWebBrowser_->reload(); }},
      {tasti_.Home, "Alt+Home", [this] { Vai(guida_.Dir_Help + Q("Index.htm")); }},
      {tasti_.Search, "Ctrl+F; F3; Search", [this] { Vai(Q(Schema_Cerca) + ':'); }},
      {tasti_.Stop, "Esc", [this] { Ferma(); }},
      {tasti_.Esci, "Ctrl+W", [this] { close(); }},
  };
  for (const auto& riga : righe) {
    riga.azione->setShortcuts(QKeySequence::listFromString(Q(riga.combinazioni)));
    connect(riga.azione, &QAction::triggered, this, [this, comando = riga.comando] {
      timTimer_->start();
      comando();
    });
  }
}

void FrmBrowser::Crea_Indirizzo() {
  cboAddress_->setObjectName("cboAddress");
  cboAddress_->setToolTip(
      Q("Pagina mostrata e pagine già viste. Si può scrivere il nome di una "
        "pagina, per esempio US-00.htm (Ctrl+L)"));
  cboAddress_->setAccessibleName(Q("Indirizzo"));
  cboAddress_->setEditable(true);
  cboAddress_->setInsertPolicy(QComboBox::NoInsert);
  cboAddress_->setCompleter(nullptr);
  cboAddress_->setMaxVisibleItems(20);
  // Leaving the text part must not navigate, only Return in it.
  disconnect(cboAddress_->lineEdit(), SIGNAL(editingFinished()), cboAddress_, nullptr);
  connect(cboAddress_->lineEdit(), &QLineEdit::returnPressed, this, [this] { cboAddress_Click(); });
  connect(cboAddress_, &QComboBox::activated, this, [this] { cboAddress_Click(); });
  cboAddress_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  cboAddress_->setMinimumWidth(100);
  stacco_->setFixedWidth(1);
  tbToolBar_->addWidget(stacco_);
  tbToolBar_->addWidget(cboAddress_);
}

QWidget* FrmBrowser::Crea_Ricerca() {
  auto* ricerca = new QWidget;
  txtCerca_ = new QLineEdit;
  txtCerca_->setObjectName("txtCerca");
  txtCerca_->setClearButtonEnabled(true);
  txtCerca_->setPlaceholderText(Q("parole da cercare in tutta la guida"));
  txtCerca_->setToolTip(Q("Parole da cercare in tutte le pagine della guida"));
  auto* etichetta = new QLabel(Q("&Parole:"));
  etichetta->setBuddy(txtCerca_);
  auto* cerca = new QPushButton(Q("&Cerca"));
  cerca->setObjectName("cmdCerca");
  cerca->setToolTip(Q("Mostra le pagine che contengono tutte le parole"));
  auto* riga = new QHBoxLayout(ricerca);
  riga->setContentsMargins(20, 8, 12, 8);
  riga->addWidget(etichetta);
  riga->addWidget(txtCerca_, 1);
  riga->addWidget(cerca);
  const auto vai = [this] { Vai(Q(Schema_Cerca) + ':' + txtCerca_->text()); };
  connect(txtCerca_, &QLineEdit::returnPressed, this, vai);
  connect(cerca, &QPushButton::clicked, this, vai);
  ricerca->hide();
  return ricerca;
}

void FrmBrowser::Crea_Scorciatoie() {
  const auto tasto = [this](const QKeySequence& combinazione, std::function<void()> comando) {
    connect(new QShortcut(combinazione, this), &QShortcut::activated, this, std::move(comando));
  };
  tasto(Q("Ctrl++"), [this] { brwWebBrowser_->Ingrandisci(1); });
  tasto(Q("Ctrl+="), [this] { brwWebBrowser_->Ingrandisci(1); });
  tasto(Q("Ctrl+-"), [this] { brwWebBrowser_->Ingrandisci(-1); });
  tasto(Q("Ctrl+0"), [this] { brwWebBrowser_->Grandezza_Normale(); });
  tasto(Q("Ctrl+L"), [this] {
    cboAddress_->setFocus();
    cboAddress_->lineEdit()->selectAll();
  });
}

void FrmBrowser::Vai(const QString& indirizzo) {
  const QUrl url = Indirizzo_Da_Testo(guida_, indirizzo);
  if (!url.isValid()) return;
  timTimer_->start();
  // The page that is shown already may have changed on the disk.
  if (url == brwWebBrowser_->Pagina()) {
    brwWebBrowser_->reload();
  } else {
    brwWebBrowser_->setSource(url);
  }
}

void FrmBrowser::timTimer_Tick() {
  if (brwWebBrowser_->Occupata()) {
    setWindowTitle(Q(in_lavoro));
    return;
  }
  timTimer_->stop();
  setWindowTitle(brwWebBrowser_->Titolo());
}

void FrmBrowser::resizeEvent(QResizeEvent* evento) {
  QMainWindow::resizeEvent(evento);
  Disponi();
}

// The address takes the tool bar less a fixed part. The keys do not fill that part in every style
// of the window system: the gap behind them makes up for it.
void FrmBrowser::Disponi() {
  const int preso = tbToolBar_->width() - cboAddress_->width() - stacco_->width();
  stacco_->setFixedWidth(std::max(0, Px(senza_indirizzo) - preso));
}

void FrmBrowser::cboAddress_Click() {
  if (!No_Naviga) Vai(cboAddress_->currentText());
}

void FrmBrowser::Navigazione_Finita(const QUrl& url) {
  const QString testo = Testo_Indirizzo(url);
  No_Naviga = true;
  const int gia_visto = cboAddress_->findText(testo, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (gia_visto >= 0) cboAddress_->removeItem(gia_visto);
  cboAddress_->insertItem(0, testo);
  cboAddress_->setCurrentIndex(0);
  cboAddress_->setEditText(testo);
  No_Naviga = false;
  setWindowTitle(brwWebBrowser_->Titolo());

  const bool ricerca = url.scheme() == Q(Schema_Cerca);
  ricerca_->setVisible(ricerca);
  if (!ricerca) return;
  txtCerca_->setText(Parole_Cercate(url));
  txtCerca_->setFocus();
  txtCerca_->selectAll();
}

void FrmBrowser::Ferma() {
  // A page of the disk is read in one go: there is never half a page to stop at. What was typed
  // gives way to the address of the page on screen.
  timTimer_->stop();
  setWindowTitle(brwWebBrowser_->Titolo());
  cboAddress_->setEditText(Testo_Indirizzo(brwWebBrowser_->Pagina()));
}

}  // namespace tavorno
