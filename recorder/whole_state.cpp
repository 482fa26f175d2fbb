// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/whole_state.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <type_traits>

#include "plants/faults.h"

namespace tavorno {

namespace {

std::string Testo(const std::string& valore) {
  return valore;
}
/// Digits enough to tell any two values apart.
template <class T>
std::string Testo(T valore) {
  char cifre[64];
  if constexpr (std::is_same_v<T, bool>)
    return valore ? "1" : "0";
  else if constexpr (std::is_enum_v<T>)
    return std::to_string(static_cast<int>(valore));
  else
    return {cifre, std::to_chars(cifre, std::end(cifre), valore).ptr};
}

/// Rows with their names.
class Elenco {
 public:
  /// The parts of a name as one.
  template <class... T>
  static std::string Nome(const T&... parti) {
    return (std::string() + ... + Parola(parti));
  }
  template <class T>
  void operator()(const std::string& nome, const T& valore) {
    righe_.emplace_back(nome, Testo(valore));
  }
  /// The cells of a table, "VW" and their numbers.
  template <class T>
  void Celle_Di(const std::string& nome, const T& tabella) {
    int n = 0;
    for (const auto& cella : tabella) (*this)(Nome(nome, n++), cella);
  }
  template <class T>
  void Bit_Di(const std::string& nome, const T& bit) {
    std::string testo;
    for (const auto& cella : bit) testo += Testo(cella) + (cella > 1 || cella < 0 ? "!" : "");
    (*this)(nome, testo);
  }
  Stato_Intero Fatto() { return std::move(righe_); }

 private:
  static std::string Parola(std::string_view parola) { return std::string(parola); }
  static std::string Parola(int numero) { return std::to_string(numero); }

  Stato_Intero righe_;
};

/// The same values as bytes, for who only asks whether they are equal: many times as fast.
class Soli_Byte {
 public:
  template <class... T>
  static const char* Nome(const T&...) {
    return "";
  }
  template <class T>
  void operator()(std::string_view, const T& valore) {
    if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
      byte_.append(reinterpret_cast<const char*>(&valore), sizeof valore);
    } else {
      const std::string_view testo = valore;
      (*this)("", testo.size());
      byte_ += testo;
    }
  }
  template <class T>
  void Celle_Di(std::string_view, const T& tabella) {
    for (const auto& cella : tabella) (*this)("", cella);
  }
  template <class T>
  void Bit_Di(std::string_view, const T& bit) {
    Celle_Di("", bit);
  }
  std::string Fatto() { return std::move(byte_); }

