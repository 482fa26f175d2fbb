// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/workbench.h"

#include <QAction>
#include <QCheckBox>
#include <QDockWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <algorithm>

#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "recorder/ui/diagram_window.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr auto destra = Qt::RightDockWidgetArea;
constexpr auto sotto = Qt::BottomDockWidgetArea;

// The diagram is the strip that stays in sight; what is looked at now and then lies behind it.
constexpr Riga_Tavolo righe[] = {
    {Vista_Tavolo::CPU, "dockCPU", "CPU", Posto_Tavolo{destra, 300, 340}, {}},
    {Vista_Tavolo::Lista, "dockLista", "Lista Istruzioni", Posto_Tavolo{destra, 300, 660},
     Posto_Tavolo{destra, 300, 1000}},
    {Vista_Tavolo::Tempi, "dockTempi", "Diagramma dei tempi", Posto_Tavolo{sotto, 0, 340},
     Posto_Tavolo{sotto, 0, 320}},
    {Vista_Tavolo::Osserva, "dockOsserva", "Osservazione", Posto_Tavolo{sotto, 0, 340, true},
     Posto_Tavolo{sotto, 0, 320, true}},
    {Vista_Tavolo::Stati, "dockStati", "Stati Elementi", Posto_Tavolo{sotto, 0, 340, true},
     Posto_Tavolo{sotto, 0, 320, true}},
    {Vista_Tavolo::Tabella_IO, "dockIO", "Assegnazione I/O", Posto_Tavolo{sotto, 0, 340, true}, {}},
};

constexpr std::size_t Numero(Vista_Tavolo chi) {
  return static_cast<std::size_t>(chi);
}

const Riga_Tavolo& Riga_Di(Vista_Tavolo chi) {
  return *std::ranges::find(righe, chi, &Riga_Tavolo::Chi);
}

/// Keys that a view reads itself, though the window has a command of that key.
bool Tasto_Suo(const QWidget& vista, const QKeyEvent& tasto) {
  if (dynamic_cast<const FrmTempi*>(&vista) == nullptr) return false;
  const QKeySequence battuto(tasto.keyCombination());
  return std::ranges::any_of(FrmTempi::Comandi(), [&](const Comando_Tempi& comando) {
    return battuto != QKeySequence(Qt::Key_F1) &&
           Q(comando.Tasti).split(' ').contains(battuto.toString());
  });
}

}  // namespace

std::span<const Riga_Tavolo> Tabella_Tavolo() {
  return righe;
}

Tavolo::Tavolo(QMainWindow& pannello, Finestra_Impianto* impianto, const Viste_Tavolo& viste)
    : pannello_(pannello),
      impianto_(impianto),
      posto_(impianto != nullptr ? &Riga_Tavolo::Con_Impianto : &Riga_Tavolo::Senza),
      posto_pannello_(pannello),
      finestra_(impianto != nullptr ? new QMainWindow : &pannello) {
  const auto tutti = pannello_.findChildren<QAction*>();
  for (const QAction* azione : tutti) tasti_ << azione->shortcuts();
  const QRect schermo = pannello_.screen()->availableGeometry();
  const QSize cornice = pannello_.frameGeometry().size() - pannello_.size();
  if (impianto != nullptr) {
    pannello_.hide();  // first, or it would have the focus for a moment
    Prendi_Impianto(*impianto);
  }
  finestra_->setCorner(Qt::BottomRightCorner, destra);
  finestra_->setTabPosition(sotto, QTabWidget::North);
  for (const Riga_Tavolo& riga : righe) {
    QWidget* vista = viste[Numero(riga.Chi)];
    if (vista != nullptr && (riga.*posto_)) Accogli(riga.Chi, *vista);
  }
  finestra_->installEventFilter(this);
  if (impianto != nullptr) {
    finestra_->resize(schermo.size() - cornice);
    finestra_->move(schermo.topLeft());
  }
  finestra_->showMaximized();
  finestra_->raise();
  finestra_->activateWindow();
  Disponi();
  if (impianto != nullptr) impianto->Disegno().setFocus();
}

Tavolo::~Tavolo() {
  finestra_->removeEventFilter(this);
  if (impianto_) {
    disconnect(&impianto_->chkIO(), nullptr, this, nullptr);
    impianto_->chkIO().setChecked(tabella_spuntata_);
  }
  // The panel is whole before it is seen, and is so before the windows in front of it.
  Rendi_Viste(false);
  if (finestra_ == &pannello_) {
    Rendi_Viste(true);
    posto_pannello_.Rimetti(pannello_);
    return;
  }
  posto_pannello_.Rimetti(pannello_);
  Rendi_Barre();
  finestra_->takeCentralWidget();
  pannello_.show();
  Rendi_Viste(true);
  if (prestito_impianto_) prestito_impianto_->Rendi(!Impianto_Chiude);
  finestra_->hide();
  finestra_->deleteLater();  // it may be in the middle of its end
}

/// Those that were windows, or those that were parts of others.
void Tavolo::Rendi_Viste(bool finestre) {
  for (Prestito& prestito : prestiti_) {
    if (prestito.Era_Finestra() == finestre) prestito.Rendi();
  }
  for (const QPointer<QDockWidget>& riquadro : riquadri_) {
    if (riquadro.isNull() || riquadro->widget() != nullptr) continue;
    finestra_->removeDockWidget(riquadro);
    delete riquadro;
  }
}

