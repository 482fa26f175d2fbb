// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "checked_line.h"
#include "plc/memory.h"

// How a line ends, worked out from its texts and the memory before it, with none of the CPU's code.
namespace tavorno::prova {

enum class Fine { Regolare, Errore, Fatale, Imprevisto, Incoerente };

struct Effetto {
  Fine fine = Fine::Regolare;
  std::optional<double> destinazione;      ///< value of the cell written, when it matters
  std::optional<std::array<int, 2>> pila;  ///< top and second cell
  std::optional<std::array<int, 4>> flag;  ///< SM1.0..SM1.3

  bool operator==(const Effetto&) const = default;
};

inline std::ostream& operator<<(std::ostream& uscita, const Effetto& effetto) {
  static constexpr std::array nomi = {"ok", "run-time error", "fatal", "unknown", "inconsistent"};
  uscita << nomi[static_cast<std::size_t>(effetto.fine)];
  if (effetto.destinazione) uscita << ", destination " << *effetto.destinazione;
  if (effetto.pila) uscita << ", stack " << (*effetto.pila)[0] << ' ' << (*effetto.pila)[1];
  if (effetto.flag) {
    uscita << ", SM1.0-3 ";
    for (const int flag : *effetto.flag) uscita << flag;
  }
  return uscita;
}

/// Whether a list of words with blanks between them has this one.
inline bool Sta_In(std::string_view parola, std::string_view lista) {
  if (parola.empty()) return false;
  for (std::size_t da = lista.find(parola); da != std::string_view::npos;
       da = lista.find(parola, da + 1)) {
    const std::size_t fine = da + parola.size();
    if ((da == 0 || lista[da - 1] == ' ') && (fine == lista.size() || lista[fine] == ' '))
      return true;
  }
  return false;
}

/// Last row of an area's table, -1 for an area without one.
inline int Ultima_Riga(const std::string& area) {
  static const std::map<std::string, int> righe = {
      {"I", 1},  {"IB", 1},  {"IW", 1},  {"Q", 1},    {"QB", 1},   {"QW", 1},  {"M", 4},
      {"MB", 4}, {"MW", 4},  {"S", 4},   {"SM", 30},  {"SMB", 30}, {"T", 40},  {"C", 20},
      {"AC", 4}, {"AIW", 4}, {"AQW", 2}, {"VB", 100}, {"VW", 100}, {"VD", 100}};
  const auto trovato = righe.find(area);
  return trovato == righe.end() ? -1 : trovato->second;
}

/// What a move or an arithmetic line leaves in its destination.
inline std::optional<double> Valore_Cella(const Memoria& m, const std::string& mnemonico,
                                          const Operando_Scritto& cella) {
  const int n = cella.numero;
  if (n < 0 || n > Ultima_Riga(cella.area)) return {};
  if (cella.area == "VB") return m.Mem_VB[n];
  if (cella.area == "VW") return m.Mem_VW[n];
  if (cella.area == "VD") return m.Mem_VD[n];
  if (cella.area == "AC") return m.Mem_AC[n];
  if (cella.area == "AQW") return m.Mem_AQW[n];
  if (cella.area == "QB") return m.IP_Q[n].Val_B;
  // A preset is what BTI writes; all others mean the value.
  if (cella.area == "T") return mnemonico == "BTI" ? m.Mem_T[n].PT : m.Mem_T[n].Val;
  if (cella.area == "C") return mnemonico == "BTI" ? m.Mem_C[n].PV : m.Mem_C[n].Val;
  return {};
}

class Oracolo {
 public:
  Oracolo(const Memoria& prima, int abilitata)
      : m(prima),
        abilitazione(abilitata),
        cima(prima.Stak[0]),
        flusso((prima.Stak[0] & abilitata) == 1) {}

