// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/arguments.h"

#include <charconv>

namespace tavorno {

Argomenti::Argomenti(const std::vector<std::string>& parole,
                     const std::set<std::string>& con_valore,
                     const std::set<std::string>& senza_valore) {
  bool solo_file = false;
  for (std::size_t i = 0; i < parole.size(); ++i) {
    const std::string& parola = parole[i];
    if (solo_file || !parola.starts_with("--")) {
      file_.push_back(parola);
      continue;
    }
    if (parola == "--") {
      solo_file = true;
      continue;
    }
    const std::size_t uguale = parola.find('=');
    const std::string nome = parola.substr(0, uguale);
    if (senza_valore.contains(nome) && uguale == std::string::npos) {
      opzioni_[nome] = "";
    } else if (con_valore.contains(nome)) {
      if (uguale == std::string::npos && i + 1 == parole.size())
        throw Uso_Errato("manca il valore dell'opzione " + nome);
      const std::string valore =
          uguale == std::string::npos ? parole[++i] : parola.substr(uguale + 1);
      if (valore.starts_with("--"))
        throw Uso_Errato("manca il valore dell'opzione " + nome + " prima di " + valore);
      opzioni_[nome] = valore;
    } else {
      throw Uso_Errato("opzione sconosciuta: " + parola);
    }
  }
}

std::string Argomenti::Testo(const std::string& opzione, const std::string& altrimenti) const {
  const auto trovata = opzioni_.find(opzione);
  return trovata == opzioni_.end() ? altrimenti : trovata->second;
}

long long Argomenti::Numero(const std::string& opzione, long long altrimenti, long long minimo,
                            long long massimo) const {
  if (!Ha(opzione)) return altrimenti;
  const std::string testo = Testo(opzione, "");
  long long numero = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc{} || fine != testo.data() + testo.size() || numero < minimo ||
      numero > massimo)
    throw Uso_Errato("il valore di " + opzione + " deve essere un numero intero tra " +
                     std::to_string(minimo) + " e " + std::to_string(massimo));
  return numero;
}

const std::string& Argomenti::Un_File() const {
  if (file_.empty()) throw Uso_Errato("manca il file del progetto");
  if (file_.size() > 1) throw Uso_Errato("troppi file: \"" + file_[1] + "\"");
  return file_.front();
}

}  // namespace tavorno
