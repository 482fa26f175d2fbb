// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/ui/signal_choice.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "plants/exercises.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

void Metti(std::vector<Segnale>& dove, const Segnale& segnale) {
  if (std::ranges::find(dove, segnale.Indirizzo, &Segnale::Indirizzo) == dove.end())
    dove.push_back(segnale);
}

}  // namespace

Scelta_Segnali::Scelta_Segnali(QWidget* sopra, const Esercizio* impianto, const Memoria& memoria,
                               const std::vector<Segnale>& scelti)
    : QDialog(sopra) {
  setObjectName(QStringLiteral("frmSegnali"));
  setWindowTitle(QStringLiteral("Segnali del diagramma"));
  for (const Segnale& segnale : scelti) Metti(tutti_, segnale);
  const std::vector<Segnale> propri = Segnali_Di(Righe_Di(impianto), memoria);
  for (const Segnale& segnale : propri) Metti(tutti_, segnale);
  propri_ = tutti_.size();
  for (const Segnale& segnale : Tutte_Le_Celle()) {
    if (std::find_if(tutti_.begin(), tutti_.begin() + static_cast<std::ptrdiff_t>(propri_),
                     [&](const Segnale& uno) { return uno.Indirizzo == segnale.Indirizzo; }) ==
        tutti_.begin() + static_cast<std::ptrdiff_t>(propri_))
      tutti_.push_back(segnale);
  }

  txtFiltro_ = Chiama(QStringLiteral("txtFiltro"), new QLineEdit);
  txtFiltro_->setPlaceholderText(
      QStringLiteral("Nome o indirizzo, per esempio KM1, Q0, T37, VW10"));
  txtFiltro_->setAccessibleName(QStringLiteral("Cerca fra i segnali"));
  txtFiltro_->setToolTip(QStringLiteral("Mostra soltanto i segnali che contengono questo testo"));
  txtFiltro_->setClearButtonEnabled(true);
  lista_ = Chiama(QStringLiteral("lstSegnali"), new QListWidget);
  lista_->setAccessibleName(QStringLiteral("Segnali"));
  lista_->setToolTip(QStringLiteral("La barra spaziatrice mette e toglie la spunta"));
  lista_->setUniformItemSizes(true);
  for (std::size_t n = 0; n < tutti_.size(); ++n) {
    const Segnale& segnale = tutti_[n];
    auto* voce = new QListWidgetItem(
        Q(segnale.Ha_Simbolo() ? segnale.Nome + "    " + segnale.Indirizzo : segnale.Nome), lista_);
    voce->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    voce->setCheckState(n < scelti.size() ? Qt::Checked : Qt::Unchecked);
  }
  lista_->setCurrentRow(0);

  auto* propri_tasto =
      Chiama(QStringLiteral("cmdPropri"), new QPushButton(QStringLiteral("Impianto e programma")));
  propri_tasto->setToolTip(QStringLiteral("I segnali dell'impianto aperto e del programma"));
  propri_tasto->setAutoDefault(false);
  auto* nessuno = Chiama(QStringLiteral("cmdNessuno"), new QPushButton(QStringLiteral("Nessuno")));
  nessuno->setToolTip(QStringLiteral("Toglie tutte le spunte"));
  nessuno->setAutoDefault(false);
  auto* tasti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* piede = new QHBoxLayout;
  piede->addWidget(propri_tasto);
  piede->addWidget(nessuno);
  piede->addStretch();
  piede->addWidget(tasti);
  auto* righe = new QVBoxLayout(this);
  righe->addWidget(txtFiltro_);
  righe->addWidget(lista_, 1);
  righe->addLayout(piede);
  resize(460, 480);

  connect(txtFiltro_, &QLineEdit::textChanged, this,
          [this](const QString& testo) { Filtra(testo); });
  connect(propri_tasto, &QPushButton::clicked, this, [this, propri] {
    for (std::size_t n = 0; n < tutti_.size(); ++n) {
      const bool suo =
          std::ranges::find(propri, tutti_[n].Indirizzo, &Segnale::Indirizzo) != propri.end();
      lista_->item(static_cast<int>(n))->setCheckState(suo ? Qt::Checked : Qt::Unchecked);
    }
  });
  connect(nessuno, &QPushButton::clicked, this, [this] {
    for (int n = 0; n < lista_->count(); ++n) lista_->item(n)->setCheckState(Qt::Unchecked);
  });
  connect(tasti, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(tasti, &QDialogButtonBox::rejected, this, &QDialog::reject);
  Filtra({});
  txtFiltro_->setFocus();
}

/// Without a text only what belongs to plant and program, and what is chosen: the cells of the CPU
/// are a thousand.
void Scelta_Segnali::Filtra(const QString& testo) {
  const QString cercato = testo.trimmed();
  int primo = -1;
  for (int n = 0; n < lista_->count(); ++n) {
    QListWidgetItem& voce = *lista_->item(n);
    const bool vista = cercato.isEmpty() ? static_cast<std::size_t>(n) < propri_ ||
                                               voce.checkState() == Qt::Checked || propri_ == 0
                                         : voce.text().contains(cercato, Qt::CaseInsensitive);
    voce.setHidden(!vista);
    if (vista && primo < 0) primo = n;
  }
  lista_->setCurrentRow(primo);
}

std::vector<Segnale> Scelta_Segnali::Scelti() const {
  std::vector<Segnale> scelti;
  for (std::size_t n = 0; n < tutti_.size(); ++n) {
    if (lista_->item(static_cast<int>(n))->checkState() == Qt::Checked) scelti.push_back(tutti_[n]);
  }
  return scelti;
}

bool Chiedi_Segnali(QWidget* sopra, const Esercizio* impianto, const Memoria& memoria,
                    std::vector<Segnale>& scelti) {
  Scelta_Segnali dialogo(sopra, impianto, memoria, scelti);
  if (dialogo.exec() != QDialog::Accepted) return false;
  scelti = dialogo.Scelti();
  return true;
}

}  // namespace tavorno
