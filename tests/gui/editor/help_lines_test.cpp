// SPDX-License-Identifier: GPL-3.0-or-later
// Each command of the editor has a key and a line in the help.
#include <map>

#include "awl/patterns.h"
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

QString Senza_Tasto(QString testo) {
  return testo.remove('&');
}

/// A key as the help writes it.
QString Come_Nella_Guida(const QKeySequence& tasti) {
  static const std::map<QString, QString> nomi = {{"Shift", "Maiusc"},
                                                  {"Down", "Giù"},
                                                  {"Up", "Su"},
                                                  {"Left", "Sinistra"},
                                                  {"Return", "Invio"}};
  QStringList parti = tasti.toString(QKeySequence::PortableText).split('+');
  for (QString& parte : parti) {
    const auto nome = nomi.find(parte);
    if (nome != nomi.end()) parte = nome->second;
  }
  return parti.join('+');
}

class HelpLine : public Banco_Editor {
 protected:
  void SetUp() override {
    QFile file(QStringLiteral(TAVORNO_HELP_SOURCE "/Index.htm"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    pagina = QString::fromUtf8(file.readAll()).section("id=\"comandi\"", 1);
    ASSERT_FALSE(pagina.isEmpty());
    Avvia(Avvio::Nuovo);
  }
  bool Detto(const QString& comando, const QKeySequence& tasti) const {
    return pagina.contains(QStringLiteral("<tr><td>%1</td><td>%2</td><td>")
                               .arg(Senza_Tasto(comando), Come_Nella_Guida(tasti)));
  }

  QString pagina;
};

}  // namespace

TEST_F(HelpLine, IsThereForEachEntryThatHasAKey) {
  int quanti = 0;
  for (const QAction* voce : finestra->findChildren<QAction*>()) {
    if (voce->shortcut().isEmpty() || voce->objectName().startsWith("tB1")) continue;
    ++quanti;
    EXPECT_TRUE(Detto(voce->text(), voce->shortcut()))
        << Utf8(voce->text()) << ' ' << Utf8(Come_Nella_Guida(voce->shortcut()));
  }
  EXPECT_GT(quanti, 30);
}

TEST_F(HelpLine, IsThereForEachButtonThatHasAKey) {
  int quanti = 0;
  for (const QPushButton* tasto : finestra->findChildren<QPushButton*>()) {
    if (tasto->shortcut().isEmpty() || tasto->objectName().isEmpty() ||
        !tasto->text().startsWith("I"))
      continue;
    ++quanti;
    EXPECT_TRUE(Detto(tasto->text(), tasto->shortcut())) << Utf8(tasto->text());
  }
  EXPECT_GE(quanti, 3);
  EXPECT_TRUE(
      Detto(Trova<QPushButton>("cmdTest").text(), Trova<QPushButton>("cmdTest").shortcut()));
}

TEST_F(HelpLine, EachCommandOnTheTextsHasAKey) {
  int quanti = 0;
  for (const char* menu : {"mnuCerca", "mnuVai", "mnuRighe"}) {
    for (const QAction* voce : Voce(menu).menu()->actions()) {
      if (voce->isSeparator()) continue;
      ++quanti;
      EXPECT_FALSE(voce->shortcut().isEmpty()) << Utf8(voce->text());
      EXPECT_FALSE(voce->toolTip().isEmpty()) << Utf8(voce->text());
    }
  }
  EXPECT_EQ(quanti, 18);
}

TEST_F(HelpLine, IsThereForEachSkeleton) {
  for (const Schema& schema : Tabella_Schemi())
    EXPECT_TRUE(
        pagina.contains(QStringLiteral("<tr><td>%1</td><td>").arg(Senza_Tasto(Q(schema.Voce)))))
        << schema.Voce;
}

TEST_F(HelpLine, NoKeyHasTwoCommands) {
  std::map<QString, QString> di;
  for (const QAction* voce : finestra->findChildren<QAction*>()) {
    if (voce->shortcut().isEmpty()) continue;
    const auto [prima, nuova] = di.try_emplace(voce->shortcut().toString(), voce->objectName());
    EXPECT_TRUE(nuova) << Utf8(voce->objectName()) << " and " << Utf8(prima->second);
  }
}

}  // namespace tavorno::prova
