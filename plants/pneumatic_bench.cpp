// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/pneumatic_bench.h"

#include "plc/fatal.h"

namespace tavorno {

namespace {

constexpr Colore pressione = Tavolozza(10);
constexpr Colore scarico = Tavolozza(12);

constexpr float passo_iniziale = 20;  // twips per tick, and for each step of the regulators

const char* Spia(bool accesa) {
  return accesa ? "imgLON" : "imgLOF";
}
const char* Tasto_Set(bool giu) {
  return giu ? "imgP1(1)" : "imgP1(0)";
}
const char* Tasto_Reset(bool giu) {
  return giu ? "imgP1(2)" : "imgP1(3)";
}

std::string Numerata(const char* nome, std::size_t indice) {
  return nome + ("(" + std::to_string(indice) + ")");
}

}  // namespace

Banco_Pneumatico::Cilindro::Cilindro(Banco_Pneumatico& banco, const Riga_Cilindro& riga,
                                     std::size_t numero, Orologio& orologio)
    : Riga(riga),
      Pistone(banco.Disegno[riga.Pistone]),
      Spola(banco.Disegno[riga.Valvola]),
      Micro_Meno(banco.Disegno[riga.Micro_Meno]),
      Micro_Piu(banco.Disegno[riga.Micro_Piu]),
      Linee_Piu(banco.Disegno[Numerata("linP", numero)]),
      Linee_Meno(banco.Disegno[Numerata("linM", numero)]),
      Timer(orologio, banco.schema_.Periodo, [&banco, numero] { banco.Muovi(numero); }) {}

Banco_Pneumatico::Banco_Pneumatico(const Schema_Pneumatico& schema, Orologio& orologio)
    : Impianto(schema.Figure, schema.Stato_I, Invio::Doppio), schema_(schema) {
  passo_.fill(passo_iniziale);
  for (const Riga_Cilindro& riga : schema.Cilindri)
    cilindri_.emplace_back(*this, riga, cilindri_.size(), orologio);
  Monta(schema.Pulsanti);
  Monta(std::span(&schema.Selettore, 1));
  Monta_Comandi();
  Monta_Velocita();
  Aria("0");
}

// What the hand does on the bench itself, without any program.
void Banco_Pneumatico::Monta_Comandi() {
  Figura& cmdDis = Disegno["cmdDis"];
  cmdDis.Caption = schema_.Voce_Aria;
  cmdDis.Premi = [this] { Aria("1"); };
  cmdDis.Rilascia = [this] { Aria("0"); };

  for (int n = 0; const Riga_Cilindro& riga : schema_.Cilindri) {
    Figura& cmd_set = Disegno[riga.Cmd_Set];
    cmd_set.Caption = schema_.Voce_Set;
    cmd_set.Premi = [this, n] { Set_Valvola(n, "1"); };
    cmd_set.Rilascia = [this, n] { Set_Valvola(n, "0"); };
    if (riga.Uscita_Reset) {
      Figura& cmd_reset = Disegno[riga.Cmd_Reset];
      cmd_reset.Caption = schema_.Voce_Reset;
      cmd_reset.Premi = [this, n] { Reset_Valvola(n, "1"); };
      cmd_reset.Rilascia = [this, n] { Reset_Valvola(n, "0"); };
    }
    ++n;
  }

  Monta_Emergenza(schema_.Ingresso_Emergenza);
}

void Banco_Pneumatico::Monta_Velocita() {
  if (!schema_.UpDP) {
    Regolatori["ME_Speed"] = {
        [this](double velocita) { passo_.fill(static_cast<float>(velocita) * passo_iniziale); }, 1};
    return;
  }
  const std::size_t quanti = 2 * cilindri_.size();
  const auto Calcola = [this](std::size_t n) {
    passo_.at(n) = static_cast<float>(Regolatori[Numerata("UpDP", n)].Valore) * passo_iniziale *
                   static_cast<float>(Regolatori["ME_Speed"].Valore);
  };
  Regolatori["ME_Speed"] = {[Calcola, quanti](double) {
                              for (std::size_t n = 0; n < quanti; ++n) Calcola(n);
                            },
                            1};
  for (std::size_t n = 0; n < quanti; ++n) {
    Figura& etichetta = Disegno[Numerata("EtP", n)];
    etichetta.Caption = "1";
    Regolatori[Numerata("UpDP", n)] = {[Calcola, n, &etichetta](double valore) {
                                         etichetta.Caption =
                                             std::to_string(static_cast<int>(valore));
                                         Calcola(n);
                                       },
                                       1, 1, 9, 1};
  }
}

void Banco_Pneumatico::Aria(std::string_view stato) {
  aria_ = stato == "1";
  imgV0.Left = aria_ ? schema_.Aria_Aperta : schema_.Aria_Chiusa;
  imgV0.Picture = aria_ ? "imgV0ON" : "imgV0OF";
  Disegno["cmdDis"].Picture = Tasto_Set(aria_);
  Disegno["linT"].FillColor = aria_ ? pressione : scarico;
  for (Cilindro& cilindro : cilindri_) {
    if (!aria_) {
      cilindro.Timer.Enabled(false);
      cilindro.Linee_Piu.FillColor = scarico;
      cilindro.Linee_Meno.FillColor = scarico;
    } else {
      Pressione(cilindro);
      // A stroke that the loss of air cut goes on towards where the valve stands now.
      if (cilindro.Stato != (cilindro.Valvola ? Esteso : Arretrato)) Avvia(cilindro);
    }
  }
}

void Banco_Pneumatico::Set_Valvola(int cilindro, std::string_view stato) {
  Cilindro& scelto = cilindri_[Posto(cilindro)];
  const bool eccitata = stato == "1";
  Disegno[scelto.Riga.Cmd_Set].Picture = Tasto_Set(eccitata);
  if (eccitata)
    Comanda(scelto, true);
  else if (!scelto.Riga.Uscita_Reset)
    Comanda(scelto, false);  // the spring brings it back
}

void Banco_Pneumatico::Reset_Valvola(int cilindro, std::string_view stato) {
  Cilindro& scelto = cilindri_[Posto(cilindro)];
  const bool eccitata = stato == "1";
  Disegno[scelto.Riga.Cmd_Reset].Picture = Tasto_Reset(eccitata);
  if (eccitata) Comanda(scelto, false);
}

void Banco_Pneumatico::Comanda(Cilindro& cilindro, bool set) {
  cilindro.Valvola = set;
  cilindro.Spola.Left = set ? cilindro.Riga.Left_Set : cilindro.Riga.Left_Reset;
  cilindro.Spola.Picture = set ? cilindro.Riga.Picture_Set : cilindro.Riga.Picture_Reset;
  if (!aria_) return;
  Pressione(cilindro);
  Avvia(cilindro);  // at its end already it runs for one tick
}

void Banco_Pneumatico::Pressione(Cilindro& cilindro) {
  cilindro.Linee_Piu.FillColor = cilindro.Valvola ? pressione : scarico;
  cilindro.Linee_Meno.FillColor = cilindro.Valvola ? scarico : pressione;
}

void Banco_Pneumatico::Avvia(Cilindro& cilindro) {
  cilindro.Estende = cilindro.Valvola;
  cilindro.Timer.Enabled(true);
}

void Banco_Pneumatico::Muovi(std::size_t numero) {
  Cilindro& cilindro = cilindri_[numero];
  const Riga_Cilindro& riga = cilindro.Riga;
  float x = cilindro.Pistone.Left;
  cilindro.Stato = In_Moto;
  if (cilindro.Estende) {
    cilindro.Micro_Meno.Picture = Spia(false);
    Ingresso(riga.Ingresso_Meno, '0');
    x += passo_.at(2 * numero);
    // Strictly beyond: a piston that lands on the limit runs one tick more.
    if (x > riga.Esteso) {
      x = riga.Esteso;
      cilindro.Micro_Piu.Picture = Spia(true);
      Ingresso(riga.Ingresso_Piu, '1');
      cilindro.Timer.Enabled(false);
      cilindro.Stato = Esteso;
    }
  } else {
    cilindro.Micro_Piu.Picture = Spia(false);
    Ingresso(riga.Ingresso_Piu, '0');
    x -= passo_.at(2 * numero + 1);
    if (x < riga.Arretrato) {
      x = riga.Arretrato;
      cilindro.Micro_Meno.Picture = Spia(true);
      Ingresso(riga.Ingresso_Meno, '1');
      cilindro.Timer.Enabled(false);
      cilindro.Stato = Arretrato;
    }
  }
  cilindro.Pistone.Left = x;
  Invia();
}

std::size_t Banco_Pneumatico::Posto(int cilindro) const {
  const auto posto = static_cast<std::size_t>(cilindro);
  if (posto >= cilindri_.size()) Fatale_Indice("cilindri", cilindro);
  return posto;
}

void Banco_Pneumatico::Applica_Uscite() {
  Aria(Uscita(schema_.Uscita_Aria));
  for (int n = 0; const Riga_Cilindro& riga : schema_.Cilindri) {
    Set_Valvola(n, Uscita(riga.Uscita_Set));
    if (riga.Uscita_Reset) Reset_Valvola(n, Uscita(riga.Uscita_Reset));
    ++n;
  }
  for (const Riga_Lampada& lampada : schema_.Lampade) Mostra(lampada, Uscita(lampada.Uscita));
}

}  // namespace tavorno
