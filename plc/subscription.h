// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <list>
#include <memory>
#include <utility>

namespace tavorno {

/// A listener's hold on what it listens to: the listening ends with it. It may outlive what it
/// listens to.
class [[nodiscard]] Iscrizione {
 public:
  Iscrizione() = default;
  explicit Iscrizione(std::shared_ptr<bool> viva) : viva_(std::move(viva)) {}
  Iscrizione(Iscrizione&&) = default;
  Iscrizione& operator=(Iscrizione&& altra) noexcept {
    Termina();
    viva_ = std::move(altra.viva_);
    return *this;
  }
  ~Iscrizione() { Termina(); }

  /// From here on nothing is heard, not even in a round that is under way.
  void Termina() {
    if (viva_) *viva_ = false;
    viva_.reset();
  }

 private:
  std::shared_ptr<bool> viva_;
};

/// Something that happens, and who listens to it. A round calls the listeners in their order and
/// allocates nothing; a listener may listen, end any listening, its own included, and cause
/// another round. One that comes during a round is heard from the next one on.
template <class... Dati>
class Annuncio {
 public:
  Annuncio() = default;
  Annuncio(const Annuncio&) = delete;
  Annuncio& operator=(const Annuncio&) = delete;

  /// Behind those that listen already.
  Iscrizione Ascolta(std::function<void(Dati...)> fai) {
    Dimentica_I_Finiti();
    return Iscrizione(ascolti_.emplace_back(std::move(fai), ++ultimo_).Viva);
  }
  /// In front of them.
  Iscrizione Ascolta_Per_Primo(std::function<void(Dati...)> fai) {
    Dimentica_I_Finiti();
    return Iscrizione(ascolti_.emplace_front(std::move(fai), ++ultimo_).Viva);
  }

  /// A round. What a listener throws ends it and comes out here.
  void operator()(Dati... dati) {
    if (ascolti_.empty()) return;
    const In_Giro in_giro(giri_);
    const auto ultimo = ultimo_;
    for (const Ascolto& ascolto : ascolti_) {
      if (*ascolto.Viva && ascolto.Numero <= ultimo) ascolto.Fai(dati...);
    }
  }

  bool Ascoltato() const {
    for (const Ascolto& ascolto : ascolti_) {
      if (*ascolto.Viva) return true;
    }
    return false;
  }

 private:
  struct Ascolto {
    Ascolto(std::function<void(Dati...)> fai, unsigned long long numero)
        : Fai(std::move(fai)), Numero(numero) {}

    std::function<void(Dati...)> Fai;
    unsigned long long Numero;
    std::shared_ptr<bool> Viva = std::make_shared<bool>(true);
  };

  class In_Giro {
   public:
    explicit In_Giro(int& giri) : giri_(giri) { ++giri_; }
    ~In_Giro() { --giri_; }
    In_Giro(const In_Giro&) = delete;
    In_Giro& operator=(const In_Giro&) = delete;

   private:
    int& giri_;
  };

  /// A round under way may stand at any of them.
  void Dimentica_I_Finiti() {
    if (giri_ == 0) ascolti_.remove_if([](const Ascolto& ascolto) { return !*ascolto.Viva; });
  }

  std::list<Ascolto> ascolti_;
  unsigned long long ultimo_ = 0;
  int giri_ = 0;
};

}  // namespace tavorno
