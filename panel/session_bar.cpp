// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/session_bar.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressDialog>
#include <QScreen>
#include <QShowEvent>
#include <QTimer>
#include <algorithm>
#include <array>

#include "panel/program_list.h"
#include "panel/session_mirror.h"
#include "plants/host/host_window.h"
#include "recorder/past_flow.h"
#include "widgets/colours.h"
#include "widgets/file_choice.h"
#include "widgets/message_box.h"
#include "widgets/naming.h"
#include "widgets/text.h"
#include "widgets/tinting.h"
#include "widgets/wrapping_row.h"

namespace tavorno {

namespace {

struct Lentezza {
  const char* Nome;
  double Velocita;
  Battito A_Battito;
};
constexpr Lentezza lentezze[] = {
    {"tempo vero", 1, Battito::Nessuno},
    {"1/2", 0.5, Battito::Nessuno},
    {"1/5", 0.2, Battito::Nessuno},
    {"1/10", 0.1, Battito::Nessuno},
    {"1/50", 0.02, Battito::Nessuno},
    {"1/100", 0.01, Battito::Nessuno},
    {"una scansione alla volta", 1, Battito::Scansione},
    {"una rete alla volta", 1, Battito::Rete},
    {"una riga alla volta", 1, Battito::Riga},
};

constexpr std::int64_t un_secondo = 1000;

}  // namespace

Barra_Seduta::Barra_Seduta(FrmPLC& pannello, Plc& plc, Registratore& registratore,
                           Guida_Corsa& corsa)
    : QToolBar(QStringLiteral("Seduta"), &pannello),
      pannello_(pannello),
      plc_(plc),
      registratore_(registratore),
      corsa_(corsa),
      riga_(new Riga_A_Capo),
      fermate_(pannello, plc, corsa) {
  setObjectName(QStringLiteral("barraSeduta"));
  setMovable(false);
  Chiedi_File = [this](bool salva) {
    const QString filtro = Q("Sedute (*.seduta)");
    return salva ? Chiedi_Dove_Salvare(&pannello_, Q("Salva la seduta"), filtro, Q("seduta.seduta"))
                 : Chiedi_Che_Aprire(&pannello_, Q("Apri una seduta"), filtro);
  };
  Avvisa = [this](const QString& testo) {
    Mostra_Avviso(&pannello_, {"Attenzione!", Utf8(testo), Icona::Critica, Tasti::Ok, {}});
  };
  registratore_.Apri = [this](int) {
    Finestra_Impianto* finestra = Impianto ? Impianto() : nullptr;
    return finestra ? finestra->Riapri() : nullptr;
  };
  registratore_.Avanzamento = [this](double parte) { return Progresso(parte); };
  fermate_.Fermato = [this](const QString& quale) {
    perche_ = quale;
    show();
  };
  fermate_.Avvisa = [this](const QString& testo) { Avvisa(testo); };
  pannello_.Flusso_Al_Momento = [this] { return Flusso_Al_Momento(registratore_); };
  corsa_.Al_Battito = [this](int riga) { pannello_.Controlli().listSrc->Scegli(riga); };

  addWidget(riga_);
  Crea_Comandi();
  pannello.addToolBar(Qt::BottomToolBarArea, this);
  hide();
  auto* ritmo = new QTimer(this);
  ritmo->setInterval(100);
  ritmo->callOnTimeout([this] { Mostra_Stato(); });
  ritmo->start();
  Mostra_Stato();
}

QAction* Barra_Seduta::Comando(QMenu& menu, const char* nome, const char* testo, const char* tasto,
                               const char* suggerimento, std::function<void()> fai,
                               bool nella_barra) {
  auto* azione = Chiama(QString::fromUtf8(nome), menu.addAction(Q(testo)));
  if (*tasto != '\0') azione->setShortcut(QKeySequence(QString::fromUtf8(tasto)));
  azione->setToolTip(Q(suggerimento) +
                     (*tasto != '\0' ? QStringLiteral(" (%1)").arg(
                                           azione->shortcut().toString(QKeySequence::NativeText))
                                     : QString()));
  connect(azione, &QAction::triggered, this, std::move(fai));
  if (nella_barra) riga_->Metti(azione);
  return azione;
}

void Barra_Seduta::Crea_Comandi() {
  auto* menu = Chiama(QStringLiteral("mnuSeduta"), new QMenu(Q("S&eduta"), &pannello_));
  const QList<QAction*> voci = pannello_.menuBar()->actions();
  pannello_.menuBar()->insertMenu(voci.isEmpty() ? nullptr : voci.last(), menu);
  menu->setToolTipsVisible(true);

  QAction* mostra = toggleViewAction();
  mostra->setText(Q("&Barra della seduta"));
  menu->addAction(mostra);
  menu->addSeparator();
  pausa_ = Comando(
      *menu, "mnuPausa", "&Pausa", "F8", "Ferma insieme CPU e impianto, e li fa proseguire",
      [this] { Pausa_O_Continua(); }, true);
  pausa_->setShortcuts({pausa_->shortcut(), QKeySequence(QString::fromUtf8(Pausa_Ovunque))});
  pannello_.Pausa = pausa_;
  Crea_Lentezza();
  riga_->Stacco();
  menu->addSeparator();
  const struct {
    const char *Nome, *Testo, *Tasto, *Suggerimento;
    bool (Registratore::*Passo)();
  } passi[] = {
      {"mnuRigaIndietro", "◀ &riga", "Alt+Left", "Una riga indietro", &Registratore::Riga_Indietro},
      {"mnuScansioneIndietro", "◀ &scansione", "Alt+Shift+Left", "Una scansione indietro",
       &Registratore::Scansione_Indietro},
  };
  for (const auto& riga : passi)
    Comando(
        *menu, riga.Nome, riga.Testo, riga.Tasto, riga.Suggerimento,
        [this, passo = riga.Passo] {
          Indietro([this, passo] { return (registratore_.*passo)(); });
        },
        true);
  Comando(
      *menu, "mnuSecondoIndietro", "◀ 1 s", "Alt+PgUp", "Un secondo indietro",
      [this] { Indietro([this] { return registratore_.Tempo_Indietro(un_secondo); }); }, true);
  al_cursore_ = Comando(
      *menu, "mnuAlCursore", "Al &cursore del diagramma", "Alt+Home",
      "Torna all'istante del cursore del diagramma dei tempi",
      [this] {
        const auto cursore = Cursore_Del_Diagramma ? Cursore_Del_Diagramma() : std::nullopt;
        if (cursore) Torna_A(*cursore);
      },
      false);
  solo_nel_passato_ = {
      Comando(
          *menu, "mnuRigaAvanti", "r&iga ▶", "Alt+Right", "Una riga avanti",
          [this] { Indietro([this] { return registratore_.Riga_Avanti(); }); }, true),
      Comando(
          *menu, "mnuScansioneAvanti", "s&cansione ▶", "Alt+Shift+Right", "Una scansione avanti",
          [this] { Indietro([this] { return registratore_.Scansione_Avanti(); }); }, true),
      Comando(
          *menu, "mnuSecondoAvanti", "1 s ▶", "Alt+PgDown", "Un secondo avanti",
          [this] { Indietro([this] { return registratore_.Tempo_Avanti(un_secondo); }); }, true),
      Comando(
          *menu, "mnuPresente", "&Presente", "Alt+End", "Torna al presente",
          [this] { Al_Presente(); }, true),
      Comando(
          *menu, "mnuRiprendiDaQui", "Riprendi &da qui", "",
          "Prosegue da questo momento; ciò che è venuto dopo si perde", [this] { Riprendi(); },
          true),
  };
  riga_->Stacco();
  bit_ = Chiama(QStringLiteral("txtBit"), new QLineEdit(QStringLiteral("Q0.0")));
  bit_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("SM00.0.....")));
  bit_->setToolTip(Q("Il bit o la cella di cui si cerca l'ultimo cambiamento"));
  bit_->setAccessibleName(bit_->toolTip());
  connect(bit_, &QLineEdit::returnPressed, this, [this] { Chi_E_Stato(); });
  riga_->Metti(bit_);
  Comando(
      *menu, "mnuChiEStato", "C&hi è stato?", "Ctrl+Alt+W",
      "Torna all'ultimo cambiamento e segna la riga che lo ha fatto", [this] { Chi_E_Stato(); },
      true);
  riga_->Stacco();
  riga_->Metti(fermate_.Campo(), true);
  menu->addSeparator();
  fermate_.Aggiungi_Voci(*menu);
  menu->addSeparator();
  Comando(
      *menu, "mnuSalvaSeduta", "Sal&va la seduta...", "",
      "Scrive in un file tutto ciò che è entrato nella seduta", [this] { Salva(); }, false);
  Comando(
      *menu, "mnuApriSeduta", "&Apri una seduta...", "",
      "Rilegge una seduta: la si percorre avanti e indietro", [this] { Apri(); }, false);
  stato_ = Chiama(QStringLiteral("etSeduta"), new QLabel);
  stato_->setAutoFillBackground(true);
  stato_->setMargin(3);
  stato_->setFont(Grassetto(stato_->font()));
  riga_->Metti(stato_);
}

