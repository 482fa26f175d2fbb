// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/debug_window.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>
#include <span>

#include "awl/project.h"
#include "panel/windows/fields.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr const char* nomi_EtInf[] = {"NOp :", "Codice Ist. :", "Op 1 :", "Op 2 :", "Op 3 :"};
constexpr const char* nomi_etS[] = {"SCr :", "SSCr :", "ESCr :"};

/// The fields et1(Indice) of the page of compiled lines, group by group.
struct Nome_Campo {
  int Indice;
  const char* Nome;
};

constexpr Nome_Campo campi_istruzione[] = {{1, "Codice Istruzione:"}};
constexpr Nome_Campo campi_primo[] = {
    {2, "Codice Op1 :"}, {3, "Indirizzo Byte Op1:"}, {4, "Indirizzo Bit Op1 :"}};
constexpr Nome_Campo campi_secondo[] = {
    {5, "Codice Op2 :"}, {6, "Indirizzo Byte Op2 :"}, {7, "Indirizzo Bit Op2 :"}};
constexpr Nome_Campo campi_salto[] = {{8, "Stak  Old:"}, {9, "A. Jmp:"}};

QLabel* Campo(const QString& nome) {
  QLabel* campo = Campo_Valore(nome, 10);
  campo->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return campo;
}

QFormLayout* Modulo(std::span<const Nome_Campo> nomi, std::array<QLabel*, 10>& campi) {
  auto* modulo = new QFormLayout;
  for (const Nome_Campo& nome : nomi) {
    QLabel* campo = Campo(Con_Indice("et1", nome.Indice));
    modulo->addRow(Etichetta(Q(nome.Nome), campo), campo);
    campi[static_cast<std::size_t>(nome.Indice)] = campo;
  }
  return modulo;
}

QGroupBox* Riquadro(const QString& nome, const char* titolo) {
  auto* riquadro = new QGroupBox(Q(titolo));
  riquadro->setObjectName(nome);
  return riquadro;
}

/// A list beside what it tells of the chosen line; the user draws the border.
QWidget* Accanto(QWidget* lista, QWidget* dettagli) {
  auto* pagina = new QSplitter(Qt::Horizontal);
  pagina->setChildrenCollapsible(false);
  pagina->addWidget(lista);
  pagina->addWidget(dettagli);
  pagina->setStretchFactor(0, 1);
  pagina->setStretchFactor(1, 1);
  auto* foglio = new QWidget;
  auto* colonna = new QVBoxLayout(foglio);
  colonna->addWidget(pagina);
  return foglio;
}

/// A bit number, blank where the operand has none.
QString Testo_Bit(int bit) {
  return bit == -1 ? QString() : QString::number(bit);
}

}  // namespace

FrmDebug::FrmDebug(Progetto& progetto) : progetto_(progetto) {
  setObjectName("frmDebug");
  setWindowTitle(Q("Finestra Test"));
  Chiudi_Con_Esc(*this);
  for (int k = 0; k <= progetto.CPU.NRighe; ++k) righe_.push_back(progetto.Righe_Src[k]);

  auto* schede = new QTabWidget;
  schede->setObjectName("SSTab1");
  schede->addTab(Pagina_Listato(), Q("Listato"));
  schede->addTab(Pagina_HEX(), Q("HEX"));
  schede->addTab(Pagina_Errori(), Q("Lista errori"));
  auto* fine = Tasto("cmdEsc", "Termina", "Chiude la finestra");
  connect(fine, &QPushButton::clicked, this, &QWidget::close);
  auto* piede = new QHBoxLayout;
  piede->addStretch();
  piede->addWidget(fine);
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(schede);
  colonna->addLayout(piede);
  resize(720, sizeHint().height());
}

