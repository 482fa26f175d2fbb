// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/screen_rows.h"

#include <algorithm>

#include "awl/line_numbers.h"
#include "awl/line_splitter.h"
#include "awl/line_words.h"
#include "awl/text.h"
#include "awl/writer.h"
#include "plc/codepage.h"

namespace tavorno {

Riga_Src Riga_A_Schermo(std::string_view linea, Posto_Riga posto) {
  std::string scritta(linea);
  std::ranges::replace(scritta, '\t', ' ');
  scritta = Trim(scritta);
  Righe_Lette lettore;
  try {
    lettore.Cerca_Com(Trim(Norm_Riga(scritta)), posto);
    return lettore.Tabella.front();
  } catch (const Riga_Rifiutata&) {
    Riga_Src riga;
    riga.Istr = Maiuscole(scritta.substr(0, scritta.find(' ')));
    riga.Posto = posto;
    return riga;
  }
}

const std::string& Testo_A_Schermo(const Stato_Progetto& progetto, int testo) {
  return testo == 0 ? progetto.txtList : progetto.Tab_SBR[testo].Testo;
}

std::vector<Riga_Src> Righe_A_Schermo(const Stato_Progetto& progetto) {
  std::vector<Riga_Src> righe;
  const auto parola = [&](const std::string& istr, Posto_Riga posto) -> Riga_Src& {
    Riga_Src& riga = righe.emplace_back();
    riga.Istr = istr;
    riga.Posto = posto;
    return riga;
  };
  for (int testo = 0; testo <= progetto.Num_SBR; ++testo) {
    if (testo > 0) {
      Riga_Src& procedura = parola(progetto.Tab_SBR[testo].Sigla, {testo, 0});
      procedura.Op1 = progetto.Tab_SBR[testo].Nome;
      procedura.NOp = 1;
    }
    const auto linee = Linee(Testo_A_Schermo(progetto, testo));
    for (std::size_t n = 0; n < linee.size(); ++n) {
      std::string_view linea = linee[n];
      // The blanks in front of the whole text are not saved.
      if (n == 0) linea.remove_prefix(std::min(linea.find_first_not_of(' '), linea.size()));
      if (Diventa_Riga(linea)) righe.push_back(Riga_A_Schermo(linea, {testo, static_cast<int>(n)}));
    }
    const std::size_t intere = linee.size() - (linee.back().empty() ? 1 : 0);
    parola(testo == 0 ? "MEND" : "RET", {testo, static_cast<int>(intere)});
  }
  return righe;
}

}  // namespace tavorno
