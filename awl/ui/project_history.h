// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavorno {

/// The way back from commands that replace or rearrange a project as a whole, and forth again. A
/// state can be left only as long as its texts are those that it was reached with: what was typed
/// since belongs to the histories of the texts themselves.
template <class Stato>
class Storia_Comandi {
 public:
  /// A command has led from `prima` to a state with these texts.
  void Passo(Stato prima, std::string testi) {
    indietro_.push_back({std::move(prima), std::move(testi_)});
    testi_ = std::move(testi);
    Scorda();
  }
  /// Something was written anew: there is no way forth any more.
  void Scorda() {
    tornato_.reset();
    avanti_.clear();
  }
  /// There is no way back from here.
  void Ricomincia(std::string testi) {
    *this = {};
    testi_ = std::move(testi);
  }

  bool Annullabile(const std::string& testi) const { return !indietro_.empty() && testi == testi_; }
  bool Ripetibile(const std::string& testi) const { return !avanti_.empty() && tornato_ == testi; }

  /// The state to go back to; `ora` is the one that is left, `testi` are those of the one returned,
  /// told by the caller through `Arrivato`.
  Stato Annulla(Stato ora) {
    avanti_.push_back({std::move(ora), std::move(testi_)});
    return Prendi(indietro_);
  }
  Stato Ripeti(Stato ora) {
    indietro_.push_back({std::move(ora), std::move(testi_)});
    return Prendi(avanti_);
  }
  /// The texts of the state that was gone back or forth to.
  void Arrivato(std::string testi) { tornato_ = std::move(testi); }

 private:
  struct Voce {
    Stato Com_Era;
    std::string Testi;  // with which it was reached
  };
  Stato Prendi(std::vector<Voce>& pila) {
    Voce voce = std::move(pila.back());
    pila.pop_back();
    testi_ = std::move(voce.Testi);
    return std::move(voce.Com_Era);
  }

  std::vector<Voce> indietro_, avanti_;
  std::string testi_;                   // with which the present state was reached
  std::optional<std::string> tornato_;  // with which it was come back to
};

}  // namespace tavorno
