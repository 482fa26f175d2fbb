// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "awl/project.h"
#include "panel/documents/print_pages.h"
#include "panel/documents/print_text.h"
#include "panel/documents/print_window.h"
#include "support/answers.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

class Printing : public ::testing::Test {
 protected:
  Printing() {
    progetto.Testo_Main = "//Main\r\nLD     I0.0\r\n";
    progetto.File_Titolo = "nastro.AWL";
  }

  void Aggiungi(const std::string& nome, const std::string& testo) {
    Riga_SBR& riga = progetto.Tab_SBR[++progetto.Num_SBR];
    riga.Nome = nome;
    riga.Testo = testo;
  }

  FrmStampe& Apri() {
    finestra = std::make_unique<FrmStampe>(progetto, [this](QPrinter& stampante, QWidget* sopra) {
      ++domande;
      EXPECT_EQ(sopra, finestra.get());
      stampante.setOutputFormat(QPrinter::PdfFormat);
      stampante.setOutputFileName(file);
      return risposta;
    });
    finestra->show();
    return *finestra;
  }

  template <class Tipo>
  Tipo& Controllo(const char* nome) const {
    auto* controllo = finestra->findChild<Tipo*>(Q(nome));
    if (controllo == nullptr) qFatal("No control named %s", nome);
    return *controllo;
  }
  QPlainTextEdit& Buffer() const { return Controllo<QPlainTextEdit>("txtList"); }
  QCheckBox& chkStp(int i) const {
    return Controllo<QCheckBox>(i == 0 ? "chkStp(0)" : "chkStp(1)");
  }
  void Premi(const char* nome) const { Controllo<QPushButton>(nome).click(); }

  // The printed pages as text.
  QStringList Stampato() const {
    QProcess lettore;
    lettore.start(Q("pdftotext"), {Q("-layout"), Q("-enc"), Q("UTF-8"), file, Q("-")});
    if (!lettore.waitForFinished()) return {Q("pdftotext is missing")};
    QStringList pagine = QString::fromUtf8(lettore.readAllStandardOutput()).split('\f');
    pagine.removeLast();
    return pagine;
  }

  Memoria cpu;
  Risponditore risponditore;
  Progetto progetto{cpu, risponditore.Come_Dialoghi()};
  QTemporaryDir cartella;
  QString file = cartella.filePath(Q("stampa.pdf"));
  bool risposta = true;
  int domande = 0;
  std::unique_ptr<FrmStampe> finestra;
};

// ---- text ---------------------------------------------------------------------------------------

TEST_F(Printing, TheTextOfTheMainProgram) {
  EXPECT_EQ(Testo_Stampa(progetto, true, false),
            "----  Main Program ----\r\n//Main\r\nLD     I0.0\r\n\r\n\r\n");
}

TEST_F(Printing, TheTextOfTheProceduresHasNoEndLine) {
  Aggiungi("SBR_0", "// SBR_0\r\n");
  Aggiungi("Conta", "// Conta\r\n");
  EXPECT_EQ(Testo_Stampa(progetto, false, true),
            "--------- Procedura:SBR_0 --------------\r\n\r\n// SBR_0\r\n"
            "--------- Procedura:Conta --------------\r\n\r\n// Conta\r\n");
}

TEST_F(Printing, TheWholeProjectIsMainAndThenProcedures) {
  Aggiungi("SBR_0", "// SBR_0\r\n");
  EXPECT_EQ(Testo_Stampa(progetto, true, true),
            Testo_Stampa(progetto, true, false) + Testo_Stampa(progetto, false, true));
  EXPECT_EQ(Testo_Stampa(progetto, false, false), "");
}

// ---- lines and pages ----------------------------------------------------------------------------

struct Caso_Riga {
  const char* Nome;
  const char* Testo;
  int Colonne;
  std::vector<const char*> Righe;
};

class Lines : public ::testing::TestWithParam<Caso_Riga> {};

