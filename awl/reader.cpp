// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "awl/file_io.h"
#include "awl/project.h"
#include "awl/text.h"
#include "plc/codepage.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

/// Lines of a file: ended by CR LF, LF or CR; what follows the last end counts only if not empty.
class Righe_File {
 public:
  explicit Righe_File(std::string byte) : byte_(std::move(byte)) {}

  bool Prossima(std::string& riga) {
    if (posto_ >= byte_.size()) return false;
    const std::size_t fine = std::min(byte_.find_first_of("\r\n", posto_), byte_.size());
    riga = byte_.substr(posto_, fine - posto_);
    posto_ = fine + (byte_.compare(fine, 2, CRLF) == 0 ? 2 : 1);
    ++lette_;
    return true;
  }
  int Lette() const { return lette_; }

 private:
  std::string byte_;
  std::size_t posto_ = 0;
  int lette_ = 0;
};

/// Number of a procedure's id, plus 1.
std::uint8_t Numero_Procedura(const std::string& sigla) {
  const auto numero = Numero_16(sigla.size() > 3 ? std::string_view(sigla).substr(3) : "");
  if (!numero || *numero < -1 || *numero > 254)
    throw Riga_Rifiutata("il numero della procedura non è valido");
  return static_cast<std::uint8_t>(*numero + 1);
}

/// The state of one read.
class Lettore {
 public:
  explicit Lettore(Progetto& progetto) : p_(progetto) {}

  /// One line of the file; throws `Riga_Rifiutata` when the read is to be given up.
  void Leggi(std::string riga) {
    bool salta = false;
    if (riga.starts_with("ORGANIZATION_BLOCK")) {
      salta = true;
      in_main_ = true;
    } else if (riga.starts_with("END_ORGANIZATION_BLOCK")) {
      in_main_ = false;
      p_.Debug_Line("MEND");
    } else if (riga.starts_with("SUBROUTINE_BLOCK")) {
      salta = true;
      Apri_Procedura(riga);
    } else if (riga.starts_with("END_SUBROUTINE_BLOCK")) {
      in_sbr_ = false;
      p_.Debug_Line("RET");
    } else if (riga.starts_with("INTERRUPT_BLOCK")) {
      if (p_.Chiedi.Mostra)
        p_.Chiedi.Mostra({"Attenzione!",
                          "Il simulatore non supporta routin di interrupt!",
                          Icona::Critica,
                          Tasti::Ok,
                          {}});
      throw Riga_Rifiutata("il simulatore non supporta le routine di interrupt");
    } else if (riga.starts_with("END_INTERRUPT_BLOCK")) {
      p_.Debug_Line("RETI");
    } else if (riga.starts_with("TITLE=")) {
      riga = p_.Debug_Line(riga);
    } else if (riga.starts_with("BEGIN")) {
      salta = true;
    }
    if (salta) return;
    if (in_main_)
      p_.Testo_Main.append(p_.Debug_Line(riga)).append(CRLF);
    else if (in_sbr_)
      p_.Tab_SBR[p_.Num_SBR].Testo.append(p_.Debug_Line(riga)).append(CRLF);
  }

 private:
  void Apri_Procedura(const std::string& riga) {
    constexpr std::size_t inizio_nome = 17;  // behind the keyword and its blank
    const std::string resto = riga.size() > inizio_nome ? riga.substr(inizio_nome) : "";
    const std::size_t due_punti = resto.find(':');
    if (due_punti == std::string::npos)
      throw Riga_Rifiutata("manca il carattere \":\" tra il nome e la sigla della procedura");
    if (p_.Num_SBR == p_.Tab_SBR.ultimo) throw Riga_Rifiutata("il progetto supera le 64 procedure");
    const std::string nome = resto.substr(0, due_punti);
    const std::string sigla = resto.substr(due_punti + 1);
    const std::uint8_t numero = Numero_Procedura(sigla);
    ++p_.Num_SBR;
    p_.TabSP.push_back(nome);
    Riga_SBR& procedura = p_.Tab_SBR[p_.Num_SBR];
    procedura.Num = numero;
    procedura.Nome = nome;
    procedura.Sigla = sigla;
    procedura.Indice = p_.Num_SBR;
    procedura.Testo.clear();
    in_sbr_ = true;
    p_.Debug_Line(sigla + " " + nome);
  }

  Progetto& p_;
  bool in_main_ = false;
  bool in_sbr_ = false;
};

}  // namespace

std::string Dettaglio_Lettura::Come_Testo() const {
  if (Riga == 0) return Motivo;
  return "Riga " + std::to_string(Riga) + ": " + Testo + "\n" + Motivo;
}

void Progetto::LeggiTxt() {
  Testo_Main.clear();
  txtP.clear();
  for (int riga = 0; riga <= 10; ++riga) Tab_SBR[riga].Testo.clear();  // and no others
  Num_SBR = 0;
  CPU.NRighe = 0;
  Err_Lettura = 0;
  Dettaglio = {};
  TabSP.clear();
  Scheda = 0;

  std::string riga;
  const Contenuto_File file = Leggi_File(File_Progetto);
  Righe_File righe(file.Byte);
  try {
    if (!file.Errore.empty()) throw Riga_Rifiutata(file.Errore);
    Lettore lettore(*this);
    while (righe.Prossima(riga)) lettore.Leggi(riga);
    if (CPU.NRighe == 0) {
      riga.clear();
      throw Riga_Rifiutata("il file non contiene nessun blocco di programma");
    }
  } catch (const Riga_Rifiutata& rifiuto) {
    Dettaglio = {riga.empty() ? 0 : righe.Lette(), A_Utf8(riga), rifiuto.what()};
    Lettura_Fallita();
    return;
  }

  etNR[2] = std::to_string(righe.Lette() - 1);
  --CPU.NRighe;  // the last row from here on
  txtList = Testo_Main;
  if (Num_SBR > 0) {
    txtP = Tab_SBR[1].Testo;
    Scheda = 1;
  } else {
    TabSP.assign(1, "");
  }
  stB[1] = "List:" + Numero_Con_Spazio(CPU.NRighe) + "  SBR:" + Numero_Con_Spazio(Num_SBR);
  CPU.Prog.Ridimensiona(CPU.NRighe + 1);
  Modificato = 0;
  Testi_Salvati = Testi();
}

void Progetto::Lettura_Fallita() {
  Err_Lettura = -1;
  Num_SBR = 0;
  CPU.NRighe = 0;
  TabSP.assign(1, "");
  Scheda = 0;
  File_Progetto.clear();
  Testo_Main.clear();
  txtList.clear();
  txtP.clear();
  stB = {"File:", "List: 0   SBR: 0", "Read Error"};
  Gestione_Voci(0);
  Modificato = 0;
  Compilato = 0;  // nothing is left that could be loaded
  NRighe_Prog = 0;
  etNR[2] = "0";
}

/// What every caller of a failed read says.
void Progetto::Avvisa_Lettura_Fallita() {
  const bool troppe_righe = Dettaglio.Motivo == righe_esaurite;
  Avvisa(
      {"Errore!",
       troppe_righe ? righe_esaurite : "Impossibile Caricare il progetto per errori nel formato!",
       Icona::Critica, Tasti::Ok, Dettaglio.Come_Testo()});
}

}  // namespace tavorno
