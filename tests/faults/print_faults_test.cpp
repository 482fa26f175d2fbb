// SPDX-License-Identifier: GPL-3.0-or-later
// A print into a file, on a disk that fails.
#include <gtest/gtest.h>

#include <QDir>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>

#include "awl/file_io.h"
#include "tests/faults/faults.h"
#include "tests/support/temporary_folder.h"
#include "widgets/paper.h"
#include "widgets/text.h"

namespace tavorno::prova {

TEST(FailingDisk, IsThere) {
  ASSERT_TRUE(Disco_Guastabile()) << "the library is not preloaded, so nothing here would fail";
}

TEST(Prints, ReplaceTheirFileWholeOrNotAtAll) {
  const Cartella_Temporanea cartella;
  const std::string file = (cartella / "stampa.pdf").string();
  QPrinter stampante;
  stampante.setOutputFormat(QPrinter::PdfFormat);
  stampante.setOutputFileName(Q(file));
  const auto disegna = [](QPagedPaintDevice& carta) {
    QPainter penna(&carta);
    penna.drawText(100, 100, "LD I0.0");
    return penna.end();
  };
  for (const Guasto& come : Guasti()) {
    std::string causa;
    const auto scrivi = [&causa](const std::string& dove, std::string_view byte) {
      return causa = Scrivi_File(dove, byte);
    };
    Scrivi_Byte(file, "vecchio");
    {
      const Disco_Guasto guasto(come.Come, cartella.string());
      EXPECT_EQ(Stampa_Su(stampante, "prova", disegna, scrivi), come.Detto.empty()) << come.Come;
    }
    EXPECT_EQ(causa, come.Detto) << come.Come;
    EXPECT_EQ(Leggi_Byte(file).starts_with("%PDF"), come.Detto.empty()) << come.Come;
    EXPECT_EQ(Leggi_Byte(file) == "vecchio", !come.Detto.empty()) << come.Come;
    const QStringList altri = QDir(Q(cartella.string())).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(altri, QStringList{"stampa.pdf"}) << come.Come;
  }
}

}  // namespace tavorno::prova
