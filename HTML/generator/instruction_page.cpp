// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/instruction_page.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <vector>

#include "HTML/generator/html_text.h"
#include "HTML/generator/instruction_notes.h"
#include "HTML/generator/ladder_pictures.h"
#include "HTML/generator/operand_words.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

using Elenco = std::vector<const Istruzione*>;

/// A student cannot use it: the checker refuses it, or the CPU stops at it.
bool Manca(const Istruzione& istruzione) {
  return istruzione.Trattamento == Gruppo::Non_Supportata || istruzione.Esegui == Ramo_Assente();
}

/// The rows by family, in the order of the manual; `mancanti` chooses which.
std::map<Famiglia, Elenco> Per_Famiglia(bool mancanti) {
  std::map<Famiglia, Elenco> famiglie;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (Manca(istruzione) == mancanti) famiglie[istruzione.Gruppo_Manuale].push_back(&istruzione);
  }
  return famiglie;
}

/// Rows that share their operands, in the order in which the rules first appear.
std::vector<Elenco> Per_Regola(const Elenco& righe) {
  std::vector<Elenco> gruppi;
  for (const Istruzione* istruzione : righe) {
    const auto gruppo = std::ranges::find_if(gruppi, [istruzione](const Elenco& elenco) {
      return elenco.front()->Operandi == istruzione->Operandi;
    });
    if (gruppo == gruppi.end())
      gruppi.push_back({istruzione});
    else
      gruppo->push_back(istruzione);
  }
  return gruppi;
}

const Nota_Istruzione* Nota(const std::string& nome) {
  const auto note = Note_Istruzioni();
  const auto nota = std::ranges::find_if(
      note, [&nome](const Nota_Istruzione& riga) { return nome == riga.Nome; });
  return nota == note.end() ? nullptr : &*nota;
}

std::string Ancora_Famiglia(Famiglia famiglia, bool mancanti) {
  return (mancanti ? "no-" : "f-") + std::to_string(static_cast<int>(famiglia));
}

std::string Collegamento(const Istruzione& istruzione) {
  return "<a href=\"#" + Ancora_Di(istruzione.Nome) + "\">" + Html(istruzione.Nome) + "</a>";
}

std::string Indice(const std::map<Famiglia, Elenco>& famiglie, bool mancanti) {
  std::string testo = "<table class=\"indice\">\n";
  for (const auto& [famiglia, righe] : famiglie) {
    testo += "<tr><td><a href=\"#" + Ancora_Famiglia(famiglia, mancanti) + "\">" +
             Html(Nome_Famiglia(famiglia)) + "</a></td><td>";
    for (const Istruzione* istruzione : righe)
      testo += (istruzione == righe.front() ? "" : "&nbsp;&nbsp; ") + Collegamento(*istruzione);
    testo += "</td></tr>\n";
  }
  return testo + "</table>\n";
}

std::string Nome_Con_Ancora(const Istruzione& istruzione) {
  return "<b id=\"" + Ancora_Di(istruzione.Nome) + "\">" + Html(istruzione.Nome) + "</b>";
}

std::string Scrittura(const Istruzione& istruzione, const Nota_Istruzione* nota) {
  if (nota != nullptr && *nota->Scrittura != '\0')
    return "<pre>" + Html(nota->Scrittura) + "</pre>";
  const bool scritta_dal_sistema = istruzione.Trattamento == Gruppo::Accettata;
  if (scritta_dal_sistema) return "<pre>" + Html(istruzione.Nome) + "</pre>";
  return "<pre class=\"awl\">" + Html(Riga_Esempio(istruzione)) + "</pre>";
}

std::string Riga(const Istruzione& istruzione) {
  const Nota_Istruzione* nota = Nota(istruzione.Nome);
  std::string testo = "<tr><td>" + Nome_Con_Ancora(istruzione) + "</td><td>" +
                      Scrittura(istruzione, nota) + "</td><td>" + Html(istruzione.Aiuto) + ".";
  if (nota != nullptr && *nota->Testo != '\0')
    testo += "<br><i>" + std::string(nota->Testo) + "</i>";
  const std::string simbolo = Richiamo_Simbolo(istruzione);
  return testo + "</td><td>" + (simbolo.empty() ? "–" : simbolo) + "</td></tr>\n";
}

std::string Operandi(const Regola* regola) {
  if (regola == nullptr) return "";
  const std::vector<std::string> parole = Operandi_In_Parole(*regola);
  std::string testo = "<p class=\"op\">";
  for (std::size_t i = 0; i < parole.size(); ++i) {
    const bool unico = parole.size() == 1;
    const std::string nome =
        unico ? (regola->Operandi > 1 ? "OP1 e OP2" : "Operando") : "OP" + std::to_string(i + 1);
    testo += (i > 0 ? "<br>" : "") + ("<b>" + nome + "</b>: ") + Html(parole[i]);
  }
  return testo + "</p>\n";
}

std::string Tabella(const Elenco& righe) {
  std::string testo =
      "<table>\n<tr><th>Istruzione</th><th>Si scrive</th><th>Che cosa fa</th>"
      "<th>Simbolo</th></tr>\n";
  for (const Istruzione* istruzione : righe) testo += Riga(*istruzione);
  return testo + "</table>\n" + Operandi(righe.front()->Operandi);
}

std::string Tabella_Mancanti(const Elenco& righe) {
  std::string testo = "<table>\n<tr><th>Istruzione</th><th>Su un PLC reale</th></tr>\n";
  for (const Istruzione* istruzione : righe)
    testo += "<tr><td>" + Nome_Con_Ancora(*istruzione) + "</td><td>" + Html(istruzione->Aiuto) +
             "</td></tr>\n";
  return testo + "</table>\n";
}