void Barra_Seduta::Crea_Lentezza() {
  lentezza_ = Chiama(QStringLiteral("cmbLentezza"), new QComboBox);
  for (const Lentezza& riga : lentezze) lentezza_->addItem(Q(riga.Nome));
  lentezza_->setToolTip(Q("Quanto va veloce il tempo, per la CPU e per l'impianto"));
  lentezza_->setAccessibleName(lentezza_->toolTip());
  connect(lentezza_, &QComboBox::currentIndexChanged, this, [this](int n) { Cambia_Lentezza(n); });
  riga_->Metti(lentezza_);
}

// ---- slowly -------------------------------------------------------------------------------------

void Barra_Seduta::Cambia_Lentezza(int scelta) {
  const Lentezza& riga = lentezze[static_cast<std::size_t>(scelta)];
  corsa_.Velocita(riga.Velocita);
  corsa_.Batti(riga.A_Battito);
}

void Barra_Seduta::Pausa_O_Continua() {
  if (registratore_.Nel_Passato()) return;
  if (!corsa_.In_Pausa()) {
    perche_ = Q("Pausa");
    show();
    return corsa_.Pausa();
  }
  perche_.clear();
  // The run may go on for hours, so it begins in an event of its own.
  QMetaObject::invokeMethod(
      this, [this] { corsa_.Continua(); }, Qt::QueuedConnection);
}

