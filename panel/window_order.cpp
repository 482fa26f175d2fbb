// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/window_order.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <initializer_list>

#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"

namespace tavorno {

namespace {

constexpr int periodo = 25;       // ms between two looks at the frames
constexpr int giri_massimi = 40;  // looks at most
constexpr int giri_fermi = 5;     // looks without a change, after which all is settled

bool Libera(const QWidget& finestra) {
  return finestra.isWindow() && finestra.isVisible() && !finestra.isMaximized() &&
         !finestra.isFullScreen() && !finestra.isMinimized();
}

/// Told to appear, and not yet on the screen.
bool Attesa(const QWidget* finestra) {
  return Libera(*finestra) && !finestra->windowHandle()->isExposed();
}

/// How thick the frame is, as far as it is known.
QMargins Cornice(const QWidget& finestra) {
  const QRect fuori = finestra.frameGeometry();
  const QRect dentro = finestra.geometry();
  return {dentro.left() - fuori.left(), dentro.top() - fuori.top(), fuori.right() - dentro.right(),
          fuori.bottom() - dentro.bottom()};
}

}  // namespace

Ordine_Finestre::Ordine_Finestre(QMainWindow& pannello) : pannello_(pannello) {
  Sorveglia(pannello);
  assesta_.setInterval(periodo);
  assesta_.callOnTimeout(this, &Ordine_Finestre::Assesta);
}

void Ordine_Finestre::Sorveglia(QWidget& finestra) {
  sorvegliate_.insert(&finestra);
  if (finestra.isVisible()) Appena_Mostrata(finestra);
  finestra.installEventFilter(this);
  connect(&finestra, &QObject::destroyed, this, [this, quale = &finestra] {
    dati_.erase(quale);
    nuove_.erase(quale);
    tornate_.erase(quale);
    sorvegliate_.erase(quale);
    a_mano_.erase(quale);
    Posti.Sparita(*quale);
  });
}

bool Ordine_Finestre::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Show && !evento->spontaneous()) {
    Appena_Mostrata(static_cast<QWidget&>(*oggetto));
  } else if (evento->type() == QEvent::Close) {
    Ricorda(static_cast<QWidget&>(*oggetto));
  }
  return false;
}

bool Ordine_Finestre::D_Esercizio(const QWidget& finestra) const {
  return dynamic_cast<const FrmStatiL*>(&finestra) != nullptr ||
         dynamic_cast<const Finestra_Impianto*>(&finestra) != nullptr;
}

/// The windows of an exercise are remembered together with it.
QString Ordine_Finestre::Nell_Esercizio(const QWidget& finestra) const {
  const QString chi = impianto_.isNull() ? QStringLiteral("nessuno") : impianto_->objectName();
  return chi + '/' + finestra.objectName();
}

void Ordine_Finestre::Ricorda(QWidget& finestra) {
  if (assesta_.isActive() || !sorvegliate_.contains(&finestra)) return;
  if (D_Esercizio(finestra)) return Ricorda_Esercizio();
  // Where it stood before it gave way to an exercise.
  const bool cede = &finestra == &pannello_ && !prima_.isNull();
  if (cede) Ricorda_Esercizio();
  if (cede || Libera(finestra))
    Posti.Tieni(finestra, finestra.objectName(), cede ? prima_ : finestra.frameGeometry());
}

void Ordine_Finestre::Ricorda_Esercizio() {
  for (QWidget* finestra : std::initializer_list<QWidget*>{&pannello_, impianto_, stati_}) {
    if (finestra == nullptr || !Libera(*finestra)) continue;
    if (A_Mano(*finestra)) Posti.Tieni(Nell_Esercizio(*finestra), finestra->frameGeometry());
  }
}

void Ordine_Finestre::Ricorda_Aperte() {
  for (QWidget* finestra : sorvegliate_) Ricorda(*finestra);
}

void Ordine_Finestre::Appena_Mostrata(QWidget& finestra) {
  // Nobody can have moved what lies in the workbench.
  const bool libere = std::ranges::all_of(
      dati_, [](const auto& una) { return una.first->isWindow() && una.first->isVisible(); });
  if (libere && !assesta_.isActive()) Rispetta_Mani();
  if (!D_Esercizio(finestra) && finestra.isWindow()) {
    if (const auto suo = Posti.Di(finestra.objectName())) {
      tornate_[&finestra] = *suo;
      Porta(finestra, *suo);
    }
  }
  nuove_.insert(&finestra);
  giri_ = quiete_ = 0;
  assesta_.start();
}

QRect Ordine_Finestre::Schermo() const {
  return pannello_.screen()->availableGeometry();
}

