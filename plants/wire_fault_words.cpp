// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/wire_fault_words.h"

#include <algorithm>
#include <string_view>

namespace tavorno {

namespace {

/// What the program believes: that the contact is at rest for ever, or operated for ever.
struct Parole {
  const char *A_Riposo, *Azionato;
};

/// A kind of input, known by a word of its row.
struct Genere {
  const char* Parola;
  Parole Cosa;
  bool Contatto = true;  ///< else an electronic output, which cannot weld
};

// The first row whose word stands in the comment counts.
// clang-format off
constexpr Genere generi[] = {
    {"mergenza", {"Guasto pericoloso: l'emergenza si può premere, ma il PLC non la sente. In officina il fungo toglie perciò anche la potenza, senza passare dal programma.",
                  "Come se l'emergenza fosse premuta: la macchina si ferma e non riparte. È un guasto sicuro, ed è per questo che il contatto è normalmente chiuso."}},
    {"sicurezza esterna", {"Guasto pericoloso: la sicurezza esterna può intervenire senza che il PLC se ne accorga.",
                           "Come se la sicurezza esterna fosse intervenuta: il ciclo si ferma e non riparte. È un guasto sicuro."}},
    {"Costa", {"Guasto pericoloso: chi viene urtato dal cancello non lo ferma più.",
               "Come se la costa fosse premuta: il cancello non si chiude. È un guasto sicuro."}},
    {"Stop", {"Guasto pericoloso: lo stop si preme ma non ferma più niente.",
              "Come se lo stop restasse premuto: la macchina si ferma e non riparte. È un guasto sicuro, ed è per questo che il contatto è normalmente chiuso."}},
    {"rresto", {"Guasto pericoloso: l'arresto si preme ma non ferma più niente.",
                "Come se l'arresto restasse premuto: la macchina si ferma e non riparte. È un guasto sicuro."}},
    {"Pulsante", {"Il pulsante si preme e non succede niente: il suo comando non arriva più.",
                  "Come se qualcuno tenesse premuto il pulsante: il comando resta dato, e la macchina può muoversi appena il resto lo permette. Chi guarda il fronte se ne difende."}},
    {"Selettore", {"Il selettore gira a vuoto: per il PLC resta nella posizione 0.",
                   "Il selettore gira a vuoto: per il PLC resta nella posizione 1."}},
    {"usiliari", {"Il contattore chiude, ma la conferma non arriva: chi l'aspetta non va avanti, chi la sorveglia ferma tutto.",
                  "Il contattore risulta sempre chiuso, anche a motore fermo: l'interblocco tiene fermo l'altro contattore, e una sorveglianza attenta lo dice."}},
    {"ermico", {"Guasto pericoloso: il relè scatta e il PLC non lo sa. Il motore resta comandato finché si brucia, se il contatto di potenza non lo protegge.",
                "Come se il relè termico fosse scattato: il motore si ferma, ma sul relè non c'è niente da riarmare."}},
    {"ivello", {"Il livello non risulta mai raggiunto: chi carica fino a qui non si ferma, e la vasca trabocca.",
                "Il livello risulta sempre raggiunto: il carico non parte, oppure lo scarico va avanti a vasca vuota."}},
    {"vuoto", {"Il serbatoio non risulta mai vuoto: lo scarico non finisce e la pompa può girare a secco.",
               "Il serbatoio risulta sempre vuoto: lo scarico finisce subito e il prodotto resta dentro."}},
    {"presenza auto", {"L'auto davanti alla sbarra non si vede: la sbarra non si apre, o si richiude senza aspettare.",
                       "C'è sempre un'auto davanti alla sbarra: si apre da sola e non si richiude."}},
    {"cabina", {"La cabina passa dal piano e il PLC non la vede: non si ferma e va oltre.",
                "La cabina risulta sempre al piano: una chiamata da qui non la muove, e due piani insieme sono il segno del guasto."}},
    {"otocellula", {"Guasto pericoloso: la fotocellula non vede mai nessuno, e il passaggio si chiude addosso a chi c'è.",
                    "Il raggio risulta sempre interrotto: il passaggio resta aperto. È un guasto sicuro."}},
    {"Micro", {"La posizione non risulta mai raggiunta: il movimento non si ferma e va a urtare, oppure il ciclo aspetta per sempre.",
               "La posizione risulta sempre raggiunta: il movimento non parte, oppure il ciclo salta un passo."}},
    {"ine ", {"La posizione non risulta mai raggiunta: il movimento non si ferma e va a urtare, oppure il ciclo aspetta per sempre.",
              "La posizione risulta sempre raggiunta: il movimento non parte, oppure il ciclo salta un passo."}},
    {"ermostato", {"La temperatura non risulta mai raggiunta: il vapore resta aperto e la miscela bolle.",
                   "La temperatura risulta sempre raggiunta: il vapore non si apre e la miscela resta fredda."}},
    {"ransdutt", {"Gli impulsi non arrivano più: il prodotto scorre e nessuno lo conta.",
                  "Il segnale resta acceso: senza fronti nessun impulso si conta."}, false},
};
// clang-format on
constexpr Genere bit = {"Bit",
                        {"Questo bit del livello resta 0: il PLC legge un livello che non c'è.",
                         "Questo bit del livello resta 1: il PLC legge un livello che non c'è."},
                        false};
constexpr const char* analogico =
    "Il segnale cade a 0 V: il PLC legge zero e lo crede una misura. Con 4-20 mA un filo rotto si "
    "riconosce, con 0-10 V no.";

bool Contiene(std::string_view commento, std::string_view parola) {
  return commento.find(parola) != std::string_view::npos;
}

const Genere& Genere_Di(std::string_view commento) {
  if (Contiene(commento, bit.Parola)) return bit;
  const auto* trovato = std::ranges::find_if(
      generi, [&](const Genere& genere) { return Contiene(commento, genere.Parola); });
  return trovato == std::end(generi) ? bit : *trovato;
}

}  // namespace

std::string Titolo_Guasto_Filo(Guasto_Filo cosa, const Riga_IO& riga) {
  if (cosa == Guasto_Filo::Interrotto) return "Filo interrotto";
  return Genere_Di(riga.Commento).Contatto ? "Contatto incollato" : "Uscita in corto";
}

std::string Guasto_Filo_In_Parole(Guasto_Filo cosa, const Riga_IO& riga, bool chiuso_a_riposo) {
  if (riga.Indirizzo[0] == 'A') return analogico;
  const std::string_view commento = riga.Commento;
  const Genere& genere = Genere_Di(commento);
  const bool nc = Contiene(commento, "Pulsante") ? chiuso_a_riposo : Contiene(commento, "(NC)");
  // Without voltage a normally closed contact looks operated, the other one at rest.
  const bool azionato = nc == (cosa == Guasto_Filo::Interrotto);
  return azionato ? genere.Cosa.Azionato : genere.Cosa.A_Riposo;
}

}  // namespace tavorno