// ---- back ---------------------------------------------------------------------------------------

/// Only a CPU that stands has a past to look at.
bool Barra_Seduta::Ferma_Il_Tempo() {
  show();
  if (plc_.In_Giro() == Giro::Nessuno) return true;
  corsa_.Pausa();
  perche_ = Q("Pausa");
  return false;
}

void Barra_Seduta::Indietro(const std::function<bool()>& passo) {
  // A running program is halted first, and then goes back.
  if (!Ferma_Il_Tempo()) {
    QTimer::singleShot(0, this, [this, passo] {
      if (plc_.In_Giro() == Giro::Nessuno) Indietro(passo);
    });
    return;
  }
  corsa_.Pausa();
  da_quando_.start();
  annullato_ = false;
  bool mosso = true;
  Con_Riguardo([&] { mosso = passo(); });
  progresso_.reset();
  perche_ = mosso ? QString() : Q("Più in là non si va");
  Specchia();
}

/// A session from a file can end with its CPU, or be one that this program plays otherwise: then
/// back to its beginning. Where not even that can be played, there is no past to look at.
void Barra_Seduta::Con_Riguardo(const std::function<void()>& passo) {
  std::string perche;
  try {
    return passo();
  } catch (const Giornale_Discorde& discorde) {
    perche = std::string("La seduta non si può rifare fin lì: ") + discorde.what() + ".";
  } catch (const Fatale& fatale) {
    perche = "La seduta finisce prima, con la CPU:\n" + Rapporto_Fatale(fatale, plc_);
  }
  progresso_.reset();
  try {
    registratore_.Vai(registratore_.Primo());
  } catch (const Giornale_Discorde&) {
    registratore_.Riprendi_Da_Qui();
  }
  Avvisa(Q(perche));
}

void Barra_Seduta::Torna_A(std::int64_t ms) {
  Indietro([this, ms] { return registratore_.Vai_A_Vista(ms); });
}

