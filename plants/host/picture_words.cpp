// SPDX-License-Identifier: GPL-3.0-or-later
// A plant's picture for those who hear it.
#include <QAccessibleActionInterface>
#include <algorithm>

#include "plants/host/picture_widget.h"
#include "widgets/text.h"

namespace tavorno {

/// Pipes, wires and frames are for the eyes.
void Quadro::Scegli_Letti() {
  for (std::size_t i = 0; i < viste_.size(); ++i) {
    const Figura& figura = *viste_[i].Di;
    if (figura.Operabile() || impianto_.Trova_Regolatore(figura.Nome) != nullptr ||
        !figura.ToolTip().empty() || !viste_[i].Morsetti.isEmpty() || !figura.Caption().empty())
      letti_.push_back(i);
  }
}

namespace {

/// A contactor can be held against its output, by hand or by a fault: its drawing tells the truth.
QString Posizione_Detta(const Figura& figura) {
  if (figura.Picture() == "imgKMON") return QStringLiteral("eccitato");
  return figura.Picture() == "imgKMOF" ? QStringLiteral("a riposo") : QString();
}

}  // namespace

/// "eccitato, I0.2 a 1, Q0.0 a 0", and what is written on it.
QString Quadro::Stato_Detto(const Figura& figura) const {
  QStringList stati;
  if (const QString posizione = Posizione_Detta(figura); !posizione.isEmpty()) stati << posizione;
  for (const QString& morsetto : Morsetti_Di(figura)) {
    const bool uscita = morsetto.startsWith('Q');
    if (guasti_.contains(morsetto)) stati << QStringLiteral("filo guasto");
    if (morsetto.startsWith('A') || morsetto.size() != 4) continue;
    const auto posto =
        static_cast<std::size_t>((morsetto[1].digitValue() * 8) + morsetto[3].digitValue());
    const std::string& bit = uscita ? impianto_.Stato_Q() : impianto_.Stato_I();
    if (posto < bit.size()) stati << QStringLiteral("%1 a %2").arg(morsetto).arg(QChar(bit[posto]));
  }
  if (!figura.Caption().empty()) stati << Q(figura.Caption());
  return stati.join(QStringLiteral(", "));
}

Letto Quadro::Leggi(int pezzo) const {
  if (pezzo == Tutto) {
    Letto tutto{.Nome = QStringLiteral("Figura dell'impianto"),
                .Aiuto = QStringLiteral("Tab va da un comando all'altro, Spazio lo preme"),
                .Ruolo = QAccessible::Canvas};
    return tutto;
  }
  const Figura& figura = Figura_Letta(pezzo);
  const QString stato = Stato_Detto(figura);
  QString nome = Detto(figura).simplified();
  if (nome.isEmpty()) nome = Morsetti_Di(figura).join(' ');
  if (nome.isEmpty()) nome = Q(figura.Caption());
  Letto letto{.Nome = nome, .Aiuto = stato, .Posto = Posto(figura).toAlignedRect()};
  letto.Stato.invisible = !figura.Visible();
  if (impianto_.Trova_Regolatore(figura.Nome) != nullptr) {
    letto.Ruolo = QAccessible::SpinBox;
  } else if (figura.Operabile()) {
    letto.Ruolo = QAccessible::Button;
    letto.Azione = QAccessibleActionInterface::pressAction();
    letto.Stato.pressed = &figura == mouse_ || &figura == spazio_;
  } else if (!stato.isEmpty()) {
    // Of what cannot be operated the state is what one wants to hear.
    letto.Nome += QStringLiteral(": ") + stato;
    letto.Aiuto.clear();
  }
  if (Si_Opera(figura)) {
    letto.Stato.focusable = true;
    letto.Stato.focused = hasFocus() && Q(figura.Nome) == fuoco_;
  }
  return letto;
}

void Quadro::Annuncia_Aspetto(const Vista& vista) {
  if (!QAccessible::isActive()) return;
  const auto quale = std::ranges::find(letti_, static_cast<std::size_t>(&vista - viste_.data()));
  if (quale != letti_.end()) annunci_.Cambiato(static_cast<int>(quale - letti_.begin()));
}

int Quadro::Pezzo_A_Fuoco() const {
  for (int i = 0; i < Pezzi(); ++i)
    if (!fuoco_.isEmpty() && Q(Figura_Letta(i).Nome) == fuoco_) return i;
  return Tutto;
}

std::optional<Numero_Letto> Quadro::Leggi_Numero(int pezzo) const {
  if (pezzo == Tutto) return {};
  const Regolatore* regolatore = impianto_.Trova_Regolatore(Figura_Letta(pezzo).Nome);
  if (regolatore == nullptr) return {};
  return Numero_Letto{.Valore = regolatore->Valore,
                      .Minimo = regolatore->Minimo,
                      .Massimo = regolatore->Massimo,
                      .Passo = regolatore->Passo};
}

void Quadro::Metti_Numero(int pezzo, double valore) {
  if (pezzo != Tutto) Fai(Cosa::Regola, Figura_Letta(pezzo), valore);
}

/// Held as long as a quick hand would hold it, so that a scan sees it.
void Quadro::Esegui(int pezzo) {
  constexpr int durata = 200;  // ms
  if (pezzo == Tutto || !Si_Opera(Figura_Letta(pezzo))) return;
  Metti_Fuoco(Figura_Letta(pezzo), true);
  Premi(spazio_, Figura_Letta(pezzo));
  QTimer::singleShot(durata, this, [this] { Rilascia(spazio_, true); });
}

}  // namespace tavorno
