// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/patterns.h"

#include <algorithm>
#include <array>
#include <map>

#include "awl/line_words.h"
#include "awl/text.h"
#include "plc/area.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

constexpr std::size_t colonna_commento = 36;
constexpr std::size_t colonna_titolo = 16;

constexpr std::array autoritenuta{
    Riga_Schema{"LD", "{I1}", "marcia"},
    Riga_Schema{"O", "{Q1}", "oppure è già in marcia"},
    Riga_Schema{"A", "{I2}", "e l'arresto (NC) non è premuto"},
    Riga_Schema{"=", "{Q1}", "contattore"},
};
constexpr std::array set_reset{
    Riga_Schema{"LD", "{I1}", "accende"},
    Riga_Schema{"S", "{Q1}, 1", ""},
    Riga_Schema{"LD", "{I2}", "spegne, e vince"},
    Riga_Schema{"R", "{Q1}, 1", ""},
};
constexpr std::array passo_passo{
    Riga_Schema{"LD", "{I1}", "pulsante"},
    Riga_Schema{"EU", "", "una scansione per ogni pressione"},
    Riga_Schema{"=", "{M1}", ""},
    Riga_Schema{"LD", "{M1}", ""},
    Riga_Schema{"AN", "{Q1}", "impulso a lampada spenta: accende"},
    Riga_Schema{"LDN", "{M1}", ""},
    Riga_Schema{"A", "{Q1}", "niente impulso: resta com'è"},
    Riga_Schema{"OLD", "", ""},
    Riga_Schema{"=", "{Q1}", "lampada"},
};
constexpr std::array ton{
    Riga_Schema{"LD", "{I1}", ""},
    Riga_Schema{"TON", "{T1}, +30", "30 scatti da 100 ms: 3 secondi"},
    Riga_Schema{"LD", "{T1}", "il tempo è passato"},
    Riga_Schema{"=", "{Q1}", ""},
};
constexpr std::array tof{
    Riga_Schema{"LD", "{I1}", ""},
    Riga_Schema{"TOF", "{T1}, +30", "3 secondi da quando si apre"},
    Riga_Schema{"LD", "{T1}", ""},
    Riga_Schema{"=", "{Q1}", ""},
};
constexpr std::array lampeggio{
    Riga_Schema{"LDN", "{T2}", ""}, Riga_Schema{"TON", "{T1}, +5", "mezzo secondo spenta"},
    Riga_Schema{"LD", "{T1}", ""},  Riga_Schema{"TON", "{T2}, +5", "mezzo secondo accesa"},
    Riga_Schema{"LD", "{T1}", ""},  Riga_Schema{"=", "{Q1}", ""},
};
constexpr std::array ctu{
    Riga_Schema{"LD", "{I1}", "conta"}, Riga_Schema{"LD", "{I2}", "azzera"},
    Riga_Schema{"CTU", "{C1}, +3", ""}, Riga_Schema{"LD", "{C1}", "tre o più"},
    Riga_Schema{"=", "{Q1}", ""},
};
constexpr std::array ctud{
    Riga_Schema{"LD", "{I1}", "conta avanti"}, Riga_Schema{"LD", "{I2}", "conta indietro"},
    Riga_Schema{"LD", "{I3}", "azzera"},       Riga_Schema{"CTUD", "{C1}, +10", ""},
    Riga_Schema{"LD", "{C1}", "dieci o più"},  Riga_Schema{"=", "{Q1}", ""},
};
constexpr std::array interblocco{
    Riga_Schema{"LD", "{I1}", "avanti"},
    Riga_Schema{"AN", "{Q2}", "mai insieme all'altra"},
    Riga_Schema{"=", "{Q1}", ""},
    Riga_Schema{"LD", "{I2}", "indietro"},
    Riga_Schema{"AN", "{Q1}", "mai insieme all'altra"},
    Riga_Schema{"=", "{Q2}", ""},
};
constexpr std::array isteresi{
    Riga_Schema{"LDW<", "AIW0, +12800", "sotto 4 V"},
    Riga_Schema{"S", "{Q1}, 1", ""},
    Riga_Schema{"LDW>", "AIW0, +19200", "sopra 6 V"},
    Riga_Schema{"R", "{Q1}, 1", ""},
};
constexpr std::array valori_iniziali{
    Riga_Schema{"LD", "SM0.1", "solo nella prima scansione"},
    Riga_Schema{"MOVW", "+0, {VW1}", "valore di partenza"},
    Riga_Schema{"R", "{M1}, 1", ""},
};
constexpr std::array passo{
    Riga_Schema{"LSCR", "{S1}", "comincia il passo"},
    Riga_Schema{"LD", "SM0.0", ""},
    Riga_Schema{"=", "{Q1}", "che cosa fa"},
    Riga_Schema{"LD", "{I1}", "quando passa al prossimo"},
    Riga_Schema{"S", "{S2}, 1", ""},
    Riga_Schema{"R", "{S1}, 1", ""},
    Riga_Schema{"SCRE", "", "finisce il passo"},
};

