// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
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
    Vuole(R"(<?xml version="1.0" encoding="UTF-8"?>)");
    Spazi();
    const Elemento_Xml radice = Elemento();
    Spazi();
    EXPECT_EQ(resto_, "");
    return radice;
  }

 private:
  void Vuole(const std::string& atteso) {
    EXPECT_TRUE(resto_.starts_with(atteso)) << atteso << " expected at: " << resto_.substr(0, 80);
    if (!resto_.starts_with(atteso)) throw std::runtime_error("not well formed");
    resto_.erase(0, atteso.size());
  }

  void Spazi() { resto_.erase(0, resto_.find_first_not_of(" \t\r\n")); }

  /// Letters, and behind the first one digits and hyphens too.
  std::string Nome() {
    static const std::string lettere = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const std::size_t lungo =
        resto_.find_first_of(lettere) == 0 ? resto_.find_first_not_of(lettere + "-0123456789") : 0;
    EXPECT_GT(lungo, 0U) << "a name expected at: " << resto_.substr(0, 80);
    if (lungo == 0) throw std::runtime_error("not well formed");
    const std::string nome = resto_.substr(0, lungo);
    resto_.erase(0, nome.size());
    return nome;
  }

  Elemento_Xml Elemento() {
    Elemento_Xml elemento;
    Vuole("<");
    elemento.Nome = Nome();
    while (resto_.starts_with(' ')) {
      Vuole(" ");
      const std::string nome = Nome();
      Vuole("=\"");
      EXPECT_TRUE(elemento.Attributi.emplace(nome, Testo("<&\"")).second) << nome << " twice";
      Vuole("\"");
    }
    if (resto_.starts_with('/')) {
      Vuole("/>");
      return elemento;
    }
    Vuole(">");
    elemento.Testo = Testo("<&");
    while (!resto_.starts_with("</")) {
      elemento.Figli.push_back(Elemento());
      elemento.Testo += Testo("<&");
    }
    Vuole("</" + elemento.Nome + ">");
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
      const std::string nome = resto_.substr(0, resto_.find(';') + 1);
      testo += entita.at(nome);
      resto_.erase(0, nome.size());
    }
  }

  std::string resto_;
};

}  // namespace tavorno::prova
