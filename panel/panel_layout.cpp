// SPDX-License-Identifier: GPL-3.0-or-later
// Where the controls of the panel stand and how they look.
#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>

#include "panel/controls/cpu_front.h"
#include "panel/panel_controls.h"
#include "panel/panel_tables.h"
#include "panel/program_list.h"
#include "panel/status_bar.h"
#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/screen_reader.h"
#include "widgets/scroll_area.h"

namespace tavorno {

namespace {

QLabel* Etichetta(const QString& nome, const QString& testo) {
  return Chiama(nome, new QLabel(testo));
}

/// A read-out: figures of one width in a sunken field.
QLabel* Lettura(const QString& nome, const QString& testo, int cifre) {
  QLabel* lettura = Etichetta(nome, testo);
  lettura->setFont(Carattere_Fisso());
  lettura->setFrameShape(QFrame::StyledPanel);
  lettura->setAutoFillBackground(true);
  lettura->setBackgroundRole(QPalette::Base);
  lettura->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lettura->setMinimumWidth(lettura->fontMetrics().horizontalAdvance(QString(cifre, '0')) + 12);
  return lettura;
}

QLabel* Intestazione(const QString& testo) {
  auto* etichetta = new QLabel(testo);
  etichetta->setFont(Grassetto(etichetta->font()));
  return etichetta;
}

QCheckBox* Spunta(const char* nome, const char* testo, const char* suggerimento) {
  auto* spunta = Chiama(QString::fromUtf8(nome), new QCheckBox(QString::fromUtf8(testo)));
  spunta->setToolTip(QString::fromUtf8(suggerimento));
  return spunta;
}

QLineEdit* Numero(const char* nome, const QString& testo, const char* suggerimento) {
  auto* campo = Chiama(QString::fromUtf8(nome), new QLineEdit(testo));
  campo->setValidator(new QIntValidator(0, 32767, campo));
  campo->setAlignment(Qt::AlignRight);
  campo->setFixedWidth(70);
  campo->setToolTip(QString::fromUtf8(suggerimento));
  return campo;
}

/// A display with bright figures on a dark ground.
QLabel* Quadrante(const QString& nome, const QString& testo) {
  QLabel* quadrante = Lettura(nome, testo, 8);
  quadrante->setFont(Carattere_Fisso(13));
  quadrante->setBackgroundRole(QPalette::Window);
  return quadrante;
}

QWidget* Pagina_Cont(Controlli_Pannello& c) {
  auto* pagina = new QWidget;
  auto* righe = new QVBoxLayout(pagina);
  auto* spiegazione = new QLabel(
      QStringLiteral("La CPU ripete il programma, scansione dopo scansione, fino a STOP."));
  spiegazione->setWordWrap(true);
  righe->addWidget(spiegazione);
  righe->addStretch();
  c.chkList =
      Spunta("chkList", "Visualizza tempo di cilco", "Aggiorna il tempo di scansione a ogni riga");
  c.chkList->setChecked(true);
  righe->addWidget(c.chkList);
  return pagina;
}

QWidget* Pagina_Ciclo(Controlli_Pannello& c) {
  auto* pagina = new QWidget;
  auto* griglia = new QGridLayout(pagina);
  c.chkStop = Spunta("chkStop", "Stop alla Riga", "Ferma la CPU prima di questa riga");
  c.txtStop = Numero("txtStop", QStringLiteral("0"),
                     "Numero della riga: si sceglie anche con un clic nella lista");
  c.chkSol = Spunta("chkSol", "Esegui solo", "Ferma la CPU dopo questo numero di cicli");
  c.txtNC = Numero("txtNC", QStringLiteral("1"), "Numero di cicli da eseguire");
  c.cmdRest = Chiama(QStringLiteral("cmdRest"), new QPushButton(QStringLiteral("Riprendi")));
  c.cmdRest->setToolTip(QStringLiteral("Continua dalla riga a cui la CPU si è fermata"));
  c.txtStop->setAccessibleName(QStringLiteral("Riga a cui fermarsi"));
  c.txtNC->setAccessibleName(QStringLiteral("Cicli da eseguire"));
  griglia->addWidget(c.chkStop, 0, 0);
  griglia->addWidget(c.txtStop, 0, 1);
  griglia->addWidget(c.chkSol, 1, 0);
  griglia->addWidget(c.txtNC, 1, 1);
  griglia->addWidget(new QLabel(QStringLiteral("cicli")), 1, 2);
  griglia->setRowStretch(2, 1);
  griglia->addWidget(c.cmdRest, 3, 0, 1, 3);
  griglia->setColumnStretch(2, 1);
  return pagina;
}

QWidget* Pagina_Step(Controlli_Pannello& c) {
  auto* pagina = new QWidget;
  auto* righe = new QVBoxLayout(pagina);
  c.CmdStep = Chiama(QStringLiteral("CmdStep"), new QPushButton(QStringLiteral("&Step")));
  c.CmdStep->setShortcut(QKeySequence());  // Alt+S is the menu's
  c.CmdStep->setToolTip(QStringLiteral("Esegue una riga (F10)"));
  c.frSP = Chiama(QStringLiteral("frSP"), new QGroupBox(QStringLiteral("S.P.")));
  c.frSP->setToolTip(QStringLiteral("Riga da eseguire"));
  c.etPc = Lettura(QStringLiteral("etPc"), QStringLiteral("0"), 5);
  Intitola(*c.etPc, QStringLiteral("Riga da eseguire:"));
  auto* dentro = new QVBoxLayout(c.frSP);
  dentro->addWidget(c.etPc);
  righe->addWidget(c.CmdStep);
  righe->addWidget(c.frSP);
  righe->addStretch();
  return pagina;
}

QWidget* Opzioni_Corsa(Controlli_Pannello& c) {
  auto* colonna = new QWidget;
  auto* righe = new QVBoxLayout(colonna);
  righe->setContentsMargins(0, 0, 0, 0);
  c.SSTb3 = Chiama(QStringLiteral("SSTb3"), new QTabWidget);
  c.SSTb3->addTab(Pagina_Cont(c), QStringLiteral("Cont"));
  c.SSTb3->addTab(Pagina_Ciclo(c), QStringLiteral("Ciclo"));
  c.SSTb3->addTab(Pagina_Step(c), QStringLiteral("Step"));
  righe->addWidget(c.SSTb3, 1);
  auto* tempo = new QHBoxLayout;
  tempo->addWidget(new QLabel(QStringLiteral("Tempo di scansione")));
  c.etTime = Quadrante(QStringLiteral("etTime"), QStringLiteral("0"));
  Intitola(*c.etTime, QStringLiteral("Tempo di scansione in ms:"));
  tempo->addWidget(c.etTime, 1);
  tempo->addWidget(new QLabel(QStringLiteral("ms")));
  righe->addLayout(tempo);
  return colonna;
}

QWidget* Pagina_Immagini(Controlli_Pannello& c) {
  auto* pagina = new QWidget;
  auto* righe = new QVBoxLayout(pagina);
  c.chkIP = Spunta("chkIP", "Visualizza immagini P. I/O",
                   "Mostra le immagini di processo degli ingressi e delle uscite");
  righe->addWidget(c.chkIP);
  c.picII = Chiama(QStringLiteral("picII"), new QFrame);
  auto* griglia = new QGridLayout(c.picII);
  griglia->setContentsMargins(18, 0, 0, 0);
  for (int i = 0; i < 2; ++i) {
    const auto n = static_cast<std::size_t>(i);
    griglia->addWidget(new QLabel(QStringLiteral("IB%1:").arg(i)), i, 0);
    griglia->addWidget(c.etIPI[n] = Lettura(Con_Indice("etIPI", i), QString(), 8), i, 1);
    Intitola(*c.etIPI[n], QStringLiteral("IB%1:").arg(i));
    griglia->addWidget(new QLabel(QStringLiteral("QB%1:").arg(i)), i, 2);
    griglia->addWidget(c.etIPQ[n] = Lettura(Con_Indice("etIPQ", i), QString(), 8), i, 3);
    Intitola(*c.etIPQ[n], QStringLiteral("QB%1:").arg(i));
  }
  griglia->setColumnStretch(4, 1);
  // Hidden, the images still keep their place, so that nothing jumps.
  QSizePolicy posto = c.picII->sizePolicy();
  posto.setRetainSizeWhenHidden(true);
  c.picII->setSizePolicy(posto);
  c.picII->setVisible(false);
  righe->addWidget(c.picII);
  righe->addStretch();

  c.chkVs = Spunta("chkVs", "Stack Operazioni Logiche", "Mostra i bit dello stack logico");
  righe->addWidget(c.chkVs);
  auto* pila = new QHBoxLayout;
  pila->setContentsMargins(18, 0, 0, 0);
  pila->setSpacing(3);
  for (int i = 0; i < 8; ++i) {
    auto* cella = Etichetta(Con_Indice("etS", i), QString());
    cella->setFont(Carattere_Fisso(10));
    cella->setAlignment(Qt::AlignCenter);
    cella->setAutoFillBackground(true);
    cella->setFixedSize(34, 22);
    Intitola(*cella, QStringLiteral("Stack %1:").arg(i));
    c.etS[static_cast<std::size_t>(i)] = cella;
    auto* colonna = new QVBoxLayout;
    colonna->setSpacing(1);
    auto* numero = new QLabel(QString::number(i));
    numero->setAlignment(Qt::AlignCenter);
    colonna->addWidget(numero);
    colonna->addWidget(cella);
    pila->addLayout(colonna);
  }
  pila->addStretch();
  righe->addLayout(pila);
  return pagina;
}

/// One block of analog channels: heading, range, and a row for each channel.
template <std::size_t N>
QWidget* Canali(const QString& titolo, const char* sigla, const char* opzione,
                std::array<QRadioButton*, 2>& scale, std::array<QLabel*, N>& parole,
                std::array<QLabel*, N>& valori, std::array<QLabel*, N>& unita, const char* nome_p,
                const char* nome_v, const char* nome_u) {
  auto* blocco = new QWidget;
  auto* griglia = new QGridLayout(blocco);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setVerticalSpacing(3);
  griglia->addWidget(Intestazione(titolo), 0, 0, 1, 4);
  auto* gruppo = new QButtonGroup(blocco);
  auto* riga_scale = new QHBoxLayout;
  const std::array testi{QStringLiteral("0-10 V"), QStringLiteral("0-20 mA")};
  for (std::size_t i = 0; i < 2; ++i) {
    scale[i] = Chiama(Con_Indice(opzione, static_cast<int>(i)), new QRadioButton(testi[i]));
    gruppo->addButton(scale[i]);
    riga_scale->addWidget(scale[i]);
  }
  riga_scale->addStretch();
  scale[0]->setChecked(true);
  griglia->addLayout(riga_scale, 1, 0, 1, 4);
  for (std::size_t i = 0; i < N; ++i) {
    const int n = static_cast<int>(i);
    griglia->addWidget(new QLabel(QStringLiteral("%1%2:").arg(sigla).arg(2 * n)), n + 2, 0);
    griglia->addWidget(parole[i] = Lettura(Con_Indice(nome_p, n), QStringLiteral("00"), 6), n + 2,
                       1);
    griglia->addWidget(valori[i] = Lettura(Con_Indice(nome_v, n), QStringLiteral("00"), 6), n + 2,
                       2);
    for (QLabel* lettura : {parole[i], valori[i]})
      Intitola(*lettura, QStringLiteral("%1%2:").arg(sigla).arg(2 * n));
    griglia->addWidget(unita[i] = Etichetta(Con_Indice(nome_u, n), QStringLiteral("Volt")), n + 2,
                       3);
  }
  griglia->setRowStretch(static_cast<int>(N) + 2, 1);
  griglia->setColumnStretch(4, 1);
  return blocco;
}

QWidget* Pagina_Analogici(Controlli_Pannello& c) {
  auto* pagina = new QWidget;
  auto* colonne = new QHBoxLayout(pagina);
  colonne->setSpacing(18);
  colonne->addWidget(Canali(QStringLiteral("Ingressi  Analogici"), "AIW", "opzAI", c.opzAI, c.etAI,
                            c.etAIV, c.etg1, "etAI", "etAIV", "etg1"));
  colonne->addWidget(Canali(QStringLiteral("Uscite  Analogiche"), "AQW", "opzAQ", c.opzAQ, c.etAQ,
                            c.etAQV, c.etg2, "etAQ", "etAQV", "etg2"));
  return pagina;
}

QWidget* Potenziometri(Controlli_Pannello& c) {
  auto* gruppo = new QGroupBox(QStringLiteral("Potenziometri Analogici"));
  auto* griglia = new QGridLayout(gruppo);
  for (std::size_t i = 0; i < 2; ++i) {
    const int n = static_cast<int>(i);
    c.SlidP[i] = Chiama(Con_Indice("SlidP", n), new QSlider(Qt::Horizontal));
    c.SlidP[i]->setRange(0, 255);
    c.SlidP[i]->setSingleStep(1);
    c.SlidP[i]->setPageStep(5);
    c.SlidP[i]->setToolTip(QStringLiteral("Valore di SMB%1, da 0 a 255").arg(28 + n));
    c.etPa[i] = Lettura(Con_Indice("etPa", n), QStringLiteral("0"), 4);
    const QString sigla = QStringLiteral("SMB%1").arg(28 + n);
    c.SlidP[i]->setAccessibleName(QStringLiteral("Potenziometro %1").arg(sigla));
    Intitola(*c.etPa[i], sigla + ':');
    griglia->addWidget(new QLabel(sigla), n, 0);
    griglia->addWidget(c.SlidP[i], n, 1);
    griglia->addWidget(c.etPa[i], n, 2);
  }
  return gruppo;
}

QLayout* Testata_Lista(Controlli_Pannello& c) {
  c.chkVal = Spunta("chkVal", "Valori",
                    "Accanto a ogni riga lo stato dei suoi operandi, e una barra dove passa "
                    "corrente; una freccia segna la riga che sarà eseguita");
  auto* testata = new QHBoxLayout;
  testata->addWidget(Intestazione(QStringLiteral("Programma nella CPU")));
  testata->addStretch();
  testata->addWidget(c.chkVal);
  return testata;
}

/// Everything below the tool bar. A narrow panel has one column, with the program list below the
/// CPU; what has no room in the height scrolls.
class Area_Pannello : public Area_Scorrevole {
 public:
  struct Pezzi {
    QWidget *Fronte, *Corsa, *Schede, *Destra;
  };