constexpr std::array schemi{
    Schema{"&Autoritenuta", "Marcia e arresto di un contattore", "Marcia e arresto", autoritenuta},
    Schema{"&Set e reset", "Un pulsante accende, l'altro spegne e vince", "Set e reset", set_reset},
    Schema{"&Passo-passo", "Ogni pressione accende o spegne", "Relè passo-passo", passo_passo},
    Schema{"&Interblocco", "Due uscite che non stanno mai accese insieme", "Interblocco",
           interblocco},
    Schema{"Ritardo all'i&nserzione", "Accende dopo un tempo (TON)", "Ritardo all'inserzione", ton},
    Schema{"Ritardo alla &disinserzione", "Spegne dopo un tempo (TOF)",
           "Ritardo alla disinserzione", tof},
    Schema{"&Lampeggiatore", "Due temporizzatori che si passano la mano", "Lampeggiatore",
           lampeggio},
    Schema{"&Contatore", "Conta le pressioni e si azzera (CTU)", "Contatore", ctu},
    Schema{"Contatore avanti-indi&etro", "Conta nei due versi (CTUD)", "Contatore avanti-indietro",
           ctud},
    Schema{"Due s&oglie", "Un valore analogico con isteresi", "Soglia con isteresi", isteresi},
    Schema{"&Valori iniziali", "Che cosa vale nella prima scansione", "Valori iniziali",
           valori_iniziali},
    Schema{"Passo di se&quenza", "Una sezione LSCR con il passaggio alla prossima", "Passo", passo},
};

/// The operands of an area in the order in which they are given out.
std::vector<std::string> Candidati(const std::string& area) {
  std::vector<std::string> nomi;
  if (area == "T") {
    // The manual begins with these.
    for (const int primo : {37, 0})
      for (int n = primo; n <= (primo == 0 ? 36 : 40); ++n) nomi.push_back("T" + std::to_string(n));
    return nomi;
  }
  const Riga_Area& riga = Riga_Di(Cerca_Area(area));
  const int ogni = area == "VW" ? 2 : 1;
  for (int n = 0; n <= riga.Massimo_Ammesso; n += ogni) {
    const std::string nome = area + std::to_string(n);
    if (riga.Contenuto != Cella::Bit) nomi.push_back(nome);
    for (int bit = 0; bit < riga.Bit && riga.Contenuto == Cella::Bit; ++bit)
      nomi.push_back(nome + "." + std::to_string(bit));
  }
  return nomi;
}

/// Gives each place of a skeleton its operand.
class Scelta {
 public:
  explicit Scelta(std::span<const Riferimento> usati) : usati_(usati) {}

