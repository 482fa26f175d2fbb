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

const Voce_Menu menu[] = {
    {.Livello = 0, .Nome = "mnuScFile", .Testo = "&File"},
    {.Livello = 1, .Nome = "mnuScStampa", .Testo = "Sta&mpa…", .Tasti = "Ctrl+P"},
    {.Livello = 1, .Nome = "mnuScPdf", .Testo = "Salva come &PDF…"},
    {.Livello = 1, .Nome = "mnuScSvg", .Testo = "Salva come &SVG…"},
    {.Livello = 1, .Nome = "mnuScPng", .Testo = "Salva come P&NG…"},
    {.Livello = 1, .Nome = "", .Testo = ""},
    {.Livello = 1, .Nome = "mnuScChiudi", .Testo = "&Chiudi", .Tasti = "Ctrl+W"},
    {.Livello = 0, .Nome = "mnuScModifica", .Testo = "&Modifica"},
    {.Livello = 1, .Nome = "mnuScAnnulla", .Testo = "&Annulla", .Tasti = "Ctrl+Z"},
    {.Livello = 1, .Nome = "mnuScRipeti", .Testo = "&Ripeti", .Tasti = "Ctrl+Y"},
    {.Livello = 1, .Nome = "", .Testo = ""},
    {.Livello = 1, .Nome = "mnuScCambia", .Testo = "&Cambia il simbolo", .Tasti = "F2"},
    {.Livello = 1, .Nome = "mnuScElimina", .Testo = "&Elimina il simbolo", .Tasti = "Del"},
    {.Livello = 1, .Nome = "mnuScSimboli", .Testo = "&Inserisci"},
    {.Livello = 1, .Nome = "", .Testo = ""},
    {.Livello = 1, .Nome = "mnuScPiolo", .Testo = "&Nuovo circuito", .Tasti = "Ins"},
    {.Livello = 1, .Nome = "mnuScViaPiolo", .Testo = "E&limina il circuito", .Tasti = "Ctrl+Del"},
    {.Livello = 1, .Nome = "mnuScRete", .Testo = "Nuovo &segmento", .Tasti = "Ctrl+Ins"},
    {.Livello = 0, .Nome = "mnuScVista", .Testo = "&Visualizza"},
    {.Livello = 1, .Nome = "mnuScPiu", .Testo = "&Ingrandisci", .Tasti = "Ctrl++"},
    {.Livello = 1, .Nome = "mnuScMeno", .Testo = "&Riduci", .Tasti = "Ctrl+-"},
    {.Livello = 1, .Nome = "mnuScReale", .Testo = "Grandezza &normale", .Tasti = "Ctrl+0"},
    {.Livello = 1, .Nome = "mnuScAdatta", .Testo = "&Adatta alla larghezza", .Tasti = "Ctrl+9"},
    {.Livello = 1, .Nome = "", .Testo = ""},
    {.Livello = 1, .Nome = "mnuScTesto", .Testo = "&Vai al testo"},
    {.Livello = 0, .Nome = "mnuScAiuto", .Testo = "&Help"},
    {.Livello = 1, .Nome = "mnuScGuida", .Testo = "&Guida allo schema", .Tasti = "F1"},
};

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
  Crea_Menu(*this, menu);
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
  Azione(*this, QStringLiteral("mnuScSimboli")).setMenu(simboli);
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
  const auto al = [this](const char* nome, auto comando) {
    Collega(*this, QString::fromUtf8(nome), comando);
  };
  al("mnuScStampa", [this] { Stampa(); });
  for (const char* tipo : {"Pdf", "Svg", "Png"})
    al((std::string("mnuSc") + tipo).c_str(),
       [this, tipo] { Salva(QString::fromUtf8(tipo).toLower()); });
  al("mnuScChiudi", [this] { close(); });
  al("mnuScAnnulla", [this] { vista_->Annulla(false); });
  al("mnuScRipeti", [this] { vista_->Annulla(true); });
  al("mnuScCambia", [this] { vista_->Cambia_Scelto(); });
  al("mnuScElimina", [this] { vista_->Elimina(); });
  al("mnuScPiolo", [this] { vista_->Nuovo_Piolo(); });
  al("mnuScViaPiolo", [this] { vista_->Elimina_Piolo(); });
  al("mnuScRete", [this] { vista_->Nuova_Rete(); });
  al("mnuScPiu", [this] { vista_->Ingrandisci(vista_->Ingrandimento() * passo_zoom); });
  al("mnuScMeno", [this] { vista_->Ingrandisci(vista_->Ingrandimento() / passo_zoom); });
  al("mnuScReale", [this] { vista_->Ingrandisci(1); });
  al("mnuScAdatta", [this] { vista_->Adatta(); });
  al("mnuScTesto", [this] { vista_->Vai_Al_Testo(); });
  al("mnuScGuida", [this] { servizi_.Mostra_Aiuto(); });
  Azione(*this, QStringLiteral("mnuScGuida")).setEnabled(bool(servizi_.Mostra_Aiuto));
  Azione(*this, QStringLiteral("mnuScStampa")).setEnabled(bool(servizi_.Scegli_Stampante));
  // What the right button offers at a symbol.
  for (const char* nome : {"mnuScCambia", "mnuScElimina", "mnuScSimboli", "mnuScPiolo",
                           "mnuScViaPiolo", "mnuScRete", "mnuScTesto"})
    vista_->addAction(&Azione(*this, QString::fromUtf8(nome)));
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