  Area_Pannello(QWidget* centro, const Pezzi& pezzi)
      : Area_Scorrevole(centro, minima), pezzi_(pezzi), griglia_(new QGridLayout(centro)) {
    griglia_->setContentsMargins(8, 8, 8, 4);
    Disponi();
  }

 protected:
  void resizeEvent(QResizeEvent* evento) override {
    Area_Scorrevole::resizeEvent(evento);
    const bool stretta = viewport()->width() < larga;
    if (stretta != stretta_) {
      stretta_ = stretta;
      Disponi();
    }
    // In one column the CPU takes the width, and no more height than it needs for that.
    const int alta =
        Fronte_CPU::Misura.height() * (viewport()->width() - 16) / Fronte_CPU::Misura.width();
    const int minima_larga = Fronte_CPU::Misura.height() * 4 / 5;
    pezzi_.Fronte->setMinimumHeight(stretta_ ? alta : minima_larga);
    pezzi_.Fronte->setMaximumHeight(stretta_ ? alta : QWIDGETSIZE_MAX);
  }

 private:
  static constexpr QSize minima{452, 240};
  static constexpr int larga = 800;  // pixels from which the list stands beside the CPU

  void Disponi() {
    while (QLayoutItem* posto = griglia_->takeAt(0)) delete posto;
    for (int i = 0; i < 4; ++i) {
      griglia_->setColumnStretch(i, 0);
      griglia_->setRowStretch(i, 0);
    }
    if (stretta_) {
      QWidget* pezzi[] = {pezzi_.Fronte, pezzi_.Destra, pezzi_.Corsa, pezzi_.Schede};
      for (int i = 0; i < 4; ++i) griglia_->addWidget(pezzi[i], i, 0);
      return;
    }
    griglia_->addWidget(pezzi_.Fronte, 0, 0, 1, 2);
    griglia_->addWidget(pezzi_.Corsa, 1, 0);
    griglia_->addWidget(pezzi_.Schede, 1, 1);
    griglia_->addWidget(pezzi_.Destra, 0, 2, 2, 1);
    griglia_->setColumnStretch(0, 4);
    griglia_->setColumnStretch(1, 6);
    griglia_->setColumnStretch(2, 5);
    griglia_->setRowStretch(0, 3);
    griglia_->setRowStretch(1, 1);
  }

