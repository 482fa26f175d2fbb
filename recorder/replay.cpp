// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/replay.h"

#include <algorithm>

#include "plc/byte_text.h"
#include "recorder/analog_exchange.h"
#include "recorder/door.h"

namespace tavorno {

namespace {

/// The CPU belongs to the replay.
class In_Replica {
 public:
  explicit In_Replica(Vissuto& adesso) : adesso_(adesso), prima_(adesso) {
    adesso_ = Vissuto::Replica;
  }
  ~In_Replica() { adesso_ = prima_; }
  In_Replica(const In_Replica&) = delete;
  In_Replica& operator=(const In_Replica&) = delete;

 private:
  Vissuto& adesso_;
  Vissuto prima_;
};

}  // namespace

void Metti_Stato(Plc& plc, const Stesura& programma, const Istantanea& stato) {
  Metti_Programma(plc, programma);
  plc.Ripristina(stato);
}

Replica::Replica(Plc& plc, const Giornale& giornale, Posto_Giornale da)
    : plc_(plc), giornale_(giornale), lettore_(giornale, da) {
  Apri = [this](int indice) {
    proprio_ = std::make_unique<Collegamento>(plc_, stato_impianto_,
                                              Tabella_Esercizi()[static_cast<std::size_t>(indice)]);
    return proprio_.get();
  };
  for (LedQ& barra : plc.SQ)
    ascolti_.push_back(barra.Change.Ascolta([this] { Uscita_Cambiata(); }));
  Chiudi = [this] {
    if (proprio_) proprio_->Chiudi();
    proprio_.reset();
  };
}

Replica::~Replica() {
  const In_Replica replica(plc_.Hook.Adesso);  // the plant that goes with it is no entry
  proprio_.reset();
}

void Replica::Leggi() {
  prima_ = lettore_.Dove();
  prossima_ = lettore_.Prossima();
  if (!lettore_.Guasto().empty()) throw Giornale_Discorde(lettore_.Guasto());
}

void Replica::Uscita_Cambiata() {
  if (!impianto_ascolta_ || plc_.Hook.Adesso != Vissuto::Replica) return;
  if (attese_.empty())
    ++non_dette_;
  else
    attese_.pop_front();
}

bool Replica::Basta(const Atto& entrata) const {
  if (entrata.Che == Cosa::Presente) return entrata.Numero > fin_qui_.Ms;
  if (entrata.Che == Cosa::Passano) return plc_.Tempo.Adesso() + entrata.Numero > fin_qui_.Ms;
  return plc_.Righe_Fatte >= fin_qui_.Righe && Fa_Correre(entrata, plc_);
}

void Replica::Applica(const Atto& entrata) {
  const std::string motivo = Motivo_Di_Rifiuto(entrata, Impianto);
  if (!motivo.empty()) throw Giornale_Discorde(motivo);
  switch (entrata.Che) {
    case Cosa::Programma: {
      const auto programma = giornale_.Programma(entrata.Numero);
      if (!programma) throw Giornale_Discorde("il giornale nomina un programma che non c'è");
      return Metti_Programma(plc_, *programma);
    }
    case Cosa::Apri:
      impianto_ascolta_ = true;
      Impianto = Apri(entrata.Indice);
      return;
    case Cosa::Chiudi:
      impianto_ascolta_ = false;
      Impianto = nullptr;
      return Chiudi();
    case Cosa::Uscita:
      if (Dello_Scambio(entrata)) return;  // the CPU does it by itself
      if (non_dette_ > 0)
        --non_dette_;
      else
        attese_.push_back(prima_);
      return;
    case Cosa::Avviso_Chiuso:
      return;
    default:
      return Fai_Entrare(entrata, plc_, Impianto);
  }
}

/// Lets in what entered before the next line.
void Replica::Entrate() {
  while (!arrivata_) {
    if (!prossima_) Leggi();
    if (!prossima_ || prossima_->Righe > plc_.Righe_Fatte) return;
    // An output is told in the middle of the line that brings it.
    if (prossima_->Righe < plc_.Righe_Fatte && prossima_->Entra.Che != Cosa::Uscita)
      throw Giornale_Discorde("il giornale non corrisponde al programma: alla riga numero " +
                              std::to_string(plc_.Righe_Fatte) + " aspettava altro");
    const bool ferma = Guarda && Fa_Correre(prossima_->Entra, plc_) && !Guarda();
    fermata_ = fermata_ || ferma;
    if (ferma || Basta(prossima_->Entra)) return Arriva();
    const Atto entrata = prossima_->Entra;
    prossima_.reset();
    Applica(entrata);
    if (plc_.In_Pausa() && plc_.In_Giro() != Giro::Nessuno) return;  // the loop ends here
  }
}

/// Here the replay rests, and a loop that is at work is left.
void Replica::Arriva() {
  arrivata_ = true;
  In_Giro = plc_.In_Giro() != Giro::Nessuno;
  plc_.Sospendi();
}

int Replica::Cedi() {
  if (arrivata_) return 1;
  if (Guarda && !Guarda()) {
    fermata_ = true;
    Arriva();
    return 1;
  }
  const Posto_Giornale prima = Dove();
  Entrate();
  if (arrivata_ || plc_.In_Pausa()) return 1;
  if (Guarda && (prima.Byte != Dove().Byte || prima.Ripetute != Dove().Ripetute) && !Guarda()) {
    fermata_ = true;
    Arriva();
    return 1;
  }
  const std::int64_t fino_a =
      std::min(prossima_ ? prossima_->Righe : giornale_.Ultima_Riga, fin_qui_.Righe);
  const std::int64_t righe = fino_a - plc_.Righe_Fatte;
  if (righe <= 0) {
    Arriva();
    return 1;
  }
  if (Ogni_Riga) return 1;
  return static_cast<int>(std::min<std::int64_t>(righe, std::numeric_limits<int>::max()));
}

void Replica::Solo_Impianto(const Posto_Giornale& fine) {
  const In_Replica replica(plc_.Hook.Adesso);
  for (Temporizzatore* timer : {&plc_.T100m, &plc_.tim1, &plc_.tim2, &plc_.timIO})
    timer->Enabled(false);
  while (lettore_.Dove().Byte < fine.Byte) {
    Leggi();
    if (!prossima_) break;
    const Atto entrata = prossima_->Entra;
    prossima_.reset();
    if (Dello_Scambio(entrata) && Scambio_Possibile(entrata))
      Rifai_Scambio(entrata, plc_);
    else if (entrata.Che == Cosa::Uscita)
      plc_.SQ.at(static_cast<std::size_t>(entrata.Indice))
          .Stato_Q(Testo_Bit(static_cast<std::uint8_t>(entrata.Numero)));
    else if (entrata.Che == Cosa::Presente || entrata.Che == Cosa::Passano ||
             entrata.Che == Cosa::Scelta || Dell_Impianto(entrata.Che))
      Applica(entrata);
  }
  attese_.clear();
  non_dette_ = 0;
}

/// What entered while a message box stood in the middle of a line.
void Replica::Nell_Avviso() {
  for (;;) {
    if (!prossima_) Leggi();
    if (!prossima_ || prossima_->Righe > plc_.Righe_Fatte) return;
    const Atto entrata = prossima_->Entra;
    prossima_.reset();
    if (entrata.Che == Cosa::Avviso_Chiuso) return;
    Applica(entrata);
  }
}

bool Replica::Vai(Momento fin_qui) {
  const In_Replica replica(plc_.Hook.Adesso);
  fin_qui_ = fin_qui;
  arrivata_ = fermata_ = false;
  const Iscrizione cessione = plc_.Hook.Ascolta_Cedi_Righe([this] { return Cedi(); });
  const Iscrizione avvisi = plc_.Hook.Mostra.Ascolta([this](const Avviso&) { Nell_Avviso(); });
  if (std::exchange(In_Giro, false)) plc_.Continua();
  Entrate();
  if (!arrivata_ && prossima_)
    throw Giornale_Discorde("il giornale non corrisponde al programma: si è fermato dopo " +
                            std::to_string(plc_.Righe_Fatte) + " righe");
  return arrivata_ && (prossima_ || plc_.Righe_Fatte < giornale_.Ultima_Riga);
}

}  // namespace tavorno
