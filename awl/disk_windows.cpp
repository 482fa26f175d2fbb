// SPDX-License-Identifier: GPL-3.0-or-later
// The headers of the system stand on this one.
// clang-format off
#include <windows.h>
// clang-format on
#include <aclapi.h>
#include <sddl.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include "awl/disk.h"
#include "awl/hidden_name.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

/// What the messages know by name; the rest as the system says it.
std::error_code Errore(DWORD codice) {
  const auto generico = [](std::errc quale) { return std::make_error_code(quale); };
  switch (codice) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return generico(std::errc::text_file_busy);
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return generico(std::errc::no_such_file_or_directory);
    case ERROR_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
      return generico(std::errc::permission_denied);
    case ERROR_WRITE_PROTECT:
      return generico(std::errc::read_only_file_system);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return generico(std::errc::no_space_on_device);
    case ERROR_FILENAME_EXCED_RANGE:
      return generico(std::errc::filename_too_long);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
      return generico(std::errc::invalid_argument);
    case ERROR_IO_DEVICE:
    case ERROR_CRC:
    case ERROR_NOT_READY:
      return generico(std::errc::io_error);
    default:
      return {static_cast<int>(codice), std::system_category()};
  }
}

std::error_code Ultimo() {
  return Errore(GetLastError());
}

/// The form of a path that may be longer than 260 characters.
std::wstring Esteso(const fs::path& file) {
  std::wstring intero(32768, L'\0');
  const DWORD n =
      GetFullPathNameW(file.c_str(), static_cast<DWORD>(intero.size()), intero.data(), nullptr);
  if (n == 0 || n >= intero.size()) return file.wstring();
  intero.resize(n);
  if (intero.starts_with(L"\\\\?\\") || intero.starts_with(L"\\\\.\\")) return intero;
  if (intero.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + intero.substr(2);
  return L"\\\\?\\" + intero;
}

struct Libera {
  void operator()(void* memoria) const { LocalFree(memoria); }
};
using Descrittore = std::unique_ptr<void, Libera>;

/// Rights for the user, the system and the administrators, none of them from the folder.
Descrittore Solo_Per_Utente() {
  PSECURITY_DESCRIPTOR descrittore = nullptr;
  if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
          L"D:P(A;OICI;FA;;;OW)(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)", SDDL_REVISION_1, &descrittore,
          nullptr))
    return {};
  return Descrittore(descrittore);
}

