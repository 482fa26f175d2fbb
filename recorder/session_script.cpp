// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/session_script.h"

#include <algorithm>
#include <charconv>

#include "plc/byte_text.h"

namespace tavorno {

namespace {

std::string Cifre(double valore) {
  char testo[64];
  return {testo, std::to_chars(testo, std::end(testo), valore).ptr};
}

std::string Fra_Virgolette(std::string_view testo) {
  std::string fuori = "\"";
  for (const char uno : testo) {
    if (uno == '"' || uno == '\\') fuori += '\\';
    if (static_cast<unsigned char>(uno) >= ' ') fuori += uno;
  }
  return fuori + "\"";
}

/// Puts the lines of a case together, with the time that passes between them.
class Copione {
 public:
  std::string Testo;
  int Impianto = -1;

  void Riga(const std::string& riga) {
    if (attesa_ > 0) Testo += "  attendi(" + std::to_string(attesa_) + ")\n";
    attesa_ = 0;
    Testo += "  " + riga + "\n";
  }
  void Passa(std::int64_t ms) { attesa_ += ms; }

  void Ingresso(int barra, std::string_view bit) {
    std::string& prima = ingressi_[static_cast<std::size_t>(barra)];
    for (std::size_t n = 0; n < prima.size() && n < bit.size(); ++n) {
      if (prima[n] == bit[n]) continue;
      prima[n] = bit[n];
      Riga("ingresso(\"I" + std::to_string(barra) + "." + std::to_string(n) + "\", " + bit[n] +
           ")");
    }
  }

  void Comando(Comando_Corsa comando, bool acceso) {
    switch (comando) {
      case Comando_Corsa::Run:
        return Riga("run()");
      case Comando_Corsa::Stop:
        if (acceso) Riga("stop()");
        return;
      case Comando_Corsa::Cont:
        return Riga("modo(\"Cont\")");
      case Comando_Corsa::Ciclo:
        return Riga("modo(\"Ciclo\")");
      case Comando_Corsa::Step:
        return Riga("modo(\"Step\")");
      case Comando_Corsa::Passo:
        if (acceso) Riga("passo()");
        return;
      case Comando_Corsa::Riprendi:
        return Riga("cicli(1)");
      default:
        return;
    }
  }

 private:
  std::int64_t attesa_ = 0;
  std::string ingressi_[2] = {"00000000", "00000000"};
};

}  // namespace

std::string Script_Di(const Seduta_Registrata& registrazione) {
  Orologio orologio;
  Plc plc(orologio);
  Metti_Stato(plc, *registrazione.Programma, registrazione.Stato);
  Copione copione;
  std::string premuta;  // a press and a release over one figure are a click already
  bool rilasciata = false;
  // Heard while the session is played again, so that what the script does at the end is known.
  const Iscrizione ascolto = plc.Hook.Entra.Ascolta([&](const Atto& atto) {
    const std::string nome = Fra_Virgolette(atto.Testo);
    switch (atto.Che) {
      case Cosa::Presente:
        return copione.Passa(atto.Numero - plc.Tempo.Adesso());
      case Cosa::Passano:
        return copione.Passa(atto.Numero);
      case Cosa::Comando:
        return copione.Comando(static_cast<Comando_Corsa>(atto.Indice), plc.PLC_Acceso != 0);
      case Cosa::Ingresso:
        return copione.Ingresso(atto.Indice, atto.Testo);
      case Cosa::Volt_AI:
        return copione.Riga("analogico(" + std::to_string(atto.Indice) + ", " + Cifre(atto.Valore) +
                            ")");
      case Cosa::Forza:
        return copione.Riga("scrivi(" + nome + ", " + Cifre(atto.Valore) + ")");
      case Cosa::Potenziometro:
        return copione.Riga("scrivi(\"SMB" + std::to_string(28 + atto.Indice) + "\", " +
                            std::to_string(atto.Numero) + ")");
      case Cosa::Apri:
        copione.Impianto = atto.Indice;
        return;
      case Cosa::Cursore:
        if (copione.Impianto >= 0) {
          const auto& cursori =
              Tabella_Esercizi()[static_cast<std::size_t>(copione.Impianto)].Cursori;
          if (atto.Indice < std::ssize(cursori))
            copione.Riga("regola(" +
                         Fra_Virgolette(cursori[static_cast<std::size_t>(atto.Indice)].Nome) +
                         ", " + std::to_string(atto.Numero) + ")");
        }
        return;
      case Cosa::Premi:
        premuta = atto.Testo;
        rilasciata = false;
        return copione.Riga("premi(" + nome + ")");
      case Cosa::Rilascia:
        rilasciata = atto.Testo == premuta;
        if (!premuta.empty()) copione.Riga("rilascia(" + nome + ")");
        return;
      case Cosa::Clic:
        if (!rilasciata) copione.Riga("clic(" + nome + ")");
        premuta.clear();
        rilasciata = false;
        return;
      case Cosa::Doppio_Clic:
        return copione.Riga("doppio_clic(" + nome + ")");
      case Cosa::Regola:
        return copione.Riga("regola(" + nome + ", " + Cifre(atto.Valore) + ")");
      default:
        return;
    }
  });
  Replica replica(plc, registrazione.Voci, registrazione.Voci.Inizio);
  replica.In_Giro = registrazione.Stato.In_Giro != Giro::Nessuno;
  replica.Vai();

  std::string verifiche;
  for (int byte = 0; byte < 2; ++byte) {
    for (int bit = 0; bit < 8; ++bit) {
      const std::string punto = "Q" + std::to_string(byte) + "." + std::to_string(bit);
      if (plc.IP_Q[byte].Bit_Dir[bit] != 0)
        verifiche += "  verifica(leggi(\"" + punto + "\") == 1, \"alla fine " + punto +
                     " deve essere acceso\")\n";
    }
  }
  if (verifiche.empty()) verifiche = "  -- alla fine nessuna uscita era accesa\n";
  copione.Riga("-- così è finita la seduta:");
  std::string testo = "-- Una seduta registrata";
  if (!registrazione.Titolo.empty()) testo += " con " + registrazione.Titolo;
  testo += ", come caso di prova.\n\n";
  if (copione.Impianto >= 0) testo += "impianto(" + std::to_string(copione.Impianto) + ")\n\n";
  return testo + "prova(\"seduta registrata\", function()\n" + copione.Testo + verifiche + "end)\n";
}

}  // namespace tavorno
