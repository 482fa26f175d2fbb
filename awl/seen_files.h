// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tavorno {

/// What somebody else did to a file.
struct Cambiamento {
  bool Tolto = false;    ///< it is there no more, or cannot be read
  std::int64_t Ora = 0;  ///< when it was written, in seconds since 1970; 0 when `Tolto`
};

/// "il 22/11/2026 alle 10:32:05", in the time of the place.
std::string Momento_Italiano(std::int64_t ora);

/// What this program last read from files or wrote to them. What counts is what they hold, since
/// times are coarse on some disks and differ between computers.
class File_Visti {
 public:
  void Nota(const std::string& percorso, std::string_view byte);

  /// What somebody else did to a file since; nothing for one that was never seen.
  std::optional<Cambiamento> Cambiato(const std::string& percorso) const;
  /// The same, but each change once only.
  std::optional<Cambiamento> Cambiato_Ancora(const std::string& percorso);

 private:
  struct Impronta {
    bool C_E = false;
    std::size_t Somma = 0, Misura = 0;
    bool operator==(const Impronta&) const = default;
  };
  struct Visto {
    Impronta Come, Detto;
  };
  static Impronta Ora_Su_Disco(const std::string& percorso);
  static std::optional<Cambiamento> Diverso(const std::string& percorso, const Impronta& ora,
                                            const Impronta& da);

  std::map<std::string, Visto> visti_;
};

}  // namespace tavorno
