// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that fails, preloaded before the C library. TAVORNO_FAULT says how ("write:ENOSPC"),
// TAVORNO_FAULT_IN below which folder; both are read at each call, so that a test can change them.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

int Errore(std::string_view nome) {
  constexpr std::array<std::pair<std::string_view, int>, 6> errori = {{{"ENOSPC", ENOSPC},
                                                                       {"EIO", EIO},
                                                                       {"EINTR", EINTR},
                                                                       {"EDQUOT", EDQUOT},
                                                                       {"EACCES", EACCES},
                                                                       {"EROFS", EROFS}}};
  for (const auto& [testo, numero] : errori) {
    if (testo == nome) return numero;
  }
  std::abort();  // a test that asks for what there is not
}

std::string_view Variabile(const char* nome) {
  const char* valore = std::getenv(nome);
  return valore == nullptr ? "" : valore;
}

bool Dentro(std::string_view percorso) {
  const std::string_view cartella = Variabile("TAVORNO_FAULT_IN");
  return !cartella.empty() && percorso.starts_with(cartella);
}

bool Dentro(int descrittore) {
  std::array<char, 4096> nome{};
  const std::string di = "/proc/self/fd/" + std::to_string(descrittore);
  const ssize_t n = ::readlink(di.c_str(), nome.data(), nome.size());
  return n > 0 && Dentro(std::string_view(nome.data(), static_cast<std::size_t>(n)));
}

/// The error that a call has to end in; 0 when it goes on.
int Guasto(std::string_view chiamata) {
  const std::string_view guasto = Variabile("TAVORNO_FAULT");
  if (!guasto.starts_with(chiamata) || guasto.substr(chiamata.size(), 1) != ":") return 0;
  return Errore(guasto.substr(chiamata.size() + 1));
}

template <class Funzione>
Funzione* Vera(const char* nome) {
  return reinterpret_cast<Funzione*>(::dlsym(RTLD_NEXT, nome));
}

int Fallita(int errore) {
  errno = errore;
  return -1;
}

bool Una_Su_Due() {
  static unsigned volte = 0;
  return ++volte % 2 == 1;
}

}  // namespace

extern "C" {

/// For a test to know that the disk really fails.
int tavorno_failing_disk() {
  return 1;
}

ssize_t write(int descrittore, const void* byte, size_t quanti) {
  static auto* vera = Vera<ssize_t(int, const void*, size_t)>("write");
  if (Variabile("TAVORNO_FAULT").empty() || !Dentro(descrittore))
    return vera(descrittore, byte, quanti);
  if (const int errore = Guasto("write")) return Fallita(errore);
  // A part is written, and then nothing more.
  if (const int errore = Guasto("short"))
    return Una_Su_Due() && quanti > 1 ? vera(descrittore, byte, quanti / 2) : Fallita(errore);
  // Nothing is lost: a part at a time, and an interruption now and then.
  if (Guasto("slow") != 0)
    return Una_Su_Due() ? Fallita(EINTR) : vera(descrittore, byte, std::max<size_t>(quanti / 2, 1));
  return vera(descrittore, byte, quanti);
}

ssize_t writev(int descrittore, const struct iovec* pezzi, int quanti) {
  static auto* vera = Vera<ssize_t(int, const struct iovec*, int)>("writev");
  if (Variabile("TAVORNO_FAULT").empty() || !Dentro(descrittore))
    return vera(descrittore, pezzi, quanti);
  for (int i = 0; i < quanti; ++i) {
    if (pezzi[i].iov_len > 0) return write(descrittore, pezzi[i].iov_base, pezzi[i].iov_len);
  }
  return 0;
}

int fsync(int descrittore) {
  static auto* vera = Vera<int(int)>("fsync");
  const int errore = Guasto("fsync");
  return errore != 0 && Dentro(descrittore) ? Fallita(errore) : vera(descrittore);
}

int fdatasync(int descrittore) {
  static auto* vera = Vera<int(int)>("fdatasync");
  const int errore = Guasto("fsync");
  return errore != 0 && Dentro(descrittore) ? Fallita(errore) : vera(descrittore);
}

int rename(const char* da, const char* a) {
  static auto* vera = Vera<int(const char*, const char*)>("rename");
  const int errore = Guasto("rename");
  return errore != 0 && Dentro(a) ? Fallita(errore) : vera(da, a);
}

int linkat(int da_cartella, const char* da, int a_cartella, const char* a, int come) {
  static auto* vera = Vera<int(int, const char*, int, const char*, int)>("linkat");
  const int errore = Guasto("rename");
  return errore != 0 && Dentro(a) ? Fallita(errore) : vera(da_cartella, da, a_cartella, a, come);
}

static int Apri(const char* nome_vera, const char* percorso, int come, mode_t modo) {
  const int errore = Guasto("create");
  if (errore != 0 && (come & (O_CREAT | O_WRONLY | O_RDWR)) != 0 && Dentro(percorso))
    return Fallita(errore);
  return Vera<int(const char*, int, ...)>(nome_vera)(percorso, come, modo);
}

int open(const char* percorso, int come, ...) {
  va_list altri;
  va_start(altri, come);
  const mode_t modo = va_arg(altri, mode_t);
  va_end(altri);
  return Apri("open", percorso, come, modo);
}

int open64(const char* percorso, int come, ...) {
  va_list altri;
  va_start(altri, come);
  const mode_t modo = va_arg(altri, mode_t);
  va_end(altri);
  return Apri("open64", percorso, come, modo);
}

}  // extern "C"
