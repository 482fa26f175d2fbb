// SPDX-License-Identifier: GPL-3.0-or-later
// A project's ladder as one SVG document.
#include <algorithm>

#include "ladder/layout.h"
#include "ladder/project_ladder.h"
#include "ladder/symbols.h"
#include "ladder/to_list.h"
#include "plc/codepage.h"
#include "trace/markup.h"

namespace tavorno {

namespace {

constexpr double margine = 24;
constexpr double larghezza_minima = 640;
constexpr double altezza_riga_lista = 18;

constexpr const char* stile = R"(<style>
text { font-family: "DejaVu Sans", "Liberation Sans", sans-serif; fill: #1a1a1a }
path, rect { fill: none; stroke: #1a1a1a; stroke-width: 1.5 }
.foglio { fill: #ffffff; stroke: none }
.vivo { stroke: #c00000; stroke-width: 2.5 }
circle { fill: #1a1a1a }
circle.vivo { fill: #c00000; stroke: none }
.progetto { font-size: 18px; font-weight: bold }
.blocco { font-size: 15px; font-weight: bold }
.rete, .nome { font-weight: bold }
.commento, .motivo { fill: #4a4a4a }
.simbolo { fill: #1f4e79 }
.lista { font-family: "DejaVu Sans Mono", "Liberation Mono", monospace }
</style>
)";

class Documento {
 public:
  explicit Documento(const Nome_Simbolico& nome) : nome_(nome) {}

  void Scrivi(const std::string& testo, const char* classe, double salto) {
    y_ += salto;
    testo_ += "<text x=\"" + std::to_string(static_cast<int>(margine)) + "\" y=\"" +
              std::to_string(static_cast<int>(y_)) + "\" class=\"" + classe + "\">" +
              In_Xml(testo) + "</text>\n";
    Allarga(static_cast<double>(Lunghezza_Utf8(testo)) * 8);
  }

  void Metti(const Rete_Scala& rete) {
    Scrivi(rete.Titolo + (rete.Commento.empty() ? "" : "   " + rete.Commento), "rete", 34);
    if (const auto* diagramma = std::get_if<Diagramma>(&rete.Forma)) {
      if (!diagramma->empty()) Metti(Traccia_Forme(Impagina(*diagramma), nome_));
      return;
    }
    const auto& motivo = std::get<Non_Disegnabile>(rete.Forma);
    Scrivi("Resta in lista: " + motivo.Motivo + " (riga " + std::to_string(motivo.Riga) + ").",
           "motivo", 20);
    for (const Passo_Scala& passo : rete.Passi)
      Scrivi(std::to_string(passo.Riga) + "  " + A_Utf8(Come_Testo(passo)), "lista",
             altezza_riga_lista);
  }

  std::string Fine() {
    y_ += margine;
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" font-size=\"12\" width=\"" +
           std::to_string(static_cast<int>(larghezza_)) + "\" height=\"" +
           std::to_string(static_cast<int>(y_)) + "\">\n" + stile +
           "<rect width=\"100%\" height=\"100%\" class=\"foglio\"/>\n" + testo_ + "</svg>\n";
  }

 private:
  void Metti(const Tratteggio_Rete& forme) {
    y_ += 6;
    testo_ += "<g transform=\"translate(" + std::to_string(static_cast<int>(margine)) + " " +
              std::to_string(static_cast<int>(y_)) + ")\">\n" + Come_Svg(forme, {}) + "</g>\n";
    y_ += forme.Altezza;
    Allarga(forme.Larghezza);
  }
  void Allarga(double larghezza) { larghezza_ = std::max(larghezza_, larghezza + 2 * margine); }

  const Nome_Simbolico& nome_;
  std::string testo_;
  double y_ = 6;
  double larghezza_ = larghezza_minima;
};

/// A stretch of a drawing, `da` and on, as a document.
Figura_Svg Ritaglia(const Tratteggio_Rete& forme, double da, double larghezza, double altezza) {
  Figura_Svg figura;
  figura.Larghezza = static_cast<int>(larghezza);
  figura.Altezza = static_cast<int>(altezza);
  const std::string misura =
      std::to_string(figura.Larghezza) + "\" height=\"" + std::to_string(figura.Altezza) + "\"";
  figura.Svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" font-size=\"12\" width=\"" + misura +
               " viewBox=\"0 0 " + std::to_string(figura.Larghezza) + " " +
               std::to_string(figura.Altezza) + "\">\n" + stile + "<rect width=\"" + misura +
               " class=\"foglio\"/>\n<g transform=\"translate(" +
               std::to_string(-static_cast<int>(da)) + " 0)\">\n" + Come_Svg(forme, {}) +
               "</g>\n</svg>\n";
  return figura;
}

}  // namespace

Figura_Svg Rete_Svg(const Diagramma& diagramma) {
  const Tratteggio_Rete forme = Traccia_Forme(Impagina(diagramma), {});
  return Ritaglia(forme, 0, forme.Larghezza, forme.Altezza);
}

Figura_Svg Simbolo_Svg(const Passo_Scala& passo) {
  const Simbolo simbolo = Simbolo_Di(passo.Istr);
  if (simbolo.Cosa == Ruolo::Pila) return {};
  const bool contatto = simbolo.Cosa == Ruolo::Contatto || simbolo.Cosa == Ruolo::Trasforma;
  Piolo piolo;
  for (int n = 0; n < simbolo.Ingressi && simbolo.Cosa != Ruolo::Da_Solo; ++n)
    piolo.Ingressi.emplace_back();
  if (contatto) {
    piolo.Ingressi.front().push_back({passo, {}});
    piolo.Ingressi.front().front().Passo.Istr =
        simbolo.Cosa == Ruolo::Contatto ? simbolo.Base : passo.Istr;
  } else {
    piolo.Seguito.push_back({{}, passo, {}});
  }
  const Disegno disegno = Impagina({piolo});
  Tratteggio_Rete forme = Traccia_Forme(disegno, {});
  // The rail and the wire to a coil are no part of it.
  std::erase_if(forme.Tratti, [](const Asta& asta) { return asta.Riquadro < 0; });
  const Riquadro& riquadro = disegno.Riquadri.front();
  const bool da_solo = simbolo.Cosa == Ruolo::Da_Solo;
  const double larghezza = larghezza_cella * (da_solo ? 2 : riquadro.Larghezza);
  return Ritaglia(forme, margine_forme + riquadro.Colonna * larghezza_cella, larghezza,
                  riquadro.Altezza * altezza_cella);
}

std::string Documento_Svg(std::span<const Blocco_Scala> blocchi, const std::string& titolo,
                          const Nome_Simbolico& nome) {
  Documento documento(nome);
  documento.Scrivi(titolo, "progetto", margine);
  for (const Blocco_Scala& blocco : blocchi) {
    documento.Scrivi(blocco.Nome == "MAIN" ? "Programma principale" : "Procedura " + blocco.Nome,
                     "blocco", 36);
    for (const Rete_Scala& rete : blocco.Reti) documento.Metti(rete);
  }
  return documento.Fine();
}

}  // namespace tavorno
