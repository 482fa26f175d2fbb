// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/devices.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>
#include <utility>

namespace tavorno {

namespace {

using enum Apparecchio;

/// A row is this device when its symbol begins so and its comment has this word; both may be empty.
struct Indizio {
  std::string_view Sigla;
  std::string_view Parola;
  Apparecchio Tipo;
};

// The first that fits decides, so the special stands before the general.
constexpr Indizio indizi_ingresso[] = {
    {"", "emergenza", Fungo},         {"", "sicurezza esterna", Fungo},
    {"", "chiave", Selettore_Chiave}, {"", "selettore", Selettore},
    {"", "pulsante", Pulsante},       {"", "ausiliario", Ausiliario},
    {"", "termico", Termico},         {"FR", "", Termico},
    {"", "fotocellula", Fotocellula}, {"", "termostato", Termostato},
    {"", "portata", Flusso},          {"", "flusso", Flusso},
    {"", "trasdut", Trasduttore},     {"SL", "", Livello},
    {"SQ", "", Fine_Corsa},           {"", "micro", Fine_Corsa},
    {"", "fine corsa", Fine_Corsa},   {"", "finecorsa", Fine_Corsa},
    {"KM", "", Ausiliario},           {"", "", Contatto},
};

constexpr Indizio indizi_uscita[] = {
    {"HL", "", Lampada},
    {"", "lampada", Lampada},
    {"YV", "", Elettrovalvola},
    {"", "bobina", Elettrovalvola},
    {"", "elettrovalvola", Elettrovalvola},
    {"KM", "", Bobina},
    {"", "contattore", Bobina},
    {"", "teleruttore", Bobina},
    {"", "", Carico},
};

constexpr std::array<std::pair<std::string_view, const char*>, 5> colori = {{
    {"verde", "GN"},
    {"ross", "RD"},
    {"giall", "YE"},
    {"blu", "BU"},
    {"bianc", "WH"},
}};

std::string Minuscolo(std::string_view testo) {
  std::string minuscolo(testo);
  std::ranges::transform(minuscolo, minuscolo.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return minuscolo;
}

template <std::size_t N>
Apparecchio Cerca(const Indizio (&indizi)[N], std::string_view sigla, const std::string& commento) {
  return std::ranges::find_if(indizi,
                              [&](const Indizio& indizio) {
                                return sigla.starts_with(indizio.Sigla) &&
                                       commento.find(indizio.Parola) != std::string::npos;
                              })
      ->Tipo;
}

const char* Colore(const std::string& commento) {
  for (const auto& [parola, codice] : colori) {
    if (commento.find(parola) != std::string::npos) return codice;
  }
  return "";
}

const char* Campo_Analogico(const std::string& commento) {
  return commento.find("(0-1 v)") != std::string::npos ? "0-1 V" : "0-10 V";
}

}  // namespace

const char* Nome_Apparecchio(Apparecchio apparecchio) {
  static constexpr std::array<const char*, 19> nomi = {"contatto",
                                                       "pulsante",
                                                       "pulsante a fungo",
                                                       "selettore",
                                                       "selettore a chiave",
                                                       "fine corsa",
                                                       "contatto ausiliario",
                                                       "relè termico",
                                                       "fotocellula",
                                                       "contatto di livello",
                                                       "contatto di flusso",
                                                       "termostato",
                                                       "trasduttore digitale",
                                                       "trasduttore analogico",
                                                       "bobina di contattore",
                                                       "elettrovalvola",
                                                       "lampada",
                                                       "carico",
                                                       "azionamento"};
  return nomi[static_cast<std::size_t>(apparecchio)];
}

Dispositivo Riconosci(const Riga_IO& riga) {
  const std::string_view indirizzo = riga.Indirizzo;
  const std::string commento = Minuscolo(riga.Commento);
  if (indirizzo.starts_with("AI"))
    return {Analogico_Ingresso, Verso_Morsetto::Ingresso_Analogico, false,
            Campo_Analogico(commento)};
  if (indirizzo.starts_with("AQ"))
    return {Analogico_Uscita, Verso_Morsetto::Uscita_Analogica, false, Campo_Analogico(commento)};
  if (indirizzo.starts_with("Q")) {
    const Apparecchio tipo = Cerca(indizi_uscita, riga.Simbolo, commento);
    return {tipo, Verso_Morsetto::Uscita, false, tipo == Lampada ? Colore(commento) : ""};
  }
  return {Cerca(indizi_ingresso, riga.Simbolo, commento), Verso_Morsetto::Ingresso,
          commento.find("(nc)") != std::string::npos, ""};
}

}  // namespace tavorno
