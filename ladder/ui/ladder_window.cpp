// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/ui/ladder_window.h"

#include <QAction>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrinter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <cmath>

#include "awl/file_io.h"
#include "ladder/typed.h"
#include "ladder/ui/ladder_access.h"
#include "ladder/ui/ladder_export.h"
#include "widgets/file_choice.h"
#include "widgets/naming.h"
#include "widgets/paper.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr int periodo = 40;  // ms: what the eye can follow
constexpr double passo_zoom = 1.2;

std::vector<Voce_Menu> Menu_Scala(Azioni_Scala& a) {
  return {
      {.Livello = 0, .Nome = "mnuScFile", .Testo = "&File"},
      {.Livello = 1,
       .Nome = "mnuScStampa",
       .Testo = "Sta&mpa…",
       .Tasti = "Ctrl+P",
       .Dove = &a.mnuScStampa},
      {.Livello = 1, .Nome = "mnuScPdf", .Testo = "Salva come &PDF…", .Dove = &a.mnuScPdf},
      {.Livello = 1, .Nome = "mnuScSvg", .Testo = "Salva come &SVG…", .Dove = &a.mnuScSvg},
      {.Livello = 1, .Nome = "mnuScPng", .Testo = "Salva come P&NG…", .Dove = &a.mnuScPng},
      {.Livello = 1, .Nome = "", .Testo = ""},
      {.Livello = 1,
       .Nome = "mnuScChiudi",
       .Testo = "&Chiudi",
       .Tasti = "Ctrl+W",
       .Dove = &a.mnuScChiudi},
      {.Livello = 0, .Nome = "mnuScModifica", .Testo = "&Modifica"},
      {.Livello = 1,
       .Nome = "mnuScAnnulla",
       .Testo = "&Annulla",
       .Tasti = "Ctrl+Z",
       .Dove = &a.mnuScAnnulla},
      {.Livello = 1,
       .Nome = "mnuScRipeti",
       .Testo = "&Ripeti",
       .Tasti = "Ctrl+Y",
       .Dove = &a.mnuScRipeti},
      {.Livello = 1, .Nome = "", .Testo = ""},
      {.Livello = 1,
       .Nome = "mnuScCambia",
       .Testo = "&Cambia il simbolo",
       .Tasti = "F2",
       .Dove = &a.mnuScCambia},
      {.Livello = 1,
       .Nome = "mnuScElimina",
       .Testo = "&Elimina il simbolo",
       .Tasti = "Del",
       .Dove = &a.mnuScElimina},
      {.Livello = 1, .Nome = "mnuScSimboli", .Testo = "&Inserisci", .Dove = &a.mnuScSimboli},
      {.Livello = 1, .Nome = "", .Testo = ""},
      {.Livello = 1,
       .Nome = "mnuScPiolo",
       .Testo = "&Nuovo circuito",
       .Tasti = "Ins",
       .Dove = &a.mnuScPiolo},
      {.Livello = 1,
       .Nome = "mnuScViaPiolo",
       .Testo = "E&limina il circuito",
       .Tasti = "Ctrl+Del",
       .Dove = &a.mnuScViaPiolo},
      {.Livello = 1,
       .Nome = "mnuScRete",
       .Testo = "Nuovo &segmento",
       .Tasti = "Ctrl+Ins",
       .Dove = &a.mnuScRete},
      {.Livello = 0, .Nome = "mnuScVista", .Testo = "&Visualizza"},
      {.Livello = 1,
       .Nome = "mnuScPiu",
       .Testo = "&Ingrandisci",
       .Tasti = "Ctrl++",
       .Dove = &a.mnuScPiu},
      {.Livello = 1,
       .Nome = "mnuScMeno",
       .Testo = "&Riduci",
       .Tasti = "Ctrl+-",
       .Dove = &a.mnuScMeno},
      {.Livello = 1,
       .Nome = "mnuScReale",
       .Testo = "Grandezza &normale",
       .Tasti = "Ctrl+0",
       .Dove = &a.mnuScReale},
      {.Livello = 1,
       .Nome = "mnuScAdatta",
       .Testo = "&Adatta alla larghezza",
       .Tasti = "Ctrl+9",
       .Dove = &a.mnuScAdatta},
      {.Livello = 1, .Nome = "", .Testo = ""},
      {.Livello = 1, .Nome = "mnuScTesto", .Testo = "&Vai al testo", .Dove = &a.mnuScTesto},
      {.Livello = 0, .Nome = "mnuScAiuto", .Testo = "&Help"},
      {.Livello = 1,
       .Nome = "mnuScGuida",
       .Testo = "&Guida allo schema",
       .Tasti = "F1",
       .Dove = &a.mnuScGuida},
  };
}

