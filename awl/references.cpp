// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/references.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "awl/line_words.h"
#include "awl/operand.h"
#include "awl/text.h"
#include "plc/area.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

struct Usi_Regola {
  const Regola* Quale;
  Usi_Operandi Usi;
};

// Rules that are not named only read.
const auto usi_regole = std::to_array<Usi_Regola>({
    {&regole::Uscita, {Uso::Scrittura, Uso::Lettura}},
    {&regole::Uscita_Immediata, {Uso::Scrittura, Uso::Lettura}},
    {&regole::Set, {Uso::Scrittura, Uso::Lettura}},
    {&regole::Set_Immediato, {Uso::Scrittura, Uso::Lettura}},
    {&regole::Reset, {Uso::Scrittura, Uso::Lettura}},
    {&regole::Timer, {Uso::Scrittura, Uso::Lettura}},
    {&regole::Contatore, {Uso::Scrittura, Uso::Lettura}},
    {&regole::MOVB, {Uso::Lettura, Uso::Scrittura}},
    {&regole::MOVW, {Uso::Lettura, Uso::Scrittura}},
    {&regole::MOVD, {Uso::Lettura, Uso::Scrittura}},
    {&regole::BIR, {Uso::Lettura, Uso::Scrittura}},
    {&regole::BIW, {Uso::Lettura, Uso::Scrittura}},
    {&regole::BTI, {Uso::Lettura, Uso::Scrittura}},
    {&regole::Aritmetica_I, {Uso::Lettura, Uso::Entrambi}},
    {&regole::Aritmetica_D, {Uso::Lettura, Uso::Entrambi}},
    {&regole::Inc_B, {Uso::Entrambi, Uso::Lettura}},
    {&regole::Inc_W, {Uso::Entrambi, Uso::Lettura}},
    {&regole::Inc_D, {Uso::Entrambi, Uso::Lettura}},
});

std::optional<int> Numero(std::string_view testo) {
  if (testo.starts_with('+')) testo.remove_prefix(1);
  int numero = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc{} || fine != testo.data() + testo.size()) return std::nullopt;
  return numero;
}

/// How many bits S and R write; the immediate ones write one more than they say.
int Quanti_Scritti(const Istruzione& istruzione, std::string_view linea,
                   const std::vector<Parola>& operandi) {
  const Regola* regola = istruzione.Operandi;
  const bool immediata = regola == &regole::Set_Immediato;
  if (operandi.size() < 2 || (regola != &regole::Set && regola != &regole::Reset && !immediata))
    return 1;
  constexpr int tutti = 255;
  const int scritti = Numero(operandi[1].Di(linea)).value_or(1) + (immediata ? 1 : 0);
  return std::clamp(scritti, 1, tutti);
}

/// An operand as cells side by side: of bits where it is made of bits, else of its own kind.
struct Tratto {
  Area Celle = Area::Nessuna;
  std::int64_t Prima = 0;
  std::int64_t Quante = 1;
};

Tratto Tratto_Di(const std::string& nome, int quanti) {
  const Operando parti = Split_Operando(nome);
  const Area area = Cerca_Area(parti.Area);
  const std::int64_t numero = Numero(parti.Numero).value_or(0);
  switch (Riga_Di(area).Contenuto) {
    case Cella::Bit:
      return {area, numero * Riga_Di(area).Bit + Numero(parti.Bit).value_or(0), quanti};
    case Cella::Byte:
    case Cella::Testo: {
      const Area bit = Cerca_Area(parti.Area.substr(0, parti.Area.size() - 1));
      return {bit, numero * Riga_Di(bit).Bit, Riga_Di(bit).Bit};
    }
    default:
      return {area, numero, quanti};
  }
}

