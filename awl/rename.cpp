// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/rename.h"

#include <algorithm>
#include <cctype>

#include "awl/operand.h"
#include "awl/text.h"
#include "plc/area.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

Cella Contenuto(const std::string& operando) {
  return Riga_Di(Cerca_Area(Split_Operando(operando).Area)).Contenuto;
}

std::string_view Esempio(Cella cella) {
  switch (cella) {
    case Cella::Bit:
      return "un bit, per esempio M0.0";
    case Cella::Byte:
      return "un byte, per esempio MB0";
    case Cella::Testo:
      return "una parola di bit, per esempio IW0";
    case Cella::Elemento:
      return "un temporizzatore o un contatore, per esempio T37";
    case Cella::Reale:
      return "un accumulatore, per esempio AC0";
    default:
      return "un valore, per esempio VW0";
  }
}

/// Why an operand cannot get this name.
std::string Rifiuto_Operando(const std::string& vecchio, const std::string& nuovo,
                             const std::string& scritto) {
  if (nuovo.empty())
    return "\"" + A_Utf8(scritto) + "\" non è un operando della CPU: scrivere " +
           std::string(Esempio(Contenuto(vecchio))) + ".";
  const Area area = Cerca_Area(Split_Operando(nuovo).Area);
  const Area prima = Cerca_Area(Split_Operando(vecchio).Area);
  const bool simili =
      Contenuto(nuovo) == Contenuto(vecchio) &&
      (Contenuto(vecchio) != Cella::Intero || Testo_Area(area).back() == Testo_Area(prima).back());
  if (!simili)
    return "Al posto di " + vecchio + " ci vuole " + std::string(Esempio(Contenuto(vecchio))) + ".";
  const int numero = std::stoi(Split_Operando(nuovo).Numero);
  const bool bit_mancante =
      Contenuto(nuovo) == Cella::Bit && std::stoi(Split_Operando(nuovo).Bit) >= Riga_Di(area).Bit;
  if (numero > Riga_Di(area).Ultima || bit_mancante) return "La CPU non ha " + nuovo + ".";
  return {};
}

std::string Rifiuto_Procedura(const std::string& scritto) {
  const auto lettera = [](char c) {
    return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0;
  };
  if (scritto.empty() || !std::ranges::all_of(scritto, lettera))
    return "Il nome di una procedura ha soltanto lettere, cifre e \"_\", senza spazi.";
  constexpr std::size_t lungo = 22 - Colonna_Operandi;  // what the CPU's listing has room for
  if (scritto.size() > lungo)
    return "Il nome di una procedura ha al massimo " + std::to_string(lungo) + " caratteri.";
  return {};
}

std::string Rifiuto_Etichetta(const std::string& scritto) {
  constexpr std::size_t cifre = 4;
  const bool numero = !scritto.empty() && scritto.size() <= cifre &&
                      std::ranges::all_of(scritto, [](char c) { return c >= '0' && c <= '9'; });
  return numero ? std::string() : "Un'etichetta è un numero da 0 a 9999.";
}

}  // namespace

Cambio_Nome Rinomina(const Sorgente& testi, const Nominato& vecchio, const std::string& nuovo) {
  Cambio_Nome cambio;
  const std::string scritto = Trim(nuovo);
  const bool operando = vecchio.Genere == Genere_Nome::Operando;
  const bool procedura = vecchio.Genere == Genere_Nome::Procedura;
  cambio.Nome = operando ? Nome_Operando(scritto) : scritto;
  cambio.Errore = operando    ? Rifiuto_Operando(vecchio.Nome, cambio.Nome, scritto)
                  : procedura ? Rifiuto_Procedura(scritto)
                              : Rifiuto_Etichetta(scritto);
  if (!cambio.Errore.empty()) return cambio;
  if (vecchio.Genere == Genere_Nome::Etichetta) cambio.Nome = std::to_string(std::stoi(scritto));

  const Nominato come{vecchio.Genere, procedura ? Maiuscole(cambio.Nome) : cambio.Nome};
  for (std::size_t i = 0; procedura && i < testi.Procedure.size(); ++i) {
    const std::string nome = Maiuscole(testi.Procedure[i].Nome);
    if (nome == vecchio.Nome)
      cambio.Procedura = static_cast<int>(i) + 1;
    else if (nome == come.Nome)
      cambio.Errore = "Una procedura " + A_Utf8(nome) + " c'è già.";
  }
  for (const Riferimento& uso : Riferimenti(testi)) {
    if (uso.Di == come && come != vecchio) ++cambio.Gia_Usato;
    if (uso.Di == vecchio)
      cambio.Ritocchi.push_back({uso.Posto, uso.Colonna, uso.Lunghezza, cambio.Nome});
    else if (Tocca(uso, vecchio))
      ++cambio.Di_Gruppo;
  }
  if (vecchio.Genere == Genere_Nome::Etichetta && cambio.Gia_Usato > 0)
    cambio.Errore = "L'etichetta " + cambio.Nome + " è già usata.";
  if (!cambio.Errore.empty()) cambio.Ritocchi.clear();
  return cambio;
}

}  // namespace tavorno