QString Filtro(const QString& tipo) {
  if (tipo == u"pdf") return QStringLiteral("Documenti PDF (*.pdf *.PDF)");
  return tipo == u"svg" ? QStringLiteral("Disegni (*.svg *.SVG)")
                        : QStringLiteral("Immagini (*.png *.PNG)");
}

}  // namespace

FrmScala::FrmScala(const Plc& plc, const Stato_Progetto& progetto, Legami_Scala legami,
                   Servizi_Scala servizi)
    : progetto_(progetto),
      nome_(legami.Nome),
      servizi_(std::move(servizi)),
      vista_(new Vista_Scala(plc, progetto, std::move(legami))),
      etScelto_(new QLabel),
      etZoom_(new QLabel),
      timScala_(new QTimer(this)) {
  Offri_Schemi_Ai_Lettori();
  setObjectName(QStringLiteral("frmScala"));
  setWindowIcon(QIcon(QStringLiteral(":/icons/tavorno.svg")));
  setCentralWidget(vista_);
  if (!servizi_.Chiedi_File)
    servizi_.Chiedi_File = [this](const QString& tipo) {
      return Chiedi_Dove_Salvare(this, QStringLiteral("Salva lo schema"), Filtro(tipo));
    };
  if (!servizi_.Avvisa)
    servizi_.Avvisa = [this](const QString& testo) {
      QMessageBox::warning(this, QStringLiteral("Errore!"), testo);
    };
  Crea_Menu(*this, Menu_Scala(a_));
  Crea_Barre();
  Crea_Comandi();
  vista_->Scelta_Cambiata = [this] { Racconta(); };
  vista_->Messaggio = [this](const QString& testo) {
    messaggio_ = testo;
    Racconta();
  };
  resize(940, 600);
  timScala_->setObjectName(QStringLiteral("timScala"));
  connect(timScala_, &QTimer::timeout, this, [this] {
    if (isVisible()) Aggiorna();
  });
  timScala_->start(periodo);
  Aggiorna();
  Racconta();
  vista_->setFocus();
}

void FrmScala::Aggiorna() {
  if (titolo_ != progetto_.File_Titolo) {
    titolo_ = progetto_.File_Titolo;
    setWindowTitle(" Scalaro" + (titolo_.empty() ? QString() : ": " + Q(titolo_)));
  }
  vista_->Aggiorna();
}

void FrmScala::Racconta() {
  etScelto_->setText(messaggio_.isEmpty() ? vista_->Descrizione() : messaggio_);
  etScelto_->setToolTip(etScelto_->text());
  etZoom_->setText(QStringLiteral("%1 %").arg(std::lround(vista_->Ingrandimento() * 100)));
  messaggio_.clear();
}

void FrmScala::Crea_Barre() {
  auto* barra = Chiama(QStringLiteral("tbScala"), new QToolBar(QStringLiteral("Simboli")));
  barra->setMovable(false);
  barra->setIconSize(QSize(40, 26));
  barra->setContextMenuPolicy(Qt::PreventContextMenu);
  addToolBar(barra);
  auto* simboli = new QMenu(this);
  a_.mnuScSimboli->setMenu(simboli);
  for (const Simbolo_Barra& simbolo : Simboli_Barra()) {
    const QString istr = QString::fromUtf8(simbolo.Istr);
    auto* voce = Chiama(QString::fromUtf8(simbolo.Nome),
                        new QAction(QString::fromUtf8(simbolo.Testo), this));
    Segui_Colori(*this, [voce, istr] { voce->setIcon(Icona_Simbolo(Utf8(istr.trimmed()))); });
    voce->setToolTip(QStringLiteral("%1: come scrivere \"%2\"").arg(voce->text(), istr.trimmed()));
    connect(voce, &QAction::triggered, this, [this, istr] { vista_->Metti(istr); });
    if (simbolo.Stacco) {
      barra->addSeparator();
      simboli->addSeparator();
    }
    barra->addAction(voce);
    simboli->addAction(voce);
  }
  etScelto_->setObjectName(QStringLiteral("etScelto"));
  etScelto_->setTextFormat(Qt::PlainText);
  etScelto_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  etZoom_->setObjectName(QStringLiteral("etZoom"));
  statusBar()->addWidget(etScelto_, 1);
  statusBar()->addPermanentWidget(etZoom_);
}

