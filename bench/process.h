// SPDX-License-Identifier: GPL-3.0-or-later
// What a program of the command line asks of its system: one body per system.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tavorno {

/// To be called first. The words behind the program's name, in UTF-8; from here on output goes out
/// byte for byte, and what cannot be written is a failure of the stream, not the end of the
/// process.
std::vector<std::string> Prepara_Processo(int argc, char** argv);

/// Whether somebody watches the standard error.
bool Errori_Su_Terminale();

/// Makes an empty folder for the user alone among the temporary ones. Throws std::runtime_error.
std::filesystem::path Cartella_Di_Appoggio();

}  // namespace tavorno
