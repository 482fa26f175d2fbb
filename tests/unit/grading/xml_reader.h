// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

namespace tavorno::prova {

/// An element of XML as a strict reader finds it.
struct Elemento_Xml {
  std::string Nome;
  std::map<std::string, std::string> Attributi;
  std::string Testo;
  std::vector<Elemento_Xml> Figli;

  /// How many elements of that name there are, at any depth.
  int Quanti(const std::string& nome) const {
    int quanti = Nome == nome ? 1 : 0;
    for (const Elemento_Xml& figlio : Figli) quanti += figlio.Quanti(nome);
    return quanti;
  }
};

/// Reads what the reports use of XML and fails the test on all that is not well formed.
class Lettore_Xml {
 public:
  explicit Lettore_Xml(const std::string& testo) : resto_(testo) {}

  Elemento_Xml Leggi() {
    Prendi(R"(<\?xml version="1\.0" encoding="UTF-8"\?>\s*)");
    const Elemento_Xml radice = Elemento();
    Prendi(R"(\s*$)");
    return radice;
  }

 private:
  std::string Prendi(const std::string& modello, int gruppo = 0) {
    std::smatch trovato;
    const bool c_e = std::regex_search(resto_, trovato, std::regex(modello),
                                       std::regex_constants::match_continuous);
    EXPECT_TRUE(c_e) << modello << " expected at: " << resto_.substr(0, 80);
    if (!c_e) throw std::runtime_error("not well formed");
    const std::string preso = trovato[static_cast<std::size_t>(gruppo)];
    resto_ = trovato.suffix();
    return preso;
  }

  Elemento_Xml Elemento() {
    Elemento_Xml elemento;
    elemento.Nome = Prendi(R"(<([A-Za-z][A-Za-z-]*))", 1);
    while (resto_.starts_with(' ')) {
      const std::string nome = Prendi(R"( ([A-Za-z][A-Za-z0-9-]*)=")", 1);
      EXPECT_TRUE(elemento.Attributi.emplace(nome, Testo("<&\"")).second) << nome << " twice";
      Prendi("\"");
    }
    if (Prendi("/?>") == "/>") return elemento;
    elemento.Testo = Testo("<&");
    while (!resto_.starts_with("</")) {
      elemento.Figli.push_back(Elemento());
      elemento.Testo += Testo("<&");
    }
    Prendi("</" + elemento.Nome + ">");
    return elemento;
  }

  /// Up to the first of `fine` that is no entity.
  std::string Testo(const char* fine) {
    static const std::map<std::string, char> entita = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
    std::string testo;
    for (;;) {
      const std::size_t quanti = resto_.find_first_of(fine);
      for (const char c : resto_.substr(0, quanti)) {
        EXPECT_TRUE(static_cast<unsigned char>(c) >= 0x20 || c == '\n' || c == '\t') << int{c};
        testo += c;
      }
      resto_.erase(0, quanti);
      if (!resto_.starts_with('&')) return testo;
      testo += entita.at(Prendi("&[a-z]+;"));
    }
  }

  std::string resto_;
};

}  // namespace tavorno::prova
