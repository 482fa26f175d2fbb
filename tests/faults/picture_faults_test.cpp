// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of a plant as a file, on a disk that fails.
#include <QAction>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>

#include "host/host_bed.h"
#include "support/modal.h"
#include "tests/faults/faults.h"
#include "tests/support/temporary_folder.h"
#include "widgets/text.h"

namespace tavorno::prova {

TEST(FailingDisk, IsThere) {
  ASSERT_TRUE(Disco_Guastabile()) << "the library is not preloaded, so nothing here would fail";
}

TEST(PictureFiles, AreReplacedWholeOrNotAtAll) {
  Banco_Host banco{0};
  const Cartella_Temporanea cartella;
  for (const QString tipo : {"svg", "png"}) {
    const std::string file = (cartella / ("figura." + Utf8(tipo))).string();
    banco.Disegno().Chiedi_File = [&](const QString&) { return Q(file); };
    for (const Guasto& come : Guasti()) {
      Scrivi_Byte(file, "vecchio");
      bool detto = false;
      if (!come.Detto.empty())
        All_Apertura<QMessageBox>([&detto](QMessageBox& box) {
          detto = box.windowTitle() == "Errore!";
          Premi(box, QMessageBox::Ok);
        });
      {
        const Disco_Guasto guasto(come.Come, cartella.string());
        banco.Disegno()
            .findChild<QAction*>(tipo == u"svg" ? "mnuSalvaSvg" : "mnuSalvaPng")
            ->trigger();
      }
      EXPECT_EQ(detto, !come.Detto.empty()) << come.Come << ' ' << file;
      EXPECT_EQ(Leggi_Byte(file) == "vecchio", !come.Detto.empty()) << come.Come << ' ' << file;
      const QStringList altri = QDir(Q(cartella.string())).entryList(QDir::Files | QDir::Hidden);
      EXPECT_EQ(altri, QStringList{Q("figura." + Utf8(tipo))}) << come.Come;
    }
    std::filesystem::remove(file);
  }
}

}  // namespace tavorno::prova
