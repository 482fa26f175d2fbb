// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/recovery.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <random>

#include "awl/file_io.h"
#include "awl/text.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view intestazione = "Tavorno: testo non salvato, forma 1\n";
constexpr const char* nome_serratura = "in-uso";
constexpr const char* estensione = ".copia";

/// Each text stands behind its name and length, so that it may hold anything.
void Aggiungi(std::string& byte, std::string_view nome, std::string_view testo) {
  byte.append(nome).append(" ").append(std::to_string(testo.size())).append("\n");
  byte.append(testo).append("\n");
}

template <class Numero>
bool Leggi_Numero(std::string_view testo, Numero& numero) {
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  return errore == std::errc() && fine == testo.data() + testo.size();
}

struct Campo {
  std::string_view Nome, Testo;
};

/// The next field, which is taken off `byte`.
std::optional<Campo> Prossimo(std::string_view& byte) {
  const std::size_t fine_riga = byte.find('\n');
  if (fine_riga == std::string_view::npos) return std::nullopt;
  const std::string_view riga = byte.substr(0, fine_riga);
  byte.remove_prefix(fine_riga + 1);
  const std::size_t stacco = riga.find(' ');
  std::size_t lungo = 0;
  if (stacco == std::string_view::npos || !Leggi_Numero(riga.substr(stacco + 1), lungo) ||
      lungo >= byte.size() || byte[lungo] != '\n')
    return std::nullopt;
  const Campo campo{riga.substr(0, stacco), byte.substr(0, lungo)};
  byte.remove_prefix(lungo + 1);
  return campo;
}

bool Prendi(const Campo& campo, Copia_Progetto& copia) {
  const std::array<std::pair<std::string_view, std::string*>, 4> testi = {
      {{"titolo", &copia.Titolo},
       {"file", &copia.File},
       {"salvato", &copia.File_Salvato},
       {"main", &copia.Main}}};
  for (const auto& [nome, dove] : testi) {
    if (campo.Nome != nome) continue;
    *dove = campo.Testo;
    return true;
  }
  if (campo.Nome == "ora") return Leggi_Numero(campo.Testo, copia.Ora);
  if (campo.Nome == "procedura") {
    if (copia.Procedure.size() >= Procedure_Massime) return false;
    Riga_SBR& nuova = copia.Procedure.emplace_back();
    nuova.Nome = campo.Testo;
    nuova.Indice = static_cast<std::uint8_t>(copia.Procedure.size());
    return true;
  }
  if (copia.Procedure.empty()) return false;
  Riga_SBR& procedura = copia.Procedure.back();
  if (campo.Nome == "numero") return Leggi_Numero(campo.Testo, procedura.Num);
  if (campo.Nome != "sigla" && campo.Nome != "testo") return false;
  (campo.Nome == "sigla" ? procedura.Sigla : procedura.Testo) = campo.Testo;
  return true;
}

std::vector<fs::path> Voci_Di(const fs::path& cartella) {
  std::error_code errore;
  std::vector<fs::path> voci;
  for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
       voce.increment(errore))
    voci.push_back(voce->path());
  std::ranges::sort(voci);
  return voci;
}

/// With a copy in it a folder stays.
void Togli_Se_Vuota(const fs::path& cartella) {
  const std::vector<fs::path> voci = Voci_Di(cartella);
  if (std::ranges::any_of(voci, [](const fs::path& v) { return v.extension() == estensione; }))
    return;
  std::error_code nessuno;
  for (const fs::path& voce : voci) fs::remove(voce, nessuno);
  fs::remove(cartella, nessuno);
}

std::string Nome_Casuale() {
  std::random_device caso;
  std::string nome;
  for (int i = 0; i < 4; ++i) nome += std::to_string(caso() % 10'000) + '-';
  nome.pop_back();
  return nome;
}

}  // namespace

// ---- a copy -------------------------------------------------------------------------------------

Copia_Progetto Copia_Di(const Stato_Progetto& stato, std::int64_t ora) {
  Sorgente testi = stato.Come_Sorgente(stato.txtList);
  return {.Ora = ora,
          .Titolo = stato.File_Titolo,
          .File = stato.File_Progetto,
          .File_Salvato = stato.File_Salvato,
          .Main = std::move(testi.Main),
          .Procedure = std::move(testi.Procedure)};
}

Stato_Progetto Stato_Di(const Copia_Progetto& copia) {
  Stato_Progetto stato;
  stato.File_Titolo = copia.Titolo;
  stato.File_Progetto = copia.File;
  stato.File_Salvato = copia.File_Salvato;
  stato.txtList = stato.Testo_Main = copia.Main;
  for (const Riga_SBR& procedura : copia.Procedure) {
    stato.Tab_SBR[++stato.Num_SBR] = procedura;
    stato.TabSP.push_back(procedura.Nome);
  }
  if (stato.Num_SBR == 0) stato.TabSP.assign(1, "");
  stato.Scheda = stato.Num_SBR > 0 ? 1 : 0;
  stato.txtP = stato.Num_SBR > 0 ? stato.Tab_SBR[1].Testo : "";
  stato.Modificato = -1;
  stato.stB[0] = "File: " + copia.Titolo;
  return stato;
}

