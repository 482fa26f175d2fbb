// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/command_line.h"

#include <algorithm>
#include <ostream>

#include "grading/reports.h"
#include "manual/manuals.h"

namespace tavorno {

namespace {

constexpr int Uscita_Uso = 64;

bool Aiuto_Chiesto(const std::string& parola) {
  return parola == "--help" || parola == "-h";
}

}  // namespace

bool Solo_Domande(const std::vector<std::string>& parole) {
  return std::ranges::any_of(
      parole, [](const auto& parola) { return Aiuto_Chiesto(parola) || parola == "--version"; });
}

Riga_Di_Comando Leggi_Riga_Di_Comando(const std::vector<std::string>& parole, std::ostream& out,
                                      std::ostream& err) {
  const auto Uso_Errato = [&err](const std::string& motivo) {
    err << "tavorno: " << motivo << " (tavorno --help per l'aiuto)\n";
    return Riga_Di_Comando{Uscita_Uso, {}};
  };
  if (std::ranges::any_of(parole, Aiuto_Chiesto)) {
    out << Aiuto(Manuale_Tavorno());
    return {0, {}};
  }
  if (std::ranges::find(parole, "--version") != parole.end()) {
    out << "tavorno " << Versione() << '\n';
    return {0, {}};
  }
  std::vector<std::string> file;
  bool solo_file = false;  // behind "--"
  for (const std::string& parola : parole) {
    if (!solo_file && parola == "--")
      solo_file = true;
    else if (!solo_file && parola.size() > 1 && parola.starts_with('-'))
      return Uso_Errato("opzione sconosciuta: " + parola);
    else
      file.push_back(parola);
  }
  if (file.size() > 1) return Uso_Errato("troppi file: \"" + file[1] + "\"");
  return {{}, file.empty() ? std::string() : file.front()};
}

}  // namespace tavorno