QListWidget* FrmDebug::Lista(const char* nome, const char* suggerimento) const {
  auto* lista = new QListWidget;
  lista->setObjectName(nome);
  lista->setToolTip(Q(suggerimento));
  lista->setAccessibleName(Q(suggerimento));
  lista->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lista->setUniformItemSizes(true);
  for (const Riga_Src& riga : righe_) lista->addItem(Da_Byte(riga.Testo_CPU));
  return lista;
}

QWidget* FrmDebug::Pagina_Listato() {
  QListWidget* lista = Lista("lstI", "Righe lette: scegliere una riga per vederne i campi");
  auto* dettagli = new QWidget;
  auto* modulo = new QFormLayout(dettagli);
  for (std::size_t k = 0; k < EtInf_.size(); ++k) {
    EtInf_[k] = Campo(Con_Indice("EtInf", static_cast<int>(k)));
    modulo->addRow(Etichetta(Q(nomi_EtInf[k]), EtInf_[k]), EtInf_[k]);
  }
  QLabel* quante = Campo("etNIST");
  quante->setText(Come_Testo(static_cast<std::int32_t>(righe_.size())));
  modulo->addItem(new QSpacerItem(0, 12));
  modulo->addRow(Etichetta(Q("N. Istruzioni :"), quante), quante);
  connect(lista, &QListWidget::currentRowChanged, this, [this](int indice) { lstI(indice); });
  lista->setCurrentRow(0);
  return Accanto(lista, dettagli);
}

QWidget* FrmDebug::Pagina_HEX() {
  QListWidget* lista = Lista("listCod", "Righe compilate: scegliere una riga per vederne i campi");
  auto* dettagli = new QWidget;
  auto* colonna = new QVBoxLayout(dettagli);
  colonna->addLayout(Testa_HEX());
  colonna->addLayout(Modulo(campi_istruzione, et1_));
  colonna->addLayout(Operandi_HEX());
  colonna->addLayout(Piede_HEX());
  colonna->addStretch();
  connect(lista, &QListWidget::currentRowChanged, this, [this](int indice) { listCod(indice); });
  return Accanto(lista, dettagli);
}

QLayout* FrmDebug::Testa_HEX() {
  etR_ = Campo_Valore("etR", 3);
  etR_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  etR_->setToolTip(Q("Numero della riga"));
  txt1_ = new QTextEdit;
  txt1_->setObjectName("txt1");
  txt1_->setAccessibleName(Q("Campi delle righe compilate"));
  txt1_->setReadOnly(true);
  txt1_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  txt1_->setLineWrapMode(QTextEdit::NoWrap);
  txt1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  txt1_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  txt1_->setTabChangesFocus(true);
  txt1_->setToolTip(Q("Testo della riga"));
  txt1_->document()->setDocumentMargin(3);
  txt1_->setFixedHeight(txt1_->fontMetrics().height() + 8);
  etR_->setFixedHeight(txt1_->height());
  auto* testa = new QHBoxLayout;
  testa->addWidget(etR_);
  testa->addWidget(txt1_);
  return testa;
}

QLayout* FrmDebug::Operandi_HEX() {
  auto* operandi = new QHBoxLayout;
  CorOp_ = {Riquadro("CorOp(0)", "Primo Operando"), Riquadro("CorOp(1)", "Secondo Operando")};
  CorOp_[0]->setLayout(Modulo(campi_primo, et1_));
  CorOp_[1]->setLayout(Modulo(campi_secondo, et1_));
  for (QGroupBox* riquadro : CorOp_) {
    // Its place stays when it disappears, so that the rest does not jump from line to line.
    QSizePolicy posto = riquadro->sizePolicy();
    posto.setRetainSizeWhenHidden(true);
    riquadro->setSizePolicy(posto);
    operandi->addWidget(riquadro, 1);
  }
  return operandi;
}

