// SPDX-License-Identifier: GPL-3.0-or-later
// The hand of the user on a plant's picture.
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "plants/host/picture_widget.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int scatto_rotella = 120;  // of a wheel, in eighths of a degree

}  // namespace

/// The release of the mouse takes every tool tip away, so what a press has to say waits for it.
void Quadro::Avvisa(const QRect& posto, const QString& testo) {
  if (tasto_giu_)
    da_dire_ = {posto, testo};
  else
    QToolTip::showText(mapToGlobal(posto.bottomLeft()), testo, this, posto);
}

bool Quadro::Si_Opera(const Figura& figura) const {
  return figura.Visible() &&
         (figura.Operabile() || impianto_.Trova_Regolatore(figura.Nome) != nullptr);
}

bool Quadro::Tocca(const Vista& vista, const QPointF& punto) const {
  if (Posto(*vista.Di).contains(punto)) return true;
  const QRectF altro = disegni_.Tocco(vista.Gruppo_Ora);
  return QRectF(altro.topLeft() * Scala(), altro.size() * Scala())
      .translated(Origine())
      .contains(punto);
}

/// The tool tip, with the name of the device where it says only what to do.
QString Quadro::Detto(const Figura& figura) const {
  const QString nome = disegni_.Nome(Gruppo(figura));
  return nome.isEmpty() ? Q(figura.ToolTip()) : Q(figura.ToolTip()) + '\n' + nome;
}

template <class Quali>
Figura* Quadro::In_Cima(const QPointF& punto, Quali quali) const {
  for (auto vista = viste_.rbegin(); vista != viste_.rend(); ++vista) {
    if (quali(*vista->Di) && Tocca(*vista, punto)) return vista->Di;
  }
  return nullptr;
}

Figura* Quadro::Figura_A(const QPointF& punto) const {
  return In_Cima(punto, [this](const Figura& figura) { return Si_Opera(figura); });
}

bool Quadro::Fai(Cosa che, const Figura& figura, double valore) {
  const Atto atto{.Che = che, .Valore = valore, .Testo = figura.Nome};
  if (Mano) return Mano(atto);
  switch (che) {
    case Cosa::Premi:
      return impianto_.Premi(figura.Nome);
    case Cosa::Rilascia:
      return impianto_.Rilascia(figura.Nome);
    case Cosa::Clic:
      return impianto_.Clic(figura.Nome);
    case Cosa::Doppio_Clic:
      return impianto_.Doppio_Clic(figura.Nome);
    default:
      return impianto_.Regola(figura.Nome, valore);
  }
}

/// False for a figure that is no up/down.
bool Quadro::Gira(const Figura& figura, int passi) {
  const Regolatore* regolatore = impianto_.Trova_Regolatore(figura.Nome);
  if (regolatore == nullptr) return false;
  const double prima = regolatore->Valore;
  Fai(Cosa::Regola, figura, prima + passi * regolatore->Passo);
  if (regolatore->Valore != prima) return true;
  const QString ostacolo = Ostacolo ? Ostacolo(figura) : QString();
  Spiega(figura, !ostacolo.isEmpty() ? ostacolo
                 : passi > 0         ? QStringLiteral("è già al massimo")
                                     : QStringLiteral("è già al minimo"));
  return true;
}

/// After a press: what came of it, where that cannot be seen.
void Quadro::Rispondi(const Figura& figura) {
  const QString ostacolo = Ostacolo ? Ostacolo(figura) : QString();
  if (!senza_effetto_) {
    // The plant has felt it, and what the first click of two was told is no longer so.
    if (ostacolo.isEmpty())
      QToolTip::hideText();
    else
      Avvisa(Posto(figura).toAlignedRect(), ostacolo.left(1).toUpper() + ostacolo.mid(1));
    return;
  }
  const bool doppio = figura.Doppio_Clic && !figura.Clic && !figura.Premi;
  const QString rifiuto = disegni_.Rifiuto(Gruppo(figura));
  Spiega(figura, !ostacolo.isEmpty()  ? ostacolo
                 : !rifiuto.isEmpty() ? rifiuto
                 : doppio             ? QStringLiteral("serve un doppio clic (o Invio)")
                                      : QString());
}

