// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <type_traits>

namespace tavorno {

/// The hidden name beside a file where its new bytes are gathered. A name that is nearly as long as
/// names can be, on all systems, gives way to a number of it.
inline std::filesystem::path Nome_Nascosto(const std::filesystem::path& file,
                                           const std::string& coda) {
  using Lettera = std::filesystem::path::value_type;
  constexpr std::size_t massimo = 255;
  std::filesystem::path nome = file.filename();
  if (nome.native().size() + coda.size() + 1 > massimo) {
    std::uint64_t somma = 14695981039346656037U;
    for (const Lettera c : nome.native())
      somma = (somma ^ static_cast<std::make_unsigned_t<Lettera>>(c)) * 1099511628211U;
    nome = std::to_string(somma);
  }
  std::filesystem::path nascosto = ".";
  nascosto += nome;
  nascosto += coda;
  return file.parent_path() / nascosto;
}

}  // namespace tavorno