  std::string Riempi(std::string_view operandi) {
    std::string pieni;
    while (true) {
      const std::size_t apre = operandi.find('{');
      pieni += operandi.substr(0, apre);
      if (apre == std::string_view::npos) return pieni;
      const std::size_t chiude = operandi.find('}', apre);
      pieni += Operando_Di(std::string(operandi.substr(apre + 1, chiude - apre - 1)));
      operandi.remove_prefix(chiude + 1);
    }
  }

 private:
  const std::string& Operando_Di(const std::string& segnaposto) {
    const auto [posto, nuovo] = dati_.try_emplace(segnaposto);
    if (nuovo) posto->second = Libero(segnaposto.substr(0, segnaposto.size() - 1));
    return posto->second;
  }
  std::string Libero(const std::string& area) const {
    const std::vector<std::string> candidati = Candidati(area);
    const auto dato = [&](const std::string& nome) {
      return std::ranges::any_of(dati_, [&](const auto& voce) { return voce.second == nome; });
    };
    const auto usato = [&](const std::string& nome) {
      return std::ranges::any_of(usati_, [&](const Riferimento& uso) {
        return Tocca(uso, {Genere_Nome::Operando, nome});
      });
    };
    for (const std::string& nome : candidati)
      if (!dato(nome) && !usato(nome)) return nome;
    return *std::ranges::find_if_not(candidati, dato);
  }

  std::span<const Riferimento> usati_;
  std::map<std::string, std::string> dati_;
};

bool Di_Istruzione(std::string_view linea) {
  const Parola parola = Trova_Prima_Parola(linea);
  return !parola.Vuota() && !linea.starts_with("NETWORK") && !linea.starts_with("TITLE=");
}

/// Whether a network begins above a line and has no instruction, up to the next one.
bool Segmento_Vuoto(const std::vector<std::string_view>& linee, std::size_t linea) {
  const auto inizia = [](std::string_view scritta) { return scritta.starts_with("NETWORK"); };
  std::size_t inizio = linea;
  while (inizio > 0 && !inizia(linee[inizio])) --inizio;
  if (!inizia(linee[inizio])) return false;
  for (std::size_t i = inizio + 1; i < linee.size() && !inizia(linee[i]); ++i)
    if (Di_Istruzione(linee[i])) return false;
  return true;
}

}  // namespace

std::span<const Schema> Tabella_Schemi() {
  return schemi;
}

Cambio_Linee Metti_Schema(const Schema& schema, std::string_view testo, int linea,
                          std::span<const Riferimento> usati) {
  const std::vector<std::string_view> linee = Linee(testo);
  const auto qui = static_cast<std::size_t>(linea);
  Cambio_Linee cambio;
  const bool al_posto = linee[qui].find_first_not_of(" \t") == std::string_view::npos;
  cambio.Prima = al_posto ? linea : linea + 1;
  cambio.Quante = al_posto ? 1 : 0;
  if (!Segmento_Vuoto(linee, qui)) {
    const auto segmenti = std::ranges::count_if(
        linee, [](std::string_view scritta) { return scritta.starts_with("NETWORK"); });
    cambio.Nuove.push_back(Incolonna("NETWORK " + std::to_string(segmenti + 1), colonna_titolo) +
                           "//" + Da_Utf8(schema.Titolo));
  }
  cambio.Scelta = cambio.Prima + static_cast<int>(cambio.Nuove.size());
  Scelta scelta(usati);
  for (const Riga_Schema& riga : schema.Righe) {
    std::string nuova = riga.Istr;
    if (*riga.Operandi != '\0')
      nuova = Incolonna(nuova, Colonna_Operandi) + scelta.Riempi(riga.Operandi);
    if (*riga.Commento != '\0')
      nuova = Incolonna(nuova, colonna_commento) + "//" + Da_Utf8(riga.Commento);
    cambio.Nuove.push_back(std::move(nuova));
  }
  // Behind the last line there must be one for the caret to go to.
  if (al_posto && qui + 1 == linee.size()) cambio.Nuove.emplace_back();
  return cambio;
}

}  // namespace tavorno