void Quadro::Spiega(const Figura& figura, const QString& perche) {
  if (figura.ToolTip().empty()) return;
  Avvisa(Posto(figura).toAlignedRect(), "Ora non ha effetto: " + Detto(figura) +
                                            (perche.isEmpty() ? QString() : "\nPerché: " + perche));
}

/// It has sunk or come up.
void Quadro::Ridisegna(const Figura& figura) {
  const Vista* vista = Vista_Di(Q(figura.Nome));
  const QRect posto = (vista->Ultimo | Posto(figura)).toAlignedRect().adjusted(-4, -4, 4, 4);
  Rifai({posto});
  update(posto);
}

void Quadro::Premi(Figura*& mano, Figura& figura) {
  Rilascia(mano, false);
  mano = &figura;
  Avanza(0);  // what changed before has been noticed
  senza_effetto_ = true;
  Fai(Cosa::Premi, figura);
  Ridisegna(figura);
}

void Quadro::Rilascia(Figura*& mano, bool sopra) {
  if (mano == nullptr) return;
  const Figura& figura = *std::exchange(mano, nullptr);
  Ridisegna(figura);
  Fai(Cosa::Rilascia, figura);
  if (!sopra) return;
  Fai(Cosa::Clic, figura);
  Rispondi(figura);
}

void Quadro::Passa_Sopra(Figura* figura) {
  if (figura == sopra_) return;
  for (const Figura* una : {std::exchange(sopra_, figura), figura}) {
    if (una != nullptr) update(Posto_Mostrato(*una).toAlignedRect().adjusted(-5, -5, 5, 5));
  }
  setCursor(figura != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void Quadro::leaveEvent(QEvent* evento) {
  Passa_Sopra(nullptr);
  Punta(nullptr);
  QWidget::leaveEvent(evento);
}

// ---- mouse --------------------------------------------------------------------------------------

void Quadro::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return;
  tasto_giu_ = true;
  da_dire_.reset();
  Figura* figura = Figura_A(evento->position());
  if (figura == nullptr) return;
  Metti_Fuoco(*figura, false);
  // An up/down has its two buttons one above the other.
  if (Gira(*figura, evento->position().y() < Posto(*figura).center().y() ? 1 : -1)) return;
  Premi(mouse_, *figura);
}

void Quadro::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return;
  tasto_giu_ = false;
  Rilascia(mouse_, Figura_A(evento->position()) == mouse_);
  if (const auto detto = std::exchange(da_dire_, std::nullopt)) Avvisa(detto->first, detto->second);
}

void Quadro::mouseDoubleClickEvent(QMouseEvent* evento) {
  Figura* figura = Figura_A(evento->position());
  tasto_giu_ = true;
  // Two quick presses of a push button are two presses.
  if (figura == nullptr || !Forza(*figura)) mousePressEvent(evento);
}

/// False when it does not listen to double clicks.
bool Quadro::Forza(const Figura& figura) {
  if (!figura.Doppio_Clic) return false;
  Avanza(0);
  senza_effetto_ = true;
  Fai(Cosa::Doppio_Clic, figura);
  Rispondi(figura);
  return true;
}

void Quadro::mouseMoveEvent(QMouseEvent* evento) {
  Passa_Sopra(Figura_A(evento->position()));
  Punta(In_Cima(evento->position(), [this](const Figura& figura) {
    return figura.Visible() && !Morsetti_Di(figura).isEmpty();
  }));
}

void Quadro::wheelEvent(QWheelEvent* evento) {
  const Figura* figura = Figura_A(evento->position());
  const int passi = evento->angleDelta().y() / scatto_rotella;
  if (figura == nullptr || passi == 0 || !Gira(*figura, passi)) evento->ignore();
}

