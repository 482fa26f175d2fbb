// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/command_tables.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <array>

#include "widgets/icons.h"

namespace tavorno {

namespace {

void Prepara(QAction& azione, const Voce_Menu& voce) {
  azione.setObjectName(QString::fromUtf8(voce.Nome));
  if (voce.Segno != Spunta::Senza) {
    azione.setCheckable(true);
    azione.setChecked(voce.Segno == Spunta::Messa);
  }
  if (*voce.Tasti != '\0') azione.setShortcut(QKeySequence(QString::fromUtf8(voce.Tasti)));
  if (*voce.Aiuto != '\0') azione.setToolTip(QString::fromUtf8(voce.Aiuto));
  if (voce.Dove != nullptr) *voce.Dove = &azione;
}

}  // namespace

void Crea_Menu(QMainWindow& finestra, std::span<const Voce_Menu> voci) {
  std::array<QMenu*, 3> aperto{};  // by level: the menu that takes entries of the next level
  for (std::size_t i = 0; i < voci.size(); ++i) {
    const Voce_Menu& voce = voci[i];
    const auto livello = static_cast<std::size_t>(voce.Livello);
    QMenu* sopra = livello > 0 ? aperto[livello - 1] : nullptr;
    const QString testo = QString::fromUtf8(voce.Testo);
    const bool porta_voci = i + 1 < voci.size() && voci[i + 1].Livello > voce.Livello;
    if (sopra == nullptr || porta_voci) {
      QMenu* menu = sopra == nullptr ? finestra.menuBar()->addMenu(testo) : sopra->addMenu(testo);
      Prepara(*menu->menuAction(), voce);
      aperto[livello] = menu;
    } else if (*voce.Nome == '\0') {
      sopra->addSeparator();
    } else {
      Aggiungi_Voce(*sopra, voce);
    }
  }
}

QAction& Aggiungi_Voce(QMenu& menu, const Voce_Menu& voce, QAction* davanti_a) {
  auto* azione = new QAction(QString::fromUtf8(voce.Testo), &menu);
  menu.insertAction(davanti_a, azione);
  Prepara(*azione, voce);
  menu.setToolTipsVisible(menu.toolTipsVisible() || *voce.Aiuto != '\0');
  return *azione;
}

QToolBar* Crea_Barra(QMainWindow& finestra, const char* nome, std::span<const Tasto_Barra> tasti) {
  auto* barra = new QToolBar(&finestra);
  barra->setObjectName(QString::fromUtf8(nome));
  barra->setWindowTitle(QStringLiteral("Tool Bar"));  // in the menu of bars that a window has
  barra->setMovable(false);
  barra->setContextMenuPolicy(Qt::PreventContextMenu);
  barra->setIconSize(QSize(22, 22));
  for (const Tasto_Barra& tasto : tasti) {
    if (tasto.Stacco) barra->addSeparator();
    const QString suggerimento = QString::fromUtf8(tasto.Suggerimento);
    QAction* azione = barra->addAction(suggerimento);
    Metti_Icona(*barra, *azione, QString::fromUtf8(tasto.Icona));
    azione->setObjectName(QStringLiteral("%1(%2)").arg(nome, tasto.Chiave));
    azione->setToolTip(suggerimento);
    azione->setCheckable(tasto.Spunta);
    barra->widgetForAction(azione)->setObjectName(azione->objectName());
    if (tasto.Dove != nullptr) *tasto.Dove = azione;
  }
  finestra.addToolBar(Qt::TopToolBarArea, barra);
  return barra;
}

void Centra(QWidget& finestra) {
  QRect cornice = finestra.frameGeometry();
  cornice.moveCenter(finestra.screen()->availableGeometry().center());
  finestra.move(cornice.topLeft());
}

}  // namespace tavorno