struct Area_Spiegata {
  Area Codice;
  const char* Significato;
};

constexpr Area_Spiegata aree[] = {
    {Area::I, "ingressi digitali"},
    {Area::Q, "uscite digitali"},
    {Area::M, "merker: bit di memoria interna"},
    {Area::SM,
     "bit speciali del sistema (SM0.0 sempre 1, SM0.1 prima scansione, SM0.5 un secondo)"},
    {Area::S, "bit dei passi di una sequenza"},
    {Area::T, "temporizzatori"},
    {Area::C, "contatori"},
    {Area::IB, "byte di ingressi"},
    {Area::QB, "byte di uscite"},
    {Area::MB, "byte di merker"},
    {Area::VB, "byte di memoria V"},
    {Area::VW, "parole di memoria V, da -32768 a 32767"},
    {Area::VD, "doppie parole di memoria V"},
    {Area::IW, "il byte di ingressi 0, letto come numero decimale di zeri e uni"},
    {Area::QW, "il byte di uscite 0, letto allo stesso modo"},
    {Area::MW, "byte di merker, letti allo stesso modo"},
    {Area::AIW, "ingressi analogici, 32000 al fondo scala"},
    {Area::AQW, "uscite analogiche, 32000 al fondo scala"},
    {Area::AC, "accumulatori"},
};

std::string Tabella_Aree() {
  std::string testo = "<table>\n<tr><th>Operando</th><th>Che cos'è</th></tr>\n";
  for (const auto& [area, significato] : aree)
    testo +=
        "<tr><td>" + Campo(area, Numeri_Area(area)) + "</td><td>" + significato + "</td></tr>\n";
  return testo +
         "<tr><td>SMB28, SMB29</td><td>i due potenziometri del pannello, da 0 a 255</td></tr>\n"
         "<tr><td>K</td><td>una costante, per esempio +100 oppure -5</td></tr>\n</table>\n";
}

constexpr const char* testa =
    R"(<!DOCTYPE html>
<html lang="it">
<head>
<meta charset="utf-8">
<title>Istruzioni supportate</title>
<link rel="stylesheet" type="text/css" href="style.css">
</head>
<body>
<p class="nav"><a href="Index.htm">Indice</a> | <a href="Index-AWL.htm">AWL</a> | <a href="SCALA.htm">Schema a contatti</a> | <b>Istruzioni</b></p>
<h1>Istruzioni supportate</h1>
<p>Ogni istruzione che il simulatore conosce, famiglia per famiglia: come si scrive, quali operandi
accetta, che cosa fa, e con quale simbolo sta nello schema a contatti. Per imparare a usarle c'è la
<a href="Index-AWL.htm">guida al linguaggio AWL</a>, e la guida allo
<a href="SCALA.htm">schema a contatti</a>.</p>
)";

constexpr const char* dopo_indice =
    R"(<p>Alcune istruzioni di un PLC reale qui mancano: sono nell'elenco
<a href="#non-supportate">non supportate</a>.</p>
<h2 id="operandi">Gli operandi</h2>
<p>In una riga con due operandi il primo (OP1) è la sorgente e il secondo (OP2) la destinazione.
Nell'editor si separano con una virgola; nella colonna <i>Si scrive</i> c'è un esempio per ogni
istruzione.</p>
)";

constexpr const char* dopo_aree =
    R"(<p>VB3, VW3 e VD3 sono tre caselle diverse, che non si sovrappongono. I bit 0.0–0.7 e il byte
della stessa area (per esempio M0.0–M0.7 e MB0) sono invece la stessa memoria.</p>
<p>QW prima della fine della prima scansione, e MW prima che il programma abbia scritto un bit M, non
hanno ancora nessuna cifra: leggerli fa chiudere il simulatore.</p>
)";

constexpr const char* prima_dei_mancanti =
    R"(<h2 id="non-supportate">Istruzioni non supportate</h2>
<p>Se il programma ne contiene una, la compilazione dà l'errore <i>Istruzione non supportata</i>.
Fanno eccezione INT, RETI e XORD: passano la compilazione, ma quando la CPU arriva su di loro il
PLC si ferma.</p>
)";

}  // namespace

std::string Ancora_Di(std::string_view istruzione) {
  static const std::map<char, std::string> segni = {{'=', "_eq"},    {'<', "_lt"},   {'>', "_gt"},
                                                    {'+', "_piu"},   {'-', "_meno"}, {'*', "_per"},
                                                    {'/', "_diviso"}};
  std::string ancora = "i-";
  for (const char carattere : istruzione) {
    const auto segno = segni.find(carattere);
    ancora += segno == segni.end() ? std::string(1, carattere) : segno->second;
  }
  return ancora;
}

std::string Pagina_Istruzioni() {
  const auto presenti = Per_Famiglia(false);
  const auto mancanti = Per_Famiglia(true);
  std::string pagina = testa + Indice(presenti, false) + dopo_indice + Tabella_Aree() + dopo_aree;
  for (const auto& [famiglia, righe] : presenti) {
    pagina += "<h2 id=\"" + Ancora_Famiglia(famiglia, false) + "\">" +
              Html(Nome_Famiglia(famiglia)) + "</h2>\n";
    for (const Elenco& gruppo : Per_Regola(righe)) pagina += Tabella(gruppo);
  }
  pagina += prima_dei_mancanti + Indice(mancanti, true);
  for (const auto& [famiglia, righe] : mancanti)
    pagina += "<h3 id=\"" + Ancora_Famiglia(famiglia, true) + "\">" +
              Html(Nome_Famiglia(famiglia)) + "</h3>\n" + Tabella_Mancanti(righe);
  return pagina + "</body>\n</html>\n";
}

}  // namespace tavorno