class Aperto {
 public:
  explicit Aperto(HANDLE maniglia) : maniglia_(maniglia) {}
  ~Aperto() { Chiudi(); }
  Aperto(const Aperto&) = delete;
  Aperto& operator=(const Aperto&) = delete;
  explicit operator bool() const { return maniglia_ != INVALID_HANDLE_VALUE; }
  HANDLE Maniglia() const { return maniglia_; }
  void Chiudi() {
    if (maniglia_ != INVALID_HANDLE_VALUE)
      CloseHandle(std::exchange(maniglia_, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE maniglia_;
};

/// The turn of who saves a file: it has to be closed under its hidden name before it can get its
/// own, and meanwhile another save would take it. Ends with its owner, however that ends.
class Turno {
 public:
  explicit Turno(std::wstring file) {
    CharUpperBuffW(file.data(), static_cast<DWORD>(file.size()));
    const std::size_t numero = std::hash<std::wstring>{}(file);
    mutex_ = CreateMutexW(nullptr, FALSE, (L"Tavorno-" + std::to_wstring(numero)).c_str());
    constexpr DWORD attesa = 3000;  // ms
    const DWORD stato = mutex_ == nullptr ? WAIT_FAILED : WaitForSingleObject(mutex_, attesa);
    mio_ = stato == WAIT_OBJECT_0 || stato == WAIT_ABANDONED;
  }
  ~Turno() {
    if (mio_) ReleaseMutex(mutex_);
    if (mutex_ != nullptr) CloseHandle(mutex_);
  }
  Turno(const Turno&) = delete;
  Turno& operator=(const Turno&) = delete;
  explicit operator bool() const { return mio_; }

 private:
  HANDLE mutex_ = nullptr;
  bool mio_ = false;
};

constexpr auto pausa = std::chrono::milliseconds(10);
constexpr int tentativi = 300;

/// Opens the new file for us alone; what a killed save has left there begins anew. Waits while
/// another program saves the same file.
HANDLE Crea(const std::wstring& nome, SECURITY_ATTRIBUTES* diritti) {
  for (int i = 0;; ++i) {
    const HANDLE maniglia =
        CreateFileW(nome.c_str(), GENERIC_WRITE, 0, diritti, CREATE_ALWAYS,
                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (maniglia != INVALID_HANDLE_VALUE || GetLastError() != ERROR_SHARING_VIOLATION ||
        i == tentativi)
      return maniglia;
    std::this_thread::sleep_for(pausa);
  }
}

std::error_code Scrivi(HANDLE maniglia, std::string_view byte) {
  while (!byte.empty()) {
    DWORD scritti = 0;
    const auto pezzo = static_cast<DWORD>(std::min<std::size_t>(byte.size(), 1U << 20U));
    if (!WriteFile(maniglia, byte.data(), pezzo, &scritti, nullptr)) return Ultimo();
    byte.remove_prefix(scritti);
  }
  return {};
}

/// Whether somebody holds the file in a way that keeps it from being replaced.
bool Tenuto(const std::wstring& file) {
  const Aperto prova(CreateFileW(file.c_str(), DELETE,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, 0, nullptr));
  return !prova && GetLastError() == ERROR_SHARING_VIOLATION;
}

/// The list of who may do what, from the old file; what may not be given is not missed.
void Prendi_Diritti(const std::wstring& vecchio, const std::wstring& nuovo) {
  PACL lista = nullptr;
  PSECURITY_DESCRIPTOR descrittore = nullptr;
  if (GetNamedSecurityInfoW(const_cast<wchar_t*>(vecchio.c_str()), SE_FILE_OBJECT,
                            DACL_SECURITY_INFORMATION, nullptr, nullptr, &lista, nullptr,
                            &descrittore) != ERROR_SUCCESS)
    return;
  const Descrittore padrone(descrittore);
  SECURITY_DESCRIPTOR_CONTROL controllo = 0;
  DWORD revisione = 0;
  GetSecurityDescriptorControl(descrittore, &controllo, &revisione);
  const SECURITY_INFORMATION eredita = (controllo & SE_DACL_PROTECTED) != 0
                                           ? PROTECTED_DACL_SECURITY_INFORMATION
                                           : UNPROTECTED_DACL_SECURITY_INFORMATION;
  SetNamedSecurityInfoW(const_cast<wchar_t*>(nuovo.c_str()), SE_FILE_OBJECT,
                        DACL_SECURITY_INFORMATION | eredita, nullptr, nullptr, lista, nullptr);
}

/// One step on a disk of Windows' own kind, which ReplaceFile is not: it moves the old file away
/// first. A scanner or a preview may hold the file for a moment.
std::error_code Consegna(const std::wstring& nuovo, const std::wstring& file, bool fino_al_disco) {
  constexpr int momenti = 100;
  const DWORD come =
      MOVEFILE_REPLACE_EXISTING | (fino_al_disco ? DWORD{MOVEFILE_WRITE_THROUGH} : DWORD{0});
  for (int i = 0;; ++i) {
    if (MoveFileExW(nuovo.c_str(), file.c_str(), come)) return {};
    const DWORD codice = GetLastError();
    const bool tenuto =
        codice == ERROR_SHARING_VIOLATION || (codice == ERROR_ACCESS_DENIED && Tenuto(file));
    if (!tenuto) return Errore(codice);
    if (i == momenti) return Errore(ERROR_SHARING_VIOLATION);
    std::this_thread::sleep_for(pausa);
  }
}

}  // namespace

std::error_code Sostituisci(const fs::path& file, std::string_view byte, Modo_Scrittura modo) {
  if (Di_Sistema(file)) return std::make_error_code(std::errc::invalid_argument);
  const std::wstring vecchio = Esteso(file);
  const DWORD attributi = GetFileAttributesW(vecchio.c_str());
  const bool esiste = attributi != INVALID_FILE_ATTRIBUTES;
  if (esiste && (attributi & FILE_ATTRIBUTE_READONLY) != 0) return Errore(ERROR_ACCESS_DENIED);
  const std::wstring nuovo = Esteso(Nome_Nascosto(file, ".tavorno"));

  const Turno turno(vecchio);
  if (!turno) return std::make_error_code(std::errc::device_or_resource_busy);
  const Descrittore privato = modo.Solo_Utente ? Solo_Per_Utente() : Descrittore{};
  SECURITY_ATTRIBUTES diritti{sizeof diritti, privato.get(), FALSE};
  Aperto aperto(Crea(nuovo, privato ? &diritti : nullptr));
  if (!aperto) return Ultimo();
  std::error_code errore = Scrivi(aperto.Maniglia(), byte);
  if (!errore && modo.Fino_Al_Disco && !FlushFileBuffers(aperto.Maniglia())) errore = Ultimo();
  aperto.Chiudi();
  if (!errore && esiste && !modo.Solo_Utente) Prendi_Diritti(vecchio, nuovo);
  if (!errore) errore = Consegna(nuovo, vecchio, modo.Fino_Al_Disco);
  if (errore) DeleteFileW(nuovo.c_str());
  return errore;
}

bool Di_Sistema(const fs::path& file) {
  std::wstring nome = file.filename().wstring();
  nome = nome.substr(0, nome.find_first_of(L".:"));
  while (nome.ends_with(L' ')) nome.pop_back();
  std::ranges::transform(nome, nome.begin(), [](wchar_t c) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
  });
  for (const wchar_t* riservato : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"}) {
    if (nome == riservato) return true;
  }
  // Superscript digits count, too.
  return nome.size() == 4 && (nome.starts_with(L"COM") || nome.starts_with(L"LPT")) &&
         std::wstring_view(L"123456789\u00B9\u00B2\u00B3").find(nome[3]) != std::wstring_view::npos;
}

// ---- locks --------------------------------------------------------------------------------------

std::optional<Serratura> Serratura::Prendi(const fs::path& file) {
  const Descrittore privato = Solo_Per_Utente();
  SECURITY_ATTRIBUTES diritti{sizeof diritti, privato.get(), FALSE};
  const HANDLE aperto = CreateFileW(Esteso(file).c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                    privato ? &diritti : nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (aperto == INVALID_HANDLE_VALUE) return std::nullopt;
  return Serratura(reinterpret_cast<std::intptr_t>(aperto));
}

Serratura::Serratura(Serratura&& altra) noexcept : aperto_(std::exchange(altra.aperto_, -1)) {}

Serratura& Serratura::operator=(Serratura&& altra) noexcept {
  std::swap(aperto_, altra.aperto_);
  return *this;
}

Serratura::~Serratura() {
  const auto maniglia = reinterpret_cast<HANDLE>(aperto_);  // -1 is that of no file
  if (maniglia != INVALID_HANDLE_VALUE) CloseHandle(maniglia);
}

// ---- places -------------------------------------------------------------------------------------

std::error_code Crea_Cartella_Privata(const fs::path& cartella) {
  std::error_code errore;
  fs::create_directories(cartella.parent_path(), errore);
  if (errore) return errore;
  const Descrittore privato = Solo_Per_Utente();
  SECURITY_ATTRIBUTES diritti{sizeof diritti, privato.get(), FALSE};
  if (CreateDirectoryW(Esteso(cartella).c_str(), privato ? &diritti : nullptr) ||
      GetLastError() == ERROR_ALREADY_EXISTS)
    return {};
  return Ultimo();
}

fs::path Cartella_Stato_Utente() {
  const wchar_t* locale = _wgetenv(L"LOCALAPPDATA");
  const fs::path cartella = locale == nullptr ? L"" : locale;
  return cartella.is_absolute() ? cartella : fs::path();
}

}  // namespace tavorno
