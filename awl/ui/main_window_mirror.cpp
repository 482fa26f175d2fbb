// SPDX-License-Identifier: GPL-3.0-or-later
// What the project holds, on the screen.
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <utility>

#include "awl/line_numbers.h"
#include "awl/ui/main_window.h"
#include "awl/ui/main_window_tables.h"
#include "widgets/command_tables.h"
#include "widgets/text.h"

namespace tavorno {

void FrmMain::Specchia() {
  const QScopedValueRollback guardia(specchia_, true);
  if (p_.Pagina == Pagina_Nascosta) p_.Pagina = Pagina_Listato;
  p_.CmdNet_1 = p_.Num_SBR != 0;
  salva_attivo_ = p_.Comandi_Attivi || !p_.txtList.empty();
  const bool prima_volta = Specchia_Schede();
  txtList->Scrivi(p_.txtList);
  txtP->Scrivi(p_.txtP);
  if (std::exchange(testi_nuovi_, false)) txtList->Dimentica_Annulla();
  if (prima_volta) txtP->Dimentica_Annulla();
  SSTb2->setCurrentIndex(p_.Pagina);
  Specchia_Esiti();
  Specchia_Voci();
  Specchia_Numeri();
  segni_.Metti(*txtList, Segni_Errori::Chiave_Main);
  if (p_.Scheda >= 1 && p_.Scheda <= p_.Num_SBR)
    segni_.Metti(*txtP, documenti_.Chiave(p_.Scheda));
  else
    txtP->Togli_Segni();
}

/// The tabs of the procedures, and the text of the selected one. True when that text has not been
/// on screen before.
bool FrmMain::Specchia_Schede() {
  while (TabSP->count() > static_cast<int>(p_.TabSP.size())) TabSP->removeTab(TabSP->count() - 1);
  for (int i = 0; i < static_cast<int>(p_.TabSP.size()); ++i) {
    QString nome = Da_Byte(p_.TabSP[static_cast<std::size_t>(i)]);
    nome.replace('&', QStringLiteral("&&"));
    if (i == TabSP->count())
      TabSP->addTab(nome);
    else if (TabSP->tabText(i) != nome)
      TabSP->setTabText(i, nome);
  }
  if (p_.Scheda >= 1) TabSP->setCurrentIndex(p_.Scheda - 1);
  // Without a selected row the text on screen belongs to nobody.
  if (p_.Scheda < 1 || p_.Scheda > p_.Num_SBR) {
    txtP->Mostra_Documento(residuo_);
    return true;
  }
  txtP->Mostra_Documento(documenti_.Di(p_.Scheda));
  return documenti_.Prima_Volta(p_.Scheda);
}

void FrmMain::Specchia_Esiti() {
  for (std::size_t i = 0; i < p_.stB.size(); ++i) {
    pannelli_[i]->setText(Q(p_.stB[i]));
    pannelli_[i]->setToolTip(Q(p_.stB[i]));
  }
  for (std::size_t i = 0; i < etNR.size(); ++i) etNR[i]->setText(Q(p_.etNR[i]));
  txtLst->Scrivi_Listato(p_.Righe_Listato, p_.Rilievi);
}

void FrmMain::Specchia_Voci() {
  const auto abilita = [this](const char* nome, bool stato) {
    Azione(*this, QString::fromUtf8(nome)).setEnabled(stato);
  };
  abilita("mnuFileSave", salva_attivo_);
  abilita("mnuPlcCompile", p_.Comandi_Attivi);
  abilita("mnuPlcCarica", p_.Comandi_Attivi);
  abilita("mnuFileStp", p_.Comandi_Attivi && legami_.Mostra_Stampe);
  abilita("mnuFileTxtImp", p_.Pagina < Pagina_Nascosta);
  abilita("mnuFileTxtExp", p_.Pagina < Pagina_Nascosta);
  findChild<QPushButton*>(QStringLiteral("cmdDelP"))->setEnabled(p_.cmdDelP);
  findChild<QPushButton*>(QStringLiteral("CmdNet(1)"))->setEnabled(p_.CmdNet_1);
}

void FrmMain::Specchia_Numeri() {
  const Numerazione numerazione(p_);
  txtList->Numera(numerazione.Numeri(0));
  txtP->Numera(numerazione.Numeri(p_.Scheda == 0 ? p_.Num_SBR + 1 : p_.Scheda));
}

/// The user wrote: the text becomes the master copy.
void FrmMain::Testo_Cambiato(AwlEditor& editor) {
  if (&editor == txtList) {
    p_.Scrivi_Main(editor.Byte());
    salva_attivo_ = salva_attivo_ || !p_.txtList.empty();
  } else {
    p_.Scrivi_Procedura(editor.Byte());
  }
  Specchia_Voci();
  Specchia_Numeri();
}

}  // namespace tavorno
