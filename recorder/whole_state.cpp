// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/whole_state.h"

#include <algorithm>
#include <charconv>

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

class Elenco {
 public:
  template <class T>
  void operator()(const std::string& nome, const T& valore) {
    righe_.emplace_back(nome, Testo(valore));
  }
  /// The cells of a table, "VW" and their numbers.
  template <class T>
  void Celle_Di(const std::string& nome, const T& tabella) {
    int n = 0;
    for (const auto& cella : tabella) (*this)(nome + std::to_string(n++), cella);
  }
  template <class T>
  void Bit_Di(const std::string& nome, const T& bit) {
    std::string testo;
    for (const auto& cella : bit) testo += Testo(cella) + (cella > 1 || cella < 0 ? "!" : "");
    (*this)(nome, testo);
  }
  Stato_Intero Fatto() { return std::move(righe_); }

 private:
  Stato_Intero righe_;
};

void Elenca_Memoria(Elenco& a, const Celle& m) {
  const auto byte = [&](const std::string& nome, const auto& tabella) {
    int n = 0;
    for (const Riga_IP& riga : tabella) {
      const std::string dove = nome + std::to_string(n++);
      a.Bit_Di(dove, riga.Bit_Dir);
      a.Bit_Di(dove + " (immagine)", riga.Bit_Img);
      a(nome + "B" + dove.substr(1), riga.Val_B);
      a(dove + " (testo)", riga.Txt_B);
    }
  };
  byte("I", m.IP_I);
  byte("Q", m.IP_Q);
  int n = 0;
  for (const Riga_M& riga : m.Mem_M) {
    a.Bit_Di("M" + std::to_string(n), riga.Bit);
    a("MB" + std::to_string(n), riga.Val_B);
    a("M" + std::to_string(n++) + " (testo)", riga.Txt_B);
  }
  n = 0;
  for (const Riga_S& riga : m.Mem_S) a.Bit_Di("S" + std::to_string(n++), riga.Bit);
  n = 0;
  for (const Riga_SM& riga : m.Mem_SM) {
    a.Bit_Di("SM" + std::to_string(n), riga.Bit);
    a("SMB" + std::to_string(n++), riga.Val_B);
  }
  a.Celle_Di("VB", m.Mem_VB);
  a.Celle_Di("VW", m.Mem_VW);
  a.Celle_Di("VD", m.Mem_VD);
  a.Celle_Di("AC", m.Mem_AC);
  n = 0;
  for (const Riga_Timer& timer : m.Mem_T) {
    const std::string nome = "T" + std::to_string(n++);
    a(nome, timer.Uscita);
    a(nome + ".Val", timer.Val);
    a(nome + ".PT", timer.PT);
    a(nome + " (conta)", timer.Conta);
  }
  n = 0;
  for (const Riga_Contatore& contatore : m.Mem_C) {
    const std::string nome = "C" + std::to_string(n++);
    a(nome, contatore.Uscita);
    a(nome + ".Val", contatore.Val);
    a(nome + ".PV", contatore.PV);
    a(nome + " (fronte A)", contatore.Front_A);
    a(nome + " (fronte B)", contatore.Front_B);
  }
  a.Celle_Di("AIW", m.Mem_AIW);
  a.Celle_Di("AQW", m.Mem_AQW);
  a.Celle_Di("volt AI", m.Volt_AI);
  a.Celle_Di("volt AQ", m.Volt_AQ);
  for (int cella = 0; cella < 8; ++cella) a("pila " + std::to_string(cella), m.Stak[cella]);
  a.Celle_Di("ritorno ", m.Stak_Rit);
}

void Elenca_Barra(Elenco& a, const std::string& nome, const Barra::Stato& barra) {
  a(nome, barra.Testo);
  a(nome + " (lettura)", barra.Lettura);
  a(nome + " (passato)", barra.Passato);
  a(nome + " (byte)", barra.Byte);
  a(nome + " (LED)", barra.Accesi);
  a(nome + " (tipo)", barra.Tipo);
  a(nome + " (forma)", barra.Forma);
  a(nome + " (INT_ON)", barra.INT_ON);
  a(nome + " (scorri)", barra.Scorri);
  a(nome + " (scadenza)", barra.Scadenza);
}

