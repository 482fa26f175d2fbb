// SPDX-License-Identifier: GPL-3.0-or-later
// The process entry: makes the objects, connects them, runs.
#include <QIcon>
#include <QLibraryInfo>
#include <QStyleFactory>
#include <QTranslator>
#include <cstdio>

#include "assets/resources.h"
#include "panel/application.h"
#include "panel/child_windows.h"
#include "panel/run_driver.h"
#include "widgets/message_box.h"

using namespace tavorno;

int main(int argc, char** argv) {
  Applicazione applicazione(argc, argv);
  Applicazione::setApplicationName(QStringLiteral("Tavorno"));
  Applicazione::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  Applicazione::setQuitOnLastWindowClosed(false);
  Apri_Risorse();
  Applicazione::setDesktopFileName(QStringLiteral("org.tavorno.Tavorno"));
  Applicazione::setWindowIcon(QIcon(QStringLiteral(":/icons/tavorno.svg")));
  QTranslator italiano;
  if (italiano.load(QStringLiteral("qtbase_it"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    Applicazione::installTranslator(&italiano);

  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});  // the editor brings its dialogs along
  const Iscrizione messaggi =
      plc.Hook.Mostra.Ascolta([](const Avviso& avviso) { Mostra_Avviso(nullptr, avviso); });
  const QString cartella = Applicazione::applicationDirPath();
  Guida guida{cartella + "/HTML/", cartella + "/HTML/Panel/", {}};

  FrmPLC pannello(plc, progetto);
  Guida_Corsa corsa(plc, [&pannello] { pannello.Aggiorna(); });
  const Finestre finestre(pannello, plc, progetto, guida);

  applicazione.Fine_Fatale = [&](const Fatale& fatale) {
    corsa.Ferma();
    const std::string rapporto = Rapporto_Fine(fatale, plc);
    std::fprintf(stderr, "%s\n", rapporto.c_str());
    Mostra_Avviso(&pannello, {"Errore!", rapporto, Icona::Critica, Tasti::Ok, {}});
    pannello.Salva_Il_Progetto();
  };
  pannello.show();
  return Applicazione::exec();
}
