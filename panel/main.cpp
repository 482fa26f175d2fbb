// SPDX-License-Identifier: GPL-3.0-or-later
// The process entry: makes the objects, connects them, runs.
#include <QIcon>
#include <QLibraryInfo>
#include <QSettings>
#include <QTimer>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "assets/resources.h"
#include "panel/application.h"
#include "panel/child_windows.h"
#include "panel/command_line.h"
#include "panel/run_driver.h"
#include "panel/safekeeping.h"
#include "panel/session_bar.h"
#include "panel/session_wires.h"
#include "panel/verification.h"
#include "recorder/recorder.h"
#include "widgets/clear_style.h"
#include "widgets/desktop_theme.h"
#include "widgets/message_box.h"

using namespace tavorno;

int main(int argc, char** argv) {
  const std::vector<std::string> tutte(argv + 1, argv + argc);
  if (Solo_Domande(tutte)) {
    const int stato = *Leggi_Riga_Di_Comando(tutte, std::cout, std::cerr).Stato;
    return std::cout.flush() ? stato : EXIT_FAILURE;  // an answer that is lost is none
  }
  Applicazione applicazione(argc, argv);
  std::vector<std::string> parole;
  for (const QString& parola : Applicazione::arguments().sliced(1))
    parole.push_back(parola.toStdString());
  const Riga_Di_Comando comando = Leggi_Riga_Di_Comando(parole, std::cout, std::cerr);
  if (comando.Stato) return *comando.Stato;
  Applicazione::setApplicationName(QStringLiteral("Tavorno"));
  Applicazione::setStyle(new Stile_Chiaro);
  Segui_Scrivania();
  Applicazione::setQuitOnLastWindowClosed(false);
  Apri_Risorse();
  Applicazione::setDesktopFileName(QStringLiteral("org.tavorno.Tavorno"));
  Applicazione::setWindowIcon(QIcon(QStringLiteral(":/icons/tavorno.svg")));
  QTranslator italiano;
  if (italiano.load(QStringLiteral("qtbase_it"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
      italiano.load(QStringLiteral(":/translations/qtbase_it")))
    Applicazione::installTranslator(&italiano);

  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});  // the editor brings its dialogs along
  const Iscrizione messaggi = plc.Hook.Mostra.Ascolta([&plc](const Avviso& avviso) {
    // What a past that is played again had to say has been said.
    if (plc.Hook.Adesso == Vissuto::Presente) Mostra_Avviso(nullptr, avviso);
  });
  Registratore registratore(plc);
  const Iscrizione programmi =
      progetto.Programma_Cambiato.Ascolta([&registratore] { registratore.Programma_Nuovo(); });
  const QString cartella = Applicazione::applicationDirPath();
  Guida guida{cartella + "/HTML/", cartella + "/HTML/Panel/", {}};

  FrmPLC pannello(plc, progetto);
  Guida_Corsa corsa(plc, [&pannello] { pannello.Aggiorna(); });
  pannello.Durate = [&corsa] { return corsa.Scansioni(); };
  Finestre finestre(pannello, plc, progetto, guida);
  QSettings ricordi(QStringLiteral("tavorno"), QStringLiteral("tavorno"));
  finestre.Ricorda_In(ricordi);
  Salvaguardia salvaguardia(progetto, pannello, finestre, Cartella_Copie());
  Barra_Seduta seduta(pannello, plc, registratore, corsa);
  Collega_Seduta(seduta, finestre, registratore);
  const Sala_Verifica sala(pannello, plc, progetto, registratore, corsa, finestre, cartella,
                           guida.Dir_Help);

  applicazione.Fine_Fatale = [&](const Fatale& fatale) {
    corsa.Ferma();
    salvaguardia.Scrivi_Ora();
    const std::string rapporto = Rapporto_Fine(fatale, plc);
    std::fprintf(stderr, "%s\n", rapporto.c_str());
    Mostra_Avviso(&pannello, {"Errore!", rapporto, Icona::Critica, Tasti::Ok, {}});
    pannello.Salva_Il_Progetto();
  };
  pannello.show();
  // From the command line, or from a double click on its file.
  if (!comando.File.empty()) finestre.Apri_File(QString::fromStdString(comando.File));
  QTimer::singleShot(0, &salvaguardia, [&salvaguardia] { salvaguardia.Offri(); });
  const int stato = Applicazione::exec();
  salvaguardia.Congeda();
  return stato;
}
