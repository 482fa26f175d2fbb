// SPDX-License-Identifier: GPL-3.0-or-later
// Saves a file over and over, in two versions, until it is killed: save_loop FILE
#include <cstdio>

#include "awl/file_io.h"

int main(int argc, char** argv) {
  if (argc != 2) return 64;
  const std::string versioni[] = {std::string(300'000, 'a'), std::string(200'000, 'b')};
  for (int n = 0;; ++n) {
    const std::string errore = tavorno::Scrivi_File(argv[1], versioni[n % 2]);
    if (!errore.empty()) {
      std::fprintf(stderr, "%s\n", errore.c_str());
      return 1;
    }
    if (n == 0) {
      std::puts("begun");
      std::fflush(stdout);
    }
  }
}