 private:
  std::string byte_;
};

template <class Visita>
void Elenca_Memoria(Visita& a, const Celle& m) {
  const auto byte = [&](const std::string& nome, const auto& tabella) {
    int n = 0;
    for (const Riga_IP& riga : tabella) {
      a.Bit_Di(a.Nome(nome, n), riga.Bit_Dir);
      a.Bit_Di(a.Nome(nome, n, " (immagine)"), riga.Bit_Img);
      a(a.Nome(nome, "B", n), riga.Val_B);
      a(a.Nome(nome, n++, " (testo)"), riga.Txt_B);
    }
  };
  byte("I", m.IP_I);
  byte("Q", m.IP_Q);
  int n = 0;
  for (const Riga_M& riga : m.Mem_M) {
    a.Bit_Di(a.Nome("M", n), riga.Bit);
    a(a.Nome("MB", n), riga.Val_B);
    a(a.Nome("M", n++, " (testo)"), riga.Txt_B);
  }
  n = 0;
  for (const Riga_S& riga : m.Mem_S) a.Bit_Di(a.Nome("S", n++), riga.Bit);
  n = 0;
  for (const Riga_SM& riga : m.Mem_SM) {
    a.Bit_Di(a.Nome("SM", n), riga.Bit);
    a(a.Nome("SMB", n++), riga.Val_B);
  }
  a.Celle_Di("VB", m.Mem_VB);
  a.Celle_Di("VW", m.Mem_VW);
  a.Celle_Di("VD", m.Mem_VD);
  a.Celle_Di("AC", m.Mem_AC);
  n = 0;
  for (const Riga_Timer& timer : m.Mem_T) {
    const std::string nome = a.Nome("T", n++);
    a(nome, timer.Uscita);
    a(a.Nome(nome, ".Val"), timer.Val);
    a(a.Nome(nome, ".PT"), timer.PT);
    a(a.Nome(nome, " (conta)"), timer.Conta);
  }
  n = 0;
  for (const Riga_Contatore& contatore : m.Mem_C) {
    const std::string nome = a.Nome("C", n++);
    a(nome, contatore.Uscita);
    a(a.Nome(nome, ".Val"), contatore.Val);
    a(a.Nome(nome, ".PV"), contatore.PV);
    a(a.Nome(nome, " (fronte A)"), contatore.Front_A);
    a(a.Nome(nome, " (fronte B)"), contatore.Front_B);
  }
  a.Celle_Di("AIW", m.Mem_AIW);
  a.Celle_Di("AQW", m.Mem_AQW);
  a.Celle_Di("volt AI", m.Volt_AI);
  a.Celle_Di("volt AQ", m.Volt_AQ);
  for (int cella = 0; cella < 8; ++cella) a(a.Nome("pila ", cella), m.Stak[cella]);
  a.Celle_Di("ritorno ", m.Stak_Rit);
}

template <class Visita>
void Elenca_Barra(Visita& a, const std::string& nome, const Barra::Stato& barra) {
  a(nome, barra.Testo);
  a(a.Nome(nome, " (lettura)"), barra.Lettura);
  a(a.Nome(nome, " (passato)"), barra.Passato);
  a(a.Nome(nome, " (byte)"), barra.Byte);
  a(a.Nome(nome, " (LED)"), barra.Accesi);
  a(a.Nome(nome, " (tipo)"), barra.Tipo);
  a(a.Nome(nome, " (forma)"), barra.Forma);
  a(a.Nome(nome, " (INT_ON)"), barra.INT_ON);
  a(a.Nome(nome, " (scorri)"), barra.Scorri);
  a(a.Nome(nome, " (scadenza)"), barra.Scadenza);
}

template <class Visita>
void Elenca_Corsa(Visita& a, const Istantanea& stato) {
  const Stato_Corsa& corsa = stato.Corsa;
  a("riga", stato.PC);
  a("ultima riga", stato.NRighe);
  a("righe eseguite", corsa.Righe_Fatte);
  a("acceso", corsa.PLC_Acceso);
  a("ferma", corsa.Ferma);
  a("modo", corsa.Modo_Run);
  a("scansioni", corsa.N_Cicli);
  a("tempo di ciclo", corsa.Tempo_Ciclo);
  a("inizio della scansione", corsa.T_Inizio);
  a("primo ciclo", corsa.Primo_Ciclo);
  a("clock dei temporizzatori", corsa.Clock_T);
  a("giro sospeso", stato.In_Giro != Giro::Nessuno ? stato.In_Giro : stato.Sospeso);
  a("orologio", stato.Adesso);
  int n = 0;
  for (const char* nome : {"T100m", "tim1", "tim2", "timIO"}) {
    const Istantanea::Timer& timer = stato.Timer_CPU[static_cast<std::size_t>(n++)];
    a(a.Nome(nome, " (intervallo)"), timer.Intervallo);
    a(a.Nome(nome, " (scadenza)"), timer.Scadenza);
  }
  a("stato di tim1", stato.Stato_tim1);
  a("stato di tim2", stato.Stato_tim2);
  const Opzioni& scelte = stato.Scelte;
  a("chkList", scelte.chkList);
  a("chkIP", scelte.chkIP);
  a("chkStop", scelte.chkStop);
  a("chkSol", scelte.chkSol);
  a("txtStop", scelte.txtStop);
  a("txtNC", scelte.txtNC);
  a("opzAI", scelte.opzAI);
  a("opzAQ", scelte.opzAQ);
  const Comandi& attivi = stato.Attivi;
  a("mnuPlcRun", attivi.mnuPlcRun);
  a("mnuPlcStop", attivi.mnuPlcStop);
  a("mnuPlcCont", attivi.mnuPlcCont);
  a("mnuPlcCiclo", attivi.mnuPlcCiclo);
  a("mnuPlcStep", attivi.mnuPlcStep);
  a("CmdStep", attivi.CmdStep);
  a("cmdRest", attivi.cmdRest);
  a("SSTb3", attivi.SSTb3);
  a("etTime", stato.etTime);
  for (int riga = 0; riga < 2; ++riga) {
    a(a.Nome("etIPI ", riga), stato.etIPI[static_cast<std::size_t>(riga)]);
    a(a.Nome("etIPQ ", riga), stato.etIPQ[static_cast<std::size_t>(riga)]);
  }
  a("etPc", stato.etPc);
  a("riga scelta", stato.Lista_Scelta);
}

template <class Visita>
void Elenca_Impianto(Visita& a, Collegamento& fili) {
  Impianto& impianto = fili.Macchina();
  a("impianto", fili.Tabella().Indice);
  a("chkSim", fili.chkSim());
  for (std::size_t n = 0; n < fili.Tabella().Cursori.size(); ++n)
    a(fili.Tabella().Cursori[n].Nome, fili.Valore(n));
  for (const Guasto_Impianto& guasto : Guasti_Di(fili.Tabella(), fili.Ingressi_A_Riposo()))
    a(a.Nome("guasto ", guasto.Nome), Attivo(guasto, fili));
  a("ingressi dell'impianto", impianto.Stato_I());
  a("uscite dell'impianto", impianto.Stato_Q());
  int n = 0;
  for (const std::optional<float>& valore : {impianto.ME_AIW0, impianto.ME_AIW2, impianto.ME_AIW4})
    a(a.Nome("ME_AIW", 2 * n++), valore ? Testo(*valore) : std::string("-"));
  for (const Figura& figura : impianto.Disegno) {
    a(a.Nome(figura.Nome, ".Left"), figura.Left());
    a(a.Nome(figura.Nome, ".Top"), figura.Top());
    a(a.Nome(figura.Nome, ".Width"), figura.Width());
    a(a.Nome(figura.Nome, ".Height"), figura.Height());
    a(a.Nome(figura.Nome, ".Visible"), figura.Visible());
    a(a.Nome(figura.Nome, ".Picture"), figura.Picture());
    a(a.Nome(figura.Nome, ".Caption"), figura.Caption());
    a(a.Nome(figura.Nome, ".ToolTip"), figura.ToolTip());
    a(a.Nome(figura.Nome, ".FillColor"), figura.FillColor());
    a(a.Nome(figura.Nome, ".ForeColor"), figura.ForeColor());
    a(a.Nome(figura.Nome, ".FillStyle"), figura.FillStyle());
    if (const Regolatore* regolatore = impianto.Trova_Regolatore(figura.Nome))
      a(a.Nome(figura.Nome, " (valore)"), regolatore->Valore);
  }
}

template <class Visita>
auto Visto(const Plc& plc, Collegamento* impianto) {
  Visita a;
  const Istantanea stato = plc.Fotografa();
  Elenca_Memoria(a, stato.Memoria);
  int n = 0;
  for (const Riga_PLC& riga : plc.Prog) {
    a(a.Nome("riga ", n), Testo_Riga(riga));
    a(a.Nome("riga ", n, " (fronte)"), riga.Fronte);
    a(a.Nome("riga ", n++, " (abilitata)"), riga.Abil_SCR);
  }
  Elenca_Corsa(a, stato);
  for (int barra = 0; barra < 2; ++barra) {
    Elenca_Barra(a, "barra I" + std::to_string(barra), stato.SI[static_cast<std::size_t>(barra)]);
    Elenca_Barra(a, "barra Q" + std::to_string(barra), stato.SQ[static_cast<std::size_t>(barra)]);
  }
  if (impianto) Elenca_Impianto(a, *impianto);
  a("prossimi scatti", [&plc] {
    std::string testo;
    for (const std::int64_t scadenza : plc.Tempo.Scadenze()) testo += Testo(scadenza) + " ";
    return testo;
  }());
  return a.Fatto();
}

}  // namespace

Stato_Intero Elenca_Stato(const Plc& plc, Collegamento* impianto) {
  return Visto<Elenco>(plc, impianto);
}

std::string Byte_Di_Stato(const Plc& plc, Collegamento* impianto) {
  return Visto<Soli_Byte>(plc, impianto);
}

std::string Prima_Differenza(const Stato_Intero& uno, const Stato_Intero& altro) {
  const std::size_t quante = std::min(uno.size(), altro.size());
  for (std::size_t n = 0; n < quante; ++n) {
    if (uno[n].first != altro[n].first) return uno[n].first + " invece di " + altro[n].first;
    if (uno[n].second != altro[n].second)
      return uno[n].first + ": " + uno[n].second + " invece di " + altro[n].second;
  }
  if (uno.size() != altro.size()) return "uno dei due ha altro: l'impianto o il programma";
  return "";
}

}  // namespace tavorno