bool Quadro::event(QEvent* evento) {
  if (evento->type() == QEvent::ApplicationPaletteChange) tela_ = QPixmap();  // other shades
  if (evento->type() == QEvent::WindowActivate) Senti_Scrivania();  // which may have been changed
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  auto* aiuto = static_cast<QHelpEvent*>(evento);
  // What cannot be operated, a lamp or a limit switch, has its name as well.
  const Figura* figura = In_Cima(
      aiuto->pos(), [](const Figura& una) { return una.Visible() && !una.ToolTip().empty(); });
  if (figura == nullptr)
    QToolTip::hideText();
  else
    QToolTip::showText(aiuto->globalPos(), Detto(*figura), this, Posto(*figura).toAlignedRect());
  return true;
}

// ---- keys ---------------------------------------------------------------------------------------

std::vector<Quadro::Vista*> Quadro::Operabili() {
  std::vector<Vista*> operabili;
  for (Vista& vista : viste_) {
    if (Si_Opera(*vista.Di)) operabili.push_back(&vista);
  }
  return operabili;
}

void Quadro::Metti_Fuoco(const Figura& figura, bool in_vista) {
  const QString nome = Q(figura.Nome);
  if (nome == fuoco_ && in_vista == fuoco_in_vista_) return;
  fuoco_ = nome;
  fuoco_in_vista_ = in_vista;
  if (in_vista) Punta(&figura);
  if (hasFocus()) Annuncia_Fuoco(*this, Pezzo_A_Fuoco());
  update();
}

Quadro::Vista* Quadro::A_Fuoco() {
  for (Vista* vista : Operabili()) {
    if (Q(vista->Di->Nome) == fuoco_) return vista;
  }
  return nullptr;
}

bool Quadro::focusNextPrevChild(bool avanti) {
  const std::vector<Vista*> operabili = Operabili();
  const auto ora = std::find(operabili.begin(), operabili.end(), A_Fuoco());
  auto quale = ora == operabili.end() ? -1 : static_cast<int>(ora - operabili.begin());
  if (quale < 0)
    quale = avanti ? 0 : static_cast<int>(operabili.size()) - 1;
  else
    quale += avanti ? 1 : -1;
  if (quale < 0 || quale >= static_cast<int>(operabili.size())) {
    fuoco_.clear();
    update();
    return QWidget::focusNextPrevChild(avanti);
  }
  Metti_Fuoco(*operabili[static_cast<std::size_t>(quale)]->Di, true);
  return true;
}

void Quadro::keyPressEvent(QKeyEvent* evento) {
  const Vista* vista = A_Fuoco();
  if (vista == nullptr) return QWidget::keyPressEvent(evento);
  Metti_Fuoco(*vista->Di, true);
  switch (evento->key()) {
    case Qt::Key_Space:
      if (!evento->isAutoRepeat()) Premi(spazio_, *vista->Di);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Forza(*vista->Di);
      return;
    case Qt::Key_Up:
      Gira(*vista->Di, 1);
      return;
    case Qt::Key_Down:
      Gira(*vista->Di, -1);
      return;
    default:
      QWidget::keyPressEvent(evento);
  }
}

void Quadro::keyReleaseEvent(QKeyEvent* evento) {
  if (evento->key() != Qt::Key_Space)
    QWidget::keyReleaseEvent(evento);
  else if (!evento->isAutoRepeat())
    Rilascia(spazio_, true);
}

void Quadro::focusOutEvent(QFocusEvent* evento) {
  // Nobody can let go of a button in a window that has no keyboard.
  if (evento->reason() != Qt::MouseFocusReason) {
    Rilascia(mouse_, false);
    Rilascia(spazio_, false);
  }
  update();
  QWidget::focusOutEvent(evento);
}

}  // namespace tavorno
