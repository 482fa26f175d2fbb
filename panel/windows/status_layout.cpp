// SPDX-License-Identifier: GPL-3.0-or-later
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <span>

#include "panel/windows/bit_row.h"
#include "panel/windows/status_window.h"
#include "plc/plc.h"
#include "widgets/screen_reader.h"
#include "widgets/text.h"

// The controls of the element status window.
namespace tavorno {

namespace {

constexpr int bit_di_un_byte = Riga_Di(Area::I).Bit;

/// The rows of an area as bits and as a number; the objects are named after its words and bytes.
struct Byte_IO {
  Area Bit;
  Area Valore;
};

constexpr Byte_IO byte_ingressi = {Area::IW, Area::IB};
constexpr Byte_IO byte_uscite = {Area::QW, Area::QB};

constexpr int righe_marker = 4;
constexpr int righe_accumulatori = 4;

constexpr int scelte_timer[] = {32, 33, 37, 38};
constexpr int scelte_contatori[] = {0, 1, 2};

QGridLayout* Griglia(QGroupBox& riquadro) {
  auto* griglia = new QGridLayout(&riquadro);
  griglia->setContentsMargins(8, 4, 8, 6);
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(3);
  return griglia;
}

QLabel* Testata_Bit() {
  auto* testata = new Riga_Bit({}, bit_di_un_byte, Riga_Bit::Contenuto::Testata);
  testata->setText(Q(".7  .6  .5  .4 .3 .2  .1  .0"));
  return testata;
}

QComboBox* Lista(const QString& nome, const char* suggerimento) {
  auto* lista = new QComboBox;
  lista->setObjectName(nome);
  lista->setToolTip(Q(suggerimento));
  return lista;
}

/// Runs `scelta` with the selected index, now and whenever it changes.
template <class Scelta>
void Segui(QComboBox& lista, Scelta scelta) {
  QObject::connect(&lista, &QComboBox::currentIndexChanged, &lista, scelta);
  scelta(lista.currentIndex());
}

}  // namespace

struct FrmStatiL::Tabella_Colonne {
  const char* Nome;
  const char* Scelta;
  const char* Valore;
  const char* Preset;
  const char* Bit;
  const char* Suggerimento;
  Area Elementi;
  std::span<const int> Scelte;
};

struct FrmStatiL::Tabella_V {
  Area Celle;
  const char* Scelta;
  const char* Numero;
  const char* Valore;
  bool Due;  // two neighbours, their controls numbered
};

FrmStatiL::Byte FrmStatiL::Riga_Byte(QGridLayout& griglia, int riga, const QString& bit,
                                     const QString& valore, const QString& nome_letto) {
  auto* cifre = new Riga_Bit(bit, bit_di_un_byte);
  QLabel* numero = Campo_Valore(valore, 3);
  numero->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  Intitola(*cifre, nome_letto);
  Intitola(*numero, nome_letto);
  griglia.addWidget(cifre, riga, 1);
  griglia.addWidget(numero, riga, 2);
  return {Visto<std::string>(cifre), Visto_Numero(numero)};
}

QGroupBox* FrmStatiL::Riquadro_IO() {
  auto* riquadro = new QGroupBox(Q("Stato I/O"));
  QGridLayout* griglia = Griglia(*riquadro);
  griglia->addWidget(Testata_Bit(), 0, 1);
  int riga = 1;
  const auto metti = [&](Byte_IO io, std::vector<Byte>& byte) {
    const std::string area(Testo_Area(io.Valore));
    const std::string bit = "et" + std::string(Testo_Area(io.Bit));
    for (int n = 0; n <= Riga_Di(io.Valore).Ultima; ++n) {
      const QString nome = Q(area + std::to_string(n) + ":");
      griglia->addWidget(Etichetta(nome), riga, 0);
      byte.push_back(Riga_Byte(*griglia, riga++, Con_Indice(bit.c_str(), n),
                               Con_Indice(("et" + area).c_str(), n), nome));
    }
  };
  metti(byte_ingressi, ingressi_);
  metti(byte_uscite, uscite_);
  // Its bits stand above those of the markers, whose names share their column with a list.
  griglia->setColumnMinimumWidth(0, cmbM1_->sizeHint().width());
  return riquadro;
}

QGroupBox* FrmStatiL::Riquadro_M() {
  auto* riquadro = new QGroupBox(Q("Stato M"));
  QGridLayout* griglia = Griglia(*riquadro);
  cmbM1_ = Lista("cmbM1", "Primo byte M mostrato");
  for (int primo = 0; primo + righe_marker - 1 <= Riga_Di(Area::M).Ultima; ++primo)
    cmbM1_->addItem(QStringLiteral("M%1").arg(primo, 2, 10, QLatin1Char('0')));
  griglia->addWidget(cmbM1_, 0, 0);
  griglia->addWidget(Testata_Bit(), 0, 1);
  std::vector<QLabel*> nomi;
  for (int k = 0; k < righe_marker; ++k) {
    nomi.push_back(Etichetta({}));
    nomi.back()->setObjectName(Con_Indice("etM1", k));
    griglia->addWidget(nomi.back(), k + 1, 0);
    marker_.push_back(Riga_Byte(*griglia, k + 1, Con_Indice("etM", k), Con_Indice("etmb", k), {}));
  }
  Segui(*cmbM1_, [nomi, griglia](int primo) {
    for (int k = 0; k < righe_marker; ++k) {
      const QString nome = QStringLiteral("M%1").arg(primo + k);
      nomi[static_cast<std::size_t>(k)]->setText(nome);
      for (const int colonna : {1, 2})
        Intitola(*static_cast<QLabel*>(griglia->itemAtPosition(k + 1, colonna)->widget()),
                 nome + ':');
    }
  });
  return riquadro;
}

std::vector<FrmStatiL::Colonna> FrmStatiL::Metti_Colonne(QGridLayout& griglia, int riga,
                                                         const Tabella_Colonne& tabella) {
  int sotto = riga;
  for (const char* nome : {tabella.Nome, "Valore :", "Set :", "Bit :"})
    griglia.addWidget(Etichetta(Q(nome)), sotto++, 0);
  std::vector<Colonna> colonne;
  int i = 0;
  for (const int scelto : tabella.Scelte) {
    QComboBox* lista = Lista(Con_Indice(tabella.Scelta, i), tabella.Suggerimento);
    for (int n = 0; n <= Riga_Di(tabella.Elementi).Ultima; ++n) lista->addItem(QString::number(n));
    lista->setCurrentIndex(scelto);
    QLabel* valore = Campo_Valore(Con_Indice(tabella.Valore, i), 6);
    QLabel* preset = Campo_Valore(Con_Indice(tabella.Preset, i), 6);
    auto* bit = new Riga_Bit(Con_Indice(tabella.Bit, i), 1);
    ++i;
    griglia.addWidget(lista, riga, i);
    griglia.addWidget(valore, riga + 1, i);
    griglia.addWidget(preset, riga + 2, i);
    griglia.addWidget(bit, riga + 3, i);
    const QString area = Q(std::string(Testo_Area(tabella.Elementi)));
    Segui(*lista, [=](int numero) {
      const QString nome = area + QString::number(numero);
      Intitola(*valore, nome + QStringLiteral(" valore:"));
      Intitola(*preset, nome + QStringLiteral(" set:"));
      Intitola(*bit, nome + QStringLiteral(" bit:"));
    });
    colonne.push_back({lista, Visto_Numero(valore), Visto_Numero(preset), Visto_Numero(bit)});
  }
  return colonne;
}

QGroupBox* FrmStatiL::Riquadro_Colonne() {
  auto* riquadro = new QGroupBox(Q("Timer/Counter"));
  QGridLayout* griglia = Griglia(*riquadro);
  const Tabella_Colonne timer{.Nome = "Txx :",
                              .Scelta = "cmbIndT",
                              .Valore = "etTmrV",
                              .Preset = "etTmrS",
                              .Bit = "etTmrB",
                              .Suggerimento = "Temporizzatore mostrato: valori in scatti",
                              .Elementi = Area::T,
                              .Scelte = scelte_timer};
  const Tabella_Colonne contatori{.Nome = "Cxx :",
                                  .Scelta = "cmbIndC",
                                  .Valore = "etCV",
                                  .Preset = "etCS",
                                  .Bit = "etCB",
                                  .Suggerimento = "Contatore mostrato",
                                  .Elementi = Area::C,
                                  .Scelte = scelte_contatori};
  timer_ = Metti_Colonne(*griglia, 0, timer);
  griglia->setRowMinimumHeight(4, 10);
  contatori_ = Metti_Colonne(*griglia, 5, contatori);
  for (int colonna = 1; colonna <= 4; ++colonna) griglia->setColumnStretch(colonna, 1);
  return riquadro;
}

FrmStatiL::Memoria_V FrmStatiL::Metti_V(QGridLayout& griglia, int riga, const Tabella_V& tabella) {
  Memoria_V memoria;
  memoria.Scelta = Lista(tabella.Scelta, "Prima cella mostrata");
  for (int n = 0; n <= Riga_Di(tabella.Celle).Ultima; ++n)
    memoria.Scelta->addItem(QStringLiteral("%1").arg(n, 3, 10, QLatin1Char('0')));
  const QString nome_area = Q(std::string(Testo_Area(tabella.Celle)) + ":");
  griglia.addWidget(Etichetta(nome_area, memoria.Scelta), riga, 0);
  griglia.addWidget(memoria.Scelta, riga, 1);
  std::vector<QLabel*> numeri;
  std::vector<QLabel*> valori;
  for (int k = 0; k < (tabella.Due ? 2 : 1); ++k) {
    const auto nome = [&](const char* base) {
      return tabella.Due ? Con_Indice(base, k) : QString::fromLatin1(base);
    };
    auto* numero = Etichetta({});
    numero->setObjectName(nome(tabella.Numero));
    numero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    numero->setMinimumWidth(numero->fontMetrics().horizontalAdvance(Q("100")));
    QLabel* valore = Campo_Valore(nome(tabella.Valore), 11);
    griglia.addWidget(numero, riga + k, 2);
    griglia.addWidget(valore, riga + k, 3);
    numeri.push_back(numero);
    valori.push_back(valore);
    memoria.Celle.emplace_back(valore);
  }
  const QString area = Q(std::string(Testo_Area(tabella.Celle)));
  Segui(*memoria.Scelta, [numeri, valori, area](int prima) {
    for (std::size_t k = 0; k < numeri.size(); ++k) {
      const QString numero = QString::number(prima + static_cast<int>(k));
      numeri[k]->setText(numero);
      Intitola(*valori[k], area + numero + ':');
    }
  });
  return memoria;
}

QGroupBox* FrmStatiL::Riquadro_Memorie() {
  auto* riquadro = new QGroupBox(Q("Memorie/Accumulatori"));
  QGridLayout* griglia = Griglia(*riquadro);
  griglia->setColumnStretch(3, 1);
  vb_ = Metti_V(
      *griglia, 0,
      {.Celle = Area::VB, .Scelta = "cmbVb", .Numero = "etnB", .Valore = "etDVB", .Due = true});
  vw_ = Metti_V(
      *griglia, 2,
      {.Celle = Area::VW, .Scelta = "cmbVW", .Numero = "etnw", .Valore = "etDVw", .Due = true});
  vd_ = Metti_V(
      *griglia, 4,
      {.Celle = Area::VD, .Scelta = "cmbVD", .Numero = "etnd", .Valore = "etDVd", .Due = false});
  griglia->setRowMinimumHeight(5, 10);
  for (int k = 0; k < righe_accumulatori; ++k) {
    const QString nome = QStringLiteral("AC%1:").arg(k);
    QLabel* valore = Campo_Valore(Con_Indice("etAC", k), 13);
    griglia->addWidget(Etichetta(nome, valore), 6 + k, 0);
    griglia->addWidget(valore, 6 + k, 1, 1, 3);
    ac_.emplace_back(valore);
  }
  return riquadro;
}

}  // namespace tavorno