  Effetto Di(const std::string& mnemonico, const Operando_Scritto& op1,
             const Operando_Scritto& op2) {
    effetto = {};
    try {
      if (Sta_In(mnemonico, "RETI INT INT0 XORD"))
        effetto.fine = Fine::Imprevisto;
      else if (mnemonico == "LSCR")
        Indice_Bit(4, op1.numero, op1.bit);
      else if (Sta_In(mnemonico, "LD LDN LDI LDNI A AN AI ANI O ON OI ONI"))
        Contatto(mnemonico, op1);
      else if (Sta_In(mnemonico, "= =I S R SI RI"))
        Uscita(mnemonico, op1, op2);
      else if (Sta_In(mnemonico, "TON TOF TONR"))
        Timer(op1, op2);
      else if (Sta_In(mnemonico, "CTU CTD CTUD"))
        Contatore(mnemonico, op1, op2);
      else if (Sta_In(mnemonico, "MOVB MOVW MOVD BIR BIW BTI"))
        Trasferimento(mnemonico, op1, op2);
      else if (Sta_In(mnemonico, "+I -I *I /I +D -D *D /D"))
        Aritmetica(mnemonico, op1, op2);
      else if (Sta_In(mnemonico, "INCB DECB INCW DECW INCD DECD"))
        Passo(mnemonico, op1);
      else if (std::string("=<>").find(mnemonico.back()) != std::string::npos)
        Confronto(mnemonico, op1, op2);
      else if (!mnemonico.starts_with("NETWORK") && !Sta_In(mnemonico, senza_effetti))
        throw std::invalid_argument("not known here: " + mnemonico);
    } catch (Fine fine) {
      effetto = {fine, {}, {}, {}};
    }
    return effetto;
  }

 private:
  /// What ends well whatever stands around it, and writes no cell that is compared here.
  static constexpr std::string_view senza_effetti =
      "NETW MEND RET SBR SBR0 JMP LBL CALL SCRE CRET NOT EU ED ALD OLD NOP LPP LPS LRD";

  using Valore = std::optional<long long>;  ///< empty: the soft error of a read

  static void Indice(int numero, int ultimo) {
    if (numero < 0 || numero > ultimo) throw Fine::Fatale;
  }
  static void Indice_Bit(int ultima, int riga, int bit) {
    Indice(riga, ultima);
    Indice(bit, 8);
  }
  static long long Entra(long long valore, int bit) {
    const long long limite = 1LL << (bit - 1);
    if (valore < -limite || valore >= limite) throw Fine::Fatale;
    return valore;
  }
  static void Errore_Se(bool fallito) {
    if (fallito) throw Fine::Errore;
  }

  // ---- reading --------------------------------------------------------------------------------

  /// Rounded to the nearest integer, a half to the even one.
  long long Accumulatore(int numero) const {
    Indice(numero, 4);
    const double valore = m.Mem_AC[numero];
    double sotto = std::floor(valore);
    const double resto = valore - sotto;
    if (resto > 0.5 || (resto == 0.5 && std::fmod(sotto, 2) != 0)) sotto += 1;
    if (std::fabs(sotto) > 1e10) throw Fine::Fatale;
    return Entra(static_cast<long long>(sotto), 32);
  }
  static long long Da_Testo(const std::string& testo) {
    if (testo.empty()) throw Fine::Fatale;
    return std::stoll(testo);
  }

  Valore Byte(const Operando_Scritto& op, bool speciali) const {
    if (op.area == "K") return op.numero;
    if (op.area == "AC") return Accumulatore(op.numero);
    if (!Sta_In(op.area, speciali ? "VB IB QB MB SMB" : "VB IB QB MB")) return {};
    Indice(op.numero, Ultima_Riga(op.area));
    if (op.area == "VB") return m.Mem_VB[op.numero];
    if (op.area == "IB") return m.IP_I[op.numero].Val_B;
    if (op.area == "QB") return m.IP_Q[op.numero].Val_B;
    if (op.area == "MB") return m.Mem_M[op.numero].Val_B;
    return m.Mem_SM[op.numero].Val_B;
  }
  Valore Parola(const Operando_Scritto& op) const {
    if (op.area == "K") return op.numero;
    if (op.area == "AC") return Accumulatore(op.numero);
    if (!Sta_In(op.area, "VW IW QW MW AIW T C")) return {};
    Indice(op.numero, Ultima_Riga(op.area));
    if (op.area == "VW") return m.Mem_VW[op.numero];
    if (op.area == "IW") return Da_Testo(m.IP_I[op.numero].Txt_B);
    if (op.area == "QW") return Da_Testo(m.IP_Q[op.numero].Txt_B);
    if (op.area == "MW") return Da_Testo(m.Mem_M[op.numero].Txt_B);
    if (op.area == "AIW") return m.Mem_AIW[op.numero];
    if (op.area == "T") return m.Mem_T[op.numero].Val;
    return m.Mem_C[op.numero].Val;
  }
  Valore Doppia(const Operando_Scritto& op) const {
    if (op.area == "K") return op.numero;
    if (op.area == "AC") return Accumulatore(op.numero);
    if (op.area != "VD") return {};
    Indice(op.numero, 100);
    return m.Mem_VD[op.numero];
  }
  /// With the upper limit of the width; below it a 16-bit result does not hold the value.
  Valore Limitata(char larghezza, const Operando_Scritto& op) const {
    if (larghezza == 'D') return Doppia(op);
    const Valore valore = larghezza == 'B' ? Byte(op, false) : Parola(op);
    if (!valore || *valore > (larghezza == 'B' ? 255 : 32767)) return {};
    return Entra(*valore, 16);
  }

