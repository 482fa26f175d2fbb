// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/typed.h"

#include <algorithm>
#include <cctype>

#include "awl/checker.h"
#include "awl/diagnostic.h"
#include "awl/operand.h"
#include "awl/screen_rows.h"
#include "awl/text.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

/// "I0.1", "VW2", "+10": what no mnemonic looks like.
bool Solo_Operandi(const std::string& parola) {
  if (Cerca_Istruzione(parola)) return false;
  const Operando parti = Split_Operando(parola);
  const bool cifre =
      std::ranges::any_of(parti.Numero, [](unsigned char c) { return std::isdigit(c) != 0; });
  return cifre && parola.find('=') == std::string::npos && parola.find('<') == std::string::npos &&
         parola.find('>') == std::string::npos;
}

/// Blanks and commas in any number are as good as one comma.
std::string In_Ordine(std::string_view testo) {
  std::string ordinata;
  int parole = 0;
  for (std::size_t n = 0; n < testo.size();) {
    const std::size_t inizio = testo.find_first_not_of(" \t,", n);
    if (inizio == std::string_view::npos) break;
    const std::size_t fine = std::min(testo.find_first_of(" \t,", inizio), testo.size());
    ordinata += parole == 0 ? "" : parole == 1 ? " " : ",";
    ordinata += testo.substr(inizio, fine - inizio);
    ++parole;
    n = fine;
  }
  return Maiuscole(ordinata);
}

}  // namespace

Battuta Leggi_Battuta(std::string_view testo, const std::string& istr) {
  std::string linea = In_Ordine(testo);
  const bool negato = linea.size() > 1 && linea.front() == '/' &&
                      Solo_Operandi(linea.substr(1, linea.find(' ') - 1));
  if (negato) linea.erase(0, 1);
  if (linea.empty()) return {};
  if (negato || Solo_Operandi(linea.substr(0, linea.find(' ')))) {
    std::ranges::replace(linea, ' ', ',');
    linea = (negato ? "AN" : istr.empty() ? "A" : istr) + " " + linea;
  }

  const Riga_Src sorgente = Riga_A_Schermo(linea);
  Battuta battuta;
  if (const Istruzione* istruzione = Cerca_Istruzione(sorgente.Istr)) {
    battuta.Aiuto = istruzione->Aiuto;
    Passo_Scala passo{sorgente.Istr, {}, -1};
    for (const std::string* operando : {&sorgente.Op1, &sorgente.Op2, &sorgente.Op3})
      if (!operando->empty()) passo.Operandi.push_back(*operando);
    battuta.Passo = std::move(passo);
    battuta.Come = Simbolo_Di(sorgente.Istr);
  }
  Riga_PLC riga;
  Riempi_Riga(riga, sorgente);
  const Esito_Riga esito = Controlla_Riga(riga, sorgente);
  if (esito.Stato != 0) battuta.Messaggio = Senza_Freccia(esito.Testo);
  return battuta;
}

}  // namespace tavorno
