// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "awl/disk.h"

namespace tavorno {

struct Contenuto_File {
  std::string Byte = {};
  std::string Errore = {};  ///< in Italian, UTF-8; empty: the file was read
  std::string Nota = {};  ///< what there is to say of a file that was read, likewise; mostly empty
};

/// Paths inside the program are UTF-8.
std::filesystem::path Percorso_Disco(std::string_view utf8);
/// The way back, with "/" between folders on every system.
std::string Testo_Percorso(const std::filesystem::path& percorso);

/// The cause of a failure in Italian, UTF-8, without a full stop.
std::string Causa_Disco(std::error_code errore);

/// Files larger than any project are refused unread.
Contenuto_File Leggi_File(const std::string& percorso);

/// Replaces `percorso` in one step (see `Sostituisci`); a link stays, and the file at the end of
/// its chain is replaced. On any failure the old file is whole and the new one gone. Returns the
/// cause as `Causa_Disco` tells it, empty when it worked.
std::string Scrivi_File(const std::string& percorso, std::string_view byte,
                        Modo_Scrittura modo = {});

}  // namespace tavorno