/// Until a window has appeared nobody knows its frame; it will be as thick as the panel's.
QMargins Ordine_Finestre::Bordi(const QWidget& finestra) const {
  const QMargins suoi = Cornice(finestra);
  return suoi.isNull() ? Cornice(pannello_) : suoi;
}

Misura_Finestra Ordine_Finestre::Misura(const QWidget& finestra, const QSize& voluta) const {
  const QMargins bordi = Bordi(finestra);
  return {voluta.grownBy(bordi), finestra.minimumSizeHint().grownBy(bordi)};
}

bool Ordine_Finestre::A_Mano(QWidget& finestra) const {
  if (!Libera(finestra) || a_mano_.contains(&finestra)) return true;
  const auto data = dati_.find(&finestra);
  if (data == dati_.end() || assesta_.isActive()) return false;
  QRect data_prima = data->second;
  const QRect ora = finestra.frameGeometry();
  if (&finestra == impianto_) data_prima.setHeight(ora.height());  // its table moves its lower edge
  return !Vicini(data_prima, ora);
}

void Ordine_Finestre::Metti(QWidget& finestra, const QRect& cornice, bool tutte) {
  if (tutte && (finestra.isMaximized() || finestra.isFullScreen())) finestra.showNormal();
  if (!tutte && A_Mano(finestra)) return;
  Porta(finestra, cornice);
  dati_[&finestra] = cornice;
}

void Ordine_Finestre::Porta(QWidget& finestra, const QRect& cornice) const {
  // A late answer of the window manager may have put the window elsewhere than its widget believes.
  // Asked for half of it, such a window stays there with the other half, and what the widget
  // believes already is never asked for: so all at once, with a size that changes.
  const QRect dentro = cornice.marginsRemoved(Bordi(finestra));
  if (finestra.size() == dentro.size()) finestra.setGeometry(dentro.adjusted(0, 0, 1, 0));
  finestra.setGeometry(dentro);
}

void Ordine_Finestre::Sta_Per_Aprire() {
  if (prima_.isNull()) prima_ = pannello_.frameGeometry();
}

void Ordine_Finestre::Aperte(Finestra_Impianto* impianto, FrmStatiL& stati) {
  stati_ = &stati;
  dati_.clear();
  a_mano_.clear();
  if (impianto != nullptr) {
    impianto_ = impianto;
    impianto->Tabella_Mossa = [this] { Disponi(false); };
  }
  Disponi(false);
  for (QWidget* finestra : std::initializer_list<QWidget*>{&pannello_, impianto_, stati_}) {
    if (finestra == nullptr) continue;
    const auto suo = Posti.Di(Nell_Esercizio(*finestra));
    if (!suo) continue;
    dati_.erase(finestra);
    a_mano_.insert(finestra);
    tornate_[finestra] = *suo;
    nuove_.insert(finestra);
    Porta(*finestra, *suo);
  }
}

void Ordine_Finestre::Chiuse() {
  const QRect com_era = prima_;
  const bool ceduto = dati_.contains(&pannello_) && !A_Mano(pannello_);
  impianto_ = nullptr;
  stati_ = nullptr;
  prima_ = {};
  dati_.clear();
  a_mano_.clear();
  if (ceduto && !com_era.isNull()) Metti(pannello_, Dentro(Schermo(), com_era), false);
  dati_.clear();
}

void Ordine_Finestre::Sta_Per_Crescere() {
  if (Libera(pannello_)) Rispetta_Mani();  // at a workbench that was done when it came
}

void Ordine_Finestre::Cresciuto() {
  if (stati_.isNull() || !stati_->isWindow() || a_mano_.contains(&pannello_) || !Libera(pannello_))
    return;
  dati_[&pannello_] = pannello_.frameGeometry();
  Disponi(false);
}

/// Nothing outside the screen, nothing under another window, the plant as large as told.
bool Ordine_Finestre::Tutto_A_Posto(const QRect& schermo) const {
  const QRect panel = pannello_.frameGeometry();
  const QRect stati = stati_->frameGeometry();
  const bool due = schermo.contains(panel) && schermo.contains(stati) && !panel.intersects(stati);
  if (!due || impianto_.isNull()) return due;
  const QRect impianto = impianto_->frameGeometry();
  return schermo.contains(impianto) && !impianto.intersects(panel) && !impianto.intersects(stati) &&
         impianto_->height() >= impianto_->Voluta().height() &&
         impianto_->width() >= impianto_->Voluta().width();
}

void Ordine_Finestre::Rispetta_Mani() {
  for (const auto& [finestra, cornice] : dati_) {
    if (A_Mano(*finestra)) a_mano_.insert(finestra);
  }
  for (QWidget* finestra : a_mano_) dati_.erase(finestra);
}