void FrmScala::Crea_Comandi() {
  const auto al = [this](QAction* voce, auto comando) {
    connect(voce, &QAction::triggered, this, comando);
  };
  al(a_.mnuScStampa, [this] { Stampa(); });
  al(a_.mnuScPdf, [this] { Salva(QStringLiteral("pdf")); });
  al(a_.mnuScSvg, [this] { Salva(QStringLiteral("svg")); });
  al(a_.mnuScPng, [this] { Salva(QStringLiteral("png")); });
  al(a_.mnuScChiudi, [this] { close(); });
  al(a_.mnuScAnnulla, [this] { vista_->Annulla(false); });
  al(a_.mnuScRipeti, [this] { vista_->Annulla(true); });
  al(a_.mnuScCambia, [this] { vista_->Cambia_Scelto(); });
  al(a_.mnuScElimina, [this] { vista_->Elimina(); });
  al(a_.mnuScPiolo, [this] { vista_->Nuovo_Piolo(); });
  al(a_.mnuScViaPiolo, [this] { vista_->Elimina_Piolo(); });
  al(a_.mnuScRete, [this] { vista_->Nuova_Rete(); });
  al(a_.mnuScPiu, [this] { vista_->Ingrandisci(vista_->Ingrandimento() * passo_zoom); });
  al(a_.mnuScMeno, [this] { vista_->Ingrandisci(vista_->Ingrandimento() / passo_zoom); });
  al(a_.mnuScReale, [this] { vista_->Ingrandisci(1); });
  al(a_.mnuScAdatta, [this] { vista_->Adatta(); });
  al(a_.mnuScTesto, [this] { vista_->Vai_Al_Testo(); });
  al(a_.mnuScGuida, [this] { servizi_.Mostra_Aiuto(); });
  a_.mnuScGuida->setEnabled(bool(servizi_.Mostra_Aiuto));
  a_.mnuScStampa->setEnabled(bool(servizi_.Scegli_Stampante));
  // What the right button offers at a symbol.
  vista_->addActions({a_.mnuScCambia, a_.mnuScElimina, a_.mnuScSimboli, a_.mnuScPiolo,
                      a_.mnuScViaPiolo, a_.mnuScRete, a_.mnuScTesto});
}

QString FrmScala::Titolo_Stampa() const {
  return progetto_.File_Titolo.empty() ? QStringLiteral("NoName") : Q(progetto_.File_Titolo);
}

void FrmScala::Salva(const QString& tipo) {
  const QString scelto = servizi_.Chiedi_File(tipo);
  if (scelto.isEmpty()) return;
  const QString file =
      scelto.endsWith('.' + tipo, Qt::CaseInsensitive) ? scelto : scelto + '.' + tipo;
  const QString motivo = Salva_Scala(file, vista_->Foglio(), Titolo_Stampa(), nome_);
  if (motivo.isEmpty()) {
    messaggio_ = "Schema salvato in " + file;
    return Racconta();
  }
  servizi_.Avvisa("Lo schema non si può salvare in\n" + file + '\n' + motivo);
}

void FrmScala::Stampa() {
  QPrinter stampante;
  if (!servizi_.Scegli_Stampante(stampante, this)) return;
  const auto disegna = [this](QPagedPaintDevice& carta) {
    return Stampa_Scala(carta, vista_->Foglio(), Titolo_Stampa());
  };
  const auto scrivi = [](const std::string& file, std::string_view byte) {
    return Scrivi_File(file, byte);
  };
  if (!Stampa_Su(stampante, Titolo_Stampa(), disegna, scrivi))
    servizi_.Avvisa(
        QStringLiteral("Lo schema non si può stampare. Controllare che la stampante "
                       "sia accesa e che il file di stampa si possa scrivere."));
}

}  // namespace tavorno