QLayout* FrmDebug::Piede_HEX() {
  QFormLayout* salto = Modulo(campi_salto, et1_);
  cmbTim_ = new QComboBox;
  cmbTim_->setObjectName("cmbTim");
  cmbTim_->setToolTip(Q("Temporizzatori che il salto lascia fuori"));
  cmbTim_->setEnabled(false);
  salto->addRow(Etichetta(Q("Timer Disabiliti:"), cmbTim_), cmbTim_);
  QGroupBox* scr = Riquadro("Frame1", "SCR");
  auto* modulo_scr = new QFormLayout;
  for (std::size_t k = 0; k < etS_.size(); ++k) {
    etS_[k] = Campo(Con_Indice("etS", static_cast<int>(k)));
    modulo_scr->addRow(Etichetta(Q(nomi_etS[k]), etS_[k]), etS_[k]);
  }
  scr->setLayout(modulo_scr);
  auto* piede = new QHBoxLayout;
  piede->addLayout(salto);
  piede->addWidget(scr);
  return piede;
}

QWidget* FrmDebug::Pagina_Errori() {
  auto* nota = new QLabel(Q("Gli errori sono elencati nel listato della compilazione."));
  nota->setAlignment(Qt::AlignCenter);
  nota->setWordWrap(true);
  return nota;
}

void FrmDebug::lstI(int indice) {
  if (indice < 0) return;
  const Riga_Src& riga = righe_[static_cast<std::size_t>(indice)];
  EtInf_[0]->setText(Come_Testo(riga.NOp));
  EtInf_[1]->setText(Da_Byte(riga.Istr));
  EtInf_[2]->setText(Da_Byte(riga.Op1));
  EtInf_[3]->setText(Da_Byte(riga.Op2));
  EtInf_[4]->setText(Da_Byte(riga.Op3));
}

void FrmDebug::listCod(int indice) {
  if (indice < 0) return;
  txt1_->setPlainText(Da_Byte(righe_[static_cast<std::size_t>(indice)].Testo_CPU));
  etR_->setText(Come_Testo(indice));
  // A later read may have left a shorter program: then the line has no record to show.
  if (indice >= progetto_.CPU.Prog.Righe()) {
    Senza_Record();
    return;
  }
  const Riga_PLC& riga = progetto_.CPU.Prog[indice];
  et1_[1]->setText(Da_Byte(riga.Istr));
  Mostra_Timer(riga);
  et1_[2]->setText(Da_Byte(riga.Area1));
  et1_[3]->setText(Come_Testo(riga.Num1));
  et1_[4]->setText(Testo_Bit(riga.Bit1));
  et1_[5]->setText(Da_Byte(riga.Area2));
  et1_[6]->setText(Come_Testo(riga.Num2));
  et1_[7]->setText(Testo_Bit(riga.Bit2));
  et1_[8]->setText(Come_Testo(riga.Fronte));
  et1_[9]->setText(Come_Testo(riga.Salto));
  etS_[0]->setText(Come_Testo(riga.Abil_SCR));
  etS_[1]->setText(Come_Testo(riga.SCR_Prima));
  etS_[2]->setText(Come_Testo(riga.SCR_Ultima));
  // A line with three operands hides both frames as well.
  CorOp_[0]->setVisible(riga.NOper == 1 || riga.NOper == 2);
  CorOp_[1]->setVisible(riga.NOper == 2);
}

void FrmDebug::Senza_Record() {
  for (std::size_t k = 1; k < et1_.size(); ++k) et1_[k]->clear();
  for (QLabel* campo : etS_) campo->clear();
  for (QGroupBox* riquadro : CorOp_) riquadro->hide();
  Mostra_Timer({});
}

void FrmDebug::Mostra_Timer(const Riga_PLC& riga) {
  cmbTim_->clear();
  const bool salta =
      riga.Nel_Programma == Compito::Chiamata || riga.Nel_Programma == Compito::Salto;
  if (salta) {
    for (std::size_t k = 1; k < riga.Lista_T.size(); ++k)
      cmbTim_->addItem(Come_Testo(riga.Lista_T[k]));
  }
  cmbTim_->setEnabled(cmbTim_->count() > 0);
}

}  // namespace tavorno