void Elenca_Corsa(Elenco& a, const Istantanea& stato) {
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
    a(std::string(nome) + " (intervallo)", timer.Intervallo);
    a(std::string(nome) + " (scadenza)", timer.Scadenza);
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
  for (std::size_t riga = 0; riga < 2; ++riga) {
    a("etIPI " + std::to_string(riga), stato.etIPI[riga]);
    a("etIPQ " + std::to_string(riga), stato.etIPQ[riga]);
  }
  a("etPc", stato.etPc);
  a("riga scelta", stato.Lista_Scelta);
}

void Elenca_Impianto(Elenco& a, Collegamento& fili) {
  Impianto& impianto = fili.Macchina();
  a("impianto", fili.Tabella().Indice);
  a("chkSim", fili.chkSim());
  for (std::size_t n = 0; n < fili.Tabella().Cursori.size(); ++n)
    a(fili.Tabella().Cursori[n].Nome, fili.Valore(n));
  for (const Guasto_Impianto& guasto : Guasti_Di(fili.Tabella(), fili.Ingressi_A_Riposo()))
    a("guasto " + guasto.Nome, Attivo(guasto, fili));
  a("ingressi dell'impianto", impianto.Stato_I());
  a("uscite dell'impianto", impianto.Stato_Q());
  int n = 0;
  for (const std::optional<float>& valore : {impianto.ME_AIW0, impianto.ME_AIW2, impianto.ME_AIW4})
    a("ME_AIW" + std::to_string(2 * n++), valore ? Testo(*valore) : std::string("-"));
  for (const Figura& figura : impianto.Disegno) {
    a(figura.Nome + ".Left", figura.Left());
    a(figura.Nome + ".Top", figura.Top());
    a(figura.Nome + ".Width", figura.Width());
    a(figura.Nome + ".Height", figura.Height());
    a(figura.Nome + ".Visible", figura.Visible());
    a(figura.Nome + ".Picture", figura.Picture());
    a(figura.Nome + ".Caption", figura.Caption());
    a(figura.Nome + ".ToolTip", figura.ToolTip());
    a(figura.Nome + ".FillColor", figura.FillColor());
    a(figura.Nome + ".ForeColor", figura.ForeColor());
    a(figura.Nome + ".FillStyle", figura.FillStyle());
    if (const Regolatore* regolatore = impianto.Trova_Regolatore(figura.Nome))
      a(figura.Nome + " (valore)", regolatore->Valore);
  }
}

}  // namespace

Stato_Intero Elenca_Stato(const Plc& plc, Collegamento* impianto) {
  Elenco a;
  const Istantanea stato = plc.Fotografa();
  Elenca_Memoria(a, stato.Memoria);
  int n = 0;
  for (const Riga_PLC& riga : plc.Prog) {
    const std::string dove = "riga " + std::to_string(n++);
    a(dove, Testo_Riga(riga));
    a(dove + " (fronte)", riga.Fronte);
    a(dove + " (abilitata)", riga.Abil_SCR);
  }
  Elenca_Corsa(a, stato);
  for (std::size_t barra = 0; barra < 2; ++barra) {
    Elenca_Barra(a, "barra I" + std::to_string(barra), stato.SI[barra]);
    Elenca_Barra(a, "barra Q" + std::to_string(barra), stato.SQ[barra]);
  }
  if (impianto) Elenca_Impianto(a, *impianto);
  a("prossimi scatti", [&plc] {
    std::string testo;
    for (const std::int64_t scadenza : plc.Tempo.Scadenze()) testo += Testo(scadenza) + " ";
    return testo;
  }());
  return a.Fatto();
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
