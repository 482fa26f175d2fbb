// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/session_file.h"

#include <bit>
#include <concepts>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <type_traits>

#include "awl/file_io.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

constexpr std::string_view segno = "TAVORNO-SEDUTA ";
constexpr std::uint8_t versione = 2;  // what is written; 1 tells nothing of analog outputs
constexpr std::size_t grandezza_massima = 512UL * 1024 * 1024;
constexpr std::size_t righe_massime = 32'767, programmi_massimi = 10'000;
constexpr std::size_t testo_massimo = 4096;

/// FNV-1a, for accidents and not against forgers.
std::uint64_t Impronta(std::string_view byte) {
  std::uint64_t somma = 0xcbf29ce484222325ULL;
  for (const char uno : byte) {
    somma ^= static_cast<std::uint8_t>(uno);
    somma *= 0x100000001b3ULL;
  }
  return somma;
}

/// Writes what `Campi` names.
class Scrittore {
 public:
  static constexpr bool Legge = false;
  std::string Byte;

  void Naturale(std::uint64_t numero) {
    for (; numero >= 0x80; numero >>= 7U) Byte.push_back(static_cast<char>(numero | 0x80U));
    Byte.push_back(static_cast<char>(numero));
  }
  template <class T>
  void operator()(const T& valore) {
    if constexpr (std::is_same_v<T, std::string>) {
      Naturale(valore.size());
      Byte += valore;
    } else if constexpr (std::is_same_v<T, float>) {
      Naturale(std::bit_cast<std::uint32_t>(valore));
    } else {
      const auto numero = static_cast<std::int64_t>(valore);
      Naturale((static_cast<std::uint64_t>(numero) << 1U) ^
               static_cast<std::uint64_t>(numero >> 63U));
    }
  }
  template <class T>
  void Lista(const std::vector<T>& lista, std::size_t) {
    Naturale(lista.size());
  }
};

/// Reads it back. Once something does not fit, everything that follows is zero.
class Lettore {
 public:
  static constexpr bool Legge = true;
  explicit Lettore(std::string_view byte) : resto_(byte) {}

  std::string Motivo;

  std::uint64_t Naturale() {
    std::uint64_t numero = 0;
    for (unsigned posto = 0; posto < 64 && Motivo.empty(); posto += 7) {
      if (resto_.empty()) return Rifiuta("il file finisce troppo presto");
      const auto uno = static_cast<std::uint8_t>(resto_.front());
      resto_.remove_prefix(1);
      numero |= std::uint64_t{uno & 0x7FU} << posto;
      if (uno < 0x80) return numero;
    }
    return Rifiuta("un numero è troppo grande");
  }
  std::uint64_t Rifiuta(const char* motivo) {
    if (Motivo.empty()) Motivo = motivo;
    return 0;
  }
  template <class T>
  void operator()(T& valore) {
    if constexpr (std::is_same_v<T, std::string>) {
      valore = Stringa(testo_massimo);
    } else if constexpr (std::is_same_v<T, float>) {
      valore = std::bit_cast<float>(static_cast<std::uint32_t>(Naturale()));
    } else {
      const std::uint64_t a_zigzag = Naturale();
      const std::int64_t numero =
          static_cast<std::int64_t>(a_zigzag >> 1U) ^ -static_cast<std::int64_t>(a_zigzag & 1U);
      valore = static_cast<T>(numero);
      if (static_cast<std::int64_t>(valore) != numero) Rifiuta("un valore non sta nella sua cella");
    }
  }
  std::string Stringa(std::size_t massimo) {
    const std::uint64_t lunga = Naturale();
    if (lunga > massimo || lunga > resto_.size()) Rifiuta("un testo è troppo lungo");
    if (!Motivo.empty()) return "";
    std::string testo(resto_.substr(0, static_cast<std::size_t>(lunga)));
    resto_.remove_prefix(testo.size());
    return testo;
  }
  template <class T>
  void Lista(std::vector<T>& lista, std::size_t massimo) {
    const std::uint64_t quante = Naturale();
    if (quante > massimo || quante > resto_.size()) Rifiuta("una lista è troppo lunga");
    if (Motivo.empty()) lista.resize(static_cast<std::size_t>(quante));
  }
  bool Finito() const { return resto_.empty(); }

