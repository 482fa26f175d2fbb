// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/hand_in_search.h"

#include <algorithm>
#include <filesystem>

#include "awl/file_io.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

constexpr const char* archivi[] = {".zip", ".rar", ".7z", ".tar", ".gz", ".tgz", ".bz2", ".xz"};

std::string Minuscole(std::string testo) {
  for (char& c : testo) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return testo;
}

void Cerca(const fs::path& cartella, Consegne_Trovate& trovate) {
  std::error_code errore;
  std::vector<fs::directory_entry> voci;
  for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
       voce.increment(errore))
    voci.push_back(*voce);
  if (errore)
    trovate.Scartate.push_back({Testo_Percorso(cartella), "la cartella non si può leggere"});
  for (const fs::directory_entry& voce : voci) {
    const std::string percorso = Testo_Percorso(voce.path());
    std::error_code ignoto;
    const fs::file_type tipo = voce.symlink_status(ignoto).type();
    const bool progetto = Estensione(percorso) == ".awl";
    if (tipo == fs::file_type::directory) {
      Cerca(voce.path(), trovate);
    } else if (tipo == fs::file_type::symlink) {
      if (progetto || fs::is_directory(voce.path(), ignoto))
        trovate.Scartate.push_back({percorso, "è un collegamento"});
    } else if (progetto && tipo == fs::file_type::regular) {
      trovate.Progetti.push_back(percorso);
    } else if (progetto) {
      trovate.Scartate.push_back({percorso, "non è un file"});
    } else if (const std::string motivo = Motivo_Del_Nome(Testo_Percorso(voce.path().filename()));
               !motivo.empty()) {
      trovate.Scartate.push_back({percorso, motivo});
    }
  }
}

}  // namespace

std::string Estensione(const std::string& file) {
  return Minuscole(Testo_Percorso(Percorso_Disco(file).extension()));
}

std::string Motivo_Del_Nome(const std::string& nome) {
  if (Estensione(nome) == ".awl") return "";
  if (std::ranges::find(archivi, Estensione(nome)) != std::end(archivi))
    return "è un archivio: va estratto prima";
  if (Minuscole(nome).find(".awl") != std::string::npos) return "il nome non finisce con .AWL";
  return "";
}

Consegne_Trovate Cerca_Consegne(const std::string& cartella) {
  Consegne_Trovate trovate;
  Cerca(Percorso_Disco(cartella), trovate);
  std::ranges::sort(trovate.Progetti);
  std::ranges::sort(trovate.Scartate, {}, &Scartata::Percorso);
  return trovate;
}

}  // namespace tavorno
