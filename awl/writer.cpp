// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/writer.h"

#include <algorithm>

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

std::string Norm_Operandi(const std::string& testo) {
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

std::string Norm_Riga(const std::string& riga) {
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

Scrittura Scrivi_Sorgente(const Sorgente& sorgente) {
  Scrittura scrittura;
  std::vector<std::string>& righe = scrittura.Righe;
  const auto prova_posto = [&] {
    if (righe.size() >= Righe_File_Massime)
      throw Riga_Rifiutata("il progetto supera le 1001 righe del file", Causa::Capienza);
  };
  const auto aggiungi = [&](std::string riga) {
    prova_posto();
    righe.push_back(std::move(riga));
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
    blocco(sorgente.Main);
    aggiungi("END_ORGANIZATION_BLOCK");
    aggiungi("");
    for (const Riga_SBR& procedura : sorgente.Procedure) {
      aggiungi("SUBROUTINE_BLOCK " + procedura.Nome + ":" + procedura.Sigla);
      blocco(procedura.Testo);
      aggiungi("END_SUBROUTINE_BLOCK");
      aggiungi("");
    }
    prova_posto();  // of the entry behind the last one
  } catch (const Riga_Rifiutata& rifiuto) {
    scrittura.Rifiuto = {0, A_Utf8(in_corso), rifiuto.what(), rifiuto.Perche()};
  }
  return scrittura;
}

std::string Byte_Di(std::span<const std::string> righe) {
  std::string byte;
  for (const std::string& riga : righe) byte.append(riga).append(CRLF);
  return byte;
}

std::string Byte_Di(const Sorgente& sorgente) {
  Scrittura scrittura = Scrivi_Sorgente(sorgente);
  if (!scrittura.Riuscita())
    throw Riga_Rifiutata(scrittura.Rifiuto.Motivo, scrittura.Rifiuto.Perche);
  scrittura.Righe.emplace_back();
  return Byte_Di(scrittura.Righe);
}

std::string Testo_Progetto(const Sorgente& sorgente) {
  const std::string fine(CRLF);
  std::string testo = "----  Main Program ----" + fine + sorgente.Main + fine + fine +
                      "---- End Main Program ----" + fine + fine;
  for (const Riga_SBR& procedura : sorgente.Procedure) {
    testo += "--------- Procedura:" + procedura.Nome + " ------------------" + fine +
             procedura.Testo + "--------- END Procedura:" + procedura.Nome + " --------------" +
             fine + fine;
  }
  return testo;
}

}  // namespace tavorno