 private:
  std::string_view resto_;
};

template <class A, class T>
void Tutti(A& a, T& tabella) {
  for (auto& cella : tabella) a(cella);
}

template <class A>
void Campi(A& a, std::conditional_t<A::Legge, Celle, const Celle>& m) {
  for (auto* tabella : {&m.IP_I, &m.IP_Q}) {
    for (auto& riga : *tabella) {
      Tutti(a, riga.Bit_Dir);
      Tutti(a, riga.Bit_Img);
      a(riga.Val_B);
      a(riga.Txt_B);
    }
  }
  for (auto& riga : m.Mem_M) {
    Tutti(a, riga.Bit);
    a(riga.Val_B);
    a(riga.Txt_B);
  }
  for (auto& riga : m.Mem_S) Tutti(a, riga.Bit);
  for (auto& riga : m.Mem_SM) {
    Tutti(a, riga.Bit);
    a(riga.Val_B);
  }
  Tutti(a, m.Mem_VB);
  Tutti(a, m.Mem_VW);
  Tutti(a, m.Mem_VD);
  Tutti(a, m.Mem_AC);
  for (auto& timer : m.Mem_T) a(timer.Val), a(timer.PT), a(timer.Uscita), a(timer.Conta);
  for (auto& c : m.Mem_C) a(c.Val), a(c.PV), a(c.Uscita), a(c.Front_A), a(c.Front_B);
  Tutti(a, m.Mem_AIW);
  Tutti(a, m.Mem_AQW);
  Tutti(a, m.Volt_AI);
  Tutti(a, m.Volt_AQ);
  for (int cella = 0; cella < 8; ++cella) a(m.Stak[cella]);
  Tutti(a, m.Stak_Rit);
}

template <class A, class T>
void Campi_Barra(A& a, T& barra) {
  a(barra.Testo), a(barra.Lettura), a(barra.Passato);
  a(barra.Byte), a(barra.Accesi), a(barra.Tipo), a(barra.Forma), a(barra.Posizione);
  a(barra.Derivati), a(barra.Scorri), a(barra.INT_ON);
  a(barra.Intervallo), a(barra.Scadenza);
}

template <class A, class T>
void Campi_Corsa(A& a, T& stato) {
  auto& corsa = stato.Corsa;
  a(stato.NRighe), a(stato.PC);
  a.Lista(stato.Righe, righe_massime);
  for (auto& riga : stato.Righe) a(riga.Fronte), a(riga.Abil_SCR);
  a(corsa.PLC_Acceso), a(corsa.Ferma), a(corsa.Modo_Run), a(corsa.N_Cicli), a(corsa.Tempo_Ciclo);
  a(corsa.T_Inizio), a(corsa.Primo_Ciclo), a(corsa.Clock_T), a(corsa.Righe_Fatte);
  a(stato.In_Giro), a(stato.Sospeso);
  auto& scelte = stato.Scelte;
  a(scelte.chkList), a(scelte.chkIP), a(scelte.chkStop), a(scelte.chkSol);
  a(scelte.txtStop), a(scelte.txtNC), a(scelte.opzAI), a(scelte.opzAQ);
  auto& attivi = stato.Attivi;
  a(attivi.mnuPlcRun), a(attivi.mnuPlcStop), a(attivi.mnuPlcCont), a(attivi.mnuPlcCiclo);
  a(attivi.mnuPlcStep), a(attivi.CmdStep), a(attivi.cmdRest), a(attivi.SSTb3);
  for (auto* barre : {&stato.SI, &stato.SQ}) {
    for (auto& barra : *barre) Campi_Barra(a, barra);
  }
  a(stato.Adesso);
  for (auto& timer : stato.Timer_CPU) a(timer.Intervallo), a(timer.Scadenza);
  a(stato.Stato_tim1), a(stato.Stato_tim2);
  a(stato.etTime);
  Tutti(a, stato.etIPI);
  Tutti(a, stato.etIPQ);
  a(stato.etPc), a(stato.Lista_Scelta), a(stato.Tempo_Mostrato), a(stato.Tempo_Alla_Fine);
}

