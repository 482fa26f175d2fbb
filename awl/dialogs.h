// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "plc/hooks.h"

namespace tavorno {

/// What a file dialog is asked for. Texts in UTF-8.
struct Richiesta_File {
  bool Salva = false;    ///< for writing, with a prompt before overwriting; else an existing file
  std::string Proposta;  ///< name offered, may be empty
  std::string Filtro;    ///< "File AWL (*.AWL)|*.AWL"
  std::string Ultimo = {};  ///< full path that can be taken instead, may be empty
};

struct File_Scelto {
  std::string Percorso;  ///< full path
  std::string Titolo;    ///< file name with its extension
};

/// Every question that the editor puts to the user. A member that is empty answers as if the user
/// had cancelled; an empty `Mostra` answers Ok.
struct Dialoghi {
  std::function<Risposta(const Avviso&)> Mostra;
  std::function<std::optional<File_Scelto>(const Richiesta_File&)> Scegli_File;
};

}  // namespace tavorno
