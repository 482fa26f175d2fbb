// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/star_delta.h"

#include "plc/fatal.h"

namespace tavorno {

ST::ST(const Schema_Avviatore& schema)
    : Impianto(schema.Figure, schema.Stato_I, Invio::Se_Diverso), schema_(schema) {
  Disegno["imgS"].Visible = false;
  Disegno["imgT"].Visible = false;
  Monta(schema.Pulsanti);
  Monta(schema.Termici);
  for (std::int16_t n = 0; const Riga_Contattore& contattore : schema.Contattori) {
    Disegno[contattore.Nome].Doppio_Clic = [this, n] {
      KM_Stato(n, eccitati_[static_cast<std::size_t>(n)] ? "0" : "1");
    };
    ++n;
  }
}

void ST::KM_Stato(std::int16_t indice, std::string_view stato) {
  const auto n = static_cast<std::size_t>(indice);
  if (n >= schema_.Contattori.size()) Fatale_Indice("KM", indice);
  eccitati_[n] = stato != "0";
  Mostra(schema_.Contattori[n], eccitati_[n]);
  Mostra_Motori();
  Invia();
}

void ST::Mostra_Motori() {
  const auto [km1, km3, km2, km4] = eccitati_;
  // Star and delta together would be a short circuit; the picture shows delta.
  const bool triangolo = km1 && km3;
  const bool stella = km1 && km2 && !triangolo;
  Disegno["imgM"].Picture = triangolo || stella ? "imgMON" : "imgMOFF";
  // The ends W2, U2, V2 of the windings hang on both.
  Disegno["nodo"].FillColor = Tavolozza(km2 || km3 ? 12 : 15);
  Disegno["imgT"].Visible = triangolo;
  Disegno["imgS"].Visible = stella;
  if (Figura* imgM2 = Disegno.Trova("imgM2")) imgM2->Picture = km4 ? "imgM1ON" : "imgM1OFF";
}

void ST::Applica_Uscite() {
  for (std::int16_t n = 0; const Riga_Contattore& contattore : schema_.Contattori)
    KM_Stato(n++, Uscita(contattore.Uscita));
  for (const Riga_Lampada& lampada : schema_.Lampade) Mostra(lampada, Uscita(lampada.Uscita));
}

}  // namespace tavorno
