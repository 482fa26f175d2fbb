// SPDX-License-Identifier: GPL-3.0-or-later
// From place to place in the project: pages, rows of the CPU, marked rows, texts of blocks.
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "awl/ui/main_window.h"

namespace tavorno {

void FrmMain::Cambia_Pagina(int pagina) {
  if (pagina == Pagina_Nascosta) {
    SSTb2->setCurrentIndex(Pagina_Listato);
    return;
  }
  p_.Pagina = pagina;
  righe_->setCurrentIndex(pagina);
  if (!specchia_) Specchia();
  comandi_->Aggiorna();
  if (SSTb2->tabBar()->hasFocus()) return;  // the arrow keys are at work
  Davanti().setFocus(Qt::OtherFocusReason);
}

void FrmMain::Vai_A_Riga(int numero) {
  const int chiave = segni_.Chiave(numero);
  AwlEditor* testo = txtList;
  if (chiave != Segni_Errori::Chiave_Main) {
    const int procedura = documenti_.Riga(chiave);
    if (procedura == 0) return;
    if (procedura != p_.Scheda) Scegli_Procedura(procedura);
    testo = txtP;
  }
  SSTb2->setCurrentIndex(testo == txtList ? 0 : 1);
  testo->Vai_A(segni_.Linea(testo, numero));
}

/// The marked row behind the caret or before it, around the ends. From the listing: the first.
bool FrmMain::Errore_Vicino(int verso) {
  const std::vector<int> segnate = segni_.Segnate();
  if (segnate.empty()) return false;
  if (p_.Pagina == Pagina_Listato) {
    Vai_A_Riga(verso > 0 ? segnate.front() : segnate.back());
    return true;
  }
  const AwlEditor& davanti = p_.Pagina == 0 ? *txtList : *txtP;
  const std::pair qui(p_.Pagina == 0 ? 0 : p_.Scheda, davanti.Cursore().Linea);
  const auto dove = [&](int riga) {
    const int testo = documenti_.Riga(segni_.Chiave(riga));  // 0 for the Main
    const bool in_vista = testo == 0 || testo == p_.Scheda;
    const AwlEditor& suo = testo == 0 ? *txtList : *txtP;
    return std::pair(testo, segni_.Linea(in_vista ? &suo : nullptr, riga));
  };
  const auto dopo = std::ranges::find_if(
      segnate, [&](int riga) { return verso > 0 ? dove(riga) > qui : dove(riga) >= qui; });
  if (verso > 0)
    Vai_A_Riga(dopo == segnate.end() ? segnate.front() : *dopo);
  else
    Vai_A_Riga(dopo == segnate.begin() ? segnate.back() : *(dopo - 1));
  return true;
}

/// The editor of a block, with that block in it; nullptr: there is no such block.
AwlEditor* FrmMain::Testo_Di(int testo) {
  if (testo == 0) return txtList;
  if (testo > p_.Num_SBR) return nullptr;
  if (testo != p_.Scheda) Scegli_Procedura(testo);
  return txtP;
}

std::optional<Posto_Riga> FrmMain::Posto_Cursore() const {
  const bool main = p_.Pagina == 0;
  if (!main && (p_.Pagina != 1 || p_.Scheda < 1 || p_.Scheda > p_.Num_SBR)) return {};
  int linea = 0;
  int colonna = 0;
  (main ? txtList : txtP)->getCursorPosition(&linea, &colonna);
  return Posto_Riga{main ? 0 : p_.Scheda, linea};
}

void FrmMain::Vai_A(Posto_Riga posto) {
  AwlEditor* testo = Testo_Di(posto.Testo);
  if (testo == nullptr) return;
  SSTb2->setCurrentIndex(posto.Testo == 0 ? 0 : 1);
  testo->Vai_A(posto.Linea);
}

void FrmMain::Scrivi_Testo(int testo, const std::string& byte) {
  if (Testo_Di(testo) == nullptr) return;
  if (testo == 0)
    p_.Scrivi_Main(byte);
  else
    p_.Scrivi_Procedura(byte);
  storia_.Scorda();
  Specchia();
}

void FrmMain::Annulla_Testo(int testo, bool ripeti) {
  AwlEditor* dove = Testo_Di(testo);
  if (dove == nullptr) return;
  ripeti ? dove->redo() : dove->undo();
}

}  // namespace tavorno
