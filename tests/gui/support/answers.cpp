// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/answers.h"

namespace tavorno {

namespace {

Risposta Prossima(std::deque<Risposta>& preparate, const Avviso& avviso) {
  if (preparate.empty()) return avviso.Scelte == Tasti::Si_No ? Risposta::No : Risposta::Ok;
  const Risposta prima = preparate.front();
  preparate.pop_front();
  return prima;
}

}  // namespace

Dialoghi Risponditore::Come_Dialoghi() {
  Dialoghi dialoghi;
  dialoghi.Mostra = [this](const Avviso& avviso) {
    Avvisi.push_back(avviso);
    return Prossima(Risposte, avviso);
  };
  dialoghi.Scegli_File = [this](const Richiesta_File& richiesta) {
    Richieste.push_back(richiesta);
    std::optional<File_Scelto> scelto;
    if (!File.empty()) {
      scelto = File.front();
      File.pop_front();
    }
    return scelto;
  };
  return dialoghi;
}

}  // namespace tavorno
