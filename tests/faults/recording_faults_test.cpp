// SPDX-License-Identifier: GPL-3.0-or-later
// A session and the timing diagram as files, on a disk that fails.
#include <QDir>
#include <QMessageBox>

#include "recorder/diagram_bed.h"
#include "recorder/session_file.h"
#include "support/modal.h"
#include "tests/faults/faults.h"
#include "tests/support/temporary_folder.h"
#include "widgets/text.h"

namespace tavorno::prova {

namespace {

QStringList Nomi(const Cartella_Temporanea& cartella) {
  return QDir(Q(cartella.string())).entryList(QDir::Files | QDir::Hidden);
}

}  // namespace

TEST(FailingDisk, IsThere) {
  ASSERT_TRUE(Disco_Guastabile()) << "the library is not preloaded, so nothing here would fail";
}

TEST(SessionFiles, AreReplacedWholeOrNotAtAll) {
  Orologio orologio;
  Plc plc(orologio);
  Registratore registratore(plc);
  const Cartella_Temporanea cartella;
  const std::string file = (cartella / "prova.seduta").string();
  for (const Guasto& come : Guasti()) {
    Scrivi_Byte(file, "vecchio");
    std::string errore;
    {
      const Disco_Guasto guasto(come.Come, cartella.string());
      errore = Salva_Registrazione(file, registratore.Registrata());
    }
    EXPECT_NE(errore.find(come.Detto), std::string::npos) << come.Come << ": " << errore;
    EXPECT_EQ(errore.empty(), come.Detto.empty()) << come.Come << ": " << errore;
    EXPECT_EQ(Leggi_Byte(file) == "vecchio", !come.Detto.empty()) << come.Come;
    EXPECT_EQ(Nomi(cartella), QStringList{"prova.seduta"}) << come.Come;
  }
}

TEST_F(Banco_Diagramma, IsReplacedWholeOrNotAtAll) {
  Corri(300);
  const Cartella_Temporanea cartella;
  for (const auto& [tipo, tasto] :
       {std::pair{"svg", Qt::Key_S}, {"png", Qt::Key_P}, {"vcd", Qt::Key_D}}) {
    const std::string file = (cartella / (std::string("tempi.") + tipo)).string();
    finestra->Chiedi_File = [&](const QString&) { return Q(file); };
    for (const Guasto& come : Guasti()) {
      Scrivi_Byte(file, "vecchio");
      std::string detto;
      finestra->Avvisa = [&detto](const Avviso& avviso) { detto = avviso.Testo; };
      {
        const Disco_Guasto guasto(come.Come, cartella.string());
        Premi(tasto, Qt::ControlModifier);
      }
      EXPECT_NE(detto.find(come.Detto), std::string::npos) << come.Come << ": " << detto;
      EXPECT_EQ(detto.empty(), come.Detto.empty()) << come.Come << ": " << detto;
      EXPECT_EQ(Leggi_Byte(file) == "vecchio", !come.Detto.empty()) << come.Come << ' ' << file;
      EXPECT_EQ(Nomi(cartella), QStringList{Q(std::string("tempi.") + tipo)}) << come.Come;
    }
    std::filesystem::remove(file);
  }
}

}  // namespace tavorno::prova
