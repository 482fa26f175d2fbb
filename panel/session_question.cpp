// SPDX-License-Identifier: GPL-3.0-or-later
// "Chi è stato?": the last change of a cell, and the line that made it.
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>

#include "panel/program_list.h"
#include "panel/session_bar.h"
#include "trace/address.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

/// What the program writes: of an output its image, which reaches the point at the end of a scan.
double Scritto(const Plc& plc, const Indirizzo& dove) {
  if (dove.Dove == Area::Q) return plc.IP_Q[dove.Num].Bit_Img[dove.Bit];
  return Leggi_Cella(plc, dove);
}

}  // namespace

void Barra_Seduta::Chi_E_Stato_A(std::int64_t ms, const std::string& indirizzo) {
  Indietro([this, ms, indirizzo] {
    if (!registratore_.Vai_A_Vista(ms)) return false;
    bit_->setText(Q(indirizzo));
    QTimer::singleShot(0, this, [this] { Chi_E_Stato(); });
    return true;
  });
}

void Barra_Seduta::Chi_E_Stato() {
  const auto dove = Leggi_Indirizzo(Utf8(bit_->text().trimmed()));
  if (!dove)
    return Avvisa(
        Q("\"" + Utf8(bit_->text()) + "\" non è un indirizzo. Si scrive " + Indirizzi_Ammessi()));
  if (!Ferma_Il_Tempo()) {
    QTimer::singleShot(0, this, [this] {
      if (plc_.In_Giro() == Giro::Nessuno) Chi_E_Stato();
    });
    return;
  }
  corsa_.Pausa();
  int riga = -1;
  bool trovato = false;
  Con_Riguardo([&] {
    trovato = registratore_.Ultimo_Cambio(
        [dove = *dove](const Plc& plc) { return Scritto(plc, dove); }, riga);
  });
  progresso_.reset();
  const QString nome = bit_->text().trimmed().toUpper();
  Specchia();
  if (!trovato)
    perche_ = nome + Q(" non è mai cambiato");
  else if (riga < 0)
    perche_ = nome + Q(": non una riga, ma ciò che è entrato");
  else
    perche_ = nome + Q(": riga ") + QString::number(riga);
  if (riga >= 0) Mostra_Riga(riga);
  Mostra_Stato();
  if (!Racconta) return;
  const QListWidgetItem* voce = riga >= 0 ? pannello_.Controlli().listSrc->item(riga) : nullptr;
  Racconta(perche_ +
           (voce != nullptr ? QStringLiteral(", ") + voce->text().simplified() : QString()));
}

/// Marked in the list, and the list where it is seen: a narrow panel has it below the CPU.
void Barra_Seduta::Mostra_Riga(int riga) {
  Lista_Programma& lista = *pannello_.Controlli().listSrc;
  lista.Scegli(riga);
  if (lista.item(riga) == nullptr) return;
  for (QWidget* sopra = lista.parentWidget(); sopra != nullptr; sopra = sopra->parentWidget()) {
    auto* area = qobject_cast<QScrollArea*>(sopra);
    if (area == nullptr) continue;
    const QPoint posto =
        lista.viewport()->mapTo(area->widget(), lista.visualItemRect(lista.item(riga)).center());
    area->ensureVisible(0, posto.y(), 0, area->viewport()->height() / 3);
    return;
  }
}

}  // namespace tavorno