template <class A, class T>
void Campi_Programma(A& a, T& programma) {
  a(programma.NRighe);
  a.Lista(programma.Righe, righe_massime);
  for (auto& riga : programma.Righe) {
    a(riga.Istr), a(riga.Area1), a(riga.Area2), a(riga.Area3);
    a(riga.Num1), a(riga.Num2), a(riga.Num3), a(riga.Bit1), a(riga.Bit2), a(riga.Bit3);
    a(riga.Fronte), a(riga.Salto), a(riga.Abil_SCR), a(riga.SCR_Prima), a(riga.SCR_Ultima);
    a(riga.Ha_Bit), a(riga.NOper);
    a.Lista(riga.Lista_T, righe_massime);
    for (auto& timer : riga.Lista_T) a(timer);
  }
}

template <class A, class T>
void Campi_Posto(A& a, T& posto) {
  a(posto.Righe), a(posto.Ms);
}

/// What a CPU can hold; only so the replay may begin.
const char* Non_Va(const Istantanea& stato, const Stesura& programma) {
  const auto fra = [](auto valore, auto minimo, auto massimo) {
    return valore >= minimo && valore <= massimo;
  };
  const int righe = static_cast<int>(programma.Righe.size());
  if (stato.Righe.size() != programma.Righe.size()) return "stato e programma non vanno insieme";
  if (!fra(int{stato.PC}, 0, std::max(righe, 1))) return "la riga da eseguire non c'è";
  if (stato.Corsa.Modo_Run != Modo::Cont && stato.Corsa.Modo_Run != Modo::Step &&
      stato.Corsa.Modo_Run != Modo::Ciclo)
    return "il modo non c'è";
  for (const Giro giro : {stato.In_Giro, stato.Sospeso}) {
    if (giro != Giro::Nessuno && giro != Giro::Cont && giro != Giro::Ciclo)
      return "il giro non c'è";
  }
  for (const Scala scala : {stato.Scelte.opzAI, stato.Scelte.opzAQ}) {
    if (scala != Scala::Volt_10 && scala != Scala::mA_20 && scala != Scala::Nessuna)
      return "la scala analogica non c'è";
  }
  if (stato.Adesso < 0 || stato.Corsa.Righe_Fatte < 0) return "il tempo è negativo";
  if (stato.Corsa.Clock_T < 1) return "un intervallo è nullo";
  for (const auto* barre : {&stato.SI, &stato.SQ}) {
    for (const Barra::Stato& barra : *barre) {
      for (const std::string* testo : {&barra.Testo, &barra.Passato}) {
        if (testo->size() != 8 || testo->find_first_not_of("01") != std::string::npos)
          return "una barra di LED non ha otto bit";
      }
      if (barra.Intervallo < 1) return "un intervallo è nullo";
    }
  }
  for (const Istantanea::Timer& timer : stato.Timer_CPU) {
    if (timer.Intervallo < 1 || timer.Scadenza < stato.Adesso)
      return "un temporizzatore è in ritardo";
  }
  return nullptr;
}

}  // namespace

std::string Byte_Di(const Seduta_Registrata& registrazione) {
  Scrittore a;
  a(registrazione.Titolo);
  Campi_Programma(a, *registrazione.Programma);
  Campi(a, registrazione.Stato.Memoria);
  Campi_Corsa(a, registrazione.Stato);
  const Giornale& voci = registrazione.Voci;
  Campi_Posto(a, voci.Inizio);
  a(voci.Ultima_Riga);
  a.Naturale(voci.Programmi().size());
  for (const auto& programma : voci.Programmi()) Campi_Programma(a, *programma);
  a.Naturale(voci.Byte().size());
  a.Byte.append(voci.Byte().begin(), voci.Byte().end());

  std::string byte(segno);
  byte += std::to_string(versione) + "\n";
  byte += a.Byte;
  const std::uint64_t somma = Impronta(byte);
  for (unsigned n = 0; n < 64; n += 8) byte.push_back(static_cast<char>(somma >> n));
  return byte;
}

