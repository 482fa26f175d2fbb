// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/listing.h"

#include "plc/number_text.h"

namespace tavorno {

namespace {

std::string Quattro_Cifre(std::size_t numero) {
  const std::string cifre = std::to_string(numero);
  return std::string(cifre.size() < 4 ? 4 - cifre.size() : 0, '0') + cifre;
}

}  // namespace

std::string Riga_Listato::Come_Testo() const {
  return Numero + " " + Esito + ": " + Istruzione + " " + Messaggio;
}

std::vector<Riga_Listato> Listato(std::span<const Riga_Src> righe,
                                  std::span<const Diagnosi> rilievi) {
  std::vector<Riga_Listato> listato(righe.size());
  for (std::size_t k = 0; k < righe.size(); ++k)
    listato[k] = {.Numero = Quattro_Cifre(k),
                  .Esito = "[Ok!   ]",
                  .Errata = false,
                  .Istruzione = righe[k].Testo_CPU,
                  .Messaggio = ""};
  for (const Diagnosi& rilievo : rilievi) {
    if (rilievo.Di != Genere::Riga) continue;
    Riga_Listato& riga = listato.at(static_cast<std::size_t>(rilievo.Riga));
    riga.Esito = "[Err." + Numero_Con_Spazio(rilievo.Stato) + "]";
    riga.Errata = true;
    riga.Messaggio = rilievo.Messaggio;
  }
  return listato;
}

std::string Testo_Listato(std::span<const Riga_Listato> righe) {
  std::string testo;
  for (const Riga_Listato& riga : righe) testo += riga.Come_Testo() + "\r\r\n";
  return testo;
}

}  // namespace tavorno
