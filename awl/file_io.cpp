// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace tavorno {

namespace {

constexpr off_t dimensione_massima = 16 * 1024 * 1024;
constexpr const char* non_un_file = "il percorso non è un file";

std::string Causa(int errore) {
  switch (errore) {
    case ENOENT:
      return "il file o la cartella non esiste";
    case EACCES:
    case EPERM:
      return "permesso negato";
    case EROFS:
      return "il disco è di sola lettura";
    case ENOSPC:
    case EDQUOT:
      return "il disco è pieno";
    case EFBIG:
      return "il file è troppo grande per il disco";
    case EISDIR:
      return "il percorso è una cartella";
    case ENOTDIR:
      return "una parte del percorso non è una cartella";
    case ENAMETOOLONG:
      return "il nome del file è troppo lungo";
    case EIO:
      return "errore del disco";
    default:
      return std::string("errore di sistema: ") + std::strerror(errore);
  }
}

/// An open file that is closed, and removed unless it was given its final name.
class File_Nuovo {
 public:
  explicit File_Nuovo(const std::string& destinazione) : nome_(destinazione + ".XXXXXX") {
    descrittore_ = ::mkstemp(nome_.data());
  }
  ~File_Nuovo() {
    if (descrittore_ < 0) return;
    ::close(descrittore_);
    if (!consegnato_) ::unlink(nome_.c_str());
  }
  File_Nuovo(const File_Nuovo&) = delete;
  File_Nuovo& operator=(const File_Nuovo&) = delete;

  bool Aperto() const { return descrittore_ >= 0; }
  bool Scrivi(const std::string& byte) const {
    std::size_t scritti = 0;
    while (scritti < byte.size()) {
      const ssize_t n = ::write(descrittore_, byte.data() + scritti, byte.size() - scritti);
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) return false;
      scritti += static_cast<std::size_t>(n);
    }
    return ::fsync(descrittore_) == 0;
  }
  bool Permessi(mode_t modo) const { return ::fchmod(descrittore_, modo) == 0; }
  bool Consegna(const std::string& destinazione) {
    consegnato_ = ::rename(nome_.c_str(), destinazione.c_str()) == 0;
    return consegnato_;
  }

 private:
  std::string nome_;
  int descrittore_ = -1;
  bool consegnato_ = false;
};

mode_t Permessi_Nuovi() {
  const mode_t maschera = ::umask(0);
  ::umask(maschera);
  return 0666 & ~maschera;
}

/// So that the new name itself survives a crash; the data are safe already, so failures are
/// ignored.
void Fissa_Cartella(const std::filesystem::path& cartella) {
  const int descrittore = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY);
  if (descrittore < 0) return;
  ::fsync(descrittore);
  ::close(descrittore);
}

}  // namespace

Contenuto_File Leggi_File(const std::string& percorso) {
  struct stat stato {};
  if (::stat(percorso.c_str(), &stato) != 0) return {"", Causa(errno)};
  if (S_ISDIR(stato.st_mode)) return {"", Causa(EISDIR)};
  if (!S_ISREG(stato.st_mode)) return {"", non_un_file};
  if (stato.st_size > dimensione_massima) return {"", "il file è troppo grande per un progetto"};
  std::ifstream file(percorso, std::ios::binary);
  std::string byte(static_cast<std::size_t>(stato.st_size), '\0');
  if (!file.read(byte.data(), stato.st_size)) return {"", Causa(errno)};
  return {std::move(byte), ""};
}

std::string Scrivi_File(const std::string& percorso, const std::string& byte) {
  if (percorso.empty()) return Causa(ENOENT);
  std::error_code errore;
  // Through a link the file that it names is replaced, and the link stays.
  std::filesystem::path destinazione = std::filesystem::weakly_canonical(percorso, errore);
  if (!errore && std::filesystem::is_symlink(destinazione))  // to a file that does not exist yet
    destinazione = std::filesystem::weakly_canonical(
        destinazione.parent_path() / std::filesystem::read_symlink(destinazione), errore);
  if (errore) return Causa(errore.value());

  struct stat vecchio {};
  const bool esiste = ::stat(destinazione.c_str(), &vecchio) == 0;
  if (esiste && S_ISDIR(vecchio.st_mode)) return Causa(EISDIR);
  if (esiste && !S_ISREG(vecchio.st_mode)) return non_un_file;  // a device must not become one
  if (esiste && ::access(destinazione.c_str(), W_OK) != 0) return Causa(errno);

  File_Nuovo nuovo(destinazione.string());
  if (!nuovo.Aperto()) return Causa(errno);
  if (!nuovo.Permessi(esiste ? vecchio.st_mode & 07777 : Permessi_Nuovi())) return Causa(errno);
  if (!nuovo.Scrivi(byte)) return Causa(errno);
  if (!nuovo.Consegna(destinazione.string())) return Causa(errno);
  Fissa_Cartella(destinazione.parent_path());
  return "";
}

}  // namespace tavorno
