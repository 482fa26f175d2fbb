// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of an unsaved text when the desktop's session ends.
#include "panel/safekeeping.h"

#include <QSessionManager>

#include "awl/ui/awl_editor.h"
#include "panel/child_windows.h"
#include "panel_bed.h"
#include "tests/support/temporary_folder.h"

namespace tavorno {
namespace {

struct Ripristino : Banco_Pannello {
  prova::Cartella_Temporanea cartella;
  Guida guida;
  Finestre finestre{pannello, plc, progetto, guida};
  Salvaguardia salvaguardia{progetto, pannello, finestre, cartella / "copie"};

  void Scrivi(const QString& testo) {
    finestre.Mostra_Editor(Avvio::Nuovo);
    for (QWidget* parte : QApplication::allWidgets()) {
      auto* editor = dynamic_cast<AwlEditor*>(parte);
      if (editor == nullptr || editor->objectName() != "txtList") continue;
      editor->setFocus();
      QTest::keyClicks(editor, testo);
    }
  }
  /// The texts of all copies, one behind the other.
  std::string Copie() const {
    std::string testi;
    std::error_code nessuna;
    for (const auto& voce :
         std::filesystem::recursive_directory_iterator(cartella / "copie", nessuna))
      if (voce.is_regular_file()) testi += prova::Leggi_Byte(voce.path());
    return testi;
  }
};

/// The desktop asks all programs to store what they have; its manager is nobody's business here.
void Fine_Sessione() {
  const int segnale = qGuiApp->metaObject()->indexOfSignal("commitDataRequest(QSessionManager&)");
  ASSERT_GE(segnale, 0);
  void* argomenti[] = {nullptr, nullptr};
  QMetaObject::activate(qGuiApp, segnale, static_cast<void**>(argomenti));
}

TEST_F(Ripristino, TheEndOfTheSessionLeavesACopyOfWhatWasJustTyped) {
  Scrivi("= Q0.7");
  EXPECT_EQ(Copie().find("Q0.7"), std::string::npos) << "nothing has passed since the last key";
  Fine_Sessione();
  EXPECT_NE(Copie().find("Q0.7"), std::string::npos);
}

TEST_F(Ripristino, AnEndThatTheUserWantsLeavesNone) {
  Scrivi("= Q0.7");
  Fine_Sessione();
  ASSERT_NE(Copie().find("Q0.7"), std::string::npos);
  salvaguardia.Congeda();
  EXPECT_EQ(Copie().find("Q0.7"), std::string::npos);
}

}  // namespace
}  // namespace tavorno
