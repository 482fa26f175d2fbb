// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/lift.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "plants/lift_figures.h"

namespace tavorno {

namespace {

constexpr const char* default_ingressi = "1110100001000001";

constexpr int B1 = 15, SQ5 = 5, SQ6 = 16;  // positions of the inputs

// clang-format off
constexpr Riga_Piano piani[] = {
    {4580, I(0, 0), "T"},
    {3380, I(0, 1), "1"},
    {2180, I(0, 2), "2"},
    {1000, I(0, 3), "3"},
};
// clang-format on

constexpr const char* cabina_e_porte[] = {"imgC", "linFC", "ShP(0)", "ShP(1)", "imgLFC"};

constexpr float capo_funi = 780;  // where both ropes leave their pulleys
constexpr int passo_porte = 10;   // of a leaf, each tick
constexpr int sinistra_chiusa = 660, destra_chiusa = 1200;
constexpr int sinistra_aperta = 180, destra_aperta = 1680;
constexpr float soglia_fotocellula = 620;  // of the left leaf; beyond it nobody fits through
constexpr float twip_per_volt = 500;
constexpr float tetto_vano = 840, fondo_vano = 5400;  // where the shaft ends, twips

constexpr Colore rosso_vivo = Tavolozza(12), verde_vivo = Tavolozza(10);
constexpr Colore verde_scuro = Tavolozza(2), grigio_scuro = Tavolozza(8), nero = Tavolozza(0);

std::string Testo(float valore) {
  std::array<char, 32> cifre{};
  const auto esito = std::to_chars(cifre.data(), cifre.data() + cifre.size(), valore);
  return {cifre.data(), esito.ptr};
}

void Tendi(Figura& fune, float y) {
  fune.Top = std::min(capo_funi, y);
  fune.Height = std::max(1.0F, std::abs(y - capo_funi));
}

}  // namespace

std::span<const Riga_Piano> Piani_Ascensore() {
  return piani;
}

/// What one of the four contactors does, and the key of the service box in its place.
struct ctr_Ascensore::Comando {
  Morsetto_Q Uscita;
  const char *Pulsante, *Caption;
  std::uint8_t Senso;
  const char* Freccia;  ///< of the cabin's motor; nullptr: it moves the doors
};

// clang-format off
const ctr_Ascensore::Comando ctr_Ascensore::comandi_[] = {
    {Q(0, 0), "cmdSu",    "Salita",       1, "imgSu"},
    {Q(0, 1), "cmdGiu",   "Discesa",      0, "imgGiu"},
    {Q(0, 2), "cmdOpen",  "Chiudi Porte", 0, nullptr},  // named crosswise to what they do
    {Q(0, 3), "cmdClose", "Apri Porte",   1, nullptr},
};
// clang-format on

ctr_Ascensore::ctr_Ascensore(Orologio& orologio)
    : Impianto(ascensore::figure, default_ingressi, Invio::Doppio),
      timCab(orologio, 50, [this] { Tick_timCab(); }),
      timP(orologio, 50, [this] { Tick_timP(); }) {
  ME_AIW0 = 0.0F;
  ME_AIW2 = 2.0F;  // not where the cabin stands: nothing has measured it yet

  for (int n = 0; n < 4; ++n) {
    Disegno("EtP", n).Caption = piani[n].EtP;
    Mostra_Piano(n, n == 3);
  }
  Mostra_Porte(4, true);
  Mostra_Porte(5, false);
  Disegno["linFC"].FillColor = nero;
  EtPos.Caption = Testo(imgC.Top / twip_per_volt);
  for (const char* nascosta : {"imgSu", "imgGiu", "imgLFC", "EtPos", "extracorsa"})
    Disegno[nascosta].Visible = false;

  Disegno["Label3"].Caption = "Selettore SA1";
  Disegno["Label5"].Caption = "Cella di Carico";
  Disegno["EtCC"].Caption = "0";

  Monta(ascensore::pulsanti);
  Monta_Selettore();
  Monta_Fotocellula();

  const auto intero = [](double valore) { return static_cast<std::int16_t>(std::llrint(valore)); };
  Regolatori["ME_DeltaS"] = {[this, intero](double passo) { Passo_Cabina = intero(passo); },
                             static_cast<double>(Passo_Cabina), -32768, 32767};
  Regolatori["ME_DeltaP"] = {[this, intero](double zona) { Isteresi = intero(zona); },
                             static_cast<double>(Isteresi), -32768, 32767};
  Regolatori["ME_SpedP"] = {[this, intero](double ms) { timP.Interval(intero(ms)); }, 50, 1, 32767};
  Regolatori["ME_POS"] = {[this](double mostra) { EtPos.Visible = mostra != 0; }};
  Regolatori["UpD1"] = {[this](double volt) {
                          ME_AIW0 = static_cast<float>(volt);
                          Disegno["EtCC"].Caption = Testo(*ME_AIW0);
                          Invia_Con(Disegno["EtCC"].Caption);
                        },
                        0, 0, 10, 1};
}

void ctr_Ascensore::Monta_Selettore() {
  Disegno("etIn", 1).Caption = "1    Ascensore in Funzione";
  Disegno("etIn", 2).Caption = "2    Ascensore in Manutenz.";
  const auto Mostra_Stato = [this] {
    const bool fuori_servizio = Manutenzione != 0;
    Disegno("etIn", 1).ForeColor = fuori_servizio ? nero : rosso_vivo;
    Disegno("etIn", 2).ForeColor = fuori_servizio ? rosso_vivo : nero;
    Disegno["imgCom"].Picture = fuori_servizio ? "imgCD" : "imgCS";
    Disegno["imgLAl"].Picture = fuori_servizio ? "imgLR" : Lampada_Spenta;
  };
  Disegno["imgCom"].Clic = [this, Mostra_Stato] {
    Manutenzione = Manutenzione != 0 ? 0 : -1;
    Mostra_Stato();
  };
  Mostra_Stato();

  for (const Comando& comando : comandi_) {
    Figura& pulsante = Disegno[comando.Pulsante];
    pulsante.Caption = comando.Caption;
    pulsante.Premi = [this, &comando] {
      if (Manutenzione != 0) Comanda(comando, true);
    };
    pulsante.Rilascia = [this, &comando] {
      if (Manutenzione != 0) Comanda(comando, false);
    };
  }
}

void ctr_Ascensore::Monta_Fotocellula() {
  Figura& imgLFC = Disegno["imgLFC"];
  const auto Mostra_Raggio = [this, &imgLFC](bool interrotto) {
    imgLFC.Picture = interrotto ? "interrotta" : "libera";
    Disegno["linFC"].FillColor = interrotto ? Tavolozza(14) : nero;
    Ingresso(B1, interrotto ? '1' : '0');
    Invia();
  };
  imgLFC.Premi = [Mostra_Raggio] { Mostra_Raggio(true); };
  imgLFC.Rilascia = [Mostra_Raggio] { Mostra_Raggio(false); };
}

void ctr_Ascensore::Applica_Uscite() {
  for (const Comando& comando : comandi_) {
    if (Uscita_Cambiata(comando.Uscita)) Comanda(comando, Uscita(comando.Uscita) == "1");
  }
  for (const Riga_Lampada& lampada : ascensore::lampade) {
    if (Uscita_Cambiata(lampada.Uscita)) Mostra(lampada, Uscita(lampada.Uscita));
  }
}

// Up and down share one timer and one direction, and so do open and close: the last of them to
// change decides, whatever the other says.
void ctr_Ascensore::Comanda(const Comando& comando, bool acceso) {
  const bool cabina = comando.Freccia != nullptr;
  if (acceso) (cabina ? Senso_Cabina : Senso_Porte) = comando.Senso;
  (cabina ? timCab : timP).Enabled(acceso);
  Disegno[comando.Pulsante].Picture = acceso ? ascensore::pulsante_giu : ascensore::pulsante_su;
  if (!cabina) return;
  Disegno["imgM"].Picture = acceso ? "imgMON" : "imgMOF";
  Disegno[comando.Freccia].Visible = acceso;
}

void ctr_Ascensore::Tick_timCab() {
  ME_AIW2 = imgC.Top / twip_per_volt;
  EtPos.Caption = Testo(*ME_AIW2);

  const auto passo = static_cast<float>(Senso_Cabina == 0 ? Passo_Cabina : -Passo_Cabina);
  for (const char* nome : cabina_e_porte) {
    Figura& parte = Disegno[nome];
    parte.Top = parte.Top + passo;
  }
  imgP.Top = imgP.Top - passo;
  Tendi(Disegno["lin2"], imgC.Top);
  Tendi(Disegno["lin1"], imgP.Top);
  Disegno["extracorsa"].Visible = imgC.Top < tetto_vano || imgC.Top + imgC.Height > fondo_vano;

  const long long posizione = std::llrint(imgC.Top);
  for (int n = 0; n < 4; ++n) {
    const bool in_zona =
        piani[n].Centro - Isteresi < posizione && posizione < piani[n].Centro + Isteresi;
    Ingresso(piani[n].Ingresso, in_zona ? '0' : '1');
    Mostra_Piano(n, in_zona);
  }
  Stato_I(std::string(Stato_I()));
  Invia_Con(EtPos.Caption);
}

void ctr_Ascensore::Mostra_Piano(int indice, bool in_zona) {
  Disegno("imgSC", indice).Picture = in_zona ? "acceso" : "spento";
  Disegno("shFcP", indice).FillColor = in_zona ? rosso_vivo : grigio_scuro;
  Disegno("EtP", indice).ForeColor = in_zona ? rosso_vivo : nero;
}

void ctr_Ascensore::Mostra_Porte(int indice, bool azionato) {
  Disegno("shFcP", indice).Picture = azionato ? "acceso" : "spento";
  Disegno("shFcP", indice).FillColor = azionato ? verde_vivo : verde_scuro;
}

void ctr_Ascensore::Tick_timP() {
  const int verso = Senso_Porte == 0 ? 1 : -1;
  const long long sinistra = std::llrint(porta_sinistra.Left) + verso * passo_porte;
  const long long destra = std::llrint(porta_destra.Left) - verso * passo_porte;
  Stato_Porte = 2;
  if (Senso_Porte == 0 && (sinistra > sinistra_chiusa || destra < destra_chiusa)) Stato_Porte = 1;
  if (Senso_Porte == 1 && (sinistra < sinistra_aperta || destra > destra_aperta)) Stato_Porte = 0;
  porta_sinistra.Left = static_cast<float>(sinistra);
  porta_destra.Left = static_cast<float>(destra);

  Disegno["imgLFC"].Visible = porta_sinistra.Left < soglia_fotocellula;

  const bool chiuse = sinistra >= sinistra_chiusa;
  Ingresso(SQ5, chiuse ? '1' : '0');
  Mostra_Porte(4, chiuse);
  const bool aperte = Stato_Porte == 0;
  Ingresso(SQ6, aperte ? '0' : '1');
  Mostra_Porte(5, aperte);
  Invia();
}

void ctr_Ascensore::Invia_Con(const std::string& testo) {
  // What precedes the digits makes a new voltage heard by itself.
  txtC(testo + Stato_Q() + Stato_I());
}

}  // namespace tavorno
