// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavorno {

/// Takes an entry apart from the left; once something does not fit, all that follows fails too.
class Voce {
 public:
  explicit Voce(std::string_view testo) : testo_(testo) {}

  bool Inizia_Con(std::string_view segno) {
    if (!buona_ || !testo_.starts_with(segno)) return false;
    testo_.remove_prefix(segno.size());
    return true;
  }
  void Vuole(std::string_view segno) { buona_ = Inizia_Con(segno); }

  /// The moment of an event, ms since Run; the limit only keeps sums from overflowing.
  std::int64_t Istante() { return Numero<std::int64_t>(0, 1'000'000'000'000); }

  template <class T>
  T Numero(T minimo, T massimo) {
    T valore{};
    const auto [fine, errore] =
        std::from_chars(testo_.data(), testo_.data() + testo_.size(), valore);
    buona_ = buona_ && errore == std::errc{} && valore >= minimo && valore <= massimo;
    if (buona_) testo_.remove_prefix(static_cast<std::size_t>(fine - testo_.data()));
    return valore;
  }

  /// What stands in front of `segno`, or all that is left where there is no `segno`; never empty.
  std::string Nome_Fino_A(char segno) {
    const std::string_view nome = testo_.substr(0, testo_.find(segno));
    buona_ = buona_ && !nome.empty();
    if (buona_) testo_.remove_prefix(nome.size());
    return std::string(nome);
  }

  bool Finita_Bene() const { return buona_ && testo_.empty(); }

 private:
  std::string_view testo_;
  bool buona_ = true;
};

/// Reads a list of events separated by commas and sorts it by time, equal times in the order of the
/// list. Where `leggi` gives nothing the list is empty and `errata` holds that entry.
template <class Evento>
std::vector<Evento> Leggi_Lista(const std::string& testo,
                                std::optional<Evento> (*leggi)(std::string_view),
                                std::optional<std::string>& errata) {
  std::vector<Evento> eventi;
  std::size_t inizio = 0;
  while (inizio <= testo.size()) {
    const std::size_t fine = std::min(testo.find(',', inizio), testo.size());
    const std::string voce = testo.substr(inizio, fine - inizio);
    const std::optional<Evento> evento = leggi(voce);
    if (!evento) {
      errata = voce;
      return {};
    }
    eventi.push_back(*evento);
    inizio = fine + 1;
  }
  std::ranges::stable_sort(eventi, {}, &Evento::Ms);
  return eventi;
}

}  // namespace tavorno
