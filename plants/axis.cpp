// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/axis.h"

#include <algorithm>
#include <cmath>

#include "plants/axis_figures.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

constexpr const char* default_ingressi = "0100011000000000";

constexpr float zero = 1440;               // position at 0 V, twips
constexpr float corsa = 5880, fondo = 10;  // twips for so many volts
constexpr float mezzo_carrello = 120;      // of the slide at the left of its index
constexpr float limite_indietro = 1360, limite_avanti = 7400;
constexpr float passo_manuale = 30;

constexpr int attesa_a_zero = 3000;   // ms between two steps without control voltage
constexpr int unita_di_attesa = 100;  // ms

constexpr int posizione = 0, riferimento = 1, isteresi = 2;  // analog channels

constexpr Colore verde_vivo = Tavolozza(10), verde_scuro = Tavolozza(2);
constexpr Colore cifre_display = 0x9AFC7D;

}  // namespace

/// One of the three outputs that move the axis, with its lamp on the amplifier.
struct ctr_Assi::Comando {
  Riga_Lampada Lampada;
  std::int16_t ctr_Assi::*Flag;
  int Senso;  ///< `Senso_Asse` that it sets when it rises; -1 none
};

/// A limit switch, normally closed.
struct ctr_Assi::Limite {
  Morsetto_I Ingresso;
  const char* Interruttore;
  const char* Spia;
};

// The power comes first, so that what the direction bits start in the same scan finds it.
// clang-format off
const ctr_Assi::Comando ctr_Assi::comandi_[] = {
    {{"imgL0", Q(0, 2), "imgLG"}, &ctr_Assi::Potenza_On,     -1},
    {{"imgL2", Q(0, 0), "imgLV"}, &ctr_Assi::Marcia_Avanti,   0},
    {{"imgL1", Q(0, 1), "imgLV"}, &ctr_Assi::Marcia_Indietro, 1},
};
// clang-format on

const ctr_Assi::Limite ctr_Assi::indietro_ = {I(0, 5), "imgFCI", "shI"};
const ctr_Assi::Limite ctr_Assi::avanti_ = {I(0, 6), "imgFCA", "shA"};

ctr_Assi::ctr_Assi(Plc& plc)
    : Impianto(asse::figure, default_ingressi, Invio::Doppio),
      timIO(plc.Tempo, 20, [this] { Tick_timIO(); }),
      timMove(plc.Tempo, 100, [this] { Tick_timMove(); }),
      timG(plc.Tempo, 100, [this] { Tick_timG(); }),
      plc_(plc) {
  // Only what differs from the output text at rest is a change.
  for (int uscita = 1; uscita <= 9; ++uscita) Uscita_Cambiata(uscita);

  ShPerno.FillStyle = 4;
  Disegno["shAP"].FillColor = verde_scuro;
  Mostra_Limite(indietro_, false);
  Mostra_Limite(avanti_, false);

  for (const char* nome : {"EtVc", "EtPos", "EtRif", "EtIst"}) {
    Disegno[nome].Caption = "0.0";
    Disegno[nome].ForeColor = cifre_display;
  }
  plc_.Volt_AI[posizione] = 0;
  for (const char* filo : {"linM", "filoTP", "filoVC"}) Accendi(filo, false);

  Monta(asse::pulsanti);
  Monta(asse::selettori);
  Monta_Finecorsa(indietro_);
  Monta_Finecorsa(avanti_);
  Monta_Manuale("cmdV1", 0);
  Monta_Manuale("cmdV2", 1);
  Monta_Regolatori();
  Regolatori["Enabled"] = {[this](double acceso) { Enabled(acceso != 0); }};
}

// ---- the user's hand ----------------------------------------------------------------------------

// A limit switch stuck by hand lasts until the axis moves again and judges it anew.
void ctr_Assi::Monta_Finecorsa(const Limite& limite) {
  Disegno[limite.Interruttore].Clic = [this, &limite] {
    Segna_Limite(limite, Ingresso(limite.Ingresso) == '1');
    Invia();
  };
}

void ctr_Assi::Monta_Manuale(const char* nome, std::uint8_t senso) {
  Figura& pulsante = Disegno[nome];
  pulsante.Premi = [this, &pulsante, senso] {
    pulsante.Picture = "premuto";
    timIO.Enabled(false);
    Passo_Asse = passo_manuale;
    Senso_Asse = senso;
    timMove.Enabled(true);
  };
  pulsante.Rilascia = [this, &pulsante] {
    pulsante.Picture = "rilasciato";
    timMove.Enabled(false);
    timIO.Enabled(true);
  };
}

