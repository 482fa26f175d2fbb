// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz target over every file of a folder. An empty folder is a failure: nothing was tried.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti);

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int provati = 0;
  for (const auto& voce : std::filesystem::directory_iterator(argv[1])) {
    std::ifstream file(voce.path(), std::ios::binary);
    const std::string byte{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size());
    ++provati;
  }
  std::printf("%d inputs replayed\n", provati);
  return provati > 0 ? 0 : 1;
}
