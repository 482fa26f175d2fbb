// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the editor window and its height.
#include <QCheckBox>
#include <QDateTime>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolTip>
#include <QVBoxLayout>

#include "awl/ui/main_window.h"
#include "awl/ui/main_window_tables.h"
#include "widgets/naming.h"
#include "widgets/screen_reader.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

constexpr int larghezza_picF = Px(9015);
constexpr int altezza_picF = Px(4215);
constexpr int altezza_altro = Px(680);  // the menu bar and the row of buttons share it
constexpr int larghezza_minima = 880;   // pages and ticks side by side
constexpr int margine = Px(60);
constexpr int altezza_pulsante = Px(315);

QVBoxLayout* Colonna(QWidget* pagina) {
  auto* colonna = new QVBoxLayout(pagina);
  // Every pixel of the height is the text's.
  colonna->setContentsMargins(margine, 0, margine, 0);
  colonna->setSpacing(0);
  return colonna;
}

QTabBar* Linguette(const char* nome, const char* descrizione) {
  auto* linguette = new QTabBar;
  linguette->setObjectName(QString::fromUtf8(nome));
  linguette->setAccessibleName(QString::fromUtf8(descrizione));
  linguette->setShape(QTabBar::RoundedSouth);
  linguette->setDrawBase(false);
  linguette->setExpanding(false);
  linguette->setUsesScrollButtons(true);
  return linguette;
}

}  // namespace