void Ordine_Finestre::Disponi(bool tutte) {
  if (stati_ && !stati_->isWindow()) return;  // docked: there is nothing to place
  if (tutte)
    a_mano_.clear();
  else
    Rispetta_Mani();
  giri_ = quiete_ = 0;
  assesta_.start();
  bordi_ = Bordi(pannello_);
  const QRect schermo = Schermo();
  if (tutte) {
    dati_.clear();
    nuove_.clear();
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (!finestra->isVisible() || !sorvegliate_.contains(finestra)) continue;
      nuove_.insert(finestra);
      Posti.Dimentica(finestra->objectName());
      Posti.Dimentica(Nell_Esercizio(*finestra));
    }
    tornate_.clear();
    for (QWidget* finestra : nuove_)  // each on the screen where it is
      tornate_[finestra] =
          Dentro(finestra->screen()->availableGeometry(), finestra->frameGeometry());
  }
  if (stati_.isNull()) {
    if (!impianto_.isNull()) {
      const QRect voluta(impianto_->pos(), Misura(*impianto_, impianto_->Voluta()).Voluta);
      Metti(*impianto_, Dentro(schermo, voluta), tutte);
    }
    return;
  }
  if (!tutte && Tutto_A_Posto(schermo)) {
    for (auto& [finestra, cornice] : dati_) cornice = finestra->frameGeometry();
    return;
  }

  const QRect panel = pannello_.frameGeometry();
  const QSize panel_voluto = (prima_.isNull() ? panel.size() : prima_.size());
  const Misura_Finestra del_panel{panel_voluto,
                                  pannello_.minimumSizeHint().grownBy(Bordi(pannello_))};
  const Misura_Finestra di_stati = Misura(*stati_, stati_->sizeHint());
  Posti_Impianto posti;
  if (impianto_) {
    posti = Posti_Esercizio(schermo, Misura(*impianto_, impianto_->Voluta()), di_stati, del_panel,
                            panel);
    Metti(*impianto_, posti.Impianto, tutte);
  } else {
    const int ultimo =
        schermo.right() + 1 - std::max(di_stati.Voluta.width(), panel_voluto.width());
    posti = Posti_Colonna(
        schermo,
        {std::clamp(stati_->x(), schermo.left(), std::max(schermo.left(), ultimo)), schermo.top()},
        di_stati, del_panel);
  }
  stati_->Lascia_Il_Panel();
  Metti(*stati_, posti.Stati, tutte);
  Metti(pannello_, posti.Pannello, tutte);
}

/// Where a window appears that nobody has put anywhere: the desktop's choice, but on the screen of
/// the panel.
QRect Ordine_Finestre::Accanto_Al_Pannello(const QWidget& finestra) const {
  const QRect suo = finestra.screen()->availableGeometry();
  QRect cornice = finestra.frameGeometry();
  cornice.translate(Schermo().topLeft() - suo.topLeft());
  return Dentro(Schermo(), cornice);
}

/// A moment after the windows were placed: with the frames as they are, once they are known.
void Ordine_Finestre::Assesta() {
  // A desktop that is late has not shown them yet, and may take its time.
  if (std::ranges::any_of(sorvegliate_, Attesa)) return;
  ++giri_;
  if (bordi_ != Bordi(pannello_)) {
    const int giri = giri_;
    Disponi(false);
    giri_ = giri;
  }
  const bool detti = dati_.empty() && a_mano_.empty();
  if (stati_ && detti && !Tutto_A_Posto(Schermo())) Disponi(false);
  bool ferme = true;
  for (const QWidget* finestra :
       std::initializer_list<const QWidget*>{&pannello_, impianto_, stati_})
    ferme &= finestra == nullptr || !Libera(*finestra) || !Cornice(*finestra).isNull();
  const auto porta = [&](QWidget& finestra, const QRect& cornice) {
    if (!Libera(finestra) || finestra.frameGeometry() == cornice) return;
    Porta(finestra, cornice);
    ferme = false;
  };
  for (auto& [finestra, cornice] : dati_) porta(*finestra, cornice);
  for (QWidget* finestra : nuove_) {
    if (dati_.contains(finestra)) continue;
    const auto tornata = tornate_.find(finestra);
    if (tornata != tornate_.end())
      porta(*finestra, tornata->second);
    else
      porta(*finestra, Accanto_Al_Pannello(*finestra));
  }
  quiete_ = ferme ? quiete_ + 1 : 0;
  if (quiete_ < giri_fermi && giri_ < giri_massimi) return;
  assesta_.stop();
  for (QWidget* finestra : nuove_) {
    if (finestra->isWindow() && !dati_.contains(finestra)) Posti.Detto(*finestra);
  }
  nuove_.clear();
  tornate_.clear();
  for (auto& [finestra, cornice] : dati_) {
    if (finestra->isWindow()) cornice = finestra->frameGeometry();
  }
}

}  // namespace tavorno
