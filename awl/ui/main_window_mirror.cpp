// SPDX-License-Identifier: GPL-3.0-or-later
// What the project holds, on the screen.
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <utility>

#include "awl/hints.h"
#include "awl/line_limit.h"
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
  if (file_usato_ != p_.File_Salvato) {
    file_usato_ = p_.File_Salvato;
    if (!file_usato_.empty() && legami_.File_Usato) legami_.File_Usato(Q(file_usato_));
  }
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
  const bool di_nessuno = p_.Scheda < 1 || p_.Scheda > p_.Num_SBR;
  Mostra_Procedura(di_nessuno ? 0 : p_.Scheda);
  return di_nessuno || documenti_.Prima_Volta(p_.Scheda);
}

/// The text of a row, or with 0 the leftover, as it was seen last: the component shows each from
/// its beginning.
void FrmMain::Mostra_Procedura(int riga) {
  const int chiave = riga == 0 ? 0 : documenti_.Chiave(riga);
  const bool altra = chiave != mostrata_;
  if (const int prima = documenti_.Riga(mostrata_); altra && prima != 0)
    documenti_.Veduta_Di(prima) = txtP->Come_Si_Vede();
  txtP->Mostra_Documento(riga == 0 ? residuo_ : documenti_.Di(riga));
  if (altra && riga != 0) txtP->Rivedi(documenti_.Veduta_Di(riga));
  mostrata_ = chiave;
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
  setWindowTitle(p_.Da_Salvare() ? QStringLiteral(" Editor AWL per Tavorno. *")
                                 : QStringLiteral(" Editor AWL per Tavorno."));
  a_.mnuFileSave->setEnabled(salva_attivo_);
  a_.mnuPlcCompile->setEnabled(p_.Comandi_Attivi);
  a_.mnuPlcCarica->setEnabled(p_.Comandi_Attivi);
  a_.mnuFileStp->setEnabled(p_.Comandi_Attivi && legami_.Mostra_Stampe);
  a_.mnuFileTxtImp->setEnabled(p_.Pagina < Pagina_Nascosta);
  a_.mnuFileTxtExp->setEnabled(p_.Pagina < Pagina_Nascosta);
  const bool scelta = p_.Scheda >= 1 && p_.Scheda <= p_.Num_SBR;
  cmdDelP->setEnabled(p_.cmdDelP && scelta);
  CmdNet[1]->setEnabled(p_.CmdNet_1 && scelta);
  Specchia_Residuo(scelta);
}

/// What a removed procedure or an earlier project has left on screen can be read, not written.
void FrmMain::Specchia_Residuo(bool scelta) {
  // The empty tab of a project without procedures is no leftover.
  const bool residuo = p_.Num_SBR > 0 || !p_.TabSP.front().empty();
  txtP->Spegni(!scelta && residuo);
  etSenza_SBR->setVisible(!scelta);
  etSenza_SBR->setText(
      p_.Num_SBR > 0
          ? QStringLiteral("Questo testo non appartiene più al progetto: per scrivere, scegliere "
                           "una procedura dalle schede.")
          : QStringLiteral("Il progetto non ha procedure e questo testo non viene salvato: per "
                           "scrivere una procedura, premere \"Inserisci SBR\"."));
}

void FrmMain::Specchia_Numeri() {
  suggerisci_.start();
  const Numerazione numerazione(p_);
  txtList->Numera(numerazione.Numeri(0));
  txtP->Numera(numerazione.Numeri(p_.Scheda == 0 ? p_.Num_SBR + 1 : p_.Scheda));
}

void FrmMain::Suggerisci() {
  std::vector<Diagnosi> del_main;
  std::vector<Diagnosi> della_procedura;
  for (Diagnosi& suggerimento : Suggerimenti(p_.Come_Sorgente(p_.txtList))) {
    if (suggerimento.Posto.Testo == 0)
      del_main.push_back(std::move(suggerimento));
    else if (suggerimento.Posto.Testo == p_.Scheda)
      della_procedura.push_back(std::move(suggerimento));
  }
  txtList->Suggerisci(std::move(del_main));
  txtP->Suggerisci(std::move(della_procedura));
  txtList->Segna_Eccedenze(Eccedenze(p_.txtList));
  txtP->Segna_Eccedenze(Eccedenze(p_.txtP));
}

void FrmMain::Usa_Simboli(const Simboli& simboli) {
  comandi_->Usa_Simboli(simboli);
  txtList->Usa_Simboli(simboli);
  txtP->Usa_Simboli(simboli);
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
  comandi_->Aggiorna();
}

}  // namespace tavorno
