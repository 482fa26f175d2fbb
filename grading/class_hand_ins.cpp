// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/class_hand_ins.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <clocale>
#include <fstream>
#include <memory>
#include <set>
#include <stdexcept>
#include <tuple>

#include "awl/file_io.h"
#include "grading/hand_in_search.h"
#include "trace/markup.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

struct Chiudi {
  void operator()(archive* zip) const { archive_read_free(zip); }
};

// Windows' own names are wide; elsewhere a name is whatever bytes it is.
constexpr bool nomi_larghi = fs::path::preferred_separator == '\\';

int Apri(archive* zip, const fs::path& file) {
  constexpr std::size_t blocco = 65'536;
  if constexpr (nomi_larghi)
    return archive_read_open_filename_w(zip, file.wstring().c_str(), blocco);
  return archive_read_open_filename(zip, file.string().c_str(), blocco);
}

/// Names that an archive marks as UTF-8 come out of the library in the locale's own bytes, and not
/// at all where that has no accents. Holds for this thread and as long as it lives.
class Nomi_In_Utf8 {
#ifndef _WIN32
 public:
  Nomi_In_Utf8() : nomi_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (nomi_) prima_ = uselocale(nomi_);
  }
  ~Nomi_In_Utf8() {
    if (!nomi_) return;
    uselocale(prima_);
    freelocale(nomi_);
  }
  Nomi_In_Utf8(const Nomi_In_Utf8&) = delete;
  Nomi_In_Utf8& operator=(const Nomi_In_Utf8&) = delete;

 private:
  locale_t nomi_, prima_ = nullptr;
#endif
};

/// The path of an entry, "" for one without.
std::string Nome_Della_Voce(archive_entry* voce) {
  if constexpr (nomi_larghi) {
    const wchar_t* largo = archive_entry_pathname_w(voce);
    return largo ? Testo_Percorso(fs::path(largo)) : "";
  }
  const char* testo = archive_entry_pathname(voce);
  return testo ? testo : "";
}

