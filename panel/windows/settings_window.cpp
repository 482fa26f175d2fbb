// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/settings_window.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <iterator>

#include "panel/windows/fields.h"
#include "panel/windows/led_icon.h"
#include "panel/windows/thumbwheel_sample.h"
#include "plc/plc.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

struct Opzione {
  const char* Testo;
  const char* Suggerimento;
};

constexpr Opzione opzioni_colore[] = {{"V", "LED verdi"}, {"Y", "LED gialli"}, {"R", "LED rossi"}};
constexpr Opzione opzioni_forma[] = {{"", "LED con raggi"}, {"", "LED senza raggi"}};
constexpr Opzione opzioni_simulatore[] = {
    {"Interuttori", "Il byte I1 viene da otto interruttori"},
    {"Contravers BCD", "Il byte I1 viene da un selettore a due cifre BCD"}};

/// The options of `T100m`, by index.
struct Opzione_Clock {
  std::int16_t Periodo;  // milliseconds
  const char* Testo;
};

constexpr Opzione_Clock opzioni_clock[] = {{100, "100 mSec"}, {50, "50   mSec"}, {10, "10   mSec"}};

constexpr QSize misura_led{22, 22};

/// One option of an array; the first stands selected.
QRadioButton* Aggiungi(QButtonGroup& gruppo, const char* nome, int indice, const Opzione& opzione) {
  auto* tasto = new QRadioButton(Q(opzione.Testo));
  tasto->setObjectName(Con_Indice(nome, indice));
  tasto->setToolTip(Q(opzione.Suggerimento));
  tasto->setAccessibleDescription(Q(opzione.Suggerimento));
  tasto->setChecked(indice == 0);
  gruppo.addButton(tasto, indice);
  return tasto;
}

/// Runs `scelta` with the index that becomes selected.
void Alla_Scelta(QButtonGroup& gruppo, std::function<void(int)> scelta) {
  QObject::connect(&gruppo, &QButtonGroup::idToggled, &gruppo,
                   [scelta = std::move(scelta)](int indice, bool scelto) {
                     if (scelto) scelta(indice);
                   });
}

}  // namespace

FrmSetPLC::FrmSetPLC(Plc& plc, std::int16_t& sim_contraves,
                     std::function<void(bool)> scegli_simulatore)
    : plc_(plc),
      sim_contraves_(sim_contraves),
      scegli_simulatore_(std::move(scegli_simulatore)),
      opzSim_(new QButtonGroup(this)),
      opzT_(new QButtonGroup(this)) {
  setObjectName("frmSetPLC");
  setWindowTitle(Q("Impostazioni pannello PLC"));
  Chiudi_Con_Esc(*this);

  auto* scelte = new QGridLayout;
  scelte->addWidget(Gruppo_LED("Frame2(1)", "Led Ingressi PLC", "opzCI", "opzTI", ingressi_), 0, 0);
  scelte->addWidget(Gruppo_LED("Frame2(0)", "Led Uscite PLC", "opzCQ", "opzTQ", uscite_), 0, 1);
  scelte->addWidget(Gruppo_Simulatore(), 1, 0);
  scelte->addWidget(Gruppo_Clock(), 1, 1);

  auto* applica = Tasto("cmdSet", "Applica e Esci", "Applica le impostazioni e chiude la finestra");
  auto* annulla = Tasto("cmdEsc", "Annulla e Esci", "Chiude la finestra senza applicare");
  connect(applica, &QPushButton::clicked, this, [this] { cmdSet(); });
  connect(annulla, &QPushButton::clicked, this, &QWidget::close);
  auto* tasti = new QHBoxLayout;
  tasti->addStretch();
  tasti->addWidget(applica);
  tasti->addWidget(annulla);

  auto* colonna = new QVBoxLayout(this);
  colonna->addLayout(scelte, 1);
  colonna->addSpacing(4);
  colonna->addLayout(tasti);
}

