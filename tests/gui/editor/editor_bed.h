// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <memory>
#include <string>
#include <vector>

#include "awl/ui/main_window.h"
#include "support/answers.h"
#include "tests/support/temporary_folder.h"
#include "widgets/text.h"

namespace tavorno::prova {

/// The editor window on a project of its own, with a folder for its files. Controls are found by
/// their names.
class Banco_Editor : public ::testing::Test {
 public:
  Banco_Editor() {
    progetto.Chiedi = risponditore.Come_Dialoghi();
    legami.Mostra_Pannello = [this] { ++pannello; };
    legami.Mostra_Debug = [this] { chiamati += "debug "; };
    legami.Mostra_Stampe = [this] { chiamati += "stampe "; };
    legami.Mostra_Info = [this] { chiamati += "info "; };
    legami.Mostra_Scala = [this] { chiamati += "scala "; };
    legami.Mostra_Aiuto = [this](const QString& pagina) { chiamati += Utf8(pagina) + " "; };
  }

  /// Makes the window, shows it and starts it in a mode.
  void Avvia(Avvio modo) {
    finestra = std::make_unique<FrmMain>(progetto, plc, legami);
    finestra->show();
    finestra->Avvia(modo);
  }
  /// The window with a project read from these bytes.
  void Avvia_Con(const std::string& byte) {
    Scegli_Da_Aprire(byte);
    Avvia(Avvio::Apri);
  }

  /// Short cuts count in the active window only.
  void Attiva() const {
    finestra->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  }

  std::string Percorso(const std::string& nome) const { return (cartella / nome).string(); }
  void Scrivi_File(const std::string& nome, const std::string& byte) const {
    Scrivi_Byte(cartella / nome, byte);
  }
  std::string Leggi_File(const std::string& nome) const { return Leggi_Byte(cartella / nome); }
  /// The next file dialog is answered with this file of the folder.
  void Scegli(const std::string& nome) {
    risponditore.File.push_back(File_Scelto{Percorso(nome), nome});
  }
  void Scegli_Da_Aprire(const std::string& byte, const std::string& nome = "prova.AWL") {
    Scrivi_File(nome, byte);
    Scegli(nome);
  }

  static std::string Righe(const std::vector<std::string>& righe) {
    std::string testo;
    for (const std::string& riga : righe) testo += riga + "\r\n";
    return testo;
  }
  static std::string Blocco_Main(const std::vector<std::string>& righe) {
    return "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Titolo\r\nBEGIN\r\n" + Righe(righe) +
           "END_ORGANIZATION_BLOCK\r\n\r\n";
  }
  static std::string Blocco_SBR(int numero, const std::vector<std::string>& righe) {
    const std::string n = std::to_string(numero);
    return "SUBROUTINE_BLOCK SBR_" + n + ":SBR" + n + "\r\nTITLE=Procedura " + n + "\r\nBEGIN\r\n" +
           Righe(righe) + "END_SUBROUTINE_BLOCK\r\n\r\n";
  }

  template <class T>
  T& Trova(const QString& nome) const {
    const auto trovati = finestra->findChildren<T*>(nome);
    if (trovati.size() != 1) qFatal("%s: %d", qPrintable(nome), static_cast<int>(trovati.size()));
    return *trovati.front();
  }
  QAction& Voce(const QString& nome) const { return Trova<QAction>(nome); }
  void Comanda(const QString& nome) const { Voce(nome).trigger(); }
  void Premi(const QString& nome) const {
    QTest::mouseClick(&Trova<QPushButton>(nome), Qt::LeftButton);
  }
  bool Premibile(const QString& nome) const { return Trova<QPushButton>(nome).isEnabled(); }
  AwlEditor& Testo(const QString& nome) const {
    return static_cast<AwlEditor&>(Trova<QsciScintilla>(nome));
  }
  AwlEditor& txtList() const { return Testo("txtList"); }
  AwlEditor& txtP() const { return Testo("txtP"); }
  AwlEditor& txtLst() const { return Testo("txtLst"); }
  QTabBar& TabSP() const { return Trova<QTabBar>("TabSP"); }
  QTabWidget& SSTb2() const { return Trova<QTabWidget>("SSTb2"); }
  std::string Etichetta(const QString& nome) const { return Utf8(Trova<QLabel>(nome).text()); }
  std::vector<std::string> Schede() const {
    std::vector<std::string> nomi;
    for (int i = 0; i < TabSP().count(); ++i) nomi.push_back(Utf8(TabSP().tabText(i)));
    return nomi;
  }
  void Clicca_Scheda(int indice) const {
    QTest::mouseClick(&TabSP(), Qt::LeftButton, {}, TabSP().tabRect(indice).center());
  }
  static void Batti(AwlEditor& testo, const QString& tasti) { QTest::keyClicks(&testo, tasti); }
  static void Batti_In_Fondo(AwlEditor& testo, const QString& tasti) {
    testo.Vai_In_Fondo();
    Batti(testo, tasti);
  }

  std::vector<std::string> Testi_Avvisi() const {
    std::vector<std::string> testi;
    for (const Avviso& avviso : risponditore.Avvisi)
      testi.push_back(avviso.Titolo + ": " + avviso.Testo);
    return testi;
  }

  Cartella_Temporanea cartella;
  Orologio orologio;
  Plc plc{orologio};
  Progetto progetto{plc, {}};
  Risponditore risponditore;
  Legami_Editor legami;
  int pannello = 0;      ///< how often the panel was shown
  std::string chiamati;  ///< the other windows asked for
  std::unique_ptr<FrmMain> finestra;
};

}  // namespace tavorno::prova