  // ---- bits -----------------------------------------------------------------------------------

  int Valore_Bit(const Operando_Scritto& op, bool immediato) const {
    if (immediato) {
      Indice_Bit(1, op.numero, op.bit);
      return m.IP_I[op.numero].Bit_Dir[op.bit];
    }
    Indice(op.numero, Ultima_Riga(op.area));
    if (op.area == "T") return m.Mem_T[op.numero].Uscita;
    if (op.area == "C") return m.Mem_C[op.numero].Uscita;
    Indice(op.bit, 8);
    if (op.area == "I") return m.IP_I[op.numero].Bit_Img[op.bit];
    if (op.area == "Q") return m.IP_Q[op.numero].Bit_Img[op.bit];
    if (op.area == "M") return m.Mem_M[op.numero].Bit[op.bit];
    if (op.area == "SM") return m.Mem_SM[op.numero].Bit[op.bit];
    return m.Mem_S[op.numero].Bit[op.bit];
  }
  void Unisci(const std::string& mnemonico, int valore) {
    if (mnemonico.starts_with("LD"))
      effetto.pila = {valore, cima};
    else if (mnemonico.starts_with("A"))
      effetto.pila = {cima & valore, m.Stak[1]};
    else
      effetto.pila = {cima | valore, m.Stak[1]};
  }
  void Contatto(const std::string& mnemonico, const Operando_Scritto& op) {
    const int valore = Valore_Bit(op, mnemonico.back() == 'I');
    const bool negato = mnemonico.find('N') != std::string::npos;
    Unisci(mnemonico, negato ? 1 - valore : valore);
  }

  void Uscita(const std::string& mnemonico, const Operando_Scritto& op,
              const Operando_Scritto& quanti) {
    if (mnemonico == "=" || mnemonico == "=I") {
      Indice_Bit(Ultima_Riga(op.area), op.numero, op.bit);
      return;
    }
    const bool elemento = Sta_In(op.area, "T C");
    const int primo = elemento ? op.numero : op.bit;
    const bool compreso = mnemonico == "SI" || mnemonico == "RI";
    const long long ultimo = Entra(primo + quanti.numero - (compreso ? 0 : 1), 16);
    if (!flusso || primo > ultimo) return;
    if (elemento) {
      Indice(op.numero, Ultima_Riga(op.area));  // every round means the element named
    } else if (mnemonico == "R" && op.area == "M") {
      Indice_Bit(4, op.numero, primo);
      Errore_Se(ultimo > 7 && op.numero == 4);
    } else {
      Indice_Bit(Ultima_Riga(op.area), op.numero, primo);
      Indice(static_cast<int>(ultimo), 8);
    }
  }

  // ---- timers and counters --------------------------------------------------------------------

  void Timer(const Operando_Scritto& op, const Operando_Scritto& preselezione) const {
    if (preselezione.area == "VW")
      Indice(preselezione.numero, 100);
    else if (preselezione.area == "AC")
      Entra(Accumulatore(preselezione.numero), 16);
    else
      Errore_Se(preselezione.area != "K");
    Indice(op.numero, 40);
  }
  void Contatore(const std::string& mnemonico, const Operando_Scritto& op,
                 const Operando_Scritto& preselezione) const {
    if (preselezione.area == "VW") Indice(preselezione.numero, 100);
    Indice(op.numero, 20);
    if (mnemonico == "CTD") return;  // it stops at 0
    const bool azzera = abilitazione == 1 && cima != 0;
    long long valore = azzera ? 0 : m.Mem_C[op.numero].Val;
    const bool avanti = abilitazione == 1 && m.Stak[mnemonico == "CTU" ? 1 : 2] == 1;
    if (avanti) valore = Entra(valore + 1, 16);
    if (mnemonico == "CTUD" && abilitazione == 1 && m.Stak[1] == 1) Entra(valore - 1, 16);
  }

  // ---- moves and comparisons ------------------------------------------------------------------

