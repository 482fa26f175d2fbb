// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/stirred_tank.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "plc/number_text.h"

namespace tavorno {

namespace {

constexpr int uscite = 16;                 // outputs
constexpr int intervallo_agitatore = 200;  // ms
// Litres below which a fill tick finds the tank empty. A drain tick of two of the three has
// another limit, and that is so on the machines.
constexpr int vuoto_carico = 2;
constexpr float twip_per_tick = 5;  // a litre takes two fill ticks, and one drain tick
constexpr float capacita = 160;     // litres at 10 V
constexpr Colore accesa = 255;
constexpr Colore spenta = 16512;

}  // namespace

Serbatoio_Agitato::Serbatoio_Agitato(const Schema_Serbatoio& schema, Orologio& orologio)
    : Impianto(schema.Figure, schema.Stato_I, Invio::Doppio),
      schema_(schema),
      mandate_(Crea_Mandate(orologio)),
      timP3_(orologio, schema.Scarico.Intervallo, [this] { Tick_Scarico(); }),
      timDos_(orologio, intervallo_agitatore, [this] {
        ShDos.FillStyle = ShDos.FillStyle == 5 ? 4 : 5;
        ShDos.Picture = ShDos.FillStyle == 5 ? "imgDos5" : "imgDos4";
      }) {
  Mostra_Liquido(0);
  Colora_Liquido(Prodotti[0]);
  for (std::size_t n = 0; n < mandate_.size(); ++n) Tinta_Mandata(n, Prodotti[n]);
  etcap.Caption = "0";
  etcap.ForeColor = Verde_Display;
  ME_AIW0 = 0.0F;
  Mostra_Livello(schema.Righe_Livello.front());
  for (Mandata& linea : mandate_) {
    linea.EtP.Caption = "0";
    linea.EtP.ForeColor = Verde_Display;
    Monta_Velocita(linea.Riga.Velocita, linea.Timer);
    if (linea.Riga.Spruzzo) Disegno[linea.Riga.Spruzzo].Visible = false;
  }
  Monta_Velocita(schema.Scarico, timP3_);
  Monta(schema.Pulsanti);
  Monta(schema.Commutatori);
  for (const Riga_Termico& riga : schema.Termici) Monta_Termico(riga);
}

Serbatoio_Agitato::Mandata::Mandata(const Riga_Mandata& riga, Scena& disegno, Orologio& orologio,
                                    std::function<void()> tick)
    : Riga(riga),
      imgTr(disegno[riga.imgTr]),
      EtP(disegno[riga.EtP]),
      Timer(orologio, riga.Velocita.Intervallo, std::move(tick)) {}

std::deque<Serbatoio_Agitato::Mandata> Serbatoio_Agitato::Crea_Mandate(Orologio& orologio) {
  std::deque<Mandata> linee;
  for (const Riga_Mandata& riga : schema_.Mandate)
    linee.emplace_back(riga, Disegno, orologio, [this, n = linee.size()] { Riempi(mandate_[n]); });
  return linee;
}

void Serbatoio_Agitato::Monta_Velocita(const Riga_Velocita& riga, Temporizzatore& timer) {
  int& proprieta = velocita_[riga.Nome] = riga.Valore;
  Regolatori[riga.Nome] = {.Cambia =
                               [&proprieta, &timer](double valore) {
                                 proprieta = static_cast<int>(valore);
                                 timer.Interval(proprieta);
                               },
                           .Valore = Mai_Scritta};
}

// Neither trip nor reset changes what the motor does.
void Serbatoio_Agitato::Monta_Termico(const Riga_Termico& riga) {
  Disegno[riga.Motore].Clic = [this, &riga, scattato = false]() mutable {
    scattato = !scattato;
    Disegno[riga.Motore].Picture = scattato ? "imgFR" : Motore(false);
    Disegno[riga.imgFR].Picture = scattato ? "aperto" : "chiuso";
    Ingresso(riga.Ingresso, scattato ? '0' : '1');
    Invia();
  };
}

void Serbatoio_Agitato::Applica_Uscite() {
  for (int uscita = 1; uscita <= uscite; ++uscita) {
    if (!Uscita_Cambiata(uscita)) continue;
    const auto lampada = std::ranges::find(schema_.Lampade, uscita, &Riga_Lampada::Uscita);
    if (lampada != schema_.Lampade.end())
      Mostra(*lampada, Uscita(uscita));
    else
      Comanda(uscita, Uscita(uscita) == "1");
  }
}

// ---- filling ------------------------------------------------------------------------------------

void Serbatoio_Agitato::Comanda_Pompa(std::size_t linea, bool accesa_ora) {
  mandate_[linea].Pompa_On = accesa_ora;
  Disegno[mandate_[linea].Riga.Pompa].Picture = Motore(accesa_ora);
  Controlla_Flusso(linea);
}

void Serbatoio_Agitato::Comanda_Valvola(std::size_t linea, bool aperta) {
  mandate_[linea].Valvola_On = aperta;
  Disegno[mandate_[linea].Riga.Valvola].Picture = Elettrovalvola(aperta);
  Controlla_Flusso(linea);
}

void Serbatoio_Agitato::Controlla_Flusso(std::size_t linea) {
  const Mandata& questa = mandate_[linea];
  const bool scorre = questa.Pompa_On && questa.Valvola_On;
  Disegno[questa.Riga.Tubi].Picture = Tubo(scorre);
  Disegno[questa.Riga.Spruzzo].Visible = scorre;
  if (scorre)
    Avvia_Carico(linea);
  else
    Ferma_Carico(linea);
}

void Serbatoio_Agitato::Avvia_Carico(std::size_t linea) {
  mandate_[linea].EtP.Caption = "0";
  mandate_[linea].Timer.Enabled(true);
}

// The half of a litre that has run stays: the next flow goes on with it.
void Serbatoio_Agitato::Ferma_Carico(std::size_t linea) {
  Mandata& questa = mandate_[linea];
  questa.Timer.Enabled(false);
  questa.imgTr.Picture = "imgTrOF";
  Ingresso(questa.Riga.Impulsi, '0');
  Invia();
}

void Serbatoio_Agitato::Riempi(Mandata& linea) {
  if (Prodotto_Ok) {
    Colora_Liquido(Mescola(imgLiquido.FillColor, shL.Height, linea.Prodotto, twip_per_tick));
    Mostra_Liquido(shL.Height + twip_per_tick);
  }
  const bool impulso = !linea.Alto && Prodotto_Ok;
  linea.Alto = !linea.Alto;
  linea.imgTr.Picture = impulso ? "imgTrON" : "imgTrOF";
  Ingresso(linea.Riga.Impulsi, impulso ? '1' : '0');
  if (impulso) {
    linea.EtP.Caption = std::to_string(Numero_Decimale(linea.EtP.Caption()).value_or(0) + 1);
    if (livello_ < std::numeric_limits<std::int16_t>::max()) ++livello_;
  }
  etcap.Caption = std::to_string(livello_);
  Aggiorna_Analogici();
  Aggiorna_Livello(vuoto_carico);
  Invia();
}

// ---- draining -----------------------------------------------------------------------------------

void Serbatoio_Agitato::Scarica(bool attivo) {
  timP3_.Enabled(attivo);
  Disegno[schema_.Tubo_Scarico].Picture = Tubo(attivo && livello_ > 0);
}

void Serbatoio_Agitato::Comanda_Caduta(bool aperta) {
  Disegno[schema_.Valvola_Scarico].Picture = Elettrovalvola(aperta);
  Scarica(aperta && !vasca_vuota_);
}

// Over an empty tank the timer runs on: what comes in meanwhile goes out at once.
void Serbatoio_Agitato::Tick_Scarico() {
  livello_ = static_cast<std::int16_t>(std::max(livello_ - 1, 0));
  etcap.Caption = std::to_string(livello_);
  Aggiorna_Analogici();
  Mostra_Liquido(std::max(std::rint(shL.Height()) - 2 * twip_per_tick, 0.0F));
  Aggiorna_Livello(schema_.Vuoto_Scarico);
  Disegno[schema_.Tubo_Scarico].Picture = Tubo(livello_ > 0);
  Scaricato(vasca_vuota_ != 0);
  Invia();
}

// ---- what the tank says -------------------------------------------------------------------------

void Serbatoio_Agitato::Aggiorna_Livello(int vuoto) {
  const bool e_vuota = livello_ < vuoto;
  vasca_vuota_ = e_vuota ? -1 : 0;
  const auto righe = schema_.Righe_Livello;
  const auto riga = std::find_if(righe.begin() + (e_vuota ? 0 : 1), righe.end(),
                                 [&](const auto& r) { return e_vuota || livello_ <= r.Fino_A; });
  for (std::size_t n = 0; const int ingresso : schema_.Livelli)
    Ingresso(ingresso, riga->Cifre[n++]);
  Mostra_Livello(*riga);
}

// A body without height could not be stretched: one twip stays, behind the bottom of the tank.
void Serbatoio_Agitato::Mostra_Liquido(float altezza) {
  shL.Height = altezza;
  shL.Top = schema_.Fondo - altezza;
  imgLiquido.Height = std::clamp(altezza, 1.0F, schema_.Fondo);
  imgLiquido.Top = schema_.Fondo - imgLiquido.Height;
}

void Serbatoio_Agitato::Colora_Liquido(Colore miscela) {
  imgLiquido.FillColor = miscela;
  Disegno[schema_.Tubo_Scarico].FillColor = miscela;
}

Colore Serbatoio_Agitato::Mescola(Colore uno, double parti_uno, Colore altro, double parti_altro) {
  const double tutte = parti_uno + parti_altro;
  if (tutte <= 0) return altro;
  Colore miscela = 0;
  for (const unsigned canale : {0U, 8U, 16U}) {
    const double a = uno >> canale & 0xFFU;
    const double b = altro >> canale & 0xFFU;
    // Upwards from one and downwards to the other, so that small parts are not lost.
    const double tra = (a * parti_uno + b * parti_altro) / tutte;
    miscela |= static_cast<Colore>(b > a ? std::ceil(tra) : std::floor(tra)) << canale;
  }
  return miscela;
}

void Serbatoio_Agitato::Mostra_Livello(const Riga_Livello& riga) {
  for (int n = 0; riga.Spie[n]; ++n) {
    Figura& spia = Disegno("imgTL", n);
    const bool azionata = riga.Spie[n] == '1';
    spia.FillColor = azionata ? accesa : spenta;
    spia.Picture = azionata ? "accesa" : "spenta";
  }
  if (schema_.etTL) Disegno[schema_.etTL].Caption = riga.Cifre;
}

void Serbatoio_Agitato::Aggiorna_Analogici() {
  ME_AIW0 = Volt(Disegno[schema_.etAI], static_cast<float>(livello_) * 10 / capacita);
}

float Serbatoio_Agitato::Volt(Figura& etichetta, float volt) {
  etichetta.Caption = Formato(static_cast<double>(volt), "#0.0#");
  return volt;
}

void Serbatoio_Agitato::Mostra_Vapore(bool aperto, const char* tubo) {
  Disegno["imgV4"].Picture = Elettrovalvola(aperto);
  Disegno[tubo].Picture = Tubo(aperto);
  Disegno["imgSp(2)"].Visible = aperto;
}

void Serbatoio_Agitato::Agita(bool acceso) {
  timDos_.Enabled(acceso);
  Disegno[schema_.Motore_Agitatore].Picture = Motore(acceso);
}

}  // namespace tavorno