void FrmMain::Crea_Controlli() {
  setObjectName(QStringLiteral("frmMain"));
  setAcceptDrops(true);
  setWindowIcon(QIcon(QStringLiteral(":/icons/tavorno.svg")));
  Crea_Menu(*this, Menu_Editor(a_));
  tB1 = Crea_Barra(*this, "tB1", Barra_Editor(a_));
  tB1->setWindowTitle(QStringLiteral("Tool Bar"));

  auto* centro = new QWidget(this);
  auto* colonna = new QVBoxLayout(centro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  picF = new QWidget;
  picF->setObjectName(QStringLiteral("picF"));
  picF->setMinimumHeight(altezza_picF);
  auto* riquadro = new QVBoxLayout(picF);
  riquadro->setContentsMargins(0, 0, 0, 0);
  SSTb2 = new QTabWidget;
  SSTb2->setObjectName(QStringLiteral("SSTb2"));
  SSTb2->setDocumentMode(true);
  riquadro->addWidget(SSTb2);
  righe_ = new QStackedWidget;
  const std::array<QWidget*, 4> pagine = {Crea_Pagina_Main(), Crea_Pagina_Procedure(),
                                          Crea_Pagina_Listato(), new QWidget};
  for (std::size_t i = 0; i < pagine.size(); ++i)
    SSTb2->addTab(pagine[i], QString::fromUtf8(Pagine_Editor[i]));
  SSTb2->setTabVisible(Pagina_Nascosta, false);
  colonna->addWidget(picF, 1);
  righe_->setFixedHeight(altezza_altro - menuBar()->sizeHint().height());
  colonna->addWidget(righe_);
  SSTb2->setCornerWidget(Crea_Spunte(), Qt::TopRightCorner);
  setCentralWidget(centro);

  Crea_Stato();
  setMinimumWidth(larghezza_minima);
  resize(larghezza_picF, Altezza_Normale());
}

/// The row of a page, below all pages: its tabs hang from the text's edge, its buttons stand in the
/// middle of what the menu bar leaves of the height.
QHBoxLayout* FrmMain::Riga_Pulsanti() {
  auto* striscia = new QWidget;
  auto* riga = new QHBoxLayout(striscia);
  riga->setContentsMargins(margine, 0, margine, 0);
  riga->setSpacing(margine);
  righe_->addWidget(striscia);
  return riga;
}

QPushButton* FrmMain::Aggiungi_Pulsante(QHBoxLayout& riga, const Pulsante& pulsante) {
  auto* tasto = new QPushButton(QString::fromUtf8(pulsante.Testo));
  tasto->setObjectName(QString::fromUtf8(pulsante.Nome));
  tasto->setAutoDefault(false);
  tasto->setMinimumSize(Px(pulsante.Larghezza), altezza_pulsante);
  const QKeySequence tasti(QString::fromUtf8(pulsante.Tasti));
  QString suggerimento = QString::fromUtf8(pulsante.Suggerimento);
  if (!tasti.isEmpty()) {
    tasto->setShortcut(tasti);
    suggerimento += QStringLiteral(" (%1)").arg(tasti.toString(QKeySequence::NativeText));
  }
  tasto->setToolTip(suggerimento);
  riga.addWidget(tasto);
  return tasto;
}

QWidget* FrmMain::Crea_Pagina_Main() {
  auto* pagina = new QWidget;
  auto* colonna = Colonna(pagina);
  txtList = new AwlEditor(Genere_Testo::Programma, "txtList", pagina);
  txtList->setAccessibleName(QStringLiteral("Testo del programma principale"));
  colonna->addWidget(txtList, 1);
  QHBoxLayout* riga = Riga_Pulsanti();
  QTabBar* TabS1 = Linguette("TabS1", "Programma principale");
  TabS1->addTab(QStringLiteral("MAIN"));
  TabS1->setFocusPolicy(Qt::NoFocus);  // there is nothing to choose
  riga->addWidget(TabS1, 0, Qt::AlignTop);
  riga->addStretch(1);
  CmdNet[0] = Aggiungi_Pulsante(*riga, Pulsante_Network_Main);
  cmdTest = Aggiungi_Pulsante(*riga, Pulsante_Test);
  return pagina;
}

QWidget* FrmMain::Crea_Pagina_Procedure() {
  auto* pagina = new QWidget;
  auto* colonna = Colonna(pagina);
  txtP = new AwlEditor(Genere_Testo::Programma, "txtP", pagina);
  txtP->setAccessibleName(QStringLiteral("Testo della procedura scelta"));
  etSenza_SBR = new QLabel;
  etSenza_SBR->setObjectName(QStringLiteral("etSenza_SBR"));
  etSenza_SBR->setWordWrap(true);
  etSenza_SBR->hide();
  colonna->addWidget(etSenza_SBR);
  colonna->addWidget(txtP, 1);
  QHBoxLayout* riga = Riga_Pulsanti();
  TabSP = Linguette("TabSP", "Procedure");
  TabSP->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  riga->addWidget(TabSP, 1, Qt::AlignTop);
  CmdNet[1] = Aggiungi_Pulsante(*riga, Pulsante_Network_SBR);
  cmdSub = Aggiungi_Pulsante(*riga, Pulsante_Nuova_SBR);
  cmdDelP = Aggiungi_Pulsante(*riga, Pulsante_Rimuovi_SBR);
  return pagina;
}

QWidget* FrmMain::Crea_Pagina_Listato() {
  auto* pagina = new QWidget;
  auto* colonna = Colonna(pagina);
  txtLst = new AwlEditor(Genere_Testo::Listato, "txtLst", pagina);
  txtLst->setAccessibleName(QStringLiteral("Listato della compilazione"));
  colonna->addWidget(txtLst, 1);
  QHBoxLayout* riga = Riga_Pulsanti();
  for (std::size_t i = 0; i < Etichette_Listato.size(); ++i) {
    if (i > 0) riga->addStretch(1);
    auto* nome = new QLabel(QString::fromUtf8(Etichette_Listato[i].Testo));
    nome->setObjectName(QString::fromUtf8(Etichette_Listato[i].Nome));
    etNR[i] = new QLabel;
    etNR[i]->setObjectName(QString::fromUtf8(Etichette_Listato[i].Valore));
    Intitola(*etNR[i], nome->text());
    etNR[i]->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    etNR[i]->setFont(Grassetto(etNR[i]->font()));
    riga->addWidget(nome);
    riga->addWidget(etNR[i]);
  }
  riga->addStretch(1);
  return pagina;
}

/// The ticks were made for the hidden page; here, beside the names of the pages, they can be
/// reached and take no line from the texts.
QWidget* FrmMain::Crea_Spunte() {
  auto* riquadro = new QFrame;
  riquadro->setObjectName(QStringLiteral("Frame5"));
  auto* riga = new QHBoxLayout(riquadro);
  riga->setContentsMargins(0, 0, 2 * margine, 0);
  riga->setSpacing(2 * margine);
  for (std::size_t i = 0; i < chkCom.size(); ++i) {
    chkCom[i] = new QCheckBox(QString::fromUtf8(Spunte_Commenti[i]));
    chkCom[i]->setObjectName(QStringLiteral("chkCom(%1)").arg(i));
    chkCom[i]->setToolTip(
        QStringLiteral("Vale da quando il progetto viene di nuovo salvato e letto"));
    chkCom[i]->setChecked(p_.chkCom[i]);
    connect(chkCom[i], &QCheckBox::toggled, this, [this, i](bool messa) { p_.chkCom[i] = messa; });
    riga->addWidget(chkCom[i]);
  }
  riga->addStretch(1);
  return riquadro;
}

void FrmMain::Crea_Stato() {
  auto* stB = new QStatusBar;
  stB->setObjectName(QStringLiteral("stB"));
  setStatusBar(stB);
  constexpr std::array<int, Pannelli_Stato> peso = {5, 3, 2, 0, 0};
  for (std::size_t i = 0; i < pannelli_.size(); ++i) {
    pannelli_[i] = new QLabel;
    pannelli_[i]->setObjectName(QStringLiteral("stB(%1)").arg(i + 1));
    pannelli_[i]->setTextFormat(Qt::PlainText);
    pannelli_[i]->setContentsMargins(margine, 0, margine, 0);
    // A long file name must not push the window wider.
    if (peso[i] > 0) pannelli_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    stB->addWidget(pannelli_[i], peso[i]);
  }
  auto* orologio = new QTimer(this);
  constexpr int ogni_secondo = 1000;
  connect(orologio, &QTimer::timeout, this, [this] { Mostra_Data_Ora(); });
  orologio->start(ogni_secondo);
  Mostra_Data_Ora();
}

/// For a few seconds, in the status bar, or as a tip below the text where that is off.
void FrmMain::Dici(const QString& testo) {
  constexpr int millisecondi = 8000;
  statusBar()->showMessage(testo, millisecondi);
  if (testo.isEmpty() || statusBar()->isVisibleTo(this)) return;
  const AwlEditor& davanti = Davanti();
  QToolTip::showText(davanti.mapToGlobal(davanti.rect().bottomLeft()), testo, nullptr, {},
                     millisecondi);
}

void FrmMain::Mostra_Data_Ora() {
  const QDateTime adesso = QDateTime::currentDateTime();
  pannelli_[3]->setText(adesso.toString(QStringLiteral("dd/MM/yyyy")));
  pannelli_[4]->setText(adesso.toString(QStringLiteral("HH:mm")));
}

int FrmMain::Altezza_Normale() const {
  int altezza = altezza_altro + altezza_picF;
  if (!tB1->isHidden()) altezza += tB1->sizeHint().height();
  if (!statusBar()->isHidden()) altezza += statusBar()->sizeHint().height();
  return altezza;
}

/// The window can grow in width only, unless it fills the screen.
void FrmMain::Regola_Altezza() {
  if ((windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) != 0)
    return;
  const int altezza = Altezza_Normale();
  if (height() != altezza) resize(width(), altezza);
}

}  // namespace tavorno
