// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tavorno {

struct Contenuto_File {
  std::string Byte = {};
  std::string Errore = {};  ///< in Italian, UTF-8; empty: the file was read
  std::string Nota = {};  ///< what there is to say of a file that was read, likewise; mostly empty
};

/// Files larger than any project are refused unread.
Contenuto_File Leggi_File(const std::string& percorso);

/// Replaces `percorso` in one step: the bytes go to a new file in the same folder, are flushed to
/// the disk and take the name of the old one. On any failure the old file is whole and the new one
/// gone. Returns the cause in Italian (UTF-8), empty when it worked.
std::string Scrivi_File(const std::string& percorso, const std::string& byte);

}  // namespace tavorno