/// The window makes room at once. With the width of a new widget the bar would have more lines, and
/// the panel would grow by those.
void Barra_Seduta::setVisible(bool visibile) {
  if (visibile && isHidden()) {
    if (Prima_Di_Crescere) Prima_Di_Crescere();
    const QMargins bordi = layout()->contentsMargins();
    resize(window()->width(), height());
    riga_->resize(width() - bordi.left() - bordi.right(), riga_->height());
  }
  QToolBar::setVisible(visibile);
}

/// The bar makes the panel higher: what it needs must not be below the screen.
void Barra_Seduta::showEvent(QShowEvent* evento) {
  QToolBar::showEvent(evento);
  QTimer::singleShot(0, this, [this] {
    if (!pannello_.isVisible() || pannello_.isMaximized() || pannello_.screen() == nullptr) return;
    if (Cresciuta) Cresciuta();
    const QRect schermo = pannello_.screen()->availableGeometry();
    const QRect cornice = pannello_.frameGeometry();
    const int fuori = cornice.bottom() - schermo.bottom();
    if (fuori > 0) pannello_.move(cornice.left(), std::max(schermo.top(), cornice.top() - fuori));
  });
}

void Barra_Seduta::Al_Presente() {
  if (!registratore_.Nel_Passato()) return;
  Con_Riguardo([this] { registratore_.Torna_Al_Presente(); });
  // One that has no end goes on from where it stands.
  if (registratore_.Nel_Passato()) registratore_.Riprendi_Da_Qui();
  progresso_.reset();
  perche_.clear();
  Specchia();
}

void Barra_Seduta::Riprendi() {
  if (!registratore_.Nel_Passato()) return;
  registratore_.Riprendi_Da_Qui();
  perche_.clear();
  fermate_.Ricomincia();
  Specchia();
  QMetaObject::invokeMethod(
      this, [this] { corsa_.Continua(); }, Qt::QueuedConnection);
}

bool Barra_Seduta::Progresso(double parte) {
  constexpr int attesa = 400;  // ms before it is worth a window
  if (!da_quando_.isValid()) da_quando_.start();
  if (da_quando_.elapsed() < attesa) return true;
  if (!progresso_) {
    auto* finestra = new QProgressDialog(Q("Rifaccio la seduta fino a quel momento..."),
                                         Q("Annulla"), 0, 1000, &pannello_);
    finestra->setWindowModality(Qt::ApplicationModal);
    finestra->setMinimumDuration(0);
    progresso_.reset(finestra);
  }
  auto* finestra = static_cast<QProgressDialog*>(progresso_.get());
  finestra->setValue(static_cast<int>(parte * 999));
  return !finestra->wasCanceled();
}

/// All windows show what the CPU is now.
void Barra_Seduta::Specchia() {
  da_quando_.invalidate();
  Specchia_Salto(pannello_, plc_, registratore_);
  if (registratore_.Nel_Passato()) pannello_.Controlli().listSrc->Scegli(plc_.PC);
  if (Finestra_Impianto* finestra = Impianto ? Impianto() : nullptr) finestra->Specchia();
  if (Specchia_Altre) Specchia_Altre();
  Mostra_Stato();
}

void Barra_Seduta::Mostra_Stato() {
  const bool passato = registratore_.Nel_Passato();
  QString testo = perche_;
  if (passato) {
    const double secondi =
        static_cast<double>(plc_.Tempo.Adesso() - registratore_.Presente().Ms) / 1000;
    testo = Q("PASSATO ") + QString::number(secondi, 'f', 3).replace('.', ',') + Q(" s, riga ") +
            QString::number(plc_.PC) + (perche_.isEmpty() ? QString() : Q(" · ") + perche_);
  } else if (!corsa_.In_Pausa()) {
    testo.clear();
    perche_.clear();
  }
  if (stato_->text() != testo) stato_->setText(testo);
  const colori::Coppia& tinta = passato ? colori::Pila : colori::In_Stop;
  Tingi(*stato_, testo.isEmpty() ? nullptr : &tinta);
  const QString pausa = corsa_.In_Pausa() && !passato ? Q("&Continua") : Q("&Pausa");
  if (pausa_->text() != pausa) pausa_->setText(pausa);
  pausa_->setEnabled(!passato);
  al_cursore_->setEnabled(Cursore_Del_Diagramma && Cursore_Del_Diagramma());
  for (QAction* azione : solo_nel_passato_) azione->setEnabled(passato);
}

}  // namespace tavorno
