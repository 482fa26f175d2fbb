// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/garage.h"

#include <cmath>
#include <string>

#include "plants/garage_figures.h"

namespace tavorno {

namespace {

constexpr const char* default_ingressi = "0001000100010001";
constexpr const char* default_uscite = "0000000000000000";
constexpr int periodo = 100;  // of every timer, ms

constexpr Colore rosso = Tavolozza(12), verde = Tavolozza(10), verde_scuro = Tavolozza(2);
constexpr Colore giallo = Tavolozza(14), giallo_scuro = 49344, grigio = Tavolozza(8);
constexpr Colore blu_scuro = Tavolozza(1), riposo = Tavolozza(15);

// Positions of the cars, twips.
constexpr float ingresso_left = 960, ingresso_top = 4500;
constexpr float uscita_left = 3600, uscita_top = 1500;
constexpr float y_corsia = 2340;  // of the lane that all spaces open to
constexpr float passo_retromarcia = 80;
constexpr float fine_sopra = 1380, fine_sotto = 3300;  // where a car that parks stops
constexpr int prima_fila = 3;  // spaces up to this one lie above the lane, the others below

/// What sees a car that drives up through a barrier, by the car's top in twips.
struct Passaggio {
  float Lasciato;          // the presence sensor is free beyond it
  float Entra_Nel_Raggio;  // the photocell is interrupted from here
  float Esce_Dal_Raggio;   // to here
};
constexpr Passaggio in_entrata = {3780, 3360, 2820}, in_uscita = {840, 300, -240};
constexpr float fuori = -600;  // the car has left the picture

}  // namespace

/// One way through the wall with its motor, and what sees a car there.
struct ctr_Garage::Corsia {
  const char *Sensore, *Lampada_Sensore;
  Morsetto_I Presenza;  ///< of the sensor
  const char *Raggio, *Lampada_Raggio;
  Morsetto_I Interrotto;  ///< of the photocell
  const char *Motore, *Contatto_Termico;
  Morsetto_I Termico;             ///< of the thermal relay
  Morsetto_I Apertura, Chiusura;  ///< of the auxiliary contacts
};

struct ctr_Garage::Contattore {
  Morsetto_Q Uscita;
  Morsetto_I Ingresso;
  const char *Nome, *Contatto;
  Temporizzatore ctr_Garage::*Moto;
  const Corsia* Di;
  bool Ferma;  ///< letting go, it shows the motor at rest even if its twin holds
};

/// A barrier on its way to one of its ends.
struct ctr_Garage::Sbarra {
  const char* Nome;
  float Verso, Limite;
  Morsetto_I Lasciato;  ///< of the limit switch that it leaves
  const char* Spia_Lasciato;
  Morsetto_I Raggiunto;  ///< of the one that it reaches
  const char* Spia_Raggiunto;
  std::int16_t ctr_Garage::*Aperta;
  std::int16_t Alla_Fine;                            ///< that flag at the end
  Temporizzatore ctr_Garage::*Via_Libera = nullptr;  ///< car that then drives, if any
};

// clang-format off
const ctr_Garage::Corsia ctr_Garage::entrata_ = {
    .Sensore = "shI", .Lampada_Sensore = "imgLTI", .Presenza = I(0, 1),
    .Raggio = "linFC(0)", .Lampada_Raggio = "imgLFC0", .Interrotto = I(0, 4),
    .Motore = "imgMI", .Contatto_Termico = "imgFR(0)", .Termico = I(0, 7),
    .Apertura = I(0, 5), .Chiusura = I(0, 6)};
const ctr_Garage::Corsia ctr_Garage::uscita_ = {
    .Sensore = "shU", .Lampada_Sensore = "imgLTU", .Presenza = I(1, 1),
    .Raggio = "linFC(1)", .Lampada_Raggio = "imgLFCU", .Interrotto = I(1, 4),
    .Motore = "imgMU", .Contatto_Termico = "imgFR(1)", .Termico = I(1, 7),
    .Apertura = I(1, 6), .Chiusura = I(1, 5)};

const ctr_Garage::Contattore ctr_Garage::contattori_[] = {
    {.Uscita = Q(0, 0), .Ingresso = I(0, 5), .Nome = "shKM(0)", .Contatto = "imgKMa(0)",
     .Moto = &ctr_Garage::timSBIOpen, .Di = &entrata_, .Ferma = true},
    {.Uscita = Q(0, 1), .Ingresso = I(0, 6), .Nome = "shKM(1)", .Contatto = "imgKMa(1)",
     .Moto = &ctr_Garage::timSBIClose, .Di = &entrata_, .Ferma = false},
    {.Uscita = Q(0, 6), .Ingresso = I(1, 5), .Nome = "shKM(3)", .Contatto = "imgKMa(3)",
     .Moto = &ctr_Garage::timSBUClose, .Di = &uscita_, .Ferma = false},
    {.Uscita = Q(0, 7), .Ingresso = I(1, 6), .Nome = "shKM(2)", .Contatto = "imgKMa(2)",
     .Moto = &ctr_Garage::timSBUOpen, .Di = &uscita_, .Ferma = false},
};

const ctr_Garage::Sbarra ctr_Garage::apre_ingresso_ = {
    .Nome = "shS0", .Verso = 1, .Limite = 1800,
    .Lasciato = I(0, 2), .Spia_Lasciato = "shSQ2", .Raggiunto = I(0, 3), .Spia_Raggiunto = "shSQ3",
    .Aperta = &ctr_Garage::Sbarra_I_Aperta, .Alla_Fine = -1, .Via_Libera = &ctr_Garage::Timer1};
const ctr_Garage::Sbarra ctr_Garage::chiude_ingresso_ = {
    .Nome = "shS0", .Verso = -1, .Limite = 660,
    .Lasciato = I(0, 3), .Spia_Lasciato = "shSQ3", .Raggiunto = I(0, 2), .Spia_Raggiunto = "shSQ2",
    .Aperta = &ctr_Garage::Sbarra_I_Aperta, .Alla_Fine = 0};
const ctr_Garage::Sbarra ctr_Garage::apre_uscita_ = {
    .Nome = "shS1", .Verso = -1, .Limite = 1740,
    .Lasciato = I(1, 2), .Spia_Lasciato = "shSQ5", .Raggiunto = I(1, 3), .Spia_Raggiunto = "shSQ6",
    .Aperta = &ctr_Garage::Sbarra_U_Aperta, .Alla_Fine = -1, .Via_Libera = &ctr_Garage::timOut2};
const ctr_Garage::Sbarra ctr_Garage::chiude_uscita_ = {
    .Nome = "shS1", .Verso = 1, .Limite = 2940,
    .Lasciato = I(1, 3), .Spia_Lasciato = "shSQ6", .Raggiunto = I(1, 2), .Spia_Raggiunto = "shSQ5",
    .Aperta = &ctr_Garage::Sbarra_U_Aperta, .Alla_Fine = 0};
// clang-format on

ctr_Garage::ctr_Garage(Orologio& orologio)
    : Impianto(garage::figure, default_ingressi, Invio::Doppio),
      timSBIOpen(orologio, periodo, [this] { Muovi(apre_ingresso_); }),
      timSBIClose(orologio, periodo, [this] { Muovi(chiude_ingresso_); }),
      timSBUOpen(orologio, periodo, [this] { Muovi(apre_uscita_); }),
      timSBUClose(orologio, periodo, [this] { Muovi(chiude_uscita_); }),
      Timer1(orologio, periodo, [this] { Tick_Timer1(); }),
      Timer2(orologio, periodo, [this] { Tick_Timer2(); }),
      timOut0(orologio, periodo, [this] { Tick_timOut0(); }),
      timOut1(orologio, periodo, [this] { Tick_timOut1(); }),
      timOut2(orologio, periodo, [this] { Tick_timOut2(); }) {
  for (const Contattore& contattore : contattori_) Disegno[contattore.Nome].FillColor = riposo;
  for (const garage::Riga_Lampeggiante& lampada : garage::lampeggianti)
    Disegno[lampada.Nome].FillColor = giallo_scuro;
  for (int n = 0; n < 16; ++n)
    Disegno("etI", n).Caption = "I" + std::to_string(n / 8) + "." + std::to_string(n % 8);
  Disegno["cmdIng"].Caption = "Nuovo Ingresso";
  Disegno["cmdReset"].Caption = "Reset";
  Riposo();

  Monta(garage::pulsanti);
  Disegno["imgPSB(0)"].Clic = [this] { SB1_Premuto(); };
  Disegno["cmdIng"].Clic = [this] { cmdIng(); };
  Disegno["cmdReset"].Clic = [this] { cmdReset(); };
  for (int posto = 1; posto <= Posti; ++posto)
    Disegno("imgM", posto).Clic = [this, posto] { Esci(posto); };
  Disegno[entrata_.Motore].Clic = [this] { Termico(entrata_); };
  Disegno[uscita_.Motore].Clic = [this] { Termico(uscita_); };

  Regolatori["ME_Speed"] = {[this](double valore) {
                              const auto passo = static_cast<float>(std::llrint(valore));
                              Passo_Sbarra = passo;
                              Passo_Auto = passo + 0.8F;
                            },
                            Mai_Scritta, -32768, 32767};
  Regolatori["ME_DisabilitaI"] = {[this](double) {
                                    for (int n = 0; n < 16; ++n)
                                      Disegno("etI", n).ForeColor = grigio;
                                  },
                                  Mai_Scritta};
}

void ctr_Garage::Applica_Uscite() {
  for (const Contattore& contattore : contattori_) {
    if (Uscita_Cambiata(contattore.Uscita)) Comanda(contattore, Uscita(contattore.Uscita) == "1");
  }
  for (const Riga_Lampada& lampada : garage::lampade) {
    if (Uscita_Cambiata(lampada.Uscita)) Mostra(lampada, Uscita(lampada.Uscita));
  }
  for (const garage::Riga_Lampeggiante& lampada : garage::lampeggianti) {
    if (!Uscita_Cambiata(lampada.Uscita)) continue;
    const bool accesa = Uscita(lampada.Uscita) == "1";
    Disegno[lampada.Nome].FillColor = accesa ? giallo : giallo_scuro;
    Disegno[lampada.Nome].Picture = accesa ? "imgLG" : Lampada_Spenta;
  }
}

void ctr_Garage::Comanda(const Contattore& contattore, bool eccitato) {
  Ingresso(contattore.Ingresso, eccitato ? '1' : '0');
  Disegno[contattore.Nome].FillColor = eccitato ? rosso : riposo;
  Disegno[contattore.Contatto].Picture = eccitato ? "imgAuxC" : "imgAuxA";
  const bool gira = eccitato || (!contattore.Ferma && Comandato(*contattore.Di));
  Disegno[contattore.Di->Motore].Picture = gira ? "imgMON" : "imgMOF";
  (this->*contattore.Moto).Enabled(eccitato);
  Invia();
}

void ctr_Garage::Muovi(const Sbarra& sbarra) {
  Figura& barra = Disegno[sbarra.Nome];
  barra.Left = barra.Left + sbarra.Verso * Passo_Sbarra;
  Ingresso(sbarra.Lasciato, '1');
  Fine_Corsa(sbarra.Spia_Lasciato, false);
  if ((barra.Left - sbarra.Limite) * sbarra.Verso >= 0) {
    this->*sbarra.Aperta = sbarra.Alla_Fine;
    Ingresso(sbarra.Raggiunto, '0');
    Fine_Corsa(sbarra.Spia_Raggiunto, true);
    if (sbarra.Via_Libera) (this->*sbarra.Via_Libera).Enabled(true);
  }
  Invia();
}

void ctr_Garage::Fine_Corsa(const char* spia, bool raggiunto) {
  Disegno[spia].FillColor = raggiunto ? rosso : verde_scuro;
  Disegno[spia].Picture = raggiunto ? "raggiunto" : "libero";
}

void ctr_Garage::Corsia_Occupata(const Corsia& corsia, bool occupata) {
  Disegno[corsia.Sensore].FillColor = occupata ? giallo : riposo;
  Disegno[corsia.Lampada_Sensore].Picture = occupata ? "imgLG" : Lampada_Spenta;
  Ingresso(corsia.Presenza, occupata ? '1' : '0');
}

void ctr_Garage::Fotocellula(const Corsia& corsia, bool interrotta) {
  Disegno[corsia.Raggio].FillColor = interrotta ? blu_scuro : giallo;
  Disegno[corsia.Lampada_Raggio].Picture = interrotta ? "imgLG" : Lampada_Spenta;
  Ingresso(corsia.Interrotto, interrotta ? '1' : '0');
}

bool ctr_Garage::Comandato(const Corsia& corsia) const {
  return Ingresso(corsia.Apertura) == '1' || Ingresso(corsia.Chiusura) == '1';
}

// A tripped relay only tells of itself; stopping the motor is the program's work.
void ctr_Garage::Termico(const Corsia& corsia) {
  const bool scatta = Ingresso(corsia.Termico) == '1';
  Disegno[corsia.Motore].Picture = scatta ? "imgMRT" : Comandato(corsia) ? "imgMON" : "imgMOF";
  Disegno[corsia.Contatto_Termico].Picture = scatta ? "aperto" : "chiuso";
  Ingresso(corsia.Termico, scatta ? '0' : '1');
  Invia();
}

// ---- a car comes in -----------------------------------------------------------------------------

void ctr_Garage::cmdIng() {
  entra.Visible = true;
  Corsia_Occupata(entrata_, true);
  Disegno["cmdIng"].Visible = false;
  Auto_Pronta = -1;
  Invia();
}

void ctr_Garage::SB1_Premuto() {
  if (Auto_In_Ingresso == -1 || Auto_Pronta == 0 || Posti_Occupati == Posti) return;
  Auto_In_Ingresso = -1;
  for (std::int16_t posto = Posti; posto >= 1; --posto) {
    if (Posto_Occupato.at(static_cast<std::size_t>(posto)) == 0) Posto_Scelto = posto;
  }
}

void ctr_Garage::Tick_Timer1() {
  entra.Top = entra.Top - Passo_Auto;
  const float y = entra.Top;
  if (y < in_entrata.Lasciato) Corsia_Occupata(entrata_, false);
  if (y < y_corsia) {
    Timer1.Enabled(false);
    Timer2.Enabled(true);
  }
  Fotocellula(entrata_, y < in_entrata.Entra_Nel_Raggio && y > in_entrata.Esce_Dal_Raggio);
  Invia();
}

// Before the first accepted car there is no chosen space, and the hidden car parks nowhere.
void ctr_Garage::Tick_Timer2() {
  const Figura& posto = Disegno("imgM", Posto_Scelto);
  entra.Left = posto.Left;
  if (Posto_Scelto <= prima_fila) {
    entra.Top = entra.Top - Passo_Auto;
    if (entra.Top < fine_sopra) Parcheggia();
  } else {
    entra.Top = entra.Top + passo_retromarcia;
    if (entra.Top >= fine_sotto) Parcheggia();
  }
}

void ctr_Garage::Parcheggia() {
  Timer2.Enabled(false);
  Disegno("imgM", Posto_Scelto).Visible = true;
  entra.Visible = false;
  entra.Left = ingresso_left;
  entra.Top = ingresso_top;
  Posto_Occupato.at(static_cast<std::size_t>(Posto_Scelto)) = -1;
  Conta(1);
  if (Posti_Occupati == Posti) {
    Disegno["EtInf"].Caption = "OCCUPATO";
    Disegno["EtInf"].ForeColor = rosso;
  }
  Disegno["cmdIng"].Visible = true;
  Auto_In_Ingresso = 0;
}

void ctr_Garage::Conta(int variazione) {
  Posti_Occupati = static_cast<std::int16_t>(Posti_Occupati + variazione);
  Disegno["etPosti"].Caption = std::to_string(Posti - Posti_Occupati);
}

void ctr_Garage::Libero() {
  Disegno["EtInf"].Caption = "LIBERO";
  Disegno["EtInf"].ForeColor = verde;
}

// ---- a car goes out -----------------------------------------------------------------------------

void ctr_Garage::Esci(int posto) {
  if (Auto_In_Uscita == -1) return;
  Figura& parcheggiata = Disegno("imgM", posto);
  Posto_Uscita = static_cast<std::int16_t>(posto);
  esce.Left = parcheggiata.Left;
  esce.Top = parcheggiata.Top;
  esce.Visible = true;
  parcheggiata.Visible = false;
  timOut0.Enabled(true);
  Auto_In_Uscita = -1;
}

void ctr_Garage::Tick_timOut0() {
  const bool sopra = Posto_Uscita <= prima_fila;
  esce.Top = esce.Top + (sopra ? Passo_Auto : -Passo_Auto);
  if (sopra ? esce.Top > y_corsia : esce.Top < y_corsia) {
    timOut0.Enabled(false);
    timOut1.Enabled(true);
  }
}

void ctr_Garage::Tick_timOut1() {
  esce.Left = uscita_left;
  esce.Top = esce.Top - Passo_Auto;
  if (esce.Top > uscita_top) return;
  esce.Top = uscita_top;
  timOut1.Enabled(false);
  Corsia_Occupata(uscita_, true);
  Invia();
}

void ctr_Garage::Tick_timOut2() {
  esce.Top = esce.Top - Passo_Auto;
  const float y = esce.Top;
  if (y <= in_uscita.Lasciato) Corsia_Occupata(uscita_, false);
  Fotocellula(uscita_, y < in_uscita.Entra_Nel_Raggio && y > in_uscita.Esce_Dal_Raggio);
  if (y <= fuori) {
    timOut2.Enabled(false);
    esce.Visible = false;
    Posto_Occupato.at(static_cast<std::size_t>(Posto_Uscita)) = 0;
    Conta(-1);
    Disegno["cmdIng"].Visible = true;
    Libero();
    Auto_In_Uscita = 0;
  }
  Invia();
}

// ---- reset --------------------------------------------------------------------------------------

/// No car, closed barriers, nothing tripped: how the picture starts, and what a reset goes back to.
void ctr_Garage::Riposo() {
  for (int posto = 0; posto <= Posti; ++posto) Disegno("imgM", posto).Visible = false;
  entra.Left = ingresso_left;
  entra.Top = ingresso_top;
  esce.Visible = false;
  for (const Corsia* corsia : {&entrata_, &uscita_}) {
    Corsia_Occupata(*corsia, false);
    Fotocellula(*corsia, false);
    Disegno[corsia->Contatto_Termico].Picture = "chiuso";
    Disegno[corsia->Motore].Picture = "imgMOF";
  }
  for (const Sbarra* sbarra : {&chiude_ingresso_, &chiude_uscita_}) {
    Disegno[sbarra->Nome].Left = sbarra->Limite;
    Fine_Corsa(sbarra->Spia_Raggiunto, true);
    Fine_Corsa(sbarra->Spia_Lasciato, false);
  }
  Libero();
  Disegno["etPosti"].Caption = std::to_string(Posti);
  Disegno["cmdIng"].Visible = true;
}

void ctr_Garage::cmdReset() {
  Stato_I(default_ingressi);
  Stato_Q(default_uscite);
  for (Temporizzatore* timer : {&Timer1, &Timer2, &timOut0, &timOut1, &timOut2})
    timer->Enabled(false);
  Riposo();
  Posto_Occupato.fill(0);
  Posti_Occupati = 0;
  Sbarra_I_Aperta = Sbarra_U_Aperta = 0;
  Auto_In_Ingresso = Auto_In_Uscita = Auto_Pronta = 0;
}

}  // namespace tavorno
