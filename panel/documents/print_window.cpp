// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/print_window.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPageLayout>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include "awl/file_io.h"
#include "awl/project.h"
#include "panel/documents/print_pages.h"
#include "panel/documents/print_text.h"
#include "widgets/naming.h"
#include "widgets/paper.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

struct Casella {
  const char* Testo;
  const char* Suggerimento;
  bool Spuntata;
};
constexpr std::array caselle{
    Casella{"Main Program", "Stampa il programma principale", true},
    Casella{"Procedure", "Stampa tutte le procedure del progetto", false},
};

struct Pulsante {
  int Indice;
  const char* Testo;
  const char* Suggerimento;
};
constexpr std::array pulsanti{
    Pulsante{2, "&Imposta", "Sceglie e imposta la stampante senza stampare"},
    Pulsante{1, "&Stampa", "Stampa le parti scelte"},
    Pulsante{0, "&Annulla", "Chiude la finestra senza stampare"},
};

constexpr double margine_mm = 15;

}  // namespace

bool Scegli_Stampante(QPrinter& stampante, QWidget* sopra) {
  QPrintDialog dialogo(&stampante, sopra);
  dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
  return dialogo.exec() == QDialog::Accepted;
}

FrmStampe::FrmStampe(Progetto& progetto, Scelta_Stampante scegli_stampante, QWidget* sopra)
    : QDialog(sopra),
      progetto_(progetto),
      scegli_stampante_(std::move(scegli_stampante)),
      txtList_(new QPlainTextEdit(this)) {
  setObjectName("frmStampe");
  setWindowTitle(Q("  Stampe Progetto."));
  setModal(true);

  auto* riquadro = new QGroupBox;
  riquadro->setObjectName("Frame1");
  riquadro->setAccessibleName(Q("Parti da stampare"));
  auto* parti = new QVBoxLayout(riquadro);
  parti->setContentsMargins(16, 14, 16, 14);
  parti->setSpacing(12);
  for (std::size_t i = 0; i < caselle.size(); ++i) {
    chkStp_[i] = new QCheckBox(Q(caselle[i].Testo));
    chkStp_[i]->setObjectName(Con_Indice("chkStp", static_cast<int>(i)));
    chkStp_[i]->setToolTip(Q(caselle[i].Suggerimento));
    chkStp_[i]->setChecked(caselle[i].Spuntata);
    connect(chkStp_[i], &QCheckBox::clicked, txtList_, &QPlainTextEdit::clear);
    parti->addWidget(chkStp_[i]);
  }
  if (progetto_.Num_SBR == 0) {
    chkStp_[1]->setEnabled(false);
    chkStp_[1]->setToolTip(Q("Il progetto non ha procedure"));
  }

  txtList_->setObjectName("txtList");
  txtList_->setAccessibleName(QStringLiteral("Testo da stampare"));
  txtList_->hide();

  auto* tasti = new QVBoxLayout;
  for (const Pulsante& pulsante : pulsanti) {
    auto* tasto = new QPushButton(Q(pulsante.Testo));
    tasto->setObjectName(Con_Indice("cmdStp", pulsante.Indice));
    tasto->setToolTip(Q(pulsante.Suggerimento));
    tasto->setAutoDefault(false);
    tasto->setDefault(pulsante.Indice == 1);
    tasto->setMinimumWidth(110);
    connect(tasto, &QPushButton::clicked, this,
            [this, indice = pulsante.Indice] { cmdStp(indice); });
    tasti->addWidget(tasto);
  }
  tasti->addStretch();

  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(14, 14, 14, 14);
  riga->setSpacing(14);
  riga->addWidget(riquadro, 1);
  riga->addLayout(tasti);
  riquadro->setMinimumWidth(190);
  chkStp_[0]->setFocus();
}

FrmStampe::~FrmStampe() = default;

void FrmStampe::cmdStp(int indice) {
  if (indice == 0) {
    reject();
  } else if (indice == 1) {
    Stampa();
  } else {
    Chiedi_Stampante();
  }
}

void FrmStampe::Riempi_Testo() {
  const bool main = chkStp_[0]->isChecked();
  const bool procedure = chkStp_[1]->isChecked();
  txtList_->setPlainText(Da_Byte(Testo_Stampa(progetto_, main, procedure)));
}

bool FrmStampe::Chiedi_Stampante() {
  if (stampante_ == nullptr) {
    stampante_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    const QMarginsF margini(margine_mm, margine_mm, margine_mm, margine_mm);
    stampante_->setPageMargins(margini, QPageLayout::Millimeter);
  }
  return scegli_stampante_(*stampante_, this);
}

void FrmStampe::Stampa() {
  Riempi_Testo();
  // A user who closes the dialog of the printer may still want to change the ticks.
  if (!Chiedi_Stampante()) return;
  const QString titolo = progetto_.File_Titolo.empty() ? Q("NoName.AWL") : Q(progetto_.File_Titolo);
  const auto disegna = [&](QPagedPaintDevice& carta) {
    return Stampa_Testo(carta, titolo, txtList_->toPlainText());
  };
  const auto scrivi = [](const std::string& file, std::string_view byte) {
    return Scrivi_File(file, byte);
  };
  if (!Stampa_Su(*stampante_, titolo, disegna, scrivi)) {
    Avviso avviso;
    avviso.Titolo = "Errore!";
    avviso.Testo =
        "Impossibile stampare il progetto! "
        "Controllare che la stampante sia accesa e che il file di stampa si possa scrivere.";
    avviso.Simbolo = Icona::Critica;
    if (progetto_.Chiedi.Mostra) progetto_.Chiedi.Mostra(avviso);
    return;
  }
  accept();
}

}  // namespace tavorno
