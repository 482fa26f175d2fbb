// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/uses_list.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

#include "awl/ui/text_field.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int ruolo_testo = Qt::UserRole;
constexpr int ruolo_linea = Qt::UserRole + 1;

/// How a group is headed, by what is named and what the lines do with it.
QString Gruppo_Di(Genere_Nome cosa, Uso uso) {
  static constexpr std::array<std::array<const char*, 4>, 3> nomi = {{
      {"Letto", "Scritto", "Letto e scritto", ""},
      {"Salti", "", "", "Etichetta"},
      {"Chiamate", "", "", ""},
  }};
  return QString::fromUtf8(nomi[static_cast<std::size_t>(cosa)][static_cast<std::size_t>(uso)]);
}

QString Titolo_Di(const Nominato& nome) {
  static constexpr std::array<const char*, 3> prima = {"", "Etichetta ", "Procedura "};
  return QString::fromUtf8(prima[static_cast<std::size_t>(nome.Genere)]) + Da_Byte(nome.Nome);
}

}  // namespace

Elenco_Usi::Elenco_Usi(Legami legami, QWidget* sopra)
    : QDialog(sopra),
      legami_(std::move(legami)),
      etNome_(Chiama(QStringLiteral("etNome"), new QLabel)),
      lstUsi_(Chiama(QStringLiteral("lstUsi"), new QTreeWidget)),
      txtNuovo_(Chiama(QStringLiteral("txtNuovo"), new Campo_Testo)),
      cmdRinomina_(Chiama(QStringLiteral("cmdRinomina"),
                          new QPushButton(QStringLiteral("Rinomina dappertutto")))),
      etRisposta_(Chiama(QStringLiteral("etRisposta"), new QLabel)) {
  setObjectName(QStringLiteral("frmUsi"));
  setWindowTitle(QStringLiteral("Dove è usato"));
  auto* righe = new QVBoxLayout(this);
  etNome_->setTextFormat(Qt::PlainText);
  etNome_->setFont(Grassetto(etNome_->font()));
  etNome_->setWordWrap(true);
  righe->addWidget(etNome_);
  lstUsi_->setColumnCount(2);
  lstUsi_->setHeaderLabels({QStringLiteral("Dove"), QStringLiteral("Riga")});
  lstUsi_->setAccessibleName(QStringLiteral("Righe che lo usano"));
  lstUsi_->setToolTip(QStringLiteral("Invio o doppio clic va alla riga"));
  lstUsi_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  righe->addWidget(lstUsi_, 1);
  auto* riga = new QHBoxLayout;
  auto* etichetta = new QLabel(QStringLiteral("Nuovo &nome:"));
  etichetta->setBuddy(txtNuovo_);
  txtNuovo_->setToolTip(QStringLiteral("Invio lo scrive in tutte le righe del progetto"));
  cmdRinomina_->setToolTip(QStringLiteral("Scrive il nuovo nome in tutte le righe del progetto"));
  cmdRinomina_->setAutoDefault(false);
  riga->addWidget(etichetta);
  riga->addWidget(txtNuovo_, 1);
  riga->addWidget(cmdRinomina_);
  righe->addLayout(riga);
  etRisposta_->setTextFormat(Qt::PlainText);
  etRisposta_->setWordWrap(true);
  righe->addWidget(etRisposta_);
  resize(520, 320);

  connect(lstUsi_, &QTreeWidget::itemActivated, this,
          [this](const QTreeWidgetItem* voce) { Vai(voce); });
  connect(cmdRinomina_, &QPushButton::clicked, this, [this] { Rinomina(); });
  connect(txtNuovo_, &QLineEdit::returnPressed, this, [this] { Rinomina(); });
}

void Elenco_Usi::Mostra(const Nominato& nome, const QString& commento,
                        const std::vector<Uso_Mostrato>& usi) {
  etNome_->setText(commento.isEmpty() ? Titolo_Di(nome) : Titolo_Di(nome) + "  " + commento);
  etRisposta_->clear();
  txtNuovo_->setText(Da_Byte(nome.Nome));
  lstUsi_->clear();
  for (const Uso come : {Uso::Definizione, Uso::Lettura, Uso::Scrittura, Uso::Entrambi}) {
    QTreeWidgetItem* gruppo = nullptr;
    for (const Uso_Mostrato& uso : usi) {
      if (uso.Uso.Come != come) continue;
      if (gruppo == nullptr) gruppo = new QTreeWidgetItem(lstUsi_);
      auto* voce = new QTreeWidgetItem(gruppo, {uso.Dove, Da_Byte(uso.Uso.Linea)});
      voce->setData(0, ruolo_testo, uso.Uso.Posto.Testo);
      voce->setData(0, ruolo_linea, uso.Uso.Posto.Linea);
      voce->setToolTip(1, Da_Byte(uso.Uso.Linea));
    }
    if (gruppo == nullptr) continue;
    gruppo->setText(
        0, QStringLiteral("%1 (%2)").arg(Gruppo_Di(nome.Genere, come)).arg(gruppo->childCount()));
    gruppo->setFont(0, Grassetto(lstUsi_->font()));
    gruppo->setExpanded(true);
    gruppo->setFlags(Qt::ItemIsEnabled);
  }
  if (lstUsi_->topLevelItemCount() > 0) lstUsi_->setCurrentItem(lstUsi_->topLevelItem(0)->child(0));
  show();
  raise();
  activateWindow();
  lstUsi_->setFocus(Qt::OtherFocusReason);
}

void Elenco_Usi::Chiedi_Nome() {
  txtNuovo_->setFocus(Qt::ShortcutFocusReason);
  txtNuovo_->selectAll();
}

void Elenco_Usi::Vai(const QTreeWidgetItem* voce) {
  if (voce->parent() == nullptr) return;
  legami_.Vai({voce->data(0, ruolo_testo).toInt(), voce->data(0, ruolo_linea).toInt()});
}

void Elenco_Usi::Rinomina() {
  etRisposta_->setText(Q(legami_.Rinomina(Utf8(txtNuovo_->text()))));
}

}  // namespace tavorno