/// Why an entry did not become a file; empty when it did. No project may be larger than the limit.
std::string Estrai(archive* zip, const fs::path& file) {
  std::string byte;
  char blocco[16'384];
  la_ssize_t letti = 0;
  while ((letti = archive_read_data(zip, blocco, sizeof blocco)) > 0) {
    byte.append(blocco, static_cast<std::size_t>(letti));
    if (byte.size() > consegna_massima) return "è troppo grande";
  }
  if (letti < 0) return "l'archivio è rovinato";
  errno = 0;
  std::ofstream uscita(file, std::ios::binary);
  if (uscita << byte << std::flush) return "";
  return "impossibile scriverne una copia di lavoro: " +
         Causa_Disco(std::error_code(errno, std::generic_category()));
}

/// A path that stays inside its folder.
bool Sta_Dentro(const fs::path& percorso) {
  return percorso.root_path().empty() &&
         std::ranges::none_of(percorso, [](const fs::path& parte) { return parte == ".."; });
}

std::string Motivo_Della_Voce(const std::string& nome, archive_entry* voce) {
  if (!Sta_Dentro(Percorso_Disco(nome))) return "il percorso esce dalla cartella";
  if (archive_entry_filetype(voce) != AE_IFREG || archive_entry_hardlink(voce))
    return "non è un file";
  return Motivo_Del_Nome(nome);
}

/// A student's folder without any project is a hand-in too. `cartelle`: the folders at the top.
void Aggiungi_Senza_Progetto(std::vector<Consegna>& consegne,
                             const std::set<std::string>& cartelle) {
  std::set<std::string> presenti;
  for (const Consegna& consegna : consegne) presenti.insert(consegna.Studente);
  for (const std::string& nome : cartelle)
    if (!presenti.contains(Nome_Studente(nome + "/")))
      consegne.push_back(
          {Nome_Studente(nome + "/"), nome, "", "nella cartella non c'è un progetto .AWL"});
}

std::vector<Consegna> Leggi_Zip(const std::string& file, const fs::path& scratch) {
  [[maybe_unused]] const Nomi_In_Utf8 nomi;
  const std::unique_ptr<archive, Chiudi> zip(archive_read_new());
  archive_read_support_format_zip(zip.get());
  if (Apri(zip.get(), Percorso_Disco(file)) != ARCHIVE_OK)
    throw std::runtime_error(file + ": non è una cartella e non è un archivio zip");
  std::vector<Consegna> consegne;
  std::set<std::string> cartelle;
  archive_entry* voce = nullptr;
  int numero = 0, esito = ARCHIVE_OK;
  while ((esito = archive_read_next_header(zip.get(), &voce)) == ARCHIVE_OK ||
         esito == ARCHIVE_WARN) {
    if (++numero > voci_massime) {
      consegne.push_back(
          {"", Utf8_Valido(file), "", "l'archivio ha più di 10000 voci: le altre non si leggono"});
      break;
    }
    const std::string nome = Nome_Della_Voce(voce);
    if (nome.empty()) {
      consegne.push_back({"", "voce " + std::to_string(numero) + " dell'archivio", "",
                          "il nome non si può leggere"});
      continue;
    }
    if (const std::size_t barra = nome.find('/');
        barra != std::string::npos && barra > 0 && Sta_Dentro(Percorso_Disco(nome)))
      cartelle.insert(Utf8_Valido(nome.substr(0, barra)));
    if (archive_entry_filetype(voce) == AE_IFDIR) continue;
    const bool progetto = Estensione(nome) == ".awl";
    Consegna consegna{Nome_Studente(Utf8_Valido(nome)), Utf8_Valido(nome), "",
                      Motivo_Della_Voce(nome, voce)};
    if (!progetto && consegna.Motivo.empty()) continue;
    if (consegna.Motivo.empty()) {
      const fs::path estratto = scratch / (std::to_string(numero) + ".AWL");
      consegna.Motivo = Estrai(zip.get(), estratto);
      if (consegna.Motivo.empty()) {
        std::error_code nessuno;
        fs::last_write_time(estratto,
                            std::chrono::file_clock::from_sys(std::chrono::sys_seconds(
                                std::chrono::seconds(archive_entry_mtime(voce)))),
                            nessuno);
        consegna.Percorso = Testo_Percorso(estratto);
      }
    }
    consegne.push_back(std::move(consegna));
  }
  if (esito == ARCHIVE_FATAL && numero == 0)
    throw std::runtime_error(file + ": non è una cartella e non è un archivio zip");
  Aggiungi_Senza_Progetto(consegne, cartelle);
  if (esito == ARCHIVE_FATAL)
    consegne.push_back({"", Utf8_Valido(file), "", "l'archivio è rovinato: il resto non si legge"});
  return consegne;
}

std::vector<Consegna> Leggi_Cartella(const std::string& cartella) {
  std::vector<Consegna> consegne;
  const auto Aggiungi = [&](const std::string& percorso, const std::string& motivo) {
    const std::string nome = Utf8_Valido(
        Testo_Percorso(Percorso_Disco(percorso).lexically_relative(Percorso_Disco(cartella))));
    consegne.push_back({Nome_Studente(nome), nome, motivo.empty() ? percorso : "", motivo});
  };
  const Consegne_Trovate trovate = Cerca_Consegne(cartella);
  for (const std::string& progetto : trovate.Progetti) Aggiungi(progetto, "");
  for (const Scartata& scartata : trovate.Scartate) Aggiungi(scartata.Percorso, scartata.Motivo);
  std::set<std::string> cartelle;
  std::error_code errore;
  for (fs::directory_iterator voce(Percorso_Disco(cartella), errore), fine; !errore && voce != fine;
       voce.increment(errore)) {
    std::error_code ignoto;
    if (voce->symlink_status(ignoto).type() == fs::file_type::directory)
      cartelle.insert(Utf8_Valido(Testo_Percorso(voce->path().filename())));
  }
  Aggiungi_Senza_Progetto(consegne, cartelle);
  return consegne;
}

}  // namespace

std::string Nome_Studente(const std::string& percorso) {
  const std::size_t barra = percorso.find('/');
  const std::string prima = barra == std::string::npos ? percorso : percorso.substr(0, barra);
  if (const std::size_t segno = prima.find("_assignsubmission_"); segno != std::string::npos) {
    const std::size_t numero = prima.rfind('_', segno - 1);
    const bool cifre = segno > 0 && numero != std::string::npos && numero + 1 < segno &&
                       std::ranges::all_of(prima.substr(numero + 1, segno - numero - 1),
                                           [](char c) { return c >= '0' && c <= '9'; });
    if (cifre && numero > 0) return prima.substr(0, numero);
  }
  return barra == std::string::npos ? Testo_Percorso(Percorso_Disco(prima).stem()) : prima;
}

std::vector<Consegna> Leggi_Classe(const std::string& origine, const fs::path& scratch) {
  std::error_code errore;
  std::vector<Consegna> consegne = fs::is_directory(Percorso_Disco(origine), errore)
                                       ? Leggi_Cartella(origine)
                                       : Leggi_Zip(origine, scratch);
  std::ranges::stable_sort(consegne, {}, [](const Consegna& consegna) {
    return std::tie(consegna.Studente, consegna.File);
  });
  return consegne;
}

}  // namespace tavorno
