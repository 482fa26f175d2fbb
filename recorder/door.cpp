// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/door.h"

#include <cmath>

#include "recorder/analog_exchange.h"
#include "trace/address.h"

namespace tavorno {

bool Forza(Plc& plc, const std::string& indirizzo, double valore) {
  const std::optional<Indirizzo> cella = Leggi_Indirizzo(indirizzo);
  if (!cella || !std::isfinite(valore)) return false;
  // What does not fit must not enter; and a plant hears of an output that is set once, not thrice.
  if (!Sta_In_Cella(*cella, valore)) return false;
  plc.Hook.Entra({.Che = Cosa::Forza, .Valore = valore, .Testo = indirizzo});
  return Scrivi_Cella(plc, *cella, valore);
}

void Fai_Entrare(const Atto& entrata, Plc& plc, Collegamento* impianto) {
  if (entrata.Che == Cosa::Forza) {
    Forza(plc, std::string(entrata.Testo), entrata.Valore);
  } else if (!Dell_Impianto(entrata.Che)) {
    plc.Entra(entrata);
  } else if (impianto) {
    if (entrata.Che == Cosa::Carica)
      impianto->Carica();
    else
      impianto->Entra(entrata);
  }
}

bool Fa_Correre(const Atto& entrata, const Plc& plc) {
  if (entrata.Che != Cosa::Comando) return false;
  const auto comando = static_cast<Comando_Corsa>(entrata.Indice);
  if (plc.In_Giro() != Giro::Nessuno) return comando == Comando_Corsa::Passo;
  switch (comando) {
    case Comando_Corsa::Run:
      return plc.Modo_Run != Modo::Step;
    case Comando_Corsa::Cont:
      return plc.PLC_Acceso != 0;
    case Comando_Corsa::Continua:
      return plc.In_Pausa();
    case Comando_Corsa::Passo:
    case Comando_Corsa::Riprendi:
      return true;
    default:
      return false;
  }
}

namespace {

bool Tra(std::int64_t numero, std::int64_t minimo, std::int64_t massimo) {
  return numero >= minimo && numero <= massimo;
}

bool Bit(std::string_view testo) {
  return testo.size() == 8 && testo.find_first_not_of("01") == std::string_view::npos;
}

}  // namespace

std::string Motivo_Di_Rifiuto(const Atto& e, const Collegamento* impianto) {
  constexpr std::int64_t un_giorno = 86'400'000;
  const bool buona = [&] {
    switch (e.Che) {
      case Cosa::Passano:
        return Tra(e.Numero, 0, un_giorno);
      case Cosa::Salta:
        return Tra(e.Numero, 1, INT32_MAX);
      case Cosa::Comando:
        return Tra(e.Indice, 0, Comandi_Corsa - 1);
      case Cosa::Ingresso:
        return Tra(e.Indice, 0, 1) && Bit(e.Testo);
      case Cosa::Volt_AI:
        return Tra(e.Indice, 0, 2) && std::abs(e.Valore) <= 1e6;
      case Cosa::Potenziometro:
        return Tra(e.Indice, 0, 1) && Tra(e.Numero, 0, 255);
      case Cosa::Scelta:
        return Tra(e.Indice, 0, Scelte_Pannello - 1) && Tra(e.Numero, INT32_MIN, INT32_MAX);
      case Cosa::Aspetto_LED:
        return Tra(e.Indice, 0, 255) && Tra(e.Numero, 0, 255);
      case Cosa::Periodo:
        return Tra(e.Numero, 1, INT16_MAX);
      case Cosa::Forza:
        return Leggi_Indirizzo(e.Testo).has_value() && std::isfinite(e.Valore);
      case Cosa::Apri: {
        const auto esercizi = Tabella_Esercizi();
        return !impianto && Tra(e.Indice, 0, std::ssize(esercizi) - 1) &&
               esercizi[static_cast<std::size_t>(e.Indice)].Crea;
      }
      case Cosa::Cursore: {
        if (!impianto) return false;
        const auto& cursori = impianto->Tabella().Cursori;
        return Tra(e.Indice, 0, std::ssize(cursori) - 1) && Tra(e.Numero, INT32_MIN, INT32_MAX);
      }
      case Cosa::Uscita:
        return Dello_Scambio(e) ? Scambio_Possibile(e)
                                : Tra(e.Indice, 0, 1) && Tra(e.Numero, 0, 255);
      case Cosa::Regola:
        return impianto && std::isfinite(e.Valore);
      default:
        return !Dell_Impianto(e.Che) || impianto;
    }
  }();
  if (buona) return "";
  return "una voce del giornale (genere " + std::to_string(static_cast<int>(e.Che)) +
         ") non si può rifare: valori fuori campo o impianto non aperto";
}

}  // namespace tavorno