TEST_P(Lines, FitTheirColumns) {
  QStringList attese;
  for (const char* riga : GetParam().Righe) attese += Q(riga);
  EXPECT_EQ(Righe_A_Capo(Q(GetParam().Testo), GetParam().Colonne), attese);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Lines,
    ::testing::Values(
        Caso_Riga{"Empty", "", 10, {}},
        Caso_Riga{"LineEnds", "a\r\nb\nc\rd", 10, {"a", "b", "c", "d"}},
        Caso_Riga{"EmptyLinesBetween", "a\r\n\r\nb\r\n\r\n", 10, {"a", "", "b"}},
        Caso_Riga{"FullLine", "0123456789", 10, {"0123456789"}},
        Caso_Riga{"LongWord", "0123456789abcdefghijXY", 10, {"0123456789", "abcdefghij", "XY"}},
        Caso_Riga{"BlankNearTheEnd", "uno due tre", 9, {"uno due ", "tre"}},
        Caso_Riga{"BlankTooEarly", "a bcdefghij", 10, {"a bcdefghi", "j"}},
        Caso_Riga{"Tabs", "\ta\tb", 20, {"        a       b"}},
        Caso_Riga{"TabAfterEight", "12345678\tx", 20, {"12345678        x"}},
        Caso_Riga{"ControlCharacters",
                  "a\x0b"
                  "b\x1f"
                  "c",
                  10,
                  {"a b c"}}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(Pages, HoldTheirLines) {
  const QStringList righe{Q("1"), Q("2"), Q("3"), Q("4"), Q("5")};
  EXPECT_EQ(Impagina(righe, 2),
            QVector<QStringList>({{Q("1"), Q("2")}, {Q("3"), Q("4")}, {Q("5")}}));
  EXPECT_EQ(Impagina(righe, 5).size(), 1);
  EXPECT_EQ(Impagina({}, 5), QVector<QStringList>{QStringList()});
}

// ---- window -------------------------------------------------------------------------------------

TEST_F(Printing, TheWindowHasItsCaptions) {
  Aggiungi("SBR_0", "");
  Apri();
  EXPECT_EQ(finestra->objectName(), "frmStampe");
  EXPECT_EQ(finestra->windowTitle(), Q("  Stampe Progetto."));
  EXPECT_TRUE(finestra->isModal());
  EXPECT_EQ(chkStp(0).text(), Q("Main Program"));
  EXPECT_TRUE(chkStp(0).isChecked());
  EXPECT_EQ(chkStp(1).text(), Q("Procedure"));
  EXPECT_FALSE(chkStp(1).isChecked());
  EXPECT_EQ(chkStp(0).parentWidget(), &Controllo<QGroupBox>("Frame1"));
  EXPECT_EQ(Controllo<QPushButton>("cmdStp(2)").text(), Q("&Imposta"));
  EXPECT_EQ(Controllo<QPushButton>("cmdStp(1)").text(), Q("&Stampa"));
  EXPECT_EQ(Controllo<QPushButton>("cmdStp(0)").text(), Q("&Annulla"));
  EXPECT_FALSE(Buffer().isVisible());
}

TEST_F(Printing, AProjectWithoutProceduresCannotHaveThemTicked) {
  Apri();
  EXPECT_FALSE(chkStp(1).isEnabled());
  chkStp(1).click();
  EXPECT_FALSE(chkStp(1).isChecked());
}

TEST_F(Printing, AProjectWithProceduresCanHaveThemTicked) {
  Aggiungi("SBR_0", "");
  Apri();
  chkStp(1).click();
  EXPECT_TRUE(chkStp(1).isChecked());
}

TEST_F(Printing, AClickOnATickEmptiesTheBuffer) {
  Aggiungi("SBR_0", "");
  Apri();
  for (int i = 0; i < 2; ++i) {
    Buffer().setPlainText(Q("vecchio"));
    chkStp(i).click();
    EXPECT_EQ(Buffer().toPlainText(), QString());
  }
}

TEST_F(Printing, CancelClosesWithoutPrinting) {
  Apri();
  Premi("cmdStp(0)");
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(domande, 0);
}

TEST_F(Printing, SetUpShowsThePrinterDialogAndNothingMore) {
  Apri();
  Premi("cmdStp(2)");
  EXPECT_EQ(domande, 1);
  EXPECT_TRUE(finestra->isVisible());
  EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(Printing, GivingUpThePrinterKeepsTheWindow) {
  Apri();
  risposta = false;
  Premi("cmdStp(1)");
  EXPECT_EQ(domande, 1);
  EXPECT_TRUE(finestra->isVisible());
  EXPECT_FALSE(QFileInfo::exists(file));
}

TEST(Printer_Dialog, OffersNeitherPageNumbersNorASelection) {
  QPrinter stampante;
  bool mostrato = false;
  QTimer::singleShot(0, [&mostrato] {
    auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialogo == nullptr) qFatal("No dialog of the printer");
    mostrato = true;
    EXPECT_FALSE(dialogo->testOption(QAbstractPrintDialog::PrintPageRange));
    EXPECT_FALSE(dialogo->testOption(QAbstractPrintDialog::PrintSelection));
    dialogo->reject();
  });
  EXPECT_FALSE(Scegli_Stampante(stampante, nullptr));
  EXPECT_TRUE(mostrato);
}

TEST_F(Printing, PrintsAndCloses) {
  Apri();
  Premi("cmdStp(1)");
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_TRUE(Buffer().toPlainText().startsWith(Q("----  Main Program ----\n//Main\n")));
  const QStringList pagine = Stampato();
  ASSERT_EQ(pagine.size(), 1);
  EXPECT_TRUE(pagine[0].contains(Q("nastro.AWL")));
  EXPECT_TRUE(pagine[0].contains(Q("Pagina 1 di 1")));
  EXPECT_TRUE(pagine[0].contains(Q("LD     I0.0"))) << Utf8(pagine[0]);
}

TEST_F(Printing, PrintingWithNothingTickedPrintsAnEmptyPage) {
  Apri();
  chkStp(0).click();
  Premi("cmdStp(1)");
  EXPECT_FALSE(finestra->isVisible());
  const QStringList pagine = Stampato();
  ASSERT_EQ(pagine.size(), 1);
  EXPECT_EQ(pagine[0].simplified(), Q("nastro.AWL Pagina 1 di 1"));
}

TEST_F(Printing, ALongLineIsPrintedWhole) {
  std::string lunga = "//";
  while (lunga.size() < 200) lunga += static_cast<char>('A' + lunga.size() * 7 % 26);
  progetto.Testo_Main = lunga + "\r\n";
  Apri();
  Premi("cmdStp(1)");
  EXPECT_TRUE(Stampato().value(0).remove(' ').remove('\n').contains(Q(lunga)));
}

TEST_F(Printing, AccentsArePrinted) {
  progetto.Testo_Main = A_Byte(Q("//velocità perché È più 5 €\r\n"));
  Apri();
  Premi("cmdStp(1)");
  EXPECT_TRUE(Stampato().value(0).contains(Q("//velocità perché È più 5 €")));
}

TEST_F(Printing, ManyLinesFillSeveralNumberedPagesWithoutLoss) {
  progetto.Testo_Main.clear();
  for (int i = 0; i < 200; ++i) progetto.Testo_Main += "LD VB" + std::to_string(1000 + i) + "\r\n";
  Aggiungi("SBR_0", "RIGA DELLA PROCEDURA\r\n");
  Apri();
  chkStp(1).click();
  Premi("cmdStp(1)");
  const QStringList pagine = Stampato();
  ASSERT_GT(pagine.size(), 2);
  for (qsizetype i = 0; i < pagine.size(); ++i) {
    EXPECT_TRUE(pagine[i].contains(Q("Pagina %1 di %2").arg(i + 1).arg(pagine.size())));
    EXPECT_TRUE(pagine[i].contains(Q("nastro.AWL")));
  }
  const QString tutto = pagine.join('\n');
  for (int i = 0; i < 200; ++i) EXPECT_EQ(tutto.count(Q("LD VB%1").arg(1000 + i)), 1) << i;
  EXPECT_TRUE(pagine.constLast().contains(Q("RIGA DELLA PROCEDURA")));
}

TEST_F(Printing, AFailedStartIsToldAndKeepsTheWindow) {
  file = cartella.filePath(Q("manca/stampa.pdf"));
  Apri();
  Premi("cmdStp(1)");
  ASSERT_EQ(risponditore.Avvisi.size(), 1U);
  EXPECT_EQ(risponditore.Avvisi[0].Titolo, "Errore!");
  EXPECT_EQ(risponditore.Avvisi[0].Simbolo, Icona::Critica);
  EXPECT_TRUE(Q(risponditore.Avvisi[0].Testo).startsWith(Q("Impossibile stampare")));
  EXPECT_TRUE(finestra->isVisible());
  // The way is free again once the cause is gone.
  file = cartella.filePath(Q("stampa.pdf"));
  Premi("cmdStp(1)");
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_TRUE(QFileInfo::exists(file));
}

}  // namespace
}  // namespace tavorno