void Tavolo::Prendi_Impianto(Finestra_Impianto& impianto) {
  finestra_->setObjectName(QStringLiteral("frmTavolo"));
  finestra_->setWindowTitle(impianto.windowTitle());
  finestra_->setWindowIcon(impianto.windowIcon());
  tabella_spuntata_ = impianto.chkIO().isChecked();
  connect(&impianto.chkIO(), &QCheckBox::toggled, this, [this](bool spuntata) {
    QDockWidget* riquadro = Riquadro(Vista_Tavolo::Tabella_IO);
    if (riquadro == nullptr) return;
    riquadro->setVisible(spuntata);
    if (spuntata) riquadro->raise();
  });
  prestito_impianto_.emplace(impianto, tasti_);
  finestra_->setCentralWidget(&impianto);
  impianto.show();
  Prendi_Barre();
}

void Tavolo::Prendi_Barre() {
  finestra_->menuBar()->addActions(pannello_.menuBar()->actions());
  for (auto* barra : pannello_.findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
    const bool nascosta = barra->isHidden();
    const Qt::ToolBarArea area = pannello_.toolBarArea(barra);
    Lascia_Il_Fuoco(*barra);
    pannello_.removeToolBar(barra);
    finestra_->addToolBar(area, barra);
    barra->setVisible(!nascosta);
    barre_ << barra;
  }
}

void Tavolo::Rendi_Barre() {
  for (const QPointer<QToolBar>& barra : barre_) {
    if (barra.isNull()) continue;
    const bool nascosta = barra->isHidden();
    const Qt::ToolBarArea area = finestra_->toolBarArea(barra);
    Lascia_Il_Fuoco(*barra);
    finestra_->removeToolBar(barra);
    pannello_.addToolBar(area, barra);
    barra->setVisible(!nascosta);
  }
}

QDockWidget* Tavolo::Riquadro(Vista_Tavolo chi) const {
  return riquadri_[Numero(chi)];
}

void Tavolo::Accogli(Vista_Tavolo chi, QWidget& vista) {
  const Riga_Tavolo& riga = Riga_Di(chi);
  delete riquadri_[Numero(chi)];
  auto* riquadro = Chiama(Q(riga.Nome), new QDockWidget(Q(riga.Titolo), finestra_));
  riquadro->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  riquadri_[Numero(chi)] = riquadro;
  prestiti_.emplace_back(vista, tasti_);
  riquadro->setWidget(&vista);
  vista.show();
  vista.installEventFilter(this);
  connect(&vista, &QObject::destroyed, riquadro, &QObject::deleteLater);
  finestra_->addDockWidget((riga.*posto_)->Area, riquadro);
  if (!finestra_->isVisible()) return;
  Disponi();
  riquadro->raise();
}

void Tavolo::Disponi() {
  a_mano_ = false;
  QDockWidget* prima = nullptr;
  QDockWidget* davanti = nullptr;
  for (const Riga_Tavolo& riga : righe) {
    QDockWidget* riquadro = Riquadro(riga.Chi);
    if (riquadro == nullptr) continue;
    const Posto_Tavolo& posto = *(riga.*posto_);
    finestra_->addDockWidget(posto.Area, riquadro);
    if (posto.Linguetta && prima != nullptr && finestra_->dockWidgetArea(prima) == posto.Area)
      finestra_->tabifyDockWidget(prima, riquadro);
    else
      davanti = riquadro;
    riquadro->show();
    prima = riquadro;
  }
  if (davanti != nullptr) davanti->raise();
  if (impianto_) impianto_->chkIO().setChecked(true);
  if (davanti != nullptr) davanti->raise();
  Misura();
}

/// Gives the docks their parts of the window as it is now.
void Tavolo::Misura() {
  QList<QDockWidget*> in_colonna, in_riga;
  QList<int> alti, larghi;
  for (const Riga_Tavolo& riga : righe) {
    QDockWidget* riquadro = Riquadro(riga.Chi);
    if (riquadro == nullptr || riquadro->isHidden()) continue;
    const Posto_Tavolo& posto = *(riga.*posto_);
    if (posto.Linguetta) continue;
    in_colonna << riquadro;
    alti << finestra_->height() * posto.Alto / 1000;
    if (posto.Area != destra) continue;
    in_riga << riquadro;
    larghi << finestra_->width() * posto.Largo / 1000;
  }
  finestra_->resizeDocks(in_riga, larghi, Qt::Horizontal);
  finestra_->resizeDocks(in_colonna, alti, Qt::Vertical);
}

bool Tavolo::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto != finestra_) {
    const bool suo =
        evento->type() == QEvent::ShortcutOverride &&
        Tasto_Suo(static_cast<const QWidget&>(*oggetto), static_cast<const QKeyEvent&>(*evento));
    if (suo) evento->accept();
    return suo;
  }
  switch (evento->type()) {
    case QEvent::Resize:
      if (!a_mano_)
        QMetaObject::invokeMethod(
            this, [this] { Misura(); }, Qt::QueuedConnection);
      break;
    case QEvent::MouseButtonPress:
      a_mano_ = true;  // what is left to the window itself is the borders between the docks
      break;
    case QEvent::Close:
      if (finestra_ != &pannello_ && Si_Chiude) {
        const auto chiudi = Si_Chiude;
        chiudi();  // and this workbench has gone
        return false;
      }
      break;
    default:
      break;
  }
  return false;
}

}  // namespace tavorno