  void Trasferimento(const std::string& mnemonico, const Operando_Scritto& da,
                     const Operando_Scritto& a) {
    effetto.destinazione = Valore_Cella(m, mnemonico, a);
    // MOVB and MOVD do not look at the line enable.
    if (!(Sta_In(mnemonico, "MOVB MOVD") ? cima == 1 : flusso)) return;
    Valore valore;
    if (mnemonico == "MOVW") {
      valore = Parola(da);
      Errore_Se(!valore || *valore > 32767);
    } else if (mnemonico == "MOVD") {
      valore = Doppia(da);
    } else {
      valore = Byte(da, Sta_In(mnemonico, "MOVB BTI"));
      Errore_Se(!valore || (mnemonico != "BTI" && *valore > 255));
      Errore_Se(mnemonico == "BIW" && a.area != "QB");
    }
    if (mnemonico == "MOVW" && Sta_In(a.area, "T C")) return;  // ignored without a word
    Metti(a, *valore);
  }

  void Confronto(const std::string& mnemonico, const Operando_Scritto& op1,
                 const Operando_Scritto& op2) {
    const std::size_t larghezza = mnemonico.starts_with("LD") ? 2 : 1;
    const std::string relazione = mnemonico.substr(larghezza + 1);
    const Valore secondo = Limitata(mnemonico[larghezza], op2);
    const Valore primo = Limitata(mnemonico[larghezza], op1);
    Errore_Se(!primo || !secondo);
    const bool vale = relazione == "="    ? *primo == *secondo
                      : relazione == "<>" ? *primo != *secondo
                      : relazione == "<"  ? *primo < *secondo
                      : relazione == "<=" ? *primo <= *secondo
                      : relazione == ">"  ? *primo > *secondo
                                          : *primo >= *secondo;
    Unisci(mnemonico, vale ? 1 : 0);
  }

  // ---- arithmetic -----------------------------------------------------------------------------

  void Metti(const Operando_Scritto& a, long long valore) {
    Indice(a.numero, Ultima_Riga(a.area));
    if (a.area == "AC")
      effetto.destinazione = static_cast<float>(valore);
    else
      effetto.destinazione = static_cast<double>(Entra(valore, Sta_In(a.area, "VD AQW") ? 32 : 16));
  }
  std::array<int, 4> Flag_Adesso() const {
    const auto& bit = m.Mem_SM[1].Bit;
    return {bit[0], bit[1], bit[2], bit[3]};
  }
  void Metti_Flag(long long risultato, bool trabocco) {
    effetto.flag = {!trabocco && risultato == 0, trabocco, !trabocco && risultato < 0,
                    Flag_Adesso()[3]};
  }

  void Aritmetica(const std::string& mnemonico, const Operando_Scritto& entrata,
                  const Operando_Scritto& uscita) {
    effetto.destinazione = Valore_Cella(m, mnemonico, uscita);
    effetto.flag = Flag_Adesso();
    if (!flusso) return;
    const char operazione = mnemonico[0];
    const bool intero = mnemonico[1] == 'I';
    const long long a = intero ? *Parola(entrata) : *Doppia(entrata);
    const long long b = intero ? *Parola(uscita) : *Doppia(uscita);
    const bool somma = operazione == '+' || operazione == '-';
    Errore_Se(intero && somma && (a > 32767 || b > 32767));
    if (operazione == '/' && a == 0) {
      (*effetto.flag)[3] = 1;
      return;
    }
    const long long risultato = Entra(operazione == '+'   ? b + a
                                      : operazione == '-' ? b - a
                                      : operazione == '*' ? b * a
                                                          : b / a,
                                      32);
    // Each way of overflow is a trait of its own: not written, written as 32767, or not known.
    const bool trabocco = intero              ? risultato < -32768 || risultato > 32767
                          : operazione == '+' ? risultato > 32767
                                              : false;
    Metti_Flag(risultato, trabocco);
    if (trabocco && intero && somma) return;
    Metti(uscita, trabocco ? 32767 : risultato);
  }

  void Passo(const std::string& mnemonico, const Operando_Scritto& op) {
    effetto.destinazione = Valore_Cella(m, mnemonico, op);
    effetto.flag = Flag_Adesso();
    if (!flusso) return;
    const char larghezza = mnemonico.back();
    const long long passo = mnemonico.starts_with("INC") ? 1 : -1;
    const long long valore = larghezza == 'B'   ? *Byte(op, false)
                             : larghezza == 'W' ? *Parola(op)
                                                : *Doppia(op);
    const long long risultato = Entra(valore + passo, 32);
    Metti(op, risultato);
    const long long limite = larghezza == 'B' ? 128 : 32768;
    Metti_Flag(risultato, larghezza != 'D' && (risultato < -limite || risultato >= limite));
  }

  const Memoria& m;
  int abilitazione;
  int cima;
  bool flusso;
  Effetto effetto;
};

}  // namespace tavorno::prova