  Pezzi pezzi_;
  QGridLayout* griglia_;
  bool stretta_ = false;
};

void Crea_Stato(QMainWindow& finestra, Controlli_Pannello& c) {
  auto* barra = Chiama(QStringLiteral("stB"), new Barra_Stato(&finestra));
  // The extension of a file and the number of an exercise tell most. Count and mode are never cut.
  const struct {
    Qt::TextElideMode Dove;
    const char* Sempre;
  } campi[] = {{Qt::ElideMiddle, "File: NoName.AWL"},
               {Qt::ElideRight, "List: 300"},
               {Qt::ElideRight, "STOP  -  Singolo Ciclo"},
               {Qt::ElideRight, "00-Esercizio"}};
  for (std::size_t i = 0; i < c.stB.size(); ++i) {
    auto* campo =
        Chiama(Con_Indice("stB", static_cast<int>(i) + 1),
               new Etichetta_Accorciata(campi[i].Dove, QString::fromUtf8(campi[i].Sempre)));
    barra->Metti(*campo, i + 1 == c.stB.size());
    c.stB[i] = campo;
  }
  auto* durate = Chiama(QStringLiteral("etDurate"), new Etichetta_Accorciata(Qt::ElideRight));
  barra->Metti_In_Fondo(*durate);
  c.etDurate = durate;
  finestra.setStatusBar(barra);
}

}  // namespace

Controlli_Pannello Crea_Controlli(QMainWindow& finestra, Plc& plc, Azioni_Pannello::Tasti& tasti) {
  Controlli_Pannello c{};
  c.tB1 = Crea_Barra(finestra, "tB1", Barra_Pannello(tasti));

  auto* centro = Chiama(QStringLiteral("picF"), new QWidget);
  c.Fronte = Chiama(QStringLiteral("picC"), new Fronte_CPU(plc));
  QWidget* corsa = Opzioni_Corsa(c);
  c.SSTb4 = Chiama(QStringLiteral("SSTb4"), new QTabWidget);
  c.SSTb4->addTab(Pagina_Immagini(c), QStringLiteral("Immagini"));
  c.SSTb4->addTab(Pagina_Analogici(c), QStringLiteral("Analogici"));

  auto* destra = new QWidget;
  auto* in_colonna = new QVBoxLayout(destra);
  in_colonna->setContentsMargins(0, 0, 0, 0);
  c.listSrc = Chiama(QStringLiteral("listSrc"), new Lista_Programma);
  c.listSrc->setMinimumSize(260, 130);
  c.vistaLista = Chiama(QStringLiteral("vistaLista"), new QWidget);
  auto* lista = new QVBoxLayout(c.vistaLista);
  lista->setContentsMargins(0, 0, 0, 0);
  lista->addLayout(Testata_Lista(c));
  lista->addWidget(c.listSrc, 1);
  in_colonna->addWidget(c.vistaLista, 1);
  in_colonna->addWidget(Potenziometri(c));
  in_colonna->addStretch();  // takes nothing but where the list stands elsewhere

  finestra.setCentralWidget(new Area_Pannello(centro, {c.Fronte, corsa, c.SSTb4, destra}));
  finestra.resize(1060, 700);
  Crea_Stato(finestra, c);
  return c;
}

}  // namespace tavorno