QGroupBox* FrmSetPLC::Gruppo_LED(const char* nome, const char* titolo, const char* colori,
                                 const char* forme, Aspetto_LED& aspetto) {
  auto* riquadro = new QGroupBox(Q(titolo));
  riquadro->setObjectName(nome);
  auto* gruppo_colori = new QButtonGroup(this);
  auto* gruppo_forme = new QButtonGroup(this);
  auto* colonna_colori = new QVBoxLayout;
  auto* colonna_forme = new QVBoxLayout;
  for (int k = 0; k < std::ssize(opzioni_colore); ++k) {
    QRadioButton* tasto = Aggiungi(*gruppo_colori, colori, k, opzioni_colore[k]);
    tasto->setIcon(Icona_LED(k, 1));
    colonna_colori->addWidget(tasto);
  }
  for (int k = 0; k < std::ssize(opzioni_forma); ++k) {
    QRadioButton* tasto = Aggiungi(*gruppo_forme, forme, k, opzioni_forma[k]);
    tasto->setIconSize(misura_led);
    tasto->setIcon(Icona_LED(0, k));
    tasto->setAccessibleName(Q(opzioni_forma[k].Suggerimento));
    colonna_forme->addWidget(tasto);
  }
  Alla_Scelta(*gruppo_colori, [gruppo_forme, &aspetto](int indice) {
    aspetto.Colore = static_cast<std::uint8_t>(indice);
    for (int k = 0; k < std::ssize(opzioni_forma); ++k)
      gruppo_forme->button(k)->setIcon(Icona_LED(indice, k));
  });
  Alla_Scelta(*gruppo_forme,
              [&aspetto](int indice) { aspetto.Forma = static_cast<std::uint8_t>(indice); });
  auto* riga = new QHBoxLayout(riquadro);
  riga->addLayout(colonna_colori);
  riga->addSpacing(24);
  riga->addLayout(colonna_forme);
  riga->addStretch();
  return riquadro;
}

QGroupBox* FrmSetPLC::Gruppo_Simulatore() {
  auto* riquadro = new QGroupBox(Q("Simulatore Ingressi I1..."));
  riquadro->setObjectName("Frame3");
  auto* colonna = new QVBoxLayout;
  for (int k = 0; k < std::ssize(opzioni_simulatore); ++k)
    colonna->addWidget(Aggiungi(*opzSim_, "opzSim", k, opzioni_simulatore[k]));
  opzSim_->button(sim_contraves_ ? 1 : 0)->setChecked(true);
  Alla_Scelta(*opzSim_, [this](int indice) {
    sim_contraves_ = static_cast<std::int16_t>(indice == 1 ? -1 : 0);
  });
  auto* riga = new QHBoxLayout(riquadro);
  riga->addLayout(colonna);
  riga->addStretch();
  riga->addSpacing(12);
  riga->addWidget(new Campione_Contraves);
  return riquadro;
}

QGroupBox* FrmSetPLC::Gruppo_Clock() {
  auto* riquadro = new QGroupBox(Q("Clock Temporizzatori"));
  riquadro->setObjectName("Frame1");
  auto* colonna = new QVBoxLayout(riquadro);
  for (int k = 0; k < std::ssize(opzioni_clock); ++k) {
    const Opzione opzione{opzioni_clock[k].Testo, "Durata di uno scatto dei temporizzatori"};
    colonna->addWidget(Aggiungi(*opzT_, "opzT", k, opzione));
    if (plc_.Clock_T == opzioni_clock[k].Periodo) opzT_->button(k)->setChecked(true);
  }
  return riquadro;
}

void FrmSetPLC::cmdSet() {
  plc_.Entra({.Che = Cosa::Aspetto_LED, .Indice = ingressi_.Colore, .Numero = ingressi_.Forma});
  scegli_simulatore_(opzSim_->checkedId() == 1);
  plc_.Entra({.Che = Cosa::Periodo, .Numero = opzioni_clock[opzT_->checkedId()].Periodo});
  close();
}

}  // namespace tavorno
