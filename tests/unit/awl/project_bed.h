// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "awl/project.h"
#include "plc/plc.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

/// A project with its CPU and a folder of its own. Boxes are collected; questions and file dialogs
/// are answered from queues (an empty queue answers Ok, or cancels a file dialog).
class Banco_Progetto : public ::testing::Test {
 public:
  Banco_Progetto() {
    progetto.Chiedi.Mostra = [this](const Avviso& avviso) {
      avvisi.push_back(avviso);
      if (risposte.empty()) return Risposta::Ok;
      const Risposta risposta = risposte.front();
      risposte.pop_front();
      return risposta;
    };
    progetto.Chiedi.Scegli_File =
        [this](const Richiesta_File& richiesta) -> std::optional<File_Scelto> {
      richieste.push_back(richiesta);
      if (scelte.empty()) return std::nullopt;
      const std::string nome_file = scelte.front();
      scelte.pop_front();
      return File_Scelto{Percorso(nome_file), nome_file};
    };
  }

  std::string Percorso(const std::string& nome) const { return (cartella / nome).string(); }

  /// Writes a file byte for byte.
  void Scrivi(const std::string& nome, const std::string& byte) const {
    Scrivi_Byte(cartella / nome, byte);
  }
  std::string Leggi(const std::string& nome) const { return Leggi_Byte(cartella / nome); }

  /// Lines joined by CR LF, each with its end.
  static std::string Righe(const std::vector<std::string>& righe) {
    std::string testo;
    for (const std::string& riga : righe) testo += riga + "\r\n";
    return testo;
  }

  /// A project file with these lines in its Main block behind TITLE= and BEGIN.
  static std::string File_Main(const std::vector<std::string>& righe) {
    return "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\n" + Righe(righe) +
           "END_ORGANIZATION_BLOCK\r\n\r\n";
  }

  /// Reads a project from these bytes; true when the read is good.
  bool Apri(const std::string& byte) {
    Scrivi("prova.AWL", byte);
    progetto.File_Progetto = Percorso("prova.AWL");
    progetto.File_Titolo = "prova.AWL";
    progetto.LeggiTxt();
    if (!progetto.Err_Lettura) progetto.Formattato = -1;
    return progetto.Err_Lettura == 0;
  }

  /// The titles and texts of the boxes shown, as "title: text".
  std::vector<std::string> Testi_Avvisi() const {
    std::vector<std::string> testi;
    for (const Avviso& avviso : avvisi) testi.push_back(avviso.Titolo + ": " + avviso.Testo);
    return testi;
  }

  Cartella_Temporanea cartella;
  Orologio orologio;
  Plc plc{orologio};
  Progetto progetto{plc, {}};
  std::vector<Avviso> avvisi;
  std::deque<Risposta> risposte;
  std::vector<Richiesta_File> richieste;
  std::deque<std::string> scelte;  ///< file names that the next file dialogs return
};

}  // namespace tavorno::prova
