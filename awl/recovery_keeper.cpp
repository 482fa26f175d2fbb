// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/recovery_keeper.h"

#include <chrono>
#include <utility>

namespace tavorno {

Custode_Testi::Custode_Testi(Progetto& progetto, std::filesystem::path cartella_copie)
    : progetto_(progetto), deposito_(std::move(cartella_copie)) {
  progetto_.Al_Sicuro = [this](int numero) {
    deposito_.Togli(numero);
    if (numero == numero_) numero_ = -1;
  };
}

Custode_Testi::~Custode_Testi() {
  progetto_.Al_Sicuro = {};
}

void Custode_Testi::Passo() {
  if (!progetto_.Da_Salvare()) {
    // As they were saved, by undo for example: nothing to keep. Another project's copy stays.
    if (numero_ == progetto_.Numero) deposito_.Togli(std::exchange(numero_, -1));
    visti_.clear();
    return;
  }
  std::string testi = progetto_.Testi();
  const bool fermi = testi == visti_;
  visti_ = std::move(testi);
  const bool scritti = numero_ == progetto_.Numero && scritti_ == visti_;
  if (!scritti || (fermi && !fissati_)) Scrivi(fermi);
}

void Custode_Testi::Scrivi_Ora() {
  if (!progetto_.Da_Salvare()) return;
  visti_ = progetto_.Testi();
  if (numero_ != progetto_.Numero || scritti_ != visti_) Scrivi(false);
}

void Custode_Testi::Congeda() {
  deposito_.Togli_Tutte();
  numero_ = -1;
}

void Custode_Testi::Scrivi(bool fino_al_disco) {
  const auto adesso = std::chrono::system_clock::now().time_since_epoch();
  const auto ora = std::chrono::duration_cast<std::chrono::seconds>(adesso).count();
  errore_ = deposito_.Scrivi(progetto_.Numero, Byte_Di(Copia_Di(progetto_, ora)), fino_al_disco);
  if (!errore_.empty()) return;
  numero_ = progetto_.Numero;
  scritti_ = visti_;
  fissati_ = fino_al_disco;
}

}  // namespace tavorno
