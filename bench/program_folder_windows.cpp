// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <string>

#include "bench/program_folder.h"

namespace tavorno {

std::filesystem::path Cartella_Programma() {
  std::wstring nome(32768, L'\0');
  nome.resize(GetModuleFileNameW(nullptr, nome.data(), static_cast<DWORD>(nome.size())));
  return std::filesystem::path(nome).parent_path();
}

}  // namespace tavorno
