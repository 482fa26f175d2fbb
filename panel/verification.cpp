// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/verification.h"

#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "awl/file_io.h"
#include "grading/script_files.h"
#include "grading/ui/film_window.h"
#include "grading/ui/verification_window.h"
#include "panel/program_list.h"
#include "panel/session_mirror.h"
#include "panel/window_places.h"
#include "plants/host/host_window.h"
#include "widgets/message_box.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

void Porta_Avanti(QWidget& finestra) {
  finestra.show();
  finestra.raise();
  finestra.activateWindow();
}

}  // namespace

Sala_Verifica::Sala_Verifica(FrmPLC& pannello, Plc& plc, Progetto& progetto,
                             Registratore& registratore, Guida_Corsa& corsa, Finestre& finestre,
                             QString programma, QString guida)
    : pannello_(pannello),
      plc_(plc),
      progetto_(progetto),
      registratore_(registratore),
      corsa_(corsa),
      finestre_(finestre),
      programma_(std::move(programma)),
      guida_(std::move(guida)) {
  Avvisa = [this](const QString& testo) {
    Mostra_Avviso(verifica_, {"Attenzione!", Utf8(testo), Icona::Critica, Tasti::Ok, {}});
  };
  finestre_.Verifica = [this] { Mostra(); };
}

Sala_Verifica::~Sala_Verifica() {
  delete film_;
  delete verifica_;
}

FrmVerifica* Sala_Verifica::Finestra() const {
  return verifica_;
}

FrmGuarda* Sala_Verifica::Film() const {
  return film_;
}

void Sala_Verifica::Mostra() {
  Finestra_Impianto* impianto = finestre_.Impianto();
  if (impianto == nullptr) return;
  if (film_) return Porta_Avanti(*film_);
  if (verifica_) {
    Porta_Avanti(*verifica_);
    return verifica_->Avvia();
  }
  const Esercizio& esercizio = impianto->Fili().Tabella();
  Legami_Verifica legami;
  legami.Programma = [this](std::string& perche) { return Programma(perche); };
  legami.Script =
      Testo_Percorso(File_Esercizio(Percorso_Disco(Utf8(programma_)), esercizio.Indice));
  legami.Guarda = [this](const Caso_Verificato& caso) { Guarda(caso); };
  legami.Mostra_Aiuto = [this] { finestre_.Mostra_Aiuto(guida_ + "Verifica.htm"); };
  verifica_ = new FrmVerifica(esercizio, std::move(legami));
  verifica_->setAttribute(Qt::WA_DeleteOnClose);
  verifica_->addActions(pannello_.Comandi_Ovunque());
  if (pannello_.Pausa != nullptr) verifica_->addAction(pannello_.Pausa);
  connect(impianto, &QObject::destroyed, verifica_, &QWidget::close);
  const QRect schermo = pannello_.screen()->availableGeometry();
  verifica_->resize(verifica_->size().boundedTo(schermo.size() - QSize(40, 60)));
  verifica_->move(schermo.center() - verifica_->rect().center());
  Porta_Avanti(*verifica_);
}

std::optional<Stesura> Sala_Verifica::Programma(std::string& perche) const {
  if (progetto_.Carica_CPU == 0) {
    perche = "Nella CPU non c'è un programma: prima aprirne uno e caricarlo.";
    return {};
  }
  return Copia_Programma(plc_);
}

// ---- watching -----------------------------------------------------------------------------------

void Sala_Verifica::Guarda(const Caso_Verificato& caso) {
  if (film_) return Porta_Avanti(*film_);
  da_guardare_ = caso;
  andava_ = plc_.In_Giro() != Giro::Nessuno;
  if (andava_) corsa_.Pausa();
  Proietta();
}

/// As soon as the run loop has been left.
void Sala_Verifica::Proietta() {
  if (plc_.In_Giro() != Giro::Nessuno) {
    constexpr int fra_poco = 5;  // ms
    return QTimer::singleShot(fra_poco, this, [this] { Proietta(); });
  }
  if (!da_guardare_ || finestre_.Impianto() == nullptr) return;
  const Caso_Verificato caso = std::move(*da_guardare_);
  da_guardare_.reset();
  try {
    registratore_.Proietta(*caso.Film);
  } catch (const Giornale_Discorde& discorde) {
    Specchia(true);
    Avvisa(Q(std::string("Il caso non si può rifare: ") + discorde.what() + "."));
    return Torna();
  }
  Specchia(true);
  film_ = new FrmGuarda(registratore_, plc_, caso.Esito);
  film_->setAttribute(Qt::WA_DeleteOnClose);
  film_->Specchia = [this](bool passo) { Specchia(passo); };
  film_->Chiusa = [this] { Torna(); };
  film_->Mostra_Aiuto = [this] { finestre_.Mostra_Aiuto(guida_ + "Verifica.htm#guarda"); };
  if (verifica_) verifica_->hide();
  Metti_Film();
  Porta_Avanti(*film_);
}

/// In a corner that leaves the panel free: it will have the same frame.
void Sala_Verifica::Metti_Film() {
  const QRect fuori = pannello_.frameGeometry();
  const QSize bordi = fuori.size() - pannello_.geometry().size();
  const bool pannello_a_se = pannello_.isWindow() && pannello_.isVisible();
  film_->adjustSize();
  const auto posto = [&](const QSize& voluta) {
    return Posto_Film(pannello_.screen()->availableGeometry(), pannello_a_se ? fuori : QRect(),
                      {voluta + bordi, film_->minimumSizeHint() + bordi});
  };
  // The text of the finding takes more lines where the window is narrower.
  QSize misura = posto(film_->size()).size() - bordi;
  misura.setHeight(std::max(misura.height(), film_->heightForWidth(misura.width())));
  const QRect dove = posto(misura);
  film_->resize(dove.size() - bordi);
  film_->move(dove.topLeft());
}

/// The present is back.
void Sala_Verifica::Torna() {
  Specchia(true);
  if (std::exchange(andava_, false)) {
    // The run may go on for hours, so it begins in an event of its own.
    QMetaObject::invokeMethod(
        this, [this] { corsa_.Continua(); }, Qt::QueuedConnection);
  }
  if (verifica_ && finestre_.Impianto() != nullptr) Porta_Avanti(*verifica_);
}

/// All windows show what the CPU is now.
void Sala_Verifica::Specchia(bool passo) {
  if (passo) {
    Specchia_Salto(pannello_, plc_, registratore_);
    pannello_.Controlli().listSrc->Scegli(registratore_.Nel_Passato() ? plc_.PC
                                                                      : plc_.Lista_Scelta);
  } else {
    pannello_.Aggiorna();
  }
  if (Finestra_Impianto* finestra = finestre_.Impianto()) finestra->Specchia();
}

}  // namespace tavorno
