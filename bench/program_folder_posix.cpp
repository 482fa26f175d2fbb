// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/program_folder.h"

namespace tavorno {

std::filesystem::path Cartella_Programma() {
  std::error_code errore;
  return std::filesystem::read_symlink("/proc/self/exe", errore).parent_path();
}

}  // namespace tavorno
