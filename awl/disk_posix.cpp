// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>
#include <utility>

#include "awl/disk.h"
#include "awl/hidden_name.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

std::error_code Ultimo() {
  return {errno, std::generic_category()};
}

/// Whether the descriptor is ours alone and its file still has this name. Where locks are unknown
/// the name has to do.
bool Mio(int descrittore, const std::string& nome) {
  if (::flock(descrittore, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  struct stat aperto {
  }, col_nome{};
  return ::fstat(descrittore, &aperto) == 0 && ::lstat(nome.c_str(), &col_nome) == 0 &&
         aperto.st_ino == col_nome.st_ino && aperto.st_dev == col_nome.st_dev;
}

/// The new bytes of a file until they take its name; removed when they do not.
class File_Nuovo {
 public:
  File_Nuovo() = default;
  ~File_Nuovo() {
    if (descrittore_ < 0) return;
    if (!consegnato_) ::unlink(nome_.c_str());
    ::close(descrittore_);  // with its lock, so only now
  }
  File_Nuovo(const File_Nuovo&) = delete;
  File_Nuovo& operator=(const File_Nuovo&) = delete;

  /// Waits while another program saves the same file.
  std::error_code Apri(const fs::path& file, mode_t modo) {
    constexpr auto pausa = std::chrono::milliseconds(10);
    constexpr int tentativi = 300;
    nome_ = Nome_Nascosto(file, ".tavorno");
    std::error_code esito;
    for (int i = 0; i < tentativi; ++i) {
      esito = Tenta(modo);
      if (esito == std::errc::operation_not_permitted)  // another user's is in the way
        nome_ = Nome_Nascosto(file, '.' + std::to_string(::geteuid()) + ".tavorno");
      else if (esito == std::errc::device_or_resource_busy)
        std::this_thread::sleep_for(pausa);
      else if (esito != std::errc::resource_unavailable_try_again)
        return esito;
    }
    return esito;
  }
  bool Scrivi(std::string_view byte) const {
    while (!byte.empty()) {
      const ssize_t n = ::write(descrittore_, byte.data(), byte.size());
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) return false;
      byte.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
  }
  /// Not every file system knows how; what cannot be had is not missed.
  bool Fissa() const { return ::fsync(descrittore_) == 0 || errno == EINVAL || errno == ENOSYS; }
  bool Prendi_Diritti(const fs::path& vecchio, const struct stat& stato) const {
    struct stat nuovo {};
    if (::fstat(descrittore_, &nuovo) != 0) return false;
    if (stato.st_uid != nuovo.st_uid || stato.st_gid != nuovo.st_gid) {
      // Only the superuser gives files away; the group is what a class shares.
      if (::fchown(descrittore_, stato.st_uid, stato.st_gid) != 0 &&
          ::fchown(descrittore_, static_cast<uid_t>(-1), stato.st_gid) != 0 && errno != EPERM)
        return false;
    }
    if (::fchmod(descrittore_, stato.st_mode & 07777U) != 0) return false;
    constexpr const char* lista = "system.posix_acl_access";
    std::array<char, 4096> diritti{};
    const ssize_t n = ::getxattr(vecchio.c_str(), lista, diritti.data(), diritti.size());
    if (n > 0) ::fsetxattr(descrittore_, lista, diritti.data(), static_cast<std::size_t>(n), 0);
    return true;
  }
  bool Consegna(const fs::path& file) {
    consegnato_ = ::rename(nome_.c_str(), file.c_str()) == 0;
    return consegnato_;
  }

 private:
  std::error_code Tenta(mode_t modo) {
    descrittore_ = ::open(nome_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, modo);
    if (descrittore_ < 0) return errno == EEXIST ? Sgombera() : Ultimo();
    if (Mio(descrittore_, nome_)) return {};
    ::close(std::exchange(descrittore_, -1));
    return std::make_error_code(std::errc::resource_unavailable_try_again);
  }
  /// Removes what a killed save has left, unless it is being written.
  std::error_code Sgombera() const {
    const auto ancora = std::make_error_code(std::errc::resource_unavailable_try_again);
    struct stat resto {};
    if (::lstat(nome_.c_str(), &resto) != 0) return errno == ENOENT ? ancora : Ultimo();
    if (resto.st_uid != ::geteuid())
      return std::make_error_code(std::errc::operation_not_permitted);
    if (!S_ISREG(resto.st_mode)) return ::unlink(nome_.c_str()) == 0 ? ancora : Ultimo();
    const int aperto = ::open(nome_.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (aperto < 0) return errno == ENOENT ? ancora : Ultimo();
    const bool libero = Mio(aperto, nome_);
    const bool tolto = libero && ::unlink(nome_.c_str()) == 0;
    const std::error_code errore = Ultimo();
    ::close(aperto);
    if (libero) return tolto ? ancora : errore;
    return std::make_error_code(std::errc::device_or_resource_busy);
  }

  std::string nome_;
  int descrittore_ = -1;
  bool consegnato_ = false;
};

/// So that the new name itself survives a power failure; the bytes are safe already, so failures
/// are ignored.
void Fissa_Cartella(const fs::path& cartella) {
  const int descrittore = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descrittore < 0) return;
  ::fsync(descrittore);
  ::close(descrittore);
}

}  // namespace

std::error_code Sostituisci(const fs::path& file, std::string_view byte, Modo_Scrittura modo) {
  struct stat vecchio {};
  const bool esiste = ::stat(file.c_str(), &vecchio) == 0;
  if (esiste && ::access(file.c_str(), W_OK) != 0) return Ultimo();
  // Mask and folder say what a file is like that was not there.
  const bool diritti_propri = modo.Solo_Utente || esiste;
  File_Nuovo nuovo;
  if (const std::error_code errore = nuovo.Apri(file, diritti_propri ? 0600 : 0666)) return errore;
  if (!nuovo.Scrivi(byte)) return Ultimo();
  if (esiste && !modo.Solo_Utente && !nuovo.Prendi_Diritti(file, vecchio)) return Ultimo();
  if (modo.Fino_Al_Disco && !nuovo.Fissa()) return Ultimo();
  if (!nuovo.Consegna(file)) return Ultimo();
  if (modo.Fino_Al_Disco) Fissa_Cartella(file.parent_path());
  return {};
}

bool Di_Sistema(const fs::path& file) {
  std::error_code nessuno;
  const fs::file_status stato = fs::status(file, nessuno);
  return fs::exists(stato) && !fs::is_regular_file(stato) && !fs::is_directory(stato);
}

// ---- locks --------------------------------------------------------------------------------------

std::optional<Serratura> Serratura::Prendi(const fs::path& file) {
  const int aperto = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (aperto < 0) return std::nullopt;
  Serratura serratura(aperto);
  if (::flock(aperto, LOCK_EX | LOCK_NB) != 0) return std::nullopt;
  return serratura;
}

Serratura::Serratura(Serratura&& altra) noexcept : aperto_(std::exchange(altra.aperto_, -1)) {}

Serratura& Serratura::operator=(Serratura&& altra) noexcept {
  std::swap(aperto_, altra.aperto_);
  return *this;
}

Serratura::~Serratura() {
  if (aperto_ >= 0) ::close(static_cast<int>(aperto_));
}

// ---- places -------------------------------------------------------------------------------------

std::error_code Crea_Cartella_Privata(const fs::path& cartella) {
  std::error_code errore;
  fs::create_directories(cartella.parent_path(), errore);
  if (errore) return errore;
  if (::mkdir(cartella.c_str(), 0700) == 0 || errno == EEXIST) return {};
  return Ultimo();
}

fs::path Cartella_Stato_Utente() {
  const auto variabile = [](const char* nome) {
    const char* valore = std::getenv(nome);
    return fs::path(valore == nullptr ? "" : valore);
  };
  if (const fs::path stato = variabile("XDG_STATE_HOME"); stato.is_absolute()) return stato;
  fs::path casa = variabile("HOME");
  if (!casa.is_absolute()) {
    const passwd* utente = ::getpwuid(::geteuid());
    casa = utente == nullptr ? "" : utente->pw_dir;
  }
  return casa.is_absolute() ? casa / ".local" / "state" : fs::path();
}

}  // namespace tavorno
