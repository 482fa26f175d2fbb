// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace tavorno::prova {

/// A fault of the disk and what the user must be told of it.
struct Guasto {
  std::string Come;
  std::string Detto;  ///< empty: nothing fails
};

inline const std::vector<Guasto>& Guasti() {
  static const std::vector<Guasto> guasti = {
      {"create:ENOSPC", "il disco è pieno"}, {"create:EROFS", "il disco è di sola lettura"},
      {"write:ENOSPC", "il disco è pieno"},  {"write:EDQUOT", "il disco è pieno"},
      {"write:EIO", "errore del disco"},     {"short:ENOSPC", "il disco è pieno"},
      {"short:EIO", "errore del disco"},     {"fsync:EIO", "errore del disco"},
      {"fsync:ENOSPC", "il disco è pieno"},  {"rename:EIO", "errore del disco"},
      {"rename:EACCES", "permesso negato"},  {"slow:EINTR", ""}};
  return guasti;
}

inline bool Disco_Guastabile() {
  return ::dlsym(RTLD_DEFAULT, "tavorno_failing_disk") != nullptr;
}

/// The disk fails below a folder for as long as this lives.
class Disco_Guasto {
 public:
  Disco_Guasto(const std::string& come, const std::string& cartella) {
    ::setenv("TAVORNO_FAULT_IN", cartella.c_str(), 1);
    ::setenv("TAVORNO_FAULT", come.c_str(), 1);
  }
  ~Disco_Guasto() { ::unsetenv("TAVORNO_FAULT"); }
  Disco_Guasto(const Disco_Guasto&) = delete;
  Disco_Guasto& operator=(const Disco_Guasto&) = delete;
};

}  // namespace tavorno::prova
