// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/status_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "plc/plc.h"
#include "widgets/scroll_area.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

// What the eye can follow; a faster one would only take time from the running program.
constexpr int periodo_timV = 20;  // milliseconds
constexpr QSize minima(300, 130);
constexpr int stacco_twip = 10;  // between this window and the panel below it

}  // namespace

FrmStatiL::FrmStatiL(Plc& plc, QWidget* panel) : plc_(plc), panel_(panel), timV_(new QTimer(this)) {
  setObjectName("frmStatiL");
  setWindowTitle(Q(" Indicatori Stato Elementi PLC."));
  Chiudi_Con_Esc(*this);

  auto* fine = Tasto("cmdEnd", "Termina", "Chiude la finestra");
  connect(fine, &QPushButton::clicked, this, &QWidget::close);
  auto* piede = new QHBoxLayout;
  piede->addStretch();
  piede->addWidget(fine);

  QGroupBox* marker = Riquadro_M();
  auto* bit = new QVBoxLayout;
  bit->addWidget(Riquadro_IO(), 1);
  bit->addWidget(marker, 1);
  auto* celle = new QVBoxLayout;
  celle->addWidget(Riquadro_Memorie(), 1);
  celle->addLayout(piede);
  auto* foglio = new QWidget;
  auto* riga = new QHBoxLayout(foglio);
  riga->setContentsMargins(8, 6, 8, 8);
  riga->addLayout(bit, 3);
  riga->addWidget(Riquadro_Colonne(), 3);
  riga->addLayout(celle, 2);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->addWidget(new Area_Scorrevole(foglio, minima));

  if (panel_) {
    // Above the panel's own place, so that the panel need not go far.
    resize(sizeHint());
    move(panel_->x(), panel_->screen()->availableGeometry().top());
  }
  Posa_Panel();
  timV_->setObjectName("timV");
  connect(timV_, &QTimer::timeout, this, [this] {
    Aggiorna();
    Ritocca_Posa();
  });
  timV_->start(periodo_timV);
  Aggiorna();
}

void FrmStatiL::Aggiorna() {
  if (Aggiornando) return;
  Aggiornando = -1;
  try {
    Mostra_Tutto();
  } catch (const Fatale& fatale) {
    throw Fatale_In_Finestra(fatale, "Finestra Stati Elementi");
  }
  Aggiornando = 0;
}

void FrmStatiL::Mostra_Tutto() {
  int riga = cmbM1_->currentIndex();
  for (Byte& byte : marker_) {
    const Riga_M& marker = plc_.Mem_M[riga++];
    byte.Testo.Mostra(marker.Txt_B);
    byte.Valore.Mostra(marker.Val_B);
  }
  for (int k = 0; k < 2; ++k) {
    const auto i = static_cast<std::size_t>(k);
    ingressi_[i].Valore.Mostra(plc_.IP_I[k].Val_B);
    ingressi_[i].Testo.Mostra(plc_.IP_I[k].Txt_B);
    uscite_[i].Valore.Mostra(plc_.IP_Q[k].Val_B);
    uscite_[i].Testo.Mostra(plc_.IP_Q[k].Txt_B);
  }
  for (Colonna& colonna : timer_) {
    const Riga_Timer& timer = plc_.Mem_T[colonna.Scelta->currentIndex()];
    colonna.Valore.Mostra(timer.Val);
    colonna.Preset.Mostra(timer.PT);
    colonna.Bit.Mostra(timer.Uscita);
  }
  for (Colonna& colonna : contatori_) {
    const Riga_Contatore& contatore = plc_.Mem_C[colonna.Scelta->currentIndex()];
    colonna.Valore.Mostra(contatore.Val);
    colonna.Preset.Mostra(contatore.PV);
    colonna.Bit.Mostra(contatore.Uscita);
  }
  int v = vb_.Scelta->currentIndex();
  for (Visto_Numero& cella : vb_.Celle) cella.Mostra(plc_.Mem_VB[v++]);
  v = vw_.Scelta->currentIndex();
  for (Visto_Numero& cella : vw_.Celle) cella.Mostra(plc_.Mem_VW[v++]);
  v = vd_.Scelta->currentIndex();
  for (Visto_Numero& cella : vd_.Celle) cella.Mostra(plc_.Mem_VD[v++]);
  int ac = 0;
  for (Visto<float>& cella : ac_) cella.Mostra(plc_.Mem_AC[ac++]);
}

void FrmStatiL::Poni(int left_twip, int top_twip) {
  move(Px(left_twip), Px(top_twip));
}

void FrmStatiL::showEvent(QShowEvent* evento) {
  QWidget::showEvent(evento);
  if (Gia_Posta) return;
  Gia_Posta = -1;
  Posa_Panel();
}

void FrmStatiL::closeEvent(QCloseEvent* evento) {
  timV_->stop();
  QWidget::closeEvent(evento);
}

void FrmStatiL::Posa_Panel() {
  if (!panel_) return;
  // Right under this window, and no further to the right than the screen has room.
  const QRect schermo = panel_->screen()->availableGeometry();
  const int ultimo = std::max(0, schermo.width() - panel_->frameGeometry().width());
  panel_->move(std::min(x(), schermo.left() + ultimo),
               y() + frameGeometry().height() + Px(stacco_twip));
  posto_ = pos();
  posto_panel_ = panel_->pos();
}

// The title bar belongs to the height, and on most screens nobody knows it before the window has
// appeared. The panel then moves once more, unless one of the two has been moved by hand.
void FrmStatiL::Ritocca_Posa() {
  if (cornice_nota_ || frameGeometry() == geometry()) return;
  cornice_nota_ = true;
  if (panel_ && pos() == posto_ && panel_->pos() == posto_panel_) Posa_Panel();
}

}  // namespace tavorno
