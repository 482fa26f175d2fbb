// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

namespace tavorno {

/// A line that the project's tables or columns cannot take. Caught by the reader and the writer,
/// which turn it into their failure paths. The message is Italian, UTF-8.
class Riga_Rifiutata : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The one refusal that has a message box of its own.
inline constexpr const char* righe_esaurite = "Il progetto supera le 300 righe di istruzioni!";

}  // namespace tavorno
