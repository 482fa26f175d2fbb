// SPDX-License-Identifier: GPL-3.0-or-later
// A symbol in words, for who cannot see it and for the status bar.
#include "ladder/ui/ladder_view.h"
#include "plc/instructions.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

QString Che_Cosa(const Riquadro& riquadro) {
  const Simbolo& simbolo = riquadro.Come;
  switch (simbolo.Cosa) {
    case Ruolo::Contatto:
      if (simbolo.Segno.empty()) return QStringLiteral("contatto aperto");
      if (simbolo.Segno == "/") return QStringLiteral("contatto chiuso");
      if (simbolo.Segno == "I") return QStringLiteral("contatto aperto immediato");
      if (simbolo.Segno == "/I") return QStringLiteral("contatto chiuso immediato");
      return "confronto " + Q(simbolo.Segno);
    case Ruolo::Trasforma:
      return riquadro.Passo.Istr == "NOT"  ? QStringLiteral("inversione NOT")
             : riquadro.Passo.Istr == "EU" ? QStringLiteral("fronte di salita EU")
                                           : QStringLiteral("fronte di discesa ED");
    case Ruolo::Bobina:
      return simbolo.Segno.empty() ? QStringLiteral("bobina") : "bobina " + Q(simbolo.Segno);
    case Ruolo::Contatore:
      return "contatore " + Q(simbolo.Segno);
    default:
      return "riquadro " + Q(simbolo.Segno);
  }
}

}  // namespace

QString In_Parole(const Rete_Foglio& rete, int simbolo, const Stato_Rete& stato,
                  const Nome_Simbolico& nome) {
  const auto indice = static_cast<std::size_t>(simbolo);
  const Riquadro& riquadro = rete.Come.Riquadri[indice];
  QString parole = Che_Cosa(riquadro);
  for (std::size_t n = 0; n < riquadro.Passo.Operandi.size(); ++n) {
    const std::string& operando = riquadro.Passo.Operandi[n];
    parole += (n == 0 ? QStringLiteral(" ") : QStringLiteral(", ")) + Da_Byte(operando);
    const std::string sua = nome ? nome(A_Utf8(operando)) : std::string();
    if (!sua.empty()) parole += " (" + Q(sua) + ")";
    for (std::size_t k = 0; stato.Viva && k < rete.Scritte.size(); ++k) {
      const Scritta_Pronta& scritta = rete.Scritte[k];
      const QString& valore = stato.Valori[static_cast<qsizetype>(k)];
      if (scritta.Riquadro == simbolo && scritta.Operando == static_cast<int>(n) &&
          !valore.isEmpty())
        parole += " = " + valore;
    }
  }
  if (!stato.Viva || riquadro.Come.Cosa == Ruolo::Da_Solo) return parole;
  const bool contatto =
      riquadro.Come.Cosa == Ruolo::Contatto || riquadro.Come.Cosa == Ruolo::Trasforma;
  const bool attivo = stato.Flusso.Attivi[indice];
  parole += contatto ? attivo ? QStringLiteral(", passa") : QStringLiteral(", non passa")
            : attivo ? QStringLiteral(", alimentata")
                     : QStringLiteral(", non alimentata");
  return parole;
}

QString Vista_Scala::Commento_Di(int rete, int simbolo) const {
  const int riga = Rete(rete).Come.Riquadri[static_cast<std::size_t>(simbolo)].Passo.Riga;
  if (riga < 0) return {};
  const std::string& linea = foglio_.Righe()[static_cast<std::size_t>(riga)].Testo_Lista;
  const std::size_t commento = linea.find("//");
  return commento == std::string::npos ? QString() : Da_Byte(linea.substr(commento + 2)).trimmed();
}

QString Vista_Scala::In_Parole_Di(int rete, int simbolo) const {
  const Rete_Foglio& questa = Rete(rete);
  if (simbolo >= 0) {
    const QString commento = Commento_Di(rete, simbolo);
    return In_Parole(questa, simbolo, stati_[static_cast<std::size_t>(rete)], legami_.Nome) +
           (commento.isEmpty() ? QString() : QStringLiteral(" – ") + commento);
  }
  QString parole = questa.Titolo.simplified();
  if (!questa.Commento.isEmpty()) parole += ' ' + questa.Commento;
  if (!questa.Disegnata()) return parole + ": " + questa.Lista.value(0);
  return questa.Simboli() == 0 ? parole + QStringLiteral(": vuoto") : parole;
}

QString Vista_Scala::Descrizione() const {
  if (rete_ < 0) return QStringLiteral("Nessun segmento");
  const QString dove = In_Parole_Di(rete_, -1);
  if (scelto_ < 0 || scelto_ >= Rete(rete_).Simboli()) return dove;
  const int riga = Rete(rete_).Come.Riquadri[static_cast<std::size_t>(scelto_)].Passo.Riga;
  return QStringLiteral("%1, riga %2: %3").arg(dove).arg(riga).arg(In_Parole_Di(rete_, scelto_));
}

}  // namespace tavorno
