// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that a user really sees.
#include "widgets/message_box.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPointer>
#include <QTest>

#include "support/modal.h"

namespace tavorno {
namespace {

struct Caso_Box {
  Tasti Scelte;
  Icona Simbolo;
  QMessageBox::Icon Icona_Attesa;
  std::vector<std::pair<QMessageBox::StandardButton, Risposta>> Tasti_Attesi;
  Risposta Con_Esc;
};
class Box : public ::testing::TestWithParam<Caso_Box> {};

TEST_P(Box, ShowsWhatItIsGiven) {
  All_Apertura<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Attenzione!");
    EXPECT_EQ(box.text(), " 3 Righe <perché> &no");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.detailedText(), "Riga 4");
    EXPECT_EQ(box.icon(), GetParam().Icona_Attesa);
    QMessageBox::StandardButtons tasti;
    for (const auto& [tasto, risposta] : GetParam().Tasti_Attesi) tasti |= tasto;
    EXPECT_EQ(box.standardButtons(), tasti);
    box.reject();
  });
  Mostra_Avviso(nullptr, {"Attenzione!", " 3 Righe <perché> &no", GetParam().Simbolo,
                          GetParam().Scelte, "Riga 4"});
}

TEST_P(Box, GivesTheAnswerOfItsButton) {
  for (const auto& [tasto, risposta] : GetParam().Tasti_Attesi) {
    All_Apertura<QMessageBox>([tasto = tasto](QMessageBox& box) { Premi(box, tasto); });
    EXPECT_EQ(Mostra_Avviso(nullptr, {"", "", GetParam().Simbolo, GetParam().Scelte, ""}),
              risposta);
  }
}

TEST_P(Box, ClosedWithoutAnAnswerLosesNothing) {
  All_Apertura<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(Mostra_Avviso(nullptr, {"", "", GetParam().Simbolo, GetParam().Scelte, ""}),
            GetParam().Con_Esc);
}

INSTANTIATE_TEST_SUITE_P(All, Box,
                         ::testing::Values(Caso_Box{Tasti::Ok,
                                                    Icona::Nessuna,
                                                    QMessageBox::NoIcon,
                                                    {{QMessageBox::Ok, Risposta::Ok}},
                                                    Risposta::Ok},
                                           Caso_Box{Tasti::Ok_Annulla,
                                                    Icona::Critica,
                                                    QMessageBox::Critical,
                                                    {{QMessageBox::Ok, Risposta::Ok},
                                                     {QMessageBox::Cancel, Risposta::Annulla}},
                                                    Risposta::Annulla},
                                           Caso_Box{Tasti::Si_No,
                                                    Icona::Domanda,
                                                    QMessageBox::Question,
                                                    {{QMessageBox::Yes, Risposta::Si},
                                                     {QMessageBox::No, Risposta::No}},
                                                    Risposta::Si}));

TEST(BoxPlace, IsOverItsWindowAndInFrontOfWhatIsModal) {
  QWidget sua, attiva;
  attiva.show();
  attiva.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&attiva));
  const auto sotto_a = [](QWidget* sopra) {
    const QWidget* sotto = nullptr;
    All_Apertura<QMessageBox>([&](QMessageBox& box) {
      sotto = box.parentWidget();
      box.reject();
    });
    Mostra_Avviso(sopra, {});
    return sotto;
  };
  EXPECT_EQ(sotto_a(nullptr), &attiva);
  EXPECT_EQ(sotto_a(&sua), &sua);
  QDialog modale;
  modale.setModal(true);
  modale.show();
  EXPECT_EQ(sotto_a(&sua), &modale);
}

TEST(BoxPlace, GoesWithItsWindowAndThatIsNoConsent) {
  QPointer<QDialog> sotto = new QDialog;
  All_Apertura<QMessageBox>([&](QMessageBox&) { delete sotto; });
  EXPECT_EQ(Mostra_Avviso(sotto, {"", "", Icona::Domanda, Tasti::Ok_Annulla, ""}),
            Risposta::Annulla);
  EXPECT_TRUE(sotto.isNull());
}

}  // namespace
}  // namespace tavorno
