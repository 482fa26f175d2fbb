// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the pages of the manual, in both languages: tavorno-manuale FOLDER VERSION DAY
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

#include "grading/script_functions.h"
#include "manual/manuals.h"

using namespace tavorno;

namespace {

void Scrivi(const std::filesystem::path& file, const std::string& testo) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream flusso(file, std::ios::binary);
  flusso << testo;
  flusso.close();
  if (!flusso) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "tavorno-manuale FOLDER VERSION DAY\n";
    return 64;
  }
  try {
    std::vector<Opzione_Manuale> funzioni;
    for (const Riga_Funzione& riga : Funzioni_Script())
      funzioni.push_back({{riga.Uso}, {riga.Aiuto}});
    const Capitolo capitoli[] = {
        {{"FUNZIONI DEGLI SCRIPT", "FUNCTIONS OF THE SCRIPTS"},
         {"Gli script sono in Lua 5.4, senza file, processi e rete.",
          "Scripts are written in Lua 5.4, without files, processes and network. Their functions "
          "have Italian names and an Italian help:"},
         funzioni}};
    const Manuale parti[] = {Manuale_Prova(), Manuale_Classe()};
    const Edizione edizione{argv[2], argv[3]};
    const std::filesystem::path cartella = argv[1];
    for (const Lingua lingua : {Lingua::Inglese, Lingua::Italiano}) {
      const auto sezione = cartella / (lingua == Lingua::Italiano ? "it/man1" : "man1");
      Scrivi(sezione / "tavorno-banco.1",
             Pagina_Man(Manuale_Banco(), parti, capitoli, "tavorno(1)", lingua, edizione));
      Scrivi(sezione / "tavorno.1",
             Pagina_Man(Manuale_Tavorno(), {}, {}, "tavorno\\-banco(1)", lingua, edizione));
    }
  } catch (const std::exception& errore) {
    std::cerr << "tavorno-manuale: " << errore.what() << '\n';
    return 1;
  }
}
