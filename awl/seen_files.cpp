// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/seen_files.h"

#include <array>
#include <chrono>
#include <ctime>
#include <functional>
#include <utility>

#include "awl/file_io.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

/// One name for a file, whatever way leads to it.
std::string Chiave(const std::string& percorso) {
  std::error_code errore;
  const fs::path file = fs::weakly_canonical(Percorso_Disco(percorso), errore);
  const std::u8string chiave = file.u8string();
  return errore ? percorso : std::string(chiave.begin(), chiave.end());
}

std::int64_t Ora_Di_Scrittura(const std::string& percorso) {
  std::error_code errore;
  const fs::file_time_type ora = fs::last_write_time(Percorso_Disco(percorso), errore);
  if (errore) return 0;
  const auto sistema = std::chrono::file_clock::to_sys(ora).time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(sistema).count();
}

}  // namespace

std::string Momento_Italiano(std::int64_t ora) {
  const std::time_t quando = ora;
  std::array<char, 64> testo{};
  if (const std::tm* parti = std::localtime(&quando))
    std::strftime(testo.data(), testo.size(), "il %d/%m/%Y alle %H:%M:%S", parti);
  return testo.data();
}

void File_Visti::Nota(const std::string& percorso, std::string_view byte) {
  const Impronta come{true, std::hash<std::string_view>{}(byte), byte.size()};
  visti_[Chiave(percorso)] = {come, come};
}

File_Visti::Impronta File_Visti::Ora_Su_Disco(const std::string& percorso) {
  const Contenuto_File file = Leggi_File(percorso);
  if (!file.Errore.empty()) return {};
  return {true, std::hash<std::string_view>{}(file.Byte), file.Byte.size()};
}

std::optional<Cambiamento> File_Visti::Diverso(const std::string& percorso, const Impronta& ora,
                                               const Impronta& da) {
  if (ora == da) return std::nullopt;
  return Cambiamento{!ora.C_E, ora.C_E ? Ora_Di_Scrittura(percorso) : 0};
}

std::optional<Cambiamento> File_Visti::Cambiato(const std::string& percorso) const {
  const auto visto = visti_.find(Chiave(percorso));
  if (visto == visti_.end()) return std::nullopt;
  return Diverso(percorso, Ora_Su_Disco(percorso), visto->second.Come);
}

std::optional<Cambiamento> File_Visti::Cambiato_Ancora(const std::string& percorso) {
  const auto visto = visti_.find(Chiave(percorso));
  if (visto == visti_.end()) return std::nullopt;
  const Impronta ora = Ora_Su_Disco(percorso);
  // Somebody who took it back to what we know has nothing to be told of.
  const Impronta detto = std::exchange(visto->second.Detto, ora);
  return ora == detto ? std::nullopt : Diverso(percorso, ora, visto->second.Come);
}

}  // namespace tavorno
