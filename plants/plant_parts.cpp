// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/parts.h"
#include "plants/plant.h"

namespace tavorno {

void Impianto::Monta(std::span<const Riga_Pulsante> righe) {
  for (const Riga_Pulsante& riga : righe) {
    Figura& figura = Disegno[riga.Nome];
    figura.Premi = [this, &figura, riga] {
      figura.Picture = riga.Picture_Giu;
      Ingresso(riga.Posizione, riga.Giu);
      Invia();
    };
    figura.Rilascia = [this, &figura, riga] {
      figura.Picture = riga.Picture_Su;
      Ingresso(riga.Posizione, riga.Su);
      Invia();
    };
  }
}

void Impianto::Monta(std::span<const Riga_Commutatore> righe) {
  for (const Riga_Commutatore& riga : righe) {
    Figura& figura = Disegno[riga.Nome];
    figura.Clic = [this, &figura, riga, azionato = false]() mutable {
      azionato = !azionato;
      figura.Picture = azionato ? riga.Picture_Azionato : riga.Picture_Riposo;
      Ingresso(riga.Posizione, azionato ? riga.Azionato : riga.Riposo);
      Invia();
    };
  }
}

void Impianto::Monta_Emergenza(int ingresso) {
  Figura& ImgEm = Disegno["ImgEm"];
  Figura& imgCEM = Disegno["imgCEM"];
  ImgEm.Premi = [&ImgEm] { ImgEm.Picture = "imgRON"; };
  ImgEm.Rilascia = [&ImgEm] { ImgEm.Picture = "imgROFF"; };
  ImgEm.Clic = [this, &imgCEM, ingresso, inserito = false]() mutable {
    inserito = !inserito;
    imgCEM.Picture = inserito ? "imgCA" : "imgCC";
    Ingresso(ingresso, inserito ? '0' : '1');
    Invia();
  };
}

void Impianto::Mostra(const Riga_Lampada& lampada, std::string_view stato) {
  Disegno[lampada.Nome].Picture = stato == "1" ? lampada.Picture : Lampada_Spenta;
}

void Impianto::Mostra(const Riga_Contattore& contattore, bool eccitato) {
  Disegno[contattore.Nome].Picture = eccitato ? "imgKMON" : "imgKMOF";
  Disegno[contattore.Contatto].Picture = eccitato ? "imgAuxC" : "imgAuxA";
  Disegno[contattore.Filo].FillColor = Tavolozza(eccitato ? 12 : 15);
  Ingresso(contattore.Ingresso, eccitato ? '1' : '0');
}

}  // namespace tavorno
