// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "panel/end_signals.h"

namespace tavorno {

namespace {

constexpr std::array segnali = {SIGTERM, SIGHUP, SIGINT};

// A handler reaches nothing but what is static.
std::array<int, 2> tubo = {-1, -1};

/// Tells the event loop; a second signal finds the loop stuck and ends the process at once.
void Di_Al_Giro(int segnale) {
  const int errno_di_prima = errno;
  const auto byte = static_cast<unsigned char>(segnale);
  [[maybe_unused]] const ssize_t scritti = ::write(tubo[1], &byte, 1);
  errno = errno_di_prima;
}

}  // namespace

Segnali_Di_Fine::Segnali_Di_Fine(std::function<void()> prima) : prima_(std::move(prima)) {
  if (::pipe2(tubo.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* ascolto = new QSocketNotifier(tubo[0], QSocketNotifier::Read, this);
  connect(ascolto, &QSocketNotifier::activated, this, [this] {
    unsigned char segnale = 0;
    if (::read(tubo[0], &segnale, 1) != 1) return;
    prima_();
    std::signal(segnale, SIG_DFL);
    std::raise(segnale);
  });
  for (const int segnale : segnali) {
    struct sigaction vecchia {};
    ::sigaction(segnale, nullptr, &vecchia);
    if (vecchia.sa_handler == SIG_IGN) continue;
    struct sigaction nuova {};
    nuova.sa_handler = Di_Al_Giro;
    nuova.sa_flags = SA_RESTART | SA_RESETHAND;
    ::sigaction(segnale, &nuova, nullptr);
  }
}

Segnali_Di_Fine::~Segnali_Di_Fine() {
  for (const int segnale : segnali) {
    struct sigaction ora {};
    ::sigaction(segnale, nullptr, &ora);
    if (ora.sa_handler == Di_Al_Giro) std::signal(segnale, SIG_DFL);
  }
  for (int& capo : tubo) {
    if (capo >= 0) ::close(std::exchange(capo, -1));
  }
}

}  // namespace tavorno
