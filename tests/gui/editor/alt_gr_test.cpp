// SPDX-License-Identifier: GPL-3.0-or-later
// AltGr writes "@", "#", "[", "{" and the euro sign, whether it comes as a key of its own or as
// Ctrl and Alt; Ctrl and Alt write nothing.
#include "awl/ui/alt_gr.h"

#include "awl/ui/text_field.h"
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier, alt = Qt::AltModifier;

struct Tasto {
  const char* Nome;
  Qt::Key Key;
  Qt::KeyboardModifiers Con;
  char16_t Testo;
  char16_t Senza;  // what the key writes by itself; 0 for nothing
  bool Scrive;
};

// An Italian keyboard, and what a key that has nothing on its third level comes with.
constexpr Tasto di_una_tastiera[] = {
    {"At", Qt::Key_At, ctrl | alt, u'@', u'ò', true},
    {"Number", Qt::Key_NumberSign, ctrl | alt, u'#', u'à', true},
    {"Bracket", Qt::Key_BracketLeft, ctrl | alt, u'[', u'è', true},
    {"Brace", Qt::Key_BraceLeft, ctrl | alt | Qt::ShiftModifier, u'{', u'è', true},
    {"Euro", Qt::Key_E, ctrl | alt, u'€', u'E', true},
    {"Letter", Qt::Key_F, ctrl | alt, u'F', u'F', false},
    {"SmallLetter", Qt::Key_F, ctrl | alt, u'f', u'F', false},
    {"ShiftAndLetter", Qt::Key_F, ctrl | alt | Qt::ShiftModifier, u'F', u'F', false},
    {"Digit", Qt::Key_0, ctrl | alt, u'0', u'0', false},
    {"Comma", Qt::Key_Comma, ctrl | alt, u',', u',', false},
    {"Blank", Qt::Key_Space, ctrl | alt, u' ', u' ', false},
    {"ControlCode", Qt::Key_F, ctrl | alt, u'\x06', u'F', false},
    {"CtrlAlone", Qt::Key_At, ctrl, u'@', u'ò', false},
    {"AltAlone", Qt::Key_At, alt, u'@', u'ò', false},
};

class AltGr : public testing::TestWithParam<Tasto> {
 protected:
  /// As a widget gets it where AltGr comes as Ctrl and Alt.
  static void Batti(QWidget& dove) {
    const Tasto& t = GetParam();
    QKeyEvent evento(QEvent::KeyPress, t.Key, t.Con, QString(QChar(t.Testo)));
    Senza_Lettera(evento, QChar(t.Senza),
                  [&](QKeyEvent& tasto) { QApplication::sendEvent(&dove, &tasto); });
  }
  static QString Atteso() { return GetParam().Scrive ? QString(QChar(GetParam().Testo)) : ""; }
};

}  // namespace

TEST_P(AltGr, WritesInAText) {
  QsciScintilla testo;
  testo.setUtf8(true);
  Batti(testo);
  EXPECT_EQ(testo.text(), Atteso());
}

TEST_P(AltGr, WritesInAField) {
  QLineEdit campo;
  Batti(campo);
  EXPECT_EQ(campo.text(), Atteso());
}

TEST_P(AltGr, IsAKeyOfItsOwnElsewhere) {
  const Tasto& t = GetParam();
  const QKeyEvent evento(QEvent::KeyPress, t.Key, t.Con, QString(QChar(t.Testo)));
  EXPECT_FALSE(Di_AltGr(evento, {}));
}

INSTANTIATE_TEST_SUITE_P(Keys, AltGr, testing::ValuesIn(di_una_tastiera),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

using AltGrOfTheEditor = Banco_Editor;

TEST_F(AltGrOfTheEditor, WritesInTheTextAndInTheField) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuCercaTrova");
  const auto batti = [](QWidget& dove) {
    for (const QChar lettera : QStringLiteral("@#[]{}€")) {
      QKeyEvent evento(QEvent::KeyPress, lettera.unicode(), Qt::GroupSwitchModifier,
                       QString(lettera));
      QApplication::sendEvent(&dove, &evento);
    }
  };
  txtList().setText("");
  batti(txtList());
  EXPECT_EQ(txtList().text(), "@#[]{}€");
  EXPECT_EQ(progetto.Testo_Main, "@#[]{}\x80");
  QLineEdit& campo = Trova<QLineEdit>("txtCerca");
  campo.clear();
  batti(campo);
  EXPECT_EQ(campo.text(), "@#[]{}€");
}

TEST_F(AltGrOfTheEditor, NoCommandStandsOnCtrlAndAlt) {
  Avvia(Avvio::Nuovo);
  const auto esamina = [](const QKeySequence& tasti) {
    for (int i = 0; i < tasti.count(); ++i)
      EXPECT_FALSE(tasti[i].keyboardModifiers().testFlags(ctrl | alt))
          << Utf8(tasti.toString(QKeySequence::PortableText));
  };
  for (const QAction* voce : finestra->findChildren<QAction*>())
    for (const QKeySequence& tasti : voce->shortcuts()) esamina(tasti);
  for (const QShortcut* tasto : finestra->findChildren<QShortcut*>()) esamina(tasto->key());
  for (const QsciCommand* comando : txtList().standardCommands()->commands()) {
    esamina(QKeySequence(comando->key()));
    esamina(QKeySequence(comando->alternateKey()));
  }
}

}  // namespace tavorno::prova
