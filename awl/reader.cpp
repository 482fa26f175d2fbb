// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/reader.h"

#include <algorithm>
#include <array>

#include "awl/text.h"
#include "plc/codepage.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

/// Lines of a file: ended by CR LF, LF or CR; what follows the last end counts only if not empty.
class Righe_File {
 public:
  explicit Righe_File(std::string_view byte) : byte_(byte) {}

  bool Prossima(std::string& riga) {
    if (posto_ >= byte_.size()) return false;
    const std::size_t fine = std::min(byte_.find_first_of("\r\n", posto_), byte_.size());
    riga = byte_.substr(posto_, fine - posto_);
    posto_ = fine + (byte_.substr(fine, 2) == CRLF ? 2 : 1);
    ++lette_;
    return true;
  }
  bool Finita() const { return posto_ >= byte_.size(); }
  int Lette() const { return lette_; }

 private:
  std::string_view byte_;
  std::size_t posto_ = 0;
  int lette_ = 0;
};

/// What a file is that is no text, from its first bytes; nullptr for what may be one.
const char* Tipo_Estraneo(std::string_view byte) {
  struct Firma {
    std::string_view Inizio;
    const char* Motivo;
  };
  static constexpr std::array<Firma, 6> firme = {{
      {"PK\x03\x04", "il file è un archivio ZIP: il progetto va prima estratto"},
      {"\x89PNG", "il file è un'immagine"},
      {"\xFF\xD8\xFF", "il file è un'immagine"},
      {"GIF8", "il file è un'immagine"},
      {"%PDF", "il file è un documento PDF"},
      {"\xD0\xCF\x11\xE0", "il file è un documento di un altro programma"},
  }};
  for (const Firma& firma : firme) {
    if (byte.starts_with(firma.Inizio)) return firma.Motivo;
  }
  return nullptr;
}

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
  Lettore(Sorgente& letta, Righe_Lette& righe) : letta_(letta), righe_(righe) {}

  /// A block's keyword outside of all blocks. The writer's last line is what an earlier, longer
  /// save left there; one that looks like this belongs to nobody.
  bool Avanzo(std::string_view riga) const {
    if (!chiuso_ || in_main_ || in_sbr_) return false;
    const bool apre = riga.starts_with("SUBROUTINE_BLOCK") && riga.find(':') != std::string::npos;
    return apre || riga.starts_with("END_");
  }

  /// Tells what stood outside of all blocks.
  void Racconta(Lettura& lettura) const {
    lettura.Fuori = fuori_;
    lettura.Prima_Fuori = prima_fuori_;
    lettura.Testo_Fuori = testo_fuori_;
  }
  int Estranea() const { return estranea_; }
  const std::string& Testo_Estraneo() const { return testo_estraneo_; }

  /// One line of the file; throws `Riga_Rifiutata` when the read is to be given up.
  void Leggi(std::string riga) {
    bool salta = false;
    Nota_Estranea(riga);
    if (riga.starts_with("ORGANIZATION_BLOCK")) {
      salta = true;
      in_main_ = true;
    } else if (riga.starts_with("END_ORGANIZATION_BLOCK")) {
      const Posto_Riga fine = in_sbr_ && !in_main_ ? Qui() : Posto_Riga{0, linee_main_};
      in_main_ = false;
      chiuso_ = true;
      righe_.Debug_Line("MEND", fine);
    } else if (riga.starts_with("SUBROUTINE_BLOCK")) {
      salta = true;
      Apri_Procedura(riga);
    } else if (riga.starts_with("END_SUBROUTINE_BLOCK")) {
      const Posto_Riga fine = Qui();
      in_sbr_ = false;
      chiuso_ = true;
      righe_.Debug_Line("RET", fine);
    } else if (riga.starts_with("INTERRUPT_BLOCK")) {
      throw Riga_Rifiutata("il simulatore non supporta le routine di interrupt", Causa::Interrupt);
    } else if (riga.starts_with("END_INTERRUPT_BLOCK")) {
      righe_.Debug_Line("RETI", Qui());
    } else if (riga.starts_with("TITLE=")) {
      riga = righe_.Debug_Line(riga);
    } else if (riga.starts_with("BEGIN")) {
      salta = true;
    } else if (!in_main_ && !in_sbr_) {
      Nota_Fuori(riga);
    }
    if (salta) return;
    if (in_main_) {
      letta_.Main.append(righe_.Debug_Line(riga, Qui())).append(CRLF);
      ++linee_main_;
    } else if (in_sbr_) {
      letta_.Procedure.back().Testo.append(righe_.Debug_Line(riga, Qui())).append(CRLF);
      ++linee_procedura_;
    }
  }

 private:
  /// Text outside of all blocks is dropped; where nothing else is found, this is what to tell.
  void Nota_Estranea(const std::string& riga) {
    ++lette_;
    const std::string nuda = Trim(riga);
    if (estranea_ == 0 && !in_main_ && !in_sbr_ && !nuda.empty() && !nuda.starts_with("//")) {
      estranea_ = lette_;
      testo_estraneo_ = riga;
    }
  }

  void Nota_Fuori(const std::string& riga) {
    const std::string nuda = Trim(riga);
    if (nuda.empty() || nuda.starts_with("//")) return;
    if (++fuori_ > 1) return;
    prima_fuori_ = lette_;
    testo_fuori_ = nuda;
  }

  /// Where a line that is text of a block would go; behind the last procedure outside of any.
  Posto_Riga Qui() const {
    if (in_main_ || letta_.Procedure.empty()) return {0, linee_main_};
    return {static_cast<int>(letta_.Procedure.size()), linee_procedura_};
  }

  void Apri_Procedura(const std::string& riga) {
    constexpr std::size_t inizio_nome = 17;  // behind the keyword and its blank
    const std::string resto = riga.size() > inizio_nome ? riga.substr(inizio_nome) : "";
    const std::size_t due_punti = resto.find(':');
    if (due_punti == std::string::npos)
      throw Riga_Rifiutata("manca il carattere \":\" tra il nome e la sigla della procedura");
    const std::size_t posto = letta_.Procedure.size() + 1;
    if (posto > Procedure_Massime) throw Riga_Rifiutata("il progetto supera le 64 procedure");
    const std::string nome = resto.substr(0, due_punti);
    const std::string sigla = resto.substr(due_punti + 1);
    const std::uint8_t numero = Numero_Procedura(sigla);
    letta_.Procedure.push_back({.Num = numero,
                                .Nome = nome,
                                .Sigla = sigla,
                                .Indice = static_cast<std::uint8_t>(posto),
                                .Testo = {}});
    linee_procedura_ = 0;
    in_sbr_ = true;
    righe_.Debug_Line(sigla + " " + nome, {static_cast<int>(posto), 0});
  }

  Sorgente& letta_;
  Righe_Lette& righe_;
  bool in_main_ = false;
  bool in_sbr_ = false;
  int lette_ = 0;
  int estranea_ = 0;  // line of the first text outside of all blocks
  std::string testo_estraneo_;
  int fuori_ = 0, prima_fuori_ = 0;  // lines that were dropped, and the first of them
  std::string testo_fuori_;
  bool chiuso_ = false;  // a block has ended
  int linee_main_ = 0;
  int linee_procedura_ = 0;  // of the last one
};

}  // namespace

