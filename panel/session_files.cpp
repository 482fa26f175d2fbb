// SPDX-License-Identifier: GPL-3.0-or-later
// A session as a file: saved from the menu, and opened in the place of the one before.
#include "panel/program_list.h"
#include "panel/session_bar.h"
#include "plants/host/host_window.h"
#include "recorder/session_file.h"
#include "widgets/text.h"

namespace tavorno {

void Barra_Seduta::Salva() {
  const QString file = Chiedi_File(true);
  if (file.isEmpty()) return;
  const std::string errore = Salva_Registrazione(Utf8(file), registratore_.Dal_Primo());
  if (!errore.empty()) Avvisa(Q("La seduta non è stata salvata: " + errore));
}

/// Whether one plant at most is open, from its opening to the end.
static bool Da_Finestra(const Seduta_Registrata& registrazione) {
  Lettore_Giornale lettore(registrazione.Voci, registrazione.Voci.Inizio);
  int aperti = 0;
  while (const auto voce = lettore.Prossima()) {
    if (voce->Entra.Che == Cosa::Chiudi) return false;
    aperti += voce->Entra.Che == Cosa::Apri;
  }
  return aperti <= 1;
}

void Barra_Seduta::Apri() {
  if (plc_.In_Giro() != Giro::Nessuno || plc_.PLC_Acceso)
    return Avvisa(Q("Prima di aprire una seduta fermare la CPU con STOP."));
  if (Impianto && Impianto())
    return Avvisa(Q("Prima di aprire una seduta chiudere la finestra dell'impianto."));
  const QString file = Chiedi_File(false);
  if (file.isEmpty()) return;
  std::string motivo;
  const auto registrazione = Apri_Registrazione(Utf8(file), motivo);
  if (!registrazione) return Avvisa(Q("La seduta non si può aprire: " + motivo + "."));
  if (!Da_Finestra(*registrazione))
    return Avvisa(Q(
        "La seduta apre più di un impianto, o ne chiude uno: nella finestra non si può percorrere. "
        "La rifà \"tavorno-banco rivivi\"."));
  Al_Presente();
  const int impianto = Registratore::Impianto_Di(*registrazione);
  if (impianto >= 0 && Apri_Impianto) Apri_Impianto(impianto);
  show();
  corsa_.Pausa();
  try {
    registratore_.Prendi(*registrazione);
  } catch (const Giornale_Discorde& discorde) {
    Avvisa(Q(std::string("La seduta non si può rifare: ") + discorde.what() + "."));
  }
  std::vector<std::string> righe;
  for (const Riga_PLC& riga : plc_.Prog) righe.push_back(Testo_Riga(riga));
  pannello_.Controlli().listSrc->Riempi(righe);
  perche_ = Q(registrazione->Titolo);
  if (Aperta) Aperta();
  Specchia();
}

}  // namespace tavorno