/// Everything that a line names.
void Aggiungi_Linea(std::string_view linea, Posto_Riga posto, std::vector<Riferimento>& trovati) {
  const Istruzione* istruzione = Istruzione_Di(linea);
  if (istruzione == nullptr) return;
  const std::vector<Parola> operandi = Operandi_Di(linea);
  const auto aggiungi = [&](Nominato cosa, Uso come, const Parola& dove, int quanti = 1) {
    trovati.push_back({std::move(cosa), come, posto, static_cast<int>(dove.Inizio),
                       static_cast<int>(dove.Fine - dove.Inizio), quanti, Trim(linea)});
  };
  const Compito compito = istruzione->Nel_Programma;
  if (compito == Compito::Salto || compito == Compito::Etichetta) {
    if (operandi.empty()) return;
    const auto numero = Numero(operandi[0].Di(linea));
    if (numero)
      aggiungi({Genere_Nome::Etichetta, std::to_string(*numero)},
               compito == Compito::Salto ? Uso::Lettura : Uso::Definizione, operandi[0]);
    return;
  }
  if (Nomina_Procedura(compito)) {
    if (compito == Compito::Chiamata && !operandi.empty())
      aggiungi({Genere_Nome::Procedura, Maiuscole(operandi[0].Di(linea))}, Uso::Lettura,
               operandi[0]);
    return;
  }
  const Usi_Operandi usi = Usi_Istruzione(*istruzione);
  for (std::size_t i = 0; i < std::min<std::size_t>(operandi.size(), 2); ++i) {
    const std::string nome = Nome_Operando(operandi[i].Di(linea));
    if (nome.empty()) continue;
    aggiungi({Genere_Nome::Operando, nome}, i == 0 ? usi.Primo : usi.Secondo, operandi[i],
             i == 0 ? Quanti_Scritti(*istruzione, linea, operandi) : 1);
  }
}

}  // namespace

Usi_Operandi Usi_Istruzione(const Istruzione& istruzione) {
  if (istruzione.Operandi == nullptr) {
    if (istruzione.Gruppo_Manuale == Famiglia::Confronti) return {Uso::Lettura, Uso::Lettura};
    return {};
  }
  const auto* trovata = std::ranges::find(usi_regole, istruzione.Operandi, &Usi_Regola::Quale);
  return trovata == usi_regole.end() ? Usi_Operandi{Uso::Lettura, Uso::Lettura} : trovata->Usi;
}

std::string Nome_Operando(std::string_view scritto) {
  const Operando parti = Split_Operando(Maiuscole(scritto));
  const Riga_Area& area = Riga_Di(Cerca_Area(parti.Area));
  if (area.Contenuto == Cella::Assente || area.Contenuto == Cella::Costante) return {};
  const auto numero = Numero(parti.Numero);
  const auto bit = Numero(parti.Bit);
  const bool di_bit = area.Contenuto == Cella::Bit;
  if (!numero || *numero < 0 || di_bit != (parti.Ha_Bit != 0) || (di_bit && (!bit || *bit < 0)))
    return {};
  std::string nome = parti.Area + std::to_string(*numero);
  if (di_bit) nome += '.' + std::to_string(*bit);
  return nome;
}

std::vector<Riferimento> Riferimenti(const Sorgente& testi) {
  std::vector<Riferimento> trovati;
  const auto leggi = [&](const std::string& testo, int numero) {
    int linea = 0;
    for (const std::string_view scritta : Linee(testo))
      Aggiungi_Linea(scritta, {numero, linea++}, trovati);
  };
  leggi(testi.Main, 0);
  for (std::size_t i = 0; i < testi.Procedure.size(); ++i)
    leggi(testi.Procedure[i].Testo, static_cast<int>(i) + 1);
  return trovati;
}

std::optional<Nominato> Nominato_In(std::string_view linea, int colonna) {
  std::vector<Riferimento> trovati;
  Aggiungi_Linea(linea, {}, trovati);
  for (const Riferimento& trovato : trovati) {
    if (colonna >= trovato.Colonna && colonna <= trovato.Colonna + trovato.Lunghezza)
      return trovato.Di;
  }
  if (trovati.size() != 1) return std::nullopt;
  return trovati.front().Di;
}

bool Tocca(const Riferimento& riferimento, const Nominato& quale) {
  if (riferimento.Di == quale) return true;
  if (riferimento.Di.Genere != Genere_Nome::Operando || quale.Genere != Genere_Nome::Operando)
    return false;
  const Tratto suo = Tratto_Di(riferimento.Di.Nome, riferimento.Quanti);
  const Tratto cercato = Tratto_Di(quale.Nome, 1);
  return suo.Celle == cercato.Celle && suo.Prima < cercato.Prima + cercato.Quante &&
         cercato.Prima < suo.Prima + suo.Quante;
}

std::vector<Riferimento> Usi_Di(const Sorgente& testi, const Nominato& quale) {
  std::vector<Riferimento> usi = Riferimenti(testi);
  std::erase_if(usi, [&](const Riferimento& uso) { return !Tocca(uso, quale); });
  return usi;
}

}  // namespace tavorno
