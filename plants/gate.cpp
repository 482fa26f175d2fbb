// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/gate.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "plants/gate_figures.h"

namespace tavorno {

namespace {

constexpr const char* default_ingressi = "1000011000010000";

constexpr int B = 2, FR = 6, SQ3 = 7, SB2 = 11;  // positions of the inputs
constexpr int VacB = 1, HL4 = 2;                 // and of the outputs

constexpr int periodo = 50;  // ms, of both timers
constexpr int passo = 30;    // twips, each tick

// Where the gate stops, twips: the right pillar holds it short of its edge, and a limit switch is
// reached a little before.
constexpr int anticipo_pilastro = 50;
constexpr int zona_chiuso = 20, zona_aperto = 30;

constexpr Colore verde_vivo = Tavolozza(10), verde_scuro = Tavolozza(2);
constexpr Colore filo_in_tensione = Tavolozza(12), filo_spento = Tavolozza(15);
constexpr Colore raggio_libero = Tavolozza(14), raggio_interrotto = Tavolozza(8);
constexpr Colore cupola_accesa = Tavolozza(14), cupola_spenta = 49344;
constexpr Colore costa_libera = Tavolozza(14), costa_premuta = Tavolozza(12);

int Intero_16(float twip) {
  using Limiti = std::numeric_limits<std::int16_t>;
  return static_cast<int>(std::clamp<long long>(std::llrint(twip), Limiti::min(), Limiti::max()));
}

}  // namespace

/// What one of the contactors does, and the limit switch at the end of its way.
struct Ctr_Canc::Direzione {
  Morsetto_Q Uscita;
  const char* Contattore;
  const char* Filo;
  Morsetto_I Ingresso;  ///< of the limit switch, normally closed
  const char* Levetta;
};

const Ctr_Canc::Direzione Ctr_Canc::chiusura_ = {.Uscita = Q(0, 2),
                                                 .Contattore = "imgKm1",
                                                 .Filo = "shKM1",
                                                 .Ingresso = I(0, 2),
                                                 .Levetta = "shC"};
const Ctr_Canc::Direzione Ctr_Canc::apertura_ = {.Uscita = Q(0, 3),
                                                 .Contattore = "imgKM2",
                                                 .Filo = "shKM2",
                                                 .Ingresso = I(0, 0),
                                                 .Levetta = "shA"};

Ctr_Canc::Ctr_Canc(Orologio& orologio)
    : Impianto(cancello::figure, default_ingressi, Invio::Doppio),
      TimChiudi(orologio, periodo, [this] { Tick_TimChiudi(); }),
      timApri(orologio, periodo, [this] { Tick_timApri(); }) {
  // Only what differs from the output text at rest is a change.
  for (int posizione = 1; posizione <= 7; ++posizione) Uscita_Cambiata(posizione);

  Disegno["Label2"].Caption = "Chiude << >> Apre";
  Mostra_Fine_Corsa(chiusura_, true);
  Mostra_Fine_Corsa(apertura_, false);
  Alimenta_Fotocellula(false);
  Accendi_Lampeggiante(false);

  Monta(cancello::pulsanti);
  Monta_Selettore();
  Monta_Telecomando();
  Monta_Fotocellula();
  Monta_Costa();
  Monta_Termico();
}

// ---- the user's hand ----------------------------------------------------------------------------

void Ctr_Canc::Monta_Selettore() {
  for (const cancello::Riga_Selettore& riga : cancello::selettore) {
    const auto Gira = [this, &riga](char contatto, const char* picture) {
      Disegno["imgCom"].Picture = picture;
      Ingresso(riga.Posizione, contatto);
      Invia();
    };
    Figura& zona = Disegno[riga.Nome];
    zona.Premi = [Gira, &riga] { Gira('1', riga.Picture); };
    zona.Rilascia = [Gira] { Gira('0', cancello::chiave_a_riposo); };
  }
}

void Ctr_Canc::Monta_Telecomando() {
  const auto Trasmetti = [this](bool premuto) {
    Disegno("imgSB", 0).Picture = premuto ? "imgBON" : "imgBOFF";
    Disegno["imgL"].Picture = premuto ? "imgLON" : "imgLOF";
    Ingresso(SB2, premuto ? '1' : '0');
    Invia();
  };
  Disegno("imgSB", 0).Premi = [Trasmetti] { Trasmetti(true); };
  Disegno("imgSB", 0).Rilascia = [Trasmetti] { Trasmetti(false); };
}

void Ctr_Canc::Monta_Fotocellula() {
  const auto Interrompi = [this](bool interrotto) {
    Disegno["picFC"].Picture = interrotto ? "interrotta" : "libera";
    Disegno["linFC"].FillColor = interrotto ? raggio_interrotto : raggio_libero;
    Disegno["imgLFC"].Picture = interrotto ? "imgLFCON" : "imgLFCOF";
    Ingresso(B, interrotto ? '1' : '0');
    Invia();
  };
  Disegno["linFC"].FillColor = raggio_libero;
  Disegno["picFC"].Premi = [Interrompi] { Interrompi(true); };
  Disegno["picFC"].Rilascia = [Interrompi] { Interrompi(false); };
}

void Ctr_Canc::Monta_Costa() {
  const auto Mostra_Costa = [this](bool premuta) {
    Disegno["picP"].Picture = premuta ? "premuta" : "riposo";
    Disegno["picP"].FillColor = premuta ? costa_premuta : costa_libera;
  };
  const auto Tocca = [this, Mostra_Costa](bool premuta) {
    Mostra_Costa(premuta);
    Ingresso(SQ3, premuta ? '0' : '1');
    Invia();
  };
  Mostra_Costa(false);
  Disegno["picP"].Premi = [Tocca] { Tocca(true); };
  Disegno["picP"].Rilascia = [Tocca] { Tocca(false); };
}

void Ctr_Canc::Monta_Termico() {
  // The relay only opens its contact: a motor that runs goes on, whatever its picture shows.
  imgM.Clic = [this] {
    Termico = Termico != 0 ? 0 : -1;
    const bool scattato = Termico != 0;
    imgM.Picture = scattato ? "imgMRT" : "imgMOF";
    Disegno["imgFR"].Picture = scattato ? "imgRTON" : "ImgRTOF";
    Ingresso(FR, scattato ? '0' : '1');
    Invia();
  };
}

// ---- outputs ------------------------------------------------------------------------------------

void Ctr_Canc::Applica_Uscite() {
  const auto Acceso = [this](int posizione) { return Uscita(posizione) == "1"; };
  if (Uscita_Cambiata(VacB)) Alimenta_Fotocellula(Acceso(VacB));
  if (Uscita_Cambiata(HL4)) Accendi_Lampeggiante(Acceso(HL4));
  if (Uscita_Cambiata(chiusura_.Uscita)) Comanda(chiusura_, TimChiudi, Acceso(chiusura_.Uscita));
  if (Uscita_Cambiata(apertura_.Uscita)) Comanda(apertura_, timApri, Acceso(apertura_.Uscita));
  for (const Riga_Lampada& lampada : cancello::lampade) {
    if (Uscita_Cambiata(lampada.Uscita)) Mostra(lampada, Uscita(lampada.Uscita));
  }
}

void Ctr_Canc::Alimenta_Fotocellula(bool acceso) {
  Disegno["picFC"].Visible = acceso;
  Disegno["linFC"].Visible = acceso;
}

void Ctr_Canc::Accendi_Lampeggiante(bool acceso) {
  Disegno["shL"].FillColor = acceso ? cupola_accesa : cupola_spenta;
  Disegno["imgSir"].Visible = acceso;
}

// Each contactor has its own timer, so both at once push the gate to and fro on the spot. The
// motor's picture is that of the last contactor to change.
void Ctr_Canc::Comanda(const Direzione& direzione, Temporizzatore& timer, bool acceso) {
  Disegno[direzione.Contattore].Picture = acceso ? "imgKMON" : "imgKMOF";
  Disegno[direzione.Filo].FillColor = acceso ? filo_in_tensione : filo_spento;
  const auto in_tensione = [this](const Direzione& una) {
    return Disegno[una.Filo].FillColor == filo_in_tensione;
  };
  Disegno["nodo"].FillColor =
      in_tensione(chiusura_) || in_tensione(apertura_) ? filo_in_tensione : filo_spento;
  timer.Enabled(acceso);
  if (acceso)
    imgM.Picture = "imgMON";
  else
    imgM.Picture = Termico != 0 ? "imgMRT" : "imgMOF";
}

// ---- movement -----------------------------------------------------------------------------------

void Ctr_Canc::Mostra_Fine_Corsa(const Direzione& direzione, bool raggiunto) {
  Ingresso(direzione.Ingresso, raggiunto ? '0' : '1');
  Disegno[direzione.Levetta].Picture = raggiunto ? "operato" : "riposo";
  Disegno[direzione.Levetta].FillColor = raggiunto ? verde_vivo : verde_scuro;
}

// A limit is judged from where the gate stood before the step, and only ever entered here: it is
// left by the first step the other way.
void Ctr_Canc::Tick_TimChiudi() {
  const int prima = Intero_16(imgC.Left);
  const int battuta = Intero_16(Disegno["shP1"].Left + Disegno["shP1"].Width);
  Mostra_Fine_Corsa(apertura_, false);
  imgC.Left = static_cast<float>(prima - passo);
  if (prima < battuta + zona_chiuso) Mostra_Fine_Corsa(chiusura_, true);
  Invia();
}

void Ctr_Canc::Tick_timApri() {
  const int prima = Intero_16(imgC.Left);
  const int battuta = Intero_16(Disegno["ShP2"].Left - anticipo_pilastro);
  imgC.Left = static_cast<float>(prima + passo);
  Mostra_Fine_Corsa(chiusura_, false);
  if (prima > battuta - zona_aperto) Mostra_Fine_Corsa(apertura_, true);
  Invia();
}

}  // namespace tavorno