void ctr_Assi::Monta_Regolatori() {
  const auto Cambia_Riferimento = [this](double decimi) {
    const auto volt = static_cast<float>(decimi / 10);
    Disegno["EtRif"].Caption = Formato(volt, "0.0##");
    Disegno["shRif"].Left = volt * corsa / fondo + zero;
    plc_.Volt_AI[riferimento] = volt;
    Accendi("filoSET", volt > 0);
  };
  const auto Cambia_Isteresi = [this](double millesimi) {
    const auto volt = static_cast<float>(millesimi / 1000);
    Disegno["EtIst"].Caption = Formato(volt, "0.0##");
    plc_.Volt_AI[isteresi] = volt;
    Accendi("filoIST", volt > 0);
  };
  Regolatori["UpD1"] = {Cambia_Riferimento, 0, 0, 100, 1};
  Regolatori["UpD2"] = {Cambia_Isteresi, 0, 0, 100, 1};
  Regola("UpD1", 50);
  Regola("UpD2", 5);
}

// ---- outputs ------------------------------------------------------------------------------------

void ctr_Assi::Applica_Uscite() {
  for (const Comando& comando : comandi_) {
    const int uscita = comando.Lampada.Uscita;
    if (Uscita_Cambiata(uscita)) Comanda(comando, Uscita(uscita) == "1");
  }
  for (const Riga_Lampada& lampada : asse::lampade) {
    if (Uscita_Cambiata(lampada.Uscita)) Mostra(lampada, Uscita(lampada.Uscita));
  }
}

void ctr_Assi::Comanda(const Comando& comando, bool acceso) {
  Mostra(comando.Lampada, acceso ? "1" : "0");
  this->*comando.Flag = acceso ? -1 : 0;
  if (comando.Senso < 0)
    Disegno["shAP"].FillColor = acceso ? verde_vivo : verde_scuro;
  else if (acceso)
    Senso_Asse = static_cast<std::uint8_t>(comando.Senso);

  const bool in_moto = Potenza_On != 0 && (Marcia_Avanti != 0 || Marcia_Indietro != 0);
  timMove.Enabled(in_moto);
  timG.Enabled(in_moto);
  Accendi("linM", in_moto);
}

// ---- movement -----------------------------------------------------------------------------------

void ctr_Assi::ME_VC(float volt) {
  me_vc_ = volt;
  Passo_Asse = volt > 5 ? volt * 6 : volt * 2;
  if (volt < 0.1F) {
    timMove.Interval(attesa_a_zero);
  } else {
    const auto unita = static_cast<int>(std::floor((11 - volt + 1) / 2));
    timMove.Interval(std::max(1, unita) * unita_di_attesa);  // above 10 V it gets no faster
  }
  if (Passo_Asse < 1) Passo_Asse = 1;
}

void ctr_Assi::Tick_timIO() {
  const float volt = plc_.Volt_AQ[0];
  ME_VC(volt);
  Disegno["EtVc"].Caption = Formato(volt, "0.0#");
  Accendi("filoVC", volt > 0);
}

void ctr_Assi::Tick_timMove() {
  const float prima = ShIndP.Left;
  const float ora = Senso_Asse == 0 ? prima + Passo_Asse : prima - Passo_Asse;
  ShIndP.Left = ora;
  shC.Left = ora - mezzo_carrello;

  const float volt = (ora - zero) * fondo / corsa;
  Disegno["EtPos"].Caption = Formato(volt, "#0.00");
  plc_.Volt_AI[posizione] = volt;
  Accendi("filoTP", volt > 0);

  if (ora < limite_indietro) {
    Segna_Limite(indietro_, true);
    Disegno[avanti_.Spia].FillColor = verde_scuro;  // its contact stays as it was
  } else {
    Segna_Limite(indietro_, false);
    Segna_Limite(avanti_, ora > limite_avanti);
  }
  Invia();
}

void ctr_Assi::Tick_timG() {
  ShPerno.FillStyle = ShPerno.FillStyle == 4 ? 5 : 4;
  ShPerno.Picture = ShPerno.FillStyle == 4 ? "filetto_4" : "filetto_5";
}

void ctr_Assi::Accendi(const char* filo, bool in_tensione) {
  Disegno[filo].FillColor = Tavolozza(in_tensione ? 12 : 15);
}

void ctr_Assi::Mostra_Limite(const Limite& limite, bool raggiunto) {
  Disegno[limite.Interruttore].Picture = raggiunto ? "operato" : "riposo";
  Disegno[limite.Spia].FillColor = raggiunto ? verde_vivo : verde_scuro;
}

void ctr_Assi::Segna_Limite(const Limite& limite, bool raggiunto) {
  Ingresso(limite.Ingresso, raggiunto ? '0' : '1');
  Mostra_Limite(limite, raggiunto);
}

}  // namespace tavorno
