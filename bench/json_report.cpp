// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/json_report.h"

#include <nlohmann/json.hpp>

#include "plc/codepage.h"

namespace tavorno {

namespace {

using Json = nlohmann::ordered_json;

Json Riga_Json(const Riga_PLC& riga) {
  return {{"Istr", A_Utf8(riga.Istr)},   {"Area1", A_Utf8(riga.Area1)},
          {"Area2", A_Utf8(riga.Area2)}, {"Area3", A_Utf8(riga.Area3)},
          {"Num1", riga.Num1},           {"Num2", riga.Num2},
          {"Num3", riga.Num3},           {"Bit1", riga.Bit1},
          {"Bit2", riga.Bit2},           {"Bit3", riga.Bit3},
          {"Fronte", riga.Fronte},       {"Salto", riga.Salto},
          {"NOper", riga.NOper},         {"Ha_Bit", riga.Ha_Bit},
          {"Lista_T", riga.Lista_T},     {"Abil_SCR", riga.Abil_SCR},
          {"SCR_Prima", riga.SCR_Prima}, {"SCR_Ultima", riga.SCR_Ultima}};
}

const char* Nome_Gravita(Gravita grado) {
  switch (grado) {
    case Gravita::Errore:
      return "error";
    case Gravita::Avvertimento:
      return "warning";
    case Gravita::Suggerimento:
      break;
  }
  return "hint";
}

/// Lines and columns as an editor shows them, from 1; rows as the CPU counts them, from 0.
Json Diagnosi_Json(const Diagnosi& diagnosi, const Progetto& progetto) {
  const int procedura = diagnosi.Posto.Testo;
  return {{"severity", Nome_Gravita(diagnosi.Grado)},
          {"block", procedura == 0 ? "MAIN" : A_Utf8(progetto.Tab_SBR[procedura].Nome)},
          {"line", diagnosi.Posto.Linea + 1},
          {"column", diagnosi.Colonna + 1},
          {"length", diagnosi.Lunghezza},
          {"row", diagnosi.Riga},
          {"status", diagnosi.Stato},
          {"text", diagnosi.Testo},
          {"message", Senza_Freccia(diagnosi.Messaggio)}};
}

}  // namespace

std::string Rapporto_Json(const Seduta& seduta) {
  Json boxes = Json::array();
  for (const Avviso& avviso : seduta.Avvisi)
    boxes.push_back({{"title", avviso.Titolo}, {"text", avviso.Testo}});
  Json prog = Json::array();
  for (const Riga_PLC& riga : seduta.plc.Prog) prog.push_back(Riga_Json(riga));
  Json diagnostics = Json::array();
  for (const Diagnosi& diagnosi : seduta.progetto.Rilievi)
    diagnostics.push_back(Diagnosi_Json(diagnosi, seduta.progetto));
  const Json rapporto = {{"listing", A_Utf8(seduta.progetto.Lista_Comp)},
                         {"errors", seduta.progetto.Errori},
                         {"boxes", boxes},
                         {"diagnostics", diagnostics},
                         {"prog", prog}};
  return rapporto.dump(2);
}

}  // namespace tavorno
