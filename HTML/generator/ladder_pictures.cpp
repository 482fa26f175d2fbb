// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/ladder_pictures.h"

#include <sstream>
#include <stdexcept>
#include <string_view>

#include "HTML/generator/html_text.h"
#include "HTML/generator/operand_words.h"
#include "awl/screen_rows.h"
#include "ladder/project_ladder.h"
#include "ladder/symbols.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

constexpr std::string_view apre = "<pre class=\"scala\">";
constexpr std::string_view chiude = "</pre>";

Passo_Scala Passo_Da(const std::string& linea) {
  const Riga_Src riga = Riga_A_Schermo(Da_Utf8(linea));
  Passo_Scala passo{riga.Istr, {}, 0};
  for (const std::string* operando : {&riga.Op1, &riga.Op2, &riga.Op3})
    if (!operando->empty()) passo.Operandi.push_back(*operando);
  return passo;
}

Diagramma Schema_Di(const std::string& programma) {
  std::vector<Passo_Scala> passi;
  std::istringstream linee(programma);
  for (std::string linea; std::getline(linee, linea);) {
    if (linea.empty() || linea.starts_with("//") || linea.starts_with("NETWORK")) continue;
    passi.push_back(Passo_Da(linea));
    passi.back().Riga = static_cast<int>(passi.size());
  }
  const auto disegnata = Disegna(passi);
  if (const auto* motivo = std::get_if<Non_Disegnabile>(&disegnata))
    throw std::runtime_error("un programma della guida non si disegna: " + motivo->Motivo + "\n" +
                             programma);
  return std::get<Diagramma>(disegnata);
}

std::string Immagine(const std::string& file, const Figura_Svg& figura, const std::string& testo) {
  return "<img src=\"pictures/" + file + "\" width=\"" + std::to_string(figura.Larghezza) +
         "\" height=\"" + std::to_string(figura.Altezza) + "\" alt=\"" + Html(testo) + "\">";
}

/// An instruction with the operands of its example. A network or a procedure is no symbol.
Figura_Svg Figura_Di(const Istruzione& istruzione) {
  const bool scritta = istruzione.Trattamento == Gruppo::Con_Regola ||
                       istruzione.Trattamento == Gruppo::Senza_Operandi;
  const Ruolo ruolo = Simbolo_Di(istruzione.Nome).Cosa;
  if (!scritta && ruolo == Ruolo::Scatola) return {};
  Passo_Scala passo = Passo_Da(Riga_Esempio(istruzione));
  if (!scritta) passo = {istruzione.Nome, {}, -1};
  return Simbolo_Svg(passo);
}

std::string File_Simbolo(const Istruzione& istruzione) {
  std::string file = "sim";
  for (const char carattere : istruzione.Nome) {
    const bool lettera =
        (carattere >= 'A' && carattere <= 'Z') || (carattere >= '0' && carattere <= '9');
    file += lettera ? std::string(1, carattere)
                    : "-" + std::to_string(static_cast<unsigned char>(carattere));
  }
  return file + ".svg";
}

}  // namespace

std::string Affianca_Scala(const std::string& pagina, const std::string& nome,
                           Figure_Scala& figure) {
  std::string completa;
  std::size_t qui = 0;
  for (int numero = 1;; ++numero) {
    const std::size_t inizio = pagina.find(apre, qui);
    if (inizio == std::string::npos) break;
    const std::size_t fine = pagina.find(chiude, inizio);
    const std::string testo = pagina.substr(inizio + apre.size(), fine - inizio - apre.size());
    const std::string file = nome + "-" + std::to_string(numero) + ".svg";
    const Figura_Svg figura = Rete_Svg(Schema_Di(Da_Html(testo)));
    figure[file] = figura.Svg;
    completa += pagina.substr(qui, inizio - qui);
    completa += "<table class=\"codice\"><tr><td class=\"awl\"><pre class=\"awl\">" + testo +
                "</pre></td><td>" +
                Immagine(file, figura, "Lo stesso programma come schema a contatti") +
                "</td></tr></table>";
    qui = fine + chiude.size();
  }
  return completa + pagina.substr(qui);
}

std::string Richiamo_Simbolo(const Istruzione& istruzione) {
  const Figura_Svg figura = Figura_Di(istruzione);
  if (figura.Svg.empty()) return {};
  return Immagine(File_Simbolo(istruzione), figura, "Simbolo di " + istruzione.Nome);
}

Figure_Scala Figure_Simboli() {
  Figure_Scala figure;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Trattamento == Gruppo::Non_Supportata) continue;
    const Figura_Svg figura = Figura_Di(istruzione);
    if (!figura.Svg.empty()) figure[File_Simbolo(istruzione)] = figura.Svg;
  }
  return figure;
}

}  // namespace tavorno
