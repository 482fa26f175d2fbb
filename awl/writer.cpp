// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <vector>

#include "awl/file_io.h"
#include "awl/project.h"
#include "awl/text.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

std::string Norm_Network(const std::string& riga) {
  const std::size_t barra = riga.find('/');
  if (barra == std::string::npos) return riga + " ";
  return Trim(riga.substr(0, barra)) + " " + Trim(riga.substr(barra));
}

/// The lines of one block's text, as the writer gathers them.
std::vector<std::string> Righe_Blocco(const std::string& testo) {
  std::string blocco = Trim(testo) + std::string(CRLF);
  std::ranges::replace(blocco, '\t', ' ');
  std::vector<std::string> righe;
  std::string riga;
  for (std::size_t i = 0; i < blocco.size(); ++i) {
    if (blocco[i] != '\r') {
      riga += blocco[i];
      continue;
    }
    if (i + 1 < blocco.size() && blocco[i + 1] == '\n') ++i;
    righe.push_back(riga);
    riga.clear();
  }
  return righe;
}

}  // namespace

std::string Testo_Base(const std::string& testo) {
  return testo.substr(0, testo.find('.'));
}

std::string Progetto::Norm_Operandi(const std::string& testo) {
  std::vector<std::string> parti(1);
  for (const char c : testo) {
    if (c != ',')
      parti.back() += c;
    else
      parti.emplace_back();
  }
  const std::size_t virgole = parti.size() - 1;
  if (virgole == 0) return testo;
  if (virgole > 4) throw Riga_Rifiutata("la riga ha troppe virgole tra gli operandi");
  if (virgole > 2) return "";  // such operands are lost on saving
  std::string unite = Trim(parti[0]);
  for (std::size_t i = 1; i < parti.size(); ++i) unite += " " + Trim(parti[i]);
  return unite;
}

std::string Progetto::Norm_Riga(const std::string& riga) {
  if (riga.empty() || riga.starts_with("//") || riga.starts_with("TITLE=")) return riga;
  if (riga.starts_with("NETWORK")) return Norm_Network(riga);
  const std::size_t spazio = riga.find(' ');
  if (spazio == std::string::npos) return riga;
  // An indented line has an empty mnemonic, which stands for the whole line: it is doubled.
  const std::string mnemonico = spazio == 0 ? riga : riga.substr(0, spazio);
  const std::string resto = Trim(riga.substr(spazio));
  if (resto.empty()) return mnemonico;
  // Here, unlike in the reader, a single "/" begins the comment.
  const std::size_t barra = resto.find('/');
  if (barra == std::string::npos) return mnemonico + " " + Norm_Operandi(resto);
  return mnemonico + " " + Norm_Operandi(Trim(resto.substr(0, barra))) + " " +
         Trim(resto.substr(barra));
}

bool Progetto::Crea_Progetto() {
  int usate = 0;
  const auto prova_posto = [&] {
    if (usate > Righe_Prog.ultimo)
      throw Riga_Rifiutata("il progetto supera le 1001 righe del file");
  };
  const auto aggiungi = [&](const std::string& riga) {
    prova_posto();
    Righe_Prog[usate] = riga;
    ++usate;
  };
  std::string in_corso;  // for the message
  const auto blocco = [&](const std::string& testo) {
    bool prima = true;
    bool iniziato = false;
    for (const std::string& riga : Righe_Blocco(testo)) {
      in_corso = riga;
      if (prima && riga.starts_with("//")) {
        aggiungi("TITLE=" + Trim(riga.substr(2)));
      } else {
        if (prima) {
          aggiungi("TITLE=");
        } else if (!iniziato && riga.starts_with("NETWORK")) {
          aggiungi("BEGIN");
          iniziato = true;
        }
        aggiungi(Norm_Riga(riga));
      }
      prima = false;
    }
  };

  try {
    aggiungi("ORGANIZATION_BLOCK MAIN:OB1");
    blocco(txtList);
    aggiungi("END_ORGANIZATION_BLOCK");
    aggiungi("");
    for (int i = 1; i <= Num_SBR; ++i) {
      aggiungi("SUBROUTINE_BLOCK " + Tab_SBR[i].Nome + ":" + Tab_SBR[i].Sigla);
      blocco(Tab_SBR[i].Testo);
      aggiungi("END_SUBROUTINE_BLOCK");
      aggiungi("");
    }
    prova_posto();  // of the entry behind the last one, which goes out as it is
  } catch (const Riga_Rifiutata& rifiuto) {
    Avvisa({"Errore!",
            "Impossibile salvare il progetto: " + std::string(rifiuto.what()) + "!\n" +
                A_Utf8(in_corso),
            Icona::Critica,
            Tasti::Ok,
            {}});
    return false;
  }
  NRighe_Prog = static_cast<std::int16_t>(usate);
  etNR[2] = std::to_string(NRighe_Prog);
  return true;
}

bool Progetto::Scrivi_Testo(const std::string& testo) {
  const std::string errore = Scrivi_File(File_Salva, testo);
  if (errore.empty()) return true;
  Avvisa({"Errore!",
          "Impossibile scrivere il file \"" + File_Salva + "\": " + errore +
              "!\nIl file precedente non è stato toccato.",
          Icona::Critica,
          Tasti::Ok,
          {}});
  return false;
}

bool Progetto::SalvaFile() {
  std::string testo;
  for (int i = 0; i <= NRighe_Prog; ++i) testo.append(Righe_Prog[i]).append(CRLF);
  return Scrivi_Testo(testo);
}

std::string Progetto::Testo_Progetto() const {
  const std::string fine(CRLF);
  std::string testo = "----  Main Program ----" + fine + Testo_Main + fine + fine +
                      "---- End Main Program ----" + fine + fine;
  for (int i = 1; i <= Num_SBR; ++i) {
    const Riga_SBR& procedura = Tab_SBR[i];
    testo += "--------- Procedura:" + procedura.Nome + " ------------------" + fine +
             procedura.Testo + "--------- END Procedura:" + procedura.Nome + " --------------" +
             fine + fine;
  }
  return testo;
}

}  // namespace tavorno
