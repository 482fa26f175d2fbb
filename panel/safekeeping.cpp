// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/safekeeping.h"

#include <QApplication>
#include <QSessionManager>
#include <QStatusBar>
#include <cstdlib>
#include <utility>

#include "awl/ui/recovery_dialog.h"
#include "panel/child_windows.h"
#include "panel/panel_window.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

// The window library calls exit() when the screen has gone, in the middle of whatever it does, and
// what runs then reaches nothing but what is static.
Custode_Testi* alla_fine = nullptr;

void Scrivi_Alla_Fine() {
  if (alla_fine != nullptr) alla_fine->Scrivi_Ora();
}

}  // namespace

Salvaguardia::Salvaguardia(Progetto& progetto, FrmPLC& pannello, Finestre& finestre,
                           std::filesystem::path cartella_copie)
    : pannello_(pannello),
      finestre_(finestre),
      progetto_(progetto),
      cartella_copie_(std::move(cartella_copie)),
      custode_(progetto, cartella_copie_),
      segnali_([this] { Scrivi_Ora(); }) {
  alla_fine = &custode_;
  static const int una_volta = std::atexit(Scrivi_Alla_Fine);
  static_cast<void>(una_volta);
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { Scrivi_Ora(); },
      Qt::DirectConnection);
  connect(&ogni_tanto_, &QTimer::timeout, this, [this] { Passo(); });
  ogni_tanto_.start(Custode_Testi::Periodo);
}

Salvaguardia::~Salvaguardia() {
  alla_fine = nullptr;
}

void Salvaguardia::Passo() {
  custode_.Passo();
  if (custode_.Errore() == guasto_detto_) return;
  guasto_detto_ = custode_.Errore();
  if (guasto_detto_.empty()) return;
  constexpr int a_lungo = 30'000;  // ms
  const QString testo = Q("Il testo non salvato non ha una copia di sicurezza (" + guasto_detto_ +
                          "): conviene salvarlo spesso.");
  for (QWidget* finestra : QApplication::topLevelWidgets()) {
    if (auto* barra = finestra->findChild<QStatusBar*>(); barra && finestra->isVisible())
      barra->showMessage(testo, a_lungo);
  }
}

void Salvaguardia::Offri() {
  Eredita eredita(cartella_copie_);
  if (eredita.Voci().empty()) return;
  FrmRecupera offerta(eredita, progetto_.Riserva, &pannello_);
  if (offerta.exec() != QDialog::Accepted) return;
  finestre_.Mostra_Recuperato(*eredita.Voci().at(offerta.Scelta()).Copia);
  // The old copy may go when there is a new one.
  custode_.Scrivi_Ora();
  if (custode_.Errore().empty()) eredita.Butta(offerta.Scelta());
}

void Salvaguardia::Congeda() {
  custode_.Congeda();
}

}  // namespace tavorno