Lettura Leggi_Sorgente(std::string_view byte, Commenti_Listato commenti,
                       std::vector<Riga_Src> prima) {
  Lettura lettura;
  Righe_Lette righe(commenti, std::move(prima));
  Righe_File file(byte);
  std::string riga;
  int estranea = 0;  // line that stands for a file without a program
  try {
    if (const char* tipo = Tipo_Estraneo(byte)) throw Riga_Rifiutata(tipo);
    Lettore lettore(lettura.Letta, righe);
    while (file.Prossima(riga)) {
      if (!file.Finita() || !lettore.Avanzo(riga)) lettore.Leggi(riga);
    }
    lettore.Racconta(lettura);
    if (righe.NRighe == 0) {
      estranea = lettore.Estranea();
      riga = estranea == 0 ? "" : lettore.Testo_Estraneo();
      throw Riga_Rifiutata(
          estranea == 0
              ? "il file non contiene nessun blocco di programma"
              : "il file non contiene nessun blocco di programma: un progetto AWL comincia con la "
                "riga \"ORGANIZATION_BLOCK MAIN:OB1\". Un testo semplice si apre con \"Importa "
                "File "
                "TXT\"");
    }
  } catch (const Riga_Rifiutata& rifiuto) {
    lettura.Rifiuto = {estranea != 0  ? estranea
                       : riga.empty() ? 0
                                      : file.Lette(),
                       A_Utf8(riga), rifiuto.what(), rifiuto.Perche()};
  }
  lettura.Letta.Righe_Lette = file.Lette();
  lettura.Letta.Righe.assign(righe.Tabella.begin(), righe.Tabella.begin() + righe.NRighe);
  lettura.Rilievi = std::move(righe.Rilievi);
  lettura.Tabella = std::move(righe.Tabella);
  return lettura;
}

}  // namespace tavorno