std::string Byte_Di(const Copia_Progetto& copia) {
  std::string byte(intestazione);
  Aggiungi(byte, "ora", std::to_string(copia.Ora));
  Aggiungi(byte, "titolo", copia.Titolo);
  Aggiungi(byte, "file", copia.File);
  Aggiungi(byte, "salvato", copia.File_Salvato);
  Aggiungi(byte, "main", copia.Main);
  for (const Riga_SBR& procedura : copia.Procedure) {
    Aggiungi(byte, "procedura", procedura.Nome);
    Aggiungi(byte, "numero", std::to_string(procedura.Num));
    Aggiungi(byte, "sigla", procedura.Sigla);
    Aggiungi(byte, "testo", procedura.Testo);
  }
  Aggiungi(byte, "fine", "");
  return byte;
}

std::optional<Copia_Progetto> Leggi_Copia(std::string_view byte) {
  if (!byte.starts_with(intestazione)) return std::nullopt;
  byte.remove_prefix(intestazione.size());
  Copia_Progetto copia;
  while (const std::optional<Campo> campo = Prossimo(byte)) {
    if (campo->Nome == "fine") return copia;
    if (!Prendi(*campo, copia)) break;
  }
  return std::nullopt;
}

// ---- this program's copies ----------------------------------------------------------------------

fs::path Cartella_Copie() {
  const fs::path stato = Cartella_Stato_Utente();
  return stato.empty() ? stato : stato / "tavorno" / "ripristino";
}

Deposito::~Deposito() {
  serratura_.reset();
  if (!cartella_.empty()) Togli_Se_Vuota(cartella_);
}

fs::path Deposito::File(int numero) const {
  return cartella_ / (std::to_string(numero) + estensione);
}

/// Another program may take a folder for left over in the moment before it is held.
std::string Deposito::Apri() {
  if (radice_.empty()) return "manca la cartella dell'utente";
  std::error_code errore = Crea_Cartella_Privata(radice_);
  constexpr int tentativi = 5;
  for (int i = 0; !errore && i < tentativi; ++i) {
    const fs::path cartella = radice_ / Nome_Casuale();
    errore = Crea_Cartella_Privata(cartella);
    if (errore) break;
    serratura_ = Serratura::Prendi(cartella / nome_serratura);
    std::error_code nessuno;
    if (serratura_ && fs::exists(cartella / nome_serratura, nessuno)) {
      cartella_ = cartella;
      return "";
    }
    Togli_Se_Vuota(cartella);
  }
  return Causa_Disco(errore ? errore : std::make_error_code(std::errc::no_lock_available));
}

std::string Deposito::Scrivi(int numero, std::string_view byte, bool fino_al_disco) {
  std::error_code nessuno;
  if (cartella_.empty() || !fs::exists(cartella_, nessuno)) {  // swept away by a clean-up
    std::string errore = Apri();
    if (!errore.empty()) return errore;
  }
  const std::error_code errore =
      Sostituisci(File(numero), byte, {.Solo_Utente = true, .Fino_Al_Disco = fino_al_disco});
  return errore ? Causa_Disco(errore) : "";
}

void Deposito::Togli(int numero) {
  std::error_code nessuno;
  if (!cartella_.empty()) fs::remove(File(numero), nessuno);
}

void Deposito::Togli_Tutte() {
  if (cartella_.empty()) return;
  std::error_code nessuno;
  for (const fs::path& voce : Voci_Di(cartella_)) {
    if (voce.extension() == estensione) fs::remove(voce, nessuno);
  }
}

// ---- what others have left ----------------------------------------------------------------------

Eredita::Eredita(const fs::path& cartella_copie) {
  std::error_code nessuno;
  for (const fs::path& cartella : Voci_Di(cartella_copie)) {
    if (!fs::is_directory(fs::symlink_status(cartella, nessuno))) continue;
    std::optional<Serratura> serratura = Serratura::Prendi(cartella / nome_serratura);
    if (!serratura) continue;
    for (const fs::path& file : Voci_Di(cartella)) {
      if (file.extension() != estensione) continue;
      const std::u8string percorso = file.u8string();
      const Contenuto_File letto = Leggi_File({percorso.begin(), percorso.end()});
      voci_.push_back({file, letto.Byte, Leggi_Copia(letto.Byte)});
    }
    lasciti_.push_back({cartella, std::move(*serratura)});
  }
  const auto ora = [](const Voce& voce) { return voce.Copia ? voce.Copia->Ora : 0; };
  std::ranges::stable_sort(voci_, std::ranges::greater(), ora);
}

Eredita::~Eredita() {
  std::vector<fs::path> cartelle;
  for (const Lascito& lascito : lasciti_) cartelle.push_back(lascito.Cartella);
  lasciti_.clear();
  std::ranges::for_each(cartelle, Togli_Se_Vuota);
}

void Eredita::Butta(std::size_t indice) {
  std::error_code nessuno;
  fs::remove(voci_.at(indice).File, nessuno);
  voci_.erase(voci_.begin() + static_cast<std::ptrdiff_t>(indice));
}

}  // namespace tavorno
