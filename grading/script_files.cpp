// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/script_files.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "awl/file_io.h"
#include "grading/sha256.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t script_massimo = 1024 * 1024;

/// A name, and not a path, on any system; one that begins with a point is hidden or a folder.
bool Nome_Semplice(const std::string& nome) {
  return nome.ends_with(".lua") && !nome.starts_with(".") && std::ranges::none_of(nome, [](char c) {
           return c == '/' || c == '\\' || c == ':' || static_cast<unsigned char>(c) < 0x20 ||
                  c == 0x7F;
         });
}

}  // namespace

Sorgente_Script Leggi_Sorgente(const std::string& file) {
  std::error_code errore;
  if (fs::file_size(Percorso_Disco(file), errore) > script_massimo && !errore)
    throw std::runtime_error("lo script è troppo grande");
  Contenuto_File contenuto = Leggi_File(file);
  if (!contenuto.Errore.empty())
    throw std::runtime_error("impossibile leggere lo script: " + contenuto.Errore);
  const fs::path percorso = Percorso_Disco(file);
  const std::string impronta = Sha256(contenuto.Byte);
  Sorgente_Script script{Testo_Percorso(percorso.filename()), std::move(contenuto.Byte),
                         percorso.has_parent_path() ? Testo_Percorso(percorso.parent_path()) : ".",
                         impronta};
  std::ranges::replace(script.Nome, ':', '_');  // ends the name in the messages of the language
  if (script.Testo.starts_with("\xEF\xBB\xBF")) script.Testo.erase(0, 3);
  return script;
}

std::filesystem::path File_Esercizio(const std::filesystem::path& cartella_programma,
                                     int esercizio) {
  const std::string numero = std::to_string(esercizio);
  return cartella_programma / "examples" /
         ("us" + std::string(2 - numero.size(), '0') + numero + ".lua");
}

Sorgente_Script Leggi_Vicino(const Sorgente_Script& script, const std::string& nome) {
  if (!Nome_Semplice(nome))
    throw std::runtime_error("serve il nome di un file .lua, senza cartelle");
  const fs::path file = Percorso_Disco(script.Cartella) / Percorso_Disco(nome);
  std::error_code errore;
  if (script.Cartella.empty() || !fs::is_regular_file(fs::symlink_status(file, errore)))
    throw std::runtime_error("accanto allo script non c'è un file \"" + nome + "\"");
  try {
    return Leggi_Sorgente(Testo_Percorso(file));
  } catch (const std::runtime_error& sbaglio) {
    throw std::runtime_error("\"" + nome + "\": " + sbaglio.what());
  }
}

}  // namespace tavorno