std::optional<Seduta_Registrata> Leggi_Registrazione(std::string_view byte, std::string& motivo) {
  const auto rifiuta = [&motivo](const std::string& perche) {
    motivo = perche;
    return std::nullopt;
  };
  if (!byte.starts_with(segno)) return rifiuta("non è una seduta registrata");
  const std::size_t a_capo = byte.substr(0, 40).find('\n');
  if (a_capo == std::string_view::npos) return rifiuta("non è una seduta registrata");
  const std::string_view numero = byte.substr(segno.size(), a_capo - segno.size());
  if (numero != "1" && numero != std::to_string(versione))
    return rifiuta("è una seduta della versione " + std::string(numero) +
                   ", che questo programma non conosce");
  constexpr std::size_t coda = 8;
  if (byte.size() < a_capo + 1 + coda) return rifiuta("il file finisce troppo presto");
  std::uint64_t somma = 0;
  for (unsigned n = 0; n < coda; ++n)
    somma |= std::uint64_t{static_cast<std::uint8_t>(byte[byte.size() - coda + n])} << 8 * n;
  if (somma != Impronta(byte.substr(0, byte.size() - coda)))
    return rifiuta("il file è rovinato: la somma di controllo non torna");

  Lettore a(byte.substr(a_capo + 1, byte.size() - a_capo - 1 - coda));
  Seduta_Registrata registrazione;
  const auto leggi_programma = [&a] {
    Stesura programma;
    Campi_Programma(a, programma);
    for (Riga_PLC& riga : programma.Righe) Decodifica(riga);
    if (programma.NRighe < 0 ||
        (programma.NRighe > 0 && programma.NRighe >= std::ssize(programma.Righe)))
      a.Rifiuta("l'ultima riga del programma non c'è");
    return std::make_shared<const Stesura>(std::move(programma));
  };
  a(registrazione.Titolo);
  registrazione.Programma = leggi_programma();
  Campi(a, registrazione.Stato.Memoria);
  Campi_Corsa(a, registrazione.Stato);
  Posto_Giornale inizio;
  Campi_Posto(a, inizio);
  std::int64_t ultima_riga = 0;
  a(ultima_riga);
  std::vector<std::shared_ptr<const Stesura>> programmi;
  const std::uint64_t quanti = a.Naturale();
  if (quanti > programmi_massimi) a.Rifiuta("una lista è troppo lunga");
  for (std::uint64_t n = 0; n < quanti && a.Motivo.empty(); ++n)
    programmi.push_back(leggi_programma());
  const std::string voci = a.Stringa(grandezza_massima);
  if (a.Motivo.empty() && !a.Finito()) a.Rifiuta("il file ha una coda che nessuno legge");
  if (!a.Motivo.empty()) return rifiuta(a.Motivo);
  if (const char* guasto = Non_Va(registrazione.Stato, *registrazione.Programma))
    return rifiuta(guasto);
  registrazione.Voci =
      Giornale::Da_Byte(inizio, inizio, {voci.begin(), voci.end()}, std::move(programmi));
  registrazione.Voci.Ultima_Riga = ultima_riga;
  return registrazione;
}

std::optional<Seduta_Registrata> Apri_Registrazione(const std::string& file, std::string& motivo) {
  std::error_code errore;
  const auto grandezza = std::filesystem::file_size(file, errore);
  if (errore) {
    motivo = "il file non si può leggere";
    return std::nullopt;
  }
  if (grandezza > grandezza_massima) {
    motivo = "il file è troppo grande per essere una seduta";
    return std::nullopt;
  }
  std::ifstream ingresso(file, std::ios::binary);
  std::ostringstream tutto;
  tutto << ingresso.rdbuf();
  if (!ingresso) {
    motivo = "il file non si può leggere";
    return std::nullopt;
  }
  return Leggi_Registrazione(tutto.str(), motivo);
}

std::string Salva_Registrazione(const std::string& file, const Seduta_Registrata& registrazione) {
  return Scrivi_File(file, Byte_Di(registrazione));
}

}  // namespace tavorno
